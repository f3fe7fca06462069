// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

using Generator = std::mt19937;

std::size_t below(Generator &generator, std::size_t limit)
{
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(generator);
}

/// The function under test aborts when an input breaks a promise.
void run(const std::string &text)
{
    // A copy of exact size, so that a sanitizer sees the first octet read beyond.
    const std::vector<std::uint8_t> exact(text.begin(), text.end());
    EXPECT_EQ(LLVMFuzzerTestOneInput(exact.data(), exact.size()), 0);
}

TEST(ReferenceRobustness, textMadeOfTheNotationsPiecesIsReadAndPrintedAlike)
{
    constexpr std::string_view pieces[] = {"LD0", "LLN0", "$", "/", ".",   "(",         ")",
                                           "MX",  "ST",   "a", "7", "(3)", "4294967295"};
    Generator generator(61850);
    for (int i = 0; i < 200000; ++i) {
        std::string text;
        if (i % 2 == 0)
            text = "LD0/LN1$MX$";
        for (std::size_t left = below(generator, 12); left > 0; --left)
            text += pieces[below(generator, std::size(pieces))];
        run(text);
    }
}

TEST(ReferenceRobustness, damagedReferencesAreReadOrRefused)
{
    Generator generator(8);
    for (int i = 0; i < 100000; ++i) {
        std::string text = "E1Q1MEAS/MHAI1$MX$HA$phsAHar(3)$cVal$mag";
        for (std::size_t left = below(generator, 4); left > 0; --left) {
            const std::size_t at = below(generator, text.size());
            if (below(generator, 2) == 0)
                text[at] = static_cast<char>(below(generator, 256));
            else
                text.erase(at, below(generator, 3));
        }
        run(text);
    }
}

} // namespace
