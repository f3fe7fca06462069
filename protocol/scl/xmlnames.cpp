// SPDX-License-Identifier: Apache-2.0
#include "xmlnames.h"

#include <array>
#include <cstddef>

namespace scl {

namespace {

template <typename Id>
struct NamedId
{
    std::string_view name;
    Id id{};
};

/// Name to number by open addressing, filled at compile time.
template <typename Id, std::size_t Slots>
class NameTable
{
public:
    template <std::size_t Count>
    constexpr explicit NameTable(const std::array<NamedId<Id>, Count> &names)
    {
        static_assert(Count * 2 <= Slots);
        for (const NamedId<Id> &entry : names) {
            std::size_t slot = hash(entry.name);
            while (!m_slots[slot].name.empty())
                slot = (slot + 1) % Slots;
            m_slots[slot] = entry;
        }
    }

    Id find(std::string_view name) const
    {
        if (name.empty())
            return Id::Other;
        for (std::size_t slot = hash(name); !m_slots[slot].name.empty();
             slot = (slot + 1) % Slots) {
            if (m_slots[slot].name == name)
                return m_slots[slot].id;
        }
        return Id::Other;
    }

    std::string_view name(Id id) const
    {
        for (const NamedId<Id> &entry : m_slots) {
            if (!entry.name.empty() && entry.id == id)
                return entry.name;
        }
        return {};
    }

private:
    static constexpr std::size_t hash(std::string_view name)
    {
        const auto at = [name](std::size_t i) {
            return static_cast<std::size_t>(static_cast<unsigned char>(name[i]));
        };
        return (name.size() * 37 + at(0) * 11 + at(name.size() / 2) * 5 + at(name.size() - 1) * 3) %
               Slots;
    }

