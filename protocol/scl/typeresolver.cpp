// SPDX-License-Identifier: Apache-2.0
#include "typeresolver.h"

#include "saturating.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace scl {

using wording::say;
namespace {

struct BasicTypeName
{
    std::string_view name;
    BasicType type;
};

constexpr std::array basicTypeNames = {
    BasicTypeName{"Struct", BasicType::Struct},
    BasicTypeName{"BOOLEAN", BasicType::Boolean},
    BasicTypeName{"INT8", BasicType::Int8},
    BasicTypeName{"INT16", BasicType::Int16},
    BasicTypeName{"INT24", BasicType::Int24},
    BasicTypeName{"INT32", BasicType::Int32},
    BasicTypeName{"INT64", BasicType::Int64},
    BasicTypeName{"INT128", BasicType::Int128},
    BasicTypeName{"INT8U", BasicType::Int8U},
    BasicTypeName{"INT16U", BasicType::Int16U},
    BasicTypeName{"INT24U", BasicType::Int24U},
    BasicTypeName{"INT32U", BasicType::Int32U},
    BasicTypeName{"INT64U", BasicType::Int64U},
    BasicTypeName{"FLOAT32", BasicType::Float32},
    BasicTypeName{"FLOAT64", BasicType::Float64},
    BasicTypeName{"Enum", BasicType::Enum},
    BasicTypeName{"Dbpos", BasicType::Dbpos},
    BasicTypeName{"Tcmd", BasicType::Tcmd},
    BasicTypeName{"Check", BasicType::Check},
    BasicTypeName{"Quality", BasicType::Quality},
    BasicTypeName{"Timestamp", BasicType::Timestamp},
    BasicTypeName{"EntryTime", BasicType::EntryTime},
    BasicTypeName{"VisString32", BasicType::VisString},
    BasicTypeName{"VisString64", BasicType::VisString},
    BasicTypeName{"VisString65", BasicType::VisString},
    BasicTypeName{"VisString129", BasicType::VisString},
    BasicTypeName{"VisString255", BasicType::VisString},
    BasicTypeName{"Unicode255", BasicType::Unicode},
    BasicTypeName{"Octet6", BasicType::Octet},
    BasicTypeName{"Octet8", BasicType::Octet},
    BasicTypeName{"Octet16", BasicType::Octet},
    BasicTypeName{"Octet64", BasicType::Octet},
    BasicTypeName{"ObjRef", BasicType::ObjRef},
    BasicTypeName{"Currency", BasicType::Currency},
    BasicTypeName{"PhyComAddr", BasicType::PhyComAddr},
    BasicTypeName{"TrgOps", BasicType::TrgOps},
    BasicTypeName{"OptFlds", BasicType::OptFlds},
    BasicTypeName{"SvOptFlds", BasicType::SvOptFlds},
    BasicTypeName{"EntryID", BasicType::EntryId},
};

constexpr std::array<std::string_view, 18> functionalConstraints = {
    "ST", "MX", "SP", "SV", "CF", "DC", "SG", "SE", "SR",
    "OR", "BL", "EX", "CO", "BR", "RP", "LG", "GO", "MS"};

} // namespace

void TypeResolver::resolve()
{
    indexTypes();
    std::vector<TypeEntry *> entries;
    for (TypeIndex *index : {&m_daTypes, &m_doTypes, &m_lnTypes}) {
        for (auto &[id, entry] : *index)
            entries.push_back(&entry);
    }
    std::sort(entries.begin(), entries.end(), [](const TypeEntry *left, const TypeEntry *right) {
        return left->element < right->element;
    });
    for (TypeEntry *entry : entries)
        typeOf(*entry);
}

const Template *TypeResolver::nodeType(std::string_view id) const
{
    const auto found = m_lnTypes.find(id);
    return found == m_lnTypes.end() ? nullptr : found->second.type;
}

void TypeResolver::indexTypes()
{
    std::vector<Enumeration> enumerations;
    m_tree.forEachChild(0, [&](std::uint32_t section, Tag tag) {
        if (tag != Tag::DataTypeTemplates)
            return;
        m_tree.forEachChild(section, [&](std::uint32_t element, Tag kind) {
            switch (kind) {
            case Tag::LNodeType:
                indexType(m_lnTypes, element, "LNodeType");
                break;
            case Tag::DoType:
                indexType(m_doTypes, element, "DOType");
                break;
            case Tag::DaType:
                indexType(m_daTypes, element, "DAType");
                break;
            case Tag::EnumType:
                readEnumeration(element, enumerations);
                break;
            default:
                break;
            }
        });
    });
    m_document.enumerations = keep(enumerations);
    for (const Enumeration &enumeration : m_document.enumerations)
        m_enumerations.emplace(enumeration.id, &enumeration);
}

