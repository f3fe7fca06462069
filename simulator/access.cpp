// SPDX-License-Identifier: Apache-2.0
#include "simulator/access.h"

#include <algorithm>

namespace sim {

using mms::AccessResult;
using mms::AlternateAccess;
using mms::DataAccessError;

WriteRules::WriteRules(std::initializer_list<Fc> writable)
    : m_writable(0)
{
    for (const Fc fc : writable)
        m_writable |= 1U << static_cast<unsigned>(fc);
}

std::optional<AccessResult> Object::read(Peer &, const Part &)
{
    return std::nullopt;
}

Access::Access(Model &model, WriteRules rules)
    : m_model(model)
    , m_rules(rules)
{
}

void Access::attach(const Part &part, std::shared_ptr<Object> object)
{
    m_objectsByLeaf.emplace(part.firstLeaf(), object.get());
    m_objects.insert_or_assign({part.logicalNode(), &part.node()}, std::move(object));
}

AccessResult Access::read(Peer &client, const mms::VariableAccess &access)
{
    const auto *name = std::get_if<mms::ObjectName>(&access.variable);
    if (!name)
        return DataAccessError::ObjectAccessUnsupported;
    const Part part =
        name->scope == mms::Scope::Domain ? m_model.find(name->domain, name->item) : Part();
    if (!part.isValid())
        return DataAccessError::ObjectNonExistent;
    return select(client, part, access.parts);
}

AccessResult Access::read(Peer &client, const Part &part)
{
    if (m_objects.empty())
        return m_model.value(part);
    if (Object *const object = around(part)) {
        object->refresh();
        if (auto result = object->read(client, part))
            return std::move(*result);
    } else if (!part.isLeaf()) {
        refreshWithin(part);
    }
    return m_model.value(part);
}

AccessResult Access::select(Peer &client, const Part &part,
                            const std::vector<AlternateAccess> &parts)
{
    if (parts.empty())
        return read(client, part);
    if (parts.size() == 1)
        return selectOne(client, part, parts.front());
    std::vector<mms::Data> members;
    for (const AlternateAccess &selection : parts) {
        AccessResult result = selectOne(client, part, selection);
        if (!result.ok())
            return result;
        members.push_back(std::move(result).data());
    }
    return mms::Data::structure(std::move(members));
}

AccessResult Access::selectOne(Peer &client, const Part &part, const AlternateAccess &selection)
{
    if (selection.kind == AlternateAccess::Kind::Component) {
        const Part component =
            selection.component.empty() ? Part() : part.descendant(selection.component);
        return component.isValid() ? select(client, component, selection.parts)
                                   : AccessResult(DataAccessError::ObjectNonExistent);
    }
    if (!part.node().isArray())
        return DataAccessError::ObjectAttributeInconsistent;
    const std::uint32_t size = part.childCount();
    const bool whole = selection.kind == AlternateAccess::Kind::AllElements;
    const std::uint32_t first = whole ? 0 : selection.index;
    if (selection.kind == AlternateAccess::Kind::Index) {
        return first < size ? select(client, part.childAt(first), selection.parts)
                            : AccessResult(DataAccessError::ObjectNonExistent);
    }
    if (first > size || (!whole && selection.count > size - first))
        return DataAccessError::ObjectNonExistent;
    const std::uint32_t count = whole || selection.count == 0 ? size - first : selection.count;
    std::vector<mms::Data> elements;
    for (std::uint32_t i = 0; i < count; ++i) {
        AccessResult result = select(client, part.childAt(first + i), selection.parts);
        if (!result.ok())
            return result;
        elements.push_back(std::move(result).data());
    }
    return mms::Data::array(std::move(elements));
}

std::optional<DataAccessError> Access::write(Peer &client, const mms::VariableAccess &access,
                                             const mms::Data &value)
{
    const auto *name = std::get_if<mms::ObjectName>(&access.variable);
    if (!name)
        return DataAccessError::ObjectAccessUnsupported;
    const Part part = m_model.find(access);
    return part.isValid() ? write(client, part, value) : writeElements(client, access, value);
}

std::optional<DataAccessError>
Access::writeElements(Peer &client, const mms::VariableAccess &access, const mms::Data &value)
{
    const Part array = m_model.find({access.variable, {}});
    if (!array.isValid() || !array.node().isArray() || access.parts.size() != 1)
        return DataAccessError::ObjectNonExistent;
    const AlternateAccess &selection = access.parts.front();
    const std::uint32_t size = array.childCount();
    const bool whole = selection.kind == AlternateAccess::Kind::AllElements;
    const std::uint32_t first = whole ? 0 : selection.index;
    if ((!whole && selection.kind != AlternateAccess::Kind::IndexRange) ||
        !selection.parts.empty() || first > size || (!whole && selection.count > size - first))
        return DataAccessError::ObjectNonExistent;
    const std::uint32_t count = whole || selection.count == 0 ? size - first : selection.count;
    const auto values = value.children();
    if (value.kind() != mms::Data::Kind::Array || values.size() != count)
        return DataAccessError::TypeInconsistent;
    for (std::uint32_t i = 0; i < count; ++i) {
        if (const auto error = Model::check(array.childAt(first + i), values[i]))
            return error;
    }
    const Model::Batch together(m_model);
    for (std::uint32_t i = 0; i < count; ++i) {
        if (const auto error = write(client, array.childAt(first + i), values[i]))
            return error;
    }
    return std::nullopt;
}

std::optional<DataAccessError> Access::write(Peer &client, const Part &part, const mms::Data &value)
{
    if (Object *const object = around(part)) {
        const auto error = Model::check(part, value);
        return error ? error : object->write(client, part, value);
    }
    if (part.node().level == Level::LogicalNode || !m_rules.allows(part.fc()) ||
        hasObjectsWithin(part))
        return DataAccessError::ObjectAccessDenied;
    for (std::uint32_t i = 0; i < part.leafCount(); ++i) {
        if (m_model.isReadOnly(part.firstLeaf() + i))
            return DataAccessError::ObjectAccessDenied;
    }
    const auto error = Model::check(part, value);
    if (!error)
        m_model.set(part, value);
    return error;
}

Object *Access::around(const Part &part) const
{
    if (m_objects.empty())
        return nullptr;
    const Layout &layout = *m_model.logicalNodes()[part.logicalNode()].layout;
    const LayoutNode *node = &part.node();
    while (node != layout.nodes.data()) {
        const auto found = m_objects.find({part.logicalNode(), node});
        if (found != m_objects.end())
            return found->second.get();
        node = &layout.nodes[node->parent];
    }
    return nullptr;
}

bool Access::hasObjectsWithin(const Part &part) const
{
    const auto first = m_objectsByLeaf.lower_bound(part.firstLeaf());
    return first != m_objectsByLeaf.end() && part.contains(first->first);
}

void Access::refreshWithin(const Part &part)
{
    for (auto entry = m_objectsByLeaf.lower_bound(part.firstLeaf());
         entry != m_objectsByLeaf.end() && part.contains(entry->first); ++entry)
        entry->second->refresh();
}

} // namespace sim
