// SPDX-License-Identifier: Apache-2.0
#include "support/recordingdriverservice.h"

#include <remoteclient/driverserviceregistry.h>

#include <utility>

void RecordingDriverService::setAnswer(const QString &operation, OperationResult result,
                                       const QString &error)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_answers[operation] = {result, error};
}

void RecordingDriverService::addAnswer(const QString &operation, OperationResult result,
                                       const QString &error)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_nextAnswers[operation].append({result, error});
}

void RecordingDriverService::setOnCall(std::function<void(const Call &)> onCall)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_onCall = std::move(onCall);
}

QList<RecordingDriverService::Call> RecordingDriverService::calls() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_calls;
}

QList<RecordingDriverService::Call> RecordingDriverService::calls(const QString &operation) const
{
    QList<Call> result;
    for (const Call &call : calls()) {
        if (call.operation == operation)
            result.append(call);
    }
    return result;
}

QStringList RecordingDriverService::operations() const
{
    QStringList result;
    for (const Call &call : calls())
        result.append(call.operation);
    return result;
}

void RecordingDriverService::forgetCalls()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_calls.clear();
}

OperationResult RecordingDriverService::answer(const char *operation, long deviceNo,
                                               const QVariantList &arguments, QString &error)
{
    const Call call{QString::fromLatin1(operation), deviceNo, arguments};
    std::unique_lock<std::mutex> lock(m_mutex);
    m_calls.append(call);
    QList<Answer> &next = m_nextAnswers[call.operation];
    const Answer answer = next.isEmpty() ? m_answers.value(call.operation) : next.takeFirst();
    const std::function<void(const Call &)> onCall = m_onCall;
    lock.unlock();

    if (onCall)
        onCall(call);
    error = answer.error;
    return answer.result;
}

template <typename Out>
OperationResult RecordingDriverService::answerWith(const Out &value, Out &out,
                                                   const char *operation, long deviceNo,
                                                   const QVariantList &arguments, QString &error)
{
    const OperationResult result = answer(operation, deviceNo, arguments, error);
    if (result == OperationSucceeded)
        out = value;
    return result;
}

OperationResult RecordingDriverService::answerWithList(QList<NameVaildValue> &list,
                                                       const char *operation, long deviceNo,
                                                       const QVariantList &arguments,
                                                       QString &error)
{
    return answerWith(directories.value(QString::fromLatin1(operation)), list, operation, deviceNo,
                      arguments, error);
}

OperationResult RecordingDriverService::getIEDModel(long deviceNo, QByteArray &answeredModel,
                                                    QString &error)
{
    return answerWith(model, answeredModel, "getIEDModel", deviceNo, {}, error);
}

OperationResult RecordingDriverService::getServerDirectory(long deviceNo,
                                                           QList<NameVaildValue> &list,
                                                           QString &error)
{
    return answerWithList(list, "getServerDirectory", deviceNo, {}, error);
}

OperationResult RecordingDriverService::getLogicalDeviceDirectory(long deviceNo,
                                                                  const QString &ldName,
                                                                  QList<NameVaildValue> &list,
                                                                  QString &error)
{
    return answerWithList(list, "getLogicalDeviceDirectory", deviceNo, {ldName}, error);
}

OperationResult RecordingDriverService::getLogicalNodeDirectory(long deviceNo,
                                                                const QString &ldName,
                                                                const QString &lnName,
                                                                QList<NameVaildValue> &list,
                                                                QString &error)
{
    return answerWithList(list, "getLogicalNodeDirectory", deviceNo, {ldName, lnName}, error);
}

OperationResult RecordingDriverService::getDataDirectory(long deviceNo, const QString &ldName,
                                                         const QString &dataReference,
                                                         QList<NameVaildValue> &list,
                                                         QString &error)
{
    return answerWithList(list, "getDataDirectory", deviceNo, {ldName, dataReference}, error);
}

OperationResult RecordingDriverService::getDataSetList(long deviceNo, const QString &ldName,
                                                       QList<NameVaildValue> &list, QString &error)
{
    return answerWithList(list, "getDataSetList", deviceNo, {ldName}, error);
}

OperationResult RecordingDriverService::getDataSetDirectory(long deviceNo, const QString &ldName,
                                                            const QString &dataSetReference,
                                                            QList<NameVaildValue> &list,
                                                            QString &error)
{
    return answerWithList(list, "getDataSetDirectory", deviceNo, {ldName, dataSetReference}, error);
}

OperationResult RecordingDriverService::getXRCB(long deviceNo, const QString &ldName,
                                                const QString &lnName, const QString &kind,
                                                QList<NameVaildValue> &list, QString &error)
{
    return answerWithList(list, "getXRCB", deviceNo, {ldName, lnName, kind}, error);
}

OperationResult RecordingDriverService::getSGCBBlock(long deviceNo, const QString &ldName,
                                                     QList<NameVaildValue> &list, QString &error)
{
    return answerWithList(list, "getSGCBBlock", deviceNo, {ldName}, error);
}

OperationResult RecordingDriverService::readVariable(long deviceNo, const QString &ldName,
                                                     const QStringList &references, QString &error)
{
    return answer("readVariable", deviceNo, {ldName, references}, error);
}

OperationResult RecordingDriverService::readDataSetValue(long deviceNo, const QString &ldName,
                                                         const QString &dataSetReference,
                                                         QString &error)
{
    return answer("readDataSetValue", deviceNo, {ldName, dataSetReference}, error);
}

