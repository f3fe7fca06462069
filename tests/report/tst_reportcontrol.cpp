// SPDX-License-Identifier: Apache-2.0
#include "report/reportcontrol.h"

#include "support/modaldriver.h"
#include "support/recordingdriverservice.h"

#include <remoteclient/iec61850controllerinterface.h>

#include <QtCore/QTranslator>
#include <QtGui/QAccessible>
#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

#include <memory>

using Call = RecordingDriverService::Call;

namespace {

constexpr int deviceNo = 17;
const QString address = QStringLiteral("tst_reportcontrol");
const QString ldName = QStringLiteral("BCU1LD0");
const QString bufferedName = QStringLiteral("LLN0$BR$brcbMX01");
const QString unbufferedName = QStringLiteral("LLN0$RP$urcbST01");
const QString dataSetA = QStringLiteral("LLN0$dsMeasurands");
const QString dataSetB = QStringLiteral("LLN0$dsStatus");

const char *const triggerBoxes[] = {"useDataChange", "useQualityChange", "useDataUpdate",
                                    "useIntegrity", "useGI"};
/// In the order of their positions in the bit string, from 1.
const char *const optionalBoxes[] = {"useSequenceNumber",
                                     "useTimeStamp",
                                     "useReasonForInclusion",
                                     "useDataSetName",
                                     "useDataReference",
                                     "useBufferOverflow",
                                     "useEntryID",
                                     "useConfigurationRevision"};
const char *const settingButtons[] = {"rptidChange",  "datasetChange",   "triggerChange",
                                      "optionChange", "integrityChange", "bufferTimeChange",
                                      "reservChange"};
const char *const allButtons[] = {
    "rptidChange",      "datasetChange", "triggerChange", "optionChange", "integrityChange",
    "bufferTimeChange", "reservChange",  "purge",         "GI",           "enableReport"};

template <typename Widget>
Widget *find(const QWidget &dialog, const char *name)
{
    auto *const widget = dialog.findChild<Widget *>(QLatin1String(name));
    if (!widget)
        qFatal("The dialog has no %s", name);
    return widget;
}

QString textOf(const QWidget *widget)
{
    return widget->property("text").toString();
}

/// The block as the simulated device has it. Its reference is not the name that the dialog is
/// given, so that tests see which of the two a call uses.
ReportBlock deviceBlock(const QString &reference = QStringLiteral("LLN0$BR$theDeviceNamesItSo"))
{
    ReportBlock block;
    block.clientRptId = QStringLiteral("clientReport");
    block.clientDataSet = QStringLiteral("clientDataSet");
    block.owner = QStringLiteral("10.0.0.9");
    block.rptId = QStringLiteral("report 1");
    block.reference = reference;
    block.trgOps = 0x44;
    block.intgPd = 30000;
    block.datSet = dataSetB;
    block.confRev = 20301;
    block.optFldsText = QStringLiteral("0110010110");
    block.bufTm = 500;
    return block;
}

/// Everything that the form shows of a block.
QStringList shownBy(const QWidget &dialog)
{
    QStringList shown;
    for (const char *name : {"control", "rptIdClient", "dataSetClient"})
        shown << find<QLabel>(dialog, name)->text();
    shown << find<QLineEdit>(dialog, "name")->text()
          << find<QComboBox>(dialog, "dataSet")->currentText();
    for (const char *name : {"periodSec", "bufferTime", "confRevision"})
        shown << QString::number(find<QSpinBox>(dialog, name)->value());
    for (const QCheckBox *box : dialog.findChildren<QCheckBox *>())
        shown << box->objectName() + (box->isChecked() ? QStringLiteral(" on") : QString());
    for (const QPushButton *button : dialog.findChildren<QPushButton *>())
        shown << button->text() + (button->isEnabled() ? QStringLiteral(" enabled") : QString());
    return shown;
}

void setChecked(const QWidget &dialog, const char *name, bool checked)
{
    auto *const box = find<QCheckBox>(dialog, name);
    if (box->isChecked() != checked)
        QTest::keyClick(box, Qt::Key_Space);
}

void replaceText(QWidget *editor, const QString &text)
{
    editor->setFocus();
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, text);
}

QStringList setNames(const QWidget &dialog, const char *const (&boxes)[8])
{
    QStringList names;
    for (const char *box : boxes) {
        if (find<QCheckBox>(dialog, box)->isChecked())
            names << QLatin1String(box);
    }
    return names;
}

/// The texts of the form in another language.
class OtherLanguage : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        if (qstrcmp(context, "ReportControl") != 0)
            return {};
        if (qstrcmp(sourceText, "Enable") == 0)
            return QStringLiteral("Disable");
        if (qstrcmp(sourceText, "Disable") == 0)
            return QStringLiteral("Sperren");
        if (qstrcmp(sourceText, "Cannot connect to driver") == 0)
            return QStringLiteral("Treiber nicht erreichbar");
        if (qstrcmp(sourceText, "Fail") == 0)
            return QStringLiteral("Fehler");
        return {};
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_ReportControl : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theFormBearsTheTextsThatHostsKnow_data();
    void theFormBearsTheTextsThatHostsKnow();
    void theFormBearsItsTitlesAndLimitsItsNumbers();
    void theTitleBarHasNoHelpButton();
    void theMethodsAreInTheirOrder();

    void openingReadsTheBlockByItsName();
    void openingShowsTheBlock();
    void aBlockThatCannotBeReadIsReported_data();
    void aBlockThatCannotBeReadIsReported();
    void anUnbufferedBlockCannotBePurged_data();
    void anUnbufferedBlockCannotBePurged();
    void aBufferedBlockKeepsItsControls();
    void dataSetsAreOfferedInOrderWithoutAChoice();
    void aDataSetThatIsNotOfferedLeavesTheListEmpty_data();
    void aDataSetThatIsNotOfferedLeavesTheListEmpty();

    void anEnabledBlockCanBeInterrogatedAndDisabled();
    void anEnabledBlockKeepsItsChangeButtonsAsTheyWere();
    void aDisabledBlockCanBeChanged();
    void thePurgeButtonIgnoresTheStateOfABlockNamedInUpperCase();
    void thePurgeButtonFollowsTheStateOfABlockNamedInLowerCase();
    void eachUpdateTellsWhetherTheBlockIsEnabled();
    void triggerOptionsAreShown_data();
    void triggerOptionsAreShown();
    void optionalFieldsAreShown_data();
    void optionalFieldsAreShown();
    void boxesOfBufferedBlocksKeepTheirStateForOthers();

    void aChangeButtonWritesItsAttributeAndReadsTheBlockAgain_data();
    void aChangeButtonWritesItsAttributeAndReadsTheBlockAgain();
    void aClearedReservationIsWrittenAsZero();
    void optionalFieldsOfBufferedBlocksAreWrittenByReference_data();
    void optionalFieldsOfBufferedBlocksAreWrittenByReference();
    void aTypedDataSetIsWrittenAsTyped();
    void enablingSendsTheWholeBlock();
    void disablingWritesOnlyTheEnableFlag();
    void enablingComparesTheTranslatedText();
    void aFailedWriteIsReportedAndChangesNothing_data();
    void aFailedWriteIsReportedAndChangesNothing();
    void aFailedEnableIsReportedAndChangesNothing_data();
    void aFailedEnableIsReportedAndChangesNothing();
    void aFailedReadAfterAChangeIsSilent();
    void theFormShowsTheDeviceAfterAChange();
    void anUnreachableDriverIsReportedInTheOperatorsLanguage();
    void aButtonActsOnRelease();
    void theBusyCursorIsShownDuringACall();

    void theEnterKeyChangesNothing_data();
    void theEnterKeyChangesNothing();
    void theConfigurationRevisionCannotBeChanged();
    void theTabKeyFollowsTheReadingOrder();
    void everyEntryFieldHasAnAccessibleName();
    void closeEndsTheDialog();
    void aDialogWithoutABlockTakesEveryButton();
    void methodsWithoutEffectMakeNoCall();
    void textsOfTheDeviceAreShownLiterally();
    void aLongTextOfTheDeviceIsWholeInItsToolTip();

