// SPDX-License-Identifier: Apache-2.0
#include "report/reportcontrol.h"

#include "model/streportcontrolblock.h"
#include "support/modaldriver.h"

#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

namespace {

/// Every check box of the form that shows a setting of the offline record, and the setting.
struct Setting
{
    const char *box;
    bool stReportControlBlock::*value;
};

constexpr Setting settings[] = {
    {"useDataChange", &stReportControlBlock::dataChange},
    {"useQualityChange", &stReportControlBlock::qualityChange},
    {"useIntegrity", &stReportControlBlock::integrity},
    {"useGI", &stReportControlBlock::generalInterrogation},
    {"useSequenceNumber", &stReportControlBlock::sequenceNumber},
    {"useTimeStamp", &stReportControlBlock::timeStamp},
    {"useReasonForInclusion", &stReportControlBlock::reasonForInclusion},
    {"useDataSetName", &stReportControlBlock::dataSetName},
    {"useBufferOverflow", &stReportControlBlock::bufferOverflow},
    {"useEntryID", &stReportControlBlock::entryId},
    {"useDataReference", &stReportControlBlock::dataReference},
    {"useConfigurationRevision", &stReportControlBlock::configurationRevision},
};

template <typename Widget>
Widget *find(const ReportControl &dialog, const char *name)
{
    auto *const widget = dialog.findChild<Widget *>(QLatin1String(name));
    if (!widget)
        qFatal("The dialog has no %s", name);
    return widget;
}

stReportControlBlock configuredBlock()
{
    stReportControlBlock block;
    block.rptId = QStringLiteral("BCU1LD0/LLN0.brcbMX");
    block.name = QStringLiteral("brcbMX01");
    block.intgPd = 5000;
    block.datSet = QStringLiteral("LLN0$dsMeasurands");
    block.confRev = 10201;
    block.bufTm = 250;
    return block;
}

} // namespace

class tst_OfflineReportControl : public QObject
{
    Q_OBJECT

private slots:
    void theFormShowsTheConfiguredBlock();
    void eachSettingHasItsBox_data();
    void eachSettingHasItsBox();
    void dataUpdateIsNeverShown();
    void nothingThatChangesADeviceIsEnabled();
    void pressingTheDisabledButtonsDoesNothing();
    void closeEndsTheDialog();
    void escapeEndsTheDialog();
    void theTitleBarHasNoHelpButton();
    void aBlockIsNotKnownToBeEnabled();
    void textsOfTheConfigurationAreShownLiterally();
    void thereIsNoBlockToRead();
};

void tst_OfflineReportControl::theFormShowsTheConfiguredBlock()
{
    const ReportControl dialog(configuredBlock(), nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Report Control Block"));
    QCOMPARE(find<QLabel>(dialog, "control")->text(), QStringLiteral("brcbMX01"));
    QCOMPARE(find<QLineEdit>(dialog, "name")->text(), QStringLiteral("BCU1LD0/LLN0.brcbMX"));
    QCOMPARE(find<QLabel>(dialog, "rptIdClient")->text(), QStringLiteral("BCU1LD0/LLN0.brcbMX"));
    QCOMPARE(find<QComboBox>(dialog, "dataSet")->currentText(),
             QStringLiteral("LLN0$dsMeasurands"));
    QCOMPARE(find<QLabel>(dialog, "dataSetClient")->text(), QStringLiteral("...."));
    QCOMPARE(find<QSpinBox>(dialog, "periodSec")->value(), 5000);
    QCOMPARE(find<QSpinBox>(dialog, "bufferTime")->value(), 250);
    QCOMPARE(find<QSpinBox>(dialog, "confRevision")->value(), 10201);
    QVERIFY(!find<QCheckBox>(dialog, "reserved")->isChecked());
    QVERIFY(find<QCheckBox>(dialog, "subSequence")->isHidden());
}

void tst_OfflineReportControl::eachSettingHasItsBox_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const Setting &setting : settings)
        QTest::newRow(setting.box) << index++;
}

void tst_OfflineReportControl::eachSettingHasItsBox()
{
    QFETCH(int, index);
    stReportControlBlock block = configuredBlock();
    block.*settings[index].value = true;
    const ReportControl dialog(block, nullptr);
    for (const Setting &setting : settings)
        QCOMPARE(find<QCheckBox>(dialog, setting.box)->isChecked(), &setting == &settings[index]);
}

