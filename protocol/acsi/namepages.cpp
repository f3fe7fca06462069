// SPDX-License-Identifier: Apache-2.0
#include "acsi/namepages.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace acsi {

using wording::say;

namespace {

/// More than any device has; a peer that makes up names without end is stopped.
constexpr std::size_t mostNames = 2000000;
constexpr std::size_t firstPlaces = 64;

} // namespace

NamePages::NamePages(mms::ObjectClass objectClass, mms::Scope scope, std::string domain)
    : m_request{objectClass, scope, std::move(domain), {}}
{
}

mms::GetNameListRequest NamePages::request() const
{
    return m_request;
}

mms::Result<void> NamePages::take(const mms::GetNameListResponse &page)
{
    m_firstNew = count();
    // A page without names leaves nothing to continue after, whatever it promises.
    if (page.names.empty() || !page.moreFollows)
        m_complete = true;
    if (!page.names.empty())
        m_request.continueAfter = page.names.back();
    // Some peers begin a page with the name it was to follow.
    for (const std::string &name : page.names)
        add(name);
    if (!m_complete && count() == m_firstNew)
        return mms::Error{say("The device repeats the same page of names."), 0};
    if (count() > mostNames)
        return mms::Error{say("The device gives names without end."), 0};
    return {};
}

std::string_view NamePages::name(std::size_t number) const
{
    const std::size_t begin = number == 0 ? 0 : m_ends[number - 1];
    return std::string_view(m_text).substr(begin, m_ends[number] - begin);
}

std::vector<std::string> NamePages::names() const
{
    std::vector<std::string> names;
    names.reserve(count());
    for (std::size_t i = 0; i < count(); ++i)
        names.emplace_back(name(i));
    return names;
}

void NamePages::add(std::string_view name)
{
    if (m_places.size() <= 2 * count())
        grow();
    std::uint32_t &place = m_places[placeOf(name)];
    if (place != 0)
        return;
    m_text += name;
    m_ends.push_back(m_text.size());
    place = static_cast<std::uint32_t>(count());
}

std::size_t NamePages::placeOf(std::string_view wanted) const
{
    const std::size_t mask = m_places.size() - 1;
    std::size_t place = std::hash<std::string_view>()(wanted) & mask;
    while (m_places[place] != 0 && name(m_places[place] - 1) != wanted)
        place = (place + 1) & mask;
    return place;
}

void NamePages::grow()
{
    m_places.assign(std::max(firstPlaces, 2 * m_places.size()), 0);
    for (std::size_t i = 0; i < count(); ++i)
        m_places[placeOf(name(i))] = static_cast<std::uint32_t>(i + 1);
}

} // namespace acsi
