// SPDX-License-Identifier: Apache-2.0
#include "sclimport.h"

#include "driver/text/sentences.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <limits>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SclImport)
};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

qint32 bounded(std::uint32_t number)
{
    return static_cast<qint32>(
        qMin(number, static_cast<std::uint32_t>(std::numeric_limits<qint32>::max())));
}

/// Builds the tree of one device. Texts that come again are made once and shared.
class DeviceBuilder
{
public:
    explicit DeviceBuilder(const FileChoice &choice)
        : m_choice(choice)
    {
    }

    std::unique_ptr<PhysicalDevice> build(const scl::Ied &ied)
    {
        auto device = std::make_unique<PhysicalDevice>();
        m_device = device.get();
        device->name = text(ied.name);
        m_choice.forEachDevice(ied, [this](const scl::LogicalDevice &logicalDevice) {
            m_device->logicalDevices.append(logicalDeviceOf(logicalDevice).release());
        });
        device->rebuildIndex();
        return device;
    }

private:
    /// What all instances of a node have in common.
    struct NodeTexts
    {
        QString name;
        QString fc;
        QString basicType;
        QString enumTypeId;
        QString typeName; ///< of a sub data object or an array
        QVariant defaultValue;
        bool isPresent = true;
        std::vector<QString> elementNames;
    };

    std::unique_ptr<LogicalDevice> logicalDeviceOf(const scl::LogicalDevice &source)
    {
        auto device = std::make_unique<LogicalDevice>();
        device->name = m_choice.nameOf(text(source.name));
        m_settingGroup = 1;
        for (const scl::LogicalNode &node : source.nodes) {
            if (node.settingControl)
                m_settingGroup = node.settingControl->activeGroup;
        }
        device->logicalNodes.reserve(static_cast<int>(source.nodes.size()));
        for (const scl::LogicalNode &node : source.nodes)
            device->logicalNodes.append(logicalNodeOf(node, device->name).release());
        return device;
    }

    std::unique_ptr<LogicalNode> logicalNodeOf(const scl::LogicalNode &source,
                                               const QString &deviceName)
    {
        auto node = std::make_unique<LogicalNode>();
        node->present = source.type != nullptr;
        node->lnClass = shared(source.lnClass);
        node->name = shared(source.name);
        m_reference = deviceName + QLatin1Char('/') + node->name + QLatin1Char('$');
        m_constraintAt = m_reference.size();
        m_reference += QLatin1String("XX");
        if (source.type)
            node->dataObjects.reserve(static_cast<int>(source.type->nodes.size()));
        source.forEachDataObject([this, &node](const scl::DataNode &object) {
            node->dataObjects.append(dataObjectOf(object).release());
        });
        addDataSets(source, *node);
        addReports(source, *node);
        if (source.settingControl) {
            node->settingGroup = new SettingGroupControl;
            node->settingGroup->name = QStringLiteral("SGCB");
            node->settingGroup->numOfSG = bounded(source.settingControl->groupCount);
            node->settingGroup->activeGroup = bounded(source.settingControl->activeGroup);
        }
        return node;
    }

    std::unique_ptr<DataObject> dataObjectOf(const scl::DataNode &source)
    {
        const NodeTexts &texts = textsOf(source.node());
        auto object = std::make_unique<DataObject>();
        object->present = texts.isPresent;
        object->name = texts.name;
        object->type = texts.typeName;
        const int length = m_reference.size();
        m_reference += QLatin1Char('$');
        m_reference += texts.name;
        addChildren(source, object->attributes);
        m_reference.truncate(length);
        return object;
    }

    void addChildren(const scl::DataNode &source, QList<DAO *> &children)
    {
        if (source.isArray())
            children.reserve(static_cast<int>(source.arraySize().value_or(0)));
        else if (source.node().type)
            children.reserve(static_cast<int>(source.node().type->nodes.size()));
        source.forEachChild([this, &children](const scl::DataNode &child) {
            children.append(nodeOf(child).release());
        });
    }

