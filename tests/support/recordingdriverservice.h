// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/driverservice.h>

#include <QtCore/QHash>
#include <QtCore/QMetaType>
#include <QtCore/QVariantList>

#include <functional>
#include <memory>
#include <mutex>

/// A driver service for tests: writes down every call and answers as the test has said.
///
/// Without further ado every operation succeeds with empty results. Calls may come from any thread;
/// the answers are set up before.
class RecordingDriverService : public DriverService
{
public:
    struct Call
    {
        QString operation;
        long deviceNo = 0;
        QVariantList arguments; ///< the "in" arguments in order
    };

    struct Answer
    {
        OperationResult result = OperationSucceeded;
        QString error;
    };

    /// Answer every call of the operation so.
    void setAnswer(const QString &operation, OperationResult result, const QString &error = {});
    /// Answer the next call of the operation so, before what setAnswer() says; may be said for
    /// several calls ahead.
    void addAnswer(const QString &operation, OperationResult result, const QString &error = {});

    /// Run on each call, in the calling thread, after it was written down and before the answer.
    void setOnCall(std::function<void(const Call &)> onCall);

    QList<Call> calls() const;
    QList<Call> calls(const QString &operation) const;
    /// Names of the operations in the order of the calls.
    QStringList operations() const;
    void forgetCalls();

    // What the "out" arguments of successful calls are filled with.
    QByteArray model;
    QHash<QString, QList<NameVaildValue>> directories; ///< by operation
    QList<MMSFileEntry> fileEntries;
    QHash<QString, QList<MMSFileEntry>> fileEntriesOf; ///< by directory, before fileEntries
    QByteArray fileContent;
    ReportBlock reportBlock;
    SGCB settingGroupBlock;
    QHash<QString, QList<SGCBValue>> settings; ///< by functional constraint

    OperationResult getIEDModel(long deviceNo, QByteArray &answeredModel, QString &error) override;
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
    OperationResult answer(const char *operation, long deviceNo, const QVariantList &arguments,
                           QString &error);
    template <typename Out>
    OperationResult answerWith(const Out &value, Out &out, const char *operation, long deviceNo,
                               const QVariantList &arguments, QString &error);
    OperationResult answerWithList(QList<NameVaildValue> &list, const char *operation,
                                   long deviceNo, const QVariantList &arguments, QString &error);

    mutable std::mutex m_mutex;
    QList<Call> m_calls;
    QHash<QString, Answer> m_answers;
    QHash<QString, QList<Answer>> m_nextAnswers;
    std::function<void(const Call &)> m_onCall;
};

/// Makes a driver service answer at an address for as long as it lives.
class DriverServiceRegistration
{
public:
    DriverServiceRegistration(const QString &address, std::shared_ptr<DriverService> service);
    ~DriverServiceRegistration();
    Q_DISABLE_COPY(DriverServiceRegistration)

private:
    QString m_address;
};

Q_DECLARE_METATYPE(ReportBlock)
Q_DECLARE_METATYPE(SGCBValue)
