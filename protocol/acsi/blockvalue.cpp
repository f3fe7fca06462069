// SPDX-License-Identifier: Apache-2.0
#include "acsi/blockvalue.h"

#include "acsi/typedvalue.h"
#include "mms/datatext.h"

#include <algorithm>

namespace acsi {

using wording::say;

BlockValue::BlockValue(const mms::TypeDescription &type, const mms::Data &value)
    : m_type(type)
    , m_value(value)
{
    if (type.kind != mms::TypeDescription::Kind::Structure ||
        value.kind() != mms::Data::Kind::Structure ||
        type.components.size() != value.children().size()) {
        m_error = mms::Error{
            say("The value of the control block does not match its type %1.", mms::toText(type)),
            0};
    }
}

const mms::Data *BlockValue::find(std::string_view attribute) const
{
    if (m_error)
        return nullptr;
    const auto found =
        std::ranges::find(m_type.components, attribute, &mms::TypeDescription::Component::name);
    if (found == m_type.components.end())
        return nullptr;
    return &m_value.children()[static_cast<std::size_t>(found - m_type.components.begin())];
}

void BlockValue::text(std::string_view attribute, std::string &target)
{
    if (const mms::Data *data = find(attribute)) {
        if (data->kind() == mms::Data::Kind::VisibleString ||
            data->kind() == mms::Data::Kind::MmsString)
            target = data->text();
        else
            wrong(attribute, *data);
    }
}

void BlockValue::bits(std::string_view attribute, mms::BitString &target)
{
    if (const mms::Data *data = find(attribute)) {
        if (data->kind() == mms::Data::Kind::BitString)
            target = data->bits();
        else
            wrong(attribute, *data);
    }
}

void BlockValue::octets(std::string_view attribute,
                        std::optional<std::vector<std::uint8_t>> &target)
{
    if (const mms::Data *data = find(attribute)) {
        if (data->kind() == mms::Data::Kind::OctetString)
            target.emplace(data->octets().begin(), data->octets().end());
        else
            wrong(attribute, *data);
    }
}

void BlockValue::wrong(std::string_view attribute, const mms::Data &data)
{
    if (!m_error)
        m_error = mms::Error{
            say("%1 of the control block cannot be %2.", attribute, mms::toText(data)), 0};
}

asio::awaitable<mms::Result<LiveBlock>> readBlock(std::shared_ptr<Client> client, Reference block)
{
    LiveBlock live;
    auto type = co_await client->type(mms::ObjectName::inDomain(block.device, itemText(block)));
    if (!type)
        co_return mms::Error{
            say("The type of %1 cannot be read: %2.", blockText(block), type.error().message), 0};
    live.type = *std::move(type);
    auto value = co_await client->readOne(accessOf(block));
    if (!value)
        co_return mms::Error{say("%1 cannot be read: %2.", blockText(block), value.error().message),
                             0};
    live.value = *std::move(value);
    co_return live;
}

asio::awaitable<mms::Result<void>> writeBlock(std::shared_ptr<ChangingClient> client,
                                              Reference block, const mms::TypeDescription &type,
                                              std::string attribute, mms::Data value)
{
    const std::string name = blockText(block);
    const mms::TypeDescription *component = componentOf(type, attribute);
    if (!component)
        co_return mms::Error{say("%1 has no %2.", name, attribute), 0};
    const auto fitting = valueOfType(*component, value);
    if (!fitting)
        co_return mms::Error{say("%1 of %2: %3.", attribute, name, fitting.error().message), 0};
    block.path.push_back({attribute, {}});
    const auto written = co_await client->writeOne(accessOf(block), *fitting);
    if (!written)
        co_return mms::Error{
            say("%1 of %2 cannot be written: %3.", attribute, name, written.error().message), 0};
    co_return mms::Result<void>();
}

std::string blockText(const Reference &block)
{
    return objectReferenceText(block);
}

} // namespace acsi
