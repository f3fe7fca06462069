// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "osi/vocabulary.h"

#include <asio/ip/address.hpp>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace osi {

/// What a name stands for.
struct HostAddresses
{
    std::vector<asio::ip::address> addresses;
    Text error; ///< why there are none: a clause without a full stop
};

/// The address that a text is, such as "10.0.0.1", "fe80::1%eth0" or "[::1]"; none for a name.
std::optional<asio::ip::address> numericAddress(const std::string &host);

/// A name that is being looked up, in a thread of its own: a name server that does not answer holds
/// nobody up but those who ask for that name. A name that is being looked up already is not asked
/// for a second time. Nothing ends a look-up sooner than the system does; who does not want to
/// wait any longer lets the object go.
class HostLookup
{
    struct Request;
    struct Registry;

public:
    using Function = std::function<HostAddresses(const std::string &name)>;
    using Handler = std::function<void(HostAddresses found)>;

    /// Calls @p handler once, in another thread, unless the object has gone before. @p function
    /// looks the name up; none asks the system.
    HostLookup(const std::string &name, const Function &function, Handler handler);
    /// Afterwards the handler is not called any more, nor is it running.
    ~HostLookup();
    HostLookup(const HostLookup &) = delete;
    HostLookup &operator=(const HostLookup &) = delete;

private:
    std::shared_ptr<Request> m_request;
};

} // namespace osi
