// SPDX-License-Identifier: Apache-2.0
#include "resolver.h"

#include <array>
#include <charconv>
#include <cstring>
#include <limits>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace scl {
namespace {

constexpr std::uint64_t saturated = std::numeric_limits<std::uint64_t>::max();

std::uint64_t saturatingAdd(std::uint64_t left, std::uint64_t right)
{
    return left > saturated - right ? saturated : left + right;
}

std::uint64_t saturatingMultiply(std::uint64_t left, std::uint64_t right)
{
    return right != 0 && left > saturated / right ? saturated : left * right;
}

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

bool equalIgnoringCase(std::string_view left, std::string_view right)
{
    const auto lower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    return left.size() == right.size() &&
           std::equal(left.begin(), left.end(), right.begin(),
                      [lower](char a, char b) { return lower(a) == lower(b); });
}

template <typename Number>
std::optional<Number> toNumber(std::string_view text)
{
    text = trimmed(text);
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || text.empty())
        return std::nullopt;
    return number;
}

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    result += text;
    result += '"';
    return result;
}

/// One component of a path: "phsAHar(7)" is name "phsAHar", index 7.
struct PathPart
{
    std::string_view name;
    std::int32_t index = -1;
};

PathPart splitIndex(std::string_view component)
{
    if (component.ends_with(')')) {
        const std::size_t open = component.find('(');
        if (open != std::string_view::npos) {
            const auto index =
                toNumber<std::int32_t>(component.substr(open + 1, component.size() - open - 2));
            if (index && *index >= 0)
                return {component.substr(0, open), *index};
        }
    }
    return {component, -1};
}

void appendParts(std::string_view path, std::vector<PathPart> &parts)
{
    while (!path.empty()) {
        const std::size_t dot = path.find('.');
        parts.push_back(splitIndex(path.substr(0, dot)));
        path = dot == std::string_view::npos ? std::string_view() : path.substr(dot + 1);
    }
}

enum class TypeState : std::uint8_t { Untouched, Open, Done };

struct TypeEntry
{
    std::uint32_t element = noElement;
    TypeState state = TypeState::Untouched;
    const Template *type = nullptr;
};

using TypeIndex = std::unordered_map<std::string_view, TypeEntry>;

class Resolver
{
public:
    Resolver(const XmlTree &tree, const ReadOptions &options,
             const std::function<void(double)> &progress, Document &document)
        : m_tree(tree)
        , m_options(options)
        , m_progress(progress)
        , m_document(document)
    {
    }

    XmlError run()
    {
        for (const Finding &finding : m_tree.findings)
            addFinding(finding);
        readRoot();
        indexTypes();
        for (auto *index : {&m_daTypes, &m_doTypes, &m_lnTypes}) {
            for (auto &[id, entry] : *index)
                m_typeOrder.push_back({entry.element, &entry});
        }
        std::sort(m_typeOrder.begin(), m_typeOrder.end(),
                  [](const auto &left, const auto &right) { return left.first < right.first; });
        for (const auto &[element, entry] : m_typeOrder)
            typeOf(*entry);
        readIeds();
        if (m_error.error == ReadError::None)
            readCommunication();
        return m_error;
    }

private:
    // Findings ------------------------------------------------------------------------------

    void addFinding(Finding finding)
    {
        m_document.hasErrors = m_document.hasErrors || finding.severity == Severity::Error;
        if (m_document.findings.size() < m_options.maxFindings)
            m_document.findings.push_back(std::move(finding));
        else
            ++m_document.findingsLeftOut;
    }

    bool roomForFinding(Severity severity)
    {
        if (m_document.findings.size() < m_options.maxFindings)
            return true;
        m_document.hasErrors = m_document.hasErrors || severity == Severity::Error;
        ++m_document.findingsLeftOut;
        return false;
    }

    void report(Severity severity, std::uint32_t element, std::string text)
    {
        if (roomForFinding(severity))
            addFinding(
                {severity, m_tree.at(element).line, m_tree.pathOf(element), std::move(text)});
    }
    void info(std::uint32_t element, std::string text)
    {
        report(Severity::Info, element, std::move(text));
    }
    void warn(std::uint32_t element, std::string text)
    {
        report(Severity::Warning, element, std::move(text));
    }
    void error(std::uint32_t element, std::string text)
    {
        report(Severity::Error, element, std::move(text));
    }

    bool stopped()
    {
        if (m_error.error != ReadError::None)
            return true;
        if (m_options.cancelled && m_options.cancelled->load(std::memory_order_relaxed))
            m_error = {ReadError::Cancelled, "The import was cancelled.", 0};
        return m_error.error != ReadError::None;
    }

    // Memory --------------------------------------------------------------------------------

    template <typename Item>
    std::span<Item> keepMutable(const std::vector<Item> &items)
    {
        static_assert(std::is_trivially_destructible_v<Item>);
        if (items.empty())
            return {};
        void *place = m_document.memory().allocate(items.size() * sizeof(Item), alignof(Item));
        auto *first = static_cast<Item *>(place);
        std::uninitialized_copy(items.begin(), items.end(), first);
        return {first, items.size()};
    }

    template <typename Item>
    std::span<const Item> keep(const std::vector<Item> &items)
    {
        return keepMutable(items);
    }

    template <typename Item>
    const Item *keepOne(const Item &item)
    {
        static_assert(std::is_trivially_destructible_v<Item>);
        void *place = m_document.memory().allocate(sizeof(Item), alignof(Item));
        return new (place) Item(item);
    }

    std::string_view keepText(std::string_view text)
    {
        if (text.empty())
            return {};
        auto *copy = static_cast<char *>(m_document.memory().allocate(text.size(), 1));
        std::memcpy(copy, text.data(), text.size());
        return {copy, text.size()};
    }

    std::string_view joined(std::string_view a, std::string_view b, std::string_view c = {})
    {
        if (b.empty() && c.empty())
            return a;
        m_scratch.assign(a);
        m_scratch += b;
        m_scratch += c;
        return keepText(m_scratch);
    }

    // Attributes ----------------------------------------------------------------------------

    std::string_view value(std::uint32_t element, Attr attribute) const
    {
        return m_tree.value(element, attribute);
    }

    std::uint32_t number(std::uint32_t element, Attr attribute, std::string_view name,
                         std::uint32_t fallback)
    {
        const std::string_view *text = m_tree.find(element, attribute);
        if (!text || trimmed(*text).empty())
            return fallback;
        if (const auto result = toNumber<std::uint32_t>(*text))
            return *result;
        error(element, quoted(*text) + " is not a value of " + std::string(name) + "; " +
                           std::to_string(fallback) + " is used.");
        return fallback;
    }

