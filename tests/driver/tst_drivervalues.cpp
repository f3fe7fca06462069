// SPDX-License-Identifier: Apache-2.0
#include "driver/simulatedstation.h"

#include <QtCore/QBuffer>
#include <QtTest/QtTest>

using namespace drivertest;

namespace {

QByteArray encoded(const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

QStringList names(const QList<NameVaildValue> &list)
{
    QStringList result;
    for (const NameVaildValue &entry : list) {
        if (entry.valid)
            result.append(entry.name);
    }
    return result;
}

} // namespace

class tst_DriverValues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void readValuesArePublishedLeafByLeaf();
    void valuesThatTheReaderKnowsAreStillPublishedByARead();
    void aReferenceThatFailsIsNamedAndTheOthersPublished();
    void wrongReferencesAreExplained();
    void theMembersOfADataSetArePublished();
    void changesArePolledWithoutReports();
    void aWriteReachesTheDeviceAndTheJournal();
    void theJournalSaysOnWhoseBehalfSomethingWasChanged();
    void aValueThatDoesNotFitIsNeverSent();
    void theDevicesRefusalIsTold();
    void directoriesAreAskedOfTheDevice();
    void controlBlocksAreListed();
    void dataSetsAreMadeAndDeleted();
    void dataSetsOfTheAssociationAreMadeAndRead();
    void aReadOnlyDriverChangesNothing();
    void valuesAreExportedAsCsv();
    void theCaptureOfADeviceCanBeSaved();
    void valuesThatChangeWhileABrowserOpensComeAgain();

private:
    std::unique_ptr<SimulatedIed> m_ied;
    std::unique_ptr<Listener> m_listener;
    std::unique_ptr<ServedDriver> m_driver;
    QString m_error;
};

void tst_DriverValues::initTestCase()
{
    m_ied = std::make_unique<SimulatedIed>(QStringLiteral(STATION_FILE));
}

void tst_DriverValues::init()
{
    m_driver.reset();
    m_listener = std::make_unique<Listener>();
    m_driver = std::make_unique<ServedDriver>(m_listener->options());
    DeviceConfiguration configuration = configurationFor(*m_ied);
    configuration.pollInterval = std::chrono::milliseconds(0);
    QCOMPARE(m_driver->setDevice(configuration), QStringList());
    m_driver->connectDevice(1);
    QVERIFY(m_listener->waitForState(1, DeviceState::Online));
}

void tst_DriverValues::readValuesArePublishedLeafByLeaf()
{
    m_ied->set("BAY1E1CTRL", "QA1XCBR1$ST$Pos$stVal",
               mms::Data::bitString(mms::BitString::fromText("10")));
    QCOMPARE(m_driver->readVariable(1, "BAY1E1CTRL", {"QA1XCBR1$ST$Pos"}, m_error),
             OperationSucceeded);
    const QString status = "BAY1E1CTRL/QA1XCBR1$ST$Pos$stVal";
    // The values that come with the association may hold the same already.
    QTRY_COMPARE(m_listener->value(status).cause, quint32(PublishCause::Read));
    const MMSValue position = m_listener->value(status);
    QCOMPARE(position.value.toInt(), 2);
    QCOMPARE(position.quality.size(), 13);
    QVERIFY(position.timeStamp.contains('T'));
    QCOMPARE(position.deviceNo, 1);
    const MMSValue quality = m_listener->value("BAY1E1CTRL/QA1XCBR1$ST$Pos$q");
    QCOMPARE(quality.value.toString(), position.quality);
    QVERIFY(m_listener->value("BAY1E1CTRL/QA1XCBR1$ST$Pos$t").value.toString().endsWith('Z') ||
            m_listener->value("BAY1E1CTRL/QA1XCBR1$ST$Pos$t").value.toString().contains("Z"));
}

void tst_DriverValues::valuesThatTheReaderKnowsAreStillPublishedByARead()
{
    const QString reference = "BAY1E1CTRL/QA1CSWI1$CF$Pos$ctlModel";
    for (int i = 0; i < 2; ++i) {
        m_listener->clear();
        QCOMPARE(m_driver->readVariable(1, "BAY1E1CTRL", {"QA1CSWI1$CF$Pos$ctlModel"}, m_error),
                 OperationSucceeded);
        QVERIFY(m_listener->waitForValue(reference, 4));
    }
}

