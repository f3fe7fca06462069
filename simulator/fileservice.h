// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/peer.h"

#include <functional>
#include <variant>

namespace sim {

/// Serves the files of a device. Every member is called in the device's strand; each request is
/// answered once by calling @a answer there, now or later. After closed() nothing is answered to
/// that client any more.
class FileService
{
public:
    using Answer = std::function<void(std::variant<mms::ResponseService, mms::ServiceError>)>;

    virtual ~FileService() = default;

    virtual void open(Peer &client, const mms::FileOpenRequest &request, Answer answer) = 0;
    virtual void read(Peer &client, const mms::FileReadRequest &request, Answer answer) = 0;
    virtual void close(Peer &client, const mms::FileCloseRequest &request, Answer answer) = 0;
    virtual void directory(Peer &client, const mms::FileDirectoryRequest &request,
                           Answer answer) = 0;
    virtual void remove(Peer &client, const mms::FileDeleteRequest &request, Answer answer) = 0;
    virtual void rename(Peer &client, const mms::FileRenameRequest &request, Answer answer) = 0;
    /// Fetch a file from the client with Peer::call().
    virtual void obtain(Peer &client, const mms::ObtainFileRequest &request, Answer answer) = 0;
    /// The client has left: its files are closed.
    virtual void closed(Peer &client) = 0;
};

} // namespace sim
