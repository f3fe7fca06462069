// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Result of every controller operation, 32 bits. Zero is success; every other value is a failure
/// that the operation's error text describes. Drivers may use further values.
enum OperationResult : int {
    OperationSucceeded = 0,
    OperationFailed = 1,                ///< the device or the driver refused or could not do it
    OperationNotConnected = 2,          ///< no association with the device
    OperationDriverUnreachable = 10001, ///< the driver itself could not be reached
};
