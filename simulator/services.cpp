// SPDX-License-Identifier: Apache-2.0
#include "simulator/services.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace sim {

namespace {

using mms::ErrorClass;
using mms::ObjectClass;
using mms::Scope;
using mms::ServiceError;

/// What a PDU needs besides the names, values or members that fill it.
constexpr std::size_t frameOctets = 64;
constexpr std::size_t smallestValue = 2;

ServiceError failure(ErrorClass errorClass, std::int32_t code)
{
    return {errorClass, code, {}, {}, {}};
}

ServiceError nonExistent()
{
    return failure(ErrorClass::Access, mms::serviceerrors::accessNonExistent);
}

ServiceError unsupported()
{
    return failure(ErrorClass::Access, mms::serviceerrors::accessUnsupported);
}

ServiceError tooLarge()
{
    return failure(ErrorClass::Resource, mms::serviceerrors::resourceOther);
}

const std::string &nameOf(const std::string &name)
{
    return name;
}

const std::string &nameOf(const DataSets::Names::value_type &entry)
{
    return entry.first;
}

/// No encoding of a value is shorter.
std::size_t leastOctets(const mms::Data &data)
{
    std::size_t octets = smallestValue;
    for (const mms::Data &child : data.children())
        octets += leastOctets(child);
    return octets;
}

/// Of texts and octets, the greatest length as a fixed one.
void fixLengths(mms::TypeDescription &type)
{
    using Kind = mms::TypeDescription::Kind;
    const bool isText = type.kind == Kind::OctetString || type.kind == Kind::VisibleString ||
                        type.kind == Kind::MmsString;
    if (isText)
        type.size = std::abs(type.size);
    for (mms::TypeDescription::Component &component : type.components)
        fixLengths(component.type);
}

} // namespace

ServiceAnswer Services::operator()(const mms::StatusRequest &)
{
    return mms::StatusResponse();
}

ServiceAnswer Services::operator()(const mms::IdentifyRequest &)
{
    return mms::IdentifyResponse{m_identity.vendor, m_identity.model, m_identity.revision, {}};
}

template <typename Names>
ServiceAnswer Services::page(const Names &names, const mms::GetNameListRequest &request)
{
    auto name = names.begin();
    if (request.continueAfter) {
        if constexpr (requires { names.upper_bound(*request.continueAfter); }) {
            if (names.find(*request.continueAfter) == names.end())
                return nonExistent();
            name = names.upper_bound(*request.continueAfter);
        } else {
            name = std::ranges::find(names, *request.continueAfter);
            if (name == names.end())
                return nonExistent();
            ++name;
        }
    }
    std::size_t room = m_client.pduSize() - std::min(m_client.pduSize(), frameOctets);
    mms::GetNameListResponse response{{}, false};
    for (; name != names.end(); ++name) {
        const std::string &text = nameOf(*name);
        const std::size_t needed = text.size() + 4;
        if (needed > room && !response.names.empty()) {
            response.moreFollows = true;
            break;
        }
        room -= std::min(room, needed);
        response.names.push_back(text);
    }
    return response;
}

ServiceAnswer Services::variableNames(const mms::GetNameListRequest &request)
{
    if (request.scope != Scope::Domain)
        return page(std::vector<std::string>(), request);
    const Model::Domain *const domain = m_access.model().findDomain(request.domain);
    if (!domain || (request.continueAfter && request.continueAfter->empty()))
        return nonExistent();
    auto names = m_access.model().variableNames(
        *domain, request.continueAfter.value_or(std::string()),
        m_client.pduSize() - std::min(m_client.pduSize(), frameOctets),
        m_oddities.namesInTypeOrder ? Model::NameOrder::OfTypes : Model::NameOrder::Sorted);
    if (!names)
        return nonExistent();
    return mms::GetNameListResponse{std::move(names->names), names->moreFollows};
}

ServiceAnswer Services::operator()(const mms::GetNameListRequest &request)
{
    switch (request.objectClass) {
    case ObjectClass::Domain:
        return request.scope == Scope::Vmd ? page(m_access.model().domainNames(), request)
                                           : ServiceAnswer(unsupported());
    case ObjectClass::NamedVariable:
        return variableNames(request);
    case ObjectClass::NamedVariableList: {
        const auto *names = m_dataSets.names(m_client, request.scope, request.domain);
        return names ? page(*names, request) : ServiceAnswer(nonExistent());
    }
    case ObjectClass::Journal: {
        if (request.scope != Scope::Domain)
            return page(Journals::Names(), request);
        const auto *names = m_journals.names(request.domain);
        return names ? page(*names, request) : ServiceAnswer(nonExistent());
    }
    default:
        return unsupported();
    }
}

