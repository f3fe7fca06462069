// SPDX-License-Identifier: Apache-2.0
#include "acsi/files.h"

#include "acsi/callgroup.h"
#include "acsi/filecalls.h"
#include "acsi/filenames.h"

#include <asio/experimental/as_tuple.hpp>
#include <asio/steady_timer.hpp>
#include <asio/this_coro.hpp>
#include <asio/use_awaitable.hpp>

#include <algorithm>
#include <map>

namespace acsi {

using wording::say;

namespace {

constexpr std::size_t maxEntries = 1000000;
constexpr int maxEmptyBlocks = 16;
constexpr int maxEmptyPages = 16;
/// How long the answer to an open is waited for after nobody wants the file any more.
constexpr std::chrono::seconds latePatience{60};

mms::Error errorOf(const mms::CallOutcome &outcome)
{
    const mms::Text text = mms::failureText(outcome);
    return {text.empty() ? say("The device answered another service.") : text, 0};
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
    int emptyPages = 0;
    for (;;) {
        mms::CallOutcome outcome = co_await client->call(request);
        auto *service = std::get_if<mms::ResponseService>(&outcome);
        auto *page = service ? std::get_if<mms::FileDirectoryResponse>(service) : nullptr;
        if (!page) {
            listing.failure = std::move(outcome);
            co_return listing;
        }
        emptyPages = page->entries.empty() ? emptyPages + 1 : 0;
        const bool isSame =
            !page->entries.empty() && request.continueAfter == page->entries.back().name;
        std::ranges::move(page->entries, std::back_inserter(listing.entries));
        if (!page->moreFollows)
            co_return listing;
        // A peer that does not get further, or never ends, must not keep anybody busy.
        if (isSame || emptyPages > maxEmptyPages || listing.entries.size() > maxEntries) {
            listing.failure = mms::CallFailure{mms::CallFailure::Kind::Malformed,
                                               say("The device lists its files without an end.")};
            co_return listing;
        }
        if (!listing.entries.empty())
            request.continueAfter = listing.entries.back().name;
    }
}

/// How much a refusal tells: one for another reason than the name more than that there is no such
/// file, and that more than that the name is written wrongly.
int weight(const mms::CallOutcome &outcome)
{
    const auto *error = std::get_if<mms::ServiceError>(&outcome);
    if (!error || error->errorClass != mms::ErrorClass::File)
        return 1;
    using namespace mms::serviceerrors;
    return error->code == 0 ? 2 : error->code == fileNonExistent ? 1 : 0;
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
                co_return mms::Error{say("Reading the file was cancelled."), 0};
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
                end(mms::Error{say("Reading the file was stopped."), 0});
                return;
            }
        }
        if (!block->moreFollows)
            m_ended = true;
        else if (m_emptyBlocks > maxEmptyBlocks)
            end(mms::Error{say("The device sends empty blocks of the file without an end."), 0});
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

mms::FileRenameRequest renameRequest(const std::string &from, const std::string &to,
                                     const std::string &spelling)
{
    // Both names in the same manner, where there is one for both.
    const std::vector<std::string> targets = spellingsOf(to);
    const std::vector<std::string> sources = spellingsOf(from);
    const auto manner =
        static_cast<std::size_t>(std::ranges::find(sources, spelling) - sources.begin());
    mms::FileRenameRequest request;
    request.currentName = {spelling};
    request.newName = {targets[std::min(manner, targets.size() - 1)]};
    return request;
}

using SpelledCall = std::function<asio::awaitable<mms::CallOutcome>(const std::string &spelling)>;

/// Calls a service with each spelling of a name until the peer knows the name.
asio::awaitable<mms::CallOutcome> callBySpelling(std::string name, SpelledCall call)
{
    std::optional<mms::CallOutcome> telling;
    for (const std::string &spelling : spellingsOf(name)) {
        mms::CallOutcome outcome = co_await call(spelling);
        if (!isUnknownName(outcome))
            co_return outcome;
        if (!telling || weight(outcome) > weight(*telling))
            telling = std::move(outcome);
    }
    co_return std::move(*telling);
}

asio::awaitable<mms::CallOutcome> openFile(std::shared_ptr<Client> client,
                                           mms::FileOpenRequest request)
{
    struct State
    {
        asio::steady_timer wake;
        std::optional<mms::CallOutcome> outcome;
        bool isWaitedFor = true;
    };
    using Clock = std::chrono::steady_clock;
    using Failure = mms::CallFailure;
    if (!client->isOpen())
        co_return Failure{Failure::Kind::NotOpen, client->closeReason()};
    const std::chrono::milliseconds patience = client->options().callTimeout;
    // A peer that takes one call at a time would have to wait with everything else meanwhile.
    const bool mayComeLate = client->association().negotiated().maxOutstandingCalling > 1;
    const auto state = std::make_shared<State>(State{asio::steady_timer(client->strand()), {}});
    const auto handler = [state, weak = std::weak_ptr<Client>(client)](mms::CallOutcome outcome) {
        if (state->isWaitedFor) {
            state->outcome = std::move(outcome);
            state->wake.cancel();
            return;
        }
        const auto *opened = mms::answerOf<mms::FileOpenResponse>(outcome);
        const auto self = weak.lock();
        if (!opened || !self || !self->isOpen())
            return;
        mms::FileCloseRequest close;
        close.frsmId = opened->frsmId;
        self->call(close, self->options().callTimeout, [](const mms::CallOutcome &) {});
    };
    client->call(request, mayComeLate ? patience + latePatience : patience, handler);
    const Clock::time_point deadline = Clock::now() + patience;
    bool isCancelled = false;
    while (!state->outcome && !isCancelled && (!mayComeLate || Clock::now() < deadline)) {
        state->wake.expires_at(mayComeLate ? deadline : Clock::time_point::max());
        co_await state->wake.async_wait(asio::experimental::as_tuple(asio::use_awaitable));
        const auto cancellation = co_await asio::this_coro::cancellation_state;
        isCancelled = cancellation.cancelled() != asio::cancellation_type::none;
    }
    if (state->outcome)
        co_return std::move(*state->outcome);
    state->isWaitedFor = false;
    if (isCancelled)
        co_return Failure{Failure::Kind::Cancelled, say("The call was cancelled.")};
    co_return Failure{Failure::Kind::TimedOut, say("The peer did not answer in time.")};
}

} // namespace

