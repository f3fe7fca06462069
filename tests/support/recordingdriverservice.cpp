// SPDX-License-Identifier: Apache-2.0
#include "support/recordingdriverservice.h"

#include <remoteclient/driverserviceregistry.h>

#include <algorithm>
#include <utility>

namespace {

/// The arguments that go in.
struct Written
{
    QVariantList arguments;

    void operator()(int number) { arguments << number; }
    void operator()(FileSource *source) { arguments << source->name(); }
    template <typename Argument>
    void operator()(const Argument *argument)
    {
        arguments << QVariant::fromValue(*argument);
    }
    template <typename Answer>
    void operator()(Answer *)
    {
    }
    void operator()(std::monostate) {}
};

} // namespace

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

OperationResult RecordingDriverService::call(const DriverCall &made)
{
    Written written;
    for (const DriverArgument &argument : made.arguments())
        std::visit(written, argument);
    const Call call{QString::fromLatin1(made.name()), made.deviceNo(), written.arguments};
    std::unique_lock<std::mutex> lock(m_mutex);
    m_calls.append(call);
    QList<Answer> &next = m_nextAnswers[call.operation];
    const Answer answer = next.isEmpty() ? m_answers.value(call.operation) : next.takeFirst();
    const std::function<void(const Call &)> onCall = m_onCall;
    lock.unlock();

    if (onCall)
        onCall(call);
    made.error() = answer.error;
    return answer.result == OperationSucceeded ? fill(made) : answer.result;
}

OperationResult RecordingDriverService::fill(const DriverCall &made)
{
    switch (made.operation()) {
    case DriverOperation::getIEDModel:
        made.argument<QByteArray &>(0) = model;
        return OperationSucceeded;
    case DriverOperation::getFileDirectory:
        made.argument<QList<MMSFileEntry> &>(2) =
            fileEntriesOf.value(made.argument<const QString &>(1), fileEntries);
        return OperationSucceeded;
    case DriverOperation::getFile:
        return give(made.argument<FileSink &>(1), made.error());
    case DriverOperation::getBRCBValues:
        made.argument<ReportBlock &>(2) = reportBlock;
        return OperationSucceeded;
    case DriverOperation::getSGCB:
        made.argument<SGCB &>(1) = settingGroupBlock;
        return OperationSucceeded;
    case DriverOperation::getSGCBValue:
        made.argument<QList<SGCBValue> &>(2) = settings.value(made.argument<const QString &>(1));
        return OperationSucceeded;
    default:
        break;
    }
    for (const DriverArgument &argument : made.arguments()) {
        if (const auto *list = std::get_if<QList<NameVaildValue> *>(&argument))
            **list = directories.value(QString::fromLatin1(made.name()));
    }
    return OperationSucceeded;
}

OperationResult RecordingDriverService::give(FileSink &sink, QString &error) const
{
    constexpr int piece = 30000;
    error = sink.begin(static_cast<quint64>(fileContent.size()));
    for (int at = 0; error.isEmpty() && at < fileContent.size(); at += piece)
        error = sink.take(fileContent.constData() + at, std::min(piece, fileContent.size() - at));
    return error.isEmpty() ? OperationSucceeded : OperationFailed;
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
