// SPDX-License-Identifier: Apache-2.0
#include "acsi/reference.h"
#include "mms/data.h"
#include "mms/datatext.h"

#include <gtest/gtest.h>

namespace {

using namespace acsi;
using mms::AlternateAccess;
using mms::ObjectName;
using mms::VariableAccess;

Reference harmonic()
{
    Reference reference;
    reference.device = "E1Q1MEAS";
    reference.node = "MHAI1";
    reference.constraint = FunctionalConstraint::MX;
    reference.path = {{"HA", {}}, {"phsAHar", 3}, {"cVal", {}}, {"mag", {}}};
    return reference;
}

TEST(FunctionalConstraint, everyOneIsReadAsItIsWritten)
{
    int count = 0;
    for (int i = 0; i <= static_cast<int>(FunctionalConstraint::BL); ++i) {
        const auto constraint = static_cast<FunctionalConstraint>(i);
        EXPECT_EQ(functionalConstraintFrom(toText(constraint)), constraint);
        ++count;
    }
    EXPECT_EQ(count, 20);
    EXPECT_EQ(toText(FunctionalConstraint::BR), "BR");
}

TEST(FunctionalConstraint, otherTextIsNone)
{
    for (const char *text : {"", "S", "st", "STX", "ST ", "XX", "FC"})
        EXPECT_EQ(functionalConstraintFrom(text), std::nullopt) << text;
}

TEST(FunctionalConstraint, controlBlocksAreNotData)
{
    for (const char *text : {"RP", "BR", "LG", "GO", "GS", "MS", "US"})
        EXPECT_FALSE(isOfData(*functionalConstraintFrom(text))) << text;
    for (const char *text :
         {"ST", "MX", "CO", "CF", "DC", "SP", "SG", "SE", "SV", "EX", "SR", "OR", "BL"})
        EXPECT_TRUE(isOfData(*functionalConstraintFrom(text))) << text;
}

TEST(Reference, isReadAndWrittenWithEveryPart)
{
    const std::string text = "E1Q1MEAS/MHAI1$MX$HA$phsAHar(3)$cVal$mag";
    const auto reference = parseReference(text);
    ASSERT_TRUE(reference.ok()) << reference.error().message;
    EXPECT_EQ(*reference, harmonic());
    EXPECT_EQ(toText(*reference), text);
    EXPECT_EQ(itemText(*reference), "MHAI1$MX$HA$phsAHar(3)$cVal$mag");
    EXPECT_EQ(objectReferenceText(*reference), "E1Q1MEAS/MHAI1.HA.phsAHar(3).cVal.mag");
}

TEST(Reference, partsMayBeMissingFromTheEnd)
{
    for (const char *text : {"LD0", "LD0/LLN0", "LD0/LLN0$ST", "LD0/LLN0$ST$Mod",
                             "LD0/LLN0$BR$brcb01$RptEna", "LD.0/LLN0$ST"}) {
        const auto reference = parseReference(text);
        ASSERT_TRUE(reference.ok()) << reference.error().message;
        EXPECT_EQ(toText(*reference), text);
    }
}

TEST(Reference, itemIsReadWithinALogicalDevice)
{
    const auto reference = parseReference("E1Q1MEAS", "MHAI1$MX$HA$phsAHar(3)$cVal$mag");
    ASSERT_TRUE(reference.ok());
    EXPECT_EQ(*reference, harmonic());
}

TEST(Reference, wrongTextIsRefusedWithASentenceThatQuotesIt)
{
    for (const char *text : {"",
                             "/",
                             "LD0/",
                             "/LLN0",
                             "LLN0$ST",
                             "LD0/LLN0$",
                             "LD0/LLN0$XX",
                             "LD0/LLN0$ST$",
                             "LD0/LLN0$ST$$Mod",
                             "LD0/LLN0$ST$Mod$",
                             "LD0/LLN0.Mod",
                             "LD0/LLN0$ST$har()",
                             "LD0/LLN0$ST$har(x)",
                             "LD0/LLN0$ST$har(-1)",
                             "LD0/LLN0$ST$har(3",
                             "LD0/LLN0$ST$har(3)x",
                             "LD0/LLN0$ST$(3)",
                             "LD0/LLN0$ST$har(4294967296)",
                             "LD0/LLN0$ST$har(1)(2)",
                             "LD0/LLN0(1)",
                             "LD 0/LLN0",
                             "LD0/LLN0$ST$Mod/q",
                             "LD0/LLN0$ST$M\x01"}) {
        const auto reference = parseReference(text);
        ASSERT_FALSE(reference.ok()) << text;
        EXPECT_EQ(
            reference.error().message.english().find(mms::quoted(text) + " is not a reference: "),
            0U);
        EXPECT_EQ(reference.error().message.english().back(), '.');
    }
    EXPECT_FALSE(parseReference("LD0", "").ok());
    EXPECT_FALSE(parseReference("", "LLN0").ok());
}

TEST(Reference, dataIsAccessedByItsName)
{
    const auto reference = parseReference("LD0/LLN0$ST$Mod$stVal");
    ASSERT_TRUE(reference.ok());
    const VariableAccess access = accessOf(*reference);
    EXPECT_EQ(access, (VariableAccess{ObjectName::inDomain("LD0", "LLN0$ST$Mod$stVal"), {}}));
    const auto back = referenceOf(access);
    ASSERT_TRUE(back.ok());
    EXPECT_EQ(*back, *reference);
}

TEST(Reference, elementIsAccessedAsPartOfItsArray)
{
    const VariableAccess access = accessOf(harmonic());
    const VariableAccess expected{
        ObjectName::inDomain("E1Q1MEAS", "MHAI1$MX$HA$phsAHar"),
        {AlternateAccess::ofElement(
            3, {AlternateAccess::ofComponent("cVal", {AlternateAccess::ofComponent("mag")})})}};
    EXPECT_EQ(access, expected);
    const auto back = referenceOf(access);
    ASSERT_TRUE(back.ok()) << back.error().message;
    EXPECT_EQ(*back, harmonic());
}

TEST(Reference, arrayInsideAnElementIsAccessed)
{
    const auto reference = parseReference("LD0/MX1$MX$a(1)$b(2)$c");
    ASSERT_TRUE(reference.ok());
    const VariableAccess access = accessOf(*reference);
    EXPECT_EQ(mms::toText(access), "LD0/MX1$MX$a(1).b(2).c");
    const auto back = referenceOf(access);
    ASSERT_TRUE(back.ok());
    EXPECT_EQ(*back, *reference);
}

TEST(Reference, componentsNamedAtOnceAreTakenApart)
{
    const VariableAccess access{
        ObjectName::inDomain("E1Q1MEAS", "MHAI1$MX$HA$phsAHar"),
        {AlternateAccess::ofElement(3, {AlternateAccess::ofComponent("cVal$mag")})}};
    const auto reference = referenceOf(access);
    ASSERT_TRUE(reference.ok());
    EXPECT_EQ(*reference, harmonic());
}

TEST(Reference, accessToSomethingElseHasNone)
{
    const ObjectName array = ObjectName::inDomain("LD0", "MHAI1$MX$har");
    const std::vector<VariableAccess> accesses = {
        {array, {AlternateAccess::ofElements(1, 2)}},
        {array, {AlternateAccess::ofAllElements()}},
        {array, {AlternateAccess::ofElement(1), AlternateAccess::ofElement(2)}},
        {array, {AlternateAccess::ofElement(1, {AlternateAccess::ofElement(2)})}},
        {array, {AlternateAccess::ofComponent("a b")}},
        {ObjectName::inDomain("LD0", "MHAI1"), {AlternateAccess::ofElement(1)}},
        {ObjectName::inDomain("LD0", "MHAI1"), {AlternateAccess::ofComponent("MX")}},
        {ObjectName::inDomain("LD0", "MHAI1$"), {}},
        {ObjectName::ofVmd("MHAI1$MX"), {}},
        {ObjectName::ofAssociation("MHAI1$MX"), {}},
        {mms::Address(), {}},
        {mms::InvalidatedVariable(), {}},
    };
    for (const VariableAccess &access : accesses) {
        const auto reference = referenceOf(access);
        ASSERT_FALSE(reference.ok()) << mms::toText(access);
        EXPECT_FALSE(reference.error().message.empty());
    }
    EXPECT_TRUE(referenceOf("LD0", "LLN0$ST$Mod").ok());
    EXPECT_FALSE(referenceOf("LD0", "LLN0$Mod").ok());
}

} // namespace
