// SPDX-License-Identifier: Apache-2.0
#include "driver/core/reportstream.h"

#include <QtTest/QtTest>

using namespace std::chrono_literals;

namespace {

using Faults = std::vector<ReportFault>;

acsi::Reference reference(const std::string &text)
{
    const auto parsed = acsi::parseReference(text);
    if (!parsed)
        qFatal("%s", text.c_str());
    return *parsed;
}

const std::string first = "LD/LLN0$RP$first";
const std::string second = "LD/LLN0$RP$second";

/// A block with a data set of three members, named after the data.
ReportStream::Block block(const std::string &key, const std::string &rptId, const std::string &data)
{
    ReportStream::Block result;
    result.block = reference(key);
    result.rptId = rptId;
    result.datSet = "LD/LLN0$" + data;
    for (const char *member : {"1", "2", "3"})
        result.members.push_back(reference("LD/" + data + "$ST$Ind" + member));
    result.optFlds.sequenceNumber = true;
    return result;
}

acsi::Report report(const std::string &rptId, std::optional<std::uint32_t> sqNum = {})
{
    acsi::Report result;
    result.rptId = rptId;
    result.optFlds.sequenceNumber = sqNum.has_value();
    result.sqNum = sqNum;
    result.dataSetSize = 3;
    result.members.push_back({1, {}, {}, mms::Data::boolean(true)});
    return result;
}

/// What the first member of the report is.
std::string firstOf(const ReportStream &stream, const ReportStream::Taken &taken)
{
    const std::size_t index = taken.report->members.front().index;
    return acsi::toText(taken.areInPlace ? stream.find(taken.block)->members[index]
                                         : taken.references.front());
}

acsi::Report part(std::uint32_t sqNum, std::uint32_t subSqNum, bool moreFollow)
{
    acsi::Report result = report("id", sqNum);
    result.optFlds.segmentation = true;
    result.subSqNum = subSqNum;
    result.moreSegmentsFollow = moreFollow;
    result.members.front().index = subSqNum;
    return result;
}

} // namespace

class tst_ReportStream : public QObject
{
    Q_OBJECT

private slots:
    void aReportIsThatOfTheBlockWithItsName();
    void aReportOfNobodyIsNobodys();
    void theValuesOfAReportAreMovedNotCopied();
    void consecutiveNumbersAreWell_data();
    void consecutiveNumbersAreWell();
    void missingNumbersAreAGap_data();
    void missingNumbersAreAGap();
    void aReportWithoutNumberIsNoGap();
    void partsBecomeOneReport();
    void aMissingPartIsToldOnce();
    void partsThatWaitTooLongAreMissing();
    void partsOfBlocksOfOneNameDoNotMix();
    void anOverflowIsToldOnceUntilItIsOver();
    void blocksOfOneNameAreToldApartByTheirDataSet();
    void blocksOfOneNameAreToldApartByDataReferences();
    void whatOneNameDoesNotTellApartIsNotGuessed();
    void blocksThatCouldBeConfusedAreKnown();
    void instancesOfOneBlockFollowTheirNumbers();
    void aReportOfAnotherDataSetIsTold();
    void anotherRevisionOfTheDataSetIsTold();
    void dataReferencesAreBelieved();
    void aMemberThatIsNoDataIsTold();
    void aReportUnderAnUnknownNameConcernsAll();
    void numbersOfTheBlockTellWhatIsMissingBehindTheLastReport();
    void aBlockThatDoesNotCountIsNotBelieved();
    void stoppedBlocksTakeNothing();
};

void tst_ReportStream::aReportIsThatOfTheBlockWithItsName()
{
    ReportStream stream;
    stream.start(block(first, "one", "A"));
    stream.start(block(second, "two", "B"));
    const ReportStream::Taken taken = stream.take(report("two", 0), {});
    QCOMPARE(taken.block, second);
    QVERIFY(taken.report);
    QVERIFY(taken.faults.empty());
    QVERIFY(taken.areInPlace);
    QCOMPARE(firstOf(stream, taken), std::string("LD/B$ST$Ind2"));
    // Blocks without an identifier of their own report under their reference.
    QCOMPARE(stream.take(report(first, 0), {}).block, first);
    QCOMPARE(stream.take(report("LD/LLN0.first", 1), {}).block, first);
}

void tst_ReportStream::aReportOfNobodyIsNobodys()
{
    ReportStream stream;
    const ReportStream::Taken taken = stream.take(report("id", 0), {});
    QVERIFY(taken.block.empty());
    QVERIFY(taken.ambiguous.empty());
    QVERIFY(taken.faults.empty());
}

