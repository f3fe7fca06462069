// SPDX-License-Identifier: Apache-2.0
#include "interop/operatordesk.h"

#include <QtCore/QPluginLoader>
#include <QtGui/QContextMenuEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

namespace {

const QString driverAddress = QStringLiteral("operator-desk");
constexpr int driverNo = 1;
constexpr int iec61850Protocol = 4;
constexpr int valueColumn = 1;
constexpr std::chrono::seconds patience{20};

QModelIndex findBelow(const QAbstractItemModel &model, const QModelIndex &above,
                      const QString &name)
{
    for (int row = 0; row < model.rowCount(above); ++row) {
        const QModelIndex child = model.index(row, 0, above);
        if (child.data().toString() == name)
            return child;
    }
    for (int row = 0; row < model.rowCount(above); ++row) {
        const QModelIndex found = findBelow(model, model.index(row, 0, above), name);
        if (found.isValid())
            return found;
    }
    return {};
}

QString plain(QString text)
{
    return text.remove(QLatin1Char('&'));
}

} // namespace

OperatorDesk::OperatorDesk(const DeviceConfiguration &device)
{
    IedDriverOptions options;
    options.observer.statusChanged = [this](const DeviceStatus &status) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_state = status.state;
        m_reason = status.reason;
        m_changed.notify_all();
    };
    m_driver = std::make_shared<IedDriver>(options);
    DriverServiceRegistry::add(driverAddress, m_driver->serviceFor(Caller::ofThisProcess()));
    m_context.console = this;
    m_context.mainWindow = &m_mainWindow;
    m_mainWindow.show();

    QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    m_extension = qobject_cast<DriverProtocolExtentionInterface *>(loader.instance());
    if (!m_extension || !m_extension->supportsProtocol(iec61850Protocol)) {
        m_problem = loader.errorString();
        return;
    }
    m_extension->initialize();
    m_extension->setTaskContext(driverNo, device.number, 0, &m_context);

    const QStringList faults = m_driver->setDevice(device);
    if (!faults.isEmpty()) {
        m_problem = faults.join(QLatin1Char(' '));
        return;
    }
    m_driver->connectDevice(device.number);
    if (!waitForState(DeviceState::Online))
        m_problem = m_reason.isEmpty() ? QStringLiteral("The device is not online.") : m_reason;
}

OperatorDesk::~OperatorDesk()
{
    closeBrowser();
    DriverServiceRegistry::remove(driverAddress);
    // Its callbacks lead here.
    m_driver.reset();
}

bool OperatorDesk::waitForState(DeviceState state)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, patience, [&] { return m_state == state; });
}

bool OperatorDesk::openBrowser()
{
    m_extension->actions().first()->trigger();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("IEDModelView") && window->isVisible())
            m_tree = window->findChild<QTreeView *>(QStringLiteral("modelView"));
    }
    return m_tree && QTest::qWaitForWindowExposed(m_tree->window());
}

void OperatorDesk::closeBrowser()
{
    if (!m_tree)
        return;
    m_tree->window()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool OperatorDesk::useFileService(std::vector<Step> steps)
{
    const ModalDriver attendant(std::move(steps));
    m_extension->actions().last()->trigger();
    return attendant.finished();
}

QModelIndex OperatorDesk::node(const QStringList &names) const
{
    if (!m_tree)
        return {};
    QModelIndex index;
    for (const QString &name : names) {
        index = findBelow(*m_tree->model(), index, name);
        if (!index.isValid())
            return {};
    }
    return index;
}

QString OperatorDesk::valueOf(const QStringList &names) const
{
    const QModelIndex index = node(names);
    return index.sibling(index.row(), valueColumn).data().toString();
}

bool OperatorDesk::choose(const QStringList &names, const QString &entry, std::vector<Step> steps)
{
    const QModelIndex index = node(names);
    if (!index.isValid())
        return false;
    m_tree->scrollTo(index);
    const QPoint place = m_tree->visualRect(index).center();
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, place);

    bool chosen = false;
    steps.insert(steps.begin(), [&](QWidget *window) {
        auto *menu = qobject_cast<QMenu *>(window);
        if (!menu) {
            window->close();
            return;
        }
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            if (plain(action->text()) == entry && action->isEnabled()) {
                chosen = true;
                menu->setActiveAction(action);
                QTest::keyClick(menu, Qt::Key_Return);
                return;
            }
        }
        menu->close();
    });
    const ModalDriver attendant(std::move(steps));
    QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                            m_tree->viewport()->mapToGlobal(place));
    QApplication::sendEvent(m_tree->viewport(), &event);
    return chosen && attendant.finished();
}

bool OperatorDesk::enterValue(const QStringList &names, const QString &text,
                              std::vector<Step> steps)
{
    const QModelIndex index = node(names);
    if (!index.isValid())
        return false;
    const QModelIndex cell = index.sibling(index.row(), valueColumn);
    m_tree->scrollTo(cell);
    m_tree->setCurrentIndex(cell);
    const ModalDriver attendant(std::move(steps));
    m_tree->edit(cell);
    if (auto *line = m_tree->viewport()->findChild<QLineEdit *>()) {
        line->selectAll();
        QTest::keyClicks(line, text);
        QTest::keyClick(line, Qt::Key_Return);
    } else if (auto *box = m_tree->viewport()->findChild<QComboBox *>()) {
        const int entry = box->findText(text);
        if (entry < 0)
            return false;
        box->setCurrentIndex(entry);
    } else {
        return false;
    }
    // A typed value is taken once the event loop runs again.
    return QTest::qWaitFor(
        [&] {
            return m_tree->viewport()->findChildren<QLineEdit *>().isEmpty() &&
                   attendant.finished();
        },
        static_cast<int>(std::chrono::milliseconds(patience).count()));
}

OperatorDesk::Step OperatorDesk::press(const QString &button)
{
    return [button](QWidget *window) {
        const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
        for (QAbstractButton *each : buttons) {
            if (each->objectName() == button || plain(each->text()) == button) {
                QTest::mouseClick(each, Qt::LeftButton);
                return;
            }
        }
        qWarning("The window \"%s\" has no button \"%s\".", qPrintable(window->windowTitle()),
                 qPrintable(button));
        window->close();
    };
}

OperatorDesk::Step OperatorDesk::read(QString &message)
{
    return [&message](QWidget *window) {
        if (const auto *box = qobject_cast<QMessageBox *>(window))
            message = box->text();
        window->close();
    };
}

QString OperatorDesk::currentAddress()
{
    return driverAddress;
}

OperationResult OperatorDesk::getLoc(long, long, QString &location)
{
    location = driverAddress;
    return OperationSucceeded;
}
