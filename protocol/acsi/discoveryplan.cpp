// SPDX-License-Identifier: Apache-2.0
#include "acsi/discoveryplan.h"

#include "acsi/discoveryanswer.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace acsi {

using wording::say;

namespace {

using mms::CallFailure;
using mms::CallOutcome;
using mms::ObjectClass;
using mms::Scope;

constexpr char separator = '$';
/// Time-outs in a row, one call at a time, after which a device is taken for dead.
constexpr std::size_t tolerableSilences = 2;

/// 1000000 as "1,000,000".
std::string grouped(std::uint64_t number)
{
    std::string text = std::to_string(number);
    for (std::size_t i = text.size(); i > 3;) {
        i -= 3;
        text.insert(i, 1, ',');
    }
    return text;
}

} // namespace

DiscoveryPlan::DiscoveryPlan(Empty, std::size_t window, DiscoveryLimits limits)
    : m_window(std::max<std::size_t>(window, 1))
    , m_limits(limits)
{
}

DiscoveryPlan DiscoveryPlan::ofDataSets(std::size_t window, const std::vector<std::string> &devices,
                                        DiscoveryLimits limits)
{
    DiscoveryPlan plan(Empty(), window, limits);
    plan.addList(ObjectClass::NamedVariableList, Scope::Association);
    for (const std::string &name : devices) {
        const std::size_t device = plan.m_server.devices.size();
        plan.m_server.devices.emplace_back().name = name;
        plan.m_devices.emplace_back();
        plan.addList(ObjectClass::NamedVariableList, Scope::Domain, device);
    }
    return plan;
}

DiscoveryPlan::DiscoveryPlan(std::size_t window, DiscoveryLimits limits,
                             std::optional<mms::IdentifyResponse> identity)
    : DiscoveryPlan(Empty(), window, limits)
{
    addList(ObjectClass::Domain, Scope::Vmd);
    addList(ObjectClass::NamedVariableList, Scope::Association);
    if (identity) {
        m_server.identity = std::move(*identity);
        return;
    }
    Step step;
    step.kind = Kind::Identity;
    add(std::move(step));
}

void DiscoveryPlan::add(Step step)
{
    if (!m_stopped)
        queueOf(step).push_back(std::move(step));
    else if (step.kind == Kind::Type)
        m_devices[step.device].refusedParts.push_back(std::move(step));
}

void DiscoveryPlan::leaveOut(mms::Text sentence)
{
    if (std::ranges::find(m_server.leftOut, sentence) == m_server.leftOut.end())
        m_server.leftOut.push_back(std::move(sentence));
}

/// Nothing more is asked; what is on the way is still taken.
void DiscoveryPlan::stop(mms::Text sentence)
{
    if (std::exchange(m_stopped, true))
        return;
    leaveOut(std::move(sentence));
    const auto giveUp = [this](const Step &step) {
        if (step.kind == Kind::Type)
            m_devices[step.device].refusedParts.push_back(step);
    };
    std::ranges::for_each(m_first, giveUp);
    std::ranges::for_each(m_others, giveUp);
    m_first.clear();
    m_others.clear();
    for (Device &device : m_devices) {
        for (const auto &each : std::exchange(device.tooLarge, {}))
            giveUp(each.first);
    }
}

void DiscoveryPlan::timeIsOver()
{
    stop(say(
        "The device took longer than %1 minutes to describe itself; what it had not told by then is left out.",
        m_limits.time.count() / 60));
    for (const auto &[number, step] : std::exchange(m_asked, {})) {
        if (step.kind == Kind::Type)
            m_devices[step.device].refusedParts.push_back(step);
    }
}

std::size_t DiscoveryPlan::waiting() const
{
    std::size_t result = m_first.size() + m_others.size();
    for (const Device &device : m_devices)
        result += device.tooLarge.size();
    return result;
}

std::vector<std::string> DiscoveryPlan::deviceNames() const
{
    std::vector<std::string> names;
    for (const DeviceDescription &device : m_server.devices)
        names.push_back(device.name);
    return names;
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
    return step.kind == Kind::Identity ||
           (step.kind == Kind::Names && (m_lists[step.list].objectClass == ObjectClass::Journal ||
                                         m_lists[step.list].scope == Scope::Association));
}

