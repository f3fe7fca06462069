// SPDX-License-Identifier: Apache-2.0
#include "workbench/rehearsaldriverservice.h"

#include "workbench/embeddeddriver.h"

#include <devicemodel/mmsvalue.h>
#include <tavrix/tavrix.h>

#include <QtCore/QDataStream>
#include <QtCore/QTemporaryFile>
#include <QtTest/QtTest>

namespace {

constexpr long deviceNo = 7;
const QString control = QStringLiteral("BAY1E1CTRL");
const QString protection = QStringLiteral("BAY1E1PROT");

QByteArray demonstrationModel()
{
    const std::atomic<bool> cancelled{false};
    ImportRequest request;
    request.file = QStringLiteral(DEMONSTRATION_FILE);
    return importFromFile(request, cancelled, [](double) {}).model;
}

QByteArray variant(const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

} // namespace

class tst_RehearsalDriverService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void theModelCountsAsConnected();
    void readingANodePublishesItsAttributes();
    void readingADataSetPublishesItsMembers();
    void readingWhatIsNotThereFails();
    void aWrittenValueIsReadBackInTheTypeOfItsAttribute();
    void aValueThatDoesNotFitIsRefused();
    void aControlSetsThePositionAndPublishesIt();
    void aReportBlockBeginsAsConfiguredAndKeepsWhatIsWritten();
    void settingsAreKeptForEachGroupAndTakeEffectWithIt();
    void anUnknownSettingGroupIsRefused();
    void directoriesOfTheFileStoreAreListed();
    void filesCanBeFetchedSentAndDeleted();

private:
    QHash<QString, QVariant> received() const;

    QByteArray m_model;
    std::unique_ptr<RehearsalDriverService> m_service;
    QString m_error;
    unsigned m_port = 0;
};

void tst_RehearsalDriverService::initTestCase()
{
    m_model = demonstrationModel();
    QVERIFY(!m_model.isEmpty());
}

void tst_RehearsalDriverService::init()
{
    m_error.clear();
    m_service = std::make_unique<RehearsalDriverService>(m_model);
    QCOMPARE(Tavrix::CreateEventBox("MMS_DATACHANGE:rehearsal", 100, 30000), int(Tavrix::Success));
    QCOMPARE(Tavrix::SetPersistent("MMS_DATACHANGE:rehearsal", false), int(Tavrix::Success));
    QCOMPARE(Tavrix::ConnectPortForRecv("MMS_DATACHANGE:rehearsal", m_port), int(Tavrix::Success));
}

void tst_RehearsalDriverService::cleanup()
{
    Tavrix::DisconnectPort(m_port);
}

/// Published values by reference.
QHash<QString, QVariant> tst_RehearsalDriverService::received() const
{
    QHash<QString, QVariant> values;
    TavrixDataList list;
    while (Tavrix::ReceiveEventN(m_port, list, "MMS_VALUE", 0, 1) == Tavrix::Success) {
        for (int i = 0; i < list.count; ++i) {
            const QByteArray raw(list.array[i]->GetRawValue(), Tavrix::rawValueSize);
            QDataStream stream(raw);
            MMSValue value;
            value.fromStream(stream);
            values.insert(value.reference, value.value);
        }
    }
    return values;
}

void tst_RehearsalDriverService::theModelCountsAsConnected()
{
    QByteArray model;
    QCOMPARE(m_service->getIEDModel(deviceNo, model, m_error), OperationSucceeded);
    QDataStream stream(model);
    PhysicalDevice device;
    device.fromStream(stream);
    QCOMPARE(device.name, QString("BAY1E1"));
    QVERIFY(!device.offline);
}

void tst_RehearsalDriverService::readingANodePublishesItsAttributes()
{
    QCOMPARE(m_service->readVariable(deviceNo, control, {"QA1XCBR1$ST"}, m_error),
             OperationSucceeded);
    const QHash<QString, QVariant> values = received();
    QCOMPARE(values.value("BAY1E1CTRL/QA1XCBR1$ST$Pos$stVal").toInt(), 2);
    QVERIFY(values.contains("BAY1E1CTRL/QA1XCBR1$ST$Beh$stVal"));
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        QVERIFY2(value.key().startsWith("BAY1E1CTRL/QA1XCBR1$ST$"), qPrintable(value.key()));
}

