// SPDX-License-Identifier: Apache-2.0
#include "simulator/describedied.h"
#include "simulator/model.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace sim;
using mms::AlternateAccess;
using mms::Data;
using mms::DataAccessError;
using mms::ObjectName;
using mms::TypeDescription;

constexpr const char *domain = "IED1LD";
constexpr mms::UtcTime startTime{1600000000, 0, 10};

class ModelTest : public testing::Test
{
protected:
    Part find(std::string_view item) const { return model.find(domain, item); }
    Data value(std::string_view item) const
    {
        const Part part = find(item);
        EXPECT_TRUE(part.isValid()) << item;
        return part.isValid() ? model.value(part) : Data();
    }
    std::vector<std::string> namesInPages(std::size_t octets) const
    {
        std::vector<std::string> names;
        for (;;) {
            const auto page = model.variableNames(
                model.domains().front(), names.empty() ? std::string() : names.back(), octets);
            if (!page)
                return {"no page"};
            names.insert(names.end(), page->names.begin(), page->names.end());
            if (!page->moreFollows)
                return names;
        }
    }

    simtest::DescribedIed ied = simtest::bay();
    Model model{*ied, startTime};
};

struct Listener : ChangeListener
{
    void changed(std::span<const Change> changes) override
    {
        heard.emplace_back(changes.begin(), changes.end());
    }
    std::vector<std::vector<Change>> heard;
};

TEST_F(ModelTest, aLogicalDeviceIsADomainNamedAfterIedAndInstance)
{
    ASSERT_EQ(model.domains().size(), 1U);
    EXPECT_EQ(model.domains().front().name, domain);
    EXPECT_EQ(model.domainNames(), std::vector<std::string>{domain});
    EXPECT_EQ(model.logicalNodes().size(), 5U);
}

TEST_F(ModelTest, theTypeOfALogicalNodeGroupsItsDataByConstraint)
{
    using Components = std::vector<TypeDescription::Component>;
    const auto oper = TypeDescription::structure(Components{
        {"ctlVal", TypeDescription::boolean()},
        {"T", TypeDescription::utcTime()},
        {"Check", TypeDescription::bitString(-2)},
    });
    const auto only = [](const char *name, TypeDescription type) {
        return TypeDescription::structure(Components{{name, std::move(type)}});
    };
    const auto expected = TypeDescription::structure(Components{
        {"ST", only("Pos", TypeDescription::structure(Components{
                               {"stVal", TypeDescription::bitString(2)},
                               {"q", TypeDescription::bitString(-13)},
                               {"t", TypeDescription::utcTime()},
                           }))},
        {"CO", only("Pos", TypeDescription::structure(Components{{"SBOw", oper}, {"Oper", oper}}))},
        {"CF", only("Pos", TypeDescription::structure(Components{
                               {"ctlModel", TypeDescription::integer(8)},
                               {"sboTimeout", TypeDescription::unsignedInteger(32)},
                           }))},
        {"DC", only("Pos", only("d", TypeDescription::visibleString(-255)))},
        {"SV", only("Pos", only("subEna", TypeDescription::boolean()))},
        {"BL", only("Pos", only("blkEna", TypeDescription::boolean()))},
    });
    EXPECT_EQ(toText(find("XCBR1").type()), toText(expected));
    EXPECT_EQ(find("XCBR1").type(), expected);
}

TEST_F(ModelTest, logicalNodesOfATypeShareItsLayout)
{
    EXPECT_EQ(&find("XCBR1$ST").node(), &find("XCBR10$ST").node());
    EXPECT_NE(find("XCBR1$ST"), find("XCBR10$ST"));
}

TEST_F(ModelTest, arraysTakeTheirSizeFromTheAttributeThatHoldsIt)
{
    const Part harmonics = find("MHAI1$MX$HA$phsAHar");
    ASSERT_TRUE(harmonics.isValid());
    EXPECT_EQ(harmonics.type().elementCount, 3U);
    EXPECT_EQ(harmonics.leafCount(), 9U);
    const Data values = model.value(harmonics);
    ASSERT_EQ(values.children().size(), 3U);
    EXPECT_EQ(values.children()[1].children()[0].children()[0].children()[0].toDouble(), 4.5);
    EXPECT_EQ(values.children()[2].children()[0].children()[0].children()[0].toDouble(), 0.0);
}

