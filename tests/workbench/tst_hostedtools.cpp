// SPDX-License-Identifier: Apache-2.0
// From the plug-in's windows through the workbench's question and the driver to a simulated device,
// in one process: what the operator guide says of the tools.
#include "support/modaldriver.h"

#include "workbench/fileimport.h"
#include "workbench/mainwindow.h"
#include "workbench/workbench.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QTreeWidget>

namespace {

constexpr int limitMs = 20000;

const QString outputs = QStringLiteral("BAY1E1IO/GGIO2/");
const QString settingGroups = QStringLiteral("BAY1E1PROT/LLN0/SGCB");

template <typename Widget>
Widget *part(QWidget *window, const char *name)
{
    auto *const found = window->findChild<Widget *>(QLatin1String(name));
    if (!found)
        qFatal("%s has no %s.", window->metaObject()->className(), name);
    return found;
}

QStringList labels(const QWidget *window)
{
    QStringList texts;
    const auto all = window->findChildren<QLabel *>();
    for (const QLabel *label : all)
        texts << label->text();
    return texts;
}

void accept(QWidget *dialog)
{
    part<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
}

/// Choose a control value and press OK.
ModalDriver::Step control(const char *value)
{
    return [value](QWidget *dialog) {
        QCOMPARE(dialog->objectName(), QStringLiteral("ControlCo"));
        part<QComboBox>(dialog, "ctrValue")->setCurrentText(QLatin1String(value));
        accept(dialog);
    };
}

/// Answer the workbench's question; what it said goes into `said`.
ModalDriver::Step answer(bool confirmed, QStringList *said = nullptr)
{
    return [confirmed, said](QWidget *question) {
        QCOMPARE(question->objectName(), QStringLiteral("ConfirmationDialog"));
        if (said)
            *said = labels(question);
        auto *const send = part<QPushButton>(question, "send");
        QTRY_VERIFY(send->isEnabled());
        if (confirmed)
            send->click();
        else
            static_cast<QDialog *>(question)->reject();
    };
}

QStringList settings(QWidget *dialog)
{
    const auto *const list = dialog->findChild<QTreeWidget *>();
    QStringList rows;
    for (int row = 0; list && row < list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = list->topLevelItem(row);
        rows << item->text(0) + QLatin1Char('=') + item->text(1);
    }
    return rows;
}

} // namespace

class tst_HostedTools : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aCommandGoesThroughTheQuestionToTheDevice();
    void aCommandThatIsNotConfirmedIsNotSent();
    void selectAsksAndOperateActsWithoutADialog();
    void operateAsksWhereSelectDoesNot();
    void theControlDialogStartsWithoutAnyCheck();
    void theBrowserMayBeDestroyedWhileTheWorkbenchAsks();
    void everyDataSetOfALogicalNodeIsRed();
    void aDirectoryOfADataSetShowsNothing();
    void aPeriodBeyondTheFormIsKeptByEnableAndShownAsTheLargest();
    void withTheFirstGroupShownNoGroupIsOpened();
    void theGroupBeforeTheActiveOneIsOpenedAndExecuteEndsTheEdit();
    void whatLeavingACellDoes_data();
    void whatLeavingACellDoes();

private:
    QModelIndex node(const QString &path) const;
    QString value(const QString &path) const;
    /// Choose an entry of a node's context menu by its action.
    void act(const QString &path, const char *action);
    int changes() const { return m_workbench->changes().rowCount(); }
    QString change(int row, int column) const;

    QTemporaryDir m_folder;
    std::unique_ptr<Workbench> m_workbench;
    std::unique_ptr<MainWindow> m_window;
    QPointer<QDialog> m_browser;
    QTreeView *m_tree = nullptr;
};

void tst_HostedTools::init()
{
    const QString settingsFile = m_folder.filePath(QStringLiteral("workbench.ini"));
    QFile::remove(settingsFile);
    Workbench::Options options;
    options.settingsFile = settingsFile;
    options.import = importFromFile;
    m_workbench = std::make_unique<Workbench>(options);
    m_window = std::make_unique<MainWindow>(*m_workbench, QStringLiteral(PLUGIN_FOLDER));
    m_window->show();
    m_window->loadExtension();
    m_workbench->simulate(QStringLiteral(DEMONSTRATION_FILE));
    const auto isUsable = [this] {
        const auto *device = m_workbench->devices().device(m_window->selectedDevice());
        return device && device->record.simulated && device->isUsable();
    };
    QTRY_VERIFY_WITH_TIMEOUT(isUsable(), limitMs);
    m_window->extensionActions().first()->trigger();
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("IEDModelView") && window->isVisible())
            m_browser = static_cast<QDialog *>(window);
    }
    QVERIFY(m_browser);
    m_tree = part<QTreeView>(m_browser, "modelView");
}