void tst_DriverValues::aReferenceThatFailsIsNamedAndTheOthersPublished()
{
    QCOMPARE(m_driver->readVariable(1, "BAY1E1CTRL",
                                    {"QA1CSWI1$ST$Gone", "QA1CSWI1$CF$Pos$ctlModel"}, m_error),
             OperationFailed);
    QVERIFY2(m_error.startsWith("QA1CSWI1$ST$Gone: "), qPrintable(m_error));
    QVERIFY2(!m_error.contains("ctlModel"), qPrintable(m_error));
    QVERIFY(m_listener->waitForValue("BAY1E1CTRL/QA1CSWI1$CF$Pos$ctlModel", 4));
}

void tst_DriverValues::wrongReferencesAreExplained()
{
    QCOMPARE(m_driver->readVariable(1, "BAY1E1CTRL", {"QA1CSWI1$XX$Pos"}, m_error),
             OperationFailed);
    QVERIFY(m_error.contains("QA1CSWI1$XX$Pos"));
    QCOMPARE(m_driver->readVariable(1, "BAY1E1CTRL", {}, m_error), OperationFailed);
    QCOMPARE(m_error, QStringLiteral("There is nothing to read."));
    QCOMPARE(m_driver->readVariable(1, "BAY1E1CTRL", {""}, m_error), OperationFailed);
    QVERIFY(!m_error.isEmpty());
}

void tst_DriverValues::theMembersOfADataSetArePublished()
{
    m_ied->set("BAY1E1CTRL", "QA1CSWI1$ST$Pos$stVal",
               mms::Data::bitString(mms::BitString::fromText("01")));
    QCOMPARE(m_driver->readDataSetValue(1, "BAY1E1CTRL", "LLN0$Positions", m_error),
             OperationSucceeded);
    QVERIFY(m_listener->waitForValue("BAY1E1CTRL/QA1CSWI1$ST$Pos$stVal", 1));
    QCOMPARE(m_driver->readDataSetValue(1, "BAY1E1CTRL", "LLN0$Gone", m_error), OperationFailed);
    QVERIFY(!m_error.isEmpty());
}

void tst_DriverValues::changesArePolledWithoutReports()
{
    DeviceConfiguration configuration = configurationFor(*m_ied);
    configuration.pollInterval = std::chrono::milliseconds(100);
    m_driver->setDevice(configuration);
    m_driver->connectDevice(1);
    QVERIFY(m_listener->waitForStatus(1, [](const DeviceStatus &status) {
        return status.state == DeviceState::Online && status.counters.connections == 1;
    }));
    for (const bool on : {true, false, true}) {
        m_ied->set("BAY1E1IO", "GGIO1$ST$Ind1$stVal", mms::Data::boolean(on));
        QVERIFY(m_listener->waitForValue("BAY1E1IO/GGIO1$ST$Ind1$stVal", on));
    }
    QCOMPARE(m_listener->value("BAY1E1IO/GGIO1$ST$Ind1$stVal").cause,
             quint32(PublishCause::Polled));
}

void tst_DriverValues::aWriteReachesTheDeviceAndTheJournal()
{
    QCOMPARE(m_driver->writeVariable(1, "BAY1E1CTRL", "QA1CSWI1$CF$Pos$sboTimeout", encoded(12345U),
                                     m_error),
             OperationSucceeded);
    QCOMPARE(m_ied->value("BAY1E1CTRL", "QA1CSWI1$CF$Pos$sboTimeout").toUnsigned(),
             std::optional<std::uint64_t>(12345));
    QVERIFY(m_listener->waitForChanges(1));
    const DeviceChange change = m_listener->changes().first();
    QCOMPARE(change.number, 1);
    QCOMPARE(change.operation, QStringLiteral("writeVariable"));
    QCOMPARE(change.reference, QStringLiteral("BAY1E1CTRL/QA1CSWI1$CF$Pos$sboTimeout"));
    QCOMPARE(change.newValue, QStringLiteral("12345"));
    QVERIFY(!change.oldValue.isEmpty());
    QCOMPARE(change.error, QString());

    QCOMPARE(m_driver->readVariable(1, "BAY1E1CTRL", {"QA1CSWI1$CF$Pos$sboTimeout"}, m_error),
             OperationSucceeded);
    QVERIFY(m_listener->waitForValue("BAY1E1CTRL/QA1CSWI1$CF$Pos$sboTimeout", 12345U));
}

