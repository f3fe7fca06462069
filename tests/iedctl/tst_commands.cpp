// SPDX-License-Identifier: Apache-2.0
#include "iedctl/batch.h"
#include "iedctl/commands.h"
#include "iedctl/deviceobserver.h"
#include "iedctl/session.h"

#include "support/generateddevice.h"
#include "support/recordingdriverservice.h"

#include <devicemodel/mmsvalue.h>
#include <tavrix/tavrix.h>

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtCore/QJsonDocument>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

namespace {

const QString address = QStringLiteral("iedctl test");
constexpr long deviceNo = 1;

QByteArray record(const QString &reference, const QVariant &value)
{
    MMSValue live;
    live.reference = reference;
    live.value = value;
    live.quality = QStringLiteral("0000000000000");
    live.deviceNo = deviceNo;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    live.toStream(stream);
    return bytes;
}

void publish(const QList<QByteArray> &records)
{
    Tavrix::PostEvent("MMS_DATACHANGE:", "MMS_VALUE", records);
}

} // namespace

class tst_IedctlCommands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void readShowsTheValuesThatComeAsEvents();
    void readNamesValuesThatDoNotCome();
    void jsonOutputIsOneDocument();
    void writeSendsTheTypeOfTheAttributeAndReadsBack();
    void aRefusalIsOneLineAndStatusOne();
    void anUnreachableDriverIsStatusThree();
    void watchEndsAfterItsCount();
    void watchGoesOnWithoutAMisspeltReference();
    void watchTellsWhenTheDeviceIsLostAndBack();
    void columnsKeepTheirPlaceWithoutAValue();
    void nothingOfADeviceCommandsTheTerminal_data();
    void nothingOfADeviceCommandsTheTerminal();
    void aPersistentDataSetGoesToItsLogicalDevice();
    void aDataSetOfTheAssociationHasNoLogicalDevice();
    void reportSettingsBecomeTheBytesOfTheirAttributes_data();
    void reportSettingsBecomeTheBytesOfTheirAttributes();
    void wrongReportSettingsAreRefusedBeforeAnythingIsSent();
    void enableSendsTheBlockAndDisablesItAfterwards();
    void eachReportIsShownOnceWithEverythingThatItTells();
    void operateSelectsFirstWhereTheModelWantsIt();
    void operatingASelectionRepeatsTheSelect();
    void whatDiffersFromTheSelectIsRefused_data();
    void whatDiffersFromTheSelectIsRefused();
    void aSelectionWithoutValueWantsOneWhenItIsOperated();
    void operateOnAStatusOnlyObjectSendsNothing();
    void writingAGroupKeepsTheOtherSettings();
    void settingsAreWrittenByTheNamesThatAreShown_data();
    void settingsAreWrittenByTheNamesThatAreShown();
    void settingsAreShownInWords();
    void fileNamesGoWithBackslashes();
    void aFetchedFileIsWrittenWhole();
    void aFailedFetchLeavesTheLocalFile();
    void aFileThatIsThereIsReplacedOnlyWhenThatIsWanted();
    void aBatchStopsAtTheFirstFailureAndNamesTheLine();

private:
    QString text() const { return QString::fromUtf8(m_results.data()); }
    QString complaints() const { return QString::fromUtf8(m_errors.data()); }
    void start(bool json = false);
    /// Publishes values whenever variables are read.
    void answerReads(const QHash<QString, QVariant> &values);

    std::shared_ptr<RecordingDriverService> m_service;
    std::unique_ptr<DriverServiceRegistration> m_registration;
    QBuffer m_results;
    QBuffer m_errors;
    std::unique_ptr<Output> m_output;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<PhysicalDevice> m_device;
    QString m_writable;
};

void tst_IedctlCommands::init()
{
    m_service = std::make_shared<RecordingDriverService>();
    m_registration = std::make_unique<DriverServiceRegistration>(address, m_service);
    m_device = std::make_unique<PhysicalDevice>();
    auto *logicalDevice = new LogicalDevice;
    logicalDevice->name = QStringLiteral("LD0");
    m_device->logicalDevices.append(logicalDevice);
    auto *node = new LogicalNode;
    node->name = QStringLiteral("CSWI1");
    node->lnClass = QStringLiteral("CSWI");
    logicalDevice->logicalNodes.append(node);
    auto *object = new DataObject;
    object->name = QStringLiteral("Pos");
    node->dataObjects.append(object);
    const auto add = [object](const QString &name, const QString &fc, const QString &type) {
        auto *attribute = new DAO;
        attribute->attribute = new DataAttribute;
        attribute->attribute->name = name;
        attribute->attribute->fc = fc;
        attribute->attribute->basicType = type;
        attribute->attribute->reference = QStringLiteral("LD0/CSWI1$%1$Pos$%2").arg(fc, name);
        object->attributes.append(attribute);
    };
    add(QStringLiteral("stVal"), QStringLiteral("ST"), QStringLiteral("Dbpos"));
    add(QStringLiteral("ctlModel"), QStringLiteral("CF"), QStringLiteral("Enum"));
    add(QStringLiteral("sboTimeout"), QStringLiteral("CF"), QStringLiteral("INT32U"));
    m_device->rebuildIndex();
    m_service->model = deviceBytes(*m_device);
    start();
}

