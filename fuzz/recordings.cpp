// SPDX-License-Identifier: Apache-2.0
#include "recordings.h"

#include "acsi/discoveryplan.h"
#include "acsi/report.h"
#include "driver/device/lastentries.h"
#include "mms/pdu.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace fuzz {

namespace {

using mms::TypeDescription;
using Octets = std::vector<std::uint8_t>;

TypeDescription nodeType(bool isLarge)
{
    const TypeDescription quality = TypeDescription::bitString(-13);
    const TypeDescription status =
        TypeDescription::structure({{"stVal", TypeDescription::bitString(2)},
                                    {"q", quality},
                                    {"t", TypeDescription::utcTime()}});
    const TypeDescription block =
        TypeDescription::structure({{"RptID", TypeDescription::visibleString(-129)},
                                    {"RptEna", TypeDescription::boolean()},
                                    {"DatSet", TypeDescription::visibleString(-129)},
                                    {"ConfRev", TypeDescription::unsignedInteger(32)},
                                    {"OptFlds", TypeDescription::bitString(-10)},
                                    {"BufTm", TypeDescription::unsignedInteger(32)},
                                    {"SqNum", TypeDescription::unsignedInteger(8)},
                                    {"TrgOps", TypeDescription::bitString(-6)},
                                    {"IntgPd", TypeDescription::unsignedInteger(32)},
                                    {"GI", TypeDescription::boolean()}});
    const TypeDescription groups =
        TypeDescription::structure({{"NumOfSG", TypeDescription::unsignedInteger(8)},
                                    {"ActSG", TypeDescription::unsignedInteger(8)},
                                    {"EditSG", TypeDescription::unsignedInteger(8)},
                                    {"CnfEdit", TypeDescription::boolean()}});
    std::vector<TypeDescription::Component> groupsOfData = {
        {"ST", TypeDescription::structure({{"Pos", status}, {"Beh", status}})},
        {"DC", TypeDescription::structure(
                   {{"NamPlt", TypeDescription::structure(
                                   {{"configRev", TypeDescription::visibleString(-255)}})}})}};
    if (isLarge) {
        groupsOfData.push_back(
            {"MX", TypeDescription::structure(
                       {{"har", TypeDescription::array(8, TypeDescription::structure(
                                                              {{"f", TypeDescription::float32()},
                                                               {"q", quality}}))}})});
        groupsOfData.push_back({"RP", TypeDescription::structure({{"urcb01", block}})});
        groupsOfData.push_back({"SP", TypeDescription::structure({{"SGCB", groups}})});
    }
    return TypeDescription::structure(std::move(groupsOfData));
}

/// Names that look like several steps, or that two have, in the order that leads furthest astray.
TypeDescription forgedType()
{
    const TypeDescription flag = TypeDescription::boolean();
    const TypeDescription steps = TypeDescription::structure({{"b", flag}, {"c", flag}});
    return TypeDescription::structure(
        {{"ST", TypeDescription::structure(
                    {{"a", TypeDescription::structure({{"b", steps}, {"b", flag}})},
                     {"har", TypeDescription::array(4, steps)},
                     {"har(3)", flag},
                     {"a", flag},
                     {"a$b", flag}})}});
}

mms::ResponseService answerTo(const mms::RequestService &request, const TypeDescription &node)
{
    if (const auto *list = std::get_if<mms::GetNameListRequest>(&request)) {
        mms::GetNameListResponse page;
        page.moreFollows = false;
        if (list->objectClass == mms::ObjectClass::Domain)
            page.names = {"FUZZLD"};
        else if (list->scope == mms::Scope::Domain &&
                 list->objectClass == mms::ObjectClass::NamedVariable)
            page.names = {"LLN0", "LLN0$ST", "LLN0$ST$Pos", "XCBR1", "XCBR1$ST$Pos$stVal"};
        else if (list->scope == mms::Scope::Domain &&
                 list->objectClass == mms::ObjectClass::NamedVariableList)
            page.names = {"LLN0$ds"};
        return page;
    }
    if (std::holds_alternative<mms::GetVariableAccessAttributesRequest>(request)) {
        mms::GetVariableAccessAttributesResponse response;
        response.type = node;
        return response;
    }
    if (std::holds_alternative<mms::GetNamedVariableListAttributesRequest>(request)) {
        mms::GetNamedVariableListAttributesResponse response;
        response.members = {{mms::ObjectName::inDomain("FUZZLD", "XCBR1$ST$Pos"), {}}};
        return response;
    }
    return mms::IdentifyResponse{"vendor", "model", "1.0", {}};
}

void append(Octets &input, const Octets &chunk)
{
    input.push_back(static_cast<std::uint8_t>(chunk.size() >> 8U));
    input.push_back(static_cast<std::uint8_t>(chunk.size()));
    input.insert(input.end(), chunk.begin(), chunk.end());
}

/// @param refuseEvery an answer in so many; 0 for none
Octets discoveryRecording(const TypeDescription &node, std::size_t refuseEvery)
{
    Octets input = {0}; // one call at a time
    acsi::DiscoveryPlan plan(1);
    std::size_t count = 0;
    while (auto request = plan.next()) {
        input.push_back(0); // no event, the first request
        if (refuseEvery != 0 && ++count % refuseEvery == 0) {
            constexpr std::uint8_t resource = 3;
            input.insert(input.end(), {1, resource, 0});
            plan.answered(request->step,
                          mms::ServiceError{static_cast<mms::ErrorClass>(resource), 0, {}, {}, {}});
            continue;
        }
        mms::ResponseService answer = answerTo(request->service.service(), node);
        input.push_back(0); // an answer in octets
        append(input, mms::encode(mms::ConfirmedResponsePdu{1, answer}));
        plan.answered(request->step, std::move(answer));
    }
    return input;
}

acsi::Report reportOf(std::uint32_t number, bool isLast)
{
    acsi::Report report;
    report.rptId = "a";
    report.optFlds = {true, true, true, true, false, true, true, true, true};
    report.sqNum = number;
    report.timeOfEntry = mms::BinaryTime{1000, 4000};
    report.datSet = "LD/LLN0$ds1";
    report.bufOvfl = false;
    report.entryId = {0, 0, 0, 0, 0, 0, 0, static_cast<std::uint8_t>(number)};
    report.confRev = 1;
    report.subSqNum = isLast ? 1 : 0;
    report.moreSegmentsFollow = !isLast;
    report.dataSetSize = 2;
    acsi::Triggers reason;
    reason.dataChange = true;
    report.members.push_back(
        {isLast ? 1U : 0U, {}, reason, mms::Data::structure({mms::Data::boolean(true)})});
    return report;
}

} // namespace

