// SPDX-License-Identifier: Apache-2.0
#include "mainwindow.h"

#include "confirmationdialog.h"
#include "guideviewer.h"
#include "ui_mainwindow.h"
#include "workbench.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtGui/QDesktopServices>
#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QActionGroup>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>

#include <algorithm>

namespace {

constexpr int messageTime = 8000; // milliseconds

std::unique_ptr<Ui::MainWindow> makeWidgets(QMainWindow *window)
{
    auto widgets = std::make_unique<Ui::MainWindow>();
    widgets->setupUi(window);
    return widgets;
}

} // namespace

MainWindow::MainWindow(Workbench &workbench, const QString &pluginFolder, QWidget *parent)
    : QMainWindow(parent)
    , m_ui(makeWidgets(this))
    , m_workbench(workbench)
    , m_pluginFolder(pluginFolder)
    , m_tools(workbench.devices(), workbench.context(), [this] { return selectedDevice(); })
    , m_files(workbench, *this)
    , m_commands(workbench, *this)
    , m_findings(*m_ui->findingsDock, *m_ui->findingsView)
    , m_marks(workbench, *m_ui->statusBar)
{
    m_workbench.context().mainWindow = this;
    m_workbench.waiting().setWindow(this);
    m_ui->extensionPanel->hide();

    setUpDevices();
    setUpJournals();
    setUpDocks();
    setUpIcons();
    setUpActions();
    setUpDeviceActions();
    setUpConfirmation();
    setUpMessages();

    connect(&m_workbench, &Workbench::deviceOpened, this, &MainWindow::selectDevice);
    showSelection();
    if (const QString problem = m_workbench.storeProblem(); !problem.isEmpty())
        statusBar()->showMessage(problem);
}

MainWindow::~MainWindow()
{
    m_workbench.confirmation().setAsk({});
    m_workbench.context().mainWindow = nullptr;
}

void MainWindow::setUpDevices()
{
    TableView *devices = m_ui->deviceView;
    devices->setModel(&m_workbench.devices());
    devices->setUsualWidth(DeviceListModel::NameColumn, 150);
    devices->setUsualWidth(DeviceListModel::NumberColumn, 60);
    devices->setUsualWidth(DeviceListModel::SourceColumn, 180);
    devices->setUsualWidth(DeviceListModel::ValuesColumn, 80);
    devices->header()->setStretchLastSection(false);
    devices->header()->setSectionResizeMode(DeviceListModel::StateColumn, QHeaderView::Stretch);
    devices->setUsualWidth(DeviceListModel::IdentityColumn, 200);
    devices->setUsualWidth(DeviceListModel::RoundTripColumn, 80);
    devices->setUsualWidth(DeviceListModel::ReportsColumn, 70);
    connect(devices->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MainWindow::showSelection);
    connect(devices, &QTreeView::activated, this, [this] {
        if (!extensionActions().isEmpty())
            extensionActions().first()->trigger();
    });
    connect(devices, &QTreeView::customContextMenuRequested, this, &MainWindow::showDeviceMenu);

    DeviceListModel &model = m_workbench.devices();
    connect(&model, &QAbstractItemModel::dataChanged, this, &MainWindow::showSelection);
    connect(&model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first) {
                if (!m_ui->deviceView->currentIndex().isValid())
                    m_ui->deviceView->setCurrentIndex(m_workbench.devices().index(first, 0));
                showSelection();
            });
    connect(&model, &QAbstractItemModel::rowsRemoved, this, &MainWindow::showSelection);
}

void MainWindow::setUpJournals()
{
    TableView *journal = m_ui->journalView;
    journal->setModel(&m_workbench.journal());
    journal->setPlaceholder(
        tr("No call to the driver yet. Every request that a tool makes is listed here."));
    journal->setUsualWidth(JournalModel::TimeColumn, 110);
    journal->setUsualWidth(JournalModel::DeviceColumn, 150);
    journal->setUsualWidth(JournalModel::OperationColumn, 170);
    journal->setUsualWidth(JournalModel::ArgumentsColumn, 270);
    journal->setUsualWidth(JournalModel::DurationColumn, 90);
    QHeaderView *journalHeader = journal->header();
    journalHeader->setStretchLastSection(false);
    journalHeader->setSectionResizeMode(JournalModel::ResultColumn, QHeaderView::Stretch);
    journal->followNewest();

    TableView *changes = m_ui->changesView;
    changes->setModel(&m_workbench.changes());
    changes->setPlaceholder(
        tr("Nothing was changed on a device yet. Every write, command and transfer is listed "
           "here%1.")
            .arg(m_workbench.changes().file().isEmpty()
                     ? QString()
                     : tr(" and kept in\n%1")
                           .arg(QDir::toNativeSeparators(m_workbench.changes().file()))));
    changes->setUsualWidth(ChangeJournal::TimeColumn, 110);
    changes->setUsualWidth(ChangeJournal::DeviceColumn, 120);
    changes->setUsualWidth(ChangeJournal::OperationColumn, 130);
    changes->setUsualWidth(ChangeJournal::ReferenceColumn, 210);
    changes->setUsualWidth(ChangeJournal::OldValueColumn, 90);
    changes->setUsualWidth(ChangeJournal::NewValueColumn, 90);
    changes->setUsualWidth(ChangeJournal::CauseColumn, 130);
    QHeaderView *changesHeader = changes->header();
    changesHeader->setStretchLastSection(false);
    // What stretches must not vanish where the others need more room.
    changesHeader->setMinimumSectionSize(
        qMax(90, changesHeader->sectionSizeHint(ChangeJournal::ResultColumn)));
    changesHeader->setSectionResizeMode(ChangeJournal::ResultColumn, QHeaderView::Stretch);
    changes->followNewest();
    connect(&m_workbench.changes(), &ChangeJournal::problemChanged, this,
            [this] { statusBar()->showMessage(m_workbench.changes().problem()); });
}

