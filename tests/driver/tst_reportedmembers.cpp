// SPDX-License-Identifier: Apache-2.0
#include "driver/core/reportstream.h"
#include "driver/device/reportedmembers.h"

#include <QtTest/QtTest>

using mms::TypeDescription;

namespace {

const std::string blockName = "LD/LLN0$RP$block";

acsi::Reference reference(const std::string &text)
{
    const auto parsed = acsi::parseReference(text);
    if (!parsed)
        qFatal("%s", text.c_str());
    return *parsed;
}

std::vector<acsi::Reference> references(const std::vector<std::string> &texts)
{
    std::vector<acsi::Reference> result;
    for (const std::string &each : texts)
        result.push_back(reference(each));
    return result;
}

/// A node with some indications; Ind1 is the first of its data, or has others before it.
std::shared_ptr<OnlineModel> modelWith(int othersBefore)
{
    const TypeDescription status =
        TypeDescription::structure({{"stVal", TypeDescription::boolean()},
                                    {"q", TypeDescription::bitString(-13)},
                                    {"t", TypeDescription::utcTime()}});
    std::vector<TypeDescription::Component> data;
    for (int i = 1; i <= othersBefore; ++i)
        data.push_back({"Alm" + std::to_string(i), status});
    for (const char *name : {"Ind1", "Ind2"})
        data.push_back({name, status});
    acsi::DeviceDescription device;
    device.name = "LD";
    device.nodes.push_back(
        {"GGIO1",
         acsi::SharedType(TypeDescription::structure({{"ST", TypeDescription::structure(data)}})),
         {}});
    acsi::ServerDescription server;
    server.devices.push_back(std::move(device));
    return std::make_shared<OnlineModel>(std::move(server), QString(), nullptr);
}

/// Counts what is looked up.
ReportedMembers::LookUp counting(int &count)
{
    return [&count](const OnlineModel *model, const acsi::Reference &each) {
        ++count;
        return ReportedMembers::lookedUp(model, each);
    };
}

/// A report of the data set's members at those places, in that order.
acsi::Report reportOf(std::size_t dataSetSize, const std::vector<std::size_t> &places)
{
    acsi::Report report;
    report.rptId = "id";
    report.dataSetSize = dataSetSize;
    for (const std::size_t each : places)
        report.members.push_back({each, {}, {}, mms::Data::boolean(true)});
    return report;
}

mms::Data quality(const char *bits)
{
    return mms::Data::bitString(mms::BitString::fromText(bits));
}

} // namespace

class tst_ReportedMembers : public QObject
{
    Q_OBJECT

private slots:
    void membersAreLookedUpOnceForAllReports();
    void membersAreLookedUpAnewInAnotherModel();
    void membersThatReportsNameThemselvesAreInTheOrderOfTheReport();
    void qualitiesAndTimesAreFoundWhereverTheyStand();
    void theNewestCompanionThatHasAValueCounts();
    void whatIsNotKnownHasNoPlace();
};

void tst_ReportedMembers::membersAreLookedUpOnceForAllReports()
{
    const std::vector<std::string> names = {"LD/GGIO1$ST$Ind1", "LD/GGIO1$ST$Ind2$stVal",
                                            "LD/GGIO1$ST$Ind2$q"};
    const auto model = modelWith(1);
    ReportStream stream;
    ReportStream::Block block;
    block.block = reference(blockName);
    block.rptId = "id";
    block.members = references(names);
    stream.start(block);
    int lookUps = 0;
    ReportedMembers members(stream.find(blockName)->members, counting(lookUps));
    const std::vector<std::vector<std::size_t>> inclusions = {{0, 1, 2}, {1}, {2}, {0, 2}};
    int values = 0;
    for (int round = 0; round < 100; ++round) {
        acsi::Report report = reportOf(3, inclusions[static_cast<std::size_t>(round) % 4]);
        report.optFlds.dataReference = round % 3 == 0;
        for (acsi::ReportMember &each : report.members) {
            if (report.optFlds.dataReference)
                each.reference = names[each.index];
        }
        const ReportStream::Taken taken = stream.take(std::move(report), {});
        QVERIFY(taken.report && taken.areInPlace && taken.faults.empty());
        members.use(model.get());
        const ReportedValues reported(members, taken.areInPlace, *taken.report);
        for (std::size_t i = 0; i < taken.report->members.size(); ++i, ++values) {
            const std::string &name = names[taken.report->members[i].index];
            QVERIFY(reported.member(i).reference == reference(name));
            QVERIFY(reported.member(i).found.type == model->type(reference(name)));
            QCOMPARE(reported.member(i).found.firstLeaf, model->leafRange(reference(name)).first);
        }
    }
    QCOMPARE(values, 25 * (3 + 1 + 1 + 2));
    QCOMPARE(lookUps, 3);
}