void tst_IedctlCommands::cleanup()
{
    m_session.reset();
    m_output.reset();
    m_registration.reset();
    m_results.close();
    m_errors.close();
}

void tst_IedctlCommands::start(bool json)
{
    m_session.reset();
    m_output.reset();
    m_results.close();
    m_errors.close();
    m_results.setData({});
    m_errors.setData({});
    m_results.open(QIODevice::WriteOnly);
    m_errors.open(QIODevice::WriteOnly);
    m_output = std::make_unique<Output>(&m_results, &m_errors, json, false);
    m_session = std::make_unique<Session>(address, deviceNo, *m_output);
}

void tst_IedctlCommands::answerReads(const QHash<QString, QVariant> &values)
{
    m_service->setOnCall([values](const RecordingDriverService::Call &call) {
        if (call.operation != QLatin1String("readVariable"))
            return;
        QList<QByteArray> records;
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            records.append(record(it.key(), it.value()));
        publish(records);
    });
}

void tst_IedctlCommands::readShowsTheValuesThatComeAsEvents()
{
    answerReads({{"LD0/CSWI1$ST$Pos$stVal", 2}});
    QCOMPARE(Commands::read(*m_session, {"LD0/CSWI1.Pos[ST]"}), ExitStatus::Done);
    QCOMPARE(m_service->calls("readVariable").first().arguments,
             QVariantList({"LD0", QStringList{"CSWI1$ST$Pos"}}));
    QCOMPARE(text(), QString("LD0/CSWI1$ST$Pos$stVal  on (2)  good\n"));
    QCOMPARE(complaints(), QString());
}

void tst_IedctlCommands::readNamesValuesThatDoNotCome()
{
    m_service->addAnswer("readVariable", OperationFailed, "CSWI1$CF$Pos: refused.");
    answerReads({{"LD0/CSWI1$ST$Pos$stVal", 2}});
    QCOMPARE(Commands::read(*m_session, {"LD0/CSWI1.Pos"}), ExitStatus::Refused);
    QVERIFY(text().contains("on (2)"));
    QVERIFY2(complaints().contains("2 of the 3 values"), qPrintable(complaints()));
}

void tst_IedctlCommands::jsonOutputIsOneDocument()
{
    start(true);
    answerReads({{"LD0/CSWI1$ST$Pos$stVal", 2}});
    QCOMPARE(Commands::read(*m_session, {"LD0/CSWI1.Pos.stVal"}), ExitStatus::Done);
    const QJsonArray rows = QJsonDocument::fromJson(m_results.data()).array();
    QCOMPARE(rows.size(), 1);
    const QJsonObject row = rows.first().toObject();
    QCOMPARE(row.value("reference").toString(), QString("LD0/CSWI1$ST$Pos$stVal"));
    QCOMPARE(row.value("value").toInt(), 2);
    QCOMPARE(row.value("type").toString(), QString("Dbpos"));
}

void tst_IedctlCommands::writeSendsTheTypeOfTheAttributeAndReadsBack()
{
    answerReads({{"LD0/CSWI1$CF$Pos$sboTimeout", 30000U}});
    QCOMPARE(Commands::write(*m_session, "LD0/CSWI1.Pos.sboTimeout", "30000"), ExitStatus::Done);
    const QVariantList arguments = m_service->calls("writeVariable").first().arguments;
    QCOMPARE(arguments.at(0), QVariant("LD0"));
    QCOMPARE(arguments.at(1), QVariant("CSWI1$CF$Pos$sboTimeout"));
    QVariant sent;
    const QByteArray bytes = arguments.at(2).toByteArray();
    QDataStream stream(bytes);
    stream >> sent;
    QCOMPARE(sent, QVariant(30000U));
    QVERIFY(text().contains("30000"));
}

