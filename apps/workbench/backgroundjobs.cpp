// SPDX-License-Identifier: Apache-2.0
#include "backgroundjobs.h"

BackgroundJobs::BackgroundJobs(QObject *parent)
    : QObject(parent)
{
}

BackgroundJobs::~BackgroundJobs()
{
    for (Job &job : m_jobs)
        job.thread.join();
}

void BackgroundJobs::run(std::function<void()> work, QObject *context, std::function<void()> done)
{
    Job &job = m_jobs.emplace_back();
    job.work = std::move(work);
    job.done = std::move(done);
    job.context = context;
    job.thread = std::thread([this, &job] {
        job.work();
        const std::lock_guard<std::mutex> lock(m_mutex);
        job.hasEnded = true;
        QMetaObject::invokeMethod(this, "takeEnded", Qt::QueuedConnection);
    });
}

void BackgroundJobs::takeEnded()
{
    std::list<Job> ended;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (auto job = m_jobs.begin(); job != m_jobs.end();) {
            const auto next = std::next(job);
            if (job->hasEnded)
                ended.splice(ended.end(), m_jobs, job);
            job = next;
        }
    }
    for (Job &job : ended) {
        job.thread.join();
        if (job.context)
            job.done();
    }
}