void DiscoveryPlan::addList(ObjectClass objectClass, Scope scope, std::size_t device)
{
    std::string domain = scope == Scope::Domain ? m_server.devices[device].name : std::string();
    m_lists.push_back(
        {NamePages(objectClass, scope, std::move(domain)), objectClass, scope, device});
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

ReadingRequest DiscoveryPlan::requestOf(const Step &step) const
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
    if (endsDiscovery(outcome)) {
        m_error = mms::Error{mms::failureText(outcome), 0};
        return;
    }
    const bool isRejected = std::holds_alternative<mms::RejectPdu>(outcome);
    if (!m_stopped && !step.alone && isConfusion(outcome) && !(isRejected && isOptional(step))) {
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
        return each.kind == Kind::Names && m_lists[each.list].objectClass == ObjectClass::Journal;
    };
    if (isJournals(step))
        m_done += std::erase_if(m_others, isJournals);
    else if (++m_silences >= tolerableSilences)
        m_error = mms::Error{say("The device does not answer any more."), 0};
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
            const mms::Result<void> taken = m_lists[step.list].pages.take(*page);
            takeNames(step);
            const NamePages &pages = m_lists[step.list].pages;
            if (!taken)
                refuse(step, taken.error().message);
            else if (pages.complete() || m_stopped ||
                     (m_hasAllDevices && m_lists[step.list].objectClass == ObjectClass::Domain))
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
    for (std::size_t i = list.pages.firstNew(); i < list.pages.count(); ++i) {
        const std::string_view name = list.pages.name(i);
        m_octets += name.size();
        if (++m_names > m_limits.names || m_octets > m_limits.octets) {
            stop(say(
                "The device has more names than the %1 names and %2 octets that are taken; the others are left out.",
                grouped(m_limits.names), grouped(m_limits.octets)));
            return;
        }
        if (list.objectClass == ObjectClass::Domain) {
            if (m_devices.size() >= m_limits.devices) {
                m_hasAllDevices = true;
                leaveOut(
                    say("The device has more than %1 logical devices; the others are left out.",
                        grouped(m_limits.devices)));
                return;
            }
            const std::size_t device = m_server.devices.size();
            m_server.devices.emplace_back().name = name;
            m_devices.emplace_back().variables = m_lists.size();
            addList(ObjectClass::NamedVariable, Scope::Domain, device);
            addList(ObjectClass::NamedVariableList, Scope::Domain, device);
            addList(ObjectClass::Journal, Scope::Domain, device);
        } else if (list.objectClass == ObjectClass::NamedVariable) {
            takeNode(list.device, name.substr(0, name.find(separator)));
        } else if (list.objectClass == ObjectClass::NamedVariableList) {
            Step members;
            members.kind = Kind::DataSetMembers;
            members.device = list.device;
            members.object =
                list.scope == Scope::Association
                    ? mms::ObjectName::ofAssociation(name)
                    : mms::ObjectName::inDomain(m_server.devices[list.device].name, name);
            add(std::move(members));
        } else {
            m_server.devices[list.device].journals.emplace_back(name);
        }
    }
}

void DiscoveryPlan::takeNode(std::size_t device, std::string_view item)
{
    auto &nodes = m_server.devices[device].nodes;
    auto &known = m_devices[device].nodes;
    // Names of one node mostly stand together.
    if ((!nodes.empty() && nodes.back().name == item) || known.contains(item))
        return;
    if (m_nodes >= m_limits.nodes) {
        leaveOut(say("The device has more than %1 logical nodes; the others are left out.",
                     grouped(m_limits.nodes)));
        return;
    }
    ++m_nodes;
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
    if (m_lists[list].objectClass == ObjectClass::Domain)
        m_devicesKnown = true;
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
    NodeDescription &node = m_server.devices[step.device].nodes[step.node];
    const bool isNode = step.object.item.find(separator) == std::string::npos;
    if (isNode && type.kind != mms::TypeDescription::Kind::Structure) {
        refuse(step, say("It is not a logical node."));
        return;
    }
    if (!isNode) {
        mms::TypeDescription *const place = typeOf(step);
        if (!place || !reduce(step.object, type, node.inParts)) {
            m_devices[step.device].refusedParts.push_back(step);
            return;
        }
        if (addUp(step, measureOf(type)))
            *place = std::move(type);
        return;
    }
    SharedType whole(std::move(type));
    const auto known = m_types.find(whole);
    if (known != m_types.end()) {
        if (addUp(step, known->second))
            node.type = known->first;
        return;
    }
    reduce(step.object, whole.edit(), node.inParts);
    const TypeMeasure measure = measureOf(*whole);
    if (!addUp(step, measure))
        return;
    // What had to be changed is changed again for the next node, which is told of as well.
    node.type =
        node.inParts.empty() ? m_types.emplace(std::move(whole), measure).first->first : whole;
}

/// Takes out of the type what is beyond the limits; false when that is the whole of it.
bool DiscoveryPlan::reduce(const mms::ObjectName &variable, mms::TypeDescription &type,
                           std::vector<std::string> &inParts)
{
    TypeReduction reduction = reduced(type, variable, m_limits);
    for (mms::Text &sentence : reduction.leftOut)
        leaveOut(std::move(sentence));
    std::ranges::move(reduction.inParts, std::back_inserter(inParts));
    return reduction.isTaken;
}

