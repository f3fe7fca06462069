// SPDX-License-Identifier: Apache-2.0
#include "workbench/waitingcalls.h"

#include "support/recordingdriverservice.h"

#include <remoteclient/iec61850controllerinterface.h>

#include <QtCore/QSemaphore>
#include <QtCore/QTimer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <memory>
#include <thread>

namespace {

const QString address = QStringLiteral("waiting test");
constexpr std::chrono::milliseconds atOnce{0};
constexpr std::chrono::minutes forLong{10};

} // namespace

class tst_WaitingCalls : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aCallThatEndsSoonShowsNothing();
    void aSlowCallCanBeCancelled_data();
    void aSlowCallCanBeCancelled();
    void theWindowGoesWhenTheDeviceAnswers();
    void theWindowBelowMayBeDestroyedMeanwhile();
    void callsOfOtherThreadsAreNotTouched();

private:
    static QDialog *waitingDialog();
    /// Runs as soon as the window is there.
    void whenWaiting(const std::function<void(QDialog *)> &act);
    void install(std::chrono::milliseconds patience);

    std::shared_ptr<RecordingDriverService> m_service;
    std::unique_ptr<DriverServiceRegistration> m_registration;
    std::unique_ptr<WaitingCalls> m_calls;
    IEC61850ControllerInterface m_controller;
    QSemaphore m_mayAnswer;
    QList<long> m_cancelled;
    QThread *m_thread = nullptr;
};

void tst_WaitingCalls::init()
{
    m_service = std::make_shared<RecordingDriverService>();
    m_registration = std::make_unique<DriverServiceRegistration>(address, m_service);
    m_controller.setLocation(address, 1);
    m_cancelled.clear();
    m_thread = nullptr;
    m_service->setOnCall([this](const RecordingDriverService::Call &) {
        m_thread = QThread::currentThread();
        m_mayAnswer.acquire();
    });
}

void tst_WaitingCalls::cleanup()
{
    ControllerCallRunner::install(nullptr);
    m_calls.reset();
    m_registration.reset();
    QVERIFY(!QApplication::overrideCursor());
}

void tst_WaitingCalls::install(std::chrono::milliseconds patience)
{
    m_calls = std::make_unique<WaitingCalls>(
        [this](long deviceNo) {
            m_cancelled.append(deviceNo);
            m_mayAnswer.release();
        },
        patience);
    m_calls->setDeviceName([](long) { return QStringLiteral("BAY1 (7)"); });
    ControllerCallRunner::install(m_calls.get());
}

QDialog *tst_WaitingCalls::waitingDialog()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("WaitingDialog") && window->isVisible())
            return qobject_cast<QDialog *>(window);
    }
    return nullptr;
}

void tst_WaitingCalls::whenWaiting(const std::function<void(QDialog *)> &act)
{
    constexpr int look = 10;
    QTimer::singleShot(look, this, [this, act] {
        if (QDialog *dialog = waitingDialog())
            act(dialog);
        else
            whenWaiting(act);
    });
}

void tst_WaitingCalls::aCallThatEndsSoonShowsNothing()
{
    install(forLong);
    m_service->setAnswer(QStringLiteral("deleteFile"), OperationFailed, QStringLiteral("No."));
    m_mayAnswer.release();
    // It runs when this function has ended.
    const auto hasRun = std::make_shared<bool>(false);
    QTimer::singleShot(0, this, [hasRun] { *hasRun = true; });
    QString error;
    QCOMPARE(m_controller.deleteFile(7, QStringLiteral("a"), error), OperationFailed);
    QCOMPARE(error, QStringLiteral("No."));
    QVERIFY2(!*hasRun, "the caller is blocked, as it expects to be");
    QVERIFY(m_cancelled.isEmpty());
}

void tst_WaitingCalls::aSlowCallCanBeCancelled_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("button") << 0;
    QTest::newRow("Escape") << 1;
    QTest::newRow("closed window") << 2;
}

void tst_WaitingCalls::aSlowCallCanBeCancelled()
{
    QFETCH(int, way);
    install(atOnce);
    QString said;
    whenWaiting([&](QDialog *dialog) {
        said = dialog->findChild<QLabel *>(QStringLiteral("sentence"))->text();
        // An Enter that was meant for the window before does nothing.
        QTest::keyClick(dialog, Qt::Key_Return);
        QVERIFY(m_cancelled.isEmpty());
        QPushButton *const cancel =
            dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel);
        if (way == 0)
            cancel->click();
        else if (way == 1)
            QTest::keyClick(dialog, Qt::Key_Escape);
        else
            dialog->close();
        // Once is enough.
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    QString error;
    QCOMPARE(m_controller.deleteFile(7, QStringLiteral("a"), error), OperationSucceeded);
    QCOMPARE(m_cancelled, QList<long>{7});
    QVERIFY2(said.contains(QLatin1String("BAY1 (7) has not answered yet")), qPrintable(said));
    QVERIFY(!waitingDialog());
}

void tst_WaitingCalls::theWindowGoesWhenTheDeviceAnswers()
{
    install(atOnce);
    whenWaiting([&](QDialog *) { m_mayAnswer.release(); });
    QString error;
    QCOMPARE(m_controller.deleteFile(7, QStringLiteral("a"), error), OperationSucceeded);
    QVERIFY(m_cancelled.isEmpty());
    QVERIFY(!waitingDialog());
    QVERIFY(m_thread != QThread::currentThread());
}

void tst_WaitingCalls::theWindowBelowMayBeDestroyedMeanwhile()
{
    install(atOnce);
    QPointer<QWidget> window = new QWidget;
    m_calls->setWindow(window);
    whenWaiting([&](QDialog *dialog) {
        QCOMPARE(dialog->parentWidget(), window.data());
        delete window;
        QVERIFY(!waitingDialog());
        m_mayAnswer.release();
    });
    QString error;
    QCOMPARE(m_controller.deleteFile(7, QStringLiteral("a"), error), OperationSucceeded);
    QVERIFY(m_cancelled.isEmpty());
}

void tst_WaitingCalls::callsOfOtherThreadsAreNotTouched()
{
    install(atOnce);
    m_mayAnswer.release();
    QThread *called = nullptr;
    std::thread thread([&] {
        called = QThread::currentThread();
        IEC61850ControllerInterface controller;
        controller.setLocation(address, 1);
        QString error;
        controller.deleteFile(7, QStringLiteral("a"), error);
    });
    thread.join();
    QCOMPARE(m_thread, called);
}

QTEST_MAIN(tst_WaitingCalls)
#include "tst_waitingcalls.moc"
