// SPDX-License-Identifier: Apache-2.0
#include "simulator/fileupload.h"

#include "simulator/fileerrors.h"

#include <utility>

namespace sim {

namespace fs = std::filesystem;

namespace {

mms::ServiceError errorOf(const mms::CallOutcome &outcome)
{
    if (const auto *error = std::get_if<mms::ServiceError>(&outcome))
        return *error;
    return fileError(0, mms::failureText(outcome).english());
}

} // namespace

FileUpload::FileUpload(Peer &client, Limits limits, fs::path path, fs::path temporary,
                       Handler ended)
    : m_client(&client)
    , m_limits(limits)
    , m_path(std::move(path))
    , m_temporary(std::move(temporary))
    , m_ended(std::move(ended))
{
}

FileUpload::~FileUpload()
{
    discard();
}

void FileUpload::start(const mms::FileName &source)
{
    m_file.reset(std::fopen(m_temporary.c_str(), "wb"));
    if (!m_file) {
        end(fileError(lastError()));
        return;
    }
    call(mms::FileOpenRequest{source, 0}, [this](const mms::CallOutcome &outcome) {
        const auto *opened = mms::answerOf<mms::FileOpenResponse>(outcome);
        if (!opened) {
            end(errorOf(outcome));
            return;
        }
        m_frsmId = opened->frsmId;
        readNext();
    });
}

void FileUpload::abandon()
{
    m_client = nullptr;
    m_ended = nullptr;
    discard();
}

void FileUpload::call(mms::RequestService request,
                      std::function<void(const mms::CallOutcome &)> handler)
{
    m_client->call(
        std::move(request), m_limits.callTimeout,
        [self = shared_from_this(), handler = std::move(handler)](const mms::CallOutcome &outcome) {
            if (self->m_client)
                handler(outcome);
        });
}

void FileUpload::readNext()
{
    call(mms::FileReadRequest{*m_frsmId}, [this](const mms::CallOutcome &outcome) {
        const auto *block = mms::answerOf<mms::FileReadResponse>(outcome);
        if (!block) {
            closeAndEnd(errorOf(outcome));
            return;
        }
        m_size += block->data.size();
        if (m_size > m_limits.size) {
            closeAndEnd(fileError(mms::serviceerrors::fileInsufficientSpace));
        } else if (!block->data.empty() && std::fwrite(block->data.data(), 1, block->data.size(),
                                                       m_file.get()) != block->data.size()) {
            closeAndEnd(fileError(lastError()));
        } else if (block->moreFollows && block->data.empty()) {
            closeAndEnd(fileError(0, "the file never ends"));
        } else if (block->moreFollows) {
            readNext();
        } else {
            closeAndEnd(takePlace());
        }
    });
}

std::optional<mms::ServiceError> FileUpload::takePlace()
{
    if (std::fflush(m_file.get()) != 0)
        return fileError(lastError());
    m_file.reset();
    std::error_code error;
    fs::rename(m_temporary, m_path, error);
    if (error)
        return fileError(error);
    m_temporary.clear();
    return std::nullopt;
}

void FileUpload::closeAndEnd(std::optional<mms::ServiceError> error)
{
    // The file stands, or does not, whatever the client says to that.
    call(mms::FileCloseRequest{*m_frsmId},
         [this, error = std::move(error)](const mms::CallOutcome &) { end(error); });
}

void FileUpload::end(const std::optional<mms::ServiceError> &error)
{
    discard();
    const auto self = shared_from_this();
    m_client = nullptr;
    std::exchange(m_ended, nullptr)(error);
}

void FileUpload::discard()
{
    m_file.reset();
    std::error_code ignored;
    if (!m_temporary.empty())
        fs::remove(std::exchange(m_temporary, fs::path()), ignored);
}

} // namespace sim
