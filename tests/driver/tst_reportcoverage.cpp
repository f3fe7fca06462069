// SPDX-License-Identifier: Apache-2.0
#include "driver/core/reportcoverage.h"

#include <QtTest/QtTest>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

using std::chrono::milliseconds;

namespace {

constexpr milliseconds pollInterval{1000};

acsi::Reference reference(const char *text)
{
    const auto parsed = acsi::parseReference(text);
    if (!parsed)
        qFatal("%s", text);
    return *parsed;
}

ReportCoverage coverage(bool dataChange, bool qualityChange, bool dataUpdate = false,
                        int integrityPeriod = 0)
{
    return {dataChange, qualityChange, dataUpdate, milliseconds(integrityPeriod)};
}

/// The leaves of a device in the order of its types.
const std::vector<const char *> leaves = {"D/M$ST$Pos$stVal",
                                          "D/N$MX$Har$har(3)$mag$f",
                                          "D/N$MX$Har$har(4)$mag$f",
                                          "D/N$MX$TotW$instMag$f",
                                          "D/N$MX$TotW$mag$f",
                                          "D/N$MX$TotW$q",
                                          "D/N$MX$TotW$t",
                                          "D/N$ST$Mod$stVal",
                                          "D/N$ST$Pos$origin$orCat",
                                          "D/N$ST$Pos$origin$orIdent",
                                          "D/N$ST$Pos$ctlNum",
                                          "D/N$ST$Pos$stVal",
                                          "D/N$ST$Pos$q",
                                          "D/N$ST$Pos$t"};

LeafRange leavesOf(const acsi::Reference &member)
{
    const std::string text = acsi::toText(member);
    LeafRange range;
    for (std::uint32_t i = 0; i < leaves.size(); ++i) {
        const std::string leaf = leaves[i];
        if (leaf != text && leaf.rfind(text + '$', 0) != 0)
            continue;
        if (range.count++ == 0)
            range.first = i;
    }
    return range;
}

LeafTriggers triggersOf(std::uint32_t leaf)
{
    return standardTriggers(reference(leaves[leaf]));
}

bool covers(const ReportedData &data, const QByteArray &name,
            const std::function<LeafTriggers(std::uint32_t)> &triggers = triggersOf)
{
    const auto found = std::find(leaves.begin(), leaves.end(), name);
    if (found == leaves.end())
        qFatal("%s", name.constData());
    const auto leaf = static_cast<std::uint32_t>(found - leaves.begin());
    const std::vector<LeafRange> covered = data.coveredLeaves(leavesOf, triggers, pollInterval);
    return std::any_of(covered.begin(), covered.end(), [leaf](const LeafRange &range) {
        return leaf >= range.first && leaf < range.end();
    });
}

} // namespace

class tst_ReportCoverage : public QObject
{
    Q_OBJECT

private slots:
    void namesTellTheTriggersOfTheStandard_data();
    void namesTellTheTriggersOfTheStandard();
    void aLeafIsCoveredOnlyWhenAllOfItsTriggersAreOn_data();
    void aLeafIsCoveredOnlyWhenAllOfItsTriggersAreOn();
    void everyTriggerOfALeafMustBeTold();
    void whatNothingTellsIsNeverCovered();
    void aTimeIsToldWithItsValueOnly();
    void integrityCoversWhatIsToldAsOftenAsItIsPolled();
    void sourcesAddUpAndGo();
    void neighboursAreOneRange();
};

void tst_ReportCoverage::namesTellTheTriggersOfTheStandard_data()
{
    QTest::addColumn<QString>("leaf");
    QTest::addColumn<QString>("triggers");
    const auto row = [](const char *leaf, const char *triggers) {
        QTest::newRow(leaf) << QString(leaf) << QString(triggers);
    };
    row("D/N$ST$Pos$stVal", "d");
    row("D/N$ST$Pos$q", "q");
    row("D/N$ST$Pos$t", "dq");
    row("D/N$ST$Pos$origin$orCat", "");
    row("D/N$ST$Pos$ctlNum", "");
    row("D/N$ST$Op$general", "d");
    row("D/N$MX$TotW$mag$f", "d");
    row("D/N$MX$TotW$instMag$f", "");
    row("D/N$MX$PhV$phsA$cVal$mag$f", "d");
    row("D/N$MX$PhV$phsA$instCVal$ang$f", "");
    row("D/N$ST$Cnt$actVal", "d");
    row("D/N$ST$Cnt$frVal", "u");
    row("D/N$ST$Cnt$frTm", "");
    row("D/N$MX$Har$har(3)$mag$f", "d");
    // A data object may have the name of an attribute.
    row("D/N$ST$addr$stVal", "d");
    row("D/N$ST$Pos", "");
    row("D/N$SP$StrVal$setMag$f", "");
    row("D/N$CF$Pos$ctlModel", "");
}

void tst_ReportCoverage::namesTellTheTriggersOfTheStandard()
{
    QFETCH(QString, leaf);
    QFETCH(QString, triggers);
    const LeafTriggers found = standardTriggers(reference(leaf.toLatin1()));
    QCOMPARE(found.dataChange, triggers.contains('d'));
    QCOMPARE(found.qualityChange, triggers.contains('q'));
    QCOMPARE(found.dataUpdate, triggers.contains('u'));
}

