// SPDX-License-Identifier: Apache-2.0
#include "simulatedstation.h"

#include <remoteclient/driverserviceregistry.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <asio/steady_timer.hpp>

#include <QtTest/QtTest>

#include <cmath>
#include <limits>

using namespace drivertest;

namespace {

constexpr const char *protection = "BAY1E1PROT";
const QString startValue = QStringLiteral("BAY1E1PROT/PTOC1$%1$StrVal$setMag$f");
const QString delay = QStringLiteral("BAY1E1PROT/PTOC1$%1$OpDlTmms$setVal");
constexpr std::chrono::milliseconds shortTimeout{1500};

QVariant valueOf(const QList<SGCBValue> &values, const QString &name)
{
    for (const SGCBValue &value : values) {
        if (value.name == name)
            return value.value;
    }
    return {};
}

void setValueOf(QList<SGCBValue> &values, const QString &name, const QVariant &wanted)
{
    for (SGCBValue &value : values) {
        if (value.name == name)
            value.value = wanted;
    }
}

/// The variable of a write of a single one; empty otherwise.
std::string writtenItem(const mms::RequestService &request)
{
    const auto *write = std::get_if<mms::WriteRequest>(&request);
    const auto *list =
        write ? std::get_if<std::vector<mms::VariableAccess>>(&write->variables) : nullptr;
    return list && list->size() == 1 ? toText(list->front()) : std::string();
}

using AssociationPointer = std::shared_ptr<mms::Association>;

} // namespace

/// Devices, other clients and other windows that deal with setting groups otherwise than one
/// expects.
class tst_OddSettingGroups : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void settingsOfTheActiveGroupAreNeverWrittenIntoAnother();
    void readingTheActiveSettingsGivesTheEditBack();
    void aGroupThatAnotherWindowHasChosenIsNotWritten();
    void whatAnotherClientEditsIsToldAndNeitherShownNorWritten();
    void anEditThatTheDeviceHasGivenUpIsTold();
    void whatWasNeverSetAndNotChangedStopsNothing();
    void settingsThatCanOnlyBeWrittenAreWritten();
    void aDeviceWithoutEditedSettingsSaysSo();
    void aDelayedActivationIsWaitedFor();
    void anActivationThatNeverComesIsTold();
    void anActivationWithoutAnswerIsReadBack();
    void devicesThatAreOddOnRequestAreDealtWith();
    void aSettingWithoutAnswerIsReadBack();
    void aConfirmationWithoutAnswerIsUnknown();
    void whatWasWrittenBeforeALossIsJournalled();
    void aGroupThatOthersActivateReachesTheModel();
    void anEditGroupThatTheDeviceKeepsIsGivenBack();
    void theEditIsGivenBackOnLeaving();

private:
    void start(const std::string &faults = {},
               std::chrono::milliseconds pollInterval = std::chrono::milliseconds(0),
               sim::Device::RequestFilter filter = {}, sim::DeviceOptions options = {});
    QList<SGCBValue> values(const char *fc);
    int edited();
    QStringList sentWrites(ServedDriver &driver) const;

    std::unique_ptr<SimulatedIed> m_ied;
    std::unique_ptr<Listener> m_listener;
    std::unique_ptr<ServedDriver> m_driver;
    simtest::RecordingClient m_atTheDevice;
    QString m_error;
};

void tst_OddSettingGroups::init()
{
    m_error.clear();
}

void tst_OddSettingGroups::cleanup()
{
    m_driver.reset();
    m_ied.reset();
}

void tst_OddSettingGroups::start(const std::string &faults, std::chrono::milliseconds pollInterval,
                                 sim::Device::RequestFilter filter, sim::DeviceOptions options)
{
    cleanup();
    m_ied = std::make_unique<SimulatedIed>(QStringLiteral(STATION_FILE), QString(), faults,
                                           std::move(options));
    if (filter) {
        m_ied->stop();
        m_ied->setRequestFilter(std::move(filter));
        m_ied->start();
    }
    m_listener = std::make_unique<Listener>();
    m_driver = std::make_unique<ServedDriver>(m_listener->options());
    DeviceConfiguration configuration = configurationFor(*m_ied);
    configuration.pollInterval = pollInterval;
    configuration.callTimeout = shortTimeout;
    m_driver->setDevice(configuration);
    m_driver->connectDevice(1);
    if (!m_listener->waitForState(1, DeviceState::Online))
        qFatal("the simulated IED is not online");
}

