// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "operationresult.h"
#include "records.h"
#include "remoteclientglobal.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// The client services of one driver, as the operator's tools call them.
///
/// A thin class: every operation is forwarded to the DriverService registered for the address given
/// to setLocation(), and answers with its result. When no service answers there, an operation
/// returns OperationDriverUnreachable. The look-up is made at each call, so that a driver may come
/// and go. The arguments are described at DriverService. Every call blocks until the driver has
/// answered, retries nothing, and is reported to the ControllerCallObserver of the process. What
/// changes something on a device needs the consent of the process's ControllerCallGuard.
class REMOTECLIENT_EXPORT IEC61850ControllerInterface
{
public:
    IEC61850ControllerInterface();
    virtual ~IEC61850ControllerInterface();
    Q_DISABLE_COPY(IEC61850ControllerInterface)

    /// Where the driver is. `driverNo` is the number of the driver (channel) there.
    void setLocation(const QString &address, int driverNo);

    OperationResult getIEDModel(long deviceNo, QByteArray &model, QString &error);
    OperationResult getServerDirectory(long deviceNo, QList<NameVaildValue> &list, QString &error);
    OperationResult getLogicalDeviceDirectory(long deviceNo, const QString &ldName,
                                              QList<NameVaildValue> &list, QString &error);
    OperationResult getLogicalNodeDirectory(long deviceNo, const QString &ldName,
                                            const QString &lnName, QList<NameVaildValue> &list,
                                            QString &error);
    OperationResult getDataDirectory(long deviceNo, const QString &ldName,
                                     const QString &dataReference, QList<NameVaildValue> &list,
                                     QString &error);
    OperationResult getDataSetList(long deviceNo, const QString &ldName,
                                   QList<NameVaildValue> &list, QString &error);
    OperationResult getDataSetDirectory(long deviceNo, const QString &ldName,
                                        const QString &dataSetReference,
                                        QList<NameVaildValue> &list, QString &error);
    OperationResult getXRCB(long deviceNo, const QString &ldName, const QString &lnName,
                            const QString &kind, QList<NameVaildValue> &list, QString &error);
    OperationResult getSGCBBlock(long deviceNo, const QString &ldName, QList<NameVaildValue> &list,
                                 QString &error);
    OperationResult readVariable(long deviceNo, const QString &ldName,
                                 const QStringList &references, QString &error);
    OperationResult readDataSetValue(long deviceNo, const QString &ldName,
                                     const QString &dataSetReference, QString &error);
    OperationResult writeVariable(long deviceNo, const QString &ldName, const QString &reference,
                                  const QByteArray &value, QString &error);
    OperationResult writeValue(long deviceNo, const QString &ldName, const QString &blockReference,
                               const QString &attribute, const QByteArray &value, QString &error);
    OperationResult selectObject(long deviceNo, const QString &ldName,
                                 const QString &objectReference, const QByteArray &controlBlock,
                                 QString &error);
    OperationResult controlObject(long deviceNo, const QString &ldName,
                                  const QString &objectReference, const QByteArray &controlBlock,
                                  QString &error);
    OperationResult cancelObject(long deviceNo, const QString &ldName,
                                 const QString &objectReference, const QByteArray &controlBlock,
                                 QString &error);
    OperationResult createDataSet(long deviceNo, const QString &ldName,
                                  const QString &dataSetReference, const QString &members,
                                  int nonPersistent, QString &error);
    OperationResult deleteDataSet(long deviceNo, const QString &ldName,
                                  const QString &dataSetReference, QString &error);
    OperationResult getFileDirectory(long deviceNo, const QString &pattern,
                                     const QString &directory, QList<MMSFileEntry> &entries,
                                     QString &error);
    OperationResult getFile(long deviceNo, const QString &fileName, QByteArray &content,
                            QString &error);
    OperationResult deleteFile(long deviceNo, const QString &fileName, QString &error);
    OperationResult writeFile(long deviceNo, const QString &localFile, const QString &fileName,
                              QString &error);
    OperationResult getBRCBValues(long deviceNo, const QString &ldName,
                                  const QString &blockReference, ReportBlock &block,
                                  QString &error);
    OperationResult enableReportBlock(long deviceNo, const QString &ldName,
                                      const QString &blockReference, const QString &rptId,
                                      const QString &dataSet, const ReportBlock &block,
                                      QString &error);
    OperationResult getSGCB(long deviceNo, const QString &sgcbReference, SGCB &block,
                            QString &error);
    OperationResult getSGCBValue(long deviceNo, const QString &sgcbReference, const QString &fc,
                                 QList<SGCBValue> &values, QString &error);
    OperationResult setSGCBValues(long deviceNo, const QString &sgcbReference,
                                  const QList<SGCBValue> &values, QString &error);
    OperationResult selectEditSG(long deviceNo, const QString &sgcbReference, int group,
                                 QString &error);
    OperationResult selectActiveSG(long deviceNo, const QString &sgcbReference, int group,
                                   QString &error);
    /// Abort the association with the IED; there is no error text.
    OperationResult abortClose(long deviceNo);

private:
    template <typename Method, typename... Arguments>
    OperationResult perform(Method method, const char *operation, long deviceNo, QString &error,
                            Arguments &...arguments);

    QString m_address;
    int m_driverNo = 0;
};
