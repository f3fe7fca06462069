// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QtGlobal>

#include <cstring>

/// A quick hash of short texts. Seeded, so that no device description can be made to collide.
namespace TextHash {

inline quint64 wordAt(const char *bytes)
{
    quint64 word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

inline quint64 mixed(quint64 state, quint64 word)
{
    const quint64 product = (state ^ word) * Q_UINT64_C(0x9E3779B97F4A7C15);
    return product ^ (product >> 32);
}

inline quint32 of(const void *text, std::size_t size, quint64 seed)
{
    constexpr std::size_t step = 2 * sizeof(quint64);
    const char *bytes = static_cast<const char *>(text);
    quint64 even = seed ^ size;
    quint64 odd = ~seed;
    std::size_t left = size;
    for (; left > step; left -= step, bytes += step) {
        even = mixed(even, wordAt(bytes));
        odd = mixed(odd, wordAt(bytes + sizeof(quint64)));
    }
    char rest[step] = {};
    if (left > 0) // an empty text may have no bytes at all
        std::memcpy(rest, bytes, left);
    even = mixed(even, wordAt(rest));
    odd = mixed(odd, wordAt(rest + sizeof(quint64)));
    return static_cast<quint32>(mixed(even, (odd << 32) | (odd >> 32)));
}

} // namespace TextHash
