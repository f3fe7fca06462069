// SPDX-License-Identifier: Apache-2.0
#include "tavrix/backendkinds.h"

#include <initializer_list>

using namespace Tavrix;
using namespace std::chrono_literals;

namespace {

using Events = std::vector<std::shared_ptr<const Event>>;

constexpr Owner thisThread = 1;
constexpr Owner otherThread = 2;

std::shared_ptr<Event> eventOf(std::string_view key,
                               std::initializer_list<std::string_view> records)
{
    auto event = std::make_shared<Event>(key, records.size(), 0);
    for (const std::string_view record : records) {
        event->append(record);
    }
    return event;
}

class EventBoxes : public testing::TestWithParam<BackendKind>
{
protected:
    unsigned int open(std::string_view name, Owner owner = thisThread)
    {
        unsigned int port = 0;
        EXPECT_EQ(boxes.connectPort(owner, name, port), Success);
        return port;
    }

    unsigned int openNew(std::string_view name, std::size_t capacity = 100,
                         std::chrono::milliseconds timeToLive = 30s)
    {
        EXPECT_EQ(boxes.createBox(thisThread, name, capacity, timeToLive), Success);
        return open(name);
    }

    void post(std::string_view prefix, std::string_view record, std::string_view key = "K")
    {
        EXPECT_EQ(boxes.post(prefix, eventOf(key, {record})), Success);
    }

    /// The first records of all events that a port gives without waiting, one after the other.
    std::vector<std::string> drain(unsigned int port, std::string_view key = {})
    {
        std::vector<std::string> records;
        for (;;) {
            Events events;
            if (boxes.receive(port, key, 0ms, 1, events) != Success) {
                return records;
            }
            records.emplace_back(events.front()->record(0));
        }
    }

    bool exists(std::string_view name)
    {
        unsigned int port = 0;
        if (boxes.connectPort(otherThread, name, port) != Success) {
            return false;
        }
        boxes.disconnectPort(port);
        return true;
    }

    InProcessEventBoxes::TimePoint now{};
    const std::unique_ptr<EventBackend> m_backend = GetParam().make([this] { return now; });
    EventBackend &boxes = *m_backend;
};

/// What only the boxes inside this process promise: they share an event and free it when due.
class EventBoxesInProcess : public EventBoxes
{
};

using Records = std::vector<std::string>;

INSTANTIATE_TEST_SUITE_P(Over, EventBoxes, testing::ValuesIn(backendKinds), kindName);
INSTANTIATE_TEST_SUITE_P(Over, EventBoxesInProcess, testing::Values(backendKinds[0]), kindName);

} // namespace

TEST_P(EventBoxes, connectingToAMissingBoxSaysSoAndLeavesThePort)
{
    unsigned int port = 42;
    EXPECT_EQ(boxes.connectPort(thisThread, "A", port), NoSuchEventBox);
    EXPECT_EQ(port, 42u);
}

TEST_P(EventBoxes, aSecondBoxOfTheSameNameIsRefusedAndTheFirstKept)
{
    const unsigned int port = openNew("A", 1);
    EXPECT_EQ(boxes.createBox(thisThread, "A", 100, 30s), EventBoxExists);
    post("A", "1");
    post("A", "2");
    EXPECT_EQ(drain(port), Records({"2"}));
}

TEST_P(EventBoxes, eventsComeInTheOrderOfTheirPosting)
{
    const unsigned int port = openNew("A");
    post("A", "1");
    post("A", "2");
    post("A", "3");
    EXPECT_EQ(drain(port), Records({"1", "2", "3"}));
}

TEST_P(EventBoxes, anEmptyBoxHasNothingToReceive)
{
    const unsigned int port = openNew("A");
    Events events;
    EXPECT_EQ(boxes.receive(port, {}, 0ms, 1, events), NothingReceived);
    EXPECT_TRUE(events.empty());
}

TEST_P(EventBoxes, anEmptyBoxIsWaitedForAsLongAsAsked)
{
    const unsigned int port = openNew("A");
    Events events;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(boxes.receive(port, {}, 30ms, 1, events), NothingReceived);
    EXPECT_GE(std::chrono::steady_clock::now() - start, 30ms);
}

