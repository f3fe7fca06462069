// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/pdu.h"

#include <type_traits>
#include <utility>

namespace acsi {

/// A request that asks a server for something and leaves what the server has as it is. One that
/// changes something cannot be put into it.
///
/// To read SBO of a control object selects it (IEC 61850-7-2, 20.5.2.2); that is a Read on the wire
/// and is left to ControlObject.
class ReadingRequest
{
    template <typename Request>
    static constexpr bool isReading =
        std::is_same_v<Request, mms::StatusRequest> ||
        std::is_same_v<Request, mms::IdentifyRequest> ||
        std::is_same_v<Request, mms::GetNameListRequest> ||
        std::is_same_v<Request, mms::ReadRequest> ||
        std::is_same_v<Request, mms::GetVariableAccessAttributesRequest> ||
        std::is_same_v<Request, mms::GetNamedVariableListAttributesRequest> ||
        std::is_same_v<Request, mms::ReadJournalRequest> ||
        std::is_same_v<Request, mms::FileOpenRequest> ||
        std::is_same_v<Request, mms::FileReadRequest> ||
        std::is_same_v<Request, mms::FileCloseRequest> ||
        std::is_same_v<Request, mms::FileDirectoryRequest>;

public:
    template <typename Request, typename = std::enable_if_t<isReading<Request>>>
    ReadingRequest(Request request)
        : m_service(std::move(request))
    {
    }

    const mms::RequestService &service() const & { return m_service; }
    mms::RequestService service() && { return std::move(m_service); }

private:
    mms::RequestService m_service;
};

} // namespace acsi