TEST_F(ModelTest, valuesComeFromTheInstanceElseFromTheTypeElseAreHealthy)
{
    EXPECT_EQ(value("XCBR1$CF$Pos$ctlModel").toInteger(), 4);
    EXPECT_EQ(value("XCBR10$CF$Pos$ctlModel").toInteger(), 1) << "operable, so directly";
    EXPECT_EQ(value("LLN0$CF$Mod$ctlModel").toInteger(), 0) << "not operable";
    EXPECT_EQ(value("MHAI1$CF$HA$numHar").toUnsigned(), 3U);
    EXPECT_EQ(value("LLN0$ST$Mod$stVal").toInteger(), 1) << "on";
    EXPECT_EQ(value("XCBR1$ST$Pos$stVal").bits().toText(), "01") << "open";
    EXPECT_EQ(value("XCBR1$ST$Pos$q").bits().toText(), "0000000000000");
    EXPECT_EQ(value("XCBR1$ST$Pos$t").toUtcTime(), startTime);
    EXPECT_EQ(value("XCBR1$CF$Pos$sboTimeout").toUnsigned(), 30000U);
    EXPECT_EQ(value("XCBR1$DC$Pos$d").text(), "Breaker");
    EXPECT_EQ(value("XCBR10$DC$Pos$d").text(), "");
}

TEST_F(ModelTest, theNamePlateTellsWhoMadeTheDevice)
{
    EXPECT_EQ(value("LLN0$DC$NamPlt$vendor").text(), "Maker");
    EXPECT_EQ(value("LLN0$DC$NamPlt$swRev").text(), "2.1");
    EXPECT_EQ(value("LLN0$DC$NamPlt$d").text(), "Bay");
}

TEST_F(ModelTest, controlBlocksStandUnderTheirConstraints)
{
    EXPECT_TRUE(find("LLN0$RP$urcb01$Resv").isValid());
    EXPECT_TRUE(find("LLN0$RP$urcb02$Owner").isValid());
    EXPECT_FALSE(find("LLN0$RP$urcb03").isValid());
    EXPECT_FALSE(find("LLN0$RP$urcb01$EntryID").isValid());
    EXPECT_TRUE(find("LLN0$BR$brcb$EntryID").isValid());
    EXPECT_TRUE(find("LLN0$BR$brcb$ResvTms").isValid());
    EXPECT_TRUE(find("LLN0$SP$SGCB$ActSG").isValid());
    EXPECT_EQ(value("LLN0$GO$gcb$GoID").text(), "trip");
    EXPECT_EQ(value("LLN0$GO$gcb$DatSet").text(), "IED1LD/LLN0$Positions");
    EXPECT_EQ(value("LLN0$GO$gcb$ConfRev").toUnsigned(), 3U);
    EXPECT_EQ(value("LLN0$LG$lcb$LogRef").text(), "IED1LD/LLN0$Events");
}

TEST_F(ModelTest, blocksOfTheFirstEditionHaveNeitherOwnerNorReservationTime)
{
    const Model old(*ied, startTime, true);
    EXPECT_TRUE(old.find(domain, "LLN0$BR$brcb$TimeofEntry").isValid());
    EXPECT_FALSE(old.find(domain, "LLN0$BR$brcb$ResvTms").isValid());
    EXPECT_FALSE(old.find(domain, "LLN0$BR$brcb$Owner").isValid());
    EXPECT_FALSE(old.find(domain, "LLN0$RP$urcb01$Owner").isValid());
}

TEST_F(ModelTest, settingsCanBeEditedThoughTheFileOnlyNamesTheActiveOnes)
{
    EXPECT_EQ(find("PTOC1$SE").type(), find("PTOC1$SG").type());
    const auto settings = model.settings(model.domains().front());
    ASSERT_EQ(settings.size(), 1U);
    EXPECT_EQ(model.itemName(model.leafPart(settings.front().active)), "PTOC1$SG$StrVal$setMag$f");
    EXPECT_EQ(model.itemName(model.leafPart(settings.front().edited)), "PTOC1$SE$StrVal$setMag$f");
    EXPECT_EQ(model.value(settings.front().active).toDouble(), 1.5);
    EXPECT_EQ(model.configuredValue(settings.front().active, 2).toDouble(), 2.5);
    EXPECT_EQ(model.configuredValue(settings.front().active, 3).toDouble(), 1.5);
}

TEST_F(ModelTest, namesAreSortedAndDoNotDependOnThePages)
{
    const auto names = namesInPages(1000000);
    EXPECT_TRUE(std::ranges::is_sorted(names));
    EXPECT_NE(std::ranges::find(names, "XCBR1$ST$Pos$stVal"), names.end());
    EXPECT_NE(std::ranges::find(names, "LLN0$SP$SGCB$NumOfSG"), names.end());
    EXPECT_LT(std::ranges::find(names, "XCBR1$SV$Pos$subEna"), std::ranges::find(names, "XCBR10"));
    EXPECT_EQ(namesInPages(1), names);
    EXPECT_EQ(namesInPages(100), names);
    for (const std::string &name : names)
        EXPECT_TRUE(find(name).isValid()) << name;
}

