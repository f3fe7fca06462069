// SPDX-License-Identifier: Apache-2.0
#pragma once

/// For hosts: which middleware carries the events of this process. Plug-ins and drivers use
/// tavrix.h alone and pass no address.
///
/// An address is a scheme, or a scheme, a colon and what the scheme makes of the rest, in at most
/// `maxNameLength` bytes. The boxes inside this process have no address; they are chosen until the
/// host chooses otherwise. An empty address or domain is as none.
///
/// Both functions may be called from any thread at any time.

#include "eventbackend.h"
#include "tavrixglobal.h"

#include <functional>
#include <memory>
#include <string>

namespace Tavrix {

/// Makes the middleware of an address. Called at the first use of an address and domain, in the
/// thread that uses it, while nobody else can find any middleware: it neither waits nor calls the
/// functions of tavrix.h and of this file. What it made lives as long as the process.
/// @param address  with its scheme
/// @param domain  empty for none
/// @return null when the two mean nothing to it; it is asked again at their next use.
using BackendFactory = std::function<std::shared_ptr<EventBackend>(const std::string &address,
                                                                   const std::string &domain)>;

/// Make the addresses of a scheme known, for the life of the process.
/// @return Success; InvalidArgument without a factory, for a scheme that is known already, is
///         empty, holds a colon or is too long.
TAVRIX_EXPORT int RegisterMiddleware(const char *scheme, BackendFactory factory);

/// Choose what the functions of tavrix.h use when they are given no address; null is the boxes
/// inside this process. Ports that are open stay with the middleware that they were opened on.
/// A host that chooses does so before it loads a driver or a plug-in.
/// @return Success; MiddlewareUnavailable for an address that nobody knows, and the choice stays.
TAVRIX_EXPORT int ChooseMiddleware(const char *address, const char *domain = nullptr);

} // namespace Tavrix
