// SPDX-License-Identifier: Apache-2.0
#include "settinggroupedit.h"

SettingGroupEdit::Verdict SettingGroupEdit::verdict(Caller caller, std::uint32_t edited) const
{
    const bool isOwn = isChosen() && m_caller == caller;
    if (edited == 0)
        return isOwn ? Verdict::GivenUp : Verdict::NothingChosen;
    if (!isChosen() || edited != m_group)
        return Verdict::OtherClient;
    return isOwn ? Verdict::Granted : Verdict::OtherWindow;
}

void SettingGroupEdit::chosen(Caller caller, std::uint32_t group, Time now)
{
    m_caller = caller;
    m_group = group;
    m_lastUse = now;
}

void SettingGroupEdit::used(Time now)
{
    m_lastUse = now;
}

void SettingGroupEdit::ended()
{
    m_group = 0;
}

std::optional<SettingGroupEdit::Time> SettingGroupEdit::deadline() const
{
    return isChosen() ? std::optional<Time>(m_lastUse + patience) : std::nullopt;
}