void MainWindow::setUpDocks()
{
    tabifyDockWidget(m_ui->journalDock, m_ui->changesDock);
    tabifyDockWidget(m_ui->changesDock, m_ui->findingsDock);
    m_ui->journalDock->raise();
    resizeDocks({m_ui->journalDock}, {260}, Qt::Vertical);
}

void MainWindow::setUpIcons()
{
    const std::pair<QAction *, QStyle::StandardPixmap> icons[] = {
        {m_ui->actionOpen, QStyle::SP_DialogOpenButton},
        {m_ui->actionReload, QStyle::SP_BrowserReload},
        {m_ui->actionRemove, QStyle::SP_TrashIcon},
        {m_ui->actionQuit, QStyle::SP_DialogCloseButton},
        {m_ui->actionConnect, QStyle::SP_MediaPlay},
        {m_ui->actionDisconnect, QStyle::SP_MediaStop},
        {m_ui->actionAdd, QStyle::SP_DriveNetIcon}};
    for (const auto &[action, icon] : icons)
        action->setIcon(style()->standardIcon(icon));
    m_ui->extensionIcon->setPixmap(style()
                                       ->standardIcon(QStyle::SP_MessageBoxWarning)
                                       .pixmap(style()->pixelMetric(QStyle::PM_LargeIconSize)));
}

void MainWindow::setUpActions()
{
    connect(m_ui->actionOpen, &QAction::triggered, this, &MainWindow::openFile);
    connect(m_ui->actionSimulate, &QAction::triggered, this, &MainWindow::simulateFile);
    connect(m_ui->emptyOpen, &QPushButton::clicked, this, &MainWindow::openFile);
    connect(m_ui->actionDemonstration, &QAction::triggered, &m_workbench,
            &Workbench::openDemonstration);
    connect(m_ui->emptyDemonstration, &QPushButton::clicked, &m_workbench,
            &Workbench::openDemonstration);
    connect(m_ui->actionQuit, &QAction::triggered, this, &QWidget::close);
    m_ui->actionReadOnly->setChecked(m_workbench.isReadOnly());
    connect(m_ui->actionReadOnly, &QAction::toggled, &m_workbench, &Workbench::setReadOnly);
    connect(&m_workbench, &Workbench::readOnlyChanged, m_ui->actionReadOnly, &QAction::setChecked);
    connect(m_ui->actionShowJournalFile, &QAction::triggered, this, [this] {
        const QString folder = QFileInfo(m_workbench.changes().file()).path();
        QDir().mkpath(folder);
        QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
    });
    m_ui->actionShowJournalFile->setEnabled(!m_workbench.changes().file().isEmpty());
    connect(m_ui->actionClearJournal, &QAction::triggered, this,
            [this] { m_workbench.journal().clear(); });
    connect(m_ui->actionGuide, &QAction::triggered, this, &MainWindow::showGuide);
    connect(m_ui->actionAbout, &QAction::triggered, this, &MainWindow::showAbout);
    connect(m_ui->extensionRetry, &QPushButton::clicked, this, &MainWindow::loadExtension);
    connect(&m_tools, &ExtensionTools::changed, this, &MainWindow::showSelection);

    m_ui->journalView->addAction(m_ui->actionClearJournal);
    m_ui->changesView->addAction(m_ui->actionShowJournalFile);
    m_ui->menuView->insertActions(m_ui->actionClearJournal, {m_ui->findingsDock->toggleViewAction(),
                                                             m_ui->journalDock->toggleViewAction(),
                                                             m_ui->changesDock->toggleViewAction(),
                                                             m_ui->toolBar->toggleViewAction()});
    m_ui->menuView->insertSeparator(m_ui->actionClearJournal);
    m_ui->menuTools->menuAction()->setEnabled(false);
}