void tst_IedctlCommands::aRefusalIsOneLineAndStatusOne()
{
    m_service->setAnswer("writeVariable", OperationFailed, "Access denied.\nReally.");
    QCOMPARE(Commands::write(*m_session, "LD0/CSWI1.Pos.sboTimeout", "1"), ExitStatus::Refused);
    QCOMPARE(complaints(), QString("iedctl: Access denied. Really.\n"));
    QVERIFY(m_service->calls("readVariable").isEmpty());
}

void tst_IedctlCommands::anUnreachableDriverIsStatusThree()
{
    m_registration.reset();
    QCOMPARE(Commands::model(*m_session, false), ExitStatus::NotConnected);
    QCOMPARE(complaints(), QString("iedctl: The driver cannot be reached.\n"));
}

void tst_IedctlCommands::watchGoesOnWithoutAMisspeltReference()
{
    answerReads({{"LD0/CSWI1$ST$Pos$stVal", 1}});
    QCOMPARE(Commands::watch(*m_session, {"LD0/CSWI1.Gone", "LD0/CSWI1.Pos.stVal"}, {1, 0}),
             ExitStatus::Refused);
    QVERIFY2(complaints().contains("LD0/CSWI1.Gone"), qPrintable(complaints()));
    QVERIFY2(text().contains("off (1)"), qPrintable(text()));
    start();
    QCOMPARE(Commands::watch(*m_session, {"LD0/CSWI1.Gone"}, {0, 0}), ExitStatus::Refused);
    QCOMPARE(text(), QString());
}

void tst_IedctlCommands::watchTellsWhenTheDeviceIsLostAndBack()
{
    DeviceObserver observer;
    m_session.reset();
    m_session = std::make_unique<Session>(address, deviceNo, *m_output, &observer);
    DeviceStatus status;
    const auto turn = [&](DeviceState state, const QString &reason, int second) {
        status.state = state;
        status.reason = reason;
        status.since = QDateTime(QDate(2026, 3, 4), QTime(5, 6, second), Qt::UTC);
        observer.take(status);
    };
    turn(DeviceState::Connecting, {}, 0);
    turn(DeviceState::Online, {}, 1);
    turn(DeviceState::Waiting, QStringLiteral("The device has closed the connection."), 2);
    turn(DeviceState::Connecting, {}, 3);
    turn(DeviceState::Waiting, QStringLiteral("Nobody answers."), 4);
    turn(DeviceState::ReadingModel, {}, 5);
    turn(DeviceState::Online, {}, 6);
    answerReads({{"LD0/CSWI1$ST$Pos$stVal", 1}});
    QCOMPARE(Commands::watch(*m_session, {"LD0/CSWI1.Pos.stVal"}, {1, 0}), ExitStatus::Done);
    const QStringList lines = text().split(QLatin1Char('\n'));
    QCOMPARE(
        lines.at(0),
        QString("The device was lost at 2026-03-04T05:06:02.000Z; what stands above is older than "
                "that. The device has closed the connection."));
    QCOMPARE(lines.at(1), QString("The device was back at 2026-03-04T05:06:06.000Z."));
    QVERIFY(lines.at(2).startsWith("LD0/CSWI1$ST$Pos$stVal"));
    m_session.reset();
}

void tst_IedctlCommands::columnsKeepTheirPlaceWithoutAValue()
{
    const QStringList columns{"name", "text", "quality", "time"};
    m_output->rows(columns,
                   {QJsonObject{{"name", "a"}, {"quality", "good"}},
                    QJsonObject{{"name", "long"}, {"text", 12.5}}, QJsonObject{{"name", "c"}}});
    QCOMPARE(text(), QString("a     -     good\nlong  12.5  -\nc     -     -\n"));
    QCOMPARE(cells({"a", "", "c"}), QString("a  -  c"));
}

void tst_IedctlCommands::nothingOfADeviceCommandsTheTerminal_data()
{
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("escaped");
    QTest::newRow("escape") << QString("\x1b[2J") << QString("\\u001b[2J");
    QTest::newRow("control sequence of one character")
        << QString(QChar(0x9B)) + "2J" << QString("\\u009b2J");
    QTest::newRow("bell") << QString("\a") << QString("\\u0007");
    QTest::newRow("line end") << QString("a\nb") << QString("a\\u000ab");
    QTest::newRow("delete") << QString(QChar(0x7F)) << QString("\\u007f");
    QTest::newRow("direction of writing")
        << QString(QChar(0x202E)) + "fdp.exe" << QString("\\u202efdp.exe");
    QTest::newRow("line separator") << QString(QChar(0x2028)) << QString("\\u2028");
    QTest::newRow("letters") << QString::fromUtf8("Stra\xC3\x9F"
                                                  "e \xE4\xBD\x8D")
                             << QString::fromUtf8("Stra\xC3\x9F"
                                                  "e \xE4\xBD\x8D");
}

