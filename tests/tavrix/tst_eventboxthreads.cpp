// SPDX-License-Identifier: Apache-2.0
#include "tavrix/backendkinds.h"

#include <algorithm>
#include <atomic>
#include <set>
#include <thread>

using namespace Tavrix;
using namespace std::chrono_literals;

namespace {

using Events = std::vector<std::shared_ptr<const Event>>;

/// A receive that missed its wake-up does not end; the test's time limit tells.
constexpr auto never = 1h;

std::shared_ptr<const Event> eventOf(std::string_view key, std::string_view record)
{
    auto event = std::make_shared<Event>(key, 1, record.size());
    event->append(record);
    return event;
}

class EventBoxThreads : public testing::TestWithParam<BackendKind>
{
protected:
    unsigned int openNew(std::string_view name, std::size_t capacity = 100000)
    {
        EXPECT_EQ(boxes.createBox(1, name, capacity, std::chrono::hours(1)), Success);
        return open(name);
    }

    unsigned int open(std::string_view name)
    {
        unsigned int port = 0;
        EXPECT_EQ(boxes.connectPort(1, name, port), Success);
        return port;
    }

    Result receiveOne(unsigned int port, std::string_view key = {})
    {
        Events events;
        return boxes.receive(port, key, never, 1, events);
    }

    const std::unique_ptr<EventBackend> m_backend =
        GetParam().make(&std::chrono::steady_clock::now);
    EventBackend &boxes = *m_backend;
};

INSTANTIATE_TEST_SUITE_P(Over, EventBoxThreads, testing::ValuesIn(backendKinds), kindName);

} // namespace

TEST_P(EventBoxThreads, noWakeUpIsLostBetweenTwoThreadsThatAnswerEachOther)
{
    constexpr int rounds = 5000;
    const unsigned int there = openNew("there");
    const unsigned int back = openNew("back");
    const auto event = eventOf("K", "x");

    std::atomic<int> echoed = 0;
    std::thread echo([&] {
        while (echoed < rounds && receiveOne(there) == Success) {
            ++echoed;
            boxes.post("back", event);
        }
    });
    int answered = 0;
    while (answered < rounds) {
        boxes.post("there", event);
        if (receiveOne(back) != Success) {
            break;
        }
        ++answered;
    }
    echo.join();
    EXPECT_EQ(echoed, rounds);
    EXPECT_EQ(answered, rounds);
}

TEST_P(EventBoxThreads, aReceiverIsWokenByAnEventOfItsKeyWhileOthersWaitForOtherKeys)
{
    constexpr int rounds = 500;
    const unsigned int port = openNew("A");
    const unsigned int back = openNew("back");

    std::atomic<int> ended = 0;
    std::vector<std::thread> receivers;
    for (int i = 0; i < 3; ++i) {
        receivers.emplace_back([&] { ended += receiveOne(port, "end") == Success ? 1 : 0; });
    }
    receivers.emplace_back([&] {
        for (int i = 0; i < rounds && receiveOne(port, "go on") == Success; ++i) {
            boxes.post("back", eventOf("K", "x"));
        }
    });
    int answered = 0;
    while (answered < rounds) {
        boxes.post("A", eventOf("go on", "x"));
        if (receiveOne(back) != Success) {
            break;
        }
        ++answered;
    }
    for (int i = 0; i < 3; ++i) {
        boxes.post("A", eventOf("end", "x"));
    }
    for (std::thread &receiver : receivers) {
        receiver.join();
    }
    EXPECT_EQ(answered, rounds);
    EXPECT_EQ(ended, 3);
}

