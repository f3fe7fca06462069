// SPDX-License-Identifier: Apache-2.0
// Shared by the sources that transfer files; not for the folder's users.
#pragma once

#include "acsi/files.h"
#include "mms/pdu.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>

namespace acsi {

/// A file of this side that a peer fetches: answers the peer's requests for it and knows how far it
/// has come. Not thread-safe.
class OfferedFile
{
public:
    using Answer = std::variant<mms::ResponseService, mms::ServiceError>;

    /// Gives at most @p blockSize octets at a time.
    OfferedFile(std::string name, FileSource source, std::size_t blockSize);

    /// Nothing for requests that do not concern the file.
    std::optional<Answer> take(const mms::RequestService &request);

    bool wasOpened() const { return m_opened; }
    /// The peer got everything, from the beginning to the end.
    bool isComplete() const { return m_complete && m_given >= m_source.size && !m_error; }
    /// How far the peer has read without a gap from the beginning, in octets.
    std::uint64_t given() const { return m_given; }
    std::uint32_t size() const { return m_source.size; }
    /// Why the file could not be read here.
    const std::optional<mms::Error> &error() const { return m_error; }

private:
    std::optional<Answer> answer(const mms::FileOpenRequest &request);
    std::optional<Answer> answer(const mms::FileReadRequest &request);
    std::optional<Answer> answer(const mms::FileCloseRequest &request);
    template <typename Request>
    std::optional<Answer> answer(const Request &)
    {
        return std::nullopt;
    }
    Answer fail(mms::Error error);

    std::string m_name;
    FileSource m_source;
    std::size_t m_blockSize;
    /// Where each open file is being read.
    std::map<std::int32_t, std::uint64_t> m_positions;
    std::uint64_t m_given = 0;
    bool m_opened = false;
    bool m_complete = false;
    std::optional<mms::Error> m_error;
};

} // namespace acsi
