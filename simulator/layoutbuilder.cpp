// SPDX-License-Identifier: Apache-2.0
#include "simulator/layoutbuilder.h"

#include "simulator/controlblocks.h"
#include "simulator/memorytext.h"

#include <algorithm>
#include <charconv>
#include <deque>
#include <limits>
#include <map>
#include <unordered_map>
#include <utility>

namespace sim {

namespace {

using scl::BasicType;
using Kind = mms::TypeDescription::Kind;

constexpr std::uint32_t bitOf(Fc fc)
{
    return 1U << static_cast<unsigned>(fc);
}

/// The number at the end of "VisString255".
std::int32_t lengthIn(std::string_view typeName)
{
    constexpr std::int32_t usual = 255;
    const auto last = typeName.find_last_not_of("0123456789");
    const auto digits = typeName.substr(last == std::string_view::npos ? 0 : last + 1);
    std::int32_t length = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), length);
    return error == std::errc() && length > 0 ? length : usual;
}

class Builder
{
public:
    Builder(const scl::LogicalNode &logicalNode, const LayoutSettings &settings)
        : m_logicalNode(logicalNode)
        , m_settings(settings)
    {
    }

    std::unique_ptr<const Layout> build()
    {
        LayoutDraft root;
        root.node.level = Level::LogicalNode;
        std::uint32_t present = 0;
        m_logicalNode.forEachDataObject(
            [&](const scl::DataNode &object) { present |= constraintsOf(object); });
        auto blocks = controlBlocks(m_logicalNode, m_settings.firstEdition);
        for (const auto &[fc, block] : blocks)
            present |= bitOf(fc);
        for (unsigned number = 0; number < 32; ++number) {
            const Fc fc = static_cast<Fc>(number);
            if ((present & bitOf(fc)) == 0)
                continue;
            LayoutDraft section = constraintSection(fc, blocks);
            if (!section.children.empty())
                root.children.push_back(std::move(section));
        }
        std::uint32_t leaves = 0;
        countLeaves(root, leaves);
        flatten(root);
        m_layout->leafNodes.resize(leaves);
        nameLeaves(0, 0);
        sortNames();
        return std::move(m_layout);
    }

private:
    static bool isSetting(Fc fc) { return fc == Fc::SG || fc == Fc::SE; }

    static std::uint32_t maskOf(std::string_view fc)
    {
        const auto known = acsi::functionalConstraintFrom(fc);
        if (!known)
            return 0;
        // What can be edited can be read as it is active, and the other way round.
        return isSetting(*known) ? bitOf(Fc::SG) | bitOf(Fc::SE) : bitOf(*known);
    }

    std::uint32_t constraintsOf(const scl::DataNode &object)
    {
        return object.node().type ? constraintsOf(*object.node().type) : 0;
    }

    std::uint32_t constraintsOf(const scl::Template &type)
    {
        const auto known = m_constraints.find(&type);
        if (known != m_constraints.end())
            return known->second;
        std::uint32_t mask = 0;
        for (const scl::TemplateNode &node : type.nodes) {
            if (node.kind == scl::NodeKind::Attribute)
                mask |= maskOf(node.fc);
            else if (node.type)
                mask |= constraintsOf(*node.type);
        }
        m_constraints.emplace(&type, mask);
        return mask;
    }

    LayoutDraft constraintSection(Fc fc, std::vector<std::pair<Fc, LayoutDraft>> &blocks)
    {
        LayoutDraft section;
        section.node.name = acsi::toText(fc);
        section.node.level = Level::Constraint;
        section.node.fc = fc;
        m_logicalNode.forEachDataObject([&](const scl::DataNode &object) {
            if ((constraintsOf(object) & bitOf(fc)) == 0)
                return;
            LayoutDraft draft = dataDraft(object, fc, Level::DataObject);
            if (draft.hasLeaves())
                section.children.push_back(std::move(draft));
        });
        for (auto &[blockFc, block] : blocks) {
            const bool taken = std::ranges::any_of(section.children, [&](const LayoutDraft &other) {
                return other.node.name == block.node.name;
            });
            if (blockFc != fc || taken)
                continue;
            setConstraint(block, fc);
            block.node.level = Level::DataObject;
            block.node.name = keep(m_settings.memory, block.node.name);
            section.children.push_back(std::move(block));
        }
        return section;
    }

