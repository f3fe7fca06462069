// SPDX-License-Identifier: Apache-2.0
#include "dataobject.h"

namespace {

DAO *firstOfName(const QList<DAO *> &nodes, const QString &name)
{
    for (DAO *node : nodes) {
        if (node->name() == name)
            return node;
    }
    return nullptr;
}

/// Depth first without recursion: a tree built by hand may be of any depth.
QStringList functionalConstraints(const QList<DAO *> &roots)
{
    QStringList result;
    QList<const DAO *> pending;
    for (int i = roots.size() - 1; i >= 0; --i)
        pending.append(roots.at(i));
    while (!pending.isEmpty()) {
        const DAO *node = pending.takeLast();
        if (node->attribute && !node->attribute->fc.isEmpty() &&
            !result.contains(node->attribute->fc))
            result.append(node->attribute->fc);
        for (int i = node->children.size() - 1; i >= 0; --i)
            pending.append(node->children.at(i));
    }
    return result;
}

} // namespace

DAO::~DAO()
{
    delete attribute;
    delete subDataObject;
    // Children are emptied before they are deleted, so that a deep tree does not use the stack.
    while (!children.isEmpty()) {
        DAO *child = children.takeLast();
        if (!child->children.isEmpty()) {
            children += child->children;
            child->children.clear();
        }
        delete child;
    }
}

QString DAO::name() const
{
    if (attribute)
        return attribute->name;
    return subDataObject ? subDataObject->name : QString();
}

DAO *DAO::getDAOByName(const QString &childName) const
{
    return firstOfName(children, childName);
}

QStringList DAO::possibleFC() const
{
    return functionalConstraints({const_cast<DAO *>(this)});
}

DataObject::~DataObject()
{
    qDeleteAll(attributes);
}

DAO *DataObject::getDAOByName(const QString &childName) const
{
    return firstOfName(attributes, childName);
}

QStringList DataObject::possibleFC() const
{
    return functionalConstraints(attributes);
}
