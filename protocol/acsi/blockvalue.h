// SPDX-License-Identifier: Apache-2.0
// Shared by the sources that read control blocks; not for the folder's users.
#pragma once

#include "acsi/client.h"
#include "acsi/reference.h"

#include <limits>
#include <string_view>

namespace acsi {

/// A control block's value, taken apart by the names of its type.
class BlockValue
{
public:
    /// Both live longer.
    BlockValue(const mms::TypeDescription &type, const mms::Data &value);

    /// Null when the block has no such attribute.
    const mms::Data *find(std::string_view attribute) const;

    void text(std::string_view attribute, std::string &target);
    void bits(std::string_view attribute, mms::BitString &target);

    template <typename Target>
    void boolean(std::string_view attribute, Target &target)
    {
        if (const mms::Data *data = find(attribute)) {
            if (const auto value = data->toBoolean())
                target = *value;
            else
                wrong(attribute, *data);
        }
    }

    template <typename Number, typename Target>
    void number(std::string_view attribute, Target &target)
    {
        if (const mms::Data *data = find(attribute)) {
            const auto value = data->toInteger();
            if (value && *value >= std::numeric_limits<Number>::min() &&
                *value <= std::numeric_limits<Number>::max())
                target = static_cast<Number>(*value);
            else
                wrong(attribute, *data);
        }
    }

    void octets(std::string_view attribute, std::optional<std::vector<std::uint8_t>> &target);
    void wrong(std::string_view attribute, const mms::Data &data);

    /// What was wrong first.
    const std::optional<mms::Error> &error() const { return m_error; }

private:
    const mms::TypeDescription &m_type;
    const mms::Data &m_value;
    std::optional<mms::Error> m_error;
};

/// A block as the device has it, with its type.
struct LiveBlock
{
    mms::TypeDescription type;
    mms::Data value;
};

asio::awaitable<mms::Result<LiveBlock>> readBlock(std::shared_ptr<Client> client, Reference block);

/// Writes an attribute of a block in the type that the block has for it. The error names the
/// attribute.
asio::awaitable<mms::Result<void>> writeBlock(std::shared_ptr<ChangingClient> client,
                                              Reference block, const mms::TypeDescription &type,
                                              std::string attribute, mms::Data value);

/// "LD/LN.name"
std::string blockText(const Reference &block);

} // namespace acsi
