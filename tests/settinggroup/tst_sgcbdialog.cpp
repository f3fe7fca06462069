// SPDX-License-Identifier: Apache-2.0
#include "settinggroup/sgcbdialog.h"
#include "support/modaldriver.h"
#include "support/recordingdriverservice.h"

#include <propertybrowser/qttreepropertybrowser.h>
#include <propertybrowser/qtvarianteditorfactory.h>
#include <propertybrowser/qtvariantpropertymanager.h>
#include <remoteclient/iec61850controllerinterface.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtGui/QWheelEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

#include <limits>
#include <memory>

namespace {

constexpr int deviceNo = 7;
const QString sgcbRef = QStringLiteral("BAY1PROT");
const QString cannotConnect = QStringLiteral("Cannot connect to driver");

SGCBValue setting(const char *name, const QVariant &value)
{
    return {QLatin1String(name), value};
}

/// A dialog before a recording driver, with what an operator sees and touches in it.
class Desk
{
public:
    Desk()
        : service(std::make_shared<RecordingDriverService>())
        , m_registration(QStringLiteral("desk"), service)
    {
        m_controller.setLocation(QStringLiteral("desk"), 3);
        dialog = std::make_unique<SGCBDialog>(&m_controller, nullptr);
        service->settingGroupBlock.name = QStringLiteral("BAY1PROT/LLN0.SGCB");
        service->settingGroupBlock.numOfSG = 4;
        service->settings[QStringLiteral("SG")] = {setting("PTOC1.StrVal", 1.5),
                                                   setting("PTOC1.OpDlTmms", 400)};
        service->settings[QStringLiteral("SE")] = {setting("PTOC1.StrVal", 2.5)};
    }

    template <typename Widget>
    Widget *child(const char *name) const
    {
        return dialog->findChild<Widget *>(QLatin1String(name));
    }

    QComboBox *acCombo() const { return child<QComboBox>("acCombo"); }
    QComboBox *edCombo() const { return child<QComboBox>("edCombo"); }
    QPushButton *execute() const { return child<QPushButton>("execute"); }
    QPushButton *close() const { return child<QPushButton>("close"); }
    QtTreePropertyBrowser *browser() const { return child<QtTreePropertyBrowser>("treeWidget"); }
    QTreeWidget *tree() const { return browser()->findChild<QTreeWidget *>(); }

    /// "name=value" of every row.
    QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; row < tree()->topLevelItemCount(); ++row) {
            const QTreeWidgetItem *item = tree()->topLevelItem(row);
            rows << item->text(0) + QLatin1Char('=') + item->text(1);
        }
        return rows;
    }

    /// Open the dialog as the browser does and wait until it has filled itself.
    bool openFilled()
    {
        if (!dialog->initSGCB(deviceNo, sgcbRef))
            return false;
        dialog->show();
        if (!QTest::qWaitForWindowActive(dialog.get()))
            return false;
        const bool read = QTest::qWaitFor(
            [this] { return !service->calls(QStringLiteral("getSGCBValue")).isEmpty(); });
        service->forgetCalls();
        return read;
    }

    /// Choose an entry in the opened list, with the keyboard.
    static void choose(QComboBox *list, int row)
    {
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Space);
        QTRY_VERIFY(list->view()->isVisible());
        const int steps = row - list->currentIndex();
        for (int i = 0; i < qAbs(steps); ++i)
            QTest::keyClick(list->view(), steps > 0 ? Qt::Key_Down : Qt::Key_Up);
        QTest::keyClick(list->view(), Qt::Key_Return);
        QTRY_VERIFY(!list->view()->isVisible());
        QCOMPARE(list->currentIndex(), row);
    }

    /// Click a value, and type another over it without ending the edit.
    void type(int row, const QString &text)
    {
        const QModelIndex index = tree()->model()->index(row, 1);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          tree()->visualRect(index).center());
        auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(editor);
        editor->selectAll();
        QTest::keyClicks(editor, text);
    }

    static void press(QPushButton *button) { QTest::mouseClick(button, Qt::LeftButton); }

    std::shared_ptr<RecordingDriverService> service;
    std::unique_ptr<SGCBDialog> dialog;

private:
    DriverServiceRegistration m_registration;
    IEC61850ControllerInterface m_controller;
};