void MainWindow::setUpDeviceActions()
{
    connect(m_ui->actionAdd, &QAction::triggered, &m_commands, &DeviceCommands::add);
    connect(m_ui->emptyAdd, &QPushButton::clicked, &m_commands, &DeviceCommands::add);
    connect(m_ui->actionUndoRemove, &QAction::triggered, &m_workbench, &Workbench::undoRemove);

    const std::pair<QAction *, void (DeviceCommands::*)(int)> asking[] = {
        {m_ui->actionEdit, &DeviceCommands::edit},
        {m_ui->actionRemove, &DeviceCommands::remove},
        {m_ui->actionTrace, &DeviceCommands::showTrace},
        {m_ui->actionCapture, &DeviceCommands::saveCapture},
        {m_ui->actionExport, &DeviceCommands::exportValues}};
    for (const auto &[action, command] : asking) {
        connect(action, &QAction::triggered, &m_commands,
                [this, run = command] { (m_commands.*run)(selectedDevice()); });
    }
    const std::pair<QAction *, void (Workbench::*)(int)> atOnce[] = {
        {m_ui->actionConnect, &Workbench::connectDevice},
        {m_ui->actionDisconnect, &Workbench::disconnectDevice},
        {m_ui->actionReload, &Workbench::reload},
        {m_ui->actionStartSimulation, &Workbench::startSimulation},
        {m_ui->actionStopSimulation, &Workbench::stopSimulation}};
    for (const auto &[action, command] : atOnce) {
        connect(action, &QAction::triggered, &m_workbench,
                [this, run = command] { (m_workbench.*run)(selectedDevice()); });
    }
}

void MainWindow::setUpConfirmation()
{
    m_workbench.confirmation().setAsk([this](const CallConfirmation::Question &question) {
        QWidget *const asking = QApplication::activeWindow();
        QApplication::setOverrideCursor(Qt::ArrowCursor);
        const bool isConfirmed = ConfirmationDialog::asks(question, asking ? asking : this);
        QApplication::restoreOverrideCursor();
        return isConfirmed;
    });

    auto *const menu = new QMenu(tr("Con&firm"), this);
    menu->setObjectName(QStringLiteral("menuConfirm"));
    auto *const group = new QActionGroup(menu);
    const std::pair<CallConfirmation::Scope, QString> choices[] = {
        {CallConfirmation::Commands, tr("&Commands before they are sent")},
        {CallConfirmation::Everything, tr("&Everything that changes a device")},
        {CallConfirmation::Nothing, tr("&Nothing")}};
    for (const auto &[scope, text] : choices) {
        QAction *const action = group->addAction(menu->addAction(text));
        action->setCheckable(true);
        action->setChecked(m_workbench.confirmation().scope() == scope);
        connect(action, &QAction::triggered, this,
                [this, wanted = scope] { m_workbench.setConfirmed(wanted); });
    }
    m_ui->menuDevice->addMenu(menu);
}

void MainWindow::setUpMessages()
{
    connect(&m_workbench, &Workbench::loadingCancelled, this,
            [this] { statusBar()->showMessage(tr("Loading was cancelled."), messageTime); });
    connect(&m_commands, &DeviceCommands::removed, this, &MainWindow::showRemoved);
    connect(&m_commands, &DeviceCommands::written, this,
            [this](const QString &sentence) { statusBar()->showMessage(sentence, messageTime); });
}

void MainWindow::loadExtension()
{
    m_tools.load(m_pluginFolder);
    const LoadedExtension &loaded = m_tools.loaded();
    m_ui->extensionPanel->setVisible(loaded.extension == nullptr);
    if (!loaded.extension) {
        m_ui->extensionText->setText(
            tr("The IEC 61850 tools are not available.\n%1\n%2 %3")
                .arg(QDir::toNativeSeparators(loaded.file), loaded.reason, loaded.remedy));
        return;
    }
    m_ui->menuTools->addActions(extensionActions());
    m_ui->toolBar->addActions(extensionActions());
    m_ui->menuTools->menuAction()->setEnabled(!extensionActions().isEmpty());
    showSelection();
}

int MainWindow::selectedDevice() const
{
    const QModelIndexList rows = m_ui->deviceView->selectionModel()->selectedRows();
    const DeviceListModel::Device *device =
        rows.isEmpty() ? nullptr : m_workbench.devices().deviceAt(rows.first().row());
    return device ? device->record.number() : 0;
}

void MainWindow::selectDevice(int number)
{
    const int row = m_workbench.devices().rowOf(number);
    if (row < 0)
        return;
    const QModelIndex index = m_workbench.devices().index(row, 0);
    m_ui->deviceView->setCurrentIndex(index);
    m_ui->deviceView->scrollTo(index);
    m_ui->deviceView->setFocus();
    if (const QString problem = m_workbench.storeProblem(); !problem.isEmpty())
        statusBar()->showMessage(problem);
}

