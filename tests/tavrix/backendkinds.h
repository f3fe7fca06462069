// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tavrix/forwardingbackend.h"

#include <gtest/gtest.h>

#include <memory>

/// What the tests of a middleware are run over. Another one is one more row.
struct BackendKind
{
    const char *name;
    std::unique_ptr<Tavrix::EventBackend> (*make)(Tavrix::InProcessEventBoxes::Clock clock);
};

inline void PrintTo(const BackendKind &kind, std::ostream *out)
{
    *out << kind.name;
}

template <typename Backend>
std::unique_ptr<Tavrix::EventBackend> makeBackend(Tavrix::InProcessEventBoxes::Clock clock)
{
    return std::make_unique<Backend>(std::move(clock));
}

inline const BackendKind backendKinds[] = {
    {"InProcess", &makeBackend<Tavrix::InProcessEventBoxes>},
    {"Forwarding", &makeBackend<ForwardingBackend>},
};

inline std::string kindName(const testing::TestParamInfo<BackendKind> &info)
{
    return info.param.name;
}
