// SPDX-License-Identifier: Apache-2.0
#include "driver/core/reportcoverage.h"

#include <QtTest/QtTest>

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

bool covers(const ReportedData &data, const char *leaf)
{
    return data.covers(reference(leaf), std::nullopt, pollInterval);
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
    void triggersOfTheFileGoBeforeTheStandards();
    void whatNothingTellsIsNeverCovered();
    void aTimeIsToldWithItsValueOnly();
    void integrityCoversWhatIsToldAsOftenAsItIsPolled();
    void sourcesAddUpAndGo();
    void membersAreComparedWhole();
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

void tst_ReportCoverage::triggersOfTheFileGoBeforeTheStandards()
{
    ReportedData data;
    data.set("block", {reference("D/N$MX$TotW")}, coverage(true, true));
    const acsi::Reference value = reference("D/N$MX$TotW$mag$f");
    QVERIFY(data.covers(value, std::nullopt, pollInterval));
    QVERIFY(!data.covers(value, LeafTriggers{true, false, true}, pollInterval));
    QVERIFY(!data.covers(value, LeafTriggers{}, pollInterval));
    const acsi::Reference instant = reference("D/N$MX$TotW$instMag$f");
    QVERIFY(data.covers(instant, LeafTriggers{true, false, false}, pollInterval));
    data.set("block", {reference("D/N$MX$TotW")}, coverage(true, true, true));
    QVERIFY(data.covers(value, LeafTriggers{true, false, true}, pollInterval));
    // No file gives a time a trigger.
    QVERIFY(data.covers(reference("D/N$MX$TotW$t"), LeafTriggers{}, pollInterval));
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
    data.set("second", {reference("D/N$ST$Pos"), reference("D/M$MX$TotW")}, coverage(false, true));
    QVERIFY(covers(data, "D/N$ST$Pos$t"));
    QCOMPARE(data.constraints(), (std::set<std::string>{"D/M$MX", "D/N$ST"}));
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

void tst_ReportCoverage::membersAreComparedWhole()
{
    ReportedData data;
    data.set("block", {reference("D/N$ST$Pos"), reference("D/N$MX$Har$har(3)")},
             coverage(true, true));
    QVERIFY(!covers(data, "D/N$ST$Position$stVal"));
    QVERIFY(!covers(data, "D/N$MX$Pos$stVal"));
    QVERIFY(!covers(data, "D/M$ST$Pos$stVal"));
    QVERIFY(covers(data, "D/N$MX$Har$har(3)$mag$f"));
    QVERIFY(!covers(data, "D/N$MX$Har$har(4)$mag$f"));
}

QTEST_GUILESS_MAIN(tst_ReportCoverage)
#include "tst_reportcoverage.moc"
