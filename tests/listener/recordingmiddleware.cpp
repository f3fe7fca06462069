// SPDX-License-Identifier: Apache-2.0
#include "recordingmiddleware.h"

#include <tavrix/tavrix.h>

#include <QtCore/QThread>

#include <algorithm>
#include <cstring>

using Clock = std::chrono::steady_clock;

RecordingMiddleware &RecordingMiddleware::instance()
{
    static RecordingMiddleware middleware;
    return middleware;
}

void RecordingMiddleware::reset()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_script.clear();
    m_calls.clear();
    m_boxNames.clear();
    m_atEnd = false;
}

RecordingMiddleware &RecordingMiddleware::connects(int result, unsigned int port)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_script.push_back({result, port, {}, false});
    m_atEnd = false;
    return *this;
}

RecordingMiddleware &RecordingMiddleware::receives(int result, const QList<QByteArray> &records)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_script.push_back({result, 0, records, false});
    m_atEnd = false;
    return *this;
}

RecordingMiddleware &RecordingMiddleware::afterStopRequest()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_script.back().afterStopRequest = true;
    return *this;
}

bool RecordingMiddleware::awaitEnd()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::minutes(1), [this] { return m_atEnd; });
}

std::vector<RecordingMiddleware::Call> RecordingMiddleware::calls()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_calls;
}

QStringList RecordingMiddleware::texts()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    QStringList texts;
    for (const Call &call : m_calls) {
        texts.append(call.text);
        for (const QString &name : m_boxNames) {
            texts.last().replace(name, QStringLiteral("BOX"));
        }
    }
    return texts;
}

QStringList RecordingMiddleware::boxNames()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_boxNames;
}

RecordingMiddleware::Step RecordingMiddleware::nextStep()
{
    Step step{2000, 0, {}, true};
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_script.empty()) {
            m_atEnd = true;
            m_changed.notify_all();
        } else {
            step = m_script.front();
            m_script.pop_front();
        }
    }
    while (step.afterStopRequest && !QThread::currentThread()->isInterruptionRequested()) {
        QThread::yieldCurrentThread();
    }
    return step;
}

void RecordingMiddleware::noteBox(const char *boxName)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const QString name = QString::fromLatin1(boxName);
    if (!m_boxNames.contains(name)) {
        m_boxNames.append(name);
    }
}

void RecordingMiddleware::note(const QString &text, Clock::time_point begin)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_calls.push_back({text, begin, Clock::now(), QThread::currentThreadId()});
}

namespace {

QString textOf(const char *text)
{
    return text == nullptr ? QStringLiteral("null")
                           : QLatin1Char('"') + QLatin1String(text) + QLatin1Char('"');
}

template <typename... Arguments>
QString callText(const char *function, const Arguments &...arguments)
{
    return QLatin1String(function) + QLatin1Char('(') +
           QStringList{arguments...}.join(QLatin1String(", ")) + QLatin1Char(')');
}

RecordingMiddleware &middleware()
{
    return RecordingMiddleware::instance();
}

} // namespace

namespace Tavrix {

int ConnectMid(const char *address)
{
    middleware().note(callText("ConnectMid", textOf(address)), Clock::now());
    return 0;
}

int CreateEventBox(const char *boxName, int capacity, int timeToLiveMs, const char *address,
                   const char *domain)
{
    middleware().noteBox(boxName);
    middleware().note(callText("CreateEventBox", textOf(boxName), QString::number(capacity),
                               QString::number(timeToLiveMs), textOf(address), textOf(domain)),
                      Clock::now());
    return 4711;
}

int SetPersistent(const char *boxName, bool persistent, const char *address, const char *domain)
{
    middleware().noteBox(boxName);
    middleware().note(callText("SetPersistent", textOf(boxName),
                               persistent ? QStringLiteral("true") : QStringLiteral("false"),
                               textOf(address), textOf(domain)),
                      Clock::now());
    return 4711;
}

int ConnectPortForRecv(const char *boxName, unsigned int &port, const char *address,
                       const char *domain)
{
    const Clock::time_point begin = Clock::now();
    middleware().noteBox(boxName);
    const QString text = callText("ConnectPortForRecv", textOf(boxName), QString::number(port),
                                  textOf(address), textOf(domain));
    const RecordingMiddleware::Step step = middleware().nextStep();
    if (step.result == 0) {
        port = step.port;
    }
    middleware().note(text, begin);
    return step.result;
}

int ReceiveEventN(unsigned int port, TavrixDataList &out, const char *key, int waitMs, int count,
                  const char *address, const char *domain)
{
    const Clock::time_point begin = Clock::now();
    const bool empty = out.count == 0 && out.array == nullptr;
    const QString text =
        callText("ReceiveEventN", QString::number(port),
                 empty ? QStringLiteral("empty") : QStringLiteral("not empty"), textOf(key),
                 QString::number(waitMs), QString::number(count), textOf(address), textOf(domain));
    const RecordingMiddleware::Step step = middleware().nextStep();
    if (!step.records.isEmpty()) {
        out.array = new TavrixData *[static_cast<std::size_t>(step.records.size())];
        for (const QByteArray &record : step.records) {
            auto *const data = new TavrixData;
            std::copy(record.begin(), record.end(), data->GetRawValue());
            out.array[out.count++] = data;
        }
    }
    middleware().note(text, begin);
    return step.result;
}

void DestoryTavrixDataList(TavrixDataList *list)
{
    middleware().note(callText("DestoryTavrixDataList", QString::number(list->count)),
                      Clock::now());
    for (int i = 0; i < list->count; ++i) {
        delete list->array[i];
    }
    delete[] list->array;
    list->array = nullptr;
    list->count = 0;
}

} // namespace Tavrix

TavrixData::TavrixData()
    : m_raw{}
{
}

char *TavrixData::GetRawValue()
{
    return m_raw;
}

TavrixDataList::TavrixDataList() = default;

// Without the call that the real one makes, so that only the listener's own calls are written down.
TavrixDataList::~TavrixDataList() = default;