    bool flag(std::uint32_t element, Attr attribute, bool fallback)
    {
        const std::string_view *text = m_tree.find(element, attribute);
        if (!text || trimmed(*text).empty())
            return fallback;
        const std::string_view bare = trimmed(*text);
        if (equalIgnoringCase(bare, "true") || bare == "1")
            return true;
        if (equalIgnoringCase(bare, "false") || bare == "0")
            return false;
        error(element, quoted(*text) + " is neither \"true\" nor \"false\"; " +
                           (fallback ? "true" : "false") + " is used.");
        return fallback;
    }

    // Root and types ------------------------------------------------------------------------

    void readRoot()
    {
        m_document.version = trimmed(value(0, Attr::Version));
        m_document.revision = trimmed(value(0, Attr::Revision));
        m_document.release = number(0, Attr::Release, "release", 0);
        if (const std::uint32_t header = m_tree.firstChild(0, Tag::Header); header != noElement) {
            m_document.headerId = value(header, Attr::Id);
            m_document.toolId = value(header, Attr::ToolId);
        }
    }

    void indexTypes()
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

    bool isUsableId(std::uint32_t element, std::string_view id, std::string_view kind)
    {
        if (!id.empty())
            return true;
        error(element, "The " + std::string(kind) + " has no id and cannot be used.");
        return false;
    }

    void indexType(TypeIndex &index, std::uint32_t element, std::string_view kind)
    {
        const std::string_view id = trimmed(value(element, Attr::Id));
        if (!isUsableId(element, id, kind))
            return;
        const auto [entry, inserted] = index.try_emplace(id, TypeEntry{element});
        if (!inserted)
            reportDuplicate(element, entry->second.element, kind, id);
    }

    void reportDuplicate(std::uint32_t element, std::uint32_t first, std::string_view kind,
                         std::string_view id)
    {
        error(element, "The " + std::string(kind) + " " + quoted(id) +
                           " is defined again; the definition in line " +
                           std::to_string(m_tree.at(first).line) + " is used.");
    }

