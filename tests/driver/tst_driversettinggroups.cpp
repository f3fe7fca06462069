// SPDX-License-Identifier: Apache-2.0
#include "driver/simulatedstation.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace drivertest;

namespace {

constexpr const char *protection = "BAY1E1PROT";
const QString startValue = QStringLiteral("BAY1E1PROT/PTOC1$%1$StrVal$setMag$f");
const QString delay = QStringLiteral("BAY1E1PROT/PTOC1$%1$OpDlTmms$setVal");

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

/// What the property editor of the dialog makes of single precision.
void makeDouble(QList<SGCBValue> &values)
{
    for (SGCBValue &value : values) {
        if (value.value.userType() == QMetaType::Float)
            value.value = value.value.toDouble();
    }
}

} // namespace

class tst_DriverSettingGroups : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theBlockIsFoundByTheLogicalDevice();
    void aLogicalDeviceWithoutBlockIsTold();
    void theSettingsOfTheActiveGroupAreListedInOrder_data();
    void theSettingsOfTheActiveGroupAreListedInOrder();
    void theSettingsOfTheEditedGroupAreListed();
    void withoutAnEditedGroupThereAreNoValuesToEdit();
    void settingsAreReadUnderTheirConstraintsOnly();
    void settingsThatAreReadAreShown();
    void wideNumbersCanBeEdited();
    void anotherGroupBecomesActive();
    void aGroupThatDoesNotExistIsRefusedByTheDriver();
    void groupZeroReleasesTheEdit();
    void onlyChangesAreWrittenAndConfirmed();
    void unchangedSettingsAreOnlyConfirmed();
    void changesOfTheActiveGroupAreShown();
    void settingsWithoutAnEditedGroupAreNotWritten();
    void aValueThatDoesNotFitStopsAllOfThem();
    void aSettingThatIsNoneIsRefused();
    void aRefusedValueIsNamedAndNothingConfirmed();
    void whatAnotherClientEditsIsRefused();
    void aSilentDeviceEndsTheOperationInTime();
    void anAssociationLostInBetweenIsTold();
    void aReadOnlyDriverChangesNoSettings();

private:
    void start(const std::string &faults = {},
               std::chrono::milliseconds callTimeout = std::chrono::seconds(5),
               const QString &sclFile = {}, const QString &station = QStringLiteral(STATION_FILE));
    SGCB block();
    QList<SGCBValue> values(const char *fc);
    QStringList sentWrites() const;

    std::unique_ptr<SimulatedIed> m_ied;
    std::unique_ptr<Listener> m_listener;
    std::unique_ptr<ServedDriver> m_driver;
    QString m_error;
};

void tst_DriverSettingGroups::init()
{
    m_error.clear();
    start();
}

void tst_DriverSettingGroups::cleanup()
{
    m_driver.reset();
    m_ied.reset();
}

void tst_DriverSettingGroups::start(const std::string &faults,
                                    std::chrono::milliseconds callTimeout, const QString &sclFile,
                                    const QString &station)
{
    m_driver.reset();
    m_ied.reset();
    m_ied = std::make_unique<SimulatedIed>(station, QString(), faults);
    m_listener = std::make_unique<Listener>();
    m_driver = std::make_unique<ServedDriver>(m_listener->options());
    DeviceConfiguration configuration = configurationFor(*m_ied);
    configuration.pollInterval = std::chrono::milliseconds(0);
    configuration.callTimeout = callTimeout;
    configuration.operationTimeout = std::min(configuration.operationTimeout, 9 * callTimeout);
    configuration.sclFile = sclFile;
    m_driver->setDevice(configuration);
    m_driver->connectDevice(1);
    if (!m_listener->waitForState(1, DeviceState::Online))
        qFatal("the simulated IED is not online");
}

SGCB tst_DriverSettingGroups::block()
{
    SGCB block;
    if (m_driver->getSGCB(1, protection, block, m_error) != OperationSucceeded)
        qFatal("%s", qPrintable(m_error));
    return block;
}

