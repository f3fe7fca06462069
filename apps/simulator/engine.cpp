// SPDX-License-Identifier: Apache-2.0
#include "simulator/engine.h"

namespace sim {

std::vector<std::unique_ptr<Engine>> makeEngines(const Host &, const scl::Ied &)
{
    return {};
}

} // namespace sim
