// SPDX-License-Identifier: Apache-2.0
#include "modelreading.h"

#include "deviceconnection.h"
#include "valuepolling.h"
#include "valuepublishing.h"

#include "driver/model/discoveredmodel.h"
#include "driver/model/filechoice.h"
#include "driver/model/sclimport.h"
#include "driver/text/connectiontext.h"
#include "driver/text/sentences.h"

#include "acsi/reportblock.h"
#include "acsi/settinggroup.h"

#include <asio/co_spawn.hpp>

#include <QtCore/QCoreApplication>

#include <algorithm>

using acsi::FunctionalConstraint;
using ConnectionText::text;
using std::chrono::milliseconds;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// How long the opening of a browser waits for the data sets of now.
constexpr std::chrono::seconds dataSetPatience{5};
/// Sentences about what was left out that are shown.
constexpr std::size_t namedOmissions = 3;

/// Who the device said it was when it was asked; it is not asked again.
mms::IdentifyResponse identityOf(const DeviceStatus &status)
{
    return {
        status.vendor.toStdString(), status.model.toStdString(), status.revision.toStdString(), {}};
}

/// How long a device may take to say who it is; one that does not is not asked again.
constexpr milliseconds identifyLimit{2000};

} // namespace

ModelReading::ModelReading(DeviceConnection &connection)
    : m_connection(connection)
{
}

void ModelReading::cancel()
{
    if (m_cancelled)
        *m_cancelled = true;
}

const ReportControlBlock *ModelReading::configuredBlock(const QString &logicalDevice,
                                                        const QString &reference) const
{
    return DiscoveredModel::blockOf(m_fromFile.get(), logicalDevice, reference);
}

/// Beside everything else: some devices say that they can tell and never do.
void ModelReading::beginIdentifying(const ClientPointer &client)
{
    if (!m_answersIdentify || m_isIdentifying)
        return;
    m_isIdentifying = true;
    asio::co_spawn(m_connection.strand(), identify(client),
                   [this, self = m_connection.shared_from_this(),
                    client](const std::exception_ptr &exception) {
                       m_isIdentifying = false;
                       self->wake();
                       self->fail(client, exception);
                   });
}

asio::awaitable<void> ModelReading::identify(ClientPointer client)
{
    const auto before = m_connection.now();
    const mms::CallOutcome outcome = co_await client->call(
        mms::IdentifyRequest(), std::min(identifyLimit, m_connection.configuration().callTimeout),
        mms::GivenUpCall::LeavesItsPlace);
    if (client != m_connection.client())
        co_return;
    const auto *failure = std::get_if<mms::CallFailure>(&outcome);
    if (failure && failure->kind == mms::CallFailure::Kind::TimedOut && failure->wasSent)
        m_answersIdentify = false;
    const auto *answer = mms::answerOf<mms::IdentifyResponse>(outcome);
    const auto time =
        std::chrono::duration_cast<std::chrono::microseconds>(m_connection.now() - before);
    m_connection.board().update([&](DeviceStatus &status) {
        if (!failure)
            status.roundTrip = time;
        if (!answer)
            return;
        status.vendor = text(answer->vendor);
        status.model = text(answer->model);
        status.revision = text(answer->revision);
    });
}

asio::awaitable<void> ModelReading::identified(ClientPointer client)
{
    while (m_isIdentifying && client->isOpen())
        co_await m_connection.pause(identifyLimit);
}

QString ModelReading::loadFile(const QStringList &logicalDevices)
{
    const DeviceConfiguration &configuration = m_connection.configuration();
    if (m_fileFor == logicalDevices)
        return {};
    m_fileFor = logicalDevices;
    m_fromFile.reset();
    if (configuration.sclFile.isEmpty())
        return {};
    const scl::ReadResult read = SclImport::readFile(configuration.sclFile);
    if (!read.document)
        return SclImport::errorText(read);
    QString error;
    const scl::Ied *ied = SclImport::chooseIed(*read.document, configuration.ied, error);
    if (!ied)
        return error;
    const FileChoice choice =
        chooseServer(*read.document, *ied,
                     {configuration.accessPoint, configuration.host, logicalDevices}, error);
    if (!error.isEmpty())
        return error;
    m_fromFile = SclImport::makeDevice(*ied, choice);
    return {};
}

