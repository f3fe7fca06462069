// SPDX-License-Identifier: Apache-2.0
#include "simulator/reportblock.h"

#include "simulator/reportsegments.h"

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace sim {

namespace {

using mms::DataAccessError;

constexpr std::size_t entryOverhead = 64;
constexpr mms::BinaryTime never{0, std::uint16_t(0)};

bool has(const acsi::Triggers &options, Trigger fired)
{
    return (options.dataChange && any(fired & Trigger::DataChange)) ||
           (options.qualityChange && any(fired & Trigger::QualityChange)) ||
           (options.dataUpdate && any(fired & Trigger::DataUpdate));
}

/// The reasons that a client asked for among those that fired.
acsi::Triggers reasonOf(const acsi::Triggers &options, Trigger fired)
{
    acsi::Triggers reason;
    reason.dataChange = options.dataChange && any(fired & Trigger::DataChange);
    reason.qualityChange = options.qualityChange && any(fired & Trigger::QualityChange);
    // A value that changed was updated as well; the change says more.
    reason.dataUpdate = options.dataUpdate && any(fired & Trigger::DataUpdate) &&
                        !reason.dataChange && !reason.qualityChange;
    return reason;
}

} // namespace

ReportBlock::ReportBlock(ReportControlBlock config, ReportHost &host, const Clock &clock)
    : m_config(std::move(config))
    , m_host(host)
    , m_clock(clock)
    , m_rptId(m_config.rptId)
    , m_datSet(m_config.datSet)
    , m_confRev(m_config.confRev)
    , m_optFlds(m_config.optFlds)
    , m_trgOps(m_config.trgOps)
    , m_bufTm(m_config.bufTm)
    , m_intgPd(m_config.intgPd)
{
    // An id that a client kept from an earlier run must not name an entry of this one.
    const auto start =
        std::chrono::duration_cast<std::chrono::milliseconds>(clock.now().time_since_epoch());
    m_originId = (static_cast<std::uint64_t>(start.count()) << 20U) + 1;
    m_firstId = m_originId;
    m_nextId = m_originId;
    useDataSet(m_host.dataSet(nullptr, m_datSet));
    startIntegrity();
}

ReportBlock::~ReportBlock()
{
    useDataSet(nullptr);
}

std::optional<mms::Data> ReportBlock::value(std::string_view attribute) const
{
    using mms::Data;
    if (attribute == "RptID")
        return Data::visibleString(m_rptId);
    if (attribute == "RptEna")
        return Data::boolean(m_enabled);
    if (attribute == "DatSet")
        return Data::visibleString(m_datSet);
    if (attribute == "ConfRev")
        return Data::unsignedInteger(m_confRev);
    if (attribute == "OptFlds")
        return Data::bitString(m_optFlds.toBits());
    if (attribute == "BufTm")
        return Data::unsignedInteger(m_bufTm);
    if (attribute == "SqNum")
        return Data::unsignedInteger(m_sqNum);
    if (attribute == "TrgOps")
        return Data::bitString(m_trgOps.toBits());
    if (attribute == "IntgPd")
        return Data::unsignedInteger(m_intgPd);
    if (attribute == "GI" || attribute == "PurgeBuf")
        return Data::boolean(false);
    if (attribute == "Resv")
        return Data::boolean(m_reserved);
    if (attribute == "Owner")
        return Data::octetString(m_owner);
    if (attribute == "ResvTms")
        return Data::integer(m_resvTms);
    // Of the last entry that was sent, or while nobody is sent anything of the last one there is.
    if (attribute == "EntryID")
        return Data::octetString(octetsOf(m_enabled          ? m_lastSentId
                                          : m_buffer.empty() ? 0
                                                             : endId() - 1));
    if (attribute == "TimeofEntry")
        return Data::binaryTime(m_enabled          ? m_lastSentTime
                                : m_buffer.empty() ? never
                                                   : m_buffer.back().time);
    return std::nullopt;
}

std::optional<DataAccessError> ReportBlock::mayConfigure(const Peer &client) const
{
    if (m_reserved && m_client != &client) {
        const bool returned = !m_client && !m_owner.empty() && m_owner == client.address();
        if (!returned)
            return DataAccessError::TemporarilyUnavailable;
    }
    if (m_enabled)
        return DataAccessError::TemporarilyUnavailable;
    return std::nullopt;
}

std::optional<DataAccessError> ReportBlock::write(Peer &client, std::string_view attribute,
                                                  const mms::Data &data)
{
    if (attribute == "ConfRev" || attribute == "SqNum" || attribute == "Owner" ||
        attribute == "TimeofEntry")
        return DataAccessError::ObjectAccessDenied;
    if (attribute == "RptEna")
        return data.toBoolean().value_or(false) ? enable(client) : disable(client);
    if (attribute == "GI") {
        if (!m_enabled || m_client != &client)
            return DataAccessError::TemporarilyUnavailable;
        if (!data.toBoolean().value_or(false))
            return std::nullopt;
        if (!m_trgOps.generalInterrogation)
            return DataAccessError::ObjectAttributeInconsistent;
        m_interrogated = true;
        return std::nullopt;
    }
    if (const auto refused = mayConfigure(client))
        return refused;
    if (attribute == "Resv")
        return reserve(client, data);
    if (attribute == "ResvTms")
        return reserveFor(client, data.toInteger().value_or(-1));
    if (attribute == "DatSet")
        return writeDatSet(client, data.text());
    if (attribute == "EntryID")
        return resumeAfter(data.octets());
    if (attribute == "PurgeBuf") {
        if (data.toBoolean().value_or(false))
            purge();
        return std::nullopt;
    }
    configure(attribute, data);
    return std::nullopt;
}

void ReportBlock::configure(std::string_view attribute, const mms::Data &data)
{
    const auto before = std::make_tuple(m_rptId, m_bufTm, m_trgOps, m_intgPd);
    const auto number = static_cast<std::uint32_t>(data.toUnsigned().value_or(0));
    if (attribute == "RptID") {
        m_rptId = data.text();
    } else if (attribute == "OptFlds") {
        m_optFlds = acsi::OptFlds::from(data.bits());
        m_optFlds.segmentation = false;
    } else if (attribute == "BufTm") {
        m_bufTm = number;
    } else if (attribute == "TrgOps") {
        m_trgOps = acsi::Triggers::from(data.bits());
        m_trgOps.applicationTrigger = false;
    } else if (attribute == "IntgPd") {
        m_intgPd = number;
    }
    // What was gathered by other rules says nothing under the new ones.
    if (before != std::make_tuple(m_rptId, m_bufTm, m_trgOps, m_intgPd)) {
        purge();
        startIntegrity();
    }
}

std::optional<DataAccessError> ReportBlock::enable(Peer &client)
{
    if (m_enabled)
        return m_client == &client
                   ? std::nullopt
                   : std::optional<DataAccessError>(DataAccessError::TemporarilyUnavailable);
    if (const auto refused = mayConfigure(client))
        return refused;
    if (!m_dataSet || m_dataSet->members.empty() || (m_dataSetClient && m_dataSetClient != &client))
        return DataAccessError::ObjectAttributeInconsistent;
    if (!m_reserved) {
        m_reserved = true;
        m_reservedExplicitly = false;
        m_resvTms = m_config.implicitResvTms;
    }
    own(client);
    m_enabled = true;
    m_sqNum = 0;
    ++m_revision;
    if (m_config.buffered) {
        if (!m_positioned)
            m_nextId = m_firstId;
        m_positioned = false;
        m_lastSentId = 0;
        m_lastSentTime = never;
    } else {
        purge();
        startIntegrity();
    }
    m_resumes = true;
    return std::nullopt;
}

std::optional<DataAccessError> ReportBlock::disable(const Peer &client)
{
    if (m_client != &client && m_reserved && m_enabled)
        return DataAccessError::TemporarilyUnavailable;
    if (m_enabled)
        stop();
    return std::nullopt;
}

void ReportBlock::stop()
{
    m_enabled = false;
    m_interrogated = false;
    m_resumes = false;
    ++m_revision;
    if (!m_config.buffered) {
        purge();
        startIntegrity();
    }
    if (!m_reservedExplicitly)
        release();
}

void ReportBlock::release()
{
    m_client = nullptr;
    m_owner.clear();
    m_reserved = false;
    m_reservedExplicitly = false;
    m_resvTms = 0;
    m_reservedUntil.reset();
}

void ReportBlock::own(Peer &client)
{
    m_client = &client;
    m_owner = client.address();
    m_reservedUntil.reset();
}

std::optional<DataAccessError> ReportBlock::reserve(Peer &client, const mms::Data &data)
{
    if (!data.toBoolean().value_or(false)) {
        release();
        return std::nullopt;
    }
    own(client);
    m_reserved = true;
    m_reservedExplicitly = true;
    return std::nullopt;
}

std::optional<DataAccessError> ReportBlock::reserveFor(Peer &client, std::int64_t seconds)
{
    if (seconds < 0 || seconds > std::numeric_limits<std::int16_t>::max())
        return DataAccessError::ObjectValueInvalid;
    if (seconds == 0) {
        release();
        return std::nullopt;
    }
    own(client);
    m_reserved = true;
    m_reservedExplicitly = true;
    m_resvTms = static_cast<std::int32_t>(seconds);
    return std::nullopt;
}

std::optional<DataAccessError> ReportBlock::writeDatSet(Peer &client, std::string_view text)
{
    if (text == m_datSet)
        return std::nullopt;
    std::string reference(text);
    std::shared_ptr<DataSet> found;
    if (!reference.empty()) {
        // A buffered block outlives the associations whose data sets these are.
        if (m_config.buffered && reference.front() == '@')
            return DataAccessError::ObjectValueInvalid;
        found = m_host.dataSet(&client, reference);
        if (!found)
            return DataAccessError::ObjectValueInvalid;
    }
    purge();
    m_datSet = std::move(reference);
    m_dataSetClient = m_datSet.starts_with('@') ? &client : nullptr;
    useDataSet(std::move(found));
    ++m_confRev;
    startIntegrity();
    return std::nullopt;
}

void ReportBlock::useDataSet(std::shared_ptr<DataSet> dataSet)
{
    if (m_dataSet)
        --m_dataSet->users;
    m_dataSet = std::move(dataSet);
    if (m_dataSet)
        ++m_dataSet->users;
    m_waiting.clear();
    m_waiting.resize(m_dataSet ? m_dataSet->members.size() : 0);
    ++m_revision;
}

std::optional<DataAccessError> ReportBlock::resumeAfter(mms::Bytes entryId)
{
    std::uint64_t id = 0;
    for (const std::uint8_t octet : entryId)
        id = id << 8U | octet;
    if (id == 0) {
        m_nextId = m_firstId;
        m_positioned = true;
        return std::nullopt;
    }
    // The entry before the first one may be gone when everything behind it is still there.
    if (entryId.size() != sizeof(id) || id < m_originId || id + 1 < m_firstId || id >= endId())
        return DataAccessError::ObjectValueInvalid;
    m_nextId = id + 1;
    m_positioned = true;
    m_overflow = false;
    return std::nullopt;
}

void ReportBlock::startIntegrity()
{
    m_nextIntegrity.reset();
    if (listens() && m_trgOps.integrity && m_intgPd > 0)
        m_nextIntegrity = m_clock.steadyNow() + std::chrono::milliseconds(m_intgPd);
}

void ReportBlock::purge()
{
    for (const std::uint32_t member : m_fresh)
        m_waiting[member] = {};
    for (const std::uint32_t member : m_gathered)
        m_waiting[member] = {};
    m_fresh.clear();
    m_gathered.clear();
    m_gatherUntil.reset();
    m_firstId = endId();
    m_nextId = m_firstId;
    m_buffer.clear();
    m_bufferSize = 0;
    m_overflow = false;
    m_positioned = false;
}

void ReportBlock::changed(std::size_t member, Trigger fired)
{
    if (!has(m_trgOps, fired))
        return;
    Waiting &waiting = m_waiting[member];
    if (!any(waiting.fresh))
        m_fresh.push_back(static_cast<std::uint32_t>(member));
    waiting.fresh = waiting.fresh | fired;
}

void ReportBlock::settle()
{
    if (m_fresh.empty())
        return;
    if (m_gatherUntil) {
        // Of what is no measurement each state is told: IEC 61850-7-2, 17.2.2.9.
        const bool again = std::any_of(m_fresh.begin(), m_fresh.end(), [this](std::uint32_t i) {
            return any(m_waiting[i].gathered) && !m_host.isMeasured(*m_dataSet, i);
        });
        if (again)
            emitGathered();
    }
    for (const std::uint32_t member : m_fresh) {
        Waiting &waiting = m_waiting[member];
        if (!any(waiting.gathered))
            m_gathered.push_back(member);
        waiting.gathered = waiting.gathered | waiting.fresh;
        waiting.fresh = Trigger::None;
        waiting.value = m_host.value(*m_dataSet, member);
    }
    m_fresh.clear();
    if (m_bufTm == 0)
        emitGathered();
    else if (!m_gatherUntil)
        m_gatherUntil = m_clock.steadyNow() + std::chrono::milliseconds(m_bufTm);
}

void ReportBlock::emitGathered()
{
    m_gatherUntil.reset();
    if (m_gathered.empty())
        return;
    if (!std::is_sorted(m_gathered.begin(), m_gathered.end()))
        std::sort(m_gathered.begin(), m_gathered.end());
    std::vector<Included> members;
    members.reserve(m_gathered.size());
    for (const std::uint32_t member : m_gathered) {
        Waiting &waiting = m_waiting[member];
        members.push_back({member, reasonOf(m_trgOps, waiting.gathered), std::move(waiting.value)});
        waiting.gathered = Trigger::None;
    }
    m_gathered.clear();
    issue(std::move(members));
}

void ReportBlock::emitAll(acsi::Triggers reason)
{
    emitGathered();
    std::vector<Included> members;
    members.reserve(m_dataSet->members.size());
    for (std::size_t i = 0; i < m_dataSet->members.size(); ++i)
        members.push_back({static_cast<std::uint32_t>(i), reason, m_host.value(*m_dataSet, i)});
    issue(std::move(members));
}

void ReportBlock::issue(std::vector<Included> members)
{
    Entry entry{m_clock.entryTime(), std::move(members), 0};
    if (m_config.buffered) {
        store(std::move(entry));
        drain();
    } else if (m_enabled) {
        if (m_host.isReady(*m_client)) {
            send(entry, 0);
        } else {
            // The report is lost: its number is missing.
            m_sqNum = (m_sqNum + 1) & 0xffU;
        }
    }
}

void ReportBlock::store(Entry entry)
{
    entry.octets = entryOverhead;
    for (const Included &member : entry.members)
        entry.octets += reportedSize(member.value) + sizeof(Included);
    m_bufferSize += entry.octets;
    m_buffer.push_back(std::move(entry));
    while (m_bufferSize > m_config.bufferOctets && m_buffer.size() > 1) {
        m_bufferSize -= m_buffer.front().octets;
        m_buffer.pop_front();
        ++m_firstId;
        if (m_nextId < m_firstId) {
            m_nextId = m_firstId;
            m_overflow = true;
        }
    }
}

void ReportBlock::drain()
{
    while (m_config.buffered && m_enabled && !m_resumes && m_nextId < endId() &&
           m_host.isReady(*m_client)) {
        const Entry &entry = m_buffer[static_cast<std::size_t>(m_nextId - m_firstId)];
        m_lastSentId = m_nextId++;
        m_lastSentTime = entry.time;
        send(entry, m_lastSentId);
    }
}

Peer *ReportBlock::heldBack() const
{
    return m_config.buffered && m_enabled && !m_resumes && m_nextId < endId() ? m_client : nullptr;
}

void ReportBlock::send(const Entry &entry, std::uint64_t id)
{
    acsi::Report report;
    report.rptId = m_rptId.empty() ? m_config.reference : m_rptId;
    report.optFlds = m_optFlds;
    if (!m_config.buffered) {
        report.optFlds.bufferOverflow = false;
        report.optFlds.entryId = false;
    }
    report.sqNum = m_sqNum;
    report.timeOfEntry = entry.time;
    report.datSet = m_datSet;
    if (m_config.buffered) {
        report.bufOvfl = m_overflow;
        m_overflow = m_overflow && !m_optFlds.bufferOverflow;
        report.entryId = octetsOf(id);
    }
    report.confRev = m_confRev;
    report.dataSetSize = m_dataSet->members.size();
    report.members.reserve(entry.members.size());
    for (const Included &included : entry.members) {
        acsi::ReportMember &member = report.members.emplace_back(
            acsi::ReportMember{included.member, {}, included.reason, included.value});
        if (m_optFlds.dataReference)
            member.reference = m_host.reference(*m_dataSet, included.member);
    }
    const std::uint32_t mask = m_config.buffered ? 0xffffU : 0xffU;
    m_sqNum = (m_sqNum + 1) & mask;
    m_host.send(*m_client, std::move(report));
}

void ReportBlock::closed(const Peer &client)
{
    if (m_client == &client)
        leave();
    if (m_dataSetClient == &client) {
        m_dataSetClient = nullptr;
        m_datSet = m_config.datSet;
        useDataSet(m_host.dataSet(nullptr, m_datSet));
    }
}

void ReportBlock::leave()
{
    const bool explicitly = m_reservedExplicitly;
    const std::int32_t seconds = m_resvTms;
    if (m_enabled) {
        // The reservation outlives the association.
        m_reservedExplicitly = true;
        stop();
    }
    m_client = nullptr;
    if (!m_config.buffered) {
        release();
        return;
    }
    m_positioned = false;
    m_reservedExplicitly = explicitly;
    if (!m_config.hasResvTms || seconds <= 0)
        release();
    else
        m_reservedUntil = m_clock.steadyNow() + std::chrono::seconds(seconds);
}

std::optional<Clock::SteadyTime> ReportBlock::deadline() const
{
    if (m_resumes || m_interrogated)
        return m_clock.steadyNow();
    std::optional<Clock::SteadyTime> earliest;
    for (const auto &time : {m_gatherUntil, m_nextIntegrity, m_reservedUntil}) {
        if (time && (!earliest || *time < *earliest))
            earliest = time;
    }
    return earliest;
}

void ReportBlock::advance()
{
    const Clock::SteadyTime now = m_clock.steadyNow();
    if (m_reservedUntil && now >= *m_reservedUntil)
        release();
    if (m_resumes) {
        m_resumes = false;
        drain();
    }
    if (m_gatherUntil && now >= *m_gatherUntil)
        emitGathered();
    if (m_interrogated) {
        m_interrogated = false;
        acsi::Triggers reason;
        reason.generalInterrogation = true;
        emitAll(reason);
    }
    if (m_nextIntegrity && now >= *m_nextIntegrity) {
        const auto period = std::chrono::milliseconds(m_intgPd);
        // Periods that passed unseen are left out.
        while (*m_nextIntegrity <= now)
            *m_nextIntegrity += period;
        acsi::Triggers reason;
        reason.integrity = true;
        emitAll(reason);
    }
}

std::vector<std::uint8_t> ReportBlock::octetsOf(std::uint64_t id)
{
    std::vector<std::uint8_t> octets(sizeof(id));
    for (std::size_t i = octets.size(); i-- > 0; id >>= 8U)
        octets[i] = static_cast<std::uint8_t>(id);
    return octets;
}

} // namespace sim
