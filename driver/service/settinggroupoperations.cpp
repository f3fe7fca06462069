// SPDX-License-Identifier: Apache-2.0
#include "driver/device/journalentry.h"
#include "driver/device/settinggroups.h"
#include "driver/device/settingvalues.h"
#include "driver/device/valuepublishing.h"
#include "driver/text/connectiontext.h"
#include "driver/text/sentences.h"
#include "driverruntime.h"

#include "acsi/settinggroup.h"

#include <remoteclient/controllercaller.h>

#include <asio/steady_timer.hpp>
#include <asio/use_awaitable.hpp>

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>

#include <algorithm>
#include <limits>

using acsi::FunctionalConstraint;
using std::chrono::steady_clock;

namespace {

using ConnectionText::text;

using DevicePointer = std::shared_ptr<DeviceConnection>;
using Caller = SettingGroupEdit::Caller;
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

asio::awaitable<Outcome> readBlock(DevicePointer device, QString ldName,
                                   std::shared_ptr<SGCB> block)
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
                                   Caller caller)
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
    const Verdict verdict = edit.verdict(caller, read->editSG);
    const QString refusal = refusalOf(verdict, ldName, edit.group(), read->editSG);
    if (refusal.isEmpty()) {
        edit.used(steady_clock::now());
        co_return Outcome();
    }
    if (verdict == Verdict::GivenUp)
        edit.ended();
    co_return Outcome::failed(refusal);
}