void tst_HostedTools::cleanup()
{
    m_window.reset();
    m_workbench.reset();
    QVERIFY(!m_browser);
}

QModelIndex tst_HostedTools::node(const QString &path) const
{
    const QAbstractItemModel *model = m_tree->model();
    QModelIndex index = model->index(0, 0);
    const QStringList names = path.split(QLatin1Char('/'));
    for (const QString &name : names) {
        QModelIndex found;
        for (int row = 0; row < model->rowCount(index) && !found.isValid(); ++row) {
            if (model->index(row, 0, index).data().toString() == name)
                found = model->index(row, 0, index);
        }
        if (!found.isValid())
            qFatal("The tree has no %s.", qPrintable(path));
        index = found;
    }
    return index;
}

QString tst_HostedTools::value(const QString &path) const
{
    const QModelIndex index = node(path);
    return index.sibling(index.row(), 1).data().toString();
}

void tst_HostedTools::act(const QString &path, const char *action)
{
    m_tree->setCurrentIndex(node(path));
    const auto actions = m_browser->findChildren<QAction *>();
    for (QAction *found : actions) {
        if (found->text() == QLatin1String(action)) {
            found->trigger();
            return;
        }
    }
    qFatal("The browser has no action %s.", action);
}

QString tst_HostedTools::change(int row, int column) const
{
    return m_workbench->changes().index(row, column).data().toString();
}

void tst_HostedTools::aCommandGoesThroughTheQuestionToTheDevice()
{
    QTRY_COMPARE_WITH_TIMEOUT(value(outputs + "SPCSO2/stVal"), QStringLiteral("False"), limitMs);
    QStringList said;
    ModalDriver driver({control("true"), answer(true, &said)});
    act(outputs + "SPCSO2", "Operate");
    QVERIFY(driver.finished());
    for (const char *text : {"Operate", "BAY1E1IO", "GGIO2.SPCSO2", "none"})
        QVERIFY2(said.contains(QLatin1String(text)), text);
    // The device has done it, and its own report or the next poll brings it into the browser.
    QTRY_COMPARE_WITH_TIMEOUT(value(outputs + "SPCSO2/stVal"), QStringLiteral("true"), limitMs);
    QTRY_COMPARE(changes(), 1);
}

void tst_HostedTools::aCommandThatIsNotConfirmedIsNotSent()
{
    ShownMessage message;
    ModalDriver driver({control("true"), answer(false),
                        ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    act(outputs + "SPCSO2", "Operate");
    QVERIFY(driver.finished());
    QCOMPARE(message.title, QStringLiteral("Fail"));
    QCOMPARE(message.text, QStringLiteral("Nothing was sent, since it was not confirmed."));
    QCOMPARE(changes(), 0);
}

void tst_HostedTools::selectAsksAndOperateActsWithoutADialog()
{
    const QString object = outputs + "SPCSO5"; // sbo-with-enhanced-security
    ModalDriver selecting({control("true"), answer(true)});
    act(object, "Select");
    QVERIFY(selecting.finished());
    QStringList said;
    ModalDriver operating({answer(true, &said)});
    act(object, "Operate");
    QVERIFY(operating.finished());
    QVERIFY2(said.join(QLatin1Char('\n')).contains(QStringLiteral("as selected")),
             qPrintable(said.join(QLatin1Char('\n'))));
    QTRY_COMPARE_WITH_TIMEOUT(value(object + "/stVal"), QStringLiteral("true"), limitMs);
}

void tst_HostedTools::operateAsksWhereSelectDoesNot()
{
    const QString object = outputs + "SPCSO3"; // sbo-with-normal-security
    ModalDriver selecting({answer(true)});
    act(object, "Select");
    QVERIFY(selecting.finished());
    // The cancel has a dialog and no question.
    bool isLocked = false;
    ModalDriver cancelling({[&isLocked](QWidget *dialog) {
        isLocked = !part<QComboBox>(dialog, "check")->isEnabled();
        accept(dialog);
    }});
    act(object, "Cancel");
    QVERIFY(cancelling.finished());
    QVERIFY(isLocked);
    ModalDriver again({answer(true)});
    act(object, "Select");
    QVERIFY(again.finished());
    ModalDriver operating({control("true"), answer(true)});
    act(object, "Operate");
    QVERIFY(operating.finished());
    QTRY_COMPARE_WITH_TIMEOUT(value(object + "/stVal"), QStringLiteral("true"), limitMs);
}

void tst_HostedTools::theControlDialogStartsWithoutAnyCheck()
{
    QString check, category, test;
    ModalDriver driver({[&](QWidget *dialog) {
        check = part<QComboBox>(dialog, "check")->currentText();
        category = part<QComboBox>(dialog, "category")->currentText();
        test = part<QComboBox>(dialog, "test")->currentText();
        static_cast<QDialog *>(dialog)->reject();
    }});
    act(outputs + "SPCSO2", "Operate");
    QVERIFY(driver.finished());
    QCOMPARE(check, QStringLiteral("no-check"));
    QCOMPARE(category, QStringLiteral("remote-control"));
    QCOMPARE(test, QStringLiteral("False"));
    QCOMPARE(changes(), 0);
}

void tst_HostedTools::theBrowserMayBeDestroyedWhileTheWorkbenchAsks()
{
    m_browser->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_browser));
    ModalDriver driver({control("true"), [this](QWidget *question) {
                            QCOMPARE(question->objectName(), QStringLiteral("ConfirmationDialog"));
                            const QPointer<QDialog> asked = static_cast<QDialog *>(question);
                            delete m_browser;
                            // It is withdrawn when it stands over the browser.
                            if (asked)
                                asked->reject();
                        }});
    act(outputs + "SPCSO2", "Operate");
    QVERIFY(driver.finished());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(changes(), 0);
}

