// SPDX-License-Identifier: Apache-2.0
#include "acsi/reportblock.h"

#include "acsi/blockvalue.h"
#include "acsi/typedvalue.h"
#include "mms/datatext.h"

#include <asio/ip/address.hpp>

#include <algorithm>

namespace acsi {

using wording::say;
using wording::sentences;

namespace {

using mms::Data;

struct Change
{
    std::string attribute;
    Data value;
};

/// What has to be written so that the block is as the settings want it.
std::vector<Change> changes(const ReportBlock &block, const ReportSettings &settings)
{
    std::vector<Change> result;
    const auto add = [&result](const char *attribute, const auto &wanted, const auto &current,
                               const auto &toData) {
        if (wanted && *wanted != current)
            result.push_back({attribute, toData(*wanted)});
    };
    const auto text = [](const std::string &value) { return Data::visibleString(value); };
    const auto number = [](std::uint32_t value) { return Data::unsignedInteger(value); };
    const auto bits = [](const auto &value) { return Data::bitString(value.toBits()); };
    add("RptID", settings.rptId, block.rptId, text);
    add("DatSet", settings.datSet, block.datSet, text);
    add("OptFlds", settings.optFlds, block.optFlds, bits);
    add("BufTm", settings.bufTm, block.bufTm, number);
    add("TrgOps", settings.trgOps, block.trgOps, bits);
    add("IntgPd", settings.intgPd, block.intgPd, number);
    return result;
}

/// A report control block that is being set up by one client.
class Setup
{
public:
    Setup(std::shared_ptr<ChangingClient> client, Reference block,
          std::shared_ptr<ReportBlockTrace> trace)
        : m_client(std::move(client))
        , m_reference(std::move(block))
        , m_trace(std::move(trace))
    {
    }

    asio::awaitable<mms::Result<ReportBlock>> enable(const ReportSettings &settings,
                                                     bool leavesUncertain)
    {
        if (auto read = co_await load(); !read)
            co_return read.error();
        if (auto done = co_await prepare(settings); !done) {
            // Whether it was somebody else who stood in the way, before what was done is undone.
            const bool wasStopped = m_trace->changes.empty() || !m_hasWritten;
            if (!m_trace->isUncertain || !leavesUncertain)
                co_await undo(std::chrono::steady_clock::time_point::max());
            const mms::Text owner = co_await ownerSentence(wasStopped);
            co_return mms::Error{sentences(done.error().message, owner), 0};
        }
        if (settings.generalInterrogation) {
            if (auto asked = co_await write("GI", Data::boolean(true)); !asked)
                m_notes.push_back(asked.error().message);
        }
        const std::optional<bool> resumed = m_resumed;
        auto read = co_await load();
        if (!read)
            co_return read.error();
        m_block.notes = std::move(m_notes);
        m_block.resumed = resumed;
        co_return m_block;
    }

    asio::awaitable<mms::Result<void>> disable()
    {
        if (auto read = co_await load(); !read)
            co_return read.error();
        auto disabled = co_await write("RptEna", Data::boolean(false));
        if (!disabled) {
            const mms::Text owner = co_await ownerSentence(true);
            co_return mms::Error{sentences(disabled.error().message, owner), 0};
        }
        if (has("Resv"))
            static_cast<void>(co_await write("Resv", Data::boolean(false)));
        if (has("ResvTms") && !isReservedByConfiguration())
            static_cast<void>(co_await write("ResvTms", Data::integer(0)));
        co_return disabled;
    }

    asio::awaitable<void> undo(std::chrono::steady_clock::time_point deadline)
    {
        std::size_t left = m_trace->changes.size();
        while (left-- > 0 && m_client->isOpen() && std::chrono::steady_clock::now() < deadline) {
            const ReportBlockTrace::Change change = m_trace->changes[left];
            const mms::VariableAccess place = accessOf(attributeOf(change.attribute));
            auto done = co_await m_client->writeOne(place, change.before);
            if (!done && m_client->isOpen()) {
                // Refused, perhaps because nothing has to be undone.
                const auto now = co_await m_client->readOne(place);
                if (!now || *now != change.before)
                    continue;
            } else if (!done) {
                continue;
            }
            m_trace->changes.erase(m_trace->changes.begin() + static_cast<std::ptrdiff_t>(left));
        }
    }

private:
    asio::awaitable<mms::Result<void>> load()
    {
        auto live = co_await readBlock(m_client, m_reference);
        if (!live)
            co_return live.error();
        auto block = reportBlockFrom(live->type, live->value);
        if (!block)
            co_return mms::Error{say("%1: %2.", blockText(m_reference), block.error().message), 0};
        m_type = std::move(live->type);
        m_value = std::move(live->value);
        m_block = *std::move(block);
        m_block.buffered = m_reference.constraint == FunctionalConstraint::BR;
        co_return mms::Result<void>();
    }

    bool has(std::string_view attribute) const { return componentOf(m_type, attribute); }
    bool isReservedByConfiguration() const { return m_block.resvTms && *m_block.resvTms < 0; }

