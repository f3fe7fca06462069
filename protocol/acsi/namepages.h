// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/pduservices.h"

#include <cstddef>
#include <span>
#include <string>
#include <unordered_set>
#include <vector>

namespace acsi {

/// The names of one class in one scope, put together from the pages in which a server gives them.
class NamePages
{
public:
    NamePages(mms::ObjectClass objectClass, mms::Scope scope, std::string domain = {});

    /// For the next page.
    mms::GetNameListRequest request() const;
    /// Takes the page that was asked for; the error of a peer that does not get on.
    mms::Result<void> take(mms::GetNameListResponse page);

    bool complete() const { return m_complete; }
    /// In the order of the server, each once.
    const std::vector<std::string> &names() const & { return m_names; }
    std::vector<std::string> names() && { return std::move(m_names); }
    /// Those that the last page brought.
    std::span<const std::string> newNames() const;

private:
    mms::GetNameListRequest m_request;
    std::vector<std::string> m_names;
    std::unordered_set<std::string> m_known;
    std::size_t m_before = 0;
    bool m_complete = false;
};

} // namespace acsi
