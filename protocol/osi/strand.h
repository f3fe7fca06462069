// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <asio/any_io_executor.hpp>
#include <asio/io_context.hpp>
#include <asio/strand.hpp>

#include <typeinfo>

namespace osi {

/// Runs the handlers of an association or a device one at a time. Of the execution context's own
/// executor: one of any executor asks that by way of the heap, a dozen times for each handler.
using Strand = asio::strand<asio::io_context::executor_type>;

/// The executor itself where it is such a strand: one in another costs each handler two turns.
/// Otherwise a new strand in the executor's context, which has to be an asio::io_context.
inline Strand strandOn(const asio::any_io_executor &executor)
{
    // target() believes what it is asked for.
    if (executor.target_type() == typeid(Strand))
        return *executor.target<Strand>();
    auto &context = asio::query(executor, asio::execution::context);
    return asio::make_strand(static_cast<asio::io_context &>(context));
}

} // namespace osi
