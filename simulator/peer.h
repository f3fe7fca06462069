// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/association.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <vector>

namespace sim {

/// A client that has an association with the device, as the device sees it. Its address in memory
/// says who it is; it lives from Engine::opened() until Engine::closed() has returned. Belongs to
/// the device's strand.
class Peer
{
public:
    virtual ~Peer() = default;

    /// Send a report. One whose PDU is longer than pduSize() is not sent.
    virtual void report(mms::InformationReport report) = 0;
    /// Octets that wait for the network: how far behind the client is.
    virtual std::size_t queued() const = 0;
    /// Calls @p handler once, as soon as at most @p octets wait for the network; never when the
    /// client leaves before.
    virtual void whenQueued(std::size_t octets, std::function<void()> handler) = 0;
    /// Longest PDU that the client takes, in octets.
    virtual std::size_t pduSize() const = 0;
    /// Its network address in network order, 4 or 16 octets; empty when it is not known.
    virtual std::vector<std::uint8_t> address() const = 0;
    /// Call a service of the client, to fetch a file from it.
    virtual void call(mms::RequestService request, std::chrono::milliseconds timeout,
                      mms::Association::CallHandler handler) = 0;
};

} // namespace sim
