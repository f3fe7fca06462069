// SPDX-License-Identifier: Apache-2.0
#include "settinggroups.h"

#include "changegate.h"
#include "driver/text/connectiontext.h"
#include "valuepublishing.h"

#include <asio/co_spawn.hpp>

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <limits>

using acsi::FunctionalConstraint;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

using ConnectionText::text;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// Somebody at the device may make another group active; that is looked for now and then.
constexpr milliseconds lookInterval{5000};

QString text(const acsi::Reference &reference)
{
    return text(acsi::toText(reference));
}

} // namespace

SettingGroups::SettingGroups(DeviceConnection &connection)
    : m_connection(connection)
{
}

asio::awaitable<void> SettingGroups::opened()
{
    const OnlineModel *model = m_connection.model();
    if (!model)
        co_return;
    const auto &devices = model->description().devices;
    const bool hasBlock = std::any_of(devices.begin(), devices.end(), [model](const auto &device) {
        return SettingModel::block(*model, text(device.name)).ok();
    });
    if (hasBlock) {
        asio::co_spawn(m_connection.strand(), watch(m_connection.client()),
                       [self = m_connection.shared_from_this()](const std::exception_ptr &) {});
    }
}

asio::awaitable<void> SettingGroups::leaving()
{
    const QStringList names = m_edits.keys();
    for (const QString &ldName : names)
        co_await release(ldName);
}

void SettingGroups::closed(const QString &)
{
    m_edits.clear();
}

asio::awaitable<void> SettingGroups::release(QString ldName)
{
    const std::uint32_t group = m_edits.value(ldName).group();
    m_edits[ldName].ended();
    if (group == 0 || !m_connection.model())
        co_return;
    const mms::Result<acsi::Reference> block = SettingModel::block(*m_connection.model(), ldName);
    if (!block)
        co_return;
    ChangeIntent intent;
    intent.operation = QStringLiteral("selectEditSG");
    intent.reference = text(SettingModel::attribute(*block, "EditSG"));
    intent.oldValue = QString::number(group);
    intent.newValue = QStringLiteral("0");
    intent.kind = ChangeIntent::Kind::GivesBack;
    const auto change = ChangeGate::own(m_connection, std::move(intent));
    const auto client = change->client();
    if (!client)
        co_return;
    const acsi::SettingWrite given = co_await acsi::selectEditGroup(client, *block, 0);
    change->end(given ? Outcome() : Outcome::failed(given.error()));
}

bool SettingGroups::enter(const acsi::Reference &block, std::uint32_t numOfSG, std::uint32_t actSG)
{
    const OnlineModel *model = m_connection.model();
    const LogicalNode *node = model ? model->node(text(block.device), text(block.node)) : nullptr;
    if (!node || !node->settingGroup)
        return false;
    const bool isOther = node->settingGroup->activeGroup != static_cast<int>(actSG);
    node->settingGroup->numOfSG = static_cast<int>(numOfSG);
    node->settingGroup->activeGroup = static_cast<int>(actSG);
    return isOther;
}

asio::awaitable<void> SettingGroups::publishActive(QString ldName)
{
    if (!m_connection.client() || !m_connection.model())
        co_return;
    const std::vector<acsi::Reference> nodes =
        SettingModel::nodes(*m_connection.model(), ldName, FunctionalConstraint::SG);
    const ValuePublishing::Publication publication;
    static_cast<void>(co_await m_connection.values().readAndPublish(nodes, publication));
}

asio::awaitable<void> SettingGroups::watch(std::shared_ptr<acsi::Client> client)
{
    const milliseconds poll = m_connection.configuration().pollInterval;
    const milliseconds interval = std::max(poll, lookInterval);
    steady_clock::time_point next = m_connection.now() + interval;
    while (client->isOpen() && m_connection.client() == client) {
        const steady_clock::time_point now = m_connection.now();
        QStringList overdue;
        for (auto each = m_edits.cbegin(); each != m_edits.cend(); ++each) {
            if (each->isOverdue(now))
                overdue.append(each.key());
        }
        for (const QString &ldName : qAsConst(overdue))
            co_await release(ldName);
        if (now >= next) {
            next = now + interval;
            if (poll.count() > 0)
                co_await look(client);
            continue;
        }
        co_await m_connection.pause(std::chrono::ceil<milliseconds>(next - now));
    }
}

