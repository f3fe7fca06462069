// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "importresult.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

/// Imports SCL files one after the other in a worker thread. Everything else, signals included,
/// happens in the GUI thread. The destructor cancels what is under way and waits for it.
class DeviceLoader : public QObject
{
    Q_OBJECT

public:
    /// After this time a load counts as slow.
    static constexpr std::chrono::milliseconds slowAfter{500};

    explicit DeviceLoader(ImportFunction import, QObject *parent = nullptr);
    ~DeviceLoader() override;

    /// Ask for an import and return its ticket. finished() will tell what came of it, always.
    int load(const ImportRequest &request);

    /// End what is under way and what waits; each is reported as cancelled.
    void cancel();

    bool isBusy() const { return !m_waiting.empty(); }

    /// Files that are not done yet.
    int remaining() const { return static_cast<int>(m_waiting.size()); }

signals:
    void finished(int ticket, const ImportResult &result);

    /// Loading takes longer than `slowAfter`: time to show a progress bar.
    void slow();
    /// @param permille how far the present file is
    void progressed(const QString &file, int permille);
    /// Nothing is left to do.
    void idle();

private:
    struct Job;

    // By name, so that what passes from thread to thread goes through the mailbox only.
    Q_INVOKABLE void takeResults();
    void work();
    void importNow(Job &job) const;
    void reportProgress();

    const ImportFunction m_import;
    int m_lastTicket = 0;
    std::deque<std::shared_ptr<Job>> m_waiting; ///< the first one is being worked on
    QTimer m_slowTimer;
    QTimer m_progressTimer;

    std::mutex m_mutex;
    std::condition_variable m_workArrived;
    bool m_ending = false;                      ///< under m_mutex
    std::deque<std::shared_ptr<Job>> m_queue;   ///< under m_mutex; not begun
    std::deque<std::shared_ptr<Job>> m_mailbox; ///< under m_mutex; done and not reported

    std::thread m_worker;
};
