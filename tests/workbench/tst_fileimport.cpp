// SPDX-License-Identifier: Apache-2.0
#include "workbench/fileimport.h"

#include "workbench/simulateddevice.h"

#include "driver/service/ieddriver.h"
#include "driver/service/offlinedriverservice.h"

#include <devicemodel/physicaldevice.h>

#include <QtCore/QDataStream>
#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

namespace {

QByteArray ied(const char *name, bool withServer = true)
{
    const QByteArray server = "<Server><Authentication/><LDevice inst=\"LD0\">"
                              "<LN0 lnClass=\"LLN0\" inst=\"\" lnType=\"T\"/></LDevice></Server>";
    return QByteArray("<IED name=\"") + name +
           "\" manufacturer=\"M\" type=\"T\">"
           "<AccessPoint name=\"P1\">" +
           (withServer ? server : QByteArray()) + "</AccessPoint></IED>";
}

QByteArray sclFile(const QByteArray &ieds)
{
    return "<?xml version=\"1.0\"?><SCL xmlns=\"http://www.iec.ch/61850/2003/SCL\" "
           "version=\"2007\" revision=\"B\" release=\"4\"><Header id=\"x\"/>" +
           ieds +
           "<DataTypeTemplates><LNodeType id=\"T\" lnClass=\"LLN0\"><DO name=\"Beh\" type=\"B\"/>"
           "</LNodeType><DOType id=\"B\" cdc=\"ENS\">"
           "<DA name=\"q\" fc=\"ST\" bType=\"Quality\"/></DOType></DataTypeTemplates></SCL>";
}

} // namespace

class tst_FileImport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theOnlyIedIsImported();
    void whatWasImportedIsWhatTheDriverAnswers();
    void severalIedsAskForAChoice();
    void aNamedIedIsImported();
    void aCarelessChoiceGivesOneSentence_data();
    void aCarelessChoiceGivesOneSentence();
    void aCancelledImportGivesNoDevice();
    void aSimulationIsADeviceOfTheFileOnTheLoopbackInterface();
    void aSimulationTakesThePortItHadBeforeWhenThatIsFree();

private:
    QString file(const QString &name, const QByteArray &content) const;
    ImportResult import(const QString &file, const QString &iedName = {}, bool cancelled = false);

    QTemporaryDir m_folder;
};

void tst_FileImport::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

QString tst_FileImport::file(const QString &name, const QByteArray &content) const
{
    QFile made(m_folder.filePath(name));
    if (!made.open(QIODevice::WriteOnly) || made.write(content) != content.size())
        return {};
    return made.fileName();
}

ImportResult tst_FileImport::import(const QString &path, const QString &iedName, bool cancelled)
{
    const std::atomic<bool> flag{cancelled};
    ImportRequest request;
    request.file = path;
    request.ied = iedName;
    return importFromFile(request, flag, [](double) {});
}

void tst_FileImport::theOnlyIedIsImported()
{
    const ImportResult result = import(file(QStringLiteral("one.icd"), sclFile(ied("BAY1"))));
    QVERIFY2(result.status == ImportResult::Imported, qPrintable(result.error));
    QCOMPARE(result.ied, QStringLiteral("BAY1"));
    QCOMPARE(result.logicalDevices, 1U);
    QCOMPARE(result.logicalNodes, 1U);
    QCOMPARE(result.attributes, 1U);
}

void tst_FileImport::whatWasImportedIsWhatTheDriverAnswers()
{
    const ImportResult result = import(file(QStringLiteral("one.icd"), sclFile(ied("BAY1"))));
    QCOMPARE(result.status, ImportResult::Imported);
    IedDriver driver;
    driver.holdModel(5, result.model);

    QByteArray model;
    QString error;
    QCOMPARE(driver.serviceFor(Caller())->getIEDModel(5, model, error), OperationSucceeded);
    PhysicalDevice device;
    QDataStream stream(model);
    device.fromStream(stream);
    QVERIFY(device.offline);
    QCOMPARE(device.logicalDevices.size(), 1);
    QVERIFY(device.findTag(OfflineDriverService::offlineMark() +
                           QStringLiteral("BAY1LD0/LLN0$ST$Beh$q")) != nullptr);

    driver.removeDevice(5);
    QVERIFY(driver.serviceFor(Caller())->getIEDModel(5, model, error) != OperationSucceeded);
    QVERIFY(!error.isEmpty());
}