/// Adds to what there is already; false when that is more than is taken.
bool DiscoveryPlan::addUp(const Step &step, const TypeMeasure &measure)
{
    m_octets += measure.octets;
    m_values += measure.values;
    if (m_octets <= m_limits.octets && m_values <= m_limits.values)
        return true;
    m_devices[step.device].refusedParts.push_back(step);
    stop(say(
        "The device describes more than the %1 values in %2 octets that are taken; the rest is left out.",
        grouped(m_limits.values), grouped(m_limits.octets)));
    return false;
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
    const mms::Text why = whyUndescribed(outcome);
    if (step.kind == Kind::Type && mayHaveParts(outcome)) {
        Device &device = m_devices[step.device];
        if (!device.namesKnown && !m_stopped) {
            device.tooLarge.emplace_back(step, why);
            return;
        }
        if (descend(step))
            return;
    }
    refuse(step, why);
}

void DiscoveryPlan::refuse(const Step &step, const mms::Text &why)
{
    if (isOptional(step))
        return;
    if (step.kind == Kind::Names) {
        namesEnded(step.list);
        if (m_lists[step.list].objectClass == ObjectClass::Domain && m_server.devices.empty()) {
            m_error = mms::Error{say("The device does not list its logical devices: %1.", why), 0};
            return;
        }
    }
    if (step.kind == Kind::Type)
        m_devices[step.device].refusedParts.push_back(step);
    m_server.refused.push_back(say("%1: %2.", nameOf(step), why));
}

/// Asks for the parts of a type instead of the whole; false when it has none.
bool DiscoveryPlan::descend(const Step &step)
{
    const auto depth = static_cast<std::size_t>(std::ranges::count(step.object.item, separator));
    if (m_stopped || depth >= m_limits.depth)
        return false;
    Device &device = m_devices[step.device];
    const std::vector<std::string> parts =
        device.parts.below(m_lists[device.variables].pages, step.object.item);
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
    mms::TypeDescription *type = &m_server.devices[step.device].nodes[step.node].type.edit();
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

mms::Text DiscoveryPlan::nameOf(const Step &step) const
{
    if (step.kind != Kind::Names)
        return mms::verbatim(mms::toText(step.object));
    const NameList &list = m_lists[step.list];
    const bool isData = list.objectClass == ObjectClass::NamedVariable;
    const bool isSets = list.objectClass == ObjectClass::NamedVariableList;
    if (list.scope == Scope::Domain) {
        const std::string &name = m_server.devices[list.device].name;
        return isData   ? say("The names of the data of %1", name)
               : isSets ? say("The names of the data sets of %1", name)
                        : say("The names of %1", name);
    }
    return isData   ? say("The names of the data")
           : isSets ? say("The names of the data sets")
                    : say("The names");
}

mms::Result<ServerDescription> DiscoveryPlan::take()
{
    if (m_error)
        return *m_error;
    for (Device &device : m_devices)
        removeParts(std::move(device.refusedParts));
    // Answers come in any order.
    const auto sort = [](std::vector<DataSetDescription> &dataSets) {
        std::ranges::sort(dataSets, {}, [](const DataSetDescription &each) -> const std::string & {
            return each.name.item;
        });
    };
    sort(m_server.associationDataSets);
    for (DeviceDescription &device : m_server.devices) {
        sort(device.dataSets);
        for (NodeDescription &node : device.nodes) {
            std::ranges::sort(node.inParts);
            node.inParts.erase(std::unique(node.inParts.begin(), node.inParts.end()),
                               node.inParts.end());
            if (!node.inParts.empty())
                node.type = m_types.emplace(std::move(node.type), TypeMeasure()).first->first;
        }
    }
    return std::move(m_server);
}

/// Takes the empty places away that refused parts have in their types.
void DiscoveryPlan::removeParts(std::vector<Step> steps)
{
    struct Holes
    {
        Step above;
        std::set<std::string, std::less<>> names;
    };
    std::map<std::pair<std::size_t, std::string>, Holes> all;
    for (Step &step : steps) {
        const std::size_t last = step.object.item.rfind(separator);
        if (last == std::string::npos)
            continue;
        std::string name = step.object.item.substr(last + 1);
        step.object.item.resize(last);
        Holes &holes = all[{step.node, step.object.item}];
        holes.names.insert(std::move(name));
        holes.above = std::move(step);
    }
    for (const auto &[place, holes] : all) {
        if (auto *type = typeOf(holes.above)) {
            std::erase_if(type->components, [&names = holes.names](const auto &component) {
                return names.contains(component.name);
            });
        }
    }
}

} // namespace acsi