std::vector<Octets> discoveryRecordings()
{
    std::vector<Octets> recordings;
    for (const TypeDescription &node : {nodeType(false), nodeType(true), forgedType()}) {
        for (const std::size_t refuseEvery : {0U, 3U, 5U, 6U})
            recordings.push_back(discoveryRecording(node, refuseEvery));
    }
    return recordings;
}

std::vector<Octets> reportRecordings()
{
    // The first block is enabled with the id "a" and the first data set, and has two members.
    const Octets start = {0, 0, 0, 0, 0x7b, 0x80, 2, 1, 0, 0, 1, 2, 0};
    std::vector<Octets> recordings;
    for (const std::uint32_t step : {1U, 2U}) {
        Octets input = start;
        for (std::uint32_t number = 0; number < 6; number += step) {
            for (const bool isLast : {false, true}) {
                input.insert(input.end(), {0, 11, 0});
                append(input, mms::encode(mms::UnconfirmedPdu{
                                  acsi::encodeReport(reportOf(number, isLast))}));
            }
        }
        recordings.push_back(std::move(input));
    }
    return recordings;
}

std::vector<Octets> lastEntriesFiles()
{
    std::vector<Octets> files;
    for (const int blocks : {1, 3}) {
        const QTemporaryDir folder;
        LastEntries entries(folder.path(), QStringLiteral("127.0.0.1:102"));
        for (int i = 1; i <= blocks; ++i) {
            entries.set(QStringLiteral("LD/LLN0$BR$brcb0%1").arg(i),
                        {"LD/LLN0$ds", "id", "0100110", 5, 1000}, {0, 1, 2, 3, 4, 5, 6, 7});
        }
        entries.save();
        const QFileInfoList written = QDir(folder.path()).entryInfoList(QDir::Files);
        for (const QFileInfo &each : written) {
            QFile file(each.filePath());
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const QByteArray bytes = file.readAll();
            files.emplace_back(bytes.begin(), bytes.end());
        }
    }
    return files;
}

} // namespace fuzz
