// SPDX-License-Identifier: Apache-2.0
#include "mms/pduservices.h"

#include "mms/codec.h"
#include "mms/datacodec.h"
#include "mms/datatext.h"

namespace mms {

using ber::Element;
using ber::Reader;
using ber::Tag;
using ber::Writer;

namespace {

std::string resultsText(const std::vector<AccessResult> &results)
{
    return codec::joined(results, [](const AccessResult &result) { return toText(result); });
}

void writeResults(Writer &writer, Tag tag, const std::vector<AccessResult> &results)
{
    const std::size_t mark = writer.size();
    for (auto result = results.rbegin(); result != results.rend(); ++result)
        DataCodec::write(writer, *result);
    writer.close(tag, mark);
}

std::vector<AccessResult> readResults(Reader &reader, Tag tag)
{
    Reader list = reader.expectGroup(tag, "listOfAccessResult");
    return DataCodec::readResults(list);
}

} // namespace

StatusRequest StatusRequest::read(Reader &outer, const Element &element)
{
    return {outer.boolean(element)};
}

void StatusRequest::write(Writer &writer) const
{
    writer.octet(extendedDerivation ? 0xFF : 0x00);
}

std::string StatusRequest::text() const
{
    return codec::yesNo("extended derivation", extendedDerivation);
}

StatusResponse StatusResponse::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    StatusResponse response;
    response.logicalStatus = reader.integer32(reader.expect(Tag::context(0), "vmdLogicalStatus"));
    response.physicalStatus = reader.integer32(reader.expect(Tag::context(1), "vmdPhysicalStatus"));
    Element detail;
    if (reader.takeIf(Tag::context(2), detail))
        response.localDetail = reader.bitString(detail);
    reader.expectEnd("Status-Response");
    return response;
}

void StatusResponse::write(Writer &writer) const
{
    if (localDetail)
        writer.bitString(Tag::context(2), *localDetail);
    writer.integer(Tag::context(1), physicalStatus);
    writer.integer(Tag::context(0), logicalStatus);
}

std::string StatusResponse::text() const
{
    std::string result = "logical status " + std::to_string(logicalStatus) + ", physical status " +
                         std::to_string(physicalStatus);
    if (localDetail)
        result += ", local detail '" + localDetail->toText() + "'B";
    return result;
}

IdentifyRequest IdentifyRequest::read(Reader &outer, const Element &element)
{
    outer.null(element);
    return {};
}

void IdentifyRequest::write(Writer &) const {}

std::string IdentifyRequest::text() const
{
    return {};
}

IdentifyResponse IdentifyResponse::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    IdentifyResponse response;
    response.vendor = reader.text(reader.expect(Tag::context(0), "vendorName"));
    response.model = reader.text(reader.expect(Tag::context(1), "modelName"));
    response.revision = reader.text(reader.expect(Tag::context(2), "revision"));
    Element syntaxes;
    if (reader.takeIf(Tag::group(3), syntaxes)) {
        Reader list = reader.enter(syntaxes);
        response.abstractSyntaxes.reserve(list.countRest());
        while (!list.atEnd())
            response.abstractSyntaxes.push_back(list.objectIdentifier(
                list.expect(ber::tags::objectIdentifier, "listOfAbstractSyntaxes")));
    }
    reader.expectEnd("Identify-Response");
    return response;
}

void IdentifyResponse::write(Writer &writer) const
{
    if (!abstractSyntaxes.empty()) {
        const std::size_t mark = writer.size();
        for (auto syntax = abstractSyntaxes.rbegin(); syntax != abstractSyntaxes.rend(); ++syntax)
            writer.objectIdentifier(ber::tags::objectIdentifier, *syntax);
        writer.close(Tag::group(3), mark);
    }
    writer.text(Tag::context(2), revision);
    writer.text(Tag::context(1), model);
    writer.text(Tag::context(0), vendor);
}

std::string IdentifyResponse::text() const
{
    std::string result =
        "vendor " + quoted(vendor) + ", model " + quoted(model) + ", revision " + quoted(revision);
    for (const auto &syntax : abstractSyntaxes)
        result += ", syntax " + toText(Data::objectIdentifier(syntax));
    return result;
}

