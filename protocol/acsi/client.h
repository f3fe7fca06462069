// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/readingrequest.h"
#include "mms/association.h"

#include <asio/any_io_executor.hpp>
#include <asio/awaitable.hpp>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace acsi {

struct ClientOptions
{
    mms::AssociationOptions association;
    /// Of each single request.
    std::chrono::milliseconds callTimeout{5000};
    /// One file call at a time unless the device is known to allow more.
    int outstandingFileReads = 1;
};

class ChangingClient;

/// The client side of an association with a server of IEC 61850-8-1: the generic services, split
/// and paged as the negotiated PDU size wants it. Data sets, reports, control, setting groups and
/// files are functions and classes of their own that take a client.
///
/// By itself it reads only: what changes something on the server takes a ChangingClient, so that
/// whoever makes the association decides who may change anything.
///
/// Thread: every member function is called, and every awaitable awaited, in strand(); handlers are
/// called there. Each call ends within ClientOptions::callTimeout for each request that it sends;
/// once the association has ended every call fails at once with the reason.
class Client : public std::enable_shared_from_this<Client>
{
    struct Private
    {
    };

public:
    /// One that takes the report may move the values out of it.
    using InformationHandler = std::function<bool(mms::InformationReport &report)>;
    using RequestHandler =
        std::function<bool(std::uint32_t invokeId, const mms::RequestService &request)>;
    using EndHandler = std::function<void(const mms::Text &reason)>;
    using Registration = std::uint64_t;

    /// Connect and associate. Afterwards @p closed hears once, with one sentence, that the
    /// association has ended; it is not called when connecting fails.
    static asio::awaitable<mms::Result<std::shared_ptr<ChangingClient>>>
    connect(asio::any_io_executor executor, std::string host, std::uint16_t port,
            ClientOptions options, std::function<void(const mms::Text &reason)> closed = {});

    Client(Private, ClientOptions options);
    /// Aborts an association that still stands; nobody hears of it.
    ~Client();
    Client(const Client &) = delete;
    Client &operator=(const Client &) = delete;

    const osi::Strand &strand() const { return m_association->strand(); }
    const ClientOptions &options() const { return m_options; }
    /// What was agreed, and who is at either end.
    const mms::Association &association() const { return *m_association; }
    bool isOpen() const { return m_open; }
    /// Requests that the peer takes at a time.
    std::size_t outstanding() const;
    /// Why the association ended; empty while it stands.
    const mms::Text &closeReason() const { return m_closeReason; }

    /// Conclude in an orderly way; aborts when the peer does not answer.
    asio::awaitable<void> close();
    void abort(const mms::Text &reason);

    asio::awaitable<mms::CallOutcome> call(ReadingRequest request);
    asio::awaitable<mms::CallOutcome>
    call(ReadingRequest request, std::chrono::milliseconds timeout,
         mms::GivenUpCall givenUp = mms::GivenUpCall::KeepsItsPlace);
    /// As the same function of Association.
    mms::Association::CallId call(ReadingRequest request, std::chrono::milliseconds timeout,
                                  mms::Association::CallHandler handler);
    void cancel(mms::Association::CallId id) { m_association->cancel(id); }
    /// The answer of the service that was called, or one sentence why there is none.
    template <typename Response>
    asio::awaitable<mms::Result<Response>> ask(ReadingRequest request)
    {
        const mms::CallOutcome outcome = co_await call(std::move(request));
        co_return responseOf<Response>(outcome);
    }

    /// All names of a class in a scope, page after page. Ends with an error when a peer repeats
    /// pages.
    asio::awaitable<mms::Result<std::vector<std::string>>>
    nameList(mms::ObjectClass objectClass, mms::Scope scope, std::string domain = {});

    asio::awaitable<mms::Result<mms::TypeDescription>> type(mms::ObjectName variable);