QList<SGCBValue> tst_OddSettingGroups::values(const char *fc)
{
    QList<SGCBValue> values;
    if (m_driver->getSGCBValue(1, protection, fc, values, m_error) != OperationSucceeded)
        qFatal("%s", qPrintable(m_error));
    return values;
}

/// The group that the device is editing.
int tst_OddSettingGroups::edited()
{
    return static_cast<int>(
        m_ied->value(protection, "LLN0$SP$SGCB$EditSG").toUnsigned().value_or(99));
}

QStringList tst_OddSettingGroups::sentWrites(ServedDriver &driver) const
{
    QStringList result;
    const QVector<TraceLine> lines = traceOf(driver, 1);
    for (const TraceLine &line : lines) {
        if (line.sent && line.text.contains("write", Qt::CaseInsensitive))
            result.append(line.text);
    }
    return result;
}

void tst_OddSettingGroups::settingsOfTheActiveGroupAreNeverWrittenIntoAnother()
{
    start();
    QCOMPARE(m_driver->selectEditSG(1, protection, 3, m_error), OperationSucceeded);
    // The dialog is closed, opened again and shows the active group.
    QList<SGCBValue> active = values("SG");
    setValueOf(active, delay.arg("SG"), 4711);
    const int before = sentWrites(*m_driver).size();
    QCOMPARE(m_driver->setSGCBValues(1, protection, active, m_error), OperationFailed);
    QCOMPARE(m_error,
             QString("These are the settings of the active group; choose the group to edit "
                     "first."));
    QCOMPARE(sentWrites(*m_driver).size(), before);
    // Neither while a group is being edited.
    QCOMPARE(m_driver->selectEditSG(1, protection, 3, m_error), OperationSucceeded);
    QCOMPARE(m_driver->setSGCBValues(1, protection, {{delay.arg("SG"), 4711}}, m_error),
             OperationFailed);
    QCOMPARE(sentWrites(*m_driver).size(), before + 1);
    QVERIFY(m_ied->value(protection, "PTOC1$SE$OpDlTmms$setVal").toInteger() != 4711);
}

void tst_OddSettingGroups::readingTheActiveSettingsGivesTheEditBack()
{
    start();
    QCOMPARE(m_driver->selectEditSG(1, protection, 3, m_error), OperationSucceeded);
    values("SE");
    QCOMPARE(edited(), 3);
    values("SG");
    QCOMPARE(edited(), 0);
    QCOMPARE(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 3}}, m_error),
             OperationFailed);
    QCOMPARE(m_error, QString("No setting group of BAY1E1PROT is being edited: select the group to "
                              "edit first."));
    QVERIFY(m_listener->waitForChanges(3));
    const DeviceChange given = m_listener->changes().at(1);
    QCOMPARE(given.reference, QString("BAY1E1PROT/LLN0$SP$SGCB$EditSG"));
    QCOMPARE(given.oldValue, QString("3"));
    QCOMPARE(given.newValue, QString("0"));
    QCOMPARE(given.error, QString());
}

void tst_OddSettingGroups::aGroupThatAnotherWindowHasChosenIsNotWritten()
{
    start();
    const QString address = QStringLiteral("test:settings");
    DriverServiceRegistry::add(address, {m_driver.get(), [](DriverService *) {}});
    {
        IEC61850ControllerInterface one;
        IEC61850ControllerInterface other;
        one.setLocation(address, 1);
        other.setLocation(address, 1);
        QCOMPARE(one.selectEditSG(1, protection, 3, m_error), OperationSucceeded);
        QList<SGCBValue> ofThree;
        QCOMPARE(one.getSGCBValue(1, protection, "SE", ofThree, m_error), OperationSucceeded);
        // The other window only looks, and the first one goes on.
        QList<SGCBValue> active;
        QCOMPARE(other.getSGCBValue(1, protection, "SG", active, m_error), OperationSucceeded);
        QCOMPARE(edited(), 3);
        QCOMPARE(other.setSGCBValues(1, protection, ofThree, m_error), OperationFailed);
        QVERIFY2(
            m_error.startsWith("Group 3 of BAY1E1PROT was chosen for editing in another window"),
            qPrintable(m_error));
        // Then it chooses a group itself, and the values of the first one must not get there.
        QCOMPARE(other.selectEditSG(1, protection, 2, m_error), OperationSucceeded);
        const int before = sentWrites(*m_driver).size();
        setValueOf(ofThree, delay.arg("SE"), 4711);
        QCOMPARE(one.setSGCBValues(1, protection, ofThree, m_error), OperationFailed);
        QVERIFY2(
            m_error.startsWith("Group 2 of BAY1E1PROT was chosen for editing in another window"),
            qPrintable(m_error));
        QCOMPARE(sentWrites(*m_driver).size(), before);
    }
    DriverServiceRegistry::remove(address);
}

