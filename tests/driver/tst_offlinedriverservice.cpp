// SPDX-License-Identifier: Apache-2.0
#include "driver/model/sclimport.h"
#include "driver/service/offlinedriverservice.h"

#include <devicemodel/physicaldevice.h>

#include <QtCore/QDataStream>
#include <QtTest/QtTest>

namespace {

QString fixture(const char *name)
{
    return QStringLiteral(SCL_FIXTURES "/") + QLatin1String(name);
}

} // namespace

class tst_OfflineDriverService : public QObject
{
    Q_OBJECT

private slots:
    void answersWithTheModelFromTheFileMarkedAsOffline();
    void readsFilesFromResources();
    void answersWithAModelThatItHolds();
    void aFileThatCannotBeUsedIsAFailureWithItsSentence();
    void anUnknownOrRemovedDeviceIsAFailure();
    void everyOtherOperationIsRefused();
};

void tst_OfflineDriverService::answersWithTheModelFromTheFileMarkedAsOffline()
{
    OfflineDriverService service;
    service.addDevice(7, fixture("device.icd"), QStringLiteral("BAY1"));
    QByteArray model;
    QString error;
    QCOMPARE(service.getIEDModel(7, model, error), OperationSucceeded);
    PhysicalDevice device;
    QDataStream stream(model);
    device.fromStream(stream);
    QCOMPARE(stream.status(), QDataStream::Ok);
    QVERIFY(device.offline);
    QCOMPARE(device.name, QStringLiteral("BAY1"));
    // Values of a connected device with the same names are none of this one.
    const QString reference = QStringLiteral("BAY1CTRL/Q0CSWI1$ST$Pos$stVal");
    QVERIFY(!device.findTag(reference));
    QVERIFY(device.findTag(OfflineDriverService::offlineMark() + reference));
}

void tst_OfflineDriverService::readsFilesFromResources()
{
    OfflineDriverService service;
    service.addDevice(1, QStringLiteral(":/drivertest/device.icd"), QString());
    QByteArray model;
    QString error;
    QCOMPARE(service.getIEDModel(1, model, error), OperationSucceeded);
    QVERIFY(!model.isEmpty());
}

void tst_OfflineDriverService::answersWithAModelThatItHolds()
{
    OfflineDriverService service;
    PhysicalDevice device;
    device.name = QStringLiteral("held");
    service.holdModel(3, OfflineDriverService::offlineModel(device));
    QByteArray model;
    QString error;
    QCOMPARE(service.getIEDModel(3, model, error), OperationSucceeded);
    PhysicalDevice answered;
    QDataStream stream(model);
    answered.fromStream(stream);
    QCOMPARE(answered.name, QStringLiteral("held"));
    QVERIFY(answered.offline);
}

void tst_OfflineDriverService::aFileThatCannotBeUsedIsAFailureWithItsSentence()
{
    OfflineDriverService service;
    service.addDevice(1, fixture("not-well-formed.icd"), QString());
    service.addDevice(2, fixture("no such file.icd"), QString());
    service.addDevice(3, fixture("device.icd"), QStringLiteral("BAY2"));
    service.addDevice(4, fixture("structure-mistakes.scd"), QString());
    QByteArray model;
    QString error;
    QCOMPARE(service.getIEDModel(1, model, error), OperationFailed);
    QVERIFY2(error.startsWith(QStringLiteral("Line 6: ")), qPrintable(error));
    QCOMPARE(service.getIEDModel(2, model, error), OperationFailed);
    QVERIFY2(error.contains(QStringLiteral("no such file.icd")), qPrintable(error));
    QCOMPARE(service.getIEDModel(3, model, error), OperationFailed);
    QVERIFY2(error.contains(QStringLiteral("BAY2")), qPrintable(error));
    QCOMPARE(service.getIEDModel(4, model, error), OperationFailed);
    QVERIFY2(error.contains(QStringLiteral("several")), qPrintable(error));
    QVERIFY(model.isEmpty());
}

