// SPDX-License-Identifier: Apache-2.0
#include "simulator/settinggroupengine.h"

#include <algorithm>
#include <string>
#include <utility>

namespace sim {

namespace {

/// Of a device that takes its time.
constexpr std::chrono::milliseconds activationDelay{500};

} // namespace

/// One control block, and the values of the settings that it governs.
class SettingGroupEngine::Block : public SettingGroupHost
{
public:
    Block(const Host &host, const Model::Domain &domain, const SettingGroups::Config &config)
        : m_model(host.model)
        , m_settings(host.model.settings(domain))
        , m_groups(config, *this, host.clock)
    {
        m_values.resize(config.count);
        for (std::uint32_t group = 1; group <= config.count; ++group) {
            std::vector<mms::Data> &values = m_values[group - 1];
            values.reserve(m_settings.size());
            for (const Model::Setting &setting : m_settings)
                values.push_back(m_model.configuredValue(setting.active, group));
        }
        activate(config.active);
        edit(config.active);
    }

    SettingGroups &groups() { return m_groups; }

    void activate(std::uint32_t group) override
    {
        const Model::Batch batch(m_model);
        for (std::size_t i = 0; i < m_settings.size(); ++i)
            m_model.set(m_settings[i].active, m_values[group - 1][i]);
    }

    void edit(std::uint32_t group) override
    {
        for (std::size_t i = 0; i < m_settings.size(); ++i)
            m_model.set(m_settings[i].edited, m_values[group - 1][i]);
    }

    void keep(std::uint32_t group) override
    {
        for (std::size_t i = 0; i < m_settings.size(); ++i)
            m_values[group - 1][i] = m_model.value(m_settings[i].edited);
    }

private:
    Model &m_model;
    std::vector<Model::Setting> m_settings;
    std::vector<std::vector<mms::Data>> m_values; ///< by group, then by setting
    SettingGroups m_groups;
};

class SettingGroupEngine::BlockObject : public Object
{
public:
    BlockObject(SettingGroupEngine &engine, Block &block, const Part &part)
        : m_engine(engine)
        , m_block(block)
        , m_part(part)
    {
    }

    void refresh() override
    {
        for (std::uint32_t i = 0; i < m_part.childCount(); ++i) {
            const Part attribute = m_part.childAt(i);
            if (auto value = m_block.groups().value(attribute.name()))
                m_engine.m_host.model.set(attribute.firstLeaf(), std::move(*value));
        }
    }

    std::optional<mms::DataAccessError> write(Peer &client, const Part &part,
                                              const mms::Data &value) override
    {
        if (part == m_part)
            return mms::DataAccessError::ObjectAccessDenied;
        const auto refused = m_block.groups().write(client, part.name(), value);
        m_engine.startTimer();
        return refused;
    }

private:
    SettingGroupEngine &m_engine;
    Block &m_block;
    Part m_part;
};

/// The settings of a logical node as they are edited.
class SettingGroupEngine::SettingsObject : public Object
{
public:
    SettingsObject(SettingGroupEngine &engine, Block &block)
        : m_engine(engine)
        , m_block(block)
    {
    }

    std::optional<mms::AccessResult> read(Peer &, const Part &) override
    {
        if (m_engine.m_host.oddities.writeOnlyEdit)
            return mms::AccessResult(mms::DataAccessError::ObjectAccessDenied);
        if (m_block.groups().isEditing())
            return std::nullopt;
        return mms::AccessResult(mms::DataAccessError::TemporarilyUnavailable);
    }

    std::optional<mms::DataAccessError> write(Peer &client, const Part &part,
                                              const mms::Data &value) override
    {
        if (const auto refused = m_block.groups().writeSetting(client))
            return refused;
        m_engine.m_host.model.set(part, value);
        m_engine.startTimer();
        return std::nullopt;
    }

private:
    SettingGroupEngine &m_engine;
    Block &m_block;
};

SettingGroupEngine::SettingGroupEngine(const Host &host, const scl::Ied &ied)
    : m_host(host)
    , m_timer(host.clock.makeTimer())
{
    ied.forEachDevice([this](const scl::LogicalDevice &device) {
        const Model::Domain *domain = m_host.model.findDomain(device.name);
        const auto node =
            std::find_if(device.nodes.begin(), device.nodes.end(),
                         [](const scl::LogicalNode &n) { return n.settingControl != nullptr; });
        if (!domain || node == device.nodes.end())
            return;
        const Part part = m_host.model.find(device.name, std::string(node->name) + "$SP$SGCB");
        if (!part.isValid())
            return;
        const scl::SettingControlBlock &control = *node->settingControl;
        SettingGroups::Config config;
        config.count = std::max(control.groupCount, 1U);
        config.active = std::clamp(control.activeGroup, 1U, config.count);
        config.reservation = std::chrono::seconds(control.reservationTime);
        config.activationDelay =
            m_host.oddities.delayedActivation ? activationDelay : std::chrono::milliseconds(0);
        config.keepsEdited = m_host.oddities.keptEditGroup;
        config.isShared = m_host.oddities.sharedEdit;
        m_blocks.push_back(std::make_unique<Block>(m_host, *domain, config));
        Block &block = *m_blocks.back();
        m_host.access.attach(part, std::make_shared<BlockObject>(*this, block, part));
        const auto settings = std::make_shared<SettingsObject>(*this, block);
        for (std::uint32_t i = 0; i < domain->nodeCount; ++i) {
            const Part edited = m_host.model.logicalNode(domain->firstNode + i).child("SE");
            if (edited.isValid())
                m_host.access.attach(edited, settings);
        }
    });
}

SettingGroupEngine::~SettingGroupEngine() = default;

void SettingGroupEngine::closed(Peer &client)
{
    for (const auto &block : m_blocks)
        block->groups().closed(client);
}

void SettingGroupEngine::startTimer()
{
    std::optional<Clock::SteadyTime> earliest;
    for (const auto &block : m_blocks) {
        const auto time = block->groups().deadline();
        if (time && (!earliest || *time < *earliest))
            earliest = time;
    }
    if (earliest)
        m_timer->start(*earliest - m_host.clock.steadyNow(), [this] { wake(); });
    else
        m_timer->stop();
}

void SettingGroupEngine::wake()
{
    for (const auto &block : m_blocks)
        block->groups().advance();
    startTimer();
}

} // namespace sim