void tst_RehearsalDriverService::readingADataSetPublishesItsMembers()
{
    QCOMPARE(m_service->readDataSetValue(deviceNo, control, "LLN0$Positions", m_error),
             OperationSucceeded);
    QVERIFY(!received().isEmpty());
    QCOMPARE(m_service->readDataSetValue(deviceNo, control, "LLN0$Nowhere", m_error),
             OperationFailed);
    QCOMPARE(m_error, QString("There is no data set \"LLN0$Nowhere\"."));
}

void tst_RehearsalDriverService::readingWhatIsNotThereFails()
{
    QCOMPARE(m_service->readVariable(deviceNo, control, {"XXXX1$ST$Pos"}, m_error),
             OperationFailed);
    QCOMPARE(m_error, QString("There is nothing at \"XXXX1$ST$Pos\"."));
}

void tst_RehearsalDriverService::aWrittenValueIsReadBackInTheTypeOfItsAttribute()
{
    const QString reference = QStringLiteral("QA1CSWI1$CF$Pos$operTimeout");
    QCOMPARE(
        m_service->writeVariable(deviceNo, control, reference, variant(QString("1500")), m_error),
        OperationSucceeded);
    QCOMPARE(m_service->readVariable(deviceNo, control, {reference}, m_error), OperationSucceeded);
    QCOMPARE(received().value("BAY1E1CTRL/" + reference), QVariant(1500U));
}

void tst_RehearsalDriverService::aValueThatDoesNotFitIsRefused()
{
    QCOMPARE(m_service->writeVariable(deviceNo, control, "QA1CSWI1$CF$Pos$operTimeout",
                                      variant(QString("soon")), m_error),
             OperationFailed);
    QCOMPARE(m_error, QString("\"soon\" is no value of the type INT32U."));
}

void tst_RehearsalDriverService::aControlSetsThePositionAndPublishesIt()
{
    ControlBlock block;
    block.objectReference = QStringLiteral("QA1CSWI1$CO$Pos");
    for (const int value : {0, 1}) {
        block.controlValue = value;
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        block.toStream(stream);
        QCOMPARE(m_service->controlObject(deviceNo, control, block.objectReference, bytes, m_error),
                 OperationSucceeded);
        QCOMPARE(received().value("BAY1E1CTRL/QA1CSWI1$ST$Pos$stVal"), QVariant(value + 1));
    }
}

void tst_RehearsalDriverService::aReportBlockBeginsAsConfiguredAndKeepsWhatIsWritten()
{
    const QString reference = QStringLiteral("LLN0$BR$brcbPositions01");
    ReportBlock block;
    QCOMPARE(m_service->getBRCBValues(deviceNo, control, reference, block, m_error),
             OperationSucceeded);
    QCOMPARE(block.rptId, QString("BAY1E1/Positions"));
    QCOMPARE(block.datSet, QString("Positions"));
    QCOMPARE(int(block.trgOps), 0x64); // data change, quality change, general interrogation
    QCOMPARE(block.optFldsText, QString("0111101110"));
    QCOMPARE(block.bufTm, 50);
    QVERIFY(!block.rptEna);

    const QByteArray period("\x00\x00\x13\x88", 4);
    QCOMPARE(m_service->writeValue(deviceNo, control, reference, "IntgPd", period, m_error),
             OperationSucceeded);
    QCOMPARE(m_service->writeValue(deviceNo, control, reference, "OptFlds", "\x41\x80", m_error),
             OperationSucceeded);
    block.datSet = QStringLiteral("Interlocking");
    block.intgPd = 5000;
    QCOMPARE(m_service->enableReportBlock(deviceNo, control, reference, "mine", {}, block, m_error),
             OperationSucceeded);
    QCOMPARE(m_service->getBRCBValues(deviceNo, control, reference, block, m_error),
             OperationSucceeded);
    QCOMPARE(block.rptId, QString("mine"));
    QCOMPARE(block.datSet, QString("Interlocking"));
    QCOMPARE(block.intgPd, 5000);
    QVERIFY(block.rptEna);
    QCOMPARE(m_service->writeValue(deviceNo, control, "LLN0$BR$none", "GI", "\x01", m_error),
             OperationFailed);
}

