// SPDX-License-Identifier: Apache-2.0
#include "osi/bytes.h"
#include "osi/pcapng.h"

#include <gtest/gtest.h>

using osi::Direction;
using wiretest::fromHex;
using wiretest::packed;
using wiretest::toHex;

TEST(Pcapng, aFileBeginsWithASectionAndAnInterfaceOfExportedPdus)
{
    EXPECT_EQ(toHex(osi::pcapng::fileHeader()),
              packed("0a0d0d0a 1c000000 4d3c2b1a 0100 0000 ffffffffffffffff 1c000000"
                     "01000000 20000000 fc00 0000 00000000 0900 0100 09000000 00000000 20000000"));
}

TEST(Pcapng, aPacketHoldsItsTimeItsDirectionAndThePdu)
{
    const std::chrono::system_clock::time_point time{std::chrono::seconds(5)};
    const std::string head = packed("06000000 3c000000 00000000 01000000 00f2052a 0e000000 0e000000"
                                    "000c0004 6d6d7300 00000000 8b00 0000 0200 0400");
    const std::string tail = packed("00000000 3c000000");
    EXPECT_EQ(toHex(osi::pcapng::packet(Direction::Received, time, fromHex("8b00"))),
              head + "01000000" + tail);
    EXPECT_EQ(toHex(osi::pcapng::packet(Direction::Sent, time, fromHex("8b00"))),
              head + "02000000" + tail);
}
