// SPDX-License-Identifier: Apache-2.0
#include "settinggroup/offlinesgcb.h"
#include "support/modaldriver.h"

#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <limits>

namespace {

QString textOf(const QDialog &dialog, const char *label)
{
    return dialog.findChild<QLabel *>(QLatin1String(label))->text();
}

} // namespace

class tst_OfflineSGCB : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreShownAsTheyAre_data();
    void numbersAreShownAsTheyAre();
    void withoutNumbersDotsAreShown();
    void theWindowSaysWhatItIs();
    void closeAndEscapeReject_data();
    void closeAndEscapeReject();
};

void tst_OfflineSGCB::numbersAreShownAsTheyAre_data()
{
    QTest::addColumn<int>("numOfSG");
    QTest::addColumn<int>("activeGroup");
    QTest::addColumn<QString>("numText");
    QTest::addColumn<QString>("activeText");

    QTest::newRow("usual") << 4 << 2 << "4"
                           << "2";
    QTest::newRow("none") << 0 << 0 << "0"
                          << "0";
    QTest::newRow("negative") << -1 << -2 << "-1"
                              << "-2";
    QTest::newRow("limits") << std::numeric_limits<int>::max() << std::numeric_limits<int>::min()
                            << "2147483647"
                            << "-2147483648";
}

void tst_OfflineSGCB::numbersAreShownAsTheyAre()
{
    QFETCH(int, numOfSG);
    QFETCH(int, activeGroup);
    OfflineSGCB dialog(nullptr);
    dialog.setValues(numOfSG, activeGroup);
    QTEST(textOf(dialog, "numOfSetting"), "numText");
    QTEST(textOf(dialog, "active"), "activeText");
}

void tst_OfflineSGCB::withoutNumbersDotsAreShown()
{
    const OfflineSGCB dialog(nullptr);
    QCOMPARE(textOf(dialog, "numOfSetting"), QStringLiteral("..."));
    QCOMPARE(textOf(dialog, "active"), QStringLiteral("..."));
}

void tst_OfflineSGCB::theWindowSaysWhatItIs()
{
    const OfflineSGCB dialog(nullptr);
    QCOMPARE(dialog.objectName(), QStringLiteral("OfflineSGCB"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("OfflineSGCB"));
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.size(), QSize(323, 90));
    QCOMPARE(textOf(dialog, "label"), QStringLiteral("Num of Setting Group : "));
    QCOMPARE(textOf(dialog, "label_2"), QStringLiteral("Active Group : "));
    QCOMPARE(dialog.findChild<QPushButton *>(QStringLiteral("pushButton"))->text(),
             QStringLiteral("Close"));
}

void tst_OfflineSGCB::closeAndEscapeReject_data()
{
    QTest::addColumn<bool>("withMouse");
    QTest::newRow("Close") << true;
    QTest::newRow("Escape") << false;
}

void tst_OfflineSGCB::closeAndEscapeReject()
{
    QFETCH(bool, withMouse);
    OfflineSGCB dialog(nullptr);
    ModalDriver driver({[withMouse](QWidget *window) {
        QCOMPARE(window->objectName(), QStringLiteral("OfflineSGCB"));
        if (withMouse)
            QTest::mouseClick(window->findChild<QPushButton *>(QStringLiteral("pushButton")),
                              Qt::LeftButton);
        else
            QTest::keyClick(window, Qt::Key_Escape);
    }});
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(driver.finished());
}

QTEST_MAIN(tst_OfflineSGCB)
#include "tst_offlinesgcb.moc"