bool TypeResolver::isUsableId(std::uint32_t element, std::string_view id, std::string_view kind)
{
    if (!id.empty())
        return true;
    error(element, say("The %1 has no id and cannot be used.", kind));
    return false;
}

void TypeResolver::indexType(TypeIndex &index, std::uint32_t element, std::string_view kind)
{
    const std::string_view id = trimmed(value(element, Attr::Id));
    if (!isUsableId(element, id, kind))
        return;
    const auto [entry, inserted] = index.try_emplace(id, TypeEntry{element});
    if (!inserted)
        reportDuplicate(element, entry->second.element, kind, id);
}

void TypeResolver::reportDuplicate(std::uint32_t element, std::uint32_t first,
                                   std::string_view kind, std::string_view id)
{
    error(element, say("The %1 \"%2\" is defined again; the definition in line %3 is used.", kind,
                       id, m_tree.at(first).line));
}

void TypeResolver::readEnumeration(std::uint32_t element, std::vector<Enumeration> &enumerations)
{
    const std::string_view id = trimmed(value(element, Attr::Id));
    if (!isUsableId(element, id, "EnumType"))
        return;
    if (const auto first = m_enumElements.find(id); first != m_enumElements.end()) {
        reportDuplicate(element, first->second, "EnumType", id);
        return;
    }
    std::vector<EnumLiteral> literals;
    std::unordered_set<std::int32_t> ordinals;
    m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
        if (tag != Tag::EnumVal)
            return;
        const std::string_view written = value(child, Attr::Ord);
        const auto ordinal = toNumber<std::int32_t>(written);
        if (!ordinal) {
            error(child, say("\"%1\" is not an ordinal; the literal is left out.", written));
            return;
        }
        if (!ordinals.insert(*ordinal).second) {
            error(child,
                  say("The ordinal %1 is given twice; the first literal is used.", *ordinal));
            return;
        }
        const std::string_view text = m_tree.at(child).text;
        if (trimmed(text).size() != text.size())
            info(child, say("The literal \"%1\" begins or ends with a blank.", text));
        literals.push_back({*ordinal, text});
    });
    m_enumElements.emplace(id, element);
    enumerations.push_back({id, keep(literals)});
}

const Template *TypeResolver::typeOf(TypeEntry &entry)
{
    if (entry.state == TypeState::Done)
        return entry.type;
    entry.state = TypeState::Open;
    const std::uint32_t element = entry.element;
    Template type;
    type.id = value(element, Attr::Id);
    type.cdc = trimmed(value(element, Attr::Cdc));
    type.lnClass = trimmed(value(element, Attr::LnClass));
    type.desc = value(element, Attr::Desc);
    const Tag tag = m_tree.at(element).tag;
    if (tag == Tag::DoType && type.cdc.empty())
        warn(element, say("The DOType has no common data class (attribute cdc)."));
    if (tag == Tag::LNodeType && type.lnClass.empty())
        warn(element, say("The LNodeType has no class (attribute lnClass)."));

    std::vector<TemplateNode> nodes;
    std::vector<std::uint32_t> elements;
    std::unordered_set<std::string_view> names;
    m_tree.forEachChild(element, [&](std::uint32_t child, Tag childTag) {
        const bool wanted = (tag == Tag::LNodeType && childTag == Tag::Do) ||
                            (tag == Tag::DoType && (childTag == Tag::Sdo || childTag == Tag::Da)) ||
                            (tag == Tag::DaType && childTag == Tag::Bda);
        if (!wanted)
            return;
        const std::string_view name = trimmed(value(child, Attr::Name));
        if (name.empty()) {
            error(child, say("The element has no name and is left out."));
            return;
        }
        if (!names.insert(name).second) {
            error(child, say("\"%1\" is defined twice in its type; the first is used.", name));
            return;
        }
        TemplateNode node;
        node.name = name;
        node.desc = value(child, Attr::Desc);
        node.shortAddress = value(child, Attr::SAddr);
        if (readNode(child, childTag, node)) {
            nodes.push_back(node);
            elements.push_back(child);
        }
    });
    checkArraySizes(nodes, elements);
    type.nodes = keep(nodes);
    measure(type);
    entry.type = keepOne(type);
    entry.state = TypeState::Done;
    collectConstraints(*entry.type);
    return entry.type;
}