asio::awaitable<ModelReading::Refusal> ModelReading::read(ClientPointer client)
{
    beginIdentifying(client);
    co_await identified(client);
    Refusal refusal;
    m_cancelled = std::make_shared<std::atomic<bool>>(false);
    mms::Result<acsi::ServerDescription> description = co_await fetchDescription(client, refusal);
    const bool wasCancelled = *std::exchange(m_cancelled, nullptr);
    if (wasCancelled) {
        // Who cancelled has withdrawn the wish already; one that stands now is newer.
        refusal.sentence = Texts::tr("Reading the model was cancelled.");
        co_return refusal;
    }
    if (!description) {
        refusal.sentence = text(description.error().message);
        co_return refusal;
    }
    QStringList names;
    for (const acsi::DeviceDescription &device : description->devices)
        names.append(text(device.name));
    takeDescription(std::move(*description), names);
    co_await readRevisions(client);
    takeIdentity(client, names);
    m_connection.values().forgetUnwritten();
    m_connection.polling().begin(client);
    co_await readBlocks(client);
    // The browser offers controls by their control model, so it comes with the model.
    co_await m_connection.polling().readConfiguration(client);
    co_return refusal;
}

void ModelReading::takeDescription(acsi::ServerDescription description,
                                   const QStringList &logicalDevices)
{
    const bool isFileOther = m_fileFor != logicalDevices;
    const QString problem = loadFile(logicalDevices);
    if (isFileOther)
        m_connection.setProblem(
            QStringLiteral("SCL"),
            problem.isEmpty() ? QString() : Texts::tr("The SCL file is not used: %1").arg(problem));
    // Values are kept with the model as long as the device is in every way the same.
    if (!m_model || isFileOther || m_model->description() != description) {
        m_model = std::make_shared<OnlineModel>(
            std::move(description),
            m_fromFile ? m_fromFile->name : m_connection.configuration().name, m_fromFile.get());
    }
    const std::vector<mms::Text> &leftOut = m_model->description().leftOut;
    QStringList sentences;
    for (std::size_t i = 0; i < leftOut.size() && i < namedOmissions; ++i)
        sentences.append(text(leftOut[i]));
    m_connection.setProblem(QStringLiteral("limits"), sentences.join(QLatin1Char(' ')));
}

void ModelReading::takeIdentity(const ClientPointer &client, const QStringList &logicalDevices)
{
    m_connection.board().update([this](DeviceStatus &status) {
        status.refusedObjects = static_cast<int>(m_model->description().refused.size());
    });
    const DeviceConfiguration &configuration = m_connection.configuration();
    const DeviceStatus who = m_connection.status();
    m_identity.address = QStringLiteral("%1:%2").arg(configuration.host).arg(configuration.port);
    m_identity.vendor = who.vendor;
    m_identity.model = who.model;
    m_identity.logicalDevices = logicalDevices;
    m_identity.revisions = m_revisions;
    const std::optional<osi::TlsPeer> peer = client->association().tlsPeer();
    m_identity.certificate = peer ? text(peer->fingerprint) : QString();
}

asio::awaitable<void> ModelReading::readRevisions(ClientPointer client)
{
    std::vector<mms::VariableAccess> revisions;
    for (const acsi::DeviceDescription &device : m_model->description().devices) {
        mms::VariableAccess access;
        access.variable = mms::ObjectName::inDomain(device.name, "LLN0$DC$NamPlt$configRev");
        revisions.push_back(std::move(access));
    }
    m_revisions.clear();
    if (revisions.empty())
        co_return;
    const mms::Result<std::vector<mms::AccessResult>> values =
        co_await client->read(std::move(revisions));
    // A device that does not answer at all is about to be lost.
    if (!values || !m_model)
        co_return;
    const std::vector<acsi::DeviceDescription> &devices = m_model->description().devices;
    for (std::size_t i = 0; i < devices.size() && i < values->size(); ++i) {
        const mms::AccessResult &value = (*values)[i];
        const QString revision = value.ok() ? text(value.data().text()) : QString();
        if (!revision.isEmpty())
            m_revisions.insert(text(devices[i].name), revision);
        DiscoveredModel::setRevision(m_model->device(), text(devices[i].name), revision,
                                     m_fromFile.get());
    }
}

asio::awaitable<void> ModelReading::refreshDataSets()
{
    const ClientPointer client = m_connection.client();
    if (!client || !m_model)
        co_return;
    std::vector<std::string> devices;
    for (const acsi::DeviceDescription &device : m_model->description().devices)
        devices.push_back(device.name);
    acsi::DiscoveryOptions options;
    options.limits.time = dataSetPatience;
    options.cancelled = std::make_shared<std::atomic<bool>>(false);
    const mms::Result<acsi::ServerDescription> read =
        co_await acsi::discoverDataSets(client, std::move(devices), std::move(options));
    if (!read || !read->leftOut.empty() || !m_model || client != m_connection.client())
        co_return;
    const std::vector<mms::Text> &known = m_model->description().refused;
    const bool isRefusalNew =
        std::ranges::any_of(read->refused, [&known](const mms::Text &sentence) {
            return std::ranges::find(known, sentence) == known.end();
        });
    if (!isRefusalNew)
        m_model->setDataSets(*read, m_fromFile.get());
}

