// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/client.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace acsi {

/// What became of one request to read some variables.
struct ReadAnswer
{
    enum class Kind {
        Results,  ///< one for each variable
        TooLarge, ///< the request or its answer, or the device cannot take them together
        Refused,  ///< as a whole, with error
        Silent,   ///< the device did not answer in time
        NotSent,  ///< no place became free in time: the device was not asked
        Ended     ///< the association did, or the device does not know the service
    };

    Kind kind = Kind::Ended;
    std::vector<mms::AccessResult> results;
    mms::DataAccessError error = mms::DataAccessError::ObjectAccessUnsupported;
    mms::Text reason; ///< one sentence without results
};

mms::ReadRequest readRequest(std::vector<mms::VariableAccess> variables);
/// Octets that a request to read nothing takes at most.
std::size_t readFrameSize();
/// Octets that the variable adds to a request.
std::size_t readSize(const mms::VariableAccess &variable);
/// @p count variables were asked for.
ReadAnswer readAnswer(mms::CallOutcome outcome, std::size_t count);

/// What came of one variable of a list.
struct ReadResult
{
    enum class Kind {
        Answered, ///< a value or an access error
        Refused,  ///< the request was, though it was for this variable alone, or it was too large
        Missing   ///< no answer came in time
    };

    Kind kind = Kind::Missing;
    mms::AccessResult result = mms::DataAccessError::ObjectInvalidated; ///< unless missing
    mms::Text reason; ///< one sentence when it was not answered
};

/// Reads in as few requests as request and answers fit; a list that is refused as a whole, or whose
/// answer is too large for the PDU, is asked for in halves. One result for each variable, in their
/// order; what came before a time-out is kept, and nothing more is asked for then. An error when
/// the association ended.
asio::awaitable<mms::Result<std::vector<ReadResult>>>
readEach(std::shared_ptr<Client> client, std::vector<mms::VariableAccess> variables);

} // namespace acsi