TEST_F(ModelTest, elementsOfArraysAreNoVariables)
{
    const auto names = namesInPages(1000000);
    EXPECT_NE(std::ranges::find(names, "MHAI1$MX$HA$phsAHar"), names.end());
    EXPECT_EQ(std::ranges::find(names, "MHAI1$MX$HA$phsAHar$cVal"), names.end());
}

TEST_F(ModelTest, aPageBehindANameThatDoesNotExistIsRefused)
{
    for (const char *name : {"XCBR2", "XCBR1$", "XCBR1$ST$", "XCBR1$ST$Pos$stVal$x", "$",
                             "XCBR1$ZZ", "MHAI1$MX$HA$phsAHar$cVal"})
        EXPECT_FALSE(model.variableNames(model.domains().front(), name, 1000)) << name;
    const auto last = model.variableNames(model.domains().front(), "XCBR10$SV$Pos$subEna", 1000);
    ASSERT_TRUE(last);
    EXPECT_TRUE(last->names.empty());
    EXPECT_FALSE(last->moreFollows);
}

TEST_F(ModelTest, namesThatAreIncompleteOrTooLongNameNothing)
{
    for (const char *name : {"", "$", "XCBR1$", "XCBR1$ST$", "XCBR1$$Pos", "XCBR1$ST$Pos$stVal$x",
                             "XCBR", "XCBR1$ST$Pos$stVal$"})
        EXPECT_FALSE(find(name).isValid()) << name;
    EXPECT_FALSE(model.find("IED1", "XCBR1").isValid());
}

TEST_F(ModelTest, alternateAccessNamesAnElementAndWhatIsInside)
{
    const mms::VariableAccess access{
        ObjectName::inDomain(domain, "MHAI1$MX$HA$phsAHar"),
        {AlternateAccess::ofElement(1, {AlternateAccess::ofComponent("cVal")})}};
    const Part part = model.find(access);
    ASSERT_TRUE(part.isValid());
    EXPECT_EQ(model.itemName(part), "MHAI1$MX$HA$phsAHar(1)$cVal");
    EXPECT_EQ(model.value(part.descendant("mag$f")).toDouble(), 4.5);
    EXPECT_EQ(model.leafPart(part.firstLeaf()), part.descendant("mag$f"));

    auto beyond = access;
    beyond.parts.front().index = 3;
    EXPECT_FALSE(model.find(beyond).isValid());
    auto branched = access;
    branched.parts.push_back(AlternateAccess::ofElement(0));
    EXPECT_FALSE(model.find(branched).isValid());
}

TEST_F(ModelTest, everyLeafKnowsItsName)
{
    for (Leaf leaf = 0; leaf < model.leafCount(); ++leaf) {
        const Part part = model.leafPart(leaf);
        ASSERT_TRUE(part.isLeaf());
        EXPECT_EQ(part.firstLeaf(), leaf);
        const std::string name = model.itemName(part);
        if (name.find('(') == std::string::npos) {
            EXPECT_EQ(find(name), part) << name;
        }
    }
}

TEST_F(ModelTest, everyValueFitsItsType)
{
    for (std::uint32_t i = 0; i < model.logicalNodes().size(); ++i) {
        const Part node = model.logicalNode(i);
        EXPECT_EQ(Model::check(node, model.value(node)), std::nullopt)
            << model.logicalNodes()[i].name;
    }
}

TEST_F(ModelTest, valuesOfAnotherTypeAreInconsistentAndOnesOutOfRangeInvalid)
{
    const auto check = [this](std::string_view item, const Data &data) {
        return Model::check(find(item), data);
    };
    EXPECT_EQ(check("XCBR1$CF$Pos$ctlModel", Data::integer(4)), std::nullopt);
    EXPECT_EQ(check("XCBR1$CF$Pos$ctlModel", Data::integer(2)),
              DataAccessError::ObjectValueInvalid);
    EXPECT_EQ(check("XCBR1$CF$Pos$ctlModel", Data::unsignedInteger(4)),
              DataAccessError::TypeInconsistent);
    EXPECT_EQ(check("XCBR1$CF$Pos$sboTimeout", Data::unsignedInteger(0xFFFFFFFF)), std::nullopt);
    EXPECT_EQ(check("XCBR1$CF$Pos$sboTimeout", Data::unsignedInteger(0x100000000)),
              DataAccessError::ObjectValueInvalid);
    EXPECT_EQ(check("XCBR1$DC$Pos$d", Data::visibleString(std::string(255, 'x'))), std::nullopt);
    EXPECT_EQ(check("XCBR1$DC$Pos$d", Data::visibleString(std::string(256, 'x'))),
              DataAccessError::ObjectValueInvalid);
    EXPECT_EQ(check("XCBR1$DC$Pos$d", Data::mmsString("x")), DataAccessError::TypeInconsistent);
    EXPECT_EQ(check("PTOC1$SP$StrVal$setMag2$f", Data::float32(1)), std::nullopt);
    EXPECT_EQ(check("PTOC1$SP$StrVal$setMag2$f", Data::float64(1)),
              DataAccessError::TypeInconsistent);
    EXPECT_EQ(check("PTOC1$SP$StrVal$setMag2", Data::structure({Data::float32(1)})), std::nullopt);
    EXPECT_EQ(check("PTOC1$SP$StrVal$setMag2", Data::structure({})),
              DataAccessError::TypeInconsistent);
    EXPECT_EQ(check("PTOC1$SP$StrVal$setMag2", Data::array({Data::float32(1)})),
              DataAccessError::TypeInconsistent);
    EXPECT_EQ(check("XCBR1$ST$Pos$stVal", Data::bitString(mms::BitString(3))),
              DataAccessError::TypeInconsistent);
}