private:
    std::unique_ptr<ReportControl> opened(const QString &rptName = bufferedName);
    QList<Call> callsOfPressing(ReportControl &dialog, const char *button);

    std::shared_ptr<RecordingDriverService> m_service;
    std::unique_ptr<DriverServiceRegistration> m_registration;
    std::unique_ptr<IEC61850ControllerInterface> m_controller;
};

void tst_ReportControl::init()
{
    m_service = std::make_shared<RecordingDriverService>();
    m_service->reportBlock = deviceBlock();
    m_registration = std::make_unique<DriverServiceRegistration>(address, m_service);
    m_controller = std::make_unique<IEC61850ControllerInterface>();
    m_controller->setLocation(address, 1);
}

void tst_ReportControl::cleanup()
{
    m_controller.reset();
    m_registration.reset();
    m_service.reset();
}

/// A dialog as the browser opens it, on the screen, its first read forgotten.
std::unique_ptr<ReportControl> tst_ReportControl::opened(const QString &rptName)
{
    auto dialog = std::make_unique<ReportControl>(deviceNo, 0, m_controller.get(), nullptr);
    dialog->setReportName(ldName, rptName, {dataSetA, dataSetB});
    if (!dialog->init())
        qFatal("The block was not read");
    dialog->show();
    m_service->forgetCalls();
    return dialog;
}

QList<Call> tst_ReportControl::callsOfPressing(ReportControl &dialog, const char *button)
{
    m_service->forgetCalls();
    QTest::mouseClick(find<QPushButton>(dialog, button), Qt::LeftButton);
    return m_service->calls();
}

void tst_ReportControl::theFormBearsTheTextsThatHostsKnow_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    const std::pair<const char *, const char *> texts[] = {
        {"label_2", "Report Name : "},
        {"control", "...."},
        {"enableReport", "Enable"},
        {"purge", "PurgeBuf"},
        {"GI", "GI"},
        {"label", "Report Id :"},
        {"name", ""},
        {"rptidChange", "Change"},
        {"label_11", "Client: "},
        {"rptIdClient", "...."},
        {"label_4", "DataSet :"},
        {"datasetChange", "Change"},
        {"label_3", "Client: "},
        {"dataSetClient", "...."},
        {"useDataChange", "Data Change"},
        {"useQualityChange", "Quality Change"},
        {"useDataUpdate", "Data Update"},
        {"useIntegrity", "Integrity "},
        {"useGI", "GI"},
        {"triggerChange", "Change"},
        {"useEntryID", "Entry ID"},
        {"useConfigurationRevision", "Configuration Revision"},
        {"useTimeStamp", "Time Stamp"},
        {"useDataReference", "Data Reference"},
        {"useBufferOverflow", "Buffer Overflow"},
        {"useDataSetName", "Data Set Name"},
        {"useReasonForInclusion", "Reason for Inclusion"},
        {"subSequence", "Sub Sequence"},
        {"useSequenceNumber", "Sequence Number"},
        {"optionChange", "Change"},
        {"label_6", "Integrity Period:"},
        {"label_7", "msec"},
        {"integrityChange", "Change"},
        {"label_5", "Buffer Time:"},
        {"label_10", "msec"},
        {"bufferTimeChange", "Change"},
        {"label_8", "Configuration Revision:"},
        {"reserved", "Reserved"},
        {"reservChange", "Change"},
        {"close", "Close"},
    };
    for (const auto &[name, text] : texts)
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(text);
}

void tst_ReportControl::theFormBearsTheTextsThatHostsKnow()
{
    QFETCH(QString, name);
    const ReportControl dialog(deviceNo, 0, m_controller.get(), nullptr);
    const auto *const widget = dialog.findChild<QWidget *>(name);
    QVERIFY(widget);
    QTEST(textOf(widget), "text");
}

