// SPDX-License-Identifier: Apache-2.0
#include "support/recordingdriverservice.h"

#include <remoteclient/controllercallguard.h>
#include <remoteclient/controllercallobserver.h>
#include <remoteclient/driverserviceregistry.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <QtCore/QDataStream>
#include <QtTest/QtTest>

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

/// Answers every question alike and keeps them.
class Doorkeeper : public ControllerCallGuard
{
public:
    explicit Doorkeeper(const QString &sentence = {})
        : answer(sentence)
    {
        install(this);
    }
    ~Doorkeeper() override { install(nullptr); }
    QString refusal(const GuardedCall &call) override
    {
        calls << call;
        return answer;
    }

    QString answer;
    QList<GuardedCall> calls;
};

class LastCall : public ControllerCallObserver
{
public:
    LastCall() { install(this); }
    ~LastCall() override { install(nullptr); }
    void controllerCalled(const ControllerCall &call) override { last = call; }

    ControllerCall last;
};

QByteArray encoded(const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

QByteArray encoded(const ControlBlock &block)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    block.toStream(stream);
    return bytes;
}

} // namespace

class tst_ControllerCallGuard : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_service = std::make_shared<RecordingDriverService>();
        m_registration = std::make_unique<DriverServiceRegistration>(s("test:driver"), m_service);
        m_controller.setLocation(s("test:driver"), 12);
    }
    void cleanup()
    {
        m_registration.reset();
        QVERIFY(!ControllerCallGuard::installed());
    }

    void whateverChangesSomethingIsAskedFor_data();
    void whateverChangesSomethingIsAskedFor();
    void whatOnlyReadsIsNotAskedFor();
    void aRefusedCallFailsWithTheSentenceAndNeverReachesTheDriver();
    void aDriverThatIsNotThereIsNotAskedFor();
    void aControlIsToldWithAllThatGoesWithIt();
    void aDoubtfulStreamIsTold();

private:
    using Call = std::function<OperationResult(IEC61850ControllerInterface &, QString &)>;

    std::shared_ptr<RecordingDriverService> m_service;
    std::unique_ptr<DriverServiceRegistration> m_registration;
    IEC61850ControllerInterface m_controller;
};

Q_DECLARE_METATYPE(std::function<OperationResult(IEC61850ControllerInterface &, QString &)>)

void tst_ControllerCallGuard::whateverChangesSomethingIsAskedFor_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("told"); // logical device | object | new value

    using C = IEC61850ControllerInterface;
    const QByteArray control = encoded(ControlBlock{s("CSWI1$CO$Pos"), 1, 3, 0, 0, 4});
    const auto add = [](const char *name, GuardedCall::Kind kind, const char *told, Call call) {
        QTest::newRow(name) << call << int(kind) << s(told);
    };
    add("writeVariable", GuardedCall::Change, "LD|XCBR1$CF$Pos$ctlModel|4", [](C &c, QString &e) {
        return c.writeVariable(7, s("LD"), s("XCBR1$CF$Pos$ctlModel"), encoded(QVariant(4)), e);
    });
    add("writeValue", GuardedCall::Change, "LD|LLN0$BR$b01$BufTm|100", [](C &c, QString &e) {
        return c.writeValue(7, s("LD"), s("LLN0$BR$b01"), s("BufTm"), encoded(QVariant(100U)), e);
    });
    add("selectObject", GuardedCall::Command, "LD|CSWI1$CO$Pos|1", [=](C &c, QString &e) {
        return c.selectObject(7, s("LD"), s("CSWI1$CO$Pos"), control, e);
    });
    add("controlObject", GuardedCall::Command, "LD|CSWI1$CO$Pos|1", [=](C &c, QString &e) {
        return c.controlObject(7, s("LD"), s("CSWI1$CO$Pos"), control, e);
    });
    add("cancelObject", GuardedCall::Withdrawal, "LD|CSWI1$CO$Pos|1", [=](C &c, QString &e) {
        return c.cancelObject(7, s("LD"), s("CSWI1$CO$Pos"), control, e);
    });
    add("createDataSet", GuardedCall::Change, "LD|LLN0$ds|",
        [](C &c, QString &e) { return c.createDataSet(7, s("LD"), s("LLN0$ds"), s("a;b"), 0, e); });
    add("deleteDataSet", GuardedCall::Change, "LD|LLN0$ds|",
        [](C &c, QString &e) { return c.deleteDataSet(7, s("LD"), s("LLN0$ds"), e); });
    add("deleteFile", GuardedCall::Change, "|COMTRADE\\a.cfg|",
        [](C &c, QString &e) { return c.deleteFile(7, s("COMTRADE\\a.cfg"), e); });
    add("writeFile", GuardedCall::Change, "|b.txt|/home/a.txt",
        [](C &c, QString &e) { return c.writeFile(7, s("/home/a.txt"), s("b.txt"), e); });
    add("enableReportBlock", GuardedCall::Change, "LD|LLN0$BR$b01|", [](C &c, QString &e) {
        return c.enableReportBlock(7, s("LD"), s("LLN0$BR$b01"), s("id"), s("ds"), ReportBlock(),
                                   e);
    });
    add("setSGCBValues", GuardedCall::Change, "LD||StrVal=2.5, OpDlTmms=100", [](C &c, QString &e) {
        return c.setSGCBValues(7, s("LD"), {{s("StrVal"), 2.5}, {s("OpDlTmms"), 100}}, e);
    });
    add("selectEditSG", GuardedCall::Change, "LD||3",
        [](C &c, QString &e) { return c.selectEditSG(7, s("LD"), 3, e); });
    add("selectActiveSG", GuardedCall::Command, "LD||2",
        [](C &c, QString &e) { return c.selectActiveSG(7, s("LD"), 2, e); });
}

