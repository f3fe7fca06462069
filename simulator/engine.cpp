// SPDX-License-Identifier: Apache-2.0
#include "simulator/engine.h"

#include "simulator/controlengine.h"
#include "simulator/reportengine.h"
#include "simulator/settinggroupengine.h"

namespace sim {

std::vector<std::unique_ptr<Engine>> makeEngines(const Host &host, const scl::Ied &ied)
{
    std::vector<std::unique_ptr<Engine>> engines;
    engines.push_back(std::make_unique<SettingGroupEngine>(host, ied));
    engines.push_back(std::make_unique<ControlEngine>(host, ied));
    engines.push_back(std::make_unique<ReportEngine>(host, ied));
    return engines;
}

} // namespace sim
