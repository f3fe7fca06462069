// SPDX-License-Identifier: Apache-2.0
#include "driver/core/valuecurrency.h"

#include <QtTest/QtTest>

#include <map>
#include <memory>
#include <string>

using namespace std::chrono_literals;
using Currency = ValueCurrency;
using Pace = Currency::Pace;
using Reply = Currency::Reply;
using Source = Currency::Source;
using Names = std::vector<std::string>;

namespace {

/// A model of parts within parts whose leaves are numbered in order.
class Tree
{
public:
    /// "node" has so many objects of so many leaves each.
    void add(const std::string &node, std::uint32_t objects, std::uint32_t leaves)
    {
        Names names;
        const std::uint32_t first = m_leaves;
        for (std::uint32_t object = 0; object < objects; ++object) {
            const std::string name = node + '$' + std::to_string(object);
            Names attributes;
            const std::uint32_t begin = m_leaves;
            for (std::uint32_t leaf = 0; leaf < leaves; ++leaf) {
                attributes.push_back(name + '$' + std::to_string(leaf));
                m_ranges[attributes.back()] = {m_leaves++, 1};
            }
            m_ranges[name] = {begin, leaves};
            m_parts[name] = attributes;
            names.push_back(name);
        }
        m_ranges[node] = {first, m_leaves - first};
        m_parts[node] = names;
    }

    std::uint32_t size() const { return m_leaves; }
    LeafRange range(const std::string &name) const { return m_ranges.at(name); }

    Currency::Part part(const std::string &name) const
    {
        Currency::Part part;
        part.reference.node = name;
        part.leaves = m_ranges.at(name);
        part.octets = 10;
        return part;
    }

    Currency::Divide divide() const
    {
        return [this](const Currency::Part &whole) {
            std::vector<Currency::Part> result;
            const auto found = m_parts.find(whole.reference.node);
            if (found != m_parts.end()) {
                for (const std::string &name : found->second)
                    result.push_back(part(name));
            }
            return result;
        };
    }

private:
    std::uint32_t m_leaves = 0;
    std::map<std::string, LeafRange> m_ranges;
    std::map<std::string, Names> m_parts;
};

const Currency::Time begin = Currency::Time() + 1000h;

} // namespace

class tst_ValueCurrency : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void theFastPartsAreAskedBeforeTheSlowOnes();
    void aRoundFollowsTheOtherAfterTheInterval();
    void theSlowRoundComesEverySoManyRounds();
    void withoutAnIntervalThereIsOneRound();
    void theConfigurationIsAskedForAlone();
    void aDeviceThatIsSlowerThanTheRoundsHasAWhileToItself();
    void requestsAreFilledUpToTheirRoom();
    void noMoreRequestsThanPlacesAreOnTheWay();

    void anAnswerThatWasAskedForBeforeANewerValueIsOld_data();
    void anAnswerThatWasAskedForBeforeANewerValueIsOld();

    void aRefusedPartIsDividedDownToTheLeaf();
    void whatIsRefusedIsNotAskedForAgainAndCounted();
    void whatIsUnavailableIsTriedAgainInTheSlowRound();
    void aConstraintThatWasUnavailableIsAskedForWholeAgain();
    void aConstraintThatIsNeverThereWholeStaysDivided();
    void aReadByHandBringsARefusedLeafBack();

    void whatWasTooLargeIsRememberedForTheNextRounds();
    void aPartThatIsTooLargeAloneIsDividedForGood();
    void aListThatWasRefusedOnceIsNotAskedForInPiecesLater();

    void aSilentPartIsFoundAndTheOthersGoOn();
    void aSilentPartIsAskedForInGrowingIntervals();
    void aPartThatAnswersAgainIsPolledWithTheOthers();
    void theOnlyPlaceIsNotFilledWhileTheDeviceMayStillWork();
    void aQuestionThatWasNeverSentIsNoSilence();

    void reportedObjectsLeaveTheFastRoundOnly();
    void aConstraintIsDividedAsLongAsReportsBringPartOfIt();

    void aLeafSaysWhatKeepsItCurrent();
    void valuesThatAreNotCurrentSaySinceWhen();