    std::array<NamedId<Id>, Slots> m_slots{};
};

constexpr std::array tagNames = {
    NamedId<Tag>{"SCL", Tag::Scl},
    NamedId<Tag>{"Header", Tag::Header},
    NamedId<Tag>{"Communication", Tag::Communication},
    NamedId<Tag>{"SubNetwork", Tag::SubNetwork},
    NamedId<Tag>{"ConnectedAP", Tag::ConnectedAp},
    NamedId<Tag>{"Address", Tag::Address},
    NamedId<Tag>{"P", Tag::P},
    NamedId<Tag>{"GSE", Tag::Gse},
    NamedId<Tag>{"SMV", Tag::Smv},
    NamedId<Tag>{"MinTime", Tag::MinTime},
    NamedId<Tag>{"MaxTime", Tag::MaxTime},
    NamedId<Tag>{"IED", Tag::Ied},
    NamedId<Tag>{"Services", Tag::Services},
    NamedId<Tag>{"AccessPoint", Tag::AccessPoint},
    NamedId<Tag>{"Server", Tag::Server},
    NamedId<Tag>{"ServerAt", Tag::ServerAt},
    NamedId<Tag>{"LDevice", Tag::LDevice},
    NamedId<Tag>{"LN0", Tag::Ln0},
    NamedId<Tag>{"LN", Tag::Ln},
    NamedId<Tag>{"DataSet", Tag::DataSet},
    NamedId<Tag>{"FCDA", Tag::Fcda},
    NamedId<Tag>{"ReportControl", Tag::ReportControl},
    NamedId<Tag>{"TrgOps", Tag::TrgOps},
    NamedId<Tag>{"OptFields", Tag::OptFields},
    NamedId<Tag>{"RptEnabled", Tag::RptEnabled},
    NamedId<Tag>{"ClientLN", Tag::ClientLn},
    NamedId<Tag>{"LogControl", Tag::LogControl},
    NamedId<Tag>{"Log", Tag::Log},
    NamedId<Tag>{"GSEControl", Tag::GseControl},
    NamedId<Tag>{"SampledValueControl", Tag::SampledValueControl},
    NamedId<Tag>{"SmvOpts", Tag::SmvOpts},
    NamedId<Tag>{"SettingControl", Tag::SettingControl},
    NamedId<Tag>{"DOI", Tag::Doi},
    NamedId<Tag>{"SDI", Tag::Sdi},
    NamedId<Tag>{"DAI", Tag::Dai},
    NamedId<Tag>{"Val", Tag::Val},
    NamedId<Tag>{"DataTypeTemplates", Tag::DataTypeTemplates},
    NamedId<Tag>{"LNodeType", Tag::LNodeType},
    NamedId<Tag>{"DO", Tag::Do},
    NamedId<Tag>{"DOType", Tag::DoType},
    NamedId<Tag>{"SDO", Tag::Sdo},
    NamedId<Tag>{"DA", Tag::Da},
    NamedId<Tag>{"DAType", Tag::DaType},
    NamedId<Tag>{"BDA", Tag::Bda},
    NamedId<Tag>{"EnumType", Tag::EnumType},
    NamedId<Tag>{"EnumVal", Tag::EnumVal},
};

constexpr std::array attributeNames = {
    NamedId<Attr>{"actSG", Attr::ActSg},
    NamedId<Attr>{"apName", Attr::ApName},
    NamedId<Attr>{"appID", Attr::AppId},
    NamedId<Attr>{"bType", Attr::BType},
    NamedId<Attr>{"bufOvfl", Attr::BufOvfl},
    NamedId<Attr>{"bufTime", Attr::BufTime},
    NamedId<Attr>{"buffered", Attr::Buffered},
    NamedId<Attr>{"cbName", Attr::CbName},
    NamedId<Attr>{"cdc", Attr::Cdc},
    NamedId<Attr>{"confRev", Attr::ConfRev},
    NamedId<Attr>{"configRef", Attr::ConfigRef},
    NamedId<Attr>{"configVersion", Attr::ConfigVersion},
    NamedId<Attr>{"count", Attr::Count},
    NamedId<Attr>{"daName", Attr::DaName},
    NamedId<Attr>{"datSet", Attr::DatSet},
    NamedId<Attr>{"dataRef", Attr::DataRef},
    NamedId<Attr>{"dataSet", Attr::DataSet},
    NamedId<Attr>{"dchg", Attr::Dchg},
    NamedId<Attr>{"desc", Attr::Desc},
    NamedId<Attr>{"doName", Attr::DoName},
    NamedId<Attr>{"dupd", Attr::Dupd},
    NamedId<Attr>{"entryID", Attr::EntryId},
    NamedId<Attr>{"fc", Attr::Fc},
    NamedId<Attr>{"fixedOffs", Attr::FixedOffs},
    NamedId<Attr>{"gi", Attr::Gi},
    NamedId<Attr>{"id", Attr::Id},
    NamedId<Attr>{"iedName", Attr::IedName},
    NamedId<Attr>{"indexed", Attr::Indexed},
    NamedId<Attr>{"inst", Attr::Inst},
    NamedId<Attr>{"intgPd", Attr::IntgPd},
    NamedId<Attr>{"ix", Attr::Ix},
    NamedId<Attr>{"ldInst", Attr::LdInst},
    NamedId<Attr>{"ldName", Attr::LdName},
    NamedId<Attr>{"lnClass", Attr::LnClass},
    NamedId<Attr>{"lnInst", Attr::LnInst},
    NamedId<Attr>{"lnType", Attr::LnType},
    NamedId<Attr>{"logEna", Attr::LogEna},
    NamedId<Attr>{"logName", Attr::LogName},
    NamedId<Attr>{"manufacturer", Attr::Manufacturer},
    NamedId<Attr>{"max", Attr::Max},
    NamedId<Attr>{"multicast", Attr::Multicast},
    NamedId<Attr>{"name", Attr::Name},
    NamedId<Attr>{"nameLength", Attr::NameLength},
    NamedId<Attr>{"nofASDU", Attr::NofAsdu},
    NamedId<Attr>{"numOfSGs", Attr::NumOfSgs},
    NamedId<Attr>{"ord", Attr::Ord},
    NamedId<Attr>{"period", Attr::Period},
    NamedId<Attr>{"prefix", Attr::Prefix},
    NamedId<Attr>{"qchg", Attr::Qchg},
    NamedId<Attr>{"reasonCode", Attr::ReasonCode},
    NamedId<Attr>{"refreshTime", Attr::RefreshTime},
    NamedId<Attr>{"release", Attr::Release},
    NamedId<Attr>{"resvTms", Attr::ResvTms},
    NamedId<Attr>{"revision", Attr::Revision},
    NamedId<Attr>{"rptID", Attr::RptId},
    NamedId<Attr>{"sAddr", Attr::SAddr},
    NamedId<Attr>{"sGroup", Attr::SGroup},
    NamedId<Attr>{"sampleRate", Attr::SampleRate},
    NamedId<Attr>{"sampleSynchronized", Attr::SampleSynchronized},
    NamedId<Attr>{"security", Attr::Security},
    NamedId<Attr>{"segmentation", Attr::Segmentation},
    NamedId<Attr>{"seqNum", Attr::SeqNum},
    NamedId<Attr>{"smpMod", Attr::SmpMod},
    NamedId<Attr>{"smpRate", Attr::SmpRate},
    NamedId<Attr>{"smvID", Attr::SmvId},
    NamedId<Attr>{"timeout", Attr::Timeout},
    NamedId<Attr>{"timeStamp", Attr::TimeStamp},
    NamedId<Attr>{"toolID", Attr::ToolId},
    NamedId<Attr>{"transient", Attr::Transient},
    NamedId<Attr>{"type", Attr::Type},
    NamedId<Attr>{"valKind", Attr::ValKind},
    NamedId<Attr>{"version", Attr::Version},
};

constexpr NameTable<Tag, 128> tagTable{tagNames};
constexpr NameTable<Attr, 256> attributeTable{attributeNames};

} // namespace

Tag tagOf(std::string_view name)
{
    return tagTable.find(name);
}

Attr attributeOf(std::string_view name)
{
    return attributeTable.find(name);
}

std::string_view tagName(Tag tag)
{
    return tagTable.name(tag);
}

} // namespace scl
