// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/fileservice.h"
#include "simulator/oddities.h"

#include "mms/vocabulary.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace sim {

class FileUpload;

/// Which files are served, and which habits of real devices are imitated.
struct FileOptions
{
    std::filesystem::path directory;
    /// Files that one client may have open, or fetched from it, at the same time.
    std::size_t maxOpen = 5;
    /// A listing has all files below a directory, and no directories.
    bool flatListing = false;
    /// A name of several parts is refused; one part may have slashes in it.
    bool onePartNames = false;
    /// A file is not fetched from a client when one of its name exists; otherwise it is replaced.
    bool keepExisting = false;
    /// Of a file that is fetched from a client, in octets; what the protocol can tell at most.
    std::uint64_t maxFileSize = 0xFFFFFFFF;
    /// Nothing can be changed.
    bool readOnly = false;
    /// For each answer of a client that a file is fetched from.
    std::chrono::milliseconds callTimeout{10000};
    /// Those of files.
    Oddities oddities;
};

/// Serves the files of a directory of this machine. Nothing outside of it can be reached: neither
/// by
/// "..", nor by a symbolic link. Both slashes separate directories, also at the beginning of a
/// name; names in answers are complete, have '/', and end in it for directories.
///
/// A file that is fetched from a client takes its place at once when it is complete; until then,
/// and when that fails, there is the file that was there before, or none.
class DirectoryFiles : public FileService
{
public:
    /// The directory must exist.
    static mms::Result<std::shared_ptr<DirectoryFiles>> create(FileOptions options);
    ~DirectoryFiles() override;

    void open(Peer &client, const mms::FileOpenRequest &request, Answer answer) override;
    void read(Peer &client, const mms::FileReadRequest &request, Answer answer) override;
    void close(Peer &client, const mms::FileCloseRequest &request, Answer answer) override;
    void directory(Peer &client, const mms::FileDirectoryRequest &request, Answer answer) override;
    void remove(Peer &client, const mms::FileDeleteRequest &request, Answer answer) override;
    void rename(Peer &client, const mms::FileRenameRequest &request, Answer answer) override;
    void obtain(Peer &client, const mms::ObtainFileRequest &request, Answer answer) override;
    void closed(Peer &client) override;

private:
    struct Closer
    {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };
    using File = std::unique_ptr<std::FILE, Closer>;

    struct OpenFile
    {
        const Peer *client = nullptr;
        std::filesystem::path path;
        File file;
        std::uint64_t left = 0;
    };

    /// A file of the directory: its name with '/' and where it is.
    struct Place
    {
        std::string name;
        std::filesystem::path path;
    };

    explicit DirectoryFiles(FileOptions options);

    std::optional<std::string> cleanName(const mms::FileName &name) const;
    /// The place of a name, or why there can be none.
    std::variant<Place, mms::ServiceError> placeOf(const mms::FileName &name) const;
    bool isInside(const std::filesystem::path &path) const;
    bool isBusy(const std::filesystem::path &path) const;
    std::size_t openFilesOf(const Peer &client) const;
    std::optional<mms::FileAttributes> attributesOf(const std::filesystem::path &path) const;
    /// Complete names of what a listing has, sorted.
    std::set<std::string> namesBelow(const Place &place) const;
    std::filesystem::path temporaryPath();

    FileOptions m_options;
    /// Another service may serve the same directory.
    std::uint64_t m_token;
    std::map<std::int32_t, OpenFile> m_open;
    std::int32_t m_lastId = 0;
    std::uint64_t m_lastTemporary = 0;
    std::set<std::shared_ptr<FileUpload>> m_uploads;
    bool m_lastPageWasEmpty = false;
};

} // namespace sim
