// SPDX-License-Identifier: Apache-2.0
// Serves every IED of a folder of real devices, discovers it as a client would, and compares names
// and types with what the file says.
#include "scl/reader.h"
#include "simulator/devicetest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

namespace {

using namespace mms;
using Leaves = std::map<std::string, std::string>;

/// What a basic type of the file is in MMS.
std::string typeTextOf(const scl::TemplateNode &node)
{
    static const std::map<scl::BasicType, std::string> texts{
        {scl::BasicType::Boolean, "boolean"},
        {scl::BasicType::Int8, "integer(8)"},
        {scl::BasicType::Int16, "integer(16)"},
        {scl::BasicType::Int24, "integer(24)"},
        {scl::BasicType::Int32, "integer(32)"},
        {scl::BasicType::Int64, "integer(64)"},
        {scl::BasicType::Int128, "integer(128)"},
        {scl::BasicType::Int8U, "unsigned(8)"},
        {scl::BasicType::Int16U, "unsigned(16)"},
        {scl::BasicType::Int24U, "unsigned(24)"},
        {scl::BasicType::Int32U, "unsigned(32)"},
        {scl::BasicType::Int64U, "unsigned(64)"},
        {scl::BasicType::Float32, "floating-point(32)"},
        {scl::BasicType::Float64, "floating-point(64)"},
        {scl::BasicType::Dbpos, "bit-string(2)"},
        {scl::BasicType::Tcmd, "bit-string(2)"},
        {scl::BasicType::Check, "bit-string(-2)"},
        {scl::BasicType::Quality, "bit-string(-13)"},
        {scl::BasicType::TrgOps, "bit-string(-6)"},
        {scl::BasicType::OptFlds, "bit-string(-10)"},
        {scl::BasicType::SvOptFlds, "bit-string(-5)"},
        {scl::BasicType::Timestamp, "utc-time"},
        {scl::BasicType::EntryId, "octet-string(8)"},
        {scl::BasicType::ObjRef, "visible-string(-129)"},
        {scl::BasicType::Currency, "visible-string(-3)"},
    };
    const std::string name(node.basicTypeName);
    if (name.starts_with("VisString"))
        return "visible-string(-" + name.substr(9) + ")";
    if (name.starts_with("Unicode"))
        return "mMSString(-" + name.substr(7) + ")";
    if (name.starts_with("Octet"))
        return "octet-string(-" + name.substr(5) + ")";
    if (node.basicType == scl::BasicType::EntryTime)
        return toText(TypeDescription::binaryTime(true));
    if (node.basicType == scl::BasicType::Enum)
        return "integer(8)";
    const auto known = texts.find(node.basicType);
    return known == texts.end() ? "visible-string(-255)" : known->second;
}

void addDescribed(const scl::DataNode &node, const std::string &path, Leaves &leaves)
{
    if (node.isArray()) {
        const auto size = std::to_string(node.arraySize().value_or(0));
        addDescribed(node.elementAt(0), path + "[" + size + "]", leaves);
        return;
    }
    if (node.isLeaf()) {
        // The constraint comes first; a data object has none of its own.
        const std::string fc(node.fc());
        if (!acsi::functionalConstraintFrom(fc))
            return;
        if (node.node().basicType == scl::BasicType::PhyComAddr) {
            leaves[fc + path + "$Addr"] = "octet-string(6)";
            leaves[fc + path + "$PRIORITY"] = "unsigned(8)";
            leaves[fc + path + "$VID"] = "unsigned(16)";
            leaves[fc + path + "$APPID"] = "unsigned(16)";
        } else {
            leaves[fc + path] = typeTextOf(node.node());
        }
        return;
    }
    node.forEachChild([&](const scl::DataNode &child) {
        addDescribed(child, path + "$" + std::string(child.name()), leaves);
    });
}

Leaves describedLeaves(const scl::LogicalNode &node)
{
    Leaves leaves;
    node.forEachDataObject([&leaves](const scl::DataNode &object) {
        addDescribed(object, "$" + std::string(object.name()), leaves);
    });
    // A setting is served as it is active and as it is edited.
    Leaves others;
    for (const auto &[path, type] : leaves) {
        if (path.starts_with("SG$"))
            others["SE" + path.substr(2)] = type;
        else if (path.starts_with("SE$"))
            others["SG" + path.substr(2)] = type;
    }
    leaves.merge(others);
    return leaves;
}

void addServed(const TypeDescription &type, const std::string &path, Leaves &leaves)
{
    if (type.kind == TypeDescription::Kind::Structure) {
        for (const auto &component : type.components)
            addServed(component.type, path.empty() ? component.name : path + "$" + component.name,
                      leaves);
    } else if (type.kind == TypeDescription::Kind::Array) {
        addServed(type.components.front().type,
                  path + "[" + std::to_string(type.elementCount) + "]", leaves);
    } else {
        leaves[path] = toText(type);
    }
}

/// One line for each leaf that only one side has, or that has another type there.
std::vector<std::string> differences(const Leaves &served, const Leaves &described)
{
    std::vector<std::string> lines;
    for (const auto &[path, type] : served) {
        const auto other = described.find(path);
        if (other == described.end())
            lines.push_back(path + " is not in the file");
        else if (other->second != type)
            lines.push_back(path + " is " + type + " instead of " + other->second);
    }
    for (const auto &[path, type] : described) {
        if (!served.contains(path))
            lines.push_back(path + " is not served");
    }
    return lines;
}

/// Asks for the type of a variable, and where that is too large for a PDU for those inside it.
void discover(simtest::Caller &caller, const std::string &domain, const std::string &item,
              const std::vector<std::string> &names, const std::string &path, Leaves &leaves)
{
    const CallOutcome outcome =
        caller.call(GetVariableAccessAttributesRequest{ObjectName::inDomain(domain, item)});
    if (const auto *response = answerOf<GetVariableAccessAttributesResponse>(outcome)) {
        addServed(response->type, path, leaves);
        return;
    }
    const auto *error = std::get_if<ServiceError>(&outcome);
    ASSERT_TRUE(error && error->errorClass == ErrorClass::Resource) << failureText(outcome);
    const std::string prefix = item + "$";
    auto name = std::ranges::lower_bound(names, prefix);
    for (; name != names.end() && name->starts_with(prefix); ++name) {
        const std::string component = name->substr(prefix.size());
        if (component.find('$') == std::string::npos)
            discover(caller, domain, *name, names,
                     path.empty() ? component : path + "$" + component, leaves);
    }
}

bool isOfControlBlock(const std::string &path)
{
    static const std::set<std::string> constraints{"BR", "RP", "LG", "GO", "MS", "US"};
    return constraints.contains(path.substr(0, path.find('$'))) || path.starts_with("SP$SGCB$");
}

std::size_t blocksOf(const scl::LogicalNode &node)
{
    std::size_t count = node.logControls.size() + node.gooseControls.size() +
                        node.sampledValueControls.size() + (node.settingControl ? 1 : 0);
    for (const scl::ReportControlBlock &report : node.reports)
        count += report.instanceNames.size();
    return count;
}

/// Names of variables up to the first array on the way.
std::set<std::string> variablesOfLeaves(const std::string &node, const Leaves &leaves)
{
    std::set<std::string> names{node};
    for (const auto &[path, type] : leaves) {
        const std::string reachable = path.substr(0, path.find('['));
        for (auto end = reachable.find('$'); end != std::string::npos;
             end = reachable.find('$', end + 1))
            names.insert(node + "$" + reachable.substr(0, end));
        names.insert(node + "$" + reachable);
    }
    return names;
}

class FileTest : public testing::TestWithParam<std::string>
{
};

TEST_P(FileTest, everyIedIsServedWithTheNamesAndTypesOfTheFile)
{
    const auto file = scl::readFile(std::string(SCL_FOLDER) + "/" + GetParam());
    ASSERT_TRUE(file.document) << file.errorText;
    wiretest::Loop loop;
    for (const scl::Ied &ied : file.document->ieds) {
        simtest::RunningDevice running(loop.executor(), ied);
        simtest::Caller caller(loop.executor(), running.port);
        ASSERT_TRUE(caller.isOpen());
        std::vector<std::string> domains;
        ied.forEachDevice(
            [&domains](const scl::LogicalDevice &device) { domains.emplace_back(device.name); });
        std::ranges::sort(domains);
        EXPECT_EQ(caller.names(ObjectClass::Domain, {}), domains);

        ied.forEachDevice([&](const scl::LogicalDevice &device) {
            const std::string domain(device.name);
            const auto names = caller.names(ObjectClass::NamedVariable, domain);
            EXPECT_TRUE(std::ranges::is_sorted(names)) << domain;
            std::set<std::string> expectedNames;
            for (const scl::LogicalNode &node : device.nodes) {
                const std::string name(node.name);
                Leaves served;
                discover(caller, domain, name, names, {}, served);
                const auto all = variablesOfLeaves(name, served);
                expectedNames.insert(all.begin(), all.end());
                std::set<std::string> blocks;
                std::erase_if(served, [&blocks](const auto &leaf) {
                    if (!isOfControlBlock(leaf.first))
                        return false;
                    blocks.insert(
                        leaf.first.substr(0, leaf.first.find('$', leaf.first.find('$') + 1)));
                    return true;
                });
                EXPECT_EQ(differences(served, describedLeaves(node)), std::vector<std::string>())
                    << domain << "/" << name;
                EXPECT_EQ(blocks.size(), blocksOf(node)) << domain << "/" << name;
            }
            EXPECT_EQ(std::set<std::string>(names.begin(), names.end()), expectedNames) << domain;
        });
    }
}

std::vector<std::string> files()
{
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(SCL_FOLDER)) {
        if (entry.path().extension() != ".md")
            names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Folder, FileTest, testing::ValuesIn(files()), [](const auto &file) {
    std::string name = file.param;
    std::ranges::replace_if(
        name, [](char letter) { return !std::isalnum(letter); }, '_');
    return name;
});

} // namespace
