// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/controlmachine.h"
#include "simulator/engine.h"

#include <memory>
#include <utility>
#include <vector>

namespace sim {

/// All controllable objects of a device, in a process that obeys them: a switch is between its
/// positions for a while and then in the new one, with time, origin and number of the control
/// beside it. What forbids a control is read from the model: Beh, Health, Loc and LocKey, BlkOpn
/// and BlkCls of the switch, EnaOpn and EnaCls of the CILO with the same instance, Rel of the RSYN
/// of the logical device. Writing Mod changes Beh; a CSWI moves the XCBR or XSWI with the same
/// instance.
class ControlEngine : public Engine
{
public:
    ControlEngine(const Host &host, const scl::Ied &ied);
    ~ControlEngine() override;

    void closed(Peer &client) override;

private:
    class Point;

    void add(std::uint32_t domain, std::uint32_t node, const Part &part);
    void releaseInterlocks(const scl::LogicalDevice &device, const scl::LogicalNode &node);
    void updateBehaviour(std::uint32_t domain);
    void sendLater(Peer &client, mms::InformationReport report);
    void startTimer();
    void wake();

    Host m_host;
    std::vector<std::shared_ptr<Point>> m_points;
    std::unique_ptr<Timer> m_timer;
    /// What is sent after the answers to requests, and its timer.
    std::vector<std::pair<Peer *, mms::InformationReport>> m_later;
    std::unique_ptr<Timer> m_laterTimer;
};

} // namespace sim
