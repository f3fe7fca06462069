// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "deviceconnection.h"

#include <remoteclient/caller.h>

#include <QtCore/QString>

#include <atomic>
#include <functional>
#include <memory>

/// What is to be changed on a device, for the journal, and whether it may be.
struct ChangeIntent
{
    enum class Kind {
        Wanted,   ///< refused while the driver is read-only
        GivesBack ///< ends what runs, or gives back what this side took: never refused
    };

    Caller caller;     ///< on whose behalf; empty for what the driver does by itself
    QString operation; ///< name of the controller operation
    QString reference;
    QString oldValue; ///< empty where it is not known
    QString newValue;
    Kind kind = Kind::Wanted;
    bool isDriversOwn = false; ///< nobody has asked for it just now
    /// Tries again what was told before: told only when the outcome is another one.
    bool isRepeated = false;
    /// Belongs in the journal also when it was refused before it became an operation on the device.
    bool tellsTries = false;
};

/// What the journal hears of a change: what is intended before anything of it can reach the device,
/// and what became of it, each once and whatever becomes of the operation: one that is given up in
/// the middle may have changed the device. Told in the connection's strand; to be used in one
/// thread at a time.
class ChangeRecord
{
public:
    ChangeRecord(std::shared_ptr<DeviceConnection> device, ChangeIntent intent);
    /// Tells what is known when nobody has told the outcome.
    ~ChangeRecord();
    Q_DISABLE_COPY(ChangeRecord)

    void setOperation(const QString &operation) { m_change.operation = operation; }
    void setReference(const QString &reference) { m_change.reference = reference; }
    void setValues(const QString &oldValue, const QString &newValue);
    void setAdditionalCause(const QString &cause) { m_change.additionalCause = cause; }

    /// Tells what is intended, once.
    void intend();
    /// From now on it is not known what becomes of it, until end() is called; a sentence for that.
    void setUnknown(const QString &sentence);
    /// Tells how it ended, once. Tells nothing of what was never intended.
    void end(const Outcome &outcome);
    /// A repeated try has ended as the one before.
    void endAsBefore() { m_hasEnded = true; }
    /// Tells that it is not known how it ended, once.
    void giveUp(const QString &sentence);
    /// The same with what setUnknown() has said, or that nobody has waited.
    void giveUp();

    const DeviceChange &change() const { return m_change; }
    const std::shared_ptr<DeviceConnection> &device() const { return m_device; }

private:
    void tell();

    std::shared_ptr<DeviceConnection> m_device;
    DeviceChange m_change;
    QString m_unknown;
    const bool m_isRepeated;
    bool m_isIntended = false;
    bool m_hasEnded = false;
};

/// A change under way: the journal's record of it, and the only way to the client that can change
/// something on the device. To be used in the connection's strand once it has entered().
class Change : public ChangeRecord
{
public:
    using Kind = ChangeIntent::Kind;

    Change(std::shared_ptr<DeviceConnection> device, ChangeIntent intent);

    /// Whether the driver may change anything just now.
    Outcome permission() const { return permission(m_kind); }
    Outcome permission(Kind kind) const;
    /// The right to change the device, for what is sent at once: tells the journal of the intent.
    /// Null when the driver is read-only or there is no association; refusal() says so then.
    std::shared_ptr<acsi::ChangingClient> client() { return client(m_kind); }
    std::shared_ptr<acsi::ChangingClient> client(Kind kind);
    Outcome refusal() const;

    /// A part of this change with a record of its own.
    std::unique_ptr<ChangeRecord> part(const QString &reference, const QString &oldValue,
                                       const QString &newValue) const;

    /// Begins the work, unless it was withdrawn before. Any thread.
    bool enter();
    /// Withdraws what has not begun yet: it never will. Any thread.
    bool withdraw();

private:
    enum class Phase { Waiting, Entered, Withdrawn };

    const ChangeIntent m_intent;
    const Kind m_kind;
    std::atomic<Phase> m_phase{Phase::Waiting};
};
using ChangePointer = std::shared_ptr<Change>;

/// Where everything passes that changes something on one device, whoever wants it: refuses while
/// the driver is read-only, tells the journal intent and outcome, and alone has the client that can
/// change something.
class ChangeGate
{
public:
    using Work = std::function<asio::awaitable<Outcome>(ChangePointer change)>;

    /// A change that the driver makes by itself. In the strand.
    static std::unique_ptr<Change> own(DeviceConnection &device, ChangeIntent intent);
    /// A change that an operator wants; null, with the journal told, when nothing may be changed:
    /// then @p refusal says so, or has said so before. Any thread.
    static ChangePointer announce(const std::shared_ptr<DeviceConnection> &device,
                                  ChangeIntent intent, Outcome &refusal);
    /// What was announced is done, in the strand. Tells the journal how it ended.
    static asio::awaitable<Outcome> carryOut(ChangePointer change, Work work);
    /// The operation has ended without having begun; tells the journal where it wants to know.
    /// Any thread.
    static void withdraw(const ChangePointer &change, const Outcome &outcome);
    /// Tells the journal of something that was heard of a change, or seen, afterwards. In the
    /// strand.
    static void tell(DeviceConnection &device, DeviceChange change);

private:
    friend class Change;
    friend class DeviceConnection;

    std::shared_ptr<acsi::ChangingClient> m_client; ///< null without an association
};
