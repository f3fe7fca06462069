// SPDX-License-Identifier: Apache-2.0
#include "controlreader.h"

#include <array>
#include <set>

namespace scl {

using wording::say;

void ControlReader::readControls(std::uint32_t element, std::string_view deviceInst,
                                 LogicalNode &node)
{
    std::vector<DataSet> dataSets;
    m_dataSets.clear();
    m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
        if (tag != Tag::DataSet)
            return;
        DataSet set;
        set.line = m_tree.at(child).line;
        set.name = trimmed(value(child, Attr::Name));
        set.desc = value(child, Attr::Desc);
        if (set.name.empty())
            error(child, say("The data set has no name."));
        if (!m_dataSets.emplace(set.name, dataSets.size()).second)
            error(child, say("There is another data set \"%1\".", set.name));
        std::vector<Fcda> members;
        m_tree.forEachChild(child, [&](std::uint32_t entry, Tag entryTag) {
            if (entryTag == Tag::Fcda) {
                Fcda member;
                member.line = m_tree.at(entry).line;
                members.push_back(member);
            }
        });
        if (members.empty())
            warn(child, say("The data set has no members."));
        const std::span<Fcda> kept = keepMutable(members);
        set.members = kept;
        m_fcdas.add(child, deviceInst, kept);
        dataSets.push_back(set);
    });
    node.dataSets = keep(dataSets);

    std::vector<ReportControlBlock> reports;
    std::vector<LogControlBlock> logControls;
    std::vector<GooseControlBlock> gooseControls;
    std::vector<SampledValueControlBlock> sampledValueControls;
    std::vector<std::string_view> logs;
    std::set<std::pair<Tag, std::string_view>> names; // unique among blocks of their kind
    const auto checkName = [&](std::uint32_t child, std::string_view name) {
        if (name.empty())
            error(child, say("The control block has no name."));
        else if (!names.emplace(m_tree.at(child).tag, name).second)
            error(child, say("There is another control block \"%1\".", name));
    };
    m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
        switch (tag) {
        case Tag::ReportControl:
            reports.push_back(readReport(child, node));
            checkName(child, reports.back().name);
            break;
        case Tag::LogControl:
            logControls.push_back(readLogControl(child, node));
            checkName(child, logControls.back().name);
            break;
        case Tag::GseControl:
            gooseControls.push_back(readGooseControl(child, node));
            checkName(child, gooseControls.back().name);
            break;
        case Tag::SampledValueControl:
            sampledValueControls.push_back(readSampledValueControl(child, node));
            checkName(child, sampledValueControls.back().name);
            break;
        case Tag::Log:
            logs.push_back(trimmed(value(child, Attr::Name)));
            break;
        case Tag::SettingControl:
            readSettingControl(child, node);
            break;
        default:
            break;
        }
    });
    node.reports = keep(reports);
    node.logControls = keep(logControls);
    node.gooseControls = keep(gooseControls);
    node.sampledValueControls = keep(sampledValueControls);
    node.logs = keep(logs);
}

const DataSet *ControlReader::dataSetOf(std::uint32_t element, const LogicalNode &node,
                                        std::string_view name)
{
    if (name.empty())
        return nullptr;
    if (const auto found = m_dataSets.find(name); found != m_dataSets.end())
        return &node.dataSets[found->second];
    error(
        element,
        say("The data set \"%1\" of the control block does not exist in its logical node.", name));
    return nullptr;
}

ConfiguredTriggers ControlReader::readTriggers(std::uint32_t element)
{
    ConfiguredTriggers triggers;
    const std::uint32_t child = m_tree.firstChild(element, Tag::TrgOps);
    if (child == noElement)
        return triggers;
    triggers.dataChange = flag(child, Attr::Dchg, false);
    triggers.qualityChange = flag(child, Attr::Qchg, false);
    triggers.dataUpdate = flag(child, Attr::Dupd, false);
    triggers.integrity = flag(child, Attr::Period, false);
    triggers.generalInterrogation = flag(child, Attr::Gi, true);
    return triggers;
}

ReportControlBlock ControlReader::readReport(std::uint32_t element, const LogicalNode &node)
{
    ReportControlBlock report;
    report.line = m_tree.at(element).line;
    report.name = trimmed(value(element, Attr::Name));
    report.desc = value(element, Attr::Desc);
    report.reportId = value(element, Attr::RptId);
    report.dataSetName = trimmed(value(element, Attr::DatSet));
    report.dataSet = dataSetOf(element, node, report.dataSetName);
    report.buffered = flag(element, Attr::Buffered, false);
    report.indexed = flag(element, Attr::Indexed, true);
    report.bufferTime = number(element, Attr::BufTime, "bufTime", 0);
    report.integrityPeriod = number(element, Attr::IntgPd, "intgPd", 0);
    report.confRev = number(element, Attr::ConfRev, "confRev", 0);
    report.triggers = readTriggers(element);
    if (const std::uint32_t child = m_tree.firstChild(element, Tag::OptFields);
        child != noElement) {
        report.fields.sequenceNumber = flag(child, Attr::SeqNum, false);
        report.fields.timeStamp = flag(child, Attr::TimeStamp, false);
        report.fields.dataSetName = flag(child, Attr::DataSet, false);
        report.fields.reasonForInclusion = flag(child, Attr::ReasonCode, false);
        report.fields.dataReference = flag(child, Attr::DataRef, false);
        report.fields.bufferOverflow = flag(child, Attr::BufOvfl, true);
        report.fields.entryId = flag(child, Attr::EntryId, false);
        report.fields.configurationRevision = flag(child, Attr::ConfigRef, false);
        report.fields.segmentation = flag(child, Attr::Segmentation, false);
    }
    std::vector<ClientNode> clients;
    if (const std::uint32_t child = m_tree.firstChild(element, Tag::RptEnabled);
        child != noElement) {
        report.maxInstances = number(child, Attr::Max, "max", 1);
        m_tree.forEachChild(child, [&](std::uint32_t client, Tag tag) {
            if (tag != Tag::ClientLn)
                return;
            clients.push_back({value(client, Attr::IedName), value(client, Attr::ApName),
                               value(client, Attr::LdInst), value(client, Attr::Prefix),
                               value(client, Attr::LnClass), value(client, Attr::LnInst)});
        });
        if (report.maxInstances == 0 || report.maxInstances > maxReportInstances) {
            const std::uint32_t used = report.maxInstances == 0 ? 1 : maxReportInstances;
            error(child,
                  say("The number of instances is %1; %2 is used.", report.maxInstances, used));
            report.maxInstances = used;
        }
    }
    report.clients = keep(clients);
    std::vector<std::string_view> names;
    if (report.indexed) {
        for (std::uint32_t i = 1; i <= report.maxInstances; ++i) {
            const std::array<char, 2> digits = {static_cast<char>('0' + i / 10),
                                                static_cast<char>('0' + i % 10)};
            names.push_back(joined(report.name, {digits.data(), digits.size()}));
        }
    } else {
        names.push_back(report.name);
    }
    report.instanceNames = keep(names);
    return report;
}