TEST_F(ModelTest, aChangeFiresTheTriggersOfItsAttribute)
{
    Listener listener;
    model.addListener(&listener);
    const Leaf position = find("XCBR1$ST$Pos$stVal").firstLeaf();
    const Leaf quality = find("XCBR1$ST$Pos$q").firstLeaf();
    const Data closed = Data::bitString(mms::BitString::fromText("10"));
    model.set(position, closed);
    model.set(position, closed);
    model.set(quality, Data::bitString(mms::BitString::fromText("0100000000000")));
    model.set(quality, Data::bitString(mms::BitString::fromText("0100000000000")));
    model.set(find("XCBR1$ST$Pos$t").firstLeaf(), Data::utcTime({1700000000, 0, 0}));
    model.removeListener(&listener);
    model.set(position, Data::bitString(mms::BitString::fromText("01")));

    ASSERT_EQ(listener.heard.size(), 3U);
    EXPECT_EQ(listener.heard[0].front().leaf, position);
    EXPECT_EQ(listener.heard[0].front().fired, Trigger::DataChange | Trigger::DataUpdate);
    EXPECT_EQ(listener.heard[1].front().fired, Trigger::DataUpdate) << "the same value again";
    EXPECT_EQ(listener.heard[2].front().leaf, quality);
    EXPECT_EQ(listener.heard[2].front().fired, Trigger::QualityChange);
}

TEST_F(ModelTest, triggersOfAStructureHoldForWhatIsInside)
{
    Listener listener;
    model.addListener(&listener);
    const Part element = find("MHAI1$MX$HA$phsAHar").childAt(2);
    model.set(element.descendant("cVal$mag$f").firstLeaf(), Data::float32(7));
    ASSERT_EQ(listener.heard.size(), 1U);
    EXPECT_EQ(listener.heard[0].front().fired, Trigger::DataChange);
    EXPECT_TRUE(element.contains(listener.heard[0].front().leaf));
    model.removeListener(&listener);
}

TEST_F(ModelTest, changesOfABatchAreHeardTogetherWhenItEnds)
{
    Listener listener;
    model.addListener(&listener);
    {
        const Model::Batch batch(model);
        model.set(find("XCBR1$ST$Pos$stVal").firstLeaf(),
                  Data::bitString(mms::BitString::fromText("10")));
        model.set(find("XCBR10$ST$Pos$stVal").firstLeaf(),
                  Data::bitString(mms::BitString::fromText("10")));
        EXPECT_TRUE(listener.heard.empty());
    }
    ASSERT_EQ(listener.heard.size(), 1U);
    EXPECT_EQ(listener.heard.front().size(), 2U);
    model.removeListener(&listener);
}

TEST_F(ModelTest, aListenerThatChangesTheModelHearsOfItAfterwards)
{
    struct Follower : Listener
    {
        void changed(std::span<const Change> changes) override
        {
            Listener::changed(changes);
            if (heard.size() == 1) {
                model->set(follow, Data::bitString(mms::BitString::fromText("10")));
                EXPECT_EQ(heard.size(), 1U);
            }
        }
        Model *model = nullptr;
        Leaf follow = 0;
    };
    Follower follower;
    follower.model = &model;
    follower.follow = find("XCBR10$ST$Pos$stVal").firstLeaf();
    model.addListener(&follower);
    model.set(find("XCBR1$ST$Pos$stVal").firstLeaf(),
              Data::bitString(mms::BitString::fromText("10")));
    ASSERT_EQ(follower.heard.size(), 2U);
    EXPECT_EQ(follower.heard[1].front().leaf, follower.follow);
    model.removeListener(&follower);
}

} // namespace
