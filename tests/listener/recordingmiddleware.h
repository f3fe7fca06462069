// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QStringList>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <vector>

/// Stands behind the functions of the event middleware: answers connects and receives by a script,
/// and writes every call down with all its arguments. When the script is at its end it tells
/// awaitEnd(), holds the calling thread until that is asked to stop, and answers "nothing
/// received".
class RecordingMiddleware
{
public:
    static RecordingMiddleware &instance();

    struct Step
    {
        int result = 0;
        unsigned int port = 0;
        QList<QByteArray> records;
        bool afterStopRequest = false;
    };
    struct Call
    {
        QString text;
        std::chrono::steady_clock::time_point begin;
        std::chrono::steady_clock::time_point end;
        Qt::HANDLE thread;
    };

    void reset();
    RecordingMiddleware &connects(int result, unsigned int port = 0);
    RecordingMiddleware &receives(int result, const QList<QByteArray> &records = {});
    /// The step given last answers only after the calling thread has been asked to stop.
    RecordingMiddleware &afterStopRequest();

    /// Returns when a call found the script at its end; false when none does within a minute.
    bool awaitEnd();

    std::vector<Call> calls();
    /// The texts of the calls, with the name of the one box replaced by "BOX".
    QStringList texts();
    /// The names of all boxes that calls were made with, each once.
    QStringList boxNames();

    Step nextStep();
    void noteBox(const char *boxName);
    /// Write a call down that began at the time given and ends now.
    void note(const QString &text, std::chrono::steady_clock::time_point begin);

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Step> m_script;
    std::vector<Call> m_calls;
    QStringList m_boxNames;
    bool m_atEnd = false;
};
