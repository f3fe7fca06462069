// SPDX-License-Identifier: Apache-2.0
#include "fixture.h"

#include <gtest/gtest.h>

namespace {

using scl::Severity;

class SclFindings : public testing::Test
{
protected:
    void read(const std::string &fixture)
    {
        m_result = readFixture(fixture);
        ASSERT_NE(m_result.document, nullptr) << m_result.errorText;
        ASSERT_FALSE(m_result.document->ieds.empty());
    }

    const scl::Document &document() const { return *m_result.document; }
    scl::IedCounts counts() const { return scl::countsOf(document().ieds.front()); }

    void expect(Severity severity, std::uint32_t line, const std::string &pathEnd,
                const std::string &part) const
    {
        const scl::Finding *finding = nullptr;
        for (const scl::Finding &candidate : document().findings) {
            if (candidate.line == line && candidate.text.english().find(part) != std::string::npos)
                finding = &candidate;
        }
        ASSERT_NE(finding, nullptr) << "nothing in line " << line << " says " << part;
        EXPECT_EQ(finding->severity, severity) << finding->text;
        EXPECT_TRUE(finding->path.ends_with(pathEnd)) << finding->path;
        EXPECT_TRUE(finding->path.starts_with("SCL")) << finding->path;
        EXPECT_TRUE(finding->text.english().ends_with('.')) << finding->text;
    }

    template <typename Expected>
    Expected valueOf(std::string_view attribute) const
    {
        const scl::DataNode object = nodeNamed(document(), "GGIO1")->dataObject("Obj");
        const scl::ConfiguredValue *configured = object.child(attribute).value();
        EXPECT_NE(configured, nullptr) << attribute;
        EXPECT_TRUE(configured && std::holds_alternative<Expected>(configured->value)) << attribute;
        return configured && std::holds_alternative<Expected>(configured->value)
                   ? std::get<Expected>(configured->value)
                   : Expected{};
    }

    scl::ReadResult m_result;
};

} // namespace

TEST_F(SclFindings, aMissingLogicalNodeTypeLeavesAnEmptyNode)
{
    read("missing-lnodetype.icd");
    expect(Severity::Error, 10, "LDevice[LD]/LN[GGIO1]", "LNodeType \"Gone\" does not exist");
    ASSERT_NE(nodeNamed(document(), "GGIO1"), nullptr);
    EXPECT_EQ(nodeNamed(document(), "GGIO1")->type, nullptr);
    EXPECT_EQ(counts().logicalNodes, 2U);
}

TEST_F(SclFindings, aMissingDataObjectTypeLeavesAnEmptyDataObject)
{
    read("missing-dotype.icd");
    expect(Severity::Error, 23, "LNodeType[In]/DO[Ind1]", "DOType \"Gone\" does not exist");
    const scl::DataNode object = nodeNamed(document(), "GGIO1")->dataObject("Ind1");
    ASSERT_TRUE(object.isValid());
    EXPECT_EQ(object.leafCount(), 0U);
    EXPECT_EQ(counts().dataObjects, 2U);
}

TEST_F(SclFindings, aMissingAttributeTypeLeavesAnEmptyStructure)
{
    read("missing-datype.icd");
    expect(Severity::Error, 27, "DOType[Single]/DA[origin]", "DAType \"Gone\" does not exist");
    EXPECT_EQ(nodeNamed(document(), "GGIO1")->leafCount(), 1U);
}

TEST_F(SclFindings, aMissingEnumerationLeavesTheOrdinal)
{
    read("missing-enumtype.icd");
    expect(Severity::Error, 26, "DOType[Single]/DA[stVal]", "EnumType \"Gone\" does not exist");
    const scl::DataNode value = nodeNamed(document(), "GGIO1")->dataObject("Ind1").child("stVal");
    EXPECT_EQ(value.node().enumeration, nullptr);
    EXPECT_EQ(value.node().typeId, "Gone");
    EXPECT_EQ(std::get<std::int64_t>(value.value()->value), 3);
}

