// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "browser/iedmodelview.h"
#include "support/recordingdriverservice.h"

#include <host/hosttaskcontext.h>
#include <remoteclient/driverconsolinterface.h>

#include <QtWidgets/QTreeView>

#include <memory>

/// A host's console that always answers the same address.
class FixedConsole : public DriverConsolInterface
{
public:
    QString currentAddress() override;
    OperationResult getLoc(long driverNo, long deviceNo, QString &location) override;

    QString address = QStringLiteral("browser-test");
    QList<QPair<long, long>> asked; ///< driver and device of each getLoc()
};

/// A small bay: breaker, measurements and general I/O under one logical device "BAYCTRL", with data
/// sets, report control blocks and a setting group control block, and a data set of the device as a
/// whole.
std::unique_ptr<PhysicalDevice> makeBay();

/// A browser on a recording driver service that answers with a device.
class BrowserFixture
{
public:
    static constexpr int driverNo = 3;
    static constexpr int deviceNo = 17;

    explicit BrowserFixture(std::unique_ptr<PhysicalDevice> shownDevice = makeBay());

    /// A window whose init() has returned true.
    std::unique_ptr<IEDModelView> open();

    /// An index of the window's tree, found by the names in column 0 from the root down.
    static QModelIndex find(const IEDModelView &view, const QStringList &names, int column = 0);
    /// Make that index the current one and return it.
    static QModelIndex select(const IEDModelView &view, const QStringList &names, int column = 0);

    static QTreeView *tree(const IEDModelView &view);
    static QAction *action(const IEDModelView &view, const QString &text);

    std::unique_ptr<PhysicalDevice> device;
    std::shared_ptr<RecordingDriverService> service = std::make_shared<RecordingDriverService>();
    FixedConsole console;
    QWidget mainWindow;
    HostTaskContext context;

private:
    DriverServiceRegistration m_registration;
};
