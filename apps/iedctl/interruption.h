// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <thread>

/// What Ctrl+C (SIGINT) and SIGTERM do while it lives. The first signal marks the session as
/// interrupted, which ends a stream in an orderly way; where no stream runs, the operation that is
/// under way is cancelled. The second signal ends the program at once. One at a time.
class Interruption
{
public:
    /// @param cancel ends what waits for the device; called in a thread of its own
    explicit Interruption(std::function<void()> cancel);
    ~Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;

private:
    std::function<void()> m_cancel;
    std::thread m_thread;
};
