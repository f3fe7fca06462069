// SPDX-License-Identifier: Apache-2.0
#include "discoveredmodel.h"

#include "filecomparison.h"
#include "standard/standardtypes.h"
#include "valueconversion.h"

#include "acsi/functionalconstraint.h"
#include "acsi/reference.h"

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QVector>

#include <algorithm>
#include <limits>

using namespace FileComparison;
using mms::TypeDescription;

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

qint32 bounded(std::uint64_t number)
{
    constexpr std::uint64_t highest = std::numeric_limits<qint32>::max();
    return static_cast<qint32>(std::min(number, highest));
}

/// Data of one name under one functional constraint.
struct Part
{
    QString fc;
    const TypeDescription *type;
};
using Parts = QVector<Part>;

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

const TypeDescription *componentOf(const TypeDescription &type, std::string_view name)
{
    for (const TypeDescription::Component &component : type.components) {
        if (component.name == name)
            return &component.type;
    }
    return nullptr;
}

/// "XCBR" of "Q0XCBR1"; as it stands when it has no such form.
QString nodeClass(const QString &name)
{
    constexpr int classLength = 4;
    if (name == QLatin1String("LLN0"))
        return name;
    int end = name.size();
    while (end > 0 && name.at(end - 1).isDigit())
        --end;
    const QString candidate = name.left(end).right(classLength);
    const bool isClass =
        candidate.size() == classLength &&
        std::all_of(candidate.begin(), candidate.end(), [](QChar c) { return c.isUpper(); });
    return isClass ? candidate : name;
}

/// The common data class by what is there, for data that the standard's classes do not name.
QString inferredClass(const Parts &parts)
{
    using Kind = TypeDescription::Kind;
    QHash<QString, const TypeDescription *> all;
    for (const Part &part : parts) {
        for (const TypeDescription::Component &component : part.type->components)
            all.insert(text(component.name), &component.type);
    }
    const auto kindOf = [&all](const char *name) {
        const TypeDescription *type = all.value(QLatin1String(name));
        return type ? type->kind : Kind::TypeName;
    };
    const auto has = [&all](const char *name) { return all.contains(QLatin1String(name)); };

    if (const TypeDescription *oper = all.value(QStringLiteral("Oper"))) {
        const TypeDescription *value = componentOf(*oper, "ctlVal");
        const Kind kind = value ? value->kind : Kind::TypeName;
        if (has("valWTr"))
            return kind == Kind::BitString ? QStringLiteral("BSC") : QStringLiteral("ISC");
        if (kind == Kind::Boolean)
            return kindOf("stVal") == Kind::BitString ? QStringLiteral("DPC")
                                                      : QStringLiteral("SPC");
        if (kind == Kind::Integer)
            return QStringLiteral("INC");
        if (kind == Kind::Structure || kind == Kind::FloatingPoint)
            return QStringLiteral("APC");
    }
    switch (kindOf("stVal")) {
    case Kind::Boolean:
        return QStringLiteral("SPS");
    case Kind::BitString:
        return QStringLiteral("DPS");
    case Kind::Integer:
        return QStringLiteral("INS");
    default:
        break;
    }
    if (has("general"))
        return has("dirGeneral") ? QStringLiteral("ACD") : QStringLiteral("ACT");
    static const std::pair<const char *, const char *> marks[] = {
        {"actVal", "BCR"}, {"cVal", "CMV"},  {"mag", "MV"},     {"phsAB", "DEL"}, {"phsA", "WYE"},
        {"c1", "SEQ"},     {"swRev", "LPL"}, {"setMag", "ASG"}, {"vendor", "DPL"}};
    for (const auto &mark : marks) {
        if (has(mark.first))
            return QLatin1String(mark.second);
    }
    switch (kindOf("setVal")) {
    case Kind::Boolean:
        return QStringLiteral("SPG");
    case Kind::Integer:
        return QStringLiteral("ING");
    default:
        return {};
    }
}

class Builder
{
public:
    explicit Builder(const PhysicalDevice *file)
        : m_file(file)
    {
    }

    std::unique_ptr<PhysicalDevice> build(const acsi::ServerDescription &description,
                                          const QString &name)
    {
        auto device = std::make_unique<PhysicalDevice>();
        device->name = name;
        if (m_file)
            device->enumTypes = m_file->enumTypes;
        QHash<QString, const acsi::DeviceDescription *> described;
        QStringList names;
        for (const acsi::DeviceDescription &each : description.devices) {
            names.append(text(each.name));
            described.insert(names.last(), &each);
        }
        const FileItems<LogicalDevice> file(m_file ? &m_file->logicalDevices : nullptr);
        const QStringList order = file.order(names);
        for (const QString &each : order) {
            const LogicalDevice *fileDevice = file.find(each);
            if (const acsi::DeviceDescription *found = described.value(each))
                device->logicalDevices.append(logicalDevice(*found, fileDevice).release());
            else
                device->logicalDevices.append(absentCopy(*fileDevice).release());
        }
        addAssociationDataSets(*device, description);
        device->rebuildIndex();
        return device;
    }