void tst_OddSettingGroups::whatAnotherClientEditsIsToldAndNeitherShownNorWritten()
{
    start();
    Listener otherListener;
    ServedDriver other(otherListener.options());
    other.setDevice(configurationFor(*m_ied));
    other.connectDevice(1);
    QVERIFY(otherListener.waitForState(1, DeviceState::Online));
    QCOMPARE(other.selectEditSG(1, protection, 3, m_error), OperationSucceeded);

    const QString told = "Another client is editing group 3 of BAY1E1PROT.";
    const int before = sentWrites(*m_driver).size();
    QList<SGCBValue> listed;
    QCOMPARE(m_driver->getSGCBValue(1, protection, "SE", listed, m_error), OperationFailed);
    QCOMPARE(m_error, told);
    QVERIFY(listed.isEmpty());
    QCOMPARE(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 3}}, m_error),
             OperationFailed);
    QCOMPARE(m_error, told);
    QCOMPARE(m_driver->selectEditSG(1, protection, 0, m_error), OperationFailed);
    QCOMPARE(m_error, told);
    QCOMPARE(sentWrites(*m_driver).size(), before);
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationFailed);
    QVERIFY2(m_error.startsWith(told), qPrintable(m_error));
    QCOMPARE(edited(), 3);
}

void tst_OddSettingGroups::anEditThatTheDeviceHasGivenUpIsTold()
{
    // As after the end of a reservation: the number is there no more.
    bool isGivenUp = false;
    start({}, std::chrono::milliseconds(0),
          [&isGivenUp, this](const AssociationPointer &association, std::uint32_t invokeId,
                             mms::RequestService &request) {
              const auto *read = std::get_if<mms::ReadRequest>(&request);
              const auto *list =
                  read ? std::get_if<std::vector<mms::VariableAccess>>(&read->variables) : nullptr;
              if (!isGivenUp || !list || list->size() != 1 ||
                  toText(list->front()) != "BAY1E1PROT/LLN0$SP$SGCB")
                  return false;
              const auto device = m_ied->device();
              mms::AccessResult result = device->access().read(m_atTheDevice, list->front());
              mms::Data block = result.data();
              block.children()[2] = mms::Data::unsignedInteger(0);
              mms::ReadResponse response;
              response.results.emplace_back(std::move(block));
              association->respond(invokeId, std::move(response));
              return true;
          });
    QCOMPARE(m_driver->selectEditSG(1, protection, 3, m_error), OperationSucceeded);
    m_ied->act([&isGivenUp](sim::Device &) { isGivenUp = true; });
    QCOMPARE(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 3}}, m_error),
             OperationFailed);
    QCOMPARE(m_error, QString("The device has given up the edit of group 3 of BAY1E1PROT: select "
                              "the group to edit again."));
}

