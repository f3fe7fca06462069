// SPDX-License-Identifier: Apache-2.0
#include "simulator/describedied.h"
#include "simulator/manualclock.h"

#include "simulator/animation.h"

#include <cmath>
#include <filesystem>
#include <numeric>

using namespace std::chrono_literals;
using sim::Animation;
using sim::AnimationOptions;
using sim::DoublePosition;

namespace {

const char *const nodes = R"(<LN0 lnClass="LLN0" inst="" lnType="LLN0"/>
<LN prefix="QA1" lnClass="XCBR" inst="1" lnType="XCBR"/>
<LN prefix="QA1" lnClass="CSWI" inst="1" lnType="CSWI"/>
<LN prefix="QB1" lnClass="XSWI" inst="1" lnType="XSWI"/>
<LN prefix="QC1" lnClass="XSWI" inst="1" lnType="XSWI"/>
<LN lnClass="MMXU" inst="1" lnType="MMXU">
  <DOI name="TotW"><SDI name="units"><DAI name="multiplier"><Val>M</Val></DAI></SDI></DOI>
</LN>
<LN lnClass="MMTR" inst="1" lnType="MMTR"/>
<LN lnClass="PDIS" inst="1" lnType="PDIS"/>
<LN lnClass="PTRC" inst="1" lnType="PTRC"/>
<LN lnClass="RFLO" inst="1" lnType="RFLO"/>
<LN lnClass="RDRE" inst="1" lnType="RDRE"/>
<LN lnClass="RREC" inst="1" lnType="RREC"/>
<LN lnClass="GGIO" inst="1" lnType="GGIO">
  <DOI name="AnIn1"><SDI name="mag"><DAI name="f"><Val>20</Val></DAI></SDI></DOI>
</LN>)";

const char *const types = R"(<LNodeType id="LLN0" lnClass="LLN0"/>
<LNodeType id="XCBR" lnClass="XCBR"><DO name="Pos" type="DPC"/><DO name="OpCnt" type="INS"/></LNodeType>
<LNodeType id="CSWI" lnClass="CSWI"><DO name="Pos" type="DPC"/></LNodeType>
<LNodeType id="XSWI" lnClass="XSWI"><DO name="Pos" type="DPC"/></LNodeType>
<LNodeType id="MMXU" lnClass="MMXU"><DO name="PhV" type="WYE"/><DO name="A" type="WYE"/>
  <DO name="W" type="WYE"/><DO name="PPV" type="DEL"/><DO name="TotW" type="MV"/>
  <DO name="TotVAr" type="MV"/><DO name="TotVA" type="MV"/><DO name="TotPF" type="MV"/>
  <DO name="Hz" type="MV"/></LNodeType>
<LNodeType id="MMTR" lnClass="MMTR"><DO name="DmdWh" type="BCR"/><DO name="SupWh" type="BCR"/></LNodeType>
<LNodeType id="PDIS" lnClass="PDIS"><DO name="Str" type="ACD"/><DO name="Op" type="ACT"/></LNodeType>
<LNodeType id="PTRC" lnClass="PTRC"><DO name="Str" type="ACD"/><DO name="Op" type="ACT"/></LNodeType>
<LNodeType id="RFLO" lnClass="RFLO"><DO name="FltDiskm" type="MV"/></LNodeType>
<LNodeType id="RDRE" lnClass="RDRE"><DO name="RcdMade" type="SPS"/><DO name="FltNum" type="INS"/></LNodeType>
<LNodeType id="RREC" lnClass="RREC"><DO name="AutoRecSt" type="INS"/></LNodeType>
<LNodeType id="GGIO" lnClass="GGIO"><DO name="Ind1" type="SPS"/><DO name="AnIn1" type="MV"/></LNodeType>
<DOType id="DPC" cdc="DPC"><DA name="stVal" fc="ST" bType="Dbpos" dchg="true"/>
  <DA name="q" fc="ST" bType="Quality"/><DA name="t" fc="ST" bType="Timestamp"/></DOType>