void tst_ReportControl::theFormBearsItsTitlesAndLimitsItsNumbers()
{
    const ReportControl dialog(deviceNo, 0, m_controller.get(), nullptr);
    QCOMPARE(dialog.objectName(), QStringLiteral("ReportControl"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Report Control Block"));
    QCOMPARE(dialog.size(), QSize(548, 470));
    const std::pair<const char *, const char *> groups[] = {{"groupBox", "General"},
                                                            {"groupBox_2", "Trigger Option"},
                                                            {"groupBox_3", "Optional Items"},
                                                            {"groupBox_4", "Etc"}};
    for (const auto &[name, title] : groups)
        QCOMPARE(find<QGroupBox>(dialog, name)->title(), QString::fromLatin1(title));

    QVERIFY(find<QComboBox>(dialog, "dataSet")->isEditable());
    QVERIFY(find<QCheckBox>(dialog, "subSequence")->isHidden());
    const std::pair<const char *, int> limits[] = {
        {"periodSec", 100000}, {"bufferTime", 99999}, {"confRevision", 999999}};
    for (const auto &[name, maximum] : limits) {
        QCOMPARE(find<QSpinBox>(dialog, name)->minimum(), 0);
        QCOMPARE(find<QSpinBox>(dialog, name)->maximum(), maximum);
    }
    QVERIFY(find<QSpinBox>(dialog, "confRevision")->isReadOnly());
    QCOMPARE(find<QSpinBox>(dialog, "confRevision")->singleStep(), 0);
}

void tst_ReportControl::theTitleBarHasNoHelpButton()
{
    const ReportControl dialog(deviceNo, 0, m_controller.get(), nullptr);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
}

void tst_ReportControl::theMethodsAreInTheirOrder()
{
    const QMetaObject &meta = ReportControl::staticMetaObject;
    QStringList methods;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
        methods << QString::fromLatin1(meta.method(index).methodSignature());
    const QStringList expected = {
        QStringLiteral("reportEnableStateChanged(QString,QString,bool)"),
        QStringLiteral("init()"),
        QStringLiteral("initUi()"),
        QStringLiteral("setReportName(QString,QString,QStringList)"),
        QStringLiteral("changeValue()"),
        QStringLiteral("getList()"),
        QStringLiteral("updateBlock(ReportBlock)"),
        QStringLiteral("selectReportControl(int)"),
        QStringLiteral("reportEnabled()"),
        QStringLiteral("updateOffline(stReportControlBlock)"),
    };
    QCOMPARE(methods, expected);
}

void tst_ReportControl::openingReadsTheBlockByItsName()
{
    ReportControl dialog(deviceNo, 0, m_controller.get(), nullptr);
    dialog.setReportName(ldName, bufferedName, {});
    QVERIFY(m_service->calls().isEmpty());

    QVERIFY(dialog.init());
    QCOMPARE(m_service->operations(), QStringList{QStringLiteral("getBRCBValues")});
    const Call read = m_service->calls().first();
    QCOMPARE(read.deviceNo, static_cast<long>(deviceNo));
    QCOMPARE(read.arguments, (QVariantList{ldName, bufferedName}));
}

void tst_ReportControl::openingShowsTheBlock()
{
    const auto dialog = opened();
    QCOMPARE(find<QLabel>(*dialog, "control")->text(), bufferedName);
    QCOMPARE(find<QLabel>(*dialog, "rptIdClient")->text(), QStringLiteral("clientReport"));
    QCOMPARE(find<QLabel>(*dialog, "dataSetClient")->text(), QStringLiteral("clientDataSet"));
    QCOMPARE(find<QLineEdit>(*dialog, "name")->text(), QStringLiteral("report 1"));
    QCOMPARE(find<QComboBox>(*dialog, "dataSet")->currentIndex(), 1);
    QCOMPARE(find<QComboBox>(*dialog, "dataSet")->currentText(), dataSetB);
    QCOMPARE(find<QSpinBox>(*dialog, "periodSec")->value(), 30000);
    QCOMPARE(find<QSpinBox>(*dialog, "bufferTime")->value(), 500);
    QCOMPARE(find<QSpinBox>(*dialog, "confRevision")->value(), 20301);
    QVERIFY(!find<QCheckBox>(*dialog, "reserved")->isChecked());
    QVERIFY(!dialog->reportEnabled());

    ReportBlock reserved = deviceBlock();
    reserved.resv = true;
    dialog->updateBlock(reserved);
    QVERIFY(find<QCheckBox>(*dialog, "reserved")->isChecked());
}

void tst_ReportControl::aBlockThatCannotBeReadIsReported_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("shown");
    QTest::newRow("driver unreachable")
        << 10001 << QStringLiteral("anything") << QStringLiteral("Cannot connect to driver");
    QTest::newRow("refused") << 1 << QStringLiteral("Access denied: <b>%1</b>")
                             << QStringLiteral("Access denied: <b>%1</b>");
    QTest::newRow("without a text") << 2 << QString() << QString();
}

void tst_ReportControl::aBlockThatCannotBeReadIsReported()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    m_service->setAnswer(QStringLiteral("getBRCBValues"), static_cast<OperationResult>(result),
                         error);
    ReportControl dialog(deviceNo, 0, m_controller.get(), nullptr);
    dialog.setReportName(ldName, bufferedName, {dataSetA});
    QSignalSpy stateChanged(&dialog, &ReportControl::reportEnableStateChanged);

    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    QVERIFY(!dialog.init());
    QVERIFY(driver.finished());
    QCOMPARE(message.title, QStringLiteral("Fail"));
    QTEST(message.text, "shown");
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(message.parent, static_cast<QWidget *>(&dialog));
    QCOMPARE(stateChanged.count(), 0);
    QCOMPARE(find<QLabel>(dialog, "rptIdClient")->text(), QStringLiteral("...."));
    QVERIFY(!dialog.reportEnabled());
}

void tst_ReportControl::anUnbufferedBlockCannotBePurged_data()
{
    QTest::addColumn<QString>("rptName");
    QTest::newRow("unbuffered") << unbufferedName;
    QTest::newRow("name that begins like the mark") << QStringLiteral("LLN0$RP$BRmx01");
    QTest::newRow("lower case") << bufferedName.toLower();
    QTest::newRow("empty") << QString();
}

void tst_ReportControl::anUnbufferedBlockCannotBePurged()
{
    QFETCH(QString, rptName);
    m_service->reportBlock.reference = unbufferedName;
    const auto dialog = opened(rptName);
    QVERIFY(!find<QPushButton>(*dialog, "purge")->isEnabled());
    QVERIFY(!find<QCheckBox>(*dialog, "useBufferOverflow")->isEnabled());
    QVERIFY(!find<QCheckBox>(*dialog, "useEntryID")->isEnabled());
    QVERIFY(callsOfPressing(*dialog, "purge").isEmpty());

    for (const char *box : optionalBoxes)
        setChecked(*dialog, box, true);
    const QList<Call> calls = callsOfPressing(*dialog, "optionChange");
    QCOMPARE(calls.first().arguments.last().toByteArray(), QByteArray::fromHex("7c80"));
}

void tst_ReportControl::aBufferedBlockKeepsItsControls()
{
    const auto dialog = opened();
    QVERIFY(find<QPushButton>(*dialog, "purge")->isEnabled());
    QVERIFY(find<QCheckBox>(*dialog, "useBufferOverflow")->isEnabled());
    QVERIFY(find<QCheckBox>(*dialog, "useEntryID")->isEnabled());
}

