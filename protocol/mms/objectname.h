// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/vocabulary.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace mms {

/// Where a named object lives (ISO 9506-2, 7.5.2).
enum class Scope : std::uint8_t {
    Vmd,         ///< of the whole device
    Domain,      ///< of one domain
    Association, ///< of this association only, gone with it
};

/// The name of an object, and the scope that it is unique in.
struct ObjectName
{
    Scope scope = Scope::Vmd;
    /// Empty unless the scope is a domain.
    std::string domain;
    std::string item;

    static ObjectName ofVmd(std::string_view item) { return {Scope::Vmd, {}, std::string(item)}; }
    static ObjectName inDomain(std::string_view domain, std::string_view item)
    {
        return {Scope::Domain, std::string(domain), std::string(item)};
    }
    static ObjectName ofAssociation(std::string_view item)
    {
        return {Scope::Association, {}, std::string(item)};
    }

    friend bool operator==(const ObjectName &, const ObjectName &) = default;
};

/// What kinds of objects a name list can hold (ISO 9506-2, ObjectClass). A number that the standard
/// does not know is kept.
enum class ObjectClass : std::int32_t {
    NamedVariable = 0,
    ScatteredAccess = 1,
    NamedVariableList = 2,
    NamedType = 3,
    Semaphore = 4,
    EventCondition = 5,
    EventAction = 6,
    EventEnrollment = 7,
    Journal = 8,
    Domain = 9,
    ProgramInvocation = 10,
    OperatorStation = 11,
};

/// "domain/item", "item" for the VMD, "@item" for the association; octets that do not print as "\x"
/// and two digits.
std::string toText(const ObjectName &name);
std::string toText(ObjectClass objectClass);

} // namespace mms
