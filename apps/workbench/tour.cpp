// SPDX-License-Identifier: Apache-2.0
#include "tour.h"

#include "mainwindow.h"
#include "workbench.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

#include <chrono>
#include <functional>

namespace {

constexpr std::chrono::seconds patience{20};
constexpr std::chrono::milliseconds pollInterval{5};
constexpr int typeColumn = 2;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Tour)
};

/// Runs an event loop until the condition holds; false when that takes too long.
bool waitFor(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(patience);
    QEventLoop loop;
    QTimer poll;
    poll.setInterval(pollInterval);
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (condition() || deadline.hasExpired())
            loop.quit();
    });
    if (condition())
        return true;
    poll.start();
    loop.exec();
    return condition();
}

QString nameOf(const QWidget *widget)
{
    if (const auto *box = qobject_cast<const QMessageBox *>(widget))
        return Texts::tr("a message: \"%1: %2\"").arg(box->windowTitle(), box->text());
    return Texts::tr("the window \"%1\"").arg(widget->windowTitle());
}

void dismiss(QWidget *widget)
{
    if (auto *dialog = qobject_cast<QDialog *>(widget))
        dialog->reject();
    else
        widget->close();
}

/// Attends to the modal windows and menus that appear while it lives: hands each to `visit` once it
/// is on the screen, then closes it. Without this a modal dialog would keep the tour waiting for
/// ever.
class ModalAttendant
{
public:
    explicit ModalAttendant(std::function<void(QWidget *)> visit)
        : m_visit(std::move(visit))
    {
        m_poll.setInterval(pollInterval);
        QObject::connect(&m_poll, &QTimer::timeout, &m_poll, [this] {
            QWidget *modal = QApplication::activePopupWidget();
            if (!modal)
                modal = QApplication::activeModalWidget();
            if (!modal || !modal->isVisible() || m_visited.contains(modal))
                return;
            m_visited.append(modal);
            m_visit(modal);
            m_visited.removeLast();
            dismiss(modal);
        });
        m_poll.start();
    }

private:
    std::function<void(QWidget *)> m_visit;
    QWidgetList m_visited; ///< at the moment; a visit may open a further window
    QTimer m_poll;
};

QWidget *visibleWindow(const QString &objectName)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == objectName && window->isVisible())
            return window;
    }
    return nullptr;
}

/// The first node, depth first, whose cell in the column has that text.
QModelIndex findNode(const QAbstractItemModel &model, const QModelIndex &below, int column,
                     const QString &text)
{
    for (int row = 0; row < model.rowCount(below); ++row) {
        const QModelIndex child = model.index(row, 0, below);
        if (child.sibling(row, column).data().toString() == text)
            return child;
        if (const QModelIndex found = findNode(model, child, column, text); found.isValid())
            return found;
    }
    return {};
}

void expandBelow(QTreeView &tree, const QModelIndex &index)
{
    tree.expand(index);
    for (int row = 0; row < tree.model()->rowCount(index); ++row)
        expandBelow(tree, tree.model()->index(row, 0, index));
}

void press(QTreeView &tree, const QModelIndex &index, QEvent::Type type)
{
    const QPointF position = tree.visualRect(index).center();
    const QPointF global = tree.viewport()->mapToGlobal(position.toPoint());
    QMouseEvent event(type, position, global, Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(tree.viewport(), &event);
}

void click(QTreeView &tree, const QModelIndex &index)
{
    tree.scrollTo(index);
    press(tree, index, QEvent::MouseButtonPress);
    press(tree, index, QEvent::MouseButtonRelease);
}

void doubleClick(QTreeView &tree, const QModelIndex &index)
{
    click(tree, index);
    press(tree, index, QEvent::MouseButtonDblClick);
    press(tree, index, QEvent::MouseButtonRelease);
}

void expandUpTo(QTreeView &tree, const QModelIndex &index)
{
    for (QModelIndex node = index; node.isValid(); node = node.parent())
        tree.expand(node);
}

/// The position of the first switch controller.
QModelIndex findSwitch(const QTreeView &tree)
{
    const QAbstractItemModel &model = *tree.model();
    const QModelIndex controller =
        findNode(model, model.index(0, 0), typeColumn, QStringLiteral("CSWI"));
    return controller.isValid() ? findNode(model, controller, 0, QStringLiteral("Pos"))
                                : QModelIndex();
}

} // namespace

