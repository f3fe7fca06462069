// SPDX-License-Identifier: Apache-2.0
#include "acsi/report.h"
#include "mms/pdu.h"

#include <gtest/gtest.h>

#include <random>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

using namespace acsi;
using mms::Data;
using Octets = std::vector<std::uint8_t>;

/// The function under test aborts when an input breaks a promise.
void run(const mms::InformationReport &report)
{
    const Octets octets = mms::encode(mms::UnconfirmedPdu{report});
    LLVMFuzzerTestOneInput(octets.data(), octets.size());
}

/// A report with the optional fields of the low nine bits of @p choice.
Report seed(unsigned choice)
{
    Report report;
    report.rptId = "Feeder/LLN0$RP$urcbA";
    report.optFlds = {(choice & 1U) != 0,  (choice & 2U) != 0,   (choice & 4U) != 0,
                      (choice & 8U) != 0,  (choice & 16U) != 0,  (choice & 32U) != 0,
                      (choice & 64U) != 0, (choice & 128U) != 0, (choice & 256U) != 0};
    report.sqNum = 17;
    report.entryId = {1, 2, 3, 4, 5, 6, 7, 8};
    report.datSet = "Feeder/LLN0$dsA";
    report.dataSetSize = 12;
    report.members.push_back({1, "a", Triggers{true}, Data::float32(1.5F)});
    report.members.push_back({8, "b", Triggers{}, mms::DataAccessError::ObjectNonExistent});
    report.members.push_back({11, "c", Triggers{}, Data::structure({Data::boolean(true)})});
    return report;
}

} // namespace

TEST(ReportRobustness, everyChoiceOfFieldsIsReadBackAsItWasWritten)
{
    for (unsigned choice = 0; choice < 512; ++choice) {
        const mms::InformationReport encoded = encodeReport(seed(choice));
        ASSERT_TRUE(decodeReport(encoded).ok()) << choice;
        run(encoded);
    }
}

TEST(ReportRobustness, valuesLeftOutDoubledExchangedOrReplacedAreHandled)
{
    const std::vector<mms::AccessResult> replacements = {
        Data(),
        Data::boolean(true),
        Data::bitString(mms::BitString(2000)),
        Data::bitString(mms::BitString::fromText("1111111111111")),
        Data::integer(-5),
        Data::unsignedInteger(~0ULL),
        Data::float64(1e300),
        Data::octetString(Octets(300)),
        Data::visibleString(""),
        Data::binaryTime({86400000, std::nullopt}),
        mms::DataAccessError::HardwareFault};
    std::mt19937 generator(1);
    const auto below = [&generator](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(generator);
    };
    for (int i = 0; i < 100000; ++i) {
        mms::InformationReport report = encodeReport(seed(static_cast<unsigned>(below(512))));
        for (std::size_t changes = below(3) + 1; changes > 0 && !report.results.empty();
             --changes) {
            const auto place =
                report.results.begin() + static_cast<std::ptrdiff_t>(below(report.results.size()));
            switch (below(4)) {
            case 0:
                report.results.erase(place);
                break;
            case 1: {
                const mms::AccessResult copy = *place;
                report.results.insert(place, copy);
                break;
            }
            case 2:
                std::swap(*place, report.results[below(report.results.size())]);
                break;
            default:
                *place = replacements[below(replacements.size())];
                break;
            }
        }
        run(report);
    }
}

TEST(ReportRobustness, changedOctetsAreHandled)
{
    std::mt19937 generator(2);
    const Octets all = mms::encode(mms::UnconfirmedPdu{encodeReport(seed(511))});
    std::uniform_int_distribution<std::size_t> place(0, all.size() - 1);
    std::uniform_int_distribution<unsigned> value(0, 255);
    for (int i = 0; i < 100000; ++i) {
        Octets octets = all;
        for (unsigned changes = value(generator) % 3 + 1; changes > 0; --changes)
            octets[place(generator)] = static_cast<std::uint8_t>(value(generator));
        LLVMFuzzerTestOneInput(octets.data(), octets.size());
    }
}
