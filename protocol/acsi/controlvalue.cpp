// SPDX-License-Identifier: Apache-2.0
#include "acsi/control.h"

#include "acsi/typedvalue.h"
#include "mms/datatext.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace acsi {

using wording::say;

namespace {

using mms::Data;
using mms::TypeDescription;

constexpr std::size_t maxIdentification = 64;
constexpr std::string_view lastApplErrorName = "LastApplError";
/// The additional cause that is none.
constexpr std::int32_t noCause = 25;

mms::Error named(std::string_view component, const mms::Error &error)
{
    return {say("%1: %2.", component, error.message), 0};
}

mms::Result<Data> originValue(const TypeDescription &type, const Originator &originator)
{
    if (originator.identification.size() > maxIdentification)
        return mms::Error{
            say("The originator identification has %1 octets; at most %2 are allowed.",
                originator.identification.size(), maxIdentification),
            0};
    if (type.kind != TypeDescription::Kind::Structure)
        return mms::Error{say("The device describes the originator as %1.", mms::toText(type)), 0};
    std::vector<Data> members;
    for (const TypeDescription::Component &component : type.components) {
        Data value;
        if (component.name == "orCat")
            value = Data::integer(originator.category);
        else if (component.name == "orIdent")
            value = Data::octetString(originator.identification);
        else
            return mms::Error{say("The device wants an unknown part %1 of the originator.",
                                  mms::quoted(component.name)),
                              0};
        auto member = valueOfType(component.type, value);
        if (!member)
            return named(component.name, member.error());
        members.push_back(*std::move(member));
    }
    return Data::structure(std::move(members));
}

/// A number as a set point of i and f: i is what the scale makes of it.
mms::Result<Data> setPointValue(const TypeDescription &type, const Data &value,
                                const std::optional<AnalogueScale> &scale)
{
    auto real = value.toDouble();
    if (const auto whole = value.toInteger(); whole && !real)
        real = static_cast<double>(*whole);
    if (!real)
        return valueOfType(type, value);
    if (!scale && std::trunc(*real) != *real)
        return mms::Error{
            say("The device wants %1 also as a whole number, but does not say by which scale (sVC).",
                mms::toText(value)),
            0};
    const double integer = scale ? std::round((*real - scale->offset) / scale->factor) : *real;
    std::vector<Data> members;
    for (const TypeDescription::Component &component : type.components) {
        const bool isInteger = component.name == "i";
        auto member =
            valueOfType(component.type, isInteger ? Data::float64(integer) : Data::float64(*real));
        if (!member)
            return named(component.name, member.error());
        members.push_back(*std::move(member));
    }
    return Data::structure(std::move(members));
}

bool isSetPoint(const TypeDescription &type)
{
    const TypeDescription *integer = componentOf(type, "i");
    const TypeDescription *real = componentOf(type, "f");
    return type.components.size() == 2 && integer && real &&
           integer->kind == TypeDescription::Kind::Integer &&
           real->kind == TypeDescription::Kind::FloatingPoint;
}

mms::Result<Data> componentValue(const TypeDescription::Component &component,
                                 const ControlRequest &request,
                                 const std::optional<AnalogueScale> &scale)
{
    const std::string &name = component.name;
    Data value;
    if (name == "ctlVal" && isSetPoint(component.type))
        return setPointValue(component.type, request.value, scale);
    if (name == "ctlVal")
        value = request.value;
    else if (name == "operTm")
        value = Data::utcTime(request.operateTime.value_or(mms::UtcTime{}));
    else if (name == "origin")
        return originValue(component.type, request.originator);
    else if (name == "ctlNum")
        value = Data::unsignedInteger(request.ctlNum);
    else if (name == "T")
        value = Data::utcTime(request.time);
    else if (name == "Test")
        value = Data::boolean(request.test);
    else if (name == "Check") {
        mms::BitString check(2);
        check.set(0, request.synchrocheck);
        check.set(1, request.interlockCheck);
        value = Data::bitString(check);
    } else {
        return mms::Error{say("The device wants a part %1 in the command, which is not known.",
                              mms::quoted(name)),
                          0};
    }
    return valueOfType(component.type, value);
}

bool readOrigin(const Data &value, Originator &originator)
{
    const std::span<const Data> members = value.children();
    if (value.kind() != Data::Kind::Structure || members.size() != 2)
        return false;
    const auto category = members[0].toInteger();
    if (!category || *category < std::numeric_limits<std::int32_t>::min() ||
        *category > std::numeric_limits<std::int32_t>::max() ||
        members[1].kind() != Data::Kind::OctetString)
        return false;
    originator.category = static_cast<std::int32_t>(*category);
    originator.identification.assign(members[1].octets().begin(), members[1].octets().end());
    return originator.identification.size() <= maxIdentification;
}

bool readCtlNum(const Data &value, std::uint8_t &ctlNum)
{
    const auto number = value.toUnsigned();
    if (!number || *number > std::numeric_limits<std::uint8_t>::max())
        return false;
    ctlNum = static_cast<std::uint8_t>(*number);
    return true;
}

bool readTime(const Data &value, mms::UtcTime &time)
{
    if (const auto utc = value.toUtcTime()) {
        time = *utc;
        return true;
    }
    return false;
}

bool readComponent(std::string_view name, const Data &value, ControlRequest &request)
{
    if (name == "ctlVal") {
        request.value = value;
        return true;
    }
    if (name == "operTm") {
        mms::UtcTime time;
        if (!readTime(value, time))
            return false;
        if (time.seconds != 0 || time.fraction != 0)
            request.operateTime = time;
        return true;
    }
    if (name == "origin")
        return readOrigin(value, request.originator);
    if (name == "ctlNum")
        return readCtlNum(value, request.ctlNum);
    if (name == "T")
        return readTime(value, request.time);
    if (name == "Test") {
        request.test = value.toBoolean().value_or(false);
        return value.toBoolean().has_value();
    }
    if (name == "Check") {
        request.synchrocheck = value.testBit(0);
        request.interlockCheck = value.testBit(1);
        return value.kind() == Data::Kind::BitString;
    }
    return false;
}

bool readNumber(const Data &value, std::int32_t &number)
{
    const auto read = value.toInteger();
    if (!read || *read < std::numeric_limits<std::int32_t>::min() ||
        *read > std::numeric_limits<std::int32_t>::max())
        return false;
    number = static_cast<std::int32_t>(*read);
    return true;
}

/// "LN$CO$Pos$Oper": the only component whose value tells that a command has ended.
std::optional<Reference> operatedObject(const mms::ObjectName &name)
{
    constexpr std::string_view ending = "$Oper";
    if (name.scope != mms::Scope::Domain || !name.item.ends_with(ending))
        return std::nullopt;
    auto reference = referenceOf(
        name.domain, std::string_view(name.item).substr(0, name.item.size() - ending.size()));
    if (!reference || reference->constraint != FunctionalConstraint::CO || reference->path.empty())
        return std::nullopt;
    return *std::move(reference);
}

constexpr std::array additionalCauses = {
    wording::pattern("unknown cause"),
    wording::pattern("the service is not supported"),
    wording::pattern("blocked because the switching authority lies elsewhere (local or remote)"),
    wording::pattern("the selection failed"),
    wording::pattern("the position is not valid"),
    wording::pattern("the position has been reached already"),
    wording::pattern("a parameter is being changed"),
    wording::pattern("the tap changer is at the end of its range"),
    wording::pattern("blocked by the mode of the logical node"),
    wording::pattern("blocked by an event of the process"),
    wording::pattern("blocked by interlocking"),
    wording::pattern("blocked by synchrocheck"),
    wording::pattern("a command is being executed already"),
    wording::pattern("blocked by the health of the logical node"),
    wording::pattern("another object of the domain is being controlled"),
    wording::pattern("ended by a cancel"),
    wording::pattern("the time for it is over"),
    wording::pattern("ended by a trip"),
    wording::pattern("the object is not selected"),
    wording::pattern("the object is selected already"),
    wording::pattern("the client has no authority for it"),
    wording::pattern("ended beyond the wanted position"),
    wording::pattern("ended because the position deviates from the command"),
    wording::pattern("ended by the loss of the connection with the client that issued it"),
    wording::pattern("blocked by the data object that blocks commands"),
    wording::pattern("no cause"),
    wording::pattern("the parameters of the service contradict those of the selection"),
    wording::pattern("locked by another client"),
};

constexpr std::array controlErrors = {
    wording::pattern("no error"),
    wording::pattern("unknown error"),
    wording::pattern("the time-out test failed"),
    wording::pattern("the operator test failed"),
};

} // namespace