asio::awaitable<Outcome> readValues(DevicePointer device, QString ldName, QString fc, Caller caller,
                                    std::shared_ptr<QList<SGCBValue>> values)
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
        outcome = co_await checkEdit(device, ldName, *block, caller);
        if (!outcome)
            co_return outcome;
    } else if (device->part<SettingGroups>().edit(ldName).endsByReadingActive(caller)) {
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
asio::awaitable<Outcome> confirm(DevicePointer device, QString ldName, acsi::Reference block)
{
    const std::uint32_t group = device->part<SettingGroups>().edit(ldName).group();
    const acsi::SettingWrite confirmed = co_await acsi::confirmEdit(device->client(), block);
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
    if (read && read->editSG != 0 && read->editSG == group && !confirmed.isUnknown())
        static_cast<void>(co_await acsi::selectEditGroup(device->client(), block, 0));
    if (confirmed || (read && read->editSG != group))
        device->part<SettingGroups>().edit(ldName).ended();
    co_return outcome;
}

asio::awaitable<Outcome> setValues(DevicePointer device, QString ldName, acsi::Reference block,
                                   QList<SGCBValue> wanted, Caller caller)
{
    for (const SGCBValue &value : qAsConst(wanted)) {
        const mms::Result<acsi::Reference> reference = SettingValues::reference(ldName, value.name);
        if (reference && reference->constraint == FunctionalConstraint::SG) {
            co_return Outcome::failed(
                Texts::tr("These are the settings of the active group; choose "
                          "the group to edit first."));
        }
    }
    Outcome outcome = co_await checkEdit(device, ldName, block, caller);
    if (!outcome)
        co_return outcome;
    const mms::Result<std::vector<SettingValues::Setting>> known =
        co_await SettingValues::read(device, ldName, FunctionalConstraint::SE);
    if (!known)
        co_return Outcome::failed(known.error());
    outcome = stillConnected(device);
    if (!outcome)
        co_return outcome;
    const mms::Result<std::vector<SettingValues::Change>> changes =
        SettingValues::changes(*device->model(), ldName, wanted, *known);
    if (!changes)
        co_return Outcome::failed(changes.error());
    if (!changes->empty()) {
        outcome = co_await SettingValues::write(device, *changes);
        if (!outcome)
            co_return outcome;
    }
    outcome = stillConnected(device);
    if (!outcome)
        co_return outcome;
    const std::uint32_t group = device->part<SettingGroups>().edit(ldName).group();
    outcome = co_await confirm(device, ldName, block);
    if (!outcome || changes->empty() || !stillConnected(device))
        co_return outcome;

    // Changes of the active group hold at once and are shown at once.
    const LogicalNode *node = device->model()->node(text(block.device), text(block.node));
    if (node && node->settingGroup && node->settingGroup->activeGroup == static_cast<int>(group)) {
        std::vector<acsi::Reference> active;
        for (const SettingValues::Change &value : *changes) {
            active.push_back(value.reference);
            active.back().constraint = FunctionalConstraint::SG;
        }
        const ValuePublishing::Publication publication;
        static_cast<void>(co_await device->values().readAndPublish(std::move(active), publication));
    }
    co_return outcome;
}

asio::awaitable<Outcome> setAndConfirm(DevicePointer device, QString ldName,
                                       QList<SGCBValue> wanted, Caller caller)
{
    const mms::Result<acsi::Reference> block = SettingModel::block(*device->model(), ldName);
    JournalEntry entry(device, QStringLiteral("setSGCBValues"),
                       block ? text(SettingModel::attribute(*block, "CnfEdit")) : ldName);
    entry.setValues(QString(), QStringLiteral("true"));
    Outcome outcome;
    if (block)
        outcome = co_await setValues(device, ldName, *block, std::move(wanted), caller);
    else
        outcome = Outcome::failed(block.error());
    entry.setOutcome(outcome);
    co_return outcome;
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

asio::awaitable<Outcome> selectActive(DevicePointer device, acsi::Reference block, int group,
                                      JournalEntry *entry)
{
    const mms::Result<acsi::SettingGroupBlock> read =
        co_await acsi::readSettingGroupBlock(device->client(), block);
    if (!read)
        co_return Outcome::failed(read.error());
    entry->setValues(QString::number(read->actSG), QString::number(group));
    Outcome outcome = rangeOf(*read, block, 1, group);
    if (outcome)
        outcome = stillConnected(device);
    if (!outcome)
        co_return outcome;
    const auto number = static_cast<std::uint32_t>(group);
    const acsi::SettingWrite written =
        co_await acsi::selectActiveGroup(device->client(), block, number);
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

asio::awaitable<Outcome> selectEdited(DevicePointer device, acsi::Reference block, int group,
                                      Caller caller, JournalEntry *entry)
{
    const QString ldName = text(block.device);
    const mms::Result<acsi::SettingGroupBlock> read =
        co_await acsi::readSettingGroupBlock(device->client(), block);
    if (!read)
        co_return Outcome::failed(read.error());
    entry->setValues(QString::number(read->editSG), QString::number(group));
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
    const acsi::SettingWrite written =
        co_await acsi::selectEditGroup(device->client(), block, number);
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
        groups.edit(ldName).chosen(caller, number, steady_clock::now());
    else
        groups.edit(ldName).ended();
    co_return Outcome();
}

enum class Selection { Active, Edited };

asio::awaitable<Outcome> selectGroup(DevicePointer device, QString ldName, Selection selection,
                                     int group, Caller caller)
{
    const bool isActive = selection == Selection::Active;
    Outcome outcome;
    {
        const mms::Result<acsi::Reference> block = SettingModel::block(*device->model(), ldName);
        const char *const attribute = isActive ? "ActSG" : "EditSG";
        JournalEntry entry(
            device, isActive ? QStringLiteral("selectActiveSG") : QStringLiteral("selectEditSG"),
            block ? text(SettingModel::attribute(*block, attribute)) : ldName);
        entry.setValues(QString(), QString::number(group));
        if (!block)
            outcome = Outcome::failed(block.error());
        else if (isActive)
            outcome = co_await selectActive(device, *block, group, &entry);
        else
            outcome = co_await selectEdited(device, *block, group, caller, &entry);
        entry.setOutcome(outcome);
    }
    // All settings are others now.
    if (outcome && isActive && stillConnected(device))
        co_await device->part<SettingGroups>().publishActive(ldName);
    co_return outcome;
}

} // namespace

OperationResult IedDriver::getSGCB(long deviceNo, const QString &sgcbReference, SGCB &block,
                                   QString &error)
{
    const auto read = std::make_shared<SGCB>();
    const QString ldName = logicalDeviceOf(sgcbReference);
    const OperationResult result = m_runtime->run(
        deviceNo, Runtime::Effect::Reads, error, [ldName, read](DevicePointer device) {
            return readBlock(std::move(device), ldName, read);
        });
    if (result == OperationSucceeded)
        block = *read;
    return result;
}

OperationResult IedDriver::getSGCBValue(long deviceNo, const QString &sgcbReference,
                                        const QString &fc, QList<SGCBValue> &values, QString &error)
{
    const auto read = std::make_shared<QList<SGCBValue>>();
    const QString ldName = logicalDeviceOf(sgcbReference);
    const Caller caller = ControllerCaller::current();
    const OperationResult result = m_runtime->run(
        deviceNo, Runtime::Effect::Reads, error, [ldName, fc, caller, read](DevicePointer device) {
            return readValues(std::move(device), ldName, fc, caller, read);
        });
    if (result == OperationSucceeded)
        values = *read;
    return result;
}

OperationResult IedDriver::setSGCBValues(long deviceNo, const QString &sgcbReference,
                                         const QList<SGCBValue> &values, QString &error)
{
    const QString ldName = logicalDeviceOf(sgcbReference);
    const Caller caller = ControllerCaller::current();
    return m_runtime->run(deviceNo, Runtime::Effect::Changes, error,
                          [ldName, values, caller](DevicePointer device) {
                              return setAndConfirm(std::move(device), ldName, values, caller);
                          });
}

OperationResult IedDriver::selectEditSG(long deviceNo, const QString &sgcbReference, int group,
                                        QString &error)
{
    const QString ldName = logicalDeviceOf(sgcbReference);
    const Caller caller = ControllerCaller::current();
    return m_runtime->run(
        deviceNo, Runtime::Effect::Changes, error, [ldName, group, caller](DevicePointer device) {
            return selectGroup(std::move(device), ldName, Selection::Edited, group, caller);
        });
}

OperationResult IedDriver::selectActiveSG(long deviceNo, const QString &sgcbReference, int group,
                                          QString &error)
{
    const QString ldName = logicalDeviceOf(sgcbReference);
    const Caller caller = ControllerCaller::current();
    return m_runtime->run(
        deviceNo, Runtime::Effect::Changes, error, [ldName, group, caller](DevicePointer device) {
            return selectGroup(std::move(device), ldName, Selection::Active, group, caller);
        });
}
