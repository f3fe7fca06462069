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
    std::vector<mms::Text> notes;
    /// Whether the device took ReportSettings::resumeAfter; empty when it was not asked to.
    std::optional<bool> resumed;
};

/// Who has a report control block, as far as the block tells.
struct ReportHolder
{
    enum class Who : std::uint8_t {
        Nobody,
        Somebody,     ///< the device does not tell who
        OtherAddress, ///< another computer
        SameAddress   ///< this computer: the association that asks, or another one
    };

    Who who = Who::Nobody;
    bool isEnabled = false; ///< by whoever has it; reserved otherwise
    std::string address;    ///< as a person writes it; empty for Somebody
};

/// @param ownAddress of this end of the association, as Owner gives addresses
ReportHolder holderOf(const ReportBlock &block, std::span<const std::uint8_t> ownAddress);

/// The address of a client as a person writes it, "10.0.0.5"; empty when there is none.
std::string ownerText(std::span<const std::uint8_t> owner);

/// By the names of the block's own type, so that editions and vendors may differ in what is there.
mms::Result<ReportBlock> reportBlockFrom(const mms::TypeDescription &type, const mms::Data &value);

/// Reads a block; @p block is the reference of the block, "LD/LN$BR$name".
asio::awaitable<mms::Result<ReportBlock>> readReportBlock(std::shared_ptr<Client> client,
                                                          Reference block);
asio::awaitable<mms::Result<void>> writeReportAttribute(std::shared_ptr<ChangingClient> client,
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
    /// A block that is enabled is enabled by this association: it is disabled first. Otherwise one
    /// that is enabled is somebody else's, and nothing is written to it.
    bool isOwn = false;
};

/// What was written to a block on the way to enabling it, oldest first, with what was there before.
/// Entered before a request goes out and taken out when the device refuses it, so that what stands
/// here when the way ends in the middle has happened or may have.
struct ReportBlockTrace
{
    struct Change
    {
        std::string attribute;
        mms::Data before;
    };

    std::vector<Change> changes;
    bool isUncertain = false; ///< a write has had no answer
};

/// Reserves the block, writes what differs attribute by attribute, and enables it. Gives the block
/// as it is then. The error names the attribute that was refused, with the reason, and the owner
/// when another client has taken the block; what had been written and reserved is undone then,
/// unless an answer was missing and @p trace was given: then it stays there for
/// undoReportBlock(), as it does when the coroutine is cancelled.
asio::awaitable<mms::Result<ReportBlock>>
enableReportBlock(std::shared_ptr<ChangingClient> client, Reference block, ReportSettings settings,
                  std::shared_ptr<ReportBlockTrace> trace = {});
/// Writes back what the trace says, the newest first, until @p deadline. What stands in the trace
/// afterwards was left behind on the device: true when that is nothing. Cancelled, it can be called
/// again.
asio::awaitable<bool> undoReportBlock(std::shared_ptr<ChangingClient> client, Reference block,
                                      std::shared_ptr<ReportBlockTrace> trace,
                                      std::chrono::steady_clock::time_point deadline);
/// Disables the block and gives up the reservation, unless the configuration made it. When the
/// device does not disable it, the reservation stays.
asio::awaitable<mms::Result<void>> disableReportBlock(std::shared_ptr<ChangingClient> client,
                                                      Reference block);

} // namespace acsi