TEST_F(SclFindings, ofDuplicateTypesTheFirstIsUsed)
{
    read("duplicate-ids.icd");
    expect(Severity::Error, 29, "LNodeType[In]", "line 22 is used");
    expect(Severity::Error, 32, "DOType[Single]", "line 25 is used");
    expect(Severity::Error, 36, "DAType[Twice]", "line 35 is used");
    expect(Severity::Error, 38, "EnumType[Colour]", "line 37 is used");
    EXPECT_TRUE(nodeNamed(document(), "GGIO1")->dataObject("Ind1").child("stVal").isValid());
    EXPECT_EQ(enumerationNamed(document(), "Colour")->literals.front().text, "red");
}

TEST_F(SclFindings, aTypeThatContainsItselfIsCutThere)
{
    read("self-referring-types.icd");
    expect(Severity::Error, 26, "DOType[Loop]/SDO[again]", "contains itself");
    expect(Severity::Error, 36, "DAType[Second]/BDA[back]", "contains itself");
    EXPECT_EQ(nodeNamed(document(), "GGIO1")->leafCount(), 3U);
}

TEST_F(SclFindings, aClassThatDiffersFromItsTypeIsKept)
{
    read("class-mismatch.icd");
    expect(Severity::Warning, 10, "LN[XCBR1]", "of class \"GGIO\"");
    ASSERT_NE(nodeNamed(document(), "XCBR1"), nullptr);
    EXPECT_EQ(nodeNamed(document(), "XCBR1")->leafCount(), 2U);
}

TEST_F(SclFindings, aDataObjectTypeWithoutClassIsKept)
{
    read("dotype-without-cdc.icd");
    expect(Severity::Warning, 25, "DOType[Single]", "no common data class");
    EXPECT_EQ(nodeNamed(document(), "GGIO1")->leafCount(), 2U);
}

TEST_F(SclFindings, anAttributeWithoutConstraintIsKept)
{
    read("attribute-without-fc.icd");
    expect(Severity::Error, 27, "DOType[Single]/DA[q]", "no functional constraint");
    EXPECT_EQ(nodeNamed(document(), "GGIO1")->leafCount(), 2U);
}

TEST_F(SclFindings, aLogicalNodeWithoutInstanceIsKept)
{
    read("node-without-inst.icd");
    expect(Severity::Error, 10, "LN[GGIO]", "no instance number");
    EXPECT_NE(nodeNamed(document(), "GGIO"), nullptr);
}

TEST_F(SclFindings, typeIdsMayHoldBlanksAndBrackets)
{
    read("type-ids-with-blanks.icd");
    EXPECT_TRUE(document().findings.empty());
    EXPECT_EQ(nodeNamed(document(), "GGIO1")->leafCount(), 2U);
}

TEST_F(SclFindings, oddValuesAreUnderstoodOrLeftOutWithAFinding)
{
    read("odd-values.icd");
    expect(Severity::Info, 12, "DAI[byOrdinal]/Val", "by its number \"5\"");
    EXPECT_EQ(valueOf<std::int64_t>("byOrdinal"), 5);
    expect(Severity::Info, 13, "DAI[byBlanks]/Val", "blanks");
    EXPECT_EQ(valueOf<std::int64_t>("byBlanks"), 5);
    expect(Severity::Error, 14, "DAI[byUnknown]/Val",
           "\"sideways\" is not a value of Enum \"Beh\"");
    valueOf<std::monostate>("byUnknown");
    expect(Severity::Info, 15, "DAI[flagFalse]/Val", "\"False\"");
    EXPECT_FALSE(valueOf<bool>("flagFalse"));
    expect(Severity::Info, 16, "DAI[flagOn]/Val", "\"on\"");
    EXPECT_TRUE(valueOf<bool>("flagOn"));
    expect(Severity::Info, 17, "DAI[flagOne]/Val", "\"1\"");
    EXPECT_TRUE(valueOf<bool>("flagOne"));
    expect(Severity::Error, 18, "DAI[flagBad]/Val", "\"perhaps\" is not a value of BOOLEAN");
    expect(Severity::Info, 19, "DAI[number]/Val", "empty");
    valueOf<std::monostate>("number");
    expect(Severity::Error, 20, "DAI[small]/Val", "\"300\" is not a value of INT8U");
    expect(Severity::Error, 21, "DAI[real]/Val", "\"1,5\"");
    EXPECT_EQ(valueOf<std::string_view>("label"), "");
    EXPECT_EQ(valueOf<std::int64_t>("position"), 2);
    EXPECT_EQ(valueOf<std::string_view>("moment"), "2021-03-04T04:06:07.500Z");
    EXPECT_EQ(document().findings.size(), 11U);
}