void tst_IedctlCommands::nothingOfADeviceCommandsTheTerminal()
{
    QFETCH(const QString, sent);
    QFETCH(const QString, escaped);
    QCOMPARE(printable(sent), escaped);
    const QJsonObject object{{QStringLiteral("name"), sent}};
    const auto isHarmless = [this] {
        const QString all = text() + complaints();
        return std::all_of(all.cbegin(), all.cend(), [](QChar c) {
            return c == QLatin1Char('\n') || (c.unicode() >= 0x20 && c.unicode() < 0x7F) ||
                   (c.unicode() > 0x9F && c.unicode() != 0x202E && c.unicode() != 0x2028);
        });
    };
    m_output->rows({QStringLiteral("name")}, {object});
    m_output->object({QStringLiteral("name")}, object);
    m_output->streamed({sent}, object);
    m_output->note(sent);
    m_output->complain(sent);
    QCOMPARE(text(), escaped + "\nname: " + escaped + '\n' + escaped + '\n' + escaped + '\n');
    QVERIFY(isHarmless());
    start(true);
    m_output->rows({QStringLiteral("name")}, {object});
    m_output->object({QStringLiteral("name")}, object);
    m_output->streamed({sent}, object);
    QVERIFY2(isHarmless(), qPrintable(text()));
    // It is still the same text to a reader of JSON.
    const QByteArray last = text().trimmed().split(QLatin1Char('\n')).last().toUtf8();
    QCOMPARE(QJsonDocument::fromJson(last).object(), object);
}

void tst_IedctlCommands::watchEndsAfterItsCount()
{
    answerReads({{"LD0/CSWI1$ST$Pos$stVal", 1}});
    QCOMPARE(Commands::watch(*m_session, {"LD0/CSWI1.Pos.stVal"}, {1, 0}), ExitStatus::Done);
    QCOMPARE(text(), QString("LD0/CSWI1$ST$Pos$stVal  off (1)  good  -\n"));
}

void tst_IedctlCommands::aPersistentDataSetGoesToItsLogicalDevice()
{
    QCOMPARE(Commands::createDataSet(*m_session, "LD0/LLN0.Mine", {"LD0/CSWI1.Pos[ST]"}),
             ExitStatus::Done);
    QCOMPARE(m_service->calls("createDataSet").first().arguments,
             QVariantList({"LD0", "LLN0$Mine", "LD0/CSWI1$ST$Pos", 0}));
    QCOMPARE(Commands::deleteDataSet(*m_session, "LD0/LLN0$Mine"), ExitStatus::Done);
    QCOMPARE(m_service->calls("deleteDataSet").first().arguments,
             QVariantList({"LD0", "LLN0$Mine"}));
}

void tst_IedctlCommands::aDataSetOfTheAssociationHasNoLogicalDevice()
{
    QCOMPARE(Commands::createDataSet(*m_session, "@mine", {"LD0/CSWI1$ST$Pos"}), ExitStatus::Done);
    QCOMPARE(m_service->calls("createDataSet").first().arguments,
             QVariantList({"", "mine", "LD0/CSWI1$ST$Pos", 1}));
    QCOMPARE(Commands::showDataSet(*m_session, "nothing"), ExitStatus::Refused);
    QVERIFY(complaints().contains("\"nothing\""));
}

void tst_IedctlCommands::reportSettingsBecomeTheBytesOfTheirAttributes_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("identifier") << "RptID=Ä"
                                << "RptID" << QByteArray("\xC3\x84");
    QTest::newRow("triggers") << "TrgOps=dchg,GI"
                              << "TrgOps" << QByteArray("\x44");
    QTest::newRow("fields") << "OptFlds=seqNum,configRef"
                            << "OptFlds" << QByteArray("\x40\x80");
    QTest::newRow("period") << "IntgPd=1000"
                            << "IntgPd" << QByteArray("\0\0\x03\xE8", 4);
    QTest::newRow("reserve") << "Resv=true"
                             << "Resv" << QByteArray("\x01");
}

void tst_IedctlCommands::reportSettingsBecomeTheBytesOfTheirAttributes()
{
    QFETCH(QString, setting);
    QFETCH(QString, attribute);
    QFETCH(QByteArray, bytes);
    QCOMPARE(Commands::setReport(*m_session, "LD0/LLN0$RP$u01", {setting}), ExitStatus::Done);
    QCOMPARE(m_service->calls("writeValue").first().arguments,
             QVariantList({"LD0", "LLN0$RP$u01", attribute, bytes}));
}