QList<SGCBValue> tst_DriverSettingGroups::values(const char *fc)
{
    QList<SGCBValue> values;
    if (m_driver->getSGCBValue(1, protection, fc, values, m_error) != OperationSucceeded)
        qFatal("%s", qPrintable(m_error));
    return values;
}

QStringList tst_DriverSettingGroups::sentWrites() const
{
    QStringList result;
    const QVector<TraceLine> lines = traceOf(*m_driver, 1);
    for (const TraceLine &line : lines) {
        if (line.sent && line.text.contains("write", Qt::CaseInsensitive))
            result.append(line.text);
    }
    return result;
}

void tst_DriverSettingGroups::theBlockIsFoundByTheLogicalDevice()
{
    for (const QString &reference : {QString(protection), QString("BAY1E1PROT/LLN0$SP$SGCB")}) {
        SGCB block;
        QVERIFY2(m_driver->getSGCB(1, reference, block, m_error) == OperationSucceeded,
                 qPrintable(m_error));
        QCOMPARE(block.name, QString("BAY1E1PROT/LLN0$SP$SGCB"));
        QCOMPARE(int(block.numOfSG), 4);
        QCOMPARE(int(block.actSG), 1);
        QCOMPARE(int(block.editSG), 0);
        QCOMPARE(int(block.cnfEdit), 0);
        QVERIFY(qAbs(block.lastActivation.secsTo(QDateTime::currentDateTimeUtc())) < 300);
    }
}

void tst_DriverSettingGroups::aLogicalDeviceWithoutBlockIsTold()
{
    SGCB block;
    QCOMPARE(m_driver->getSGCB(1, "BAY1E1MEAS", block, m_error), OperationFailed);
    QCOMPARE(m_error, QString("BAY1E1MEAS has no setting group control block."));
    QCOMPARE(m_driver->getSGCB(1, "GONE", block, m_error), OperationFailed);
    QCOMPARE(m_error, QString("The device has no logical device \"GONE\"."));
    QCOMPARE(m_driver->selectActiveSG(1, "BAY1E1MEAS", 1, m_error), OperationFailed);
    QCOMPARE(m_error, QString("BAY1E1MEAS has no setting group control block."));
    QVERIFY(m_listener->waitForChanges(1));
    QCOMPARE(m_listener->changes().at(0).error, m_error);
}

void tst_DriverSettingGroups::theSettingsOfTheActiveGroupAreListedInOrder_data()
{
    QTest::addColumn<bool>("withFile");

    QTest::newRow("as the device lists them") << false;
    QTest::newRow("as the file lists them") << true;
}

void tst_DriverSettingGroups::theSettingsOfTheActiveGroupAreListedInOrder()
{
    QFETCH(bool, withFile);
    start({}, std::chrono::seconds(5), withFile ? QStringLiteral(STATION_FILE) : QString());
    const QList<SGCBValue> listed = values("SG");
    QVERIFY(listed.size() > 50);
    QStringList nodes;
    for (const SGCBValue &value : listed) {
        QVERIFY2(value.name.startsWith("BAY1E1PROT/") && value.name.contains("$SG$"),
                 qPrintable(value.name));
        QVERIFY2(value.value.isValid(), qPrintable(value.name));
        const QString node = value.name.section('/', 1).section('$', 0, 0);
        if (nodes.isEmpty() || nodes.last() != node)
            nodes.append(node);
    }
    // Once each, in the order of the model; without a file that is the order of the device.
    QCOMPARE(nodes, withFile ? QStringList({"PTOC1", "PTOC2", "PDIS1", "PDIS2"})
                             : QStringList({"PDIS1", "PDIS2", "PTOC1", "PTOC2"}));
    QCOMPARE(valueOf(listed, startValue.arg("SG")).userType(), int(QMetaType::Float));
    QCOMPARE(valueOf(listed, delay.arg("SG")).userType(), int(QMetaType::Int));
    QCOMPARE(valueOf(listed, "BAY1E1PROT/PDIS1$SG$PhDlMod$setVal").userType(),
             int(QMetaType::Bool));
    const auto active = m_ied->value(protection, "PTOC1$SG$StrVal$setMag$f").toDouble();
    QVERIFY(active.has_value());
    QCOMPARE(valueOf(listed, startValue.arg("SG")).toDouble(), *active);
}