Tour::Tour(Workbench &workbench, MainWindow &window, const QString &folder)
    : m_workbench(workbench)
    , m_window(window)
    , m_folder(folder)
{
    // Nobody is there to wonder, and the window would be taken for a tool's.
    constexpr std::chrono::hours longest{1};
    m_workbench.waiting().setPatience(longest);
}

bool Tour::run()
{
    if (!QDir().mkpath(m_folder))
        return fail(Texts::tr("The folder \"%1\" cannot be made.").arg(m_folder));
    if (!m_window.extension().extension) {
        return fail(Texts::tr("The plug-in \"%1\" is not available: %2")
                        .arg(m_window.extension().file, m_window.extension().reason));
    }
    return openDevices() && showWithoutConnection() && showConnected();
}

bool Tour::showWithoutConnection()
{
    const bool shown = openBrowser() &&
                       showSettingGroups(QStringLiteral("OfflineSGCB"),
                                         QStringLiteral("offline-setting-groups")) &&
                       showReportControl(QStringLiteral("offline-report-control"));
    if (m_tree)
        m_tree->window()->close();
    return shown;
}

bool Tour::showConnected()
{
    if (!connectDevice())
        return false;
    const bool shown =
        openBrowser() && showBrowser() && showContextMenu() && showFunctionalConstraint() &&
        showControl() && showDataSetMembers() &&
        showReportControl(QStringLiteral("report-control")) &&
        showSettingGroups(QStringLiteral("SGCBDialog"), QStringLiteral("setting-groups")) &&
        showFileService();
    if (m_tree)
        m_tree->window()->close();
    return shown && showDeviceForm() && showTrace() && showWorkbench();
}

bool Tour::openDevices()
{
    m_window.show();
    const auto wasRead = [this] { return !m_workbench.loader().isBusy(); };
    m_workbench.open(Workbench::demonstrationFile);
    if (!waitFor(wasRead))
        return fail(Texts::tr("The demonstration device was not read in time."));
    m_device = m_window.selectedDevice();
    const DeviceListModel::Device *device = m_workbench.devices().device(m_device);
    if (!device || device->state != DeviceListModel::Ready)
        return fail(Texts::tr("The demonstration device cannot be read."));

    const QString unfinished = m_files.filePath(QStringLiteral("unfinished.icd"));
    QFile::copy(QStringLiteral(":/workbench/unfinished.icd"), unfinished);
    m_workbench.open(unfinished);
    if (!waitFor(wasRead) || m_workbench.devices().rowCount() != 2)
        return fail(Texts::tr("The second device cannot be read."));
    m_window.selectDevice(m_device);
    return true;
}

bool Tour::connectDevice()
{
    m_workbench.openDemonstration();
    const DeviceListModel &devices = m_workbench.devices();
    const auto isOnline = [this, &devices] {
        m_device = m_window.selectedDevice();
        const DeviceListModel::Device *device = devices.device(m_device);
        return device && device->record.simulated && device->isUsable() &&
               device->status.counters.publishedValues > 0;
    };
    return waitFor(isOnline) || fail(Texts::tr("The simulated device was not connected in time."));
}

/// The tool's action; null, and the tour has failed, when the plug-in does not offer it.
QAction *Tour::tool(int position)
{
    const QList<QAction *> actions = m_window.extensionActions();
    if (position < actions.size() && actions[position]->isEnabled())
        return actions[position];
    fail(Texts::tr("The plug-in offers no tool number %1 for the demonstration device.")
             .arg(position + 1));
    return nullptr;
}

