// SPDX-License-Identifier: Apache-2.0
#include "mainwindow.h"

#include "guideviewer.h"
#include "iedchooser.h"
#include "ui_mainwindow.h"
#include "workbench.h"

#include <host/driverprotocolextentioninterface.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtCore/QSortFilterProxyModel>
#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProgressBar>
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

} // namespace

MainWindow::MainWindow(Workbench &workbench, const QString &pluginFolder, QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::MainWindow>())
    , m_workbench(workbench)
    , m_pluginFolder(pluginFolder)
    , m_context(workbench.context())
    , m_findings(new FindingsModel(this))
    , m_sortedFindings(new QSortFilterProxyModel(this))
{
    m_ui->setupUi(this);
    m_context.mainWindow = this;
    m_ui->extensionPanel->hide();
    m_ui->extensionIcon->setPixmap(style()
                                       ->standardIcon(QStyle::SP_MessageBoxWarning)
                                       .pixmap(style()->pixelMetric(QStyle::PM_LargeIconSize)));

    setUpViews();
    setUpActions();
    setUpProgress();

    connect(&m_workbench, &Workbench::choiceNeeded, this, &MainWindow::askForIeds);
    connect(&m_workbench, &Workbench::deviceOpened, this, &MainWindow::selectDevice);
    connect(&m_workbench, &Workbench::openFailed, this, &MainWindow::showFailures);
    connect(&m_workbench, &Workbench::loadingCancelled, this,
            [this] { statusBar()->showMessage(tr("Loading was cancelled."), messageTime); });
    showSelection();
}

MainWindow::~MainWindow()
{
    m_context.mainWindow = nullptr;
}

void MainWindow::setUpViews()
{
    QTreeView *devices = m_ui->deviceView;
    devices->setModel(&m_workbench.devices());
    setWidth(devices->header(), DeviceListModel::NameColumn, 200);
    setWidth(devices->header(), DeviceListModel::NumberColumn, 60);
    setWidth(devices->header(), DeviceListModel::SourceColumn, 280);
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
    const auto follow = std::make_shared<bool>(true);
    connect(&m_workbench.journal(), &QAbstractItemModel::rowsAboutToBeInserted, this,
            [journal, follow] {
                const QScrollBar *bar = journal->verticalScrollBar();
                *follow = bar->value() == bar->maximum();
            });
    connect(&m_workbench.journal(), &QAbstractItemModel::rowsInserted, this, [journal, follow] {
        if (*follow)
            journal->scrollToBottom();
    });

    splitDockWidget(m_ui->findingsDock, m_ui->journalDock, Qt::Vertical);
    resizeDocks({m_ui->findingsDock, m_ui->journalDock}, {180, 180}, Qt::Vertical);
}

void MainWindow::setUpActions()
{
    m_ui->actionOpen->setIcon(style()->standardIcon(QStyle::SP_DialogOpenButton));
    m_ui->actionReload->setIcon(style()->standardIcon(QStyle::SP_BrowserReload));
    m_ui->actionRemove->setIcon(style()->standardIcon(QStyle::SP_TrashIcon));
    m_ui->actionQuit->setIcon(style()->standardIcon(QStyle::SP_DialogCloseButton));

    connect(m_ui->actionOpen, &QAction::triggered, this, &MainWindow::openFile);
    connect(m_ui->emptyOpen, &QPushButton::clicked, this, &MainWindow::openFile);
    connect(m_ui->actionDemonstration, &QAction::triggered, &m_workbench,
            &Workbench::openDemonstration);
    connect(m_ui->emptyDemonstration, &QPushButton::clicked, &m_workbench,
            &Workbench::openDemonstration);
    connect(m_ui->actionQuit, &QAction::triggered, this, &QWidget::close);
    connect(m_ui->actionReload, &QAction::triggered, this,
            [this] { m_workbench.reload(selectedDevice()); });
    connect(m_ui->actionRemove, &QAction::triggered, this, &MainWindow::removeSelected);
    connect(m_ui->actionClearJournal, &QAction::triggered, this,
            [this] { m_workbench.journal().clear(); });
    connect(m_ui->actionGuide, &QAction::triggered, this, &MainWindow::showGuide);
    connect(m_ui->actionAbout, &QAction::triggered, this, &MainWindow::showAbout);
    connect(m_ui->extensionRetry, &QPushButton::clicked, this, &MainWindow::loadExtension);

    m_ui->journalView->addAction(m_ui->actionClearJournal);
    m_ui->menuView->insertActions(m_ui->actionClearJournal, {m_ui->findingsDock->toggleViewAction(),
                                                             m_ui->journalDock->toggleViewAction(),
                                                             m_ui->toolBar->toggleViewAction()});
    m_ui->menuView->insertSeparator(m_ui->actionClearJournal);
    m_ui->menuTools->menuAction()->setEnabled(false);
}

