// SPDX-License-Identifier: Apache-2.0
#include "deviceloader.h"

#include <QtCore/QMutexLocker>
#include <QtCore/QRunnable>

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

class Task : public QRunnable
{
public:
    explicit Task(std::function<void()> work)
        : m_work(std::move(work))
    {
    }

    void run() override { m_work(); }

private:
    std::function<void()> m_work;
};

} // namespace

DeviceLoader::DeviceLoader(ImportFunction import, QObject *parent)
    : QObject(parent)
    , m_import(std::move(import))
{
    m_worker.setMaxThreadCount(1);
    m_slowTimer.setSingleShot(true);
    m_slowTimer.setInterval(slowAfter);
    m_progressTimer.setInterval(progressInterval);
    connect(&m_slowTimer, &QTimer::timeout, this, [this] {
        m_progressTimer.start();
        emit slow();
        reportProgress();
    });
    connect(&m_progressTimer, &QTimer::timeout, this, &DeviceLoader::reportProgress);
}

DeviceLoader::~DeviceLoader()
{
    for (const auto &job : m_waiting)
        job->cancelled = true;
    m_worker.waitForDone();
}

int DeviceLoader::load(const ImportRequest &request)
{
    auto job = std::make_shared<Job>();
    job->ticket = ++m_lastTicket;
    job->request = request;
    if (m_waiting.empty())
        m_slowTimer.start();
    m_waiting.push_back(job);
    start(job);
    return job->ticket;
}

void DeviceLoader::cancel()
{
    for (const auto &job : m_waiting)
        job->cancelled = true;
}

void DeviceLoader::start(const std::shared_ptr<Job> &job)
{
    m_worker.start(new Task([this, job] {
        if (!job->cancelled) {
            job->result = m_import(job->request, job->cancelled, [&job](double fraction) {
                job->permille = static_cast<int>(std::clamp(fraction, 0.0, 1.0) * 1000.0);
            });
        }
        // A file that was read to its end just before the operator cancelled is cancelled, too.
        if (job->cancelled) {
            job->result = {};
            job->result.status = ImportResult::Cancelled;
        }
        {
            QMutexLocker lock(&m_mutex);
            m_mailbox.push_back(job);
        }
        QMetaObject::invokeMethod(
            this, [this] { takeResults(); }, Qt::QueuedConnection);
    }));
}

void DeviceLoader::takeResults()
{
    std::deque<std::shared_ptr<Job>> done;
    {
        QMutexLocker lock(&m_mutex);
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
