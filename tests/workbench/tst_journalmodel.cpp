// SPDX-License-Identifier: Apache-2.0
#include "workbench/journalmodel.h"

#include "support/recordingdriverservice.h"
#include "workbench/tableview.h"

#include <remoteclient/driverserviceregistry.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <QtGui/QClipboard>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>

#include <memory>
#include <thread>

namespace {

ControllerCall call(int number, OperationResult result = OperationSucceeded,
                    const QString &error = {})
{
    ControllerCall made;
    made.started = QDateTime(QDate(2024, 3, 1), QTime(12, 30, 15, 250));
    made.deviceNo = 3;
    made.operation = QStringLiteral("readVariable");
    made.arguments = QString::number(number);
    made.result = result;
    made.error = error;
    made.duration = std::chrono::microseconds(1240);
    return made;
}

QString cell(const JournalModel &model, int row, JournalModel::Column column)
{
    return model.index(row, column).data().toString();
}

} // namespace

class tst_JournalModel : public QObject
{
    Q_OBJECT

private slots:
    void aCallBecomesARow();
    void aFailureShowsItsSentenceAndNumber();
    void aFailureWithoutASentenceShowsItsNumber();
    void theDeviceIsShownByItsName();
    void theOldestRowsGoFirst();
    void aBurstLargerThanTheTableKeepsTheNewest();
    void callsOfOtherThreadsAllArrive();
    void everyControllerCallIsRecorded();
    void clearingForgetsWhatHasNotBeenShownYet();
    void severalLinesBecomeOne();
    void selectedRowsAreCopiedAsText();
};

void tst_JournalModel::aCallBecomesARow()
{
    JournalModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.controllerCalled(call(1));
    QTRY_COMPARE(model.rowCount(), 1);
    QCOMPARE(cell(model, 0, JournalModel::TimeColumn), QStringLiteral("12:30:15.250"));
    QCOMPARE(cell(model, 0, JournalModel::DeviceColumn), QStringLiteral("3"));
    QCOMPARE(cell(model, 0, JournalModel::OperationColumn), QStringLiteral("readVariable"));
    QCOMPARE(cell(model, 0, JournalModel::ArgumentsColumn), QStringLiteral("1"));
    QCOMPARE(cell(model, 0, JournalModel::ResultColumn), QStringLiteral("OK"));
    QCOMPARE(cell(model, 0, JournalModel::DurationColumn),
             QLocale().toString(1.24, 'f', 2) + QStringLiteral(" ms"));
}

void tst_JournalModel::aFailureShowsItsSentenceAndNumber()
{
    JournalModel model;
    model.controllerCalled(
        call(1, OperationNotConnected, QStringLiteral("Not connected to the device")));
    QTRY_COMPARE(model.rowCount(), 1);
    QCOMPARE(cell(model, 0, JournalModel::ResultColumn),
             QStringLiteral("Not connected to the device (2)"));
    QVERIFY(model.index(0, JournalModel::ResultColumn).data(Qt::ForegroundRole).isValid());
}

void tst_JournalModel::aFailureWithoutASentenceShowsItsNumber()
{
    JournalModel model;
    model.controllerCalled(call(1, OperationDriverUnreachable));
    QTRY_COMPARE(model.rowCount(), 1);
    QCOMPARE(cell(model, 0, JournalModel::ResultColumn), QStringLiteral("Failed (10001)"));
}

void tst_JournalModel::theDeviceIsShownByItsName()
{
    JournalModel model;
    model.setDeviceNames([](long number) { return QStringLiteral("BAY%1").arg(number); });
    model.controllerCalled(call(1));
    QTRY_COMPARE(model.rowCount(), 1);
    QCOMPARE(cell(model, 0, JournalModel::DeviceColumn), QStringLiteral("BAY3"));
}

void tst_JournalModel::theOldestRowsGoFirst()
{
    JournalModel model(3);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (int i = 0; i < 5; ++i) {
        model.controllerCalled(call(i));
        QTRY_COMPARE(cell(model, model.rowCount() - 1, JournalModel::ArgumentsColumn),
                     QString::number(i));
    }
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(cell(model, 0, JournalModel::ArgumentsColumn), QStringLiteral("2"));
}

