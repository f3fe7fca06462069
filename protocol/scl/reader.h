// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "scl/model.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace scl {

/// What a reader accepts, and how it is watched. The limits keep a hostile or broken file from
/// using up memory or time; every file of a real project is far below them.
struct ReadOptions
{
    std::uint64_t maxBytes = std::uint64_t{512} * 1024 * 1024;
    std::uint32_t maxElementDepth = 128;
    /// Levels of data below a logical node; an array counts two.
    std::uint16_t maxDataDepth = 30;
    /// Nodes of data of one IED, array elements one by one.
    std::uint64_t maxDataNodes = 8'000'000;
    std::size_t maxFindings = 10'000;

    /// Looked at every few milliseconds; may be set from another thread.
    const std::atomic<bool> *cancelled = nullptr;
    /// Called in the reading thread with 0 … 1, never decreasing.
    std::function<void(double)> progress;
};

enum class ReadError : std::uint8_t {
    None,
    CannotRead,    ///< the file cannot be opened or read
    NotWellFormed, ///< not XML, or XML that uses what is refused (entities)
    NotScl,        ///< XML of another kind
    TooLarge,      ///< a limit of the options is exceeded
    Cancelled
};

/// Either a document or an error, never both.
struct ReadResult
{
    std::unique_ptr<Document> document;
    ReadError error = ReadError::None;
    wording::Text errorText;     ///< one sentence, empty without an error
    std::uint32_t errorLine = 0; ///< 0 when the error belongs to no line
};

/// Reads a file. Thread-safe; throws nothing.
ReadResult readFile(const std::string &path, const ReadOptions &options = {});

/// Reads the bytes of a file. @p bytes need to live only during the call.
ReadResult readBytes(std::string_view bytes, const ReadOptions &options = {});

} // namespace scl