void tst_OddSettingGroups::whatWasNeverSetAndNotChangedStopsNothing()
{
    start();
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    m_ied->set(protection, "PTOC1$SE$StrVal$setMag$f",
               mms::Data::float32(std::numeric_limits<float>::quiet_NaN()));
    QList<SGCBValue> edit = values("SE");
    QVERIFY(std::isnan(valueOf(edit, startValue.arg("SE")).toDouble()));
    for (SGCBValue &value : edit) {
        if (value.value.userType() == QMetaType::Float)
            value.value = value.value.toDouble();
    }
    setValueOf(edit, delay.arg("SE"), 1234);
    setValueOf(edit, "BAY1E1PROT/PTOC2$SE$OpDlTmms$setVal", QVariant());
    const int before = sentWrites(*m_driver).size();
    QVERIFY2(m_driver->setSGCBValues(1, protection, edit, m_error) == OperationSucceeded,
             qPrintable(m_error));
    const QString all = QStringList(sentWrites(*m_driver).mid(before)).join('\n');
    QCOMPARE(all.count("$SE$"), 1);
    QVERIFY2(all.contains("PTOC1$SE$OpDlTmms$setVal"), qPrintable(all));
}

void tst_OddSettingGroups::settingsThatCanOnlyBeWrittenAreWritten()
{
    start({}, std::chrono::milliseconds(0),
          [](const AssociationPointer &association, std::uint32_t invokeId,
             mms::RequestService &request) {
              const auto *read = std::get_if<mms::ReadRequest>(&request);
              const auto *list =
                  read ? std::get_if<std::vector<mms::VariableAccess>>(&read->variables) : nullptr;
              if (!list || toText(list->front()).find("$SE") == std::string::npos)
                  return false;
              mms::ReadResponse response;
              for (std::size_t i = 0; i < list->size(); ++i)
                  response.results.emplace_back(mms::DataAccessError::ObjectAccessDenied);
              association->respond(invokeId, std::move(response));
              return true;
          });
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    QList<SGCBValue> listed;
    QCOMPARE(m_driver->getSGCBValue(1, protection, "SE", listed, m_error), OperationFailed);
    QVERIFY2(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 77}}, m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(m_driver->selectActiveSG(1, protection, 2, m_error), OperationSucceeded);
    QCOMPARE(valueOf(values("SG"), delay.arg("SG")).toInt(), 77);
}

void tst_OddSettingGroups::aDeviceWithoutEditedSettingsSaysSo()
{
    start({}, std::chrono::milliseconds(0),
          [this](const AssociationPointer &association, std::uint32_t invokeId,
                 mms::RequestService &request) {
              const auto *attributes =
                  std::get_if<mms::GetVariableAccessAttributesRequest>(&request);
              const auto *name =
                  attributes ? std::get_if<mms::ObjectName>(&attributes->variable) : nullptr;
              if (!name || name->item.find('$') != std::string::npos)
                  return false;
              const sim::Part part = m_ied->device()->model().find(name->domain, name->item);
              if (!part.isValid())
                  return false;
              mms::GetVariableAccessAttributesResponse response;
              response.type = part.type();
              std::erase_if(response.type.components,
                            [](const auto &component) { return component.name == "SE"; });
              association->respond(invokeId, std::move(response));
              return true;
          });
    const QString told =
        "BAY1E1PROT has no settings that can be edited: the device describes none under SE.";
    QVERIFY(!values("SG").isEmpty());
    QList<SGCBValue> listed;
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationFailed);
    QCOMPARE(m_error, told);
    QCOMPARE(m_driver->getSGCBValue(1, protection, "SE", listed, m_error), OperationFailed);
    QCOMPARE(m_error, told);
    QCOMPARE(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 3}}, m_error),
             OperationFailed);
    QCOMPARE(m_error, told);
    QVERIFY(sentWrites(*m_driver).isEmpty());
}