    /// Reads in as few requests as request and answers fit; a list that is refused as a whole, or
    /// whose answer is too large for the PDU, is asked for in halves. One result for each variable,
    /// in their order; one that cannot be asked for even alone has an access error. An error when
    /// none can be asked for, and when an answer is missing.
    asio::awaitable<mms::Result<std::vector<mms::AccessResult>>>
    read(std::vector<mms::VariableAccess> variables);
    /// The members of a data set; one by one where the peer cannot give them together.
    asio::awaitable<mms::Result<std::vector<mms::AccessResult>>> readList(mms::ObjectName list);
    /// One variable; the access error becomes a sentence.
    asio::awaitable<mms::Result<mms::Data>> readOne(mms::VariableAccess variable);

    /// Hear the information reports of the peer, until removed. Handlers are asked in the order of
    /// their registration until one takes the report (returns true).
    Registration addInformationHandler(InformationHandler handler);
    /// Hear the requests of the peer (it fetches files that this side offers). A request that no
    /// handler takes is rejected; one that takes it answers on ChangingClient::association().
    Registration addRequestHandler(RequestHandler handler);
    /// Hear that the association has ended, before those who connected hear it.
    Registration addEndHandler(EndHandler handler);
    void remove(Registration registration);

    /// Information reports that no handler took.
    std::uint64_t unclaimedReports() const { return m_unclaimed; }

protected:
    /// Any request, also one that changes something.
    asio::awaitable<mms::CallOutcome> send(mms::RequestService request);
    template <typename Response>
    static mms::Result<Response> responseOf(const mms::CallOutcome &outcome)
    {
        if (const Response *response = mms::answerOf<Response>(outcome))
            return *response;
        const mms::Text text = mms::failureText(outcome);
        return mms::Error{text.empty() ? mms::say("The device answered another service.") : text,
                          0};
    }
    mms::Error endError(const mms::CallOutcome &outcome) const;

    std::shared_ptr<mms::Association> m_association;

private:
    friend class ChangingClient;

    /// A handler that may be removed while it, or another, is being called.
    template <typename Function>
    struct Entry
    {
        Registration id;
        Function handler;
        bool removed = false;
    };
    template <typename Function>
    using Entries = std::vector<std::shared_ptr<Entry<Function>>>;

    template <typename Function>
    Registration add(std::shared_ptr<const Entries<Function>> &entries, Function handler);
    template <typename Function>
    static void removeFrom(std::shared_ptr<const Entries<Function>> &entries, Registration id);
    template <typename Function, typename... Arguments>
    static bool offer(std::shared_ptr<const Entries<Function>> entries, Arguments &...arguments);

    static asio::awaitable<mms::Result<void>> open(std::shared_ptr<Client> client, std::string host,
                                                   std::uint16_t port);
    mms::Association::Handlers handlers();
    void ended(const mms::Text &reason);

    ClientOptions m_options;
    std::shared_ptr<const Entries<InformationHandler>> m_informationHandlers;
    std::shared_ptr<const Entries<RequestHandler>> m_requestHandlers;
    std::shared_ptr<const Entries<EndHandler>> m_endHandlers;
    std::function<void(const mms::Text &)> m_closed;
    mms::Text m_closeReason;
    Registration m_lastRegistration = 0;
    std::uint64_t m_unclaimed = 0;
    bool m_open = false;
};

/// A client that may change what the server has. Whoever is handed one as a Client cannot.
class ChangingClient final : public Client
{
public:
    ChangingClient(Private, ClientOptions options);

    mms::Association &association() { return *m_association; }

    asio::awaitable<mms::CallOutcome> call(mms::RequestService request);
    template <typename Response>
    asio::awaitable<mms::Result<Response>> ask(mms::RequestService request)
    {
        const mms::CallOutcome outcome = co_await call(std::move(request));
        co_return responseOf<Response>(outcome);
    }

    /// Writes in as few requests as fit. Nothing for each variable that was written. An error when
    /// the device refused all as a whole, and when an answer is missing: some may be written then.
    asio::awaitable<mms::Result<std::vector<std::optional<mms::DataAccessError>>>>
    write(std::vector<mms::VariableAccess> variables, std::vector<mms::Data> values);
    asio::awaitable<mms::Result<void>> writeOne(mms::VariableAccess variable, mms::Data value);
};

} // namespace acsi
