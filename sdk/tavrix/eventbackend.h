// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "event.h"
#include "tavrixresult.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace Tavrix {

/// A thread that opens ports and creates boxes; 0 is none.
using Owner = std::uint64_t;

/// One middleware: what carries the events of an address. The functions of tavrix.h check their
/// arguments, find the middleware and call this; they say what each operation means. Callable from
/// any thread. Names, keys and records keep the limits of tavrixresult.h.
class EventBackend
{
public:
    virtual ~EventBackend() = default;

    /// Get ready to be used, which may take as long as reaching the middleware takes. The other
    /// operations do not need it.
    /// @return Success, MiddlewareUnavailable.
    virtual Result connect() = 0;
    virtual Result createBox(Owner creator, std::string_view name, std::size_t capacity,
                             std::chrono::milliseconds timeToLive) = 0;
    virtual Result setPersistent(std::string_view name, bool persistent) = 0;
    /// @param port  this middleware's own number for it; those of others may be equal
    virtual Result connectPort(Owner owner, std::string_view name, unsigned int &port) = 0;
    virtual Result disconnectPort(unsigned int port) = 0;
    /// Adds to the empty `events`, and only on Success. An empty key takes every event. A port that
    /// was answered with NoSuchEventBox is not asked for again.
    virtual Result receive(unsigned int port, std::string_view key, std::chrono::milliseconds wait,
                           std::size_t count,
                           std::vector<std::shared_ptr<const Event>> &events) = 0;
    virtual Result post(std::string_view prefix, const std::shared_ptr<const Event> &event) = 0;
    /// Closes the owner's ports and gives up its boxes. Every owner that created a box or opened a
    /// port here is told of once, in its own thread, as the last it does.
    virtual void ownerGone(Owner owner) = 0;

protected:
    EventBackend() = default;
    EventBackend(const EventBackend &) = delete;
    EventBackend &operator=(const EventBackend &) = delete;
};

} // namespace Tavrix