void addFailureRows()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("shown");

    QTest::newRow("driver out of reach") << 10001 << "socket closed" << cannotConnect;
    QTest::newRow("refused with a text") << 1 << "access violation"
                                         << "access violation";
    QTest::newRow("refused without a text") << 23 << ""
                                            << "";
}

void verifyReport(const ShownMessage &message, const QWidget *parent, const QString &text)
{
    QCOMPARE(message.title, QStringLiteral("Fail"));
    QCOMPARE(message.text, text);
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(message.parent, parent);
}

void verifyCall(const RecordingDriverService::Call &call, const char *operation,
                const QVariantList &arguments)
{
    QCOMPARE(call.operation, QLatin1String(operation));
    QCOMPARE(call.deviceNo, long(deviceNo));
    QCOMPARE(call.arguments, arguments);
}

/// Names, values and types of what setSGCBValues was given.
void verifySent(const RecordingDriverService::Call &call, const QList<SGCBValue> &expected)
{
    QCOMPARE(call.operation, QStringLiteral("setSGCBValues"));
    QCOMPARE(call.deviceNo, long(deviceNo));
    QCOMPARE(call.arguments.size(), 2);
    QCOMPARE(call.arguments.at(0), QVariant(sgcbRef));
    const auto sent = call.arguments.at(1).value<QList<SGCBValue>>();
    QCOMPARE(sent.size(), expected.size());
    for (int i = 0; i < sent.size(); ++i) {
        QCOMPARE(sent.at(i).name, expected.at(i).name);
        QCOMPARE(sent.at(i).value.userType(), expected.at(i).value.userType());
        // QVariant would compare doubles with a tolerance.
        if (sent.at(i).value.userType() == QMetaType::Double)
            QVERIFY(sent.at(i).value.toDouble() == expected.at(i).value.toDouble());
        else
            QCOMPARE(sent.at(i).value, expected.at(i).value);
    }
}

} // namespace

class tst_SGCBDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<QList<SGCBValue>>(); }
    void theWindowSaysWhatItIs();
    void theSettingListIsReadableAndMarksWhatHasNoValue();
    void theSlotsStandInTheirOrder();
    void theTabKeyFollowsTheReadingOrder();
    void aReadableBlockIsReportedAsSuch();
    void anUnreadableBlockIsReportedAndLocksTheServices_data();
    void anUnreadableBlockIsReportedAndLocksTheServices();
    void theSettingsAreReadHalfASecondAfterOpening();
    void aDialogClosedEarlyReadsNothingMore();
    void groupsAreListedFromOneAndFromZero();
    void fillingTheListsSelectsNoGroup();
    void withoutGroupsTheSettingsAreStillRead();
    void aBlockThatBecomesUnreadableClosesTheDialogAndStillReadsTheSettings_data();
    void aBlockThatBecomesUnreadableClosesTheDialogAndStillReadsTheSettings();
    void bothFailuresOfARefreshAreReported();
    void choosingAnActiveGroupSelectsItAndReadsItsSettings();
    void anActiveGroupThatIsRefusedKeepsTheSettings_data();
    void anActiveGroupThatIsRefusedKeepsTheSettings();
    void choosingAnEditGroupSelectsTheActiveListsPosition_data();
    void choosingAnEditGroupSelectsTheActiveListsPosition();
    void anEditGroupThatIsRefusedKeepsTheSettings_data();
    void anEditGroupThatIsRefusedKeepsTheSettings();
    void settingsOfEveryKnownTypeAreListedInOrder();
    void aFloatIsEditedAsADouble();
    void whatCannotBeShownIsLeftOutSilently();
    void settingsThatCannotBeReadAreReportedAndTheListIsEmpty_data();
    void settingsThatCannotBeReadAreReportedAndTheListIsEmpty();
    void executeSendsEverySettingWithWhatWasTyped();
    void executeKeepsEveryDigit();
    void executeWithoutSettingsSendsAnEmptyList();
    void settingsThatAreRefusedAreReportedAndKept_data();
    void settingsThatAreRefusedAreReportedAndKept();
    void enterNeverSendsSettings();
    void theWheelNeverSwitchesAGroup();
    void closeAndEscapeReject_data();
    void closeAndEscapeReject();
    void setupStartsTheSettingsAfresh();
    void aCallShowsTheBusyCursorAndAReportDoesNot();
    void anOperatorChangesASettingInTheModalDialog();
};

