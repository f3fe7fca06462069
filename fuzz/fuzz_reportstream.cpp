// SPDX-License-Identifier: Apache-2.0
#include "answers.h"

#include "acsi/report.h"
#include "driver/core/reportstream.h"
#include "mms/pdu.h"

#include <array>

namespace {

using namespace fuzz;
using std::chrono::seconds;

constexpr std::array<const char *, 4> blocks = {"urcb01", "urcb02", "brcb01", "brcb02"};

acsi::Reference blockReference(std::size_t which)
{
    const bool isBuffered = which >= 2;
    return {"LD",
            "LLN0",
            isBuffered ? acsi::FunctionalConstraint::BR : acsi::FunctionalConstraint::RP,
            {{blocks[which], {}}}};
}

std::string rptIdFrom(Material &material)
{
    constexpr std::array<const char *, 3> ids = {"a", "b", "LD/LLN0$RP$urcb01"};
    const std::size_t choice = material.below(4);
    return choice < ids.size() ? std::string(ids[choice]) : name(material);
}

std::string dataSetFrom(Material &material)
{
    constexpr std::array<const char *, 3> sets = {"LD/LLN0$ds1", "LD/LLN0$ds2", "@ds"};
    const std::size_t choice = material.below(4);
    return choice < sets.size() ? std::string(sets[choice]) : name(material);
}

acsi::OptFlds optFldsFrom(Material &material)
{
    const std::uint8_t first = material.octet();
    const std::uint8_t second = material.octet();
    const std::array<std::uint8_t, 2> octets = {first, second};
    return acsi::OptFlds::from(mms::BitString(octets, 10));
}

std::vector<acsi::Reference> membersFrom(Material &material)
{
    std::vector<acsi::Reference> members(material.below(12));
    for (acsi::Reference &member : members) {
        if (material.below(8) == 0)
            continue; // what the device does not tell
        member = {"LD", name(material), acsi::FunctionalConstraint::ST, {{name(material), {}}}};
    }
    return members;
}

/// A report as a device may send it, whatever of it is true.
acsi::Report reportFrom(Material &material)
{
    acsi::Report report;
    report.rptId = rptIdFrom(material);
    report.optFlds = optFldsFrom(material);
    report.sqNum = material.octet();
    report.datSet = dataSetFrom(material);
    report.bufOvfl = material.below(4) == 0;
    report.entryId = {material.octet(), material.octet()};
    report.confRev = material.octet();
    report.subSqNum = static_cast<std::uint32_t>(material.below(4));
    report.moreSegmentsFollow = material.below(3) == 0;
    report.dataSetSize = material.below(14);
    for (std::size_t i = 0; i < report.dataSetSize; ++i) {
        if (material.below(2) == 0)
            continue;
        acsi::ReportMember member{i, {}, {}, mms::DataAccessError::HardwareFault};
        if (material.below(8) != 0)
            member.value = valueFrom(material, typeFrom(material, 3));
        member.reference = material.below(2) == 0 ? "LD/XCBR1$ST$Pos" : name(material);
        report.members.push_back(std::move(member));
    }
    return report;
}

/// A report in octets, which may be none.
std::optional<acsi::Report> received(Material &material)
{
    mms::InformationReport information;
    if (material.below(4) == 0) {
        auto pdu = mms::decodePdu(material.chunk());
        auto *unconfirmed = pdu ? std::get_if<mms::UnconfirmedPdu>(&*pdu) : nullptr;
        auto *report =
            unconfirmed ? std::get_if<mms::InformationReport>(&unconfirmed->service) : nullptr;
        if (!report)
            return std::nullopt;
        information = std::move(*report);
    } else {
        information = acsi::encodeReport(reportFrom(material));
        // A field is missing, comes twice or is something else.
        const std::size_t change = material.below(8);
        if (change < 3 && !information.results.empty()) {
            const auto place =
                information.results.begin() +
                static_cast<std::ptrdiff_t>(material.below(information.results.size()));
            if (change == 0)
                information.results.erase(place);
            else if (change == 1)
                information.results.insert(place, mms::AccessResult(*place));
            else
                *place = valueFrom(material, typeFrom(material, 2));
        }
    }
    acsi::reportIdOf(information);
    auto report = acsi::decodeReport(std::move(information));
    if (!report) {
        require(!report.error().message.empty());
        return std::nullopt;
    }
    return std::move(*report);
}

void check(const ReportStream &stream, const ReportStream::Taken &taken)
{
    require(taken.block.empty() || taken.ambiguous.empty());
    if (!taken.block.empty())
        require(stream.find(taken.block) != nullptr);
    for (const std::string &block : taken.ambiguous)
        require(stream.find(block) != nullptr);
    if (!taken.report) {
        require(taken.references.empty());
        return;
    }
    if (taken.areInPlace)
        require(stream.find(taken.block)->members.size() == taken.report->dataSetSize);
    else
        require(taken.references.size() == taken.report->members.size());
    for (const acsi::ReportMember &member : taken.report->members)
        require(member.index < taken.report->dataSetSize);
}

} // namespace

/// A device reports anything, in any order, for blocks that come and go: each report is one block's
/// or nobody's, every member has its place, and what never becomes whole is not kept for ever.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Material material(mms::Bytes(data, size));
    ReportStream stream;
    ReportStream::Time now{};
    while (!material.isUsedUp()) {
        const std::size_t which = material.below(blocks.size());
        const acsi::Reference reference = blockReference(which);
        const std::string block = acsi::toText(reference);
        switch (material.below(12)) {
        case 0:
        case 1:
            stream.start({reference,
                          rptIdFrom(material),
                          dataSetFrom(material),
                          optFldsFrom(material),
                          {},
                          membersFrom(material)});
            require(stream.find(block) != nullptr);
            stream.isConfusable(*stream.find(block));
            break;
        case 2:
            stream.settle(block, rptIdFrom(material), optFldsFrom(material), material.octet());
            break;
        case 3:
            stream.setMembers(block, membersFrom(material));
            break;
        case 4:
            stream.stop(block);
            require(stream.find(block) == nullptr);
            break;
        case 5:
            now += seconds(material.octet());
            for (const std::string &each : stream.expire(now))
                require(stream.find(each) != nullptr);
            break;
        case 6:
            stream.isBehind(block, material.octet());
            break;
        case 7:
            for (const std::string &each : stream.named(rptIdFrom(material)))
                require(stream.find(each) != nullptr);
            break;
        default:
            if (auto report = received(material))
                check(stream, stream.take(std::move(*report), now));
            break;
        }
    }
    return 0;
}
