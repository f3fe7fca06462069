// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/functionalconstraint.h"
#include "mms/variableaccess.h"
#include "mms/vocabulary.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace acsi {

/// A name on the way to data, and the element when it is that of an array.
struct PathStep
{
    std::string name;
    std::optional<std::uint32_t> element; ///< counted from 0

    friend bool operator==(const PathStep &, const PathStep &) = default;
};

/// Names data with a functional constraint, a control block, or less than that: every part after
/// the logical device may be missing when all parts behind it are missing too.
/// As text "LD/LN$FC$Data$har(3)$mag", the notation of IEC 61850-8-1, 7.3, with elements of arrays
/// in parentheses.
struct Reference
{
    std::string device; ///< logical device: the MMS domain
    std::string node;   ///< logical node
    std::optional<FunctionalConstraint> constraint;
    std::vector<PathStep> path;

    friend bool operator==(const Reference &, const Reference &) = default;
};

/// Reads the text form. The error names what is wrong with the text.
mms::Result<Reference> parseReference(std::string_view text);
/// The same without "LD/", within the logical device @p device.
mms::Result<Reference> parseReference(std::string_view device, std::string_view text);

std::string toText(const Reference &reference);
/// "LN$FC$Data$har(3)$mag": without the logical device.
std::string itemText(const Reference &reference);
/// "LD/LN.Data.har(3).mag": without the constraint.
std::string objectReferenceText(const Reference &reference);

/// What is read or written: a domain variable, with alternate access from the first element on.
mms::VariableAccess accessOf(const Reference &reference);
/// The inverse. An access to several parts, a range or an address has no reference.
mms::Result<Reference> referenceOf(const mms::VariableAccess &access);
mms::Result<Reference> referenceOf(std::string_view domain, std::string_view item);

} // namespace acsi