OperationResult RecordingDriverService::writeVariable(long deviceNo, const QString &ldName,
                                                      const QString &reference,
                                                      const QByteArray &value, QString &error)
{
    return answer("writeVariable", deviceNo, {ldName, reference, value}, error);
}

OperationResult RecordingDriverService::writeValue(long deviceNo, const QString &ldName,
                                                   const QString &blockReference,
                                                   const QString &attribute,
                                                   const QByteArray &value, QString &error)
{
    return answer("writeValue", deviceNo, {ldName, blockReference, attribute, value}, error);
}

OperationResult RecordingDriverService::selectObject(long deviceNo, const QString &ldName,
                                                     const QString &objectReference,
                                                     const QByteArray &controlBlock, QString &error)
{
    return answer("selectObject", deviceNo, {ldName, objectReference, controlBlock}, error);
}

OperationResult RecordingDriverService::controlObject(long deviceNo, const QString &ldName,
                                                      const QString &objectReference,
                                                      const QByteArray &controlBlock,
                                                      QString &error)
{
    return answer("controlObject", deviceNo, {ldName, objectReference, controlBlock}, error);
}

OperationResult RecordingDriverService::cancelObject(long deviceNo, const QString &ldName,
                                                     const QString &objectReference,
                                                     const QByteArray &controlBlock, QString &error)
{
    return answer("cancelObject", deviceNo, {ldName, objectReference, controlBlock}, error);
}

OperationResult RecordingDriverService::createDataSet(long deviceNo, const QString &ldName,
                                                      const QString &dataSetReference,
                                                      const QString &members, int nonPersistent,
                                                      QString &error)
{
    return answer("createDataSet", deviceNo, {ldName, dataSetReference, members, nonPersistent},
                  error);
}

OperationResult RecordingDriverService::deleteDataSet(long deviceNo, const QString &ldName,
                                                      const QString &dataSetReference,
                                                      QString &error)
{
    return answer("deleteDataSet", deviceNo, {ldName, dataSetReference}, error);
}

OperationResult RecordingDriverService::getFileDirectory(long deviceNo, const QString &pattern,
                                                         const QString &directory,
                                                         QList<MMSFileEntry> &entries,
                                                         QString &error)
{
    return answerWith(fileEntriesOf.value(directory, fileEntries), entries, "getFileDirectory",
                      deviceNo, {pattern, directory}, error);
}

OperationResult RecordingDriverService::getFile(long deviceNo, const QString &fileName,
                                                QByteArray &content, QString &error)
{
    return answerWith(fileContent, content, "getFile", deviceNo, {fileName}, error);
}

OperationResult RecordingDriverService::deleteFile(long deviceNo, const QString &fileName,
                                                   QString &error)
{
    return answer("deleteFile", deviceNo, {fileName}, error);
}

OperationResult RecordingDriverService::writeFile(long deviceNo, const QString &localFile,
                                                  const QString &fileName, QString &error)
{
    return answer("writeFile", deviceNo, {localFile, fileName}, error);
}

OperationResult RecordingDriverService::getBRCBValues(long deviceNo, const QString &ldName,
                                                      const QString &blockReference,
                                                      ReportBlock &block, QString &error)
{
    return answerWith(reportBlock, block, "getBRCBValues", deviceNo, {ldName, blockReference},
                      error);
}

OperationResult RecordingDriverService::enableReportBlock(long deviceNo, const QString &ldName,
                                                          const QString &blockReference,
                                                          const QString &rptId,
                                                          const QString &dataSet,
                                                          const ReportBlock &block, QString &error)
{
    return answer("enableReportBlock", deviceNo,
                  {ldName, blockReference, rptId, dataSet, QVariant::fromValue(block)}, error);
}

OperationResult RecordingDriverService::getSGCB(long deviceNo, const QString &sgcbReference,
                                                SGCB &block, QString &error)
{
    return answerWith(settingGroupBlock, block, "getSGCB", deviceNo, {sgcbReference}, error);
}

OperationResult RecordingDriverService::getSGCBValue(long deviceNo, const QString &sgcbReference,
                                                     const QString &fc, QList<SGCBValue> &values,
                                                     QString &error)
{
    return answerWith(settings.value(fc), values, "getSGCBValue", deviceNo, {sgcbReference, fc},
                      error);
}

OperationResult RecordingDriverService::setSGCBValues(long deviceNo, const QString &sgcbReference,
                                                      const QList<SGCBValue> &values,
                                                      QString &error)
{
    return answer("setSGCBValues", deviceNo, {sgcbReference, QVariant::fromValue(values)}, error);
}

OperationResult RecordingDriverService::selectEditSG(long deviceNo, const QString &sgcbReference,
                                                     int group, QString &error)
{
    return answer("selectEditSG", deviceNo, {sgcbReference, group}, error);
}

OperationResult RecordingDriverService::selectActiveSG(long deviceNo, const QString &sgcbReference,
                                                       int group, QString &error)
{
    return answer("selectActiveSG", deviceNo, {sgcbReference, group}, error);
}

OperationResult RecordingDriverService::abortClose(long deviceNo)
{
    QString noText;
    return answer("abortClose", deviceNo, {}, noText);
}

DriverServiceRegistration::DriverServiceRegistration(const QString &address,
                                                     std::shared_ptr<DriverService> service)
    : m_address(address)
{
    DriverServiceRegistry::add(m_address, std::move(service));
}

DriverServiceRegistration::~DriverServiceRegistration()
{
    DriverServiceRegistry::remove(m_address);
}