TEST_F(SclFindings, membersThatDoNotExistStayInTheirDataSet)
{
    read("missing-members.icd");
    expect(Severity::Error, 12, "DataSet[mixed]/FCDA[Ind1]", "no logical device \"Gone\"");
    expect(Severity::Error, 13, "FCDA[Ind1]", "no logical node \"GGIO2\"");
    expect(Severity::Error, 14, "FCDA[Ind2]", "no \"Ind2\"");
    expect(Severity::Error, 15, "FCDA[Ind1.gone]", "no \"gone\"");
    expect(Severity::Error, 16, "FCDA[Ind1.q]", "functional constraint \"MX\"");
    expect(Severity::Error, 17, "FCDA[Ind1]", "functional constraint \"MX\"");
    expect(Severity::Error, 18, "FCDA[Ind1.q]", "no functional constraint");
    const auto members = dataSetNamed(*nodeNamed(document(), "LLN0"), "mixed")->members;
    ASSERT_EQ(members.size(), 8U);
    EXPECT_TRUE(members[0].resolved);
    for (std::size_t i = 1; i < members.size(); ++i)
        EXPECT_FALSE(members[i].resolved) << i;
    EXPECT_EQ(members[1].reference, "IED1Gone/GGIO1$ST$Ind1");
}

TEST_F(SclFindings, instancesThatTheTypeLacksAreLeftOut)
{
    read("missing-instance-paths.icd");
    expect(Severity::Warning, 11, "DOI[Gone]", "\"Gone\" does not exist in type \"In\"");
    expect(Severity::Warning, 13, "DOI[Ind1]/DAI[gone]", "does not exist in type \"Single\"");
    expect(Severity::Warning, 14, "DOI[Ind1]/SDI[gone]", "does not exist in type \"Single\"");
    const scl::DataNode value = nodeNamed(document(), "GGIO1")->dataObject("Ind1").child("stVal");
    EXPECT_TRUE(std::get<bool>(value.value()->value));
}

TEST_F(SclFindings, controlBlocksThatNameAMissingDataSetAreKept)
{
    read("missing-data-set.icd");
    expect(Severity::Error, 10, "ReportControl[rcb]", "data set \"gone\"");
    expect(Severity::Error, 11, "GSEControl[gcb]", "data set \"gone\"");
    expect(Severity::Error, 12, "LogControl[lcb]", "data set \"gone\"");
    expect(Severity::Error, 13, "SampledValueControl[svcb]", "data set \"gone\"");
    const scl::LogicalNode &zero = *nodeNamed(document(), "LLN0");
    ASSERT_EQ(zero.reports.size(), 1U);
    EXPECT_EQ(zero.reports.front().dataSet, nullptr);
    EXPECT_EQ(zero.reports.front().dataSetName, "gone");
}

TEST_F(SclFindings, privateElementsAndForeignNamesAreSkippedWhereverTheyStand)
{
    read("private-and-foreign.icd");
    EXPECT_EQ(counts().logicalNodes, 2U);
    const scl::DataNode value = nodeNamed(document(), "GGIO1")->dataObject("Ind1").child("stVal");
    ASSERT_EQ(value.values().size(), 1U);
    EXPECT_TRUE(std::get<bool>(value.value()->value));
    expect(Severity::Warning, 19, "SCL", "prefix \"y\" is not declared");
    EXPECT_EQ(document().findings.size(), 1U);
}

TEST_F(SclFindings, anUndeclaredPrefixIsReportedOnce)
{
    read("unbound-prefix.icd");
    expect(Severity::Warning, 10, "SCL", "prefix \"v\"");
    EXPECT_EQ(counts().logicalNodes, 2U);
}

