// SPDX-License-Identifier: Apache-2.0
#include "support/generateddevice.h"

#include <QtCore/QDataStream>
#include <QtCore/QDateTime>
#include <QtCore/QVector>

namespace {

struct Leaf
{
    const char *path; ///< from the data object down, joined by '.'; "[]" marks an array
    const char *fc;
    const char *basicType;
    const char *enumTypeId = "";
};

struct ObjectTemplate
{
    const char *name;
    const char *cdc;
    int subDataObjects; ///< leading parts of a path that are data objects
    QVector<Leaf> leaves;
};

struct NodeTemplate
{
    const char *lnClass;
    QVector<ObjectTemplate> objects;
};

const QVector<Leaf> &statusOf(const char *basicType)
{
    static const QVector<Leaf> boolean{{"stVal", "ST", "BOOLEAN"},  {"q", "ST", "Quality"},
                                       {"t", "ST", "Timestamp"},    {"subEna", "SV", "BOOLEAN"},
                                       {"subVal", "SV", "BOOLEAN"}, {"d", "DC", "VisString255"}};
    static const QVector<Leaf> position{{"stVal", "ST", "Dbpos"},
                                        {"q", "ST", "Quality"},
                                        {"t", "ST", "Timestamp"},
                                        {"Oper.ctlVal", "CO", "BOOLEAN"},
                                        {"Oper.origin.orCat", "CO", "Enum", "orCat"},
                                        {"Oper.origin.orIdent", "CO", "Octet64"},
                                        {"Oper.ctlNum", "CO", "INT8U"},
                                        {"Oper.T", "CO", "Timestamp"},
                                        {"Oper.Test", "CO", "BOOLEAN"},
                                        {"Oper.Check", "CO", "Check"},
                                        {"ctlModel", "CF", "Enum", "ctlModel"}};
    return qstrcmp(basicType, "Dbpos") == 0 ? position : boolean;
}

QVector<Leaf> measurements()
{
    QVector<Leaf> leaves;
    static const char *const paths[][5] = {
        {"phsA.cVal.mag.f", "phsA.cVal.ang.f", "phsA.q", "phsA.t", "phsA.units.SIUnit"},
        {"phsB.cVal.mag.f", "phsB.cVal.ang.f", "phsB.q", "phsB.t", "phsB.units.SIUnit"},
        {"phsC.cVal.mag.f", "phsC.cVal.ang.f", "phsC.q", "phsC.t", "phsC.units.SIUnit"}};
    for (const auto &phase : paths) {
        leaves << Leaf{phase[0], "MX", "FLOAT32"} << Leaf{phase[1], "MX", "FLOAT32"}
               << Leaf{phase[2], "MX", "Quality"} << Leaf{phase[3], "MX", "Timestamp"}
               << Leaf{phase[4], "CF", "Enum", "SIUnit"};
    }
    return leaves;
}

const QVector<NodeTemplate> &nodeTemplates()
{
    static const QVector<NodeTemplate> templates{
        {"MMXU",
         {{"PhV", "WYE", 1, measurements()},
          {"A", "WYE", 1, measurements()},
          {"TotW",
           "MV",
           0,
           {{"mag.f", "MX", "FLOAT32"}, {"q", "MX", "Quality"}, {"t", "MX", "Timestamp"}}}}},
        {"XCBR",
         {{"Pos", "DPC", 0, statusOf("Dbpos")},
          {"BlkOpn", "SPC", 0, statusOf("BOOLEAN")},
          {"OpCnt",
           "INS",
           0,
           {{"stVal", "ST", "INT32"}, {"q", "ST", "Quality"}, {"t", "ST", "Timestamp"}}}}},
        {"PTOC",
         {{"Str", "ACD", 0, statusOf("BOOLEAN")},
          {"StrVal", "ASG", 0, {{"setMag.f", "SG", "FLOAT32"}, {"setMag.f", "SE", "FLOAT32"}}},
          {"OpDlTmms", "ING", 0, {{"setVal", "SG", "INT32"}, {"setVal", "SE", "INT32"}}}}},
        {"GGIO",
         {{"Ind1", "SPS", 0, statusOf("BOOLEAN")}, {"Ind2", "SPS", 0, statusOf("BOOLEAN")}}},
    };
    return templates;
}

ObjectTemplate harmonics()
{
    return {"HA",
            "HWYE",
            0,
            {{"phsAHar[].cVal.mag.f", "MX", "FLOAT32"},
             {"phsAHar[].q", "MX", "Quality"},
             {"phsAHar[].t", "MX", "Timestamp"}}};
}

QVariant exampleValue(const QByteArray &basicType, int number)
{
    if (basicType == "BOOLEAN")
        return number % 2 == 0;
    if (basicType == "FLOAT32")
        return static_cast<float>(number) * 0.25F;
    if (basicType == "Quality")
        return number % 10 ? QStringLiteral("0000000000000") : QStringLiteral("0100000000001");
    if (basicType == "Timestamp")
        return QDateTime::fromMSecsSinceEpoch(Q_INT64_C(1600000000000) + number * Q_INT64_C(1237),
                                              Qt::UTC)
            .toString(Qt::ISODateWithMs);
    if (basicType == "VisString255")
        return QStringLiteral("Feeder %1").arg(number % 50);
    if (basicType == "Octet64")
        return QString();
    return number % 4;
}

class Maker
{
public:
    explicit Maker(const GeneratedDevice &settings)
        : m_settings(settings)
        , m_left(settings.leafAttributes)
    {
    }

