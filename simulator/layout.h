// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/functionalconstraint.h"
#include "mms/typedescription.h"
#include "scl/value.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace sim {

/// Functional constraints; the order of the enumeration is that of the components of a logical
/// node.
using Fc = acsi::FunctionalConstraint;

/// Reasons of a change that a report can be triggered by, as a set of flags.
enum class Trigger : std::uint8_t { None = 0, DataChange = 1, QualityChange = 2, DataUpdate = 4 };

constexpr Trigger operator|(Trigger left, Trigger right)
{
    return static_cast<Trigger>(static_cast<std::uint8_t>(left) | static_cast<std::uint8_t>(right));
}
constexpr Trigger operator&(Trigger left, Trigger right)
{
    return static_cast<Trigger>(static_cast<std::uint8_t>(left) & static_cast<std::uint8_t>(right));
}
constexpr bool any(Trigger triggers)
{
    return triggers != Trigger::None;
}

/// What a node of a logical node is in the terms of IEC 61850-7-2.
enum class Level : std::uint8_t {
    LogicalNode,
    Constraint, ///< all data of a logical node with one functional constraint
    DataObject, ///< also a control block
    SubDataObject,
    Attribute, ///< also what is inside a control block
};

/// One node of the type of a logical node. Elements of an array share one node, its only child.
struct LayoutNode
{
    enum class Kind : std::uint8_t { Structure, Array, Leaf };

    std::string_view name; ///< empty for a logical node and for the elements of an array
    std::string_view cdc;  ///< of a data object
    Kind kind = Kind::Structure;
    Level level = Level::Attribute;
    Fc fc = Fc::ST;                                    ///< of everything but a logical node
    scl::BasicType basicType = scl::BasicType::Struct; ///< of a leaf
    Trigger triggers = Trigger::None;                  ///< of a leaf: what a change may trigger
    bool readOnly = false;                             ///< configured as not to be written
    bool withDate = false;                             ///< of a binary time
    mms::TypeDescription::Kind mmsKind = mms::TypeDescription::Kind::Structure;
    std::int32_t size = 0;        ///< of a leaf, as in mms::TypeDescription
    std::uint32_t parent = 0;     ///< position in the layout; the root is its own parent
    std::uint32_t firstChild = 0; ///< children stand behind each other
    std::uint32_t childCount = 0;
    std::uint32_t elementCount = 0; ///< of an array
    std::uint32_t firstLeaf = 0;    ///< counted in the logical node, with elements 0 taken above
    std::uint32_t leafCount = 0;    ///< all elements of arrays counted
    std::uint32_t enumeration = 0;  ///< 0 for none, else position in the layout's plus 1

    bool isLeaf() const { return kind == Kind::Leaf; }
    bool isArray() const { return kind == Kind::Array; }
};

/// The type of a logical node, flat; shared by all logical nodes of that type where sizes of arrays
/// do not differ. Immutable once made.
struct Layout
{
    struct Enumeration
    {
        std::vector<std::int32_t> ordinals; ///< sorted
    };

    std::vector<LayoutNode> nodes;     ///< the first is the logical node
    std::vector<std::uint32_t> byName; ///< for each run of children: its positions sorted by name
    std::vector<std::uint32_t> leafNodes; ///< node of each leaf
    std::vector<Enumeration> enumerations;
};

} // namespace sim
