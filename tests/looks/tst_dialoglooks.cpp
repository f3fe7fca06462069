// SPDX-License-Identifier: Apache-2.0
#include "lookcheck.h"

#include "browser/browserfixture.h"
#include "control/controlco.h"
#include "dataset/datasetselectwidget.h"
#include "fileservice/fileservicedialog.h"
#include "model/iedmodel.h"
#include "model/scltemplatestore.h"
#include "model/streportcontrolblock.h"
#include "report/reportcontrol.h"
#include "settinggroup/offlinesgcb.h"
#include "settinggroup/selectfcdialog.h"
#include "settinggroup/sgcbdialog.h"

#include <remoteclient/iec61850controllerinterface.h>

#include <QtCore/QDir>
#include <QtCore/QTranslator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>

/// Run once for each scale factor, which is a property of the process.
class tst_DialogLooks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void initTestCase();
    void init();
    void cleanup();

    void theScreenHasTheScaleOfThisRun();
    void theBrowserIsShownWhole();
    void theBrowserWithItsFindLineIsShownWhole();
    void aControlByListIsShownWhole();
    void aControlByNumberIsShownWhole();
    void thePickerOfMembersIsShownWhole();
    void theFileServiceIsShownWhole();
    void anEnabledReportBlockIsShownWhole();
    void aDisabledReportBlockIsShownWhole();
    void anOfflineReportBlockIsShownWhole();
    void theSettingGroupsAreShownWhole();
    void offlineSettingGroupsAreShownWhole();
    void thePickerOfAConstraintIsShownWhole();

private:
    void expectNoFlaws(QWidget &window);
    QStringList flawsNow(const QWidget &window, const QString &state) const;
    void showReportControl(bool enabled);
    void showControl(const char *basicType, const QVariant &value);

    BrowserFixture m_fixture;
    IEC61850ControllerInterface m_controller;
    QTranslator m_extensionTexts;
    QTranslator m_qtTexts;
};