void tst_IedctlCommands::wrongReportSettingsAreRefusedBeforeAnythingIsSent()
{
    for (const char *setting :
         {"TrgOps=sometimes", "IntgPd=-1", "IntgPd=fast", "Resv=perhaps", "SqNum=1", "RptID"}) {
        QCOMPARE(Commands::setReport(*m_session, "LD0/LLN0$RP$u01", {setting}),
                 ExitStatus::Refused);
    }
    QCOMPARE(Commands::setReport(*m_session, "LD0/LLN0.u01", {"IntgPd=1"}), ExitStatus::Refused);
    QVERIFY(m_service->calls("writeValue").isEmpty());
}

void tst_IedctlCommands::enableSendsTheBlockAndDisablesItAfterwards()
{
    m_service->reportBlock.rptId = QStringLiteral("id");
    m_service->reportBlock.datSet = QStringLiteral("LD0/LLN0$Trips");
    m_service->reportBlock.optFldsText = QStringLiteral("0110000000");
    m_service->setOnCall([](const RecordingDriverService::Call &call) {
        if (call.operation == QLatin1String("enableReportBlock"))
            publish({record("LD0/CSWI1$ST$Pos$stVal", 3)});
    });
    Commands::ReportRequest request;
    request.block = QStringLiteral("LD0/LLN0$BR$b01");
    request.triggers = QStringLiteral("dchg");
    request.limit.count = 1;
    QCOMPARE(Commands::enableReport(*m_session, request), ExitStatus::Done);
    const QVariantList arguments = m_service->calls("enableReportBlock").first().arguments;
    const auto block = arguments.last().value<ReportBlock>();
    QCOMPARE(block.trgOps, quint8(0x40));
    QCOMPARE(block.optFlds[0], quint8(0x60));
    QCOMPARE(block.datSet, QString("LD0/LLN0$Trips"));
    QVERIFY(text().contains("bad-state (3)"));
    QCOMPARE(m_service->calls("writeValue").first().arguments,
             QVariantList({"LD0", "LLN0$BR$b01", "RptEna", QByteArray("\0", 1)}));
}

void tst_IedctlCommands::eachReportIsShownOnceWithEverythingThatItTells()
{
    const auto receiver = std::make_shared<EventReceiver>();
    m_session->setEvents(receiver);
    ReportEvent event;
    event.block = QStringLiteral("LD0/LLN0$BR$b01");
    event.sequenceNumber = 4294967295U;
    event.entryId = QByteArray::fromHex("0000000000000007");
    event.timeOfEntry = QStringLiteral("2026-03-04T05:06:07.000Z");
    event.arrival =
        QDateTime::fromString("2026-03-04T05:06:07.500Z", Qt::ISODateWithMs).toLocalTime();
    ReportEventMember member;
    member.reference = QStringLiteral("LD0/CSWI1$ST$Pos$stVal");
    member.reason = 17U;
    member.value = 2;
    member.quality = QStringLiteral("0000000000010");
    event.members = {member};
    m_service->setOnCall([receiver, event](const RecordingDriverService::Call &call) {
        // The values of a report come as live values, too.
        if (call.operation == QLatin1String("enableReportBlock")) {
            publish({record("LD0/CSWI1$ST$Pos$stVal", 2)});
            receiver->take(event);
        }
    });
    Commands::ReportRequest request;
    request.block = event.block;
    request.generalInterrogation = true;
    request.limit.count = 1;
    QCOMPARE(Commands::enableReport(*m_session, request), ExitStatus::Done);
    QCOMPARE(text(), QString("2026-03-04T05:06:07.500Z  LD0/LLN0$BR$b01  no. 4294967295  entry "
                             "0000000000000007  of 2026-03-04T05:06:07.000Z\n"
                             "  LD0/CSWI1$ST$Pos$stVal  on (2)  good, test  -  "
                             "data-change,general-interrogation\n"));
    start(true);
    m_session->setEvents(receiver);
    QCOMPARE(Commands::enableReport(*m_session, request), ExitStatus::Done);
    const QJsonObject shown = QJsonDocument::fromJson(m_results.data()).object();
    QCOMPARE(shown.value("sequenceNumber").toDouble(), 4294967295.0);
    QCOMPARE(shown.value("members").toArray().size(), 1);
}

