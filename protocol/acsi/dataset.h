// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/discovery.h"
#include "acsi/reference.h"

#include <string>
#include <string_view>
#include <vector>

namespace acsi {

/// The name of a data set on the wire. Accepts "LD/LN$name", "LN$name" within @p device,
/// "LD/LN.name", and "@name" for a data set of the association (IEC 61850-8-1, 14).
mms::Result<mms::ObjectName> dataSetName(std::string_view device, std::string_view text);
/// The value of DatSet in a control block: "LD/LN$name" or "@name".
std::string dataSetText(const mms::ObjectName &name);

asio::awaitable<mms::Result<DataSetDescription>> dataSetDirectory(std::shared_ptr<Client> client,
                                                                  mms::ObjectName name);
asio::awaitable<mms::Result<void>> createDataSet(std::shared_ptr<ChangingClient> client,
                                                 mms::ObjectName name,
                                                 std::vector<mms::VariableAccess> members);
/// An error as well when the server has no such data set or must keep it.
asio::awaitable<mms::Result<void>> deleteDataSet(std::shared_ptr<ChangingClient> client,
                                                 mms::ObjectName name);

} // namespace acsi