TEST_P(EventBoxes, anEventIsReceivedOnceAmongThePortsOfABox)
{
    const unsigned int first = openNew("A");
    const unsigned int second = open("A");
    EXPECT_NE(first, second);
    post("A", "1");
    EXPECT_EQ(drain(second), Records({"1"}));
    EXPECT_EQ(drain(first), Records());
}

TEST_P(EventBoxes, aPostReachesEveryBoxWithThePrefixAndNoOther)
{
    const unsigned int one = openNew("DATA:1");
    const unsigned int two = openNew("DATA:2");
    const unsigned int bare = openNew("DATA:");
    const unsigned int shorter = openNew("DATA");
    const unsigned int other = openNew("DATB:1");
    post("DATA:", "x");
    EXPECT_EQ(drain(one), Records({"x"}));
    EXPECT_EQ(drain(two), Records({"x"}));
    EXPECT_EQ(drain(bare), Records({"x"}));
    EXPECT_EQ(drain(shorter), Records());
    EXPECT_EQ(drain(other), Records());
}

TEST_P(EventBoxes, anEmptyPrefixReachesEveryBox)
{
    const unsigned int one = openNew("A");
    const unsigned int two = openNew("B");
    post("", "x");
    EXPECT_EQ(drain(one), Records({"x"}));
    EXPECT_EQ(drain(two), Records({"x"}));
}

TEST_P(EventBoxesInProcess, boxesShareOneEvent)
{
    const unsigned int one = openNew("A1");
    const unsigned int two = openNew("A2");
    const auto event = eventOf("K", {"x"});
    boxes.post("A", event);
    Events ofOne;
    Events ofTwo;
    ASSERT_EQ(boxes.receive(one, {}, 0ms, 1, ofOne), Success);
    ASSERT_EQ(boxes.receive(two, {}, 0ms, 1, ofTwo), Success);
    EXPECT_EQ(ofOne.front(), event);
    EXPECT_EQ(ofTwo.front(), event);
}

TEST_P(EventBoxes, aKeyTakesItsEventsAndLeavesTheOthers)
{
    const unsigned int port = openNew("A");
    post("A", "1", "X");
    post("A", "2", "Y");
    post("A", "3", "X");
    post("A", "4", "Y");
    EXPECT_EQ(drain(port, "Y"), Records({"2", "4"}));
    EXPECT_EQ(drain(port, "Z"), Records());
    EXPECT_EQ(drain(port, {}), Records({"1", "3"}));
}

TEST_P(EventBoxes, aReceiveGathersAtMostTheEventsAskedFor)
{
    const unsigned int port = openNew("A");
    for (const std::string_view record : {"1", "2", "3", "4", "5"}) {
        post("A", record, record == "2" ? "other" : "K");
    }
    Events events;
    ASSERT_EQ(boxes.receive(port, "K", 0ms, 3, events), Success);
    ASSERT_EQ(events.size(), 3u);
    EXPECT_EQ(events[0]->record(0), "1");
    EXPECT_EQ(events[1]->record(0), "3");
    EXPECT_EQ(events[2]->record(0), "4");
    EXPECT_EQ(drain(port), Records({"2", "5"}));
}

TEST_P(EventBoxes, aReceiveStopsBeforeItsRecordsExceedThoseOfTheLargestEvent)
{
    const unsigned int port = openNew("A");
    const auto large = std::make_shared<Event>("K", 3000, 0);
    for (int i = 0; i < 3000; ++i) {
        large->append("x");
    }
    boxes.post("A", large);
    boxes.post("A", large);
    Events events;
    ASSERT_EQ(boxes.receive(port, {}, 0ms, 10, events), Success);
    EXPECT_EQ(events.size(), 1u);
    events.clear();
    ASSERT_EQ(boxes.receive(port, {}, 0ms, 10, events), Success);
    EXPECT_EQ(events.size(), 1u);
}

TEST_P(EventBoxes, anEventWithoutRecordsIsReceived)
{
    const unsigned int port = openNew("A");
    boxes.post("A", eventOf("K", {}));
    Events events;
    ASSERT_EQ(boxes.receive(port, {}, 0ms, 1, events), Success);
    EXPECT_EQ(events.front()->recordCount(), 0u);
}