void tst_ReportControl::dataSetsAreOfferedInOrderWithoutAChoice()
{
    ReportControl dialog(deviceNo, 0, m_controller.get(), nullptr);
    const QStringList names = {QStringLiteral("z"), QStringLiteral("a"), QStringLiteral("m")};
    dialog.setReportName(ldName, bufferedName, names);
    const auto *const list = find<QComboBox>(dialog, "dataSet");
    QStringList offered;
    for (int index = 0; index < list->count(); ++index)
        offered << list->itemText(index);
    QCOMPARE(offered, names);
    QCOMPARE(list->currentIndex(), -1);
    QCOMPARE(list->currentText(), QString());
}

void tst_ReportControl::aDataSetThatIsNotOfferedLeavesTheListEmpty_data()
{
    QTest::addColumn<QString>("datSet");
    QTest::newRow("unknown") << QStringLiteral("LLN0$dsOther");
    QTest::newRow("other case") << dataSetB.toUpper();
    QTest::newRow("part of a name") << dataSetB.chopped(1);
    QTest::newRow("none") << QString();
}

void tst_ReportControl::aDataSetThatIsNotOfferedLeavesTheListEmpty()
{
    QFETCH(QString, datSet);
    const auto dialog = opened();
    ReportBlock block = deviceBlock();
    block.datSet = datSet;
    dialog->updateBlock(block);
    QCOMPARE(find<QComboBox>(*dialog, "dataSet")->currentIndex(), -1);
    QCOMPARE(find<QComboBox>(*dialog, "dataSet")->currentText(), QString());
}

void tst_ReportControl::anEnabledBlockCanBeInterrogatedAndDisabled()
{
    m_service->reportBlock.rptEna = true;
    const auto dialog = opened();
    QCOMPARE(find<QPushButton>(*dialog, "enableReport")->text(), QStringLiteral("Disable"));
    QVERIFY(find<QPushButton>(*dialog, "GI")->isEnabled());
    QVERIFY(!find<QCheckBox>(*dialog, "reserved")->isEnabled());
    QVERIFY(dialog->reportEnabled());
}

void tst_ReportControl::anEnabledBlockKeepsItsChangeButtonsAsTheyWere()
{
    const auto dialog = opened();
    find<QPushButton>(*dialog, "triggerChange")->setEnabled(false);
    ReportBlock block = deviceBlock();
    block.rptEna = true;
    dialog->updateBlock(block);
    for (const char *name : settingButtons) {
        const bool wasEnabled = qstrcmp(name, "triggerChange") != 0;
        QCOMPARE(find<QPushButton>(*dialog, name)->isEnabled(), wasEnabled);
    }
}

void tst_ReportControl::aDisabledBlockCanBeChanged()
{
    const auto dialog = opened();
    for (const char *name : settingButtons)
        find<QPushButton>(*dialog, name)->setEnabled(false);
    find<QCheckBox>(*dialog, "reserved")->setEnabled(false);
    dialog->updateBlock(deviceBlock());
    for (const char *name : settingButtons)
        QVERIFY2(find<QPushButton>(*dialog, name)->isEnabled(), name);
    QVERIFY(find<QCheckBox>(*dialog, "reserved")->isEnabled());
    QVERIFY(!find<QPushButton>(*dialog, "GI")->isEnabled());
    QCOMPARE(find<QPushButton>(*dialog, "enableReport")->text(), QStringLiteral("Enable"));
}

void tst_ReportControl::thePurgeButtonIgnoresTheStateOfABlockNamedInUpperCase()
{
    const auto dialog = opened();
    auto *const purge = find<QPushButton>(*dialog, "purge");
    ReportBlock block = deviceBlock();
    for (const bool purgeable : {true, false}) {
        purge->setEnabled(purgeable);
        for (const bool enabled : {true, false}) {
            block.rptEna = enabled;
            dialog->updateBlock(block);
            QCOMPARE(purge->isEnabled(), purgeable);
        }
    }
}

void tst_ReportControl::thePurgeButtonFollowsTheStateOfABlockNamedInLowerCase()
{
    const auto dialog = opened(QStringLiteral("LLN0$br$brcbMX01"));
    const auto *const purge = find<QPushButton>(*dialog, "purge");
    QVERIFY(!purge->isEnabled());
    ReportBlock block = deviceBlock();
    block.rptEna = true;
    dialog->updateBlock(block);
    QVERIFY(purge->isEnabled());
    block.rptEna = false;
    dialog->updateBlock(block);
    QVERIFY(!purge->isEnabled());
}

void tst_ReportControl::eachUpdateTellsWhetherTheBlockIsEnabled()
{
    ReportControl dialog(deviceNo, 0, m_controller.get(), nullptr);
    QSignalSpy stateChanged(&dialog, &ReportControl::reportEnableStateChanged);
    dialog.setReportName(ldName, bufferedName, {});
    QCOMPARE(stateChanged.count(), 0);
    QVERIFY(dialog.init());
    QCOMPARE(stateChanged.count(), 1);
    QCOMPARE(stateChanged.takeFirst(), (QVariantList{ldName, bufferedName, false}));

    ReportBlock block = deviceBlock();
    block.rptEna = true;
    dialog.updateBlock(block);
    dialog.updateBlock(block);
    QCOMPARE(stateChanged.count(), 2);
    QCOMPARE(stateChanged.takeFirst(), (QVariantList{ldName, bufferedName, true}));
    // The signal alone speaks of the block that is shown; the state is that of the last read.
    QVERIFY(!dialog.reportEnabled());
}

void tst_ReportControl::triggerOptionsAreShown_data()
{
    QTest::addColumn<int>("trgOps");
    QTest::addColumn<QString>("box");
    QTest::newRow("data change") << 0x40 << QStringLiteral("useDataChange");
    QTest::newRow("quality change") << 0x20 << QStringLiteral("useQualityChange");
    QTest::newRow("data update") << 0x10 << QStringLiteral("useDataUpdate");
    QTest::newRow("integrity") << 0x08 << QStringLiteral("useIntegrity");
    QTest::newRow("general interrogation") << 0x04 << QStringLiteral("useGI");
    QTest::newRow("reserved bits") << 0x83 << QString();
}

void tst_ReportControl::triggerOptionsAreShown()
{
    QFETCH(int, trgOps);
    QFETCH(QString, box);
    const auto dialog = opened();
    ReportBlock block = deviceBlock();
    block.trgOps = static_cast<quint8>(trgOps);
    dialog->updateBlock(block);
    for (const char *name : triggerBoxes)
        QCOMPARE(find<QCheckBox>(*dialog, name)->isChecked(), box == QLatin1String(name));
}

