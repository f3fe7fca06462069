// SPDX-License-Identifier: Apache-2.0
#include "deviceoperations.h"
#include "driver/device/settinggroups.h"
#include "driver/device/settingvalues.h"
#include "driver/device/valuepublishing.h"
#include "driver/text/connectiontext.h"
#include "driver/text/sentences.h"

#include "acsi/settinggroup.h"

#include <asio/steady_timer.hpp>
#include <asio/use_awaitable.hpp>

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>

#include <algorithm>
#include <limits>

using acsi::FunctionalConstraint;
using std::chrono::steady_clock;

using DeviceOperations::ChangeOrder;
using DeviceOperations::Result;
using DeviceOperations::Tool;

namespace {

using ConnectionText::text;

using DevicePointer = std::shared_ptr<DeviceConnection>;
using Verdict = SettingGroupEdit::Verdict;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

/// Between looks at a group that does not become active at once.
constexpr std::chrono::milliseconds activationLook{250};

QString text(const acsi::Reference &reference)
{
    return text(acsi::toText(reference));
}

/// A reference that tells the logical device alone names its only block.
QString logicalDeviceOf(const QString &sgcbReference)
{
    return sgcbReference.section(QLatin1Char('/'), 0, 0);
}

QDateTime dateTime(const mms::UtcTime &time)
{
    const auto moment = mms::momentOf<std::chrono::milliseconds>(time);
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC);
}

asio::awaitable<Outcome> readBlock(DevicePointer device, QString ldName, SGCB *block)
{
    const mms::Result<acsi::Reference> reference = SettingModel::block(*device->model(), ldName);
    if (!reference)
        co_return Outcome::failed(reference.error());
    const mms::Result<acsi::SettingGroupBlock> read =
        co_await acsi::readSettingGroupBlock(device->client(), *reference);
    if (!read)
        co_return Outcome::failed(read.error());
    constexpr auto mostGroups = std::numeric_limits<quint8>::max();
    if (std::max({read->numOfSG, read->actSG, read->editSG}) > mostGroups) {
        co_return Outcome::failed(Texts::tr("%1 has more setting groups than can be counted: %2.")
                                      .arg(text(*reference))
                                      .arg(read->numOfSG));
    }
    device->part<SettingGroups>().enter(*reference, read->numOfSG, read->actSG);
    block->name = text(*reference);
    block->numOfSG = static_cast<quint8>(read->numOfSG);
    block->actSG = static_cast<quint8>(read->actSG);
    block->editSG = static_cast<quint8>(read->editSG);
    block->cnfEdit = read->cnfEdit ? 1 : 0;
    if (read->lActTm)
        block->lastActivation = dateTime(*read->lActTm);
    co_return Outcome();
}

QString otherClient(const QString &ldName, std::uint32_t group)
{
    return Texts::tr("Another client is editing group %1 of %2.").arg(group).arg(ldName);
}

/// Why the edited settings are not the caller's; empty when they are.
QString refusalOf(Verdict verdict, const QString &ldName, std::uint32_t chosen,
                  std::uint32_t edited)
{
    switch (verdict) {
    case Verdict::Granted:
        return {};
    case Verdict::NothingChosen:
        return Texts::tr("No setting group of %1 is being edited: select the group to edit first.")
            .arg(ldName);
    case Verdict::OtherWindow:
        return Texts::tr("Group %1 of %2 was chosen for editing in another window: select the "
                         "group to edit first.")
            .arg(chosen)
            .arg(ldName);
    case Verdict::OtherClient:
        return otherClient(ldName, edited);
    case Verdict::GivenUp:
        return Texts::tr("The device has given up the edit of group %1 of %2: select the group to "
                         "edit again.")
            .arg(chosen)
            .arg(ldName);
    }
    return {};
}

QString noEditedSettings(const QString &ldName)
{
    return Texts::tr("%1 has no settings that can be edited: the device describes none under SE.")
        .arg(ldName);
}

