// SPDX-License-Identifier: Apache-2.0
#include "toolkit/failurereport.h"

#include "toolkit/modallife.h"

#include "support/modaldriver.h"

#include <QtCore/QPointer>
#include <QtGui/QClipboard>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QWidget>

class tst_FailureReport : public QObject
{
    Q_OBJECT

private slots:
    void successShowsNothing();
    void failureShowsItsText_data();
    void failureShowsItsText();
    void textThatLooksLikeMarkupIsShownAsItIs();
    void problemThatLooksLikeMarkupIsShownAsItIs();
    void shortTextStaysAsItIs_data();
    void shortTextStaysAsItIs();
    void longTextFitsTheScreen_data();
    void longTextFitsTheScreen();
    void detailsCanBeCopied();
    void boxOfAWindowThatIsNotShownAppearsOverTheOneBelow_data();
    void boxOfAWindowThatIsNotShownAppearsOverTheOneBelow();
    void boxEndsWithItsParent_data();
    void boxEndsWithItsParent();
    void boxOfAnEndedParentIsNotShown();
    void questionThatEndsIsNoYes();
};

namespace {

/// What a driver says of a read in which many members fail.
QString refusals(int count, const QString &between)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts << QStringLiteral("BAYCTRL/MMXU1$MX$A$phsA$har(%1): the device denies it").arg(i);
    return texts.join(between);
}

} // namespace

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

void tst_FailureReport::problemThatLooksLikeMarkupIsShownAsItIs()
{
    bool isPlain = true;
    ModalDriver driver({[&isPlain](QWidget *box) {
        const auto labels = box->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->text().contains("<b>"))
                isPlain = isPlain && label->textFormat() == Qt::PlainText;
        }
        box->close();
    }});
    showInformation(nullptr, "Success", "Done", "<b>no</b> such folder");
    QVERIFY(driver.finished());
    QVERIFY(isPlain);
}

void tst_FailureReport::shortTextStaysAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("one line") << "Access denied";
    QTest::newRow("some lines") << refusals(6, "\n");
    QTest::newRow("a paragraph") << refusals(6, "; ");
    QTest::newRow("none") << "";
}

void tst_FailureReport::shortTextStaysAsItIs()
{
    QFETCH(QString, text);
    bool isAsItWas = false;
    ModalDriver driver({[&](QWidget *window) {
        const auto *box = static_cast<QMessageBox *>(window);
        const auto labels = box->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            isAsItWas = isAsItWas || (label->text() == text && label->isVisible());
        isAsItWas = isAsItWas && !box->findChild<QPlainTextEdit *>();
        window->close();
    }});
    showWarning(nullptr, "Fail", text);
    QVERIFY(driver.finished());
    QVERIFY(isAsItWas);
}

void tst_FailureReport::longTextFitsTheScreen_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("lines") << refusals(100, "\n");
    QTest::newRow("a paragraph") << refusals(100, "; ");
    QTest::newRow("a hundred times as many") << refusals(10000, "; ");
    QTest::newRow("one word") << QString(5000, 'x');
}

void tst_FailureReport::longTextFitsTheScreen()
{
    QFETCH(QString, text);
    ShownMessage message;
    QSize size;
    QString beginning, count, details;
    bool enterIsForOk = false;
    ModalDriver driver({[&](QWidget *box) {
        size = box->frameGeometry().size();
        const auto *label = box->findChild<QLabel *>("beginning");
        const auto *list = box->findChild<QPlainTextEdit *>("details");
        if (label && list && label->isVisible() && list->isVisible()) {
            beginning = label->text();
            count = box->findChild<QLabel *>("count")->text();
            details = list->toPlainText();
        }
        enterIsForOk = !qobject_cast<QPlainTextEdit *>(box->focusWidget());
        ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)(box);
    }});
    showWarning(nullptr, "Fail", text);
    QVERIFY(driver.finished());
    QCOMPARE(message.text, text);
    QCOMPARE(message.title, QString("Fail"));
    QVERIFY2(size.height() < 480 && size.width() < 800,
             qPrintable(QString("%1 x %2").arg(size.width()).arg(size.height())));
    QCOMPARE(details, text);
    QVERIFY(text.startsWith(beginning.section('\n', 0, 0).left(40)));
    QVERIFY(beginning.endsWith(" …"));
    const int lines = count.section(',', 1).section(' ', 1, 1).toInt();
    QVERIFY2(lines > 12 && lines <= 20000, qPrintable(count));
    if (text.contains('\n'))
        QCOMPARE(lines, 100);
    QVERIFY(enterIsForOk);
}

