// SPDX-License-Identifier: Apache-2.0
#include "settinggroup/selectfcdialog.h"
#include "support/modaldriver.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace {

QComboBox *listOf(const QWidget *dialog)
{
    return dialog->findChild<QComboBox *>(QStringLiteral("fcList"));
}

void press(QWidget *dialog, QDialogButtonBox::StandardButton button)
{
    auto *box = dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    QTest::mouseClick(box->button(button), Qt::LeftButton);
}

} // namespace

class tst_SelectFCDialog : public QObject
{
    Q_OBJECT

private slots:
    void theWindowSaysWhatItIs();
    void constraintsStandInTheOrderGiven();
    void furtherConstraintsAreAppended();
    void okAnswersTheChosenConstraint();
    void enterAcceptsTheConstraintChosenWithTheKeyboard();
    void cancelAndEscapeReject_data();
    void cancelAndEscapeReject();
    void anEmptyListAnswersAnEmptyText();
};

void tst_SelectFCDialog::theWindowSaysWhatItIs()
{
    QWidget parent;
    const SelectFCDialog dialog(&parent);
    QCOMPARE(dialog.parentWidget(), &parent);
    QCOMPARE(dialog.objectName(), QStringLiteral("SelectFCDialog"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("GetAllDataValues"));
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.size(), QSize(311, 69));

    auto *label = dialog.findChild<QLabel *>(QStringLiteral("label"));
    QCOMPARE(label->text(), QStringLiteral("Select FC : "));
    QCOMPARE(label->buddy(), listOf(&dialog));
    QCOMPARE(listOf(&dialog)->accessibleName(), QStringLiteral("Functional constraint"));
    const auto *box = dialog.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    QCOMPARE(box->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void tst_SelectFCDialog::constraintsStandInTheOrderGiven()
{
    SelectFCDialog dialog(nullptr);
    const QStringList fcs{QStringLiteral("ST"), QStringLiteral("CF"), QStringLiteral("MX")};
    dialog.setFCList(fcs);
    QStringList shown;
    for (int row = 0; row < listOf(&dialog)->count(); ++row)
        shown << listOf(&dialog)->itemText(row);
    QCOMPARE(shown, fcs);
    QCOMPARE(dialog.selectedFC(), QStringLiteral("ST"));
}

void tst_SelectFCDialog::furtherConstraintsAreAppended()
{
    SelectFCDialog dialog(nullptr);
    dialog.setFCList({QStringLiteral("ST")});
    dialog.setFCList({QStringLiteral("CF")});
    QCOMPARE(listOf(&dialog)->count(), 2);
    QCOMPARE(listOf(&dialog)->itemText(1), QStringLiteral("CF"));
    QCOMPARE(dialog.selectedFC(), QStringLiteral("ST"));
}

void tst_SelectFCDialog::okAnswersTheChosenConstraint()
{
    SelectFCDialog dialog(nullptr);
    dialog.setFCList({QStringLiteral("ST"), QStringLiteral("CF"), QStringLiteral("MX")});
    ModalDriver driver({[](QWidget *window) {
        QComboBox *list = listOf(window);
        QTest::keyClick(list, Qt::Key_Space);
        QTRY_VERIFY(list->view()->isVisible());
        QTest::keyClick(list->view(), Qt::Key_End);
        QTest::keyClick(list->view(), Qt::Key_Return);
        QTRY_VERIFY(!list->view()->isVisible());
        press(window, QDialogButtonBox::Ok);
    }});
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(driver.finished());
    QCOMPARE(dialog.selectedFC(), QStringLiteral("MX"));
}

void tst_SelectFCDialog::enterAcceptsTheConstraintChosenWithTheKeyboard()
{
    SelectFCDialog dialog(nullptr);
    dialog.setFCList({QStringLiteral("ST"), QStringLiteral("CF")});
    ModalDriver driver({[](QWidget *window) {
        QTRY_COMPARE(QApplication::focusWidget(), listOf(window));
        QTest::keyClick(listOf(window), Qt::Key_Down);
        QTest::keyClick(listOf(window), Qt::Key_Return);
    }});
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(driver.finished());
    QCOMPARE(dialog.selectedFC(), QStringLiteral("CF"));
}

void tst_SelectFCDialog::cancelAndEscapeReject_data()
{
    QTest::addColumn<bool>("withMouse");
    QTest::newRow("Cancel") << true;
    QTest::newRow("Escape") << false;
}

void tst_SelectFCDialog::cancelAndEscapeReject()
{
    QFETCH(bool, withMouse);
    SelectFCDialog dialog(nullptr);
    dialog.setFCList({QStringLiteral("ST")});
    ModalDriver driver({[withMouse](QWidget *window) {
        if (withMouse)
            press(window, QDialogButtonBox::Cancel);
        else
            QTest::keyClick(window, Qt::Key_Escape);
    }});
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(driver.finished());
}

void tst_SelectFCDialog::anEmptyListAnswersAnEmptyText()
{
    SelectFCDialog dialog(nullptr);
    dialog.setFCList({});
    ModalDriver driver({[](QWidget *window) { press(window, QDialogButtonBox::Ok); }});
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(driver.finished());
    QCOMPARE(dialog.selectedFC(), QString());
}

QTEST_MAIN(tst_SelectFCDialog)
#include "tst_selectfcdialog.moc"
