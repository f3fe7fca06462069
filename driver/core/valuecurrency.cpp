// SPDX-License-Identifier: Apache-2.0
#include "valuecurrency.h"

#include <algorithm>
#include <utility>

namespace {

/// Rounds for which the place between two requests that were too large together is kept, at first.
constexpr std::uint64_t rememberedRounds = 50;
constexpr std::uint64_t longestMemory = 100000;
constexpr std::size_t namedParts = 3;

} // namespace

ValueCurrency::ValueCurrency(std::size_t leaves, Divide divide, Options options)
    : m_divide(std::move(divide))
    , m_options(options)
    , m_asOf(leaves)
    , m_source(leaves, Source::Nothing)
{
}

void ValueCurrency::add(Pace pace, Part part, bool isDivided)
{
    const Id id = static_cast<Id>(m_items.size());
    Item item;
    item.part = std::move(part);
    item.pace = pace;
    item.isRoot = true;
    m_items.push_back(std::move(item));
    m_roots.push_back(id);
    if (isDivided && !divide(id))
        m_items[id].state = State::Divided;
}

void ValueCurrency::setReported(const std::vector<LeafRange> &ranges)
{
    m_reportedBefore.clear();
    m_reportedChanged = true;
    if (ranges.empty())
        return;
    std::vector<bool> isReported(m_asOf.size());
    for (const LeafRange &range : ranges) {
        for (std::uint32_t leaf = range.first; leaf < range.end() && leaf < isReported.size();
             ++leaf)
            isReported[leaf] = true;
    }
    m_reportedBefore.reserve(isReported.size() + 1);
    m_reportedBefore.push_back(0);
    for (const bool each : isReported)
        m_reportedBefore.push_back(m_reportedBefore.back() + (each ? 1 : 0));
}

std::uint32_t ValueCurrency::reportedIn(const LeafRange &range) const
{
    if (m_reportedBefore.empty() || range.end() >= m_reportedBefore.size())
        return 0;
    return m_reportedBefore[range.end()] - m_reportedBefore[range.first];
}

bool ValueCurrency::isReported(const LeafRange &range) const
{
    return range.count > 0 && reportedIn(range) == range.count;
}

void ValueCurrency::ask(Pace pace)
{
    const std::vector<Id> roots = m_roots;
    for (const Id root : roots) {
        if (m_items[root].pace == pace)
            collect(root, pace == Pace::Fast);
    }
}

void ValueCurrency::start(Time now)
{
    m_isStarted = true;
    followReports();
    for (const Id root : m_roots)
        collect(root, true);
    for (const Id root : m_roots) {
        if (m_items[root].pace != Pace::Configuration)
            collect(root, false);
    }
    if (m_options.interval > Duration::zero())
        m_nextRound = now + m_options.interval;
}

void ValueCurrency::beginRound(Time now)
{
    ++m_round;
    m_nextRound = now + m_options.interval;
    const bool isSlow =
        m_round % static_cast<std::uint64_t>(std::max(m_options.slowRounds, 1)) == 0;
    for (const Id root : m_roots) {
        if (isSlow && m_items[root].isProvisional && areAllGood(m_items[root].parts)) {
            join(root);
            m_items[root].wasJoined = true;
        }
    }
    followReports();
    for (const Id root : m_roots)
        collect(root, true);
    if (!isSlow)
        return;
    for (const Id root : m_roots)
        collect(root, false);
}

/// What reports bring of a part is left out of the fast rounds by asking for the rest of it.
void ValueCurrency::followReports()
{
    if (!std::exchange(m_reportedChanged, false))
        return;
    const std::vector<Id> roots = m_roots;
    for (const Id root : roots) {
        if (m_items[root].isForReports && areAllGood(m_items[root].parts))
            join(root);
        const Item &item = m_items[root];
        const std::uint32_t reported = reportedIn(item.part.leaves);
        if (item.pace != Pace::Fast || item.state != State::Good || item.isPending ||
            reported == 0 || reported == item.part.leaves.count)
            continue;
        const std::vector<Part> parts = m_divide(item.part);
        const bool isWorthIt = std::any_of(parts.begin(), parts.end(), [this](const Part &part) {
            return isReported(part.leaves);
        });
        if (isWorthIt && divide(root))
            m_items[root].isForReports = true;
    }
}

