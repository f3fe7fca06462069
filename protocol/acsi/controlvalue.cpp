// SPDX-License-Identifier: Apache-2.0
#include "acsi/control.h"

#include "acsi/typedvalue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace acsi {

namespace {

using mms::Data;
using mms::TypeDescription;

constexpr std::size_t maxIdentification = 64;
constexpr std::string_view lastApplErrorName = "LastApplError";
/// The additional cause that is none.
constexpr std::int32_t noCause = 25;

mms::Error named(std::string_view component, const mms::Error &error)
{
    return {std::string(component) + ": " + error.message, 0};
}

mms::Result<Data> originValue(const TypeDescription &type, const Originator &originator)
{
    if (originator.identification.size() > maxIdentification)
        return mms::Error{"The originator identification has " +
                              std::to_string(originator.identification.size()) +
                              " octets; at most " + std::to_string(maxIdentification) +
                              " are allowed.",
                          0};
    if (type.kind != TypeDescription::Kind::Structure)
        return mms::Error{"The device describes the originator as " + mms::toText(type) + ".", 0};
    std::vector<Data> members;
    for (const TypeDescription::Component &component : type.components) {
        Data value;
        if (component.name == "orCat")
            value = Data::integer(originator.category);
        else if (component.name == "orIdent")
            value = Data::octetString(originator.identification);
        else
            return mms::Error{"The device wants an unknown part " + mms::quoted(component.name) +
                                  " of the originator.",
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
        return mms::Error{"The device wants " + mms::toText(value) +
                              " also as a whole number, but does not say by which scale (sVC).",
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
        return mms::Error{"The device wants a part " + mms::quoted(name) +
                              " in the command, which is not known.",
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

constexpr std::array<std::string_view, 28> additionalCauses = {
    "unknown cause",
    "the service is not supported",
    "blocked because the switching authority lies elsewhere (local or remote)",
    "the selection failed",
    "the position is not valid",
    "the position has been reached already",
    "a parameter is being changed",
    "the tap changer is at the end of its range",
    "blocked by the mode of the logical node",
    "blocked by an event of the process",
    "blocked by interlocking",
    "blocked by synchrocheck",
    "a command is being executed already",
    "blocked by the health of the logical node",
    "another object of the domain is being controlled",
    "ended by a cancel",
    "the time for it is over",
    "ended by a trip",
    "the object is not selected",
    "the object is selected already",
    "the client has no authority for it",
    "ended beyond the wanted position",
    "ended because the position deviates from the command",
    "ended by the loss of the connection with the client that issued it",
    "blocked by the data object that blocks commands",
    "no cause",
    "the parameters of the service contradict those of the selection",
    "locked by another client",
};

constexpr std::array<std::string_view, 4> controlErrors = {
    "no error",
    "unknown error",
    "the time-out test failed",
    "the operator test failed",
};

} // namespace

std::string additionalCauseText(std::int32_t addCause)
{
    if (addCause >= 0 && static_cast<std::size_t>(addCause) < additionalCauses.size())
        return std::string(additionalCauses[static_cast<std::size_t>(addCause)]);
    return "additional cause " + std::to_string(addCause);
}

std::string controlErrorText(std::int32_t error)
{
    if (error >= 0 && static_cast<std::size_t>(error) < controlErrors.size())
        return std::string(controlErrors[static_cast<std::size_t>(error)]);
    return "control error " + std::to_string(error);
}

mms::Result<Data> controlValue(const TypeDescription &type, const ControlRequest &request,
                               const std::optional<AnalogueScale> &scale)
{
    if (type.kind != TypeDescription::Kind::Structure || type.components.empty())
        return mms::Error{"The device does not say what belongs to the command.", 0};
    if (request.operateTime && !componentOf(type, "operTm"))
        return mms::Error{"The device cannot operate at a given time.", 0};
    if (request.test && !componentOf(type, "Test"))
        return mms::Error{"The device cannot test a command.", 0};
    if (!componentOf(type, "Check")) {
        if (request.interlockCheck)
            return mms::Error{"The device cannot check interlocking.", 0};
        if (request.synchrocheck)
            return mms::Error{"The device cannot check synchronism.", 0};
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
        return mms::Error{"A command is a structure, not " + mms::toText(type) + ".", 0};
    ControlRequest request;
    const std::span<const Data> members = value.children();
    for (std::size_t i = 0; i < members.size(); ++i) {
        const std::string &name = type.components[i].name;
        if (!readComponent(name, members[i], request))
            return mms::Error{"The part " + mms::quoted(name) + " of the command cannot be " +
                                  mms::toText(members[i]) + ".",
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
        return mms::Error{"The device gave a reason for refusing a command that cannot be read: " +
                              mms::toText(value) + ".",
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