    static void setConstraint(LayoutDraft &draft, Fc fc)
    {
        draft.node.fc = fc;
        for (LayoutDraft &child : draft.children)
            setConstraint(child, fc);
    }

    LayoutDraft dataDraft(const scl::DataNode &data, Fc fc, Level level)
    {
        LayoutDraft draft =
            data.isArray() ? arrayDraft(data, fc, level) : plainDraft(data, fc, level);
        draft.node.name = keep(m_settings.memory, data.name());
        return draft;
    }

    LayoutDraft arrayDraft(const scl::DataNode &data, Fc fc, Level level)
    {
        LayoutDraft draft;
        const std::uint32_t count = data.arraySize().value_or(0);
        LayoutDraft element = plainDraft(data.elementAt(0), fc, level);
        if (!element.hasLeaves())
            return draft;
        draft.node.kind = LayoutNode::Kind::Array;
        draft.node.level = level;
        draft.node.fc = fc;
        draft.node.cdc = element.node.cdc;
        draft.node.elementCount = count;
        draft.children.push_back(std::move(element));
        return draft;
    }

    LayoutDraft plainDraft(const scl::DataNode &data, Fc fc, Level level)
    {
        const scl::TemplateNode &node = data.node();
        if (data.isLeaf())
            return attributeDraft(data, fc);
        LayoutDraft draft;
        draft.node.level = level;
        draft.node.fc = fc;
        if (node.type && !node.type->cdc.empty())
            draft.node.cdc = keep(m_settings.memory, node.type->cdc);
        const bool ownSettings = isSetting(fc) && node.type && hasAttributes(*node.type, fc);
        // What is said of a structure holds for all that is inside it.
        const Trigger outerTriggers = std::exchange(m_triggers, m_triggers | triggersOf(node));
        const bool outerReadOnly = std::exchange(m_readOnly, m_readOnly || isReadOnly(node));
        data.forEachChild([&](const scl::DataNode &child) {
            Level childLevel = Level::Attribute;
            if (child.node().kind == scl::NodeKind::Attribute) {
                if (!belongs(child.fc(), fc, ownSettings))
                    return;
            } else {
                if ((constraintsOf(child) & bitOf(fc)) == 0)
                    return;
                childLevel = Level::SubDataObject;
            }
            LayoutDraft childDraft = dataDraft(child, fc, childLevel);
            if (childDraft.hasLeaves())
                draft.children.push_back(std::move(childDraft));
        });
        m_triggers = outerTriggers;
        m_readOnly = outerReadOnly;
        return draft;
    }

    static Trigger triggersOf(const scl::TemplateNode &node)
    {
        return (node.dataChange ? Trigger::DataChange : Trigger::None) |
               (node.qualityChange ? Trigger::QualityChange : Trigger::None) |
               (node.dataUpdate ? Trigger::DataUpdate : Trigger::None);
    }

    static bool isReadOnly(const scl::TemplateNode &node)
    {
        return node.valueKind == "RO" || node.valueKind == "Conf";
    }

    static bool hasAttributes(const scl::Template &type, Fc fc)
    {
        return std::ranges::any_of(type.nodes, [fc](const scl::TemplateNode &node) {
            return node.fc == acsi::toText(fc);
        });
    }

    static bool belongs(std::string_view attribute, Fc fc, bool ownSettings)
    {
        const auto known = acsi::functionalConstraintFrom(attribute);
        return known == fc || (known && isSetting(*known) && isSetting(fc) && !ownSettings);
    }