    std::unique_ptr<DAO> nodeOf(const scl::DataNode &source)
    {
        NodeTexts &texts = textsOf(source.node());
        const QString name =
            source.element() < 0 ? texts.name : elementName(texts, source.element());
        auto node = std::make_unique<DAO>();
        node->state = texts.isPresent ? 1 : 0;
        // In a reference the element stands for the array: "HA$har(3)".
        const int length = m_reference.size();
        if (!source.isArray()) {
            m_reference += QLatin1Char('$');
            m_reference += name;
        }
        if (source.isArray() || source.node().kind != scl::NodeKind::Attribute) {
            node->subDataObject = new SubDataObject{name, texts.typeName};
        } else {
            node->attribute = new DataAttribute;
            fillAttribute(source, texts, name, *node->attribute);
            if (source.isLeaf() && source.node().basicType == scl::BasicType::PhyComAddr)
                addAddressParts(*node);
        }
        if (!source.isLeaf())
            addChildren(source, node->children);
        m_reference.truncate(length);
        return node;
    }

    /// SCL has one type for what is a structure on the wire.
    void addAddressParts(DAO &address)
    {
        static const std::pair<const char *, const char *> parts[] = {
            {"Addr", "Octet6"}, {"PRIORITY", "INT8U"}, {"VID", "INT16U"}, {"APPID", "INT16U"}};
        DataAttribute &whole = *address.attribute;
        whole.basicType = shared("Struct");
        whole.value = QVariant();
        for (const auto &[name, basicType] : parts) {
            auto *part = new DAO;
            part->state = address.state;
            part->attribute = new DataAttribute;
            part->attribute->present = whole.present;
            part->attribute->name = shared(name);
            part->attribute->fc = whole.fc;
            part->attribute->basicType = shared(basicType);
            if (!whole.reference.isEmpty())
                part->attribute->reference =
                    whole.reference + QLatin1Char('$') + part->attribute->name;
            address.children.append(part);
        }
    }

    void fillAttribute(const scl::DataNode &source, const NodeTexts &texts, const QString &name,
                       DataAttribute &attribute)
    {
        attribute.name = name;
        attribute.fc = texts.fc.isEmpty() ? constraintOf(source.fc()) : texts.fc;
        attribute.enumTypeId = texts.enumTypeId;
        attribute.basicType = texts.basicType;
        attribute.present = texts.isPresent && !attribute.fc.isEmpty();
        attribute.reference = referenceFor(attribute.fc);
        if (!source.isLeaf())
            return;
        const std::span<const scl::ConfiguredValue> values = source.values();
        if (values.empty())
            return;
        if (values.data() == source.node().defaults.data() && values.size() == 1)
            attribute.value = texts.defaultValue;
        else if (const scl::ConfiguredValue *configured = source.value(m_settingGroup))
            attribute.value = valueOf(source.node().basicType, configured->value);
    }

    /// A setting that SCL marks SE can be edited: the device has it under SE while a group is being
    /// edited, and always under SG, where its value in force is read.
    QString constraintOf(std::string_view fc)
    {
        return shared(fc == "SE" ? std::string_view("SG") : fc);
    }

    /// The reference of the node that is being built. Nothing addresses an attribute without a
    /// functional constraint, so it has no reference.
    QString referenceFor(const QString &fc)
    {
        if (fc.size() == 2) {
            m_reference[m_constraintAt] = fc.at(0);
            m_reference[m_constraintAt + 1] = fc.at(1);
            return QString(m_reference.constData(), m_reference.size());
        }
        if (fc.isEmpty())
            return {};
        return m_reference.left(m_constraintAt) + fc + m_reference.mid(m_constraintAt + 2);
    }