void tst_DriverSettingGroups::theSettingsOfTheEditedGroupAreListed()
{
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    QCOMPARE(int(block().editSG), 2);
    const QList<SGCBValue> listed = values("SE");
    for (const SGCBValue &value : listed)
        QVERIFY2(value.name.contains("$SE$") && value.value.isValid(), qPrintable(value.name));
    QCOMPARE(valueOf(listed, startValue.arg("SE")).toDouble(),
             m_ied->value(protection, "PTOC1$SE$StrVal$setMag$f").toDouble().value_or(-1));
    QCOMPARE(listed.size(), values("SG").size());
}

void tst_DriverSettingGroups::withoutAnEditedGroupThereAreNoValuesToEdit()
{
    QList<SGCBValue> listed;
    QCOMPARE(m_driver->getSGCBValue(1, protection, "SE", listed, m_error), OperationFailed);
    QCOMPARE(m_error, QString("No setting group of BAY1E1PROT is being edited: select the group to "
                              "edit first."));
    QVERIFY(listed.isEmpty());
}

void tst_DriverSettingGroups::settingsAreReadUnderTheirConstraintsOnly()
{
    QList<SGCBValue> listed;
    for (const char *fc : {"ST", "", "XX"}) {
        QCOMPARE(m_driver->getSGCBValue(1, protection, fc, listed, m_error), OperationFailed);
        QCOMPARE(m_error, QString("Settings are read under SG or SE, not under \"%1\".").arg(fc));
    }
}

void tst_DriverSettingGroups::settingsThatAreReadAreShown()
{
    m_ied->set(protection, "PTOC1$SG$OpDlTmms$setVal", mms::Data::integer(4711));
    m_listener->clear();
    QCOMPARE(valueOf(values("SG"), delay.arg("SG")).toInt(), 4711);
    QVERIFY(m_listener->waitForValue(delay.arg("SG"), 4711));
}