void tst_DialogLooks::initTestCase_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QString("en");
    const QDir folder(TRANSLATION_FOLDER);
    const QStringList catalogues = folder.entryList({"iec61850ext_*.qm"});
    for (const QString &catalogue : catalogues) {
        const QString language = catalogue.section('_', 1).section('.', 0, 0);
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_DialogLooks::initTestCase()
{
    QVERIFY(QFile::exists(TRANSLATION_FOLDER "/iec61850ext_de.qm"));
    m_controller.setLocation(m_fixture.console.address, BrowserFixture::driverNo);
    qApp->setStyle("Fusion");
    qApp->setFont(QFont("DejaVu Sans", 10));
}

void tst_DialogLooks::init()
{
    QFETCH_GLOBAL(QString, language);
    if (language == "en")
        return;
    QVERIFY(m_extensionTexts.load("iec61850ext_" + language, TRANSLATION_FOLDER));
    QVERIFY(m_qtTexts.load("qtbase_" + language, TRANSLATION_FOLDER));
    QCoreApplication::installTranslator(&m_extensionTexts);
    QCoreApplication::installTranslator(&m_qtTexts);
}

void tst_DialogLooks::cleanup()
{
    QCoreApplication::removeTranslator(&m_extensionTexts);
    QCoreApplication::removeTranslator(&m_qtTexts);
}

QStringList tst_DialogLooks::flawsNow(const QWidget &window, const QString &state) const
{
    QFETCH_GLOBAL(QString, language);
    const QByteArray pictures = qgetenv("LOOKS_PICTURES");
    if (!pictures.isEmpty()) {
        const QString name = QStringLiteral("%1-%2-%3-%4.png")
                                 .arg(QString(QTest::currentTestFunction()), language, state,
                                      QString::number(qRound(100 * window.devicePixelRatioF())));
        const_cast<QWidget &>(window).grab().save(QDir(QString(pictures)).filePath(name));
    }
    QStringList flaws = flawsOf(window);
    for (QString &flaw : flaws)
        flaw.prepend(state + ": ");
    return flaws;
}

void tst_DialogLooks::expectNoFlaws(QWidget &window)
{
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QStringList flaws = flawsNow(window, "first size");
    window.resize(window.minimumSizeHint());
    QCoreApplication::processEvents();
    flaws += flawsNow(window, "smallest size");
    QVERIFY2(flaws.isEmpty(), qPrintable(flaws.join('\n')));
}

void tst_DialogLooks::theScreenHasTheScaleOfThisRun()
{
    const QString factor = qEnvironmentVariable("QT_SCALE_FACTOR", "1");
    QCOMPARE(m_fixture.mainWindow.devicePixelRatioF(), factor.toDouble());
}

void tst_DialogLooks::theBrowserIsShownWhole()
{
    const auto window = m_fixture.open();
    BrowserFixture::tree(*window)->expandAll();
    expectNoFlaws(*window);
}

void tst_DialogLooks::theBrowserWithItsFindLineIsShownWhole()
{
    const auto window = m_fixture.open();
    window->show();
    QTest::keyClick(BrowserFixture::tree(*window), Qt::Key_F, Qt::ControlModifier);
    auto *line = window->findChild<QLineEdit *>();
    QVERIFY(line && line->isVisible());
    QTest::keyClicks(line, "nothing has that name");
    QTest::keyClick(line, Qt::Key_Return);
    expectNoFlaws(*window);
}

void tst_DialogLooks::showControl(const char *basicType, const QVariant &value)
{
    const SclTemplateStore templates;
    PhysicalDevice &device = *m_fixture.device;
    DataAttribute *position = device.findTag("BAYCTRL/XCBR1$ST$Pos$stVal");
    DataAttribute *command = device.findTag("BAYCTRL/XCBR1$CO$Pos$Oper$ctlVal");
    const DataAttribute wasPosition = *position;
    const DataAttribute wasCommand = *command;
    for (DataAttribute *attribute : {position, command}) {
        attribute->basicType = basicType;
        attribute->value = value;
    }
    IEDModel model(const_cast<SclTemplateStore *>(&templates));
    model.setDevice(&device);
    const IEDNode *node =
        IEDModel::nodeAt(model.indexForReference("BAYCTRL/XCBR1$ST$Pos$stVal"))->parent;
    ControlCo dialog(node, &templates, templates.entries("Check"), templates.entries("orCat"),
                     false, nullptr);
    expectNoFlaws(dialog);
    *position = wasPosition;
    *command = wasCommand;
}

void tst_DialogLooks::aControlByListIsShownWhole()
{
    showControl("Dbpos", 2);
}

void tst_DialogLooks::aControlByNumberIsShownWhole()
{
    showControl("INT32", -2147483647);
}

void tst_DialogLooks::thePickerOfMembersIsShownWhole()
{
    DatasetSelectWidget dialog(nullptr);
    dialog.setDevice(m_fixture.device.get());
    dialog.findChild<QTreeWidget *>()->expandAll();
    expectNoFlaws(dialog);
}

void tst_DialogLooks::theFileServiceIsShownWhole()
{
    MMSFileEntry file;
    file.name = "FRA00017.cfg";
    file.size = 1'234'567;
    file.lastModified = 1'715'675'467;
    m_fixture.service->fileEntries = {file};
    FileServiceDialog dialog(BrowserFixture::driverNo, BrowserFixture::deviceNo, &m_fixture.context,
                             nullptr);
    expectNoFlaws(dialog);
}

void tst_DialogLooks::showReportControl(bool enabled)
{
    ReportBlock &block = m_fixture.service->reportBlock;
    block.clientRptId = "BAY1E1/Positions";
    block.rptId = block.clientRptId;
    block.clientDataSet = "Positions";
    block.datSet = "Positions";
    block.reference = "LLN0$BR$brcbPositions01";
    block.intgPd = 2'000'000'000;
    block.bufTm = 2'000'000'000;
    block.confRev = 2'000'000'000;
    block.rptEna = enabled;
    ReportControl dialog(BrowserFixture::deviceNo, 0, &m_controller, nullptr);
    dialog.setReportName("BAYCTRL", block.reference, {"Positions", "Interlocking"});
    QVERIFY(dialog.init());
    expectNoFlaws(dialog);
}

void tst_DialogLooks::anEnabledReportBlockIsShownWhole()
{
    showReportControl(true);
}

void tst_DialogLooks::aDisabledReportBlockIsShownWhole()
{
    showReportControl(false);
}

void tst_DialogLooks::anOfflineReportBlockIsShownWhole()
{
    stReportControlBlock block;
    block.name = "brcbPositions01";
    block.rptId = "BAY1E1/Positions";
    block.datSet = "Positions";
    block.intgPd = 2'000'000'000;
    ReportControl dialog(block, nullptr);
    expectNoFlaws(dialog);
}

void tst_DialogLooks::theSettingGroupsAreShownWhole()
{
    SGCB &block = m_fixture.service->settingGroupBlock;
    block.name = "SGCB";
    block.numOfSG = 12;
    m_fixture.service->settings["SG"] = {{"PTOC1$SG$StrVal$setMag$f", 480.0},
                                         {"PTOC1$SG$OpDlTmms$setVal", 40}};
    SGCBDialog dialog(&m_controller, nullptr);
    QVERIFY(dialog.initSGCB(BrowserFixture::deviceNo, "BAYCTRL"));
    const auto *rows = dialog.findChild<QTreeWidget *>();
    QTRY_COMPARE(rows->topLevelItemCount(), 2);
    expectNoFlaws(dialog);
}

void tst_DialogLooks::offlineSettingGroupsAreShownWhole()
{
    OfflineSGCB dialog(nullptr);
    dialog.setValues(12, 10);
    expectNoFlaws(dialog);
}

void tst_DialogLooks::thePickerOfAConstraintIsShownWhole()
{
    SelectFCDialog dialog(nullptr);
    dialog.setFCList({"MX", "ST", "CF"});
    expectNoFlaws(dialog);
}

QTEST_MAIN(tst_DialogLooks)
#include "tst_dialoglooks.moc"