Outcome stillConnected(const DevicePointer &device)
{
    if (device->client() && device->model())
        return {};
    return {OperationNotConnected, device->notConnectedSentence()};
}

/// Whether the caller may read or write the edited settings, as the device says now.
asio::awaitable<Outcome> checkEdit(DevicePointer device, QString ldName, acsi::Reference block,
                                   Tool tool)
{
    if (SettingModel::nodes(*device->model(), ldName, FunctionalConstraint::SE).empty())
        co_return Outcome::failed(noEditedSettings(ldName));
    const mms::Result<acsi::SettingGroupBlock> read =
        co_await acsi::readSettingGroupBlock(device->client(), block);
    if (!read)
        co_return Outcome::failed(read.error());
    const Outcome connected = stillConnected(device);
    if (!connected)
        co_return connected;
    SettingGroupEdit &edit = device->part<SettingGroups>().edit(ldName);
    const Verdict verdict = edit.verdict(tool, read->editSG);
    const QString refusal = refusalOf(verdict, ldName, edit.group(), read->editSG);
    if (refusal.isEmpty()) {
        edit.used(device->now());
        co_return Outcome();
    }
    if (verdict == Verdict::GivenUp)
        edit.ended();
    co_return Outcome::failed(refusal);
}

asio::awaitable<Outcome> readValues(DevicePointer device, QString ldName, QString fc, Tool tool,
                                    QList<SGCBValue> *values)
{
    const auto constraint = acsi::functionalConstraintFrom(fc.toStdString());
    if (constraint != FunctionalConstraint::SG && constraint != FunctionalConstraint::SE) {
        co_return Outcome::failed(
            Texts::tr("Settings are read under SG or SE, not under \"%1\".").arg(fc));
    }
    const mms::Result<acsi::Reference> block = SettingModel::block(*device->model(), ldName);
    if (!block)
        co_return Outcome::failed(block.error());
    Outcome outcome;
    if (constraint == FunctionalConstraint::SE) {
        outcome = co_await checkEdit(device, ldName, *block, tool);
        if (!outcome)
            co_return outcome;
    } else if (device->part<SettingGroups>().edit(ldName).endsByReadingActive(tool)) {
        co_await device->part<SettingGroups>().release(ldName);
        outcome = stillConnected(device);
        if (!outcome)
            co_return outcome;
    }
    const mms::Result<std::vector<SettingValues::Setting>> settings =
        co_await SettingValues::read(device, ldName, *constraint);
    if (!settings)
        co_return Outcome::failed(settings.error());
    const bool hasData = std::any_of(settings->begin(), settings->end(),
                                     [](const auto &setting) { return setting.data.has_value(); });
    if (!hasData && !settings->empty()) {
        co_return Outcome::failed(
            Texts::tr("%1: %2").arg(settings->front().reference, settings->front().reason));
    }
    outcome = stillConnected(device);
    if (!outcome)
        co_return outcome;
    for (const SettingValues::Setting &setting : *settings) {
        SGCBValue value;
        value.name = setting.reference;
        value.value = SettingValues::shown(*device->model(), setting);
        values->append(value);
    }
    co_return Outcome();
}