void tst_DriverSettingGroups::wideNumbersCanBeEdited()
{
    QFile station(QStringLiteral(STATION_FILE));
    QVERIFY(station.open(QIODevice::ReadOnly));
    QByteArray text = station.readAll();
    const QByteArray narrow = "<DA name=\"setVal\" fc=\"SG\" bType=\"INT32\"/>";
    QVERIFY(text.contains(narrow));
    text.replace(narrow, "<DA name=\"setVal\" fc=\"SG\" bType=\"INT32U\"/>");
    QTemporaryDir folder;
    QFile wide(folder.filePath("wide.scd"));
    QVERIFY(wide.open(QIODevice::WriteOnly) && wide.write(text) == text.size());
    wide.close();
    start({}, std::chrono::seconds(5), wide.fileName(), wide.fileName());

    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    QList<SGCBValue> edited = values("SE");
    QCOMPARE(valueOf(edited, delay.arg("SE")).userType(), int(QMetaType::Int));
    setValueOf(edited, delay.arg("SE"), QStringLiteral("4000000000"));
    QVERIFY2(m_driver->setSGCBValues(1, protection, edited, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    edited = values("SE");
    QCOMPARE(valueOf(edited, delay.arg("SE")), QVariant(QStringLiteral("4000000000")));
    const int before = sentWrites().size();
    QVERIFY2(m_driver->setSGCBValues(1, protection, edited, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(sentWrites().size(), before + 1); // the confirmation alone
}

void tst_DriverSettingGroups::anotherGroupBecomesActive()
{
    m_listener->clear();
    const QVariant before = valueOf(values("SG"), startValue.arg("SG"));
    QVERIFY2(m_driver->selectActiveSG(1, protection, 2, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(int(block().actSG), 2);
    const QVariant after = valueOf(values("SG"), startValue.arg("SG"));
    QVERIFY(after != before);
    QVERIFY(m_listener->waitForValue(startValue.arg("SG"), after));
    QVERIFY(m_listener->waitForChanges(1));
    const DeviceChange change = m_listener->changes().at(0);
    QCOMPARE(change.operation, QString("selectActiveSG"));
    QCOMPARE(change.reference, QString("BAY1E1PROT/LLN0$SP$SGCB$ActSG"));
    QCOMPARE(change.oldValue, QString("1"));
    QCOMPARE(change.newValue, QString("2"));
    QCOMPARE(change.error, QString());
    // A browser that is opened now shows it.
    QByteArray bytes;
    QCOMPARE(m_driver->getIEDModel(1, bytes, m_error), OperationSucceeded);
    const auto device = deviceFrom(bytes);
    bool isShown = false;
    for (const LogicalDevice *each : qAsConst(device->logicalDevices)) {
        for (const LogicalNode *node : qAsConst(each->logicalNodes)) {
            if (each->name == protection && node->settingGroup)
                isShown = node->settingGroup->activeGroup == 2;
        }
    }
    QVERIFY(isShown);
}

void tst_DriverSettingGroups::aGroupThatDoesNotExistIsRefusedByTheDriver()
{
    const int before = sentWrites().size();
    for (const int group : {0, 5, -1}) {
        QCOMPARE(m_driver->selectActiveSG(1, protection, group, m_error), OperationFailed);
        QCOMPARE(
            m_error,
            QString("BAY1E1PROT has the setting groups 1 to 4; there is no group %1.").arg(group));
    }
    for (const int group : {5, -1, 257})
        QCOMPARE(m_driver->selectEditSG(1, protection, group, m_error), OperationFailed);
    QCOMPARE(sentWrites().size(), before);
    QVERIFY(m_listener->waitForChanges(6));
    QCOMPARE(m_listener->changes().at(5).operation, QString("selectEditSG"));
    QCOMPARE(m_listener->changes().at(5).newValue, QString("257"));
    QCOMPARE(m_listener->changes().at(5).error, m_error);
    QCOMPARE(int(block().actSG), 1);
}

void tst_DriverSettingGroups::groupZeroReleasesTheEdit()
{
    QCOMPARE(m_driver->selectEditSG(1, protection, 3, m_error), OperationSucceeded);
    QCOMPARE(int(block().editSG), 3);
    QVERIFY2(m_driver->selectEditSG(1, protection, 0, m_error) == OperationSucceeded,
             qPrintable(m_error));
    QCOMPARE(int(block().editSG), 0);
    QVERIFY(m_listener->waitForChanges(2));
    QCOMPARE(m_listener->changes().at(1).reference, QString("BAY1E1PROT/LLN0$SP$SGCB$EditSG"));
    QCOMPARE(m_listener->changes().at(1).oldValue, QString("3"));
}

void tst_DriverSettingGroups::onlyChangesAreWrittenAndConfirmed()
{
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    QList<SGCBValue> edited = values("SE");
    const QString oldDelay = valueOf(edited, delay.arg("SE")).toString();
    makeDouble(edited);
    setValueOf(edited, delay.arg("SE"), 1234);
    setValueOf(edited, startValue.arg("SE"), 2.75);
    m_listener->clear();
    const int before = sentWrites().size();
    QVERIFY2(m_driver->setSGCBValues(1, protection, edited, m_error) == OperationSucceeded,
             qPrintable(m_error));
    const QStringList writes = sentWrites().mid(before);
    const QString all = writes.join('\n');
    QCOMPARE(all.count("$SE$"), 2);
    QVERIFY2(all.contains("PTOC1$SE$OpDlTmms$setVal"), qPrintable(all));
    QVERIFY2(all.contains("PTOC1$SE$StrVal$setMag$f"), qPrintable(all));
    QVERIFY2(writes.last().contains("LLN0$SP$SGCB$CnfEdit"), qPrintable(all));

    // Confirming ends the edit; the group has the values from now on.
    QCOMPARE(int(block().editSG), 0);
    QCOMPARE(m_driver->selectActiveSG(1, protection, 2, m_error), OperationSucceeded);
    const QList<SGCBValue> active = values("SG");
    QCOMPARE(valueOf(active, delay.arg("SG")).toInt(), 1234);
    QCOMPARE(valueOf(active, startValue.arg("SG")).toFloat(), 2.75F);

    QVERIFY(m_listener->waitForChanges(3));
    bool isJournalled = false;
    const QList<DeviceChange> changes = m_listener->changes().mid(0, 3);
    for (const DeviceChange &change : changes) {
        QCOMPARE(change.operation, QString("setSGCBValues"));
        QCOMPARE(change.error, QString());
        if (change.reference == delay.arg("SE")) {
            isJournalled = true;
            QCOMPARE(change.oldValue, oldDelay);
            QCOMPARE(change.newValue, QString("1234"));
        }
    }
    QVERIFY(isJournalled);
    QCOMPARE(changes.last().reference, QString("BAY1E1PROT/LLN0$SP$SGCB$CnfEdit"));
}

void tst_DriverSettingGroups::unchangedSettingsAreOnlyConfirmed()
{
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    QList<SGCBValue> edited = values("SE");
    makeDouble(edited);
    const int before = sentWrites().size();
    QVERIFY2(m_driver->setSGCBValues(1, protection, edited, m_error) == OperationSucceeded,
             qPrintable(m_error));
    const QStringList writes = sentWrites().mid(before);
    QCOMPARE(writes.size(), 1);
    QVERIFY2(writes.first().contains("CnfEdit"), qPrintable(writes.first()));
}

void tst_DriverSettingGroups::changesOfTheActiveGroupAreShown()
{
    QCOMPARE(m_driver->selectEditSG(1, protection, 1, m_error), OperationSucceeded);
    m_listener->clear();
    QVERIFY2(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 815}}, m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
    QVERIFY(m_listener->waitForValue(delay.arg("SG"), 815));
}

void tst_DriverSettingGroups::settingsWithoutAnEditedGroupAreNotWritten()
{
    const int before = sentWrites().size();
    QCOMPARE(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 3}}, m_error),
             OperationFailed);
    QCOMPARE(m_error, QString("No setting group of BAY1E1PROT is being edited: select the group to "
                              "edit first."));
    QCOMPARE(sentWrites().size(), before);
    QVERIFY(m_listener->waitForChanges(1));
    QCOMPARE(m_listener->changes().at(0).error, m_error);
}

void tst_DriverSettingGroups::aValueThatDoesNotFitStopsAllOfThem()
{
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    QList<SGCBValue> edited = values("SE");
    setValueOf(edited, startValue.arg("SE"), 9.5);
    setValueOf(edited, delay.arg("SE"), qlonglong(5000000000));
    const int before = sentWrites().size();
    QCOMPARE(m_driver->setSGCBValues(1, protection, edited, m_error), OperationFailed);
    QCOMPARE(m_error, delay.arg("SE") + ": 5000000000 does not fit INT32.");
    QCOMPARE(sentWrites().size(), before);
    QCOMPARE(int(block().editSG), 2);
}

void tst_DriverSettingGroups::aSettingThatIsNoneIsRefused()
{
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    for (const QString &name :
         {QString("BAY1E1PROT/PTOC1$SE$Gone$setVal"), QString("BAY1E1PROT/PTOC1$ST$Op$general"),
          QString("BAY1E1CTRL/PTOC1$SE$OpDlTmms$setVal")}) {
        QCOMPARE(m_driver->setSGCBValues(1, protection, {{name, 1}}, m_error), OperationFailed);
        QCOMPARE(m_error, "BAY1E1PROT has no setting " + name + ".");
    }
    QCOMPARE(m_driver->setSGCBValues(1, protection, {{"", 1}}, m_error), OperationFailed);
    QVERIFY(!m_error.isEmpty());
    // Without the logical device as well as with it.
    QVERIFY2(m_driver->setSGCBValues(1, protection, {{"PTOC1$SE$OpDlTmms$setVal", 77}}, m_error) ==
                 OperationSucceeded,
             qPrintable(m_error));
}

void tst_DriverSettingGroups::aRefusedValueIsNamedAndNothingConfirmed()
{
    // An ordinal that the enumeration of the device lacks.
    const QString direction = "BAY1E1PROT/PTOC1$SE$DirMod$setVal";
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    m_listener->clear();
    QCOMPARE(
        m_driver->setSGCBValues(1, protection, {{direction, 100}, {delay.arg("SE"), 66}}, m_error),
        OperationFailed);
    QVERIFY2(m_error.startsWith(direction + ": ") &&
                 m_error.endsWith(". The changes are not confirmed."),
             qPrintable(m_error));
    QVERIFY2(!m_error.contains("OpDlTmms"), qPrintable(m_error));
    QCOMPARE(int(block().editSG), 2);
    QVERIFY(m_listener->waitForChanges(3));
    const QList<DeviceChange> changes = m_listener->changes();
    for (const DeviceChange &change : changes)
        QCOMPARE(change.error.isEmpty(), change.reference == delay.arg("SE"));
}

void tst_DriverSettingGroups::whatAnotherClientEditsIsRefused()
{
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    Listener otherListener;
    ServedDriver other(otherListener.options());
    other.setDevice(configurationFor(*m_ied));
    other.connectDevice(1);
    QVERIFY(otherListener.waitForState(1, DeviceState::Online));
    QString error;
    QCOMPARE(other.selectEditSG(1, protection, 3, error), OperationFailed);
    QVERIFY2(error.contains("EditSG of BAY1E1PROT/LLN0.SGCB cannot be written"), qPrintable(error));
    QCOMPARE(other.setSGCBValues(1, protection, {{delay.arg("SE"), 3}}, error), OperationFailed);
    QCOMPARE(error, QString("Another client is editing group 2 of BAY1E1PROT."));
}

void tst_DriverSettingGroups::aSilentDeviceEndsTheOperationInTime()
{
    start("ignore on write", std::chrono::milliseconds(400));
    QCOMPARE(m_driver->selectActiveSG(1, protection, 2, m_error), OperationFailed);
    // The call ended by its own time-out; otherwise the operation would have by the operation's.
    QVERIFY2(m_error.contains("ActSG of BAY1E1PROT/LLN0.SGCB cannot be written"),
             qPrintable(m_error));
}

void tst_DriverSettingGroups::anAssociationLostInBetweenIsTold()
{
    start("reset 0 on write nth 2");
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationSucceeded);
    QCOMPARE(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 3}}, m_error),
             OperationFailed);
    QVERIFY(!m_error.isEmpty());
    QVERIFY(m_listener->waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.counters.connections == 2;
    }));
    // The edit ended with the association.
    QCOMPARE(m_driver->setSGCBValues(1, protection, {{delay.arg("SE"), 3}}, m_error),
             OperationFailed);
    QVERIFY2(m_error.startsWith("No setting group of BAY1E1PROT is being edited"),
             qPrintable(m_error));
}

void tst_DriverSettingGroups::aReadOnlyDriverChangesNoSettings()
{
    m_driver->setReadOnly(true);
    QCOMPARE(m_driver->selectActiveSG(1, protection, 2, m_error), OperationFailed);
    QVERIFY2(m_error.contains("read-only"), qPrintable(m_error));
    QCOMPARE(m_driver->selectEditSG(1, protection, 2, m_error), OperationFailed);
    QVERIFY2(m_error.contains("read-only"), qPrintable(m_error));
    QCOMPARE(m_driver->setSGCBValues(1, protection, {}, m_error), OperationFailed);
    QVERIFY2(m_error.contains("read-only"), qPrintable(m_error));
    QCOMPARE(int(block().actSG), 1);
    QVERIFY(!values("SG").isEmpty());
}

QTEST_GUILESS_MAIN(tst_DriverSettingGroups)
#include "tst_driversettinggroups.moc"
