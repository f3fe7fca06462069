// SPDX-License-Identifier: Apache-2.0
#include "reportedmembers.h"

#include "driver/text/connectiontext.h"

#include <map>
#include <string>
#include <utility>

namespace {

std::string parentOf(const std::string &reference)
{
    return reference.substr(0, reference.rfind('$'));
}

bool isNamed(const acsi::Reference &reference, const char *name)
{
    return reference.path.size() >= 2 && reference.path.back().name == name;
}

} // namespace

ReportedMembers::Member ReportedMembers::lookedUp(const OnlineModel *model,
                                                  const acsi::Reference &reference)
{
    Member member;
    member.reference = reference;
    if (reference.node.empty())
        return member;
    member.found.name = ConnectionText::text(acsi::toText(reference));
    if (!model)
        return member;
    member.found = model->find(reference);
    member.isInParts = model->isInParts(reference);
    if (isNamed(reference, "q"))
        member.qualityOf = model->leavesWithQuality(reference);
    return member;
}

ReportedMembers::ReportedMembers(const std::vector<acsi::Reference> &references, LookUp lookUp)
    : m_lookUp(std::move(lookUp))
{
    m_members.reserve(references.size());
    for (const acsi::Reference &reference : references)
        m_members.emplace_back().reference = reference;
}

bool ReportedMembers::isUsed(const OnlineModel *model) const
{
    return m_areLookedUp && m_used == model && (!model || !m_life.expired());
}

void ReportedMembers::use(const OnlineModel *model)
{
    if (isUsed(model))
        return;
    for (Member &member : m_members)
        member = m_lookUp(model, member.reference);
    addCompanions();
    m_areLookedUp = true;
    m_used = model;
    m_life = model ? model->weak_from_this() : std::weak_ptr<const OnlineModel>();
}

void ReportedMembers::addCompanions()
{
    // By the data that they belong to. Of several the last one counts.
    std::map<std::string, std::vector<std::uint32_t>> qualities;
    std::map<std::string, std::vector<std::uint32_t>> times;
    for (std::size_t i = m_members.size(); i-- > 0;) {
        const acsi::Reference &reference = m_members[i].reference;
        if (isNamed(reference, "q"))
            qualities[parentOf(acsi::toText(reference))].push_back(static_cast<std::uint32_t>(i));
        else if (isNamed(reference, "t"))
            times[parentOf(acsi::toText(reference))].push_back(static_cast<std::uint32_t>(i));
    }
    m_hasCompanions = !qualities.empty() || !times.empty();
    if (!m_hasCompanions)
        return;
    for (Member &member : m_members) {
        if (member.reference.node.empty())
            continue;
        std::string place = acsi::toText(member.reference);
        while (place.find('$') != std::string::npos) {
            place = parentOf(place);
            if (const auto found = qualities.find(place); found != qualities.end())
                member.qualities.insert(member.qualities.end(), found->second.begin(),
                                        found->second.end());
            if (const auto found = times.find(place); found != times.end())
                member.times.insert(member.times.end(), found->second.begin(), found->second.end());
        }
    }
}

ReportedValues::ReportedValues(const ReportedMembers &members, bool areInPlace,
                               const acsi::Report &report)
    : m_members(members)
    , m_report(report)
    , m_areInPlace(areInPlace)
{
    if (!members.hasCompanions())
        return;
    m_data.resize(members.size());
    for (std::size_t i = 0; i < report.members.size(); ++i) {
        const mms::AccessResult &value = report.members[i].value;
        if (value.ok() && indexOf(i) < m_data.size())
            m_data[indexOf(i)] = &value.data();
    }
}

const mms::Data *ReportedValues::nearest(const std::vector<std::uint32_t> &companions,
                                         mms::Data::Kind kind) const
{
    for (const std::uint32_t each : companions) {
        const mms::Data *const data = m_data[each];
        if (data && data->kind() == kind)
            return data;
    }
    return nullptr;
}

const mms::Data *ReportedValues::quality(std::size_t place) const
{
    return nearest(member(place).qualities, mms::Data::Kind::BitString);
}

const mms::Data *ReportedValues::time(std::size_t place) const
{
    return nearest(member(place).times, mms::Data::Kind::UtcTime);
}