void tst_DriverValues::theJournalSaysOnWhoseBehalfSomethingWasChanged()
{
    const auto clara = m_driver->serviceFor({"clara", "room 2", "desk 7"});
    const auto nobody = m_driver->serviceFor({});
    QCOMPARE(clara->writeVariable(1, "BAY1E1CTRL", "QA1CSWI1$CF$Pos$sboTimeout", encoded(20000U),
                                  m_error),
             OperationSucceeded);
    QCOMPARE(m_driver->writeVariable(1, "BAY1E1CTRL", "QA1CSWI1$CF$Pos$sboTimeout", encoded(-1),
                                     m_error),
             OperationFailed);
    QCOMPARE(clara->deleteDataSet(1, "BAY1E1CTRL", "LLN0$none", m_error), OperationFailed);
    QCOMPARE(clara->selectObject(1, "BAY1E1CTRL", "QA1CSWI1$CO$Pos", "rubbish", m_error),
             OperationFailed);
    QCOMPARE(clara->selectActiveSG(1, "BAY1E1PROT", 99, m_error), OperationFailed);
    QCOMPARE(nobody->deleteFile(1, "none.txt", m_error), OperationFailed);
    QVERIFY(m_listener->waitForChanges(6));
    QStringList told;
    for (const DeviceChange &change : m_listener->changes())
        told << change.operation + ": " + change.caller.text();
    QCOMPARE(
        told,
        QStringList({"writeVariable: clara@room 2 (desk 7)", "writeVariable: tester@desk (test 1)",
                     "deleteDataSet: clara@room 2 (desk 7)", "selectObject: clara@room 2 (desk 7)",
                     "selectActiveSG: clara@room 2 (desk 7)", "deleteFile: "}));
}

void tst_DriverValues::aValueThatDoesNotFitIsNeverSent()
{
    const int before = traceOf(*m_driver, 1).size();
    QCOMPARE(m_driver->writeVariable(1, "BAY1E1CTRL", "QA1CSWI1$CF$Pos$sboTimeout", encoded(-1),
                                     m_error),
             OperationFailed);
    QCOMPARE(m_error, QStringLiteral("-1 does not fit INT32U."));
    QCOMPARE(
        m_driver->writeVariable(1, "BAY1E1CTRL", "QA1CSWI1$CF$Pos$sboTimeout", "rubbish", m_error),
        OperationFailed);
    QCOMPARE(m_error, QStringLiteral("The value to be written cannot be read."));
    QCOMPARE(m_driver->writeVariable(1, "BAY1E1CTRL", "QA1CSWI1$CF$Pos$gone", encoded(1), m_error),
             OperationFailed);
    QCOMPARE(m_error, QStringLiteral("The device has no BAY1E1CTRL/QA1CSWI1$CF$Pos$gone."));
    // Reading the first values may still go on.
    const QVector<TraceLine> lines = traceOf(*m_driver, 1);
    for (const TraceLine &line : lines.mid(before))
        QVERIFY(!line.text.contains("write"));
}

void tst_DriverValues::theDevicesRefusalIsTold()
{
    QCOMPARE(m_driver->writeVariable(1, "BAY1E1CTRL", "QA1XCBR1$ST$Pos$stVal", encoded(1), m_error),
             OperationFailed);
    QVERIFY(!m_error.isEmpty());
    QVERIFY(m_listener->waitForChanges(1));
    QCOMPARE(m_listener->changes().first().error, m_error);
}