<DOType id="INS" cdc="INS"><DA name="stVal" fc="ST" bType="INT32" dchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/></DOType>
<DOType id="SPS" cdc="SPS"><DA name="stVal" fc="ST" bType="BOOLEAN" dchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/></DOType>
<DOType id="BCR" cdc="BCR"><DA name="actVal" fc="ST" bType="INT64" dchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/><DA name="pulsQty" fc="CF" bType="FLOAT32"><Val>100</Val></DA></DOType>
<DOType id="ACD" cdc="ACD"><DA name="general" fc="ST" bType="BOOLEAN" dchg="true"/>
  <DA name="dirGeneral" fc="ST" bType="Enum" type="Dir"/>
  <DA name="phsA" fc="ST" bType="BOOLEAN"/><DA name="phsB" fc="ST" bType="BOOLEAN"/>
  <DA name="phsC" fc="ST" bType="BOOLEAN"/><DA name="t" fc="ST" bType="Timestamp"/></DOType>
<DOType id="ACT" cdc="ACT"><DA name="general" fc="ST" bType="BOOLEAN" dchg="true"/>
  <DA name="t" fc="ST" bType="Timestamp"/></DOType>
<DOType id="WYE" cdc="WYE"><SDO name="phsA" type="CMV"/><SDO name="phsB" type="CMV"/>
  <SDO name="phsC" type="CMV"/><SDO name="neut" type="CMV"/></DOType>
<DOType id="DEL" cdc="DEL"><SDO name="phsAB" type="CMV"/><SDO name="phsBC" type="CMV"/>
  <SDO name="phsCA" type="CMV"/></DOType>
<DOType id="CMV" cdc="CMV"><DA name="cVal" fc="MX" bType="Struct" type="Vector" dchg="true"/>
  <DA name="q" fc="MX" bType="Quality"/><DA name="t" fc="MX" bType="Timestamp"/></DOType>
<DOType id="MV" cdc="MV"><DA name="mag" fc="MX" bType="Struct" type="Analogue" dchg="true"/>
  <DA name="q" fc="MX" bType="Quality"/><DA name="t" fc="MX" bType="Timestamp"/>
  <DA name="subEna" fc="SV" bType="BOOLEAN"/>
  <DA name="units" fc="CF" bType="Struct" type="Unit"/></DOType>
<DAType id="Vector"><BDA name="mag" bType="Struct" type="Analogue"/><BDA name="ang" bType="Struct" type="Analogue"/></DAType>
<DAType id="Analogue"><BDA name="f" bType="FLOAT32"/></DAType>
<DAType id="Unit"><BDA name="multiplier" bType="Enum" type="Multiplier"/></DAType>
<EnumType id="Dir"><EnumVal ord="0">unknown</EnumVal><EnumVal ord="1">forward</EnumVal></EnumType>
<EnumType id="Multiplier"><EnumVal ord="0"></EnumVal><EnumVal ord="6">M</EnumVal></EnumType>)";

/// The model of a device with its animation.
class Animated
{
public:
    explicit Animated(const scl::Ied &ied, AnimationOptions options = {1, 250ms, false})
        : m_model(ied, m_clock.utcTime())
        , m_access(m_model)
        , m_dataSets(m_model, ied)
        , m_animation(std::make_unique<Animation>(sim::Host{m_model, m_access, m_dataSets, m_clock},
                                                  options))
    {
    }

    Animation &animation() { return *m_animation; }
    sim::Model &model() { return m_model; }
    void advance(std::chrono::nanoseconds step) { m_clock.advance(step); }

    sim::Part part(std::string_view item) const
    {
        const sim::Part result = m_model.find("IED1LD", item);
        EXPECT_TRUE(result.isValid()) << item;
        return result;
    }
    mms::Data value(std::string_view item) const { return m_model.value(part(item)); }
    double number(std::string_view item) const { return sim::numberOf(value(item)); }
    double magnitude(const std::string &object) const
    {
        return number("MMXU1$MX$" + object + "$cVal$mag$f");
    }
    double measured(const std::string &object) const
    {
        return number("MMXU1$MX$" + object + "$mag$f");
    }
    bool isOn(std::string_view item) const { return value(item).toBoolean().value_or(false); }
    DoublePosition position(const std::string &node) const
    {
        return sim::doublePositionFrom(value(node + "$ST$Pos$stVal"));
    }
    void set(std::string_view item, const mms::Data &data) { m_model.set(part(item), data); }

private:
    simtest::ManualClock m_clock;
    sim::Model m_model;
    sim::Access m_access;
    sim::DataSets m_dataSets;
    std::unique_ptr<Animation> m_animation;
};

class AnimationTest : public testing::Test
{
protected:
    simtest::DescribedIed m_ied{nodes, types};
};