void tst_SGCBDialog::theWindowSaysWhatItIs()
{
    const Desk desk;
    QCOMPARE(desk.dialog->objectName(), QStringLiteral("SGCBDialog"));
    QCOMPARE(desk.dialog->windowTitle(), QStringLiteral("SGCB"));
    QCOMPARE(desk.dialog->width(), 445);
    QVERIFY(!(desk.dialog->windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(desk.child<QLabel>("label")->text(), QStringLiteral("Name: "));
    QCOMPARE(desk.child<QLabel>("sgcbName")->text(), QString());
    QCOMPARE(desk.child<QGroupBox>("groupBox")->title(), QStringLiteral("Select Group"));
    QCOMPARE(desk.child<QLabel>("label_2")->text(), QStringLiteral("Active Group:"));
    QCOMPARE(desk.child<QLabel>("label_3")->text(), QStringLiteral("   Edit Group:"));
    QCOMPARE(desk.child<QGroupBox>("groupBox_2")->title(), QStringLiteral("Setting Value"));
    QCOMPARE(desk.execute()->text(), QStringLiteral("Execute"));
    QCOMPARE(desk.close()->text(), QStringLiteral("Close"));
    QVERIFY(!desk.acCombo()->accessibleName().isEmpty());
    QVERIFY(!desk.edCombo()->accessibleName().isEmpty());
}

void tst_SGCBDialog::theSettingListIsReadableAndMarksWhatHasNoValue()
{
    const Desk desk;
    QVERIFY(desk.browser()->isHeaderVisible());
    QVERIFY(desk.browser()->alternatingRowColors());
    QVERIFY(!desk.browser()->rootIsDecorated());
    QCOMPARE(int(desk.browser()->resizeMode()), 3);
    QVERIFY(desk.browser()->propertiesWithoutValueMarked());
}

void tst_SGCBDialog::theSlotsStandInTheirOrder()
{
    const QMetaObject &meta = SGCBDialog::staticMetaObject;
    QList<QByteArray> slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Slot)
            slotNames << meta.method(i).methodSignature();
    }
    QCOMPARE(slotNames, (QList<QByteArray>{"setActiveSettingGroup()", "setEditSettingGroup()",
                                           "refreshSettingValue()", "readSGCB(QString)",
                                           "execute()", "setup()"}));
}

void tst_SGCBDialog::theTabKeyFollowsTheReadingOrder()
{
    Desk desk;
    QVERIFY(desk.openFilled());
    QCOMPARE(QApplication::focusWidget(), desk.tree());
    desk.acCombo()->setFocus();
    for (QWidget *next :
         QWidgetList{desk.edCombo(), desk.tree(), desk.execute(), desk.close(), desk.acCombo()}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), next);
    }
}

void tst_SGCBDialog::aReadableBlockIsReportedAsSuch()
{
    Desk desk;
    QVERIFY(desk.dialog->initSGCB(deviceNo, sgcbRef));
    const auto calls = desk.service->calls();
    QCOMPARE(calls.size(), 1);
    verifyCall(calls.at(0), "getSGCB", {sgcbRef});
    QVERIFY(desk.execute()->isEnabled());
}

void tst_SGCBDialog::anUnreadableBlockIsReportedAndLocksTheServices_data()
{
    addFailureRows();
}

void tst_SGCBDialog::anUnreadableBlockIsReportedAndLocksTheServices()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    Desk desk;
    desk.service->setAnswer(QStringLiteral("getSGCB"), OperationResult(result), error);
    ShownMessage message;
    bool lockedBefore = false;
    ModalDriver driver({[&](QWidget *window) {
        lockedBefore = !desk.execute()->isEnabled();
        ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)(window);
    }});
    QVERIFY(!desk.dialog->initSGCB(deviceNo, sgcbRef));
    QVERIFY(driver.finished());
    verifyReport(message, desk.dialog.get(), shown);
    QVERIFY(lockedBefore);
    QVERIFY(!desk.acCombo()->isEnabled());
    QVERIFY(!desk.edCombo()->isEnabled());
    QVERIFY(!desk.execute()->isEnabled());
    QVERIFY(desk.close()->isEnabled());
}

