// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

/// Why a value was published: MMSValue::cause.
namespace PublishCause {
enum : std::uint32_t {
    Read = 1, ///< the operator asked for it, or it was read back
    Polled = 2,
    /// Of a report; the bits of its reasons for inclusion are added: 1 data change, 2 quality
    /// change, 4 data update, 8 integrity, 16 general interrogation.
    Report = 0x100,
};
}
