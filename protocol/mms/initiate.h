// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/vocabulary.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// What two sides tell each other of themselves when they initiate an association: limits, and the
// services and features that they know.

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

    static InitiateParameters read(ber::Reader &outer, const ber::Element &element);
    void write(ber::Writer &writer) const;
    /// For traces.
    std::string text() const;

    friend bool operator==(const InitiateParameters &, const InitiateParameters &) = default;
};

} // namespace mms