void tst_SGCBDialog::theSettingsAreReadHalfASecondAfterOpening()
{
    Desk desk;
    QElapsedTimer timer;
    qint64 readAfter = 0;
    desk.service->setOnCall([&](const RecordingDriverService::Call &call) {
        if (call.operation == QLatin1String("getSGCB"))
            readAfter = timer.elapsed();
    });
    timer.start();
    QVERIFY(desk.dialog->initSGCB(deviceNo, sgcbRef));
    desk.service->forgetCalls();
    desk.dialog->show();
    QTRY_COMPARE(desk.service->calls().size(), 2);
    QVERIFY2(readAfter >= 500, qPrintable(QString::number(readAfter)));
    verifyCall(desk.service->calls().at(0), "getSGCB", {sgcbRef});
    verifyCall(desk.service->calls().at(1), "getSGCBValue", {sgcbRef, QStringLiteral("SG")});
}

void tst_SGCBDialog::aDialogClosedEarlyReadsNothingMore()
{
    Desk early;
    QVERIFY(early.dialog->initSGCB(deviceNo, sgcbRef));
    early.service->forgetCalls();
    early.dialog.reset();
    // Whatever the first dialog left behind would run before the second one's reading.
    Desk later;
    QVERIFY(later.openFilled());
    QVERIFY(early.service->calls().isEmpty());
}

void tst_SGCBDialog::groupsAreListedFromOneAndFromZero()
{
    Desk desk;
    QVERIFY(desk.openFilled());
    QCOMPARE(desk.child<QLabel>("sgcbName")->text(), QStringLiteral("BAY1PROT/LLN0.SGCB"));
    QCOMPARE(desk.acCombo()->count(), 4);
    QCOMPARE(desk.edCombo()->count(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(desk.acCombo()->itemText(i), QString::number(i + 1));
        QCOMPARE(desk.edCombo()->itemText(i), QString::number(i));
    }
    QCOMPARE(desk.rows(), (QStringList{QStringLiteral("PTOC1.StrVal=1.5"),
                                       QStringLiteral("PTOC1.OpDlTmms=400")}));
}

void tst_SGCBDialog::fillingTheListsSelectsNoGroup()
{
    Desk desk;
    QVERIFY(desk.openFilled());
    desk.acCombo()->blockSignals(true);
    desk.acCombo()->setCurrentIndex(3);
    desk.acCombo()->blockSignals(false);
    desk.service->settingGroupBlock.numOfSG = 2;
    desk.dialog->refreshSettingValue();
    QCOMPARE(desk.service->operations(),
             (QStringList{QStringLiteral("getSGCB"), QStringLiteral("getSGCBValue")}));
    QCOMPARE(desk.acCombo()->count(), 2);

    // After two refreshes a choice is still made once.
    desk.service->forgetCalls();
    Desk::choose(desk.acCombo(), 1);
    QCOMPARE(desk.service->calls(QStringLiteral("selectActiveSG")).size(), 1);
}

void tst_SGCBDialog::withoutGroupsTheSettingsAreStillRead()
{
    Desk desk;
    desk.service->settingGroupBlock.numOfSG = 0;
    QVERIFY(desk.openFilled());
    QCOMPARE(desk.acCombo()->count(), 0);
    QCOMPARE(desk.edCombo()->count(), 0);
    QCOMPARE(desk.rows().size(), 2);
}

void tst_SGCBDialog::aBlockThatBecomesUnreadableClosesTheDialogAndStillReadsTheSettings_data()
{
    addFailureRows();
}

void tst_SGCBDialog::aBlockThatBecomesUnreadableClosesTheDialogAndStillReadsTheSettings()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    Desk desk;
    desk.service->addAnswer(QStringLiteral("getSGCB"), OperationSucceeded);
    desk.service->addAnswer(QStringLiteral("getSGCB"), OperationResult(result), error);
    QVERIFY(desk.dialog->initSGCB(deviceNo, sgcbRef));
    desk.service->forgetCalls();

    ShownMessage message;
    bool openDuringReport = false;
    ModalDriver driver({[&](QWidget *window) {
        openDuringReport = desk.dialog->isVisible();
        ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)(window);
    }});
    QSignalSpy rejections(desk.dialog.get(), &QDialog::rejected);
    desk.dialog->show();
    QTRY_COMPARE(rejections.size(), 1);
    QVERIFY(driver.finished());
    QVERIFY(!desk.dialog->isVisible());
    verifyReport(message, desk.dialog.get(), shown);
    QVERIFY(openDuringReport);
    QVERIFY(!desk.acCombo()->isEnabled());
    QVERIFY(!desk.edCombo()->isEnabled());
    QVERIFY(!desk.execute()->isEnabled());
    QCOMPARE(desk.acCombo()->count(), 0);
    QCOMPARE(desk.edCombo()->count(), 0);
    QCOMPARE(desk.child<QLabel>("sgcbName")->text(), QString());
    QCOMPARE(desk.service->calls().size(), 2);
    verifyCall(desk.service->calls().at(0), "getSGCB", {sgcbRef});
    verifyCall(desk.service->calls().at(1), "getSGCBValue", {sgcbRef, QStringLiteral("SG")});
    QCOMPARE(desk.rows().size(), 2);
}

