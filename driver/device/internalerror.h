// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

#include <exception>

/// Exceptions that end coroutines of a device.
namespace InternalError {

/// Somebody has cancelled the coroutine.
bool isCancellation(const std::exception_ptr &exception);

/// One sentence about an exception that nobody expected.
QString sentence(const std::exception_ptr &exception);

} // namespace InternalError