TEST_P(EventBoxThreads, manyPostersAndReceiversLoseNothingAndReceiveNothingTwice)
{
    constexpr int posters = 4;
    constexpr int receivers = 4;
    constexpr int perPoster = 2000;
    constexpr int total = posters * perPoster;
    const unsigned int shared = openNew("A");

    std::atomic<int> left = total;
    std::vector<std::vector<std::string>> received(receivers);
    std::vector<std::thread> threads;
    for (int r = 0; r < receivers; ++r) {
        // Half of them through one port, half through ports of their own.
        const unsigned int port = r % 2 == 0 ? shared : open("A");
        threads.emplace_back([this, port, &left, &mine = received[static_cast<std::size_t>(r)]] {
            while (left.fetch_sub(1) > 0) {
                Events events;
                if (boxes.receive(port, {}, never, 1, events) == Success) {
                    mine.emplace_back(events.front()->record(0));
                }
            }
        });
    }
    for (int p = 0; p < posters; ++p) {
        threads.emplace_back([this, p] {
            for (int i = 0; i < perPoster; ++i) {
                boxes.post("A", eventOf("K", std::to_string(p * perPoster + i)));
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }

    std::multiset<std::string> all;
    for (const auto &records : received) {
        all.insert(records.begin(), records.end());
    }
    EXPECT_EQ(all.size(), static_cast<std::size_t>(total));
    EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), all.size());
}

TEST_P(EventBoxThreads, eachReceiverSeesTheEventsOfOnePosterInOrder)
{
    constexpr int count = 5000;
    const unsigned int port = openNew("A");
    std::thread poster([this] {
        for (int i = 0; i < count; ++i) {
            boxes.post("A", eventOf("K", std::to_string(i)));
        }
    });
    std::vector<int> received;
    while (received.size() < static_cast<std::size_t>(count)) {
        Events events;
        if (boxes.receive(port, {}, never, 7, events) != Success) {
            break;
        }
        for (const auto &event : events) {
            received.push_back(std::stoi(std::string(event->record(0))));
        }
    }
    poster.join();
    EXPECT_EQ(received.size(), static_cast<std::size_t>(count));
    EXPECT_TRUE(std::is_sorted(received.begin(), received.end()));
}

TEST_P(EventBoxThreads, closingAPortEndsTheReceiveThatWaitsOnIt)
{
    openNew("A");
    for (int round = 0; round < 500; ++round) {
        const unsigned int port = open("A");
        Result result = Success;
        std::thread receiver([&] { result = receiveOne(port); });
        boxes.disconnectPort(port);
        receiver.join();
        ASSERT_EQ(result, NoSuchEventBox);
    }
}

TEST_P(EventBoxThreads, theDeathOfABoxEndsEveryReceiveThatWaitsOnIt)
{
    for (int round = 0; round < 200; ++round) {
        ASSERT_EQ(boxes.createBox(1, "A", 10, 30s), Success);
        boxes.setPersistent("A", false);
        const unsigned int ports[] = {open("A"), open("A"), open("A")};
        std::atomic<int> ended = 0;
        std::vector<std::thread> receivers;
        for (const unsigned int port : ports) {
            receivers.emplace_back(
                [&, port] { ended += receiveOne(port) == NoSuchEventBox ? 1 : 0; });
        }
        boxes.ownerGone(1);
        for (std::thread &receiver : receivers) {
            receiver.join();
        }
        ASSERT_EQ(ended, 3);
        unsigned int port = 0;
        ASSERT_EQ(boxes.connectPort(1, "A", port), NoSuchEventBox);
    }
}

TEST_P(EventBoxThreads, boxesComeAndGoWhileOthersPost)
{
    std::atomic<bool> done = false;
    std::thread poster([&] {
        const auto event = eventOf("K", "x");
        while (!done) {
            boxes.post("A", event);
        }
    });
    for (int round = 0; round < 500; ++round) {
        const unsigned int port = openNew("A" + std::to_string(round), 10);
        boxes.setPersistent("A" + std::to_string(round), false);
        EXPECT_EQ(receiveOne(port), Success);
        EXPECT_EQ(boxes.disconnectPort(port), Success);
    }
    done = true;
    poster.join();
}
