// SPDX-License-Identifier: Apache-2.0
#include "workbench/callconfirmation.h"
#include "workbench/confirmationdialog.h"

#include <QtGui/QWheelEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <thread>

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

GuardedCall command(const char *operation, int model, double value)
{
    GuardedCall call;
    call.kind = s(operation) == s("cancelObject") ? GuardedCall::Withdrawal : GuardedCall::Command;
    call.deviceNo = 7;
    call.operation = s(operation);
    call.logicalDevice = s("BAY1CTRL");
    call.object = s("CSWI1$CO$Pos");
    call.isControl = true;
    call.control = {call.object, value, 3, 2, 0, static_cast<quint8>(model)};
    call.newValue = value;
    return call;
}

GuardedCall write()
{
    GuardedCall call;
    call.deviceNo = 7;
    call.operation = s("writeVariable");
    call.logicalDevice = s("BAY1CTRL");
    call.object = s("XCBR1$CF$Pos$ctlModel");
    call.newValue = 4;
    return call;
}

QStringList rowsOf(const CallConfirmation::Question &question)
{
    QStringList rows;
    for (const auto &row : question.rows)
        rows << row.first + QLatin1Char(' ') + row.second;
    return rows;
}

} // namespace

class tst_CallConfirmation : public QObject
{
    Q_OBJECT

private slots:
    void aFloatIsAskedForAsItWasTyped();
    void init();
    void aCommandIsToldInWords_data();
    void aCommandIsToldInWords();
    void aWriteIsToldWithTheValueBefore();
    void textsOfADeviceAreCutToALine();
    void theScopeDecidesWhatIsAskedFor_data();
    void theScopeDecidesWhatIsAskedFor();
    void whatNobodyConfirmsIsRefused();
    void anotherThreadWaitsForTheAnswer();

    void nothingButEscapeAnswersBeforeTheDialogIsArmed();
    void enterNeverSends();
    void theButtonSends();
    void textsAreShownAsTheyAre();
    void theQuestionIsWithdrawnWithTheWindowBelow_data();
    void theQuestionIsWithdrawnWithTheWindowBelow();

private:
    CallConfirmation m_confirmation;
    QHash<QString, CallConfirmation::KnownValue> m_known;
};

void tst_CallConfirmation::init()
{
    m_known.clear();
    m_confirmation.setScope(CallConfirmation::Commands);
    m_confirmation.setAsk({});
    m_confirmation.setDeviceName([](long number) { return s("Feeder (%1)").arg(number); });
    m_confirmation.setLookup([this](long, const QStringList &references) {
        for (const QString &reference : references) {
            if (m_known.contains(reference))
                return m_known.value(reference);
        }
        return CallConfirmation::KnownValue();
    });
}

void tst_CallConfirmation::aCommandIsToldInWords_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("model");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("statusType");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QStringList>("rows");

    const QString category = s("Originator category: remote control (3)");
    const QString checks = s("Checks: synchrocheck");
    const QString test = s("Test: no");
    QTest::newRow("a switch, direct")
        << "controlObject" << 1 << 1.0 << "Dbpos"
        << "1" << QStringList({s("Value: off → on"), category, checks, test});
    QTest::newRow("a switch, selected with a value")
        << "selectObject" << 4 << 0.0 << "Dbpos"
        << "2" << QStringList({s("Value: on → off"), category, checks, test});
    QTest::newRow("a single point")
        << "controlObject" << 3 << 0.0 << "BOOLEAN"
        << "1" << QStringList({s("Value: true → false"), category, checks, test});
    QTest::newRow("a number") << "controlObject" << 1 << 12.5 << "INT32"
                              << "3" << QStringList({s("Value: 3 → 12.5"), category, checks, test});
    QTest::newRow("an unknown state") << "controlObject" << 1 << 1.0 << ""
                                      << "" << QStringList({s("Value: 1"), category, checks, test});
    QTest::newRow("operate after a select") << "controlObject" << 4 << 0.0 << "Dbpos"
                                            << "1" << QStringList({s("Value: off → as selected")});
    QTest::newRow("a select without a value") << "selectObject" << 2 << 0.0 << "Dbpos"
                                              << "1" << QStringList({s("Current value: off")});
}