/// CnfEdit, and EditSG given back where the device keeps it.
asio::awaitable<Outcome> confirm(ChangePointer change, QString ldName, acsi::Reference block)
{
    const DevicePointer device = change->device();
    const std::uint32_t group = device->part<SettingGroups>().edit(ldName).group();
    const auto client = change->client();
    if (!client)
        co_return change->refusal();
    const acsi::SettingWrite confirmed = co_await acsi::confirmEdit(client, block);
    if (!confirmed && !confirmed.isUnknown())
        co_return Outcome::failed(confirmed.error());
    Outcome outcome;
    if (confirmed.isUnknown()) {
        outcome = Outcome::failed(Texts::tr("%1 It is not known whether the changes of group %2 "
                                            "were taken over: select the group and look.")
                                      .arg(text(confirmed.message))
                                      .arg(group));
    }
    if (!stillConnected(device))
        co_return outcome;
    const mms::Result<acsi::SettingGroupBlock> read =
        co_await acsi::readSettingGroupBlock(device->client(), block);
    if (!stillConnected(device))
        co_return outcome;
    const bool isKept = read && read->editSG != 0 && read->editSG == group;
    const auto giving =
        isKept && !confirmed.isUnknown() ? change->client(Change::Kind::GivesBack) : nullptr;
    if (giving)
        static_cast<void>(co_await acsi::selectEditGroup(giving, block, 0));
    if (confirmed || (read && read->editSG != group))
        device->part<SettingGroups>().edit(ldName).ended();
    co_return outcome;
}

asio::awaitable<Outcome> setValues(ChangePointer change, QString ldName, acsi::Reference block,
                                   QList<SGCBValue> wanted, Tool tool)
{
    const DevicePointer device = change->device();
    for (const SGCBValue &value : qAsConst(wanted)) {
        const mms::Result<acsi::Reference> reference = SettingValues::reference(ldName, value.name);
        if (reference && reference->constraint == FunctionalConstraint::SG) {
            co_return Outcome::failed(
                Texts::tr("These are the settings of the active group; choose "
                          "the group to edit first."));
        }
    }
    Outcome outcome = co_await checkEdit(device, ldName, block, tool);
    if (!outcome)
        co_return outcome;
    const mms::Result<std::vector<SettingValues::Setting>> known =
        co_await SettingValues::read(device, ldName, FunctionalConstraint::SE);
    if (!known)
        co_return Outcome::failed(known.error());
    outcome = stillConnected(device);
    if (!outcome)
        co_return outcome;
    const mms::Result<std::vector<SettingValues::Value>> changes =
        SettingValues::changes(*device->model(), ldName, wanted, *known);
    if (!changes)
        co_return Outcome::failed(changes.error());
    if (!changes->empty()) {
        outcome = co_await SettingValues::write(change, *changes);
        if (!outcome)
            co_return outcome;
    }
    outcome = stillConnected(device);
    if (!outcome)
        co_return outcome;
    const std::uint32_t group = device->part<SettingGroups>().edit(ldName).group();
    outcome = co_await confirm(change, ldName, block);
    if (!outcome || changes->empty() || !stillConnected(device))
        co_return outcome;

    // Changes of the active group hold at once and are shown at once.
    const LogicalNode *node = device->model()->node(text(block.device), text(block.node));
    if (node && node->settingGroup && node->settingGroup->activeGroup == static_cast<int>(group)) {
        std::vector<acsi::Reference> active;
        for (const SettingValues::Value &value : *changes) {
            active.push_back(value.reference);
            active.back().constraint = FunctionalConstraint::SG;
        }
        const ValuePublishing::Publication publication;
        static_cast<void>(co_await device->values().readAndPublish(std::move(active), publication));
    }
    co_return outcome;
}

asio::awaitable<Outcome> setAndConfirm(ChangePointer change, QString ldName,
                                       QList<SGCBValue> wanted, Tool tool)
{
    const mms::Result<acsi::Reference> block =
        SettingModel::block(*change->device()->model(), ldName);
    if (block)
        change->setReference(text(SettingModel::attribute(*block, "CnfEdit")));
    change->intend();
    if (!block)
        co_return Outcome::failed(block.error());
    co_return co_await setValues(change, ldName, *block, std::move(wanted), tool);
}

Outcome rangeOf(const acsi::SettingGroupBlock &read, const acsi::Reference &block, int lowest,
                int group)
{
    if (group >= lowest && static_cast<std::uint32_t>(group) <= read.numOfSG)
        return {};
    return Outcome::failed(Texts::tr("%1 has the setting groups 1 to %2; there is no group %3.")
                               .arg(text(block.device))
                               .arg(read.numOfSG)
                               .arg(group));
}

