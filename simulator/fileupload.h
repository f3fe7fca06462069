// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/fileservice.h"

#include "mms/association.h"
#include "mms/pdu.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

namespace sim {

/// A file on its way from a client, which is asked for it piece by piece. What came is kept in a
/// temporary file that takes its place at once when it is complete, and goes otherwise. The
/// client's answers keep the upload alive; in the client's strand.
class FileUpload : public std::enable_shared_from_this<FileUpload>
{
public:
    struct Limits
    {
        std::chrono::milliseconds callTimeout{0}; ///< for each answer of the client
        std::uint64_t size = 0;                   ///< octets that the file may have
    };
    /// How it ended: an error, or none. Not called after abandon().
    using Handler = std::function<void(const std::optional<mms::ServiceError> &error)>;

    /// @param client not owned; abandon() when it goes
    /// @param path where the file shall be
    /// @param temporary beside it, in the same file system
    FileUpload(Peer &client, Limits limits, std::filesystem::path path,
               std::filesystem::path temporary, Handler ended);
    ~FileUpload();
    FileUpload(const FileUpload &) = delete;
    FileUpload &operator=(const FileUpload &) = delete;

    const Peer *client() const { return m_client; }
    const std::filesystem::path &path() const { return m_path; }

    /// @param source what the client calls the file
    void start(const mms::FileName &source);
    /// The client, or who waits for the file, is gone.
    void abandon();

private:
    struct Closer
    {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };

    void call(mms::RequestService request, std::function<void(const mms::CallOutcome &)> handler);
    void readNext();
    std::optional<mms::ServiceError> takePlace();
    void closeAndEnd(std::optional<mms::ServiceError> error);
    void end(const std::optional<mms::ServiceError> &error);
    void discard();

    Peer *m_client;
    const Limits m_limits;
    const std::filesystem::path m_path;
    std::filesystem::path m_temporary;
    Handler m_ended;
    std::unique_ptr<std::FILE, Closer> m_file;
    std::optional<std::int32_t> m_frsmId;
    std::uint64_t m_size = 0;
};

} // namespace sim
