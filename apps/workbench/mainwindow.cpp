// SPDX-License-Identifier: Apache-2.0
#include "mainwindow.h"

#include "confirmationdialog.h"
#include "devicedialog.h"
#include "guideviewer.h"
#include "iedchooser.h"
#include "plaintip.h"
#include "toolwindows.h"
#include "tracedialog.h"
#include "ui_mainwindow.h"
#include "workbench.h"

#include <host/driverprotocolextentioninterface.h>

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QSaveFile>
#include <QtCore/QSettings>
#include <QtCore/QSortFilterProxyModel>
#include <QtGui/QDesktopServices>
#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QActionGroup>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace {

constexpr int messageTime = 8000; // milliseconds
constexpr int progressRange = 1000;

/// Leaves out the middle of a text that is too long: both ends of an element path say something.
class PathDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideMiddle;
    }
};

/// The width, or more where the language of the header needs it.
void setWidth(QHeaderView *header, int column, int width)
{
    header->resizeSection(column, qMax(width, header->sectionSizeHint(column)));
}

/// The first device whose model takes its time to be read; null when there is none.
const DeviceListModel::Device *readingDevice(const DeviceListModel &devices)
{
    for (int row = 0; row < devices.rowCount(); ++row) {
        const DeviceListModel::Device *device = devices.deviceAt(row);
        const DeviceStatus &status = device->status;
        if (device->isWanted() && status.state == DeviceState::ReadingModel &&
            status.since.msecsTo(QDateTime::currentDateTime()) >= DeviceLoader::slowAfter.count()) {
            return device;
        }
    }
    return nullptr;
}

/// Keeps the newest row in sight, as long as somebody does not look at older ones.
void followNewest(QTreeView *view)
{
    const auto follow = std::make_shared<bool>(true);
    QObject::connect(view->model(), &QAbstractItemModel::rowsAboutToBeInserted, view,
                     [view, follow] {
                         const QScrollBar *bar = view->verticalScrollBar();
                         *follow = bar->value() == bar->maximum();
                     });
    QObject::connect(view->model(), &QAbstractItemModel::rowsInserted, view, [view, follow] {
        if (*follow)
            view->scrollToBottom();
    });
}

} // namespace

MainWindow::MainWindow(Workbench &workbench, const QString &pluginFolder, QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::MainWindow>())
    , m_workbench(workbench)
    , m_pluginFolder(pluginFolder)
    , m_context(workbench.context())
    , m_toolWindows(new ToolWindows(this))
    , m_findings(new FindingsModel(this))
    , m_sortedFindings(new QSortFilterProxyModel(this))
{
    m_ui->setupUi(this);
    m_context.mainWindow = this;
    m_workbench.waiting().setWindow(this);
    m_ui->extensionPanel->hide();
    m_ui->extensionIcon->setPixmap(style()
                                       ->standardIcon(QStyle::SP_MessageBoxWarning)
                                       .pixmap(style()->pixelMetric(QStyle::PM_LargeIconSize)));

    setUpViews();
    setUpActions();
    setUpConfirmation();
    setUpStatusBar();

    connect(&m_workbench, &Workbench::choiceNeeded, this, &MainWindow::askForIeds);
    connect(&m_workbench, &Workbench::deviceOpened, this, &MainWindow::selectDevice);
    connect(&m_workbench, &Workbench::openFailed, this, &MainWindow::showFailures);
    connect(&m_workbench, &Workbench::loadingCancelled, this,
            [this] { statusBar()->showMessage(tr("Loading was cancelled."), messageTime); });
    showSelection();
    if (const QString problem = m_workbench.storeProblem(); !problem.isEmpty())
        statusBar()->showMessage(problem);
}

MainWindow::~MainWindow()
{
    m_workbench.confirmation().setAsk({});
    m_context.mainWindow = nullptr;
}

