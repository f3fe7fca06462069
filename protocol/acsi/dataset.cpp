// SPDX-License-Identifier: Apache-2.0
#include "acsi/dataset.h"

#include "mms/data.h"
#include "mms/datatext.h"

#include <utility>

namespace acsi {

using wording::say;

namespace {

mms::Error wrongName(std::string_view text)
{
    return {say("%1 is not the name of a data set.", mms::quoted(text)), 0};
}

} // namespace

mms::Result<mms::ObjectName> dataSetName(std::string_view device, std::string_view text)
{
    if (text.starts_with('@')) {
        // One name part is all that a data set of an association has.
        const auto name = parseReference(text.substr(1));
        if (!name || !name->node.empty())
            return wrongName(text);
        return mms::ObjectName::ofAssociation(text.substr(1));
    }
    const std::size_t slash = text.find('/');
    const std::string_view domain = slash == text.npos ? device : text.substr(0, slash);
    std::string item(slash == text.npos ? text : text.substr(slash + 1));
    const std::size_t separator = item.find_first_of("$.");
    if (separator == item.npos)
        return wrongName(text);
    item[separator] = '$';
    const auto node = parseReference(domain, item.substr(0, separator));
    const auto name = parseReference(domain, item.substr(separator + 1));
    if (!node || !name || node->constraint || name->constraint || !name->path.empty())
        return wrongName(text);
    return mms::ObjectName::inDomain(domain, item);
}

std::string dataSetText(const mms::ObjectName &name)
{
    switch (name.scope) {
    case mms::Scope::Vmd:
        break;
    case mms::Scope::Domain:
        return name.domain + '/' + name.item;
    case mms::Scope::Association:
        return '@' + name.item;
    }
    return name.item;
}

asio::awaitable<mms::Result<DataSetDescription>> dataSetDirectory(std::shared_ptr<Client> client,
                                                                  mms::ObjectName name)
{
    mms::GetNamedVariableListAttributesRequest request;
    request.name = name;
    auto answer =
        co_await client->ask<mms::GetNamedVariableListAttributesResponse>(std::move(request));
    if (!answer)
        co_return answer.error();
    DataSetDescription description;
    description.name = std::move(name);
    description.deletable = answer->deletable;
    description.members = std::move(answer->members);
    co_return description;
}

asio::awaitable<mms::Result<void>> createDataSet(std::shared_ptr<ChangingClient> client,
                                                 mms::ObjectName name,
                                                 std::vector<mms::VariableAccess> members)
{
    mms::DefineNamedVariableListRequest request;
    request.name = std::move(name);
    request.members = std::move(members);
    const auto answer =
        co_await client->ask<mms::DefineNamedVariableListResponse>(std::move(request));
    if (!answer)
        co_return answer.error();
    co_return mms::Result<void>();
}

asio::awaitable<mms::Result<void>> deleteDataSet(std::shared_ptr<ChangingClient> client,
                                                 mms::ObjectName name)
{
    const std::string text = mms::quoted(dataSetText(name));
    mms::DeleteNamedVariableListRequest request;
    request.names.push_back(std::move(name));
    const auto answer =
        co_await client->ask<mms::DeleteNamedVariableListResponse>(std::move(request));
    if (!answer)
        co_return answer.error();
    if (answer->deleted == 0) {
        co_return mms::Error{answer->matched == 0
                                 ? say("There is no data set %1.", text)
                                 : say("The device does not let the data set %1 be deleted.", text),
                             0};
    }
    co_return mms::Result<void>();
}

} // namespace acsi
