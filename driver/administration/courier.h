// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driverobserver.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

/// Calls somebody in a thread of its own, one call after the other, as long as there is something
/// to tell. What that is, and what to leave out when it becomes too much, knows who derives. What a
/// call throws goes to the log. Any thread.
class Courier
{
public:
    Courier() = default;
    virtual ~Courier();
    Q_DISABLE_COPY(Courier)

    /// Begins to call. The courier lives at least until its thread has ended.
    static std::unique_ptr<DriverSubscription> start(std::shared_ptr<Courier> courier);

    /// Nothing comes any more: what is there is told yet.
    void close();
    /// Nobody is called any more.
    bool isStopped() const;

protected:
    /// The next call to make; empty when there is nothing to tell. Under the lock.
    virtual std::function<void()> next() = 0;

    /// Changes what there is to tell, under the lock, unless nobody is told any more.
    template <typename Change>
    void put(const Change &change)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (m_isStopped)
                return;
            change();
        }
        m_changed.notify_one();
    }

private:
    class Subscription;

    void run();
    /// @param drops also what is told after close()
    void stop(bool drops);

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isClosed = false;
    bool m_isStopped = false;
};
