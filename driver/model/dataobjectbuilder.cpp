// SPDX-License-Identifier: Apache-2.0
#include "dataobjectbuilder.h"

#include "classguess.h"
#include "filecomparison.h"
#include "standard/standardtypes.h"
#include "valueconversion.h"

#include "acsi/functionalconstraint.h"
#include "acsi/typedvalue.h"

#include <QtCore/QHash>

using namespace FileComparison;
using mms::TypeDescription;

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

/// Puts names together that come in several orders: each order is kept as far as they agree.
class NameOrder
{
public:
    void add(const QStringList &names)
    {
        int position = -1;
        for (int i = 0; i < names.size(); ++i) {
            const int known = m_names.indexOf(names.at(i));
            if (known >= 0) {
                position = known;
            } else if (position >= 0) {
                m_names.insert(++position, names.at(i));
            } else {
                position = beforeKnown(names, i);
                m_names.insert(position, names.at(i));
            }
        }
    }

    const QStringList &names() const { return m_names; }

private:
    int beforeKnown(const QStringList &names, int from) const
    {
        for (int i = from + 1; i < names.size(); ++i) {
            const int known = m_names.indexOf(names.at(i));
            if (known >= 0)
                return known;
        }
        return m_names.size();
    }

    QStringList m_names;
};

/// What can only be shown as the setting group control block of the logical device.
bool isSettingGroupControl(acsi::FunctionalConstraint constraint, const QString &name,
                           const QString &node)
{
    return constraint == acsi::FunctionalConstraint::SP && name == QLatin1String("SGCB") &&
           node == QLatin1String("LLN0");
}

} // namespace

DataObjectBuilder::DataObjectBuilder(bool isCompared)
    : m_isCompared(isCompared)
{
}

void DataObjectBuilder::addDataObjects(LogicalNode &node, const acsi::NodeDescription &source,
                                       const QString &base, const LogicalNode *file)
{
    m_lnClass = node.lnClass;
    m_base = base;
    m_nodeName = node.name;
    m_source = &source;

    const bool hasActiveSettings = acsi::componentOf(*source.type, "SG") != nullptr;
    QHash<QString, Parts> data;
    NameOrder order;
    for (const TypeDescription::Component &constraint : source.type->components) {
        const auto known = acsi::functionalConstraintFrom(constraint.name);
        if (!known || !acsi::isOfData(*known))
            continue;
        // What can be edited is shown as the value in force.
        if (hasActiveSettings && *known == acsi::FunctionalConstraint::SE)
            continue;
        QStringList names;
        for (const TypeDescription::Component &object : constraint.type.components) {
            const QString name = text(object.name);
            if (isSettingGroupControl(*known, name, node.name))
                continue;
            names.append(name);
            data[name].append({text(constraint.name), &object.type});
        }
        order.add(names);
    }
    const FileItems<DataObject> fileObjects(file ? &file->dataObjects : nullptr);
    const QStringList names = fileObjects.order(order.names());
    for (const QString &name : names) {
        const DataObject *fileObject = fileObjects.find(name);
        const Parts parts = data.value(name);
        node.dataObjects.append(parts.isEmpty() ? absentCopy(*fileObject).release()
                                                : dataObject(name, parts, fileObject).release());
    }
}

QVector<const TypeDescription *> DataObjectBuilder::typesOf(const Parts &parts)
{
    QVector<const TypeDescription *> types;
    for (const Part &part : parts)
        types.append(part.type);
    return types;
}

std::unique_ptr<DataObject> DataObjectBuilder::dataObject(const QString &name, const Parts &parts,
                                                          const DataObject *file)
{
    auto object = std::make_unique<DataObject>();
    object->name = name;
    m_dataObject = name;
    object->type = file ? file->type : StandardTypes::commonDataClass(m_lnClass, name);
    if (object->type.isEmpty())
        object->type = ClassGuess::commonDataClass(typesOf(parts));
    const FileItems<DAO> fileItems(file ? &file->attributes
                                        : (m_isCompared ? &m_nothing : nullptr));
    addChildren(object->attributes, parts, fileItems, {object->type, {}}, QLatin1Char('$') + name);
    return object;
}