mms::Text additionalCauseText(std::int32_t addCause)
{
    if (addCause >= 0 && static_cast<std::size_t>(addCause) < additionalCauses.size())
        return say(additionalCauses[static_cast<std::size_t>(addCause)]);
    return say("additional cause %1", addCause);
}

mms::Text controlErrorText(std::int32_t error)
{
    if (error >= 0 && static_cast<std::size_t>(error) < controlErrors.size())
        return say(controlErrors[static_cast<std::size_t>(error)]);
    return say("control error %1", error);
}

mms::Result<Data> controlValue(const TypeDescription &type, const ControlRequest &request,
                               const std::optional<AnalogueScale> &scale)
{
    if (type.kind != TypeDescription::Kind::Structure || type.components.empty())
        return mms::Error{say("The device does not say what belongs to the command."), 0};
    if (request.operateTime && !componentOf(type, "operTm"))
        return mms::Error{say("The device cannot operate at a given time."), 0};
    if (request.test && !componentOf(type, "Test"))
        return mms::Error{say("The device cannot test a command."), 0};
    if (!componentOf(type, "Check")) {
        if (request.interlockCheck)
            return mms::Error{say("The device cannot check interlocking."), 0};
        if (request.synchrocheck)
            return mms::Error{say("The device cannot check synchronism."), 0};
    }
    std::vector<Data> members;
    members.reserve(type.components.size());
    for (const TypeDescription::Component &component : type.components) {
        auto member = componentValue(component, request, scale);
        if (!member)
            return named(component.name, member.error());
        members.push_back(*std::move(member));
    }
    return Data::structure(std::move(members));
}