    Reference attributeOf(const std::string &attribute) const
    {
        Reference reference = m_reference;
        reference.path.push_back({attribute, {}});
        return reference;
    }

    asio::awaitable<mms::Result<void>> write(std::string attribute, Data value)
    {
        return writeBlock(m_client, m_reference, m_type, std::move(attribute), std::move(value));
    }

    /// Writes what has to be undone when the block cannot be enabled in the end.
    asio::awaitable<mms::Result<void>> change(std::string attribute, Data value, Data before)
    {
        const std::string name = blockText(m_reference);
        const mms::TypeDescription *component = componentOf(m_type, attribute);
        if (!component)
            co_return mms::Error{say("%1 has no %2.", name, attribute), 0};
        const auto fitting = valueOfType(*component, value);
        if (!fitting)
            co_return mms::Error{say("%1 of %2: %3.", attribute, name, fitting.error().message), 0};
        std::vector<mms::VariableAccess> places{accessOf(attributeOf(attribute))};
        std::vector<Data> values{*fitting};
        m_trace->changes.push_back({attribute, std::move(before)});
        const auto written = co_await m_client->write(std::move(places), std::move(values));
        if (!written) {
            m_trace->isUncertain = true;
            co_return mms::Error{
                say("%1 of %2 cannot be written: %3.", attribute, name, written.error().message),
                0};
        }
        if (const auto &refused = written->front()) {
            m_trace->changes.pop_back();
            co_return mms::Error{
                say("%1 of %2 cannot be written: %3.", attribute, name, mms::describe(*refused)),
                0};
        }
        m_hasWritten = true;
        co_return mms::Result<void>();
    }

    /// As it was read.
    Data valueBefore(std::string_view attribute) const
    {
        const Data *found = BlockValue(m_type, m_value).find(attribute);
        return found ? *found : Data();
    }

    /// Up to and with RptEna.
    asio::awaitable<mms::Result<void>> prepare(const ReportSettings &settings)
    {
        if (m_block.rptEna && !settings.isOwn)
            co_return mms::Error{say("%1 is enabled already.", blockText(m_reference)), 0};
        if (m_block.rptEna) {
            if (auto disabled = co_await write("RptEna", Data::boolean(false)); !disabled)
                co_return mms::Error{
                    sentences(say("%1 is enabled already.", blockText(m_reference)),
                              disabled.error().message),
                    0};
        }
        if (auto reserved = co_await reserve(settings); !reserved)
            co_return reserved;
        for (Change &each : changes(m_block, settings)) {
            Data before = valueBefore(each.attribute);
            auto written =
                co_await change(each.attribute, std::move(each.value), std::move(before));
            if (!written)
                co_return written;
        }
        if (settings.resumeAfter && has("EntryID")) {
            const auto resumed =
                co_await write("EntryID", Data::octetString(*settings.resumeAfter));
            m_resumed = resumed.ok();
            if (!resumed)
                m_notes.push_back(resumed.error().message);
        }
        co_return co_await change("RptEna", Data::boolean(true), Data::boolean(false));
    }

    asio::awaitable<mms::Result<void>> reserve(const ReportSettings &settings)
    {
        if (has("Resv"))
            co_return co_await change("Resv", Data::boolean(true), Data::boolean(false));
        // A device may refuse the time and reserve the block by whatever is written next.
        if (has("ResvTms") && !isReservedByConfiguration()) {
            const auto reserved =
                co_await change("ResvTms", Data::integer(settings.resvTms), Data::integer(0));
            if (!reserved && m_trace->isUncertain)
                co_return reserved;
        }
        co_return mms::Result<void>();
    }

    /// @param byOthers whether nothing of what this side wrote can have made it the owner
    asio::awaitable<mms::Text> ownerSentence(bool byOthers)
    {
        if (!has("Owner") || !m_client->isOpen())
            co_return mms::Text();
        const auto value = co_await m_client->readOne(accessOf(attributeOf("Owner")));
        const std::string owner = value ? ownerText(value->octets()) : std::string();
        if (owner.empty())
            co_return mms::Text();
        if (std::ranges::equal(value->octets(), m_client->association().localAddress())) {
            if (!byOthers)
                co_return mms::Text();
            co_return say("The block belongs to another association of this computer, %1.", owner);
        }
        co_return say("The block belongs to the client %1.", owner);
    }