void ValueCurrency::collect(Id id, bool isFast)
{
    if (m_items[id].state == State::Divided) {
        for (const Id part : m_items[id].parts)
            collect(part, isFast);
        return;
    }
    Item &item = m_items[id];
    const bool belongsToFast =
        item.state == State::Good && item.pace == Pace::Fast && !isReported(item.part.leaves);
    const bool isAsked = item.state == State::Good || item.state == State::Unavailable;
    if (!isAsked || item.isPending || belongsToFast != isFast)
        return;
    item.isPending = true;
    m_queue.push_back(id);
}

/// Only where the others keep a place, or do not need the only one.
bool ValueCurrency::mayAskApart(std::size_t busy) const
{
    return !m_apart && (m_options.places == 1 ? m_queue.empty() : m_options.places - busy > 1);
}

std::optional<ValueCurrency::Question> ValueCurrency::next(Time now)
{
    while (!m_held.empty() && m_held.front() <= now)
        m_held.pop_front();
    if (m_nextRound && *m_nextRound <= now && isIdle())
        beginRound(now);
    const std::size_t busy = m_onTheWay.size() + (m_apart ? 1 : 0) + m_held.size();
    if (busy >= m_options.places)
        return std::nullopt;
    const auto asked = [&](std::vector<Id> parts) {
        for (const Id part : parts)
            m_items[part].asked = now;
        return OnTheWay{++m_lastQuestion, std::move(parts)};
    };
    if (m_isStarted && mayAskApart(busy)) {
        const auto first = std::min_element(m_silent.begin(), m_silent.end(),
                                            [](const SilentGroup &left, const SilentGroup &right) {
                                                return left.nextTry < right.nextTry;
                                            });
        if (first != m_silent.end() && first->nextTry <= now) {
            m_apart = asked(std::move(first->parts));
            m_apartPause = first->pause;
            m_silent.erase(first);
            return Question{m_apart->id, m_apart->parts};
        }
    }
    if (m_queue.empty())
        return std::nullopt;
    m_onTheWay.push_back(asked(takeRequest()));
    return Question{m_onTheWay.back().id, m_onTheWay.back().parts};
}

std::vector<ValueCurrency::Id> ValueCurrency::takeRequest()
{
    std::vector<Id> parts;
    std::size_t octets = 0;
    while (!m_queue.empty()) {
        const Item &item = m_items[m_queue.front()];
        const bool begins =
            m_round < item.beginsUntil || octets + item.part.octets > m_options.room;
        if (begins && !parts.empty())
            break;
        octets += item.part.octets;
        parts.push_back(m_queue.front());
        m_queue.pop_front();
    }
    return parts;
}

std::optional<ValueCurrency::Time> ValueCurrency::nextTime() const
{
    std::optional<Time> result;
    const auto consider = [&result](Time time) {
        result = result ? std::min(*result, time) : time;
    };
    if (!m_held.empty())
        consider(m_held.front());
    const std::size_t busy = m_onTheWay.size() + (m_apart ? 1 : 0) + m_held.size();
    if (busy >= m_options.places)
        return result;
    if (m_nextRound && isIdle())
        consider(*m_nextRound);
    if (m_isStarted && mayAskApart(busy)) {
        for (const SilentGroup &group : m_silent)
            consider(group.nextTry);
    }
    return result;
}

std::vector<ValueCurrency::Id> ValueCurrency::remove(Id question)
{
    std::vector<Id> parts;
    if (m_apart && m_apart->id == question) {
        parts = std::move(m_apart->parts);
        m_apart.reset();
        return parts;
    }
    const auto found =
        std::find_if(m_onTheWay.begin(), m_onTheWay.end(),
                     [question](const OnTheWay &each) { return each.id == question; });
    if (found != m_onTheWay.end()) {
        parts = std::move(found->parts);
        m_onTheWay.erase(found);
    }
    return parts;
}

/// A device that is slower than the rounds has a while to itself between them.
void ValueCurrency::endQuestion(Time now)
{
    if (m_nextRound && isIdle())
        m_nextRound = std::max(*m_nextRound, now + m_options.interval / 4);
}

void ValueCurrency::answered(Id question, const std::vector<Reply> &replies, Time now)
{
    const std::vector<Id> parts = remove(question);
    for (std::size_t i = 0; i < parts.size(); ++i)
        reply(parts[i], i < replies.size() ? replies[i] : Reply::Unfit);
    endQuestion(now);
}