GetNameListRequest GetNameListRequest::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    GetNameListRequest request;
    Reader classReader = reader.expectGroup(Tag::group(0), "objectClass");
    request.objectClass = static_cast<ObjectClass>(
        classReader.integer32(classReader.expect(Tag::context(0), "objectClass")));
    classReader.expectEnd("objectClass");
    Reader scopeReader = reader.expectGroup(Tag::group(1), "objectScope");
    Element choice;
    if (scopeReader.takeIf(Tag::context(0), choice)) {
        request.scope = Scope::Vmd;
        scopeReader.null(choice);
    } else if (scopeReader.takeIf(Tag::context(1), choice)) {
        request.scope = Scope::Domain;
        request.domain = scopeReader.text(choice);
    } else if (scopeReader.takeIf(Tag::context(2), choice)) {
        request.scope = Scope::Association;
        scopeReader.null(choice);
    } else {
        scopeReader.fail(say("The element %1 is missing or of an unknown kind.", "objectScope"));
    }
    scopeReader.expectEnd("objectScope");
    if (reader.takeIf(Tag::context(2), choice))
        request.continueAfter = reader.text(choice);
    reader.expectEnd("ConfirmedServiceRequest");
    return request;
}

void GetNameListRequest::write(Writer &writer) const
{
    if (continueAfter)
        writer.text(Tag::context(2), *continueAfter);
    std::size_t mark = writer.size();
    if (scope == Scope::Domain)
        writer.text(Tag::context(1), domain);
    else
        writer.null(Tag::context(scope == Scope::Vmd ? 0 : 2));
    writer.close(Tag::group(1), mark);
    mark = writer.size();
    writer.integer(Tag::context(0), static_cast<std::int32_t>(objectClass));
    writer.close(Tag::group(0), mark);
}

std::string GetNameListRequest::text() const
{
    std::string result = toText(objectClass);
    if (scope == Scope::Domain)
        result += " of domain " + quoted(domain);
    else
        result += scope == Scope::Vmd ? " of the VMD" : " of the association";
    if (continueAfter)
        result += " after " + quoted(*continueAfter);
    return result;
}

GetNameListResponse GetNameListResponse::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    GetNameListResponse response;
    Reader list = reader.expectGroup(Tag::group(0), "listOfIdentifier");
    response.names.reserve(list.countRest());
    while (!list.atEnd())
        response.names.push_back(list.text(list.expect(ber::tags::visibleString, "Identifier")));
    Element more;
    if (reader.takeIf(Tag::context(1), more))
        response.moreFollows = reader.boolean(more);
    reader.expectEnd("GetNameList-Response");
    return response;
}

void GetNameListResponse::write(Writer &writer) const
{
    writer.boolean(Tag::context(1), moreFollows);
    const std::size_t mark = writer.size();
    for (auto name = names.rbegin(); name != names.rend(); ++name)
        writer.text(ber::tags::visibleString, *name);
    writer.close(Tag::group(0), mark);
}

std::string GetNameListResponse::text() const
{
    return '{' + codec::joined(names, [](const std::string &name) { return quoted(name); }) +
           "}, " + codec::yesNo("more follows", moreFollows);
}

GetVariableAccessAttributesRequest GetVariableAccessAttributesRequest::read(Reader &outer,
                                                                            const Element &element)
{
    Reader reader = outer.enter(element);
    GetVariableAccessAttributesRequest request;
    Element address;
    if (reader.takeIf(Tag::group(1), address)) {
        Reader inner = reader.enter(address);
        request.variable = codec::readAddress(inner);
        inner.expectEnd("Address");
    } else {
        request.variable = codec::readObjectName(reader, Tag::group(0), "name");
    }
    reader.expectEnd("ConfirmedServiceRequest");
    return request;
}

void GetVariableAccessAttributesRequest::write(Writer &writer) const
{
    const std::size_t mark = writer.size();
    if (const auto *name = std::get_if<ObjectName>(&variable)) {
        codec::write(writer, Tag::group(0), *name);
    } else {
        codec::write(writer, std::get<Address>(variable));
        writer.close(Tag::group(1), mark);
    }
}

std::string GetVariableAccessAttributesRequest::text() const
{
    return std::visit([](const auto &name) { return toText(name); }, variable);
}

GetVariableAccessAttributesResponse
GetVariableAccessAttributesResponse::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    GetVariableAccessAttributesResponse response;
    response.deletable = reader.boolean(reader.expect(Tag::context(0), "mmsDeletable"));
    Element optional;
    if (reader.takeIf(Tag::group(1), optional)) {
        Reader inner = reader.enter(optional);
        response.address = codec::readAddress(inner);
        inner.expectEnd("Address");
    }
    Reader type = reader.expectGroup(Tag::group(2), "typeDescription");
    response.type = TypeCodec::readNext(type);
    type.expectEnd("typeDescription");
    // The name of an access control list says nothing to a client of IEC 61850.
    reader.takeIf(Tag::context(3), optional);
    reader.expectEnd("GetVariableAccessAttributes-Response");
    return response;
}

