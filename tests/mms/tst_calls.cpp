// SPDX-License-Identifier: Apache-2.0
#include "mms/calls.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;
using mms::CallTable;

using Tickets = std::vector<CallTable::Ticket>;

const CallTable::Clock::time_point start{};

} // namespace

TEST(CallTable, onlyTheLimitIsOnTheWayAndTheOthersWaitInOrder)
{
    CallTable table(2, 1s);
    const auto first = table.add(start + 1s);
    const auto second = table.add(start + 1s);
    const auto third = table.add(start + 1s);
    const auto sentFirst = table.next();
    const auto sentSecond = table.next();
    ASSERT_TRUE(sentFirst && sentSecond);
    EXPECT_EQ(sentFirst->ticket, first);
    EXPECT_EQ(sentSecond->ticket, second);
    EXPECT_NE(sentFirst->invokeId, sentSecond->invokeId);
    EXPECT_FALSE(table.next());
    EXPECT_EQ(table.answered(sentSecond->invokeId), second);
    EXPECT_EQ(table.next()->ticket, third);
    EXPECT_EQ(table.waiting(), 0U);
}

TEST(CallTable, answersMayComeInAnyOrderAndOnlyOnce)
{
    CallTable table(2, 1s);
    const auto first = table.add(start);
    const auto second = table.add(start);
    const auto a = table.next()->invokeId;
    const auto b = table.next()->invokeId;
    EXPECT_EQ(table.answered(b), second);
    EXPECT_EQ(table.answered(a), first);
    EXPECT_FALSE(table.answered(a));
    EXPECT_EQ(table.counters().late, 1U);
    EXPECT_FALSE(table.answered(4711));
    EXPECT_EQ(table.counters().unknown, 1U);
}

TEST(CallTable, aDeadlineEndsACallWhetherItWaitsOrIsOnTheWay)
{
    CallTable table(1, 10s);
    const auto sent = table.add(start + 3s);
    const auto waiting = table.add(start + 2s);
    const auto invokeId = table.next()->invokeId;
    EXPECT_EQ(table.nextDeadline(), start + 2s);
    EXPECT_TRUE(table.expire(start + 1999ms).empty());
    EXPECT_EQ(table.expire(start + 2s), Tickets{waiting});
    EXPECT_EQ(table.expire(start + 3s), Tickets{sent});
    EXPECT_TRUE(table.expire(start + 4s).empty());
    EXPECT_FALSE(table.answered(invokeId)) << "its caller is gone";
    EXPECT_EQ(table.counters().late, 1U);
}

TEST(CallTable, aCallThatWasGivenUpKeepsItsPlaceUntilItsGraceIsOver)
{
    CallTable table(1, 10s);
    const auto givenUp = table.add(start + 1s);
    table.next();
    const auto other = table.add(start + 60s);
    EXPECT_TRUE(table.cancel(givenUp, start));
    EXPECT_FALSE(table.cancel(givenUp, start)) << "it is over";
    EXPECT_FALSE(table.next());
    EXPECT_EQ(table.nextDeadline(), start + 10s);
    EXPECT_TRUE(table.expire(start + 10s).empty());
    EXPECT_EQ(table.next()->ticket, other);
}

TEST(CallTable, aCallThatWaitsIsCancelledWithoutATrace)
{
    CallTable table(1, 10s);
    table.add(start + 1s);
    const auto waiting = table.add(start + 1s);
    table.next();
    EXPECT_FALSE(table.invokeIdOf(waiting));
    EXPECT_TRUE(table.cancel(waiting, start));
    EXPECT_EQ(table.waiting(), 0U);
}

TEST(CallTable, theEndOfAnAssociationEndsAllCallsThatAreNotOver)
{
    CallTable table(2, 10s);
    const auto first = table.add(start + 1s);
    const auto cancelled = table.add(start + 1s);
    const auto waiting = table.add(start + 1s);
    table.next();
    table.next();
    table.cancel(cancelled, start);
    EXPECT_EQ(table.clear(), (Tickets{first, waiting}));
    EXPECT_EQ(table.onTheWay() + table.waiting(), 0U);
    EXPECT_FALSE(table.nextDeadline());
}

TEST(CallTable, invokeIdsBeginAgainAfterTheLargest)
{
    CallTable table(3, 1s, 0x7ffffffe);
    const auto first = table.add(start);
    const auto second = table.add(start);
    EXPECT_EQ(table.next()->invokeId, 0x7fffffffU);
    EXPECT_EQ(table.next()->invokeId, 1U);
    EXPECT_EQ(table.answered(0x7fffffff), first);
    EXPECT_EQ(table.answered(1), second);
    // What was used before the beginning is late, not unknown.
    EXPECT_FALSE(table.answered(0x7ffffffe));
    EXPECT_EQ(table.counters().late, 1U);
    EXPECT_EQ(table.counters().unknown, 0U);
}

TEST(CallTable, aCallThatThePeerForgotFreesItsPlaceOnlyWhenItWasGivenUp)
{
    CallTable table(1, 1h);
    const auto ticket = table.add(start + 1s);
    const auto invokeId = table.next()->invokeId;
    EXPECT_EQ(table.placeOf(ticket), invokeId);
    table.forget(invokeId);
    table.add(start + 1s);
    EXPECT_FALSE(table.next());
    EXPECT_TRUE(table.cancel(ticket, start));
    EXPECT_EQ(table.placeOf(ticket), invokeId);
    table.forget(invokeId);
    EXPECT_FALSE(table.placeOf(ticket));
    EXPECT_TRUE(table.next());
}
