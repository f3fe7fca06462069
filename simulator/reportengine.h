// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/engine.h"
#include "simulator/reportblock.h"

#include <memory>
#include <set>
#include <vector>

namespace sim {

/// All report control blocks of a device: finds the data set members that a change of the model
/// concerns, keeps the blocks' time, and sends reports in as many segments as the client's PDU size
/// wants.
class ReportEngine : public Engine, private ChangeListener, private ReportHost
{
public:
    ReportEngine(const Host &host, const scl::Ied &ied);
    ~ReportEngine() override;

    void closed(Peer &client) override;

    const ReportBlock &block(std::size_t index) const { return *m_blocks[index].block; }

private:
    class BlockObject;

    struct Place
    {
        std::unique_ptr<ReportBlock> block;
        std::uint64_t revision = 0;
        bool touched = false;
    };
    /// A member of a data set that a leaf is in, in the list of that leaf.
    struct Use
    {
        std::uint32_t block;
        std::uint32_t member;
        std::uint32_t next;
    };

    void changed(std::span<const Change> changes) override;
    std::shared_ptr<DataSet> dataSet(const Peer *client, const std::string &reference) override;
    std::string reference(const DataSet &dataSet, std::size_t member) override;
    mms::AccessResult value(const DataSet &dataSet, std::size_t member) override;
    bool isMeasured(const DataSet &dataSet, std::size_t member) override;
    bool isReady(const Peer &client) override;
    void send(Peer &client, acsi::Report report) override;

    void add(const scl::LogicalDevice &device, const scl::LogicalNode &node,
             const scl::ReportControlBlock &control);
    void written(std::size_t index);
    void checkRevision(std::size_t index);
    void indexUses();
    void wakeFor(const ReportBlock &block);
    void catchUp(const Peer &client);
    void wakeAt(Clock::SteadyTime time);
    void wake();

    Host m_host;
    std::vector<Place> m_blocks;
    std::vector<std::uint32_t> m_firstUse; ///< for each leaf: position in m_uses plus 1, or 0
    std::vector<Use> m_uses;
    bool m_usesOutdated = true;
    std::vector<std::uint32_t> m_touched;
    /// Clients whose network is to say when it has caught up.
    std::set<const Peer *> m_behind;
    std::shared_ptr<int> m_alive = std::make_shared<int>(0);
    std::unique_ptr<Timer> m_timer;
    Clock::SteadyTime m_wakeTime = Clock::SteadyTime::max();
};

} // namespace sim
