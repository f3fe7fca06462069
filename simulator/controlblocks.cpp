// SPDX-License-Identifier: Apache-2.0
#include "simulator/controlblocks.h"

namespace sim {

namespace {

using scl::BasicType;
using Kind = mms::TypeDescription::Kind;

constexpr std::int32_t referenceSize = -129;
constexpr std::int32_t firstEditionReferenceSize = -65;

LayoutDraft boolean(std::string_view name)
{
    return leafDraft(name, BasicType::Boolean, Kind::Boolean, 0);
}

LayoutDraft unsignedInteger(std::string_view name, std::int32_t bits)
{
    const BasicType type = bits == 8    ? BasicType::Int8U
                           : bits == 16 ? BasicType::Int16U
                                        : BasicType::Int32U;
    return leafDraft(name, type, Kind::Unsigned, bits);
}

LayoutDraft text(std::string_view name, std::int32_t size)
{
    return leafDraft(name, BasicType::VisString, Kind::VisibleString, size);
}

LayoutDraft bits(std::string_view name, BasicType type, std::int32_t size)
{
    return leafDraft(name, type, Kind::BitString, -size);
}

LayoutDraft entryTime(std::string_view name)
{
    return leafDraft(name, BasicType::EntryTime, Kind::BinaryTime, 0);
}

LayoutDraft entryId(std::string_view name)
{
    return leafDraft(name, BasicType::EntryId, Kind::OctetString, 8);
}

LayoutDraft reportBlock(std::string_view name, bool buffered, bool firstEdition)
{
    const std::int32_t size = firstEdition ? firstEditionReferenceSize : referenceSize;
    std::vector<LayoutDraft> members{text("RptID", size), boolean("RptEna")};
    if (!buffered)
        members.push_back(boolean("Resv"));
    members.push_back(text("DatSet", size));
    members.push_back(unsignedInteger("ConfRev", 32));
    members.push_back(bits("OptFlds", BasicType::OptFlds, 10));
    members.push_back(unsignedInteger("BufTm", 32));
    members.push_back(unsignedInteger("SqNum", buffered ? 16 : 8));
    members.push_back(bits("TrgOps", BasicType::TrgOps, 6));
    members.push_back(unsignedInteger("IntgPd", 32));
    members.push_back(boolean("GI"));
    if (buffered) {
        members.push_back(boolean("PurgeBuf"));
        members.push_back(entryId("EntryID"));
        members.push_back(entryTime("TimeofEntry"));
        if (!firstEdition)
            members.push_back(leafDraft("ResvTms", BasicType::Int16, Kind::Integer, 16));
    }
    if (!firstEdition)
        members.push_back(leafDraft("Owner", BasicType::Octet, Kind::OctetString, -64));
    return structureDraft(name, std::move(members));
}

LayoutDraft logBlock(std::string_view name)
{
    return structureDraft(name,
                          {boolean("LogEna"), text("LogRef", referenceSize),
                           text("DatSet", referenceSize), entryTime("OldEntrTm"),
                           entryTime("NewEntrTm"), entryId("OldEntr"), entryId("NewEntr"),
                           bits("TrgOps", BasicType::TrgOps, 6), unsignedInteger("IntgPd", 32)});
}

LayoutDraft gooseBlock(std::string_view name, bool firstEdition)
{
    std::vector<LayoutDraft> members{boolean("GoEna"),
                                     text("GoID", referenceSize),
                                     text("DatSet", referenceSize),
                                     unsignedInteger("ConfRev", 32),
                                     boolean("NdsCom"),
                                     communicationAddress("DstAddress")};
    if (!firstEdition) {
        members.push_back(unsignedInteger("MinTime", 32));
        members.push_back(unsignedInteger("MaxTime", 32));
        members.push_back(boolean("FixedOffs"));
    }
    return structureDraft(name, std::move(members));
}

LayoutDraft sampledValueBlock(std::string_view name, bool multicast, bool firstEdition)
{
    std::vector<LayoutDraft> members{boolean("SvEna")};
    if (!multicast)
        members.push_back(boolean("Resv"));
    members.push_back(text(multicast ? "MsvID" : "UsvID", referenceSize));
    members.push_back(text("DatSet", referenceSize));
    members.push_back(unsignedInteger("ConfRev", 32));
    members.push_back(unsignedInteger("SmpRate", 32));
    members.push_back(bits("OptFlds", BasicType::SvOptFlds, 5));
    if (!firstEdition)
        members.push_back(leafDraft("SmpMod", BasicType::Enum, Kind::Integer, 8));
    members.push_back(communicationAddress("DstAddress"));
    if (!firstEdition)
        members.push_back(unsignedInteger("noASDU", 32));
    return structureDraft(name, std::move(members));
}

LayoutDraft settingGroupBlock(bool firstEdition)
{
    std::vector<LayoutDraft> members{unsignedInteger("NumOfSG", 8), unsignedInteger("ActSG", 8),
                                     unsignedInteger("EditSG", 8), boolean("CnfEdit"),
                                     leafDraft("LActTm", BasicType::Timestamp, Kind::UtcTime, 0)};
    if (!firstEdition)
        members.push_back(unsignedInteger("ResvTms", 16));
    return structureDraft("SGCB", std::move(members));
}

} // namespace

LayoutDraft communicationAddress(std::string_view name)
{
    return structureDraft(name, {leafDraft("Addr", BasicType::Octet, Kind::OctetString, 6),
                                 unsignedInteger("PRIORITY", 8), unsignedInteger("VID", 16),
                                 unsignedInteger("APPID", 16)});
}

std::vector<std::pair<Fc, LayoutDraft>> controlBlocks(const scl::LogicalNode &logicalNode,
                                                      bool firstEdition)
{
    std::vector<std::pair<Fc, LayoutDraft>> blocks;
    if (logicalNode.settingControl)
        blocks.emplace_back(Fc::SP, settingGroupBlock(firstEdition));
    for (const scl::ReportControlBlock &report : logicalNode.reports) {
        for (const std::string_view name : report.instanceNames)
            blocks.emplace_back(report.buffered ? Fc::BR : Fc::RP,
                                reportBlock(name, report.buffered, firstEdition));
    }
    for (const scl::LogControlBlock &log : logicalNode.logControls)
        blocks.emplace_back(Fc::LG, logBlock(log.name));
    for (const scl::GooseControlBlock &goose : logicalNode.gooseControls)
        blocks.emplace_back(Fc::GO, gooseBlock(goose.name, firstEdition));
    for (const scl::SampledValueControlBlock &sampled : logicalNode.sampledValueControls)
        blocks.emplace_back(sampled.multicast ? Fc::MS : Fc::US,
                            sampledValueBlock(sampled.name, sampled.multicast, firstEdition));
    return blocks;
}

} // namespace sim