void tst_SGCBDialog::bothFailuresOfARefreshAreReported()
{
    Desk desk;
    desk.service->addAnswer(QStringLiteral("getSGCB"), OperationSucceeded);
    desk.service->setAnswer(QStringLiteral("getSGCB"), OperationDriverUnreachable);
    desk.service->setAnswer(QStringLiteral("getSGCBValue"), OperationFailed,
                            QStringLiteral("no association"));
    QVERIFY(desk.dialog->initSGCB(deviceNo, sgcbRef));
    ShownMessage first;
    ShownMessage second;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &first),
                        ModalDriver::pressInMessageBox(QMessageBox::Ok, &second)});
    desk.dialog->show();
    QTRY_VERIFY(driver.finished());
    QVERIFY(!desk.dialog->isVisible());
    verifyReport(first, desk.dialog.get(), cannotConnect);
    verifyReport(second, desk.dialog.get(), QStringLiteral("no association"));
}

void tst_SGCBDialog::choosingAnActiveGroupSelectsItAndReadsItsSettings()
{
    Desk desk;
    QVERIFY(desk.openFilled());
    desk.service->settings[QStringLiteral("SG")] = {setting("PTOC1.StrVal", 9.0)};
    Desk::choose(desk.acCombo(), 2);
    QCOMPARE(desk.service->calls().size(), 2);
    verifyCall(desk.service->calls().at(0), "selectActiveSG", {sgcbRef, 3});
    verifyCall(desk.service->calls().at(1), "getSGCBValue", {sgcbRef, QStringLiteral("SG")});
    QCOMPARE(desk.rows(), QStringList{QStringLiteral("PTOC1.StrVal=9")});

    desk.service->forgetCalls();
    QTest::keyClick(desk.acCombo(), Qt::Key_Up);
    QCOMPARE(desk.service->calls().size(), 2);
    verifyCall(desk.service->calls().at(0), "selectActiveSG", {sgcbRef, 2});
}

void tst_SGCBDialog::anActiveGroupThatIsRefusedKeepsTheSettings_data()
{
    addFailureRows();
}

void tst_SGCBDialog::anActiveGroupThatIsRefusedKeepsTheSettings()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    Desk desk;
    QVERIFY(desk.openFilled());
    desk.service->setAnswer(QStringLiteral("selectActiveSG"), OperationResult(result), error);
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    desk.acCombo()->setFocus();
    QTest::keyClick(desk.acCombo(), Qt::Key_Down);
    QVERIFY(driver.finished());
    verifyReport(message, desk.dialog.get(), shown);
    QCOMPARE(desk.service->calls().size(), 1);
    verifyCall(desk.service->calls().at(0), "selectActiveSG", {sgcbRef, 2});
    QCOMPARE(desk.rows().size(), 2);
    QVERIFY(desk.dialog->isVisible());
}

void tst_SGCBDialog::choosingAnEditGroupSelectsTheActiveListsPosition_data()
{
    QTest::addColumn<int>("activeRow");
    QTest::addColumn<int>("editRow");
    QTest::newRow("first active group") << 0 << 3;
    QTest::newRow("third active group") << 2 << 1;
}

