// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simulator/layout.h"

#include <string_view>
#include <utility>
#include <vector>

namespace sim {

/// A layout while it is made: a tree of its own.
struct LayoutDraft
{
    LayoutNode node;
    std::vector<LayoutDraft> children;

    bool hasLeaves() const { return node.isLeaf() || node.isArray() || !children.empty(); }
};

inline LayoutDraft leafDraft(std::string_view name, scl::BasicType basicType,
                             mms::TypeDescription::Kind kind, std::int32_t size)
{
    LayoutDraft draft;
    draft.node.name = name;
    draft.node.kind = LayoutNode::Kind::Leaf;
    draft.node.basicType = basicType;
    draft.node.mmsKind = kind;
    draft.node.size = size;
    draft.node.withDate = kind == mms::TypeDescription::Kind::BinaryTime;
    return draft;
}

inline LayoutDraft structureDraft(std::string_view name, std::vector<LayoutDraft> children)
{
    LayoutDraft draft;
    draft.node.name = name;
    draft.children = std::move(children);
    return draft;
}

/// Address, priority, VLAN and application of a message on the process bus.
LayoutDraft communicationAddress(std::string_view name);

} // namespace sim