    /// Instead of those that are shown.
    void replaceDataSets(PhysicalDevice &device, const acsi::ServerDescription &description)
    {
        QHash<QString, const LogicalNode *> fileNodes;
        for (const LogicalDevice *each :
             m_file ? m_file->logicalDevices : QList<LogicalDevice *>()) {
            for (const LogicalNode *node : each->logicalNodes)
                fileNodes.insert(each->name + QLatin1Char('/') + node->name, node);
        }
        QHash<QString, QVector<const acsi::DataSetDescription *>> sets;
        for (const acsi::DeviceDescription &each : description.devices) {
            for (const acsi::DataSetDescription &set : each.dataSets) {
                const QString item = text(set.name.item);
                sets[text(each.name) + QLatin1Char('/') + item.section(QLatin1Char('$'), 0, 0)]
                    .append(&set);
            }
        }
        for (LogicalDevice *each : qAsConst(device.logicalDevices)) {
            for (LogicalNode *node : qAsConst(each->logicalNodes)) {
                const QString name = each->name + QLatin1Char('/') + node->name;
                qDeleteAll(node->dataSetGroup->dataSets);
                node->dataSetGroup->dataSets.clear();
                addDataSets(*node, sets.value(name), fileNodes.value(name));
            }
        }
        qDeleteAll(device.dataSets);
        device.dataSets.clear();
        addAssociationDataSets(device, description);
    }

private:
    /// Where the standard's classes know the data from: attributes below a common data class.
    struct Context
    {
        QString commonDataClass;
        QStringList path;

        Context below(const QString &name) const
        {
            return {commonDataClass, path + QStringList(name)};
        }
    };

    static void addAssociationDataSets(PhysicalDevice &device,
                                       const acsi::ServerDescription &description)
    {
        for (const acsi::DataSetDescription &set : description.associationDataSets) {
            auto shown = std::make_unique<DataSet>();
            shown->name = text(set.name.item);
            fillDataSet(*shown, set, nullptr);
            device.dataSets.append(shown.release());
        }
    }

    std::unique_ptr<LogicalDevice> logicalDevice(const acsi::DeviceDescription &source,
                                                 const LogicalDevice *file)
    {
        auto device = std::make_unique<LogicalDevice>();
        device->name = text(source.name);
        QHash<QString, const acsi::NodeDescription *> described;
        QStringList names;
        for (const acsi::NodeDescription &node : source.nodes) {
            names.append(text(node.name));
            described.insert(names.last(), &node);
        }
        const FileItems<LogicalNode> fileNodes(file ? &file->logicalNodes : nullptr);
        QStringList order = fileNodes.order(names);
        // Names come sorted from a device; the node that stands for the whole is shown first.
        if (!file && order.removeOne(QStringLiteral("LLN0")))
            order.prepend(QStringLiteral("LLN0"));
        QHash<QString, QVector<const acsi::DataSetDescription *>> dataSets;
        for (const acsi::DataSetDescription &set : source.dataSets)
            dataSets[text(set.name.item).section(QLatin1Char('$'), 0, 0)].append(&set);
        for (const QString &name : order) {
            const LogicalNode *fileNode = fileNodes.find(name);
            if (const acsi::NodeDescription *found = described.value(name)) {
                device->logicalNodes.append(
                    logicalNode(*found, fileNode, device->name, dataSets.value(name)).release());
            } else {
                device->logicalNodes.append(absentCopy(*fileNode).release());
            }
        }
        return device;
    }

