// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/client.h"
#include "acsi/reference.h"
#include "acsi/report.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace acsi {

/// The attributes of a report control block; those that the block does not have are empty.
/// Times are in milliseconds.
struct ReportBlock
{
    bool buffered = false;
    std::string rptId;
    bool rptEna = false;
    std::string datSet;
    std::uint32_t confRev = 0;
    OptFlds optFlds;
    std::uint32_t bufTm = 0;
    std::uint32_t sqNum = 0;
    Triggers trgOps;
    std::uint32_t intgPd = 0;
    bool gi = false;
    std::optional<bool> resv;     ///< unbuffered
    std::optional<bool> purgeBuf; ///< buffered, like all below but the owner
    std::optional<std::vector<std::uint8_t>> entryId;
    std::optional<mms::BinaryTime> timeOfEntry;
    std::optional<std::int32_t> resvTms;            ///< seconds; -1 reserved by configuration
    std::optional<std::vector<std::uint8_t>> owner; ///< address of the client; empty when free
    /// What the device refused although the block works, one sentence each.
    std::vector<std::string> notes;
};

/// The address of a client as a person writes it, "10.0.0.5"; empty when there is none.
std::string ownerText(std::span<const std::uint8_t> owner);

/// By the names of the block's own type, so that editions and vendors may differ in what is there.
mms::Result<ReportBlock> reportBlockFrom(const mms::TypeDescription &type, const mms::Data &value);

/// Reads a block; @p block is the reference of the block, "LD/LN$BR$name".
asio::awaitable<mms::Result<ReportBlock>> readReportBlock(std::shared_ptr<Client> client,
                                                          Reference block);
asio::awaitable<mms::Result<void>> writeReportAttribute(std::shared_ptr<Client> client,
                                                        Reference block, std::string attribute,
                                                        mms::Data value);

/// What a client wants a block to do. What is empty stays as it is.
struct ReportSettings
{
    std::optional<std::string> rptId;
    std::optional<std::string> datSet;
    std::optional<OptFlds> optFlds;
    std::optional<std::uint32_t> bufTm;
    std::optional<Triggers> trgOps;
    std::optional<std::uint32_t> intgPd;
    /// Buffered: replay what is behind this entry. Where the device does not know the entry any
    /// more it replays what it has, and ReportBlock::notes says so.
    std::optional<std::vector<std::uint8_t>> resumeAfter;
    /// Seconds to reserve a buffered block for; ignored where the block has no ResvTms.
    std::int32_t resvTms = 60;
    bool generalInterrogation = false; ///< ask for one once enabled
};

/// Reserves the block, writes what differs attribute by attribute, and enables it; a block that is
/// enabled is disabled before. Gives the block as it is then. The error names the attribute that
/// was refused, with the reason, and the owner when another client has taken the block; what had
/// been reserved is released then. An attribute refused only because the value is there already is
/// no error.
asio::awaitable<mms::Result<ReportBlock>>
enableReportBlock(std::shared_ptr<Client> client, Reference block, ReportSettings settings);
/// Disables the block and gives up the reservation.
asio::awaitable<mms::Result<void>> disableReportBlock(std::shared_ptr<Client> client,
                                                      Reference block);

} // namespace acsi