    void readEnumeration(std::uint32_t element, std::vector<Enumeration> &enumerations)
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
                error(child, quoted(written) + " is not an ordinal; the literal is left out.");
                return;
            }
            if (!ordinals.insert(*ordinal).second) {
                error(child, "The ordinal " + std::to_string(*ordinal) +
                                 " is given twice; the first literal is used.");
                return;
            }
            const std::string_view text = m_tree.at(child).text;
            if (trimmed(text).size() != text.size())
                info(child, "The literal " + quoted(text) + " begins or ends with a blank.");
            literals.push_back({*ordinal, text});
        });
        m_enumElements.emplace(id, element);
        enumerations.push_back({id, keep(literals)});
    }

    const Template *typeOf(TypeEntry &entry)
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
            warn(element, "The DOType has no common data class (attribute cdc).");
        if (tag == Tag::LNodeType && type.lnClass.empty())
            warn(element, "The LNodeType has no class (attribute lnClass).");

        std::vector<TemplateNode> nodes;
        std::vector<std::uint32_t> elements;
        std::unordered_set<std::string_view> names;
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag childTag) {
            const bool wanted =
                (tag == Tag::LNodeType && childTag == Tag::Do) ||
                (tag == Tag::DoType && (childTag == Tag::Sdo || childTag == Tag::Da)) ||
                (tag == Tag::DaType && childTag == Tag::Bda);
            if (!wanted)
                return;
            const std::string_view name = trimmed(value(child, Attr::Name));
            if (name.empty()) {
                error(child, "The element has no name and is left out.");
                return;
            }
            if (!names.insert(name).second) {
                error(child, quoted(name) + " is defined twice in its type; the first is used.");
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

    void collectConstraints(const Template &type)
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

    /// False when the node cannot be part of its type.
    bool readNode(std::uint32_t element, Tag tag, TemplateNode &node)
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
        node.defaults = readValues(element, node);
        return true;
    }

    void readCount(std::uint32_t element, TemplateNode &node)
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
        error(element, quoted(text) + " is not a number of array elements; the element is taken as "
                                      "a single one.");
    }

    void readFunctionalConstraint(std::uint32_t element, TemplateNode &node)
    {
        node.fc = trimmed(value(element, Attr::Fc));
        if (node.fc.empty()) {
            error(element,
                  "The attribute has no functional constraint (attribute fc) and cannot be "
                  "addressed.");
        } else if (std::find(functionalConstraints.begin(), functionalConstraints.end(), node.fc) ==
                   functionalConstraints.end()) {
            error(element, quoted(node.fc) + " is not a functional constraint.");
        }
    }

    void readBasicType(std::uint32_t element, TemplateNode &node)
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
                info(element, "The basic type is written " + quoted(written) + " instead of " +
                                  quoted(known.name) + ".");
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
            error(element, "The attribute has no basic type (attribute bType).");
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
        warn(element, quoted(name) + " is not a basic type of the standard; values are kept as "
                                     "texts.");
    }

    void readEnumerationOf(std::uint32_t element, TemplateNode &node)
    {
        const bool isEnum = node.basicType == BasicType::Enum;
        const bool isCoded = node.basicType == BasicType::Dbpos ||
                             node.basicType == BasicType::Tcmd ||
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
            error(element, "The attribute is an enumeration without a type (attribute type).");
        else
            error(element, "The EnumType " + quoted(id) + " does not exist.");
    }

    bool takeType(std::uint32_t element, TypeIndex &index, std::string_view kind,
                  TemplateNode &node)
    {
        const std::string_view id = trimmed(node.typeId);
        if (id.empty()) {
            error(element, "The element has no type (attribute type).");
            return true;
        }
        const auto found = index.find(id);
        if (found == index.end()) {
            error(element, "The " + std::string(kind) + " " + quoted(id) + " does not exist.");
            return true;
        }
        if (found->second.state == TypeState::Open) {
            error(element, "The " + std::string(kind) + " " + quoted(id) +
                               " contains itself; this element is left out.");
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

    void reportTooDeep(std::uint32_t element)
    {
        error(element, "The data below this element are nested deeper than " +
                           std::to_string(m_options.maxDataDepth) +
                           " levels; the element is left out.");
    }

    void checkArraySizes(std::vector<TemplateNode> &nodes,
                         const std::vector<std::uint32_t> &elements)
    {
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            const std::string_view attribute = nodes[i].arraySizeAttribute;
            if (attribute.empty())
                continue;
            const bool known =
                std::any_of(nodes.begin(), nodes.end(), [&](const TemplateNode &other) {
                    return other.name == attribute && other.isLeaf() && !other.array;
                });
            if (!known) {
                error(elements[i], "The attribute " + quoted(attribute) +
                                       " that should hold the number of array elements does not "
                                       "exist; the array is empty.");
                nodes[i].arraySizeAttribute = {};
            }
        }
    }

    static void measure(Template &type)
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

    // Values --------------------------------------------------------------------------------

    std::span<const ConfiguredValue> readValues(std::uint32_t element, const TemplateNode &node)
    {
        std::array<ConfiguredValue, 1> single;
        std::size_t count = 0;
        std::vector<ConfiguredValue> several;
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            if (tag != Tag::Val)
                return;
            const ConfiguredValue configured = readValue(child, node);
            if (count == 1 && several.empty())
                several.push_back(single.front());
            if (count == 0)
                single.front() = configured;
            else
                several.push_back(configured);
            ++count;
        });
        if (count == 0)
            return {};
        return count == 1 ? std::span<const ConfiguredValue>(keepOne(single.front()), 1)
                          : keep(several);
    }

    ConfiguredValue readValue(std::uint32_t element, const TemplateNode &node)
    {
        ConfiguredValue result;
        result.settingGroup = number(element, Attr::SGroup, "sGroup", 0);
        result.text = m_tree.at(element).text;
        const ParsedValue parsed =
            parseValue(node.basicType, node.enumeration, result.text, m_document.memory());
        result.value = parsed.value;
        if (parsed.note == ValueNote::None)
            return result;
        switch (parsed.note) {
        case ValueNote::None:
            break;
        case ValueNote::Empty:
            if (roomForFinding(Severity::Info))
                info(element, "The value is empty, so the attribute has none.");
            break;
        case ValueNote::OrdinalForText:
            if (roomForFinding(Severity::Info))
                info(element, "The value is given by its number " + quoted(trimmed(result.text)) +
                                  " instead of its text.");
            break;
        case ValueNote::Blanks:
            if (roomForFinding(Severity::Info))
                info(element, "The value " + quoted(result.text) +
                                  " differs in blanks or capitals from what is expected.");
            break;
        case ValueNote::BooleanSpelling:
            if (roomForFinding(Severity::Info))
                info(element, "The truth value is written " + quoted(result.text) +
                                  " instead of \"true\" or \"false\".");
            break;
        case ValueNote::Unfit:
            error(element, quoted(result.text) + " is not a value of " +
                               (node.basicTypeName.empty() ? std::string("its type")
                                                           : std::string(node.basicTypeName)) +
                               (node.enumeration ? " " + quoted(node.enumeration->id) : "") +
                               "; the attribute has no value.");
            break;
        }
        return result;
    }

    // Instances -----------------------------------------------------------------------------

    std::span<const InstanceNode> readInstances(std::uint32_t element, const Template *type)
    {
        std::vector<InstanceNode> nodes;
        std::vector<std::uint32_t> elements;
        bool ordered = true;
        std::uint32_t hint = 0;
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            if (tag != Tag::Doi && tag != Tag::Sdi && tag != Tag::Dai)
                return;
            if (!type)
                return;
            InstanceNode node;
            if (!bind(child, *type, hint, node))
                return;
            hint = node.node;
            const TemplateNode &bound = type->nodes[node.node];
            node.desc = value(child, Attr::Desc);
            node.shortAddress = value(child, Attr::SAddr);
            node.valueKind = value(child, Attr::ValKind);
            if (bound.isLeaf()) {
                if (tag != Tag::Dai)
                    reportInstance(child, "names an attribute, which takes a DAI");
                node.values = readValues(child, bound);
            } else {
                if (tag == Tag::Dai && m_tree.firstChild(child, Tag::Val) != noElement)
                    reportInstance(child, "has a value, but it is a structure");
                node.children = readInstances(child, bound.type);
            }
            if (!nodes.empty() && !before(nodes.back(), node))
                ordered = false;
            nodes.push_back(node);
            elements.push_back(child);
        });
        if (!ordered)
            sortInstances(nodes, elements);
        return keep(nodes);
    }

    static bool before(const InstanceNode &left, const InstanceNode &right)
    {
        return left.node != right.node ? left.node < right.node : left.index < right.index;
    }

    void sortInstances(std::vector<InstanceNode> &nodes, const std::vector<std::uint32_t> &elements)
    {
        std::vector<std::size_t> order(nodes.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            order[i] = i;
        std::stable_sort(order.begin(), order.end(), [&nodes](std::size_t left, std::size_t right) {
            return before(nodes[left], nodes[right]);
        });
        std::vector<InstanceNode> sorted;
        sorted.reserve(nodes.size());
        for (const std::size_t i : order) {
            if (!sorted.empty() && !before(sorted.back(), nodes[i])) {
                error(elements[i], "The instance is given twice; the first is used.");
                continue;
            }
            sorted.push_back(nodes[i]);
        }
        nodes = std::move(sorted);
    }

    void reportInstance(std::uint32_t element, std::string_view why)
    {
        warn(element, quoted(value(element, Attr::Name)) + " " + std::string(why) + ".");
    }

    /// Position of a node in its type, or the number of nodes. Instances mostly follow the order of
    /// their type, so the search begins at @p hint.
    std::size_t positionOf(const Template &type, std::string_view name, std::size_t hint)
    {
        const std::size_t count = type.nodes.size();
        const std::size_t steps = std::min(count, linearSearchLimit);
        for (std::size_t step = 0; step < steps; ++step) {
            const std::size_t candidate = (hint + step) % count;
            if (type.nodes[candidate].name == name)
                return candidate;
        }
        if (steps == count)
            return count;
        auto &positions = m_largeTypes[&type];
        if (positions.empty()) {
            for (std::size_t i = 0; i < count; ++i)
                positions.emplace(type.nodes[i].name, i);
        }
        const auto found = positions.find(name);
        return found == positions.end() ? count : found->second;
    }

    bool bind(std::uint32_t element, const Template &type, std::uint32_t hint, InstanceNode &node)
    {
        const std::string_view *written = m_tree.find(element, Attr::Name);
        if (!written) {
            warn(element, "The instance has no name and is left out.");
            return false;
        }
        PathPart part{trimmed(*written), -1};
        if (part.name.ends_with(')'))
            part = splitIndex(part.name);
        const std::size_t found = positionOf(type, part.name, hint);
        if (found == type.nodes.size()) {
            reportInstance(element, "does not exist in type " + quoted(type.id) +
                                        "; what is given for it is left out");
            return false;
        }
        if (const std::string_view *ix = m_tree.find(element, Attr::Ix)) {
            part.index = toNumber<std::int32_t>(*ix).value_or(-1);
            if (part.index < 0) {
                error(element, quoted(*ix) + " is not the number of an array element.");
                return false;
            }
        }
        node.node = static_cast<std::uint32_t>(found);
        node.index = part.index;
        const TemplateNode &bound = type.nodes[found];
        if (node.index >= 0) {
            if (!bound.array) {
                reportInstance(element, "is not an array; the element number is ignored");
                node.index = -1;
            } else if (bound.arraySizeAttribute.empty() &&
                       static_cast<std::uint32_t>(node.index) >= bound.arraySize) {
                reportInstance(element, "has no element " + std::to_string(node.index) +
                                            "; what is given for it is left out");
                return false;
            }
        }
        return true;
    }

    // IEDs ----------------------------------------------------------------------------------

    void readIeds()
    {
        std::vector<Ied> ieds;
        std::uint32_t total = 0;
        m_tree.forEachChild(0, [&](std::uint32_t, Tag tag) { total += tag == Tag::Ied ? 1U : 0U; });
        std::uint32_t done = 0;
        std::unordered_set<std::string_view> names;
        m_tree.forEachChild(0, [&](std::uint32_t element, Tag tag) {
            if (tag != Tag::Ied || stopped())
                return;
            const Ied ied = readIed(element);
            if (!names.insert(ied.name).second)
                error(element, "There is another IED of the name " + quoted(ied.name) + ".");
            ieds.push_back(ied);
            ++done;
            if (m_progress)
                m_progress(static_cast<double>(done) / static_cast<double>(total));
        });
        m_document.ieds = keep(ieds);
    }

    Ied readIed(std::uint32_t element)
    {
        Ied ied;
        ied.line = m_tree.at(element).line;
        ied.name = trimmed(value(element, Attr::Name));
        ied.desc = value(element, Attr::Desc);
        ied.type = value(element, Attr::Type);
        ied.manufacturer = value(element, Attr::Manufacturer);
        ied.configVersion = value(element, Attr::ConfigVersion);
        if (ied.name.empty())
            error(element, "The IED has no name.");
        m_iedNodes = 0;
        m_iedElement = element;

        std::vector<AccessPoint> points;
        std::vector<std::uint32_t> pointElements;
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            if (tag == Tag::Services) {
                ied.services = readServices(child);
            } else if (tag == Tag::AccessPoint) {
                points.push_back(readAccessPoint(child, ied));
                pointElements.push_back(child);
            }
        });
        for (std::size_t i = 0; i < points.size(); ++i) {
            if (!points[i].serverAt.empty())
                shareServer(points, i, pointElements[i]);
        }
        const std::span<const AccessPoint> kept = keep(points);
        ied.accessPoints = kept;
        resolveMembers(ied);
        return ied;
    }

    void shareServer(std::vector<AccessPoint> &points, std::size_t index, std::uint32_t element)
    {
        for (const AccessPoint &other : points) {
            if (&other != &points[index] && other.name == points[index].serverAt &&
                other.serverAt.empty() && other.server) {
                points[index].server = other.server;
                return;
            }
        }
        error(element, "The access point " + quoted(points[index].serverAt) +
                           " whose server is shared does not exist or has none.");
    }

    Services readServices(std::uint32_t element)
    {
        Services services;
        services.present = true;
        services.nameLength = number(element, Attr::NameLength, "nameLength", 32);
        std::vector<Service> list;
        collectServices(element, {}, list);
        services.list = keep(list);
        return services;
    }

    void collectServices(std::uint32_t element, std::string_view path, std::vector<Service> &list)
    {
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag) {
            Service service;
            const std::string_view name = m_tree.at(child).name;
            service.name = path.empty() ? name : joined(path, "/", name);
            std::vector<std::pair<std::string_view, std::string_view>> attributes;
            for (const XmlAttribute &attribute : m_tree.attributesOf(child))
                attributes.emplace_back(attribute.name, attribute.value);
            service.attributes = keep(attributes);
            list.push_back(service);
            collectServices(child, service.name, list);
        });
    }

    AccessPoint readAccessPoint(std::uint32_t element, const Ied &ied)
    {
        AccessPoint point;
        point.line = m_tree.at(element).line;
        point.name = trimmed(value(element, Attr::Name));
        point.desc = value(element, Attr::Desc);
        std::vector<LogicalNode> nodes;
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            if (tag == Tag::Server) {
                point.server = readServer(child, ied);
            } else if (tag == Tag::ServerAt) {
                point.serverAt = trimmed(value(child, Attr::ApName));
                if (point.serverAt.empty())
                    error(child, "The element does not name an access point.");
            } else if (tag == Tag::Services) {
                point.services = readServices(child);
            } else if (tag == Tag::Ln && !stopped()) {
                nodes.push_back(readLogicalNode(child));
            }
        });
        if (point.server)
            point.serverAt = {};
        point.nodes = keep(nodes);
        return point;
    }

    const Server *readServer(std::uint32_t element, const Ied &ied)
    {
        Server server;
        server.timeout = number(element, Attr::Timeout, "timeout", 30);
        std::vector<LogicalDevice> devices;
        std::unordered_set<std::string_view> insts;
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            if (tag != Tag::LDevice || stopped())
                return;
            const LogicalDevice device = readDevice(child, ied);
            if (!insts.insert(device.inst).second)
                error(child, "There is another logical device " + quoted(device.inst) + ".");
            devices.push_back(device);
        });
        server.devices = keep(devices);
        return keepOne(server);
    }

    LogicalDevice readDevice(std::uint32_t element, const Ied &ied)
    {
        LogicalDevice device;
        device.line = m_tree.at(element).line;
        device.inst = trimmed(value(element, Attr::Inst));
        device.ldName = trimmed(value(element, Attr::LdName));
        device.desc = value(element, Attr::Desc);
        device.name = device.ldName.empty() ? joined(ied.name, device.inst) : device.ldName;
        if (device.inst.empty())
            error(element, "The logical device has no instance name (attribute inst).");
        m_currentDevice = device.inst;
        std::vector<LogicalNode> nodes;
        std::unordered_set<std::string_view> names;
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            if ((tag != Tag::Ln0 && tag != Tag::Ln) || stopped())
                return;
            const LogicalNode node = readLogicalNode(child);
            if (!names.insert(node.name).second)
                error(child, "There is another logical node " + quoted(node.name) + ".");
            if (tag == Tag::Ln0)
                nodes.insert(nodes.begin(), node);
            else
                nodes.push_back(node);
        });
        if (m_tree.firstChild(element, Tag::Ln0) == noElement)
            error(element, "The logical device has no LN0.");
        device.nodes = keep(nodes);
        m_currentDevice = {};
        return device;
    }

    LogicalNode readLogicalNode(std::uint32_t element)
    {
        const bool zero = m_tree.at(element).tag == Tag::Ln0;
        LogicalNode node;
        node.line = m_tree.at(element).line;
        node.prefix = trimmed(value(element, Attr::Prefix));
        node.lnClass = trimmed(value(element, Attr::LnClass));
        node.inst = trimmed(value(element, Attr::Inst));
        node.desc = value(element, Attr::Desc);
        node.typeId = value(element, Attr::LnType);
        if (zero && node.lnClass.empty())
            node.lnClass = "LLN0";
        if (zero && node.lnClass != "LLN0")
            warn(element,
                 "The class of an LN0 is " + quoted(node.lnClass) + " instead of \"LLN0\".");
        if (node.lnClass.empty())
            error(element, "The logical node has no class (attribute lnClass).");
        if (!zero && node.inst.empty())
            error(element, "The logical node has no instance number (attribute inst).");
        node.name = joined(node.prefix, node.lnClass, node.inst);

        const std::string_view typeId = trimmed(node.typeId);
        if (typeId.empty()) {
            error(element, "The logical node has no type (attribute lnType).");
        } else if (const auto found = m_lnTypes.find(typeId); found != m_lnTypes.end()) {
            node.type = found->second.type;
            if (!node.type->lnClass.empty() && node.type->lnClass != node.lnClass) {
                warn(element, "The class is " + quoted(node.lnClass) + ", but the LNodeType " +
                                  quoted(typeId) + " is of class " + quoted(node.type->lnClass) +
                                  ".");
            }
        } else {
            error(element, "The LNodeType " + quoted(typeId) + " does not exist.");
        }

        node.instances = readInstances(element, node.type);
        countNodes(element, node);
        readControls(element, node);
        return node;
    }

    void reportUnknownSizes(std::uint32_t element, const DataNode &data, const std::string &path)
    {
        if (data.isArray() && !data.arraySize()) {
            warn(element, "The attribute " + quoted(data.node().arraySizeAttribute) +
                              " that holds the number of elements of " + quoted(path) +
                              " has no value; the array is empty.");
        }
        if (!data.node().type || !data.node().type->sizeVaries)
            return;
        data.forEachChild([&](const DataNode &child) {
            reportUnknownSizes(element, child,
                               child.element() >= 0
                                   ? path + "(" + std::to_string(child.element()) + ")"
                                   : path + "." + std::string(child.name()));
        });
    }

    void countNodes(std::uint32_t element, const LogicalNode &node)
    {
        if (!node.type)
            return;
        if (!node.type->sizeVaries) {
            m_iedNodes = saturatingAdd(m_iedNodes, node.type->nodeCount);
        } else {
            node.forEachDataObject([this, element](const DataNode &object) {
                const std::uint64_t below = object.nodeCount(m_options.maxDataNodes);
                m_iedNodes = saturatingAdd(m_iedNodes, saturatingAdd(below, 1));
                if (m_iedNodes <= m_options.maxDataNodes)
                    reportUnknownSizes(element, object, std::string(object.name()));
            });
        }
        if (m_iedNodes > m_options.maxDataNodes && m_error.error == ReadError::None) {
            m_error = {ReadError::TooLarge,
                       "The IED " + quoted(value(m_iedElement, Attr::Name)) + " has more than " +
                           std::to_string(m_options.maxDataNodes) + " nodes of data.",
                       node.line};
        }
    }

    // Data sets and control blocks -------------------------------------------------------------

    void readControls(std::uint32_t element, LogicalNode &node)
    {
        std::vector<DataSet> dataSets;
        m_dataSets.clear();
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            if (tag != Tag::DataSet)
                return;
            DataSet set;
            set.line = m_tree.at(child).line;
            set.name = trimmed(value(child, Attr::Name));
            set.desc = value(child, Attr::Desc);
            if (set.name.empty())
                error(child, "The data set has no name.");
            if (!m_dataSets.emplace(set.name, dataSets.size()).second)
                error(child, "There is another data set " + quoted(set.name) + ".");
            std::vector<DataSetMember> members;
            m_tree.forEachChild(child, [&](std::uint32_t entry, Tag entryTag) {
                if (entryTag == Tag::Fcda) {
                    DataSetMember member;
                    member.line = m_tree.at(entry).line;
                    members.push_back(member);
                }
            });
            if (members.empty())
                warn(child, "The data set has no members.");
            const std::span<DataSetMember> kept = keepMutable(members);
            set.members = kept;
            m_pendingSets.push_back({child, kept.data(), m_currentDevice});
            dataSets.push_back(set);
        });
        node.dataSets = keep(dataSets);

        std::vector<ReportControl> reports;
        std::vector<LogControl> logControls;
        std::vector<GooseControl> gooseControls;
        std::vector<SampledValueControl> sampledValueControls;
        std::vector<std::string_view> logs;
        std::set<std::pair<Tag, std::string_view>> names; // unique among blocks of their kind
        const auto checkName = [&](std::uint32_t child, std::string_view name) {
            if (name.empty())
                error(child, "The control block has no name.");
            else if (!names.emplace(m_tree.at(child).tag, name).second)
                error(child, "There is another control block " + quoted(name) + ".");
        };
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            switch (tag) {
            case Tag::ReportControl:
                reports.push_back(readReport(child, node));
                checkName(child, reports.back().name);
                break;
            case Tag::LogControl:
                logControls.push_back(readLogControl(child, node));
                checkName(child, logControls.back().name);
                break;
            case Tag::GseControl:
                gooseControls.push_back(readGooseControl(child, node));
                checkName(child, gooseControls.back().name);
                break;
            case Tag::SampledValueControl:
                sampledValueControls.push_back(readSampledValueControl(child, node));
                checkName(child, sampledValueControls.back().name);
                break;
            case Tag::Log:
                logs.push_back(trimmed(value(child, Attr::Name)));
                break;
            case Tag::SettingControl:
                readSettingControl(child, node);
                break;
            default:
                break;
            }
        });
        node.reports = keep(reports);
        node.logControls = keep(logControls);
        node.gooseControls = keep(gooseControls);
        node.sampledValueControls = keep(sampledValueControls);
        node.logs = keep(logs);
    }

    const DataSet *dataSetOf(std::uint32_t element, const LogicalNode &node, std::string_view name)
    {
        if (name.empty())
            return nullptr;
        if (const auto found = m_dataSets.find(name); found != m_dataSets.end())
            return &node.dataSets[found->second];
        error(element, "The data set " + quoted(name) +
                           " of the control block does not exist in its logical node.");
        return nullptr;
    }

    TriggerOptions readTriggers(std::uint32_t element)
    {
        TriggerOptions triggers;
        const std::uint32_t child = m_tree.firstChild(element, Tag::TrgOps);
        if (child == noElement)
            return triggers;
        triggers.dataChange = flag(child, Attr::Dchg, false);
        triggers.qualityChange = flag(child, Attr::Qchg, false);
        triggers.dataUpdate = flag(child, Attr::Dupd, false);
        triggers.integrity = flag(child, Attr::Period, false);
        triggers.generalInterrogation = flag(child, Attr::Gi, true);
        return triggers;
    }

    ReportControl readReport(std::uint32_t element, const LogicalNode &node)
    {
        ReportControl report;
        report.line = m_tree.at(element).line;
        report.name = trimmed(value(element, Attr::Name));
        report.desc = value(element, Attr::Desc);
        report.reportId = value(element, Attr::RptId);
        report.dataSetName = trimmed(value(element, Attr::DatSet));
        report.dataSet = dataSetOf(element, node, report.dataSetName);
        report.buffered = flag(element, Attr::Buffered, false);
        report.indexed = flag(element, Attr::Indexed, true);
        report.bufferTime = number(element, Attr::BufTime, "bufTime", 0);
        report.integrityPeriod = number(element, Attr::IntgPd, "intgPd", 0);
        report.confRev = number(element, Attr::ConfRev, "confRev", 0);
        report.triggers = readTriggers(element);
        if (const std::uint32_t child = m_tree.firstChild(element, Tag::OptFields);
            child != noElement) {
            report.fields.sequenceNumber = flag(child, Attr::SeqNum, false);
            report.fields.timeStamp = flag(child, Attr::TimeStamp, false);
            report.fields.dataSetName = flag(child, Attr::DataSet, false);
            report.fields.reasonForInclusion = flag(child, Attr::ReasonCode, false);
            report.fields.dataReference = flag(child, Attr::DataRef, false);
            report.fields.bufferOverflow = flag(child, Attr::BufOvfl, true);
            report.fields.entryId = flag(child, Attr::EntryId, false);
            report.fields.configurationRevision = flag(child, Attr::ConfigRef, false);
            report.fields.segmentation = flag(child, Attr::Segmentation, false);
        }
        std::vector<ClientNode> clients;
        if (const std::uint32_t child = m_tree.firstChild(element, Tag::RptEnabled);
            child != noElement) {
            report.maxInstances = number(child, Attr::Max, "max", 1);
            m_tree.forEachChild(child, [&](std::uint32_t client, Tag tag) {
                if (tag != Tag::ClientLn)
                    return;
                clients.push_back({value(client, Attr::IedName), value(client, Attr::ApName),
                                   value(client, Attr::LdInst), value(client, Attr::Prefix),
                                   value(client, Attr::LnClass), value(client, Attr::LnInst)});
            });
            if (report.maxInstances == 0 || report.maxInstances > maxReportInstances) {
                const std::uint32_t used = report.maxInstances == 0 ? 1 : maxReportInstances;
                error(child, "The number of instances is " + std::to_string(report.maxInstances) +
                                 "; " + std::to_string(used) + " is used.");
                report.maxInstances = used;
            }
        }
        report.clients = keep(clients);
        std::vector<std::string_view> names;
        if (report.indexed) {
            for (std::uint32_t i = 1; i <= report.maxInstances; ++i) {
                const std::array<char, 2> digits = {static_cast<char>('0' + i / 10),
                                                    static_cast<char>('0' + i % 10)};
                names.push_back(joined(report.name, {digits.data(), digits.size()}));
            }
        } else {
            names.push_back(report.name);
        }
        report.instanceNames = keep(names);
        return report;
    }

    LogControl readLogControl(std::uint32_t element, const LogicalNode &node)
    {
        LogControl log;
        log.line = m_tree.at(element).line;
        log.name = trimmed(value(element, Attr::Name));
        log.desc = value(element, Attr::Desc);
        log.dataSetName = trimmed(value(element, Attr::DatSet));
        log.dataSet = dataSetOf(element, node, log.dataSetName);
        log.logName = value(element, Attr::LogName);
        log.ldInst = value(element, Attr::LdInst);
        log.prefix = value(element, Attr::Prefix);
        log.lnClass = value(element, Attr::LnClass);
        log.lnInst = value(element, Attr::LnInst);
        log.enabled = flag(element, Attr::LogEna, true);
        log.reasonCode = flag(element, Attr::ReasonCode, true);
        log.integrityPeriod = number(element, Attr::IntgPd, "intgPd", 0);
        log.triggers = readTriggers(element);
        return log;
    }

    GooseControl readGooseControl(std::uint32_t element, const LogicalNode &node)
    {
        GooseControl goose;
        goose.line = m_tree.at(element).line;
        goose.name = trimmed(value(element, Attr::Name));
        goose.desc = value(element, Attr::Desc);
        goose.dataSetName = trimmed(value(element, Attr::DatSet));
        goose.dataSet = dataSetOf(element, node, goose.dataSetName);
        goose.appId = value(element, Attr::AppId);
        goose.type = value(element, Attr::Type);
        if (goose.type.empty())
            goose.type = "GOOSE";
        goose.confRev = number(element, Attr::ConfRev, "confRev", 0);
        goose.fixedOffsets = flag(element, Attr::FixedOffs, false);
        return goose;
    }

    SampledValueControl readSampledValueControl(std::uint32_t element, const LogicalNode &node)
    {
        SampledValueControl control;
        control.line = m_tree.at(element).line;
        control.name = trimmed(value(element, Attr::Name));
        control.desc = value(element, Attr::Desc);
        control.dataSetName = trimmed(value(element, Attr::DatSet));
        control.dataSet = dataSetOf(element, node, control.dataSetName);
        control.svId = value(element, Attr::SmvId);
        control.sampleMode = value(element, Attr::SmpMod);
        if (control.sampleMode.empty())
            control.sampleMode = "SmpPerPeriod";
        control.confRev = number(element, Attr::ConfRev, "confRev", 0);
        control.sampleRate = number(element, Attr::SmpRate, "smpRate", 0);
        control.asduCount = number(element, Attr::NofAsdu, "nofASDU", 1);
        control.multicast = flag(element, Attr::Multicast, true);
        if (const std::uint32_t child = m_tree.firstChild(element, Tag::SmvOpts);
            child != noElement) {
            control.refreshTime = flag(child, Attr::RefreshTime, false);
            control.sampleSynchronized = flag(child, Attr::SampleSynchronized, true);
            control.sampleRateIncluded = flag(child, Attr::SampleRate, false);
            control.dataSetIncluded = flag(child, Attr::DataSet, false);
            control.security = flag(child, Attr::Security, false);
        }
        return control;
    }

    void readSettingControl(std::uint32_t element, LogicalNode &node)
    {
        if (node.settingControl) {
            error(element,
                  "The logical node has another setting group control; the first is used.");
            return;
        }
        SettingControl control;
        control.line = m_tree.at(element).line;
        control.desc = value(element, Attr::Desc);
        control.groupCount = number(element, Attr::NumOfSgs, "numOfSGs", 1);
        control.activeGroup = number(element, Attr::ActSg, "actSG", 1);
        control.reservationTime = number(element, Attr::ResvTms, "resvTms", 0);
        if (control.groupCount == 0) {
            error(element, "The number of setting groups is 0; 1 is used.");
            control.groupCount = 1;
        }
        if (control.activeGroup == 0 || control.activeGroup > control.groupCount) {
            error(element, "The active setting group is " + std::to_string(control.activeGroup) +
                               ", but there are " + std::to_string(control.groupCount) +
                               "; group 1 is used.");
            control.activeGroup = 1;
        }
        if (node.lnClass != "LLN0")
            warn(element, "A setting group control stands in " + quoted(node.name) +
                              " instead of the LLN0.");
        node.settingControl = keepOne(control);
    }

    // Members can name nodes that come later in the file, so they are resolved when the whole
    // IED is known.
    struct PendingSet
    {
        std::uint32_t element;
        DataSetMember *members;
        std::string_view deviceInst;
    };

    struct KnownDevice
    {
        const LogicalDevice *device = nullptr;
        std::unordered_map<std::string_view, const LogicalNode *> nodes;
    };
    using KnownDevices = std::unordered_map<std::string_view, KnownDevice>;

    void resolveMembers(const Ied &ied)
    {
        if (!m_pendingSets.empty()) {
            KnownDevices devices;
            ied.forEachDevice([&devices](const LogicalDevice &device) {
                KnownDevice &known = devices[device.inst];
                if (known.device)
                    return;
                known.device = &device;
                for (const LogicalNode &node : device.nodes)
                    known.nodes.try_emplace(node.name, &node);
            });
            for (const PendingSet &pending : m_pendingSets) {
                if (stopped())
                    break;
                DataSetMember *member = pending.members;
                m_tree.forEachChild(pending.element, [&](std::uint32_t entry, Tag tag) {
                    if (tag == Tag::Fcda)
                        resolveMember(entry, ied, devices, pending.deviceInst, *member++);
                });
            }
        }
        m_pendingSets.clear();
    }

    void resolveMember(std::uint32_t element, const Ied &ied, const KnownDevices &devices,
                       std::string_view homeDevice, DataSetMember &member)
    {
        const std::string_view written = trimmed(value(element, Attr::LdInst));
        const std::string_view deviceInst = written.empty() ? homeDevice : written;
        const auto device = devices.find(deviceInst);
        std::string nodeName(trimmed(value(element, Attr::Prefix)));
        nodeName += trimmed(value(element, Attr::LnClass));
        nodeName += trimmed(value(element, Attr::LnInst));
        member.fc = trimmed(value(element, Attr::Fc));

        std::vector<PathPart> parts;
        appendParts(trimmed(value(element, Attr::DoName)), parts);
        const std::size_t objectParts = parts.size();
        appendParts(trimmed(value(element, Attr::DaName)), parts);

        std::int32_t arrayIndex = -1;
        if (const std::string_view ix = trimmed(value(element, Attr::Ix)); !ix.empty()) {
            arrayIndex = toNumber<std::int32_t>(ix).value_or(-1);
            if (arrayIndex < 0)
                error(element, quoted(ix) + " is not the number of an array element.");
        }

        std::string problem;
        if (device == devices.end()) {
            problem = "There is no logical device " + quoted(deviceInst);
        } else {
            const auto node = device->second.nodes.find(nodeName);
            if (node == device->second.nodes.end()) {
                problem =
                    "There is no logical node " + quoted(nodeName) + " in " + quoted(deviceInst);
            } else {
                problem = walkMember(*node->second, objectParts, parts, arrayIndex, member);
            }
        }

        std::string reference = device == devices.end()
                                    ? std::string(ied.name) + std::string(deviceInst)
                                    : std::string(device->second.device->name);
        reference += '/';
        reference += nodeName;
        reference += '$';
        reference += member.fc;
        for (const PathPart &part : parts) {
            reference += '$';
            reference += part.name;
            if (part.index >= 0)
                reference += "(" + std::to_string(part.index) + ")";
        }
        member.reference = keepText(reference);
        member.resolved = problem.empty();
        if (!member.resolved)
            error(element, problem + ", so the member " + quoted(reference) + " does not exist.");
    }

    /// Empty when the member exists, else what is wrong, as the begin of a sentence.
    std::string walkMember(const LogicalNode &node, std::size_t objectParts,
                           std::vector<PathPart> &parts, std::int32_t arrayIndex,
                           DataSetMember &member)
    {
        if (member.fc.empty())
            return "There is no functional constraint (attribute fc)";
        if (parts.empty())
            return {};
        DataNode current;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            PathPart &part = parts[i];
            if (i > 0 && current.isArray())
                return quoted(current.name()) + " is an array, and no element is given";
            const DataNode next = i == 0 ? node.dataObject(part.name) : current.child(part.name);
            // A sub data object belongs into doName, but some tools write it in front of daName.
            if (!next.isValid() || (i < objectParts && next.node().kind == NodeKind::Attribute))
                return "There is no " + quoted(part.name);
            current = next;
            if (current.isArray() && part.index < 0) {
                part.index = arrayIndex;
                arrayIndex = -1;
            }
            if (part.index < 0)
                continue;
            if (!current.isArray())
                return quoted(part.name) + " is not an array";
            if (static_cast<std::uint32_t>(part.index) >= current.arraySize().value_or(0))
                return quoted(part.name) + " has no element " + std::to_string(part.index);
            current = current.elementAt(static_cast<std::uint32_t>(part.index));
        }
        const bool constraintFits = current.node().kind == NodeKind::Attribute
                                        ? current.fc() == member.fc
                                        : hasConstraint(current.node().type, member.fc);
        if (!constraintFits) {
            return "There is nothing of functional constraint " + quoted(member.fc) + " in " +
                   quoted(parts.back().name);
        }
        member.node = &current.node();
        return {};
    }

    static std::uint32_t constraintBit(std::string_view fc)
    {
        const auto found =
            std::find(functionalConstraints.begin(), functionalConstraints.end(), fc);
        return 1U << static_cast<std::uint32_t>(found - functionalConstraints.begin());
    }

    bool hasConstraint(const Template *type, std::string_view fc) const
    {
        const auto found = m_constraints.find(type);
        return found != m_constraints.end() && (found->second & constraintBit(fc)) != 0;
    }

    // Communication ---------------------------------------------------------------------------

    void readCommunication()
    {
        std::vector<ConnectedAccessPoint> connections;
        std::unordered_map<std::string_view, const Ied *> ieds;
        for (const Ied &ied : m_document.ieds)
            ieds.try_emplace(ied.name, &ied);
        m_tree.forEachChild(0, [&](std::uint32_t section, Tag sectionTag) {
            if (sectionTag != Tag::Communication)
                return;
            m_tree.forEachChild(section, [&](std::uint32_t network, Tag networkTag) {
                if (networkTag != Tag::SubNetwork)
                    return;
                m_tree.forEachChild(network, [&](std::uint32_t element, Tag tag) {
                    if (tag != Tag::ConnectedAp)
                        return;
                    ConnectedAccessPoint connection = readConnection(element);
                    connection.subNetwork = trimmed(value(network, Attr::Name));
                    connection.subNetworkType = trimmed(value(network, Attr::Type));
                    checkConnection(element, connection, ieds);
                    connections.push_back(connection);
                });
            });
        });
        m_document.connections = keep(connections);
    }

    void checkConnection(std::uint32_t element, const ConnectedAccessPoint &connection,
                         const std::unordered_map<std::string_view, const Ied *> &ieds)
    {
        const auto ied = ieds.find(connection.iedName);
        if (ied == ieds.end()) {
            info(element, "The IED " + quoted(connection.iedName) + " is not in this file.");
            return;
        }
        for (const AccessPoint &point : ied->second->accessPoints) {
            if (point.name == connection.apName)
                return;
        }
        warn(element, "The IED " + quoted(connection.iedName) + " has no access point " +
                          quoted(connection.apName) + ".");
    }

    std::span<const AddressPart> readAddress(std::uint32_t element)
    {
        std::vector<AddressPart> parts;
        const std::uint32_t address = m_tree.firstChild(element, Tag::Address);
        if (address == noElement)
            return {};
        m_tree.forEachChild(address, [&](std::uint32_t child, Tag tag) {
            if (tag == Tag::P)
                parts.push_back(
                    {trimmed(value(child, Attr::Type)), trimmed(m_tree.at(child).text)});
        });
        return keep(parts);
    }

    ConnectedAccessPoint readConnection(std::uint32_t element)
    {
        ConnectedAccessPoint connection;
        connection.line = m_tree.at(element).line;
        connection.iedName = trimmed(value(element, Attr::IedName));
        connection.apName = trimmed(value(element, Attr::ApName));
        connection.address = readAddress(element);
        std::vector<ControlBlockAddress> goose;
        std::vector<ControlBlockAddress> sampledValues;
        m_tree.forEachChild(element, [&](std::uint32_t child, Tag tag) {
            if (tag != Tag::Gse && tag != Tag::Smv)
                return;
            ControlBlockAddress address;
            address.ldInst = trimmed(value(child, Attr::LdInst));
            address.controlBlock = trimmed(value(child, Attr::CbName));
            address.address = readAddress(child);
            address.minTime = readTime(child, Tag::MinTime);
            address.maxTime = readTime(child, Tag::MaxTime);
            (tag == Tag::Gse ? goose : sampledValues).push_back(address);
        });
        connection.goose = keep(goose);
        connection.sampledValues = keep(sampledValues);
        return connection;
    }

    std::optional<std::uint32_t> readTime(std::uint32_t element, Tag tag)
    {
        const std::uint32_t child = m_tree.firstChild(element, tag);
        if (child == noElement || trimmed(m_tree.at(child).text).empty())
            return std::nullopt;
        const auto time = toNumber<std::uint32_t>(m_tree.at(child).text);
        if (!time)
            warn(child, quoted(m_tree.at(child).text) + " is not a number of milliseconds.");
        return time;
    }

    static constexpr std::uint32_t maxReportInstances = 99;
    // Smaller types are searched from front to back, which is faster than hashing.
    static constexpr std::size_t linearSearchLimit = 64;

    const XmlTree &m_tree;
    const ReadOptions &m_options;
    const std::function<void(double)> &m_progress;
    Document &m_document;
    XmlError m_error;

    TypeIndex m_lnTypes;
    TypeIndex m_doTypes;
    TypeIndex m_daTypes;
    std::unordered_map<std::string_view, const Enumeration *> m_enumerations;
    std::unordered_map<std::string_view, std::uint32_t> m_enumElements;
    std::unordered_map<const Template *, std::uint32_t> m_constraints;
    std::unordered_map<const Template *, std::unordered_map<std::string_view, std::size_t>>
        m_largeTypes;
    std::vector<std::pair<std::uint32_t, TypeEntry *>> m_typeOrder;
    std::uint16_t m_typeDepth = 0;

    std::vector<PendingSet> m_pendingSets;
    std::unordered_map<std::string_view, std::size_t> m_dataSets; // of the node being read
    std::string_view m_currentDevice;
    std::uint32_t m_iedElement = noElement;
    std::uint64_t m_iedNodes = 0;
    std::string m_scratch;
};

} // namespace

XmlError resolve(const XmlTree &tree, const ReadOptions &options,
                 const std::function<void(double)> &progress, Document &document)
{
    return Resolver(tree, options, progress, document).run();
}

} // namespace scl
