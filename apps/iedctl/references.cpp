// SPDX-License-Identifier: Apache-2.0
#include "references.h"

#include <devicemodel/physicaldevice.h>

#include <functional>

namespace {

using Visitor = std::function<void(const DataAttribute &)>;

/// The attributes that have a value of their own: structures are described as attributes as well.
void visit(const DAO &node, const Visitor &visitor)
{
    if (node.attribute && node.children.isEmpty())
        visitor(*node.attribute);
    for (const DAO *child : node.children)
        visit(*child, visitor);
}

void visit(const LogicalNode &node, const Visitor &visitor)
{
    for (const DataObject *object : node.dataObjects) {
        for (const DAO *attribute : object->attributes)
            visit(*attribute, visitor);
    }
}

/// "LN$FC$path" as "LN.path".
QString dotted(const QString &item)
{
    const int node = item.indexOf(QLatin1Char('$'));
    const int constraint = item.indexOf(QLatin1Char('$'), node + 1);
    QString path = item.mid(constraint);
    path.replace(QLatin1Char('$'), QLatin1Char('.'));
    return item.left(node) + path;
}

bool isAtOrBelow(const QString &item, const QString &selected)
{
    if (!item.startsWith(selected))
        return false;
    if (selected.isEmpty() || item.size() == selected.size())
        return true;
    const QChar next = item.at(selected.size());
    return next == QLatin1Char('$') || next == QLatin1Char('.') || next == QLatin1Char('(');
}

/// As many parts of the attribute's item as the dotted selection names, and its constraint.
QString readReference(const QString &item, const QString &selected)
{
    const int parts = selected.count(QLatin1Char('.')) + 1;
    QString reference = item.section(QLatin1Char('$'), 0, parts);
    if (!selected.endsWith(QLatin1Char(')'))) {
        // The whole array where the selection does not name an element.
        const int element = reference.lastIndexOf(QLatin1Char('('));
        if (element > reference.lastIndexOf(QLatin1Char('$')))
            reference.truncate(element);
    }
    return reference;
}

} // namespace

void splitReference(const QString &text, QString &device, QString &rest)
{
    const int slash = text.indexOf(QLatin1Char('/'));
    device = slash < 0 ? text : text.left(slash);
    rest = slash < 0 ? QString() : text.mid(slash + 1);
}

Selection selectData(const PhysicalDevice &device, const QString &text, QString &error)
{
    Selection selection;
    QString item;
    splitReference(text, selection.device, item);
    const LogicalDevice *chosen = nullptr;
    for (const LogicalDevice *each : device.logicalDevices) {
        if (each->name == selection.device)
            chosen = each;
    }
    if (!chosen) {
        error = QStringLiteral("There is no logical device \"%1\".").arg(selection.device);
        return selection;
    }

    QString constraint;
    const bool onWire = item.contains(QLatin1Char('$'));
    if (!onWire && item.endsWith(QLatin1Char(']'))) {
        const int bracket = item.lastIndexOf(QLatin1Char('['));
        constraint = item.mid(bracket + 1, item.size() - bracket - 2);
        item.truncate(bracket);
    }
    const QString prefix = selection.device + QLatin1Char('/');
    for (const LogicalNode *node : chosen->logicalNodes) {
        visit(*node, [&](const DataAttribute &attribute) {
            if (!constraint.isEmpty() && attribute.fc != constraint)
                return;
            const QString own = attribute.reference.mid(prefix.size());
            if (!isAtOrBelow(onWire ? own : dotted(own), item))
                return;
            selection.attributes.append(&attribute);
            const QString reference = onWire ? item : readReference(own, item);
            if (!selection.references.contains(reference))
                selection.references.append(reference);
        });
    }
    if (selection.attributes.isEmpty())
        error = QStringLiteral("There is no data \"%1\".").arg(text);
    return selection;
}

ObjectSelection findObject(const PhysicalDevice &device, const QString &text, QString &error)
{
    ObjectSelection selection;
    QString item;
    splitReference(text, selection.device, item);
    QStringList parts =
        item.split(item.contains(QLatin1Char('$')) ? QLatin1Char('$') : QLatin1Char('.'));
    if (parts.size() == 3)
        parts.removeAt(1);
    if (parts.size() == 2) {
        for (const LogicalDevice *logicalDevice : device.logicalDevices) {
            if (logicalDevice->name != selection.device)
                continue;
            for (const LogicalNode *node : logicalDevice->logicalNodes) {
                for (const DataObject *object : node->dataObjects) {
                    if (node->name == parts.at(0) && object->name == parts.at(1)) {
                        selection.node = node;
                        selection.object = object;
                        return selection;
                    }
                }
            }
        }
    }
    error = QStringLiteral("There is no data object \"%1\".").arg(text);
    return selection;
}

QList<const DataAttribute *> allAttributes(const PhysicalDevice &device)
{
    QList<const DataAttribute *> attributes;
    for (const LogicalDevice *logicalDevice : device.logicalDevices) {
        for (const LogicalNode *node : logicalDevice->logicalNodes)
            visit(*node, [&](const DataAttribute &each) { attributes.append(&each); });
    }
    return attributes;
}

const DataAttribute *attributeOf(const DataObject &object, const QStringList &path)
{
    const DAO *node = path.isEmpty() ? nullptr : object.getDAOByName(path.first());
    for (int i = 1; node && i < path.size(); ++i)
        node = node->getDAOByName(path.at(i));
    return node ? node->attribute : nullptr;
}
