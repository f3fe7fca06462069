// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/administration/driveradministration.h"
#include "driver/device/pducapture.h"

#include "osi/hostlookup.h"

#include <remoteclient/driverservice.h>

#include <functional>
#include <memory>

struct IedDriverOptions
{
    int threads = 2;
    /// Folder of what is remembered of devices between starts; empty for none.
    QString cacheFolder;
    /// Octets of the last PDUs that are kept of each device, for captures and traces.
    std::size_t captureOctets = PduCapture::defaultLimit;
    /// Takes the records of live-value events, in one thread at a time; the event middleware unless
    /// given.
    std::function<void(const QList<QByteArray> &records)> poster;
    /// Writes down every change that the driver makes on a device, or tries to, before who wanted
    /// it is answered; in one of the driver's threads, several devices at a time. Must not call the
    /// driver. Who only wants to know of changes subscribes.
    std::function<void(const DeviceChange &)> journal;
    /// Subscribes before anything happens; is told all until the driver's end.
    DriverObserver observer;
    /// Looks up names of hosts; the system unless given. Called in any thread, several at a time.
    osi::HostLookup::Function lookUp;
};

/// The driver: devices by number, reached over MMS or known only from their SCL file.
///
/// Every function may be called from any thread but the driver's own; controller operations block
/// it until the device has answered, at the latest until the device's time is over. The destructor
/// leaves all devices in an orderly way; no call may be under way.
class IedDriver : public DriverService, public DriverAdministration
{
public:
    explicit IedDriver(IedDriverOptions options = {});
    ~IedDriver() override;

    QStringList faults(const DeviceConfiguration &configuration) const override;
    QStringList setDevice(const DeviceConfiguration &configuration) override;
    /// As OfflineDriverService::holdModel().
    void holdModel(long deviceNo, const QByteArray &model) override;
    void removeDevice(long deviceNo) override;

    void connectDevice(long deviceNo) override;
    void disconnectDevice(long deviceNo) override;
    void cancelReading(long deviceNo) override;
    void cancelOperations(long deviceNo) override;

    DeviceStatus status(long deviceNo) const override;
    std::unique_ptr<DriverSubscription> subscribe(DriverObserver observer) override;
    std::unique_ptr<DriverSubscription> followTrace(long deviceNo, int most,
                                                    TraceObserver observer) override;

    void setReadOnly(bool readOnly) override;
    bool isReadOnly() const override;

    QString saveCapture(long deviceNo, QIODevice &out) const override;
    QString exportValues(long deviceNo, QIODevice &out) override;

    DeviceTestResult test(const DeviceConfiguration &configuration) override;

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
    class Runtime;

    std::unique_ptr<Runtime> m_runtime;
};
