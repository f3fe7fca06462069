// SPDX-License-Identifier: Apache-2.0
#include "acsi/offeredfile.h"

#include "acsi/filenames.h"

#include <algorithm>
#include <atomic>
#include <limits>

namespace acsi {

using wording::say;

namespace {

constexpr std::size_t maxOpen = 5;

mms::ServiceError refusal(mms::ErrorClass errorClass, std::int32_t code)
{
    return {errorClass, code, {}, {}, {}};
}

/// Several files may be offered to one peer.
std::int32_t nextFrsmId()
{
    static std::atomic<std::uint32_t> last{0};
    return static_cast<std::int32_t>(++last & 0x7FFFFFFFU);
}

} // namespace

OfferedFile::OfferedFile(std::string name, FileSource source, std::size_t blockSize)
    : m_name(plainName(std::string_view(name)))
    , m_source(std::move(source))
    , m_blockSize(blockSize)
{
}

std::optional<OfferedFile::Answer> OfferedFile::take(const mms::RequestService &request)
{
    return std::visit([this](const auto &each) { return answer(each); }, request);
}

std::optional<OfferedFile::Answer> OfferedFile::answer(const mms::FileOpenRequest &request)
{
    if (plainName(request.name) != m_name)
        return std::nullopt;
    if (m_positions.size() >= maxOpen)
        return refusal(mms::ErrorClass::File, mms::serviceerrors::fileBusy);
    if (request.position > m_source.size)
        return refusal(mms::ErrorClass::File, mms::serviceerrors::filePositionInvalid);
    mms::FileOpenResponse response;
    response.frsmId = nextFrsmId();
    response.attributes.size = m_source.size;
    m_positions[response.frsmId] = request.position;
    m_opened = true;
    return response;
}

OfferedFile::Answer OfferedFile::fail(mms::Error error)
{
    if (!m_error)
        m_error = std::move(error);
    return refusal(mms::ErrorClass::File, mms::serviceerrors::fileAccessDenied);
}

std::optional<OfferedFile::Answer> OfferedFile::answer(const mms::FileReadRequest &request)
{
    const auto found = m_positions.find(request.frsmId);
    if (found == m_positions.end())
        return std::nullopt;
    std::uint64_t &position = found->second;
    const std::uint64_t left = m_source.size - position;
    mms::FileReadResponse response;
    response.data.resize(static_cast<std::size_t>(std::min<std::uint64_t>(left, m_blockSize)));
    if (!response.data.empty()) {
        const auto count = m_source.read(position, response.data);
        if (!count)
            return fail(count.error());
        if (*count != response.data.size())
            return fail({say("The file became shorter while it was read."), 0});
    }
    // What is read behind a gap does not count.
    if (position <= m_given)
        m_given = std::max(m_given, position + response.data.size());
    position += response.data.size();
    response.moreFollows = position < m_source.size;
    if (!response.moreFollows)
        m_complete = true;
    return response;
}

std::optional<OfferedFile::Answer> OfferedFile::answer(const mms::FileCloseRequest &request)
{
    if (m_positions.erase(request.frsmId) == 0)
        return std::nullopt;
    return mms::FileCloseResponse{};
}

} // namespace acsi
