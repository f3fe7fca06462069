// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <functional>
#include <list>
#include <mutex>
#include <thread>

/// Runs functions in threads of their own, so that nobody waits for the network in the GUI thread,
/// to which everything else belongs. The destructor waits for the functions that are under way.
class BackgroundJobs : public QObject
{
    Q_OBJECT

public:
    explicit BackgroundJobs(QObject *parent = nullptr);
    ~BackgroundJobs() override;

    /// Run @p work in a thread, then @p done in the GUI thread, unless @p context has gone.
    void run(std::function<void()> work, QObject *context, std::function<void()> done);

private:
    struct Job
    {
        std::thread thread;
        std::function<void()> work;
        std::function<void()> done;
        QPointer<QObject> context;
        bool hasEnded = false; ///< under m_mutex
    };

    // By name, so that nothing but the call passes from thread to thread.
    Q_INVOKABLE void takeEnded();

    std::list<Job> m_jobs;
    std::mutex m_mutex;
};