void tst_CallConfirmation::aCommandIsToldInWords()
{
    QFETCH(QString, operation);
    QFETCH(int, model);
    QFETCH(double, value);
    QFETCH(QString, statusType);
    QFETCH(QString, status);
    QFETCH(QStringList, rows);
    m_known.insert(s("BAY1CTRL/CSWI1$ST$Pos$stVal"), {statusType, status});
    const CallConfirmation::Question question =
        m_confirmation.question(command(operation.toLatin1(), model, value));
    QCOMPARE(question.operation, operation == s("selectObject") ? s("Select") : s("Operate"));
    QCOMPARE(rowsOf(question), QStringList({s("Device: Feeder (7)"), s("Logical device: BAY1CTRL"),
                                            s("Object: CSWI1.Pos")}) +
                                   rows);
}

void tst_CallConfirmation::aWriteIsToldWithTheValueBefore()
{
    m_known.insert(s("BAY1CTRL/XCBR1$CF$Pos$ctlModel"), {s("Enum"), s("0")});
    QCOMPARE(rowsOf(m_confirmation.question(write())),
             QStringList({s("Device: Feeder (7)"), s("Logical device: BAY1CTRL"),
                          s("Object: XCBR1$CF$Pos$ctlModel"), s("Value: 0 → 4")}));
}

void tst_CallConfirmation::textsOfADeviceAreCutToALine()
{
    GuardedCall call = write();
    call.object = s("a\nb") + QString(5000, QLatin1Char('x'));
    const QString row = rowsOf(m_confirmation.question(call)).at(2);
    QVERIFY(row.startsWith(s("Object: a bxxx")));
    QVERIFY(row.size() < 250);
}

void tst_CallConfirmation::theScopeDecidesWhatIsAskedFor_data()
{
    QTest::addColumn<int>("scope");
    QTest::addColumn<QStringList>("asked");
    QTest::newRow("commands") << int(CallConfirmation::Commands)
                              << QStringList({s("Select"), s("Operate")});
    QTest::newRow("everything") << int(CallConfirmation::Everything)
                                << QStringList({s("Select"), s("Operate"), s("Write a value")});
    QTest::newRow("nothing") << int(CallConfirmation::Nothing) << QStringList();
}

void tst_CallConfirmation::theScopeDecidesWhatIsAskedFor()
{
    QFETCH(int, scope);
    m_confirmation.setScope(CallConfirmation::Scope(scope));
    QStringList asked;
    m_confirmation.setAsk([&](const CallConfirmation::Question &question) {
        asked << question.operation;
        return true;
    });
    for (const GuardedCall &call : {command("selectObject", 4, 1), command("controlObject", 4, 0),
                                    command("cancelObject", 4, 0), write()}) {
        QCOMPARE(m_confirmation.refusal(call), QString());
    }
    QTEST(asked, "asked");
}

void tst_CallConfirmation::whatNobodyConfirmsIsRefused()
{
    const QString sentence = s("Nothing was sent, since it was not confirmed.");
    QCOMPARE(m_confirmation.refusal(command("controlObject", 1, 1)), sentence);
    m_confirmation.setAsk([](const CallConfirmation::Question &) { return false; });
    QCOMPARE(m_confirmation.refusal(command("controlObject", 1, 1)), sentence);
}

void tst_CallConfirmation::anotherThreadWaitsForTheAnswer()
{
    QThread *askedIn = nullptr;
    m_confirmation.setAsk([&](const CallConfirmation::Question &) {
        askedIn = QThread::currentThread();
        return true;
    });
    std::atomic<bool> done{false};
    QString refusal = s("not yet");
    std::thread other([&] {
        refusal = m_confirmation.refusal(command("controlObject", 1, 1));
        done = true;
    });
    QTRY_VERIFY(done);
    other.join();
    QCOMPARE(refusal, QString());
    QCOMPARE(askedIn, QThread::currentThread());
}

