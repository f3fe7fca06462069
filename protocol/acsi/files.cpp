// SPDX-License-Identifier: Apache-2.0
#include "acsi/files.h"

#include "acsi/callgroup.h"
#include "acsi/filenames.h"

#include <algorithm>
#include <map>

namespace acsi {

namespace {

constexpr std::size_t maxEntries = 1000000;
constexpr int maxEmptyBlocks = 16;

mms::Error errorOf(const mms::CallOutcome &outcome)
{
    std::string text = mms::failureText(outcome);
    return {text.empty() ? "The device answered another service." : std::move(text), 0};
}

bool isLost(const mms::CallOutcome &outcome)
{
    return std::holds_alternative<mms::CallFailure>(outcome);
}

struct Listing
{
    std::vector<mms::DirectoryEntry> entries;
    std::optional<mms::CallOutcome> failure;
};

asio::awaitable<Listing> listPages(std::shared_ptr<Client> client,
                                   std::optional<std::string> specification)
{
    Listing listing;
    mms::FileDirectoryRequest request;
    if (specification)
        request.specification = mms::FileName{*specification};
    for (;;) {
        mms::CallOutcome outcome = co_await client->call(request);
        auto *service = std::get_if<mms::ResponseService>(&outcome);
        auto *page = service ? std::get_if<mms::FileDirectoryResponse>(service) : nullptr;
        if (!page) {
            listing.failure = std::move(outcome);
            co_return listing;
        }
        const bool more = page->moreFollows && !page->entries.empty();
        std::ranges::move(page->entries, std::back_inserter(listing.entries));
        if (!more)
            co_return listing;
        // A peer that does not get further, or never ends, must not keep anybody busy.
        if (request.continueAfter == listing.entries.back().name ||
            listing.entries.size() > maxEntries) {
            listing.failure = mms::CallFailure{mms::CallFailure::Kind::Malformed,
                                               "The device lists its files without an end."};
            co_return listing;
        }
        request.continueAfter = listing.entries.back().name;
    }
}

/// Calls a service with each spelling of a name until the peer knows the name.
template <typename Response>
asio::awaitable<mms::Result<Response>>
askBySpelling(std::shared_ptr<Client> client, std::string name,
              std::function<mms::RequestService(const std::string &spelling)> requestFor)
{
    std::optional<mms::Error> first;
    for (const std::string &spelling : spellingsOf(name)) {
        const mms::CallOutcome outcome = co_await client->call(requestFor(spelling));
        if (const auto *response = mms::answerOf<Response>(outcome))
            co_return *response;
        if (!first)
            first = mms::Error{name + ": " + errorOf(outcome).message, 0};
        if (!isUnknownName(outcome))
            break;
    }
    co_return *first;
}

/// Reads an open file with several requests on the way, and gives its blocks in order.
class BlockReader
{
public:
    BlockReader(std::shared_ptr<Client> client, const mms::FileOpenResponse &file,
                std::function<bool(std::span<const std::uint8_t>)> sink)
        : m_client(std::move(client))
        , m_calls(m_client)
        , m_frsmId(file.frsmId)
        , m_announced(file.attributes.size)
        , m_sink(std::move(sink))
        , m_limit(static_cast<std::size_t>(std::max(1, m_client->options().outstandingFileReads)))
        , m_blockSize(std::max<std::size_t>(m_client->association().pduSize(), 1))
    {
    }

    asio::awaitable<mms::Result<std::uint64_t>> read()
    {
        while (!m_ended) {
            start();
            auto arrival = co_await m_calls.next();
            if (!arrival)
                co_return mms::Error{"Reading the file was cancelled.", 0};
            m_arrived.emplace(arrival->id, std::move(arrival->outcome));
            deliver();
        }
        // What was asked for beyond the end is answered before the file is closed.
        while (m_calls.onTheWay() != 0 && m_client->isOpen()) {
            if (!co_await m_calls.next())
                break;
        }
        if (m_error)
            co_return *m_error;
        co_return m_received;
    }

private:
    /// Octets that the requests on the way will bring, as far as the blocks so far tell.
    std::uint64_t expected() const { return m_received + m_blockSize * (m_asked - m_delivered); }

    void start()
    {
        while (m_asked - m_delivered < m_limit &&
               (m_asked == m_delivered || expected() < m_announced)) {
            mms::FileReadRequest request;
            request.frsmId = m_frsmId;
            m_calls.start(m_asked++, request, m_client->options().callTimeout);
        }
    }