void tst_OfflineDriverService::anUnknownOrRemovedDeviceIsAFailure()
{
    OfflineDriverService service;
    service.addDevice(5, fixture("device.icd"), QString());
    service.removeDevice(5);
    QByteArray model;
    QString error;
    QCOMPARE(service.getIEDModel(5, model, error), OperationFailed);
    QCOMPARE(error, QStringLiteral("There is no device 5 on this driver."));
}

void tst_OfflineDriverService::everyOtherOperationIsRefused()
{
    OfflineDriverService service;
    service.addDevice(1, fixture("device.icd"), QString());
    const QString name;
    const QByteArray bytes;
    QList<NameVaildValue> list;
    QList<MMSFileEntry> entries;
    MemoryFileSink sink(name);
    LocalFileSource source(name);
    ReportBlock block;
    SGCB settingGroupBlock;
    QList<SGCBValue> settings;
    using Operation = std::function<OperationResult(QString &)>;
    const QList<Operation> operations = {
        [&](QString &e) { return service.getServerDirectory(1, list, e); },
        [&](QString &e) { return service.getLogicalDeviceDirectory(1, name, list, e); },
        [&](QString &e) { return service.getLogicalNodeDirectory(1, name, name, list, e); },
        [&](QString &e) { return service.getDataDirectory(1, name, name, list, e); },
        [&](QString &e) { return service.getDataSetList(1, name, list, e); },
        [&](QString &e) { return service.getDataSetDirectory(1, name, name, list, e); },
        [&](QString &e) { return service.getXRCB(1, name, name, name, list, e); },
        [&](QString &e) { return service.getSGCBBlock(1, name, list, e); },
        [&](QString &e) { return service.readVariable(1, name, {}, e); },
        [&](QString &e) { return service.readDataSetValue(1, name, name, e); },
        [&](QString &e) { return service.writeVariable(1, name, name, bytes, e); },
        [&](QString &e) { return service.writeValue(1, name, name, name, bytes, e); },
        [&](QString &e) { return service.selectObject(1, name, name, bytes, e); },
        [&](QString &e) { return service.controlObject(1, name, name, bytes, e); },
        [&](QString &e) { return service.cancelObject(1, name, name, bytes, e); },
        [&](QString &e) { return service.createDataSet(1, name, name, name, 0, e); },
        [&](QString &e) { return service.deleteDataSet(1, name, name, e); },
        [&](QString &e) { return service.getFileDirectory(1, name, name, entries, e); },
        [&](QString &e) { return service.getFile(1, name, sink, e); },
        [&](QString &e) { return service.deleteFile(1, name, e); },
        [&](QString &e) { return service.writeFile(1, source, name, e); },
        [&](QString &e) { return service.getBRCBValues(1, name, name, block, e); },
        [&](QString &e) { return service.enableReportBlock(1, name, name, name, name, block, e); },
        [&](QString &e) { return service.getSGCB(1, name, settingGroupBlock, e); },
        [&](QString &e) { return service.getSGCBValue(1, name, name, settings, e); },
        [&](QString &e) { return service.setSGCBValues(1, name, settings, e); },
        [&](QString &e) { return service.selectEditSG(1, name, 1, e); },
        [&](QString &e) { return service.selectActiveSG(1, name, 1, e); },
    };
    QCOMPARE(operations.size(), 28);
    for (const Operation &operation : operations) {
        QString error;
        const OperationResult result = operation(error);
        QVERIFY(result != OperationSucceeded);
        QVERIFY(result != OperationDriverUnreachable);
        QCOMPARE(error, QStringLiteral("Not connected to the device"));
    }
    const OperationResult closed = service.abortClose(1);
    QVERIFY(closed != OperationSucceeded);
    QVERIFY(closed != OperationDriverUnreachable);
}

QTEST_GUILESS_MAIN(tst_OfflineDriverService)
#include "tst_offlinedriverservice.moc"