void ValueCurrency::refused(Id question, Reply how, Time now)
{
    const std::vector<Id> parts = remove(question);
    if (parts.size() == 1) {
        reply(parts.front(), how);
    } else if (!parts.empty()) {
        const bool isForLong = how == Reply::TooLarge;
        if (!m_queue.empty())
            beginRequestAt(m_queue.front(), isForLong);
        beginRequestAt(parts[parts.size() / 2], isForLong);
        askFirst(parts);
    }
    endQuestion(now);
}

void ValueCurrency::silent(Id question, Time now)
{
    const bool isApart = m_apart && m_apart->id == question;
    std::vector<Id> parts = remove(question);
    if (parts.empty())
        return;
    m_held.push_back(now + m_options.grace);
    for (const Id part : parts) {
        m_items[part].isPending = false;
        setState(m_items[part], State::Silent);
    }
    SilentGroup group{std::move(parts), now, isApart ? m_apartPause : Duration::zero()};
    if (group.parts.size() == 1) {
        group.pause =
            std::min(std::max(group.pause * 2, m_options.firstPause), m_options.longestPause);
        group.nextTry = now + group.pause;
    } else if (isApart) {
        const auto middle =
            group.parts.begin() + static_cast<std::ptrdiff_t>(group.parts.size() / 2);
        m_silent.push_back({std::vector<Id>(middle, group.parts.end()), now, group.pause});
        group.parts.erase(middle, group.parts.end());
    }
    m_silent.push_back(std::move(group));
    endQuestion(now);
}

void ValueCurrency::unsent(Id question, Time now)
{
    const bool isApart = m_apart && m_apart->id == question;
    std::vector<Id> parts = remove(question);
    if (isApart)
        m_silent.push_back({std::move(parts), now + m_options.firstPause, m_apartPause});
    else
        askFirst(parts);
    endQuestion(now);
}

void ValueCurrency::askFirst(const std::vector<Id> &parts)
{
    for (const Id part : parts)
        m_items[part].isPending = true;
    m_queue.insert(m_queue.begin(), parts.begin(), parts.end());
}

void ValueCurrency::beginRequestAt(Id id, bool isForLong)
{
    Item &item = m_items[id];
    if (isForLong) {
        item.beginsFor = std::clamp(item.beginsFor * 4, rememberedRounds, longestMemory);
        item.beginsUntil = m_round + item.beginsFor;
    } else {
        item.beginsUntil = std::max(item.beginsUntil, m_round + 1);
    }
}

void ValueCurrency::reply(Id id, Reply how)
{
    m_items[id].isPending = false;
    switch (how) {
    case Reply::Taken:
        setState(m_items[id], State::Good);
        break;
    case Reply::Unavailable:
        // The rest of a whole constraint may be there, but a data object is not looked into.
        if (m_items[id].isRoot && divide(id)) {
            m_items[id].isProvisional = !m_items[id].wasJoined;
            askFirst(m_items[id].parts);
        } else {
            setState(m_items[id], State::Unavailable);
        }
        break;
    case Reply::Refused:
    case Reply::Unfit:
    case Reply::TooLarge:
        if (divide(id))
            askFirst(m_items[id].parts);
        else
            setState(m_items[id], State::Refused);
        break;
    }
}

bool ValueCurrency::isFailing(const Item &item)
{
    return item.state != State::Good && item.state != State::Divided;
}

void ValueCurrency::setState(Item &item, State state)
{
    const bool wasFailing = isFailing(item);
    if (item.state == state)
        return;
    item.state = state;
    ++m_changes;
    if (isFailing(item) == wasFailing)
        return;
    if (wasFailing) {
        --m_failing;
    } else {
        ++m_failing;
        item.failedAt = item.asked;
    }
}

bool ValueCurrency::divide(Id id)
{
    std::vector<Part> parts = m_divide(m_items[id].part);
    if (parts.empty())
        return false;
    std::vector<Id> ids;
    for (Part &part : parts) {
        Item item;
        item.part = std::move(part);
        item.pace = m_items[id].pace;
        if (m_free.empty()) {
            ids.push_back(static_cast<Id>(m_items.size()));
            m_items.push_back(std::move(item));
        } else {
            ids.push_back(m_free.back());
            m_items[m_free.back()] = std::move(item);
            m_free.pop_back();
        }
    }
    m_items[id].parts = std::move(ids);
    setState(m_items[id], State::Divided);
    return true;
}

