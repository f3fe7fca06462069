// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/engine.h"
#include "simulator/settinggroups.h"

#include <memory>
#include <vector>

namespace sim {

/// The setting group control blocks of a device, with the values of every group.
class SettingGroupEngine : public Engine
{
public:
    SettingGroupEngine(const Host &host, const scl::Ied &ied);
    ~SettingGroupEngine() override;

    void closed(Peer &client) override;

private:
    class Block;
    class BlockObject;
    class SettingsObject;

    void wake();
    void startTimer();

    Host m_host;
    std::vector<std::unique_ptr<Block>> m_blocks;
    std::unique_ptr<Timer> m_timer;
};

} // namespace sim
