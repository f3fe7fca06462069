// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/data.h"
#include "mms/pduservices.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace acsi {

/// Optional fields of a report (IEC 61850-8-1, 17.2.3.2.2.8), by their bits.
struct OptFlds
{
    bool sequenceNumber = false;
    bool timeStamp = false;
    bool reasonForInclusion = false;
    bool dataSetName = false;
    bool dataReference = false;
    bool bufferOverflow = false;
    bool entryId = false;
    bool confRevision = false;
    bool segmentation = false;

    static OptFlds from(const mms::BitString &bits);
    /// Ten bits, the reserved one first.
    mms::BitString toBits() const;
    friend bool operator==(const OptFlds &, const OptFlds &) = default;
};

/// Trigger conditions, and reasons for inclusion of a member, by their bits.
struct Triggers
{
    bool dataChange = false;
    bool qualityChange = false;
    bool dataUpdate = false;
    bool integrity = false;
    bool generalInterrogation = false;
    bool applicationTrigger = false; ///< bit 6, only in reasons

    static Triggers from(const mms::BitString &bits);
    /// All false when @p bits is no bit string.
    static Triggers from(const mms::Data &bits);
    /// Six bits, the reserved one first; seven with @p applicationTrigger.
    mms::BitString toBits() const;
    friend bool operator==(const Triggers &, const Triggers &) = default;
};

struct ReportMember
{
    std::size_t index = 0; ///< in the data set, counted from 0
    std::string reference; ///< as the report gives it; empty without data references
    std::optional<Triggers> reason;
    mms::AccessResult value;

    friend bool operator==(const ReportMember &, const ReportMember &) = default;
};

/// A report as it came, optional fields where its OptFlds say so.
struct Report
{
    std::string rptId;
    OptFlds optFlds;
    std::optional<std::uint32_t> sqNum;
    std::optional<mms::BinaryTime> timeOfEntry;
    std::string datSet;
    std::optional<bool> bufOvfl;
    std::vector<std::uint8_t> entryId;
    std::optional<std::uint32_t> confRev;
    std::uint32_t subSqNum = 0;
    bool moreSegmentsFollow = false;
    std::size_t dataSetSize = 0; ///< bits of the inclusion string
    std::vector<ReportMember> members;

    friend bool operator==(const Report &, const Report &) = default;
};

/// True for the list of variables that reports come in.
bool isReport(const mms::InformationReport &information);

/// The report id of a report that may be unreadable otherwise; empty when even that is.
std::string reportIdOf(const mms::InformationReport &information);

/// Takes a report apart by its own OptFlds (IEC 61850-8-1, 17.2.5). The error says which field is
/// missing or of the wrong type. Values are moved out of @p information. BufOvfl and EntryID may be
/// missing in reports of unbuffered blocks; Report::optFlds then does without them.
mms::Result<Report> decodeReport(mms::InformationReport information);
/// The inverse, for servers. Members are in the order of their index, each index once; what OptFlds
/// wants and the report does not have is sent as zero.
mms::InformationReport encodeReport(const Report &report);

/// Joins the segments of reports that did not fit a PDU. Not thread-safe.
class ReportAssembler
{
public:
    using Time = std::chrono::steady_clock::time_point;

    explicit ReportAssembler(std::chrono::milliseconds patience = std::chrono::seconds(30))
        : m_patience(patience)
    {
    }

    /// The whole report when @p segment was its last part or is not segmented. Parts that miss a
    /// predecessor or successor, parts that wait longer than the patience, and the oldest of very
    /// many reports that wait are dropped and counted.
    std::optional<Report> take(Report segment, Time now);
    /// Whether @p segment is the next part of a report that waits.
    bool continues(const Report &segment) const;
    /// Drops what has waited longer than the patience; take() does so too.
    void expire(Time now);
    /// Parts that will not be part of any report.
    std::uint64_t dropped() const { return m_dropped; }

private:
    struct Pending
    {
        Report report;
        std::uint32_t nextSubSqNum = 0;
        Time since;
    };

    static std::string keyOf(const Report &segment);
    static bool fits(const Pending &pending, const Report &segment);
    std::map<std::string, Pending>::iterator drop(std::map<std::string, Pending>::iterator pending);

    std::chrono::milliseconds m_patience;
    std::map<std::string, Pending> m_pending; ///< by report id and data set
    std::uint64_t m_dropped = 0;
};

} // namespace acsi
