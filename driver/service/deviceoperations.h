// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "calleddevice.h"
#include "driver/device/changegate.h"

#include <remoteclient/filetransfer.h>
#include <remoteclient/records.h>

class DriverRuntime;

/// What the driver does for each operation of DriverService, under its name and with its arguments.
///
/// What only reads is carried out in the strand of the device's connection, which the caller's
/// thread waits for: arguments and answers live as long as the operation does, and the answers
/// count when it succeeds. What changes something says in the caller's thread what is intended, and
/// what is to be done in the strand once the device's gate has let it pass; its arguments live as
/// long as that. The rest is carried out in the caller's thread.
namespace DeviceOperations {

using Result = asio::awaitable<Outcome>;
using Entries = QList<NameVaildValue>;
/// Whose of the caller's tools it is: ControllerCaller.
using Tool = quint64;

struct ChangeOrder
{
    ChangeIntent intent;
    ChangeGate::Work work; ///< empty where the order is refused
    Outcome refusal;

    ChangeOrder(ChangeIntent intended, ChangeGate::Work toDo)
        : intent(std::move(intended))
        , work(std::move(toDo))
    {
    }
    /// An order that cannot be one; one sentence why.
    static ChangeOrder refused(const QString &sentence)
    {
        ChangeOrder order({}, {});
        order.refusal = Outcome::failed(sentence);
        return order;
    }
};

// directoryoperations.cpp
Result getIEDModel(CalledDevice device, QByteArray &model);
Result getServerDirectory(CalledDevice device, Entries &list);
Result getLogicalDeviceDirectory(CalledDevice device, const QString &ldName, Entries &list);
Result getLogicalNodeDirectory(CalledDevice device, const QString &ldName, const QString &lnName,
                               Entries &list);
Result getDataDirectory(CalledDevice device, const QString &ldName, const QString &dataReference,
                        Entries &list);
Result getDataSetList(CalledDevice device, const QString &ldName, Entries &list);
Result getDataSetDirectory(CalledDevice device, const QString &ldName,
                           const QString &dataSetReference, Entries &list);
Result getXRCB(CalledDevice device, const QString &ldName, const QString &lnName,
               const QString &kind, Entries &list);
Result getSGCBBlock(CalledDevice device, const QString &ldName, Entries &list);
ChangeOrder createDataSet(Tool tool, const QString &ldName, const QString &dataSetReference,
                          const QString &members, int nonPersistent);
ChangeOrder deleteDataSet(Tool tool, const QString &ldName, const QString &dataSetReference);

// valueoperations.cpp
Result readVariable(CalledDevice device, const QString &ldName, const QStringList &references);
Result readDataSetValue(CalledDevice device, const QString &ldName,
                        const QString &dataSetReference);
ChangeOrder writeVariable(Tool tool, const QString &ldName, const QString &reference,
                          const QByteArray &value);

// controloperations.cpp
OperationResult selectObject(DriverRuntime &runtime, const CalledDevice &device,
                             const QString &ldName, const QString &objectReference,
                             const QByteArray &controlBlock, QString &error);
OperationResult controlObject(DriverRuntime &runtime, const CalledDevice &device,
                              const QString &ldName, const QString &objectReference,
                              const QByteArray &controlBlock, QString &error);
OperationResult cancelObject(DriverRuntime &runtime, const CalledDevice &device,
                             const QString &ldName, const QString &objectReference,
                             const QByteArray &controlBlock, QString &error);
OperationResult abortClose(DriverRuntime &runtime, const CalledDevice &device);

// fileoperations.cpp
Result getFileDirectory(CalledDevice device, const QString &pattern, const QString &directory,
                        QList<MMSFileEntry> &entries);
Result getFile(CalledDevice device, const QString &fileName, FileSink &sink);
ChangeOrder deleteFile(Tool tool, const QString &fileName);
ChangeOrder writeFile(Tool tool, FileSource &source, const QString &fileName);

// reportoperations.cpp
Result getBRCBValues(CalledDevice device, const QString &ldName, const QString &blockReference,
                     ReportBlock &block);
ChangeOrder writeValue(Tool tool, const QString &ldName, const QString &blockReference,
                       const QString &attribute, const QByteArray &value);
ChangeOrder enableReportBlock(Tool tool, const QString &ldName, const QString &blockReference,
                              const QString &rptId, const QString &dataSet,
                              const ReportBlock &block);

// settinggroupoperations.cpp
Result getSGCB(CalledDevice device, const QString &sgcbReference, SGCB &block);
Result getSGCBValue(CalledDevice device, const QString &sgcbReference, const QString &fc,
                    QList<SGCBValue> &values);
ChangeOrder setSGCBValues(Tool tool, const QString &sgcbReference, const QList<SGCBValue> &values);
ChangeOrder selectEditSG(Tool tool, const QString &sgcbReference, int group);
ChangeOrder selectActiveSG(Tool tool, const QString &sgcbReference, int group);

} // namespace DeviceOperations