void tst_IedctlCommands::operateSelectsFirstWhereTheModelWantsIt()
{
    answerReads({{"LD0/CSWI1$CF$Pos$ctlModel", 4}});
    Commands::ControlRequest request;
    request.object = QStringLiteral("LD0/CSWI1.Pos");
    request.value = QStringLiteral("on");
    request.interlock = true;
    QCOMPARE(Commands::operate(*m_session, request), ExitStatus::Done);
    QCOMPARE(m_service->operations().mid(m_service->operations().indexOf("selectObject")),
             QStringList({"selectObject", "controlObject"}));
    ControlBlock selected;
    selected.objectReference = QStringLiteral("CSWI1$CO$Pos");
    selected.controlValue = 1;
    selected.orCat = 3;
    selected.check = 1;
    selected.controlModel = 4;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    selected.toStream(stream);
    QCOMPARE(m_service->calls("selectObject").first().arguments,
             QVariantList({"LD0", "CSWI1$CO$Pos", bytes}));

    m_service->forgetCalls();
    answerReads({{"LD0/CSWI1$CF$Pos$ctlModel", 1}});
    QCOMPARE(Commands::operate(*m_session, request), ExitStatus::Done);
    QVERIFY(m_service->calls("selectObject").isEmpty());
    QCOMPARE(m_service->calls("controlObject").size(), 1);
}

void tst_IedctlCommands::operatingASelectionRepeatsTheSelect()
{
    answerReads({{"LD0/CSWI1$CF$Pos$ctlModel", 4}});
    Commands::ControlRequest request;
    request.object = QStringLiteral("LD0/CSWI1.Pos");
    request.value = QStringLiteral("off");
    request.synchro = true;
    QCOMPARE(Commands::selectObject(*m_session, request), ExitStatus::Done);
    Commands::ControlRequest again;
    again.object = request.object;
    again.selected = true;
    QCOMPARE(Commands::operate(*m_session, again), ExitStatus::Done);
    const QVariantList selected = m_service->calls("selectObject").first().arguments;
    QCOMPARE(m_service->calls("controlObject").first().arguments, selected);
    again.value = QStringLiteral("off");
    again.originatorCategory = 3;
    again.synchro = true;
    QCOMPARE(Commands::operate(*m_session, again), ExitStatus::Done);
    QCOMPARE(m_service->calls("controlObject").last().arguments, selected);
}

void tst_IedctlCommands::whatDiffersFromTheSelectIsRefused_data()
{
    QTest::addColumn<QString>("option");

    for (const char *option : {"value", "orcat", "test", "interlock", "synchro"})
        QTest::newRow(option) << option;
}

void tst_IedctlCommands::whatDiffersFromTheSelectIsRefused()
{
    QFETCH(QString, option);
    answerReads({{"LD0/CSWI1$CF$Pos$ctlModel", 4}});
    Commands::ControlRequest request;
    request.object = QStringLiteral("LD0/CSWI1.Pos");
    request.value = QStringLiteral("off");
    QCOMPARE(Commands::selectObject(*m_session, request), ExitStatus::Done);
    Commands::ControlRequest other;
    other.object = request.object;
    other.selected = true;
    if (option == "value")
        other.value = QStringLiteral("on");
    if (option == "orcat")
        other.originatorCategory = 2;
    other.test = option == "test";
    other.interlock = option == "interlock";
    other.synchro = option == "synchro";
    QCOMPARE(Commands::operate(*m_session, other), ExitStatus::Refused);
    QVERIFY2(complaints().contains("was selected for another command"), qPrintable(complaints()));
    QVERIFY(m_service->calls("controlObject").isEmpty());
}

void tst_IedctlCommands::aSelectionWithoutValueWantsOneWhenItIsOperated()
{
    answerReads({{"LD0/CSWI1$CF$Pos$ctlModel", 2}});
    Commands::ControlRequest request;
    request.object = QStringLiteral("LD0/CSWI1.Pos");
    QCOMPARE(Commands::selectObject(*m_session, request), ExitStatus::Done);
    request.selected = true;
    QCOMPARE(Commands::operate(*m_session, request), ExitStatus::Refused);
    QVERIFY2(complaints().contains("--value"), qPrintable(complaints()));
    QVERIFY(m_service->calls("controlObject").isEmpty());
}

void tst_IedctlCommands::operateOnAStatusOnlyObjectSendsNothing()
{
    answerReads({{"LD0/CSWI1$CF$Pos$ctlModel", 0}});
    Commands::ControlRequest request;
    request.object = QStringLiteral("LD0/CSWI1.Pos");
    request.value = QStringLiteral("on");
    QCOMPARE(Commands::operate(*m_session, request), ExitStatus::Refused);
    QVERIFY(m_service->calls("controlObject").isEmpty());
    QVERIFY2(complaints().contains("status only"), qPrintable(complaints()));
}

