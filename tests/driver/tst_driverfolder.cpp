// SPDX-License-Identifier: Apache-2.0
// Every IED of a folder of real devices is simulated, discovered through the driver, and compared
// with what the import makes of its file.
#include "driver/model/valueconversion.h"
#include "driver/simulatedstation.h"

#include "acsi/functionalconstraint.h"

#include <QtCore/QDir>
#include <QtTest/QtTest>

using namespace drivertest;

namespace {

const QString folder = QStringLiteral(SCL_FOLDER);

bool hasLeaves(const DAO &node)
{
    if (node.children.isEmpty())
        return node.attribute != nullptr;
    return std::any_of(node.children.begin(), node.children.end(),
                       [](const DAO *child) { return hasLeaves(*child); });
}

/// One line for each thing of a device, with all that the browser shows of it. Left out is what no
/// device can have: data without any attribute in it, and members that the file does not define.
class Inventory
{
public:
    explicit Inventory(const PhysicalDevice &device)
    {
        for (const LogicalDevice *each : device.logicalDevices) {
            add(QStringLiteral("%1 present %2").arg(each->name).arg(each->present));
            for (const LogicalNode *node : each->logicalNodes)
                addNode(each->name + QLatin1Char('/') + node->name, *node);
        }
    }

    const QStringList &lines() const { return m_lines; }

private:
    void add(const QString &line) { m_lines.append(line); }

    void addNode(const QString &path, const LogicalNode &node)
    {
        // A node of an unknown type has nothing in it, but its name is there.
        add(QStringLiteral("%1 class %2 present %3")
                .arg(path, node.lnClass)
                .arg(node.present || node.dataObjects.isEmpty()));
        for (const DataObject *object : node.dataObjects) {
            const QString name = path + QLatin1Char('.') + object->name;
            add(QStringLiteral("%1 type %2 present %3")
                    .arg(name, object->type)
                    .arg(object->present));
            addChildren(name, object->attributes);
        }
        for (const DataSet *set : node.dataSetGroup->dataSets) {
            add(QStringLiteral("%1 set %2 state %3").arg(path, set->name).arg(set->state));
            for (const DataSetMember *member : set->members) {
                if (member->state != 0)
                    add(QStringLiteral("%1 set %2 member %3 state %4")
                            .arg(path, set->name, member->reference)
                            .arg(member->state));
            }
        }
        for (const ReportControlBlock *block : node.reportControls->blocks) {
            add(QStringLiteral("%1 block %2 set %3 revision %4 integrity %5 buffer %6")
                    .arg(path, block->reference, block->dataSet)
                    .arg(block->confRev)
                    .arg(block->integrityPeriod)
                    .arg(block->bufferTime));
        }
        if (node.settingGroup) {
            add(QStringLiteral("%1 groups %2 state %3")
                    .arg(path)
                    .arg(node.settingGroup->numOfSG)
                    .arg(node.settingGroup->state));
        }
    }

    void addChildren(const QString &path, const QList<DAO *> &children)
    {
        for (const DAO *child : children) {
            if (!hasLeaves(*child))
                continue;
            const QString name = path + QLatin1Char('.') + child->name();
            if (const DataAttribute *attribute = child->attribute) {
                add(QStringLiteral("%1 [%2] %3 %4 %5 present %6 state %7")
                        .arg(name, attribute->fc, attribute->basicType, attribute->enumTypeId,
                             attribute->reference)
                        .arg(attribute->present)
                        .arg(child->state));
            } else {
                add(QStringLiteral("%1 type %2 state %3")
                        .arg(name, child->subDataObject->type)
                        .arg(child->state));
            }
            addChildren(name, child->children);
        }
    }

    QStringList m_lines;
};

/// The lines that only one side has.
QStringList differences(const QStringList &discovered, const QStringList &imported)
{
    QStringList result;
    const QSet<QString> left(discovered.begin(), discovered.end());
    const QSet<QString> right(imported.begin(), imported.end());
    for (const QString &line : discovered) {
        if (!right.contains(line))
            result.append(QStringLiteral("discovered: ") + line);
    }
    for (const QString &line : imported) {
        if (!left.contains(line))
            result.append(QStringLiteral("imported: ") + line);
    }
    return result;
}

void addLeaves(const QList<DAO *> &nodes, QHash<QString, const DataAttribute *> &leaves)
{
    for (const DAO *node : nodes) {
        if (node->attribute && node->children.isEmpty() && node->attribute->present &&
            acsi::functionalConstraintFrom(node->attribute->fc.toStdString()))
            leaves.insert(node->attribute->reference, node->attribute);
        addLeaves(node->children, leaves);
    }
}

QHash<QString, const DataAttribute *> leavesOf(const PhysicalDevice &device)
{
    QHash<QString, const DataAttribute *> leaves;
    for (const LogicalDevice *each : device.logicalDevices) {
        for (const LogicalNode *node : each->logicalNodes) {
            for (const DataObject *object : node->dataObjects)
                addLeaves(object->attributes, leaves);
        }
    }
    return leaves;
}

} // namespace

