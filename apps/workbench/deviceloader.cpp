// SPDX-License-Identifier: Apache-2.0
#include "deviceloader.h"

#include <algorithm>

struct DeviceLoader::Job
{
    int ticket = 0;
    ImportRequest request;
    std::atomic<bool> cancelled{false};
    std::atomic<int> permille{0};
    ImportResult result;
};

namespace {

constexpr std::chrono::milliseconds progressInterval{100};

} // namespace

DeviceLoader::DeviceLoader(ImportFunction import, QObject *parent)
    : QObject(parent)
    , m_import(std::move(import))
{
    m_slowTimer.setSingleShot(true);
    m_slowTimer.setInterval(slowAfter);
    m_progressTimer.setInterval(progressInterval);
    connect(&m_slowTimer, &QTimer::timeout, this, [this] {
        m_progressTimer.start();
        emit slow();
        reportProgress();
    });
    connect(&m_progressTimer, &QTimer::timeout, this, &DeviceLoader::reportProgress);
    m_worker = std::thread([this] { work(); });
}

DeviceLoader::~DeviceLoader()
{
    cancel();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
    }
    m_workArrived.notify_one();
    m_worker.join();
}

int DeviceLoader::load(const ImportRequest &request)
{
    auto job = std::make_shared<Job>();
    job->ticket = ++m_lastTicket;
    job->request = request;
    if (m_waiting.empty())
        m_slowTimer.start();
    m_waiting.push_back(job);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_queue.push_back(job);
    }
    m_workArrived.notify_one();
    return job->ticket;
}

void DeviceLoader::cancel()
{
    for (const auto &job : m_waiting)
        job->cancelled = true;
}

void DeviceLoader::work()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_workArrived.wait(lock, [this] { return m_ending || !m_queue.empty(); });
        if (m_ending)
            return;
        const std::shared_ptr<Job> job = m_queue.front();
        m_queue.pop_front();
        lock.unlock();
        importNow(*job);
        lock.lock();
        m_mailbox.push_back(job);
        QMetaObject::invokeMethod(this, "takeResults", Qt::QueuedConnection);
    }
}

void DeviceLoader::importNow(Job &job) const
{
    if (!job.cancelled) {
        job.result = m_import(job.request, job.cancelled, [&job](double fraction) {
            job.permille = static_cast<int>(std::clamp(fraction, 0.0, 1.0) * 1000.0);
        });
    }
    // A file that was read to its end just before the operator cancelled is cancelled, too.
    if (job.cancelled) {
        job.result = {};
        job.result.status = ImportResult::Cancelled;
    }
}

void DeviceLoader::takeResults()
{
    std::deque<std::shared_ptr<Job>> done;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        done.swap(m_mailbox);
    }
    for (const auto &job : done) {
        m_waiting.erase(std::find(m_waiting.begin(), m_waiting.end(), job));
        emit finished(job->ticket, job->result);
    }
    if (!done.empty() && m_waiting.empty()) {
        m_slowTimer.stop();
        m_progressTimer.stop();
        emit idle();
    }
}

void DeviceLoader::reportProgress()
{
    if (!m_waiting.empty())
        emit progressed(m_waiting.front()->request.file, m_waiting.front()->permille);
}