asio::awaitable<void> SettingGroups::look(std::shared_ptr<acsi::Client> client)
{
    if (!m_connection.model())
        co_return;
    std::vector<acsi::Reference> blocks;
    std::vector<mms::VariableAccess> variables;
    for (const acsi::DeviceDescription &device : m_connection.model()->description().devices) {
        const auto block = SettingModel::block(*m_connection.model(), text(device.name));
        if (!block)
            continue;
        blocks.push_back(*block);
        variables.push_back(acsi::accessOf(SettingModel::attribute(*block, "ActSG")));
    }
    const auto values = co_await client->read(std::move(variables));
    if (!values)
        co_return;
    for (std::size_t i = 0; i < blocks.size() && i < values->size(); ++i) {
        const mms::AccessResult &value = (*values)[i];
        const auto active = value.ok() ? value.data().toInteger() : std::nullopt;
        const OnlineModel *model = m_connection.model();
        if (!active || *active < 1 || *active > std::numeric_limits<std::uint8_t>::max() || !model)
            continue;
        const LogicalNode *node = model->node(text(blocks[i].device), text(blocks[i].node));
        if (!node || !node->settingGroup)
            continue;
        const auto count = static_cast<std::uint32_t>(std::max(node->settingGroup->numOfSG, 0));
        if (enter(blocks[i], count, static_cast<std::uint32_t>(*active)))
            co_await publishActive(text(blocks[i].device));
    }
}

const acsi::DeviceDescription *SettingModel::device(const OnlineModel &model, const QString &ldName)
{
    const std::string name = ldName.toStdString();
    for (const acsi::DeviceDescription &device : model.description().devices) {
        if (device.name == name)
            return &device;
    }
    return nullptr;
}

mms::Result<acsi::Reference> SettingModel::block(const OnlineModel &model, const QString &ldName)
{
    const auto error = [](const QString &sentence) {
        return mms::Error{mms::verbatim(sentence.toStdString()), 0};
    };
    const acsi::DeviceDescription *described = device(model, ldName);
    if (!described)
        return error(Texts::tr("The device has no logical device \"%1\".").arg(ldName));
    for (const acsi::NodeDescription &node : described->nodes) {
        if (acsi::typeBelow(node.type, "SP", "SGCB"))
            return acsi::Reference{
                described->name, node.name, FunctionalConstraint::SP, {{"SGCB", std::nullopt}}};
    }
    return error(Texts::tr("%1 has no setting group control block.").arg(ldName));
}

acsi::Reference SettingModel::attribute(acsi::Reference block, const char *name)
{
    block.path.push_back({name, std::nullopt});
    return block;
}

std::vector<acsi::Reference> SettingModel::nodes(const OnlineModel &model, const QString &ldName,
                                                 FunctionalConstraint constraint)
{
    std::vector<acsi::Reference> result;
    const acsi::DeviceDescription *described = device(model, ldName);
    if (!described)
        return result;
    for (const acsi::NodeDescription &node : described->nodes) {
        if (acsi::typeBelow(node.type, acsi::toText(constraint), {}))
            result.push_back({described->name, node.name, constraint, {}});
    }
    QHash<QString, int> places;
    for (const LogicalDevice *shown : qAsConst(model.device().logicalDevices)) {
        if (shown->name != ldName)
            continue;
        for (const LogicalNode *node : qAsConst(shown->logicalNodes))
            places.insert(node->name, places.size());
    }
    const auto placeOf = [&places](const acsi::Reference &node) {
        return places.value(text(node.node), std::numeric_limits<int>::max());
    };
    std::stable_sort(result.begin(), result.end(), [&](const auto &left, const auto &right) {
        return placeOf(left) < placeOf(right);
    });
    return result;
}

QString SettingModel::basicType(const OnlineModel &model, QString reference)
{
    const QString edited = QStringLiteral("$SE$");
    const int constraint = reference.indexOf(edited);
    if (constraint >= 0)
        reference.replace(constraint, edited.size(), QStringLiteral("$SG$"));
    const DataAttribute *attribute = model.device().findTag(reference);
    return attribute ? attribute->basicType : QString();
}
