// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

#include <chrono>
#include <functional>
#include <optional>

/// The life of the association with a device: where it is, why, what is to be done next, and who
/// may use it. A plain machine that is told what happens and when; it knows no sockets and has no
/// clock. There is no other state of an association than this one. Not thread-safe.
///
///     Left --want--> Waiting --connecting--> Connecting --associated--> Reading --ready--> Online
///
/// and from each but the first to Ending, when it fails, is closed or is not wanted any more; when
/// all is cleared up, from Ending to Waiting, or to Left when nobody wants it.
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
        Left,       ///< nobody wants an association, and nothing of one is left
        Waiting,    ///< for the next attempt
        Connecting, ///< one is being made
        Reading,    ///< it stands, but the device cannot be used before its model is read
        Online,
        Ending ///< it is over or given up; what is left of it is to be cleared up
    };

    enum class Failure {
        Lost,    ///< the association did not come about, or the device cannot be read
        Conflict ///< the device cannot be used beside another one
    };

    struct Step
    {
        enum class What {
            Rest, ///< nothing before it is wanted again
            Wait,
            Connect,
            Read,
            Serve,
            TakeLeave, ///< give back what was reserved on the device, then clear up
            ClearUp
        };

        What what = What::Rest;
        Time until{}; ///< of Wait
    };

    /// What somebody who wants to use the device hears.
    struct Admission
    {
        enum class What {
            Enter,
            Wait,
            Want,          ///< the association sleeps: it has to be wanted, then ask again
            ModelIsUnread, ///< nobody waits longer for the model that is being read
            NotConnected
        };

        What what = What::NotConnected;
        Time until{}; ///< of Wait
    };

    static constexpr std::chrono::milliseconds firstPause{200};
    static constexpr std::chrono::milliseconds longestPause{2000};
    static constexpr std::chrono::milliseconds conflictPause{30000};
    /// An association that lasted so long was a good one.
    static constexpr std::chrono::milliseconds settledAfter{10000};
    /// How long somebody waits for a model that is being read.
    static constexpr std::chrono::milliseconds modelPatience{500};

    explicit AssociationLife(Random random);

    /// The middle of a pause becomes one between half and one and a half of it.
    static std::chrono::milliseconds spread(std::chrono::milliseconds middle, double random);

    Phase phase() const { return m_phase; }
    /// An association is wanted, be it another one than there is.
    bool isWanted() const { return m_isWanted; }
    /// An association stands and is to be kept.
    bool isKept() const { return m_phase == Phase::Reading || m_phase == Phase::Online; }
    /// Since an association was wanted no attempt has come to an end.
    bool isFirstAttempt() const { return m_isWanted && !m_hasAttempted; }
    /// Why the last association, or attempt, ended, or why there is none any more; empty while an
    /// association stands.
    const QString &reason() const { return m_reason; }
    /// Since when the device has been away though it is wanted; nothing while it is online, and
    /// while nobody wants it. Attempts in between change nothing.
    std::optional<Time> awaySince() const { return m_awaySince; }

    Step next(Time now) const;
    /// For somebody who has been waiting since @p since and will do so until @p deadline.
    Admission admit(bool needsModel, Time now, Time since, Time deadline) const;

    void want(Time now);
    /// Nobody wants it any more. @p reason is told afterwards.
    void leave(const QString &reason = {});
    /// It is given up until somebody uses the device. True when there was something to give up.
    bool abort(const QString &reason);
    /// The model is not to be read any more. True when that leaves the device.
    bool cancelReading(const QString &reason);

    void connecting();
    void associated();
    void ready(Time now);
    /// An attempt came to nothing, or the device cannot be used.
    void failed(const QString &reason, Failure how = Failure::Lost);
    /// The association was closed, by whichever side.
    void closed(const QString &reason);
    /// Nothing is left of the association or attempt that was ending.
    void clearedUp(Time now);
    /// Another device has given names back: a conflict may be over.
    void namesReleased(Time now);

private:
    void giveUp();

    Random m_random;
    Phase m_phase = Phase::Left;
    QString m_reason;
    QString m_leaveReason;
    bool m_isWanted = false;
    bool m_isDormant = false; ///< it was aborted, and the next use wants it again
    bool m_hasAttempted = false;
    bool m_isInConflict = false;
    /// What is ending was given up, and an association is wanted again: its end says nothing of the
    /// new wish.
    bool m_isOutlived = false;
    int m_failures = 0;
    Time m_next{};
    std::optional<Time> m_onlineSince; ///< until all is cleared up
    std::optional<Time> m_awaySince;
};
