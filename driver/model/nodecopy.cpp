// SPDX-License-Identifier: Apache-2.0
#include "nodecopy.h"

#include <algorithm>
#include <utility>

void SharedTexts::share(const QList<DataObject *> &objects)
{
    for (DataObject *object : objects) {
        object->name = shared(object->name);
        object->type = shared(object->type);
        for (DAO *node : qAsConst(object->attributes))
            share(*node);
    }
}

void SharedTexts::share(DAO &node)
{
    if (DataAttribute *attribute = node.attribute) {
        for (QString *text :
             {&attribute->name, &attribute->fc, &attribute->enumTypeId, &attribute->basicType})
            *text = shared(*text);
    }
    if (SubDataObject *object = node.subDataObject) {
        object->name = shared(object->name);
        object->type = shared(object->type);
    }
    for (DAO *child : qAsConst(node.children))
        share(*child);
}

NodePattern::NodePattern(std::unique_ptr<LogicalNode> node, QString base, SharedTexts &texts)
    : m_node(std::move(node))
    , m_base(std::move(base))
{
    texts.share(m_node->dataObjects);
}

void NodePattern::copyTo(LogicalNode &node, const QString &base) const
{
    node.dataObjects.reserve(node.dataObjects.size() + m_node->dataObjects.size());
    for (const DataObject *source : qAsConst(m_node->dataObjects)) {
        auto *object = new DataObject;
        node.dataObjects.append(object);
        object->present = source->present;
        object->type = source->type;
        object->name = source->name;
        object->attributes.reserve(source->attributes.size());
        for (const DAO *each : source->attributes)
            object->attributes.append(copyOf(*each, base));
    }
}

DAO *NodePattern::copyOf(const DAO &source, const QString &base) const
{
    auto *copy = new DAO;
    copy->state = source.state;
    if (source.attribute) {
        copy->attribute = new DataAttribute(*source.attribute);
        const QString &reference = source.attribute->reference;
        QString &own = copy->attribute->reference;
        if (reference.startsWith(m_base)) {
            own = QString(base.size() + reference.size() - m_base.size(), Qt::Uninitialized);
            QChar *const end = std::copy(base.cbegin(), base.cend(), own.data());
            std::copy(reference.cbegin() + m_base.size(), reference.cend(), end);
        }
    }
    if (source.subDataObject)
        copy->subDataObject = new SubDataObject(*source.subDataObject);
    copy->children.reserve(source.children.size());
    for (const DAO *child : source.children)
        copy->children.append(copyOf(*child, base));
    return copy;
}