asio::awaitable<mms::CallOutcome> openCall(std::shared_ptr<Client> client, std::string name)
{
    SpelledCall call = [client](const std::string &spelling) {
        mms::FileOpenRequest request;
        request.name = {spelling};
        return openFile(client, std::move(request));
    };
    return callBySpelling(std::move(name), std::move(call));
}

asio::awaitable<mms::CallOutcome> deleteCall(std::shared_ptr<ChangingClient> client,
                                             std::string name)
{
    SpelledCall call = [client](const std::string &spelling) {
        mms::FileDeleteRequest request;
        request.name = {spelling};
        return client->call(std::move(request));
    };
    return callBySpelling(std::move(name), std::move(call));
}

asio::awaitable<mms::CallOutcome> renameCall(std::shared_ptr<ChangingClient> client,
                                             std::string from, std::string to)
{
    SpelledCall call = [client, from, to](const std::string &spelling) {
        return client->call(renameRequest(from, to, spelling));
    };
    return callBySpelling(std::move(from), std::move(call));
}

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
        // A name that is spelled in other octets is found by those.
        auto entries = oneLevel(spelling.value_or(std::string()), listing.entries);
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
         std::function<void(std::uint32_t)> announced,
         std::function<void(const mms::Text &)> notClosed)
{
    const mms::CallOutcome opening = co_await openCall(client, name);
    const auto *opened = mms::answerOf<mms::FileOpenResponse>(opening);
    if (!opened)
        co_return mms::Error{say("%1: %2.", name, errorOf(opening).message), 0};
    if (announced)
        announced(opened->attributes.size);
    auto received = co_await BlockReader(client, *opened, std::move(sink)).read();
    mms::FileCloseRequest close;
    close.frsmId = opened->frsmId;
    const mms::CallOutcome closed = co_await client->call(close);
    if (notClosed && !isLost(closed) && !mms::answerOf<mms::FileCloseResponse>(closed))
        notClosed(errorOf(closed).message);
    if (!received)
        co_return mms::Error{say("%1: %2.", name, received.error().message), 0};
    if (*received < opened->attributes.size) {
        co_return mms::Error{say("%1: the file ended after %2 of %3 octets.", name, *received,
                                 opened->attributes.size),
                             0};
    }
    co_return received;
}

asio::awaitable<mms::Result<void>> deleteFile(std::shared_ptr<ChangingClient> client,
                                              std::string name)
{
    const mms::CallOutcome deleted = co_await deleteCall(std::move(client), name);
    if (!mms::answerOf<mms::FileDeleteResponse>(deleted))
        co_return mms::Error{say("%1: %2.", name, errorOf(deleted).message), 0};
    co_return mms::Result<void>();
}

} // namespace acsi