private:
    void make(Currency::Options options = {});
    bool isDue(Currency::Time now);
    Names names(const Currency::Question &question) const;
    void take(const Currency::Question &question, Currency::Time asked);
    /// Answers every question with values, except for those parts; the names of all that was asked.
    Names answerAll(Currency::Time now, const std::map<std::string, Reply> &others = {});

    Tree m_tree;
    std::unique_ptr<Currency> m_currency;
};

void tst_ValueCurrency::init()
{
    m_tree = Tree();
    m_tree.add("A", 3, 2);
    m_tree.add("B", 2, 1);
    m_tree.add("C", 2, 1);
    Currency::Options options;
    options.interval = 2s;
    options.places = 2;
    make(options);
}

void tst_ValueCurrency::make(Currency::Options options)
{
    m_currency = std::make_unique<Currency>(m_tree.size(), m_tree.divide(), options);
    m_currency->add(Pace::Fast, m_tree.part("A"));
    m_currency->add(Pace::Slow, m_tree.part("B"));
    m_currency->add(Pace::Fast, m_tree.part("C"));
}

Names tst_ValueCurrency::names(const Currency::Question &question) const
{
    Names result;
    for (const Currency::Id part : question.parts)
        result.push_back(m_currency->part(part).reference.node);
    return result;
}

void tst_ValueCurrency::take(const Currency::Question &question, Currency::Time asked)
{
    for (const Currency::Id part : question.parts) {
        const LeafRange range = m_currency->part(part).leaves;
        for (std::uint32_t leaf = range.first; leaf < range.end(); ++leaf)
            m_currency->take(leaf, Source::Poll, asked);
    }
    m_currency->answered(question.id, std::vector<Reply>(question.parts.size(), Reply::Taken),
                         asked);
}

Names tst_ValueCurrency::answerAll(Currency::Time now, const std::map<std::string, Reply> &others)
{
    Names all;
    while (const auto question = m_currency->next(now)) {
        std::vector<Reply> replies;
        for (const Currency::Id id : question->parts) {
            const Currency::Part part = m_currency->part(id);
            all.push_back(part.reference.node);
            const auto other = others.find(part.reference.node);
            replies.push_back(other == others.end() ? Reply::Taken : other->second);
            for (std::uint32_t leaf = part.leaves.first;
                 other == others.end() && leaf < part.leaves.end(); ++leaf)
                m_currency->take(leaf, Source::Poll, now);
        }
        m_currency->answered(question->id, replies, now);
    }
    return all;
}

void tst_ValueCurrency::theFastPartsAreAskedBeforeTheSlowOnes()
{
    m_currency->start(begin);
    QCOMPARE(answerAll(begin), (Names{"A", "C", "B"}));
    QVERIFY(m_currency->isIdle());
}

void tst_ValueCurrency::aRoundFollowsTheOtherAfterTheInterval()
{
    m_currency->start(begin);
    answerAll(begin);
    QCOMPARE(m_currency->nextTime(), std::optional(begin + 2s));
    QVERIFY(!m_currency->next(begin + 1999ms));
    QCOMPARE(answerAll(begin + 2s), (Names{"A", "C"}));
    QCOMPARE(m_currency->nextTime(), std::optional(begin + 4s));
}

void tst_ValueCurrency::theSlowRoundComesEverySoManyRounds()
{
    m_currency->start(begin);
    answerAll(begin);
    for (int round = 1; round <= 30; ++round) {
        const Names expected = round % 10 == 0 ? Names{"A", "C", "B"} : Names{"A", "C"};
        QCOMPARE(answerAll(begin + round * 2s), expected);
    }
}

void tst_ValueCurrency::withoutAnIntervalThereIsOneRound()
{
    make({});
    m_currency->start(begin);
    QCOMPARE(answerAll(begin), (Names{"A", "C", "B"}));
    QVERIFY(!m_currency->nextTime());
    QVERIFY(!m_currency->next(begin + 1h));
}