void tst_SGCBDialog::choosingAnEditGroupSelectsTheActiveListsPosition()
{
    QFETCH(int, activeRow);
    QFETCH(int, editRow);
    Desk desk;
    QVERIFY(desk.openFilled());
    if (activeRow != 0)
        Desk::choose(desk.acCombo(), activeRow);
    desk.service->forgetCalls();
    Desk::choose(desk.edCombo(), editRow);
    QCOMPARE(desk.service->calls().size(), 2);
    verifyCall(desk.service->calls().at(0), "selectEditSG", {sgcbRef, activeRow});
    verifyCall(desk.service->calls().at(1), "getSGCBValue", {sgcbRef, QStringLiteral("SE")});
    QCOMPARE(desk.rows(), QStringList{QStringLiteral("PTOC1.StrVal=2.5")});
}

void tst_SGCBDialog::anEditGroupThatIsRefusedKeepsTheSettings_data()
{
    addFailureRows();
}

void tst_SGCBDialog::anEditGroupThatIsRefusedKeepsTheSettings()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    Desk desk;
    QVERIFY(desk.openFilled());
    desk.service->setAnswer(QStringLiteral("selectEditSG"), OperationResult(result), error);
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    desk.edCombo()->setFocus();
    QTest::keyClick(desk.edCombo(), Qt::Key_Down);
    QVERIFY(driver.finished());
    verifyReport(message, desk.dialog.get(), shown);
    QCOMPARE(desk.service->calls().size(), 1);
    verifyCall(desk.service->calls().at(0), "selectEditSG", {sgcbRef, 0});
    QCOMPARE(desk.rows().size(), 2);
}

void tst_SGCBDialog::settingsOfEveryKnownTypeAreListedInOrder()
{
    Desk desk;
    desk.service->settings[QStringLiteral("SG")] = {
        setting("z", true),
        setting("int", -5),
        setting("uint", 4294967295U),
        setting("int64", std::numeric_limits<qlonglong>::min()),
        setting("uint64", std::numeric_limits<qulonglong>::max()),
        setting("double", 0.30000000000000004),
        setting("text", QStringLiteral("abc")),
        setting("date", QDate(2024, 2, 29)),
        setting("time", QTime(1, 2, 3, 4)),
        setting("moment", QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3, 4), Qt::UTC)),
        setting("a", QChar(u'c')),
    };
    QVERIFY(desk.openFilled());
    QCOMPARE(desk.rows(),
             (QStringList{
                 QStringLiteral("z=True"), QStringLiteral("int=-5"),
                 QStringLiteral("uint=4294967295"), QStringLiteral("int64=-9223372036854775808"),
                 QStringLiteral("uint64=18446744073709551615"),
                 QStringLiteral("double=0.30000000000000004"), QStringLiteral("text=abc"),
                 QStringLiteral("date=2024-02-29"), QStringLiteral("time=01:02:03.004"),
                 QStringLiteral("moment=2024-02-29T01:02:03.004Z"), QStringLiteral("a=c")}));
    desk.press(desk.execute());
    verifySent(desk.service->calls().at(0), desk.service->settings.value(QStringLiteral("SG")));
}

void tst_SGCBDialog::aFloatIsEditedAsADouble()
{
    Desk desk;
    desk.service->settings[QStringLiteral("SG")] = {setting("kept", 0.1F), setting("typed", 0.2F)};
    QVERIFY(desk.openFilled());
    QCOMPARE(desk.rows(), (QStringList{QStringLiteral("kept=0.1"), QStringLiteral("typed=0.2")}));
    desk.type(1, QStringLiteral("0.30000000000000004"));
    desk.press(desk.execute());
    verifySent(desk.service->calls().at(0),
               {setting("kept", double(0.1F)), setting("typed", 0.30000000000000004)});
}

void tst_SGCBDialog::whatCannotBeShownIsLeftOutSilently()
{
    Desk desk;
    desk.service->settings[QStringLiteral("SG")] = {
        setting("bytes", QByteArray("x")),
        setting("first", 1),
        setting("nothing", QVariant()),
        setting("list", QVariantList{1, 2}),
        setting("short", QVariant::fromValue(short(3))),
        setting("last", 2),
    };
    QVERIFY(desk.openFilled());
    QCOMPARE(desk.rows(), (QStringList{QStringLiteral("first=1"), QStringLiteral("last=2")}));
    QVERIFY(!QApplication::activeModalWidget());
    desk.press(desk.execute());
    verifySent(desk.service->calls().at(0), {setting("first", 1), setting("last", 2)});
}

