// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/data.h"
#include "mms/typedescription.h"

#include <string_view>

namespace acsi {

/// The component of a structure by its name; null when there is none.
const mms::TypeDescription *componentOf(const mms::TypeDescription &structure,
                                        std::string_view name);

/// Whether a device with a variable of type @p type can take @p value as it is. The error says what
/// does not fit.
mms::Result<void> checkType(const mms::TypeDescription &type, const mms::Data &value);

/// @p value as a value of type @p type, for values that were entered without knowing the type:
/// - numbers of any kind, and false and true as 0 and 1, where numbers or booleans are wanted;
/// - whole numbers for coded enumerations, which are bit strings: the number 1 is '01'B;
/// - a number for an analogue value, a structure of i and f or one of both. Where it has both, i is
///   the nearest whole number.
/// The error says what does not fit. Nothing else is cut or rounded, except to the precision of a
/// floating-point type.
mms::Result<mms::Data> valueOfType(const mms::TypeDescription &type, const mms::Data &value);

} // namespace acsi
