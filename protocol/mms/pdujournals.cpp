// SPDX-License-Identifier: Apache-2.0
#include "mms/pdujournals.h"

#include "mms/codec.h"
#include "mms/datacodec.h"
#include "mms/datatext.h"

namespace mms {

using ber::Element;
using ber::Reader;
using ber::Tag;
using ber::Writer;

namespace {

BinaryTime readTime(Reader &reader, const Element &element)
{
    if (reader.failed())
        return {};
    const Element asData{Tag::context(static_cast<std::uint32_t>(Data::Kind::BinaryTime)),
                         element.content, element.offset};
    return DataCodec::read(reader, asData).toBinaryTime().value_or(BinaryTime());
}

void writeTime(Writer &writer, Tag tag, const BinaryTime &time)
{
    writer.element(tag, Data::binaryTime(time).octets());
}

std::string octetsText(const std::vector<std::uint8_t> &octets)
{
    return toText(Data::octetString(octets));
}

JournalVariable readJournalVariable(Reader reader)
{
    JournalVariable variable;
    variable.tag = reader.text(reader.expect(Tag::context(0), "variableTag"));
    Reader value = reader.expectGroup(Tag::group(1), "valueSpecification");
    variable.value = DataCodec::readNext(value);
    value.expectEnd("valueSpecification");
    reader.expectEnd("Journal-Variable");
    return variable;
}

JournalEvent readJournalEvent(Reader reader)
{
    JournalEvent event;
    event.condition = codec::readObjectName(reader, Tag::group(0), "eventConditionName");
    event.state = reader.integer32(reader.expect(Tag::context(1), "currentState"));
    reader.expectEnd("event");
    return event;
}

JournalEntry::Record readJournalRecord(Reader reader)
{
    JournalEntry::Record record;
    Element element;
    if (reader.takeIf(Tag::group(0), element))
        record.event = readJournalEvent(reader.enter(element));
    if (reader.takeIf(Tag::group(1), element)) {
        Reader list = reader.enter(element);
        record.variables.reserve(list.countRest());
        while (!list.atEnd())
            record.variables.push_back(
                readJournalVariable(list.expectGroup(ber::tags::sequence, "Journal-Variable")));
    }
    reader.expectEnd("data");
    return record;
}

JournalEntry readJournalEntry(Reader reader)
{
    JournalEntry entry;
    entry.id = reader.octets(reader.expect(Tag::context(0), "entryIdentifier"));
    Reader origin = reader.expectGroup(Tag::group(1), "originatingApplication");
    entry.origin.content =
        origin.octets(origin.expect(ber::tags::sequence, "originatingApplication"));
    origin.expectEnd("originatingApplication");
    Reader content = reader.expectGroup(Tag::group(2), "entryContent");
    entry.time = readTime(content, content.expect(Tag::context(0), "occurrenceTime"));
    Element element;
    if (content.takeIf(Tag::context(1), element))
        content.null(element);
    if (content.takeIf(Tag::context(3), element))
        entry.content = content.text(element);
    else
        entry.content = readJournalRecord(content.expectGroup(Tag::group(2), "data"));
    content.expectEnd("entryContent");
    reader.expectEnd("JournalEntry");
    return entry;
}

void writeJournalEntry(Writer &writer, const JournalEntry &entry)
{
    const std::size_t entryMark = writer.size();
    if (const auto *annotation = std::get_if<std::string>(&entry.content)) {
        writer.text(Tag::context(3), *annotation);
    } else {
        const auto &record = std::get<JournalEntry::Record>(entry.content);
        if (!record.variables.empty()) {
            const std::size_t listMark = writer.size();
            for (auto variable = record.variables.rbegin(); variable != record.variables.rend();
                 ++variable) {
                const std::size_t mark = writer.size();
                DataCodec::write(writer, variable->value);
                writer.close(Tag::group(1), mark);
                writer.text(Tag::context(0), variable->tag);
                writer.close(ber::tags::sequence, mark);
            }
            writer.close(Tag::group(1), listMark);
        }
        if (record.event) {
            const std::size_t mark = writer.size();
            writer.integer(Tag::context(1), record.event->state);
            codec::write(writer, Tag::group(0), record.event->condition);
            writer.close(Tag::group(0), mark);
        }
        writer.close(Tag::group(2), entryMark);
    }
    writeTime(writer, Tag::context(0), entry.time);
    writer.close(Tag::group(2), entryMark);
    const std::size_t originMark = writer.size();
    writer.element(ber::tags::sequence, entry.origin.content);
    writer.close(Tag::group(1), originMark);
    writer.element(Tag::context(0), entry.id);
    writer.close(ber::tags::sequence, entryMark);
}

std::string entryText(const JournalEntry &entry)
{
    std::string result = octetsText(entry.id) + " at " + toText(entry.time);
    if (const auto *annotation = std::get_if<std::string>(&entry.content))
        return result + ": " + quoted(*annotation);
    const auto &record = std::get<JournalEntry::Record>(entry.content);
    if (record.event)
        result += ", event " + toText(record.event->condition) + " state " +
                  std::to_string(record.event->state);
    return result + ": {" +
           codec::joined(record.variables,
                         [](const JournalVariable &variable) {
                             return quoted(variable.tag) + " = " + toText(variable.value);
                         }) +
           '}';
}

} // namespace

ReadJournalRequest ReadJournalRequest::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    ReadJournalRequest request;
    request.journal = codec::readObjectName(reader, Tag::group(0), "journalName");
    Element optional;
    if (reader.takeIf(Tag::group(1), optional)) {
        Reader choice = reader.enter(optional);
        Element chosen;
        if (choice.takeIf(Tag::context(0), chosen))
            request.start = readTime(choice, chosen);
        else
            request.start =
                choice.octets(choice.expect(Tag::context(1), "rangeStartSpecification"));
        choice.expectEnd("rangeStartSpecification");
    }
    if (reader.takeIf(Tag::group(2), optional)) {
        Reader choice = reader.enter(optional);
        Element chosen;
        if (choice.takeIf(Tag::context(0), chosen))
            request.stop = readTime(choice, chosen);
        else
            request.stop = choice.integer32(choice.expect(Tag::context(1), "numberOfEntries"));
        choice.expectEnd("rangeStopSpecification");
    }
    if (reader.takeIf(Tag::group(4), optional)) {
        Reader list = reader.enter(optional);
        auto &names = request.variables.emplace();
        names.reserve(list.countRest());
        while (!list.atEnd())
            names.push_back(list.text(list.expect(ber::tags::visibleString, "listOfVariables")));
    }
    if (reader.takeIf(Tag::group(5), optional)) {
        Reader position = reader.enter(optional);
        JournalPosition after;
        after.time = readTime(position, position.expect(Tag::context(0), "timeSpecification"));
        after.entry = position.octets(position.expect(Tag::context(1), "entrySpecification"));
        position.expectEnd("entryToStartAfter");
        request.startAfter = std::move(after);
    }
    reader.expectEnd("ConfirmedServiceRequest");
    return request;
}

