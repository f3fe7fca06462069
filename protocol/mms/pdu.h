// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/initiate.h"
#include "mms/pdufiles.h"
#include "mms/pdujournals.h"
#include "mms/pdulists.h"
#include "mms/pduservices.h"
#include "mms/reject.h"
#include "mms/serviceerror.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace mms {

/// A service that is not read further: its element as it stands.
struct UnknownService
{
    RawElement element;

    friend bool operator==(const UnknownService &, const UnknownService &) = default;
};

using RequestService =
    std::variant<StatusRequest, GetNameListRequest, IdentifyRequest, ReadRequest, WriteRequest,
                 GetVariableAccessAttributesRequest, DefineNamedVariableListRequest,
                 GetNamedVariableListAttributesRequest, DeleteNamedVariableListRequest,
                 ObtainFileRequest, ReadJournalRequest, FileOpenRequest, FileReadRequest,
                 FileCloseRequest, FileRenameRequest, FileDeleteRequest, FileDirectoryRequest,
                 UnknownService>;

using ResponseService =
    std::variant<StatusResponse, GetNameListResponse, IdentifyResponse, ReadResponse, WriteResponse,
                 GetVariableAccessAttributesResponse, DefineNamedVariableListResponse,
                 GetNamedVariableListAttributesResponse, DeleteNamedVariableListResponse,
                 ObtainFileResponse, ReadJournalResponse, FileOpenResponse, FileReadResponse,
                 FileCloseResponse, FileRenameResponse, FileDeleteResponse, FileDirectoryResponse,
                 UnknownService>;

using UnconfirmedService = std::variant<InformationReport, UnknownService>;

struct ConfirmedRequestPdu
{
    std::uint32_t invokeId = 0;
    RequestService request;

    friend bool operator==(const ConfirmedRequestPdu &, const ConfirmedRequestPdu &) = default;
};

struct ConfirmedResponsePdu
{
    std::uint32_t invokeId = 0;
    ResponseService response;

    friend bool operator==(const ConfirmedResponsePdu &, const ConfirmedResponsePdu &) = default;
};

struct ConfirmedErrorPdu
{
    std::uint32_t invokeId = 0;
    std::optional<std::uint32_t> modifierPosition;
    ServiceError error;

    friend bool operator==(const ConfirmedErrorPdu &, const ConfirmedErrorPdu &) = default;
};

struct UnconfirmedPdu
{
    UnconfirmedService service;

    friend bool operator==(const UnconfirmedPdu &, const UnconfirmedPdu &) = default;
};

struct CancelRequestPdu
{
    std::uint32_t invokeId = 0;

    friend bool operator==(const CancelRequestPdu &, const CancelRequestPdu &) = default;
};

struct CancelResponsePdu
{
    std::uint32_t invokeId = 0;

    friend bool operator==(const CancelResponsePdu &, const CancelResponsePdu &) = default;
};

struct CancelErrorPdu
{
    std::uint32_t invokeId = 0;
    ServiceError error;

    friend bool operator==(const CancelErrorPdu &, const CancelErrorPdu &) = default;
};

struct InitiateRequestPdu
{
    InitiateParameters parameters;

    friend bool operator==(const InitiateRequestPdu &, const InitiateRequestPdu &) = default;
};

struct InitiateResponsePdu
{
    InitiateParameters parameters;

    friend bool operator==(const InitiateResponsePdu &, const InitiateResponsePdu &) = default;
};

struct InitiateErrorPdu
{
    ServiceError error;

    friend bool operator==(const InitiateErrorPdu &, const InitiateErrorPdu &) = default;
};

struct ConcludeRequestPdu
{
    friend bool operator==(const ConcludeRequestPdu &, const ConcludeRequestPdu &) = default;
};

struct ConcludeResponsePdu
{
    friend bool operator==(const ConcludeResponsePdu &, const ConcludeResponsePdu &) = default;
};

struct ConcludeErrorPdu
{
    ServiceError error;

    friend bool operator==(const ConcludeErrorPdu &, const ConcludeErrorPdu &) = default;
};

/// Any PDU, in the order of the tags.
using Pdu = std::variant<ConfirmedRequestPdu, ConfirmedResponsePdu, ConfirmedErrorPdu,
                         UnconfirmedPdu, RejectPdu, CancelRequestPdu, CancelResponsePdu,
                         CancelErrorPdu, InitiateRequestPdu, InitiateResponsePdu, InitiateErrorPdu,
                         ConcludeRequestPdu, ConcludeResponsePdu, ConcludeErrorPdu>;

/// Whole input as one PDU. Errors name the first octet that is wrong; octets behind the PDU are an
/// error. Any thread.
Result<Pdu> decodePdu(Bytes bytes, const ber::Limits &limits = {});

/// The octets of a PDU.
std::vector<std::uint8_t> encode(const Pdu &pdu);
/// Puts the octets of a PDU in front of what the writer holds.
void write(ber::Writer &writer, const Pdu &pdu);

/// What can be said of a PDU without reading what is inside its service: enough to match an answer
/// that is malformed, or to reject a request.
struct PduHead
{
    // Some of the types.
    static constexpr std::uint32_t confirmedRequest = 0;
    static constexpr std::uint32_t confirmedResponse = 1;
    static constexpr std::uint32_t confirmedError = 2;
    static constexpr std::uint32_t reject = 4;

    /// The tag of the PDU, 0 to 13.
    std::uint32_t type = 0;
    std::optional<std::uint32_t> invokeId;
    /// The tag of the service of a confirmed request or response, and of an unconfirmed PDU.
    std::optional<std::uint32_t> service;

    friend bool operator==(const PduHead &, const PduHead &) = default;
};

/// None when not even the tag is one of a PDU.
std::optional<PduHead> peekPdu(Bytes bytes, const ber::Limits &limits = {});

/// One line for traces: the standard's name of the PDU, the invoke id, the service and its content.
std::string toText(const Pdu &pdu);

} // namespace mms