void tst_SGCBDialog::settingsThatCannotBeReadAreReportedAndTheListIsEmpty_data()
{
    addFailureRows();
}

void tst_SGCBDialog::settingsThatCannotBeReadAreReportedAndTheListIsEmpty()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    Desk desk;
    QVERIFY(desk.openFilled());
    desk.service->setAnswer(QStringLiteral("getSGCBValue"), OperationResult(result), error);
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    desk.edCombo()->setFocus();
    QTest::keyClick(desk.edCombo(), Qt::Key_Down);
    QVERIFY(driver.finished());
    verifyReport(message, desk.dialog.get(), shown);
    QVERIFY(desk.rows().isEmpty());
    QVERIFY(desk.dialog->isVisible());
    QVERIFY(desk.execute()->isEnabled());
}

void tst_SGCBDialog::executeSendsEverySettingWithWhatWasTyped()
{
    Desk desk;
    QVERIFY(desk.openFilled());
    desk.type(0, QStringLiteral("7.25"));
    desk.press(desk.execute());
    QCOMPARE(desk.service->operations(), QStringList{QStringLiteral("setSGCBValues")});
    verifySent(desk.service->calls().at(0),
               {setting("PTOC1.StrVal", 7.25), setting("PTOC1.OpDlTmms", 400)});
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(desk.rows(), (QStringList{QStringLiteral("PTOC1.StrVal=7.25"),
                                       QStringLiteral("PTOC1.OpDlTmms=400")}));
}