void TypeResolver::collectConstraints(const Template &type)
{
    std::uint32_t constraints = 0;
    for (const TemplateNode &node : type.nodes) {
        if (!node.fc.empty())
            constraints |= constraintBit(node.fc);
        else if (node.type)
            constraints |= m_constraints[node.type];
    }
    m_constraints[&type] = constraints;
}

bool TypeResolver::readNode(std::uint32_t element, Tag tag, TemplateNode &node)
{
    if (tag == Tag::Do || tag == Tag::Sdo) {
        node.kind = tag == Tag::Do ? NodeKind::DataObject : NodeKind::SubDataObject;
        node.transient = flag(element, Attr::Transient, false);
        readCount(element, node);
        node.typeId = value(element, Attr::Type);
        return takeType(element, m_doTypes, "DOType", node);
    }
    node.kind = NodeKind::Attribute;
    node.dataChange = flag(element, Attr::Dchg, false);
    node.qualityChange = flag(element, Attr::Qchg, false);
    node.dataUpdate = flag(element, Attr::Dupd, false);
    node.valueKind = value(element, Attr::ValKind);
    node.typeId = value(element, Attr::Type);
    readCount(element, node);
    if (tag == Tag::Da)
        readFunctionalConstraint(element, node);
    readBasicType(element, node);
    if (node.basicType == BasicType::Struct)
        return takeType(element, m_daTypes, "DAType", node);
    readEnumerationOf(element, node);
    node.defaults = m_values.readValues(element, node);
    return true;
}

void TypeResolver::readCount(std::uint32_t element, TemplateNode &node)
{
    const std::string_view text = trimmed(value(element, Attr::Count));
    if (text.empty())
        return;
    if (const auto size = toNumber<std::uint32_t>(text)) {
        // 0 is the schema's default and means that there is no array.
        node.array = *size > 0;
        node.arraySize = *size;
        return;
    }
    if ((text.front() >= 'a' && text.front() <= 'z') ||
        (text.front() >= 'A' && text.front() <= 'Z')) {
        node.array = true;
        node.arraySizeAttribute = text;
        return;
    }
    error(element,
          say("\"%1\" is not a number of array elements; the element is taken as a single one.",
              text));
}

void TypeResolver::readFunctionalConstraint(std::uint32_t element, TemplateNode &node)
{
    node.fc = trimmed(value(element, Attr::Fc));
    if (node.fc.empty()) {
        error(
            element,
            say("The attribute has no functional constraint (attribute fc) and cannot be addressed."));
    } else if (std::find(functionalConstraints.begin(), functionalConstraints.end(), node.fc) ==
               functionalConstraints.end()) {
        error(element, say("\"%1\" is not a functional constraint.", node.fc));
    }
}

void TypeResolver::readBasicType(std::uint32_t element, TemplateNode &node)
{
    const std::string_view written = value(element, Attr::BType);
    const std::string_view name = trimmed(written);
    for (const BasicTypeName &known : basicTypeNames) {
        if (known.name == name) {
            node.basicType = known.type;
            node.basicTypeName = known.name;
            return;
        }
    }
    for (const BasicTypeName &known : basicTypeNames) {
        if (equalIgnoringCase(known.name, name)) {
            info(element,
                 say("The basic type is written \"%1\" instead of \"%2\".", written, known.name));
            node.basicType = known.type;
            node.basicTypeName = known.name;
            return;
        }
    }
    const std::string_view typeId = trimmed(node.typeId);
    if (name.empty()) {
        if (m_daTypes.contains(typeId)) {
            node.basicType = BasicType::Struct;
            node.basicTypeName = "Struct";
        } else if (m_enumerations.contains(typeId)) {
            node.basicType = BasicType::Enum;
            node.basicTypeName = "Enum";
        } else {
            node.basicType = BasicType::Other;
        }
        error(element, say("The attribute has no basic type (attribute bType)."));
        return;
    }
    node.basicType = BasicType::Other;
    node.basicTypeName = name;
    if (name.starts_with("VisString") || name.starts_with("VISIBLE"))
        node.basicType = BasicType::VisString;
    else if (name.starts_with("Unicode"))
        node.basicType = BasicType::Unicode;
    else if (name.starts_with("Octet"))
        node.basicType = BasicType::Octet;
    warn(element,
         say("\"%1\" is not a basic type of the standard; values are kept as texts.", name));
}