    std::unique_ptr<LogicalNode>
    logicalNode(const acsi::NodeDescription &source, const LogicalNode *file,
                const QString &deviceName,
                const QVector<const acsi::DataSetDescription *> &dataSets)
    {
        auto node = std::make_unique<LogicalNode>();
        node->name = text(source.name);
        node->lnClass = file ? file->lnClass : nodeClass(node->name);
        m_lnClass = node->lnClass;
        m_base = deviceName + QLatin1Char('/') + node->name + QLatin1Char('$');
        m_nodeName = node->name;
        m_source = &source;

        const bool hasActiveSettings = componentOf(source.type, "SG") != nullptr;
        QHash<QString, Parts> data;
        NameOrder order;
        for (const TypeDescription::Component &constraint : source.type.components) {
            const auto known = acsi::functionalConstraintFrom(constraint.name);
            if (!known || !acsi::isOfData(*known))
                continue;
            // What can be edited is shown as the value in force.
            if (hasActiveSettings && *known == acsi::FunctionalConstraint::SE)
                continue;
            QStringList names;
            for (const TypeDescription::Component &object : constraint.type.components) {
                const QString name = text(object.name);
                if (isSettingGroupControl(*known, name, node->name))
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
            node->dataObjects.append(parts.isEmpty()
                                         ? absentCopy(*fileObject).release()
                                         : dataObject(name, parts, fileObject).release());
        }
        addDataSets(*node, dataSets, file);
        addBlocks(*node, source.type, file);
        return node;
    }

    static bool isSettingGroupControl(acsi::FunctionalConstraint constraint, const QString &name,
                                      const QString &node)
    {
        return constraint == acsi::FunctionalConstraint::SP && name == QLatin1String("SGCB") &&
               node == QLatin1String("LLN0");
    }

    std::unique_ptr<DataObject> dataObject(const QString &name, const Parts &parts,
                                           const DataObject *file)
    {
        auto object = std::make_unique<DataObject>();
        object->name = name;
        m_dataObject = name;
        object->type = file ? file->type : StandardTypes::commonDataClass(m_lnClass, name);
        if (object->type.isEmpty())
            object->type = inferredClass(parts);
        const FileItems<DAO> fileItems(file ? &file->attributes : (m_file ? &m_nothing : nullptr));
        addChildren(object->attributes, parts, fileItems, {object->type, {}},
                    QLatin1Char('$') + name);
        return object;
    }

    /// The members of structures of one name under several constraints.
    void addChildren(QList<DAO *> &children, const Parts &parts, const FileItems<DAO> &file,
                     const Context &context, const QString &path)
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
        const QSet<QString> moved =
            file.isGiven() ? movedMembers(parts, file, path) : QSet<QString>();
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

    /// The members that stand at other places of their structures than in the file.
    QSet<QString> movedMembers(const Parts &parts, const FileItems<DAO> &file,
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

    void addNode(QList<DAO *> &children, const QString &name, const Parts &parts, const DAO *file,
                 bool isCompared, const Context &context, const QString &path)
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

    /// Fills a leaf; its state.
    quint32 leaf(DataAttribute &attribute, const QString &name, const Part &part, const DAO *file,
                 const Context &context, const QString &path) const
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
        const StandardTypes::AttributeType standard = StandardTypes::attribute(
            m_lnClass, m_dataObject, context.commonDataClass, context.path);
        if (!standard.basicType.isEmpty() && standard.basicType != QLatin1String("Struct") &&
            ValueConversion::fits(standard.basicType, *part.type)) {
            attribute.basicType = standard.basicType;
            attribute.enumTypeId = standard.enumTypeId;
        } else {
            attribute.basicType = ValueConversion::basicTypeOf(*part.type);
        }
        return file ? differing : agreeing;
    }

    /// A structure or an array.
    std::unique_ptr<DAO> group(const QString &name, const Parts &parts, const DAO *file,
                               bool isCompared, const Context &context, const QString &path)
    {
        const TypeDescription &first = *parts.first().type;
        const bool isArray = first.kind == TypeDescription::Kind::Array;
        const QString innerClass = context.path.isEmpty()
                                       ? StandardTypes::innerClass(context.commonDataClass, name)
                                       : QString();
        auto node = std::make_unique<DAO>();
        if (isCompared && !file)
            node->state = additional;
        const FileItems<DAO> fileItems(file ? &file->children
                                            : (isCompared ? &m_nothing : nullptr));

        if (isArray) {
            QString typeName = file && file->subDataObject ? file->subDataObject->type : innerClass;
            if (typeName.isEmpty() && !first.components.empty())
                typeName = ValueConversion::basicTypeOf(first.components.front().type);
            node->subDataObject = new SubDataObject{name, typeName};
            if (file && (!file->subDataObject ||
                         file->children.size() != static_cast<int>(first.elementCount)))
                node->state = differing;
            addElements(*node, name, parts, fileItems, isCompared, context, path);
            return node;
        }

        if (isDataObject(name, parts, file, innerClass, context)) {
            QString type = file && file->subDataObject ? file->subDataObject->type : innerClass;
            if (type.isEmpty())
                type = inferredClass(parts);
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
            if (file &&
                (!file->attribute || file->attribute->basicType != QLatin1String("Struct") ||
                 file->attribute->fc != parts.first().fc))
                node->state = differing;
            addChildren(node->children, parts, fileItems, context.below(name), path);
        }
        return node;
    }

    void addElements(DAO &array, const QString &name, const Parts &parts,
                     const FileItems<DAO> &file, bool isCompared, const Context &context,
                     const QString &path)
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

    /// Whether a structure is a data object inside a data object; otherwise it is an attribute.
    bool isDataObject(const QString &name, const Parts &parts, const DAO *file,
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
        return parts.size() > 1 || (componentOf(type, "q") && componentOf(type, "t"));
    }

    void addDataSets(LogicalNode &node, const QVector<const acsi::DataSetDescription *> &sets,
                     const LogicalNode *file)
    {
        QHash<QString, const acsi::DataSetDescription *> described;
        QStringList names;
        for (const acsi::DataSetDescription *set : sets) {
            names.append(DiscoveredModel::dataSetName(text(set->name.item)));
            described.insert(names.last(), set);
        }
        const FileItems<DataSet> fileSets(file ? &file->dataSetGroup->dataSets : nullptr);
        const QStringList order = fileSets.order(names);
        for (const QString &name : order) {
            const DataSet *fileSet = fileSets.find(name);
            const acsi::DataSetDescription *found = described.value(name);
            if (!found) {
                node.dataSetGroup->dataSets.append(absentCopy(*fileSet).release());
                continue;
            }
            auto shown = std::make_unique<DataSet>();
            shown->state = 0;
            shown->name = name;
            // What the device has beyond its file is compared with nothing to compare it with.
            static const DataSet nothing;
            fillDataSet(*shown, *found, fileSet ? fileSet : (m_file ? &nothing : nullptr));
            node.dataSetGroup->dataSets.append(shown.release());
        }
    }

    void addBlocks(LogicalNode &node, const TypeDescription &type, const LogicalNode *file) const
    {
        QHash<QString, ReportControlBlock> described;
        QStringList references;
        for (const char *kind : {"BR", "RP"}) {
            const TypeDescription *blocks = componentOf(type, kind);
            if (!blocks)
                continue;
            for (const TypeDescription::Component &component : blocks->components) {
                ReportControlBlock block;
                block.name = text(component.name);
                block.type = QLatin1String(kind);
                block.reference =
                    node.name + QLatin1Char('$') + block.type + QLatin1Char('$') + block.name;
                references.append(block.reference);
                described.insert(block.reference, block);
            }
        }
        if (file) {
            for (const ReportControlBlock *block : qAsConst(file->reportControls->blocks)) {
                auto *shown = new ReportControlBlock(*block);
                shown->state = references.removeOne(block->reference) ? agreeing : absent;
                node.reportControls->blocks.append(shown);
            }
        }
        for (const QString &reference : qAsConst(references)) {
            auto *shown = new ReportControlBlock(described.value(reference));
            shown->state = m_file ? additional : agreeing;
            node.reportControls->blocks.append(shown);
        }

        const TypeDescription *setPoints = componentOf(type, "SP");
        const bool hasGroups =
            node.name == QLatin1String("LLN0") && setPoints && componentOf(*setPoints, "SGCB");
        const SettingGroupControl *fileGroups = file ? file->settingGroup : nullptr;
        if (!hasGroups && !fileGroups)
            return;
        node.settingGroup =
            fileGroups ? new SettingGroupControl(*fileGroups) : new SettingGroupControl;
        node.settingGroup->name = QStringLiteral("SGCB");
        node.settingGroup->state =
            !hasGroups ? absent : (m_file && !fileGroups ? additional : agreeing);
    }

    const PhysicalDevice *m_file;
    const QList<DAO *> m_nothing;
    QString m_lnClass;
    QString m_dataObject;
    QString m_nodeName;
    const acsi::NodeDescription *m_source = nullptr; ///< of the node that is being built
    QString m_base; ///< of references: logical device, logical node and "$"
};

/// The leaf that holds the configuration revision of a logical device; null when it has none.
DAO *revisionOf(const PhysicalDevice &device, const QString &logicalDevice)
{
    for (const LogicalDevice *each : device.logicalDevices) {
        if (each->name != logicalDevice)
            continue;
        for (const LogicalNode *node : each->logicalNodes) {
            if (node->name != QLatin1String("LLN0"))
                continue;
            for (const DataObject *object : node->dataObjects) {
                if (object->name != QLatin1String("NamPlt"))
                    continue;
                DAO *leaf = object->getDAOByName(QStringLiteral("configRev"));
                return leaf && leaf->attribute ? leaf : nullptr;
            }
        }
    }
    return nullptr;
}

} // namespace