void DataObjectBuilder::addChildren(QList<DAO *> &children, const Parts &parts,
                                    const FileItems<DAO> &file, const Context &context,
                                    const QString &path)
{
    QHash<QString, Parts> data;
    NameOrder order;
    for (const Part &part : parts) {
        QStringList names;
        for (const TypeDescription::Component &component : part.type->components) {
            names.append(text(component.name));
            data[names.last()].append({part.fc, &component.type});
        }
        order.add(names);
    }
    const QSet<QString> moved = file.isGiven() ? movedMembers(parts, file, path) : QSet<QString>();
    const QStringList names = file.order(order.names());
    for (const QString &name : names) {
        const DAO *fileNode = file.find(name);
        const Parts found = data.value(name);
        if (found.isEmpty()) {
            children.append(absentCopy(*fileNode).release());
            continue;
        }
        const int before = children.size();
        addNode(children, name, found, fileNode, file.isGiven(), context, path);
        for (int i = before; moved.contains(name) && i < children.size(); ++i) {
            if (children.at(i)->state == agreeing)
                children.at(i)->state = differing;
        }
    }
}

QSet<QString> DataObjectBuilder::movedMembers(const Parts &parts, const FileItems<DAO> &file,
                                              const QString &path) const
{
    QSet<QString> moved;
    for (const Part &part : parts) {
        const QString item = m_nodeName + QLatin1Char('$') + part.fc + path;
        if (part.type->kind != TypeDescription::Kind::Structure ||
            !acsi::isToldWhole(*m_source, item.toStdString()))
            continue;
        QStringList names;
        for (const TypeDescription::Component &component : part.type->components)
            names.append(text(component.name));
        moved += outOfOrder(names, file.order({}));
    }
    return moved;
}

void DataObjectBuilder::addNode(QList<DAO *> &children, const QString &name, const Parts &parts,
                                const DAO *file, bool isCompared, const Context &context,
                                const QString &path)
{
    const TypeDescription &first = *parts.first().type;
    const bool isGroup = first.kind == TypeDescription::Kind::Structure ||
                         first.kind == TypeDescription::Kind::Array;
    const QString ownPath = path + QLatin1Char('$') + name;
    if (isGroup) {
        children.append(group(name, parts, file, isCompared, context, ownPath).release());
        return;
    }
    for (const Part &part : parts) {
        auto node = std::make_unique<DAO>();
        node->attribute = new DataAttribute;
        node->state = leaf(*node->attribute, name, part, file, context.below(name), ownPath);
        if (isCompared && !file)
            node->state = additional;
        children.append(node.release());
    }
}

quint32 DataObjectBuilder::leaf(DataAttribute &attribute, const QString &name, const Part &part,
                                const DAO *file, const Context &context, const QString &path) const
{
    attribute.name = name;
    attribute.fc = part.fc;
    attribute.reference = m_base + part.fc + path;
    const DataAttribute *configured = file ? file->attribute : nullptr;
    if (configured && ValueConversion::fits(configured->basicType, *part.type)) {
        attribute.basicType = configured->basicType;
        attribute.enumTypeId = configured->enumTypeId;
        return configured->fc == part.fc ? agreeing : differing;
    }
    const StandardTypes::AttributeType standard =
        StandardTypes::attribute(m_lnClass, m_dataObject, context.commonDataClass, context.path);
    if (!standard.basicType.isEmpty() && standard.basicType != QLatin1String("Struct") &&
        ValueConversion::fits(standard.basicType, *part.type)) {
        attribute.basicType = standard.basicType;
        attribute.enumTypeId = standard.enumTypeId;
    } else {
        attribute.basicType = ValueConversion::basicTypeOf(*part.type);
    }
    return file ? differing : agreeing;
}