void tst_DriverValues::directoriesAreAskedOfTheDevice()
{
    QList<NameVaildValue> list;
    QCOMPARE(m_driver->getServerDirectory(1, list, m_error), OperationSucceeded);
    QCOMPARE(names(list), (QStringList{"BAY1E1CTRL", "BAY1E1IO", "BAY1E1MEAS", "BAY1E1PROT"}));
    QCOMPARE(m_driver->getLogicalDeviceDirectory(1, "BAY1E1IO", list, m_error), OperationSucceeded);
    QVERIFY(names(list).contains("GGIO1"));
    for (const QString &name : names(list))
        QVERIFY2(!name.contains('$'), qPrintable(name));
    QCOMPARE(m_driver->getLogicalNodeDirectory(1, "BAY1E1CTRL", "QA1CSWI1", list, m_error),
             OperationSucceeded);
    QVERIFY(names(list).contains("Pos"));
    QCOMPARE(names(list).count("Pos"), 1);
    QCOMPARE(m_driver->getDataDirectory(1, "BAY1E1CTRL", "QA1CSWI1$ST$Pos;QA1CSWI1$CF$Pos", list,
                                        m_error),
             OperationSucceeded);
    QVERIFY(names(list).contains("QA1CSWI1$ST$Pos$stVal"));
    QVERIFY(names(list).contains("QA1CSWI1$CF$Pos$ctlModel"));
    QCOMPARE(m_driver->getDataDirectory(1, "BAY1E1CTRL", "QA1CSWI1$ST$Gone", list, m_error),
             OperationFailed);
    QVERIFY2(m_error.contains("QA1CSWI1$ST$Gone"), qPrintable(m_error));
    QCOMPARE(m_driver->getDataDirectory(1, "BAY1E1CTRL", "", list, m_error), OperationFailed);
    // One that names nothing does not stop the others.
    QCOMPARE(m_driver->getDataDirectory(1, "BAY1E1CTRL", "QA1CSWI1$ST$Gone;$$;QA1CSWI1$ST$Pos",
                                        list, m_error),
             OperationSucceeded);
    QVERIFY(names(list).contains("QA1CSWI1$ST$Pos$stVal"));
    QCOMPARE(list.at(0).name, QString("QA1CSWI1$ST$Gone"));
    QVERIFY(!list.at(0).valid);
    QCOMPARE(list.at(1).name, QString("$$"));
    QVERIFY(!list.at(1).valid);
    QVERIFY(list.at(2).valid);
    QCOMPARE(m_driver->getLogicalDeviceDirectory(1, "GONE", list, m_error), OperationFailed);
    QVERIFY(!m_error.isEmpty());
}

void tst_DriverValues::controlBlocksAreListed()
{
    QList<NameVaildValue> list;
    QCOMPARE(m_driver->getXRCB(1, "BAY1E1CTRL", "LLN0", "BR", list, m_error), OperationSucceeded);
    QVERIFY(!list.isEmpty());
    for (const QString &name : names(list))
        QVERIFY2(name.startsWith("LLN0$BR$"), qPrintable(name));
    QCOMPARE(m_driver->getXRCB(1, "BAY1E1CTRL", "LLN0", "RP", list, m_error), OperationSucceeded);
    QVERIFY(names(list).first().startsWith("LLN0$RP$"));
    QCOMPARE(m_driver->getXRCB(1, "BAY1E1CTRL", "QA1CSWI1", "BR", list, m_error),
             OperationSucceeded);
    QVERIFY(list.isEmpty());
    QCOMPARE(m_driver->getXRCB(1, "BAY1E1CTRL", "LLN0", "ST", list, m_error), OperationFailed);
    QCOMPARE(m_driver->getSGCBBlock(1, "BAY1E1PROT", list, m_error), OperationSucceeded);
    QCOMPARE(names(list).first(), QStringLiteral("NumOfSG"));
    QVERIFY(list.first().value.toInt() > 1);
    list.clear();
    QCOMPARE(m_driver->getSGCBBlock(1, "BAY1E1IO", list, m_error), OperationSucceeded);
    QVERIFY2(list.isEmpty(), "a logical device without setting groups has none to list");
    QCOMPARE(m_driver->getSGCBBlock(1, "BAY1E1NONE", list, m_error), OperationFailed);
}

