// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/client.h"
#include "acsi/discovery.h"
#include "acsi/reference.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace acsi {

/// The attributes of a setting group control block (IEC 61850-8-1, 16).
struct SettingGroupBlock
{
    std::uint32_t numOfSG = 0;
    std::uint32_t actSG = 0;
    std::uint32_t editSG = 0; ///< 0: no group is being edited
    bool cnfEdit = false;
    std::optional<mms::UtcTime> lActTm;
    std::optional<std::uint32_t> resvTms; ///< seconds
};

/// By the names of the block's own type.
mms::Result<SettingGroupBlock> settingGroupBlockFrom(const mms::TypeDescription &type,
                                                     const mms::Data &value);

/// What became of a write: without an answer nobody knows.
struct [[nodiscard]] SettingWrite
{
    enum class Kind : std::uint8_t {
        Done,
        Refused, ///< or never sent
        Unknown
    };

    Kind kind = Kind::Done;
    mms::Text message; ///< why it is not done; one sentence
    /// Of a refusal by the device.
    std::optional<mms::DataAccessError> refusal;

    bool ok() const { return kind == Kind::Done; }
    explicit operator bool() const { return ok(); }
    bool isUnknown() const { return kind == Kind::Unknown; }
    mms::Error error() const { return {message, 0}; }
};

/// @p block is "LD/LN$SP$SGCB" in the functions below.
asio::awaitable<mms::Result<SettingGroupBlock>>
readSettingGroupBlock(std::shared_ptr<Client> client, Reference block);
asio::awaitable<SettingWrite> selectActiveGroup(std::shared_ptr<ChangingClient> client,
                                                Reference block, std::uint32_t group);
/// Group 0 gives up editing.
asio::awaitable<SettingWrite> selectEditGroup(std::shared_ptr<ChangingClient> client,
                                              Reference block, std::uint32_t group);
asio::awaitable<SettingWrite> confirmEdit(std::shared_ptr<ChangingClient> client, Reference block);

/// Writes in the order of the list, a few variables with each request, and says of each what became
/// of it. After a request without an answer nothing more is sent.
asio::awaitable<std::vector<SettingWrite>> writeSettings(std::shared_ptr<ChangingClient> client,
                                                         std::vector<mms::VariableAccess> variables,
                                                         std::vector<mms::Data> values);

} // namespace acsi
