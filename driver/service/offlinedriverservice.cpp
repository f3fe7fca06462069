// SPDX-License-Identifier: Apache-2.0
#include "offlinedriverservice.h"

#include "driver/model/sclimport.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDataStream>
#include <QtCore/QMutexLocker>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OfflineDriverService)
};

OperationResult unknown(long deviceNo, QString &error)
{
    error = Texts::tr("There is no device %1 on this driver.").arg(deviceNo);
    return OperationFailed;
}

void markAsOffline(const QList<DAO *> &nodes)
{
    for (const DAO *node : nodes) {
        if (node->attribute)
            node->attribute->reference.prepend(OfflineDriverService::offlineMark());
        markAsOffline(node->children);
    }
}

} // namespace

void OfflineDriverService::addDevice(long deviceNo, const QString &file, const QString &ied)
{
    const QMutexLocker lock(&m_mutex);
    m_devices.insert(deviceNo, {file, ied, {}});
}

void OfflineDriverService::holdModel(long deviceNo, const QByteArray &model)
{
    const QMutexLocker lock(&m_mutex);
    m_devices.insert(deviceNo, {{}, {}, model});
}

void OfflineDriverService::removeDevice(long deviceNo)
{
    const QMutexLocker lock(&m_mutex);
    m_devices.remove(deviceNo);
}

bool OfflineDriverService::hasDevice(long deviceNo) const
{
    const QMutexLocker lock(&m_mutex);
    return m_devices.contains(deviceNo);
}

QByteArray OfflineDriverService::offlineModel(PhysicalDevice &device)
{
    device.offline = true;
    for (const LogicalDevice *logicalDevice : qAsConst(device.logicalDevices)) {
        for (const LogicalNode *node : qAsConst(logicalDevice->logicalNodes)) {
            for (const DataObject *object : qAsConst(node->dataObjects))
                markAsOffline(object->attributes);
        }
    }
    return device.toBytes();
}

OperationResult OfflineDriverService::getIEDModel(long deviceNo, QByteArray &model, QString &error)
{
    Device device;
    {
        const QMutexLocker lock(&m_mutex);
        const auto found = m_devices.constFind(deviceNo);
        if (found == m_devices.constEnd()) {
            return unknown(deviceNo, error);
        }
        device = *found;
    }
    if (device.file.isEmpty()) {
        model = device.model;
        return OperationSucceeded;
    }
    const scl::ReadResult result = SclImport::readFile(device.file);
    if (!result.document) {
        error = SclImport::errorText(result);
        return OperationFailed;
    }
    const scl::Ied *ied = SclImport::chooseIed(*result.document, device.ied, error);
    if (!ied)
        return OperationFailed;
    model = offlineModel(*SclImport::makeDevice(*ied));
    return OperationSucceeded;
}

OperationResult OfflineDriverService::abortClose(long)
{
    return OperationNotConnected;
}

OperationResult OfflineDriverService::call(const DriverCall &call)
{
    if (!hasDevice(call.deviceNo()))
        return unknown(call.deviceNo(), call.error());
    call.error() = Texts::tr("Not connected to the device");
    return OperationNotConnected;
}