void tst_FailureReport::detailsCanBeCopied()
{
    const QString text = refusals(100, "\n");
    ModalDriver driver({[](QWidget *box) {
        auto *const details = box->findChild<QPlainTextEdit *>("details");
        if (details) {
            details->setFocus();
            QTest::keySequence(details, QKeySequence::SelectAll);
            QTest::keySequence(details, QKeySequence::Copy);
        }
        box->close();
    }});
    showWarning(nullptr, "Fail", text);
    QVERIFY(driver.finished());
    QCOMPARE(QGuiApplication::clipboard()->text(), text);
}

void tst_FailureReport::boxOfAWindowThatIsNotShownAppearsOverTheOneBelow_data()
{
    QTest::addColumn<bool>("hasParent");
    QTest::newRow("a dialog that is not shown yet") << true;
    QTest::newRow("no parent") << false;
}

void tst_FailureReport::boxOfAWindowThatIsNotShownAppearsOverTheOneBelow()
{
    QFETCH(bool, hasParent);
    QWidget browser;
    browser.setGeometry(300, 250, 300, 200);
    browser.show();
    browser.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&browser));
    QDialog dialog(&browser);
    ShownMessage message;
    QPoint centre;
    const QWindow *over = nullptr;
    ModalDriver driver({[&](QWidget *box) {
        centre = box->frameGeometry().center();
        over = box->windowHandle()->transientParent();
        ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)(box);
    }});
    showWarning(hasParent ? &dialog : nullptr, "Fail", "The block cannot be read.");
    QVERIFY(driver.finished());
    QCOMPARE(message.parent, hasParent ? &dialog : nullptr);
    QCOMPARE(over, browser.windowHandle());
    const QPoint off = centre - browser.frameGeometry().center();
    QVERIFY2(off.manhattanLength() <= 4, qPrintable(QString("%1, %2").arg(off.x()).arg(off.y())));
}

void tst_FailureReport::boxEndsWithItsParent_data()
{
    QTest::addColumn<bool>("isShown");
    QTest::addColumn<bool>("isDestroyed");
    QTest::newRow("closed") << true << false;
    QTest::newRow("destroyed") << true << true;
    QTest::newRow("destroyed before it was shown") << false << true;
}

void tst_FailureReport::boxEndsWithItsParent()
{
    QFETCH(bool, isShown);
    QFETCH(bool, isDestroyed);
    QPointer<QWidget> parent = new QWidget;
    parent->setVisible(isShown);
    ModalDriver driver({[&](QWidget *) {
        if (isDestroyed)
            delete parent;
        else
            parent->close();
    }});
    showWarning(parent, "Fail", "The device refuses.");
    QVERIFY(driver.finished());
    QCOMPARE(parent.isNull(), isDestroyed);
    delete parent;
}

void tst_FailureReport::boxOfAnEndedParentIsNotShown()
{
    auto *const opener = new QWidget;
    QDialog dialog(opener);
    const ModalLife life(&dialog);
    QVERIFY(!ModalLife::hasEnded(&dialog));
    delete opener;
    QVERIFY(ModalLife::hasEnded(&dialog));
    // Either would block here.
    showWarning(&dialog, "Fail", "The device refuses.");
    QVERIFY(!askWarning(&dialog, "Fail", "Replace it?"));
    QVERIFY(reportFailure(&dialog, OperationFailed, "No.", {"Fail", "no driver"}));
}

void tst_FailureReport::questionThatEndsIsNoYes()
{
    auto *const parent = new QWidget;
    ModalDriver driver({[&](QWidget *) { delete parent; }});
    QVERIFY(!askWarning(parent, "Download File", "Replace it?"));
    QVERIFY(driver.finished());
}

QTEST_MAIN(tst_FailureReport)
#include "tst_failurereport.moc"
