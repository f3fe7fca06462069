// SPDX-License-Identifier: Apache-2.0
#include "acsi/settinggroup.h"

#include "acsi/blockvalue.h"

#include <algorithm>

namespace acsi {

namespace {

using mms::Data;
using mms::TypeDescription;

/// The type is asked for only where the device takes no number without sign.
asio::awaitable<mms::Result<void>> writeGroup(std::shared_ptr<Client> client, Reference block,
                                              std::string attribute, Data value)
{
    const std::string name = blockText(block);
    Reference reference = block;
    reference.path.push_back({attribute, {}});
    std::vector<mms::VariableAccess> variables;
    variables.push_back(accessOf(reference));
    std::vector<Data> values;
    values.push_back(value);
    const auto results = co_await client->write(std::move(variables), std::move(values));
    if (!results)
        co_return mms::Error{
            attribute + " of " + name + " cannot be written: " + results.error().message, 0};
    const auto &error = results->front();
    if (!error)
        co_return mms::Result<void>();
    if (*error == mms::DataAccessError::TypeInconsistent) {
        const auto type =
            co_await client->type(mms::ObjectName::inDomain(block.device, itemText(block)));
        if (type)
            co_return co_await writeBlock(client, block, *type, attribute, std::move(value));
    }
    co_return mms::Error{attribute + " of " + name + " cannot be written: " + mms::describe(*error),
                         0};
}

/// What a device says of its arrays must not fill the memory.
constexpr std::uint32_t maxElements = 10000;

void collectLeaves(const Reference &reference, const TypeDescription &type,
                   std::vector<SettingLeaf> &leaves)
{
    if (type.kind == TypeDescription::Kind::Structure) {
        for (const TypeDescription::Component &component : type.components) {
            Reference below = reference;
            below.path.push_back({component.name, {}});
            collectLeaves(below, component.type, leaves);
        }
    } else if (type.kind == TypeDescription::Kind::Array && type.elementCount <= maxElements) {
        if (type.components.empty() || reference.path.empty())
            return;
        for (std::uint32_t i = 0; i < type.elementCount; ++i) {
            Reference element = reference;
            element.path.back().element = i;
            collectLeaves(element, type.components.front().type, leaves);
        }
    } else {
        leaves.push_back({reference, type});
    }
}

} // namespace

mms::Result<SettingGroupBlock> settingGroupBlockFrom(const TypeDescription &type, const Data &value)
{
    BlockValue from(type, value);
    SettingGroupBlock block;
    from.number<std::uint32_t>("NumOfSG", block.numOfSG);
    from.number<std::uint32_t>("ActSG", block.actSG);
    from.number<std::uint32_t>("EditSG", block.editSG);
    from.boolean("CnfEdit", block.cnfEdit);
    if (const Data *time = from.find("LActTm")) {
        block.lActTm = time->toUtcTime();
        if (!block.lActTm)
            from.wrong("LActTm", *time);
    }
    from.number<std::uint32_t>("ResvTms", block.resvTms);
    if (from.error())
        return *from.error();
    if (!from.find("NumOfSG") || !from.find("ActSG"))
        return mms::Error{"This is no setting group control block: NumOfSG or ActSG is missing.",
                          0};
    return block;
}

asio::awaitable<mms::Result<SettingGroupBlock>>
readSettingGroupBlock(std::shared_ptr<Client> client, Reference block)
{
    const auto live = co_await readBlock(client, block);
    if (!live)
        co_return live.error();
    auto result = settingGroupBlockFrom(live->type, live->value);
    if (!result)
        co_return mms::Error{blockText(block) + ": " + result.error().message, 0};
    co_return result;
}

asio::awaitable<mms::Result<void>> selectActiveGroup(std::shared_ptr<Client> client,
                                                     Reference block, std::uint32_t group)
{
    if (group == 0)
        co_return mms::Error{"Setting groups are counted from 1; 0 cannot become the active group.",
                             0};
    co_return co_await writeGroup(std::move(client), std::move(block), "ActSG",
                                  Data::unsignedInteger(group));
}

asio::awaitable<mms::Result<void>> selectEditGroup(std::shared_ptr<Client> client, Reference block,
                                                   std::uint32_t group)
{
    co_return co_await writeGroup(std::move(client), std::move(block), "EditSG",
                                  Data::unsignedInteger(group));
}

asio::awaitable<mms::Result<void>> confirmEdit(std::shared_ptr<Client> client, Reference block)
{
    co_return co_await writeGroup(std::move(client), std::move(block), "CnfEdit",
                                  Data::boolean(true));
}

std::vector<SettingLeaf> settingLeaves(const DeviceDescription &device,
                                       FunctionalConstraint constraint)
{
    std::vector<SettingLeaf> leaves;
    for (const NodeDescription &node : device.nodes) {
        const auto group = std::ranges::find(node.type.components, toText(constraint),
                                             &TypeDescription::Component::name);
        if (group == node.type.components.end())
            continue;
        collectLeaves({device.name, node.name, constraint, {}}, group->type, leaves);
    }
    return leaves;
}

} // namespace acsi