void MainWindow::setUpProgress()
{
    m_progressText = new QLabel(this);
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
    connect(m_cancel, &QToolButton::clicked, &loader, &DeviceLoader::cancel);
    const auto show = [this](bool visible) {
        m_progressText->setVisible(visible);
        m_progress->setVisible(visible);
        m_cancel->setVisible(visible);
    };
    connect(&loader, &DeviceLoader::slow, this, [show] { show(true); });
    connect(&loader, &DeviceLoader::idle, this, [show] { show(false); });
    connect(&loader, &DeviceLoader::progressed, this, [this](const QString &file, int permille) {
        const QString name = QFileInfo(file).fileName();
        const int left = m_workbench.loader().remaining();
        m_progressText->setText(
            left > 1 ? tr("Reading %1 (%2 files left)").arg(name, QString::number(left))
                     : tr("Reading %1").arg(name));
        m_progress->setValue(permille);
    });
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
        m_extension.extension->setTaskContext(EmbeddedConsole::driverNo, selectedDevice(), 0,
                                              &m_context);
        action->trigger();
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
    return device ? device->record.number : 0;
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

    m_ui->actionRemove->setEnabled(device != nullptr);
    m_ui->actionReload->setEnabled(device && device->state != DeviceListModel::Loading);
    if (m_extension.extension) {
        const QList<QAction *> actions = m_extension.extension->actions();
        for (int i = 0; i < m_extensionActions.size() && i < actions.size(); ++i)
            m_extensionActions[i]->setEnabled(ready && actions[i]->isEnabled());
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
        summary.isEmpty() ? tr("Findings: %1").arg(device->record.ied)
                          : tr("Findings: %1 (%2)").arg(device->record.ied, summary));
    if (ready) {
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
    menu->addAction(m_ui->actionReload);
    menu->addAction(m_ui->actionRemove);
    menu->popup(m_ui->deviceView->viewport()->mapToGlobal(position));
}

void MainWindow::openFile()
{
    auto *dialog = new QFileDialog(this, tr("Open SCL File"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setNameFilters({tr("SCL files (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID "
                               "*.SCD *.SED *.SSD *.xml)"),
                            tr("All files (*)")});
    if (const DeviceListModel::Device *device = m_workbench.devices().device(selectedDevice());
        device && QFileInfo(device->record.file).dir().exists() &&
        !device->record.file.startsWith(QLatin1Char(':'))) {
        dialog->setDirectory(QFileInfo(device->record.file).dir());
    }
    connect(dialog, &QFileDialog::filesSelected, this, [this](const QStringList &files) {
        for (const QString &file : files)
            m_workbench.open(file);
    });
    dialog->open();
}

void MainWindow::askForIeds(const QString &file, const QVector<IedSummary> &ieds)
{
    m_questions.append({file, ieds});
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
            for (const QString &name : names)
                m_workbench.open(question.file, name);
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
    const QString message =
        tr("%1 was taken off the list; its file stays where it is.").arg(device->record.ied);
    m_workbench.remove(device->record.number);
    statusBar()->showMessage(message, messageTime);
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
