// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/access.h"
#include "simulator/clock.h"
#include "simulator/datasets.h"
#include "simulator/oddities.h"

#include "scl/model.h"

#include <memory>
#include <vector>

namespace sim {

/// What an engine works on. All of it outlives the engine and belongs to the device's strand.
struct Host
{
    Model &model;
    Access &access;
    DataSets &dataSets;
    Clock &clock;
    Oddities oddities{};
};

/// A part of a device that acts by itself: reports, controls, setting groups. It attaches its
/// objects to Host::access when it is made. Everything in the device's strand.
class Engine
{
public:
    virtual ~Engine() = default;

    virtual void opened(Peer &) {}
    /// The association has ended; nothing reaches the client any more.
    virtual void closed(Peer &) {}
};

/// The engines that every device has, for the control blocks and controllable objects of @p ied.
std::vector<std::unique_ptr<Engine>> makeEngines(const Host &host, const scl::Ied &ied);

} // namespace sim
