// SPDX-License-Identifier: Apache-2.0
#include "mms/objectname.h"

#include "mms/codec.h"
#include "mms/data.h"
#include "mms/datatext.h"

namespace mms {

namespace {

/// Quoted, without the quotation marks.
std::string printable(std::string_view text)
{
    const std::string result = quoted(text);
    return result.substr(1, result.size() - 2);
}

} // namespace

std::string toText(const ObjectName &name)
{
    switch (name.scope) {
    case Scope::Vmd:
        return printable(name.item);
    case Scope::Domain:
        return printable(name.domain) + '/' + printable(name.item);
    case Scope::Association:
        return '@' + printable(name.item);
    }
    return {};
}

std::string toText(ObjectClass objectClass)
{
    switch (objectClass) {
    case ObjectClass::NamedVariable:
        return "namedVariable";
    case ObjectClass::ScatteredAccess:
        return "scatteredAccess";
    case ObjectClass::NamedVariableList:
        return "namedVariableList";
    case ObjectClass::NamedType:
        return "namedType";
    case ObjectClass::Semaphore:
        return "semaphore";
    case ObjectClass::EventCondition:
        return "eventCondition";
    case ObjectClass::EventAction:
        return "eventAction";
    case ObjectClass::EventEnrollment:
        return "eventEnrollment";
    case ObjectClass::Journal:
        return "journal";
    case ObjectClass::Domain:
        return "domain";
    case ObjectClass::ProgramInvocation:
        return "programInvocation";
    case ObjectClass::OperatorStation:
        return "operatorStation";
    }
    return "objectClass " + std::to_string(static_cast<std::int32_t>(objectClass));
}

namespace codec {

ObjectName readObjectName(Reader &reader)
{
    ObjectName name;
    Element element;
    if (reader.takeIf(Tag::context(0), element)) {
        name.scope = Scope::Vmd;
        name.item = reader.text(element);
    } else if (reader.takeIf(Tag::group(1), element)) {
        name.scope = Scope::Domain;
        Reader inner = reader.enter(element);
        name.domain = inner.text(inner.expect(ber::tags::visibleString, "domainId"));
        name.item = inner.text(inner.expect(ber::tags::visibleString, "itemId"));
        inner.expectEnd("ObjectName");
    } else if (reader.takeIf(Tag::context(2), element)) {
        name.scope = Scope::Association;
        name.item = reader.text(element);
    } else {
        reader.fail(say("The element %1 is missing or of an unknown kind.", "ObjectName"));
    }
    return name;
}

void write(Writer &writer, const ObjectName &name)
{
    switch (name.scope) {
    case Scope::Vmd:
        writer.text(Tag::context(0), name.item);
        return;
    case Scope::Domain: {
        const std::size_t mark = writer.size();
        writer.text(ber::tags::visibleString, name.item);
        writer.text(ber::tags::visibleString, name.domain);
        writer.close(Tag::group(1), mark);
        return;
    }
    case Scope::Association:
        writer.text(Tag::context(2), name.item);
        return;
    }
}

ObjectName readObjectName(Reader &reader, Tag group, std::string_view what)
{
    Reader inner = reader.expectGroup(group, what);
    ObjectName name = readObjectName(inner);
    inner.expectEnd("ObjectName");
    return name;
}

void write(Writer &writer, Tag group, const ObjectName &name)
{
    const std::size_t mark = writer.size();
    write(writer, name);
    writer.close(group, mark);
}

} // namespace codec

} // namespace mms
