// SPDX-License-Identifier: Apache-2.0
// Shared by the sources that transfer files; not for the folder's users.
#pragma once

#include "acsi/client.h"

#include <memory>
#include <string>

namespace acsi {

// These try each spelling of a name until the peer knows the name. Where it knows none they give
// the refusal that tells most.

/// A file that the peer opens only after ClientOptions::callTimeout is closed again.
asio::awaitable<mms::CallOutcome> openCall(std::shared_ptr<Client> client, std::string name);
asio::awaitable<mms::CallOutcome> deleteCall(std::shared_ptr<ChangingClient> client,
                                             std::string name);
asio::awaitable<mms::CallOutcome> renameCall(std::shared_ptr<ChangingClient> client,
                                             std::string from, std::string to);

} // namespace acsi
