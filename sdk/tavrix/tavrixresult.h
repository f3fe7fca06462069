// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace Tavrix {

/// What every function of the middleware returns.
enum Result : int {
    Success = 0,
    NothingReceived = 2000, ///< no matching event arrived within the wait
    NoSuchEventBox = 2001,  ///< no box of that name, or a port that is no longer usable
    EventBoxExists = 2002,  ///< a box of that name stands already and was left as it is
    InvalidArgument = 2003, ///< a null or over-long text, a number out of range
    RecordTooLong = 2004,   ///< a record of more than `rawValueSize` bytes; nothing was posted
    MiddlewareUnavailable = 2005, ///< nothing answers at the address
};

constexpr int rawValueSize = 512; ///< bytes of one record
constexpr int maxRecordsPerEvent = 4096;
constexpr int maxNameLength = 255;    ///< bytes of a box name or a key
constexpr int maxBoxBytes = 64 << 20; ///< bytes of events that one box keeps

} // namespace Tavrix