    LayoutDraft attributeDraft(const scl::DataNode &data, Fc fc)
    {
        const scl::TemplateNode &node = data.node();
        if (node.basicType == BasicType::PhyComAddr) {
            LayoutDraft address = communicationAddress({});
            setConstraint(address, fc);
            return address;
        }
        LayoutDraft draft;
        LayoutNode &leaf = draft.node;
        leaf.kind = LayoutNode::Kind::Leaf;
        leaf.fc = fc;
        leaf.basicType = node.basicType;
        leaf.readOnly = m_readOnly || isReadOnly(node);
        leaf.triggers = m_triggers | triggersOf(node);
        if (node.basicType == BasicType::Enum)
            leaf.enumeration = enumerationOf(node.enumeration);
        setType(leaf, node);
        return draft;
    }

    void setType(LayoutNode &leaf, const scl::TemplateNode &node)
    {
        const auto set = [&leaf](Kind kind, std::int32_t size) {
            leaf.mmsKind = kind;
            leaf.size = size;
        };
        switch (node.basicType) {
        case BasicType::Boolean:
            return set(Kind::Boolean, 0);
        case BasicType::Int8:
            return set(Kind::Integer, 8);
        case BasicType::Int16:
            return set(Kind::Integer, 16);
        case BasicType::Int24:
            return set(Kind::Integer, 24);
        case BasicType::Int32:
            return set(Kind::Integer, 32);
        case BasicType::Int64:
            return set(Kind::Integer, 64);
        case BasicType::Int128:
            return set(Kind::Integer, 128);
        case BasicType::Int8U:
            return set(Kind::Unsigned, 8);
        case BasicType::Int16U:
            return set(Kind::Unsigned, 16);
        case BasicType::Int24U:
            return set(Kind::Unsigned, 24);
        case BasicType::Int32U:
            return set(Kind::Unsigned, 32);
        case BasicType::Int64U:
            return set(Kind::Unsigned, 64);
        case BasicType::Float32:
            return set(Kind::FloatingPoint, 32);
        case BasicType::Float64:
            return set(Kind::FloatingPoint, 64);
        case BasicType::Enum:
            return set(Kind::Integer, enumerationBits(leaf.enumeration));
        case BasicType::Dbpos:
        case BasicType::Tcmd:
            return set(Kind::BitString, 2);
        case BasicType::Check:
            return set(Kind::BitString, -2);
        case BasicType::Quality:
            return set(Kind::BitString, -13);
        case BasicType::TrgOps:
            return set(Kind::BitString, -6);
        case BasicType::OptFlds:
            return set(Kind::BitString, -10);
        case BasicType::SvOptFlds:
            return set(Kind::BitString, -5);
        case BasicType::Timestamp:
            return set(Kind::UtcTime, 0);
        case BasicType::EntryTime:
            leaf.withDate = true;
            return set(Kind::BinaryTime, 0);
        case BasicType::EntryId:
            return set(Kind::OctetString, 8);
        case BasicType::Octet:
            return set(Kind::OctetString, -lengthIn(node.basicTypeName));
        case BasicType::ObjRef:
            return set(Kind::VisibleString, -129);
        case BasicType::Currency:
            return set(Kind::VisibleString, -3);
        case BasicType::Unicode:
            return set(Kind::MmsString, -lengthIn(node.basicTypeName));
        case BasicType::VisString:
            return set(Kind::VisibleString, -lengthIn(node.basicTypeName));
        case BasicType::PhyComAddr:
        case BasicType::Struct:
        case BasicType::Other:
            return set(Kind::VisibleString, -255);
        }
    }

    std::uint32_t enumerationOf(const scl::Enumeration *enumeration)
    {
        if (!enumeration || enumeration->literals.empty())
            return 0;
        const auto known = m_enumerations.find(enumeration);
        if (known != m_enumerations.end())
            return known->second;
        Layout::Enumeration copy;
        for (const scl::EnumLiteral &literal : enumeration->literals)
            copy.ordinals.push_back(literal.ordinal);
        std::ranges::sort(copy.ordinals);
        m_layout->enumerations.push_back(std::move(copy));
        const auto position = static_cast<std::uint32_t>(m_layout->enumerations.size());
        m_enumerations.emplace(enumeration, position);
        return position;
    }

