// SPDX-License-Identifier: Apache-2.0
#include "acsi/files.h"

#include "acsi/callgroup.h"
#include "acsi/filenames.h"
#include "acsi/offeredfile.h"

#include <asio/this_coro.hpp>

#include <algorithm>

namespace acsi {

namespace {

/// Octets of an answer with a block that are not of the block, at most.
constexpr std::size_t blockFrame = 64;
/// How long a file may take as long as the peer goes on fetching it.
constexpr std::chrono::hours wholeTime{24};
constexpr std::string_view temporaryEnding = ".upload";

/// How one try to have the peer fetch the file ended.
struct Attempt
{
    bool ok = false;
    /// The peer began to fetch, so that there may be a part of the file.
    bool begun = false;
    /// The peer has a file of that name and keeps it.
    bool duplicate = false;
    mms::Error error;
};

class Upload
{
public:
    Upload(std::shared_ptr<Client> client, std::string name, FileSource source)
        : m_client(std::move(client))
        , m_name(std::move(name))
        , m_source(std::move(source))
    {
    }

    asio::awaitable<mms::Result<void>> run()
    {
        const auto exists = co_await probe();
        if (!exists)
            co_return exists.error();
        if (*exists)
            co_return co_await replace();
        const Attempt attempt = co_await fetch(m_name);
        if (attempt.ok)
            co_return mms::Result<void>();
        if (attempt.begun)
            co_await remove(m_name);
        co_return named(attempt.error);
    }

private:
    mms::Error named(const mms::Error &error) const { return {m_name + ": " + error.message, 0}; }

    asio::awaitable<bool> remove(std::string name)
    {
        const auto removed = co_await deleteFile(m_client, std::move(name));
        co_return removed.ok();
    }

    /// Whether the peer has a file of the name; true as well when it does not say.
    asio::awaitable<mms::Result<bool>> probe()
    {
        for (const std::string &spelling : spellingsOf(m_name)) {
            mms::FileOpenRequest open;
            open.name = {spelling};
            const mms::CallOutcome outcome = co_await m_client->call(open);
            if (const auto *opened = mms::answerOf<mms::FileOpenResponse>(outcome)) {
                mms::FileCloseRequest close;
                close.frsmId = opened->frsmId;
                static_cast<void>(co_await m_client->call(close));
                co_return true;
            }
            if (std::holds_alternative<mms::CallFailure>(outcome))
                co_return named({mms::failureText(outcome), 0});
            if (!isUnknownName(outcome))
                co_return !std::holds_alternative<mms::RejectPdu>(outcome);
        }
        co_return false;
    }

    /// The new version goes to another name first, so that one version is whole at any time.
    asio::awaitable<mms::Result<void>> replace()
    {
        const std::string temporary = m_name + std::string(temporaryEnding);
        co_await remove(temporary);
        const Attempt first = co_await fetch(temporary);
        if (!first.ok) {
            if (!first.begun)
                co_return co_await replaceInPlace();
            co_await remove(temporary);
            co_return mms::Error{named(first.error).message + " The old file is still there.", 0};
        }
        if ((co_await renameFile(m_client, temporary, m_name)).ok())
            co_return mms::Result<void>();
        const bool removed = co_await remove(m_name);
        if ((co_await renameFile(m_client, temporary, m_name)).ok())
            co_return mms::Result<void>();
        const Attempt second = co_await fetch(m_name);
        if (second.ok) {
            co_await remove(temporary);
            co_return mms::Result<void>();
        }
        if (!removed && !second.begun) {
            co_await remove(temporary);
            co_return mms::Error{named(second.error).message + " The old file is still there.", 0};
        }
        if (second.begun)
            co_await remove(m_name);
        co_return mms::Error{named(second.error).message + " The new file is in the device as " +
                                 temporary + ".",
                             0};
    }

    /// For peers that take no other name.
    asio::awaitable<mms::Result<void>> replaceInPlace()
    {
        Attempt attempt = co_await fetch(m_name);
        if (attempt.ok)
            co_return mms::Result<void>();
        if (attempt.begun)
            co_return mms::Error{
                named(attempt.error).message + " The file in the device may be incomplete.", 0};
        if (!attempt.duplicate || !co_await remove(m_name))
            co_return mms::Error{named(attempt.error).message + " The old file is still there.", 0};
        attempt = co_await fetch(m_name);
        if (attempt.ok)
            co_return mms::Result<void>();
        if (attempt.begun)
            co_await remove(m_name);
        co_return mms::Error{named(attempt.error).message +
                                 " The old file had to be deleted before and is lost.",
                             0};
    }