void tst_JournalModel::aBurstLargerThanTheTableKeepsTheNewest()
{
    JournalModel model(4);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.controllerCalled(call(-1));
    QTRY_COMPARE(model.rowCount(), 1);
    for (int i = 0; i < 100; ++i)
        model.controllerCalled(call(i));
    QTRY_COMPARE(model.rowCount(), 4);
    QCOMPARE(cell(model, 0, JournalModel::ArgumentsColumn), QStringLiteral("96"));
    QCOMPARE(cell(model, 3, JournalModel::ArgumentsColumn), QStringLiteral("99"));
}

void tst_JournalModel::callsOfOtherThreadsAllArrive()
{
    JournalModel model;
    constexpr int threadCount = 4;
    constexpr int callCount = 500;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&model] {
            for (int i = 0; i < callCount; ++i)
                model.controllerCalled(call(i));
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QTRY_COMPARE(model.rowCount(), threadCount * callCount);
}

void tst_JournalModel::everyControllerCallIsRecorded()
{
    const QString address = QStringLiteral("journal-test");
    DriverServiceRegistry::add(address, std::make_shared<RecordingDriverService>());
    {
        JournalModel model;
        ControllerCallObserver::install(&model);
        IEC61850ControllerInterface controller;
        controller.setLocation(address, 1);
        QString error;
        controller.deleteFile(7, QStringLiteral("\\COMTRADE\\1.dat"), error);
        QTRY_COMPARE(model.rowCount(), 1);
        QCOMPARE(cell(model, 0, JournalModel::DeviceColumn), QStringLiteral("7"));
        QCOMPARE(cell(model, 0, JournalModel::OperationColumn), QStringLiteral("deleteFile"));
        QVERIFY(cell(model, 0, JournalModel::ArgumentsColumn).contains(QStringLiteral("1.dat")));
    }
    QVERIFY(ControllerCallObserver::installed() == nullptr);
    DriverServiceRegistry::remove(address);
}

void tst_JournalModel::clearingForgetsWhatHasNotBeenShownYet()
{
    JournalModel model;
    model.controllerCalled(call(1));
    QTRY_COMPARE(model.rowCount(), 1);
    model.controllerCalled(call(2));
    model.clear();
    QCOMPARE(model.rowCount(), 0);
    model.controllerCalled(call(3));
    QTRY_COMPARE(model.rowCount(), 1);
    QCOMPARE(cell(model, 0, JournalModel::ArgumentsColumn), QStringLiteral("3"));
}

void tst_JournalModel::severalLinesBecomeOne()
{
    JournalModel model;
    model.controllerCalled(call(1, OperationFailed, QStringLiteral("One\n\ttwo")));
    QTRY_COMPARE(model.rowCount(), 1);
    QCOMPARE(cell(model, 0, JournalModel::ResultColumn), QStringLiteral("One two (1)"));
}

void tst_JournalModel::selectedRowsAreCopiedAsText()
{
    JournalModel model;
    for (int i = 0; i < 3; ++i)
        model.controllerCalled(call(i));
    QTRY_COMPARE(model.rowCount(), 3);
    TableView view;
    view.setModel(&model);
    view.selectionModel()->select(model.index(2, 0),
                                  QItemSelectionModel::Select | QItemSelectionModel::Rows);
    view.selectionModel()->select(model.index(0, 0),
                                  QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QCOMPARE(view.actions().size(), 1);
    view.actions().first()->trigger();
    const QStringList lines = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3); // two rows, and nothing behind the last line's end
    QVERIFY(lines[0].startsWith(QStringLiteral("12:30:15.250\t3\treadVariable\t0\tOK\t")));
    QVERIFY(lines[1].startsWith(QStringLiteral("12:30:15.250\t3\treadVariable\t2\tOK\t")));
}

QTEST_MAIN(tst_JournalModel)
#include "tst_journalmodel.moc"
