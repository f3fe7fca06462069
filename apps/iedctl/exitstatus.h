// SPDX-License-Identifier: Apache-2.0
#pragma once

/// How the program ends. Scripts rely on the numbers.
enum class ExitStatus : int {
    Done = 0,
    Refused = 1,      ///< the device or the driver refused, or a value did not come
    Usage = 2,        ///< the command line cannot be understood
    NotConnected = 3, ///< there is no association with the device
};
