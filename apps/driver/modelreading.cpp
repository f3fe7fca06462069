// SPDX-License-Identifier: Apache-2.0
// DeviceConnection's way from an association to a model: who is there, whether it is still the
// device whose model is known, and what it describes.
#include "deviceconnection.h"

#include "connectiontext.h"
#include "descriptioncache.h"
#include "discoveredmodel.h"
#include "sclimport.h"

#include "acsi/reportblock.h"
#include "acsi/settinggroup.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QCryptographicHash>

using acsi::FunctionalConstraint;
using ConnectionText::text;
using std::chrono::steady_clock;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

} // namespace

asio::awaitable<void> DeviceConnection::identify(ClientPointer client)
{
    const Deadline before = steady_clock::now();
    const mms::Result<mms::IdentifyResponse> answer =
        co_await client->ask<mms::IdentifyResponse>(mms::IdentifyRequest());
    const auto time =
        std::chrono::duration_cast<std::chrono::microseconds>(steady_clock::now() - before);
    updateStatus([&](DeviceStatus &status) {
        status.roundTrip = time;
        if (!answer)
            return;
        status.vendor = text(answer->vendor);
        status.model = text(answer->model);
        status.revision = text(answer->revision);
    });
}

QString DeviceConnection::loadFile()
{
    if (m_fileRead || m_configuration.sclFile.isEmpty())
        return {};
    m_fileRead = true;
    const scl::ReadResult read = SclImport::readFile(m_configuration.sclFile);
    if (!read.document)
        return SclImport::errorText(read);
    QString error;
    const scl::Ied *ied = SclImport::chooseIed(*read.document, m_configuration.ied, error);
    if (!ied)
        return error;
    m_fromFile = SclImport::makeDevice(*ied);
    return {};
}

asio::awaitable<QString> DeviceConnection::getReady(ClientPointer client)
{
    co_await identify(client);
    const mms::Result<std::vector<std::string>> domains =
        co_await client->nameList(mms::ObjectClass::Domain, mms::Scope::Vmd);
    if (!domains)
        co_return text(domains.error().message);
    QStringList names;
    for (const std::string &domain : *domains)
        names.append(text(domain));
    const QString conflict = m_environment.claim(names);
    if (!conflict.isEmpty())
        co_return conflict;

    const QString problem = loadFile();
    if (!problem.isEmpty())
        setProblem(QStringLiteral("SCL"), Texts::tr("The SCL file is not used: %1").arg(problem));

    const mms::Result<QByteArray> print = co_await fingerprint(client, *domains);
    if (!print)
        co_return text(print.error().message);
    if (!m_model || *print != m_fingerprint || !m_isModelSettled) {
        m_readingCancelled = std::make_shared<std::atomic<bool>>(false);
        mms::Result<acsi::ServerDescription> description = co_await describe(client, *print);
        const bool wasCancelled = *m_readingCancelled;
        m_readingCancelled.reset();
        if (wasCancelled) {
            m_wanted = false;
            m_leaveReason = Texts::tr("Reading the model was cancelled.");
            co_return m_leaveReason;
        }
        if (!description)
            co_return text(description.error().message);
        // What is refused once may be given the next time; what is refused twice never will.
        m_isModelSettled = description->refused.empty() ||
                           (m_model && m_model->description().refused == description->refused);
        m_model = std::make_unique<OnlineModel>(
            std::make_shared<const acsi::ServerDescription>(std::move(*description)),
            m_fromFile ? m_fromFile->name : m_configuration.name, m_fromFile.get());
        m_fingerprint = *print;
        m_inParts.clear();
    }
    for (auto each = m_revisions.cbegin(); each != m_revisions.cend(); ++each)
        DiscoveredModel::setRevision(m_model->device(), each.key(), each.value(), m_fromFile.get());
    m_refused.clear();
    updateStatus([this](DeviceStatus &status) {
        status.refusedObjects = static_cast<int>(m_model->description().refused.size());
    });
    co_await readBlocks(client);
    // The browser offers controls by their control model, so it comes with the model.
    co_await readConfiguration(client);
    co_return client->isOpen() ? QString() : m_endReason;
}

asio::awaitable<mms::Result<QByteArray>>
DeviceConnection::fingerprint(ClientPointer client, const std::vector<std::string> &domains)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const auto add = [&hash](std::string_view part) {
        hash.addData(part.data(), static_cast<int>(part.size()));
        hash.addData("", 1);
    };
    m_revisions.clear();
    const DeviceStatus who = status();
    add(who.vendor.toStdString());
    add(who.model.toStdString());
    add(who.revision.toStdString());

    std::vector<mms::VariableAccess> revisions;
    for (const std::string &domain : domains) {
        mms::VariableAccess access;
        access.variable = mms::ObjectName::inDomain(domain, "LLN0$DC$NamPlt$configRev");
        revisions.push_back(std::move(access));
    }
    const mms::Result<std::vector<mms::AccessResult>> values = co_await client->read(revisions);
    for (std::size_t i = 0; i < domains.size(); ++i) {
        add(domains[i]);
        const bool hasRevision = values && i < values->size() && (*values)[i].ok() &&
                                 !(*values)[i].data().text().empty();
        if (hasRevision) {
            add((*values)[i].data().text());
            m_revisions.insert(text(domains[i]), text((*values)[i].data().text()));
        }
        // Data sets come and go within a revision; without a revision anything may.
        std::vector<mms::ObjectClass> classes = {mms::ObjectClass::NamedVariableList};
        if (!hasRevision)
            classes.push_back(mms::ObjectClass::NamedVariable);
        for (const mms::ObjectClass objectClass : classes) {
            const mms::Result<std::vector<std::string>> names =
                co_await client->nameList(objectClass, mms::Scope::Domain, domains[i]);
            if (!names && !client->isOpen())
                co_return names.error();
            if (!names)
                continue;
            for (const std::string &name : *names)
                add(name);
        }
    }
    co_return hash.result();
}

asio::awaitable<mms::Result<acsi::ServerDescription>>
DeviceConnection::describe(ClientPointer client, const QByteArray &print)
{
    const DescriptionCache cache(m_environment.cacheFolder);
    if (std::optional<acsi::ServerDescription> cached = cache.load(print))
        co_return std::move(*cached);
    acsi::DiscoveryOptions options;
    options.cancelled = m_readingCancelled;
    const std::weak_ptr<DeviceConnection> weak = weak_from_this();
    options.progress = [weak](std::size_t done, std::size_t total) {
        if (const auto self = weak.lock()) {
            self->updateStatus([&](DeviceStatus &status) {
                status.modelStepsDone = static_cast<int>(done);
                status.modelSteps = static_cast<int>(total);
            });
        }
    };
    mms::Result<acsi::ServerDescription> description = co_await acsi::discover(client, options);
    if (description && description->refused.empty())
        cache.save(print, *description);
    co_return description;
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
                    *blocks[i].block, *read,
                    configuredBlock(blocks[i].device, blocks[i].block->reference));
            }
        } else {
            DiscoveredModel::setGroups(*blocks[i].node->settingGroup, *type, value.data());
        }
    }
}
