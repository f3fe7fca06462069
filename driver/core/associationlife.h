// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <functional>
#include <optional>

/// Where the association with a device is in its life, and what is to be done next: a plain object
/// that is told what happens and when. It knows no sockets and has no clock. Not thread-safe.
///
/// Attempts that fail are repeated after pauses that grow, each a little longer or shorter than the
/// last of another device, so that devices which are lost together do not come back together. The
/// pauses are short again only after an association has lasted a while: a device that falls as soon
/// as it stands is not hurried. What somebody has to change first, such as names that another
/// device holds, is waited for long.
class AssociationLife
{
public:
    using Clock = std::chrono::steady_clock;
    using Time = Clock::time_point;
    /// From 0 to below 1.
    using Random = std::function<double()>;

    enum class Phase {
        Left,       ///< nobody wants an association
        Connecting, ///< one is being made
        Reading,    ///< it stands, but the device cannot be used yet
        Online,
        Waiting ///< for the next attempt
    };

    enum class Ending {
        Failed,  ///< it did not come about, or it was lost
        Conflict ///< it would come about, but the device cannot be used beside another one
    };

    struct Step
    {
        enum class What { Connect, Wait, End };

        What what = What::End;
        Time until; ///< of Wait
    };

    static constexpr std::chrono::milliseconds firstPause{200};
    static constexpr std::chrono::milliseconds longestPause{2000};
    static constexpr std::chrono::milliseconds conflictPause{30000};
    /// An association that lasted so long was a good one.
    static constexpr std::chrono::milliseconds settledAfter{10000};

    explicit AssociationLife(Random random);

    /// The middle of a pause becomes one between half and one and a half of it.
    static std::chrono::milliseconds spread(std::chrono::milliseconds middle, double random);

    Phase phase() const { return m_phase; }
    bool isWanted() const { return m_isWanted; }
    /// It was aborted, and the next use wants it again.
    bool isDormant() const { return m_isDormant; }
    /// Since an association was wanted no attempt has come to an end.
    bool isFirstAttempt() const { return m_isWanted && !m_hasAttempted; }
    /// Since when the device has been away though it is wanted; nothing while it is online, and
    /// while nobody wants it. Attempts in between change nothing.
    std::optional<Time> awaySince() const { return m_awaySince; }
    Step next(Time now) const;

    void want(Time now);
    void leave();
    void abort();
    void connecting();
    void associated();
    void online(Time now);
    void ended(Time now, Ending how);
    /// Another device has given names back: a conflict may be over.
    void namesReleased(Time now);
    /// Nothing is left of it, after it was not wanted any more.
    void over();

private:
    Random m_random;
    Phase m_phase = Phase::Left;
    bool m_isWanted = false;
    bool m_isDormant = false;
    bool m_hasAttempted = false;
    bool m_isInConflict = false;
    /// What runs or stands was given up, and an association is wanted again: its end says nothing
    /// of the new wish.
    bool m_isOutlived = false;
    int m_failures = 0;
    Time m_next;
    Time m_onlineSince;
    std::optional<Time> m_awaySince;
};

/// Whether a device that sends nothing is still there: when it is to be asked, how, and what
/// becomes of the answer. A plain object like AssociationLife.
class SignOfLife
{
public:
    using Time = AssociationLife::Time;

    enum class Question { Status, Identify, Read };
    enum class Judgement {
        Alive,
        Waits, ///< the question found no place behind calls without an answer: nothing is known yet
        Silent
    };

    /// A device that has been silent for so long is asked.
    static constexpr std::chrono::milliseconds silence{2000};
    /// One that sends is asked as well, to measure the time of an answer.
    static constexpr std::chrono::milliseconds measurement{10000};

    /// What the device will answer: Status where it says that it has it; else Identify, unless it
    /// is known not to answer it; else the reading of a variable, of which an error is an answer.
    static Question questionFor(bool hasStatus, bool hasIdentify, bool answersIdentify);

    explicit SignOfLife(Time now);

    Time due(Time lastHeard) const;
    void asked(Time now);
    /// @param lastHeard when anything came from the device for the last time
    Judgement judge(bool wasAnswered, bool wasSent, Time lastHeard) const;

private:
    Time m_asked;
    Time m_nextMeasurement;
};