/// The active group, once it is the wanted one or the time is over; none when it cannot be read.
asio::awaitable<std::optional<std::uint32_t>>
activeAfter(DevicePointer device, acsi::Reference block, std::uint32_t group)
{
    const auto end = steady_clock::now() + device->configuration().callTimeout;
    std::optional<std::uint32_t> active;
    while (stillConnected(device)) {
        const mms::Result<acsi::SettingGroupBlock> read =
            co_await acsi::readSettingGroupBlock(device->client(), block);
        if (!read)
            break;
        active = read->actSG;
        device->part<SettingGroups>().enter(block, read->numOfSG, read->actSG);
        if (read->actSG == group || steady_clock::now() >= end)
            break;
        asio::steady_timer timer(device->strand(), activationLook);
        co_await timer.async_wait(asio::use_awaitable);
    }
    co_return active;
}

asio::awaitable<Outcome> selectActive(ChangePointer change, acsi::Reference block, int group)
{
    const DevicePointer device = change->device();
    const mms::Result<acsi::SettingGroupBlock> read =
        co_await acsi::readSettingGroupBlock(device->client(), block);
    if (!read)
        co_return Outcome::failed(read.error());
    change->setValues(QString::number(read->actSG), QString::number(group));
    Outcome outcome = rangeOf(*read, block, 1, group);
    if (outcome)
        outcome = stillConnected(device);
    if (!outcome)
        co_return outcome;
    const auto number = static_cast<std::uint32_t>(group);
    const auto client = change->client();
    if (!client)
        co_return change->refusal();
    const acsi::SettingWrite written = co_await acsi::selectActiveGroup(client, block, number);
    if (!written && !written.isUnknown())
        co_return Outcome::failed(written.error());
    const std::optional<std::uint32_t> active = co_await activeAfter(device, block, number);
    if (active == number)
        co_return Outcome();
    if (active && written) {
        co_return Outcome::failed(
            Texts::tr("%1 has accepted group %2, but group %3 is still the active one.")
                .arg(text(block.device))
                .arg(group)
                .arg(*active));
    }
    if (active) {
        co_return Outcome::failed(
            Texts::tr("%1 Group %2 is the active one.").arg(text(written.message)).arg(*active));
    }
    if (written)
        co_return Outcome();
    co_return Outcome::failed(Texts::tr("%1 It is not known whether group %2 became active: look "
                                        "at the active group.")
                                  .arg(text(written.message))
                                  .arg(group));
}

asio::awaitable<Outcome> selectEdited(ChangePointer change, acsi::Reference block, int group,
                                      Tool tool)
{
    const DevicePointer device = change->device();
    const QString ldName = text(block.device);
    const mms::Result<acsi::SettingGroupBlock> read =
        co_await acsi::readSettingGroupBlock(device->client(), block);
    if (!read)
        co_return Outcome::failed(read.error());
    change->setValues(QString::number(read->editSG), QString::number(group));
    Outcome outcome = rangeOf(*read, block, 0, group);
    if (outcome)
        outcome = stillConnected(device);
    if (!outcome)
        co_return outcome;
    if (group > 0 &&
        SettingModel::nodes(*device->model(), ldName, FunctionalConstraint::SE).empty())
        co_return Outcome::failed(noEditedSettings(ldName));
    SettingGroups &groups = device->part<SettingGroups>();
    const std::uint32_t before = groups.edit(ldName).group();
    const bool isOthers = read->editSG != 0 && read->editSG != before;
    if (group == 0 && isOthers)
        co_return Outcome::failed(otherClient(ldName, read->editSG));
    const auto number = static_cast<std::uint32_t>(group);
    const auto client = change->client();
    if (!client)
        co_return change->refusal();
    const acsi::SettingWrite written = co_await acsi::selectEditGroup(client, block, number);
    bool isChosen = written.ok();
    if (!written && !written.isUnknown()) {
        if (isOthers) {
            co_return Outcome::failed(
                Texts::tr("%1 %2").arg(otherClient(ldName, read->editSG), text(written.message)));
        }
        co_return Outcome::failed(written.error());
    }
    outcome = stillConnected(device);
    if (outcome && written.isUnknown()) {
        const mms::Result<acsi::SettingGroupBlock> now =
            co_await acsi::readSettingGroupBlock(device->client(), block);
        outcome = stillConnected(device);
        // The number alone does not tell whose edit it is.
        isChosen = now && now->editSG == number && !isOthers;
    }
    if (!isChosen) {
        if (outcome)
            groups.edit(ldName).ended();
        co_return Outcome::failed(
            Texts::tr("%1 It is not known whether the device is editing group "
                      "%2: select the group to edit again.")
                .arg(text(written.message))
                .arg(group));
    }
    if (!outcome)
        co_return outcome;
    if (group > 0)
        groups.edit(ldName).chosen(tool, number, device->now());
    else
        groups.edit(ldName).ended();
    co_return Outcome();
}