void tst_HostedTools::everyDataSetOfALogicalNodeIsRed()
{
    const QModelIndex group = node(QStringLiteral("BAY1E1IO/LLN0/DataSet"));
    const QAbstractItemModel *model = m_tree->model();
    QVERIFY(model->rowCount(group) > 0);
    for (int row = 0; row < model->rowCount(group); ++row) {
        const QModelIndex dataSet = model->index(row, 0, group);
        QCOMPARE(dataSet.data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::red));
        const QModelIndex member = model->index(0, 0, dataSet);
        QVERIFY(member.isValid());
        QVERIFY(!member.data(Qt::ForegroundRole).isValid());
    }
}

void tst_HostedTools::aDirectoryOfADataSetShowsNothing()
{
    // A window would block here.
    act(QStringLiteral("BAY1E1IO/LLN0/DataSet/Indications"), "GetDataSet Directory");
    QTRY_COMPARE(m_workbench->journal().rowCount(), 2);
    const QModelIndex call = m_workbench->journal().index(1, JournalModel::OperationColumn);
    QCOMPARE(call.data().toString(), QStringLiteral("getDataSetDirectory"));
    QCOMPARE(call.sibling(1, JournalModel::ResultColumn).data().toString(), QStringLiteral("OK"));
}

void tst_HostedTools::aPeriodBeyondTheFormIsKeptByEnableAndShownAsTheLargest()
{
    const QString block = QStringLiteral("BAY1E1MEAS/LLN0/ReportControl/brcbEnergy");
    int shown = 0;
    int shownAfterwards = 0;
    ModalDriver driver({[&](QWidget *dialog) {
        shown = part<QSpinBox>(dialog, "periodSec")->value();
        part<QPushButton>(dialog, "enableReport")->click();
        shownAfterwards = part<QSpinBox>(dialog, "periodSec")->value();
        static_cast<QDialog *>(dialog)->reject();
    }});
    act(block, "Open Report Control");
    QVERIFY(driver.finished());
    QCOMPARE(shown, 100000);
    QCOMPARE(shownAfterwards, 100000);
    QTRY_COMPARE(changes(), 1);
    QString row;
    for (int column = 0; column < m_workbench->changes().columnCount(); ++column)
        row += change(0, column) + QLatin1Char('|');
    QCOMPARE(row.count(QStringLiteral("900000")), 2);
    QVERIFY2(!row.contains(QStringLiteral("100000")), qPrintable(row));
}