void tst_ReportControl::optionalFieldsAreShown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("boxes");
    for (int position = 1; position <= 8; ++position) {
        QString text = QStringLiteral("000000000");
        text[position] = QLatin1Char('1');
        QTest::newRow(optionalBoxes[position - 1])
            << text << QStringList{QLatin1String(optionalBoxes[position - 1])};
    }
    QTest::newRow("reserved bit and segmentation") << QStringLiteral("1000000001") << QStringList();
    QTest::newRow("empty text") << QString() << QStringList();
    QTest::newRow("short text") << QStringLiteral("011")
                                << QStringList{QStringLiteral("useSequenceNumber"),
                                               QStringLiteral("useTimeStamp")};
}

void tst_ReportControl::optionalFieldsAreShown()
{
    QFETCH(QString, text);
    const auto dialog = opened();
    for (const char *box : optionalBoxes)
        setChecked(*dialog, box, true);
    ReportBlock block = deviceBlock();
    block.optFldsText = text;
    dialog->updateBlock(block);
    QTEST(setNames(*dialog, optionalBoxes), "boxes");
}

void tst_ReportControl::boxesOfBufferedBlocksKeepTheirStateForOthers()
{
    const auto dialog = opened(unbufferedName);
    ReportBlock block = deviceBlock(unbufferedName);
    for (const bool checked : {true, false}) {
        find<QCheckBox>(*dialog, "useBufferOverflow")->setChecked(checked);
        find<QCheckBox>(*dialog, "useEntryID")->setChecked(checked);
        for (const char *text : {"000000000", "111111111"}) {
            block.optFldsText = QString::fromLatin1(text);
            dialog->updateBlock(block);
            QCOMPARE(find<QCheckBox>(*dialog, "useBufferOverflow")->isChecked(), checked);
            QCOMPARE(find<QCheckBox>(*dialog, "useEntryID")->isChecked(), checked);
        }
    }
}

void tst_ReportControl::aChangeButtonWritesItsAttributeAndReadsTheBlockAgain_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QByteArray>("value");
    const auto row = [](const char *button, const char *attribute, const QByteArray &value) {
        QTest::newRow(button) << QByteArray(button) << QString::fromLatin1(attribute) << value;
    };
    row("rptidChange", "RptID", QByteArray::fromHex("c3a96e"));
    row("datasetChange", "DatSet", "LLN0$dsMeasurands");
    row("triggerChange", "TrgOps", QByteArray::fromHex("38"));
    row("optionChange", "OptFlds", QByteArray::fromHex("4f80"));
    row("integrityChange", "IntgPd", QByteArray::fromHex("000003e8"));
    row("bufferTimeChange", "BufTm", QByteArray::fromHex("0001869f"));
    row("reservChange", "Resv", QByteArray::fromHex("01"));
    row("purge", "PurgeBuf", QByteArray::fromHex("01"));
    row("GI", "GI", QByteArray::fromHex("01"));
}

void tst_ReportControl::aChangeButtonWritesItsAttributeAndReadsTheBlockAgain()
{
    QFETCH(QByteArray, button);
    QFETCH(QString, attribute);
    QFETCH(QByteArray, value);
    const auto dialog = opened();
    find<QLineEdit>(*dialog, "name")->setText(QStringLiteral("\u00e9n"));
    QTest::keyClick(find<QComboBox>(*dialog, "dataSet"), Qt::Key_Up);
    const bool triggers[] = {false, true, true, true, false};
    for (int i = 0; i < 5; ++i)
        setChecked(*dialog, triggerBoxes[i], triggers[i]);
    const bool options[] = {true, false, false, true, true, true, true, true};
    for (int i = 0; i < 8; ++i)
        setChecked(*dialog, optionalBoxes[i], options[i]);
    replaceText(find<QSpinBox>(*dialog, "periodSec"), QStringLiteral("1000"));
    replaceText(find<QSpinBox>(*dialog, "bufferTime"), QStringLiteral("99999"));
    setChecked(*dialog, "reserved", true);
    // Interrogation is only for an enabled block.
    find<QPushButton>(*dialog, "GI")->setEnabled(true);

    const QList<Call> calls = callsOfPressing(*dialog, button.constData());
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.first().operation, QStringLiteral("writeValue"));
    QCOMPARE(calls.first().deviceNo, static_cast<long>(deviceNo));
    QCOMPARE(calls.first().arguments,
             (QVariantList{ldName, deviceBlock().reference, attribute, value}));
    QCOMPARE(calls.last().operation, QStringLiteral("getBRCBValues"));
    QCOMPARE(calls.last().deviceNo, static_cast<long>(deviceNo));
    QCOMPARE(calls.last().arguments, (QVariantList{ldName, deviceBlock().reference}));
    QVERIFY(dialog->isVisible());
}

void tst_ReportControl::aClearedReservationIsWrittenAsZero()
{
    m_service->reportBlock.resv = true;
    const auto dialog = opened();
    setChecked(*dialog, "reserved", false);
    QCOMPARE(callsOfPressing(*dialog, "reservChange").first().arguments.mid(2),
             (QVariantList{QStringLiteral("Resv"), QByteArray::fromHex("00")}));
}

void tst_ReportControl::optionalFieldsOfBufferedBlocksAreWrittenByReference_data()
{
    QTest::addColumn<QString>("rptName");
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QByteArray>("value");
    const QByteArray with = QByteArray::fromHex("7f80");
    const QByteArray without = QByteArray::fromHex("7c80");
    QTest::newRow("buffered") << bufferedName << bufferedName << with;
    QTest::newRow("unbuffered") << unbufferedName << unbufferedName << without;
    QTest::newRow("buffered by reference only")
        << unbufferedName << QStringLiteral("LLN0$BRcb") << with;
    QTest::newRow("buffered by name only") << bufferedName << unbufferedName << without;
    QTest::newRow("reference in lower case") << bufferedName << bufferedName.toLower() << without;
}

void tst_ReportControl::optionalFieldsOfBufferedBlocksAreWrittenByReference()
{
    QFETCH(QString, rptName);
    QFETCH(QString, reference);
    QFETCH(QByteArray, value);
    m_service->reportBlock.reference = reference;
    const auto dialog = opened(rptName);
    for (const char *box : optionalBoxes)
        find<QCheckBox>(*dialog, box)->setChecked(true);
    const QList<Call> written = callsOfPressing(*dialog, "optionChange");
    QCOMPARE(written.first().arguments,
             (QVariantList{ldName, reference, QStringLiteral("OptFlds"), value}));

    for (const char *box : optionalBoxes)
        find<QCheckBox>(*dialog, box)->setChecked(true);
    const QList<Call> enabled = callsOfPressing(*dialog, "enableReport");
    const auto block = enabled.first().arguments.last().value<ReportBlock>();
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(block.optFlds), 2), value);
}

