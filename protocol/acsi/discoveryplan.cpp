// SPDX-License-Identifier: Apache-2.0
#include "acsi/discoveryplan.h"

#include "acsi/functionalconstraint.h"

#include <algorithm>
#include <set>
#include <utility>

namespace acsi {

namespace {

using mms::CallFailure;
using mms::CallOutcome;
using mms::ObjectClass;
using mms::Scope;

constexpr char separator = '$';
/// Time-outs in a row, one call at a time, after which a device is taken for dead.
constexpr std::size_t tolerableSilences = 2;

/// The parts of @p item that @p names know, by the names of components. Logical nodes list
/// functional constraints in an order of their own, whatever the order of the names.
std::vector<std::string> partsOf(std::string_view item, const std::vector<std::string> &names)
{
    std::vector<std::string> parts;
    std::set<std::string, std::less<>> known;
    for (const std::string_view name : names) {
        if (name.size() <= item.size() + 1 || !name.starts_with(item)
            || name[item.size()] != separator)
            continue;
        const std::string_view rest = name.substr(item.size() + 1);
        const std::string_view part = rest.substr(0, rest.find(separator));
        if (known.emplace(part).second)
            parts.emplace_back(part);
    }
    if (item.find(separator) == std::string_view::npos) {
        std::ranges::stable_sort(parts, {}, [](const std::string &part) {
            const auto constraint = functionalConstraintFrom(part);
            return constraint ? static_cast<int>(*constraint) : 256;
        });
    }
    return parts;
}

bool isRefusal(const mms::RejectPdu &reject)
{
    return reject.rejected == mms::RejectedPdu::ConfirmedRequest
        && reject.code == mms::rejectcodes::requestUnrecognizedService;
}

/// The peer answers, but not the question.
bool isConfusion(const CallOutcome &outcome)
{
    if (const auto *failure = std::get_if<CallFailure>(&outcome)) {
        return failure->kind == CallFailure::Kind::TimedOut
            || failure->kind == CallFailure::Kind::Malformed;
    }
    if (const auto *reject = std::get_if<mms::RejectPdu>(&outcome))
        return !isRefusal(*reject);
    return std::holds_alternative<mms::ResponseService>(outcome);
}

bool endsAll(const CallOutcome &outcome)
{
    const auto *failure = std::get_if<CallFailure>(&outcome);
    return failure
        && (failure->kind == CallFailure::Kind::NotOpen || failure->kind == CallFailure::Kind::Lost
            || failure->kind == CallFailure::Kind::Cancelled);
}

/// Whether parts may be had of what is refused as a whole.
bool mayHaveParts(const CallOutcome &outcome)
{
    const auto *error = std::get_if<mms::ServiceError>(&outcome);
    return !error || error->errorClass != mms::ErrorClass::Access
        || (error->code != mms::serviceerrors::accessNonExistent
            && error->code != mms::serviceerrors::accessDenied
            && error->code != mms::serviceerrors::accessInvalidated);
}

/// Sentences end with a point of ours.
std::string whyNot(std::string text)
{
    if (text.empty())
        text = "The answer does not match the question";
    while (text.ends_with('.'))
        text.pop_back();
    return text;
}

} // namespace

DiscoveryPlan::DiscoveryPlan(std::size_t window)
    : m_window(std::max<std::size_t>(window, 1))
{
    addList(ObjectClass::Domain, Scope::Vmd);
    addList(ObjectClass::NamedVariableList, Scope::Association);
    Step identity;
    identity.kind = Kind::Identity;
    add(std::move(identity));
}

std::size_t DiscoveryPlan::waiting() const
{
    std::size_t result = m_first.size() + m_others.size();
    for (const Device &device : m_devices)
        result += device.tooLarge.size();
    return result;
}

bool DiscoveryPlan::finished() const
{
    return m_error || (m_asked.empty() && waiting() == 0);
}

/// Journals come last: nothing depends on them, and some devices do not expect the question.
std::deque<DiscoveryPlan::Step> &DiscoveryPlan::queueOf(const Step &step)
{
    const bool isFirst =
        step.kind == Kind::Names && m_lists[step.list].objectClass != ObjectClass::Journal;
    return isFirst ? m_first : m_others;
}

/// What most devices have not: they may reject the question instead of refusing it.
bool DiscoveryPlan::isOptional(const Step &step) const
{
    return step.kind == Kind::Identity
        || (step.kind == Kind::Names
            && (m_lists[step.list].objectClass == ObjectClass::Journal
                || m_lists[step.list].scope == Scope::Association));
}

void DiscoveryPlan::addList(ObjectClass objectClass, Scope scope, std::size_t device)
{
    std::string domain = scope == Scope::Domain ? m_server.devices[device].name : std::string();
    m_lists.push_back({NamePages(objectClass, scope, std::move(domain)), objectClass, scope,
                       device});
    Step step;
    step.kind = Kind::Names;
    step.list = m_lists.size() - 1;
    add(std::move(step));
}

std::optional<DiscoveryPlan::Request> DiscoveryPlan::next()
{
    if (m_error || m_asked.size() >= m_window)
        return std::nullopt;
    auto &queue = m_first.empty() ? m_others : m_first;
    if (queue.empty())
        return std::nullopt;
    Step step = std::move(queue.front());
    queue.pop_front();
    step.alone = m_window == 1;
    Request request{++m_lastStep, requestOf(step)};
    m_asked.emplace(request.step, std::move(step));
    return request;
}

mms::RequestService DiscoveryPlan::requestOf(const Step &step) const
{
    switch (step.kind) {
    case Kind::Identity:
        break;
    case Kind::Names:
        return m_lists[step.list].pages.request();
    case Kind::Type: {
        mms::GetVariableAccessAttributesRequest request;
        request.variable = step.object;
        return request;
    }
    case Kind::DataSetMembers: {
        mms::GetNamedVariableListAttributesRequest request;
        request.name = step.object;
        return request;
    }
    }
    return mms::IdentifyRequest();
}

void DiscoveryPlan::answered(std::size_t stepId, CallOutcome outcome)
{
    auto found = m_asked.extract(stepId);
    if (found.empty() || m_error)
        return;
    Step step = std::move(found.mapped());
    auto *response = std::get_if<mms::ResponseService>(&outcome);
    if (response && take(step, *response)) {
        ++m_done;
        m_silences = 0;
        return;
    }
    if (endsAll(outcome)) {
        m_error = mms::Error{mms::failureText(outcome), 0};
        return;
    }
    const bool isRejected = std::holds_alternative<mms::RejectPdu>(outcome);
    if (!step.alone && isConfusion(outcome) && !(isRejected && isOptional(step))) {
        m_window = 1;
        queueOf(step).push_front(std::move(step));
        return;
    }
    ++m_done;
    const auto *failure = std::get_if<CallFailure>(&outcome);
    if (failure && failure->kind == CallFailure::Kind::TimedOut)
        silent(step);
    else
        m_silences = 0;
    failed(step, outcome);
}

/// Asked alone, and no answer.
void DiscoveryPlan::silent(const Step &step)
{
    const auto isJournals = [this](const Step &each) {
        return each.kind == Kind::Names
            && m_lists[each.list].objectClass == ObjectClass::Journal;
    };
    if (isJournals(step))
        m_done += std::erase_if(m_others, isJournals);
    else if (++m_silences >= tolerableSilences)
        m_error = mms::Error{"The device does not answer any more.", 0};
}

bool DiscoveryPlan::take(const Step &step, mms::ResponseService &response)
{
    switch (step.kind) {
    case Kind::Identity:
        if (auto *identity = std::get_if<mms::IdentifyResponse>(&response)) {
            m_server.identity = std::move(*identity);
            return true;
        }
        break;
    case Kind::Names:
        if (auto *page = std::get_if<mms::GetNameListResponse>(&response)) {
            NamePages &pages = m_lists[step.list].pages;
            const mms::Result<void> taken = pages.take(std::move(*page));
            takeNames(step);
            if (!taken)
                refuse(step, whyNot(taken.error().message));
            else if (pages.complete())
                namesEnded(step.list);
            else
                add(step);
            return true;
        }
        break;
    case Kind::Type:
        if (auto *type = std::get_if<mms::GetVariableAccessAttributesResponse>(&response)) {
            takeType(step, std::move(type->type));
            return true;
        }
        break;
    case Kind::DataSetMembers:
        if (auto *list = std::get_if<mms::GetNamedVariableListAttributesResponse>(&response)) {
            takeMembers(step, std::move(*list));
            return true;
        }
        break;
    }
    return false;
}

void DiscoveryPlan::takeNames(const Step &step)
{
    // New lists may be added below.
    const NameList &list = m_lists[step.list];
    for (const std::string &name : list.pages.newNames()) {
        if (list.objectClass == ObjectClass::Domain) {
            const std::size_t device = m_server.devices.size();
            m_server.devices.emplace_back().name = name;
            m_devices.emplace_back().variables = m_lists.size();
            addList(ObjectClass::NamedVariable, Scope::Domain, device);
            addList(ObjectClass::NamedVariableList, Scope::Domain, device);
            addList(ObjectClass::Journal, Scope::Domain, device);
        } else if (list.objectClass == ObjectClass::NamedVariable) {
            takeNode(list.device, std::string_view(name).substr(0, name.find(separator)));
        } else if (list.objectClass == ObjectClass::NamedVariableList) {
            Step members;
            members.kind = Kind::DataSetMembers;
            members.device = list.device;
            members.object = list.scope == Scope::Association
                ? mms::ObjectName::ofAssociation(name)
                : mms::ObjectName::inDomain(m_server.devices[list.device].name, name);
            add(std::move(members));
        } else {
            m_server.devices[list.device].journals.push_back(name);
        }
    }
}

void DiscoveryPlan::takeNode(std::size_t device, std::string_view item)
{
    auto &nodes = m_server.devices[device].nodes;
    auto &known = m_devices[device].nodes;
    if (known.contains(item))
        return;
    known.emplace(item, nodes.size());
    Step step;
    step.kind = Kind::Type;
    step.device = device;
    step.node = nodes.size();
    step.object = mms::ObjectName::inDomain(m_server.devices[device].name, item);
    nodes.push_back({std::string(item), {}, {}});
    add(std::move(step));
}

void DiscoveryPlan::namesEnded(std::size_t list)
{
    if (m_lists[list].objectClass != ObjectClass::NamedVariable)
        return;
    Device &device = m_devices[m_lists[list].device];
    device.namesKnown = true;
    for (const auto &[step, why] : std::exchange(device.tooLarge, {})) {
        if (!descend(step))
            refuse(step, why);
    }
}

void DiscoveryPlan::takeType(const Step &step, mms::TypeDescription type)
{
    const bool isNode = step.object.item.find(separator) == std::string::npos;
    if (isNode && type.kind != mms::TypeDescription::Kind::Structure)
        refuse(step, "It is not a logical node");
    else if (auto *place = typeOf(step))
        *place = std::move(type);
}

void DiscoveryPlan::takeMembers(const Step &step,
                                mms::GetNamedVariableListAttributesResponse answer)
{
    DataSetDescription description{step.object, answer.deletable, std::move(answer.members)};
    if (step.object.scope == Scope::Association)
        m_server.associationDataSets.push_back(std::move(description));
    else
        m_server.devices[step.device].dataSets.push_back(std::move(description));
}

void DiscoveryPlan::failed(const Step &step, const CallOutcome &outcome)
{
    const std::string why = whyNot(mms::failureText(outcome));
    if (step.kind == Kind::Type && mayHaveParts(outcome)) {
        Device &device = m_devices[step.device];
        if (!device.namesKnown) {
            device.tooLarge.emplace_back(step, why);
            return;
        }
        if (descend(step))
            return;
    }
    refuse(step, why);
}

void DiscoveryPlan::refuse(const Step &step, const std::string &why)
{
    if (isOptional(step))
        return;
    if (step.kind == Kind::Names) {
        namesEnded(step.list);
        if (m_lists[step.list].objectClass == ObjectClass::Domain && m_server.devices.empty()) {
            m_error = mms::Error{"The device does not list its logical devices: " + why + ".", 0};
            return;
        }
    }
    if (step.kind == Kind::Type)
        m_devices[step.device].refusedParts.push_back(step);
    m_server.refused.push_back(nameOf(step) + ": " + why + ".");
}

/// Asks for the parts of a type instead of the whole; false when it has none.
bool DiscoveryPlan::descend(const Step &step)
{
    const auto &names = m_lists[m_devices[step.device].variables].pages.names();
    const std::vector<std::string> parts = partsOf(step.object.item, names);
    mms::TypeDescription *type = typeOf(step);
    if (parts.empty() || !type)
        return false;
    *type = {};
    // The order of the names says nothing about the order in the structure.
    m_server.devices[step.device].nodes[step.node].inParts.push_back(step.object.item);
    for (const std::string &part : parts) {
        type->components.push_back({part, {}});
        Step below = step;
        below.object.item += separator + part;
        add(std::move(below));
    }
    return true;
}

/// The place of a type or of a part of it in the logical node.
mms::TypeDescription *DiscoveryPlan::typeOf(const Step &step)
{
    mms::TypeDescription *type = &m_server.devices[step.device].nodes[step.node].type;
    std::string_view rest = step.object.item;
    for (std::size_t end = rest.find(separator); end != rest.npos; end = rest.find(separator)) {
        rest.remove_prefix(end + 1);
        const std::string_view part = rest.substr(0, rest.find(separator));
        const auto found =
            std::ranges::find(type->components, part, &mms::TypeDescription::Component::name);
        if (found == type->components.end())
            return nullptr;
        type = &found->type;
    }
    return type;
}

std::string DiscoveryPlan::nameOf(const Step &step) const
{
    if (step.kind != Kind::Names)
        return mms::toText(step.object);
    const NameList &list = m_lists[step.list];
    std::string what = list.objectClass == ObjectClass::NamedVariable ? "The names of the data"
        : list.objectClass == ObjectClass::NamedVariableList          ? "The names of the data sets"
                                                                      : "The names";
    if (list.scope == Scope::Domain)
        what += " of " + m_server.devices[list.device].name;
    return what;
}

mms::Result<ServerDescription> DiscoveryPlan::take()
{
    if (m_error)
        return *m_error;
    for (const Device &device : m_devices) {
        for (const Step &step : device.refusedParts)
            removePart(step);
    }
    // Answers come in any order.
    const auto sort = [](std::vector<DataSetDescription> &dataSets) {
        std::ranges::sort(dataSets, {}, [](const DataSetDescription &each) -> const std::string & {
            return each.name.item;
        });
    };
    sort(m_server.associationDataSets);
    for (DeviceDescription &device : m_server.devices) {
        sort(device.dataSets);
        for (NodeDescription &node : device.nodes)
            std::ranges::sort(node.inParts);
    }
    return std::move(m_server);
}

/// Takes the empty place away that a refused part has in its type.
void DiscoveryPlan::removePart(const Step &step)
{
    const std::size_t last = step.object.item.rfind(separator);
    if (last == std::string::npos)
        return;
    Step above = step;
    above.object.item.resize(last);
    if (auto *type = typeOf(above)) {
        std::erase_if(type->components, [&step, last](const auto &component) {
            return step.object.item.compare(last + 1, std::string::npos, component.name) == 0;
        });
    }
}

} // namespace acsi