std::unique_ptr<PhysicalDevice>
DiscoveredModel::makeDevice(const acsi::ServerDescription &description, const QString &name,
                            const PhysicalDevice *fromFile)
{
    return Builder(fromFile).build(description, name);
}

void DiscoveredModel::setDataSets(PhysicalDevice &device,
                                  const acsi::ServerDescription &description,
                                  const PhysicalDevice *fromFile)
{
    Builder(fromFile).replaceDataSets(device, description);
}

QString DiscoveredModel::dataSetName(const QString &text)
{
    QString name = text.section(QLatin1Char('/'), -1);
    name = name.section(QLatin1Char('$'), -1);
    name = name.section(QLatin1Char('.'), -1);
    if (name.startsWith(QLatin1Char('@')))
        name.remove(0, 1);
    return name;
}

void DiscoveredModel::setSettings(ReportControlBlock &block, const QString &logicalDevice,
                                  const acsi::ReportBlock &read, const ReportControlBlock *fromFile)
{
    block.enabled = read.rptEna;
    block.rptId = text(read.rptId);
    block.dataSet = dataSetName(text(read.datSet));
    block.confRev = bounded(read.confRev);
    block.integrityPeriod = bounded(read.intgPd);
    block.bufferTime = bounded(read.bufTm);
    block.triggerDataChange = read.trgOps.dataChange;
    block.triggerQualityChange = read.trgOps.qualityChange;
    block.triggerDataUpdate = read.trgOps.dataUpdate;
    block.triggerIntegrity = read.trgOps.integrity;
    block.triggerGeneralInterrogation = read.trgOps.generalInterrogation;
    block.optSequenceNumber = read.optFlds.sequenceNumber;
    block.optTimeStamp = read.optFlds.timeStamp;
    block.optReasonForInclusion = read.optFlds.reasonForInclusion;
    block.optDataSetName = read.optFlds.dataSetName;
    block.optDataReference = read.optFlds.dataReference;
    block.optBufferOverflow = read.optFlds.bufferOverflow;
    block.optEntryId = read.optFlds.entryId;
    block.optConfRevision = read.optFlds.confRevision;
    if (!fromFile)
        return;
    block.state =
        isAsConfigured(block, logicalDevice, read.datSet, *fromFile) ? agreeing : differing;
}

