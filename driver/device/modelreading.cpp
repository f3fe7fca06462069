// SPDX-License-Identifier: Apache-2.0
// DeviceConnection's way from an association to a model: who is there, whether it is still the
// device whose model is known, and what it describes.
#include "deviceconnection.h"

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
using std::chrono::steady_clock;

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

asio::awaitable<void> DeviceConnection::identify(ClientPointer client)
{
    const Deadline before = steady_clock::now();
    const mms::CallOutcome outcome = co_await client->association().call(
        mms::IdentifyRequest(), std::min(identifyLimit, m_configuration.callTimeout),
        mms::GivenUpCall::LeavesItsPlace);
    if (client != m_client)
        co_return;
    const auto *failure = std::get_if<mms::CallFailure>(&outcome);
    if (failure && failure->kind == mms::CallFailure::Kind::TimedOut && failure->wasSent)
        m_answersIdentify = false;
    const auto *answer = mms::answerOf<mms::IdentifyResponse>(outcome);
    const auto time =
        std::chrono::duration_cast<std::chrono::microseconds>(steady_clock::now() - before);
    updateStatus([&](DeviceStatus &status) {
        if (!failure)
            status.roundTrip = time;
        if (!answer)
            return;
        status.vendor = text(answer->vendor);
        status.model = text(answer->model);
        status.revision = text(answer->revision);
    });
}

asio::awaitable<void> DeviceConnection::identified(ClientPointer client)
{
    while (m_isIdentifying && client->isOpen())
        co_await pause(identifyLimit);
}

QString DeviceConnection::loadFile(const QStringList &logicalDevices)
{
    if (m_configuration.sclFile.isEmpty() || (m_fileRead && m_fileFor == logicalDevices))
        return {};
    m_fileRead = true;
    m_fileFor = logicalDevices;
    m_fromFile.reset();
    const scl::ReadResult read = SclImport::readFile(m_configuration.sclFile);
    if (!read.document)
        return SclImport::errorText(read);
    QString error;
    const scl::Ied *ied = SclImport::chooseIed(*read.document, m_configuration.ied, error);
    if (!ied)
        return error;
    const FileChoice choice =
        chooseServer(*read.document, *ied,
                     {m_configuration.accessPoint, m_configuration.host, logicalDevices}, error);
    if (!error.isEmpty())
        return error;
    m_fromFile = SclImport::makeDevice(*ied, choice);
    return {};
}

asio::awaitable<QString> DeviceConnection::getReady(ClientPointer client)
{
    if (m_answersIdentify && !m_isIdentifying) {
        m_isIdentifying = true;
        asio::co_spawn(m_strand, identify(client),
                       [self = shared_from_this(), client](const std::exception_ptr &exception) {
                           self->m_isIdentifying = false;
                           self->wake();
                           self->fail(client, exception);
                       });
    }
    co_await identified(client);
    m_readingCancelled = std::make_shared<std::atomic<bool>>(false);
    mms::Result<acsi::ServerDescription> description = co_await fetchDescription(client);
    const bool wasCancelled = *m_readingCancelled;
    m_readingCancelled.reset();
    // Who cancelled has withdrawn the wish already; one that stands now is newer.
    if (wasCancelled)
        co_return Texts::tr("Reading the model was cancelled.");
    if (!description)
        co_return text(description.error().message);
    QStringList names;
    for (const acsi::DeviceDescription &device : description->devices)
        names.append(text(device.name));
    const bool isFileOther = m_fileFor != names;
    const QString problem = loadFile(names);
    if (isFileOther)
        setProblem(QStringLiteral("SCL"),
                   problem.isEmpty() ? QString()
                                     : Texts::tr("The SCL file is not used: %1").arg(problem));
    // Values are kept with the model as long as the device is in every way the same.
    if (!m_model || isFileOther || m_model->description() != *description) {
        m_model = std::make_unique<OnlineModel>(
            std::move(*description), m_fromFile ? m_fromFile->name : m_configuration.name,
            m_fromFile.get());
        m_triggers.clear();
        m_knowsTriggers.clear();
    }
    const std::vector<mms::Text> &leftOut = m_model->description().leftOut;
    QStringList sentences;
    for (std::size_t i = 0; i < leftOut.size() && i < namedOmissions; ++i)
        sentences.append(text(leftOut[i]));
    setProblem(QStringLiteral("limits"), sentences.join(QLatin1Char(' ')));
    co_await readRevisions(client);
    updateStatus([this](DeviceStatus &status) {
        status.refusedObjects = static_cast<int>(m_model->description().refused.size());
    });
    const DeviceStatus who = status();
    m_identity.address =
        QStringLiteral("%1:%2").arg(m_configuration.host).arg(m_configuration.port);
    m_identity.vendor = who.vendor;
    m_identity.model = who.model;
    m_identity.logicalDevices = names;
    m_identity.revisions = m_revisions;
    const std::optional<osi::TlsPeer> peer = client->association().tlsPeer();
    m_identity.certificate = peer ? text(peer->fingerprint) : QString();
    makeCurrency(client);
    co_await readBlocks(client);
    // The browser offers controls by their control model, so it comes with the model.
    co_await readConfiguration(client);
    co_return client->isOpen() ? QString() : m_endReason;
}

asio::awaitable<void> DeviceConnection::readRevisions(ClientPointer client)
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

asio::awaitable<void> DeviceConnection::refreshDataSets()
{
    const ClientPointer client = m_client;
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
    if (!read || !read->leftOut.empty() || !m_model || client != m_client)
        co_return;
    const std::vector<mms::Text> &known = m_model->description().refused;
    const bool isRefusalNew =
        std::ranges::any_of(read->refused, [&known](const mms::Text &sentence) {
            return std::ranges::find(known, sentence) == known.end();
        });
    if (!isRefusalNew)
        m_model->setDataSets(*read, m_fromFile.get());
}

asio::awaitable<void> DeviceConnection::refreshReportBlocks()
{
    const ClientPointer client = m_client;
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
    if (!values || !m_model || client != m_client)
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
DeviceConnection::fetchDescription(ClientPointer client)
{
    acsi::DiscoveryOptions options;
    options.cancelled = m_readingCancelled;
    options.identity = identityOf(status());
    options.devicesKnown = [this](const std::vector<std::string> &devices) {
        QStringList names;
        for (const std::string &device : devices)
            names.append(text(device));
        const QString conflict = m_environment.claim(names);
        if (!conflict.isEmpty())
            m_ending = AssociationLife::Ending::Conflict;
        return mms::verbatim(conflict.toStdString());
    };
    const std::weak_ptr<DeviceConnection> weak = weak_from_this();
    options.progress = [weak](std::size_t done, std::size_t total) {
        if (const auto self = weak.lock()) {
            self->updateStatus([&](DeviceStatus &status) {
                status.modelStepsDone = static_cast<int>(done);
                status.modelSteps = static_cast<int>(total);
            });
        }
    };
    co_return co_await acsi::discover(client, options);
}

asio::awaitable<void> DeviceConnection::readBlocks(ClientPointer client)
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