void GetVariableAccessAttributesResponse::write(Writer &writer) const
{
    std::size_t mark = writer.size();
    TypeCodec::write(writer, type);
    writer.close(Tag::group(2), mark);
    if (address) {
        mark = writer.size();
        codec::write(writer, *address);
        writer.close(Tag::group(1), mark);
    }
    writer.boolean(Tag::context(0), deletable);
}

std::string GetVariableAccessAttributesResponse::text() const
{
    return codec::yesNo("deletable", deletable) + ", " + (address ? toText(*address) + ", " : "") +
           toText(type);
}

ReadRequest ReadRequest::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    ReadRequest request;
    Element flag;
    if (reader.takeIf(Tag::context(0), flag))
        request.specificationWithResult = reader.boolean(flag);
    Reader inner = reader.expectGroup(Tag::group(1), "variableAccessSpecification");
    request.variables = codec::readVariableAccessSpecification(inner);
    inner.expectEnd("variableAccessSpecification");
    reader.expectEnd("ConfirmedServiceRequest");
    return request;
}

void ReadRequest::write(Writer &writer) const
{
    const std::size_t mark = writer.size();
    codec::write(writer, variables);
    writer.close(Tag::group(1), mark);
    if (specificationWithResult)
        writer.boolean(Tag::context(0), true);
}

std::string ReadRequest::text() const
{
    return toText(variables) + (specificationWithResult ? ", with specification" : "");
}

ReadResponse ReadResponse::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    ReadResponse response;
    Element specification;
    if (reader.takeIf(Tag::group(0), specification)) {
        Reader inner = reader.enter(specification);
        response.variables = codec::readVariableAccessSpecification(inner);
        inner.expectEnd("variableAccessSpecification");
    }
    response.results = readResults(reader, Tag::group(1));
    reader.expectEnd("Read-Response");
    return response;
}

void ReadResponse::write(Writer &writer) const
{
    writeResults(writer, Tag::group(1), results);
    if (variables) {
        const std::size_t mark = writer.size();
        codec::write(writer, *variables);
        writer.close(Tag::group(0), mark);
    }
}

std::string ReadResponse::text() const
{
    return (variables ? toText(*variables) + " = " : std::string()) + resultsText(results);
}

WriteRequest WriteRequest::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    WriteRequest request;
    request.variables = codec::readVariableAccessSpecification(reader);
    Reader values = reader.expectGroup(Tag::group(0), "listOfData");
    request.values = DataCodec::readAll(values);
    reader.expectEnd("ConfirmedServiceRequest");
    return request;
}

void WriteRequest::write(Writer &writer) const
{
    const std::size_t mark = writer.size();
    for (auto value = values.rbegin(); value != values.rend(); ++value)
        DataCodec::write(writer, *value);
    writer.close(Tag::group(0), mark);
    codec::write(writer, variables);
}

std::string WriteRequest::text() const
{
    return toText(variables) + " = " +
           codec::joined(values, [](const Data &value) { return toText(value); });
}

WriteResponse WriteResponse::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    WriteResponse response;
    response.results.reserve(reader.countRest());
    Element result;
    while (!reader.atEnd()) {
        if (reader.takeIf(Tag::context(1), result)) {
            reader.null(result);
            response.results.emplace_back();
        } else {
            response.results.emplace_back(static_cast<DataAccessError>(
                reader.integer32(reader.expect(Tag::context(0), "Write-Response"))));
        }
    }
    return response;
}

void WriteResponse::write(Writer &writer) const
{
    for (auto result = results.rbegin(); result != results.rend(); ++result) {
        if (*result)
            writer.integer(Tag::context(0), static_cast<std::int32_t>(**result));
        else
            writer.null(Tag::context(1));
    }
}

std::string WriteResponse::text() const
{
    return codec::joined(results, [](const std::optional<DataAccessError> &result) {
        return result ? "failure: " + codec::withoutFullStop(describe(*result))
                      : std::string("success");
    });
}

InformationReport InformationReport::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    InformationReport report;
    report.variables = codec::readVariableAccessSpecification(reader);
    report.results = readResults(reader, Tag::group(0));
    reader.expectEnd("InformationReport");
    return report;
}

void InformationReport::write(Writer &writer) const
{
    writeResults(writer, Tag::group(0), results);
    codec::write(writer, variables);
}

std::string InformationReport::text() const
{
    return toText(variables) + " = " + resultsText(results);
}

} // namespace mms
