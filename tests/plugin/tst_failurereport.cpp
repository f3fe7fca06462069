// SPDX-License-Identifier: Apache-2.0
#include "plugin/failurereport.h"

#include "support/modaldriver.h"

#include <QtTest/QTest>
#include <QtWidgets/QWidget>

class tst_FailureReport : public QObject
{
    Q_OBJECT

private slots:
    void successShowsNothing();
    void failureShowsItsText_data();
    void failureShowsItsText();
    void textThatLooksLikeMarkupIsShownAsItIs();
};

void tst_FailureReport::successShowsNothing()
{
    // A message box would block here.
    QVERIFY(!reportFailure(nullptr, OperationSucceeded, "not an error", {"Fail", "no driver"}));
}

void tst_FailureReport::failureShowsItsText_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("shown");
    QTest::newRow("driver unreachable") << 10001 << "whatever"
                                        << "no driver";
    QTest::newRow("driver unreachable, no text") << 10001 << ""
                                                 << "no driver";
    QTest::newRow("refused") << 1 << "Access denied"
                             << "Access denied";
    QTest::newRow("a driver's own number") << -7 << "Odd"
                                           << "Odd";
    QTest::newRow("no text") << 2 << ""
                             << "";
}

void tst_FailureReport::failureShowsItsText()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    QWidget parent;
    ShownMessage message;
    message.text = "nothing was shown";
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    QVERIFY(reportFailure(&parent, OperationResult(result), error, {"Fail", "no driver"}));
    QVERIFY(driver.finished());
    QCOMPARE(message.title, QString("Fail"));
    QCOMPARE(message.text, shown);
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(message.parent, &parent);
}

void tst_FailureReport::textThatLooksLikeMarkupIsShownAsItIs()
{
    Qt::TextFormat format = Qt::AutoText;
    ModalDriver driver({[&format](QWidget *box) {
        format = static_cast<QMessageBox *>(box)->textFormat();
        box->close();
    }});
    showWarning(nullptr, "Fail", "<b>no</b> such file");
    QVERIFY(driver.finished());
    QCOMPARE(format, Qt::PlainText);
}

QTEST_MAIN(tst_FailureReport)
#include "tst_failurereport.moc"