ServiceAnswer Services::operator()(const mms::GetVariableAccessAttributesRequest &request)
{
    const auto *name = std::get_if<mms::ObjectName>(&request.variable);
    if (!name)
        return unsupported();
    const Part part =
        name->scope == Scope::Domain ? m_access.model().find(name->domain, name->item) : Part();
    if (!part.isValid())
        return nonExistent();
    mms::TypeDescription type = part.type();
    if (m_oddities.fixedLengths)
        fixLengths(type);
    return mms::GetVariableAccessAttributesResponse{false, std::nullopt, std::move(type)};
}

ServiceAnswer Services::operator()(const mms::ReadRequest &request)
{
    mms::ReadResponse response;
    if (request.specificationWithResult)
        response.variables = request.variables;
    std::size_t octets = 0;
    // Stops where the answer is too large already: a short request can ask for very much.
    const auto add = [&](mms::AccessResult result) {
        octets += result.ok() ? leastOctets(result.data()) : smallestValue;
        response.results.push_back(std::move(result));
        return octets <= m_client.pduSize();
    };
    if (const auto *list = std::get_if<std::vector<mms::VariableAccess>>(&request.variables)) {
        response.results.reserve(list->size());
        for (const mms::VariableAccess &access : *list) {
            if (!add(m_access.read(m_client, access)))
                return tooLarge();
        }
        return response;
    }
    const auto dataSet = m_dataSets.find(&m_client, std::get<mms::ObjectName>(request.variables));
    if (!dataSet)
        return nonExistent();
    response.results.reserve(dataSet->members.size());
    for (const DataSetMember &member : dataSet->members) {
        if (!add(m_access.read(m_client, member.part)))
            return tooLarge();
    }
    return response;
}

ServiceAnswer Services::operator()(const mms::WriteRequest &request)
{
    mms::WriteResponse response;
    const Model::Batch batch(m_access.model());
    if (const auto *list = std::get_if<std::vector<mms::VariableAccess>>(&request.variables)) {
        if (list->size() != request.values.size())
            return Rejection{mms::rejectcodes::requestInvalidArgument};
        for (std::size_t i = 0; i < list->size(); ++i)
            response.results.push_back(m_access.write(m_client, (*list)[i], request.values[i]));
        return response;
    }
    const auto dataSet = m_dataSets.find(&m_client, std::get<mms::ObjectName>(request.variables));
    if (!dataSet)
        return nonExistent();
    if (dataSet->members.size() != request.values.size())
        return Rejection{mms::rejectcodes::requestInvalidArgument};
    for (std::size_t i = 0; i < dataSet->members.size(); ++i)
        response.results.push_back(
            m_access.write(m_client, dataSet->members[i].part, request.values[i]));
    return response;
}

ServiceAnswer Services::operator()(const mms::DefineNamedVariableListRequest &request)
{
    if (auto error = m_dataSets.define(m_client, request))
        return std::move(*error);
    return mms::DefineNamedVariableListResponse();
}

ServiceAnswer Services::operator()(const mms::GetNamedVariableListAttributesRequest &request)
{
    const auto dataSet = m_dataSets.find(&m_client, request.name);
    if (!dataSet)
        return nonExistent();
    mms::GetNamedVariableListAttributesResponse response;
    response.deletable = dataSet->deletable;
    for (const DataSetMember &member : dataSet->members)
        response.members.push_back(member.access);
    return response;
}

ServiceAnswer Services::operator()(const mms::DeleteNamedVariableListRequest &request)
{
    auto result = m_dataSets.remove(m_client, request);
    if (auto *error = std::get_if<ServiceError>(&result))
        return std::move(*error);
    return std::get<mms::DeleteNamedVariableListResponse>(result);
}

ServiceAnswer Services::operator()(const mms::ReadJournalRequest &request)
{
    if (request.journal.scope != Scope::Domain ||
        !m_journals.contains(request.journal.domain, request.journal.item))
        return nonExistent();
    return mms::ReadJournalResponse();
}

} // namespace sim