std::unique_ptr<DAO> DataObjectBuilder::group(const QString &name, const Parts &parts,
                                              const DAO *file, bool isCompared,
                                              const Context &context, const QString &path)
{
    const TypeDescription &first = *parts.first().type;
    const bool isArray = first.kind == TypeDescription::Kind::Array;
    const QString innerClass = context.path.isEmpty()
                                   ? StandardTypes::innerClass(context.commonDataClass, name)
                                   : QString();
    auto node = std::make_unique<DAO>();
    if (isCompared && !file)
        node->state = additional;
    const FileItems<DAO> fileItems(file ? &file->children : (isCompared ? &m_nothing : nullptr));

    if (isArray) {
        QString typeName = file && file->subDataObject ? file->subDataObject->type : innerClass;
        if (typeName.isEmpty() && !first.components.empty())
            typeName = ValueConversion::basicTypeOf(first.components.front().type);
        node->subDataObject = new SubDataObject{name, typeName};
        if (file &&
            (!file->subDataObject || file->children.size() != static_cast<int>(first.elementCount)))
            node->state = differing;
        addElements(*node, name, parts, fileItems, isCompared, context, path);
        return node;
    }

    if (isDataObject(name, parts, file, innerClass, context)) {
        QString type = file && file->subDataObject ? file->subDataObject->type : innerClass;
        if (type.isEmpty())
            type = ClassGuess::commonDataClass(typesOf(parts));
        node->subDataObject = new SubDataObject{name, type};
        if (file && !file->subDataObject)
            node->state = differing;
        addChildren(node->children, parts, fileItems, {type, {}}, path);
    } else {
        node->attribute = new DataAttribute;
        node->attribute->name = name;
        node->attribute->fc = parts.first().fc;
        node->attribute->basicType = QStringLiteral("Struct");
        node->attribute->reference = m_base + parts.first().fc + path;
        if (file && (!file->attribute || file->attribute->basicType != QLatin1String("Struct") ||
                     file->attribute->fc != parts.first().fc))
            node->state = differing;
        addChildren(node->children, parts, fileItems, context.below(name), path);
    }
    return node;
}

void DataObjectBuilder::addElements(DAO &array, const QString &name, const Parts &parts,
                                    const FileItems<DAO> &file, bool isCompared,
                                    const Context &context, const QString &path)
{
    QStringList names;
    QHash<QString, Parts> elements;
    for (const Part &part : parts) {
        if (part.type->components.empty())
            continue;
        for (std::uint32_t i = 0; i < part.type->elementCount; ++i) {
            const QString element = QStringLiteral("%1(%2)").arg(name).arg(i);
            if (!elements.contains(element))
                names.append(element);
            elements[element].append({part.fc, &part.type->components.front().type});
        }
    }
    // The element takes the array's place in a reference.
    const QString before = path.left(path.size() - name.size() - 1);
    const QStringList order = file.order(names);
    for (const QString &element : order) {
        const DAO *fileElement = file.find(element);
        const Parts found = elements.value(element);
        if (found.isEmpty())
            array.children.append(absentCopy(*fileElement).release());
        else
            addNode(array.children, element, found, fileElement, isCompared, context, before);
    }
}

bool DataObjectBuilder::isDataObject(const QString &name, const Parts &parts, const DAO *file,
                                     const QString &innerClass, const Context &context) const
{
    if (file)
        return file->subDataObject != nullptr;
    if (!innerClass.isEmpty())
        return true;
    const Context inside = context.below(name);
    const bool isKnownAttribute =
        StandardTypes::attribute(m_lnClass, m_dataObject, inside.commonDataClass, inside.path)
            .basicType == QLatin1String("Struct");
    if (isKnownAttribute || !context.path.isEmpty())
        return false;
    const TypeDescription &type = *parts.first().type;
    return parts.size() > 1 || (acsi::componentOf(type, "q") && acsi::componentOf(type, "t"));
}