    std::int32_t enumerationBits(std::uint32_t enumeration) const
    {
        if (enumeration == 0)
            return 8;
        const auto &ordinals = m_layout->enumerations[enumeration - 1].ordinals;
        const auto fits = [&ordinals](std::int32_t smallest, std::int32_t largest) {
            return ordinals.front() >= smallest && ordinals.back() <= largest;
        };
        if (fits(std::numeric_limits<std::int8_t>::min(), std::numeric_limits<std::int8_t>::max()))
            return 8;
        return fits(std::numeric_limits<std::int16_t>::min(),
                    std::numeric_limits<std::int16_t>::max())
                   ? 16
                   : 32;
    }

    static std::uint32_t countLeaves(LayoutDraft &draft, std::uint32_t &offset)
    {
        LayoutNode &node = draft.node;
        node.firstLeaf = offset;
        if (node.isLeaf()) {
            ++offset;
        } else {
            for (LayoutDraft &child : draft.children)
                countLeaves(child, offset);
            if (node.isArray())
                offset = node.firstLeaf + draft.children.front().node.leafCount * node.elementCount;
        }
        node.leafCount = offset - node.firstLeaf;
        return node.leafCount;
    }

    void flatten(const LayoutDraft &root)
    {
        auto &nodes = m_layout->nodes;
        nodes.push_back(root.node);
        std::deque<std::pair<const LayoutDraft *, std::uint32_t>> waiting{{&root, 0}};
        while (!waiting.empty()) {
            const auto [draft, position] = waiting.front();
            waiting.pop_front();
            const auto first = static_cast<std::uint32_t>(nodes.size());
            nodes[position].firstChild = first;
            nodes[position].childCount = static_cast<std::uint32_t>(draft->children.size());
            for (const LayoutDraft &child : draft->children) {
                waiting.emplace_back(&child, static_cast<std::uint32_t>(nodes.size()));
                nodes.push_back(child.node);
                nodes.back().parent = position;
            }
        }
        nodes.shrink_to_fit();
    }

    void nameLeaves(std::uint32_t position, std::uint32_t firstLeaf)
    {
        const LayoutNode &node = m_layout->nodes[position];
        if (node.isLeaf()) {
            m_layout->leafNodes[firstLeaf] = position;
        } else if (node.isArray()) {
            const std::uint32_t stride = m_layout->nodes[node.firstChild].leafCount;
            for (std::uint32_t i = 0; i < node.elementCount; ++i)
                nameLeaves(node.firstChild, firstLeaf + i * stride);
        } else {
            for (std::uint32_t i = 0; i < node.childCount; ++i) {
                const std::uint32_t child = node.firstChild + i;
                nameLeaves(child, firstLeaf + m_layout->nodes[child].firstLeaf - node.firstLeaf);
            }
        }
    }

    void sortNames()
    {
        const auto &nodes = m_layout->nodes;
        auto &byName = m_layout->byName;
        byName.resize(nodes.size());
        for (std::uint32_t i = 0; i < nodes.size(); ++i)
            byName[i] = i;
        for (const LayoutNode &node : nodes) {
            const auto first = byName.begin() + node.firstChild;
            std::sort(first, first + node.childCount, [&nodes](std::uint32_t a, std::uint32_t b) {
                return nodes[a].name < nodes[b].name;
            });
        }
    }

    const scl::LogicalNode &m_logicalNode;
    const LayoutSettings &m_settings;
    std::unique_ptr<Layout> m_layout = std::make_unique<Layout>();
    std::unordered_map<const scl::Template *, std::uint32_t> m_constraints;
    std::map<const scl::Enumeration *, std::uint32_t> m_enumerations;
    Trigger m_triggers = Trigger::None;
    bool m_readOnly = false;
};

} // namespace

bool hasOwnLayout(const scl::LogicalNode &logicalNode)
{
    return (logicalNode.type && logicalNode.type->sizeVaries) || !logicalNode.reports.empty() ||
           !logicalNode.logControls.empty() || !logicalNode.gooseControls.empty() ||
           !logicalNode.sampledValueControls.empty() || logicalNode.settingControl;
}

std::unique_ptr<const Layout> makeLayout(const scl::LogicalNode &logicalNode,
                                         const LayoutSettings &settings)
{
    return Builder(logicalNode, settings).build();
}

} // namespace sim