void tst_ReportControl::aTypedDataSetIsWrittenAsTyped()
{
    for (const QString &typed :
         {dataSetB.toUpper(), dataSetB.chopped(2), QStringLiteral("@newOne"), QString()}) {
        const auto dialog = opened();
        auto *const list = find<QComboBox>(*dialog, "dataSet");
        list->lineEdit()->setFocus();
        list->lineEdit()->selectAll();
        QTest::keyClick(list->lineEdit(), Qt::Key_Delete);
        QTest::keyClicks(list->lineEdit(), typed);
        QTest::keyClick(list->lineEdit(), Qt::Key_Return);
        find<QPushButton>(*dialog, "datasetChange")->setFocus();
        QTest::keyClick(find<QPushButton>(*dialog, "datasetChange"), Qt::Key_Space);

        const QList<Call> calls = m_service->calls();
        QCOMPARE(calls.size(), 2);
        QCOMPARE(calls.first().arguments.mid(2),
                 (QVariantList{QStringLiteral("DatSet"), typed.toUtf8()}));
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->currentText(), dataSetB);
    }
}

void tst_ReportControl::enablingSendsTheWholeBlock()
{
    const auto dialog = opened();
    replaceText(find<QLineEdit>(*dialog, "name"), QStringLiteral("my report"));
    replaceText(find<QSpinBox>(*dialog, "periodSec"), QStringLiteral("2000"));
    replaceText(find<QSpinBox>(*dialog, "bufferTime"), QStringLiteral("75"));
    QTest::keyClick(find<QComboBox>(*dialog, "dataSet"), Qt::Key_Up);
    setChecked(*dialog, "useQualityChange", true);
    setChecked(*dialog, "useEntryID", false);
    setChecked(*dialog, "reserved", true);

    ReportBlock enabledBlock = deviceBlock();
    enabledBlock.rptEna = true;
    m_service->reportBlock = enabledBlock;
    const QList<Call> calls = callsOfPressing(*dialog, "enableReport");
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.first().operation, QStringLiteral("enableReportBlock"));
    QCOMPARE(calls.first().deviceNo, static_cast<long>(deviceNo));
    QCOMPARE(
        calls.first().arguments.mid(0, 4),
        (QVariantList{ldName, deviceBlock().reference, QStringLiteral("my report"), QString()}));
    const auto sent = calls.first().arguments.at(4).value<ReportBlock>();
    QCOMPARE(sent.rptId, QStringLiteral("my report"));
    QCOMPARE(sent.datSet, dataSetA);
    QCOMPARE(sent.bufTm, 75);
    QCOMPARE(sent.trgOps, static_cast<quint8>(0x64));
    QCOMPARE(sent.intgPd, 2000);
    QCOMPARE(sent.optFlds[0], static_cast<quint8>(0x64));
    QCOMPARE(sent.optFlds[1], static_cast<quint8>(0x80));
    QCOMPARE(sent.clientRptId, QString());
    QCOMPARE(sent.clientDataSet, QString());
    QCOMPARE(sent.owner, QString());
    QCOMPARE(sent.reference, QString());
    QCOMPARE(sent.confRev, 0);
    QCOMPARE(sent.optFldsText, QString());
    QVERIFY(!sent.rptEna);
    QVERIFY(!sent.resv);

    QCOMPARE(calls.last().operation, QStringLiteral("getBRCBValues"));
    QCOMPARE(calls.last().arguments, (QVariantList{ldName, deviceBlock().reference}));
    QVERIFY(dialog->reportEnabled());
    QCOMPARE(find<QPushButton>(*dialog, "enableReport")->text(), QStringLiteral("Disable"));
}

void tst_ReportControl::disablingWritesOnlyTheEnableFlag()
{
    m_service->reportBlock.rptEna = true;
    const auto dialog = opened();
    m_service->reportBlock.rptEna = false;
    const QList<Call> calls = callsOfPressing(*dialog, "enableReport");
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.first().operation, QStringLiteral("writeValue"));
    QCOMPARE(calls.first().deviceNo, static_cast<long>(deviceNo));
    QCOMPARE(calls.first().arguments,
             (QVariantList{ldName, deviceBlock().reference, QStringLiteral("RptEna"),
                           QByteArray::fromHex("00")}));
    QCOMPARE(calls.last().operation, QStringLiteral("getBRCBValues"));
    QVERIFY(!dialog->reportEnabled());
    QCOMPARE(find<QPushButton>(*dialog, "enableReport")->text(), QStringLiteral("Enable"));
}

void tst_ReportControl::enablingComparesTheTranslatedText()
{
    // In this language the button of a disabled block reads what English says for the opposite.
    OtherLanguage language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    const auto dialog = opened();
    QCOMPARE(find<QPushButton>(*dialog, "enableReport")->text(), QStringLiteral("Disable"));
    m_service->reportBlock.rptEna = true;
    QCOMPARE(callsOfPressing(*dialog, "enableReport").first().operation,
             QStringLiteral("enableReportBlock"));
    QCOMPARE(find<QPushButton>(*dialog, "enableReport")->text(), QStringLiteral("Sperren"));
    QCOMPARE(callsOfPressing(*dialog, "enableReport").first().operation,
             QStringLiteral("writeValue"));
}

void tst_ReportControl::aFailedWriteIsReportedAndChangesNothing_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("shown");
    for (const char *button : allButtons) {
        if (qstrcmp(button, "enableReport") == 0)
            continue;
        QTest::addRow("%s, driver unreachable", button)
            << QByteArray(button) << 10001 << QStringLiteral("anything")
            << QStringLiteral("Cannot connect to driver");
        QTest::addRow("%s, refused", button)
            << QByteArray(button) << 1 << QStringLiteral("object-access-denied")
            << QStringLiteral("object-access-denied");
        QTest::addRow("%s, without a text", button)
            << QByteArray(button) << 77 << QString() << QString();
    }
}