void tst_ReportStream::theValuesOfAReportAreMovedNotCopied()
{
    // A value that is not inside its Data stays where the decoder has put it.
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    const std::string longText(100, 'x');
    std::vector<const char *> decoded;
    std::optional<acsi::Report> whole;
    for (std::uint32_t i = 0; i < 3; ++i) {
        acsi::Report segment = part(0, i, i < 2);
        segment.members.front().value = mms::Data::visibleString(longText);
        mms::InformationReport information = acsi::encodeReport(segment);
        decoded.push_back(information.results.back().data().text().data());
        auto read = acsi::decodeReport(std::move(information));
        QVERIFY(read);
        whole = stream.take(*std::move(read), {}).report;
    }
    QVERIFY(whole);
    QCOMPARE(whole->members.size(), decoded.size());
    for (std::size_t i = 0; i < decoded.size(); ++i) {
        QVERIFY(whole->members[i].value.data().text() == longText);
        QVERIFY(whole->members[i].value.data().text().data() == decoded[i]);
    }
}

void tst_ReportStream::consecutiveNumbersAreWell_data()
{
    QTest::addColumn<quint32>("before");
    QTest::addColumn<quint32>("now");
    QTest::newRow("next") << quint32(7) << quint32(8);
    QTest::newRow("end of 8 bits") << quint32(255) << quint32(0);
    QTest::newRow("16 bits go on") << quint32(255) << quint32(256);
    QTest::newRow("end of 16 bits") << quint32(65535) << quint32(0);
    QTest::newRow("a device that does not count") << quint32(0) << quint32(0);
}

void tst_ReportStream::consecutiveNumbersAreWell()
{
    QFETCH(quint32, before);
    QFETCH(quint32, now);
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    QVERIFY(stream.take(report("id", before), {}).faults.empty());
    QVERIFY(stream.take(report("id", now), {}).faults.empty());
}

void tst_ReportStream::missingNumbersAreAGap_data()
{
    QTest::addColumn<quint32>("before");
    QTest::addColumn<quint32>("now");
    QTest::addColumn<quint32>("missing");
    QTest::newRow("one") << quint32(7) << quint32(9) << quint32(1);
    QTest::newRow("many") << quint32(0) << quint32(100) << quint32(99);
    QTest::newRow("counted anew") << quint32(7) << quint32(0) << quint32(0);
    QTest::newRow("backwards") << quint32(7) << quint32(6) << quint32(0);
}

void tst_ReportStream::missingNumbersAreAGap()
{
    QFETCH(quint32, before);
    QFETCH(quint32, now);
    QFETCH(quint32, missing);
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    stream.take(report("id", before), {});
    const ReportStream::Taken taken = stream.take(report("id", now), {});
    QVERIFY(taken.faults == Faults{ReportFault::Gap});
    QCOMPARE(taken.missing, missing);
    // The report itself is taken.
    QVERIFY(taken.report);
    QVERIFY(stream.take(report("id", now + 1), {}).faults.empty());
}

void tst_ReportStream::aReportWithoutNumberIsNoGap()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    stream.take(report("id", 7), {});
    QVERIFY(stream.take(report("id"), {}).faults.empty());
    QVERIFY(stream.take(report("id", 8), {}).faults.empty());
}

void tst_ReportStream::partsBecomeOneReport()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    QVERIFY(!stream.take(part(4, 0, true), {}).report);
    const ReportStream::Taken taken = stream.take(part(4, 1, false), {});
    QVERIFY(taken.faults.empty());
    QVERIFY(taken.report);
    QCOMPARE(taken.report->members.size(), std::size_t(2));
    QVERIFY(taken.areInPlace);
    QVERIFY(stream.take(report("id", 5), {}).faults.empty());
}

void tst_ReportStream::aMissingPartIsToldOnce()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    stream.take(part(4, 0, true), {});
    const ReportStream::Taken taken = stream.take(part(4, 2, false), {});
    QVERIFY(!taken.report);
    QVERIFY(taken.faults == Faults{ReportFault::MissingSegment});
    QVERIFY(stream.take(report("id", 5), {}).faults.empty());
}

void tst_ReportStream::partsThatWaitTooLongAreMissing()
{
    ReportStream stream;
    const ReportStream::Time start{};
    stream.start(block(first, "id", "A"));
    stream.start(block(second, "other", "B"));
    stream.take(part(4, 0, true), start);
    QVERIFY(stream.expire(start + 30s).empty());
    QCOMPARE(stream.expire(start + 31s), std::vector<std::string>{first});
    QVERIFY(stream.expire(start + 99s).empty());
}

