// SPDX-License-Identifier: Apache-2.0
#include "mms/pdulists.h"

#include "mms/codec.h"
#include "mms/datatext.h"

namespace mms {

using ber::Element;
using ber::Reader;
using ber::Tag;
using ber::Writer;

namespace {

std::string membersText(const std::vector<VariableAccess> &members)
{
    return '{' +
           codec::joined(members, [](const VariableAccess &member) { return toText(member); }) +
           '}';
}

void writeGroup(Writer &writer, Tag tag, const std::vector<VariableAccess> &members)
{
    const std::size_t mark = writer.size();
    codec::write(writer, members);
    writer.close(tag, mark);
}

} // namespace

DefineNamedVariableListRequest DefineNamedVariableListRequest::read(Reader &outer,
                                                                    const Element &element)
{
    Reader reader = outer.enter(element);
    DefineNamedVariableListRequest request;
    request.name = codec::readObjectName(reader);
    request.members = codec::readVariableList(reader.expectGroup(Tag::group(0), "listOfVariable"));
    reader.expectEnd("ConfirmedServiceRequest");
    return request;
}

void DefineNamedVariableListRequest::write(Writer &writer) const
{
    writeGroup(writer, Tag::group(0), members);
    codec::write(writer, name);
}

std::string DefineNamedVariableListRequest::text() const
{
    return toText(name) + " = " + membersText(members);
}

DefineNamedVariableListResponse DefineNamedVariableListResponse::read(Reader &outer,
                                                                      const Element &element)
{
    outer.null(element);
    return {};
}

void DefineNamedVariableListResponse::write(Writer &) const {}

std::string DefineNamedVariableListResponse::text() const
{
    return {};
}

GetNamedVariableListAttributesRequest
GetNamedVariableListAttributesRequest::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    GetNamedVariableListAttributesRequest request{codec::readObjectName(reader)};
    reader.expectEnd("ConfirmedServiceRequest");
    return request;
}

void GetNamedVariableListAttributesRequest::write(Writer &writer) const
{
    codec::write(writer, name);
}

std::string GetNamedVariableListAttributesRequest::text() const
{
    return toText(name);
}

GetNamedVariableListAttributesResponse
GetNamedVariableListAttributesResponse::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    GetNamedVariableListAttributesResponse response;
    response.deletable = reader.boolean(reader.expect(Tag::context(0), "mmsDeletable"));
    response.members = codec::readVariableList(reader.expectGroup(Tag::group(1), "listOfVariable"));
    // The name of an access control list says nothing to a client of IEC 61850.
    Element accessControlList;
    reader.takeIf(Tag::context(2), accessControlList);
    reader.expectEnd("GetNamedVariableListAttributes-Response");
    return response;
}

void GetNamedVariableListAttributesResponse::write(Writer &writer) const
{
    writeGroup(writer, Tag::group(1), members);
    writer.boolean(Tag::context(0), deletable);
}

std::string GetNamedVariableListAttributesResponse::text() const
{
    return codec::yesNo("deletable", deletable) + ", " + membersText(members);
}

DeleteNamedVariableListRequest DeleteNamedVariableListRequest::read(Reader &outer,
                                                                    const Element &element)
{
    Reader reader = outer.enter(element);
    DeleteNamedVariableListRequest request;
    Element optional;
    if (reader.takeIf(Tag::context(0), optional))
        request.scopeOfDelete = reader.integer32(optional);
    if (reader.takeIf(Tag::group(1), optional)) {
        Reader list = reader.enter(optional);
        request.names.reserve(list.countRest());
        while (!list.atEnd())
            request.names.push_back(codec::readObjectName(list));
    }
    if (reader.takeIf(Tag::context(2), optional))
        request.domain = reader.text(optional);
    reader.expectEnd("ConfirmedServiceRequest");
    return request;
}

void DeleteNamedVariableListRequest::write(Writer &writer) const
{
    if (domain)
        writer.text(Tag::context(2), *domain);
    if (!names.empty()) {
        const std::size_t mark = writer.size();
        for (auto name = names.rbegin(); name != names.rend(); ++name)
            codec::write(writer, *name);
        writer.close(Tag::group(1), mark);
    }
    if (scopeOfDelete != 0)
        writer.integer(Tag::context(0), scopeOfDelete);
}

std::string DeleteNamedVariableListRequest::text() const
{
    std::string result = "scope " + std::to_string(scopeOfDelete);
    for (const ObjectName &name : names)
        result += ", " + toText(name);
    if (domain)
        result += ", domain " + quoted(*domain);
    return result;
}

DeleteNamedVariableListResponse DeleteNamedVariableListResponse::read(Reader &outer,
                                                                      const Element &element)
{
    Reader reader = outer.enter(element);
    DeleteNamedVariableListResponse response;
    response.matched = reader.unsigned32(reader.expect(Tag::context(0), "numberMatched"));
    response.deleted = reader.unsigned32(reader.expect(Tag::context(1), "numberDeleted"));
    reader.expectEnd("ConfirmedServiceResponse");
    return response;
}

void DeleteNamedVariableListResponse::write(Writer &writer) const
{
    writer.unsignedInteger(Tag::context(1), deleted);
    writer.unsignedInteger(Tag::context(0), matched);
}

std::string DeleteNamedVariableListResponse::text() const
{
    return std::to_string(matched) + " matched, " + std::to_string(deleted) + " deleted";
}

} // namespace mms