void tst_ReportControl::aFailedWriteIsReportedAndChangesNothing()
{
    QFETCH(QByteArray, button);
    QFETCH(int, result);
    QFETCH(QString, error);
    const auto dialog = opened();
    replaceText(find<QLineEdit>(*dialog, "name"), QStringLiteral("not yet written"));
    find<QPushButton>(*dialog, "GI")->setEnabled(true);
    const QStringList before = shownBy(*dialog);
    QSignalSpy stateChanged(dialog.get(), &ReportControl::reportEnableStateChanged);
    m_service->setAnswer(QStringLiteral("writeValue"), static_cast<OperationResult>(result), error);

    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    const QList<Call> calls = callsOfPressing(*dialog, button.constData());
    QVERIFY(driver.finished());
    QCOMPARE(calls.size(), 1);
    QCOMPARE(message.title, QStringLiteral("Fail"));
    QTEST(message.text, "shown");
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(message.parent, static_cast<QWidget *>(dialog.get()));
    QCOMPARE(shownBy(*dialog), before);
    QCOMPARE(stateChanged.count(), 0);
}

void tst_ReportControl::aFailedEnableIsReportedAndChangesNothing_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("shown");
    for (const bool enabled : {false, true}) {
        const char *const what = enabled ? "disable" : "enable";
        QTest::addRow("%s, driver unreachable", what)
            << enabled << 10001 << QStringLiteral("anything")
            << QStringLiteral("Cannot connect to driver");
        QTest::addRow("%s, refused", what) << enabled << 1 << QStringLiteral("Taken by 10.0.0.9")
                                           << QStringLiteral("Taken by 10.0.0.9");
        QTest::addRow("%s, without a text", what) << enabled << -1 << QString() << QString();
    }
}

void tst_ReportControl::aFailedEnableIsReportedAndChangesNothing()
{
    QFETCH(bool, enabled);
    QFETCH(int, result);
    QFETCH(QString, error);
    m_service->reportBlock.rptEna = enabled;
    const auto dialog = opened();
    replaceText(find<QLineEdit>(*dialog, "name"), QStringLiteral("not yet written"));
    const QStringList before = shownBy(*dialog);
    m_service->setAnswer(enabled ? QStringLiteral("writeValue")
                                 : QStringLiteral("enableReportBlock"),
                         static_cast<OperationResult>(result), error);

    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    const QList<Call> calls = callsOfPressing(*dialog, "enableReport");
    QVERIFY(driver.finished());
    QCOMPARE(calls.size(), 1);
    QCOMPARE(message.title, QStringLiteral("Fail"));
    QTEST(message.text, "shown");
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.parent, static_cast<QWidget *>(dialog.get()));
    QCOMPARE(shownBy(*dialog), before);
    QCOMPARE(dialog->reportEnabled(), enabled);
}

void tst_ReportControl::aFailedReadAfterAChangeIsSilent()
{
    const auto dialog = opened();
    replaceText(find<QLineEdit>(*dialog, "name"), QStringLiteral("written"));
    const QStringList before = shownBy(*dialog);
    QSignalSpy stateChanged(dialog.get(), &ReportControl::reportEnableStateChanged);
    for (const int result : {1, 10001}) {
        m_service->setAnswer(QStringLiteral("getBRCBValues"), static_cast<OperationResult>(result),
                             QStringLiteral("gone"));
        for (const char *button : {"rptidChange", "enableReport"}) {
            const QList<Call> calls = callsOfPressing(*dialog, button);
            QCOMPARE(calls.size(), 2);
            QVERIFY(!QApplication::activeModalWidget());
            QCOMPARE(shownBy(*dialog), before);
        }
    }
    QCOMPARE(stateChanged.count(), 0);
    QVERIFY(!dialog->reportEnabled());
}

void tst_ReportControl::theFormShowsTheDeviceAfterAChange()
{
    const auto dialog = opened();
    replaceText(find<QLineEdit>(*dialog, "name"), QStringLiteral("typed"));
    replaceText(find<QSpinBox>(*dialog, "periodSec"), QStringLiteral("7"));
    QSignalSpy stateChanged(dialog.get(), &ReportControl::reportEnableStateChanged);

    // Another client has changed the block meanwhile.
    ReportBlock fresh = deviceBlock(QStringLiteral("LLN0$BR$renamed"));
    fresh.rptId = QStringLiteral("as the device took it");
    fresh.rptEna = true;
    fresh.datSet = dataSetA;
    fresh.trgOps = 0x10;
    fresh.optFldsText = QStringLiteral("000000000");
    fresh.intgPd = 1;
    fresh.bufTm = 2;
    fresh.confRev = 3;
    fresh.resv = true;
    m_service->reportBlock = fresh;
    callsOfPressing(*dialog, "rptidChange");

    QCOMPARE(find<QLineEdit>(*dialog, "name")->text(), fresh.rptId);
    QCOMPARE(find<QComboBox>(*dialog, "dataSet")->currentText(), dataSetA);
    QCOMPARE(find<QSpinBox>(*dialog, "periodSec")->value(), 1);
    QCOMPARE(find<QSpinBox>(*dialog, "bufferTime")->value(), 2);
    QCOMPARE(find<QSpinBox>(*dialog, "confRevision")->value(), 3);
    QVERIFY(find<QCheckBox>(*dialog, "useDataUpdate")->isChecked());
    QVERIFY(!find<QCheckBox>(*dialog, "useDataChange")->isChecked());
    QVERIFY(setNames(*dialog, optionalBoxes).isEmpty());
    QVERIFY(find<QCheckBox>(*dialog, "reserved")->isChecked());
    QVERIFY(dialog->reportEnabled());
    QCOMPARE(stateChanged.count(), 1);
    QCOMPARE(stateChanged.first(), (QVariantList{ldName, bufferedName, true}));

    // From now on the block is addressed as it was last read.
    QCOMPARE(callsOfPressing(*dialog, "GI").first().arguments.at(1).toString(), fresh.reference);
}

void tst_ReportControl::anUnreachableDriverIsReportedInTheOperatorsLanguage()
{
    OtherLanguage language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    const auto dialog = opened();
    m_registration.reset();
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    callsOfPressing(*dialog, "triggerChange");
    QVERIFY(driver.finished());
    QCOMPARE(message.title, QStringLiteral("Fehler"));
    QCOMPARE(message.text, QStringLiteral("Treiber nicht erreichbar"));
}

void tst_ReportControl::aButtonActsOnRelease()
{
    const auto dialog = opened();
    auto *const button = find<QPushButton>(*dialog, "integrityChange");
    QTest::mousePress(button, Qt::LeftButton);
    QVERIFY(m_service->calls().isEmpty());
    QTest::mouseRelease(button, Qt::LeftButton);
    QCOMPARE(m_service->calls().size(), 2);

    auto *const close = find<QPushButton>(*dialog, "close");
    QTest::mousePress(close, Qt::LeftButton);
    QVERIFY(dialog->isVisible());
    QTest::mouseRelease(close, Qt::LeftButton);
    QVERIFY(!dialog->isVisible());
}