TEST(LnClass, isFoundBetweenPrefixAndNumber)
{
    EXPECT_EQ(sim::lnClassOf("QA1XCBR1"), "XCBR");
    EXPECT_EQ(sim::lnClassOf("LLN0"), "LLN0");
    EXPECT_EQ(sim::lnClassOf("MMXU"), "MMXU");
    EXPECT_EQ(sim::lnClassOf("abc1"), "");
    EXPECT_EQ(sim::lnClassOf("someNode1"), "");
}

TEST_F(AnimationTest, measurementsOfThreePhasesAgree)
{
    Animated bay(*m_ied);
    for (int i = 0; i < 50; ++i) {
        bay.advance(250ms);
        double power = 0;
        for (const std::string phase : {"phsA", "phsB", "phsC"}) {
            power += bay.magnitude("W$" + phase);
            EXPECT_NEAR(bay.magnitude("PhV$" + phase), 63500, 3000);
            EXPECT_NEAR(bay.magnitude("A$" + phase), 240, 140);
        }
        EXPECT_NEAR(bay.measured("TotW"), power / 1e6, power / 1e6 * 1e-5);
        EXPECT_NEAR(std::hypot(bay.measured("TotW") * 1e6, bay.measured("TotVAr")),
                    bay.measured("TotVA"), 1000);
        EXPECT_NEAR(bay.measured("TotPF"), bay.measured("TotW") * 1e6 / bay.measured("TotVA"),
                    1e-4);
        EXPECT_NEAR(bay.magnitude("PPV$phsAB"), 110000, 5000);
        EXPECT_NEAR(bay.number("MMXU1$MX$PhV$phsB$cVal$ang$f"), -120, 0.1);
        EXPECT_NEAR(bay.measured("Hz"), 50, 0.1);
        EXPECT_NEAR(bay.number("GGIO1$MX$AnIn1$mag$f"), 20, 1);
    }
}

TEST_F(AnimationTest, everyMeasurementMovesWithinASecondAndBearsItsTime)
{
    Animated bay(*m_ied);
    bay.advance(0ms);
    const mms::Data before = bay.value("MMXU1$MX");
    bay.advance(1s);
    const mms::Data after = bay.value("MMXU1$MX");
    EXPECT_FALSE(before == after);
    EXPECT_NE(bay.value("MMXU1$MX$Hz$mag$f"), before.children().back().children()[0].children()[0]);
    EXPECT_EQ(bay.value("MMXU1$MX$Hz$t").toUtcTime()->seconds, 1614834368U);
}

TEST_F(AnimationTest, theSameSeedGivesTheSameCourse)
{
    const auto courseOf = [this](std::uint64_t seed) {
        Animated bay(*m_ied, {seed, 250ms, true});
        bay.advance(5min);
        return bay.model().value(bay.model().find("IED1LD", "MMXU1"));
    };
    const mms::Data first = courseOf(7);
    EXPECT_EQ(first, courseOf(7));
    EXPECT_FALSE(first == courseOf(8));
}

TEST_F(AnimationTest, switchesStartWhereABayInServiceHasThem)
{
    Animated bay(*m_ied);
    EXPECT_EQ(bay.position("QA1XCBR1"), DoublePosition::On);
    EXPECT_EQ(bay.position("QA1CSWI1"), DoublePosition::On);
    EXPECT_EQ(bay.position("QB1XSWI1"), DoublePosition::On);
    EXPECT_EQ(bay.position("QC1XSWI1"), DoublePosition::Off);
}

TEST_F(AnimationTest, noCurrentFlowsThroughASwitchThatAnOperatorOpened)
{
    Animated bay(*m_ied);
    for (const std::string name : {"QA1XCBR1", "QB1XSWI1"}) {
        bay.advance(1s);
        EXPECT_GT(bay.magnitude("A$phsA"), 50);
        bay.set(name + "$ST$Pos$stVal", sim::toData(DoublePosition::Off));
        bay.advance(1s);
        EXPECT_EQ(bay.magnitude("A$phsA"), 0);
        EXPECT_EQ(bay.measured("TotW"), 0);
        EXPECT_GT(bay.magnitude("PhV$phsA"), 60000);
        bay.advance(10min);
        EXPECT_EQ(bay.position(name), DoublePosition::Off);
        EXPECT_FALSE(bay.animation().startFault());
        bay.set(name + "$ST$Pos$stVal", sim::toData(DoublePosition::On));
    }
}

