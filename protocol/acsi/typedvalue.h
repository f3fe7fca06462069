// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/data.h"
#include "mms/typedescription.h"

#include <optional>
#include <string_view>

namespace acsi {

/// The component of a structure by its name; null when there is none.
const mms::TypeDescription *componentOf(const mms::TypeDescription &structure,
                                        std::string_view name);

/// The nearest number of 32 bits; none where that would be infinity, or 0 for a number that is not.
std::optional<float> nearestFloat(double number);

/// Whether the length of a text or of octets fits @p type, which is one of these. Devices describe
/// some of them with a fixed size where the standard has a greatest one, so that a size is only
/// ever the greatest. Sizes count octets; that of the standard's Unicode255 counts characters.
bool fitsLength(const mms::TypeDescription &type, const mms::Data &value);

/// Whether @p value, which a device sent, is what @p type says of it: of that kind, a
/// floating-point number of that width, a bit string with as many bits as it must have, a time of
/// day that is one. Ranges of numbers and lengths of texts are the device's own affair. Of groups
/// only the number of their members counts.
bool isSentAs(const mms::TypeDescription &type, const mms::Data &value);

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