void tst_SGCBDialog::executeKeepsEveryDigit()
{
    Desk desk;
    desk.service->settings[QStringLiteral("SG")] = {setting("long", 1LL), setting("real", 1.0)};
    QVERIFY(desk.openFilled());
    desk.type(0, QStringLiteral("9007199254740993"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    desk.type(1, QStringLiteral("2.7182818284590451"));
    desk.press(desk.execute());
    verifySent(desk.service->calls().at(0),
               {setting("long", Q_INT64_C(9007199254740993)), setting("real", 2.7182818284590451)});
}

void tst_SGCBDialog::executeWithoutSettingsSendsAnEmptyList()
{
    Desk desk;
    desk.service->settings.clear();
    QVERIFY(desk.openFilled());
    desk.press(desk.execute());
    QCOMPARE(desk.service->calls().size(), 1);
    verifySent(desk.service->calls().at(0), {});
}

void tst_SGCBDialog::settingsThatAreRefusedAreReportedAndKept_data()
{
    addFailureRows();
}

void tst_SGCBDialog::settingsThatAreRefusedAreReportedAndKept()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    Desk desk;
    QVERIFY(desk.openFilled());
    desk.type(0, QStringLiteral("7.25"));
    desk.service->setAnswer(QStringLiteral("setSGCBValues"), OperationResult(result), error);
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    desk.press(desk.execute());
    QVERIFY(driver.finished());
    verifyReport(message, desk.dialog.get(), shown);
    QCOMPARE(desk.service->operations(), QStringList{QStringLiteral("setSGCBValues")});
    QCOMPARE(desk.rows().first(), QStringLiteral("PTOC1.StrVal=7.25"));
}

void tst_SGCBDialog::enterNeverSendsSettings()
{
    Desk desk;
    QVERIFY(desk.openFilled());
    for (QWidget *focused : QWidgetList{desk.acCombo(), desk.edCombo(), desk.tree()}) {
        focused->setFocus();
        QTest::keyClick(focused, Qt::Key_Return);
    }
    desk.type(0, QStringLiteral("7.25"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTRY_COMPARE(desk.rows().first(), QStringLiteral("PTOC1.StrVal=7.25"));
    QVERIFY(desk.service->calls().isEmpty());
    QVERIFY(desk.dialog->isVisible());
}

void tst_SGCBDialog::theWheelNeverSwitchesAGroup()
{
    Desk desk;
    QVERIFY(desk.openFilled());
    for (QComboBox *list : {desk.acCombo(), desk.edCombo()}) {
        list->setFocus();
        const QPoint middle = list->rect().center();
        QWheelEvent wheel(middle, list->mapToGlobal(middle), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(list, &wheel);
        QCOMPARE(list->currentIndex(), 0);
    }
    QVERIFY(desk.service->calls().isEmpty());
}

void tst_SGCBDialog::closeAndEscapeReject_data()
{
    QTest::addColumn<bool>("withMouse");
    QTest::newRow("Close") << true;
    QTest::newRow("Escape") << false;
}

void tst_SGCBDialog::closeAndEscapeReject()
{
    QFETCH(bool, withMouse);
    Desk desk;
    QVERIFY(desk.dialog->initSGCB(deviceNo, sgcbRef));
    desk.service->forgetCalls();
    ModalDriver driver({[&](QWidget *window) {
        if (withMouse)
            Desk::press(desk.close());
        else
            QTest::keyClick(window, Qt::Key_Escape);
    }});
    QCOMPARE(desk.dialog->exec(), int(QDialog::Rejected));
    QVERIFY(driver.finished());
    QVERIFY(desk.service->calls().isEmpty());
}

void tst_SGCBDialog::setupStartsTheSettingsAfresh()
{
    Desk desk;
    QVERIFY(desk.openFilled());
    const QPointer<QtVariantPropertyManager> manager =
        desk.dialog->findChild<QtVariantPropertyManager *>();
    const QPointer<QtVariantEditorFactory> factory =
        desk.dialog->findChild<QtVariantEditorFactory *>();
    QVERIFY(manager);
    QVERIFY(factory);

    desk.dialog->setup();
    QVERIFY(!manager);
    QVERIFY(!factory);
    QCOMPARE(desk.dialog->findChildren<QtVariantPropertyManager *>().size(), 1);
    QCOMPARE(desk.dialog->findChildren<QtVariantEditorFactory *>().size(), 1);
    QVERIFY(desk.rows().isEmpty());

    desk.dialog->readSGCB(QStringLiteral("SG"));
    desk.type(0, QStringLiteral("3.75"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTRY_COMPARE(desk.rows().first(), QStringLiteral("PTOC1.StrVal=3.75"));
}

void tst_SGCBDialog::aCallShowsTheBusyCursorAndAReportDoesNot()
{
    Desk desk;
    int calls = 0;
    int busyCalls = 0;
    desk.service->setOnCall([&](const RecordingDriverService::Call &) {
        ++calls;
        const QCursor *cursor = QApplication::overrideCursor();
        busyCalls += cursor && cursor->shape() == Qt::WaitCursor ? 1 : 0;
    });
    QVERIFY(desk.openFilled());
    Desk::choose(desk.acCombo(), 1);
    Desk::choose(desk.edCombo(), 1);
    desk.service->setAnswer(QStringLiteral("setSGCBValues"), OperationFailed);
    bool busyDuringReport = true;
    ModalDriver driver({[&](QWidget *window) {
        busyDuringReport = QApplication::overrideCursor() != nullptr;
        ModalDriver::pressInMessageBox(QMessageBox::Ok)(window);
    }});
    desk.press(desk.execute());
    QVERIFY(driver.finished());
    QVERIFY(!busyDuringReport);
    QCOMPARE(calls, 8);
    QCOMPARE(busyCalls, calls);
    QVERIFY(!QApplication::overrideCursor());
}

void tst_SGCBDialog::anOperatorChangesASettingInTheModalDialog()
{
    Desk desk;
    QVERIFY(desk.dialog->initSGCB(deviceNo, sgcbRef));
    ModalDriver driver({[&](QWidget *) {
        QTRY_COMPARE(desk.rows().size(), 2);
        desk.service->forgetCalls();
        Desk::choose(desk.edCombo(), 2);
        QTRY_COMPARE(desk.rows().size(), 1);
        desk.type(0, QStringLiteral("12.5"));
        Desk::press(desk.execute());
        Desk::press(desk.close());
    }});
    QCOMPARE(desk.dialog->exec(), int(QDialog::Rejected));
    QVERIFY(driver.finished());
    const auto calls = desk.service->calls();
    QCOMPARE(calls.size(), 3);
    verifyCall(calls.at(0), "selectEditSG", {sgcbRef, 0});
    verifyCall(calls.at(1), "getSGCBValue", {sgcbRef, QStringLiteral("SE")});
    verifySent(calls.at(2), {setting("PTOC1.StrVal", 12.5)});
}

QTEST_MAIN(tst_SGCBDialog)
#include "tst_sgcbdialog.moc"