void tst_ReportStream::partsOfBlocksOfOneNameDoNotMix()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    stream.start(block(second, "id", "A"));
    // Instances of one block, which send their parts by turns.
    QCOMPARE(stream.take(part(1, 0, true), {}).block, first);
    QCOMPARE(stream.take(part(1, 1, false), {}).block, first);
    QCOMPARE(stream.take(part(2, 0, true), {}).block, first);
    QCOMPARE(stream.take(part(9, 0, true), {}).block, second);
    const ReportStream::Taken taken = stream.take(part(2, 1, false), {});
    QCOMPARE(taken.block, first);
    QVERIFY(taken.report);
    QVERIFY(stream.take(part(9, 1, false), {}).report);
}

void tst_ReportStream::anOverflowIsToldOnceUntilItIsOver()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    acsi::Report lossy = report("id", 0);
    lossy.bufOvfl = true;
    QVERIFY(stream.take(lossy, {}).faults == Faults{ReportFault::Overflow});
    lossy.sqNum = 1;
    QVERIFY(stream.take(lossy, {}).faults.empty());
    lossy.sqNum = 2;
    lossy.bufOvfl = false;
    QVERIFY(stream.take(lossy, {}).faults.empty());
    lossy.sqNum = 3;
    lossy.bufOvfl = true;
    QVERIFY(stream.take(lossy, {}).faults == Faults{ReportFault::Overflow});
}

void tst_ReportStream::blocksOfOneNameAreToldApartByTheirDataSet()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    ReportStream::Block other = block(second, "id", "B");
    other.optFlds.dataSetName = true;
    stream.start(other);
    acsi::Report named = report("id", 0);
    named.optFlds.dataSetName = true;
    named.datSet = "LD/LLN0$B";
    const ReportStream::Taken taken = stream.take(named, {});
    QCOMPARE(taken.block, second);
    QVERIFY(taken.areInPlace);
    QCOMPARE(firstOf(stream, taken), std::string("LD/B$ST$Ind2"));
    // The block that was enabled first does not name its data set: what has no name is its report.
    QCOMPARE(stream.take(report("id", 0), {}).block, first);
}

void tst_ReportStream::blocksOfOneNameAreToldApartByDataReferences()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    stream.start(block(second, "id", "B"));
    acsi::Report named = report("id", 0);
    named.optFlds.dataReference = true;
    named.members.front().reference = "LD/B.Ind2";
    QCOMPARE(stream.take(named, {}).block, second);
    named.members.front().reference = "LD/A$ST$Ind2";
    QCOMPARE(stream.take(named, {}).block, first);
}

void tst_ReportStream::whatOneNameDoesNotTellApartIsNotGuessed()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    stream.start(block(second, "id", "B"));
    for (const char *name : {"id", ""}) {
        const ReportStream::Taken taken = stream.take(report(name, 0), {});
        QVERIFY(taken.block.empty());
        QVERIFY(!taken.report);
        QCOMPARE(taken.ambiguous, (std::vector<std::string>{first, second}));
        QVERIFY(taken.faults == Faults{ReportFault::Ambiguous});
    }
}

void tst_ReportStream::blocksThatCouldBeConfusedAreKnown()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    QVERIFY(stream.isConfusable(block(second, "id", "B")));
    QVERIFY(!stream.isConfusable(block(second, "id", "A")));
    QVERIFY(!stream.isConfusable(block(second, "other", "B")));
    QVERIFY(!stream.isConfusable(block(first, "id", "B")));
    QVERIFY(stream.isConfusable(block(second, first, "B")));
}

void tst_ReportStream::instancesOfOneBlockFollowTheirNumbers()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    stream.start(block(second, "id", "A"));
    QCOMPARE(stream.take(report("id", 0), {}).block, first);
    QCOMPARE(stream.take(report("id", 1), {}).block, first);
    QCOMPARE(stream.take(report("id", 0), {}).block, second);
    QCOMPARE(stream.take(report("id", 1), {}).block, second);
    const ReportStream::Taken taken = stream.take(report("id", 2), {});
    QVERIFY(taken.faults.empty());
}

void tst_ReportStream::aReportOfAnotherDataSetIsTold()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    acsi::Report named = report("id", 0);
    named.datSet = "LD/LLN0$Else";
    ReportStream::Taken taken = stream.take(named, {});
    QCOMPARE(taken.block, first);
    QVERIFY(taken.faults == Faults{ReportFault::OtherDataSet});
    // Nothing of it goes by the members of the known data set.
    QVERIFY(!taken.areInPlace);
    QVERIFY(taken.references.front().node.empty());
    acsi::Report longer = report("id", 1);
    longer.dataSetSize = 4;
    taken = stream.take(longer, {});
    QVERIFY(taken.faults == Faults{ReportFault::OtherDataSet});
    QVERIFY(!taken.areInPlace);
    QVERIFY(taken.references.front().node.empty());
}