TEST_F(AnimationTest, aBreakerThatOpensByItselfClosesSecondsLater)
{
    Animated bay(*m_ied);
    bay.advance(1s);
    ASSERT_TRUE(bay.animation().startSwitching());
    EXPECT_EQ(bay.position("QA1XCBR1"), DoublePosition::Intermediate);
    EXPECT_EQ(bay.position("QA1CSWI1"), DoublePosition::Intermediate);
    EXPECT_FALSE(bay.animation().startSwitching());
    bay.advance(60ms);
    EXPECT_EQ(bay.position("QA1XCBR1"), DoublePosition::Off);
    EXPECT_EQ(bay.position("QA1CSWI1"), DoublePosition::Off);
    EXPECT_EQ(bay.number("QA1XCBR1$ST$OpCnt$stVal"), 1);
    bay.advance(7s);
    EXPECT_EQ(bay.position("QA1XCBR1"), DoublePosition::On);
    EXPECT_EQ(bay.number("QA1XCBR1$ST$OpCnt$stVal"), 2);
}

TEST_F(AnimationTest, aFaultStartsTripsIsRecordedAndIsReclosed)
{
    Animated bay(*m_ied);
    bay.advance(1s);
    ASSERT_TRUE(bay.animation().startFault());
    EXPECT_FALSE(bay.animation().startFault());
    EXPECT_TRUE(bay.isOn("PDIS1$ST$Str$general"));
    EXPECT_TRUE(bay.isOn("PTRC1$ST$Str$general"));
    EXPECT_EQ(bay.number("PDIS1$ST$Str$dirGeneral"), 1);
    int phases = 0;
    for (const std::string phase : {"phsA", "phsB", "phsC"})
        phases += bay.isOn("PDIS1$ST$Str$" + phase) ? 1 : 0;
    EXPECT_GE(phases, 1);
    EXPECT_FALSE(bay.isOn("PDIS1$ST$Op$general"));
    bay.advance(90ms);
    EXPECT_TRUE(bay.isOn("PDIS1$ST$Op$general"));
    EXPECT_TRUE(bay.isOn("PTRC1$ST$Op$general"));
    EXPECT_EQ(bay.position("QA1XCBR1"), DoublePosition::On);
    bay.advance(20ms);
    EXPECT_EQ(bay.position("QA1XCBR1"), DoublePosition::Intermediate);
    bay.advance(60ms);
    EXPECT_EQ(bay.position("QA1XCBR1"), DoublePosition::Off);
    EXPECT_EQ(bay.position("QA1CSWI1"), DoublePosition::Off);
    bay.advance(40ms);
    EXPECT_FALSE(bay.isOn("PDIS1$ST$Str$general"));
    EXPECT_FALSE(bay.isOn("PDIS1$ST$Op$general"));
    EXPECT_EQ(bay.number("PDIS1$ST$Str$dirGeneral"), 0);
    EXPECT_GE(bay.number("RFLO1$MX$FltDiskm$mag$f"), 1);
    EXPECT_EQ(bay.number("RREC1$ST$AutoRecSt$stVal"), 2);
    bay.advance(300ms);
    EXPECT_TRUE(bay.isOn("RDRE1$ST$RcdMade$stVal"));
    EXPECT_EQ(bay.number("RDRE1$ST$FltNum$stVal"), 1);
    EXPECT_EQ(bay.magnitude("A$phsA"), 0);
    bay.advance(1500ms);
    EXPECT_EQ(bay.position("QA1XCBR1"), DoublePosition::On);
    EXPECT_EQ(bay.number("RREC1$ST$AutoRecSt$stVal"), 3);
    bay.advance(6s);
    EXPECT_EQ(bay.number("RREC1$ST$AutoRecSt$stVal"), 1);
    EXPECT_FALSE(bay.isOn("RDRE1$ST$RcdMade$stVal"));
    EXPECT_TRUE(bay.animation().startFault());
}

TEST_F(AnimationTest, aFaultShowsInCurrentsAndVoltages)
{
    Animated bay(*m_ied, {1, 10ms, false});
    bay.advance(1s);
    ASSERT_TRUE(bay.animation().startFault());
    bay.advance(50ms);
    for (const std::string phase : {"phsA", "phsB", "phsC"}) {
        const bool faulted = bay.isOn("PDIS1$ST$Str$" + phase);
        EXPECT_EQ(bay.magnitude("A$" + phase) > 2000, faulted);
        EXPECT_EQ(bay.magnitude("PhV$" + phase) < 30000, faulted);
    }
}

