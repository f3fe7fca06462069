// SPDX-License-Identifier: Apache-2.0
#include "simulator/datasets.h"

#include "acsi/reference.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace sim {

namespace {

using mms::ErrorClass;
using mms::Scope;
using mms::ServiceError;

constexpr std::size_t longestName = 129;

ServiceError failure(ErrorClass errorClass, std::int32_t code)
{
    return {errorClass, code, {}, {}, {}};
}

bool isName(std::string_view text)
{
    return !text.empty() && text.size() <= longestName &&
           std::ranges::all_of(text, [](char letter) {
               return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_' ||
                      letter == '$';
           });
}

} // namespace

DataSets::DataSets(const Model &model, const scl::Ied &ied, DataSetLimits limits)
    : m_model(model)
    , m_limits(limits)
{
    for (const Model::Domain &domain : model.domains())
        m_domains[std::string(domain.name)];
    ied.forEachDevice([this](const scl::LogicalDevice &device) {
        Names &names = m_domains[std::string(device.name)];
        for (const scl::LogicalNode &node : device.nodes) {
            for (const scl::DataSet &described : node.dataSets) {
                auto dataSet = std::make_shared<DataSet>();
                const std::string name = std::string(node.name) + "$" + std::string(described.name);
                dataSet->name = mms::ObjectName::inDomain(device.name, name);
                for (const scl::Fcda &member : described.members) {
                    const auto parsed = acsi::parseReference(member.reference);
                    if (!parsed)
                        continue;
                    mms::VariableAccess access = acsi::accessOf(*parsed);
                    const Part part = m_model.find(access);
                    if (part.isValid())
                        dataSet->members.push_back({std::move(access), part});
                }
                names.emplace(name, std::move(dataSet));
            }
        }
    });
}

std::shared_ptr<DataSet> DataSets::find(const Peer *client, const mms::ObjectName &name) const
{
    const Names *names = nullptr;
    if (name.scope == Scope::Domain) {
        const auto domain = m_domains.find(name.domain);
        names = domain == m_domains.end() ? nullptr : &domain->second;
    } else if (name.scope == Scope::Association) {
        const auto own = m_clients.find(client);
        names = own == m_clients.end() ? nullptr : &own->second;
    }
    if (!names)
        return nullptr;
    const auto found = names->find(name.item);
    return found == names->end() ? nullptr : found->second;
}

std::shared_ptr<DataSet> DataSets::find(const Peer *client, std::string_view reference) const
{
    if (reference.starts_with('@'))
        return find(client, mms::ObjectName::ofAssociation(reference.substr(1)));
    const auto slash = reference.find('/');
    if (slash == std::string_view::npos)
        return nullptr;
    return find(client,
                mms::ObjectName::inDomain(reference.substr(0, slash), reference.substr(slash + 1)));
}

DataSets::Names *DataSets::namesOf(const Peer &client, const mms::ObjectName &name)
{
    if (name.scope == Scope::Association)
        return &m_clients[&client];
    const auto domain = m_domains.find(name.domain);
    return name.scope == Scope::Domain && domain != m_domains.end() ? &domain->second : nullptr;
}

std::optional<ServiceError> DataSets::define(Peer &client,
                                             const mms::DefineNamedVariableListRequest &request)
{
    if (request.name.scope == Scope::Vmd)
        return failure(ErrorClass::Access, mms::serviceerrors::accessUnsupported);
    Names *const names = namesOf(client, request.name);
    if (!names)
        return failure(ErrorClass::Definition, mms::serviceerrors::definitionObjectUndefined);
    if (!isName(request.name.item) || request.members.empty())
        return failure(ErrorClass::Definition, mms::serviceerrors::definitionAttributeInconsistent);
    if (names->contains(request.name.item))
        return failure(ErrorClass::Definition, mms::serviceerrors::definitionObjectExists);
    const auto made =
        std::ranges::count_if(*names, [](const auto &entry) { return entry.second->deletable; });
    const std::size_t limit =
        request.name.scope == Scope::Association ? m_limits.perClient : m_limits.perDomain;
    if (static_cast<std::size_t>(made) >= limit || request.members.size() > m_limits.members)
        return failure(ErrorClass::Resource, mms::serviceerrors::resourceCapabilityUnavailable);
    auto dataSet = std::make_shared<DataSet>();
    dataSet->name = request.name;
    dataSet->deletable = true;
    for (const mms::VariableAccess &member : request.members) {
        const Part part = m_model.find(member);
        if (!part.isValid() || part.node().level == Level::LogicalNode)
            return failure(ErrorClass::Definition, mms::serviceerrors::definitionObjectUndefined);
        dataSet->members.push_back({member, part});
    }
    names->emplace(request.name.item, std::move(dataSet));
    return std::nullopt;
}

std::variant<mms::DeleteNamedVariableListResponse, ServiceError>
DataSets::remove(Peer &client, const mms::DeleteNamedVariableListRequest &request)
{
    constexpr std::int32_t named = 0;
    constexpr std::int32_t ofAssociation = 1;
    constexpr std::int32_t ofDomain = 2;
    mms::DeleteNamedVariableListResponse response;
    const auto take = [&response](Names &names, Names::iterator entry) {
        ++response.matched;
        const DataSet &dataSet = *entry->second;
        if (!dataSet.deletable || dataSet.users > 0)
            return std::next(entry);
        ++response.deleted;
        return names.erase(entry);
    };
    const auto takeAll = [&take](Names &names) {
        for (auto entry = names.begin(); entry != names.end();)
            entry = take(names, entry);
    };
    if (request.scopeOfDelete == named) {
        for (const mms::ObjectName &name : request.names) {
            Names *const names = namesOf(client, name);
            const auto entry = names ? names->find(name.item) : Names::iterator();
            if (names && entry != names->end())
                take(*names, entry);
        }
    } else if (request.scopeOfDelete == ofAssociation) {
        takeAll(m_clients[&client]);
    } else if (request.scopeOfDelete == ofDomain) {
        const auto domain = m_domains.find(request.domain.value_or(std::string()));
        if (domain == m_domains.end())
            return failure(ErrorClass::Definition, mms::serviceerrors::definitionObjectUndefined);
        takeAll(domain->second);
    } else {
        return failure(ErrorClass::Access, mms::serviceerrors::accessUnsupported);
    }
    return response;
}

const DataSets::Names *DataSets::names(const Peer &client, Scope scope,
                                       std::string_view domain) const
{
    if (scope == Scope::Vmd)
        return &m_none;
    if (scope == Scope::Association) {
        const auto own = m_clients.find(&client);
        return own == m_clients.end() ? &m_none : &own->second;
    }
    const auto found = m_domains.find(domain);
    return found == m_domains.end() ? nullptr : &found->second;
}

void DataSets::forget(const Peer &client)
{
    m_clients.erase(&client);
}

} // namespace sim