void tst_ValueCurrency::theConfigurationIsAskedForAlone()
{
    m_tree.add("D", 1, 1);
    make({});
    m_currency->add(Pace::Configuration, m_tree.part("D"));
    m_currency->ask(Pace::Configuration);
    QCOMPARE(answerAll(begin), Names{"D"});
    QVERIFY(m_currency->isIdle());
    m_currency->start(begin);
    QCOMPARE(answerAll(begin), (Names{"A", "C", "B"}));
}

void tst_ValueCurrency::aDeviceThatIsSlowerThanTheRoundsHasAWhileToItself()
{
    m_currency->start(begin);
    const auto question = m_currency->next(begin);
    m_currency->answered(question->id, {Reply::Taken, Reply::Taken, Reply::Taken}, begin + 5s);
    QCOMPARE(m_currency->nextTime(), std::optional(begin + 5500ms));
}

void tst_ValueCurrency::requestsAreFilledUpToTheirRoom()
{
    Currency::Options options;
    options.room = 25;
    make(options);
    m_currency->start(begin);
    QCOMPARE(names(*m_currency->next(begin)), (Names{"A", "C"}));
}

void tst_ValueCurrency::noMoreRequestsThanPlacesAreOnTheWay()
{
    Currency::Options options;
    options.room = 10;
    options.places = 2;
    make(options);
    m_currency->start(begin);
    const auto first = m_currency->next(begin);
    const auto second = m_currency->next(begin);
    QCOMPARE(names(*first), Names{"A"});
    QCOMPARE(names(*second), Names{"C"});
    QVERIFY(!m_currency->next(begin));
    take(*second, begin);
    QCOMPARE(names(*m_currency->next(begin)), Names{"B"});
}

void tst_ValueCurrency::anAnswerThatWasAskedForBeforeANewerValueIsOld_data()
{
    QTest::addColumn<int>("source");
    QTest::newRow("read") << int(Source::Read);
    QTest::newRow("write") << int(Source::Write);
    QTest::newRow("report") << int(Source::Report);
    QTest::newRow("poll") << int(Source::Poll);
}

void tst_ValueCurrency::anAnswerThatWasAskedForBeforeANewerValueIsOld()
{
    QFETCH(int, source);
    QVERIFY(m_currency->take(3, Source(source), begin + 1s));
    QVERIFY(!m_currency->take(3, Source::Poll, begin));
    QVERIFY(!m_currency->take(3, Source::Read, begin + 999ms));
    QVERIFY(m_currency->take(2, Source::Poll, begin));
    QVERIFY(m_currency->take(3, Source::Poll, begin + 1s));
}

void tst_ValueCurrency::aRefusedPartIsDividedDownToTheLeaf()
{
    m_currency->start(begin);
    QCOMPARE(answerAll(begin,
                       {{"A", Reply::Refused}, {"A$1", Reply::Refused}, {"A$1$0", Reply::Refused}}),
             (Names{"A", "C", "B", "A$0", "A$1", "A$2", "A$1$0", "A$1$1"}));
    QCOMPARE(m_currency->summary().refused, 1U);
    QCOMPARE(m_currency->summary().stale, 0U);
    QCOMPARE(answerAll(begin + 2s), (Names{"A$0", "A$1$1", "A$2", "C"}));
}

void tst_ValueCurrency::whatIsRefusedIsNotAskedForAgainAndCounted()
{
    m_currency->start(begin);
    answerAll(begin, {{"B", Reply::Refused}, {"B$0", Reply::Unfit}, {"B$0$0", Reply::Unfit}});
    const Currency::Summary summary = m_currency->summary();
    QCOMPARE(summary.refused, 1U);
    QCOMPARE(summary.refusedParts.size(), std::size_t(1));
    QCOMPARE(summary.refusedParts.front().node, std::string("B$0$0"));
    for (int round = 1; round <= 10; ++round) {
        const Names asked = answerAll(begin + round * 2s);
        QCOMPARE(asked, round == 10 ? (Names{"A", "C", "B$1"}) : (Names{"A", "C"}));
    }
}