void tst_FileImport::severalIedsAskForAChoice()
{
    const ImportResult result = import(
        file(QStringLiteral("two.scd"), sclFile(ied("BAY1") + ied("HMI", false) + ied("BAY2"))));
    QCOMPARE(result.status, ImportResult::ChoiceNeeded);
    QVERIFY2(result.error.endsWith(QLatin1Char('.')), qPrintable(result.error));
    QCOMPARE(result.ieds.size(), 3);
    QCOMPARE(result.ieds[0].name, QStringLiteral("BAY1"));
    QCOMPARE(result.ieds[0].description, QStringLiteral("M, T"));
    QCOMPARE(result.ieds[0].logicalDevices, 1);
    QCOMPARE(result.ieds[1].logicalDevices, 0);
}

void tst_FileImport::aNamedIedIsImported()
{
    const ImportResult result =
        import(file(QStringLiteral("two.scd"), sclFile(ied("BAY1") + ied("BAY2"))),
               QStringLiteral("BAY2"));
    QVERIFY2(result.status == ImportResult::Imported, qPrintable(result.error));
    QCOMPARE(result.ied, QStringLiteral("BAY2"));
}

void tst_FileImport::aCarelessChoiceGivesOneSentence_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("iedName");
    QTest::newRow("missing file") << m_folder.filePath(QStringLiteral("missing.scd")) << QString();
    QTest::newRow("folder") << m_folder.path() << QString();
    QTest::newRow("empty file") << file(QStringLiteral("empty.scd"), {}) << QString();
    QTest::newRow("picture") << file(QStringLiteral("p.png"),
                                     QByteArray("\x89PNG\r\n\x1a\n\0\0", 10))
                             << QString();
    QTest::newRow("web page") << file(QStringLiteral("p.html"), "<html><body/></html>")
                              << QString();
    QTest::newRow("cut off") << file(QStringLiteral("cut.scd"), sclFile(ied("BAY1")).left(300))
                             << QString();
    QTest::newRow("no IED") << file(QStringLiteral("none.ssd"), sclFile({})) << QString();
    QTest::newRow("no server") << file(QStringLiteral("client.icd"), sclFile(ied("HMI", false)))
                               << QString();
    QTest::newRow("other IED") << file(QStringLiteral("one.icd"), sclFile(ied("BAY1")))
                               << QStringLiteral("BAY9");
}

void tst_FileImport::aCarelessChoiceGivesOneSentence()
{
    QFETCH(const QString, path);
    QFETCH(const QString, iedName);
    const ImportResult result = import(path, iedName);
    QCOMPARE(result.status, ImportResult::Failed);
    QVERIFY2(result.error.endsWith(QLatin1Char('.')), qPrintable(result.error));
    QVERIFY(result.model.isEmpty());
}

void tst_FileImport::aCancelledImportGivesNoDevice()
{
    const ImportResult result =
        import(file(QStringLiteral("one.icd"), sclFile(ied("BAY1"))), {}, true);
    QVERIFY(result.status != ImportResult::Imported);
    QVERIFY(result.model.isEmpty());
}

void tst_FileImport::aSimulationIsADeviceOfTheFileOnTheLoopbackInterface()
{
    ImportRequest request;
    request.file = file(QStringLiteral("one.icd"), sclFile(ied("BAY1")));
    request.simulate = true;
    const std::atomic<bool> flag{false};
    const ImportResult result = importFromFile(request, flag, [](double) {});
    QVERIFY2(result.status == ImportResult::Imported, qPrintable(result.error));
    QVERIFY(result.simulation);

    IedDriver driver;
    DeviceConfiguration configuration;
    configuration.number = 1;
    configuration.name = result.ied;
    configuration.host = QStringLiteral("127.0.0.1");
    configuration.port = result.simulation->port();
    const DeviceTestResult test = driver.test(configuration);
    QVERIFY2(test.error.isEmpty(), qPrintable(test.error));
    QCOMPARE(test.logicalDevices, 1);
    QVERIFY(test.roundTrip.count() > 0);
}

void tst_FileImport::aSimulationTakesThePortItHadBeforeWhenThatIsFree()
{
    ImportRequest request;
    request.file = file(QStringLiteral("one.icd"), sclFile(ied("BAY1")));
    request.simulate = true;
    const std::atomic<bool> flag{false};
    ImportResult first = importFromFile(request, flag, [](double) {});
    QVERIFY2(first.simulation, qPrintable(first.error));
    request.port = first.simulation->port();
    const ImportResult other = importFromFile(request, flag, [](double) {});
    QVERIFY2(other.simulation, qPrintable(other.error));
    QVERIFY(other.simulation->port() != request.port);
    first.simulation.reset();
    const ImportResult again = importFromFile(request, flag, [](double) {});
    QVERIFY2(again.simulation, qPrintable(again.error));
    QCOMPARE(again.simulation->port(), request.port);
}

QTEST_GUILESS_MAIN(tst_FileImport)
#include "tst_fileimport.moc"
