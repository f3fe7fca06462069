// SPDX-License-Identifier: Apache-2.0
#include "embeddedconsole.h"

#include "devicelistmodel.h"

const QString EmbeddedConsole::address = QStringLiteral("embedded");

EmbeddedConsole::EmbeddedConsole(const DeviceListModel &devices)
    : m_devices(devices)
{
}

QString EmbeddedConsole::currentAddress()
{
    return address;
}

OperationResult EmbeddedConsole::getLoc(long driverNumber, long deviceNo, QString &location)
{
    const DeviceListModel::Device *device =
        driverNumber == driverNo ? m_devices.device(static_cast<int>(deviceNo)) : nullptr;
    if (!device)
        return OperationFailed;
    const DeviceConfiguration &configuration = device->record.configuration;
    location = configuration.host.isEmpty()
                   ? device->record.file()
                   : QStringLiteral("%1:%2").arg(configuration.host).arg(configuration.port);
    return OperationSucceeded;
}
