// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/applicationreference.h"
#include "mms/data.h"
#include "mms/objectname.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

// Reading of journals: what mms/pduservices.h says of its structs holds here as well.

namespace mms {

/// A variable that a journal recorded with an entry.
struct JournalVariable
{
    std::string tag;
    Data value;

    friend bool operator==(const JournalVariable &, const JournalVariable &) = default;
};

/// The event that made a journal record an entry.
struct JournalEvent
{
    ObjectName condition;
    /// 0 disabled, 1 idle, 2 active.
    std::int32_t state = 0;

    friend bool operator==(const JournalEvent &, const JournalEvent &) = default;
};

struct JournalEntry
{
    struct Record
    {
        std::optional<JournalEvent> event;
        std::vector<JournalVariable> variables;

        friend bool operator==(const Record &, const Record &) = default;
    };

    std::vector<std::uint8_t> id;
    ApplicationReference origin;
    BinaryTime time;
    /// What was recorded, or an annotation.
    std::variant<Record, std::string> content;

    friend bool operator==(const JournalEntry &, const JournalEntry &) = default;
};

/// A place in a journal: a time, and an entry recorded at it.
struct JournalPosition
{
    BinaryTime time;
    std::vector<std::uint8_t> entry;

    friend bool operator==(const JournalPosition &, const JournalPosition &) = default;
};

/// Asks for entries of a journal.
struct ReadJournalRequest
{
    static constexpr ber::Tag tag = ber::Tag::group(65);

    ObjectName journal;
    /// The first entry, by its time or id.
    std::optional<std::variant<BinaryTime, std::vector<std::uint8_t>>> start;
    /// The last entry, by its time or counted from the first.
    std::optional<std::variant<BinaryTime, std::int32_t>> stop;
    /// Tags of the variables wanted; absent for all.
    std::optional<std::vector<std::string>> variables;
    /// The last entry of the page before.
    std::optional<JournalPosition> startAfter;

    static ReadJournalRequest read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const ReadJournalRequest &, const ReadJournalRequest &) = default;
};

/// Entries of a journal.
struct ReadJournalResponse
{
    static constexpr ber::Tag tag = ber::Tag::group(65);

    std::vector<JournalEntry> entries;
    bool moreFollows = false;

    static ReadJournalResponse read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    std::string text() const;
    friend bool operator==(const ReadJournalResponse &, const ReadJournalResponse &) = default;
};

} // namespace mms
