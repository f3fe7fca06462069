// SPDX-License-Identifier: Apache-2.0
#include "acsi/control.h"

#include "acsi/controlcalls.h"
#include "acsi/typedvalue.h"
#include "mms/datatext.h"

#include <asio/co_spawn.hpp>
#include <asio/detached.hpp>
#include <asio/experimental/as_tuple.hpp>
#include <asio/steady_timer.hpp>
#include <asio/use_awaitable.hpp>

#include <algorithm>
#include <limits>
#include <utility>

namespace acsi {

using wording::say;

namespace {

using Model = ControlModel;

constexpr auto asTuple = asio::experimental::as_tuple(asio::use_awaitable);

bool isEnhanced(Model model)
{
    return model == Model::DirectEnhanced || model == Model::SelectEnhanced;
}

/// How much longer than a call may take its answer is still heard.
constexpr std::chrono::milliseconds latePatience{10000};

/// From now until a moment of the wall clock, none when it has passed.
std::chrono::milliseconds until(const mms::UtcTime &time)
{
    using namespace std::chrono;
    const auto moment = system_clock::time_point(seconds(time.seconds)) +
                        milliseconds(std::uint64_t{time.fraction} * 1000U >> 24U);
    return std::max(milliseconds(0), duration_cast<milliseconds>(moment - system_clock::now()));
}

std::optional<std::chrono::milliseconds> millisecondsFrom(const mms::AccessResult &result)
{
    const auto number = result.ok() ? result.data().toUnsigned() : std::nullopt;
    if (!number || *number > std::numeric_limits<std::uint32_t>::max())
        return std::nullopt;
    return std::chrono::milliseconds(*number);
}

std::optional<double> realFrom(const mms::AccessResult &result)
{
    return result.ok() ? result.data().toDouble() : std::nullopt;
}

bool hasBothParts(const mms::TypeDescription &operType)
{
    const mms::TypeDescription *value = componentOf(operType, "ctlVal");
    return value && componentOf(*value, "i") && componentOf(*value, "f");
}

std::string secondsText(std::chrono::milliseconds time)
{
    const auto tenths = time.count() / 100;
    return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " s";
}

} // namespace

/// Somebody waits for the call as long as it lives.
class ControlObject::Leaving
{
public:
    Leaving(ControlObject &object, CallPointer call)
        : m_object(object)
        , m_call(std::move(call))
    {
    }
    ~Leaving()
    {
        m_call->isLeft = true;
        m_object.forget(m_call);
    }
    Leaving(const Leaving &) = delete;
    Leaving &operator=(const Leaving &) = delete;

private:
    ControlObject &m_object;
    CallPointer m_call;
};

asio::awaitable<mms::Result<std::shared_ptr<ControlObject>>>
ControlObject::open(std::shared_ptr<Client> client, Reference object)
{
    object.constraint = FunctionalConstraint::CO;
    const bool hasElement = std::ranges::any_of(
        object.path, [](const PathStep &step) { return step.element.has_value(); });
    if (object.node.empty() || object.path.empty() || hasElement)
        co_return mms::Error{
            say("%1 is not the name of a data object that can be controlled.", toText(object)), 0};
    auto control = std::make_shared<ControlObject>(Private(), client, std::move(object));
    if (auto result = co_await control->refresh(); !result)
        co_return result.error();
    co_return control;
}

ControlObject::ControlObject(Private, std::shared_ptr<Client> client, Reference object)
    : m_client(std::move(client))
    , m_object(std::move(object))
{
    m_informationHandler = m_client->addInformationHandler(
        [this](const mms::InformationReport &report) { return handle(report); });
    m_endHandler = m_client->addEndHandler([this](const mms::Text &) {
        for (const CallPointer &call : m_calls)
            call->wake.cancel();
    });
}

ControlObject::~ControlObject()
{
    m_client->remove(m_informationHandler);
    m_client->remove(m_endHandler);
}

asio::awaitable<mms::Result<void>> ControlObject::refresh()
{
    const auto self = shared_from_this();
    std::vector<mms::VariableAccess> variables;
    const auto want = [&](std::initializer_list<const char *> path) {
        Reference reference = m_object;
        reference.constraint = FunctionalConstraint::CF;
        for (const char *const step : path)
            reference.path.push_back({step, {}});
        variables.push_back(accessOf(reference));
    };
    want({"ctlModel"});
    want({"sboTimeout"});
    want({"operTimeout"});
    want({"sboClass"});
    const auto results = co_await m_client->read(std::move(variables));
    if (!results)
        co_return mms::Error{
            say("The control model of %1 cannot be read: %2.", name(), results.error().message), 0};
    const mms::AccessResult &model = results->front();
    if (!model.ok())
        co_return mms::Error{say("The control model of %1 cannot be read: %2.", name(),
                                 mms::describe(model.error())),
                             0};
    const auto number = model.data().toUnsigned();
    if (!number || *number > static_cast<std::uint64_t>(Model::SelectEnhanced))
        co_return mms::Error{
            say("The control model of %1 is %2, which is none.", name(), mms::toText(model.data())),
            0};
    m_model = static_cast<Model>(*number);
    m_selectTimeout = millisecondsFrom((*results)[1]);
    m_operateTimeout = millisecondsFrom((*results)[2]);
    const mms::AccessResult &sboClass = (*results)[3];
    m_isOperateMany = sboClass.ok() && sboClass.data().toUnsigned() == 1U;

    if (m_model != Model::StatusOnly && !m_typesRead) {
        if (auto types = co_await readTypes(); !types)
            co_return types.error();
    }
    m_scale.reset();
    if (!hasBothParts(m_operType))
        co_return mms::Result<void>();
    variables.clear();
    want({"sVC", "scaleFactor"});
    want({"sVC", "offset"});
    const auto scale = co_await m_client->read(std::move(variables));
    if (!scale)
        co_return mms::Result<void>(); // The same as none.
    const std::optional<double> factor = realFrom((*scale)[0]);
    const std::optional<double> offset = realFrom((*scale)[1]);
    if (factor && offset && *factor != 0)
        m_scale = AnalogueScale{*factor, *offset};
    co_return mms::Result<void>();
}

asio::awaitable<mms::Result<void>> ControlObject::readTypes()
{
    const auto type =
        co_await m_client->type(mms::ObjectName::inDomain(m_object.device, itemText(m_object)));
    if (!type)
        co_return mms::Error{
            say("The type of %1 cannot be read: %2.", name(), type.error().message), 0};
    const auto part = [&type](std::string_view component) {
        const mms::TypeDescription *found = componentOf(*type, component);
        return found ? *found : mms::TypeDescription();
    };
    m_operType = part("Oper");
    m_selectType = part("SBOw");
    m_cancelType = part("Cancel");
    m_typesRead = true;
    co_return mms::Result<void>();
}

mms::VariableAccess ControlObject::component(const std::string &name) const
{
    Reference reference = m_object;
    reference.path.push_back({name, {}});
    return accessOf(reference);
}

ControlObject::CallPointer ControlObject::begin(std::string component,
                                                std::optional<std::uint8_t> ctlNum)
{
    // A number that is used again no longer means the command that had it.
    std::erase_if(m_calls, [&](const CallPointer &each) {
        return each->isLeft && each->component == component && each->ctlNum == ctlNum;
    });
    auto call = std::make_shared<ControlCall>(m_client->strand(), std::move(component), ctlNum);
    m_calls.push_back(call);
    return call;
}

asio::awaitable<void> ControlObject::exchange(std::shared_ptr<ControlObject> self,
                                              std::shared_ptr<ChangingClient> client,
                                              CallPointer call, mms::RequestService request)
{
    mms::CallOutcome outcome =
        mms::CallFailure{mms::CallFailure::Kind::NotOpen, client->closeReason()};
    if (client->isOpen())
        outcome = co_await client->association().call(std::move(request),
                                                      client->options().callTimeout + latePatience);
    self->answered(call, outcome);
}

void ControlObject::answered(const CallPointer &call, const mms::CallOutcome &outcome)
{
    if (call->state == ControlCall::State::Over)
        return;
    const auto refused = [&](mms::Text reason) {
        call->reason = std::move(reason);
        call->state = ControlCall::State::Refused;
        if (call->isLeft)
            tellLate(call, refusal(*call, name()));
        else
            call->wake.cancel();
    };
    if (const auto *failure = std::get_if<mms::CallFailure>(&outcome)) {
        const bool isUnsent = failure->kind == mms::CallFailure::Kind::NotOpen ||
                              failure->kind == mms::CallFailure::Kind::TooLarge;
        const bool isLost = !m_client->isOpen() && !m_client->closeReason().empty();
        call->result.outcome = isUnsent ? ControlOutcome::NotSent : ControlOutcome::Unknown;
        call->result.message = say("%1: %2 got no answer: %3.", name(), call->component,
                                   isLost ? m_client->closeReason() : failure->message);
        call->state = ControlCall::State::Silent;
        call->wake.cancel();
        forget(call);
        return;
    }
    const mms::Text text = mms::failureText(outcome);
    if (!text.empty()) {
        refused(text);
        return;
    }
    if (const auto *written = mms::answerOf<mms::WriteResponse>(outcome);
        written && written->results.size() == 1) {
        if (const auto &error = written->results.front())
            refused(mms::describe(*error));
        else
            accepted(call);
        return;
    }
    if (const auto *read = mms::answerOf<mms::ReadResponse>(outcome);
        read && read->results.size() == 1) {
        const mms::AccessResult &result = read->results.front();
        if (!result.ok())
            refused(mms::describe(result.error()));
        else if (result.data().text().empty())
            refused(say("it gives no reason; another client may have selected the object."));
        else
            accepted(call);
        return;
    }
    call->result.outcome = ControlOutcome::Unknown;
    call->result.message =
        say("%1: %2 got an answer that does not match the question.", name(), call->component);
    call->state = ControlCall::State::Silent;
    call->wake.cancel();
    forget(call);
}

void ControlObject::forget(const CallPointer &call)
{
    // A response is still to come, or a termination.
    const bool mayBeHeardOf = call->state == ControlCall::State::Waiting ||
                              (call->state != ControlCall::State::Over &&
                               call->component == "Oper" && isEnhanced(m_model));
    if (!call->isLeft || mayBeHeardOf)
        return;
    const CallPointer kept = call;
    std::erase(m_calls, kept);
}

void ControlObject::accepted(const CallPointer &call)
{
    const bool terminates = call->component == "Oper" && isEnhanced(m_model);
    const std::optional<LastApplError> error = std::exchange(call->applError, std::nullopt);
    call->state = ControlCall::State::Accepted;
    if (error && call->isNamed && terminates && !saysNoError(*error) && !call->termination) {
        // The error of an accepted command may come before its answer.
        terminate(call, ControlInformation{std::nullopt, false, error, std::nullopt});
        return;
    }
    // What this call was accepted in spite of means the command that is being executed.
    if (error && !call->isNamed) {
        const auto running = std::ranges::find_if(m_calls, [&](const CallPointer &each) {
            return each != call && each->state == ControlCall::State::Accepted &&
                   !each->termination && (error->ctlNum == 0 || each->ctlNum == error->ctlNum);
        });
        if (running != m_calls.end() && !saysNoError(*error))
            terminate(*running, ControlInformation{std::nullopt, false, error, std::nullopt});
    }
    if (!call->isLeft) {
        call->wake.cancel();
        return;
    }
    ControlResult result;
    result.ok = !terminates;
    result.outcome = terminates ? ControlOutcome::Accepted : ControlOutcome::Done;
    if (terminates)
        result.message = say("%1: the device accepted the command late.", name());
    tellLate(call, std::move(result));
}

void ControlObject::terminate(const CallPointer &call, ControlInformation information)
{
    call->termination = std::move(information);
    if (call->isLeft)
        tellLate(call, ending(*call, name()));
    else
        call->wake.cancel();
}

void ControlObject::tellLate(const CallPointer &call, ControlResult result)
{
    const auto self = shared_from_this();
    const CallPointer kept = call;
    if (result.outcome != ControlOutcome::Accepted) {
        kept->state = ControlCall::State::Over;
        std::erase(m_calls, kept);
    }
    if (kept->component == "Oper" && m_lateHandler)
        m_lateHandler(kept->ctlNum.value_or(0), result);
}

asio::awaitable<void> ControlObject::perform(std::shared_ptr<ChangingClient> client,
                                             CallPointer call, mms::RequestService request)
{
    using Clock = asio::steady_timer::clock_type;
    const auto deadline = Clock::now() + m_client->options().callTimeout;
    auto exchanging = exchange(shared_from_this(), std::move(client), call, std::move(request));
    asio::co_spawn(m_client->strand(), std::move(exchanging), asio::detached);
    while (call->state == ControlCall::State::Waiting && !call->termination &&
           Clock::now() < deadline) {
        call->wake.expires_at(deadline);
        co_await call->wake.async_wait(asTuple);
    }
    if (call->state == ControlCall::State::Refused && !call->applError && m_client->isOpen()) {
        const auto end = Clock::now() + causePatience;
        while (!call->applError && m_client->isOpen() && Clock::now() < end) {
            call->wake.expires_at(end);
            co_await call->wake.async_wait(asTuple);
        }
    }
    if (call->state == ControlCall::State::Refused) {
        call->result = refusal(*call, name());
        call->state = ControlCall::State::Over;
    } else if (call->state == ControlCall::State::Waiting && !call->termination) {
        call->result.outcome = ControlOutcome::Unknown;
        call->result.message = say("%1: %2 got no answer within %3.", name(), call->component,
                                   secondsText(m_client->options().callTimeout));
    }
}

asio::awaitable<void> ControlObject::write(std::shared_ptr<ChangingClient> client, CallPointer call,
                                           const mms::TypeDescription &type,
                                           const ControlRequest &request)
{
    auto value = controlValue(type, request, m_scale);
    if (!value) {
        call->result.message = say("%1: %2.", name(), value.error().message);
        call->state = ControlCall::State::Over;
        co_return;
    }
    mms::WriteRequest service;
    service.variables = std::vector{component(call->component)};
    service.values.push_back(*std::move(value));
    co_await perform(std::move(client), call, std::move(service));
}

asio::awaitable<ControlResult> ControlObject::select(std::shared_ptr<ChangingClient> client,
                                                     ControlRequest request)
{
    const auto self = shared_from_this();
    if (m_model != Model::SelectEnhanced && m_model != Model::SelectNormal)
        co_return ControlResult{
            false, say("%1: its control model knows no selection.", name()), {}};
    const bool isRead = m_model == Model::SelectNormal;
    const CallPointer call = isRead ? begin("SBO", std::nullopt) : begin("SBOw", request.ctlNum);
    const Leaving leaving(*this, call);
    if (isRead) {
        mms::ReadRequest service;
        service.variables = std::vector{component(call->component)};
        co_await perform(std::move(client), call, std::move(service));
    } else {
        co_await write(std::move(client), call, m_selectType, request);
    }
    if (call->state != ControlCall::State::Accepted)
        co_return call->result;
    co_return ControlResult{true, {}, {}, ControlOutcome::Done};
}

asio::awaitable<ControlResult> ControlObject::operate(std::shared_ptr<ChangingClient> client,
                                                      ControlRequest request,
                                                      std::chrono::milliseconds terminationTimeout)
{
    using Clock = asio::steady_timer::clock_type;
    const auto self = shared_from_this();
    if (m_model == Model::StatusOnly)
        co_return ControlResult{
            false, say("%1: it shows its status and cannot be operated.", name()), {}};
    const CallPointer call = begin("Oper", request.ctlNum);
    const Leaving leaving(*this, call);
    co_await write(std::move(client), call, m_operType, request);
    if (call->state == ControlCall::State::Accepted && !isEnhanced(m_model)) {
        call->state = ControlCall::State::Over;
        co_return ControlResult{true, {}, {}, ControlOutcome::Done};
    }
    const auto patience = terminationTimeout + (request.operateTime ? until(*request.operateTime)
                                                                    : std::chrono::milliseconds(0));
    const auto deadline = Clock::now() + patience;
    while (call->state == ControlCall::State::Accepted && !call->termination &&
           m_client->isOpen() && Clock::now() < deadline) {
        call->wake.expires_at(deadline);
        co_await call->wake.async_wait(asTuple);
    }
    if (call->termination) {
        call->state = ControlCall::State::Over;
        co_return ending(*call, name());
    }
    if (call->state != ControlCall::State::Accepted)
        co_return call->result;
    ControlResult result;
    result.outcome = ControlOutcome::Accepted;
    if (!m_client->isOpen()) {
        result.message = say(
            "%1: the device accepted the command, but the association ended before the command: %2.",
            name(), m_client->closeReason());
    } else {
        result.message =
            say("%1: the device accepted the command, but has not told within %2 how it ended.",
                name(), secondsText(patience));
    }
    co_return result;
}

asio::awaitable<ControlResult> ControlObject::cancel(std::shared_ptr<ChangingClient> client,
                                                     ControlRequest request)
{
    const auto self = shared_from_this();
    if (m_cancelType.components.empty())
        co_return ControlResult{false, say("%1: a command of it cannot be cancelled.", name()), {}};
    request.synchrocheck = false;
    request.interlockCheck = false;
    // What it has no place for keeps nobody from stopping a command.
    if (!componentOf(m_cancelType, "Test"))
        request.test = false;
    if (!componentOf(m_cancelType, "operTm"))
        request.operateTime.reset();
    const CallPointer call = begin("Cancel", request.ctlNum);
    const Leaving leaving(*this, call);
    co_await write(std::move(client), call, m_cancelType, request);
    if (call->state != ControlCall::State::Accepted)
        co_return call->result;
    co_return ControlResult{true, {}, {}, ControlOutcome::Done};
}

bool ControlObject::handle(const mms::InformationReport &report)
{
    auto information = controlInformationFrom(report);
    if (!information)
        return false;
    if (information->terminated) {
        if (*information->terminated != m_object)
            return false;
        const CallPointer call = callTerminatedBy(*information, m_calls, m_operType);
        if (!call)
            return false;
        // The cause of another object is none of this one.
        if (information->applError) {
            const auto named = controlledNameFrom(information->applError->controlObject);
            if (named && named->object != name())
                information->applError.reset();
        }
        terminate(call, *std::move(information));
        return true;
    }
    if (!information->applError)
        return false;
    const CallPointer call = callMeantBy(*information->applError, m_calls, name());
    if (!call)
        return false;
    if (call->state == ControlCall::State::Accepted) {
        if (!saysNoError(*information->applError))
            terminate(call, *std::move(information));
        return true;
    }
    const auto named = controlledNameFrom(information->applError->controlObject);
    call->isNamed = named && named->service == call->component;
    call->applError = information->applError;
    call->wake.cancel();
    return true;
}

} // namespace acsi
