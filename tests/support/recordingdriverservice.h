// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <remoteclient/forwardingdriverservice.h>

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
class RecordingDriverService : public ForwardingDriverService
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

protected:
    OperationResult call(const DriverCall &made) override;

private:
    OperationResult fill(const DriverCall &made);
    OperationResult give(FileSink &sink, QString &error) const;

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
