// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/peer.h"

#include <functional>
#include <utility>
#include <vector>

namespace simtest {

/// A client that only keeps what it is sent.
class RecordingClient : public sim::Peer
{
public:
    explicit RecordingClient(std::vector<std::uint8_t> address = {192, 0, 2, 1})
        : m_address(std::move(address))
    {
    }

    void report(mms::InformationReport report) override { reports.push_back(std::move(report)); }
    std::size_t queued() const override { return waiting; }
    void whenQueued(std::size_t, std::function<void()> handler) override
    {
        onCaughtUp = std::move(handler);
    }
    std::size_t pduSize() const override { return longestPdu; }
    std::vector<std::uint8_t> address() const override { return m_address; }
    void call(mms::RequestService, std::chrono::milliseconds,
              mms::Association::CallHandler) override
    {
    }

    std::vector<mms::InformationReport> reports;
    std::size_t waiting = 0;
    std::function<void()> onCaughtUp; ///< to be called by the test once @a waiting is less
    std::size_t longestPdu = 65000;

private:
    std::vector<std::uint8_t> m_address;
};

} // namespace simtest
