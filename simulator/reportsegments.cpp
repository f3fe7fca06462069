// SPDX-License-Identifier: Apache-2.0
#include "simulator/reportsegments.h"

#include <algorithm>
#include <utility>

namespace sim {

namespace {

std::size_t octetsOfLength(std::size_t length)
{
    return length < 0x80 ? 1 : length < 0x100 ? 2 : length < 0x10000 ? 3 : 4;
}

std::size_t octetsOfSigned(std::int64_t value)
{
    std::size_t octets = 1;
    while (octets < 8 && (value < -128 || value > 127)) {
        value >>= 8;
        ++octets;
    }
    return octets;
}

std::size_t octetsOfUnsigned(std::uint64_t value)
{
    std::size_t octets = 1;
    while (value > 127) {
        value >>= 8U;
        ++octets;
    }
    return octets;
}

std::size_t contentSize(const mms::Data &data)
{
    using Kind = mms::Data::Kind;
    switch (data.kind()) {
    case Kind::Array:
    case Kind::Structure: {
        std::size_t octets = 0;
        for (const mms::Data &child : data.children()) {
            const std::size_t content = contentSize(child);
            octets += 1 + octetsOfLength(content) + content;
        }
        return octets;
    }
    case Kind::Boolean:
        return 1;
    case Kind::Integer:
        return octetsOfSigned(data.toInteger().value_or(0));
    case Kind::Unsigned:
    case Kind::Bcd:
        return octetsOfUnsigned(
            data.toUnsigned().value_or(std::numeric_limits<std::uint64_t>::max()));
    case Kind::FloatingPoint:
        return data.isDouble() ? 9 : 5;
    case Kind::BitString:
    case Kind::BooleanArray:
        return 1 + (data.size() + 7) / 8;
    default:
        return data.octets().size();
    }
}

std::size_t sizeOf(std::size_t content)
{
    return 1 + octetsOfLength(content) + content;
}

/// The PDU around the values, and every value of a report but those of its members.
std::size_t headSize(const acsi::Report &report)
{
    constexpr std::size_t around = 32;
    constexpr std::size_t fixed = 48; // options, numbers, times, flags
    const bool named = report.optFlds.dataSetName;
    return around + fixed + sizeOf(report.rptId.size()) +
           (named ? sizeOf(report.datSet.size()) : 0) + sizeOf(report.entryId.size()) +
           sizeOf(1 + (report.dataSetSize + 7) / 8);
}

std::size_t memberSize(const acsi::Report &report, const acsi::ReportMember &member)
{
    constexpr std::size_t reason = 4;
    return reportedSize(member.value) + (report.optFlds.reasonForInclusion ? reason : 0) +
           (report.optFlds.dataReference ? sizeOf(member.reference.size()) : 0);
}

} // namespace

std::size_t reportedSize(const mms::AccessResult &value)
{
    return value.ok() ? sizeOf(contentSize(value.data())) : 3;
}

std::vector<acsi::Report> segments(acsi::Report report, std::size_t pduSize)
{
    std::vector<acsi::Report> parts;
    const std::size_t head = headSize(report);
    const std::size_t room = pduSize > head ? pduSize - head : 0;
    std::vector<acsi::ReportMember> members = std::move(report.members);
    report.members.clear();
    parts.push_back(report);
    std::size_t used = 0;
    for (acsi::ReportMember &member : members) {
        std::size_t octets = memberSize(report, member);
        if (octets > room) {
            member.value = mms::DataAccessError::ObjectAccessUnsupported;
            octets = memberSize(report, member);
        }
        if (used + octets > room && !parts.back().members.empty()) {
            parts.push_back(report);
            used = 0;
        }
        used += octets;
        parts.back().members.push_back(std::move(member));
    }
    if (parts.size() > 1) {
        for (std::size_t i = 0; i < parts.size(); ++i) {
            parts[i].optFlds.segmentation = true;
            parts[i].subSqNum = static_cast<std::uint32_t>(i);
            parts[i].moreSegmentsFollow = i + 1 < parts.size();
        }
    }
    return parts;
}

} // namespace sim