void MainWindow::setUpViews()
{
    QTreeView *devices = m_ui->deviceView;
    devices->setModel(&m_workbench.devices());
    setWidth(devices->header(), DeviceListModel::NameColumn, 150);
    setWidth(devices->header(), DeviceListModel::NumberColumn, 60);
    setWidth(devices->header(), DeviceListModel::SourceColumn, 180);
    setWidth(devices->header(), DeviceListModel::ValuesColumn, 80);
    devices->header()->setStretchLastSection(false);
    devices->header()->setSectionResizeMode(DeviceListModel::StateColumn, QHeaderView::Stretch);
    setWidth(devices->header(), DeviceListModel::IdentityColumn, 200);
    setWidth(devices->header(), DeviceListModel::RoundTripColumn, 80);
    setWidth(devices->header(), DeviceListModel::ReportsColumn, 70);
    connect(devices->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MainWindow::showSelection);
    connect(devices, &QTreeView::activated, this, [this] {
        if (!m_extensionActions.isEmpty())
            m_extensionActions.first()->trigger();
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

    m_sortedFindings->setSourceModel(m_findings);
    m_sortedFindings->setSortRole(FindingsModel::SortRole);
    m_ui->findingsView->setModel(m_sortedFindings);
    m_ui->findingsView->setSortingEnabled(true);
    m_ui->findingsView->sortByColumn(FindingsModel::LineColumn, Qt::AscendingOrder);
    QHeaderView *findingsHeader = m_ui->findingsView->header();
    setWidth(findingsHeader, FindingsModel::SeverityColumn, 100);
    setWidth(findingsHeader, FindingsModel::LineColumn, 60);
    setWidth(findingsHeader, FindingsModel::ElementColumn, 320);
    m_ui->findingsView->setItemDelegateForColumn(FindingsModel::ElementColumn,
                                                 new PathDelegate(m_ui->findingsView));

    QTreeView *journal = m_ui->journalView;
    journal->setModel(&m_workbench.journal());
    m_ui->journalView->setPlaceholder(
        tr("No call to the driver yet. Every request that a tool makes is listed here."));
    QHeaderView *journalHeader = journal->header();
    setWidth(journalHeader, JournalModel::TimeColumn, 110);
    setWidth(journalHeader, JournalModel::DeviceColumn, 150);
    setWidth(journalHeader, JournalModel::OperationColumn, 170);
    setWidth(journalHeader, JournalModel::ArgumentsColumn, 270);
    setWidth(journalHeader, JournalModel::DurationColumn, 90);
    journalHeader->setStretchLastSection(false);
    journalHeader->setSectionResizeMode(JournalModel::ResultColumn, QHeaderView::Stretch);
    followNewest(journal);

    QTreeView *changes = m_ui->changesView;
    changes->setModel(&m_workbench.changes());
    m_ui->changesView->setPlaceholder(
        tr("Nothing was changed on a device yet. Every write, command and transfer is listed "
           "here%1.")
            .arg(m_workbench.changes().file().isEmpty()
                     ? QString()
                     : tr(" and kept in\n%1")
                           .arg(QDir::toNativeSeparators(m_workbench.changes().file()))));
    QHeaderView *changesHeader = changes->header();
    setWidth(changesHeader, ChangeJournal::TimeColumn, 110);
    setWidth(changesHeader, ChangeJournal::DeviceColumn, 120);
    setWidth(changesHeader, ChangeJournal::OperationColumn, 130);
    setWidth(changesHeader, ChangeJournal::ReferenceColumn, 210);
    setWidth(changesHeader, ChangeJournal::OldValueColumn, 90);
    setWidth(changesHeader, ChangeJournal::NewValueColumn, 90);
    setWidth(changesHeader, ChangeJournal::CauseColumn, 130);
    changesHeader->setStretchLastSection(false);
    // What stretches must not vanish where the others need more room.
    changesHeader->setMinimumSectionSize(
        qMax(90, changesHeader->sectionSizeHint(ChangeJournal::ResultColumn)));
    changesHeader->setSectionResizeMode(ChangeJournal::ResultColumn, QHeaderView::Stretch);
    followNewest(changes);

    tabifyDockWidget(m_ui->journalDock, m_ui->changesDock);
    tabifyDockWidget(m_ui->changesDock, m_ui->findingsDock);
    m_ui->journalDock->raise();
    resizeDocks({m_ui->journalDock}, {260}, Qt::Vertical);
}

void MainWindow::setUpActions()
{
    m_ui->actionOpen->setIcon(style()->standardIcon(QStyle::SP_DialogOpenButton));
    m_ui->actionReload->setIcon(style()->standardIcon(QStyle::SP_BrowserReload));
    m_ui->actionRemove->setIcon(style()->standardIcon(QStyle::SP_TrashIcon));
    m_ui->actionQuit->setIcon(style()->standardIcon(QStyle::SP_DialogCloseButton));

    connect(m_ui->actionOpen, &QAction::triggered, this, &MainWindow::openFile);
    connect(m_ui->actionSimulate, &QAction::triggered, this, &MainWindow::simulateFile);
    connect(m_ui->emptyOpen, &QPushButton::clicked, this, &MainWindow::openFile);
    connect(m_ui->actionDemonstration, &QAction::triggered, &m_workbench,
            &Workbench::openDemonstration);
    connect(m_ui->emptyDemonstration, &QPushButton::clicked, &m_workbench,
            &Workbench::openDemonstration);
    connect(m_ui->actionQuit, &QAction::triggered, this, &QWidget::close);
    connect(m_ui->actionReload, &QAction::triggered, this,
            [this] { m_workbench.reload(selectedDevice()); });
    connect(m_ui->actionRemove, &QAction::triggered, this, &MainWindow::removeSelected);
    connect(m_ui->actionUndoRemove, &QAction::triggered, &m_workbench, &Workbench::undoRemove);
    connect(m_ui->actionAdd, &QAction::triggered, this, &MainWindow::addDevice);
    connect(m_ui->emptyAdd, &QPushButton::clicked, this, &MainWindow::addDevice);
    connect(m_ui->actionEdit, &QAction::triggered, this, &MainWindow::editSelected);
    connect(m_ui->actionTrace, &QAction::triggered, this, &MainWindow::showTrace);
    connect(m_ui->actionCapture, &QAction::triggered, this,
            [this] { saveCapture(selectedDevice()); });
    connect(m_ui->actionExport, &QAction::triggered, this,
            [this] { exportValues(selectedDevice()); });
    connect(m_ui->actionConnect, &QAction::triggered, this,
            [this] { m_workbench.connectDevice(selectedDevice()); });
    connect(m_ui->actionDisconnect, &QAction::triggered, this,
            [this] { m_workbench.disconnectDevice(selectedDevice()); });
    connect(m_ui->actionStartSimulation, &QAction::triggered, this,
            [this] { m_workbench.startSimulation(selectedDevice()); });
    connect(m_ui->actionStopSimulation, &QAction::triggered, this,
            [this] { m_workbench.stopSimulation(selectedDevice()); });
    connect(m_ui->actionReadOnly, &QAction::toggled, &m_workbench, &Workbench::setReadOnly);
    connect(&m_workbench, &Workbench::readOnlyChanged, this, &MainWindow::showReadOnly);
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

    m_ui->actionConnect->setIcon(style()->standardIcon(QStyle::SP_MediaPlay));
    m_ui->actionDisconnect->setIcon(style()->standardIcon(QStyle::SP_MediaStop));
    m_ui->actionAdd->setIcon(style()->standardIcon(QStyle::SP_DriveNetIcon));
    m_ui->journalView->addAction(m_ui->actionClearJournal);
    m_ui->changesView->addAction(m_ui->actionShowJournalFile);
    m_ui->menuView->insertActions(m_ui->actionClearJournal, {m_ui->findingsDock->toggleViewAction(),
                                                             m_ui->journalDock->toggleViewAction(),
                                                             m_ui->changesDock->toggleViewAction(),
                                                             m_ui->toolBar->toggleViewAction()});
    m_ui->menuView->insertSeparator(m_ui->actionClearJournal);
    m_ui->menuTools->menuAction()->setEnabled(false);
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

void MainWindow::setUpStatusBar()
{
    m_readOnly = new QLabel(tr("Read-only: nothing is changed on devices"), this);
    m_readOnly->setObjectName(QStringLiteral("readOnlyMark"));
    m_readOnly->setStyleSheet(QStringLiteral("background: #f4c430; color: black; padding: 1px "
                                             "8px"));
    statusBar()->addPermanentWidget(m_readOnly);
    showReadOnly();

    m_away = new QLabel(this);
    m_away->setObjectName(QStringLiteral("awayMark"));
    m_away->setTextFormat(Qt::PlainText);
    m_away->setStyleSheet(QStringLiteral("background: #b00020; color: white; padding: 1px 8px"));
    statusBar()->addPermanentWidget(m_away);
    showAway();
    for (const auto changed : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&m_workbench.devices(), changed, this, &MainWindow::showAway);
    connect(&m_workbench.devices(), &QAbstractItemModel::dataChanged, this, &MainWindow::showAway);

    m_progressText = new QLabel(this);
    m_progressText->setTextFormat(Qt::PlainText);
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QStringLiteral("loadingProgress"));
    m_progress->setRange(0, progressRange);
    m_progress->setMaximumWidth(240);
    m_cancel = new QToolButton(this);
    m_cancel->setText(tr("Cancel"));
    m_cancel->setObjectName(QStringLiteral("cancelLoading"));
    for (QWidget *widget : {static_cast<QWidget *>(m_progressText),
                            static_cast<QWidget *>(m_progress), static_cast<QWidget *>(m_cancel)}) {
        statusBar()->addPermanentWidget(widget);
        widget->hide();
    }

    DeviceLoader &loader = m_workbench.loader();
    connect(&loader, &DeviceLoader::slow, this, [this] {
        m_loadIsSlow = true;
        showProgress();
    });
    connect(&loader, &DeviceLoader::idle, this, [this] {
        m_loadIsSlow = false;
        showProgress();
    });
    connect(&loader, &DeviceLoader::progressed, this, [this](const QString &file, int permille) {
        const QString name = QFileInfo(file).fileName();
        const int left = m_workbench.loader().remaining();
        m_progressText->setText(
            left > 1 ? tr("Reading %1 (%2 files left)").arg(name, QString::number(left))
                     : tr("Reading %1").arg(name));
        m_progress->setValue(permille);
    });
    connect(&m_workbench.devices(), &QAbstractItemModel::dataChanged, this,
            &MainWindow::showProgress);
    connect(&m_workbench.devices(), &QAbstractItemModel::rowsRemoved, this,
            &MainWindow::showProgress);
    connect(m_cancel, &QToolButton::clicked, this, [this] {
        if (m_loadIsSlow)
            m_workbench.loader().cancel();
        else if (const DeviceListModel::Device *device = readingDevice(m_workbench.devices()))
            m_workbench.driver().cancelReading(device->record.number());
    });
    connect(&m_workbench.changes(), &ChangeJournal::problemChanged, this,
            [this] { statusBar()->showMessage(m_workbench.changes().problem()); });
}

/// A file that is read slowly, or else a device whose model is being read.
void MainWindow::showProgress()
{
    const DeviceListModel::Device *device =
        m_loadIsSlow ? nullptr : readingDevice(m_workbench.devices());
    if (device) {
        const DeviceStatus &status = device->status;
        m_progressText->setText(tr("Reading the model of %1").arg(device->record.name()));
        m_progress->setValue(
            status.modelSteps > 0 ? progressRange * status.modelStepsDone / status.modelSteps : 0);
    }
    for (QWidget *widget : {static_cast<QWidget *>(m_progressText),
                            static_cast<QWidget *>(m_progress), static_cast<QWidget *>(m_cancel)})
        widget->setVisible(m_loadIsSlow || device);
}

void MainWindow::showReadOnly()
{
    m_ui->actionReadOnly->setChecked(m_workbench.isReadOnly());
    m_readOnly->setVisible(m_workbench.isReadOnly());
}

void MainWindow::showAway()
{
    const DeviceListModel::Away away = m_workbench.devices().away();
    m_away->setVisible(!away.names.isEmpty());
    const QString since = QLocale().toString(away.since, QLocale::ShortFormat);
    m_away->setText(away.names.size() == 1
                        ? tr("%1 is away since %2").arg(away.names.first(), since)
                        : tr("Devices away: %1, the first since %2")
                              .arg(QString::number(away.names.size()), since));
    m_away->setToolTip(plainTip(away.names.join(QLatin1Char('\n'))));
}

void MainWindow::loadExtension()
{
    m_extension = ::loadExtension(m_pluginFolder);
    m_ui->extensionPanel->setVisible(m_extension.extension == nullptr);
    if (!m_extension.extension) {
        m_ui->extensionText->setText(tr("The IEC 61850 tools are not available.\n%1\n%2 %3")
                                         .arg(QDir::toNativeSeparators(m_extension.file),
                                              m_extension.reason, m_extension.remedy));
        return;
    }
    const QList<QAction *> actions = m_extension.extension->actions();
    for (QAction *action : actions)
        offerExtensionAction(action);
    m_ui->menuTools->menuAction()->setEnabled(!m_extensionActions.isEmpty());
    showSelection();
}

void MainWindow::offerExtensionAction(QAction *action)
{
    auto *offered = new QAction(this);
    const auto mirror = [action, offered] {
        offered->setText(action->text());
        offered->setIcon(action->icon());
        offered->setToolTip(action->toolTip());
    };
    mirror();
    connect(action, &QAction::changed, offered, mirror);
    connect(action, &QAction::changed, this, &MainWindow::showSelection);
    connect(action, &QObject::destroyed, offered, [offered] { offered->setEnabled(false); });
    connect(offered, &QAction::triggered, action, [this, action] {
        const int number = selectedDevice();
        const DeviceListModel::Device *device = m_workbench.devices().device(number);
        m_extension.extension->setTaskContext(EmbeddedConsole::driverNo, number, 0, &m_context);
        m_toolWindows->run(device ? device->record.name() : QString(),
                           [action] { action->trigger(); });
    });
    constexpr int lastDigit = 9;
    if (m_extensionActions.size() < lastDigit) {
        offered->setShortcut(
            QKeySequence(int(Qt::CTRL) + int(Qt::Key_1) + m_extensionActions.size()));
    }
    m_extensionActions << offered;
    m_ui->menuTools->addAction(offered);
    m_ui->toolBar->addAction(offered);
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
    const int number = selectedDevice();
    const DeviceListModel::Device *device = m_workbench.devices().device(number);
    const bool ready = device && device->state == DeviceListModel::Ready;
    const bool isReached = device && device->record.isReached();
    const bool isSimulated = device && device->record.simulated;

    m_ui->actionRemove->setEnabled(device != nullptr);
    showUndo();
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
    if (m_extension.extension) {
        const QList<QAction *> actions = m_extension.extension->actions();
        for (int i = 0; i < m_extensionActions.size() && i < actions.size(); ++i)
            m_extensionActions[i]->setEnabled(device && device->isUsable() &&
                                              actions[i]->isEnabled());
        m_extension.extension->setTaskContext(EmbeddedConsole::driverNo, number, 0, &m_context);
    }

    m_findings->setFindings(device ? device->findings : QVector<scl::Finding>());
    if (!device) {
        m_ui->findingsDock->setWindowTitle(tr("Findings"));
        m_ui->findingsView->setPlaceholder(
            tr("Select a device to see what was noticed while its file was read."));
        return;
    }
    const QString summary = m_findings->summary();
    m_ui->findingsDock->setWindowTitle(
        summary.isEmpty() ? tr("Findings: %1").arg(device->record.name())
                          : tr("Findings: %1 (%2)").arg(device->record.name(), summary));
    if (ready && device->record.file().isEmpty()) {
        m_ui->findingsView->setPlaceholder(
            tr("This device has no SCL file; its model is read from the device itself."));
    } else if (ready && device->record.isReached() && !device->record.simulated) {
        m_ui->findingsView->setPlaceholder(
            tr("The SCL file of this device was only compared with the device. Open it as an SCL "
               "file to see its findings."));
    } else if (ready) {
        m_ui->findingsView->setPlaceholder(
            tr("No findings: everything in the file of this device was understood."));
    } else if (device->state == DeviceListModel::Failed) {
        m_ui->findingsView->setPlaceholder(
            tr("The model cannot be read. %1\nRead it again with %2, or remove the device from the "
               "list.")
                .arg(device->reason,
                     m_ui->actionReload->shortcut().toString(QKeySequence::NativeText)));
    } else {
        m_ui->findingsView->setPlaceholder({});
    }
}

void MainWindow::showDeviceMenu(const QPoint &position)
{
    if (!m_ui->deviceView->indexAt(position).isValid())
        return;
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(m_extensionActions);
    menu->addSeparator();
    menu->addActions(m_ui->menuDevice->actions());
    menu->removeAction(m_ui->actionAdd);
    menu->removeAction(m_ui->actionUndoRemove);
    menu->removeAction(m_ui->actionReadOnly);
    menu->popup(m_ui->deviceView->viewport()->mapToGlobal(position));
}

void MainWindow::openFile()
{
    askForFiles(tr("Open SCL File"), [this](const QString &file) { m_workbench.open(file); });
}

void MainWindow::simulateFile()
{
    askForFiles(tr("Start Simulated Device"),
                [this](const QString &file) { m_workbench.simulate(file); });
}

void MainWindow::askForFiles(const QString &title, const std::function<void(const QString &)> &take)
{
    auto *dialog = new QFileDialog(this, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setNameFilters({tr("SCL files (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID "
                               "*.SCD *.SED *.SSD *.xml)"),
                            tr("All files (*)")});
    if (const DeviceListModel::Device *device = m_workbench.devices().device(selectedDevice());
        device && !device->record.file().isEmpty() &&
        QFileInfo(device->record.file()).dir().exists() &&
        !device->record.file().startsWith(QLatin1Char(':'))) {
        dialog->setDirectory(QFileInfo(device->record.file()).dir());
    }
    connect(dialog, &QFileDialog::filesSelected, this, [take](const QStringList &files) {
        for (const QString &file : files)
            take(file);
    });
    dialog->open();
}

void MainWindow::askForIeds(const QString &file, const QVector<IedSummary> &ieds, bool simulated)
{
    m_questions.append({file, ieds, simulated});
    if (m_questions.size() == 1)
        showNextQuestion();
}

void MainWindow::showNextQuestion()
{
    const Question question = m_questions.first();
    auto *chooser = new IedChooser(question.file, question.ieds, this);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    connect(chooser, &QDialog::finished, this, [this, chooser, question](int result) {
        if (result == QDialog::Accepted) {
            const QStringList names = chooser->chosenIeds();
            for (const QString &name : names) {
                if (question.simulated)
                    m_workbench.simulate(question.file, name);
                else
                    m_workbench.open(question.file, name);
            }
        }
        m_questions.removeFirst();
        if (!m_questions.isEmpty())
            showNextQuestion();
    });
    chooser->open();
}

void MainWindow::showFailures(const QStringList &sentences)
{
    constexpr int longestList = 8;
    QStringList shown = sentences.mid(0, longestList);
    if (const auto more = sentences.size() - shown.size(); more > 0)
        shown << tr("Further files that cannot be used: %1").arg(more);
    auto *box = new QMessageBox(QMessageBox::Warning, tr("Open SCL File"),
                                shown.join(QStringLiteral("\n\n")), QMessageBox::Ok, this);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void MainWindow::removeSelected()
{
    const DeviceListModel::Device *device = m_workbench.devices().device(selectedDevice());
    if (!device)
        return;
    const int number = device->record.number();
    auto *box = new QMessageBox(QMessageBox::Question, tr("Remove Device"),
                                tr("Take %1 off the list?").arg(device->record.name()),
                                QMessageBox::Cancel, this);
    box->setObjectName(QStringLiteral("removeQuestion"));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(device->isWanted()
                                ? tr("Its connection ends, and windows that are open for it are no "
                                     "longer served.")
                                : tr("Windows that are open for it are no longer served."));
    QPushButton *const remove = box->addButton(tr("&Remove"), QMessageBox::AcceptRole);
    box->setDefaultButton(QMessageBox::Cancel);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QMessageBox::buttonClicked, this,
            [this, remove, number](const QAbstractButton *pressed) {
                if (pressed == remove)
                    this->remove(number);
            });
    box->open();
}

void MainWindow::remove(int number)
{
    const DeviceListModel::Device *device = m_workbench.devices().device(number);
    if (!device)
        return;
    const QString undo = m_ui->actionUndoRemove->shortcut().toString(QKeySequence::NativeText);
    const QString message =
        (device->record.file().isEmpty()
             ? tr("%1 was taken off the list; %2 puts it back.")
             : tr("%1 was taken off the list; its file stays where it is, and %2 puts it back."))
            .arg(device->record.name(), undo);
    m_workbench.remove(number);
    showUndo();
    statusBar()->showMessage(message, messageTime);
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

void MainWindow::addDevice()
{
    showDeviceDialog({});
}

void MainWindow::editSelected()
{
    if (const DeviceListModel::Device *device = m_workbench.devices().device(selectedDevice()))
        showDeviceDialog(device->record);
}

void MainWindow::showDeviceDialog(const DeviceRecord &record)
{
    auto *dialog = new DeviceDialog(
        record, [this](const DeviceRecord &wanted) { return m_workbench.put(wanted); },
        [&driver = m_workbench.driver()](const DeviceConfiguration &configuration) {
            return driver.test(configuration);
        },
        m_jobs, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::showTrace()
{
    const DeviceListModel::Device *device = m_workbench.devices().device(selectedDevice());
    if (!device)
        return;
    auto *trace =
        new TraceDialog(m_workbench.driver(), device->record.number(), device->record.name(), this);
    trace->setAttribute(Qt::WA_DeleteOnClose);
    connect(trace, &TraceDialog::captureWanted, this, &MainWindow::saveCapture);
    trace->show();
}

void MainWindow::saveCapture(int number)
{
    const DeviceListModel::Device *device = m_workbench.devices().device(number);
    if (!device)
        return;
    writeFile(tr("Save Capture"), device->record.name() + QStringLiteral(".pcapng"),
              tr("Captures (*.pcapng)"), [&driver = m_workbench.driver(), number](QIODevice &out) {
                  return driver.saveCapture(number, out);
              });
}

void MainWindow::exportValues(int number)
{
    const DeviceListModel::Device *device = m_workbench.devices().device(number);
    if (!device)
        return;
    writeFile(tr("Export Values"), device->record.name() + QStringLiteral(".csv"),
              tr("Tables (*.csv)"), [&driver = m_workbench.driver(), number](QIODevice &out) {
                  return driver.exportValues(number, out);
              });
}

void MainWindow::writeFile(const QString &title, const QString &name, const QString &filter,
                           const std::function<QString(QIODevice &)> &write)
{
    auto *dialog = new QFileDialog(this, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilters({filter, tr("All files (*)")});
    dialog->setDefaultSuffix(QFileInfo(name).suffix());
    dialog->selectFile(name);
    connect(dialog, &QFileDialog::fileSelected, this, [this, title, write](const QString &path) {
        const auto problem = std::make_shared<QString>();
        const auto work = [problem, path, write] {
            QSaveFile file(path);
            const bool isOpen = file.open(QIODevice::WriteOnly);
            if (isOpen)
                *problem = write(file);
            if (problem->isEmpty() && (!isOpen || !file.flush() || !file.commit())) {
                *problem = tr("\"%1\" cannot be written: %2")
                               .arg(QDir::toNativeSeparators(path), file.errorString());
            }
        };
        m_jobs.run(work, this, [this, title, problem, path] {
            if (problem->isEmpty()) {
                statusBar()->showMessage(
                    tr("\"%1\" was written.").arg(QDir::toNativeSeparators(path)), messageTime);
                return;
            }
            auto *box =
                new QMessageBox(QMessageBox::Warning, title, *problem, QMessageBox::Ok, this);
            box->setTextFormat(Qt::PlainText);
            box->setAttribute(Qt::WA_DeleteOnClose);
            box->open();
        });
    });
    dialog->open();
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
