// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "outcome.h"

#include "osi/strand.h"

#include <asio/awaitable.hpp>

#include <chrono>
#include <functional>
#include <memory>
#include <set>

/// Operations that callers wait for in threads of their own while coroutines in the strand of the
/// device do them.
class OperationCalls
{
public:
    using Strand = osi::Strand;
    using Deadline = std::chrono::steady_clock::time_point;
    using Work = std::function<asio::awaitable<Outcome>()>;

    explicit OperationCalls(Strand strand);
    ~OperationCalls();
    OperationCalls(const OperationCalls &) = delete;
    OperationCalls &operator=(const OperationCalls &) = delete;

    /// Has the work done in the strand and waits for its end, in any thread that is none of the
    /// strand's. At the deadline the work is cancelled and the outcome is a failure with the
    /// sentence @p late. @p owner, which owns this object, is kept until the work has ended.
    Outcome call(std::shared_ptr<void> owner, Deadline deadline, Work work, const QString &late);
    /// Ends every operation that is under way, wherever it waits. In the strand.
    void cancelAll();

private:
    struct Pending;

    const Strand m_strand;
    std::set<std::shared_ptr<Pending>> m_pending; ///< in the strand
};