    asio::awaitable<Attempt> fetch(std::string destination)
    {
        Attempt attempt;
        for (const std::string &spelling : spellingsOf(destination)) {
            bool unknownName = false;
            attempt = co_await fetchAs(spelling, unknownName);
            if (attempt.ok || attempt.begun || !unknownName)
                break;
        }
        co_return attempt;
    }

    /// Removes the handler when a coroutine ends, however it does.
    class Service
    {
    public:
        Service(Client &client, OfferedFile &file)
            : m_client(client)
        {
            m_registration = client.addRequestHandler(
                [this, &file](std::uint32_t invokeId, const mms::RequestService &request) {
                    auto answer = file.take(request);
                    if (!answer)
                        return false;
                    m_lastRequest = std::chrono::steady_clock::now();
                    if (auto *response = std::get_if<mms::ResponseService>(&*answer))
                        m_client.association().respond(invokeId, std::move(*response));
                    else
                        m_client.association().fail(invokeId, std::get<mms::ServiceError>(*answer));
                    return true;
                });
        }
        ~Service() { m_client.remove(m_registration); }
        Service(const Service &) = delete;
        Service &operator=(const Service &) = delete;

        /// How much longer the peer may be silent.
        std::chrono::milliseconds patience() const
        {
            using std::chrono::milliseconds;
            const auto silent = std::chrono::duration_cast<milliseconds>(
                std::chrono::steady_clock::now() - m_lastRequest);
            return std::max(milliseconds(0), m_client.options().callTimeout - silent);
        }

    private:
        Client &m_client;
        Client::Registration m_registration = 0;
        std::chrono::steady_clock::time_point m_lastRequest = std::chrono::steady_clock::now();
    };

    asio::awaitable<Attempt> fetchAs(std::string destination, bool &unknownName)
    {
        const std::size_t pduSize = m_client->association().pduSize();
        OfferedFile file(m_name, m_source, pduSize - std::min(pduSize / 2, blockFrame));
        Service service(*m_client, file);
        mms::ObtainFileRequest request;
        request.source = {m_name};
        request.destination = {std::move(destination)};
        CallGroup calls(m_client);
        calls.start(0, request, wholeTime);
        std::optional<mms::CallOutcome> outcome;
        while (!outcome) {
            auto arrival = co_await calls.next(service.patience());
            const auto cancellation = co_await asio::this_coro::cancellation_state;
            if (arrival)
                outcome = std::move(arrival->outcome);
            else if (cancellation.cancelled() != asio::cancellation_type::none ||
                     service.patience() == std::chrono::milliseconds(0))
                break;
        }
        Attempt attempt;
        attempt.begun = file.wasOpened();
        attempt.ok =
            outcome && mms::answerOf<mms::ObtainFileResponse>(*outcome) && file.isComplete();
        if (attempt.ok)
            co_return attempt;
        if (outcome) {
            unknownName = isUnknownName(*outcome);
            const auto *error = std::get_if<mms::ServiceError>(&*outcome);
            attempt.duplicate = error && error->errorClass == mms::ErrorClass::File &&
                                error->code == mms::serviceerrors::fileDuplicateName;
        }
        attempt.error = failure(file, outcome);
        co_return attempt;
    }

    static mms::Error failure(const OfferedFile &file,
                              const std::optional<mms::CallOutcome> &outcome)
    {
        if (file.error())
            return *file.error();
        const std::string text = outcome ? mms::failureText(*outcome) : std::string();
        if (!text.empty())
            return {text, 0};
        const std::string progress =
            std::to_string(file.given()) + " of " + std::to_string(file.size()) + " octets.";
        if (outcome)
            return {"The device says that it has the file, but it has fetched only " + progress, 0};
        return {"The device has stopped fetching the file after " + progress, 0};
    }

    std::shared_ptr<Client> m_client;
    std::string m_name;
    FileSource m_source;
};

} // namespace

asio::awaitable<mms::Result<void>> upload(std::shared_ptr<Client> client, std::string name,
                                          FileSource source)
{
    Upload upload(std::move(client), std::move(name), std::move(source));
    co_return co_await upload.run();
}

} // namespace acsi