bool Tour::openBrowser()
{
    m_tree = nullptr;
    const QString name = QStringLiteral("IEDModelView");
    QAction *action = tool(0);
    if (!action)
        return false;
    QString surprise;
    {
        const ModalAttendant attendant([&](QWidget *modal) { surprise = nameOf(modal); });
        action->trigger();
    }
    if (!surprise.isEmpty())
        return fail(Texts::tr("Instead of the IED browser came %1.").arg(surprise));
    if (!waitFor([&] { return visibleWindow(name) != nullptr; }))
        return fail(Texts::tr("The IED browser did not appear."));
    QWidget *browser = visibleWindow(name);
    m_tree = browser->findChild<QTreeView *>(QStringLiteral("modelView"));
    if (!m_tree)
        return fail(Texts::tr("The IED browser has no tree."));
    browser->resize(900, 640);
    return true;
}

bool Tour::showBrowser()
{
    arrangeBrowser();
    return save(m_tree->window(), QStringLiteral("browser"));
}

void Tour::arrangeBrowser()
{
    const QAbstractItemModel &model = *m_tree->model();
    m_tree->collapseAll();
    const QModelIndex root = model.index(0, 0);
    m_tree->expand(root);
    const QModelIndex breaker = findNode(model, root, typeColumn, QStringLiteral("XCBR"));
    if (breaker.isValid()) {
        expandUpTo(*m_tree, breaker);
        for (const QString &name : {QStringLiteral("Beh"), QStringLiteral("Pos")}) {
            const QModelIndex node = findNode(model, breaker, 0, name);
            if (node.isValid())
                expandBelow(*m_tree, node);
        }
        m_tree->setCurrentIndex(breaker);
    }
    m_tree->resizeColumnToContents(0);
    m_tree->scrollTo(breaker, QAbstractItemView::PositionAtTop);
}

/// The menu of a switch that is selected before it is operated.
bool Tour::showContextMenu()
{
    const QModelIndex position = findSwitch(*m_tree);
    if (!position.isValid())
        return fail(Texts::tr("The demonstration device has no switch."));
    expandUpTo(*m_tree, position.parent());
    click(*m_tree, position);
    bool saved = false;
    const ModalAttendant attendant([&](QWidget *menu) {
        QWidget *browser = m_tree->window();
        QPixmap picture = browser->grab();
        QPainter(&picture).drawPixmap(browser->mapFromGlobal(menu->pos()), menu->grab());
        saved = qobject_cast<QMenu *>(menu) && savePixmap(picture, QStringLiteral("context-menu"));
    });
    const QPoint where = m_tree->visualRect(position).center() + QPoint(40, 0);
    QContextMenuEvent event(QContextMenuEvent::Mouse, where,
                            m_tree->viewport()->mapToGlobal(where));
    QApplication::sendEvent(m_tree->viewport(), &event);
    return saved || fail(Texts::tr("The context menu did not appear."));
}

bool Tour::showFunctionalConstraint()
{
    const QModelIndex node = findSwitch(*m_tree).parent();
    const QString dialog = QStringLiteral("SelectFCDialog");
    return showDialog([&] { triggerInBrowser("Read", node); }, dialog,
                      QStringLiteral("functional-constraint")) ||
           fail(Texts::tr("The window \"%1\" did not appear.").arg(dialog));
}

bool Tour::showControl()
{
    const QModelIndex position = findSwitch(*m_tree);
    const QString dialog = QStringLiteral("ControlCo");
    return showDialog([&] { triggerInBrowser("Select", position); }, dialog,
                      QStringLiteral("control")) ||
           fail(Texts::tr("The window \"%1\" did not appear.").arg(dialog));
}