    void deliver()
    {
        for (auto next = m_arrived.find(m_delivered); !m_ended && next != m_arrived.end();
             next = m_arrived.find(m_delivered)) {
            take(next->second);
            m_arrived.erase(next);
            ++m_delivered;
        }
    }

    void take(const mms::CallOutcome &outcome)
    {
        const auto *block = mms::answerOf<mms::FileReadResponse>(outcome);
        if (!block) {
            end(errorOf(outcome));
            return;
        }
        m_emptyBlocks = block->data.empty() ? m_emptyBlocks + 1 : 0;
        if (!block->data.empty()) {
            m_blockSize = block->data.size();
            m_received += block->data.size();
            if (!m_sink(block->data)) {
                end(mms::Error{"Reading the file was stopped.", 0});
                return;
            }
        }
        if (!block->moreFollows)
            m_ended = true;
        else if (m_emptyBlocks > maxEmptyBlocks)
            end(mms::Error{"The device sends empty blocks of the file without an end.", 0});
    }

    void end(mms::Error error)
    {
        m_error = std::move(error);
        m_ended = true;
    }

    std::shared_ptr<Client> m_client;
    CallGroup m_calls;
    std::int32_t m_frsmId;
    std::uint64_t m_announced;
    std::function<bool(std::span<const std::uint8_t>)> m_sink;
    std::size_t m_limit;
    std::uint64_t m_blockSize;
    std::map<std::size_t, mms::CallOutcome> m_arrived;
    std::size_t m_asked = 0;
    std::size_t m_delivered = 0;
    std::uint64_t m_received = 0;
    int m_emptyBlocks = 0;
    bool m_ended = false;
    std::optional<mms::Error> m_error;
};

} // namespace

asio::awaitable<mms::Result<std::vector<FileEntry>>> listDirectory(std::shared_ptr<Client> client,
                                                                   std::string directory)
{
    std::optional<mms::Error> firstError;
    bool answered = false;
    for (const auto &spelling : directorySpellingsOf(directory)) {
        Listing listing = co_await listPages(client, spelling);
        if (listing.failure) {
            if (!firstError)
                firstError = errorOf(*listing.failure);
            if (isLost(*listing.failure))
                co_return *firstError;
            continue;
        }
        auto entries = oneLevel(directory, listing.entries);
        if (!entries.empty())
            co_return entries;
        answered = true;
    }
    if (!answered)
        co_return *firstError;
    co_return std::vector<FileEntry>();
}

asio::awaitable<mms::Result<std::uint64_t>>
download(std::shared_ptr<Client> client, std::string name,
         std::function<bool(std::span<const std::uint8_t>)> sink,
         std::function<void(std::uint32_t)> announced)
{
    const auto opened = co_await askBySpelling<mms::FileOpenResponse>(
        client, name, [](const std::string &spelling) {
            mms::FileOpenRequest request;
            request.name = {spelling};
            return request;
        });
    if (!opened)
        co_return opened.error();
    if (announced)
        announced(opened->attributes.size);
    auto received = co_await BlockReader(client, *opened, std::move(sink)).read();
    mms::FileCloseRequest close;
    close.frsmId = opened->frsmId;
    static_cast<void>(co_await client->call(close));
    if (!received)
        co_return mms::Error{name + ": " + received.error().message, 0};
    co_return received;
}

asio::awaitable<mms::Result<void>> deleteFile(std::shared_ptr<Client> client, std::string name)
{
    const auto deleted = co_await askBySpelling<mms::FileDeleteResponse>(
        std::move(client), std::move(name), [](const std::string &spelling) {
            mms::FileDeleteRequest request;
            request.name = {spelling};
            return request;
        });
    if (!deleted)
        co_return deleted.error();
    co_return mms::Result<void>();
}

asio::awaitable<mms::Result<void>> renameFile(std::shared_ptr<Client> client, std::string from,
                                              std::string to)
{
    const std::vector<std::string> targets = spellingsOf(to);
    const std::vector<std::string> sources = spellingsOf(from);
    const auto renamed = co_await askBySpelling<mms::FileRenameResponse>(
        std::move(client), from, [&](const std::string &spelling) {
            // Both names in the same manner, where there is one for both.
            const auto manner =
                static_cast<std::size_t>(std::ranges::find(sources, spelling) - sources.begin());
            mms::FileRenameRequest request;
            request.currentName = {spelling};
            request.newName = {targets[std::min(manner, targets.size() - 1)]};
            return request;
        });
    if (!renamed)
        co_return renamed.error();
    co_return mms::Result<void>();
}

} // namespace acsi
