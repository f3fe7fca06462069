// SPDX-License-Identifier: Apache-2.0
#include "simulator/model.h"

#include "simulator/modelbuilder.h"

#include "acsi/typedvalue.h"

#include <algorithm>
#include <utility>

namespace sim {

namespace {

using Kind = mms::TypeDescription::Kind;
using mms::DataAccessError;

mms::TypeDescription leafType(const LayoutNode &leaf)
{
    mms::TypeDescription type;
    type.kind = leaf.mmsKind;
    type.size = leaf.size;
    type.withDate = leaf.withDate;
    if (leaf.mmsKind == Kind::FloatingPoint)
        type.exponentWidth = leaf.size == 64 ? 11 : 8;
    return type;
}

mms::TypeDescription typeOf(const Layout &layout, const LayoutNode &node)
{
    if (node.isLeaf())
        return leafType(node);
    if (node.isArray())
        return mms::TypeDescription::array(node.elementCount,
                                           typeOf(layout, layout.nodes[node.firstChild]));
    std::vector<mms::TypeDescription::Component> components;
    components.reserve(node.childCount);
    for (std::uint32_t i = 0; i < node.childCount; ++i) {
        const LayoutNode &child = layout.nodes[node.firstChild + i];
        components.push_back({std::string(child.name), typeOf(layout, child)});
    }
    return mms::TypeDescription::structure(std::move(components));
}

bool fitsInteger(std::int64_t value, std::int32_t bits)
{
    if (bits >= 64)
        return true;
    const std::int64_t limit = std::int64_t{1} << (bits - 1);
    return value >= -limit && value < limit;
}

bool fitsUnsigned(std::uint64_t value, std::int32_t bits)
{
    return bits >= 64 || value < std::uint64_t{1} << bits;
}

/// Sizes are exact, or the negative of the greatest.
bool fitsSize(std::size_t length, std::int32_t size)
{
    return size < 0 ? length <= static_cast<std::size_t>(-static_cast<std::int64_t>(size))
                    : length == static_cast<std::size_t>(size);
}

std::optional<DataAccessError> checkLeaf(const Layout &layout, const LayoutNode &leaf,
                                         const mms::Data &data)
{
    if (static_cast<unsigned>(data.kind()) != static_cast<unsigned>(leaf.mmsKind))
        return DataAccessError::TypeInconsistent;
    bool valid = true;
    switch (leaf.mmsKind) {
    case Kind::Integer: {
        const auto value = data.toInteger();
        valid = value && fitsInteger(*value, leaf.size);
        if (valid && leaf.enumeration != 0) {
            const auto &ordinals = layout.enumerations[leaf.enumeration - 1].ordinals;
            valid = std::ranges::binary_search(ordinals, *value);
        }
        break;
    }
    case Kind::Unsigned: {
        const auto value = data.toUnsigned();
        valid = value && fitsUnsigned(*value, leaf.size);
        break;
    }
    case Kind::FloatingPoint:
        if (data.isDouble() != (leaf.size == 64))
            return DataAccessError::TypeInconsistent;
        break;
    case Kind::BitString:
        if (!fitsSize(data.size(), leaf.size))
            return DataAccessError::TypeInconsistent;
        break;
    case Kind::OctetString:
    case Kind::VisibleString:
    case Kind::MmsString:
        valid = leaf.size < 0 ? acsi::fitsLength(leafType(leaf), data)
                              : fitsSize(data.size(), leaf.size);
        break;
    case Kind::BinaryTime: {
        const auto time = data.toBinaryTime();
        if (!time || time->days.has_value() != leaf.withDate)
            return DataAccessError::TypeInconsistent;
        break;
    }
    default:
        break;
    }
    return valid ? std::nullopt : std::optional(DataAccessError::ObjectValueInvalid);
}

std::optional<DataAccessError> checkNode(const Layout &layout, const LayoutNode &node,
                                         const mms::Data &data)
{
    if (node.isLeaf())
        return checkLeaf(layout, node, data);
    const auto kind = node.isArray() ? mms::Data::Kind::Array : mms::Data::Kind::Structure;
    const std::uint32_t count = node.isArray() ? node.elementCount : node.childCount;
    const auto children = data.children();
    if (data.kind() != kind || children.size() != count)
        return DataAccessError::TypeInconsistent;
    std::optional<DataAccessError> worst;
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t position = node.isArray() ? node.firstChild : node.firstChild + i;
        const auto error = checkNode(layout, layout.nodes[position], children[i]);
        if (error == DataAccessError::TypeInconsistent)
            return error;
        if (error)
            worst = error;
    }
    return worst;
}

/// Walks the variables of a domain depth first. With sorted children that is the order of the
/// names, because "$" sorts before everything else that a name may hold.
class NameWalk
{
public:
    NameWalk(const Model &model, const Model::Domain &domain, Model::NameOrder order)
        : m_model(model)
        , m_domain(domain)
        , m_order(order)
    {
    }

