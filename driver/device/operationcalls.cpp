// SPDX-License-Identifier: Apache-2.0
#include "operationcalls.h"

#include "internalerror.h"

#include <asio/bind_cancellation_slot.hpp>
#include <asio/cancellation_signal.hpp>
#include <asio/co_spawn.hpp>
#include <asio/post.hpp>

#include <QtCore/QCoreApplication>

#include <condition_variable>
#include <mutex>
#include <optional>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

} // namespace

struct OperationCalls::Pending
{
    std::mutex mutex;
    std::condition_variable ended;
    std::optional<Outcome> outcome;
    asio::cancellation_signal cancel; ///< in the strand

    void end(Outcome how)
    {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            if (outcome)
                return;
            outcome = std::move(how);
        }
        ended.notify_all();
    }
};

OperationCalls::OperationCalls(Strand strand)
    : m_strand(std::move(strand))
{
}

OperationCalls::~OperationCalls() = default;

Outcome OperationCalls::call(std::shared_ptr<void> owner, Deadline deadline, Work work,
                             const QString &late)
{
    const auto pending = std::make_shared<Pending>();
    const auto ended = [this, pending, owner](const std::exception_ptr &exception,
                                              Outcome outcome) {
        if (exception) {
            outcome = Outcome::failed(InternalError::isCancellation(exception)
                                          ? Texts::tr("The operation was cancelled.")
                                          : InternalError::sentence(exception));
        }
        m_pending.erase(pending);
        pending->end(std::move(outcome));
    };
    asio::post(m_strand, [this, pending, ended, work = std::move(work)] {
        m_pending.insert(pending);
        asio::co_spawn(m_strand, work(),
                       asio::bind_cancellation_slot(pending->cancel.slot(), ended));
    });

    std::unique_lock<std::mutex> lock(pending->mutex);
    if (pending->ended.wait_until(lock, deadline, [&] { return pending->outcome.has_value(); }))
        return std::move(*pending->outcome);
    lock.unlock();
    asio::post(m_strand, [pending] { pending->cancel.emit(asio::cancellation_type::terminal); });
    return Outcome::failed(late);
}

void OperationCalls::cancelAll()
{
    const std::set<std::shared_ptr<Pending>> pending = m_pending;
    for (const std::shared_ptr<Pending> &each : pending) {
        each->end(Outcome::failed(Texts::tr("The operation was cancelled.")));
        each->cancel.emit(asio::cancellation_type::terminal);
    }
}
