// SPDX-License-Identifier: Apache-2.0
#include "acsi/report.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <limits>
#include <span>
#include <string_view>

namespace acsi {

using wording::say;

namespace {

constexpr std::string_view reportList = "RPT";
constexpr std::size_t maxPending = 256;

mms::Error wrong(const mms::Text &field, wording::Pattern<1> words)
{
    return {say(words, field), 0};
}

mms::Text memberField(std::string_view field, std::size_t index)
{
    return say("%1 of the member %2", field, index + 1);
}

bool isText(const mms::Data &data)
{
    return data.kind() == mms::Data::Kind::VisibleString ||
           data.kind() == mms::Data::Kind::MmsString;
}

/// The values of a report one after the other, and the first of them that is not as it must be.
class Fields
{
public:
    explicit Fields(std::span<mms::AccessResult> results)
        : m_results(results)
    {
    }

    bool failed() const { return m_error.has_value(); }
    mms::Error error() { return std::move(*m_error); }
    std::size_t left() const { return m_results.size() - m_next; }
    mms::AccessResult &take() { return m_results[m_next++]; }

    /// Whether the next value is of a kind that only a later field can have.
    bool nextIsLater() const
    {
        if (m_next >= m_results.size() || !m_results[m_next].ok())
            return false;
        const mms::Data::Kind kind = m_results[m_next].data().kind();
        return kind == mms::Data::Kind::Unsigned || kind == mms::Data::Kind::BitString;
    }

    mms::Data *next(std::string_view field)
    {
        if (failed())
            return nullptr;
        if (m_next >= m_results.size()) {
            fail({say("The report ends before its %1.", field), 0});
            return nullptr;
        }
        mms::AccessResult &result = m_results[m_next++];
        if (result.ok())
            return &result.data();
        fail({say("The report has no value for its %1: %2.", field, mms::describe(result.error())),
              0});
        return nullptr;
    }

    void text(std::string_view field, std::string &target)
    {
        if (const mms::Data *data = next(field)) {
            if (isText(*data))
                target = data->text();
            else
                fail(wrong(mms::verbatim(field),
                           wording::pattern<1>("The report's %1 is not a text.")));
        }
    }

    void bits(std::string_view field, mms::BitString &target)
    {
        if (const mms::Data *data = next(field)) {
            if (data->kind() == mms::Data::Kind::BitString)
                target = data->bits();
            else
                fail(wrong(mms::verbatim(field),
                           wording::pattern<1>("The report's %1 is not a bit string.")));
        }
    }

    template <typename Target>
    void number(std::string_view field, Target &target)
    {
        if (const mms::Data *data = next(field)) {
            const auto value = data->toUnsigned();
            if (value && *value <= std::numeric_limits<std::uint32_t>::max())
                target = static_cast<std::uint32_t>(*value);
            else
                fail(wrong(mms::verbatim(field),
                           wording::pattern<1>(
                               "The report's %1 is not a number of 32 bits without sign.")));
        }
    }

    template <typename Target>
    void boolean(std::string_view field, Target &target)
    {
        if (const mms::Data *data = next(field)) {
            if (const auto value = data->toBoolean())
                target = *value;
            else
                fail(wrong(mms::verbatim(field),
                           wording::pattern<1>("The report's %1 is neither true nor false.")));
        }
    }