    /// Stands before the first name.
    void start() { m_next = 0; }

    /// Stands on @p name; false when it does not exist.
    bool seek(std::string_view name)
    {
        const auto end = std::min(name.find('$'), name.size());
        if (!seekNode(name.substr(0, end)))
            return false;
        enterNode();
        while (m_text.size() < name.size()) {
            const auto begin = m_text.size() + 1;
            const auto length = std::min(name.find('$', begin), name.size()) - begin;
            if (!descendTo(name.substr(begin, length)))
                return false;
        }
        return true;
    }

    /// To the next name; false at the end.
    bool advance()
    {
        if (m_path.empty()) {
            if (m_next >= m_domain.nodeCount)
                return false;
            enterNode();
            return true;
        }
        if (!current().isArray() && current().childCount > 0) {
            enterChild(0);
            return true;
        }
        while (m_path.size() > 1) {
            const std::uint32_t rank = m_path.back().rank + 1;
            leave();
            if (rank < current().childCount) {
                enterChild(rank);
                return true;
            }
        }
        m_path.clear();
        return advance();
    }

    const std::string &text() const { return m_text; }

private:
    struct Step
    {
        std::uint32_t position;
        std::uint32_t rank;     ///< among the children of the node above, in the order wanted
        std::size_t textBefore; ///< length of the name of the node above
    };

    const LayoutNode &current() const { return m_layout->nodes[m_path.back().position]; }

    bool isSorted() const { return m_order == Model::NameOrder::Sorted; }

    bool seekNode(std::string_view name)
    {
        const auto known = m_domain.nodeOfName.find(name);
        if (known == m_domain.nodeOfName.end())
            return false;
        m_next = known->second - m_domain.firstNode;
        if (isSorted()) {
            const auto &nodes = m_domain.nodesByName;
            const auto found =
                std::ranges::lower_bound(nodes, name, {}, [this](std::uint32_t node) {
                    return m_model.logicalNodes()[node].name;
                });
            m_next = static_cast<std::size_t>(found - nodes.begin());
        }
        return true;
    }

    void enterNode()
    {
        const auto number = static_cast<std::uint32_t>(m_next);
        const auto &node = m_model.logicalNodes()[isSorted() ? m_domain.nodesByName[number]
                                                             : m_domain.firstNode + number];
        ++m_next;
        m_layout = node.layout;
        m_path.assign(1, Step{0, 0, 0});
        m_text = node.name;
    }

    void enterChild(std::uint32_t rank)
    {
        const std::uint32_t place = current().firstChild + rank;
        const std::uint32_t position = isSorted() ? m_layout->byName[place] : place;
        m_path.push_back({position, rank, m_text.size()});
        m_text.append(1, '$').append(current().name);
    }

    void leave()
    {
        m_text.resize(m_path.back().textBefore);
        m_path.pop_back();
    }

    bool descendTo(std::string_view name)
    {
        if (current().isArray())
            return false;
        const auto first = m_layout->byName.begin() + current().firstChild;
        const auto last = first + current().childCount;
        const auto found =
            std::ranges::lower_bound(first, last, name, {}, [this](std::uint32_t child) {
                return m_layout->nodes[child].name;
            });
        if (found == last || m_layout->nodes[*found].name != name)
            return false;
        enterChild(isSorted() ? static_cast<std::uint32_t>(found - first)
                              : *found - current().firstChild);
        return true;
    }

    const Model &m_model;
    const Model::Domain &m_domain;
    const Model::NameOrder m_order;
    const Layout *m_layout = nullptr;
    std::vector<Step> m_path;
    std::size_t m_next = 0; ///< the logical node behind the present one
    std::string m_text;
};

} // namespace

Part Part::child(std::string_view name) const
{
    if (!m_node || m_node->isArray())
        return {};
    const LayoutNode *const first = m_layout->nodes.data() + m_node->firstChild;
    for (const LayoutNode *node = first; node != first + m_node->childCount; ++node) {
        if (node->name == name)
            return {m_layout, node, m_logicalNode,
                    m_firstLeaf + node->firstLeaf - m_node->firstLeaf};
    }
    return {};
}

