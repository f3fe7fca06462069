// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/client.h"

#include <asio/awaitable.hpp>

#include <memory>

class DeviceConnection;

/// Carries out what SignOfLife says: asks a silent device whether it is there, measures how long an
/// answer takes, and aborts the association with one that gives no sign of life. Returns when the
/// association has ended or is not to be kept. In the strand of the connection.
asio::awaitable<void> watchOverLife(DeviceConnection &connection,
                                    std::shared_ptr<acsi::Client> client);