void tst_ValueCurrency::whatIsUnavailableIsTriedAgainInTheSlowRound()
{
    m_currency->start(begin);
    answerAll(begin, {{"A", Reply::Unavailable}, {"A$1", Reply::Unavailable}});
    QCOMPARE(m_currency->summary().stale, 2U);
    QCOMPARE(m_currency->summary().refused, 0U);
    QVERIFY(!m_currency->summary().isSilent);
    QCOMPARE(m_currency->summary().firstStale->node, std::string("A$1"));
    for (int round = 1; round <= 9; ++round)
        QCOMPARE(answerAll(begin + round * 2s), (Names{"A$0", "A$2", "C"}));
    QCOMPARE(answerAll(begin + 20s), (Names{"A$0", "A$2", "C", "A$1", "B"}));
    QCOMPARE(m_currency->summary().stale, 0U);
}

void tst_ValueCurrency::aConstraintThatWasUnavailableIsAskedForWholeAgain()
{
    m_currency->start(begin);
    answerAll(begin, {{"A", Reply::Unavailable}});
    for (int round = 1; round <= 9; ++round)
        QCOMPARE(answerAll(begin + round * 2s), (Names{"A$0", "A$1", "A$2", "C"}));
    QCOMPARE(answerAll(begin + 20s), (Names{"A", "C", "B"}));
    QCOMPARE(answerAll(begin + 22s), (Names{"A", "C"}));
}

void tst_ValueCurrency::aConstraintThatIsNeverThereWholeStaysDivided()
{
    m_currency->start(begin);
    int asked = 0;
    for (int round = 0; round <= 100; ++round) {
        const Names all = answerAll(begin + round * 2s, {{"A", Reply::Unavailable}});
        asked += int(std::count(all.begin(), all.end(), "A"));
    }
    QCOMPARE(asked, 2);
}

void tst_ValueCurrency::aReadByHandBringsARefusedLeafBack()
{
    m_currency->start(begin);
    answerAll(begin, {{"A", Reply::Refused}, {"A$0", Reply::Refused}, {"A$0$1", Reply::Refused}});
    QCOMPARE(m_currency->summary().refused, 1U);
    const LeafRange range = m_tree.range("A$0$1");
    QVERIFY(m_currency->take(range.first, Source::Read, begin + 1s));
    m_currency->haveRead(range, begin + 1s);
    QCOMPARE(m_currency->summary().refused, 0U);
    QCOMPARE(answerAll(begin + 2s), (Names{"A$0$0", "A$0$1", "A$1", "A$2", "C"}));
}

void tst_ValueCurrency::whatWasTooLargeIsRememberedForTheNextRounds()
{
    m_tree.add("D", 1, 1);
    make({2s, 10, 60000, 1});
    m_currency->add(Pace::Fast, m_tree.part("D"));
    m_currency->start(begin);
    int tooLarge = 0;
    for (int round = 0; round <= 40; ++round) {
        const Currency::Time now = begin + round * 2s;
        while (const auto question = m_currency->next(now)) {
            if (question->parts.size() > 1) {
                ++tooLarge;
                m_currency->refused(question->id, Reply::TooLarge, now);
            } else {
                take(*question, now);
            }
        }
        // All four together, then two and two.
        if (round == 0)
            QVERIFY2(tooLarge >= 1 && tooLarge <= 3, qPrintable(QString::number(tooLarge)));
        else
            QVERIFY2(tooLarge <= 3, qPrintable(QString::number(tooLarge)));
    }
}

void tst_ValueCurrency::aPartThatIsTooLargeAloneIsDividedForGood()
{
    m_currency->start(begin);
    const auto question = m_currency->next(begin);
    m_currency->answered(question->id, {Reply::TooLarge, Reply::Taken, Reply::Taken}, begin);
    QCOMPARE(answerAll(begin), (Names{"A$0", "A$1", "A$2"}));
    for (int round = 1; round <= 40; ++round) {
        const Names asked = answerAll(begin + round * 2s);
        QCOMPARE(std::count(asked.begin(), asked.end(), "A"), 0);
    }
}