class tst_DriverFolder : public QObject
{
    Q_OBJECT

private slots:
    void theDiscoveredModelIsTheImportedOne_data() { addFiles(); }
    void theDiscoveredModelIsTheImportedOne();
    void withoutItsFileADeviceHasTheSameAttributes_data() { addFiles(); }
    void withoutItsFileADeviceHasTheSameAttributes();

private:
    static void addFiles();
    /// The model of an IED of a file as the driver gives it, with or without the file.
    static std::unique_ptr<PhysicalDevice> discovered(const QString &path, const QString &ied,
                                                      bool hasFile);
};

void tst_DriverFolder::addFiles()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("ied");
    int count = 0;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        if (file.suffix() == QLatin1String("md"))
            continue;
        const scl::ReadResult read = SclImport::readFile(file.filePath());
        QVERIFY2(read.document, qPrintable(file.fileName()));
        for (const scl::Ied &ied : read.document->ieds) {
            const QString name =
                QString::fromUtf8(ied.name.data(), static_cast<int>(ied.name.size()));
            QTest::newRow(qPrintable(file.fileName() + QLatin1Char(' ') + name))
                << file.filePath() << name;
            ++count;
        }
    }
    QVERIFY(count > 0);
}

std::unique_ptr<PhysicalDevice> tst_DriverFolder::discovered(const QString &path,
                                                             const QString &ied, bool hasFile)
{
    SimulatedIed simulated(path, ied);
    Listener listener;
    ServedDriver driver(listener.options());
    DeviceConfiguration configuration = configurationFor(simulated);
    configuration.pollInterval = std::chrono::milliseconds(0);
    if (hasFile) {
        configuration.sclFile = path;
        configuration.ied = ied;
    }
    driver.setDevice(configuration);
    driver.connectDevice(1);
    if (!listener.waitForState(1, DeviceState::Online))
        return nullptr;
    QByteArray bytes;
    QString error;
    if (driver.getIEDModel(1, bytes, error) != OperationSucceeded)
        return nullptr;
    return deviceFrom(bytes);
}

void tst_DriverFolder::theDiscoveredModelIsTheImportedOne()
{
    QFETCH(QString, path);
    QFETCH(QString, ied);
    const scl::ReadResult read = SclImport::readFile(path);
    const auto imported = SclImport::makeDevice(*read.document->findIed(ied.toStdString()));
    const auto device = discovered(path, ied, true);
    QVERIFY(device);
    QCOMPARE(device->name, imported->name);
    const QStringList different =
        differences(Inventory(*device).lines(), Inventory(*imported).lines());
    QVERIFY2(different.isEmpty(),
             qPrintable(QStringLiteral("%1 differences:\n%2")
                            .arg(different.size())
                            .arg(QStringList(different.mid(0, 40)).join(QLatin1Char('\n')))));
    for (const LogicalDevice *each : device->logicalDevices) {
        for (const LogicalNode *node : each->logicalNodes) {
            for (const ReportControlBlock *block : node->reportControls->blocks)
                QVERIFY2(block->state == 1, qPrintable(each->name + '/' + block->reference));
        }
    }
}

void tst_DriverFolder::withoutItsFileADeviceHasTheSameAttributes()
{
    QFETCH(QString, path);
    QFETCH(QString, ied);
    const scl::ReadResult read = SclImport::readFile(path);
    const auto imported = SclImport::makeDevice(*read.document->findIed(ied.toStdString()));
    const auto device = discovered(path, ied, false);
    QVERIFY(device);
    const auto expected = leavesOf(*imported);
    const auto actual = leavesOf(*device);
    QStringList wrong;
    for (auto each = expected.begin(); each != expected.end(); ++each) {
        if (!actual.contains(each.key()))
            wrong.append(each.key() + QStringLiteral(" is not found"));
    }
    for (auto each = actual.begin(); each != actual.end(); ++each) {
        if (!expected.contains(each.key()))
            wrong.append(each.key() + QStringLiteral(" is not in the file"));
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(QStringList(wrong.mid(0, 40)).join(QLatin1Char('\n'))));
}

QTEST_GUILESS_MAIN(tst_DriverFolder)
#include "tst_driverfolder.moc"