void tst_RehearsalDriverService::settingsAreKeptForEachGroupAndTakeEffectWithIt()
{
    SGCB block;
    QCOMPARE(m_service->getSGCB(deviceNo, protection, block, m_error), OperationSucceeded);
    QCOMPARE(int(block.numOfSG), 4);
    QCOMPARE(int(block.actSG), 1);

    const QList<SGCBValue> change{{"PTOC1$SG$StrVal$setMag$f", 615.5F}};
    QCOMPARE(m_service->setSGCBValues(deviceNo, protection, change, m_error), OperationFailed);
    QCOMPARE(m_service->selectEditSG(deviceNo, protection, 3, m_error), OperationSucceeded);
    QCOMPARE(m_service->setSGCBValues(deviceNo, protection, change, m_error), OperationSucceeded);

    const auto settingOf = [&](const QString &fc) {
        QList<SGCBValue> values;
        m_service->getSGCBValue(deviceNo, protection, fc, values, m_error);
        for (const SGCBValue &value : values) {
            if (value.name == change.first().name)
                return value.value;
        }
        return QVariant();
    };
    QCOMPARE(settingOf("SE"), QVariant(615.5F));
    const QVariant before = settingOf("SG");
    QVERIFY(before.isValid() && before != QVariant(615.5F));
    QCOMPARE(m_service->selectActiveSG(deviceNo, protection, 3, m_error), OperationSucceeded);
    QCOMPARE(settingOf("SG"), QVariant(615.5F));
    QCOMPARE(m_service->readVariable(deviceNo, protection, {change.first().name}, m_error),
             OperationSucceeded);
    QCOMPARE(received().value("BAY1E1PROT/" + change.first().name), QVariant(615.5F));
}

void tst_RehearsalDriverService::anUnknownSettingGroupIsRefused()
{
    QCOMPARE(m_service->selectActiveSG(deviceNo, protection, 5, m_error), OperationFailed);
    QCOMPARE(m_error, QString("There is no setting group 5."));
    SGCB block;
    QCOMPARE(m_service->getSGCB(deviceNo, control, block, m_error), OperationFailed);
    QCOMPARE(m_error, QString("\"BAY1E1CTRL\" has no setting groups."));
}

void tst_RehearsalDriverService::directoriesOfTheFileStoreAreListed()
{
    QList<MMSFileEntry> entries;
    QCOMPARE(m_service->getFileDirectory(deviceNo, "*.*", {}, entries, m_error),
             OperationSucceeded);
    QStringList names;
    for (const MMSFileEntry &entry : qAsConst(entries))
        names << entry.name;
    QCOMPARE(names, QStringList({"COMTRADE\\", "SCL\\", "events.log", "settings.xml"}));
    for (const char *directory : {"SCL", "SCL\\"}) {
        QCOMPARE(m_service->getFileDirectory(deviceNo, "*.*", directory, entries, m_error),
                 OperationSucceeded);
        QCOMPARE(entries.size(), 1);
        QCOMPARE(entries.first().name, QString("BAY1E1.cid"));
        QVERIFY(entries.first().size > 0);
    }
}

void tst_RehearsalDriverService::filesCanBeFetchedSentAndDeleted()
{
    QTemporaryFile local;
    QVERIFY(local.open());
    local.write("settings of the day");
    local.close();
    QCOMPARE(m_service->writeFile(deviceNo, local.fileName(), "SCL\\day.txt", m_error),
             OperationSucceeded);
    QByteArray content;
    QCOMPARE(m_service->getFile(deviceNo, "SCL\\day.txt", content, m_error), OperationSucceeded);
    QCOMPARE(content, QByteArray("settings of the day"));
    QCOMPARE(m_service->deleteFile(deviceNo, "SCL\\day.txt", m_error), OperationSucceeded);
    QCOMPARE(m_service->deleteFile(deviceNo, "SCL\\day.txt", m_error), OperationFailed);
    QCOMPARE(m_error, QString("There is no file \"SCL\\day.txt\"."));
}

QTEST_GUILESS_MAIN(tst_RehearsalDriverService)
#include "tst_rehearsaldriverservice.moc"
