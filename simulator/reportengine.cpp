// SPDX-License-Identifier: Apache-2.0
#include "simulator/reportengine.h"

#include "simulator/reportsegments.h"

#include "acsi/reference.h"

#include <utility>

namespace sim {

namespace {

/// Octets that may wait for a client before what comes next is held back or lost.
constexpr std::size_t mostQueued = 1024 * 1024;
/// A client that is so little behind gets more.
constexpr std::size_t fewQueued = mostQueued / 2;

acsi::OptFlds optFldsOf(const scl::ReportOptionalFields &fields)
{
    acsi::OptFlds result;
    result.sequenceNumber = fields.sequenceNumber;
    result.timeStamp = fields.timeStamp;
    result.dataSetName = fields.dataSetName;
    result.reasonForInclusion = fields.reasonForInclusion;
    result.dataReference = fields.dataReference;
    result.bufferOverflow = fields.bufferOverflow;
    result.entryId = fields.entryId;
    result.confRevision = fields.configurationRevision;
    return result;
}

acsi::Triggers triggersOf(const scl::ConfiguredTriggers &options)
{
    acsi::Triggers result;
    result.dataChange = options.dataChange;
    result.qualityChange = options.qualityChange;
    result.dataUpdate = options.dataUpdate;
    result.integrity = options.integrity;
    result.generalInterrogation = options.generalInterrogation;
    return result;
}

} // namespace

class ReportEngine::BlockObject : public Object
{
public:
    BlockObject(ReportEngine &engine, std::size_t index, const Part &part)
        : m_engine(engine)
        , m_index(index)
        , m_part(part)
    {
    }

    void refresh() override
    {
        const ReportBlock &block = *m_engine.m_blocks[m_index].block;
        for (std::uint32_t i = 0; i < m_part.childCount(); ++i) {
            const Part attribute = m_part.childAt(i);
            if (auto value = block.value(attribute.name()))
                m_engine.m_host.model.set(attribute.firstLeaf(), std::move(*value));
        }
    }

    std::optional<mms::DataAccessError> write(Peer &client, const Part &part,
                                              const mms::Data &value) override
    {
        // Attributes depend on each other, so that their order has to be the client's.
        if (part == m_part)
            return mms::DataAccessError::ObjectAccessDenied;
        const auto refused = m_engine.m_blocks[m_index].block->write(client, part.name(), value);
        m_engine.written(m_index);
        return refused;
    }

private:
    ReportEngine &m_engine;
    std::size_t m_index;
    Part m_part;
};

ReportEngine::ReportEngine(const Host &host, const scl::Ied &ied)
    : m_host(host)
    , m_timer(host.clock.makeTimer())
{
    ied.forEachDevice([this](const scl::LogicalDevice &device) {
        for (const scl::LogicalNode &node : device.nodes) {
            for (const scl::ReportControlBlock &control : node.reports)
                add(device, node, control);
        }
    });
    if (m_blocks.empty())
        return;
    m_host.model.addListener(this);
    for (const Place &place : m_blocks)
        wakeFor(*place.block);
}

ReportEngine::~ReportEngine()
{
    m_host.model.removeListener(this);
}

void ReportEngine::add(const scl::LogicalDevice &device, const scl::LogicalNode &node,
                       const scl::ReportControlBlock &control)
{
    for (const std::string_view name : control.instanceNames) {
        const std::string item =
            std::string(node.name) + (control.buffered ? "$BR$" : "$RP$") + std::string(name);
        const Part part = m_host.model.find(device.name, item);
        if (!part.isValid())
            continue;
        ReportControlBlock config;
        config.buffered = control.buffered;
        config.reference = std::string(device.name) + '/' + item;
        config.rptId = control.reportId;
        if (!control.dataSetName.empty())
            config.datSet = std::string(device.name) + '/' + std::string(node.name) + '$' +
                            std::string(control.dataSetName);
        config.confRev = control.confRev;
        config.optFlds = optFldsOf(control.fields);
        config.trgOps = triggersOf(control.triggers);
        config.bufTm = control.bufferTime;
        config.intgPd = control.integrityPeriod;
        if (control.reservationTime != 0)
            config.implicitResvTms = static_cast<std::int32_t>(control.reservationTime);
        config.hasResvTms = part.child("ResvTms").isValid();
        Place place;
        ReportHost &self = *this;
        place.block = std::make_unique<ReportBlock>(std::move(config), self, m_host.clock);
        place.revision = place.block->revision();
        const std::size_t index = m_blocks.size();
        m_blocks.push_back(std::move(place));
        m_host.access.attach(part, std::make_shared<BlockObject>(*this, index, part));
    }
}

void ReportEngine::closed(Peer &client)
{
    m_behind.erase(&client);
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        m_blocks[i].block->closed(client);
        written(i);
    }
}

