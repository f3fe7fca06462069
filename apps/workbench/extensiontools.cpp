// SPDX-License-Identifier: Apache-2.0
#include "extensiontools.h"

#include "embeddedconsole.h"

#include <host/driverprotocolextentioninterface.h>

#include <QtWidgets/QAction>

#include <utility>

ExtensionTools::ExtensionTools(const DeviceListModel &devices, HostTaskContext &context,
                               std::function<int()> selected)
    : m_devices(devices)
    , m_context(context)
    , m_selected(std::move(selected))
{
}

void ExtensionTools::load(const QString &folder)
{
    m_loaded = loadExtension(folder);
    if (!m_loaded.extension)
        return;
    const QList<QAction *> actions = m_loaded.extension->actions();
    for (QAction *action : actions)
        offer(action);
}

void ExtensionTools::offer(QAction *action)
{
    auto *offered = new QAction(this);
    const auto mirror = [action, offered] {
        offered->setText(action->text());
        offered->setIcon(action->icon());
        offered->setToolTip(action->toolTip());
    };
    mirror();
    connect(action, &QAction::changed, offered, mirror);
    connect(action, &QAction::changed, this, &ExtensionTools::changed);
    connect(action, &QObject::destroyed, offered, [offered] { offered->setEnabled(false); });
    connect(offered, &QAction::triggered, action, [this, action] {
        const int number = m_selected();
        const DeviceListModel::Device *device = m_devices.device(number);
        m_loaded.extension->setTaskContext(EmbeddedConsole::driverNo, number, 0, &m_context);
        m_windows.run(device ? device->record.name() : QString(), [action] { action->trigger(); });
    });
    constexpr int lastDigit = 9;
    if (m_actions.size() < lastDigit)
        offered->setShortcut(QKeySequence(int(Qt::CTRL) + int(Qt::Key_1) + m_actions.size()));
    m_actions << offered;
}

void ExtensionTools::showSelection()
{
    if (!m_loaded.extension)
        return;
    const int number = m_selected();
    const DeviceListModel::Device *device = m_devices.device(number);
    const QList<QAction *> actions = m_loaded.extension->actions();
    for (int i = 0; i < m_actions.size() && i < actions.size(); ++i)
        m_actions[i]->setEnabled(device && device->isUsable() && actions[i]->isEnabled());
    m_loaded.extension->setTaskContext(EmbeddedConsole::driverNo, number, 0, &m_context);
}