void tst_OddSettingGroups::aDelayedActivationIsWaitedFor()
{
    start({}, std::chrono::milliseconds(0),
          [this](const AssociationPointer &association, std::uint32_t invokeId,
                 mms::RequestService &request) {
              if (writtenItem(request) != "BAY1E1PROT/LLN0$SP$SGCB$ActSG")
                  return false;
              mms::WriteResponse response;
              response.results.emplace_back();
              association->respond(invokeId, std::move(response));
              const auto timer = std::make_shared<asio::steady_timer>(
                  association->strand(), std::chrono::milliseconds(400));
              const auto write = std::get<mms::WriteRequest>(request);
              timer->async_wait([this, timer, write](const std::error_code &) {
                  const auto &list = std::get<std::vector<mms::VariableAccess>>(write.variables);
                  static_cast<void>(m_ied->device()->access().write(m_atTheDevice, list.front(),
                                                                    write.values.front()));
              });
              return true;
          });
    const QVariant before = valueOf(values("SG"), startValue.arg("SG"));
    QVERIFY2(m_driver->selectActiveSG(1, protection, 2, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QVERIFY(valueOf(values("SG"), startValue.arg("SG")) != before);
}

void tst_OddSettingGroups::anActivationThatNeverComesIsTold()
{
    start({}, std::chrono::milliseconds(0),
          [](const AssociationPointer &association, std::uint32_t invokeId,
             mms::RequestService &request) {
              if (writtenItem(request) != "BAY1E1PROT/LLN0$SP$SGCB$ActSG")
                  return false;
              mms::WriteResponse response;
              response.results.emplace_back();
              association->respond(invokeId, std::move(response));
              return true;
          });
    QCOMPARE(m_driver->selectActiveSG(1, protection, 2, m_error), OperationFailed);
    QCOMPARE(m_error,
             QString("BAY1E1PROT has accepted group 2, but group 1 is still the active one."));
}

void tst_OddSettingGroups::anActivationWithoutAnswerIsReadBack()
{
    start("drop on write");
    QVERIFY2(m_driver->selectActiveSG(1, protection, 2, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QVERIFY(m_listener->waitForChanges(1));
    QCOMPARE(m_listener->changes().at(0).error, QString());

    start("ignore on write");
    QCOMPARE(m_driver->selectActiveSG(1, protection, 2, m_error), OperationFailed);
    QVERIFY2(m_error.startsWith("ActSG of BAY1E1PROT/LLN0.SGCB cannot be written: ") &&
                 m_error.endsWith(" Group 1 is the active one."),
             qPrintable(m_error));
}

void tst_OddSettingGroups::devicesThatAreOddOnRequestAreDealtWith()
{
    sim::DeviceOptions options;
    options.oddities.delayedActivation = true;
    options.oddities.keptEditGroup = true;
    options.oddities.writeOnlyEdit = true;
    options.oddities.sharedEdit = true;
    start({}, std::chrono::milliseconds(0), {}, options);
    Listener otherListener;
    ServedDriver other(otherListener.options());
    other.setDevice(configurationFor(*m_ied));
    other.connectDevice(1);
    QVERIFY(otherListener.waitForState(1, DeviceState::Online));
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    // The device would take it.
    QCOMPARE(other.setSGCBValues(1, protection, {{delay.arg("SE"), 3}}, m_error), OperationFailed);
    QCOMPARE(m_error, QString("Another client is editing group 2 of BAY1E1PROT."));
    QVERIFY2(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 77}}, m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(edited(), 0);
    QVERIFY2(m_driver->selectActiveSG(1, protection, 2, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(valueOf(values("SG"), delay.arg("SG")).toInt(), 77);
}

void tst_OddSettingGroups::aSettingWithoutAnswerIsReadBack()
{
    start("drop on write nth 2");
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    QVERIFY2(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 77}}, m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    start("ignore on write nth 2");
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    QCOMPARE(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 77}}, m_error),
             OperationFailed);
    QVERIFY2(m_error.startsWith(delay.arg("SE") + ": ") &&
                 m_error.endsWith(" The changes are not confirmed."),
             qPrintable(m_error));
    QCOMPARE(edited(), 2);
}

void tst_OddSettingGroups::aConfirmationWithoutAnswerIsUnknown()
{
    start("drop on write nth 3");
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    QCOMPARE(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 77}}, m_error),
             OperationFailed);
    QVERIFY2(m_error.endsWith("It is not known whether the changes of group 2 were taken over: "
                              "select the group and look."),
             qPrintable(m_error));
    QVERIFY(m_listener->waitForChanges(3));
    const QList<DeviceChange> changes = m_listener->changes();
    for (const DeviceChange &change : changes)
        QCOMPARE(change.error.isEmpty(), !change.reference.endsWith("CnfEdit"));
}