LogControlBlock ControlReader::readLogControl(std::uint32_t element, const LogicalNode &node)
{
    LogControlBlock log;
    log.line = m_tree.at(element).line;
    log.name = trimmed(value(element, Attr::Name));
    log.desc = value(element, Attr::Desc);
    log.dataSetName = trimmed(value(element, Attr::DatSet));
    log.dataSet = dataSetOf(element, node, log.dataSetName);
    log.logName = value(element, Attr::LogName);
    log.ldInst = value(element, Attr::LdInst);
    log.prefix = value(element, Attr::Prefix);
    log.lnClass = value(element, Attr::LnClass);
    log.lnInst = value(element, Attr::LnInst);
    log.enabled = flag(element, Attr::LogEna, true);
    log.reasonCode = flag(element, Attr::ReasonCode, true);
    log.integrityPeriod = number(element, Attr::IntgPd, "intgPd", 0);
    log.triggers = readTriggers(element);
    return log;
}

GooseControlBlock ControlReader::readGooseControl(std::uint32_t element, const LogicalNode &node)
{
    GooseControlBlock goose;
    goose.line = m_tree.at(element).line;
    goose.name = trimmed(value(element, Attr::Name));
    goose.desc = value(element, Attr::Desc);
    goose.dataSetName = trimmed(value(element, Attr::DatSet));
    goose.dataSet = dataSetOf(element, node, goose.dataSetName);
    goose.appId = value(element, Attr::AppId);
    goose.type = value(element, Attr::Type);
    if (goose.type.empty())
        goose.type = "GOOSE";
    goose.confRev = number(element, Attr::ConfRev, "confRev", 0);
    goose.fixedOffsets = flag(element, Attr::FixedOffs, false);
    return goose;
}

SampledValueControlBlock ControlReader::readSampledValueControl(std::uint32_t element,
                                                                const LogicalNode &node)
{
    SampledValueControlBlock control;
    control.line = m_tree.at(element).line;
    control.name = trimmed(value(element, Attr::Name));
    control.desc = value(element, Attr::Desc);
    control.dataSetName = trimmed(value(element, Attr::DatSet));
    control.dataSet = dataSetOf(element, node, control.dataSetName);
    control.svId = value(element, Attr::SmvId);
    control.sampleMode = value(element, Attr::SmpMod);
    if (control.sampleMode.empty())
        control.sampleMode = "SmpPerPeriod";
    control.confRev = number(element, Attr::ConfRev, "confRev", 0);
    control.sampleRate = number(element, Attr::SmpRate, "smpRate", 0);
    control.asduCount = number(element, Attr::NofAsdu, "nofASDU", 1);
    control.multicast = flag(element, Attr::Multicast, true);
    if (const std::uint32_t child = m_tree.firstChild(element, Tag::SmvOpts); child != noElement) {
        control.refreshTime = flag(child, Attr::RefreshTime, false);
        control.sampleSynchronized = flag(child, Attr::SampleSynchronized, true);
        control.sampleRateIncluded = flag(child, Attr::SampleRate, false);
        control.dataSetIncluded = flag(child, Attr::DataSet, false);
        control.security = flag(child, Attr::Security, false);
    }
    return control;
}

void ControlReader::readSettingControl(std::uint32_t element, LogicalNode &node)
{
    if (node.settingControl) {
        error(element,
              say("The logical node has another setting group control; the first is used."));
        return;
    }
    SettingControlBlock control;
    control.line = m_tree.at(element).line;
    control.desc = value(element, Attr::Desc);
    control.groupCount = number(element, Attr::NumOfSgs, "numOfSGs", 1);
    control.activeGroup = number(element, Attr::ActSg, "actSG", 1);
    control.reservationTime = number(element, Attr::ResvTms, "resvTms", 0);
    if (control.groupCount == 0) {
        error(element, say("The number of setting groups is 0; 1 is used."));
        control.groupCount = 1;
    }
    if (control.activeGroup == 0 || control.activeGroup > control.groupCount) {
        error(element, say("The active setting group is %1, but there are %2; group 1 is used.",
                           control.activeGroup, control.groupCount));
        control.activeGroup = 1;
    }
    if (node.lnClass != "LLN0")
        warn(element,
             say("A setting group control stands in \"%1\" instead of the LLN0.", node.name));
    node.settingControl = keepOne(control);
}

} // namespace scl