void DiscoveredModel::setRevision(PhysicalDevice &device, const QString &logicalDevice,
                                  const QString &revision, const PhysicalDevice *fromFile)
{
    const QString reference = logicalDevice + QStringLiteral("/LLN0$DC$NamPlt$configRev");
    DAO *node = revisionOf(device, logicalDevice);
    if (!node)
        return;
    if (!revision.isEmpty())
        node->attribute->value = revision;
    const DataAttribute *configured = fromFile ? fromFile->findTag(reference) : nullptr;
    const QString expected = configured ? configured->value.toString() : QString();
    if (node->state == agreeing && !expected.isEmpty() && expected != revision)
        node->state = differing;
}

void DiscoveredModel::setGroups(SettingGroupControl &control, const mms::TypeDescription &type,
                                const mms::Data &value)
{
    const auto number = [&](std::string_view name) -> qint32 {
        const std::span<const mms::Data> members = value.children();
        for (std::size_t i = 0; i < type.components.size() && i < members.size(); ++i) {
            if (type.components[i].name == name)
                return bounded(members[i].toUnsigned().value_or(0));
        }
        return 0;
    };
    const bool isCompared = control.numOfSG != 0;
    const qint32 configured = control.numOfSG;
    control.numOfSG = number("NumOfSG");
    control.activeGroup = number("ActSG");
    if (isCompared && control.state == agreeing && configured != control.numOfSG)
        control.state = differing;
}

const ReportControlBlock *DiscoveredModel::blockOf(const PhysicalDevice *device,
                                                   const QString &logicalDevice,
                                                   const QString &reference)
{
    if (!device)
        return nullptr;
    const QString nodeName = reference.section(QLatin1Char('$'), 0, 0);
    for (const LogicalDevice *each : device->logicalDevices) {
        if (each->name != logicalDevice)
            continue;
        for (const LogicalNode *node : each->logicalNodes) {
            if (node->name != nodeName)
                continue;
            for (const ReportControlBlock *block : qAsConst(node->reportControls->blocks)) {
                if (block->reference == reference)
                    return block;
            }
        }
    }
    return nullptr;
}
