// SPDX-License-Identifier: Apache-2.0
#include "acsi/dataset.h"

#include "mms/datatext.h"
#include "scripteddevice.h"

namespace {

using namespace acsi;
using mms::ObjectName;
using mms::Scope;

TEST(DataSetName, isReadInEveryNotation)
{
    const std::vector<std::pair<const char *, ObjectName>> names = {
        {"LD1/LLN0$ds", ObjectName::inDomain("LD1", "LLN0$ds")},
        {"LLN0$ds", ObjectName::inDomain("LD0", "LLN0$ds")},
        {"LD1/LLN0.ds", ObjectName::inDomain("LD1", "LLN0$ds")},
        {"LLN0.ds", ObjectName::inDomain("LD0", "LLN0$ds")},
        {"@ds", ObjectName::ofAssociation("ds")},
    };
    for (const auto &[text, name] : names) {
        const auto read = dataSetName("LD0", text);
        ASSERT_TRUE(read.ok()) << text;
        EXPECT_EQ(*read, name) << text;
        const auto again = dataSetName("", dataSetText(name));
        ASSERT_TRUE(again.ok()) << text;
        EXPECT_EQ(*again, name) << text;
    }
    EXPECT_EQ(dataSetText(ObjectName::inDomain("LD0", "LLN0$ds")), "LD0/LLN0$ds");
    EXPECT_EQ(dataSetText(ObjectName::ofAssociation("ds")), "@ds");
}

TEST(DataSetName, otherTextIsRefusedWithASentence)
{
    for (const char *text : {"", "@", "ds", "LD0/ds", "/LLN0$ds", "LD0/LLN0$", "LD0/$ds", "@a b",
                             "@LD0/ds", "LD0/LLN0$d$s", "LD0/LLN0.d.s", "LD0/LLN0$ds(1)", "@a$b"}) {
        const auto name = dataSetName("LD0", text);
        ASSERT_FALSE(name.ok()) << text;
        EXPECT_EQ(name.error().message, mms::quoted(text) + " is not the name of a data set.");
    }
    EXPECT_FALSE(dataSetName("", "LLN0$ds").ok());
}

using AcsiDataSet = acsitest::DeviceTest;

std::vector<mms::VariableAccess> members()
{
    return {{ObjectName::inDomain("LD0", "GGIO1$ST$Ind1"), {}},
            {ObjectName::inDomain("LD0", "MHAI1$MX$har"), {mms::AlternateAccess::ofElement(3)}}};
}

TEST_F(AcsiDataSet, isMadeListedAndDeleted)
{
    connect();
    for (const ObjectName &name :
         {ObjectName::inDomain("LD0", "LLN0$ds"), ObjectName::ofAssociation("ds")}) {
        ASSERT_TRUE(run(createDataSet(client, name, members())).ok());
        const auto directory = run(dataSetDirectory(client, name));
        ASSERT_TRUE(directory.ok());
        EXPECT_EQ(directory->name, name);
        EXPECT_TRUE(directory->deletable);
        EXPECT_EQ(directory->members, members());
        EXPECT_TRUE(run(deleteDataSet(client, name)).ok());
        EXPECT_FALSE(run(dataSetDirectory(client, name)).ok());
    }
}

TEST_F(AcsiDataSet, deletingWhatIsMissingOrFixedIsAnError)
{
    device->domains["LD0"].lists["LLN0$fixed"].members = members();
    connect();
    const auto fixed = run(deleteDataSet(client, ObjectName::inDomain("LD0", "LLN0$fixed")));
    ASSERT_FALSE(fixed.ok());
    EXPECT_EQ(fixed.error().message,
              "The device does not let the data set \"LD0/LLN0$fixed\" be deleted.");
    const auto missing = run(deleteDataSet(client, ObjectName::inDomain("LD0", "LLN0$none")));
    ASSERT_FALSE(missing.ok());
    EXPECT_EQ(missing.error().message, "There is no data set \"LD0/LLN0$none\".");
}

TEST_F(AcsiDataSet, refusalToMakeOneIsASentence)
{
    const mms::ServiceError exists{
        mms::ErrorClass::Definition, mms::serviceerrors::definitionObjectExists, {}, {}, {}};
    device->refused["LD0/LLN0$ds"] = exists;
    connect();
    const auto made = run(createDataSet(client, ObjectName::inDomain("LD0", "LLN0$ds"), members()));
    ASSERT_FALSE(made.ok());
    EXPECT_EQ(made.error().message, mms::describe(exists));
}

} // namespace
