// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filetransfer.h"
#include "operationresult.h"
#include "records.h"
#include "remoteclientglobal.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

/// The executable contract between controller and driver: one method per controller operation.
///
/// Every method takes the number of the IED on the driver first and an error text last. It returns
/// zero on success; otherwise `error` holds one sentence for the operator and the other out
/// arguments are unspecified. Calls come from the controller's thread and block it: an
/// implementation answers within the device's configured time-out, always.
class REMOTECLIENT_EXPORT DriverService
{
public:
    DriverService() = default;
    virtual ~DriverService();
    Q_DISABLE_COPY(DriverService)

    /// Serialised device model, read with PhysicalDevice::fromStream().
    virtual OperationResult getIEDModel(long deviceNo, QByteArray &model, QString &error) = 0;
    /// GetServerDirectory: the logical devices.
    virtual OperationResult getServerDirectory(long deviceNo, QList<NameVaildValue> &list,
                                               QString &error) = 0;
    virtual OperationResult getLogicalDeviceDirectory(long deviceNo, const QString &ldName,
                                                      QList<NameVaildValue> &list,
                                                      QString &error) = 0;
    virtual OperationResult getLogicalNodeDirectory(long deviceNo, const QString &ldName,
                                                    const QString &lnName,
                                                    QList<NameVaildValue> &list,
                                                    QString &error) = 0;
    /// GetDataDirectory; several references are joined by ';'.
    virtual OperationResult getDataDirectory(long deviceNo, const QString &ldName,
                                             const QString &dataReference,
                                             QList<NameVaildValue> &list, QString &error) = 0;
    virtual OperationResult getDataSetList(long deviceNo, const QString &ldName,
                                           QList<NameVaildValue> &list, QString &error) = 0;
    virtual OperationResult getDataSetDirectory(long deviceNo, const QString &ldName,
                                                const QString &dataSetReference,
                                                QList<NameVaildValue> &list, QString &error) = 0;
    /// Report control blocks of a logical node; `kind` is "BR" (buffered) or "RP" (unbuffered).
    virtual OperationResult getXRCB(long deviceNo, const QString &ldName, const QString &lnName,
                                    const QString &kind, QList<NameVaildValue> &list,
                                    QString &error) = 0;
    virtual OperationResult getSGCBBlock(long deviceNo, const QString &ldName,
                                         QList<NameVaildValue> &list, QString &error) = 0;
    /// Read; the values arrive as live-value events, not through the arguments.
    virtual OperationResult readVariable(long deviceNo, const QString &ldName,
                                         const QStringList &references, QString &error) = 0;
    /// GetDataSetValues; `ldName` is empty for a data set of the association. Values arrive as
    /// events.
    virtual OperationResult readDataSetValue(long deviceNo, const QString &ldName,
                                             const QString &dataSetReference, QString &error) = 0;
    /// Write; `value` holds one QVariant as QDataStream writes it.
    virtual OperationResult writeVariable(long deviceNo, const QString &ldName,
                                          const QString &reference, const QByteArray &value,
                                          QString &error) = 0;
    /// Write one attribute of a control block; `value` holds its encoded bytes.
    virtual OperationResult writeValue(long deviceNo, const QString &ldName,
                                       const QString &blockReference, const QString &attribute,
                                       const QByteArray &value, QString &error) = 0;
    /// Select; `controlBlock` holds a ControlBlock stream.
    virtual OperationResult selectObject(long deviceNo, const QString &ldName,
                                         const QString &objectReference,
                                         const QByteArray &controlBlock, QString &error) = 0;
    /// Operate; `controlBlock` as for selectObject().
    virtual OperationResult controlObject(long deviceNo, const QString &ldName,
                                          const QString &objectReference,
                                          const QByteArray &controlBlock, QString &error) = 0;
    /// Cancel; `controlBlock` as for selectObject().
    virtual OperationResult cancelObject(long deviceNo, const QString &ldName,
                                         const QString &objectReference,
                                         const QByteArray &controlBlock, QString &error) = 0;
    /// CreateDataSet; members are joined by ';', `nonPersistent` 1 means for this association only.
    virtual OperationResult createDataSet(long deviceNo, const QString &ldName,
                                          const QString &dataSetReference, const QString &members,
                                          int nonPersistent, QString &error) = 0;
    virtual OperationResult deleteDataSet(long deviceNo, const QString &ldName,
                                          const QString &dataSetReference, QString &error) = 0;
    /// List `directory` (backslashes, empty for the root) by `pattern`.
    virtual OperationResult getFileDirectory(long deviceNo, const QString &pattern,
                                             const QString &directory, QList<MMSFileEntry> &entries,
                                             QString &error) = 0;
    /// Fetch a file of the IED. What has been given to `sink` before a failure stays there.
    virtual OperationResult getFile(long deviceNo, const QString &fileName, FileSink &sink,
                                    QString &error) = 0;
    virtual OperationResult deleteFile(long deviceNo, const QString &fileName, QString &error) = 0;
    /// Send the file to the IED as `fileName`; where that names a directory, under the last part of
    /// the source's name.
    virtual OperationResult writeFile(long deviceNo, FileSource &source, const QString &fileName,
                                      QString &error) = 0;
    /// Read a report control block, buffered or unbuffered.
    virtual OperationResult getBRCBValues(long deviceNo, const QString &ldName,
                                          const QString &blockReference, ReportBlock &block,
                                          QString &error) = 0;
    /// Write the settings of `block` and enable it.
    virtual OperationResult enableReportBlock(long deviceNo, const QString &ldName,
                                              const QString &blockReference, const QString &rptId,
                                              const QString &dataSet, const ReportBlock &block,
                                              QString &error) = 0;
    /// Read a setting group control block.
    virtual OperationResult getSGCB(long deviceNo, const QString &sgcbReference, SGCB &block,
                                    QString &error) = 0;
    /// Read the settings under `fc`, "SG" (active group) or "SE" (edit group).
    virtual OperationResult getSGCBValue(long deviceNo, const QString &sgcbReference,
                                         const QString &fc, QList<SGCBValue> &values,
                                         QString &error) = 0;
    /// Write the settings of the edit group.
    virtual OperationResult setSGCBValues(long deviceNo, const QString &sgcbReference,
                                          const QList<SGCBValue> &values, QString &error) = 0;
    /// Select the group to edit.
    virtual OperationResult selectEditSG(long deviceNo, const QString &sgcbReference, int group,
                                         QString &error) = 0;
    /// Make a group the active one.
    virtual OperationResult selectActiveSG(long deviceNo, const QString &sgcbReference, int group,
                                           QString &error) = 0;
    /// Abort the association with the IED.
    virtual OperationResult abortClose(long deviceNo) = 0;
};