void tst_ValueCurrency::aListThatWasRefusedOnceIsNotAskedForInPiecesLater()
{
    m_currency->start(begin);
    const auto question = m_currency->next(begin);
    QCOMPARE(question->parts.size(), std::size_t(3));
    m_currency->refused(question->id, Reply::Unavailable, begin);
    const auto half = m_currency->next(begin);
    QVERIFY(half->parts.size() < 3);
    take(*half, begin);
    answerAll(begin);
    QVERIFY(!m_currency->next(begin + 1s));
    QCOMPARE(names(*m_currency->next(begin + 2s)), (Names{"A", "C"}));
}

void tst_ValueCurrency::aSilentPartIsFoundAndTheOthersGoOn()
{
    m_currency->start(begin);
    Currency::Time now = begin;
    std::vector<Names> apart;
    bool isRoundUndisturbed = false;
    for (int step = 0; step < 60; ++step, now += 1s) {
        while (const auto question = m_currency->next(now)) {
            const Names asked = names(*question);
            if (std::count(asked.begin(), asked.end(), "C") > 0) {
                apart.push_back(asked);
                m_currency->silent(question->id, now + 500ms);
            } else {
                take(*question, now);
                isRoundUndisturbed = isRoundUndisturbed || asked == Names{"A"};
            }
        }
    }
    QCOMPARE(apart.front(), (Names{"A", "C", "B"}));
    QCOMPARE(apart.back(), Names{"C"});
    QVERIFY(isRoundUndisturbed);
    const Currency::Summary summary = m_currency->summary();
    QCOMPARE(summary.stale, 2U);
    QVERIFY(summary.isSilent);
    QCOMPARE(summary.firstStale->node, std::string("C"));
    QVERIFY(m_currency->leaf(m_tree.range("A").first).isCurrent);
}

void tst_ValueCurrency::aSilentPartIsAskedForInGrowingIntervals()
{
    Currency::Options options;
    options.places = 2;
    m_currency = std::make_unique<Currency>(m_tree.size(), m_tree.divide(), options);
    m_currency->add(Pace::Fast, m_tree.part("A"));
    m_currency->start(begin);
    Currency::Time now = begin;
    std::vector<std::chrono::seconds> pauses;
    for (int i = 0; i < 7; ++i) {
        const auto question = m_currency->next(now);
        QVERIFY(question);
        m_currency->silent(question->id, now);
        const Currency::Time asked = now;
        QVERIFY(!m_currency->next(now));
        while (!isDue(now))
            now += 1s;
        pauses.push_back(std::chrono::duration_cast<std::chrono::seconds>(now - asked));
    }
    QCOMPARE(pauses, (std::vector<std::chrono::seconds>{10s, 20s, 40s, 80s, 120s, 120s, 120s}));
}

bool tst_ValueCurrency::isDue(Currency::Time now)
{
    // On a copy: what is asked for is on the way.
    return Currency(*m_currency).next(now).has_value();
}

void tst_ValueCurrency::aPartThatAnswersAgainIsPolledWithTheOthers()
{
    m_currency->start(begin);
    m_currency->silent(m_currency->next(begin)->id, begin + 1s);
    QCOMPARE(m_currency->summary().stale, m_tree.size());
    QVERIFY(m_currency->summary().isSilent);
    // The other place is kept for what answers.
    QVERIFY(!m_currency->next(begin + 2s));
    answerAll(begin + 11s);
    QCOMPARE(m_currency->summary(), Currency::Summary());
    QCOMPARE(answerAll(begin + 13s), (Names{"A", "C"}));
}

