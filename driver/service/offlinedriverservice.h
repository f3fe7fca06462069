// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/driverservice.h>

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QMutex>
#include <QtCore/QString>

class PhysicalDevice;

/// The driver for devices without a connection: it answers with the model from their SCL file and
/// refuses everything else with "Not connected to the device". Any thread.
class OfflineDriverService : public DriverService
{
public:
    OfflineDriverService() = default;

    /// Answer for the device with this IED of an SCL file, which is read at each request.
    /// @param ied may be empty when the file describes a single IED
    void addDevice(long deviceNo, const QString &file, const QString &ied);

    /// Answer for the device with a model that was imported before, in the form that
    /// PhysicalDevice::fromStream() reads.
    void holdModel(long deviceNo, const QByteArray &model);

    /// Answer for the device no longer.
    void removeDevice(long deviceNo);

    /// The bytes of an IED's model, marked as offline: what holdModel() takes. The references of
    /// its attributes begin with offlineMark(), so that values of a connected device with the same
    /// logical devices are none of this one. Any thread.
    static QByteArray offlineModel(PhysicalDevice &device);
    /// No logical device has a name that begins so.
    static QString offlineMark() { return QStringLiteral("file:"); }

    OperationResult getIEDModel(long deviceNo, QByteArray &model, QString &error) override;
    OperationResult getServerDirectory(long deviceNo, QList<NameVaildValue> &list,
                                       QString &error) override;
    OperationResult getLogicalDeviceDirectory(long deviceNo, const QString &ldName,
                                              QList<NameVaildValue> &list, QString &error) override;
    OperationResult getLogicalNodeDirectory(long deviceNo, const QString &ldName,
                                            const QString &lnName, QList<NameVaildValue> &list,
                                            QString &error) override;
    OperationResult getDataDirectory(long deviceNo, const QString &ldName,
                                     const QString &dataReference, QList<NameVaildValue> &list,
                                     QString &error) override;
    OperationResult getDataSetList(long deviceNo, const QString &ldName,
                                   QList<NameVaildValue> &list, QString &error) override;
    OperationResult getDataSetDirectory(long deviceNo, const QString &ldName,
                                        const QString &dataSetReference,
                                        QList<NameVaildValue> &list, QString &error) override;
    OperationResult getXRCB(long deviceNo, const QString &ldName, const QString &lnName,
                            const QString &kind, QList<NameVaildValue> &list,
                            QString &error) override;
    OperationResult getSGCBBlock(long deviceNo, const QString &ldName, QList<NameVaildValue> &list,
                                 QString &error) override;
    OperationResult readVariable(long deviceNo, const QString &ldName,
                                 const QStringList &references, QString &error) override;
    OperationResult readDataSetValue(long deviceNo, const QString &ldName,
                                     const QString &dataSetReference, QString &error) override;
    OperationResult writeVariable(long deviceNo, const QString &ldName, const QString &reference,
                                  const QByteArray &value, QString &error) override;
    OperationResult writeValue(long deviceNo, const QString &ldName, const QString &blockReference,
                               const QString &attribute, const QByteArray &value,
                               QString &error) override;
    OperationResult selectObject(long deviceNo, const QString &ldName,
                                 const QString &objectReference, const QByteArray &controlBlock,
                                 QString &error) override;
    OperationResult controlObject(long deviceNo, const QString &ldName,
                                  const QString &objectReference, const QByteArray &controlBlock,
                                  QString &error) override;
    OperationResult cancelObject(long deviceNo, const QString &ldName,
                                 const QString &objectReference, const QByteArray &controlBlock,
                                 QString &error) override;
    OperationResult createDataSet(long deviceNo, const QString &ldName,
                                  const QString &dataSetReference, const QString &members,
                                  int nonPersistent, QString &error) override;
    OperationResult deleteDataSet(long deviceNo, const QString &ldName,
                                  const QString &dataSetReference, QString &error) override;
    OperationResult getFileDirectory(long deviceNo, const QString &pattern,
                                     const QString &directory, QList<MMSFileEntry> &entries,
                                     QString &error) override;
    OperationResult getFile(long deviceNo, const QString &fileName, QByteArray &content,
                            QString &error) override;
    OperationResult deleteFile(long deviceNo, const QString &fileName, QString &error) override;
    OperationResult writeFile(long deviceNo, const QString &localFile, const QString &fileName,
                              QString &error) override;
    OperationResult getBRCBValues(long deviceNo, const QString &ldName,
                                  const QString &blockReference, ReportBlock &block,
                                  QString &error) override;
    OperationResult enableReportBlock(long deviceNo, const QString &ldName,
                                      const QString &blockReference, const QString &rptId,
                                      const QString &dataSet, const ReportBlock &block,
                                      QString &error) override;
    OperationResult getSGCB(long deviceNo, const QString &sgcbReference, SGCB &block,
                            QString &error) override;
    OperationResult getSGCBValue(long deviceNo, const QString &sgcbReference, const QString &fc,
                                 QList<SGCBValue> &values, QString &error) override;
    OperationResult setSGCBValues(long deviceNo, const QString &sgcbReference,
                                  const QList<SGCBValue> &values, QString &error) override;
    OperationResult selectEditSG(long deviceNo, const QString &sgcbReference, int group,
                                 QString &error) override;
    OperationResult selectActiveSG(long deviceNo, const QString &sgcbReference, int group,
                                   QString &error) override;
    OperationResult abortClose(long deviceNo) override;

private:
    struct Device
    {
        QString file; ///< empty: `model` is the answer
        QString ied;
        QByteArray model;
    };

    QMutex m_mutex;
    QHash<long, Device> m_devices; ///< under m_mutex
};