bool Tour::showDataSetMembers()
{
    const QAbstractItemModel &model = *m_tree->model();
    const QModelIndex group = findNode(model, model.index(0, 0), 0, QStringLiteral("DataSet"));
    const QString dialog = QStringLiteral("DatasetSelectWidget");
    const Preparation tickSome = [](QWidget *window) {
        window->findChild<QLineEdit *>()->setText(QStringLiteral("Switching"));
        const auto *tree = window->findChild<QTreeWidget *>();
        const QTreeWidgetItem *device = tree->topLevelItem(0);
        for (int row = 0; row < device->childCount(); ++row) {
            QTreeWidgetItem *status = device->child(row)->child(0);
            for (int object = 0; status && object < status->childCount(); ++object) {
                QTreeWidgetItem *item = status->child(object);
                if (item->text(0) != QLatin1String("Pos"))
                    continue;
                device->child(row)->setExpanded(true);
                status->setExpanded(true);
                item->setCheckState(0, Qt::Checked);
            }
        }
        window->resize(window->width(), window->width());
    };
    return showDialog([&] { triggerInBrowser("Create Persistent DataSet", group); }, dialog,
                      QStringLiteral("data-set-members"), tickSome) ||
           fail(Texts::tr("The window \"%1\" did not appear.").arg(dialog));
}

bool Tour::showSettingGroups(const QString &dialogName, const QString &picture)
{
    const QAbstractItemModel &model = *m_tree->model();
    const QModelIndex root = model.index(0, 0);
    const Preparation waitForSettings = [](QWidget *window) {
        const auto *settings = window->findChild<QAbstractItemView *>();
        waitFor([&] { return !settings || settings->model()->rowCount() > 0; });
        window->resize(window->width(), window->width());
    };
    const bool isOnline = dialogName == QLatin1String("SGCBDialog");
    for (int ld = 0; ld < model.rowCount(root); ++ld) {
        const QModelIndex lln0 =
            findNode(model, model.index(ld, 0, root), typeColumn, QStringLiteral("LLN0"));
        // The setting group control block comes first where a logical device has one.
        const QModelIndex first = lln0.isValid() ? model.index(0, 0, lln0) : QModelIndex();
        if (first.isValid() &&
            showDialog(
                [&] {
                    expandUpTo(*m_tree, first);
                    doubleClick(*m_tree, first);
                },
                dialogName, picture, isOnline ? waitForSettings : Preparation())) {
            return true;
        }
        if (!m_problem.isEmpty())
            return false;
    }
    return fail(Texts::tr("The window \"%1\" did not appear.").arg(dialogName));
}

bool Tour::showReportControl(const QString &picture)
{
    const QAbstractItemModel &model = *m_tree->model();
    const QString dialog = QStringLiteral("ReportControl");
    const QModelIndex list = findNode(model, model.index(0, 0), 0, dialog);
    const QModelIndex block = list.isValid() ? model.index(0, 0, list) : QModelIndex();
    if (block.isValid() && showDialog(
                               [&] {
                                   expandUpTo(*m_tree, block);
                                   doubleClick(*m_tree, block);
                               },
                               dialog, picture)) {
        return true;
    }
    return fail(Texts::tr("The window \"%1\" did not appear.").arg(dialog));
}

bool Tour::showFileService()
{
    QAction *action = tool(1);
    if (!action)
        return false;
    const QString dialog = QStringLiteral("FileServiceDialog");
    const Preparation openRecords = [](QWidget *window) {
        auto *files = window->findChild<QTreeView *>();
        const QModelIndex records = findNode(*files->model(), {}, 0, QStringLiteral("COMTRADE\\"));
        if (records.isValid())
            doubleClick(*files, records);
        // Below the entry that leads up come the parts of a record.
        click(*files, files->model()->index(1, 0));
    };
    return showDialog([&] { action->trigger(); }, dialog, QStringLiteral("file-service"),
                      openRecords) ||
           fail(Texts::tr("The window \"%1\" did not appear.").arg(dialog));
}