void tst_ValueCurrency::theOnlyPlaceIsNotFilledWhileTheDeviceMayStillWork()
{
    make({2s});
    m_currency->start(begin);
    m_currency->silent(m_currency->next(begin)->id, begin + 5s);
    QVERIFY(!m_currency->next(begin + 14s));
    QCOMPARE(m_currency->nextTime(), std::optional(begin + 15s));
    QVERIFY(m_currency->next(begin + 15s));
}

void tst_ValueCurrency::aQuestionThatWasNeverSentIsNoSilence()
{
    m_currency->start(begin);
    const auto question = m_currency->next(begin);
    m_currency->unsent(question->id, begin + 5s);
    QCOMPARE(m_currency->summary(), Currency::Summary());
    QCOMPARE(answerAll(begin + 5s), (Names{"A", "C", "B"}));
}

void tst_ValueCurrency::reportedObjectsLeaveTheFastRoundOnly()
{
    m_currency->setReported({m_tree.range("C")});
    m_currency->start(begin);
    QCOMPARE(answerAll(begin), (Names{"A", "B", "C"}));
    QCOMPARE(answerAll(begin + 2s), Names{"A"});
    for (int round = 2; round <= 9; ++round)
        answerAll(begin + round * 2s);
    QCOMPARE(answerAll(begin + 20s), (Names{"A", "B", "C"}));
    m_currency->setReported({});
    QCOMPARE(answerAll(begin + 22s), (Names{"A", "C"}));
}

void tst_ValueCurrency::aConstraintIsDividedAsLongAsReportsBringPartOfIt()
{
    // All of the first object, one leaf of two of the second.
    m_currency->setReported({m_tree.range("A$0"), m_tree.range("A$1$0")});
    m_currency->start(begin);
    QCOMPARE(answerAll(begin), (Names{"A$1", "A$2", "C", "A$0", "B"}));
    QCOMPARE(answerAll(begin + 2s), (Names{"A$1", "A$2", "C"}));
    // Nothing is gained by dividing where no object is reported whole.
    m_currency->setReported({m_tree.range("A$1$0")});
    QCOMPARE(answerAll(begin + 4s), (Names{"A", "C"}));
}

void tst_ValueCurrency::aLeafSaysWhatKeepsItCurrent()
{
    const std::uint32_t polled = m_tree.range("A").first;
    const std::uint32_t reported = m_tree.range("C").first;
    QCOMPARE(m_currency->leaf(polled).isCurrent, false);
    m_currency->setReported({m_tree.range("C")});
    m_currency->start(begin);
    answerAll(begin);
    QCOMPARE(m_currency->leaf(polled).keptBy, Source::Poll);
    QCOMPARE(m_currency->leaf(polled).source, Source::Poll);
    QCOMPARE(m_currency->leaf(polled).asOf, begin);
    QVERIFY(m_currency->leaf(polled).isCurrent);
    m_currency->take(reported, Source::Report, begin + 1s);
    QCOMPARE(m_currency->leaf(reported).keptBy, Source::Report);
    QCOMPARE(m_currency->leaf(reported).asOf, begin + 1s);
}

void tst_ValueCurrency::valuesThatAreNotCurrentSaySinceWhen()
{
    m_currency->start(begin);
    answerAll(begin);
    m_currency->silent(m_currency->next(begin + 2s)->id, begin + 7s);
    const std::uint32_t count = m_tree.range("A").count + m_tree.range("C").count;
    QCOMPARE(m_currency->summary().stale, count);
    QCOMPARE(m_currency->summary().staleSince, begin);
    // A report or a read makes a single one current again.
    const std::uint64_t changes = m_currency->changes();
    m_currency->take(m_tree.range("A").first, Source::Report, begin + 8s);
    QVERIFY(m_currency->changes() > changes);
    QCOMPARE(m_currency->summary().stale, count - 1);
    QVERIFY(m_currency->leaf(m_tree.range("A").first).isCurrent);
    QVERIFY(!m_currency->leaf(m_tree.range("A").first + 1).isCurrent);
}

QTEST_GUILESS_MAIN(tst_ValueCurrency)
#include "tst_valuecurrency.moc"
