// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/data.h"

#include <string>
#include <string_view>

namespace mms {

/// For traces: numbers as they are, text in quotation marks, bits and octets as ASN.1 writes them,
/// times in UTC, structures in braces and arrays in brackets.
std::string toText(const Data &data);
std::string toText(const AccessResult &result);

/// Text in quotation marks; octets that do not print as "\x" and two digits.
std::string quoted(std::string_view text);

} // namespace mms
