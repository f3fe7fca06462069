// SPDX-License-Identifier: Apache-2.0
#include "courier.h"

#include <exception>
#include <thread>
#include <utility>

DriverSubscription::~DriverSubscription() = default;

class Courier::Subscription : public DriverSubscription
{
public:
    explicit Subscription(std::shared_ptr<Courier> courier)
        : m_courier(std::move(courier))
        , m_thread([courier = m_courier] { courier->run(); })
    {
    }
    ~Subscription() override
    {
        const bool isWithinCall = m_thread.get_id() == std::this_thread::get_id();
        m_courier->stop(isWithinCall);
        if (isWithinCall)
            m_thread.detach();
        else
            m_thread.join();
    }

private:
    const std::shared_ptr<Courier> m_courier;
    std::thread m_thread;
};

Courier::~Courier() = default;

std::unique_ptr<DriverSubscription> Courier::start(std::shared_ptr<Courier> courier)
{
    return std::make_unique<Subscription>(std::move(courier));
}

void Courier::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_isStopped) {
        const std::function<void()> call = next();
        if (!call) {
            if (m_isClosed)
                return;
            m_changed.wait(lock);
            continue;
        }
        lock.unlock();
        try {
            call();
        } catch (const std::exception &exception) {
            qWarning("DriverObserver: %s", exception.what());
        } catch (...) {
            qWarning("DriverObserver: ?");
        }
        lock.lock();
    }
}

void Courier::close()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isClosed = true;
    }
    m_changed.notify_one();
}

void Courier::stop(bool drops)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isStopped = m_isStopped || drops || !m_isClosed;
    }
    m_changed.notify_one();
}

bool Courier::isStopped() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isStopped;
}