Part Part::childAt(std::uint32_t index) const
{
    if (m_node->isArray()) {
        const LayoutNode &element = m_layout->nodes[m_node->firstChild];
        return {m_layout, &element, m_logicalNode, m_firstLeaf + index * element.leafCount};
    }
    const LayoutNode &node = m_layout->nodes[m_node->firstChild + index];
    return {m_layout, &node, m_logicalNode, m_firstLeaf + node.firstLeaf - m_node->firstLeaf};
}

Part Part::descendant(std::string_view path) const
{
    Part part = *this;
    while (!path.empty() && part.isValid()) {
        const auto end = std::min(path.find('$'), path.size());
        part = part.child(path.substr(0, end));
        if (end + 1 == path.size())
            return {};
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return part;
}

mms::TypeDescription Part::type() const
{
    return typeOf(*m_layout, *m_node);
}

Model::Model(const scl::Ied &ied, const mms::UtcTime &now, bool firstEdition)
{
    Builder(*this, ied, now, firstEdition).build();
}

Model::~Model() = default;

const Model::Domain *Model::findDomain(std::string_view name) const
{
    const auto found = std::ranges::find(m_domains, name, &Domain::name);
    return found == m_domains.end() ? nullptr : &*found;
}

std::vector<std::string> Model::domainNames() const
{
    std::vector<std::string> names;
    for (const Domain &domain : m_domains)
        names.emplace_back(domain.name);
    std::ranges::sort(names);
    return names;
}

Part Model::find(std::string_view domain, std::string_view item) const
{
    const Domain *const found = findDomain(domain);
    if (!found)
        return {};
    const auto end = std::min(item.find('$'), item.size());
    const auto node = found->nodeOfName.find(item.substr(0, end));
    if (node == found->nodeOfName.end() || end + 1 == item.size())
        return {};
    return logicalNode(node->second).descendant(item.substr(std::min(end + 1, item.size())));
}

Part Model::logicalNode(std::uint32_t index) const
{
    const LogicalNode &node = m_logicalNodes[index];
    return {node.layout, node.layout->nodes.data(), index, node.firstLeaf};
}

Part Model::find(const mms::VariableAccess &access) const
{
    const auto *name = std::get_if<mms::ObjectName>(&access.variable);
    if (!name || name->scope != mms::Scope::Domain)
        return {};
    Part part = find(name->domain, name->item);
    const std::vector<mms::AlternateAccess> *parts = &access.parts;
    while (part.isValid() && !parts->empty()) {
        if (parts->size() != 1)
            return {};
        const mms::AlternateAccess &selection = parts->front();
        if (selection.kind == mms::AlternateAccess::Kind::Component) {
            part = selection.component.empty() ? Part() : part.descendant(selection.component);
        } else if (selection.kind == mms::AlternateAccess::Kind::Index && part.node().isArray() &&
                   selection.index < part.childCount()) {
            part = part.childAt(selection.index);
        } else {
            return {};
        }
        parts = &selection.parts;
    }
    return part;
}

Part Model::leafPart(Leaf leaf) const
{
    const std::uint32_t index = logicalNodeOf(leaf);
    const LogicalNode &node = m_logicalNodes[index];
    const Layout &layout = *node.layout;
    return {&layout, &layout.nodes[layout.leafNodes[leaf - node.firstLeaf]], index, leaf};
}

std::uint32_t Model::logicalNodeOf(Leaf leaf) const
{
    // Logical nodes without leaves share their first leaf with the one behind them.
    const auto behind = std::ranges::upper_bound(m_logicalNodes, leaf, {}, &LogicalNode::firstLeaf);
    return static_cast<std::uint32_t>(behind - m_logicalNodes.begin()) - 1;
}

std::string Model::itemName(const Part &part) const
{
    const LogicalNode &node = m_logicalNodes[part.logicalNode()];
    const Layout &layout = *part.m_layout;
    std::vector<const LayoutNode *> path;
    for (const LayoutNode *step = part.m_node; step != layout.nodes.data();
         step = &layout.nodes[step->parent])
        path.push_back(step);
    std::string text(node.name);
    Leaf offset = part.firstLeaf() - node.firstLeaf;
    for (auto step = path.rbegin(); step != path.rend(); ++step) {
        const LayoutNode &above = layout.nodes[(*step)->parent];
        if (!above.isArray()) {
            text.append(1, '$').append((*step)->name);
        } else if ((*step)->leafCount > 0) {
            // Inside the array, offsets count from its element 0.
            const std::uint32_t element = (offset - above.firstLeaf) / (*step)->leafCount;
            text.append(1, '(').append(std::to_string(element)).append(1, ')');
            offset -= element * (*step)->leafCount;
        }
    }
    return text;
}

std::optional<Model::NamePage> Model::variableNames(const Domain &domain, std::string_view after,
                                                    std::size_t octets, NameOrder order) const
{
    NameWalk walk(*this, domain, order);
    if (after.empty())
        walk.start();
    else if (!walk.seek(after))
        return std::nullopt;
    NamePage page;
    while (walk.advance()) {
        const std::size_t needed = walk.text().size() + (walk.text().size() < 128 ? 2 : 4);
        if (needed > octets && !page.names.empty()) {
            page.moreFollows = true;
            break;
        }
        octets -= std::min(octets, needed);
        page.names.push_back(walk.text());
    }
    return page;
}

mms::Data Model::value(const Part &part) const
{
    if (part.isLeaf())
        return m_values[part.firstLeaf()];
    std::vector<mms::Data> members;
    const std::uint32_t count = part.childCount();
    members.reserve(count);
    for (std::uint32_t i = 0; i < count; ++i)
        members.push_back(value(part.childAt(i)));
    return part.node().isArray() ? mms::Data::array(std::move(members))
                                 : mms::Data::structure(std::move(members));
}

std::optional<DataAccessError> Model::check(const Part &part, const mms::Data &data)
{
    return checkNode(*part.m_layout, *part.m_node, data);
}

void Model::set(Leaf leaf, mms::Data value)
{
    const Trigger options = triggers(leaf);
    Trigger fired = options & Trigger::DataUpdate;
    const Trigger onChange = Trigger::DataChange | Trigger::QualityChange;
    if (any(options & onChange) && !(m_values[leaf] == value))
        fired = fired | (options & onChange);
    m_values[leaf] = std::move(value);
    if (!any(fired) || m_listeners.empty())
        return;
    m_changes.push_back({leaf, fired});
    if (m_batches == 0)
        notify();
}

void Model::set(const Part &part, const mms::Data &value)
{
    const Batch batch(*this);
    if (part.isLeaf()) {
        set(part.firstLeaf(), value);
        return;
    }
    const auto members = value.children();
    for (std::uint32_t i = 0; i < members.size(); ++i)
        set(part.childAt(i), members[i]);
}

void Model::notify()
{
    if (std::exchange(m_notifying, true))
        return;
    while (!m_changes.empty()) {
        const std::vector<Change> changes = std::exchange(m_changes, {});
        const auto listeners = m_listeners;
        for (ChangeListener *listener : listeners) {
            if (std::ranges::find(m_listeners, listener) != m_listeners.end())
                listener->changed(changes);
        }
    }
    m_notifying = false;
}

void Model::addListener(ChangeListener *listener)
{
    m_listeners.push_back(listener);
}

void Model::removeListener(ChangeListener *listener)
{
    std::erase(m_listeners, listener);
}

std::vector<Model::Setting> Model::settings(const Domain &domain) const
{
    std::vector<Setting> settings;
    for (std::uint32_t i = 0; i < domain.nodeCount; ++i) {
        const Part node = logicalNode(domain.firstNode + i);
        const Part active = node.child("SG");
        const Part edited = node.child("SE");
        if (!active.isValid() || !edited.isValid())
            continue;
        for (Leaf leaf = active.firstLeaf(); active.contains(leaf); ++leaf) {
            // Usually the same place in both, but a type may have only some settings editable.
            const std::string name = itemName(leafPart(leaf));
            Leaf other = edited.firstLeaf() + (leaf - active.firstLeaf());
            const auto matches = [&](Leaf candidate) {
                std::string text = itemName(leafPart(candidate));
                text.replace(text.find("$SE$"), 4, "$SG$");
                return text == name;
            };
            if (!edited.contains(other) || !matches(other)) {
                other = edited.firstLeaf();
                while (edited.contains(other) && !matches(other))
                    ++other;
            }
            if (edited.contains(other))
                settings.push_back({leaf, other});
        }
    }
    return settings;
}

mms::Data Model::configuredValue(Leaf setting, std::uint32_t group) const
{
    const auto found = m_groupValues.find({setting, group});
    return found == m_groupValues.end() ? m_values[setting] : found->second;
}

} // namespace sim