asio::awaitable<void> ModelReading::refreshReportBlocks()
{
    const ClientPointer client = m_connection.client();
    if (!client || !m_model)
        co_return;
    struct Place
    {
        QString device;
        QString reference;
    };
    std::vector<Place> places;
    std::vector<mms::VariableAccess> attributes;
    for (const LogicalDevice *device : qAsConst(m_model->device().logicalDevices)) {
        for (const LogicalNode *node : qAsConst(device->logicalNodes)) {
            for (const ReportControlBlock *block : qAsConst(node->reportControls->blocks)) {
                if (block->state == 0)
                    continue;
                mms::VariableAccess access;
                access.variable = mms::ObjectName::inDomain(
                    device->name.toStdString(), block->reference.toStdString() + "$RptEna");
                attributes.push_back(std::move(access));
                places.push_back({device->name, block->reference});
            }
        }
    }
    if (attributes.empty())
        co_return;
    const mms::Result<std::vector<mms::AccessResult>> values =
        co_await client->read(std::move(attributes));
    if (!values || !m_model || client != m_connection.client())
        co_return;
    for (std::size_t i = 0; i < places.size() && i < values->size(); ++i) {
        const mms::AccessResult &value = (*values)[i];
        const std::optional<bool> enabled = value.ok() ? value.data().toBoolean() : std::nullopt;
        ReportControlBlock *const block =
            m_model->reportControlBlock(places[i].device, places[i].reference);
        if (block && enabled)
            block->enabled = *enabled;
    }
}

asio::awaitable<mms::Result<acsi::ServerDescription>>
ModelReading::fetchDescription(ClientPointer client, Refusal &refusal)
{
    acsi::DiscoveryOptions options;
    options.cancelled = m_cancelled;
    options.identity = identityOf(m_connection.status());
    options.devicesKnown = [this, &refusal](const std::vector<std::string> &devices) {
        QStringList names;
        for (const std::string &device : devices)
            names.append(text(device));
        const QString conflict = m_connection.environment().claim(names);
        if (!conflict.isEmpty())
            refusal.kind = AssociationLife::Failure::Conflict;
        return mms::verbatim(conflict.toStdString());
    };
    options.progress = [weak = m_connection.weak_from_this()](std::size_t done, std::size_t total) {
        if (const auto connection = weak.lock()) {
            connection->board().update([&](DeviceStatus &status) {
                status.modelStepsDone = static_cast<int>(done);
                status.modelSteps = static_cast<int>(total);
            });
        }
    };
    co_return co_await acsi::discover(client, options);
}

asio::awaitable<void> ModelReading::readBlocks(ClientPointer client)
{
    struct Block
    {
        acsi::Reference reference;
        QString device;
        LogicalNode *node;
        ReportControlBlock *block; ///< null for the setting groups of the node
    };
    std::vector<Block> blocks;
    std::vector<mms::VariableAccess> variables;
    for (const LogicalDevice *device : qAsConst(m_model->device().logicalDevices)) {
        for (LogicalNode *node : device->logicalNodes) {
            const auto add = [&](FunctionalConstraint constraint, const QString &name,
                                 ReportControlBlock *block) {
                acsi::Reference reference{device->name.toStdString(),
                                          node->name.toStdString(),
                                          constraint,
                                          {{name.toStdString(), std::nullopt}}};
                variables.push_back(acsi::accessOf(reference));
                blocks.push_back({std::move(reference), device->name, node, block});
            };
            for (ReportControlBlock *block : qAsConst(node->reportControls->blocks)) {
                if (block->state != 0)
                    add(block->type == QLatin1String("BR") ? FunctionalConstraint::BR
                                                           : FunctionalConstraint::RP,
                        block->name, block);
            }
            if (node->settingGroup && node->settingGroup->state != 0)
                add(FunctionalConstraint::SP, QStringLiteral("SGCB"), nullptr);
        }
    }
    if (variables.empty())
        co_return;
    const mms::Result<std::vector<mms::AccessResult>> values =
        co_await client->read(std::move(variables));
    if (!values)
        co_return;
    for (std::size_t i = 0; i < blocks.size() && i < values->size(); ++i) {
        const mms::TypeDescription *type = m_model->type(blocks[i].reference);
        const mms::AccessResult &value = (*values)[i];
        if (!type || !value.ok())
            continue;
        if (blocks[i].block) {
            const mms::Result<acsi::ReportBlock> read = acsi::reportBlockFrom(*type, value.data());
            if (read) {
                DiscoveredModel::setSettings(
                    *blocks[i].block, blocks[i].device, *read,
                    configuredBlock(blocks[i].device, blocks[i].block->reference));
            }
        } else {
            DiscoveredModel::setGroups(*blocks[i].node->settingGroup, *type, value.data());
        }
    }
}
