// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/applicationreference.h"
#include "mms/vocabulary.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// Files: what mms/pduservices.h says of its structs holds here as well.

namespace mms {

/// The parts of the name of a file; most devices use one part with slashes in it.
using FileName = std::vector<std::string>;

struct FileAttributes
{
    /// Octets.
    std::uint32_t size = 0;
    /// Generalized time as text, such as "20210304050607.123Z".
    std::optional<std::string> lastModified;

    friend bool operator==(const FileAttributes &, const FileAttributes &) = default;
};

struct DirectoryEntry
{
    FileName name;
    FileAttributes attributes;

    friend bool operator==(const DirectoryEntry &, const DirectoryEntry &) = default;
};

/// Asks the other side to fetch a file from here, or from another server.
struct ObtainFileRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(46);

    /// Absent when the other side shall fetch it from the caller.
    std::optional<ApplicationReference> sourceServer;
    FileName source;
    FileName destination;

    static ObtainFileRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const ObtainFileRequest &, const ObtainFileRequest &) = default;
};

/// The file was fetched.
struct ObtainFileResponse
{
    static constexpr ber::Tag tag = ber::Tag::context(46);

    static ObtainFileResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const ObtainFileResponse &, const ObtainFileResponse &) = default;
};

/// Opens a file for reading.
struct FileOpenRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(72);

    FileName name;
    /// Octets to skip.
    std::uint32_t position = 0;

    static FileOpenRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const FileOpenRequest &, const FileOpenRequest &) = default;
};

/// The file is open.
struct FileOpenResponse
{
    static constexpr ber::Tag tag = ber::Tag::group(72);

    /// What the other file services call the open file.
    std::int32_t frsmId = 0;
    FileAttributes attributes;

    static FileOpenResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const FileOpenResponse &, const FileOpenResponse &) = default;
};

/// Asks for the next octets of an open file.
struct FileReadRequest
{
    static constexpr ber::Tag tag = ber::Tag::context(73);

    std::int32_t frsmId = 0;

    static FileReadRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const FileReadRequest &, const FileReadRequest &) = default;
};

/// The next octets of an open file.
struct FileReadResponse
{
    static constexpr ber::Tag tag = ber::Tag::group(73);

    std::vector<std::uint8_t> data;
    /// True as well when the device does not say.
    bool moreFollows = true;

    static FileReadResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const FileReadResponse &, const FileReadResponse &) = default;
};

/// Closes a file.
struct FileCloseRequest
{
    static constexpr ber::Tag tag = ber::Tag::context(74);

    std::int32_t frsmId = 0;

    static FileCloseRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const FileCloseRequest &, const FileCloseRequest &) = default;
};

/// The file is closed.
struct FileCloseResponse
{
    static constexpr ber::Tag tag = ber::Tag::context(74);

    static FileCloseResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const FileCloseResponse &, const FileCloseResponse &) = default;
};

/// Gives a file another name.
struct FileRenameRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(75);

    FileName currentName;
    FileName newName;

    static FileRenameRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const FileRenameRequest &, const FileRenameRequest &) = default;
};

/// The file has its new name.
struct FileRenameResponse
{
    static constexpr ber::Tag tag = ber::Tag::context(75);

    static FileRenameResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const FileRenameResponse &, const FileRenameResponse &) = default;
};

/// Deletes a file.
struct FileDeleteRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(76);

    FileName name;

    static FileDeleteRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const FileDeleteRequest &, const FileDeleteRequest &) = default;
};

/// The file is deleted.
struct FileDeleteResponse
{
    static constexpr ber::Tag tag = ber::Tag::context(76);

    static FileDeleteResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const FileDeleteResponse &, const FileDeleteResponse &) = default;
};

/// Asks for the files that a specification matches.
struct FileDirectoryRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(77);

    /// Absent for all files.
    std::optional<FileName> specification;
    /// The last file of the page before.
    std::optional<FileName> continueAfter;

    static FileDirectoryRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const FileDirectoryRequest &, const FileDirectoryRequest &) = default;
};

/// One page of files.
struct FileDirectoryResponse
{
    static constexpr ber::Tag tag = ber::Tag::group(77);

    std::vector<DirectoryEntry> entries;
    bool moreFollows = false;

    static FileDirectoryResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const FileDirectoryResponse &, const FileDirectoryResponse &) = default;
};

} // namespace mms
