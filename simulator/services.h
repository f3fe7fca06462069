// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/access.h"
#include "simulator/datasets.h"
#include "simulator/journals.h"
#include "simulator/oddities.h"

#include <string>
#include <variant>

namespace sim {

/// What Identify tells.
struct Identity
{
    std::string vendor;
    std::string model;
    std::string revision;
};

/// The code of a reject.
struct Rejection
{
    std::int32_t code = 0;
};

/// The answer to a request: of its service, an error, or a reject.
using ServiceAnswer = std::variant<mms::ResponseService, mms::ServiceError, Rejection>;

/// The services of a device that are answered at once, for one client. Plain functions of what they
/// are given; in the device's strand.
class Services
{
public:
    Services(Access &access, DataSets &dataSets, const Journals &journals, const Identity &identity,
             const Oddities &oddities, Peer &client)
        : m_access(access)
        , m_dataSets(dataSets)
        , m_journals(journals)
        , m_identity(identity)
        , m_oddities(oddities)
        , m_client(client)
    {
    }

    ServiceAnswer operator()(const mms::StatusRequest &request);
    ServiceAnswer operator()(const mms::IdentifyRequest &request);
    ServiceAnswer operator()(const mms::GetNameListRequest &request);
    ServiceAnswer operator()(const mms::GetVariableAccessAttributesRequest &request);
    ServiceAnswer operator()(const mms::ReadRequest &request);
    ServiceAnswer operator()(const mms::WriteRequest &request);
    ServiceAnswer operator()(const mms::DefineNamedVariableListRequest &request);
    ServiceAnswer operator()(const mms::GetNamedVariableListAttributesRequest &request);
    ServiceAnswer operator()(const mms::DeleteNamedVariableListRequest &request);
    ServiceAnswer operator()(const mms::ReadJournalRequest &request);
    /// Whatever else is asked is not served here.
    template <typename Request>
    ServiceAnswer operator()(const Request &)
    {
        return Rejection{mms::rejectcodes::requestUnrecognizedService};
    }

private:
    ServiceAnswer variableNames(const mms::GetNameListRequest &request);
    template <typename Names>
    ServiceAnswer page(const Names &names, const mms::GetNameListRequest &request);

    Access &m_access;
    DataSets &m_dataSets;
    const Journals &m_journals;
    const Identity &m_identity;
    const Oddities &m_oddities;
    Peer &m_client;
};

} // namespace sim
