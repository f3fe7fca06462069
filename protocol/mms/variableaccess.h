// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "mms/objectname.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace mms {

/// The address of a variable without a name (ISO 9506-2, Address).
struct Address
{
    enum class Kind : std::uint8_t { Numeric, Symbolic, Unconstrained };

    Kind kind = Kind::Numeric;
    std::uint32_t number = 0;
    /// A symbol, or the octets of an unconstrained address.
    std::string symbol;

    friend bool operator==(const Address &, const Address &) = default;
};

/// A variable that does not exist any more but keeps its place in a list.
struct InvalidatedVariable
{
    friend bool operator==(const InvalidatedVariable &, const InvalidatedVariable &) = default;
};

using VariableSpecification = std::variant<ObjectName, Address, InvalidatedVariable>;

/// A part of a variable that is to be accessed instead of the whole (ISO 9506-2, AlternateAccess):
/// a component, an element, some elements or all elements, and of these again only parts.
struct AlternateAccess
{
    enum class Kind : std::uint8_t { Component, Index, IndexRange, AllElements };

    /// The name that the part shall have in the answer.
    std::optional<std::string> name;
    Kind kind = Kind::Component;
    /// Of a component.
    std::string component;
    /// The element, or the first of some elements; counted from 0.
    std::uint32_t index = 0;
    /// Of some elements; 0 means up to the end.
    std::uint32_t count = 0;
    /// Parts of what is selected here; empty for the whole of it.
    std::vector<AlternateAccess> parts;

    static AlternateAccess ofComponent(std::string_view component,
                                       std::vector<AlternateAccess> parts = {});
    static AlternateAccess ofElement(std::uint32_t index, std::vector<AlternateAccess> parts = {});
    static AlternateAccess ofElements(std::uint32_t first, std::uint32_t count,
                                      std::vector<AlternateAccess> parts = {});
    static AlternateAccess ofAllElements(std::vector<AlternateAccess> parts = {});

    friend bool operator==(const AlternateAccess &, const AlternateAccess &) = default;
};

/// A member of a list of variables.
struct VariableAccess
{
    VariableSpecification variable;
    /// Parts of the variable; empty for the whole of it.
    std::vector<AlternateAccess> parts;

    friend bool operator==(const VariableAccess &, const VariableAccess &) = default;
};

/// What is read, written or reported: variables one by one, or a named list.
using VariableAccessSpecification = std::variant<std::vector<VariableAccess>, ObjectName>;

std::string toText(const Address &address);
std::string toText(const VariableSpecification &specification);
/// "(3)", "(3..5)", "(*)" and ".component" behind each other; several parts in braces.
std::string toText(const std::vector<AlternateAccess> &parts);
std::string toText(const VariableAccess &access);
std::string toText(const VariableAccessSpecification &specification);

} // namespace mms
