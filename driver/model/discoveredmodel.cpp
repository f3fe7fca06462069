// SPDX-License-Identifier: Apache-2.0
#include "discoveredmodel.h"

#include "classguess.h"
#include "dataobjectbuilder.h"
#include "filecomparison.h"
#include "nodecopy.h"

#include "acsi/typedvalue.h"

#include <QtCore/QHash>
#include <QtCore/QVector>

#include <map>
#include <utility>

using namespace FileComparison;
using mms::TypeDescription;

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

class Builder
{
public:
    explicit Builder(const PhysicalDevice *file)
        : m_file(file)
        , m_builder(file != nullptr)
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
        for (const acsi::DeviceDescription &each : description.devices) {
            for (const acsi::NodeDescription &node : each.nodes)
                ++m_nodesOfType[&*node.type];
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
    /// Nodes of one form have the same data objects, attribute for attribute.
    using Form = std::pair<const TypeDescription *, QString>; ///< type and class

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
        node->lnClass =
            m_texts.shared(file ? file->lnClass : ClassGuess::logicalNodeClass(node->name));
        addDataObjects(*node, source, deviceName + QLatin1Char('/') + node->name + QLatin1Char('$'),
                       file);
        addDataSets(*node, dataSets, file);
        addBlocks(*node, *source.type, file);
        return node;
    }

    /// Nodes that are compared with a file are each of their own form.
    void addDataObjects(LogicalNode &node, const acsi::NodeDescription &source, const QString &base,
                        const LogicalNode *file)
    {
        if (m_file) {
            pattern(node, source, base, file).copyTo(node, base);
            return;
        }
        const Form form{&*source.type, node.lnClass};
        const auto known = m_patterns.find(form);
        if (known != m_patterns.end()) {
            known->second.copyTo(node, base);
            return;
        }
        NodePattern made = pattern(node, source, base, nullptr);
        made.copyTo(node, base);
        if (m_nodesOfType.value(&*source.type) > 1)
            m_patterns.emplace(form, std::move(made));
    }

    NodePattern pattern(const LogicalNode &node, const acsi::NodeDescription &source,
                        const QString &base, const LogicalNode *file)
    {
        auto draft = std::make_unique<LogicalNode>();
        draft->name = node.name;
        draft->lnClass = node.lnClass;
        m_builder.addDataObjects(*draft, source, base, file);
        return NodePattern(std::move(draft), base, m_texts);
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
            const TypeDescription *blocks = acsi::componentOf(type, kind);
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

        const TypeDescription *setPoints = acsi::componentOf(type, "SP");
        const bool hasGroups = node.name == QLatin1String("LLN0") && setPoints &&
                               acsi::componentOf(*setPoints, "SGCB");
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
    DataObjectBuilder m_builder;
    SharedTexts m_texts;
    QHash<const TypeDescription *, int> m_nodesOfType;
    std::map<Form, NodePattern> m_patterns; ///< of types that several nodes have
};

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
