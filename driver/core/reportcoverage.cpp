// SPDX-License-Identifier: Apache-2.0
#include "reportcoverage.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>

namespace {

using acsi::FunctionalConstraint;
using acsi::Reference;

/// What changes without any trigger although it is status or measured value.
constexpr std::array<std::string_view, 14> untold = {
    "instMag",    "instCVal",   "origin", "ctlNum",  "originSrc", "operTm", "operTmPhsA",
    "operTmPhsB", "operTmPhsC", "addr",   "addInfo", "sev",       "seqT",   "frTm"};

} // namespace

LeafTriggers standardTriggers(const Reference &leaf)
{
    LeafTriggers triggers;
    const bool isProcess =
        leaf.constraint == FunctionalConstraint::ST || leaf.constraint == FunctionalConstraint::MX;
    if (!isProcess || leaf.path.size() < 2)
        return triggers;
    // The first step is the data object, which may have any name.
    const auto isUntold = [](const acsi::PathStep &step) {
        return std::ranges::find(untold, step.name) != untold.end();
    };
    if (std::any_of(leaf.path.begin() + 1, leaf.path.end(), isUntold))
        return triggers;
    const std::string &name = leaf.path.back().name;
    if (name == "q") {
        triggers.qualityChange = true;
    } else if (name == "t") {
        triggers.dataChange = true;
        triggers.qualityChange = true;
    } else if (leaf.path[1].name == "frVal") {
        triggers.dataUpdate = true;
    } else {
        triggers.dataChange = true;
    }
    return triggers;
}

bool areTold(const LeafTriggers &needed, const LeafTriggers &on)
{
    return needed != LeafTriggers() && (on.dataChange || !needed.dataChange) &&
           (on.qualityChange || !needed.qualityChange) && (on.dataUpdate || !needed.dataUpdate);
}

void ReportedData::set(const QString &source, const std::vector<Reference> &references,
                       const ReportCoverage &coverage)
{
    Source entry;
    entry.coverage = coverage;
    for (const Reference &reference : references) {
        if (reference.constraint)
            entry.members.push_back(reference);
    }
    if (entry.members.empty())
        m_sources.remove(source);
    else
        m_sources.insert(source, std::move(entry));
}

std::vector<LeafRange>
ReportedData::coveredLeaves(const std::function<LeafRange(const Reference &)> &leavesOf,
                            const std::function<LeafTriggers(std::uint32_t)> &triggersOf,
                            std::chrono::milliseconds pollInterval) const
{
    struct Told
    {
        LeafTriggers on;
        bool isAlways = false;
    };
    std::map<std::uint32_t, Told> told;
    for (const Source &source : m_sources) {
        const ReportCoverage &coverage = source.coverage;
        const bool isAlways = coverage.integrityPeriod > std::chrono::milliseconds::zero() &&
                              coverage.integrityPeriod <= pollInterval;
        for (const Reference &member : source.members) {
            const LeafRange leaves = leavesOf(member);
            // A time that is a member by itself has nothing that it could be told with.
            const bool isLoneTime =
                leaves.count == 1 && !member.path.empty() && member.path.back().name == "t";
            for (std::uint32_t leaf = leaves.first; leaf < leaves.end(); ++leaf) {
                Told &each = told[leaf];
                each.isAlways = each.isAlways || isAlways;
                if (isLoneTime)
                    continue;
                each.on.dataChange = each.on.dataChange || coverage.dataChange;
                each.on.qualityChange = each.on.qualityChange || coverage.qualityChange;
                each.on.dataUpdate = each.on.dataUpdate || coverage.dataUpdate;
            }
        }
    }
    std::vector<LeafRange> covered;
    for (const auto &[leaf, each] : told) {
        if (!each.isAlways && !areTold(triggersOf(leaf), each.on))
            continue;
        if (!covered.empty() && covered.back().end() == leaf)
            ++covered.back().count;
        else
            covered.push_back({leaf, 1});
    }
    return covered;
}
