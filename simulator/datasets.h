// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/model.h"
#include "simulator/peer.h"

#include "mms/serviceerror.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

struct DataSetMember
{
    mms::VariableAccess access;
    Part part; ///< what it names
};

/// A named list of variables. Lives as long as somebody holds it; one that was deleted is in no
/// list any more.
struct DataSet
{
    mms::ObjectName name;
    std::vector<DataSetMember> members;
    bool deletable = false;
    /// Control blocks that use it; while there are any it cannot be deleted. They count themselves.
    unsigned users = 0;
};

struct DataSetLimits
{
    std::size_t perDomain = 100;
    std::size_t perClient = 50;
    std::size_t members = 512;
};

/// The data sets of a device: those of its SCL description, and those that clients make. Belongs to
/// the device's strand.
class DataSets
{
public:
    /// Names of a scope, sorted octet by octet.
    using Names = std::map<std::string, std::shared_ptr<DataSet>, std::less<>>;

    /// Members that the model lacks are left out.
    DataSets(const Model &model, const scl::Ied &ied, DataSetLimits limits = {});

    /// @p client decides whose data sets the scope of the association means; may be null for
    /// others.
    std::shared_ptr<DataSet> find(const Peer *client, const mms::ObjectName &name) const;
    /// By a reference as in a control block: "LD/LN$name", or "@name" for @p client's own.
    std::shared_ptr<DataSet> find(const Peer *client, std::string_view reference) const;

    std::optional<mms::ServiceError> define(Peer &client,
                                            const mms::DefineNamedVariableListRequest &request);
    std::variant<mms::DeleteNamedVariableListResponse, mms::ServiceError>
    remove(Peer &client, const mms::DeleteNamedVariableListRequest &request);
    /// Null for a domain that does not exist.
    const Names *names(const Peer &client, mms::Scope scope, std::string_view domain) const;
    /// @p client has left; its own data sets go with it.
    void forget(const Peer &client);

private:
    Names *namesOf(const Peer &client, const mms::ObjectName &name);

    const Model &m_model;
    DataSetLimits m_limits;
    std::map<std::string, Names, std::less<>> m_domains;
    std::map<const Peer *, Names> m_clients;
    Names m_none;
};

} // namespace sim