    NodeTexts &textsOf(const scl::TemplateNode &source)
    {
        const auto [entry, isNew] = m_texts.try_emplace(&source);
        NodeTexts &texts = entry->second;
        if (!isNew)
            return texts;
        texts.name = shared(source.name);
        texts.fc = constraintOf(source.fc);
        texts.basicType = shared(source.basicTypeName);
        if (source.kind != scl::NodeKind::Attribute || source.array)
            texts.typeName = typeNameOf(source);
        texts.isPresent = source.isLeaf() || source.type;
        if (source.enumeration) {
            texts.enumTypeId = shared(source.enumeration->id);
            addEnumType(*source.enumeration);
        } else if (source.basicType == scl::BasicType::Enum) {
            texts.enumTypeId = shared(scl::trimmed(source.typeId));
        }
        if (source.defaults.size() == 1)
            texts.defaultValue = valueOf(source.basicType, source.defaults.front().value);
        return texts;
    }

    QString typeNameOf(const scl::TemplateNode &source)
    {
        if (source.type && !source.type->cdc.empty())
            return shared(source.type->cdc);
        return source.typeId.empty() ? shared(source.basicTypeName)
                                     : shared(scl::trimmed(source.typeId));
    }

    static QString elementName(NodeTexts &texts, std::int32_t element)
    {
        const auto index = static_cast<std::size_t>(element);
        while (texts.elementNames.size() <= index) {
            texts.elementNames.push_back(texts.name + QLatin1Char('(') +
                                         QString::number(texts.elementNames.size()) +
                                         QLatin1Char(')'));
        }
        return texts.elementNames[index];
    }

    void addEnumType(const scl::Enumeration &source)
    {
        const QString id = shared(source.id);
        if (m_device->enumTypes.contains(id))
            return;
        EnumType type;
        type.id = id;
        for (const scl::EnumLiteral &literal : source.literals)
            type.values.insert(literal.ordinal, shared(literal.text));
        m_device->enumTypes.insert(id, type);
    }

    QVariant valueOf(scl::BasicType type, const scl::Value &value)
    {
        struct Converter
        {
            DeviceBuilder &builder;
            scl::BasicType type;

            QVariant operator()(std::monostate) const { return {}; }
            QVariant operator()(bool flag) const { return flag; }
            QVariant operator()(std::int64_t number) const
            {
                if (type == scl::BasicType::Int64 || type == scl::BasicType::Int128)
                    return static_cast<qlonglong>(number);
                return static_cast<int>(number);
            }
            QVariant operator()(std::uint64_t number) const
            {
                if (type == scl::BasicType::Int64U)
                    return static_cast<qulonglong>(number);
                if (type == scl::BasicType::Int32U)
                    return static_cast<uint>(number);
                return static_cast<int>(number);
            }
            QVariant operator()(double number) const
            {
                if (type == scl::BasicType::Float32)
                    return static_cast<float>(number);
                return number;
            }
            QVariant operator()(std::string_view characters) const
            {
                return builder.shared(characters);
            }
        };
        return std::visit(Converter{*this, type}, value);
    }

    void addDataSets(const scl::LogicalNode &source, LogicalNode &node)
    {
        node.dataSetGroup->dataSets.reserve(static_cast<int>(source.dataSets.size()));
        for (const scl::DataSet &set : source.dataSets) {
            auto *dataSet = new DataSet;
            node.dataSetGroup->dataSets.append(dataSet);
            dataSet->state = 0;
            dataSet->name = shared(set.name);
            dataSet->members.reserve(static_cast<int>(set.members.size()));
            for (const scl::Fcda &member : set.members) {
                QString reference = text(member.reference);
                const QString device = reference.section(QLatin1Char('/'), 0, 0);
                reference.replace(0, device.size(), m_choice.nameOf(device));
                dataSet->members.append(
                    new DataSetMember{static_cast<quint8>(member.resolved), reference});
            }
        }
    }

