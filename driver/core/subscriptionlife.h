// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

#include <chrono>
#include <optional>

/// The life of a wish that a report control block be enabled: when to try again, and what of it is
/// news. Plain: given events and a time.
class SubscriptionLife
{
public:
    using Time = std::chrono::steady_clock::time_point;

    enum class State {
        Waiting,  ///< not enabled; tried again when isDue()
        Enabling, ///< a try is under way
        Taking    ///< enabled, reports are expected
    };
    enum class Result {
        Enabled,
        Held,   ///< somebody else has the block: nothing was written
        Refused ///< the device, or this side, did not want it, or an answer was missing
    };

    /// Between looks at a block that somebody else has, and the first tries after a refusal.
    static constexpr std::chrono::seconds shortest{3};
    /// Between tries after many refusals.
    static constexpr std::chrono::seconds longest{30};

    State state() const { return m_state; }
    bool isTaking() const { return m_state == State::Taking; }
    /// Whether a try should begin.
    bool isDue(Time now) const { return m_state == State::Waiting && now >= m_next; }

    void begin() { m_state = State::Enabling; }
    /// @return whether the outcome is another one than the last and belongs in a journal
    bool ended(Result result, const QString &sentence, Time now);
    /// The device has disabled the block by itself.
    void stopped(Time now);
    /// The association has ended.
    void closed();
    /// The last outcome that was no success; empty after one.
    const QString &sentence() const { return m_sentence; }
    /// Whether the last try was one that the device, or this side, refused.
    bool wasRefused() const { return m_last == Result::Refused; }
    bool isHeld() const { return m_state == State::Waiting && m_last == Result::Held; }

private:
    State m_state = State::Waiting;
    Time m_next = Time::min();
    std::chrono::seconds m_pause = shortest;
    std::optional<Result> m_last;
    QString m_sentence;
};

/// When the data set of a block is to be read whole, because reports are or may be missing: at once
/// the first time, not more often than once a second when reports keep going missing, and again a
/// little later when the reading did not bring everything. Plain.
class DataSetMending
{
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr std::chrono::seconds apart{1};
    static constexpr std::chrono::seconds retry{3};

    /// Something is missing from now on.
    void need();
    bool isNeeded() const { return m_isNeeded; }
    bool isDue(Time now) const { return m_isNeeded && !m_isReading && now >= m_next; }
    Time next() const { return m_next; }
    void begin(Time now);
    /// @return whether all is well again: everything was read, and nothing went missing meanwhile
    bool ended(bool whole, Time now);
    /// The association has ended, or the block is no longer enabled.
    void reset() { *this = {}; }

private:
    bool m_isNeeded = false;
    bool m_isReading = false;
    bool m_isNeededAgain = false;
    Time m_next = Time::min();
};