void tst_OddSettingGroups::whatWasWrittenBeforeALossIsJournalled()
{
    start("reset 0 on write nth 3");
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    QList<SGCBValue> edit = values("SE");
    int changed = 0;
    for (SGCBValue &value : edit) {
        if (value.value.userType() == QMetaType::Float) {
            value.value = value.value.toDouble() + 1;
            ++changed;
        }
    }
    QVERIFY(changed > 20);
    m_listener->clear();
    QCOMPARE(m_driver->setSGCBValues(1, protection, edit, m_error), OperationFailed);
    QVERIFY(m_listener->waitForChanges(changed + 1));
    int written = 0;
    int unknown = 0;
    const QList<DeviceChange> changes = m_listener->changes();
    for (const DeviceChange &change : changes) {
        written += change.error.isEmpty() ? 1 : 0;
        unknown += change.error.contains("it is not known whether the setting was written") ? 1 : 0;
    }
    QCOMPARE(written, 20);
    QVERIFY(unknown > 0);
}

void tst_OddSettingGroups::aGroupThatOthersActivateReachesTheModel()
{
    start({}, std::chrono::milliseconds(500));
    Listener otherListener;
    ServedDriver other(otherListener.options());
    other.setDevice(configurationFor(*m_ied));
    other.connectDevice(1);
    QVERIFY(otherListener.waitForState(1, DeviceState::Online));
    QCOMPARE(other.selectActiveSG(1, protection, 3, m_error), OperationSucceeded);
    const auto shown = [this] {
        QByteArray bytes;
        QString error;
        if (m_driver->getIEDModel(1, bytes, error) != OperationSucceeded)
            return -1;
        const auto device = deviceFrom(bytes);
        for (const LogicalDevice *each : qAsConst(device->logicalDevices)) {
            for (const LogicalNode *node : qAsConst(each->logicalNodes)) {
                if (each->name == protection && node->settingGroup)
                    return node->settingGroup->activeGroup;
            }
        }
        return -1;
    };
    QTRY_COMPARE_WITH_TIMEOUT(shown(), 3, 20000);
}

void tst_OddSettingGroups::anEditGroupThatTheDeviceKeepsIsGivenBack()
{
    // EditSG says 2 after CnfEdit too, until somebody writes 0.
    bool keeps = false;
    start({}, std::chrono::milliseconds(0),
          [&keeps, this](const AssociationPointer &association, std::uint32_t invokeId,
                         mms::RequestService &request) {
              const std::string item = writtenItem(request);
              keeps = item.empty() ? keeps : item == "BAY1E1PROT/LLN0$SP$SGCB$CnfEdit";
              const auto *read = std::get_if<mms::ReadRequest>(&request);
              const auto *list =
                  read ? std::get_if<std::vector<mms::VariableAccess>>(&read->variables) : nullptr;
              if (!keeps || !list || list->size() != 1 ||
                  toText(list->front()) != "BAY1E1PROT/LLN0$SP$SGCB")
                  return false;
              const auto device = m_ied->device();
              mms::AccessResult result = device->access().read(m_atTheDevice, list->front());
              mms::Data block = result.data();
              block.children()[2] = mms::Data::unsignedInteger(2);
              mms::ReadResponse response;
              response.results.emplace_back(std::move(block));
              association->respond(invokeId, std::move(response));
              return true;
          });
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    QVERIFY2(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 77}}, m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    const QStringList writes = sentWrites(*m_driver);
    QCOMPARE(writes.size(), 4);
    QVERIFY2(writes.at(2).contains("CnfEdit") && writes.at(3).contains("EditSG"),
             qPrintable(writes.join('\n')));
    // And it is nobody's any more.
    QCOMPARE(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 78}}, m_error),
             OperationFailed);
}

void tst_OddSettingGroups::theEditIsGivenBackOnLeaving()
{
    start();
    QCOMPARE(m_driver->selectEditSG(1, protection, 3, m_error), OperationSucceeded);
    const int before = sentWrites(*m_driver).size();
    m_driver->disconnectDevice(1);
    QVERIFY(m_listener->waitForState(1, DeviceState::Disconnected));
    const QStringList writes = sentWrites(*m_driver).mid(before);
    QCOMPARE(writes.size(), 1);
    QVERIFY2(writes.first().contains("EditSG"), qPrintable(writes.first()));
    QCOMPARE(edited(), 0);
}

QTEST_GUILESS_MAIN(tst_OddSettingGroups)
#include "tst_oddsettinggroups.moc"