    void addReports(const scl::LogicalNode &source, LogicalNode &node)
    {
        for (const scl::ReportControlBlock &report : source.reports) {
            ReportControlBlock block;
            block.state = report.dataSet || report.dataSetName.empty() ? 1 : 0;
            block.type = report.buffered ? QStringLiteral("BR") : QStringLiteral("RP");
            block.rptId = text(report.reportId);
            block.dataSet = shared(report.dataSetName);
            block.confRev = bounded(report.confRev);
            block.integrityPeriod = bounded(report.integrityPeriod);
            block.bufferTime = bounded(report.bufferTime);
            block.triggerDataChange = report.triggers.dataChange;
            block.triggerQualityChange = report.triggers.qualityChange;
            block.triggerDataUpdate = report.triggers.dataUpdate;
            block.triggerIntegrity = report.triggers.integrity;
            block.triggerGeneralInterrogation = report.triggers.generalInterrogation;
            block.optSequenceNumber = report.fields.sequenceNumber;
            block.optTimeStamp = report.fields.timeStamp;
            block.optReasonForInclusion = report.fields.reasonForInclusion;
            block.optDataSetName = report.fields.dataSetName;
            block.optDataReference = report.fields.dataReference;
            block.optBufferOverflow = report.buffered && report.fields.bufferOverflow;
            block.optEntryId = report.buffered && report.fields.entryId;
            block.optConfRevision = report.fields.configurationRevision;
            for (const std::string_view name : report.instanceNames) {
                block.name = text(name);
                block.reference =
                    node.name + QLatin1Char('$') + block.type + QLatin1Char('$') + block.name;
                node.reportControls->blocks.append(new ReportControlBlock(block));
            }
        }
    }

    QString shared(std::string_view utf8)
    {
        const auto [entry, isNew] = m_shared.try_emplace(utf8);
        if (isNew)
            entry->second = text(utf8);
        return entry->second;
    }

    const FileChoice &m_choice;
    PhysicalDevice *m_device = nullptr;
    std::uint32_t m_settingGroup = 1;
    QString m_reference; ///< of the node that is being built, its constraint written as "XX"
    int m_constraintAt = 0;
    std::unordered_map<const scl::TemplateNode *, NodeTexts> m_texts;
    std::unordered_map<std::string_view, QString> m_shared;
};

} // namespace

scl::ReadResult SclImport::readFile(const QString &path, const scl::ReadOptions &options)
{
    if (!path.startsWith(QLatin1Char(':')))
        return scl::readFile(QFile::encodeName(path).toStdString(), options);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        scl::ReadResult result;
        result.error = scl::ReadError::CannotRead;
        result.errorText = wording::say("The file \"%1\" cannot be opened: %2.", path.toStdString(),
                                        file.errorString().toStdString());
        return result;
    }
    const QByteArray bytes = file.readAll();
    return scl::readBytes({bytes.constData(), static_cast<std::size_t>(bytes.size())}, options);
}

QString SclImport::errorText(const scl::ReadResult &result)
{
    if (result.error == scl::ReadError::None)
        return {};
    const QString sentence = text(result.errorText);
    return result.errorLine == 0
               ? sentence
               : Texts::tr("Line %1: %2").arg(QString::number(result.errorLine), sentence);
}

const scl::Ied *SclImport::chooseIed(const scl::Document &document, const QString &name,
                                     QString &error)
{
    if (document.ieds.empty()) {
        error = Texts::tr("The file describes no IED.");
        return nullptr;
    }
    if (!name.isEmpty()) {
        if (const scl::Ied *ied = document.findIed(name.toStdString()))
            return ied;
        error = Texts::tr("There is no IED \"%1\" in the file.").arg(name);
        return nullptr;
    }
    if (document.ieds.size() == 1)
        return &document.ieds.front();
    error = Texts::tr("The file describes several IEDs; one must be chosen.");
    return nullptr;
}

std::unique_ptr<PhysicalDevice> SclImport::makeDevice(const scl::Ied &ied, const FileChoice &choice)
{
    return DeviceBuilder(choice).build(ied);
}
