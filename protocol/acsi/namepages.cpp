// SPDX-License-Identifier: Apache-2.0
#include "acsi/namepages.h"

#include <utility>

namespace acsi {

using wording::say;

namespace {

/// More than any device has; a peer that makes up names without end is stopped.
constexpr std::size_t mostNames = 2000000;

} // namespace

NamePages::NamePages(mms::ObjectClass objectClass, mms::Scope scope, std::string domain)
    : m_request{objectClass, scope, std::move(domain), {}}
{
}

mms::GetNameListRequest NamePages::request() const
{
    return m_request;
}

mms::Result<void> NamePages::take(mms::GetNameListResponse page)
{
    m_before = m_names.size();
    // A page without names leaves nothing to continue after, whatever it promises.
    if (page.names.empty() || !page.moreFollows)
        m_complete = true;
    if (!page.names.empty())
        m_request.continueAfter = page.names.back();
    // Some peers begin a page with the name it was to follow.
    for (std::string &name : page.names) {
        if (m_known.insert(name).second)
            m_names.push_back(std::move(name));
    }
    if (!m_complete && m_names.size() == m_before)
        return mms::Error{say("The device repeats the same page of names."), 0};
    if (m_names.size() > mostNames)
        return mms::Error{say("The device gives names without end."), 0};
    return {};
}

std::span<const std::string> NamePages::newNames() const
{
    return std::span<const std::string>(m_names).subspan(m_before);
}

} // namespace acsi