    std::unique_ptr<PhysicalDevice> make()
    {
        auto device = std::make_unique<PhysicalDevice>();
        device->name = QStringLiteral("IED1");
        for (int i = 0; i < m_settings.logicalDevices; ++i) {
            auto *logicalDevice = new LogicalDevice;
            logicalDevice->name = QStringLiteral("IED1LD%1").arg(i);
            device->logicalDevices.append(logicalDevice);
            addNodes(*logicalDevice);
        }
        const int nodes = m_settings.logicalDevices * m_settings.logicalNodes;
        for (int round = 0; m_left > 0 && nodes > 0; ++round)
            fillNodes(*device, round);
        for (LogicalDevice *logicalDevice : qAsConst(device->logicalDevices))
            addServices(*logicalDevice);
        device->dataSets.append(new DataSet);
        device->dataSets.last()->name = QStringLiteral("Association");
        device->dataSets.last()->addElement2({QStringLiteral("IED1LD0/XCBR2$ST$Pos")});
        addEnumTypes(*device);
        device->rebuildIndex();
        return device;
    }

private:
    void addNodes(LogicalDevice &device) const
    {
        auto *zero = new LogicalNode;
        zero->lnClass = zero->name = QStringLiteral("LLN0");
        device.logicalNodes.append(zero);
        for (int i = 0; i < m_settings.logicalNodes; ++i) {
            auto *node = new LogicalNode;
            const auto &templates = nodeTemplates();
            node->lnClass = QString::fromLatin1(templates.at(i % templates.size()).lnClass);
            node->name = node->lnClass + QString::number(i + 1);
            device.logicalNodes.append(node);
        }
    }

    /// One copy of each object of its template for every node, numbered from the second round on.
    void fillNodes(PhysicalDevice &device, int round)
    {
        for (LogicalDevice *logicalDevice : qAsConst(device.logicalDevices)) {
            for (int i = 1; i < logicalDevice->logicalNodes.size(); ++i) {
                LogicalNode &node = *logicalDevice->logicalNodes.at(i);
                const auto &templates = nodeTemplates();
                const NodeTemplate &nodeTemplate = templates.at((i - 1) % templates.size());
                for (const ObjectTemplate &object : nodeTemplate.objects)
                    addObject(*logicalDevice, node, object, round);
                if (i == 1 && m_settings.arrayElements > 0)
                    addObject(*logicalDevice, node, harmonics(), round);
            }
        }
    }

    void addObject(const LogicalDevice &device, LogicalNode &node, const ObjectTemplate &from,
                   int round)
    {
        if (m_left <= 0)
            return;
        auto *object = new DataObject;
        object->type = QString::fromLatin1(from.cdc);
        object->name = QString::fromLatin1(from.name);
        if (round > 0)
            object->name += QString::number(round + 1);
        node.dataObjects.append(object);
        for (const Leaf &leaf : from.leaves) {
            const QStringList path = QString::fromLatin1(leaf.path).split(QLatin1Char('.'));
            const QString prefix = device.name + QLatin1Char('/') + node.name + QLatin1Char('$') +
                                   QLatin1String(leaf.fc) + QLatin1Char('$') + object->name;
            addLeaf(object->attributes, path, 0, from.subDataObjects, prefix, leaf);
        }
    }

    void addLeaf(QList<DAO *> &siblings, const QStringList &path, int depth, int subDataObjects,
                 const QString &prefix, const Leaf &leaf)
    {
        if (m_left <= 0)
            return;
        QString part = path.at(depth);
        if (part.endsWith(QLatin1String("[]"))) {
            part.chop(2);
            DAO &array = child(siblings, part, nullptr, QString());
            for (int i = 0; i < m_settings.arrayElements && m_left > 0; ++i) {
                const QString element = QStringLiteral("%1(%2)").arg(part).arg(i);
                DAO &node = child(array.children, element, nullptr, QString());
                addLeaf(node.children, path, depth + 1, subDataObjects,
                        prefix + QLatin1Char('$') + element, leaf);
            }
            return;
        }
        const QString reference = prefix + QLatin1Char('$') + part;
        const bool last = depth + 1 == path.size();
        DAO &node = child(siblings, part, depth < subDataObjects ? nullptr : leaf.fc, reference);
        if (!last) {
            addLeaf(node.children, path, depth + 1, subDataObjects, reference, leaf);
            return;
        }
        node.attribute->basicType = QString::fromLatin1(leaf.basicType);
        node.attribute->enumTypeId = QString::fromLatin1(leaf.enumTypeId);
        if (m_settings.values)
            node.attribute->value = exampleValue(leaf.basicType, m_left);
        --m_left;
    }

