// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/clock.h"
#include "simulator/peer.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

namespace sim {

/// What a setting group control block needs from its device. Groups count from 1.
class SettingGroupHost
{
public:
    virtual ~SettingGroupHost() = default;

    /// The values of @p group become the active ones.
    virtual void activate(std::uint32_t group) = 0;
    /// The values of @p group are copied to be edited.
    virtual void edit(std::uint32_t group) = 0;
    /// The values that were edited become those of @p group.
    virtual void keep(std::uint32_t group) = 0;
};

/// The state machine of a setting group control block (IEC 61850-7-2, 16). One client edits one
/// group at a time; what it does not confirm is forgotten.
class SettingGroups
{
public:
    struct Config
    {
        std::uint32_t count = 1;
        std::uint32_t active = 1;
        /// Until an edit without activity is given up; zero for never.
        std::chrono::seconds reservation{0};
        /// From a choice of the active group to its effect.
        std::chrono::milliseconds activationDelay{0};
        /// The group stays the edited one of its client when it was confirmed.
        bool keepsEdited = false;
        /// Every client may go on with an edit.
        bool isShared = false;
    };

    SettingGroups(Config config, SettingGroupHost &host, const Clock &clock);

    /// The value of an attribute ("ActSG"); none for a name that no block has.
    std::optional<mms::Data> value(std::string_view attribute) const;
    /// @p data is of the attribute's type. None when it was written.
    std::optional<mms::DataAccessError> write(Peer &client, std::string_view attribute,
                                              const mms::Data &data);
    /// None when @p client may change a setting of the group being edited now.
    std::optional<mms::DataAccessError> writeSetting(const Peer &client);
    /// Whether there is something to read of a group being edited.
    bool isEditing() const { return m_edited != 0; }
    void closed(const Peer &client);

    /// When advance() has something to do.
    std::optional<Clock::SteadyTime> deadline() const;
    void advance();

private:
    std::optional<mms::DataAccessError> selectEdited(Peer &client, std::uint64_t group);
    void activate(std::uint32_t group);
    bool mayEdit(const Peer &client) const;
    void touch();
    void release();

    Config m_config;
    SettingGroupHost &m_host;
    const Clock &m_clock;
    std::uint32_t m_active;
    std::uint32_t m_edited = 0;
    const Peer *m_client = nullptr;
    mms::UtcTime m_activatedAt;
    std::optional<Clock::SteadyTime> m_deadline; ///< of the reservation
    std::uint32_t m_next = 0;                    ///< becomes active at m_activation
    std::optional<Clock::SteadyTime> m_activation;
};

} // namespace sim