mms::Result<ControlRequest> controlRequestFrom(const TypeDescription &type, const Data &value)
{
    if (auto fits = checkType(type, value); !fits)
        return fits.error();
    if (type.kind != TypeDescription::Kind::Structure)
        return mms::Error{say("A command is a structure, not %1.", mms::toText(type)), 0};
    ControlRequest request;
    const std::span<const Data> members = value.children();
    for (std::size_t i = 0; i < members.size(); ++i) {
        const std::string &name = type.components[i].name;
        if (!readComponent(name, members[i], request))
            return mms::Error{say("The part %1 of the command cannot be %2.", mms::quoted(name),
                                  mms::toText(members[i])),
                              0};
    }
    return request;
}

std::optional<ControlledName> controlledNameFrom(std::string_view controlObject)
{
    const std::size_t slash = controlObject.find('/');
    if (slash == std::string_view::npos || slash == 0)
        return std::nullopt;
    std::vector<std::string_view> parts;
    std::string_view rest = controlObject.substr(slash + 1);
    for (;;) {
        const std::size_t end = rest.find_first_of("$.");
        parts.push_back(rest.substr(0, end));
        if (end == std::string_view::npos)
            break;
        rest.remove_prefix(end + 1);
    }
    if (parts.size() > 2 && parts[1] == "CO")
        parts.erase(parts.begin() + 1);
    ControlledName name;
    constexpr std::array<std::string_view, 4> services = {"SBO", "SBOw", "Oper", "Cancel"};
    if (parts.size() > 2 && std::ranges::find(services, parts.back()) != services.end()) {
        name.service = parts.back();
        parts.pop_back();
    }
    if (parts.size() < 2)
        return std::nullopt;
    name.object = controlObject.substr(0, slash + 1);
    for (std::size_t i = 0; i < parts.size(); ++i)
        name.object += (i == 0 ? "" : ".") + std::string(parts[i]);
    return name;
}

mms::Result<LastApplError> lastApplErrorFrom(const Data &value)
{
    const std::span<const Data> members = value.children();
    LastApplError error;
    if (value.kind() != Data::Kind::Structure || members.size() != 5 ||
        (members[0].kind() != Data::Kind::VisibleString &&
         members[0].kind() != Data::Kind::MmsString) ||
        !readNumber(members[1], error.error) || !readOrigin(members[2], error.originator) ||
        !readCtlNum(members[3], error.ctlNum) || !readNumber(members[4], error.addCause))
        return mms::Error{
            say("The device gave a reason for refusing a command that cannot be read: %1.",
                mms::toText(value)),
            0};
    error.controlObject = members[0].text();
    return error;
}

Data toData(const LastApplError &error)
{
    return Data::structure({Data::visibleString(error.controlObject), Data::integer(error.error),
                            Data::structure({Data::integer(error.originator.category),
                                             Data::octetString(error.originator.identification)}),
                            Data::unsignedInteger(error.ctlNum), Data::integer(error.addCause)});
}

std::optional<ControlInformation> controlInformationFrom(const mms::InformationReport &report)
{
    const auto *list = std::get_if<std::vector<mms::VariableAccess>>(&report.variables);
    if (!list || list->size() != report.results.size())
        return std::nullopt;
    ControlInformation information;
    bool hasError = false;
    for (std::size_t i = 0; i < list->size(); ++i) {
        const auto *name = std::get_if<mms::ObjectName>(&(*list)[i].variable);
        if (!name)
            continue;
        const mms::AccessResult &result = report.results[i];
        if (name->scope == mms::Scope::Vmd && name->item == lastApplErrorName) {
            hasError = true;
            if (!result.ok())
                continue;
            if (auto error = lastApplErrorFrom(result.data()))
                information.applError = *std::move(error);
        } else if (auto object = operatedObject(*name)) {
            information.terminated = std::move(object);
            if (result.ok())
                information.oper = result.data();
        }
    }
    if (!hasError && !information.terminated)
        return std::nullopt;
    const bool saysNone = information.applError && information.applError->error == 0 &&
                          information.applError->addCause == noCause;
    information.positive = !hasError || (saysNone && information.terminated);
    if (information.positive)
        information.applError.reset();
    return information;
}

mms::InformationReport toReport(const LastApplError &error)
{
    return {std::vector{mms::VariableAccess{mms::ObjectName::ofVmd(lastApplErrorName), {}}},
            {toData(error)}};
}

mms::InformationReport commandTermination(const Reference &object, Data oper,
                                          const std::optional<LastApplError> &error)
{
    mms::InformationReport report;
    std::vector<mms::VariableAccess> variables;
    if (error) {
        variables.push_back({mms::ObjectName::ofVmd(lastApplErrorName), {}});
        report.results.emplace_back(toData(*error));
    }
    Reference operated = object;
    operated.path.push_back({"Oper", {}});
    variables.push_back(accessOf(operated));
    report.results.emplace_back(std::move(oper));
    report.variables = std::move(variables);
    return report;
}

} // namespace acsi
