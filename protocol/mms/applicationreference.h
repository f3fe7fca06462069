// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

namespace mms {

/// The titles and qualifiers of an application, as they were encoded.
struct ApplicationReference
{
    std::vector<std::uint8_t> content;

    friend bool operator==(const ApplicationReference &, const ApplicationReference &) = default;
};

} // namespace mms