void tst_CallConfirmation::nothingButEscapeAnswersBeforeTheDialogIsArmed()
{
    ConfirmationDialog dialog(m_confirmation.question(command("controlObject", 1, 1)));
    QSignalSpy finished(&dialog, &QDialog::finished);
    QSignalSpy armed(&dialog, &ConfirmationDialog::armed);
    dialog.open();
    auto *const send = dialog.findChild<QPushButton *>(s("send"));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(&dialog, key);
    QTest::keyClick(&dialog, Qt::Key_S, Qt::AltModifier);
    QTest::mouseClick(send, Qt::LeftButton);
    QCOMPARE(armed.count(), 0);
    QCOMPARE(finished.count(), 0);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_CallConfirmation::enterNeverSends()
{
    for (const bool sendHasFocus : {false, true}) {
        ConfirmationDialog dialog(m_confirmation.question(command("controlObject", 1, 1)));
        QSignalSpy finished(&dialog, &QDialog::finished);
        QSignalSpy armed(&dialog, &ConfirmationDialog::armed);
        dialog.open();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(armed.count() > 0 || armed.wait(20000));
        if (sendHasFocus)
            dialog.findChild<QPushButton *>(s("send"))->setFocus();
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    }
}

void tst_CallConfirmation::theButtonSends()
{
    ConfirmationDialog dialog(m_confirmation.question(command("controlObject", 1, 1)));
    QSignalSpy armed(&dialog, &ConfirmationDialog::armed);
    dialog.open();
    QVERIFY(armed.wait(20000));
    QTest::mouseClick(dialog.findChild<QPushButton *>(s("send")), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_CallConfirmation::textsAreShownAsTheyAre()
{
    GuardedCall call = command("controlObject", 1, 1);
    call.logicalDevice = s("<b>LD</b>");
    ConfirmationDialog dialog(m_confirmation.question(call));
    const QString folder = qEnvironmentVariable("PICTURE_FOLDER");
    if (!folder.isEmpty()) {
        dialog.show();
        dialog.grab().save(folder + s("/confirmation.png"));
    }
    int found = 0;
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        if (label->text() == s("<b>LD</b>")) {
            ++found;
            QCOMPARE(label->textFormat(), Qt::PlainText);
        }
    }
    QCOMPARE(found, 1);
}

void tst_CallConfirmation::theQuestionIsWithdrawnWithTheWindowBelow_data()
{
    QTest::addColumn<bool>("destroyed");
    QTest::newRow("closed") << false;
    QTest::newRow("destroyed") << true;
}

void tst_CallConfirmation::theQuestionIsWithdrawnWithTheWindowBelow()
{
    QFETCH(bool, destroyed);
    QPointer<QWidget> tool = new QWidget;
    tool->show();
    bool wasAsked = false;
    QTimer::singleShot(0, qApp, [&] {
        wasAsked = qobject_cast<ConfirmationDialog *>(QApplication::activeModalWidget());
        if (destroyed)
            delete tool;
        else
            tool->close();
    });
    QVERIFY(
        !ConfirmationDialog::asks(m_confirmation.question(command("controlObject", 1, 1)), tool));
    QVERIFY(wasAsked);
    QCOMPARE(tool.isNull(), destroyed);
    delete tool;
}

void tst_CallConfirmation::aFloatIsAskedForAsItWasTyped()
{
    GuardedCall call = write();
    call.newValue = 12.4F;
    const QString value = rowsOf(m_confirmation.question(call)).last();
    QVERIFY2(value.endsWith(s("12.4")), qPrintable(value));
}

QTEST_MAIN(tst_CallConfirmation)
#include "tst_callconfirmation.moc"
