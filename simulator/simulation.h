// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/animation.h"
#include "simulator/device.h"
#include "simulator/directoryfiles.h"

#include "osi/tls.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace sim {

/// How a description becomes a device on the network, with everything that a simulation offers.
struct SimulationOptions
{
    /// Address of this machine; 0.0.0.0 for all interfaces.
    std::string address = "127.0.0.1";
    /// 0 takes a free port.
    std::uint16_t port = 0;
    std::size_t maxAssociations = 16;
    /// Connections of one peer that are no associations yet; 0 for as many as it likes.
    std::size_t maxHalfOpenOfPeer = 8;
    /// A client that says nothing for so long is cut off; 0 for never.
    std::chrono::milliseconds idleLimit{0};
    /// Octets, at least mms::smallestPduSize.
    std::int32_t maxPduSize = 65000;
    /// What clients have to name when they ask for an association; none asks for none.
    std::optional<std::string> password;
    std::optional<osi::TlsOptions> tls;
    /// As scl::Document::edition() tells: control blocks have the attributes of the first edition
    /// of the standard only.
    bool firstEdition = false;
    std::optional<AnimationOptions> animation;
    std::optional<FileOptions> files;
    /// A script of faults; may be empty.
    std::string faults;
    Oddities oddities;
    /// Hears of associations, refused connections, controls and faults: a line of text each. In the
    /// device's strand.
    std::function<void(const std::string &line)> log;
};

/// A device and where it can be reached.
struct ListeningDevice
{
    std::shared_ptr<Device> device;
    std::uint16_t port = 0;
};

/// Makes a device of @p ied, of which nothing is kept, and lets it listen. The error says what of
/// the options is wrong. Any thread; keep the executor running until the device has gone.
mms::Result<ListeningDevice> simulate(const asio::any_io_executor &executor, const scl::Ied &ied,
                                      SimulationOptions options);

} // namespace sim