void tst_ReportCoverage::aLeafIsCoveredOnlyWhenAllOfItsTriggersAreOn_data()
{
    QTest::addColumn<bool>("dataChange");
    QTest::addColumn<bool>("qualityChange");
    QTest::addColumn<QString>("covered");
    QTest::newRow("none") << false << false << "";
    QTest::newRow("data change") << true << false << "stVal";
    QTest::newRow("quality change") << false << true << "q";
    QTest::newRow("both") << true << true << "stVal q t";
}

void tst_ReportCoverage::aLeafIsCoveredOnlyWhenAllOfItsTriggersAreOn()
{
    QFETCH(bool, dataChange);
    QFETCH(bool, qualityChange);
    QFETCH(QString, covered);
    ReportedData data;
    data.set("block", {reference("D/N$ST$Pos")}, coverage(dataChange, qualityChange));
    for (const char *leaf : {"stVal", "q", "t", "ctlNum"}) {
        const QByteArray text = QByteArray("D/N$ST$Pos$") + leaf;
        QCOMPARE(covers(data, text), covered.split(' ').contains(leaf));
    }
    QVERIFY(!covers(data, "D/N$ST$Mod$stVal"));
}

void tst_ReportCoverage::everyTriggerOfALeafMustBeTold()
{
    ReportedData data;
    data.set("block", {reference("D/N$MX$TotW")}, coverage(true, true));
    const auto having = [](bool dataChange, bool qualityChange, bool dataUpdate) {
        return [=](std::uint32_t) { return LeafTriggers{dataChange, qualityChange, dataUpdate}; };
    };
    const char *const value = "D/N$MX$TotW$mag$f";
    QVERIFY(covers(data, value, having(true, false, false)));
    QVERIFY(!covers(data, value, having(true, false, true)));
    QVERIFY(!covers(data, value, having(false, false, false)));
    data.set("block", {reference("D/N$MX$TotW")}, coverage(true, true, true));
    QVERIFY(covers(data, value, having(true, false, true)));
}

void tst_ReportCoverage::whatNothingTellsIsNeverCovered()
{
    ReportedData data;
    data.set("block", {reference("D/N$MX$TotW"), reference("D/N$ST$Pos")},
             coverage(true, true, true));
    QVERIFY(!covers(data, "D/N$MX$TotW$instMag$f"));
    QVERIFY(!covers(data, "D/N$ST$Pos$origin$orIdent"));
    QVERIFY(covers(data, "D/N$MX$TotW$mag$f"));
}

void tst_ReportCoverage::aTimeIsToldWithItsValueOnly()
{
    ReportedData data;
    data.set("block", {reference("D/N$ST$Pos$stVal"), reference("D/N$ST$Pos$t")},
             coverage(true, true));
    QVERIFY(covers(data, "D/N$ST$Pos$stVal"));
    QVERIFY(!covers(data, "D/N$ST$Pos$t"));
    QVERIFY(!covers(data, "D/N$ST$Pos$q"));
}

void tst_ReportCoverage::integrityCoversWhatIsToldAsOftenAsItIsPolled()
{
    ReportedData data;
    data.set("block", {reference("D/N$MX$TotW")}, coverage(false, false, false, 1000));
    QVERIFY(covers(data, "D/N$MX$TotW$instMag$f"));
    QVERIFY(covers(data, "D/N$MX$TotW$t"));
    data.set("block", {reference("D/N$MX$TotW")}, coverage(false, false, false, 1001));
    QVERIFY(!covers(data, "D/N$MX$TotW$instMag$f"));
}

void tst_ReportCoverage::sourcesAddUpAndGo()
{
    ReportedData data;
    QVERIFY(data.isEmpty());
    data.set("first", {reference("D/N$ST$Pos")}, coverage(true, false));
    data.set("second", {reference("D/N$ST$Pos")}, coverage(false, true));
    QVERIFY(covers(data, "D/N$ST$Pos$t"));
    data.set("first", {}, {});
    QVERIFY(!covers(data, "D/N$ST$Pos$stVal"));
    QVERIFY(covers(data, "D/N$ST$Pos$q"));
    data.clear();
    QVERIFY(data.isEmpty());
    QVERIFY(!covers(data, "D/N$ST$Pos$q"));
    // The place of a member that is no data.
    data.set("first", {acsi::Reference()}, coverage(true, true));
    QVERIFY(data.isEmpty());
}

void tst_ReportCoverage::neighboursAreOneRange()
{
    ReportedData data;
    data.set("block", {reference("D/N$ST$Pos"), reference("D/N$MX$Har$har(3)")},
             coverage(true, true));
    const std::vector<LeafRange> covered = data.coveredLeaves(leavesOf, triggersOf, pollInterval);
    QVERIFY(covered == (std::vector<LeafRange>{{1, 1}, {11, 3}}));
}

QTEST_GUILESS_MAIN(tst_ReportCoverage)
#include "tst_reportcoverage.moc"