bool ValueCurrency::areAllGood(const std::vector<Id> &parts) const
{
    return std::all_of(parts.begin(), parts.end(), [this](Id part) {
        return m_items[part].state == State::Good && !m_items[part].isPending;
    });
}

void ValueCurrency::join(Id id)
{
    Item &item = m_items[id];
    for (const Id part : item.parts) {
        m_items[part].isGone = true;
        m_free.push_back(part);
    }
    item.parts.clear();
    item.isForReports = false;
    item.isProvisional = false;
    setState(item, State::Good);
}

bool ValueCurrency::take(std::uint32_t leaf, Source source, Time asOf)
{
    if (leaf >= m_asOf.size() || asOf < m_asOf[leaf])
        return false;
    m_asOf[leaf] = asOf;
    m_source[leaf] = source;
    if (m_failing > 0)
        ++m_changes;
    return true;
}

void ValueCurrency::haveRead(const LeafRange &range, Time now)
{
    if (m_failing == 0)
        return;
    for (Item &item : m_items) {
        const LeafRange &leaves = item.part.leaves;
        if (item.isGone || leaves.first >= range.end() || range.first >= leaves.end())
            continue;
        if (item.state == State::Unavailable || item.state == State::Refused)
            setState(item, State::Good);
    }
    for (SilentGroup &group : m_silent) {
        const bool isMeant = std::any_of(group.parts.begin(), group.parts.end(), [&](Id part) {
            const LeafRange &leaves = m_items[part].part.leaves;
            return leaves.first < range.end() && range.first < leaves.end();
        });
        if (isMeant)
            group.nextTry = std::min(group.nextTry, now);
    }
}

bool ValueCurrency::isStale(const Item &item, std::uint32_t leaf) const
{
    return isFailing(item) && leaf < m_asOf.size() && m_asOf[leaf] < item.failedAt;
}

ValueCurrency::Leaf ValueCurrency::leaf(std::uint32_t number) const
{
    Leaf result;
    if (number >= m_asOf.size())
        return result;
    result.source = m_source[number];
    result.asOf = m_asOf[number];
    const bool comesByItself = isReported({number, 1});
    const auto item = std::find_if(m_items.begin(), m_items.end(), [number](const Item &each) {
        return !each.isGone && each.state != State::Divided && number >= each.part.leaves.first &&
               number < each.part.leaves.end();
    });
    if (comesByItself)
        result.keptBy = Source::Report;
    else if (item != m_items.end() && item->state == State::Good)
        result.keptBy = Source::Poll;
    const bool isKnown = result.source != Source::Nothing && result.source != Source::Write;
    result.isCurrent = isKnown && (item == m_items.end() || !isStale(*item, number));
    return result;
}

std::uint32_t ValueCurrency::known() const
{
    return static_cast<std::uint32_t>(
        std::count_if(m_source.begin(), m_source.end(), [](Source source) {
            return source != Source::Nothing && source != Source::Write;
        }));
}

ValueCurrency::Summary ValueCurrency::summary() const
{
    Summary result;
    if (m_failing == 0)
        return result;
    for (const Item &item : m_items) {
        if (item.isGone || !isFailing(item))
            continue;
        std::uint32_t stale = 0;
        const LeafRange &leaves = item.part.leaves;
        for (std::uint32_t leaf = leaves.first; leaf < leaves.end(); ++leaf) {
            if (!isStale(item, leaf))
                continue;
            ++stale;
            if (item.state == State::Refused)
                continue;
            // What never had a value is not current since it was asked for in vain.
            const Time asOf = m_asOf[leaf] == Time() ? item.failedAt : m_asOf[leaf];
            if (result.stale + stale == 1 || asOf < result.staleSince)
                result.staleSince = asOf;
        }
        if (item.state == State::Refused) {
            result.refused += stale;
            if (stale > 0 && result.refusedParts.size() < namedParts)
                result.refusedParts.push_back(item.part.reference);
            continue;
        }
        if (stale > 0 && !result.firstStale) {
            result.firstStale = item.part.reference;
            result.isSilent = item.state == State::Silent;
        }
        result.stale += stale;
    }
    return result;
}
