// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/model/leafrange.h"

#include "acsi/reference.h"
#include "mms/data.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

/// Decides for each leaf of a device's model whether its value is current, by what and since when,
/// and from that what the device is asked for next. A plain machine: it is told what happened and
/// when, and answers questions; it has no association, no timer and no clock. For one association.
///
/// What is polled are parts of the model, at first as large as possible. A part that is refused or
/// too large is divided, down to the leaf; a leaf that the device denies or does not have is not
/// asked for again. What is unavailable for the moment is tried again in the slow round. Requests
/// that were too large are remembered. A request without an answer is asked again apart from all
/// others, in halves until the silent part is found, and that in growing intervals.
class ValueCurrency
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::milliseconds;
    using Id = std::uint32_t; ///< of a part, or of a question

    /// How often a part is asked for.
    enum class Pace : std::uint8_t {
        Fast,
        Slow,
        Configuration, ///< slow, but not in the first round: it is read before
    };

    /// What brought the value of a leaf.
    enum class Source : std::uint8_t { Nothing, Poll, Read, Write, Report };

    /// What the device said of a part.
    enum class Reply : std::uint8_t {
        Taken,
        Refused,     ///< denied, or not there
        Unfit,       ///< has not the form of its type
        Unavailable, ///< for the moment
        TooLarge,
    };

    struct Part
    {
        acsi::Reference reference;
        LeafRange leaves;
        std::size_t octets = 0; ///< that it takes in a request
    };
    /// The next smaller parts of a part, in the order of their leaves; none for a leaf.
    using Divide = std::function<std::vector<Part>(const Part &)>;

    struct Options
    {
        Duration interval{0};     ///< between fast rounds; 0 for a single round of all
        int slowRounds = 10;      ///< every so many rounds all the rest is asked for too
        std::size_t room = 60000; ///< octets for the parts of one request
        std::size_t places = 1;   ///< requests on the way at a time
        /// How long a request without an answer keeps its place.
        Duration grace{10000};
        Duration firstPause{10000}; ///< until a silent part is asked for again; then it doubles
        Duration longestPause{120000};
    };

    struct Question
    {
        Id id = 0;
        std::vector<Id> parts;
    };

    /// How the values are as a whole.
    struct Summary
    {
        std::uint32_t stale = 0; ///< leaves whose last question brought no value
        Time staleSince;         ///< how old the oldest of them is
        bool isSilent = false;   ///< the first of them was not answered; otherwise unavailable
        std::optional<acsi::Reference> firstStale;
        std::uint32_t refused = 0;                 ///< leaves that are not asked for again
        std::vector<acsi::Reference> refusedParts; ///< the first few

        friend bool operator==(const Summary &, const Summary &) = default;
    };

    struct Leaf
    {
        Source keptBy = Source::Nothing; ///< Nothing for one that nothing brings any more
        bool isCurrent = false;
        Source source = Source::Nothing; ///< of the value that is known
        Time asOf;                       ///< the value is not older
    };

    ValueCurrency(std::size_t leaves, Divide divide, Options options);

    /// A part to be polled, behind those that there are already. One that @p isDivided must not be
    /// asked for whole.
    void add(Pace pace, Part part, bool isDivided = false);
    /// Leaves that reports bring whenever they change: only the slow round asks for them.
    void setReported(const std::vector<LeafRange> &ranges);

    /// Ask for all of one pace, once.
    void ask(Pace pace);
    /// Ask for all but the configuration, then in rounds.
    void start(Time now);
    /// Nothing is waiting to be asked or on the way; silent parts do not count.
    bool isIdle() const { return m_queue.empty() && m_onTheWay.empty(); }

    /// What to ask for now; nothing when no place is free or nothing is due.
    std::optional<Question> next(Time now);
    /// When next() may have something without any event.
    std::optional<Time> nextTime() const;
    const Part &part(Id id) const { return m_items[id].part; }

    /// The answer to a question: one reply for each of its parts.
    void answered(Id question, const std::vector<Reply> &replies, Time now);
    /// The question was refused as a whole.
    void refused(Id question, Reply reply, Time now);
    /// The device did not answer in time.
    void silent(Id question, Time now);
    /// The question never reached the device.
    void unsent(Id question, Time now);

    /// Whether a value of the leaf that was asked for, or came, at @p asOf is to be taken; false
    /// for one that is older than what is known. Remembers it.
    bool take(std::uint32_t leaf, Source source, Time asOf);
    /// What somebody else read has come: what failed before is asked for again.
    void haveRead(const LeafRange &range, Time now);

    Leaf leaf(std::uint32_t number) const;
    /// Leaves with a value of this association.
    std::uint32_t known() const;
    Summary summary() const;
    /// Counts up whenever the summary may have changed.
    std::uint64_t changes() const { return m_changes; }

private:
    enum class State : std::uint8_t { Good, Divided, Unavailable, Refused, Silent };

    struct Item
    {
        Part part;
        Pace pace = Pace::Fast;
        State state = State::Good;
        bool isRoot = false;
        bool isPending = false;     ///< waiting or on the way
        bool isGone = false;        ///< its whole is asked for instead
        bool isForReports = false;  ///< divided because reports bring some of it
        bool isProvisional = false; ///< divided because it was unavailable
        bool wasJoined = false;     ///< put together again once
        Time asked;
        Time failedAt; ///< the first question since the last answer
        std::vector<Id> parts;
        /// A request begins here until that round: together with what is before it was too large.
        std::uint64_t beginsUntil = 0;
        std::uint64_t beginsFor = 0;
    };

    /// Parts that were asked for together and not answered.
    struct SilentGroup
    {
        std::vector<Id> parts;
        Time nextTry;
        Duration pause;
    };

    struct OnTheWay
    {
        Id id;
        std::vector<Id> parts;
    };

    static bool isFailing(const Item &item);
    void beginRound(Time now);
    void endQuestion(Time now);
    bool mayAskApart(std::size_t busy) const;
    void followReports();
    void collect(Id id, bool isFast);
    std::vector<Id> takeRequest();
    std::vector<Id> remove(Id question);
    std::uint32_t reportedIn(const LeafRange &range) const;
    bool isReported(const LeafRange &range) const;
    bool divide(Id id);
    bool areAllGood(const std::vector<Id> &parts) const;
    void join(Id id);
    void reply(Id id, Reply reply);
    void setState(Item &item, State state);
    void askFirst(const std::vector<Id> &parts);
    void beginRequestAt(Id id, bool isForLong);
    bool isStale(const Item &item, std::uint32_t leaf) const;

    Divide m_divide;
    Options m_options;
    std::vector<Item> m_items;
    std::vector<Id> m_free; ///< items that are gone
    std::vector<Id> m_roots;
    std::deque<Id> m_queue;
    std::vector<OnTheWay> m_onTheWay;
    std::optional<OnTheWay> m_apart; ///< the question about a silent group
    Duration m_apartPause{0};
    std::vector<SilentGroup> m_silent;
    std::deque<Time> m_held; ///< when places of unanswered questions become free
    std::vector<std::uint32_t> m_reportedBefore; ///< by leaf; empty without reported ones
    bool m_reportedChanged = false;
    bool m_isStarted = false;
    std::optional<Time> m_nextRound;
    std::uint64_t m_round = 0;
    Id m_lastQuestion = 0;
    std::vector<Time> m_asOf;
    std::vector<Source> m_source;
    std::uint64_t m_changes = 0;
    std::size_t m_failing = 0;
};