void ReportEngine::written(std::size_t index)
{
    checkRevision(index);
    wakeFor(*m_blocks[index].block);
}

void ReportEngine::checkRevision(std::size_t index)
{
    Place &place = m_blocks[index];
    if (place.revision == place.block->revision())
        return;
    place.revision = place.block->revision();
    m_usesOutdated = true;
}

void ReportEngine::indexUses()
{
    m_usesOutdated = false;
    m_firstUse.assign(m_host.model.leafCount(), 0);
    m_uses.clear();
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        const ReportBlock &block = *m_blocks[i].block;
        if (!block.listens())
            continue;
        const std::vector<DataSetMember> &members = block.dataSet()->members;
        for (std::size_t m = 0; m < members.size(); ++m) {
            const Part &part = members[m].part;
            for (Leaf leaf = part.firstLeaf(); leaf < part.firstLeaf() + part.leafCount(); ++leaf) {
                if (!any(m_host.model.triggers(leaf)))
                    continue;
                m_uses.push_back({static_cast<std::uint32_t>(i), static_cast<std::uint32_t>(m),
                                  m_firstUse[leaf]});
                m_firstUse[leaf] = static_cast<std::uint32_t>(m_uses.size());
            }
        }
    }
}

void ReportEngine::changed(std::span<const Change> changes)
{
    if (m_usesOutdated)
        indexUses();
    for (const Change &change : changes) {
        for (std::uint32_t use = m_firstUse[change.leaf]; use != 0; use = m_uses[use - 1].next) {
            const Use &place = m_uses[use - 1];
            m_blocks[place.block].block->changed(place.member, change.fired);
            if (!m_blocks[place.block].touched) {
                m_blocks[place.block].touched = true;
                m_touched.push_back(place.block);
            }
        }
    }
    for (const std::uint32_t index : m_touched) {
        m_blocks[index].touched = false;
        m_blocks[index].block->settle();
        wakeFor(*m_blocks[index].block);
    }
    m_touched.clear();
}

void ReportEngine::wakeFor(const ReportBlock &block)
{
    if (const auto time = block.deadline())
        wakeAt(*time);
    Peer *behind = block.heldBack();
    if (!behind || !m_behind.insert(behind).second)
        return;
    behind->whenQueued(fewQueued, [this, behind, alive = std::weak_ptr<int>(m_alive)] {
        if (!alive.expired())
            catchUp(*behind);
    });
}

void ReportEngine::catchUp(const Peer &client)
{
    m_behind.erase(&client);
    for (const Place &place : m_blocks) {
        if (place.block->heldBack() == &client) {
            place.block->drain();
            wakeFor(*place.block);
        }
    }
}

void ReportEngine::wakeAt(Clock::SteadyTime time)
{
    if (time >= m_wakeTime)
        return;
    m_wakeTime = time;
    m_timer->start(time - m_host.clock.steadyNow(), [this] { wake(); });
}

void ReportEngine::wake()
{
    m_wakeTime = Clock::SteadyTime::max();
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        ReportBlock &block = *m_blocks[i].block;
        const auto time = block.deadline();
        if (time && *time <= m_host.clock.steadyNow())
            block.advance();
        written(i);
    }
}

std::shared_ptr<DataSet> ReportEngine::dataSet(const Peer *client, const std::string &reference)
{
    return reference.empty() ? nullptr : m_host.dataSets.find(client, reference);
}

std::string ReportEngine::reference(const DataSet &dataSet, std::size_t member)
{
    const auto reference = acsi::referenceOf(dataSet.members[member].access);
    return reference ? acsi::toText(*reference) : std::string();
}

mms::AccessResult ReportEngine::value(const DataSet &dataSet, std::size_t member)
{
    return m_host.model.value(dataSet.members[member].part);
}

bool ReportEngine::isMeasured(const DataSet &dataSet, std::size_t member)
{
    return dataSet.members[member].part.fc() == Fc::MX;
}

bool ReportEngine::isReady(const Peer &client)
{
    return client.queued() < mostQueued;
}

void ReportEngine::send(Peer &client, acsi::Report report)
{
    for (const acsi::Report &segment : segments(std::move(report), client.pduSize()))
        client.report(acsi::encodeReport(segment));
}

} // namespace sim
