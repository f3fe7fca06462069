// SPDX-License-Identifier: Apache-2.0
#include "acsi/files.h"

#include "acsi/callgroup.h"
#include "acsi/filecalls.h"
#include "acsi/filenames.h"
#include "acsi/offeredfile.h"
#include "acsi/uploadsteps.h"

#include <asio/this_coro.hpp>

#include <algorithm>

namespace acsi {

using wording::say;

namespace {

/// Octets of an answer with a block that are not of the block, at most.
constexpr std::size_t blockFrame = 64;
/// How long a file may take as long as the peer goes on fetching it.
constexpr std::chrono::hours wholeTime{24};

UploadSteps::Answer answerFrom(const mms::CallOutcome &outcome)
{
    using Kind = UploadSteps::Answer::Kind;
    UploadSteps::Answer answer;
    answer.text = mms::failureText(outcome);
    answer.kind = Kind::Refused;
    if (const auto *error = std::get_if<mms::ServiceError>(&outcome)) {
        answer.errorClass = error->errorClass;
        answer.code = error->code;
    } else if (const auto *failure = std::get_if<mms::CallFailure>(&outcome)) {
        switch (failure->kind) {
        case mms::CallFailure::Kind::NotOpen:
        case mms::CallFailure::Kind::Lost:
            answer.kind = Kind::Lost;
            break;
        case mms::CallFailure::Kind::TimedOut:
        case mms::CallFailure::Kind::Cancelled:
        case mms::CallFailure::Kind::Malformed:
            answer.kind = Kind::Silent;
            break;
        case mms::CallFailure::Kind::TooLarge:
            break;
        }
    }
    return answer;
}

template <typename Response>
UploadSteps::Answer stepAnswer(const mms::CallOutcome &outcome)
{
    UploadSteps::Answer answer = answerFrom(outcome);
    if (mms::answerOf<Response>(outcome))
        answer.kind = UploadSteps::Answer::Kind::Done;
    return answer;
}

/// Carries out the steps.
class Upload
{
public:
    Upload(std::shared_ptr<ChangingClient> client, std::string name, FileSource source)
        : m_client(std::move(client))
        , m_name(std::move(name))
        , m_source(std::move(source))
    {
    }

    asio::awaitable<mms::Result<void>> run()
    {
        UploadSteps steps(m_name, m_source.size);
        while (steps.next()) {
            const UploadSteps::Request request = *steps.next();
            UploadSteps::Answer answer;
            switch (request.kind) {
            case UploadSteps::Request::Kind::Open:
                answer = co_await open(request.name);
                break;
            case UploadSteps::Request::Kind::List:
                answer = co_await list(request.name);
                break;
            case UploadSteps::Request::Kind::Fetch:
                answer = co_await fetch(request.name);
                break;
            case UploadSteps::Request::Kind::Delete:
                answer = co_await remove(request.name);
                break;
            case UploadSteps::Request::Kind::Rename:
                answer = stepAnswer<mms::FileRenameResponse>(
                    co_await renameCall(m_client, request.name, request.newName));
                break;
            }
            steps.take(answer);
        }
        co_return steps.result();
    }

private:
    asio::awaitable<UploadSteps::Answer> open(std::string name)
    {
        const mms::CallOutcome outcome = co_await openCall(m_client, std::move(name));
        UploadSteps::Answer answer = stepAnswer<mms::FileOpenResponse>(outcome);
        if (const auto *opened = mms::answerOf<mms::FileOpenResponse>(outcome)) {
            answer.size = opened->attributes.size;
            mms::FileCloseRequest close;
            close.frsmId = opened->frsmId;
            static_cast<void>(co_await m_client->call(close));
        }
        co_return answer;
    }

    asio::awaitable<UploadSteps::Answer> list(std::string name)
    {
        const std::string plain = plainName(std::string_view(name));
        const std::size_t separator = plain.rfind('/');
        const bool isInRoot = separator == std::string::npos;
        const std::string directory = isInRoot ? std::string() : plain.substr(0, separator + 1);
        const std::string wanted = isInRoot ? plain : plain.substr(separator + 1);
        const auto entries = co_await listDirectory(m_client, directory);
        UploadSteps::Answer answer;
        if (!entries) {
            answer.text = entries.error().message;
            answer.kind = m_client->isOpen() ? UploadSteps::Answer::Kind::Refused
                                             : UploadSteps::Answer::Kind::Lost;
            co_return answer;
        }
        for (const FileEntry &entry : *entries) {
            if (entry.name == wanted)
                answer.size = entry.size;
        }
        co_return answer;
    }

    asio::awaitable<UploadSteps::Answer> remove(std::string name)
    {
        const mms::CallOutcome outcome = co_await deleteCall(m_client, std::move(name));
        co_return stepAnswer<mms::FileDeleteResponse>(outcome);
    }

    asio::awaitable<UploadSteps::Answer> fetch(std::string destination)
    {
        UploadSteps::Answer answer;
        for (const std::string &spelling : spellingsOf(destination)) {
            bool unknownName = false;
            answer = co_await fetchAs(spelling, unknownName);
            if (answer.kind == UploadSteps::Answer::Kind::Done || answer.begun || !unknownName)
                break;
        }
        co_return answer;
    }

    /// Removes the handler when a coroutine ends, however it does.
    class Service
    {
    public:
        Service(ChangingClient &client, OfferedFile &file)
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
        ChangingClient &m_client;
        Client::Registration m_registration = 0;
        std::chrono::steady_clock::time_point m_lastRequest = std::chrono::steady_clock::now();
    };

    asio::awaitable<UploadSteps::Answer> fetchAs(std::string destination, bool &unknownName)
    {
        const std::size_t pduSize = m_client->association().pduSize();
        OfferedFile file(m_name, m_source, pduSize - std::min(pduSize / 2, blockFrame));
        Service service(*m_client, file);
        mms::ObtainFileRequest request;
        request.source = {m_name};
        request.destination = {std::move(destination)};
        CallGroup calls(m_client);
        calls.start(*m_client, 0, request, wholeTime);
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
        UploadSteps::Answer answer;
        if (outcome)
            answer = answerFrom(*outcome);
        else
            answer.kind = UploadSteps::Answer::Kind::Silent;
        answer.begun = file.wasOpened();
        const bool isDone = outcome && mms::answerOf<mms::ObtainFileResponse>(*outcome);
        if (isDone && file.isComplete()) {
            answer.kind = UploadSteps::Answer::Kind::Done;
            co_return answer;
        }
        unknownName = outcome && isUnknownName(*outcome);
        answer.text = failure(file, outcome).message;
        co_return answer;
    }

    static mms::Error failure(const OfferedFile &file,
                              const std::optional<mms::CallOutcome> &outcome)
    {
        if (file.error())
            return *file.error();
        const mms::Text text = outcome ? mms::failureText(*outcome) : mms::Text();
        if (!text.empty())
            return {text, 0};
        if (outcome) {
            return {
                say("The device says that it has the file, but it has fetched only %1 of %2 octets.",
                    file.given(), file.size()),
                0};
        }
        return {say("The device has stopped fetching the file after %1 of %2 octets.", file.given(),
                    file.size()),
                0};
    }

    std::shared_ptr<ChangingClient> m_client;
    std::string m_name;
    FileSource m_source;
};

} // namespace

asio::awaitable<mms::Result<void>> upload(std::shared_ptr<ChangingClient> client, std::string name,
                                          FileSource source)
{
    Upload transfer(std::move(client), std::move(name), std::move(source));
    co_return co_await transfer.run();
}

} // namespace acsi
