// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/pduservices.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace acsi {

/// The names of one class in one scope, put together from the pages in which a server gives them.
/// A large device has hundreds of thousands: they are kept in one text, one after the other.
class NamePages
{
public:
    NamePages(mms::ObjectClass objectClass, mms::Scope scope, std::string domain = {});

    /// For the next page.
    mms::GetNameListRequest request() const;
    /// Takes the page that was asked for; the error of a peer that does not get on.
    mms::Result<void> take(const mms::GetNameListResponse &page);

    bool complete() const { return m_complete; }
    /// Names so far, each counted once.
    std::size_t count() const { return m_ends.size(); }
    /// Of those that the last page brought; count() when it brought none.
    std::size_t firstNew() const { return m_firstNew; }
    /// In the order of the server. Until the next page.
    std::string_view name(std::size_t number) const;
    std::vector<std::string> names() const;

private:
    /// Unless it is there already.
    void add(std::string_view name);
    /// The place of the name, or the free one where it belongs.
    std::size_t placeOf(std::string_view name) const;
    void grow();

    mms::GetNameListRequest m_request;
    std::string m_text;
    std::vector<std::size_t> m_ends; ///< in the text, one for each name
    /// Numbers of the names, counted from 1, by their hash; a power of two, at most half of them
    /// taken.
    std::vector<std::uint32_t> m_places;
    std::size_t m_firstNew = 0;
    bool m_complete = false;
};

} // namespace acsi
