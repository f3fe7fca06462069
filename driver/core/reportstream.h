// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/reference.h"
#include "acsi/report.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What was wrong with a report, or with what should have come before it.
enum class ReportFault {
    Gap,            ///< the numbers say that reports are missing
    MissingSegment, ///< parts of a report are missing, so that the others were dropped
    Overflow,       ///< the device's buffer has overflown: entries are lost
    UnknownEntry,   ///< the device does not know the entry to go on behind
    OtherDataSet,   ///< the report is of another data set than the block had when it was enabled
    Ambiguous,      ///< the report may be of several blocks with different data
    Unreadable,     ///< the report cannot be decoded
    UnknownMember,  ///< a member is no data of the model, or its value has another form
    NoValue,        ///< the device gave an access error instead of a member's value
};

/// The reports of one association: tells which block each belongs to, joins segments, follows the
/// sequence numbers, and says which data each member is. Plain: given decoded reports and a time.
///
/// Which block a report belongs to: its report id names it, its data set's name must be the
/// block's, and data references must be those of the block's data set. Blocks that are alike in all
/// that, and have different data, are never guessed.
class ReportStream
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// A block whose reports are expected.
    struct Block
    {
        acsi::Reference block;
        std::string rptId;
        std::string datSet;
        acsi::OptFlds optFlds;
        std::optional<std::uint32_t> confRev; ///< once it is known
        std::vector<acsi::Reference> members; ///< empty when the device does not tell them
    };

    struct Taken
    {
        /// "LD/LN$BR$name"; empty when the report is nobody's.
        std::string block;
        /// Of which one cannot be said.
        std::vector<std::string> ambiguous;
        /// The whole report; none while parts are missing.
        std::optional<acsi::Report> report;
        /// The members of the report are those of the block's data set, by their index.
        bool areInPlace = false;
        /// Otherwise what each member of the report is; without a logical node where that is not
        /// known.
        std::vector<acsi::Reference> references;
        std::vector<ReportFault> faults;
        std::uint32_t missing = 0; ///< reports, where the numbers tell
    };

    /// Reports of the block are expected from now on, counted anew.
    void start(Block block);
    /// What the device has made of the block when it was enabled.
    void settle(const std::string &block, const std::string &rptId, const acsi::OptFlds &optFlds,
                std::uint32_t confRev);
    void setMembers(const std::string &block, std::vector<acsi::Reference> members);
    void stop(const std::string &block);
    void clear() { m_blocks.clear(); }
    /// Whether no reports are expected at all: then every report is nobody's, otherwise none is.
    bool isEmpty() const { return m_blocks.empty(); }
    /// Null when it is not expected to report.
    const Block *find(const std::string &block) const;

    /// Whether reports of @p block could be taken for those of another one with other data, unless
    /// they name their data set.
    bool isConfusable(const Block &block) const;

    Taken take(acsi::Report segment, Time now);
    /// Blocks with that report id, or all when none has it.
    std::vector<std::string> named(const std::string &rptId) const;
    /// Blocks of which parts of a report have waited too long for the rest.
    std::vector<std::string> expire(Time now);
    /// Given the attribute SqNum of the block, which counts what the device has sent: whether
    /// reports must have been lost behind the last one that came. Devices differ in whether they
    /// tell the last number or the next one, so only a difference that is still there at the second
    /// look counts. A device whose attribute turns out not to count is not believed again.
    bool isBehind(const std::string &block, std::uint32_t sqNum);

private:
    struct Followed
    {
        Block block;
        acsi::ReportAssembler assembler;
        std::optional<std::uint32_t> sqNum; ///< of the last report, or part
        std::optional<std::uint32_t> suspected;
        /// The last report's, when the attribute said that others are missing behind it.
        std::optional<std::uint32_t> beforeMissing;
        bool isAttributeWrong = false;
        bool isOverflown = false;
        /// The block, and its members in both notations, as reports may name them.
        std::string objectName;
        std::vector<std::pair<std::string, std::string>> names;
    };

    static void setNames(Followed &followed);
    static bool agrees(const Followed &followed, const acsi::Report &segment);
    static bool isNext(std::uint32_t before, std::uint32_t now);
    static int likeness(const std::string &key, const Followed &followed,
                        const acsi::Report &segment);
    std::vector<std::string> candidates(const acsi::Report &segment, bool &isOfOtherData) const;
    static void follow(Followed &followed, const acsi::Report &segment, Taken &taken);
    static void resolve(const Followed &followed, Taken &taken);

    std::map<std::string, Followed> m_blocks; ///< by reference
};

/// Whether both texts name the same data set.
bool isSameDataSet(const acsi::Reference &block, const std::string &left, const std::string &right);