void tst_ReportStream::anotherRevisionOfTheDataSetIsTold()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    stream.settle(first, "id", {}, 5);
    acsi::Report revised = report("id", 0);
    revised.confRev = 5;
    QVERIFY(stream.take(revised, {}).faults.empty());
    revised.confRev = 6;
    const ReportStream::Taken taken = stream.take(revised, {});
    QVERIFY(taken.faults == Faults{ReportFault::OtherDataSet});
    QVERIFY(!taken.areInPlace);
    QVERIFY(taken.references.front().node.empty());
}

void tst_ReportStream::dataReferencesAreBelieved()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    acsi::Report named = report("id", 0);
    named.optFlds.dataReference = true;
    named.members.front().reference = "LD/C$ST$Ind9";
    const ReportStream::Taken taken = stream.take(named, {});
    QCOMPARE(taken.block, first);
    QVERIFY(taken.faults == Faults{ReportFault::OtherDataSet});
    QCOMPARE(firstOf(stream, taken), std::string("LD/C$ST$Ind9"));
    // Of a data set that the device did not tell, they are all that is known.
    ReportStream::Block untold = block(second, "untold", "B");
    untold.members.clear();
    stream.start(untold);
    named.rptId = "untold";
    const ReportStream::Taken known = stream.take(named, {});
    QVERIFY(known.faults.empty());
    QCOMPARE(firstOf(stream, known), std::string("LD/C$ST$Ind9"));
}

void tst_ReportStream::aMemberThatIsNoDataIsTold()
{
    ReportStream stream;
    ReportStream::Block odd = block(first, "id", "A");
    odd.members[1] = acsi::Reference();
    stream.start(odd);
    QVERIFY(stream.take(report("id", 0), {}).faults == Faults{ReportFault::UnknownMember});
}

void tst_ReportStream::aReportUnderAnUnknownNameConcernsAll()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    stream.start(block(second, "other", "B"));
    const ReportStream::Taken taken = stream.take(report("unheard of", 0), {});
    QVERIFY(!taken.report);
    QCOMPARE(taken.ambiguous, (std::vector<std::string>{first, second}));
    QCOMPARE(stream.named("other"), std::vector<std::string>{second});
    QCOMPARE(stream.named("unheard of"), (std::vector<std::string>{first, second}));
}

void tst_ReportStream::numbersOfTheBlockTellWhatIsMissingBehindTheLastReport()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    QVERIFY(!stream.isBehind(first, 9));
    stream.take(report("id", 4), {});
    // The last number or the next one.
    for (const std::uint32_t number : {4U, 5U})
        QVERIFY(!stream.isBehind(first, number) && !stream.isBehind(first, number));
    QVERIFY(!stream.isBehind(first, 8));
    QVERIFY(stream.isBehind(first, 8));
    QVERIFY(!stream.isBehind(first, 8));
    // What comes next is no gap once more, whichever way the device counts.
    QVERIFY(stream.take(report("id", 8), {}).faults.empty());
    QVERIFY(!stream.isBehind(first, 11));
    QVERIFY(stream.take(report("id", 9), {}).faults.empty());
    QVERIFY(!stream.isBehind(first, 11));
    QVERIFY(!stream.isBehind("nobody", 11));
}

void tst_ReportStream::aBlockThatDoesNotCountIsNotBelieved()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    stream.take(report("id", 7), {});
    QVERIFY(!stream.isBehind(first, 0));
    QVERIFY(stream.isBehind(first, 0));
    QVERIFY(stream.take(report("id", 8), {}).faults.empty());
    for (int look = 0; look < 3; ++look)
        QVERIFY(!stream.isBehind(first, 0));
    // Numbers of reports count as before.
    QVERIFY(stream.take(report("id", 10), {}).faults == Faults{ReportFault::Gap});
}

void tst_ReportStream::stoppedBlocksTakeNothing()
{
    ReportStream stream;
    stream.start(block(first, "id", "A"));
    QVERIFY(stream.find(first));
    stream.stop(first);
    QVERIFY(!stream.find(first));
    QVERIFY(stream.take(report("id", 0), {}).block.empty());
    stream.start(block(first, "id", "A"));
    stream.take(report("id", 7), {});
    // Counted anew.
    stream.start(block(first, "id", "A"));
    QVERIFY(stream.take(report("id", 0), {}).faults.empty());
}

QTEST_GUILESS_MAIN(tst_ReportStream)
#include "tst_reportstream.moc"