TEST_P(EventBoxes, aFullBoxDropsItsOldestEvents)
{
    const unsigned int port = openNew("A", 3);
    for (const std::string_view record : {"1", "2", "3", "4", "5"}) {
        post("A", record);
    }
    EXPECT_EQ(drain(port), Records({"3", "4", "5"}));
}

TEST_P(EventBoxes, aBoxKeepsNoMoreBytesThanItsLimit)
{
    const unsigned int port = openNew("A", 20005);
    const std::string record(rawValueSize, 'x');
    const auto large = std::make_shared<Event>("K", maxRecordsPerEvent, 0);
    for (int i = 0; i < maxRecordsPerEvent; ++i) {
        large->append(record);
    }
    const std::size_t fitting = static_cast<std::size_t>(maxBoxBytes) / large->cost();
    post("A", "oldest");
    for (std::size_t i = 0; i < fitting + 10; ++i) {
        boxes.post("A", large);
    }
    post("A", "newest");
    Events events;
    std::size_t cost = 0;
    std::size_t received = 0;
    std::string last;
    while (boxes.receive(port, {}, 0ms, 1, events) == Success) {
        cost += events.front()->cost();
        last = events.front()->record(0);
        ++received;
        events.clear();
    }
    EXPECT_EQ(last, "newest");
    EXPECT_LE(cost, static_cast<std::size_t>(maxBoxBytes));
    EXPECT_GE(received, fitting);
}

TEST_P(EventBoxes, takenEventsMakeRoomAgain)
{
    const unsigned int port = openNew("A", 20005);
    const std::string record(rawValueSize, 'x');
    const auto large = std::make_shared<Event>("K", maxRecordsPerEvent, 0);
    for (int i = 0; i < maxRecordsPerEvent; ++i) {
        large->append(record);
    }
    for (int i = 0; i < 200; ++i) {
        boxes.post("A", large);
        EXPECT_EQ(drain(port).size(), 1u);
    }
    post("A", "1");
    boxes.post("A", large);
    EXPECT_EQ(drain(port), Records({"1", record}));
}

TEST_P(EventBoxes, anEventThatNobodyReceivedInTimeIsDropped)
{
    const unsigned int port = openNew("A", 100, 1000ms);
    post("A", "old");
    now += 1ms;
    post("A", "young");
    now += 999ms;
    EXPECT_EQ(drain(port), Records({"young"}));
}

TEST_P(EventBoxes, eachBoxHasItsOwnTimeToLive)
{
    const unsigned int shortLived = openNew("A1", 100, 10ms);
    const unsigned int longLived = openNew("A2", 100, 1000ms);
    post("A", "x");
    now += 10ms;
    EXPECT_EQ(drain(shortLived), Records());
    EXPECT_EQ(drain(longLived), Records({"x"}));
}

TEST_P(EventBoxesInProcess, anExpiredEventIsFreedByTheNextPost)
{
    openNew("A", 100, 10ms);
    auto event = eventOf("K", {"x"});
    const std::weak_ptr<const Event> watched = event;
    boxes.post("A", event);
    event.reset();
    EXPECT_FALSE(watched.expired());
    now += 10ms;
    post("A", "y");
    EXPECT_TRUE(watched.expired());
}

TEST_P(EventBoxes, aPortThatWasNeverOpenedIsNotUsable)
{
    Events events;
    EXPECT_EQ(boxes.receive(0, {}, 10s, 1, events), NoSuchEventBox);
    EXPECT_EQ(boxes.receive(7, {}, 10s, 1, events), NoSuchEventBox);
    EXPECT_EQ(boxes.disconnectPort(7), NoSuchEventBox);
}

TEST_P(EventBoxes, aClosedPortIsNotUsable)
{
    const unsigned int port = openNew("A");
    post("A", "1");
    EXPECT_EQ(boxes.disconnectPort(port), Success);
    Events events;
    EXPECT_EQ(boxes.receive(port, {}, 10s, 1, events), NoSuchEventBox);
    EXPECT_EQ(boxes.disconnectPort(port), NoSuchEventBox);
    EXPECT_EQ(drain(open("A")), Records({"1"}));
}