void tst_IedctlCommands::writingAGroupKeepsTheOtherSettings()
{
    m_service->settings["SE"] = {{"PTOC1$SE$StrVal$setMag$f", 1.5F},
                                 {"PTOC1$SE$OpDlTmms$setVal", 40}};
    QCOMPARE(Commands::writeGroup(*m_session, "LD0", 2, {"PTOC1$SE$OpDlTmms$setVal=60"}),
             ExitStatus::Done);
    QCOMPARE(m_service->calls("selectEditSG").first().arguments, QVariantList({"LD0", 2}));
    const auto sent =
        m_service->calls("setSGCBValues").first().arguments.at(1).value<QList<SGCBValue>>();
    QCOMPARE(sent.size(), 2);
    QCOMPARE(sent.at(0).value, QVariant(1.5F));
    QCOMPARE(sent.at(1).value, QVariant(60));

    QCOMPARE(Commands::writeGroup(*m_session, "LD0", 0, {"PTOC1$SE$OpDlTmms$setVal=fast"}),
             ExitStatus::Refused);
    QCOMPARE(Commands::writeGroup(*m_session, "LD0", 0, {"nothing=1"}), ExitStatus::Refused);
    QCOMPARE(m_service->calls("setSGCBValues").size(), 1);
}

void tst_IedctlCommands::settingsAreWrittenByTheNamesThatAreShown_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"LD0/PTOC1$SG$OpDlTmms$setVal", "LD0/PTOC1$SE$OpDlTmms$setVal",
          "PTOC1$SG$OpDlTmms$setVal", "PTOC1$SE$OpDlTmms$setVal", "LD0/PTOC1.OpDlTmms.setVal",
          "PTOC1.OpDlTmms.setVal", "LD0/PTOC1.OpDlTmms.setVal[SG]"})
        QTest::newRow(name) << QString(name);
}

void tst_IedctlCommands::settingsAreWrittenByTheNamesThatAreShown()
{
    QFETCH(QString, name);
    m_service->settings["SG"] = {{"LD0/PTOC1$SG$OpDlTmms$setVal", 40}};
    m_service->settings["SE"] = {{"LD0/PTOC1$SE$OpDlTmms$setVal", 40}};
    QCOMPARE(Commands::writeGroup(*m_session, "LD0", 2, {name + "=60"}), ExitStatus::Done);
    const auto sent =
        m_service->calls("setSGCBValues").first().arguments.at(1).value<QList<SGCBValue>>();
    QCOMPARE(sent.size(), 1);
    QCOMPARE(sent.at(0).name, QString("LD0/PTOC1$SE$OpDlTmms$setVal"));
    QCOMPARE(sent.at(0).value, QVariant(60));
    QCOMPARE(complaints(), QString());

    // Of a device that does not tell what is being edited.
    m_service->setAnswer("getSGCBValue", OperationFailed, "Denied.");
    QCOMPARE(Commands::writeGroup(*m_session, "LD0", 2, {name + "=70"}), ExitStatus::Done);
    const auto blind =
        m_service->calls("setSGCBValues").last().arguments.at(1).value<QList<SGCBValue>>();
    QCOMPARE(blind.size(), 1);
    QCOMPARE(blind.at(0).name, QString("LD0/PTOC1$SE$OpDlTmms$setVal"));
}

void tst_IedctlCommands::settingsAreShownInWords()
{
    auto *setting = new DAO;
    setting->attribute = new DataAttribute;
    setting->attribute->name = QStringLiteral("setVal");
    setting->attribute->fc = QStringLiteral("SG");
    setting->attribute->basicType = QStringLiteral("Dbpos");
    setting->attribute->reference = QStringLiteral("LD0/CSWI1$SG$Pos$setVal");
    m_device->logicalDevices.first()->logicalNodes.first()->dataObjects.first()->attributes.append(
        setting);
    m_device->rebuildIndex();
    m_service->model = deviceBytes(*m_device);
    m_service->settings["SG"] = {{"LD0/CSWI1$SG$Pos$setVal", 2}, {"LD0/PTOC1$SG$X$f", 12.4F}};
    QCOMPARE(Commands::readGroup(*m_session, "LD0", false), ExitStatus::Done);
    QCOMPARE(text(), QString("LD0/CSWI1$SG$Pos$setVal  on (2)\nLD0/PTOC1$SG$X$f         12.4\n"));

    m_service->settings["SE"] = {{"LD0/CSWI1$SE$Pos$setVal", 2}};
    QCOMPARE(Commands::writeGroup(*m_session, "LD0", 2, {"CSWI1.Pos.setVal=off"}),
             ExitStatus::Done);
    const auto sent =
        m_service->calls("setSGCBValues").first().arguments.at(1).value<QList<SGCBValue>>();
    QCOMPARE(sent.at(0).value, QVariant(1));
    QCOMPARE(Commands::writeGroup(*m_session, "LD0", 2, {"CSWI1.Pos.setVal=open"}),
             ExitStatus::Refused);
}

