// SPDX-License-Identifier: Apache-2.0
#include "mms/initiate.h"

#include <limits>

namespace mms {

using ber::Element;
using ber::Reader;
using ber::Tag;
using ber::Writer;

namespace {

std::int16_t integer16(Reader &reader, Tag tag, std::string_view what)
{
    return static_cast<std::int16_t>(reader.integer(reader.expect(tag, what),
                                                    std::numeric_limits<std::int16_t>::min(),
                                                    std::numeric_limits<std::int16_t>::max()));
}

} // namespace

InitiateParameters InitiateParameters::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    InitiateParameters parameters;
    Element optional;
    if (reader.takeIf(Tag::context(0), optional))
        parameters.maxPduSize = reader.integer32(optional);
    parameters.maxOutstandingCalling =
        integer16(reader, Tag::context(1), "maxServOutstandingCalling");
    parameters.maxOutstandingCalled =
        integer16(reader, Tag::context(2), "maxServOutstandingCalled");
    if (reader.takeIf(Tag::context(3), optional))
        parameters.nestingLevel = static_cast<std::int8_t>(
            reader.integer(optional, std::numeric_limits<std::int8_t>::min(),
                           std::numeric_limits<std::int8_t>::max()));
    Reader detail = reader.expectGroup(Tag::group(4), "initRequestDetail");
    parameters.version = integer16(detail, Tag::context(0), "versionNumber");
    parameters.parameters = detail.bitString(detail.expect(Tag::context(1), "parameterCBB"));
    parameters.services = detail.bitString(detail.expect(Tag::context(2), "servicesSupported"));
    // Later editions append fields that say nothing to IEC 61850.
    while (detail.next(optional)) {
        if (!optional.tag.isContext())
            detail.fail(say("Something stands behind the end of %1.", "initRequestDetail"));
    }
    reader.expectEnd("initiate-PDU");
    return parameters;
}

void InitiateParameters::write(Writer &writer) const
{
    const std::size_t mark = writer.size();
    writer.bitString(Tag::context(2), services);
    writer.bitString(Tag::context(1), parameters);
    writer.integer(Tag::context(0), version);
    writer.close(Tag::group(4), mark);
    if (nestingLevel)
        writer.integer(Tag::context(3), *nestingLevel);
    writer.integer(Tag::context(2), maxOutstandingCalled);
    writer.integer(Tag::context(1), maxOutstandingCalling);
    if (maxPduSize)
        writer.integer(Tag::context(0), *maxPduSize);
}

std::string InitiateParameters::text() const
{
    std::string result;
    if (maxPduSize)
        result += "PDU size " + std::to_string(*maxPduSize) + ", ";
    result += "outstanding calls " + std::to_string(maxOutstandingCalling) + " and " +
              std::to_string(maxOutstandingCalled);
    if (nestingLevel)
        result += ", nesting level " + std::to_string(*nestingLevel);
    return result + ", version " + std::to_string(version) + ", parameters '" +
           parameters.toText() + "'B, services '" + services.toText() + "'B";
}

std::string_view serviceName(std::uint32_t tagNumber)
{
    switch (tagNumber) {
    case 0:
        return "status";
    case 1:
        return "getNameList";
    case 2:
        return "identify";
    case 3:
        return "rename";
    case 4:
        return "read";
    case 5:
        return "write";
    case 6:
        return "getVariableAccessAttributes";
    case 11:
        return "defineNamedVariableList";
    case 12:
        return "getNamedVariableListAttributes";
    case 13:
        return "deleteNamedVariableList";
    case 46:
        return "obtainFile";
    case 65:
        return "readJournal";
    case 72:
        return "fileOpen";
    case 73:
        return "fileRead";
    case 74:
        return "fileClose";
    case 75:
        return "fileRename";
    case 76:
        return "fileDelete";
    case 77:
        return "fileDirectory";
    default:
        return {};
    }
}

} // namespace mms
