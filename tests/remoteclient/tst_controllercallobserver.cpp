// SPDX-License-Identifier: Apache-2.0
#include "support/recordingdriverservice.h"

#include <remoteclient/controllercaller.h>
#include <remoteclient/controllercallobserver.h>
#include <remoteclient/controllercallrunner.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <QtCore/QDataStream>
#include <QtCore/QElapsedTimer>
#include <QtTest/QtTest>

#include <thread>

namespace {

/// Keeps every call while it lives.
class Journal : public ControllerCallObserver
{
public:
    Journal() { install(this); }
    ~Journal() override { install(nullptr); }
    void controllerCalled(const ControllerCall &call) override { calls << call; }

    QList<ControllerCall> calls;
};

} // namespace

class tst_ControllerCallObserver : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_service = std::make_shared<RecordingDriverService>();
        m_registration =
            std::make_unique<DriverServiceRegistration>(QStringLiteral("test:driver"), m_service);
        m_controller.setLocation(QStringLiteral("test:driver"), 12);
    }

    void cleanup()
    {
        m_registration.reset();
        QVERIFY(!ControllerCallObserver::installed());
    }

    void aFinishedCallIsReportedWithPlaceResultAndError()
    {
        m_service->setAnswer(QStringLiteral("deleteFile"), OperationFailed,
                             QStringLiteral("access denied"));
        Journal journal;
        QString error;
        const QDateTime before = QDateTime::currentDateTime();
        m_controller.deleteFile(7, QStringLiteral("COMTRADE\\a.cfg"), error);

        QCOMPARE(journal.calls.size(), 1);
        const ControllerCall &call = journal.calls.first();
        QCOMPARE(call.address, QStringLiteral("test:driver"));
        QCOMPARE(call.driverNo, 12);
        QCOMPARE(call.deviceNo, 7L);
        QCOMPARE(call.operation, QStringLiteral("deleteFile"));
        QCOMPARE(call.arguments, QStringLiteral("\"COMTRADE\\a.cfg\""));
        QCOMPARE(call.result, OperationFailed);
        QCOMPARE(call.error, QStringLiteral("access denied"));
        QVERIFY(call.started >= before);
        QVERIFY(call.started <= QDateTime::currentDateTime());
    }

    void theDurationCoversTheDriversWork()
    {
        QElapsedTimer timer;
        std::chrono::microseconds worked{0};
        m_service->setOnCall([&](const RecordingDriverService::Call &) {
            timer.start();
            while (timer.nsecsElapsed() < 3000000) {
            }
            worked = std::chrono::microseconds(timer.nsecsElapsed() / 1000);
        });
        Journal journal;
        QString error;
        m_controller.deleteFile(7, QString(), error);
        QVERIFY(journal.calls.first().duration >= worked);
    }

    void anUnreachableDriverIsReportedToo()
    {
        m_registration.reset();
        Journal journal;
        QString error;
        m_controller.getServerDirectory(1, m_list, error);
        QCOMPARE(journal.calls.size(), 1);
        QCOMPARE(journal.calls.first().result, OperationDriverUnreachable);
        QCOMPARE(journal.calls.first().error, error);
    }

    void onlyTheArgumentsThatGoInAreShown()
    {
        Journal journal;
        QString error;
        QByteArray content(100000, 'x');
        m_controller.getFile(1, QStringLiteral("a.cfg"), content, error);
        m_controller.getServerDirectory(1, m_list, error);
        m_controller.readVariable(1, QStringLiteral("LD0"),
                                  {QStringLiteral("A$ST$x"), QStringLiteral("A$ST$y")}, error);
        m_controller.selectEditSG(1, QStringLiteral("LD0/LLN0$SP$SGCB"), 3, error);
        m_controller.abortClose(1);
        QStringList arguments;
        for (const ControllerCall &call : qAsConst(journal.calls))
            arguments << call.arguments;
        QCOMPARE(arguments, (QStringList{QStringLiteral("\"a.cfg\""), QString(),
                                         QStringLiteral("\"LD0\", [A$ST$x, A$ST$y]"),
                                         QStringLiteral("\"LD0/LLN0$SP$SGCB\", 3"), QString()}));
    }

    void longArgumentsAreShownShortAndOnOneLine()
    {
        Journal journal;
        QString error;
        m_controller.writeVariable(1, QStringLiteral("LD0"), QStringLiteral("A$SP$x"),
                                   QByteArray(100, '\xAB'), error);
        m_controller.createDataSet(1, QStringLiteral("LD0"), QStringLiteral("LLN0$ds"),
                                   QStringLiteral("LD0/LLN0$ST$Beh;").repeated(1000), 1, error);
        m_controller.writeFile(1, QStringLiteral("two\nlines"), QStringLiteral("f"), error);
        m_controller.setSGCBValues(1, QStringLiteral("LD0/LLN0$SP$SGCB"),
                                   {{QStringLiteral("StrVal"), 1.5}}, error);
        ReportBlock block;
        block.rptId = QStringLiteral("id");
        m_controller.enableReportBlock(1, QStringLiteral("LD0"), QStringLiteral("LLN0$BR$b"),
                                       QStringLiteral("id"), QStringLiteral("LD0/LLN0$ds"), block,
                                       error);
        for (const ControllerCall &call : qAsConst(journal.calls)) {
            QVERIFY2(call.arguments.size() < 300, qPrintable(call.arguments));
            QVERIFY(!call.arguments.contains(QLatin1Char('\n')));
        }
        QVERIFY(journal.calls.at(0).arguments.contains(QStringLiteral("100 bytes")));
        QVERIFY(journal.calls.at(1).arguments.contains(QStringLiteral("16000 characters")));
        QVERIFY(journal.calls.at(3).arguments.contains(QStringLiteral("StrVal=1.5")));
        QVERIFY(journal.calls.at(4).arguments.contains(QStringLiteral("RptID \"id\"")));
    }

    void bytesAreSaidInWordsBehindThem()
    {
        Journal journal;
        QString error;
        QByteArray value;
        QDataStream stream(&value, QIODevice::WriteOnly);
        stream << QVariant(12.4F);
        m_controller.writeVariable(1, QStringLiteral("LD0"), QStringLiteral("X$SP$Y$f"), value,
                                   error);
        ControlBlock block;
        block.controlValue = 1;
        block.orCat = 3;
        block.check = 2;
        block.test = 1;
        block.controlModel = 4;
        QByteArray record;
        QDataStream control(&record, QIODevice::WriteOnly);
        block.toStream(control);
        m_controller.controlObject(1, QStringLiteral("LD0"), QStringLiteral("X$CO$Pos"), record,
                                   error);
        QVERIFY2(journal.calls.at(0).arguments.endsWith(QLatin1String("> = 12.4")),
                 qPrintable(journal.calls.at(0).arguments));
        QVERIFY2(journal.calls.at(1).arguments.endsWith(
                     QLatin1String("> = value 1, category 3, check 2, test 1, model 4")),
                 qPrintable(journal.calls.at(1).arguments));
    }

    void aRunnerDoesTheDriversPartOnly()
    {
        struct Runner : ControllerCallRunner
        {
            Runner() { install(this); }
            ~Runner() override { install(nullptr); }
            void run(const ControllerCall &call, const std::function<void()> &work) override
            {
                operations << call.operation;
                std::thread(work).join();
            }
            QStringList operations;
        };
        Journal journal;
        QString error;
        quint64 inside = 0;
        quint64 outside = 0;
        m_service->setOnCall([&](const RecordingDriverService::Call &) {
            (ControllerCallRunner::installed() ? inside : outside) = ControllerCaller::current();
        });
        m_service->setAnswer(QStringLiteral("deleteFile"), OperationFailed, QStringLiteral("No."));
        m_controller.deleteFile(7, QStringLiteral("f"), error);
        {
            const Runner runner;
            QCOMPARE(m_controller.deleteFile(7, QStringLiteral("f"), error), OperationFailed);
            QCOMPARE(error, QStringLiteral("No."));
            QCOMPARE(runner.operations, QStringList(QStringLiteral("deleteFile")));
        }
        QCOMPARE(journal.calls.size(), 2);
        QCOMPARE(journal.calls.last().result, OperationFailed);
        // It is the same caller in whatever thread.
        QVERIFY(inside != 0);
        QCOMPARE(inside, outside);
    }

    void withoutAnObserverCallsGoThrough()
    {
        QString error;
        QCOMPARE(m_controller.deleteFile(7, QStringLiteral("f"), error), OperationSucceeded);
        QCOMPARE(m_service->operations(), QStringList{QStringLiteral("deleteFile")});
    }

private:
    std::shared_ptr<RecordingDriverService> m_service;
    std::unique_ptr<DriverServiceRegistration> m_registration;
    IEC61850ControllerInterface m_controller;
    QList<NameVaildValue> m_list;
};

QTEST_APPLESS_MAIN(tst_ControllerCallObserver)
#include "tst_controllercallobserver.moc"
