// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace acsi {

/// Functional constraints of IEC 61850-7-2, Annex B, in the order in which IEC 61850-8-1 lists the
/// components of a logical node, and those of control blocks.
enum class FunctionalConstraint : std::uint8_t {
    ST, ///< status
    MX, ///< measurands
    CO, ///< control
    CF, ///< configuration
    DC, ///< description
    SP, ///< set points
    SG, ///< values of the active setting group
    RP, ///< unbuffered report control blocks
    LG, ///< log control blocks
    BR, ///< buffered report control blocks
    GO, ///< GOOSE control blocks
    GS, ///< GSSE control blocks
    SV, ///< substitution
    SE, ///< values of the setting group being edited
    EX, ///< extended definition
    MS, ///< multicast sampled value control blocks
    US, ///< unicast sampled value control blocks
    SR, ///< service tracking
    OR, ///< operate received
    BL, ///< blocking
};

/// "ST"; a view of a literal.
std::string_view toText(FunctionalConstraint constraint);
std::optional<FunctionalConstraint> functionalConstraintFrom(std::string_view text);

/// True for constraints of data, false for those of control blocks.
bool isOfData(FunctionalConstraint constraint);

} // namespace acsi