void tst_HostedTools::withTheFirstGroupShownNoGroupIsOpened()
{
    ShownMessage message;
    ModalDriver driver({[](QWidget *dialog) {
                            auto *const active = part<QComboBox>(dialog, "acCombo");
                            QTRY_COMPARE(active->count(), 4);
                            QCOMPARE(active->currentText(), QStringLiteral("1"));
                            part<QComboBox>(dialog, "edCombo")->setCurrentIndex(2);
                            QVERIFY(settings(dialog).isEmpty());
                            static_cast<QDialog *>(dialog)->reject();
                        },
                        ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    act(settingGroups, "Open Setting Group Control");
    QVERIFY(driver.finished());
    QVERIFY2(
        message.text.startsWith(QStringLiteral("No setting group of BAY1E1PROT is being edited")),
        qPrintable(message.text));
}

void tst_HostedTools::theGroupBeforeTheActiveOneIsOpenedAndExecuteEndsTheEdit()
{
    QStringList ofGroup1;
    QStringList opened;
    QStringList reopened;
    ShownMessage message;
    ModalDriver driver({[&](QWidget *dialog) {
                            auto *const active = part<QComboBox>(dialog, "acCombo");
                            auto *const edited = part<QComboBox>(dialog, "edCombo");
                            auto *const execute = part<QPushButton>(dialog, "execute");
                            QTRY_VERIFY(!settings(dialog).isEmpty());
                            ofGroup1 = settings(dialog);
                            active->setCurrentText(
                                QStringLiteral("2"));   // asks, since it takes effect at once
                            edited->setCurrentIndex(3); // whichever is chosen
                            opened = settings(dialog);
                            execute->click();
                            execute->click(); // the edit is over
                            edited->setCurrentIndex(1);
                            reopened = settings(dialog);
                            static_cast<QDialog *>(dialog)->reject();
                        },
                        answer(true), ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    act(settingGroups, "Open Setting Group Control");
    QVERIFY(driver.finished());
    QVERIFY2(
        message.text.startsWith(QStringLiteral("No setting group of BAY1E1PROT is being edited")),
        qPrintable(message.text));
    QVERIFY(!ofGroup1.isEmpty());
    QCOMPARE(opened.replaceInStrings(QStringLiteral("$SE$"), QStringLiteral("$SG$")), ofGroup1);
    QCOMPARE(reopened.replaceInStrings(QStringLiteral("$SE$"), QStringLiteral("$SG$")), ofGroup1);
}

void tst_HostedTools::whatLeavingACellDoes_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("sends");
    QTest::addColumn<bool>("staysOpen");
    QTest::newRow("Enter") << "enter" << true << false;
    QTest::newRow("Tab") << "tab" << true << false;
    QTest::newRow("a click elsewhere in the tree") << "tree" << true << false;
    QTest::newRow("Escape") << "escape" << false << false;
    QTest::newRow("the line to find in") << "find" << false << false;
    QTest::newRow("a button") << "button" << false << false;
    QTest::newRow("another window") << "window" << false << true;
}

void tst_HostedTools::whatLeavingACellDoes()
{
    QFETCH(QString, way);
    QFETCH(bool, sends);
    QFETCH(bool, staysOpen);
    const QString object = QStringLiteral("BAY1E1CTRL/QA1CSWI1/Pos");
    m_tree->expand(node(object));
    m_browser->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_browser));
    const QModelIndex name = node(object + "/sboTimeout");
    const QModelIndex cell = name.sibling(name.row(), 1);
    m_tree->scrollTo(cell);
    m_tree->setFocus();
    m_tree->setCurrentIndex(cell);
    m_tree->edit(cell);
    QPointer<QLineEdit> line = m_tree->viewport()->findChild<QLineEdit *>();
    QVERIFY(line);
    QCOMPARE(line->text(), QString());
    QTRY_VERIFY(line->hasFocus());
    QTest::keyClicks(line, QStringLiteral("25000"));

    if (way == QLatin1String("enter"))
        QTest::keyClick(line, Qt::Key_Return);
    else if (way == QLatin1String("tab"))
        QTest::keyClick(line, Qt::Key_Tab);
    else if (way == QLatin1String("escape"))
        QTest::keyClick(line, Qt::Key_Escape);
    else if (way == QLatin1String("tree"))
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {},
                          m_tree->visualRect(node(object)).center());
    else if (way == QLatin1String("find"))
        QTest::keyClick(line, Qt::Key_F, Qt::ControlModifier);
    else if (way == QLatin1String("button"))
        part<QPushButton>(m_browser, "pushButton")->setFocus();
    else
        m_window->activateWindow();

    const auto isOpen = [&line] { return line && line->isVisible(); };
    if (staysOpen)
        QTRY_VERIFY(m_window->isActiveWindow());
    QTRY_COMPARE(isOpen(), staysOpen);
    if (sends)
        QTRY_COMPARE_WITH_TIMEOUT(cell.data().toString(), QStringLiteral("25000"), limitMs);
    QTRY_COMPARE(changes(), sends ? 1 : 0);
}

QTEST_MAIN(tst_HostedTools)
#include "tst_hostedtools.moc"
