// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "wording/text.h"

#include <cstdint>
#include <string>

namespace scl {

/// How much a finding matters to somebody who uses the model that was read.
enum class Severity : std::uint8_t {
    Info,    ///< unusual but understood; the model is what the file means
    Warning, ///< breaks a rule of IEC 61850-6; the model is complete
    Error    ///< contradicts itself or is invalid; a part of the model is missing or has no value
};

/// One remark about the contents of a file that could be used all the same.
struct Finding
{
    Severity severity = Severity::Info;
    std::uint32_t line = 0; ///< line of the element in the file, 1 for the first
    std::string path;       ///< element path, for example "SCL/IED[BAY1]/AccessPoint[S1]"
    wording::Text text;     ///< one sentence
};

} // namespace scl