void MainWindow::showSelection()
{
    m_ui->pages->setCurrentWidget(m_workbench.devices().rowCount() > 0 ? m_ui->devicesPage
                                                                       : m_ui->emptyPage);
    const DeviceListModel::Device *device = m_workbench.devices().device(selectedDevice());
    enableDeviceActions(device);
    showUndo();
    m_tools.showSelection();
    m_findings.show(device, m_ui->actionReload->shortcut().toString(QKeySequence::NativeText));
}

void MainWindow::enableDeviceActions(const DeviceListModel::Device *device)
{
    const bool ready = device && device->state == DeviceListModel::Ready;
    const bool isReached = device && device->record.isReached();
    const bool isSimulated = device && device->record.simulated;

    m_ui->actionRemove->setEnabled(device != nullptr);
    m_ui->actionEdit->setEnabled(device != nullptr);
    m_ui->actionConnect->setEnabled(ready && isReached && !device->isWanted());
    m_ui->actionDisconnect->setEnabled(device && device->isWanted());
    m_ui->actionStartSimulation->setVisible(isSimulated);
    m_ui->actionStopSimulation->setVisible(isSimulated);
    m_ui->actionStartSimulation->setEnabled(isSimulated && !ready &&
                                            device->state != DeviceListModel::Loading);
    m_ui->actionStopSimulation->setEnabled(isSimulated && ready);
    for (QAction *action : {m_ui->actionTrace, m_ui->actionCapture})
        action->setEnabled(isReached && ready);
    m_ui->actionExport->setEnabled(isReached && device->isUsable());
    m_ui->actionReload->setEnabled(device && device->state != DeviceListModel::Loading);
}

void MainWindow::showDeviceMenu(const QPoint &position)
{
    if (!m_ui->deviceView->indexAt(position).isValid())
        return;
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(extensionActions());
    menu->addSeparator();
    menu->addActions(m_ui->menuDevice->actions());
    menu->removeAction(m_ui->actionAdd);
    menu->removeAction(m_ui->actionUndoRemove);
    menu->removeAction(m_ui->actionReadOnly);
    menu->popup(m_ui->deviceView->viewport()->mapToGlobal(position));
}

void MainWindow::openFile()
{
    m_files.open(selectedFile());
}

void MainWindow::simulateFile()
{
    m_files.simulate(selectedFile());
}

QString MainWindow::selectedFile() const
{
    const DeviceListModel::Device *device = m_workbench.devices().device(selectedDevice());
    return device ? device->record.file() : QString();
}

void MainWindow::showRemoved(const QString &name, bool hasFile)
{
    showUndo();
    const QString undo = m_ui->actionUndoRemove->shortcut().toString(QKeySequence::NativeText);
    const QString message =
        hasFile ? tr("%1 was taken off the list; its file stays where it is, and %2 puts it back.")
                : tr("%1 was taken off the list; %2 puts it back.");
    statusBar()->showMessage(message.arg(name, undo), messageTime);
}

void MainWindow::showUndo()
{
    const DeviceRecord *record = m_workbench.lastRemoved();
    m_ui->actionUndoRemove->setEnabled(record != nullptr);
    const QString name =
        record ? QString(record->name()).replace(QLatin1Char('&'), QLatin1String("&&")) : QString();
    m_ui->actionUndoRemove->setText(record ? tr("&Undo Remove of %1").arg(name)
                                           : tr("&Undo Remove"));
}

void MainWindow::fitInto(const QRect &available)
{
    // Room for the frame, which is not there before the window is shown.
    constexpr int besides = 16;
    constexpr int above = 40;
    const QSize room = available.size() - QSize(besides, above);
    resize(size().boundedTo(room));
    move(available.center() - QPoint(width() / 2, (height() + above) / 2));
}

void MainWindow::showGuide()
{
    if (!m_guide) {
        m_guide = new GuideViewer(this);
        m_guide->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_guide->show();
    m_guide->raise();
    m_guide->activateWindow();
}

void MainWindow::showAbout()
{
    auto *box = new QMessageBox(
        QMessageBox::NoIcon, tr("About"),
        tr("IEC 61850 Workbench %1\n\nA small host for the IEC 61850 tools: it lists devices, loads "
           "the plug-in and shows every request that its tools make.\n\nApache License 2.0")
            .arg(QCoreApplication::applicationVersion()),
        QMessageBox::Ok, this);
    box->setIconPixmap(windowIcon().pixmap(style()->pixelMetric(QStyle::PM_LargeIconSize)));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (std::any_of(urls.cbegin(), urls.cend(), [](const QUrl &url) { return url.isLocalFile(); }))
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            m_workbench.open(url.toLocalFile());
    }
    event->acceptProposedAction();
}