void ReadJournalRequest::write(Writer &writer) const
{
    std::size_t mark = writer.size();
    if (startAfter) {
        writer.element(Tag::context(1), startAfter->entry);
        writeTime(writer, Tag::context(0), startAfter->time);
        writer.close(Tag::group(5), mark);
    }
    if (variables) {
        mark = writer.size();
        for (auto name = variables->rbegin(); name != variables->rend(); ++name)
            writer.text(ber::tags::visibleString, *name);
        writer.close(Tag::group(4), mark);
    }
    if (stop) {
        mark = writer.size();
        if (const auto *time = std::get_if<BinaryTime>(&*stop))
            writeTime(writer, Tag::context(0), *time);
        else
            writer.integer(Tag::context(1), std::get<std::int32_t>(*stop));
        writer.close(Tag::group(2), mark);
    }
    if (start) {
        mark = writer.size();
        if (const auto *time = std::get_if<BinaryTime>(&*start))
            writeTime(writer, Tag::context(0), *time);
        else
            writer.element(Tag::context(1), std::get<std::vector<std::uint8_t>>(*start));
        writer.close(Tag::group(1), mark);
    }
    codec::write(writer, Tag::group(0), journal);
}

std::string ReadJournalRequest::text() const
{
    std::string result = toText(journal);
    if (start) {
        const auto *time = std::get_if<BinaryTime>(&*start);
        result += " from " +
                  (time ? toText(*time) : octetsText(std::get<std::vector<std::uint8_t>>(*start)));
    }
    if (stop) {
        const auto *time = std::get_if<BinaryTime>(&*stop);
        result += time ? " to " + toText(*time)
                       : ", " + std::to_string(std::get<std::int32_t>(*stop)) + " entries";
    }
    if (variables)
        result += ", only " + codec::joined(*variables, quoted);
    if (startAfter)
        result += ", after " + octetsText(startAfter->entry) + " at " + toText(startAfter->time);
    return result;
}

ReadJournalResponse ReadJournalResponse::read(Reader &outer, const Element &element)
{
    Reader reader = outer.enter(element);
    ReadJournalResponse response;
    Reader list = reader.expectGroup(Tag::group(0), "listOfJournalEntry");
    response.entries.reserve(list.countRest());
    while (!list.atEnd())
        response.entries.push_back(
            readJournalEntry(list.expectGroup(ber::tags::sequence, "JournalEntry")));
    Element more;
    if (reader.takeIf(Tag::context(1), more))
        response.moreFollows = reader.boolean(more);
    reader.expectEnd("ConfirmedServiceResponse");
    return response;
}

void ReadJournalResponse::write(Writer &writer) const
{
    if (moreFollows)
        writer.boolean(Tag::context(1), true);
    const std::size_t mark = writer.size();
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry)
        writeJournalEntry(writer, *entry);
    writer.close(Tag::group(0), mark);
}

std::string ReadJournalResponse::text() const
{
    return '{' + codec::joined(entries, entryText) + "}, more follows " +
           (moreFollows ? "true" : "false");
}

} // namespace mms
