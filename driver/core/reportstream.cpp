// SPDX-License-Identifier: Apache-2.0
#include "reportstream.h"

#include "acsi/dataset.h"

#include <algorithm>

namespace {

constexpr int noBlock = -1;

/// @param key @param objectName the reference of the block in both notations
bool isNamed(const std::string &key, const std::string &objectName,
             const ReportStream::Block &block, const std::string &rptId)
{
    // A block without an identifier of its own reports under its reference.
    return rptId == block.rptId || rptId == key || rptId == objectName;
}

bool isKnownSize(const ReportStream::Block &block, const acsi::Report &segment)
{
    return segment.dataSetSize == block.members.size();
}

} // namespace

bool isSameDataSet(const acsi::Reference &block, const std::string &left, const std::string &right)
{
    if (left == right)
        return true;
    const auto first = acsi::dataSetName(block.device, left);
    const auto second = acsi::dataSetName(block.device, right);
    return first && second && *first == *second;
}

void ReportStream::setNames(Followed &followed)
{
    followed.names.clear();
    for (const acsi::Reference &member : followed.block.members)
        followed.names.emplace_back(acsi::toText(member), acsi::objectReferenceText(member));
}

/// Whether every data reference of the report is that of the member in its place, in either
/// notation, and in the functional constraint of the member where the text has none.
bool ReportStream::agrees(const Followed &followed, const acsi::Report &segment)
{
    const auto isMeant = [&](const acsi::ReportMember &member) {
        const auto &[name, objectName] = followed.names[member.index];
        if (member.reference == name || member.reference == objectName)
            return true;
        const auto parsed = acsi::parseReference(member.reference);
        return parsed && *parsed == followed.block.members[member.index];
    };
    return isKnownSize(followed.block, segment) && std::ranges::all_of(segment.members, isMeant);
}

void ReportStream::start(Block block)
{
    const std::string key = acsi::toText(block.block);
    Followed followed;
    followed.objectName = acsi::objectReferenceText(block.block);
    followed.block = std::move(block);
    setNames(followed);
    m_blocks.insert_or_assign(key, std::move(followed));
}

void ReportStream::settle(const std::string &block, const std::string &rptId,
                          const acsi::OptFlds &optFlds, std::uint32_t confRev)
{
    const auto found = m_blocks.find(block);
    if (found == m_blocks.end())
        return;
    found->second.block.rptId = rptId;
    found->second.block.optFlds = optFlds;
    found->second.block.confRev = confRev;
}

void ReportStream::setMembers(const std::string &block, std::vector<acsi::Reference> members)
{
    const auto found = m_blocks.find(block);
    if (found == m_blocks.end())
        return;
    found->second.block.members = std::move(members);
    setNames(found->second);
}

void ReportStream::stop(const std::string &block)
{
    m_blocks.erase(block);
}

const ReportStream::Block *ReportStream::find(const std::string &block) const
{
    const auto found = m_blocks.find(block);
    return found == m_blocks.end() ? nullptr : &found->second.block;
}

bool ReportStream::isConfusable(const Block &block) const
{
    const std::string key = acsi::toText(block.block);
    const std::string objectName = acsi::objectReferenceText(block.block);
    return std::ranges::any_of(m_blocks, [&](const auto &each) {
        const Block &other = each.second.block;
        const bool mayShareAName = other.rptId == block.rptId ||
                                   isNamed(key, objectName, block, other.rptId) ||
                                   isNamed(each.first, each.second.objectName, other, block.rptId);
        return each.first != key && mayShareAName && other.members != block.members;
    });
}

bool ReportStream::isNext(std::uint32_t before, std::uint32_t now)
{
    // Numbers have 8 bits in unbuffered blocks, 16 in buffered ones; some devices take 16 for all.
    const bool isLast = before == 0xff || before == 0xffff;
    return now == before + 1 || (isLast && now == 0);
}

int ReportStream::likeness(const std::string &key, const Followed &followed,
                           const acsi::Report &segment)
{
    const Block &block = followed.block;
    const bool named = isNamed(key, followed.objectName, block, segment.rptId);
    // Some devices leave the identifier empty.
    if (!named && !segment.rptId.empty())
        return noBlock;
    if (!segment.datSet.empty() && !isSameDataSet(block.block, segment.datSet, block.datSet))
        return noBlock;
    const bool hasReferences = segment.optFlds.dataReference && !segment.members.empty();
    const bool isSized = isKnownSize(block, segment);
    if (!block.members.empty() && !isSized && !hasReferences)
        return noBlock;
    if (hasReferences && !block.members.empty() && !agrees(followed, segment))
        return noBlock;
    const bool isAsAsked = segment.optFlds.dataSetName == block.optFlds.dataSetName &&
                           segment.optFlds.dataReference == block.optFlds.dataReference;
    return (followed.assembler.continues(segment) ? 16 : 0) + (named ? 8 : 0) +
           (isAsAsked ? 4 : 0) + (isSized ? 2 : 0);
}

std::vector<std::string> ReportStream::candidates(const acsi::Report &segment,
                                                  bool &isOfOtherData) const
{
    std::vector<std::string> best;
    int most = noBlock;
    for (const auto &[key, followed] : m_blocks) {
        const int like = likeness(key, followed, segment);
        if (like < most || like == noBlock)
            continue;
        if (like > most)
            best.clear();
        most = like;
        best.push_back(key);
    }
    if (!best.empty())
        return best;
    // Nobody reports that data; whose name it bears has another data set than was thought.
    std::vector<std::string> all;
    for (const auto &[key, followed] : m_blocks) {
        all.push_back(key);
        if (!segment.rptId.empty() &&
            isNamed(key, followed.objectName, followed.block, segment.rptId))
            best.push_back(key);
        isOfOtherData = true;
    }
    // Reports only come to who has enabled a block, so that it belongs to one of them.
    return best.empty() ? all : best;
}