void tst_ReportedMembers::membersAreLookedUpAnewInAnotherModel()
{
    const acsi::Reference member = reference("LD/GGIO1$ST$Ind1$stVal");
    int lookUps = 0;
    ReportedMembers members({member}, counting(lookUps));
    members.use(nullptr);
    members.use(nullptr);
    QCOMPARE(lookUps, 1);
    QVERIFY(!members[0].found.type);
    QCOMPARE(members[0].found.name, QStringLiteral("LD/GGIO1$ST$Ind1$stVal"));
    for (int round = 0; round < 20; ++round) {
        // The former one is gone: this one may stand in its place.
        const auto model = modelWith(round % 3);
        members.use(model.get());
        members.use(model.get());
        QCOMPARE(lookUps, round + 2);
        QVERIFY(members[0].found.type == model->type(member));
        QCOMPARE(members[0].found.firstLeaf, 3U * static_cast<unsigned>(round % 3));
    }
    members.use(nullptr);
    QVERIFY(!members[0].found.type);
}

void tst_ReportedMembers::membersThatReportsNameThemselvesAreInTheOrderOfTheReport()
{
    const auto model = modelWith(0);
    ReportedMembers members(references({"LD/GGIO1$ST$Ind2$stVal", "LD/GGIO1$ST$Ind1$stVal"}));
    members.use(model.get());
    // Their indices are those of a data set that is not known.
    const acsi::Report report = reportOf(40, {17, 30});
    const ReportedValues values(members, false, report);
    QCOMPARE(values.member(0).found.firstLeaf, 3U);
    QCOMPARE(values.member(1).found.firstLeaf, 0U);
}

void tst_ReportedMembers::qualitiesAndTimesAreFoundWhereverTheyStand()
{
    const auto model = modelWith(0);
    ReportedMembers members(
        references({"LD/GGIO1$ST$Ind2$q", "LD/GGIO1$ST$Ind1$q", "LD/GGIO1$ST$Ind1$stVal",
                    "LD/GGIO1$ST$Ind2$stVal", "LD/GGIO1$ST$Ind1$t"}));
    members.use(model.get());
    acsi::Report report = reportOf(5, {1, 2, 3, 4});
    report.members[0].value = quality("0100000000000");
    report.members[3].value = mms::Data::utcTime({});
    const ReportedValues values(members, true, report);
    QVERIFY(values.quality(1) == &report.members[0].value.data());
    QVERIFY(values.time(1) == &report.members[3].value.data());
    // Its quality is a member, but not of this report, and another object's is not meant.
    QVERIFY(!values.quality(2));
    QVERIFY(!values.time(2));
    // Values that are known already have their quality from it.
    const auto &leaves = members[1].qualityOf;
    QVERIFY(std::any_of(leaves.begin(), leaves.end(),
                        [](const OnlineModel::Accompanied &each) { return each.leaf == 0; }));
    QVERIFY(std::all_of(leaves.begin(), leaves.end(), [](const OnlineModel::Accompanied &each) {
        return each.quality->reference == QLatin1String("LD/GGIO1$ST$Ind1$q");
    }));
    QVERIFY(members[2].qualityOf.empty());
}

void tst_ReportedMembers::theNewestCompanionThatHasAValueCounts()
{
    const auto model = modelWith(0);
    ReportedMembers members(
        references({"LD/GGIO1$ST$Ind1$stVal", "LD/GGIO1$ST$Ind1$q", "LD/GGIO1$ST$Ind1$q"}));
    members.use(model.get());
    acsi::Report report = reportOf(3, {0, 1, 2});
    report.members[1].value = quality("0100000000000");
    report.members[2].value = quality("1100000000000");
    QVERIFY(ReportedValues(members, true, report).quality(0) == &report.members[2].value.data());
    // No quality at all, by its kind.
    report.members[2].value = mms::Data::boolean(true);
    QVERIFY(ReportedValues(members, true, report).quality(0) == &report.members[1].value.data());
    report.members[1].value = mms::DataAccessError::ObjectAccessDenied;
    QVERIFY(!ReportedValues(members, true, report).quality(0));
}

void tst_ReportedMembers::whatIsNotKnownHasNoPlace()
{
    const auto model = modelWith(0);
    ReportedMembers members({reference("LD/GGIO1$ST$Ind1$stVal"), acsi::Reference(),
                             reference("LD/GGIO9$ST$Ind1$stVal")});
    members.use(model.get());
    QVERIFY(members[0].found.type);
    QVERIFY(members[1].reference.node.empty());
    QVERIFY(!members[1].found.type);
    QVERIFY(!members[2].found.type);
    QVERIFY(members[3].reference.node.empty());
    const acsi::Report longer = reportOf(5, {0, 4});
    const ReportedValues values(members, true, longer);
    QVERIFY(values.member(0).found.type);
    QVERIFY(!values.member(1).found.type);
}

QTEST_GUILESS_MAIN(tst_ReportedMembers)
#include "tst_reportedmembers.moc"
