// SPDX-License-Identifier: Apache-2.0
// Shared by the sources of associations; not for the folder's users.
#pragma once

#include "osi/link.h"

#include <asio/associated_cancellation_slot.hpp>
#include <asio/associated_executor.hpp>
#include <asio/async_result.hpp>
#include <asio/dispatch.hpp>
#include <asio/use_awaitable.hpp>

#include <functional>
#include <memory>
#include <utility>

namespace mms {

/// A completion token's handler as a copyable function that completes in the handler's executor:
/// never within the function itself, but before @p link looks at the network again.
template <typename Value, typename Handler>
std::function<void(Value)> completing(std::shared_ptr<osi::Link> link,
                                      std::shared_ptr<Handler> handler)
{
    return [link = std::move(link), handler = std::move(handler)](Value value) {
        link->whenTold([handler, value = std::move(value)]() mutable {
            const auto executor = asio::get_associated_executor(*handler);
            asio::dispatch(executor, [handler, value = std::move(value)]() mutable {
                auto slot = asio::get_associated_cancellation_slot(*handler);
                if (slot.is_connected())
                    slot.clear();
                (*handler)(std::move(value));
            });
        });
    };
}

} // namespace mms
