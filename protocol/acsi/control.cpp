// SPDX-License-Identifier: Apache-2.0
#include "acsi/control.h"

#include "acsi/typedvalue.h"

#include <asio/experimental/as_tuple.hpp>
#include <asio/steady_timer.hpp>
#include <asio/use_awaitable.hpp>

#include <algorithm>
#include <limits>
#include <utility>

namespace acsi {

namespace {

using Model = ControlModel;

constexpr auto asTuple = asio::experimental::as_tuple(asio::use_awaitable);

bool isEnhanced(Model model)
{
    return model == Model::DirectEnhanced || model == Model::SelectEnhanced;
}

std::string reasonOf(const LastApplError &error)
{
    std::string text = additionalCauseText(error.addCause);
    if (error.error > 1)
        text += " (" + controlErrorText(error.error) + ')';
    return text + '.';
}

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

std::string secondsText(std::chrono::milliseconds time)
{
    const auto tenths = time.count() / 100;
    return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " s";
}

} // namespace

/// A service on the way, or a command whose termination is awaited.
struct ControlObject::Call
{
    Call(ControlObject &owner, std::string wanted, std::optional<std::uint8_t> number)
        : object(owner)
        , component(std::move(wanted))
        , ctlNum(number)
        , wake(owner.m_client->strand(), asio::steady_timer::time_point::max())
    {
        object.m_calls.push_back(this);
    }
    ~Call()
    {
        std::erase(object.m_calls, this);
        object.m_client->remove(endHandler);
    }
    Call(const Call &) = delete;
    Call &operator=(const Call &) = delete;

