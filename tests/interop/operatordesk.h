// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/service/ieddriver.h"
#include "support/modaldriver.h"

#include <host/driverprotocolextentioninterface.h>
#include <host/hosttaskcontext.h>
#include <remoteclient/driverconsolinterface.h>
#include <remoteclient/driverserviceregistry.h>

#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QWidget>

#include <condition_variable>
#include <memory>
#include <mutex>

/// A host with the plug-in and the driver, and hands on mouse and keyboard: everything that an
/// operator does, and nothing else, against one device. GUI thread.
class OperatorDesk : private DriverConsolInterface
{
public:
    using Step = ModalDriver::Step;

    /// Loads the plug-in and connects the device.
    explicit OperatorDesk(const DeviceConfiguration &device);
    ~OperatorDesk() override;
    OperatorDesk(const OperatorDesk &) = delete;
    OperatorDesk &operator=(const OperatorDesk &) = delete;

    /// Why the desk cannot be used; empty when the device is online.
    const QString &problem() const { return m_problem; }
    IedDriver &driver() { return *m_driver; }
    /// Waits for a state of the device; false after twenty seconds.
    bool waitForState(DeviceState state);

    /// Opens the browser from the host's menu; false when none appears.
    bool openBrowser();
    void closeBrowser();
    /// Opens the file service from the host's menu; @p steps do what is done in it, the first gets
    /// the dialog and the last one closes it.
    bool useFileService(std::vector<Step> steps);

    /// The node that is reached by these names, each anywhere below the one before it.
    QModelIndex node(const QStringList &names) const;
    bool has(const QStringList &names) const { return node(names).isValid(); }
    QString valueOf(const QStringList &names) const;

    /// Selects the node and chooses an entry of its context menu; @p steps attend to the windows
    /// that follow. False when there is no such node or no such entry that can be chosen, or when
    /// not every step had its window.
    bool choose(const QStringList &names, const QString &entry, std::vector<Step> steps = {});
    /// Types a value into the node's cell, or chooses it from the cell's list.
    bool enterValue(const QStringList &names, const QString &text, std::vector<Step> steps = {});

    /// A step that presses the button of that name or text.
    static Step press(const QString &button);
    /// A step that presses OK in a message box and keeps what it says.
    static Step read(QString &message);

private:
    QString currentAddress() override;
    OperationResult getLoc(long driverNo, long deviceNo, QString &location) override;

    QString m_problem;
    QWidget m_mainWindow;
    HostTaskContext m_context;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    DeviceState m_state = DeviceState::Disconnected;
    QString m_reason;
    std::shared_ptr<IedDriver> m_driver;
    DriverProtocolExtentionInterface *m_extension = nullptr;
    QPointer<QTreeView> m_tree;
};