void tst_OfflineReportControl::dataUpdateIsNeverShown()
{
    stReportControlBlock block = configuredBlock();
    block.dataUpdate = true;
    const ReportControl dialog(block, nullptr);
    QVERIFY(!find<QCheckBox>(dialog, "useDataUpdate")->isChecked());
}

void tst_OfflineReportControl::nothingThatChangesADeviceIsEnabled()
{
    ReportControl dialog(configuredBlock(), nullptr);
    dialog.show();
    for (const char *name :
         {"enableReport", "purge", "GI", "rptidChange", "datasetChange", "triggerChange",
          "optionChange", "integrityChange", "bufferTimeChange", "reservChange"}) {
        QVERIFY2(!find<QPushButton>(dialog, name)->isEnabled(), name);
    }
    for (const char *name : {"groupBox", "groupBox_2", "groupBox_3", "groupBox_4"})
        QVERIFY2(!find<QGroupBox>(dialog, name)->isEnabled(), name);
    QVERIFY(find<QPushButton>(dialog, "close")->isEnabled());
}

void tst_OfflineReportControl::pressingTheDisabledButtonsDoesNothing()
{
    ReportControl dialog(configuredBlock(), nullptr);
    QSignalSpy stateChanged(&dialog, &ReportControl::reportEnableStateChanged);
    dialog.show();
    for (const char *name : {"enableReport", "purge", "GI", "rptidChange", "triggerChange"})
        QTest::mouseClick(find<QPushButton>(dialog, name), Qt::LeftButton);
    QVERIFY(dialog.isVisible());
    QCOMPARE(stateChanged.count(), 0);
    QCOMPARE(find<QPushButton>(dialog, "enableReport")->text(), QStringLiteral("Enable"));
}

void tst_OfflineReportControl::closeEndsTheDialog()
{
    ReportControl dialog(configuredBlock(), nullptr);
    ModalDriver driver({[](QWidget *window) {
        QTest::mouseClick(window->findChild<QPushButton *>(QStringLiteral("close")),
                          Qt::LeftButton);
    }});
    QCOMPARE(dialog.exec(), static_cast<int>(QDialog::Rejected));
    QVERIFY(driver.finished());
}

void tst_OfflineReportControl::escapeEndsTheDialog()
{
    ReportControl dialog(configuredBlock(), nullptr);
    ModalDriver driver({[](QWidget *window) { QTest::keyClick(window, Qt::Key_Escape); }});
    QCOMPARE(dialog.exec(), static_cast<int>(QDialog::Rejected));
    QVERIFY(driver.finished());
}

void tst_OfflineReportControl::theTitleBarHasNoHelpButton()
{
    const ReportControl dialog(configuredBlock(), nullptr);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
}

void tst_OfflineReportControl::aBlockIsNotKnownToBeEnabled()
{
    ReportControl dialog(configuredBlock(), nullptr);
    QVERIFY(!dialog.reportEnabled());
}

void tst_OfflineReportControl::textsOfTheConfigurationAreShownLiterally()
{
    stReportControlBlock block = configuredBlock();
    block.name = QStringLiteral("<b>bold</b>");
    block.rptId = QStringLiteral("<i>%1</i>");
    const ReportControl dialog(block, nullptr);
    QCOMPARE(find<QLabel>(dialog, "control")->textFormat(), Qt::PlainText);
    QCOMPARE(find<QLabel>(dialog, "rptIdClient")->textFormat(), Qt::PlainText);
    QCOMPARE(find<QLabel>(dialog, "rptIdClient")->text(), block.rptId);
    QVERIFY(!find<QLabel>(dialog, "rptIdClient")->toolTip().contains(QLatin1Char('<')));
}

void tst_OfflineReportControl::thereIsNoBlockToRead()
{
    ReportControl dialog(configuredBlock(), nullptr);
    QVERIFY(!dialog.init());
    QCOMPARE(find<QLabel>(dialog, "control")->text(), QStringLiteral("brcbMX01"));
}

QTEST_MAIN(tst_OfflineReportControl)
#include "tst_offlinereportcontrol.moc"
