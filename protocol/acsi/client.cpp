// SPDX-License-Identifier: Apache-2.0
#include "acsi/client.h"

#include "acsi/listcalls.h"
#include "acsi/namepages.h"
#include "acsi/readcalls.h"

#include <asio/co_spawn.hpp>
#include <asio/experimental/as_tuple.hpp>
#include <asio/steady_timer.hpp>
#include <asio/this_coro.hpp>
#include <asio/use_awaitable.hpp>

#include <algorithm>
#include <utility>

namespace acsi {

using wording::say;

namespace {

using mms::CallFailure;
using mms::CallOutcome;
using mms::DataAccessError;

constexpr auto asTuple = asio::experimental::as_tuple(asio::use_awaitable);

/// What a client does for its peer: it has files fetched from it, and hears reports.
mms::AssociationOptions withOwnServices(mms::AssociationOptions options)
{
    for (const mms::Service service :
         {mms::Service::FileOpen, mms::Service::FileRead, mms::Service::FileClose,
          mms::Service::InformationReport, mms::Service::Conclude})
        options.services.set(static_cast<std::size_t>(service));
    return options;
}

mms::Error cancelledError()
{
    return {say("The call was cancelled."), 0};
}

mms::RequestService writeRequest(std::vector<mms::VariableAccess> variables,
                                 std::vector<mms::Data> values)
{
    mms::WriteRequest request;
    request.variables = std::move(variables);
    request.values = std::move(values);
    return request;
}

} // namespace

asio::awaitable<mms::Result<std::shared_ptr<ChangingClient>>>
Client::connect(asio::any_io_executor executor, std::string host, std::uint16_t port,
                ClientOptions options, std::function<void(const mms::Text &)> closed)
{
    const auto client = std::make_shared<ChangingClient>(Private(), std::move(options));
    client->m_closed = std::move(closed);
    client->m_association = mms::Association::create(
        executor, withOwnServices(client->m_options.association), client->handlers());
    auto opening = open(client, std::move(host), port);
    const mms::Result<void> opened =
        co_await asio::co_spawn(client->strand(), std::move(opening), asio::use_awaitable);
    if (!opened)
        co_return opened.error();
    co_return client;
}

asio::awaitable<mms::Result<void>> Client::open(std::shared_ptr<Client> client, std::string host,
                                                std::uint16_t port)
{
    struct State
    {
        asio::steady_timer wake;
        std::optional<mms::Result<void>> result;
    };
    const auto state = std::make_shared<State>(State{asio::steady_timer(client->strand()), {}});
    client->m_association->connect(
        std::move(host), port,
        [state, weak = client->weak_from_this()](mms::Result<mms::InitiateParameters> opened) {
            if (const auto self = weak.lock(); self && opened)
                self->m_open = true;
            state->result = opened ? mms::Result<void>() : opened.error();
            state->wake.cancel();
        });
    while (!state->result) {
        const auto cancellation = co_await asio::this_coro::cancellation_state;
        if (cancellation.cancelled() != asio::cancellation_type::none)
            co_return cancelledError();
        state->wake.expires_at(asio::steady_timer::time_point::max());
        co_await state->wake.async_wait(asTuple);
    }
    co_return *state->result;
}

Client::Client(Private, ClientOptions options)
    : m_options(std::move(options))
    , m_informationHandlers(std::make_shared<Entries<InformationHandler>>())
    , m_requestHandlers(std::make_shared<Entries<RequestHandler>>())
    , m_endHandlers(std::make_shared<Entries<EndHandler>>())
{
}

Client::~Client()
{
    if (m_association)
        m_association->abort(say("The client is gone."));
}

mms::Association::Handlers Client::handlers()
{
    const auto weak = weak_from_this();
    mms::Association::Handlers result;
    result.request = [weak](const std::shared_ptr<mms::Association> &association,
                            std::uint32_t invokeId, const mms::RequestService &request) {
        const auto self = weak.lock();
        if (self && offer(self->m_requestHandlers, invokeId, request))
            return;
        // Files are served, though not this one.
        if (std::holds_alternative<mms::FileOpenRequest>(request)) {
            association->fail(
                invokeId, {mms::ErrorClass::File, mms::serviceerrors::fileNonExistent, {}, {}, {}});
        } else {
            association->reject(invokeId, mms::rejectcodes::requestUnrecognizedService);
        }
    };
    result.report = [weak](mms::InformationReport report) {
        const auto self = weak.lock();
        if (self && !offer(self->m_informationHandlers, report))
            ++self->m_unclaimed;
    };
    result.closed = [weak](const mms::Text &reason) {
        if (const auto self = weak.lock())
            self->ended(reason);
    };
    return result;
}

void Client::ended(const mms::Text &reason)
{
    m_open = false;
    m_closeReason = reason;
    const auto endHandlers = m_endHandlers;
    for (const auto &entry : *endHandlers) {
        if (!entry->removed)
            entry->handler(reason);
    }
    if (const auto closed = std::exchange(m_closed, nullptr))
        closed(reason);
}

mms::Error Client::endError(const CallOutcome &outcome) const
{
    return {m_open || m_closeReason.empty() ? whyNot(outcome) : m_closeReason, 0};
}

std::size_t Client::outstanding() const
{
    const auto agreed = m_association->negotiated().maxOutstandingCalling;
    return static_cast<std::size_t>(std::max<std::int16_t>(agreed, 1));
}

asio::awaitable<void> Client::close()
{
    const auto self = shared_from_this();
    if (!m_open)
        co_return;
    const mms::Result<void> concluded = co_await m_association->conclude();
    if (!concluded && m_open)
        m_association->abort(
            say("The peer does not conclude the association: %1.", concluded.error().message));
}

void Client::abort(const mms::Text &reason)
{
    m_association->abort(reason);
}

asio::awaitable<CallOutcome> Client::call(ReadingRequest request)
{
    return send(std::move(request).service());
}

asio::awaitable<CallOutcome> Client::call(ReadingRequest request, std::chrono::milliseconds timeout,
                                          mms::GivenUpCall givenUp)
{
    return m_association->call(std::move(request).service(), timeout, givenUp);
}

mms::Association::CallId Client::call(ReadingRequest request, std::chrono::milliseconds timeout,
                                      mms::Association::CallHandler handler)
{
    return m_association->call(std::move(request).service(), timeout, std::move(handler));
}

asio::awaitable<CallOutcome> Client::send(mms::RequestService request)
{
    const auto self = shared_from_this();
    if (!m_open)
        co_return CallFailure{CallFailure::Kind::NotOpen, m_closeReason};
    co_return co_await m_association->call(std::move(request), m_options.callTimeout);
}

asio::awaitable<mms::Result<std::vector<std::string>>>
Client::nameList(mms::ObjectClass objectClass, mms::Scope scope, std::string domain)
{
    const auto self = shared_from_this();
    NamePages pages(objectClass, scope, std::move(domain));
    while (!pages.complete()) {
        const auto page = co_await ask<mms::GetNameListResponse>(pages.request());
        if (!page)
            co_return page.error();
        if (const auto taken = pages.take(*page); !taken)
            co_return taken.error();
    }
    co_return pages.names();
}

asio::awaitable<mms::Result<mms::TypeDescription>> Client::type(mms::ObjectName variable)
{
    const auto self = shared_from_this();
    mms::GetVariableAccessAttributesRequest request;
    request.variable = std::move(variable);
    auto answer = co_await ask<mms::GetVariableAccessAttributesResponse>(std::move(request));
    if (!answer)
        co_return answer.error();
    co_return std::move(answer->type);
}

asio::awaitable<mms::Result<std::vector<mms::AccessResult>>>
Client::read(std::vector<mms::VariableAccess> variables)
{
    const auto self = shared_from_this();
    auto each = co_await readEach(self, std::move(variables));
    if (!each)
        co_return each.error();
    std::vector<mms::AccessResult> results;
    std::size_t refused = 0;
    for (ReadResult &one : *each) {
        if (one.kind == ReadResult::Kind::Missing)
            co_return mms::Error{one.reason, 0};
        refused += one.kind == ReadResult::Kind::Refused ? 1 : 0;
        results.push_back(std::move(one.result));
    }
    if (refused > 0 && refused == each->size())
        co_return mms::Error{each->front().reason, 0};
    co_return results;
}

asio::awaitable<mms::Result<std::vector<mms::AccessResult>>> Client::readList(mms::ObjectName list)
{
    const auto self = shared_from_this();
    mms::ReadRequest request;
    request.variables = list;
    CallOutcome outcome = co_await call(std::move(request));
    if (const auto *answer = mms::answerOf<mms::ReadResponse>(outcome))
        co_return answer->results;
    const auto *refused = std::get_if<mms::ServiceError>(&outcome);
    if (endsAll(outcome) || (refused && refused->errorClass == mms::ErrorClass::Access))
        co_return endError(outcome);
    mms::GetNamedVariableListAttributesRequest directory;
    directory.name = std::move(list);
    auto members = co_await ask<mms::GetNamedVariableListAttributesResponse>(std::move(directory));
    if (!members || members->members.empty())
        co_return endError(outcome);
    co_return co_await read(std::move(members->members));
}

// One variable needs none of what shares out a list among several calls.
asio::awaitable<mms::Result<mms::Data>> Client::readOne(mms::VariableAccess variable)
{
    const auto self = shared_from_this();
    std::vector<mms::VariableAccess> variables;
    variables.push_back(std::move(variable));
    CallOutcome outcome = co_await call(readRequest(std::move(variables)));
    ReadAnswer answer = readAnswer(std::move(outcome), 1);
    if (answer.kind != ReadAnswer::Kind::Results) {
        if (answer.kind == ReadAnswer::Kind::Ended && !m_open && !m_closeReason.empty())
            answer.reason = m_closeReason;
        co_return mms::Error{std::move(answer.reason), 0};
    }
    mms::AccessResult &result = answer.results.front();
    if (!result.ok())
        co_return mms::Error{mms::describe(result.error()), 0};
    co_return std::move(result).data();
}

ChangingClient::ChangingClient(Private, ClientOptions options)
    : Client(Private(), std::move(options))
{
}

asio::awaitable<CallOutcome> ChangingClient::call(mms::RequestService request)
{
    return send(std::move(request));
}

asio::awaitable<mms::Result<std::vector<std::optional<DataAccessError>>>>
ChangingClient::write(std::vector<mms::VariableAccess> variables, std::vector<mms::Data> values)
{
    const auto self = shared_from_this();
    if (variables.size() != values.size())
        co_return mms::Error{say("Each variable needs one value to write."), 0};
    const std::size_t frame = longestSize(writeRequest({}, {}));
    std::vector<std::size_t> sizes;
    if (variables.size() > 1) {
        for (std::size_t i = 0; i < variables.size(); ++i)
            sizes.push_back(longestSize(writeRequest({variables[i]}, {values[i]})) - frame);
    } else {
        sizes.resize(variables.size());
    }
    const std::size_t limit = m_association->pduSize();
    ListCalls calls(listRanges(sizes, limit - std::min(limit, frame)), variables.size());
    std::vector<std::optional<DataAccessError>> results(variables.size());
    mms::Text reason;
    // One request after the other: what is written keeps its order.
    while (!calls.idle()) {
        const ListRange range = calls.next();
        const CallOutcome outcome =
            co_await call(writeRequest(listPart(variables, range), listPart(values, range)));
        const auto *answer = mms::answerOf<mms::WriteResponse>(outcome);
        const auto *failure = std::get_if<CallFailure>(&outcome);
        if (answer && answer->results.size() == range.count) {
            std::ranges::copy(answer->results,
                              results.begin() + static_cast<std::ptrdiff_t>(range.first));
        } else if (endsAll(outcome) || std::holds_alternative<mms::ResponseService>(outcome) ||
                   (failure && failure->kind == CallFailure::Kind::Malformed)) {
            // Writing again could do a thing twice.
            co_return endError(outcome);
        } else if (calls.refused(range)) {
            if (reason.empty())
                reason = whyNot(outcome);
            results[range.first] = accessErrorOf(outcome);
        }
    }
    if (calls.hasFailed())
        co_return mms::Error{reason, 0};
    co_return results;
}

asio::awaitable<mms::Result<void>> ChangingClient::writeOne(mms::VariableAccess variable,
                                                            mms::Data value)
{
    std::vector<mms::VariableAccess> variables;
    variables.push_back(std::move(variable));
    std::vector<mms::Data> values;
    values.push_back(std::move(value));
    const auto results = co_await write(std::move(variables), std::move(values));
    if (!results)
        co_return results.error();
    if (const auto &error = results->front())
        co_return mms::Error{mms::describe(*error), 0};
    co_return mms::Result<void>();
}

template <typename Function>
Client::Registration Client::add(std::shared_ptr<const Entries<Function>> &entries,
                                 Function handler)
{
    const Registration id = ++m_lastRegistration;
    auto changed = std::make_shared<Entries<Function>>(*entries);
    changed->push_back(std::make_shared<Entry<Function>>(Entry<Function>{id, std::move(handler)}));
    entries = std::move(changed);
    return id;
}

template <typename Function>
void Client::removeFrom(std::shared_ptr<const Entries<Function>> &entries, Registration id)
{
    const auto isMeant = [id](const auto &entry) { return entry->id == id; };
    const auto found = std::ranges::find_if(*entries, isMeant);
    if (found == entries->end())
        return;
    (*found)->removed = true;
    auto changed = std::make_shared<Entries<Function>>(*entries);
    std::erase_if(*changed, isMeant);
    entries = std::move(changed);
}

template <typename Function, typename... Arguments>
bool Client::offer(std::shared_ptr<const Entries<Function>> entries, Arguments &...arguments)
{
    return std::ranges::any_of(*entries, [&](const auto &entry) {
        return !entry->removed && entry->handler(arguments...);
    });
}

Client::Registration Client::addInformationHandler(InformationHandler handler)
{
    return add(m_informationHandlers, std::move(handler));
}

Client::Registration Client::addRequestHandler(RequestHandler handler)
{
    return add(m_requestHandlers, std::move(handler));
}

Client::Registration Client::addEndHandler(EndHandler handler)
{
    return add(m_endHandlers, std::move(handler));
}

void Client::remove(Registration registration)
{
    removeFrom(m_endHandlers, registration);
    removeFrom(m_informationHandlers, registration);
    removeFrom(m_requestHandlers, registration);
}

} // namespace acsi
