// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/pdufiles.h"
#include "mms/pduservices.h"
#include "mms/serviceerror.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace mms {

/// Optional features (ISO 9506-2, ParameterSupportOptions); the numbers are the bits.
enum class Parameter : std::uint8_t {
    Arrays = 0,
    Structures = 1,
    NamedVariables = 2,
    AlternateAccess = 3,
    Addresses = 4,
    ScatteredAccess = 5,
    NamedTypes = 6,
    NamedVariableLists = 7,
    Real = 8,
    ConditionalEvents = 10,
};
inline constexpr std::size_t parameterBits = 11;

/// Services (ISO 9506-2, ServiceSupportOptions); the numbers are the bits, and for confirmed
/// services the tags as well.
enum class Service : std::uint8_t {
    Status = 0,
    GetNameList = 1,
    Identify = 2,
    Rename = 3,
    Read = 4,
    Write = 5,
    GetVariableAccessAttributes = 6,
    DefineNamedVariableList = 11,
    GetNamedVariableListAttributes = 12,
    DeleteNamedVariableList = 13,
    ObtainFile = 46,
    ReadJournal = 65,
    FileOpen = 72,
    FileRead = 73,
    FileClose = 74,
    FileRename = 75,
    FileDelete = 76,
    FileDirectory = 77,
    UnsolicitedStatus = 78,
    InformationReport = 79,
    EventNotification = 80,
    Conclude = 83,
    Cancel = 84,
};
inline constexpr std::size_t serviceBits = 85;

/// The standard's name of a confirmed service's tag, such as "getNameList".
std::string_view serviceName(std::uint32_t tagNumber);

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

/// What a rejected PDU was; the numbers are the tags of the reason.
enum class RejectedPdu : std::uint8_t {
    ConfirmedRequest = 1,
    ConfirmedResponse = 2,
    ConfirmedError = 3,
    Unconfirmed = 4,
    PduError = 5,
    CancelRequest = 6,
    CancelResponse = 7,
    CancelError = 8,
    ConcludeRequest = 9,
    ConcludeResponse = 10,
    ConcludeError = 11,
};

// Reject codes that this side gives.
namespace rejectcodes {
inline constexpr std::int32_t requestOther = 0;
inline constexpr std::int32_t requestUnrecognizedService = 1;
inline constexpr std::int32_t requestUnrecognizedModifier = 2;
inline constexpr std::int32_t requestInvalidInvokeId = 3;
inline constexpr std::int32_t requestInvalidArgument = 4;
inline constexpr std::int32_t requestMaxOutstandingExceeded = 6;
inline constexpr std::int32_t requestMaxRecursionExceeded = 8;
inline constexpr std::int32_t requestValueOutOfRange = 9;
inline constexpr std::int32_t responseUnrecognizedService = 1;
inline constexpr std::int32_t responseInvalidInvokeId = 2;
inline constexpr std::int32_t responseInvalidResult = 3;
inline constexpr std::int32_t pduUnknownType = 0;
inline constexpr std::int32_t pduInvalid = 1;
inline constexpr std::int32_t cancelInvalidInvokeId = 1;
} // namespace rejectcodes

struct RejectPdu
{
    std::optional<std::uint32_t> invokeId;
    RejectedPdu rejected = RejectedPdu::PduError;
    /// Among the reasons for this kind of PDU; a number that the standard does not know is kept.
    std::int32_t code = 0;

    friend bool operator==(const RejectPdu &, const RejectPdu &) = default;
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

/// What two sides of an association agree on: proposed in a request, decided in a response.
struct InitiateParameters
{
    /// The longest PDU in octets; absent for no limit.
    std::optional<std::int32_t> maxPduSize;
    /// Confirmed calls of the side that calls that may wait for their answer at the same time.
    std::int16_t maxOutstandingCalling = 1;
    /// Likewise of the side that is called.
    std::int16_t maxOutstandingCalled = 1;
    std::optional<std::int8_t> nestingLevel;
    std::int16_t version = 1;
    /// Bits of Parameter.
    BitString parameters = BitString(parameterBits);
    /// Bits of Service, of the side that sends this.
    BitString services = BitString(serviceBits);

    bool supports(Service service) const
    {
        return services.test(static_cast<std::size_t>(service));
    }
    bool supports(Parameter parameter) const
    {
        return parameters.test(static_cast<std::size_t>(parameter));
    }

    friend bool operator==(const InitiateParameters &, const InitiateParameters &) = default;
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
/// The octets that the PDU of a report takes: what is compared with the negotiated PDU size.
std::size_t encodedSize(const InformationReport &report);
/// The octets that one result takes within it.
std::size_t encodedSize(const AccessResult &result);
/// Puts the octets of a PDU in front of what the writer holds.
void write(ber::Writer &writer, const Pdu &pdu);

/// What can be said of a PDU without reading what is inside its service: enough to match an answer
/// that is malformed, or to reject a request.
struct PduHead
{
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
/// A sentence for the operator.
Text describe(const RejectPdu &reject);

} // namespace mms