void tst_DriverValues::dataSetsAreMadeAndDeleted()
{
    QList<NameVaildValue> list;
    QCOMPARE(m_driver->createDataSet(1, "BAY1E1IO", "LLN0$made",
                                     "BAY1E1IO/GGIO1$ST$Ind1;BAY1E1IO/GGIO1$ST$Ind2$stVal", 0,
                                     m_error),
             OperationSucceeded);
    QCOMPARE(m_driver->getDataSetList(1, "BAY1E1IO", list, m_error), OperationSucceeded);
    QVERIFY(names(list).contains("LLN0$made"));
    QCOMPARE(m_driver->getDataSetDirectory(1, "BAY1E1IO", "LLN0$made", list, m_error),
             OperationSucceeded);
    QCOMPARE(names(list), (QStringList{"BAY1E1IO/GGIO1$ST$Ind1", "BAY1E1IO/GGIO1$ST$Ind2$stVal"}));
    m_listener->clear();
    QCOMPARE(m_driver->readDataSetValue(1, "BAY1E1IO", "LLN0$made", m_error), OperationSucceeded);
    QVERIFY(m_listener->waitForValue("BAY1E1IO/GGIO1$ST$Ind2$stVal",
                                     [](const MMSValue &value) { return value.value.isValid(); }));
    QByteArray bytes;
    QCOMPARE(m_driver->getIEDModel(1, bytes, m_error), OperationSucceeded);
    const auto device = deviceFrom(bytes);
    const DataSet *made = nullptr;
    for (const LogicalDevice *logicalDevice : device->logicalDevices) {
        if (logicalDevice->name == "BAY1E1IO")
            made = logicalDevice->logicalNodes.first()->dataSet("made");
    }
    QVERIFY(made);
    QVERIFY(made->deletable);
    QCOMPARE(made->members.size(), 2);

    QCOMPARE(m_driver->createDataSet(1, "BAY1E1IO", "LLN0$made", "GGIO1$ST$Ind1", 0, m_error),
             OperationFailed);
    QVERIFY(!m_error.isEmpty());
    QCOMPARE(m_driver->createDataSet(1, "BAY1E1IO", "LLN0$empty", "", 0, m_error), OperationFailed);
    QCOMPARE(m_error, QStringLiteral("A data set needs at least one member."));
    m_error.clear();
    QCOMPARE(m_driver->createDataSet(1, "BAY1E1IO", "LLN0$" + QString(33, 'x'), "GGIO1$ST$Ind1", 0,
                                     m_error),
             OperationFailed);
    QCOMPARE(m_error, QString(33, 'x').prepend('"') +
                          "\" has 33 characters; the name of a data set has at most 32.");
    QCOMPARE(m_driver->createDataSet(1, "BAY1E1IO", "LLN0$bare", "GGIO1$ST$Ind1;GGIO1", 0, m_error),
             OperationFailed);
    QCOMPARE(m_error,
             QString("\"GGIO1\" names no functional constraint, which each member of a data "
                     "set needs."));
    QCOMPARE(m_driver->createDataSet(1, "BAY1E1IO", "LLN0$dot", "GGIO1$ST$Ind1", 0, m_error),
             OperationSucceeded);
    QCOMPARE(m_driver->deleteDataSet(1, "BAY1E1IO", "LLN0.dot", m_error), OperationSucceeded);
    QCOMPARE(m_driver->getDataSetList(1, "BAY1E1IO", list, m_error), OperationSucceeded);
    QVERIFY(!names(list).contains("LLN0$dot"));
    QCOMPARE(m_driver->deleteDataSet(1, "BAY1E1IO", "LLN0$made", m_error), OperationSucceeded);
    QCOMPARE(m_driver->getDataSetList(1, "BAY1E1IO", list, m_error), OperationSucceeded);
    QVERIFY(!names(list).contains("LLN0$made"));
    QCOMPARE(m_driver->deleteDataSet(1, "BAY1E1IO", "LLN0$Indications", m_error), OperationFailed);
    QVERIFY(!m_error.isEmpty());
}