    void fail(mms::Error error)
    {
        if (!m_error)
            m_error = std::move(error);
    }

private:
    std::span<mms::AccessResult> m_results;
    std::size_t m_next = 0;
    std::optional<mms::Error> m_error;
};

void readHead(Fields &fields, Report &report, mms::BitString &inclusion)
{
    fields.text("RptID", report.rptId);
    mms::BitString optFlds;
    fields.bits("OptFlds", optFlds);
    report.optFlds = OptFlds::from(optFlds);
    OptFlds &present = report.optFlds;
    if (present.sequenceNumber)
        fields.number("SqNum", report.sqNum);
    if (present.timeStamp) {
        if (const mms::Data *data = fields.next("TimeOfEntry")) {
            report.timeOfEntry = data->toBinaryTime();
            if (!report.timeOfEntry)
                fields.fail(wrong(mms::verbatim("TimeOfEntry"),
                                  wording::pattern<1>("The report's %1 is not a binary time.")));
        }
    }
    if (present.dataSetName)
        fields.text("DatSet", report.datSet);
    // Unbuffered blocks have neither field, yet some devices echo the bits that were written.
    if (present.bufferOverflow && fields.nextIsLater())
        present.bufferOverflow = false;
    if (present.bufferOverflow)
        fields.boolean("BufOvfl", report.bufOvfl);
    if (present.entryId && fields.nextIsLater())
        present.entryId = false;
    if (present.entryId) {
        if (const mms::Data *data = fields.next("EntryID")) {
            if (data->kind() == mms::Data::Kind::OctetString)
                report.entryId.assign(data->octets().begin(), data->octets().end());
            else
                fields.fail(
                    wrong(mms::verbatim("EntryID"),
                          wording::pattern<1>("The report's %1 is not a string of octets.")));
        }
    }
    if (present.confRevision)
        fields.number("ConfRev", report.confRev);
    if (present.segmentation) {
        fields.number("SubSqNum", report.subSqNum);
        fields.boolean("MoreSegmentsFollow", report.moreSegmentsFollow);
    }
    fields.bits("Inclusion", inclusion);
}

void readMembers(Fields &fields, Report &report, const mms::BitString &inclusion)
{
    const mms::Bytes octets = inclusion.octets();
    report.dataSetSize = inclusion.size();
    std::size_t included = 0;
    for (const std::uint8_t octet : octets)
        included += static_cast<std::size_t>(std::popcount(octet));
    const std::size_t each = 1U + (report.optFlds.dataReference ? 1U : 0U) +
                             (report.optFlds.reasonForInclusion ? 1U : 0U);
    if (fields.left() != included * each) {
        fields.fail(
            {say("The report says that it brings %1 members, which are %2 values, but it has %3.",
                 included, included * each, fields.left()),
             0});
        return;
    }
    report.members.reserve(included);
    for (std::size_t i = 0; i < inclusion.size(); ++i) {
        if ((octets[i / 8] & (0x80U >> (i % 8))) == 0)
            continue;
        report.members.push_back({i, {}, {}, mms::Data()});
    }
    if (report.optFlds.dataReference) {
        for (ReportMember &member : report.members) {
            const mms::AccessResult &result = fields.take();
            if (!result.ok() || !isText(result.data())) {
                fields.fail(wrong(memberField("DataRef", member.index),
                                  wording::pattern<1>("The report's %1 is not a text.")));
                return;
            }
            member.reference = result.data().text();
        }
    }
    for (ReportMember &member : report.members)
        member.value = std::move(fields.take());
    if (report.optFlds.reasonForInclusion) {
        for (ReportMember &member : report.members) {
            const mms::AccessResult &result = fields.take();
            if (!result.ok() || result.data().kind() != mms::Data::Kind::BitString) {
                fields.fail(wrong(memberField("ReasonCode", member.index),
                                  wording::pattern<1>("The report's %1 is not a bit string.")));
                return;
            }
            member.reason = Triggers::from(result.data());
        }
    }
}

} // namespace

OptFlds OptFlds::from(const mms::BitString &bits)
{
    OptFlds result;
    result.sequenceNumber = bits.test(1);
    result.timeStamp = bits.test(2);
    result.reasonForInclusion = bits.test(3);
    result.dataSetName = bits.test(4);
    result.dataReference = bits.test(5);
    result.bufferOverflow = bits.test(6);
    result.entryId = bits.test(7);
    result.confRevision = bits.test(8);
    result.segmentation = bits.test(9);
    return result;
}

mms::BitString OptFlds::toBits() const
{
    mms::BitString bits(10);
    bits.set(1, sequenceNumber);
    bits.set(2, timeStamp);
    bits.set(3, reasonForInclusion);
    bits.set(4, dataSetName);
    bits.set(5, dataReference);
    bits.set(6, bufferOverflow);
    bits.set(7, entryId);
    bits.set(8, confRevision);
    bits.set(9, segmentation);
    return bits;
}

Triggers Triggers::from(const mms::BitString &bits)
{
    Triggers result;
    result.dataChange = bits.test(1);
    result.qualityChange = bits.test(2);
    result.dataUpdate = bits.test(3);
    result.integrity = bits.test(4);
    result.generalInterrogation = bits.test(5);
    result.applicationTrigger = bits.test(6);
    return result;
}

Triggers Triggers::from(const mms::Data &bits)
{
    Triggers result;
    result.dataChange = bits.testBit(1);
    result.qualityChange = bits.testBit(2);
    result.dataUpdate = bits.testBit(3);
    result.integrity = bits.testBit(4);
    result.generalInterrogation = bits.testBit(5);
    result.applicationTrigger = bits.testBit(6);
    return result;
}

mms::BitString Triggers::toBits() const
{
    mms::BitString bits(applicationTrigger ? 7 : 6);
    bits.set(1, dataChange);
    bits.set(2, qualityChange);
    bits.set(3, dataUpdate);
    bits.set(4, integrity);
    bits.set(5, generalInterrogation);
    if (applicationTrigger)
        bits.set(6);
    return bits;
}

bool isReport(const mms::InformationReport &information)
{
    const auto *list = std::get_if<mms::ObjectName>(&information.variables);
    return list && list->scope == mms::Scope::Vmd && list->item == reportList;
}

std::string reportIdOf(const mms::InformationReport &information)
{
    if (!isReport(information) || information.results.empty())
        return {};
    const mms::AccessResult &first = information.results.front();
    return first.ok() && isText(first.data()) ? std::string(first.data().text()) : std::string();
}

mms::Result<Report> decodeReport(mms::InformationReport information)
{
    if (!isReport(information))
        return mms::Error{say("This is not a report but %1.", mms::toText(information.variables)),
                          0};
    Report report;
    Fields fields(information.results);
    mms::BitString inclusion;
    readHead(fields, report, inclusion);
    if (!fields.failed())
        readMembers(fields, report, inclusion);
    if (fields.failed())
        return fields.error();
    return report;
}

mms::InformationReport encodeReport(const Report &report)
{
    using mms::Data;

    mms::InformationReport information;
    information.variables = mms::ObjectName::ofVmd(reportList);
    std::vector<mms::AccessResult> &results = information.results;
    const OptFlds &present = report.optFlds;
    results.reserve(11 + 3 * report.members.size());
    results.emplace_back(Data::visibleString(report.rptId));
    results.emplace_back(Data::bitString(present.toBits()));
    if (present.sequenceNumber)
        results.emplace_back(Data::unsignedInteger(report.sqNum.value_or(0)));
    if (present.timeStamp)
        results.emplace_back(
            Data::binaryTime(report.timeOfEntry.value_or(mms::BinaryTime{0, std::uint16_t{0}})));
    if (present.dataSetName)
        results.emplace_back(Data::visibleString(report.datSet));
    if (present.bufferOverflow)
        results.emplace_back(Data::boolean(report.bufOvfl.value_or(false)));
    if (present.entryId)
        results.emplace_back(Data::octetString(report.entryId));
    if (present.confRevision)
        results.emplace_back(Data::unsignedInteger(report.confRev.value_or(0)));
    if (present.segmentation) {
        results.emplace_back(Data::unsignedInteger(report.subSqNum));
        results.emplace_back(Data::boolean(report.moreSegmentsFollow));
    }
    mms::BitString inclusion(report.dataSetSize);
    for (const ReportMember &member : report.members)
        inclusion.set(member.index);
    results.emplace_back(Data::bitString(inclusion));
    if (present.dataReference) {
        for (const ReportMember &member : report.members)
            results.emplace_back(Data::visibleString(member.reference));
    }
    for (const ReportMember &member : report.members)
        results.push_back(member.value);
    if (present.reasonForInclusion) {
        for (const ReportMember &member : report.members)
            results.emplace_back(Data::bitString(member.reason.value_or(Triggers{}).toBits()));
    }
    return information;
}

void ReportAssembler::expire(Time now)
{
    for (auto it = m_pending.begin(); it != m_pending.end();) {
        if (now - it->second.since > m_patience)
            it = drop(it);
        else
            ++it;
    }
}

std::string ReportAssembler::keyOf(const Report &segment)
{
    // Two blocks may share a report id as long as they report different data sets.
    return segment.rptId + '\n' + segment.datSet;
}

bool ReportAssembler::fits(const Pending &pending, const Report &segment)
{
    return segment.subSqNum == pending.nextSubSqNum && segment.sqNum == pending.report.sqNum &&
           segment.entryId == pending.report.entryId &&
           segment.dataSetSize == pending.report.dataSetSize &&
           pending.report.members.size() + segment.members.size() <= segment.dataSetSize;
}

bool ReportAssembler::continues(const Report &segment) const
{
    const auto found = m_pending.find(keyOf(segment));
    return found != m_pending.end() && fits(found->second, segment);
}

std::map<std::string, ReportAssembler::Pending>::iterator
ReportAssembler::drop(std::map<std::string, Pending>::iterator pending)
{
    m_dropped += pending->second.nextSubSqNum;
    return m_pending.erase(pending);
}

std::optional<Report> ReportAssembler::take(Report segment, Time now)
{
    expire(now);
    if (m_pending.size() >= maxPending) {
        drop(std::ranges::min_element(m_pending, {},
                                      [](const auto &entry) { return entry.second.since; }));
    }
    const std::string key = keyOf(segment);
    auto found = m_pending.find(key);
    if (segment.subSqNum == 0) {
        if (found != m_pending.end())
            drop(found);
        if (!segment.moreSegmentsFollow)
            return segment;
        m_pending.emplace(key, Pending{std::move(segment), 1, now});
        return std::nullopt;
    }
    if (found == m_pending.end()) {
        ++m_dropped;
        return std::nullopt;
    }
    Pending &pending = found->second;
    if (!fits(pending, segment)) {
        drop(found);
        ++m_dropped;
        return std::nullopt;
    }
    std::ranges::move(segment.members, std::back_inserter(pending.report.members));
    ++pending.nextSubSqNum;
    pending.since = now;
    if (segment.moreSegmentsFollow)
        return std::nullopt;
    Report whole = std::move(pending.report);
    m_pending.erase(found);
    whole.subSqNum = 0;
    whole.moreSegmentsFollow = false;
    std::ranges::stable_sort(whole.members, {}, &ReportMember::index);
    return whole;
}

} // namespace acsi