ChangeIntent intentOf(const char *operation, const QString &ldName, const QString &newValue)
{
    ChangeIntent intent;
    intent.operation = QString::fromLatin1(operation);
    intent.reference = ldName;
    intent.newValue = newValue;
    return intent;
}

enum class Selection { Active, Edited };

asio::awaitable<Outcome> selectGroup(ChangePointer change, QString ldName, Selection selection,
                                     int group, Tool tool)
{
    const DevicePointer device = change->device();
    const bool isActive = selection == Selection::Active;
    const mms::Result<acsi::Reference> block = SettingModel::block(*device->model(), ldName);
    if (block)
        change->setReference(text(SettingModel::attribute(*block, isActive ? "ActSG" : "EditSG")));
    change->intend();
    Outcome outcome;
    if (!block)
        outcome = Outcome::failed(block.error());
    else if (isActive)
        outcome = co_await selectActive(change, *block, group);
    else
        outcome = co_await selectEdited(change, *block, group, tool);
    change->end(outcome);
    // All settings are others now.
    if (outcome && isActive && stillConnected(device))
        co_await device->part<SettingGroups>().publishActive(ldName);
    co_return outcome;
}

} // namespace

Result DeviceOperations::getSGCB(CalledDevice device, const QString &sgcbReference, SGCB &block)
{
    return readBlock(device, logicalDeviceOf(sgcbReference), &block);
}

Result DeviceOperations::getSGCBValue(CalledDevice device, const QString &sgcbReference,
                                      const QString &fc, QList<SGCBValue> &values)
{
    return readValues(device, logicalDeviceOf(sgcbReference), fc, device.tool(), &values);
}

ChangeOrder DeviceOperations::setSGCBValues(Tool tool, const QString &sgcbReference,
                                            const QList<SGCBValue> &values)
{
    const QString ldName = logicalDeviceOf(sgcbReference);
    return {intentOf("setSGCBValues", ldName, QStringLiteral("true")),
            [ldName, values, tool](ChangePointer change) {
                return setAndConfirm(std::move(change), ldName, values, tool);
            }};
}

ChangeOrder DeviceOperations::selectEditSG(Tool tool, const QString &sgcbReference, int group)
{
    const QString ldName = logicalDeviceOf(sgcbReference);
    return {intentOf("selectEditSG", ldName, QString::number(group)),
            [ldName, group, tool](ChangePointer change) {
                return selectGroup(std::move(change), ldName, Selection::Edited, group, tool);
            }};
}

ChangeOrder DeviceOperations::selectActiveSG(Tool tool, const QString &sgcbReference, int group)
{
    const QString ldName = logicalDeviceOf(sgcbReference);
    return {intentOf("selectActiveSG", ldName, QString::number(group)),
            [ldName, group, tool](ChangePointer change) {
                return selectGroup(std::move(change), ldName, Selection::Active, group, tool);
            }};
}