void tst_DriverValues::dataSetsOfTheAssociationAreMadeAndRead()
{
    QCOMPARE(m_driver->createDataSet(1, "", "mine", "BAY1E1IO/GGIO1$ST$Ind1$stVal", 1, m_error),
             OperationSucceeded);
    m_listener->clear();
    QCOMPARE(m_driver->readDataSetValue(1, "", "mine", m_error), OperationSucceeded);
    QVERIFY(m_listener->waitForValue("BAY1E1IO/GGIO1$ST$Ind1$stVal",
                                     [](const MMSValue &value) { return value.value.isValid(); }));
    QList<NameVaildValue> list;
    QCOMPARE(m_driver->getDataSetDirectory(1, "", "", list, m_error), OperationSucceeded);
    QCOMPARE(names(list), QStringList("mine"));
    QCOMPARE(m_driver->deleteDataSet(1, "", "mine", m_error), OperationSucceeded);
    QCOMPARE(m_driver->readDataSetValue(1, "", "mine", m_error), OperationFailed);
}

void tst_DriverValues::aReadOnlyDriverChangesNothing()
{
    m_driver->setReadOnly(true);
    QVERIFY(m_driver->isReadOnly());
    const QString sentence = "The driver is read-only: nothing on Device 1 (IED1) was changed.";
    QCOMPARE(m_driver->writeVariable(1, "BAY1E1CTRL", "QA1CSWI1$CF$Pos$sboTimeout", encoded(1U),
                                     m_error),
             OperationFailed);
    QCOMPARE(m_error, sentence);
    QCOMPARE(m_driver->createDataSet(1, "BAY1E1IO", "LLN0$x", "GGIO1$ST$Ind1", 0, m_error),
             OperationFailed);
    QCOMPARE(m_error, sentence);
    QCOMPARE(m_driver->deleteDataSet(1, "BAY1E1IO", "LLN0$x", m_error), OperationFailed);
    QCOMPARE(m_error, sentence);
    QCOMPARE(m_driver->readVariable(1, "BAY1E1IO", {"GGIO1$ST$Ind1"}, m_error), OperationSucceeded);
    m_driver->setReadOnly(false);
    QCOMPARE(m_driver->writeVariable(1, "BAY1E1CTRL", "QA1CSWI1$CF$Pos$sboTimeout", encoded(777U),
                                     m_error),
             OperationSucceeded);
}

void tst_DriverValues::valuesAreExportedAsCsv()
{
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::WriteOnly));
    QCOMPARE(m_driver->exportValues(1, buffer), QString());
    const QList<QByteArray> lines = buffer.data().split('\n');
    QCOMPARE(lines.first(), QByteArray("reference,functional constraint,type,value\r"));
    QVERIFY(lines.contains("BAY1E1CTRL/QA1CSWI1$CF$Pos$ctlModel,CF,Enum,4\r"));
    QVERIFY(lines.size() > 1000);
    QBuffer closed;
    QVERIFY(m_driver->exportValues(1, closed).startsWith("The values cannot be written"));
    QCOMPARE(m_driver->exportValues(7, buffer), QString("There is no device 7 on this driver."));
}

void tst_DriverValues::theCaptureOfADeviceCanBeSaved()
{
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::WriteOnly));
    QCOMPARE(m_driver->saveCapture(1, buffer), QString());
    QVERIFY(buffer.size() > 10000);
    QVERIFY(!traceOf(*m_driver, 1).isEmpty());
    QCOMPARE(m_driver->saveCapture(7, buffer), QString("There is no device 7 on this driver."));
}

void tst_DriverValues::valuesThatChangeWhileABrowserOpensComeAgain()
{
    QByteArray bytes;
    QCOMPARE(m_driver->getIEDModel(1, bytes, m_error), OperationSucceeded);
    m_ied->set("BAY1E1IO", "GGIO1$ST$Ind3$stVal", mms::Data::boolean(true));
    QCOMPARE(m_driver->readVariable(1, "BAY1E1IO", {"GGIO1$ST$Ind3$stVal"}, m_error),
             OperationSucceeded);
    QVERIFY(m_listener->waitForValue("BAY1E1IO/GGIO1$ST$Ind3$stVal", true));
    m_listener->clear();
    QVERIFY(m_listener->waitForValue("BAY1E1IO/GGIO1$ST$Ind3$stVal", true));
}

QTEST_GUILESS_MAIN(tst_DriverValues)
#include "tst_drivervalues.moc"
