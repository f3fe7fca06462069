// SPDX-License-Identifier: Apache-2.0
#include "reportcoverage.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

using acsi::FunctionalConstraint;
using acsi::Reference;

/// What changes without any trigger although it is status or measured value.
constexpr std::array<std::string_view, 14> untold = {
    "instMag",    "instCVal",   "origin", "ctlNum",  "originSrc", "operTm", "operTmPhsA",
    "operTmPhsB", "operTmPhsC", "addr",   "addInfo", "sev",       "seqT",   "frTm"};

bool isAtOrBelow(const Reference &reference, const Reference &ancestor)
{
    return reference.device == ancestor.device && reference.node == ancestor.node &&
           reference.constraint == ancestor.constraint &&
           reference.path.size() >= ancestor.path.size() &&
           std::equal(ancestor.path.begin(), ancestor.path.end(), reference.path.begin(),
                      [](const acsi::PathStep &above, const acsi::PathStep &below) {
                          // A whole array has all of its elements.
                          return above.name == below.name &&
                                 (!above.element || above.element == below.element);
                      });
}

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

void ReportedData::forEachMember(
    const std::function<void(const Reference &, const ReportCoverage &)> &visitor) const
{
    for (const Source &source : m_sources) {
        for (const Reference &member : source.members)
            visitor(member, source.coverage);
    }
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

std::set<std::string> ReportedData::constraints() const
{
    std::set<std::string> result;
    for (const Source &source : m_sources) {
        for (const Reference &member : source.members)
            result.insert(
                acsi::toText(Reference{member.device, member.node, member.constraint, {}}));
    }
    return result;
}

bool ReportedData::covers(const Reference &leaf, const std::optional<LeafTriggers> &declared,
                          std::chrono::milliseconds pollInterval) const
{
    const LeafTriggers standard = standardTriggers(leaf);
    const bool isTime = !leaf.path.empty() && leaf.path.back().name == "t";
    // Files give times no trigger, since they are told with what they belong to.
    const LeafTriggers needed = declared && !isTime ? *declared : standard;
    LeafTriggers on;
    for (const Source &source : m_sources) {
        for (const Reference &member : source.members) {
            if (!isAtOrBelow(leaf, member))
                continue;
            const std::chrono::milliseconds period = source.coverage.integrityPeriod;
            if (period.count() > 0 && period <= pollInterval)
                return true;
            // A time that is a member by itself has nothing that it could be told with.
            if (isTime && member.path.size() == leaf.path.size())
                continue;
            on.dataChange = on.dataChange || source.coverage.dataChange;
            on.qualityChange = on.qualityChange || source.coverage.qualityChange;
            on.dataUpdate = on.dataUpdate || source.coverage.dataUpdate;
        }
    }
    return areTold(needed, on);
}
