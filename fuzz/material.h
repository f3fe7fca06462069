// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/vocabulary.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace fuzz {

/// A promise that was broken ends the process, which is what a fuzzer looks for.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// What an input decides, taken octet by octet from its front; zeros once it is used up.
class Material
{
public:
    explicit Material(mms::Bytes bytes)
        : m_left(bytes)
    {
    }

    bool isUsedUp() const { return m_left.empty(); }
    std::uint8_t octet()
    {
        const std::uint8_t result = m_left.empty() ? std::uint8_t{0} : m_left.front();
        m_left = m_left.subspan(m_left.empty() ? 0 : 1);
        return result;
    }
    std::size_t below(std::size_t limit) { return octet() % limit; }
    std::uint32_t number()
    {
        std::uint32_t result = 0;
        for (int i = 0; i < 4; ++i)
            result = (result << 8U) | octet();
        return result;
    }
    /// As many octets as the next two say, or as are left.
    mms::Bytes chunk()
    {
        const std::size_t high = octet();
        const std::size_t wanted = (high << 8U) | octet();
        const mms::Bytes result = m_left.first(std::min(wanted, m_left.size()));
        m_left = m_left.subspan(result.size());
        return result;
    }
    mms::Bytes rest() { return m_left; }

private:
    mms::Bytes m_left;
};

/// Mostly a name that means something to this stack, now and then any octets.
inline std::string name(Material &material)
{
    static constexpr std::array<std::string_view, 56> known = {
        "LLN0",   "GGIO1",  "XCBR1",  "MMXU1", "LPHD1",   "ST",        "MX",       "CF",
        "CO",     "SP",     "SG",     "SE",    "BR",      "RP",        "DC",       "SR",
        "OR",     "BL",     "EX",     "Pos",   "Beh",     "NamPlt",    "TotW",     "stVal",
        "q",      "t",      "ctlVal", "Oper",  "SBOw",    "Cancel",    "ctlNum",   "origin",
        "orCat",  "Check",  "SGCB",   "ActSG", "NumOfSG", "urcb01",    "brcb01",   "RptID",
        "DatSet", "TrgOps", "mag",    "f",     "i",       "configRev", "har",      "cVal",
        "Ind1",   "ds",     "FUZZLD", "",      "a$b",     "har(3)",    "\xff\xfe", "e\xcc\x81"};
    const std::size_t choice = material.below(64);
    if (choice < known.size())
        return std::string(known[choice]);
    const mms::Bytes octets = material.chunk();
    return {octets.begin(), octets.end()};
}

} // namespace fuzz