TEST_F(AnimationTest, eventsComeByThemselvesWhenAskedFor)
{
    Animated bay(*m_ied, {1, 250ms, true});
    bay.advance(5min);
    EXPECT_GE(bay.number("RDRE1$ST$FltNum$stVal"), 2);
    EXPECT_GE(bay.number("QA1XCBR1$ST$OpCnt$stVal"), 6);
    Animated quiet(*m_ied);
    quiet.advance(5min);
    EXPECT_EQ(quiet.number("RDRE1$ST$FltNum$stVal"), 0);
    EXPECT_EQ(quiet.number("QA1XCBR1$ST$OpCnt$stVal"), 0);
}

TEST_F(AnimationTest, substitutedValuesStay)
{
    Animated bay(*m_ied);
    bay.advance(1s);
    bay.set("MMXU1$SV$Hz$subEna", mms::Data::boolean(true));
    bay.set("MMXU1$MX$Hz$mag$f", mms::Data::float32(49));
    bay.advance(10s);
    EXPECT_EQ(bay.measured("Hz"), 49);
    bay.set("MMXU1$SV$Hz$subEna", mms::Data::boolean(false));
    bay.advance(1s);
    EXPECT_NEAR(bay.measured("Hz"), 50, 0.1);
}

TEST_F(AnimationTest, energyIsCountedInItsDirection)
{
    Animated bay(*m_ied);
    bay.advance(1h);
    // About 44 MW for an hour in steps of 100 Wh.
    EXPECT_NEAR(bay.number("MMTR1$ST$DmdWh$actVal"), 440000, 60000);
    EXPECT_EQ(bay.number("MMTR1$ST$SupWh$actVal"), 0);
}

TEST_F(AnimationTest, theTimerRunsOnlyWhenSomethingIsDue)
{
    struct Counting : sim::ChangeListener
    {
        void changed(std::span<const sim::Change>) override { ++count; }
        int count = 0;
    } listener;
    Animated bay(*m_ied);
    bay.model().addListener(&listener);
    bay.advance(10s);
    bay.model().removeListener(&listener);
    EXPECT_GE(listener.count, 40);
    EXPECT_LE(listener.count, 100);
}

TEST(AnimationOfAnyFile, valuesStayWithinTheirTypes)
{
    int devices = 0;
    std::vector<std::filesystem::path> files{DEMONSTRATION_FILE};
    for (const auto &entry : std::filesystem::directory_iterator(SCL_FIXTURES))
        files.push_back(entry.path());
    for (const auto &file : files) {
        const auto read = scl::readFile(file.string());
        if (!read.document)
            continue;
        for (const scl::Ied &ied : read.document->ieds) {
            Animated device(ied, {1, 250ms, true});
            device.advance(3min);
            device.animation().startFault();
            device.advance(10s);
            for (sim::Leaf leaf = 0; leaf < device.model().leafCount(); ++leaf) {
                const mms::Data &value = device.model().value(leaf);
                ASSERT_FALSE(sim::Model::check(device.model().leafPart(leaf), value).has_value())
                    << file << " " << device.model().itemName(device.model().leafPart(leaf));
                ASSERT_TRUE(std::isfinite(value.toDouble().value_or(0)));
            }
            ++devices;
        }
    }
    EXPECT_GT(devices, 10);
}

TEST(AnimationOfAnyFile, everyMeasuredMagnitudeOfTheDemonstrationMoves)
{
    const auto read = scl::readFile(DEMONSTRATION_FILE);
    ASSERT_TRUE(read.document);
    Animated device(read.document->ieds.front());
    device.advance(1s);
    sim::Model &model = device.model();
    std::vector<mms::Data> before;
    for (sim::Leaf leaf = 0; leaf < model.leafCount(); ++leaf)
        before.push_back(model.value(leaf));
    device.advance(10s);
    int moving = 0;
    std::vector<std::string> still;
    for (sim::Leaf leaf = 0; leaf < model.leafCount(); ++leaf) {
        const sim::Part part = model.leafPart(leaf);
        const std::string name = model.itemName(part);
        const bool isMagnitude = name.find("$MX$") != std::string::npos &&
                                 (name.ends_with("ag$f") || name.ends_with("ag$i"));
        if (!isMagnitude || name.starts_with("RFLO") || name.find("Out") != std::string::npos)
            continue;
        if (before[leaf] == model.value(leaf))
            still.push_back(name);
        else
            ++moving;
    }
    EXPECT_GT(moving, 60);
    // There is no direct component among harmonics.
    for (const std::string &name : still)
        EXPECT_NE(name.find("(0)"), std::string::npos) << name;
}

} // namespace
