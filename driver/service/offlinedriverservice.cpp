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

OperationResult notConnected(QString &error)
{
    error = Texts::tr("Not connected to the device");
    return OperationNotConnected;
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

QByteArray OfflineDriverService::offlineModel(PhysicalDevice &device)
{
    device.offline = true;
    for (const LogicalDevice *logicalDevice : qAsConst(device.logicalDevices)) {
        for (const LogicalNode *node : qAsConst(logicalDevice->logicalNodes)) {
            for (const DataObject *object : qAsConst(node->dataObjects))
                markAsOffline(object->attributes);
        }
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    device.toStream(stream);
    return bytes;
}

OperationResult OfflineDriverService::getIEDModel(long deviceNo, QByteArray &model, QString &error)
{
    Device device;
    {
        const QMutexLocker lock(&m_mutex);
        const auto found = m_devices.constFind(deviceNo);
        if (found == m_devices.constEnd()) {
            error = Texts::tr("There is no device %1 on this driver.").arg(deviceNo);
            return OperationFailed;
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

OperationResult OfflineDriverService::getServerDirectory(long, QList<NameVaildValue> &,
                                                         QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::getLogicalDeviceDirectory(long, const QString &,
                                                                QList<NameVaildValue> &,
                                                                QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::getLogicalNodeDirectory(long, const QString &,
                                                              const QString &,
                                                              QList<NameVaildValue> &,
                                                              QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::getDataDirectory(long, const QString &, const QString &,
                                                       QList<NameVaildValue> &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::getDataSetList(long, const QString &, QList<NameVaildValue> &,
                                                     QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::getDataSetDirectory(long, const QString &, const QString &,
                                                          QList<NameVaildValue> &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::getXRCB(long, const QString &, const QString &,
                                              const QString &, QList<NameVaildValue> &,
                                              QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::getSGCBBlock(long, const QString &, QList<NameVaildValue> &,
                                                   QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::readVariable(long, const QString &, const QStringList &,
                                                   QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::readDataSetValue(long, const QString &, const QString &,
                                                       QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::writeVariable(long, const QString &, const QString &,
                                                    const QByteArray &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::writeValue(long, const QString &, const QString &,
                                                 const QString &, const QByteArray &,
                                                 QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::selectObject(long, const QString &, const QString &,
                                                   const QByteArray &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::controlObject(long, const QString &, const QString &,
                                                    const QByteArray &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::cancelObject(long, const QString &, const QString &,
                                                   const QByteArray &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::createDataSet(long, const QString &, const QString &,
                                                    const QString &, int, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::deleteDataSet(long, const QString &, const QString &,
                                                    QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::getFileDirectory(long, const QString &, const QString &,
                                                       QList<MMSFileEntry> &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::getFile(long, const QString &, QByteArray &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::deleteFile(long, const QString &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::writeFile(long, const QString &, const QString &,
                                                QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::getBRCBValues(long, const QString &, const QString &,
                                                    ReportBlock &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::enableReportBlock(long, const QString &, const QString &,
                                                        const QString &, const QString &,
                                                        const ReportBlock &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::getSGCB(long, const QString &, SGCB &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::getSGCBValue(long, const QString &, const QString &,
                                                   QList<SGCBValue> &, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::setSGCBValues(long, const QString &, const QList<SGCBValue> &,
                                                    QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::selectEditSG(long, const QString &, int, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::selectActiveSG(long, const QString &, int, QString &error)
{
    return notConnected(error);
}

OperationResult OfflineDriverService::abortClose(long)
{
    return OperationNotConnected;
}
