// SPDX-License-Identifier: Apache-2.0
#include "mms/pdufiles.h"

#include "mms/codec.h"
#include "mms/datatext.h"

namespace mms {

using ber::Element;
using ber::Reader;
using ber::Tag;
using ber::Writer;

namespace {

FileName readFileName(Reader reader)
{
    FileName name;
    name.reserve(reader.countRest());
    while (!reader.atEnd())
        name.push_back(reader.text(reader.expect(ber::tags::graphicString, "FileName")));
    return name;
}

void writeFileName(Writer &writer, const FileName &name)
{
    for (auto part = name.rbegin(); part != name.rend(); ++part)
        writer.text(ber::tags::graphicString, *part);
}

void writeFileName(Writer &writer, Tag tag, const FileName &name)
{
    const std::size_t mark = writer.size();
    writeFileName(writer, name);
    writer.close(tag, mark);
}

std::string fileText(const FileName &name)
{
    return codec::joined(name, quoted);
}

FileAttributes readAttributes(Reader reader)
{
    FileAttributes attributes;
    attributes.size = reader.unsigned32(reader.expect(Tag::context(0), "sizeOfFile"));
    Element time;
    if (reader.takeIf(Tag::context(1), time))
        attributes.lastModified = reader.text(time);
    reader.expectEnd("FileAttributes");
    return attributes;
}

void writeAttributes(Writer &writer, const FileAttributes &attributes)
{
    const std::size_t mark = writer.size();
    if (attributes.lastModified)
        writer.text(Tag::context(1), *attributes.lastModified);
    writer.unsignedInteger(Tag::context(0), attributes.size);
    writer.close(Tag::group(1), mark);
}

std::string attributesText(const FileAttributes &attributes)
{
    std::string result = std::to_string(attributes.size) + " octets";
    if (attributes.lastModified)
        result += ", modified " + quoted(*attributes.lastModified);
    return result;
}

DirectoryEntry readDirectoryEntry(Reader &list)
{
    Reader reader = list.expectGroup(ber::tags::sequence, "DirectoryEntry");
    DirectoryEntry entry;
    entry.name = readFileName(reader.expectGroup(Tag::group(0), "filename"));
    entry.attributes = readAttributes(reader.expectGroup(Tag::group(1), "fileAttributes"));
    reader.expectEnd("DirectoryEntry");
    return entry;
}

} // namespace

ObtainFileRequest ObtainFileRequest::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    ObtainFileRequest request;
    Element server;
    // Where no server is named, [0] is absent, and the first name has the tag [1].
    if (reader.takeIf(Tag::group(0), server))
        request.sourceServer = ApplicationReference{reader.octets(server)};
    request.source = readFileName(reader.expectGroup(Tag::group(1), "sourceFile"));
    request.destination = readFileName(reader.expectGroup(Tag::group(2), "destinationFile"));
    reader.expectEnd("ConfirmedServiceRequest");
    return request;
}

void ObtainFileRequest::write(Writer &writer) const
{
    writeFileName(writer, Tag::group(2), destination);
    writeFileName(writer, Tag::group(1), source);
    if (sourceServer)
        writer.element(Tag::group(0), sourceServer->content);
}

std::string ObtainFileRequest::text() const
{
    return fileText(source) + " to " + fileText(destination) +
           (sourceServer ? " from another server" : "");
}

FileOpenRequest FileOpenRequest::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    FileOpenRequest request;
    request.name = readFileName(reader.expectGroup(Tag::group(0), "fileName"));
    request.position = reader.unsigned32(reader.expect(Tag::context(1), "initialPosition"));
    reader.expectEnd("ConfirmedServiceRequest");
    return request;
}

void FileOpenRequest::write(Writer &writer) const
{
    writer.unsignedInteger(Tag::context(1), position);
    writeFileName(writer, Tag::group(0), name);
}

std::string FileOpenRequest::text() const
{
    return fileText(name) + " at " + std::to_string(position);
}

FileOpenResponse FileOpenResponse::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    FileOpenResponse response;
    response.frsmId = reader.integer32(reader.expect(Tag::context(0), "frsmID"));
    response.attributes = readAttributes(reader.expectGroup(Tag::group(1), "fileAttributes"));
    reader.expectEnd("ConfirmedServiceResponse");
    return response;
}

void FileOpenResponse::write(Writer &writer) const
{
    writeAttributes(writer, attributes);
    writer.integer(Tag::context(0), frsmId);
}

std::string FileOpenResponse::text() const
{
    return "frsm " + std::to_string(frsmId) + ", " + attributesText(attributes);
}

FileReadRequest FileReadRequest::read(Reader &outer, const Element &element)
{
    return {outer.integer32(element)};
}

FileReadResponse FileReadResponse::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    FileReadResponse response;
    response.data = reader.octets(reader.expect(Tag::context(0), "fileData"));
    Element more;
    if (reader.takeIf(Tag::context(1), more))
        response.moreFollows = reader.boolean(more);
    reader.expectEnd("ConfirmedServiceResponse");
    return response;
}

void FileReadResponse::write(Writer &writer) const
{
    writer.boolean(Tag::context(1), moreFollows);
    writer.element(Tag::context(0), data);
}

