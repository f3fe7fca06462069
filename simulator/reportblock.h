// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/clock.h"
#include "simulator/datasets.h"
#include "simulator/peer.h"

#include "acsi/report.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

/// What a report control block is made with.
struct ReportControlBlock
{
    bool buffered = false;
    std::string reference; ///< "LD/LN$BR$name"; the report id where none is given
    std::string rptId;
    std::string datSet; ///< as DataSets::find() takes it; empty for none
    std::uint32_t confRev = 1;
    acsi::OptFlds optFlds;
    acsi::Triggers trgOps;
    std::uint32_t bufTm = 0;  ///< milliseconds
    std::uint32_t intgPd = 0; ///< milliseconds
    /// Seconds that a buffered block stays reserved for a client that left without having said how
    /// long.
    std::int32_t implicitResvTms = 10;
    /// Whether reservations are told: the block has ResvTms.
    bool hasResvTms = true;
    /// What a buffered block keeps, counted as octets on the wire.
    std::size_t bufferOctets = 1024 * 1024;
};

/// What a report control block needs from its device.
class ReportHost
{
public:
    virtual ~ReportHost() = default;

    /// Null for a reference that names none. @p client may be null: then only data sets of the
    /// device are found.
    virtual std::shared_ptr<DataSet> dataSet(const Peer *client, const std::string &reference) = 0;
    /// "LD/LN$FC$DO" of a member.
    virtual std::string reference(const DataSet &dataSet, std::size_t member) = 0;
    virtual mms::AccessResult value(const DataSet &dataSet, std::size_t member) = 0;
    /// Whether a newer value of the member may take the place of one that waits to be reported.
    virtual bool isMeasured(const DataSet &dataSet, std::size_t member) = 0;
    /// Whether the network keeps up with what @p client is sent.
    virtual bool isReady(const Peer &client) = 0;
    virtual void send(Peer &client, acsi::Report report) = 0;
};

/// The state machine of a report control block (IEC 61850-7-2, 17.2). It is told of writes,
/// changes, time and clients that leave, and says what is to be sent through its host. Nothing is
/// sent inside write(): what a write brings about happens at deadline(), so that its answer goes
/// first.
class ReportBlock
{
public:
    ReportBlock(ReportControlBlock config, ReportHost &host, const Clock &clock);
    ~ReportBlock();
    ReportBlock(const ReportBlock &) = delete;
    ReportBlock &operator=(const ReportBlock &) = delete;

    const ReportControlBlock &config() const { return m_config; }

    /// The value of an attribute ("RptEna"); none for a name that no block has.
    std::optional<mms::Data> value(std::string_view attribute) const;
    /// @p data is of the attribute's type. None when it was written.
    std::optional<mms::DataAccessError> write(Peer &client, std::string_view attribute,
                                              const mms::Data &data);

    /// Whether changes of the data set's members are to be told: enabled, or buffered with a data
    /// set.
    bool listens() const { return m_dataSet && (m_enabled || m_config.buffered); }
    /// Null while the block has none.
    const std::shared_ptr<DataSet> &dataSet() const { return m_dataSet; }
    bool isEnabled() const { return m_enabled; }
    /// Counts on whenever listens() or dataSet() may have changed.
    std::uint64_t revision() const { return m_revision; }

    /// @p fired of a member's triggers fired.
    void changed(std::size_t member, Trigger fired);
    /// The changes told since the last time happened together.
    void settle();
    /// The network may take more.
    void drain();
    /// The client has left.
    void closed(const Peer &client);

    /// When advance() wants to be called; none while there is nothing to wait for.
    std::optional<Clock::SteadyTime> deadline() const;
    void advance();
    /// The client for whom entries wait because it is behind; null when none do.
    Peer *heldBack() const;

private:
    struct Included
    {
        std::uint32_t member;
        acsi::Triggers reason;
        mms::AccessResult value;
    };
    struct Entry
    {
        mms::BinaryTime time;
        std::vector<Included> members;
        std::size_t octets = 0;
    };
    struct Waiting
    {
        Trigger fresh = Trigger::None; ///< told since the last settle()
        Trigger gathered = Trigger::None;
        mms::AccessResult value = mms::Data();
    };

    std::optional<mms::DataAccessError> mayConfigure(const Peer &client) const;
    std::optional<mms::DataAccessError> enable(Peer &client);
    std::optional<mms::DataAccessError> disable(const Peer &client);
    std::optional<mms::DataAccessError> reserve(Peer &client, const mms::Data &data);
    std::optional<mms::DataAccessError> reserveFor(Peer &client, std::int64_t seconds);
    std::optional<mms::DataAccessError> writeDatSet(Peer &client, std::string_view text);
    std::optional<mms::DataAccessError> resumeAfter(mms::Bytes entryId);
    void configure(std::string_view attribute, const mms::Data &data);
    void stop();
    void leave();
    void release();
    void own(Peer &client);
    void useDataSet(std::shared_ptr<DataSet> dataSet);
    void startIntegrity();
    void purge();
    void emitGathered();
    void emitAll(acsi::Triggers reason);
    void issue(std::vector<Included> members);
    void store(Entry entry);
    void send(const Entry &entry, std::uint64_t id);
    std::uint64_t endId() const { return m_firstId + m_buffer.size(); }
    static std::vector<std::uint8_t> octetsOf(std::uint64_t id);

    ReportControlBlock m_config;
    ReportHost &m_host;
    const Clock &m_clock;

    std::string m_rptId;
    std::string m_datSet;
    std::uint32_t m_confRev;
    acsi::OptFlds m_optFlds;
    acsi::Triggers m_trgOps;
    std::uint32_t m_bufTm;
    std::uint32_t m_intgPd;
    std::shared_ptr<DataSet> m_dataSet;
    /// Whose the data set is, when it is one of an association.
    const Peer *m_dataSetClient = nullptr;
    std::uint64_t m_revision = 0;

    bool m_enabled = false;
    std::uint32_t m_sqNum = 0;
    /// Who has reserved or enabled the block, while it is connected.
    Peer *m_client = nullptr;
    /// The address of the client, also after it left while the reservation lasts.
    std::vector<std::uint8_t> m_owner;
    bool m_reserved = false;
    bool m_reservedExplicitly = false;
    std::int32_t m_resvTms = 0;
    std::optional<Clock::SteadyTime> m_reservedUntil;

    std::vector<Waiting> m_waiting; ///< one for each member
    std::vector<std::uint32_t> m_fresh;
    std::vector<std::uint32_t> m_gathered;
    std::optional<Clock::SteadyTime> m_gatherUntil;
    std::optional<Clock::SteadyTime> m_nextIntegrity;
    bool m_interrogated = false;
    bool m_resumes = false; ///< sending starts or goes on at the next deadline

    /// Of a buffered block. Entries have consecutive numbers, which make their entry ids.
    std::deque<Entry> m_buffer;
    std::size_t m_bufferSize = 0;
    std::uint64_t m_firstId = 1;
    std::uint64_t m_nextId = 1;   ///< the entry to be sent next
    std::uint64_t m_originId = 1; ///< of the first entry that there ever was
    std::uint64_t m_lastSentId = 0;
    mms::BinaryTime m_lastSentTime{0, std::uint16_t(0)};
    bool m_positioned = false; ///< the client has said where to go on
    bool m_overflow = false;
};

} // namespace sim