    std::shared_ptr<ChangingClient> m_client;
    Reference m_reference;
    std::shared_ptr<ReportBlockTrace> m_trace;
    mms::TypeDescription m_type;
    Data m_value;
    ReportBlock m_block;
    std::vector<mms::Text> m_notes;
    std::optional<bool> m_resumed;
    bool m_hasWritten = false;
};

} // namespace

std::string ownerText(std::span<const std::uint8_t> owner)
{
    if (std::ranges::all_of(owner, [](std::uint8_t octet) { return octet == 0; }))
        return {};
    if (owner.size() == 4) {
        asio::ip::address_v4::bytes_type bytes{};
        std::ranges::copy(owner, bytes.begin());
        return asio::ip::address_v4(bytes).to_string();
    }
    if (owner.size() == 16) {
        asio::ip::address_v6::bytes_type bytes{};
        std::ranges::copy(owner, bytes.begin());
        return asio::ip::address_v6(bytes).to_string();
    }
    return mms::toText(Data::octetString(owner));
}

ReportHolder holderOf(const ReportBlock &block, std::span<const std::uint8_t> ownAddress)
{
    ReportHolder holder;
    holder.isEnabled = block.rptEna;
    if (block.owner)
        holder.address = ownerText(*block.owner);
    const bool isReserved = block.resv.value_or(false) || block.resvTms.value_or(0) > 0;
    if (!holder.address.empty()) {
        holder.who = std::ranges::equal(*block.owner, ownAddress) ? ReportHolder::Who::SameAddress
                                                                  : ReportHolder::Who::OtherAddress;
    } else if (block.rptEna || isReserved) {
        holder.who = ReportHolder::Who::Somebody;
    }
    return holder;
}

mms::Result<ReportBlock> reportBlockFrom(const mms::TypeDescription &type, const Data &value)
{
    BlockValue from(type, value);
    ReportBlock block;
    mms::BitString optFlds;
    mms::BitString trgOps;
    from.text("RptID", block.rptId);
    from.boolean("RptEna", block.rptEna);
    from.text("DatSet", block.datSet);
    from.number<std::uint32_t>("ConfRev", block.confRev);
    from.bits("OptFlds", optFlds);
    from.number<std::uint32_t>("BufTm", block.bufTm);
    from.number<std::uint32_t>("SqNum", block.sqNum);
    from.bits("TrgOps", trgOps);
    from.number<std::uint32_t>("IntgPd", block.intgPd);
    from.boolean("GI", block.gi);
    from.boolean("Resv", block.resv);
    from.boolean("PurgeBuf", block.purgeBuf);
    from.octets("EntryID", block.entryId);
    for (const char *attribute : {"TimeofEntry", "TimeOfEntry"}) {
        if (const Data *time = from.find(attribute)) {
            block.timeOfEntry = time->toBinaryTime();
            if (!block.timeOfEntry)
                from.wrong(attribute, *time);
        }
    }
    from.number<std::int32_t>("ResvTms", block.resvTms);
    from.octets("Owner", block.owner);
    if (from.error())
        return *from.error();
    if (!from.find("RptEna"))
        return mms::Error{say("This is no report control block: it has no RptEna."), 0};
    block.optFlds = OptFlds::from(optFlds);
    block.trgOps = Triggers::from(trgOps);
    block.buffered = block.purgeBuf || block.entryId || block.resvTms;
    return block;
}

asio::awaitable<mms::Result<ReportBlock>> readReportBlock(std::shared_ptr<Client> client,
                                                          Reference block)
{
    const auto live = co_await readBlock(client, block);
    if (!live)
        co_return live.error();
    auto result = reportBlockFrom(live->type, live->value);
    if (!result)
        co_return mms::Error{say("%1: %2.", blockText(block), result.error().message), 0};
    result->buffered = block.constraint == FunctionalConstraint::BR;
    co_return result;
}

asio::awaitable<mms::Result<void>> writeReportAttribute(std::shared_ptr<ChangingClient> client,
                                                        Reference block, std::string attribute,
                                                        Data value)
{
    const std::string name = blockText(block);
    const std::string part = attribute;
    block.path.push_back({std::move(attribute), {}});
    const auto written = co_await client->writeOne(accessOf(block), std::move(value));
    if (!written)
        co_return mms::Error{
            say("%1 of %2 cannot be written: %3.", part, name, written.error().message), 0};
    co_return mms::Result<void>();
}

asio::awaitable<mms::Result<ReportBlock>> enableReportBlock(std::shared_ptr<ChangingClient> client,
                                                            Reference block,
                                                            ReportSettings settings,
                                                            std::shared_ptr<ReportBlockTrace> trace)
{
    const bool leavesUncertain = trace != nullptr;
    if (!trace)
        trace = std::make_shared<ReportBlockTrace>();
    Setup setup(std::move(client), std::move(block), std::move(trace));
    co_return co_await setup.enable(settings, leavesUncertain);
}

asio::awaitable<bool> undoReportBlock(std::shared_ptr<ChangingClient> client, Reference block,
                                      std::shared_ptr<ReportBlockTrace> trace,
                                      std::chrono::steady_clock::time_point deadline)
{
    Setup setup(std::move(client), std::move(block), trace);
    co_await setup.undo(deadline);
    co_return trace->changes.empty();
}

asio::awaitable<mms::Result<void>> disableReportBlock(std::shared_ptr<ChangingClient> client,
                                                      Reference block)
{
    Setup setup(std::move(client), std::move(block), std::make_shared<ReportBlockTrace>());
    co_return co_await setup.disable();
}

} // namespace acsi
