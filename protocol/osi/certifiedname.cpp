// SPDX-License-Identifier: Apache-2.0
#include "osi/certifiedname.h"

#include "osi/hostlookup.h"

namespace osi {

std::string certifiedName(const std::string &host)
{
    const auto address = numericAddress(host);
    if (!address)
        return host;
    if (!address->is_v6())
        return address->to_string();
    asio::ip::address_v6 withoutScope = address->to_v6();
    withoutScope.scope_id(0);
    return withoutScope.to_string();
}

} // namespace osi