    ControlObject &object;
    std::string component;
    std::optional<std::uint8_t> ctlNum;
    asio::steady_timer wake;
    std::optional<ControlInformation> termination;
    ControlResult result;
    std::optional<LastApplError> applError;
    Client::Registration endHandler = 0;
    bool answered = false;
};

asio::awaitable<mms::Result<std::shared_ptr<ControlObject>>>
ControlObject::open(std::shared_ptr<Client> client, Reference object)
{
    object.constraint = FunctionalConstraint::CO;
    const bool hasElement = std::ranges::any_of(
        object.path, [](const PathStep &step) { return step.element.has_value(); });
    if (object.node.empty() || object.path.empty() || hasElement)
        co_return mms::Error{toText(object) + " is not the name of a data object that can be "
                                              "controlled.",
                             0};
    auto control = std::make_shared<ControlObject>(Private(), client, std::move(object));
    if (auto result = co_await control->readModel(); !result)
        co_return result.error();
    if (control->m_model != Model::StatusOnly) {
        if (auto result = co_await control->readTypes(); !result)
            co_return result.error();
    }
    co_return control;
}

ControlObject::ControlObject(Private, std::shared_ptr<Client> client, Reference object)
    : m_client(std::move(client))
    , m_object(std::move(object))
{
    m_informationHandler = m_client->addInformationHandler(
        [this](const mms::InformationReport &report) { return handle(report); });
}

ControlObject::~ControlObject()
{
    m_client->remove(m_informationHandler);
}

asio::awaitable<mms::Result<void>> ControlObject::readModel()
{
    std::vector<mms::VariableAccess> variables;
    for (const char *attribute : {"ctlModel", "sboTimeout", "operTimeout"}) {
        Reference reference = m_object;
        reference.constraint = FunctionalConstraint::CF;
        reference.path.push_back({attribute, {}});
        variables.push_back(accessOf(reference));
    }
    const auto results = co_await m_client->read(std::move(variables));
    if (!results)
        co_return mms::Error{
            "The control model of " + name() + " cannot be read: " + results.error().message, 0};
    const mms::AccessResult &model = results->front();
    if (!model.ok())
        co_return mms::Error{"The control model of " + name() +
                                 " cannot be read: " + mms::describe(model.error()),
                             0};
    const auto number = model.data().toUnsigned();
    if (!number || *number > static_cast<std::uint64_t>(Model::SelectEnhanced))
        co_return mms::Error{"The control model of " + name() + " is " + mms::toText(model.data()) +
                                 ", which is none.",
                             0};
    m_model = static_cast<Model>(*number);
    m_selectTimeout = millisecondsFrom((*results)[1]);
    m_operateTimeout = millisecondsFrom((*results)[2]);
    co_return mms::Result<void>();
}

asio::awaitable<mms::Result<void>> ControlObject::readTypes()
{
    const auto type =
        co_await m_client->type(mms::ObjectName::inDomain(m_object.device, itemText(m_object)));
    if (!type)
        co_return mms::Error{"The type of " + name() + " cannot be read: " + type.error().message,
                             0};
    const auto part = [&type](std::string_view component) {
        const mms::TypeDescription *found = componentOf(*type, component);
        return found ? *found : mms::TypeDescription();
    };
    m_operType = part("Oper");
    m_selectType = part("SBOw");
    m_cancelType = part("Cancel");
    co_return mms::Result<void>();
}

ControlResult ControlObject::refusal(const Call &call, const std::string &reason) const
{
    ControlResult result;
    result.applError = call.applError;
    result.message = name() + ": the device refuses " + call.component + ": " +
                     (call.applError ? reasonOf(*call.applError) : reason);
    return result;
}

asio::awaitable<void> ControlObject::writeControl(Call &call, const mms::TypeDescription &type,
                                                  const ControlRequest &request)
{
    const auto value = controlValue(type, request);
    if (!value) {
        call.result.message = name() + ": " + value.error().message;
        co_return;
    }
    Reference reference = m_object;
    reference.path.push_back({call.component, {}});
    std::vector<mms::VariableAccess> variables;
    variables.push_back(accessOf(reference));
    std::vector<mms::Data> values;
    values.push_back(*value);
    const auto results = co_await m_client->write(std::move(variables), std::move(values));
    call.answered = true;
    if (!results)
        call.result.message =
            name() + ": " + call.component + " got no answer: " + results.error().message;
    else if (const auto &error = results->front())
        call.result = refusal(call, mms::describe(*error));
    else
        call.result.ok = true;
}

asio::awaitable<ControlResult> ControlObject::select(ControlRequest request)
{
    const auto self = shared_from_this();
    if (m_model == Model::SelectEnhanced) {
        Call call(*this, "SBOw", request.ctlNum);
        co_await writeControl(call, m_selectType, request);
        co_return call.result;
    }
    if (m_model != Model::SelectNormal)
        co_return ControlResult{false, name() + ": its control model knows no selection.", {}};
    Call call(*this, "SBO", std::nullopt);
    Reference reference = m_object;
    reference.path.push_back({call.component, {}});
    const auto answer = co_await m_client->readOne(accessOf(reference));
    if (!answer)
        co_return refusal(call, answer.error().message);
    if (answer->text().empty())
        co_return refusal(call, "it gives no reason; another client may have selected the object.");
    co_return ControlResult{true, {}, {}};
}

asio::awaitable<ControlResult> ControlObject::operate(ControlRequest request,
                                                      std::chrono::milliseconds terminationTimeout)
{
    const auto self = shared_from_this();
    if (m_model == Model::StatusOnly)
        co_return ControlResult{
            false, name() + ": it shows its status and cannot be operated.", {}};
    Call call(*this, "Oper", request.ctlNum);
    co_await writeControl(call, m_operType, request);
    if (!call.result || !isEnhanced(m_model))
        co_return call.result;
    // The error of an accepted command may come before its answer has been looked at.
    if (call.applError && !call.termination)
        call.termination = ControlInformation{std::nullopt, false, call.applError, std::nullopt};
    call.endHandler = m_client->addEndHandler([&call](const std::string &) { call.wake.cancel(); });
    const auto patience = terminationTimeout + (request.operateTime ? until(*request.operateTime)
                                                                    : std::chrono::milliseconds(0));
    const auto deadline = asio::steady_timer::clock_type::now() + patience;
    while (!call.termination && m_client->isOpen() &&
           asio::steady_timer::clock_type::now() < deadline) {
        call.wake.expires_at(deadline);
        co_await call.wake.async_wait(asTuple);
    }
    ControlResult result;
    if (!call.termination) {
        result.message = name() + ": the device accepted the command, but ";
        if (!m_client->isOpen())
            result.message +=
                "the association ended before the command: " + m_client->closeReason();
        else
            result.message += "has not told within " + secondsText(patience) + " how it ended.";
        co_return result;
    }
    result.ok = call.termination->positive;
    result.applError = call.termination->applError;
    if (!result.ok)
        result.message = name() + ": the command ended without success: " +
                         (result.applError ? reasonOf(*result.applError)
                                           : std::string("the device does not say why."));
    co_return result;
}

asio::awaitable<ControlResult> ControlObject::cancel(ControlRequest request)
{
    const auto self = shared_from_this();
    if (m_model == Model::StatusOnly || m_cancelType.components.empty())
        co_return ControlResult{false, name() + ": a command of it cannot be cancelled.", {}};
    Call call(*this, "Cancel", request.ctlNum);
    co_await writeControl(call, m_cancelType, request);
    co_return call.result;
}

bool ControlObject::isMine(const LastApplError &error, const Call &call) const
{
    if (call.ctlNum && *call.ctlNum != error.ctlNum)
        return false;
    const std::string object = toText(m_object);
    const std::string_view given = error.controlObject;
    if (!given.starts_with(object))
        return false;
    const std::string_view rest = given.substr(object.size());
    return rest.empty() || rest == '$' + call.component;
}

bool ControlObject::handle(const mms::InformationReport &report)
{
    const auto information = controlInformationFrom(report);
    if (!information)
        return false;
    if (information->terminated) {
        if (*information->terminated != m_object)
            return false;
        for (Call *call : m_calls) {
            if (call->component != "Oper" || call->termination)
                continue;
            const auto request = information->oper
                                     ? controlRequestFrom(m_operType, *information->oper)
                                     : mms::Error{};
            if (request.ok() && request->ctlNum != call->ctlNum)
                continue;
            call->termination = information;
            call->wake.cancel();
            return true;
        }
        return false;
    }
    if (!information->applError)
        return false;
    const auto found = std::ranges::find_if(m_calls, [&](const Call *call) {
        return !call->termination && isMine(*information->applError, *call);
    });
    if (found == m_calls.end())
        return false;
    Call &call = **found;
    if (call.answered) {
        call.termination = information;
        call.wake.cancel();
    } else {
        call.applError = information->applError;
    }
    return true;
}

} // namespace acsi
