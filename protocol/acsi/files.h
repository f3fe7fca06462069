// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/client.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace acsi {

/// A file or directory of a server.
struct FileEntry
{
    /// Below the directory that was listed; a directory ends in '/'. Separators are '/' whatever
    /// the peer sends.
    std::string name;
    std::uint32_t size = 0; ///< octets
    /// UTC, "20210304050607.123Z" as the standard writes it; empty when the server does not say.
    std::string lastModified;

    bool isDirectory() const { return !name.empty() && name.back() == '/'; }
};

/// One level of a directory ("" is the root), also from peers that answer with a flat list of
/// everything below, with other separators, or with full paths. Page after page.
asio::awaitable<mms::Result<std::vector<FileEntry>>> listDirectory(std::shared_ptr<Client> client,
                                                                   std::string directory);

/// Reads a file in blocks; @p sink gets them in order and returns false to stop. The file of the
/// peer is closed in every case. Opens the name as given, then with and without a leading
/// separator, then with backslashes. Reports the size that the peer announces first. Gives the
/// octets that were read; fewer than announced are an error. Up to
/// ClientOptions::outstandingFileReads blocks are asked for at a time. @p notClosed hears why the
/// peer refused to close the file.
asio::awaitable<mms::Result<std::uint64_t>>
download(std::shared_ptr<Client> client, std::string name,
         std::function<bool(std::span<const std::uint8_t> block)> sink,
         std::function<void(std::uint32_t size)> announced = {},
         std::function<void(const mms::Text &reason)> notClosed = {});

/// A file that this side offers. read() fills @p block from @p position, never beyond the size, and
/// answers how many octets it gave, or an error; fewer than asked for are an error as well. It is
/// called in the client's strand, for positions that grow, but from the beginning again when the
/// peer opens the file again.
struct FileSource
{
    std::uint32_t size = 0; ///< octets
    std::function<mms::Result<std::size_t>(std::uint64_t position, std::span<std::uint8_t> block)>
        read;
};

/// Has the peer fetch a file from here (ObtainFile) and answers its FileOpen, FileRead and
/// FileClose meanwhile. It may take as long as the peer goes on fetching; it ends when the peer is
/// silent for ClientOptions::callTimeout.
///
/// An existing file is replaced by way of another name (".upload" behind it), so that one of the
/// two versions is whole at any time: the new one is renamed, or fetched once more where the peer
/// cannot rename. A file that has that other name already is not touched: nothing is done then. A
/// peer that takes no other name replaces the file in place; where it refuses that because the file
/// exists, the old file is deleted first. A half file is deleted where the peer refused the rest of
/// it, never after a request without an answer. The error says what is left, or what is not known
/// and which names to look at.
asio::awaitable<mms::Result<void>> upload(std::shared_ptr<ChangingClient> client, std::string name,
                                          FileSource source);

asio::awaitable<mms::Result<void>> deleteFile(std::shared_ptr<ChangingClient> client,
                                              std::string name);

} // namespace acsi
