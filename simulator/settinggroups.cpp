// SPDX-License-Identifier: Apache-2.0
#include "simulator/settinggroups.h"

#include <algorithm>

namespace sim {

using mms::DataAccessError;

SettingGroups::SettingGroups(Config config, SettingGroupHost &host, const Clock &clock)
    : m_config(config)
    , m_host(host)
    , m_clock(clock)
    , m_active(config.active)
    , m_activatedAt(clock.utcTime())
{
}

std::optional<mms::Data> SettingGroups::value(std::string_view attribute) const
{
    using mms::Data;
    if (attribute == "NumOfSG")
        return Data::unsignedInteger(m_config.count);
    if (attribute == "ActSG")
        return Data::unsignedInteger(m_active);
    if (attribute == "EditSG")
        return Data::unsignedInteger(m_edited);
    if (attribute == "CnfEdit")
        return Data::boolean(false);
    if (attribute == "LActTm")
        return Data::utcTime(m_activatedAt);
    if (attribute == "ResvTms")
        return Data::unsignedInteger(static_cast<std::uint64_t>(m_config.reservation.count()));
    return std::nullopt;
}

std::optional<DataAccessError> SettingGroups::write(Peer &client, std::string_view attribute,
                                                    const mms::Data &data)
{
    if (attribute == "ActSG") {
        const std::uint64_t group = data.toUnsigned().value_or(0);
        if (group == 0 || group > m_config.count)
            return DataAccessError::ObjectValueInvalid;
        if (m_config.activationDelay.count() > 0) {
            m_next = static_cast<std::uint32_t>(group);
            m_activation = m_clock.steadyNow() + m_config.activationDelay;
        } else {
            activate(static_cast<std::uint32_t>(group));
        }
        return std::nullopt;
    }
    if (attribute == "EditSG")
        return selectEdited(client, data.toUnsigned().value_or(m_config.count + 1ULL));
    if (attribute == "CnfEdit") {
        if (!mayEdit(client))
            return DataAccessError::TemporarilyUnavailable;
        if (!data.toBoolean().value_or(false))
            return std::nullopt;
        m_host.keep(m_edited);
        if (m_edited == m_active)
            m_host.activate(m_active);
        if (!m_config.keepsEdited)
            release();
        return std::nullopt;
    }
    return DataAccessError::ObjectAccessDenied;
}

std::optional<DataAccessError> SettingGroups::selectEdited(Peer &client, std::uint64_t group)
{
    if (m_edited != 0 && m_client != &client)
        return DataAccessError::TemporarilyUnavailable;
    if (group > m_config.count)
        return DataAccessError::ObjectValueInvalid;
    if (group == 0) {
        release();
        return std::nullopt;
    }
    m_edited = static_cast<std::uint32_t>(group);
    m_client = &client;
    m_host.edit(m_edited);
    touch();
    return std::nullopt;
}

std::optional<DataAccessError> SettingGroups::writeSetting(const Peer &client)
{
    if (!mayEdit(client))
        return DataAccessError::TemporarilyUnavailable;
    touch();
    return std::nullopt;
}

void SettingGroups::activate(std::uint32_t group)
{
    m_active = group;
    m_activatedAt = m_clock.utcTime();
    m_host.activate(m_active);
}

bool SettingGroups::mayEdit(const Peer &client) const
{
    return m_edited != 0 && (m_client == &client || m_config.isShared);
}

std::optional<Clock::SteadyTime> SettingGroups::deadline() const
{
    if (!m_deadline || !m_activation)
        return m_deadline ? m_deadline : m_activation;
    return std::min(*m_deadline, *m_activation);
}

void SettingGroups::closed(const Peer &client)
{
    if (m_client == &client)
        release();
}

void SettingGroups::touch()
{
    if (m_config.reservation.count() > 0)
        m_deadline = m_clock.steadyNow() + m_config.reservation;
}

void SettingGroups::release()
{
    m_edited = 0;
    m_client = nullptr;
    m_deadline.reset();
}

void SettingGroups::advance()
{
    if (m_activation && m_clock.steadyNow() >= *m_activation) {
        m_activation.reset();
        activate(m_next);
    }
    if (m_deadline && m_clock.steadyNow() >= *m_deadline)
        release();
}

} // namespace sim
