// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace osi {

/// What a certificate of the host has to be made out to: its name, or its address without brackets
/// and without the scope that it has on this computer only.
std::string certifiedName(const std::string &host);

} // namespace osi