/// The form of the device after a test of its connection.
bool Tour::showDeviceForm()
{
    const QString dialog = QStringLiteral("DeviceDialog");
    const Preparation test = [](QWidget *window) {
        auto *button = window->findChild<QPushButton *>(QStringLiteral("test"));
        button->click();
        waitFor([button] { return button->isEnabled(); });
    };
    auto *edit = m_window.findChild<QAction *>(QStringLiteral("actionEdit"));
    const auto open = [edit] {
        edit->trigger();
        waitFor([] { return !QApplication::activeModalWidget(); });
    };
    return showDialog(open, dialog, QStringLiteral("device"), test) ||
           fail(Texts::tr("The window \"%1\" did not appear.").arg(dialog));
}

bool Tour::showTrace()
{
    m_window.findChild<QAction *>(QStringLiteral("actionTrace"))->trigger();
    const QString name = QStringLiteral("TraceDialog");
    if (!waitFor([&name] { return visibleWindow(name) != nullptr; }))
        return fail(Texts::tr("The window \"%1\" did not appear.").arg(name));
    QWidget *trace = visibleWindow(name);
    const auto *lines = trace->findChild<QAbstractItemView *>(QStringLiteral("lines"));
    const bool saved = waitFor([lines] { return lines->model()->rowCount() > 0; })
                           ? save(trace, QStringLiteral("trace"))
                           : fail(Texts::tr("The trace stayed empty."));
    trace->close();
    return saved;
}

bool Tour::showWorkbench()
{
    m_window.raise();
    m_window.activateWindow();
    const auto &journal = m_workbench.journal();
    if (!waitFor([&] { return journal.rowCount() > 0; }))
        return fail(Texts::tr("The journal stayed empty."));
    return save(&m_window, QStringLiteral("workbench"));
}

/// True when `open` brought the modal dialog up and its picture was saved. Messages that come
/// before the dialog are closed: a device without a connection refuses most of what a tool asks.
bool Tour::showDialog(const std::function<void()> &open, const QString &dialogName,
                      const QString &picture, const Preparation &prepare)
{
    bool saved = false;
    const ModalAttendant attendant([&](QWidget *modal) {
        if (modal->objectName() == dialogName) {
            if (prepare)
                prepare(modal);
            saved = save(modal, picture);
        } else if (!qobject_cast<QMessageBox *>(modal)) {
            fail(Texts::tr("Instead of \"%1\" came %2.").arg(dialogName, nameOf(modal)));
        }
    });
    open();
    return saved;
}

/// Trigger an entry of the browser's context menu on a node, found by its untranslated text.
bool Tour::triggerInBrowser(const char *entry, const QModelIndex &index)
{
    expandUpTo(*m_tree, index.parent());
    m_tree->setCurrentIndex(index);
    m_tree->scrollTo(index);
    const QString text = QCoreApplication::translate("IEDModelView", entry);
    const QList<QAction *> actions = m_tree->window()->findChildren<QAction *>();
    for (QAction *action : actions) {
        if (action->text() != text)
            continue;
        action->trigger();
        return true;
    }
    return fail(Texts::tr("The IED browser has no entry \"%1\".").arg(text));
}

bool Tour::save(QWidget *widget, const QString &picture)
{
    QApplication::processEvents();
    if (m_witness)
        m_witness(*widget, picture);
    QPixmap pixmap = widget->grab();
    if (widget->isModal()) {
        // A dialog is shown on a piece of the desktop, since its own edges cannot be seen.
        constexpr int border = 24;
        QPixmap framed(pixmap.size() + QSize(2 * border, 2 * border));
        framed.fill(widget->palette().color(QPalette::Dark));
        QPainter(&framed).drawPixmap(border, border, pixmap);
        pixmap = framed;
    }
    return savePixmap(pixmap, picture);
}

bool Tour::savePixmap(const QPixmap &pixmap, const QString &picture)
{
    const QString file = QDir(m_folder).filePath(picture + QStringLiteral(".png"));
    if (!pixmap.save(file))
        return fail(Texts::tr("The picture \"%1\" cannot be saved.").arg(file));
    return true;
}

bool Tour::fail(const QString &sentence)
{
    if (m_problem.isEmpty())
        m_problem = sentence;
    return false;
}