TEST_F(SclFindings, arrayElementsAreAddressedByNumber)
{
    read("array-members.icd");
    const scl::DataNode object = nodeNamed(document(), "MHAI1")->dataObject("HA");
    const scl::DataNode har = object.child("har");
    EXPECT_EQ(har.elementAt(0).child("q").value(), nullptr);
    EXPECT_EQ(har.elementAt(1).child("q").value()->text, "0000000000001");
    EXPECT_EQ(har.elementAt(3).child("q").value()->text, "0100000000000");
    const scl::DataNode list = object.child("list");
    EXPECT_EQ(list.elementAt(0).value()->text, "10");
    EXPECT_EQ(list.elementAt(1).value(), nullptr);
    EXPECT_EQ(list.elementAt(2).value()->text, "30");
    expect(Severity::Warning, 23, "DOI[HA]/SDI[har]", "has no element 9");

    const auto members = dataSetNamed(*nodeNamed(document(), "LLN0"), "elements")->members;
    ASSERT_EQ(members.size(), 6U);
    EXPECT_EQ(members[0].reference, "IED1LD/MHAI1$MX$HA$har(1)$mag$f");
    EXPECT_EQ(members[1].reference, "IED1LD/MHAI1$MX$HA$har(3)$q");
    EXPECT_EQ(members[2].reference, "IED1LD/MHAI1$MX$HA$har(2)$q");
    EXPECT_EQ(members[3].reference, "IED1LD/MHAI1$CF$HA$list(2)");
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_TRUE(members[i].resolved) << i;
    expect(Severity::Error, 15, "FCDA[HA.har(4).q]", "has no element 4");
    expect(Severity::Error, 16, "FCDA[HA.har.q]", "no element is given");
}

TEST_F(SclFindings, anArrayWhoseSizeIsUnknownIsEmpty)
{
    read("array-size-unknown.icd");
    expect(Severity::Error, 28, "DOType[Curve]/DA[other]", "\"gone\"");
    expect(Severity::Warning, 10, "LN[GGIO1]", "\"numPts\"");
    EXPECT_EQ(nodeNamed(document(), "GGIO1")->leafCount(), 1U);
}

TEST_F(SclFindings, reportInstancesStayWithinTwoDigits)
{
    read("report-instances.icd");
    expect(Severity::Error, 10, "ReportControl[many]/RptEnabled", "400000; 99 is used");
    expect(Severity::Error, 11, "ReportControl[none]/RptEnabled", "0; 1 is used");
    expect(Severity::Error, 13, "ReportControl[twelve]", "another control block");
    expect(Severity::Error, 13, "ReportControl[twelve]", "\"x\" is not a value of confRev");
    expect(Severity::Error, 13, "ReportControl[twelve]/TrgOps", "\"maybe\"");
    const auto reports = nodeNamed(document(), "LLN0")->reports;
    EXPECT_EQ(reports[0].instanceNames.back(), "many99");
    EXPECT_EQ(reports[2].instanceNames.back(), "twelve12");
}

TEST_F(SclFindings, structuralMistakesAreReportedAndNothingIsDropped)
{
    read("structure-mistakes.scd");
    expect(Severity::Error, 5, "AccessPoint[S1]", "\"gone\"");
    expect(Severity::Error, 10, "LDevice[LD]", "no LN0");
    expect(Severity::Error, 11, "LDevice[LD]", "another logical device");
    expect(Severity::Error, 13, "SettingControl", "group 1 is used");
    expect(Severity::Error, 16, "LN[GGIO1]", "another logical node");
    expect(Severity::Error, 17, "LN[GGIO2]", "no type");
    expect(Severity::Error, 22, "IED[A]", "another IED");
    EXPECT_EQ(document().ieds.size(), 2U);
    EXPECT_EQ(counts().logicalDevices, 2U);
    EXPECT_EQ(counts().logicalNodes, 4U);
}

TEST_F(SclFindings, unknownBasicTypesAreKeptAsTexts)
{
    read("basic-types.icd");
    expect(Severity::Info, 26, "DA[stVal]", "\"boolean\" instead of \"BOOLEAN\"");
    expect(Severity::Warning, 27, "DA[vendor]", "\"Temperature\"");
    expect(Severity::Error, 28, "DA[untyped]", "no basic type");
    expect(Severity::Error, 29, "DA[stVal]", "defined twice");
    expect(Severity::Error, 30, "DA[wrong]", "\"st\" is not a functional constraint");
    const scl::DataNode object = nodeNamed(document(), "GGIO1")->dataObject("Ind1");
    EXPECT_EQ(object.child("vendor").node().basicTypeName, "Temperature");
    EXPECT_EQ(object.child("vendor").value()->text, "warm");
}