void tst_ReportControl::theBusyCursorIsShownDuringACall()
{
    QStringList quiet;
    m_service->setOnCall([&quiet](const Call &call) {
        const QCursor *cursor = QApplication::overrideCursor();
        if (!cursor || cursor->shape() != Qt::WaitCursor)
            quiet << call.operation;
    });
    const auto dialog = opened();
    QCOMPARE(callsOfPressing(*dialog, "triggerChange").size(), 2);
    QCOMPARE(callsOfPressing(*dialog, "enableReport").size(), 2);
    QCOMPARE(quiet, QStringList());
    QVERIFY(!QApplication::overrideCursor());
}

void tst_ReportControl::theEnterKeyChangesNothing_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"name", "dataSet", "useDataChange", "periodSec", "bufferTime",
                             "enableReport", "rptidChange", "close"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_ReportControl::theEnterKeyChangesNothing()
{
    QFETCH(QByteArray, name);
    const auto dialog = opened();
    auto *const widget = find<QWidget>(*dialog, name.constData());
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Return);
    QTest::keyClick(widget, Qt::Key_Enter);
    QVERIFY(m_service->calls().isEmpty());
    QVERIFY(dialog->isVisible());
}

void tst_ReportControl::theConfigurationRevisionCannotBeChanged()
{
    const auto dialog = opened();
    auto *const revision = find<QSpinBox>(*dialog, "confRevision");
    replaceText(revision, QStringLiteral("5"));
    QTest::keyClick(revision, Qt::Key_Up);
    QTest::keyClick(revision, Qt::Key_PageDown);
    revision->stepBy(3);
    QCOMPARE(revision->value(), 20301);
}

void tst_ReportControl::theTabKeyFollowsTheReadingOrder()
{
    m_service->reportBlock.rptEna = true;
    const auto dialog = opened();
    find<QCheckBox>(*dialog, "reserved")->setEnabled(true);
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    auto *const first = find<QWidget>(*dialog, "enableReport");
    first->setFocus();
    QStringList names;
    do {
        names << dialog->focusWidget()->objectName();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    } while (dialog->focusWidget() != first && names.size() < 100);
    const QString order = QStringLiteral(
        "enableReport purge GI name rptidChange dataSet datasetChange useDataChange "
        "useQualityChange useDataUpdate useIntegrity useGI triggerChange useEntryID "
        "useConfigurationRevision useTimeStamp useDataReference useBufferOverflow useDataSetName "
        "useReasonForInclusion useSequenceNumber optionChange periodSec integrityChange "
        "bufferTime bufferTimeChange confRevision reserved reservChange close");
    QCOMPARE(names.join(QLatin1Char(' ')), order);
}

void tst_ReportControl::everyEntryFieldHasAnAccessibleName()
{
    const auto dialog = opened();
    QStringList names;
    for (const char *field : {"name", "dataSet", "periodSec", "bufferTime", "confRevision"}) {
        QAccessibleInterface *accessible =
            QAccessible::queryAccessibleInterface(find<QWidget>(*dialog, field));
        QVERIFY(accessible);
        names << accessible->text(QAccessible::Name);
    }
    // The buttons named "Change" tell what they change.
    for (const char *button : settingButtons)
        names << find<QPushButton>(*dialog, button)->accessibleName();
    QVERIFY(!names.contains(QString()));
    QCOMPARE(names.removeDuplicates(), 0);
}

void tst_ReportControl::closeEndsTheDialog()
{
    const auto dialog = opened();
    dialog->hide();
    ModalDriver driver({[](QWidget *window) {
        QTest::mouseClick(find<QPushButton>(*window, "close"), Qt::LeftButton);
    }});
    QCOMPARE(dialog->exec(), static_cast<int>(QDialog::Rejected));
    QVERIFY(driver.finished());
    QVERIFY(m_service->calls().isEmpty());
}

void tst_ReportControl::aDialogWithoutABlockTakesEveryButton()
{
    m_service->setAnswer(QStringLiteral("getBRCBValues"), OperationFailed);
    ReportControl dialog(deviceNo, 0, m_controller.get(), nullptr);
    dialog.show();
    QVERIFY(!dialog.reportEnabled());
    for (const char *button : allButtons) {
        const QList<Call> calls = callsOfPressing(dialog, button);
        QCOMPARE(calls.size(), 2);
        QCOMPARE(calls.first().deviceNo, static_cast<long>(deviceNo));
        QCOMPARE(calls.first().arguments.mid(0, 2), (QVariantList{QString(), QString()}));
        QCOMPARE(calls.last().arguments, (QVariantList{QString(), QString()}));
    }
}

void tst_ReportControl::methodsWithoutEffectMakeNoCall()
{
    const auto dialog = opened();
    const QStringList before = shownBy(*dialog);
    dialog->getList();
    dialog->selectReportControl(0);
    // Without a button that asks for it, nothing is written.
    QVERIFY(QMetaObject::invokeMethod(dialog.get(), "changeValue"));
    QVERIFY(m_service->calls().isEmpty());
    QCOMPARE(shownBy(*dialog), before);
}

void tst_ReportControl::textsOfTheDeviceAreShownLiterally()
{
    m_service->reportBlock.clientRptId = QStringLiteral("<b>id</b>");
    m_service->reportBlock.clientDataSet = QStringLiteral("<img src='x'>");
    const auto dialog = opened(QStringLiteral("<i>LLN0</i>$BR$b"));
    for (const char *label : {"control", "rptIdClient", "dataSetClient"}) {
        QCOMPARE(find<QLabel>(*dialog, label)->textFormat(), Qt::PlainText);
        QVERIFY(!find<QLabel>(*dialog, label)->toolTip().contains(QLatin1Char('<')));
    }
}

void tst_ReportControl::aLongTextOfTheDeviceIsWholeInItsToolTip()
{
    const int usualWidth = opened()->width();
    m_service->reportBlock.clientRptId = QString(129, QLatin1Char('W'));
    const auto dialog = opened();
    const auto *const label = find<QLabel>(*dialog, "rptIdClient");
    QCOMPARE(label->toolTip(), m_service->reportBlock.clientRptId);
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) > label->width());
    QVERIFY(dialog->width() <= usualWidth + label->maximumWidth());
}

QTEST_MAIN(tst_ReportControl)
#include "tst_reportcontrol.moc"
