// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace testsupport {

/// Inputs for a fuzz target that decides by single octets what happens: the same ones in each run.
class MadeInputs
{
public:
    explicit MadeInputs(unsigned seed)
        : m_generator(seed)
    {
    }

    std::size_t below(std::size_t limit)
    {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_generator);
    }

    /// Any octets, at most @p longest. Half of the inputs have small numbers only, which choose
    /// what means something more often than others.
    std::vector<std::uint8_t> next(std::size_t longest)
    {
        std::vector<std::uint8_t> octets(1 + below(longest));
        const std::size_t limit = below(2) == 0 ? 256 : 24;
        for (std::uint8_t &octet : octets)
            octet = static_cast<std::uint8_t>(below(limit));
        return octets;
    }

    /// @p octets with a few of them changed, left out or doubled.
    std::vector<std::uint8_t> changed(std::vector<std::uint8_t> octets)
    {
        for (std::size_t changes = 1 + below(4); changes > 0 && octets.size() > 1; --changes) {
            const auto place = octets.begin() + static_cast<std::ptrdiff_t>(below(octets.size()));
            switch (below(4)) {
            case 0:
                octets.erase(place);
                break;
            case 1: {
                const std::uint8_t copy = *place;
                octets.insert(place, copy);
                break;
            }
            default:
                *place = static_cast<std::uint8_t>(below(256));
                break;
            }
        }
        return octets;
    }

private:
    std::mt19937 m_generator;
};

/// The target ends the process when an input breaks a promise.
inline void runTarget(const std::vector<std::uint8_t> &octets)
{
    // A copy of exact size, so that a sanitizer sees the first octet read beyond.
    const std::vector<std::uint8_t> exact(octets);
    LLVMFuzzerTestOneInput(exact.data(), exact.size());
}

} // namespace testsupport
