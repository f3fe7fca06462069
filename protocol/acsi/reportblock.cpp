// SPDX-License-Identifier: Apache-2.0
#include "acsi/reportblock.h"

#include "acsi/blockvalue.h"
#include "acsi/typedvalue.h"

#include <asio/ip/address.hpp>

#include <algorithm>

namespace acsi {

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
    Setup(std::shared_ptr<Client> client, Reference block)
        : m_client(std::move(client))
        , m_reference(std::move(block))
    {
    }

    asio::awaitable<mms::Result<ReportBlock>> enable(const ReportSettings &settings)
    {
        if (auto read = co_await load(); !read)
            co_return read.error();
        if (auto done = co_await prepare(settings); !done) {
            co_await release();
            const std::string owner = co_await ownerSentence();
            co_return mms::Error{done.error().message + owner, 0};
        }
        if (settings.generalInterrogation) {
            if (auto asked = co_await write("GI", Data::boolean(true)); !asked)
                m_notes.push_back(asked.error().message);
        }
        auto read = co_await load();
        if (!read)
            co_return read.error();
        m_block.notes = std::move(m_notes);
        co_return m_block;
    }

    asio::awaitable<mms::Result<void>> disable()
    {
        auto live = co_await readBlock(m_client, m_reference);
        if (!live)
            co_return live.error();
        m_type = std::move(live->type);
        m_mayRelease = true;
        auto disabled = co_await write("RptEna", Data::boolean(false));
        co_await release();
        co_return disabled;
    }

private:
    asio::awaitable<mms::Result<void>> load()
    {
        auto live = co_await readBlock(m_client, m_reference);
        if (!live)
            co_return live.error();
        auto block = reportBlockFrom(live->type, live->value);
        if (!block)
            co_return mms::Error{blockText(m_reference) + ": " + block.error().message, 0};
        m_type = std::move(live->type);
        m_block = *std::move(block);
        m_block.buffered = m_reference.constraint == FunctionalConstraint::BR;
        co_return mms::Result<void>();
    }

    bool has(std::string_view attribute) const { return componentOf(m_type, attribute); }

    asio::awaitable<mms::Result<void>> write(std::string attribute, Data value)
    {
        return writeBlock(m_client, m_reference, m_type, std::move(attribute), std::move(value));
    }

    /// Up to and with RptEna.
    asio::awaitable<mms::Result<void>> prepare(const ReportSettings &settings)
    {
        if (m_block.rptEna) {
            if (auto disabled = co_await write("RptEna", Data::boolean(false)); !disabled)
                co_return mms::Error{
                    blockText(m_reference) + " is enabled already. " + disabled.error().message, 0};
        }
        if (auto reserved = co_await reserve(settings); !reserved)
            co_return reserved;
        for (Change &change : changes(m_block, settings)) {
            if (auto written = co_await write(change.attribute, std::move(change.value)); !written)
                co_return written;
        }
        if (settings.resumeAfter && has("EntryID")) {
            const auto resumed =
                co_await write("EntryID", Data::octetString(*settings.resumeAfter));
            if (!resumed)
                m_notes.push_back(resumed.error().message);
        }
        co_return co_await write("RptEna", Data::boolean(true));
    }

    asio::awaitable<mms::Result<void>> reserve(const ReportSettings &settings)
    {
        if (has("Resv")) {
            auto reserved = co_await write("Resv", Data::boolean(true));
            m_mayRelease = reserved.ok();
            co_return reserved;
        }
        // A device may refuse the time and reserve the block by whatever is written next.
        const bool byConfiguration = m_block.resvTms && *m_block.resvTms < 0;
        if (has("ResvTms") && !byConfiguration) {
            const auto reserved = co_await write("ResvTms", Data::integer(settings.resvTms));
            m_mayRelease = reserved.ok();
        }
        co_return mms::Result<void>();
    }

    asio::awaitable<void> release()
    {
        if (!m_mayRelease)
            co_return;
        if (has("Resv"))
            static_cast<void>(co_await write("Resv", Data::boolean(false)));
        if (has("ResvTms") && !(m_block.resvTms && *m_block.resvTms < 0))
            static_cast<void>(co_await write("ResvTms", Data::integer(0)));
    }

    asio::awaitable<std::string> ownerSentence()
    {
        if (!has("Owner"))
            co_return std::string();
        Reference reference = m_reference;
        reference.path.push_back({"Owner", {}});
        const auto value = co_await m_client->readOne(accessOf(reference));
        const std::string owner = value ? ownerText(value->octets()) : std::string();
        co_return owner.empty() ? std::string() : " The block belongs to the client " + owner + ".";
    }

    std::shared_ptr<Client> m_client;
    Reference m_reference;
    mms::TypeDescription m_type;
    ReportBlock m_block;
    std::vector<std::string> m_notes;
    bool m_mayRelease = false;
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
        return mms::Error{"This is no report control block: it has no RptEna.", 0};
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
        co_return mms::Error{blockText(block) + ": " + result.error().message, 0};
    result->buffered = block.constraint == FunctionalConstraint::BR;
    co_return result;
}

asio::awaitable<mms::Result<void>> writeReportAttribute(std::shared_ptr<Client> client,
                                                        Reference block, std::string attribute,
                                                        Data value)
{
    const std::string name = attribute + " of " + blockText(block);
    block.path.push_back({std::move(attribute), {}});
    const auto written = co_await client->writeOne(accessOf(block), std::move(value));
    if (!written)
        co_return mms::Error{name + " cannot be written: " + written.error().message, 0};
    co_return mms::Result<void>();
}

asio::awaitable<mms::Result<ReportBlock>>
enableReportBlock(std::shared_ptr<Client> client, Reference block, ReportSettings settings)
{
    Setup setup(std::move(client), std::move(block));
    co_return co_await setup.enable(settings);
}

asio::awaitable<mms::Result<void>> disableReportBlock(std::shared_ptr<Client> client,
                                                      Reference block)
{
    Setup setup(std::move(client), std::move(block));
    co_return co_await setup.disable();
}

} // namespace acsi
