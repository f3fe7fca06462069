// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicelistmodel.h"
#include "extensionloader.h"
#include "toolwindows.h"

#include <host/hosttaskcontext.h>

#include <QtCore/QList>
#include <QtCore/QObject>

#include <functional>

class QAction;

/// The tools of the extension as the workbench offers them: one action for each of the extension's
/// own, with its text, icon and tip, enabled while a device with a model is selected, of which the
/// extension is told before its own action runs. GUI thread.
class ExtensionTools : public QObject
{
    Q_OBJECT

public:
    /// @param devices the list of devices; not owned, must outlive the tools
    /// @param context handed to the extension; not owned, must outlive the tools
    /// @param selected number of the selected device at the moment, 0 when none is
    ExtensionTools(const DeviceListModel &devices, HostTaskContext &context,
                   std::function<int()> selected);

    /// Load the extension from a folder and make the actions. After a failure, which
    /// loaded() tells, it can be tried again.
    void load(const QString &folder);

    const LoadedExtension &loaded() const { return m_loaded; }
    const QList<QAction *> &actions() const { return m_actions; }

    /// Enable the actions for the selected device and tell the extension of it.
    void showSelection();

signals:
    /// Something about the extension's own actions has changed.
    void changed();

private:
    void offer(QAction *action);

    const DeviceListModel &m_devices;
    HostTaskContext &m_context;
    const std::function<int()> m_selected;
    LoadedExtension m_loaded;
    QList<QAction *> m_actions;
    ToolWindows m_windows;
};