    /// The sibling of that name and functional constraint, made where it is missing.
    static DAO &child(QList<DAO *> &siblings, const QString &name, const char *fc,
                      const QString &reference)
    {
        const QString constraint = QString::fromLatin1(fc);
        for (DAO *sibling : qAsConst(siblings)) {
            if (sibling->name() == name &&
                (!sibling->attribute || sibling->attribute->fc == constraint))
                return *sibling;
        }
        auto *node = new DAO;
        if (fc) {
            node->attribute = new DataAttribute;
            node->attribute->name = name;
            node->attribute->fc = constraint;
            node->attribute->reference = reference;
        } else {
            node->subDataObject = new SubDataObject;
            node->subDataObject->name = name;
            node->subDataObject->type = QStringLiteral("CMV");
        }
        siblings.append(node);
        return *node;
    }

    static void addServices(LogicalDevice &device)
    {
        LogicalNode &zero = *device.logicalNodes.first();
        zero.addDataSet(QStringLiteral("dsState"));
        zero.addDataSet(QStringLiteral("dsMeasured"));
        for (const LogicalNode *node : qAsConst(device.logicalNodes)) {
            for (const DataObject *object : node->dataObjects) {
                const bool measured = node->lnClass == QLatin1String("MMXU");
                DataSet &dataSet = *zero.dataSetGroup->dataSets.at(measured ? 1 : 0);
                if (dataSet.members.size() < 64)
                    dataSet.addElement({device.name + QLatin1Char('/') + node->name +
                                        QLatin1String(measured ? "$MX$" : "$ST$") + object->name});
            }
        }
        for (const char *type : {"BR", "RP"}) {
            auto *block = new ReportControlBlock;
            block->type = QString::fromLatin1(type);
            block->name = block->type.toLower() + QStringLiteral("cb01");
            block->reference = QStringLiteral("LLN0$%1$%2").arg(block->type, block->name);
            block->rptId = device.name + QStringLiteral("/LLN0.") + block->name;
            block->dataSet = QStringLiteral("LLN0$dsState");
            block->confRev = 1;
            block->integrityPeriod = 60000;
            block->bufferTime = 50;
            block->triggerDataChange = true;
            block->optReasonForInclusion = true;
            zero.reportControls->blocks.append(block);
        }
        zero.settingGroup = new SettingGroupControl;
        zero.settingGroup->name = QStringLiteral("SGCB");
        zero.settingGroup->numOfSG = 4;
        zero.settingGroup->activeGroup = 1;
    }

    static void addEnumTypes(PhysicalDevice &device)
    {
        const QVector<QPair<const char *, QStringList>> types{
            {"ctlModel",
             {QStringLiteral("status-only"), QStringLiteral("direct-with-normal-security"),
              QStringLiteral("sbo-with-normal-security")}},
            {"orCat", {QStringLiteral("not-supported"), QStringLiteral("bay-control")}},
            {"SIUnit", {QStringLiteral("none"), QStringLiteral("m"), QStringLiteral("kg")}}};
        for (const auto &type : types) {
            EnumType enumType;
            enumType.id = QString::fromLatin1(type.first);
            for (int i = 0; i < type.second.size(); ++i)
                enumType.values.insert(i, type.second.at(i));
            device.enumTypes.insert(enumType.id, enumType);
        }
    }

    const GeneratedDevice &m_settings;
    int m_left;
};

} // namespace

std::unique_ptr<PhysicalDevice> GeneratedDevice::make() const
{
    return Maker(*this).make();
}

QByteArray GeneratedDevice::bytes() const
{
    return deviceBytes(*make());
}

QByteArray deviceBytes(const PhysicalDevice &device)
{
    QByteArray result;
    QDataStream stream(&result, QIODevice::WriteOnly);
    device.toStream(stream);
    return result;
}

QList<DataAttribute *> leafAttributes(const PhysicalDevice &device)
{
    QList<DataAttribute *> result;
    QList<const DAO *> pending;
    const auto push = [&pending](const QList<DAO *> &nodes) {
        for (int i = nodes.size() - 1; i >= 0; --i)
            pending.append(nodes.at(i));
    };
    for (const LogicalDevice *logicalDevice : device.logicalDevices) {
        for (const LogicalNode *node : qAsConst(logicalDevice->logicalNodes)) {
            for (const DataObject *object : node->dataObjects) {
                push(object->attributes);
                while (!pending.isEmpty()) {
                    const DAO *next = pending.takeLast();
                    if (next->attribute && next->children.isEmpty())
                        result.append(next->attribute);
                    push(next->children);
                }
            }
        }
    }
    return result;
}