TEST_P(EventBoxes, aPersistentBoxKeepsItsEventsWithoutAPort)
{
    boxes.disconnectPort(openNew("A"));
    post("A", "1");
    EXPECT_EQ(drain(open("A")), Records({"1"}));
}

TEST_P(EventBoxes, aBoxThatIsNotPersistentDiesWithItsLastPort)
{
    const unsigned int first = openNew("A");
    const unsigned int second = open("A");
    EXPECT_EQ(boxes.setPersistent("A", false), Success);
    boxes.disconnectPort(first);
    EXPECT_TRUE(exists("A"));
    boxes.disconnectPort(second);
    EXPECT_FALSE(exists("A"));
}

TEST_P(EventBoxesInProcess, theEventsOfABoxAreFreedWithItsLastPort)
{
    const unsigned int first = openNew("A");
    const unsigned int second = open("A");
    EXPECT_EQ(boxes.setPersistent("A", false), Success);
    auto event = eventOf("K", {"x"});
    const std::weak_ptr<const Event> watched = event;
    boxes.post("A", event);
    event.reset();

    boxes.disconnectPort(first);
    EXPECT_FALSE(watched.expired());
    boxes.disconnectPort(second);
    EXPECT_TRUE(watched.expired());
}

TEST_P(EventBoxes, aBoxThatIsNotPersistentWaitsForItsFirstPort)
{
    EXPECT_EQ(boxes.createBox(thisThread, "A", 100, 30s), Success);
    EXPECT_EQ(boxes.setPersistent("A", false), Success);
    EXPECT_TRUE(exists("A"));
    EXPECT_FALSE(exists("A"));
}

TEST_P(EventBoxes, aBoxWithoutPortsDiesWhenItIsMadeNonPersistent)
{
    boxes.disconnectPort(openNew("A"));
    EXPECT_EQ(boxes.setPersistent("A", false), Success);
    EXPECT_FALSE(exists("A"));
}

TEST_P(EventBoxes, aBoxMadePersistentAgainOutlivesItsPorts)
{
    const unsigned int port = openNew("A");
    boxes.setPersistent("A", false);
    boxes.setPersistent("A", true);
    boxes.disconnectPort(port);
    EXPECT_TRUE(exists("A"));
}

TEST_P(EventBoxes, persistenceOfAMissingBoxIsAnError)
{
    EXPECT_EQ(boxes.setPersistent("A", false), NoSuchEventBox);
}

TEST_P(EventBoxes, portsEndWithTheThreadThatOpenedThem)
{
    const unsigned int ours = openNew("A");
    const unsigned int theirs = open("A", otherThread);
    boxes.setPersistent("A", false);
    boxes.ownerGone(otherThread);
    Events events;
    EXPECT_EQ(boxes.receive(theirs, {}, 10s, 1, events), NoSuchEventBox);
    EXPECT_EQ(boxes.receive(ours, {}, 0ms, 1, events), NothingReceived);
    boxes.ownerGone(thisThread);
    EXPECT_FALSE(exists("A"));
}

TEST_P(EventBoxes, aBoxThatNeverHadAPortEndsWithItsCreatorUnlessPersistent)
{
    boxes.createBox(otherThread, "persistent", 100, 30s);
    boxes.createBox(otherThread, "orphan", 100, 30s);
    boxes.setPersistent("orphan", false);
    boxes.createBox(thisThread, "of the other thread", 100, 30s);
    boxes.setPersistent("of the other thread", false);
    boxes.ownerGone(otherThread);
    EXPECT_TRUE(exists("persistent"));
    EXPECT_FALSE(exists("orphan"));
    EXPECT_TRUE(exists("of the other thread"));
}

TEST_P(EventBoxes, aBoxWithPortsOfOtherThreadsOutlivesItsCreator)
{
    EXPECT_EQ(boxes.createBox(otherThread, "A", 100, 30s), Success);
    boxes.setPersistent("A", false);
    const unsigned int port = open("A");
    boxes.ownerGone(otherThread);
    post("A", "1");
    EXPECT_EQ(drain(port), Records({"1"}));
}
