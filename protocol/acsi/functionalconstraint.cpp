// SPDX-License-Identifier: Apache-2.0
#include "acsi/functionalconstraint.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace acsi {

namespace {

/// In the order of FunctionalConstraint.
constexpr std::array<std::string_view, 20> names = {"ST", "MX", "CO", "CF", "DC", "SP", "SG",
                                                    "RP", "LG", "BR", "GO", "GS", "SV", "SE",
                                                    "EX", "MS", "US", "SR", "OR", "BL"};
static_assert(names.size() == static_cast<std::size_t>(FunctionalConstraint::BL) + 1);

} // namespace

std::string_view toText(FunctionalConstraint constraint)
{
    return names.at(static_cast<std::size_t>(constraint));
}

std::optional<FunctionalConstraint> functionalConstraintFrom(std::string_view text)
{
    const auto found = std::find(names.begin(), names.end(), text);
    if (found == names.end())
        return std::nullopt;
    return static_cast<FunctionalConstraint>(found - names.begin());
}

bool isOfData(FunctionalConstraint constraint)
{
    switch (constraint) {
    case FunctionalConstraint::RP:
    case FunctionalConstraint::LG:
    case FunctionalConstraint::BR:
    case FunctionalConstraint::GO:
    case FunctionalConstraint::GS:
    case FunctionalConstraint::MS:
    case FunctionalConstraint::US:
        return false;
    default:
        return true;
    }
}

} // namespace acsi
