// SPDX-License-Identifier: Apache-2.0
// Shared by the sources that transfer files; not for the folder's users.
#pragma once

#include "acsi/client.h"

#include <functional>
#include <memory>
#include <string>

namespace acsi {

/// Calls a service with each spelling of a name until the peer knows the name. Where it knows none,
/// the refusal that tells most.
asio::awaitable<mms::CallOutcome>
callBySpelling(std::shared_ptr<Client> client, std::string name,
               std::function<mms::RequestService(const std::string &spelling)> requestFor);

/// Opens a file; one that the peer opens only after ClientOptions::callTimeout is closed again.
asio::awaitable<mms::CallOutcome> openFile(std::shared_ptr<Client> client,
                                           mms::FileOpenRequest request);

asio::awaitable<mms::CallOutcome> renameCall(std::shared_ptr<Client> client, std::string from,
                                             std::string to);

} // namespace acsi
