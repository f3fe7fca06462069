// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "driver/model/onlinemodel.h"

#include "acsi/report.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

/// The members of a data set that a block reports, each looked up in the model of the device once,
/// so that a report costs no look-up by text. In the strand of the device's connection.
class ReportedMembers
{
public:
    struct Member
    {
        acsi::Reference reference; ///< without a logical node where it is not known
        OnlineModel::Found found;  ///< its place in the model
        /// Nobody told the order of what the data has, so that only its parts can be understood.
        bool isInParts = false;
        /// Leaves that have their quality from this member.
        std::vector<OnlineModel::Accompanied> qualityOf;
        /// Members that may be the quality, or the time, of this one's data; the nearest first.
        std::vector<std::uint32_t> qualities;
        std::vector<std::uint32_t> times;
    };
    /// What a reference is in the model, which may be null; the members' own places are left out.
    using LookUp =
        std::function<Member(const OnlineModel *model, const acsi::Reference &reference)>;

    static Member lookedUp(const OnlineModel *model, const acsi::Reference &reference);

    explicit ReportedMembers(const std::vector<acsi::Reference> &references = {},
                             LookUp lookUp = lookedUp);

    std::size_t size() const { return m_members.size(); }
    /// Has them looked up in that model, which may be null, unless they were already. What is known
    /// of them is valid as long as that model.
    void use(const OnlineModel *model);
    /// As use() has it; one that is not known where there are fewer.
    const Member &operator[](std::size_t index) const
    {
        static const Member unknown;
        return index < m_members.size() ? m_members[index] : unknown;
    }
    /// Whether any of them is the quality or time of another.
    bool hasCompanions() const { return m_hasCompanions; }

private:
    bool isUsed(const OnlineModel *model) const;
    void addCompanions();

    LookUp m_lookUp;
    std::vector<Member> m_members;
    bool m_areLookedUp = false;
    const OnlineModel *m_used = nullptr;
    std::weak_ptr<const OnlineModel> m_life; ///< of the used one, whose place another may take
    bool m_hasCompanions = false;
};

/// The values of one report, with the members that they are of.
class ReportedValues
{
public:
    /// All live longer. @p areInPlace when the members are those of the data set, by their index;
    /// otherwise they are in the order of the report.
    ReportedValues(const ReportedMembers &members, bool areInPlace, const acsi::Report &report);

    /// Of the value in that place of the report.
    const ReportedMembers::Member &member(std::size_t place) const
    {
        return m_members[indexOf(place)];
    }
    /// The quality, or time, that came for it as a member of its own; null without.
    const mms::Data *quality(std::size_t place) const;
    const mms::Data *time(std::size_t place) const;

private:
    std::size_t indexOf(std::size_t place) const
    {
        return m_areInPlace ? m_report.members[place].index : place;
    }
    const mms::Data *nearest(const std::vector<std::uint32_t> &companions,
                             mms::Data::Kind kind) const;

    const ReportedMembers &m_members;
    const acsi::Report &m_report;
    bool m_areInPlace;
    std::vector<const mms::Data *> m_data; ///< by member; empty without companions
};