void ReportStream::follow(Followed &followed, const acsi::Report &segment, Taken &taken)
{
    if (segment.sqNum) {
        const std::uint32_t now = *segment.sqNum;
        const std::optional<std::uint32_t> before = followed.sqNum;
        // The same again is another part, or a device that does not count.
        const bool isConsecutive = before && (now == *before || isNext(*before, now));
        if (!isConsecutive && followed.beforeMissing && isNext(*followed.beforeMissing, now)) {
            // Nothing was missing.
            followed.isAttributeWrong = true;
        } else if (before && !isConsecutive) {
            taken.faults.push_back(ReportFault::Gap);
            taken.missing = now > *before ? now - *before - 1 : 0;
        }
        followed.sqNum = now;
        followed.suspected.reset();
        followed.beforeMissing.reset();
    }
    if (segment.bufOvfl) {
        // Some devices say it again until they are asked something.
        if (*segment.bufOvfl && !followed.isOverflown)
            taken.faults.push_back(ReportFault::Overflow);
        followed.isOverflown = *segment.bufOvfl;
    }
}

void ReportStream::resolve(const Followed &followed, Taken &taken)
{
    const acsi::Report &report = *taken.report;
    const Block &block = followed.block;
    const bool isOther = std::ranges::count(taken.faults, ReportFault::OtherDataSet) != 0;
    // What a report says of itself goes before what was read of the data set.
    taken.areInPlace = !isOther && isKnownSize(block, report);
    bool isUnknown = false;
    for (const acsi::ReportMember &member : report.members) {
        if (taken.areInPlace) {
            isUnknown = isUnknown || block.members[member.index].node.empty();
            continue;
        }
        const auto given = acsi::parseReference(member.reference);
        taken.references.push_back(given ? *given : acsi::Reference());
        isUnknown = isUnknown || taken.references.back().node.empty();
    }
    if (isUnknown && !isOther)
        taken.faults.push_back(ReportFault::UnknownMember);
}

ReportStream::Taken ReportStream::take(acsi::Report segment, Time now)
{
    Taken taken;
    bool isOfOtherData = false;
    std::vector<std::string> keys = candidates(segment, isOfOtherData);
    if (keys.empty())
        return taken;
    if (keys.size() > 1) {
        const std::vector<acsi::Reference> &members = m_blocks.at(keys.front()).block.members;
        const bool isSameData =
            !isOfOtherData && std::ranges::all_of(keys, [&](const std::string &key) {
                return m_blocks.at(key).block.members == members;
            });
        if (!isSameData) {
            taken.ambiguous = std::move(keys);
            taken.faults.push_back(ReportFault::Ambiguous);
            return taken;
        }
        // Instances of one block: the values are the same whichever it is.
        const auto next = std::ranges::find_if(keys, [&](const std::string &key) {
            const auto &before = m_blocks.at(key).sqNum;
            return segment.sqNum && (!before || isNext(*before, *segment.sqNum));
        });
        if (next != keys.end())
            std::iter_swap(keys.begin(), next);
    }
    taken.block = keys.front();
    Followed &followed = m_blocks.at(taken.block);
    follow(followed, segment, taken);
    const bool isRevised =
        segment.confRev && followed.block.confRev && *segment.confRev != *followed.block.confRev;
    if (isOfOtherData || isRevised)
        taken.faults.push_back(ReportFault::OtherDataSet);
    const std::uint64_t dropped = followed.assembler.dropped();
    taken.report = followed.assembler.take(std::move(segment), now);
    if (followed.assembler.dropped() != dropped)
        taken.faults.push_back(ReportFault::MissingSegment);
    if (taken.report)
        resolve(followed, taken);
    return taken;
}

std::vector<std::string> ReportStream::named(const std::string &rptId) const
{
    std::vector<std::string> result;
    std::vector<std::string> all;
    for (const auto &[key, followed] : m_blocks) {
        all.push_back(key);
        if (!rptId.empty() && isNamed(key, followed.objectName, followed.block, rptId))
            result.push_back(key);
    }
    return result.empty() ? all : result;
}

std::vector<std::string> ReportStream::expire(Time now)
{
    std::vector<std::string> result;
    for (auto &[key, followed] : m_blocks) {
        const std::uint64_t dropped = followed.assembler.dropped();
        followed.assembler.expire(now);
        if (followed.assembler.dropped() != dropped)
            result.push_back(key);
    }
    return result;
}

bool ReportStream::isBehind(const std::string &block, std::uint32_t sqNum)
{
    const auto found = m_blocks.find(block);
    if (found == m_blocks.end() || !found->second.sqNum || found->second.isAttributeWrong)
        return false;
    Followed &followed = found->second;
    const std::uint32_t last = *followed.sqNum;
    if (sqNum == last || isNext(last, sqNum)) {
        followed.suspected.reset();
        return false;
    }
    if (followed.suspected != sqNum) {
        followed.suspected = sqNum;
        return false;
    }
    followed.suspected.reset();
    followed.beforeMissing = last;
    followed.sqNum = sqNum;
    return true;
}