void TypeResolver::readEnumerationOf(std::uint32_t element, TemplateNode &node)
{
    const bool isEnum = node.basicType == BasicType::Enum;
    const bool isCoded = node.basicType == BasicType::Dbpos || node.basicType == BasicType::Tcmd ||
                         node.basicType == BasicType::Check;
    if (!isEnum && !isCoded)
        return;
    const std::string_view id = trimmed(node.typeId);
    if (const auto found = m_enumerations.find(id); found != m_enumerations.end()) {
        node.enumeration = found->second;
        return;
    }
    if (!isEnum)
        return;
    if (id.empty())
        error(element, say("The attribute is an enumeration without a type (attribute type)."));
    else
        error(element, say("The EnumType \"%1\" does not exist.", id));
}

bool TypeResolver::takeType(std::uint32_t element, TypeIndex &index, std::string_view kind,
                            TemplateNode &node)
{
    const std::string_view id = trimmed(node.typeId);
    if (id.empty()) {
        error(element, say("The element has no type (attribute type)."));
        return true;
    }
    const auto found = index.find(id);
    if (found == index.end()) {
        error(element, say("The %1 \"%2\" does not exist.", kind, id));
        return true;
    }
    if (found->second.state == TypeState::Open) {
        error(element, say("The %1 \"%2\" contains itself; this element is left out.", kind, id));
        return false;
    }
    if (++m_typeDepth > m_options.maxDataDepth) {
        --m_typeDepth;
        reportTooDeep(element);
        return false;
    }
    node.type = typeOf(found->second);
    --m_typeDepth;
    if (node.type->height + (node.array ? 2 : 1) > m_options.maxDataDepth) {
        reportTooDeep(element);
        return false;
    }
    return true;
}

void TypeResolver::reportTooDeep(std::uint32_t element)
{
    error(
        element,
        say("The data below this element are nested deeper than %1 levels; the element is left out.",
            m_options.maxDataDepth));
}

void TypeResolver::checkArraySizes(std::vector<TemplateNode> &nodes,
                                   const std::vector<std::uint32_t> &elements)
{
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const std::string_view attribute = nodes[i].arraySizeAttribute;
        if (attribute.empty())
            continue;
        const bool known = std::any_of(nodes.begin(), nodes.end(), [&](const TemplateNode &other) {
            return other.name == attribute && other.isLeaf() && !other.array;
        });
        if (!known) {
            error(
                elements[i],
                say("The attribute \"%1\" that should hold the number of array elements does not exist; the array is empty.",
                    attribute));
            nodes[i].arraySizeAttribute = {};
        }
    }
}

void TypeResolver::measure(Template &type)
{
    for (const TemplateNode &node : type.nodes) {
        std::uint64_t leaves = node.isLeaf() ? 1 : 0;
        std::uint64_t below = 0;
        std::uint16_t height = 1;
        bool varies = !node.arraySizeAttribute.empty();
        if (node.type) {
            leaves = node.type->leafCount;
            below = node.type->nodeCount;
            height = static_cast<std::uint16_t>(height + node.type->height);
            varies = varies || node.type->sizeVaries;
        }
        if (node.array) {
            leaves = saturatingMultiply(leaves, node.arraySize);
            below = saturatingMultiply(saturatingAdd(below, 1), node.arraySize);
            ++height;
        }
        type.leafCount = saturatingAdd(type.leafCount, leaves);
        type.nodeCount = saturatingAdd(type.nodeCount, saturatingAdd(below, 1));
        type.sizeVaries = type.sizeVaries || varies;
        type.height = std::max(type.height, height);
    }
}

std::uint32_t TypeResolver::constraintBit(std::string_view fc)
{
    const auto found = std::find(functionalConstraints.begin(), functionalConstraints.end(), fc);
    return 1U << static_cast<std::uint32_t>(found - functionalConstraints.begin());
}

bool TypeResolver::hasConstraint(const Template *type, std::string_view fc) const
{
    const auto found = m_constraints.find(type);
    return found != m_constraints.end() && (found->second & constraintBit(fc)) != 0;
}

} // namespace scl