void tst_IedctlCommands::fileNamesGoWithBackslashes()
{
    m_service->fileEntries = {{"COMTRADE\\", 12, 0, 1600000000, "a.cfg"}, {"", 0, 0, 0, "old\\"}};
    QCOMPARE(Commands::listFiles(*m_session, "COMTRADE"), ExitStatus::Done);
    QCOMPARE(m_service->calls("getFileDirectory").first().arguments,
             QVariantList({"*.*", "COMTRADE\\"}));
    QCOMPARE(text(), QString("a.cfg  12  2020-09-13T12:26:40Z\nold/   -   -\n"));
    QCOMPARE(Commands::removeFile(*m_session, "COMTRADE/a.cfg"), ExitStatus::Done);
    QCOMPARE(m_service->calls("deleteFile").first().arguments, QVariantList({"COMTRADE\\a.cfg"}));
}

void tst_IedctlCommands::aFetchedFileIsWrittenWhole()
{
    QTemporaryDir folder;
    const QString local = folder.filePath("a.cfg");
    m_service->fileContent = QByteArray(100000, 'x');
    QCOMPARE(Commands::getFile(*m_session, "a.cfg", local, false), ExitStatus::Done);
    QFile file(local);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), m_service->fileContent);
}

void tst_IedctlCommands::aFailedFetchLeavesTheLocalFile()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("a.cfg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("before");
    file.close();
    m_service->setAnswer("getFile", OperationFailed, "No such file.");
    QCOMPARE(Commands::getFile(*m_session, "a.cfg", file.fileName(), true), ExitStatus::Refused);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("before"));
    QCOMPARE(Commands::putFile(*m_session, folder.filePath("missing"), ""), ExitStatus::Refused);
    QVERIFY(m_service->calls("writeFile").isEmpty());
}

void tst_IedctlCommands::aFileThatIsThereIsReplacedOnlyWhenThatIsWanted()
{
    QTemporaryDir folder;
    const QString local = folder.filePath("a.cfg");
    const auto content = [&local] {
        QFile file(local);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    m_service->fileContent = "first";
    // A folder takes the file under its own name.
    QCOMPARE(Commands::getFile(*m_session, "COMTRADE/a.cfg", folder.path(), false),
             ExitStatus::Done);
    QCOMPARE(content(), QByteArray("first"));

    m_service->fileContent = "second";
    QCOMPARE(Commands::getFile(*m_session, "a.cfg", local, false), ExitStatus::Refused);
    QVERIFY2(complaints().contains("--overwrite"), qPrintable(complaints()));
    QCOMPARE(m_service->calls("getFile").size(), 1);
    QCOMPARE(content(), QByteArray("first"));

    QStringList questions;
    bool answer = false;
    m_session->setQuestion([&](const QString &sentence) {
        questions.append(sentence);
        return answer;
    });
    QCOMPARE(Commands::getFile(*m_session, "a.cfg", local, false), ExitStatus::Refused);
    QCOMPARE(content(), QByteArray("first"));
    QCOMPARE(questions.size(), 1);
    QVERIFY2(questions.first().contains(local), qPrintable(questions.first()));
    answer = true;
    QCOMPARE(Commands::getFile(*m_session, "a.cfg", local, false), ExitStatus::Done);
    QCOMPARE(content(), QByteArray("second"));
    m_service->fileContent = "third";
    QCOMPARE(Commands::getFile(*m_session, "a.cfg", local, true), ExitStatus::Done);
    QCOMPARE(content(), QByteArray("third"));
    QCOMPARE(questions.size(), 2);
}

void tst_IedctlCommands::aBatchStopsAtTheFirstFailureAndNamesTheLine()
{
    QByteArray script("# night run\n\nfile rm a\nfile rm b\nfile rm c\n");
    QBuffer lines(&script);
    lines.open(QIODevice::ReadOnly);
    m_service->addAnswer("deleteFile", OperationSucceeded);
    m_service->addAnswer("deleteFile", OperationFailed, "In use.");
    QCOMPARE(runBatch(*m_session, lines), ExitStatus::Refused);
    QCOMPARE(m_service->calls("deleteFile").size(), 2);
    QCOMPARE(complaints(),
             QString("iedctl: In use.\niedctl: Line 4 failed; the rest was not run.\n"));
}

QTEST_GUILESS_MAIN(tst_IedctlCommands)
#include "tst_commands.moc"