std::string FileReadResponse::text() const
{
    return std::to_string(data.size()) + " octets, more follows " +
           (moreFollows ? "true" : "false");
}

FileCloseRequest FileCloseRequest::read(Reader &outer, const Element &element)
{
    return {outer.integer32(element)};
}

FileRenameRequest FileRenameRequest::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    FileRenameRequest request;
    request.currentName = readFileName(reader.expectGroup(Tag::group(0), "fileName"));
    request.newName = readFileName(reader.expectGroup(Tag::group(1), "newFileName"));
    reader.expectEnd("ConfirmedServiceRequest");
    return request;
}

void FileRenameRequest::write(Writer &writer) const
{
    writeFileName(writer, Tag::group(1), newName);
    writeFileName(writer, Tag::group(0), currentName);
}

std::string FileRenameRequest::text() const
{
    return fileText(currentName) + " to " + fileText(newName);
}

FileDeleteRequest FileDeleteRequest::read(Reader &outer, const Element &element)
{
    return {readFileName(outer.enter(element))};
}

void FileDeleteRequest::write(Writer &writer) const
{
    writeFileName(writer, name);
}

std::string FileDeleteRequest::text() const
{
    return fileText(name);
}

FileDirectoryRequest FileDirectoryRequest::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    FileDirectoryRequest request;
    Element name;
    if (reader.takeIf(Tag::group(0), name))
        request.specification = readFileName(reader.enter(name));
    if (reader.takeIf(Tag::group(1), name))
        request.continueAfter = readFileName(reader.enter(name));
    reader.expectEnd("ConfirmedServiceRequest");
    return request;
}

void FileDirectoryRequest::write(Writer &writer) const
{
    if (continueAfter)
        writeFileName(writer, Tag::group(1), *continueAfter);
    if (specification)
        writeFileName(writer, Tag::group(0), *specification);
}

std::string FileDirectoryRequest::text() const
{
    return (specification ? fileText(*specification) : std::string("all")) +
           (continueAfter ? " after " + fileText(*continueAfter) : std::string());
}

FileDirectoryResponse FileDirectoryResponse::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    FileDirectoryResponse response;
    Reader tagged = reader.expectGroup(Tag::group(0), "listOfDirectoryEntry");
    // Peers disagree on whether the list's own tag stands inside [0]: an entry begins with [0].
    Reader list = tagged;
    Element element0;
    if (list.takeIf(ber::tags::sequence, element0)) {
        Reader inside = tagged.enter(element0);
        if (inside.peek() != Tag::group(0)) {
            list.expectEnd("listOfDirectoryEntry");
            list = inside;
        } else {
            list = tagged;
        }
    }
    response.entries.reserve(list.countRest());
    while (!list.atEnd())
        response.entries.push_back(readDirectoryEntry(list));
    Element more;
    if (reader.takeIf(Tag::context(1), more))
        response.moreFollows = reader.boolean(more);
    reader.expectEnd("ConfirmedServiceResponse");
    return response;
}

void FileDirectoryResponse::write(Writer &writer) const
{
    if (moreFollows)
        writer.boolean(Tag::context(1), true);
    const std::size_t mark = writer.size();
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
        const std::size_t entryMark = writer.size();
        writeAttributes(writer, entry->attributes);
        writeFileName(writer, Tag::group(0), entry->name);
        writer.close(ber::tags::sequence, entryMark);
    }
    writer.close(ber::tags::sequence, mark);
    writer.close(Tag::group(0), mark);
}

std::string FileDirectoryResponse::text() const
{
    return '{' +
           codec::joined(entries,
                         [](const DirectoryEntry &entry) {
                             return fileText(entry.name) + " (" + attributesText(entry.attributes) +
                                    ')';
                         }) +
           "}, more follows " + (moreFollows ? "true" : "false");
}

ObtainFileResponse ObtainFileResponse::read(Reader &outer, const Element &element)
{
    outer.null(element);
    return {};
}

void ObtainFileResponse::write(Writer &) const {}

std::string ObtainFileResponse::text() const
{
    return {};
}

FileCloseResponse FileCloseResponse::read(Reader &outer, const Element &element)
{
    outer.null(element);
    return {};
}

void FileCloseResponse::write(Writer &) const {}

std::string FileCloseResponse::text() const
{
    return {};
}

FileRenameResponse FileRenameResponse::read(Reader &outer, const Element &element)
{
    outer.null(element);
    return {};
}

void FileRenameResponse::write(Writer &) const {}

std::string FileRenameResponse::text() const
{
    return {};
}

FileDeleteResponse FileDeleteResponse::read(Reader &outer, const Element &element)
{
    outer.null(element);
    return {};
}

void FileDeleteResponse::write(Writer &) const {}

std::string FileDeleteResponse::text() const
{
    return {};
}

void FileReadRequest::write(Writer &writer) const
{
    writer.integerContent(frsmId);
}

std::string FileReadRequest::text() const
{
    return "frsm " + std::to_string(frsmId);
}

void FileCloseRequest::write(Writer &writer) const
{
    writer.integerContent(frsmId);
}

std::string FileCloseRequest::text() const
{
    return "frsm " + std::to_string(frsmId);
}

} // namespace mms
