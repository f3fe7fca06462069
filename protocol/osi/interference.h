// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/tpkt.h"

#include <chrono>
#include <optional>
#include <vector>

namespace osi {

/// Stands between a link and its user and changes PDUs on their way, to simulate devices and
/// networks that misbehave. Called in the strand of its link. It must not call back into the link.
class Interference
{
public:
    struct Outgoing
    {
        /// What is sent instead of the PDU; nothing when empty.
        std::vector<Octets> pdus;
        /// Put on the network behind the PDUs, without any layer around it.
        Octets noise;
        std::chrono::milliseconds delay{0};
        /// After so many octets of all this, the layers around the PDUs counted, the network
        /// connection is reset.
        std::optional<std::size_t> resetAfter;
    };

    struct Incoming
    {
        /// Whether the user of the link hears of the PDU.
        bool deliver = true;
        /// Sent at once unless empty.
        Octets answer;
    };

    virtual ~Interference() = default;

    virtual Outgoing outgoing(Bytes pdu) = 0;
    virtual Incoming incoming(Bytes pdu) = 0;
};

} // namespace osi
