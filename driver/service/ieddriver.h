// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/core/devicestatus.h"
#include "driver/core/reportevent.h"
#include "driver/device/deviceconfiguration.h"
#include "driver/device/pducapture.h"

#include "osi/hostlookup.h"

#include <remoteclient/driverservice.h>

#include <QtCore/QVector>

#include <functional>
#include <memory>

class QIODevice;

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
    /// Told of every change of a device's state, in one of the driver's threads, several devices at
    /// a time. Must not call the driver.
    std::function<void(const DeviceStatus &)> statusChanged;
    /// Told of every change that the driver makes on a device, or tries to; like statusChanged.
    std::function<void(const DeviceChange &)> changed;
    /// Takes every report as it came, none left out, those of one device in their order; in a
    /// thread of the driver, one at a time. Must not call the driver. A host that does not keep up
    /// loses the oldest that wait; the next event says so, and DeviceCounters::droppedEvents
    /// counts.
    std::function<void(const ReportEvent &)> reportReceived;
    /// Looks up names of hosts; the system unless given. Called in any thread, several at a time.
    osi::HostLookup::Function lookUp;
};

/// The driver: devices by number, reached over MMS or known only from their SCL file.
///
/// Every function may be called from any thread but the driver's own; controller operations block
/// it until the device has answered, at the latest until the device's time is over. The destructor
/// leaves all devices in an orderly way; no call may be under way.
class IedDriver : public DriverService
{
public:
    explicit IedDriver(IedDriverOptions options = {});
    ~IedDriver() override;

    /// Add a device, or give a device of that number another configuration; it is disconnected
    /// then. The faults of the configuration, in which case nothing is changed; empty when it was
    /// taken.
    QStringList setDevice(const DeviceConfiguration &configuration);
    /// Answer for the number with a model that was imported before, in the form that
    /// PhysicalDevice::fromStream() reads, as OfflineDriverService::holdModel().
    void holdModel(long deviceNo, const QByteArray &model);
    void removeDevice(long deviceNo);

    /// Want an association with the device; does nothing for one without an address.
    void connectDevice(long deviceNo);
    void disconnectDevice(long deviceNo);
    /// Stop reading the device's model; it is then disconnected.
    void cancelReading(long deviceNo);
    /// End every operation that is under way on the device, whatever it waits for. Who called it is
    /// told at once that it was cancelled; what the device was asked before may still be done.
    void cancelOperations(long deviceNo);

    /// Number 0 when there is no such device, or none with an address.
    DeviceStatus status(long deviceNo) const;
    QVector<DeviceStatus> statuses() const;

    /// Refuse every operation that changes something on a device.
    void setReadOnly(bool readOnly);
    bool isReadOnly() const;

    /// Write the device's last PDUs as a pcapng capture; one sentence when that fails.
    QString saveCapture(long deviceNo, QIODevice &out) const;
    QVector<PduCapture::Line> trace(long deviceNo, int count) const;
    /// Write reference, functional constraint, type and last known value of every attribute as CSV
    /// (RFC 4180, UTF-8); one sentence when that fails.
    QString exportValues(long deviceNo, QIODevice &out);

    /// What a try to reach a device with this configuration came to.
    struct TestResult
    {
        QString error; ///< one sentence; empty when the association was made
        QString vendor;
        QString model;
        QString revision;
        std::chrono::microseconds roundTrip{0};
        int logicalDevices = 0;
        /// What the names of the logical devices begin with, which is the IED's name as a rule;
        /// empty when there is one only, or when they have nothing in common.
        QString iedName;
    };
    /// Makes an association apart from the device list, asks who is there, and leaves. Blocks at
    /// most for the time-outs of the configuration.
    TestResult test(const DeviceConfiguration &configuration);

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