void tst_ControllerCallGuard::whateverChangesSomethingIsAskedFor()
{
    QFETCH(Call, call);
    QFETCH(int, kind);
    QFETCH(QString, told);
    Doorkeeper guard;
    LastCall observer;
    QString error;
    QCOMPARE(call(m_controller, error), OperationSucceeded);
    QCOMPARE(m_service->operations(), QStringList{QLatin1String(QTest::currentDataTag())});
    QCOMPARE(guard.calls.size(), 1);
    const GuardedCall &asked = guard.calls.first();
    QCOMPARE(int(asked.kind), kind);
    QCOMPARE(asked.operation, QLatin1String(QTest::currentDataTag()));
    QCOMPARE(asked.address, s("test:driver"));
    QCOMPARE(asked.driverNo, 12);
    QCOMPARE(asked.deviceNo, 7L);
    QCOMPARE(asked.arguments, observer.last.arguments);
    QCOMPARE(asked.logicalDevice + QLatin1Char('|') + asked.object + QLatin1Char('|') +
                 asked.newValue.toString(),
             told);
}

void tst_ControllerCallGuard::whatOnlyReadsIsNotAskedFor()
{
    Doorkeeper guard(s("No."));
    QString error;
    QByteArray bytes;
    QList<NameVaildValue> names;
    QList<MMSFileEntry> files;
    QList<SGCBValue> values;
    ReportBlock report;
    SGCB group;
    QCOMPARE(m_controller.getIEDModel(7, bytes, error), OperationSucceeded);
    QCOMPARE(m_controller.getServerDirectory(7, names, error), OperationSucceeded);
    QCOMPARE(m_controller.readVariable(7, s("LD"), {s("a")}, error), OperationSucceeded);
    QCOMPARE(m_controller.readDataSetValue(7, s("LD"), s("a"), error), OperationSucceeded);
    QCOMPARE(m_controller.getFileDirectory(7, s("*.*"), {}, files, error), OperationSucceeded);
    QCOMPARE(m_controller.getFile(7, s("a"), bytes, error), OperationSucceeded);
    QCOMPARE(m_controller.getBRCBValues(7, s("LD"), s("a"), report, error), OperationSucceeded);
    QCOMPARE(m_controller.getSGCB(7, s("LD"), group, error), OperationSucceeded);
    QCOMPARE(m_controller.getSGCBValue(7, s("LD"), s("SG"), values, error), OperationSucceeded);
    QCOMPARE(m_controller.abortClose(7), OperationSucceeded);
    QCOMPARE(guard.calls.size(), 0);
}

void tst_ControllerCallGuard::aRefusedCallFailsWithTheSentenceAndNeverReachesTheDriver()
{
    Doorkeeper guard(s("The operator said no."));
    LastCall observer;
    QString error;
    QCOMPARE(m_controller.selectActiveSG(7, s("LD"), 2, error), OperationFailed);
    QCOMPARE(error, s("The operator said no."));
    QCOMPARE(m_service->calls().size(), 0);
    QCOMPARE(observer.last.operation, s("selectActiveSG"));
    QCOMPARE(observer.last.result, OperationFailed);
    QCOMPARE(observer.last.error, s("The operator said no."));

    guard.answer.clear();
    QCOMPARE(m_controller.selectActiveSG(7, s("LD"), 2, error), OperationSucceeded);
    QCOMPARE(error, QString());
    QCOMPARE(m_service->calls().size(), 1);
}

void tst_ControllerCallGuard::aDriverThatIsNotThereIsNotAskedFor()
{
    Doorkeeper guard;
    m_controller.setLocation(s("test:nowhere"), 12);
    QString error;
    QCOMPARE(m_controller.deleteFile(7, s("a"), error), OperationDriverUnreachable);
    QCOMPARE(guard.calls.size(), 0);
}

void tst_ControllerCallGuard::aControlIsToldWithAllThatGoesWithIt()
{
    Doorkeeper guard;
    QString error;
    const ControlBlock block{s("CSWI1$CO$Pos"), 12.5, 3, 2, 1, 4};
    m_controller.controlObject(7, s("LD"), s("CSWI1$CO$Pos"), encoded(block), error);
    const GuardedCall &asked = guard.calls.first();
    QVERIFY(asked.isControl);
    QCOMPARE(asked.control.objectReference, block.objectReference);
    QCOMPARE(asked.control.controlValue, 12.5);
    QCOMPARE(int(asked.control.orCat), 3);
    QCOMPARE(int(asked.control.check), 2);
    QCOMPARE(int(asked.control.test), 1);
    QCOMPARE(int(asked.control.controlModel), 4);
}

void tst_ControllerCallGuard::aDoubtfulStreamIsTold()
{
    Doorkeeper guard(s("No."));
    QString error;
    QCOMPARE(m_controller.writeVariable(7, s("LD"), s("a"), QByteArray("\x01"), error),
             OperationFailed);
    QVERIFY(!guard.calls.first().newValue.isValid());
    QCOMPARE(m_controller.controlObject(7, s("LD"), s("a"), QByteArray(), error), OperationFailed);
    QCOMPARE(guard.calls.last().control.controlValue, 0.0);
}

QTEST_GUILESS_MAIN(tst_ControllerCallGuard)
#include "tst_controllercallguard.moc"
