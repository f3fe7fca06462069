// SPDX-License-Identifier: Apache-2.0
#include "workbench/mainwindow.h"

#include "workbench/iedchooser.h"
#include "workbench/tableview.h"
#include "workbench/workbench.h"

#include <host/driverprotocolextentioninterface.h>

#include <QtCore/QDir>
#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtCore/QSemaphore>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtGui/QDropEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

namespace {

QString pluginFolder(const QString &name)
{
    return QDir(QStringLiteral(FAKE_PLUGIN_FOLDER)).filePath(name);
}

/// The extension that was loaded, as the object that records what it is told.
QObject *recorder(const MainWindow &window)
{
    return dynamic_cast<QObject *>(window.extension().extension);
}

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void anEmptyListSaysWhatToDo();
    void theToolsOfTheExtensionAreInToolBarAndMenu();
    void theToolsAreDisabledWithoutASelectedDevice();
    void theToolsAreDisabledForADeviceWithoutAModel();
    void theExtensionIsToldOfTheSelectionBeforeItsToolRuns();
    void activatingADeviceRunsTheFirstTool();
    void aMissingExtensionIsExplainedInTheWindow();
    void aSecondTryLoadsAnExtensionThatHasAppeared();
    void aBadFileGivesOneMessageBox();
    void theChosenIedsAreOpened();
    void anIedWithoutLogicalDevicesCannotBeChosen();
    void findingsOfTheSelectedDeviceAreShown();
    void aSlowLoadShowsProgressAndCanBeCancelled();
    void deleteTakesTheSelectedDeviceOffTheListWhenThatIsConfirmed();
    void aRemovedDeviceCanBePutBack();
    void theWindowFitsTheScreen_data();
    void theWindowFitsTheScreen();
    void droppedFilesAreOpened();
    void theJournalFollowsTheNewestCall();

private:
    ImportResult import(const ImportRequest &request, const std::atomic<bool> &cancelled);
    void open(const QString &name, const QString &ied = {});
    template <typename T>
    T *child(const char *name) const
    {
        return m_window->findChild<T *>(QString::fromLatin1(name));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Workbench> m_workbench;
    std::unique_ptr<MainWindow> m_window;
    std::atomic<bool> m_slow{false};
};

ImportResult tst_MainWindow::import(const ImportRequest &request,
                                    const std::atomic<bool> &cancelled)
{
    while (m_slow && !cancelled)
        QThread::yieldCurrentThread();
    ImportResult result;
    result.ieds = {{QStringLiteral("A"), QStringLiteral("maker, type"), 2},
                   {QStringLiteral("CLIENT"), {}, 0},
                   {QStringLiteral("B"), {}, 1}};
    if (request.file.endsWith(QLatin1String(".bad"))) {
        result.error = QStringLiteral("The file is empty.");
    } else if (request.ied.isEmpty() && request.file.endsWith(QLatin1String("several.scd"))) {
        result.status = ImportResult::ChoiceNeeded;
    } else {
        result.status = ImportResult::Imported;
        result.ied = request.ied.isEmpty() ? QStringLiteral("A") : request.ied;
        if (request.file.endsWith(QLatin1String("faulty.icd")))
            result.findings = {{scl::Severity::Error, 7, "SCL/IED[A]",
                                wording::verbatim("Something is missing.")}};
    }
    return result;
}

void tst_MainWindow::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_slow = false;
    Workbench::Options options;
    options.settingsFile = m_folder->filePath(QStringLiteral("workbench.ini"));
    options.import = [this](const ImportRequest &request, const std::atomic<bool> &cancelled,
                            const auto &) { return import(request, cancelled); };
    m_workbench = std::make_unique<Workbench>(options);
    m_window = std::make_unique<MainWindow>(*m_workbench, pluginFolder(QStringLiteral("good")));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_MainWindow::cleanup()
{
    m_slow = false;
    if (m_window && m_window->extension().extension)
        recorder(*m_window)->setProperty("calls", {});
    m_window.reset();
    m_workbench.reset();
}

void tst_MainWindow::open(const QString &name, const QString &ied)
{
    const int before = m_workbench->devices().rowCount();
    m_workbench->open(m_folder->filePath(name), ied);
    QTRY_COMPARE(m_workbench->devices().rowCount(), before + 1);
}

void tst_MainWindow::anEmptyListSaysWhatToDo()
{
    QVERIFY(child<QLabel>("emptyText")->isVisible());
    QCOMPARE(child<QLabel>("emptyText")->text(),
             QStringLiteral("No device yet: add one, or open an SCL file"));
    QVERIFY(child<QPushButton>("emptyOpen")->isVisible());
    open(QStringLiteral("a.icd"));
    QVERIFY(!child<QLabel>("emptyText")->isVisible());
    QVERIFY(child<TableView>("deviceView")->isVisible());
}

void tst_MainWindow::theToolsOfTheExtensionAreInToolBarAndMenu()
{
    QVERIFY(!child<QMenu>("menuTools")->menuAction()->isEnabled());
    m_window->loadExtension();
    const QList<QAction *> tools = m_window->extensionActions();
    QCOMPARE(tools.size(), 1);
    QCOMPARE(tools[0]->text(), QStringLiteral("Fake Tool"));
    QVERIFY(child<QMenu>("menuTools")->menuAction()->isEnabled());
    QVERIFY(child<QMenu>("menuTools")->actions().contains(tools[0]));
    QVERIFY(child<QToolBar>("toolBar")->actions().contains(tools[0]));
    QVERIFY(!child<QFrame>("extensionPanel")->isVisible());

    open(QStringLiteral("a.icd"));
    TableView *devices = child<TableView>("deviceView");
    const QPoint position = devices->visualRect(devices->model()->index(0, 0)).center();
    emit devices->customContextMenuRequested(position);
    const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QVERIFY(menu->actions().contains(tools[0]));
    QApplication::activePopupWidget()->close();
}

void tst_MainWindow::theToolsAreDisabledWithoutASelectedDevice()
{
    m_window->loadExtension();
    QAction *tool = m_window->extensionActions().first();
    QVERIFY(!tool->isEnabled());
    open(QStringLiteral("a.icd"));
    QVERIFY(tool->isEnabled());
    child<TableView>("deviceView")->clearSelection();
    QVERIFY(!tool->isEnabled());
}

void tst_MainWindow::theToolsAreDisabledForADeviceWithoutAModel()
{
    m_window->loadExtension();
    open(QStringLiteral("a.icd"));
    const int number = m_window->selectedDevice();
    m_workbench->devices().setFailed(number, QStringLiteral("The file is gone."));
    QVERIFY(!m_window->extensionActions().first()->isEnabled());
    m_workbench->devices().setReady(number, {}, {});
    QVERIFY(m_window->extensionActions().first()->isEnabled());
}

void tst_MainWindow::theExtensionIsToldOfTheSelectionBeforeItsToolRuns()
{
    m_window->loadExtension();
    open(QStringLiteral("a.icd"));
    open(QStringLiteral("b.icd"));
    const int second = m_window->selectedDevice();
    QCOMPARE(second, m_workbench->devices().deviceAt(1)->record.number());
    const QVariantList context = recorder(*m_window)->property("context").toList();
    QCOMPARE(context, (QVariantList{EmbeddedConsole::driverNo, second, 0, true}));

    const int first = m_workbench->devices().deviceAt(0)->record.number();
    m_window->selectDevice(first);
    QCOMPARE(recorder(*m_window)->property("context").toList().at(1).toInt(), first);
    m_window->extensionActions().first()->trigger();
    QCOMPARE(recorder(*m_window)->property("calls").toStringList().last(),
             QStringLiteral("tool on device %1").arg(first));
}

void tst_MainWindow::activatingADeviceRunsTheFirstTool()
{
    m_window->loadExtension();
    open(QStringLiteral("a.icd"));
    recorder(*m_window)->setProperty("calls", {});
    TableView *devices = child<TableView>("deviceView");
    devices->setFocus();
    QTest::keyClick(devices, Qt::Key_Return);
    QCOMPARE(recorder(*m_window)->property("calls").toStringList().size(), 1);
}

void tst_MainWindow::aMissingExtensionIsExplainedInTheWindow()
{
    MainWindow window(*m_workbench, m_folder->path());
    window.show();
    window.loadExtension();
    auto *panel = window.findChild<QFrame *>(QStringLiteral("extensionPanel"));
    const QString text = window.findChild<QLabel *>(QStringLiteral("extensionText"))->text();
    QVERIFY(panel->isVisible());
    QVERIFY(text.contains(QDir(m_folder->path()).filePath(QStringLiteral("IEC61850Ext"))));
    QVERIFY(text.contains(QStringLiteral("The file does not exist.")));
    QVERIFY(text.contains(QStringLiteral("--plugin-dir")));
    QVERIFY(window.extensionActions().isEmpty());
}

void tst_MainWindow::aSecondTryLoadsAnExtensionThatHasAppeared()
{
    MainWindow window(*m_workbench, m_folder->path());
    window.show();
    window.loadExtension();
    const QString name = QFileInfo(window.extension().file).fileName();
    QVERIFY(QFile::copy(QDir(pluginFolder(QStringLiteral("good"))).filePath(name),
                        window.extension().file));
    QTest::mouseClick(window.findChild<QPushButton *>(QStringLiteral("extensionRetry")),
                      Qt::LeftButton);
    QVERIFY(!window.findChild<QFrame *>(QStringLiteral("extensionPanel"))->isVisible());
    QCOMPARE(window.extensionActions().size(), 1);
}

void tst_MainWindow::aBadFileGivesOneMessageBox()
{
    m_workbench->open(m_folder->filePath(QStringLiteral("1.bad")));
    m_workbench->open(m_folder->filePath(QStringLiteral("2.bad")));
    QTRY_VERIFY(QApplication::activeModalWidget());
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    QVERIFY(box);
    QVERIFY(box->text().contains(QStringLiteral("1.bad")));
    QVERIFY(box->text().contains(QStringLiteral("2.bad")));
    QVERIFY(box->text().contains(QStringLiteral("The file is empty.")));
    box->accept();
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCOMPARE(m_workbench->devices().rowCount(), 0);
}

void tst_MainWindow::theChosenIedsAreOpened()
{
    m_workbench->open(m_folder->filePath(QStringLiteral("several.scd")));
    QTRY_VERIFY(qobject_cast<IedChooser *>(QApplication::activeModalWidget()));
    auto *chooser = qobject_cast<IedChooser *>(QApplication::activeModalWidget());
    QCOMPARE(chooser->chosenIeds(), QStringList{QStringLiteral("A")});
    chooser->findChild<QTreeWidget *>()->selectAll();
    QCOMPARE(chooser->chosenIeds(), (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
    QTest::mouseClick(chooser->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
    QTRY_COMPARE(m_workbench->devices().rowCount(), 2);
    QCOMPARE(m_workbench->devices().deviceAt(0)->record.ied(), QStringLiteral("A"));
    QCOMPARE(m_workbench->devices().deviceAt(1)->record.ied(), QStringLiteral("B"));
}

void tst_MainWindow::anIedWithoutLogicalDevicesCannotBeChosen()
{
    IedChooser chooser(QStringLiteral("x.scd"), {{QStringLiteral("CLIENT"), {}, 0}});
    QVERIFY(chooser.chosenIeds().isEmpty());
    chooser.findChild<QTreeWidget *>()->selectAll();
    QVERIFY(chooser.chosenIeds().isEmpty());
    QVERIFY(!chooser.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled());
}

void tst_MainWindow::findingsOfTheSelectedDeviceAreShown()
{
    open(QStringLiteral("a.icd"));
    const QAbstractItemModel *findings = child<TableView>("findingsView")->model();
    QCOMPARE(findings->rowCount(), 0);
    QCOMPARE(child<QDockWidget>("findingsDock")->windowTitle(), QStringLiteral("Findings: A"));
    open(QStringLiteral("faulty.icd"));
    QCOMPARE(findings->rowCount(), 1);
    QCOMPARE(child<QDockWidget>("findingsDock")->windowTitle(),
             QStringLiteral("Findings: A (1 error)"));
    m_window->selectDevice(m_workbench->devices().deviceAt(0)->record.number());
    QCOMPARE(findings->rowCount(), 0);
}

void tst_MainWindow::aSlowLoadShowsProgressAndCanBeCancelled()
{
    m_slow = true;
    QProgressBar *bar = child<QProgressBar>("loadingProgress");
    QToolButton *cancel = child<QToolButton>("cancelLoading");
    QVERIFY(!bar->isVisible());
    m_workbench->open(m_folder->filePath(QStringLiteral("a.icd")));
    QTRY_VERIFY(bar->isVisible());
    QVERIFY(cancel->isVisible());
    QTest::mouseClick(cancel, Qt::LeftButton);
    QTRY_VERIFY(!bar->isVisible());
    QVERIFY(!cancel->isVisible());
    QCOMPARE(m_workbench->devices().rowCount(), 0);
}

void tst_MainWindow::deleteTakesTheSelectedDeviceOffTheListWhenThatIsConfirmed()
{
    open(QStringLiteral("a.icd"));
    open(QStringLiteral("b.icd"));
    TableView *devices = child<TableView>("deviceView");
    const auto ask = [&]() -> QMessageBox * {
        m_window->activateWindow();
        if (!QTest::qWaitForWindowActive(m_window.get()))
            return nullptr;
        devices->setFocus();
        QTest::keyClick(devices, Qt::Key_Delete);
        return child<QMessageBox>("removeQuestion");
    };
    QPointer<QMessageBox> box = ask();
    QVERIFY(box);
    // An Enter too many keeps the device.
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_VERIFY(!box);
    QCOMPARE(m_workbench->devices().rowCount(), 2);
    box = ask();
    QVERIFY(box);
    QVERIFY2(box->text().contains(QLatin1String("Take A off the list?")), qPrintable(box->text()));
    for (QAbstractButton *button : box->buttons()) {
        if (box->buttonRole(button) == QMessageBox::AcceptRole)
            button->click();
    }
    QTRY_COMPARE(m_workbench->devices().rowCount(), 1);
    QVERIFY(m_workbench->devices().deviceAt(0)->record.file().endsWith(QLatin1String("a.icd")));
}

void tst_MainWindow::aRemovedDeviceCanBePutBack()
{
    open(QStringLiteral("a.icd"));
    open(QStringLiteral("b.icd"));
    auto *const undo = child<QAction>("actionUndoRemove");
    QVERIFY(!undo->isEnabled());
    const DeviceRecord second = m_workbench->devices().deviceAt(1)->record;
    m_workbench->remove(m_workbench->devices().deviceAt(0)->record.number());
    m_workbench->remove(second.number());
    QCOMPARE(m_workbench->devices().rowCount(), 0);
    QVERIFY(undo->isEnabled());
    undo->trigger();
    QTRY_COMPARE(m_workbench->devices().rowCount(), 1);
    const DeviceListModel::Device *back = m_workbench->devices().device(second.number());
    QVERIFY(back);
    QCOMPARE(back->record.file(), second.file());
    QTRY_COMPARE(m_workbench->devices().device(second.number())->state, DeviceListModel::Ready);
    QVERIFY(undo->isEnabled());
    undo->trigger();
    QTRY_COMPARE(m_workbench->devices().rowCount(), 2);
    QVERIFY(!undo->isEnabled());
    // It is there at the next start, too.
    QCOMPARE(DeviceStore(m_folder->filePath(QStringLiteral("workbench.ini"))).devices().size(), 2);
}

void tst_MainWindow::theWindowFitsTheScreen_data()
{
    QTest::addColumn<QRect>("available");
    QTest::newRow("large") << QRect(0, 0, 1920, 1050);
    QTest::newRow("notebook") << QRect(0, 27, 1366, 741);
    QTest::newRow("notebook at 150 %") << QRect(0, 0, 910, 480);
    QTest::newRow("full HD at 200 %, second screen") << QRect(1920, 0, 960, 510);
    QTest::newRow("notebook at 200 %") << QRect(0, 0, 683, 364);
}

void tst_MainWindow::theWindowFitsTheScreen()
{
    QFETCH(QRect, available);
    MainWindow window(*m_workbench, pluginFolder(QStringLiteral("good")));
    window.fitInto(available);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY2(available.contains(window.geometry()),
             qPrintable(QStringLiteral("%1 x %2, at least %3 x %4")
                            .arg(window.width())
                            .arg(window.height())
                            .arg(window.minimumSizeHint().width())
                            .arg(window.minimumSizeHint().height())));
}

void tst_MainWindow::droppedFilesAreOpened()
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_folder->filePath(QStringLiteral("a.icd")))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &drop);
    QTRY_COMPARE(m_workbench->devices().rowCount(), 1);
}

void tst_MainWindow::theJournalFollowsTheNewestCall()
{
    TableView *journal = child<TableView>("journalView");
    ControllerCall call;
    call.operation = QStringLiteral("readVariable");
    for (int i = 0; i < 200; ++i)
        m_workbench->journal().controllerCalled(call);
    QTRY_COMPARE(journal->model()->rowCount(), 200);
    const auto newestIsVisible = [journal] {
        const QModelIndex last = journal->model()->index(journal->model()->rowCount() - 1, 0);
        return journal->viewport()->rect().intersects(journal->visualRect(last));
    };
    QTRY_VERIFY(newestIsVisible());

    journal->scrollToTop();
    m_workbench->journal().controllerCalled(call);
    QTRY_COMPARE(journal->model()->rowCount(), 201);
    QVERIFY2(!newestIsVisible(), "somebody who reads older rows is left there");
}

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
