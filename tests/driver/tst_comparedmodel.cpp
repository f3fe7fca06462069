// SPDX-License-Identifier: Apache-2.0
#include "driver/comparedied.h"
#include "driver/descriptioncache.h"
#include "driver/simulatedstation.h"

#include "acsi/reference.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace drivertest;

namespace {

/// The text with something else in place of a part that must be there.
QByteArray changed(QByteArray text, const char *part, const char *instead)
{
    if (!text.contains(part))
        qFatal("no %s", part);
    return text.replace(part, instead);
}

/// The text without everything from one part up to the end of another.
QByteArray without(QByteArray text, const char *from, const char *to)
{
    const int begin = text.indexOf(from);
    const int end = text.indexOf(to, begin);
    if (begin < 0 || end < 0)
        qFatal("no %s", from);
    return text.remove(begin, end + static_cast<int>(qstrlen(to)) - begin);
}

const LogicalNode *nodeOf(const PhysicalDevice &device, const QString &logicalDevice,
                          const QString &name)
{
    for (const LogicalDevice *each : device.logicalDevices) {
        for (const LogicalNode *node : each->logicalNodes) {
            if (each->name == logicalDevice && node->name == name)
                return node;
        }
    }
    return nullptr;
}

const DataObject *objectOf(const LogicalNode *node, const QString &name)
{
    for (const DataObject *object : node ? node->dataObjects : QList<DataObject *>()) {
        if (object->name == name)
            return object;
    }
    return nullptr;
}

const ReportControlBlock *blockOf(const LogicalNode *node, const QString &name)
{
    for (const ReportControlBlock *block :
         node ? node->reportControls->blocks : QList<ReportControlBlock *>()) {
        if (block->name == name)
            return block;
    }
    return nullptr;
}

/// States of all nodes below; a leaf's as well.
QVector<quint32> statesBelow(const QList<DAO *> &nodes)
{
    QVector<quint32> states;
    for (const DAO *node : nodes)
        states << node->state << statesBelow(node->children);
    return states;
}

QVector<int> memberStates(const DataSet *set)
{
    QVector<int> states;
    for (const DataSetMember *member : set ? set->members : QList<DataSetMember *>())
        states << member->state;
    return states;
}

/// What the browser is given of a device made from one text, compared with a file of another.
class Comparison
{
public:
    Comparison(const QByteArray &device, const QByteArray &file)
        : m_ied(write("device.icd", device))
        , m_driver(m_listener.options())
    {
        DeviceConfiguration configuration = configurationFor(m_ied);
        configuration.sclFile = write("file.icd", file);
        m_driver.setDevice(configuration);
        m_driver.connectDevice(1);
        if (!m_listener.waitForState(1, DeviceState::Online))
            qFatal("not online");
        load();
    }

    void load()
    {
        QByteArray bytes;
        QString error;
        if (m_driver.getIEDModel(1, bytes, error) != OperationSucceeded)
            qFatal("%s", qPrintable(error));
        m_device = deviceFrom(bytes);
    }

    const PhysicalDevice &device() const { return *m_device; }
    const LogicalNode *zero() const { return nodeOf(*m_device, "IEDA", "LLN0"); }
    const LogicalNode *indications() const { return nodeOf(*m_device, "IEDA", "GGIO1"); }
    const DataObject *first() const { return objectOf(indications(), "Ind1"); }
    IedDriver &driver() { return m_driver; }

private:
    QString write(const char *name, const QByteArray &text)
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write");
        return path;
    }

    QTemporaryDir m_folder;
    SimulatedIed m_ied;
    Listener m_listener;
    IedDriver m_driver;
    std::unique_ptr<PhysicalDevice> m_device;
};

} // namespace

class tst_ComparedModel : public QObject
{
    Q_OBJECT

private slots:
    void whatAgreesIsMarkedSo();
    void absentLogicalDevicesAndNodesAreShown();
    void absentDataIsShown();
    void absentDataSetsAndBlocksAreShown();
    void whatOnlyTheDeviceHasIsMarked();
    void anotherTypeIsMarked();
    void anotherConstraintIsMarked();
    void anotherOrderOfMembersIsMarked();
    void otherSettingsOfABlockAreMarked_data();
    void otherSettingsOfABlockAreMarked();
    void anotherConfigurationRevisionIsMarked();
    void anotherNumberOfSettingGroupsIsMarked();
    void dataSetsOfTheAssociationHaveAStateOfTheirOwn();
    void enumerationsComeFromTheFile();
    void aFileThatCannotBeUsedIsToldAndDoneWithout();
    void descriptionsSurviveTheCache();
    void damagedDescriptionsAreAsIfTheyWereNotThere();
    void theOldestDescriptionsGiveWay();
    void aDeviceOfAnotherRevisionIsReadAnew();
};

void tst_ComparedModel::whatAgreesIsMarkedSo()
{
    const Comparison compared(comparedIed, comparedIed);
    for (const LogicalDevice *device : compared.device().logicalDevices) {
        QVERIFY(device->present);
        for (const LogicalNode *node : device->logicalNodes) {
            QVERIFY(node->present);
            for (const DataObject *object : node->dataObjects) {
                QVERIFY(object->present);
                for (const quint32 state : statesBelow(object->attributes))
                    QCOMPARE(state, quint32(1));
            }
            for (const DataSet *set : node->dataSetGroup->dataSets) {
                QCOMPARE(set->state, quint8(0));
                for (const int state : memberStates(set))
                    QCOMPARE(state, 1);
            }
            for (const ReportControlBlock *block : node->reportControls->blocks)
                QCOMPARE(block->state, quint8(1));
        }
    }
    QCOMPARE(compared.zero()->dataSetGroup->dataSets.size(), 2);
    QCOMPARE(compared.zero()->reportControls->blocks.size(), 2);
    QVERIFY(compared.zero()->settingGroup);
    QCOMPARE(compared.zero()->settingGroup->state, 1);
    QCOMPARE(compared.device().logicalDevices.size(), 2);
    // What the file tells in one word, the device has as a structure.
    const DataAttribute *network =
        compared.device().findTag("IEDA/LTRK1$SR$GocbTrk$dstAddress$VID");
    QVERIFY(network);
    QCOMPARE(network->basicType, QStringLiteral("INT16U"));
    // A setting that can be edited is shown as it is in force.
    QVERIFY(compared.device().findTag("IEDA/PTOC1$SG$OpDlTmms$setVal"));
}

void tst_ComparedModel::absentLogicalDevicesAndNodesAreShown()
{
    QByteArray device = without(comparedIed, "<LDevice inst=\"B\">", "</LDevice>");
    device = without(device, "<LN lnClass=\"GGIO\" inst=\"2\"", "/>");
    const Comparison compared(device, comparedIed);
    QCOMPARE(compared.device().logicalDevices.size(), 2);
    const LogicalDevice *second = compared.device().logicalDevices.last();
    QCOMPARE(second->name, QStringLiteral("IEDB"));
    QVERIFY(!second->present);
    QCOMPARE(second->logicalNodes.size(), 1);
    QVERIFY(!second->logicalNodes.first()->present);
    const LogicalNode *node = nodeOf(compared.device(), "IEDA", "GGIO2");
    QVERIFY(node);
    QVERIFY(!node->present);
    QCOMPARE(node->dataObjects.size(), 3);
    for (const DataObject *object : node->dataObjects) {
        QVERIFY(!object->present);
        for (const quint32 state : statesBelow(object->attributes))
            QCOMPARE(state, quint32(0));
    }
    QVERIFY(!compared.device().findTag("IEDA/GGIO2$ST$Ind1$stVal")->present);
    QVERIFY(compared.device().findTag("IEDA/GGIO1$ST$Ind1$stVal")->present);
}

void tst_ComparedModel::absentDataIsShown()
{
    QByteArray device = changed(comparedIed, "<DO name=\"Ind2\" type=\"SPS_1\"/>", "");
    device = changed(device, "<DA name=\"d\" bType=\"VisString255\" fc=\"DC\"/>", "");
    const Comparison compared(device, comparedIed);
    const DataObject *absent = objectOf(compared.indications(), "Ind2");
    QVERIFY(absent);
    QVERIFY(!absent->present);
    QVERIFY(!absent->getDAOByName("stVal")->attribute->present);
    QVERIFY(compared.first()->present);
    const DAO *text = compared.first()->getDAOByName("d");
    QVERIFY(text);
    QCOMPARE(text->state, quint32(0));
    QVERIFY(!text->attribute->present);
    QCOMPARE(compared.first()->getDAOByName("stVal")->state, quint32(1));
    // A data set of the file names what is not there.
    QCOMPARE(memberStates(compared.zero()->dataSet("Both")), QVector<int>({1, 0}));
}

void tst_ComparedModel::absentDataSetsAndBlocksAreShown()
{
    QByteArray device = without(comparedIed, "<DataSet name=\"Other\">", "</DataSet>");
    device = without(device, "<ReportControl name=\"urcb\"", "</ReportControl>");
    device = without(device, "<SettingControl", "/>");
    const Comparison compared(device, comparedIed);
    const DataSet *set = compared.zero()->dataSet("Other");
    QVERIFY(set);
    QCOMPARE(set->state, quint8(0));
    QCOMPARE(memberStates(set), QVector<int>({0}));
    QVERIFY(blockOf(compared.zero(), "urcb"));
    QCOMPARE(blockOf(compared.zero(), "urcb")->state, quint8(0));
    QCOMPARE(blockOf(compared.zero(), "urcb")->rptId, QStringLiteral("second"));
    QCOMPARE(blockOf(compared.zero(), "brcb")->state, quint8(1));
    QVERIFY(compared.zero()->settingGroup);
    QCOMPARE(compared.zero()->settingGroup->state, 0);
}

void tst_ComparedModel::whatOnlyTheDeviceHasIsMarked()
{
    QByteArray file = without(comparedIed, "<LN lnClass=\"GGIO\" inst=\"2\"", "/>");
    file = changed(file, "<DO name=\"AnIn1\" type=\"MV_1\"/>", "");
    file = changed(file, "<DA name=\"d\" bType=\"VisString255\" fc=\"DC\"/>", "");
    file = without(file, "<DataSet name=\"Other\">", "</DataSet>");
    file = without(file, "<FCDA ldInst=\"A\" lnClass=\"GGIO\" lnInst=\"1\" doName=\"Ind2\"", "/>");
    file = without(file, "<ReportControl name=\"urcb\"", "</ReportControl>");
    file = without(file, "<SettingControl", "/>");
    const Comparison compared(comparedIed, file);
    QCOMPARE(compared.first()->getDAOByName("d")->state, quint32(2));
    QCOMPARE(compared.first()->getDAOByName("stVal")->state, quint32(1));
    const DataObject *measured = objectOf(compared.indications(), "AnIn1");
    QVERIFY(measured);
    QVERIFY(measured->present);
    QCOMPARE(measured->type, QStringLiteral("MV"));
    for (const quint32 state : statesBelow(measured->attributes))
        QCOMPARE(state, quint32(2));
    const LogicalNode *node = nodeOf(compared.device(), "IEDA", "GGIO2");
    QVERIFY(node);
    QVERIFY(node->present);
    for (const DataObject *object : node->dataObjects) {
        for (const quint32 state : statesBelow(object->attributes))
            QCOMPARE(state, quint32(2));
    }
    QCOMPARE(memberStates(compared.zero()->dataSet("Both")), QVector<int>({1, 2}));
    QCOMPARE(compared.zero()->dataSet("Other")->state, quint8(0));
    QCOMPARE(memberStates(compared.zero()->dataSet("Other")), QVector<int>({2}));
    QCOMPARE(blockOf(compared.zero(), "urcb")->state, quint8(2));
    QCOMPARE(blockOf(compared.zero(), "urcb")->rptId, QStringLiteral("second"));
    QCOMPARE(compared.zero()->settingGroup->state, 2);
}

void tst_ComparedModel::anotherTypeIsMarked()
{
    const QByteArray file = changed(comparedIed, "<DA name=\"stVal\" bType=\"BOOLEAN\"",
                                    "<DA name=\"stVal\" bType=\"INT32\"");
    const Comparison compared(comparedIed, file);
    const DAO *value = compared.first()->getDAOByName("stVal");
    QCOMPARE(value->state, quint32(3));
    QCOMPARE(value->attribute->basicType, QStringLiteral("BOOLEAN"));
    QVERIFY(value->attribute->present);
    QCOMPARE(compared.first()->getDAOByName("q")->state, quint32(1));

    const QByteArray flat =
        changed(comparedIed, "<DA name=\"mag\" bType=\"Struct\" type=\"Analogue_1\"",
                "<DA name=\"mag\" bType=\"FLOAT32\"");
    const Comparison structured(comparedIed, flat);
    const DAO *magnitude = objectOf(structured.indications(), "AnIn1")->getDAOByName("mag");
    QCOMPARE(magnitude->state, quint32(3));
    QCOMPARE(magnitude->children.size(), 1);
}

void tst_ComparedModel::anotherConstraintIsMarked()
{
    const QByteArray file =
        changed(comparedIed, "<DA name=\"d\" bType=\"VisString255\" fc=\"DC\"/>",
                "<DA name=\"d\" bType=\"VisString255\" fc=\"CF\"/>");
    const Comparison compared(comparedIed, file);
    const DAO *text = compared.first()->getDAOByName("d");
    QCOMPARE(text->state, quint32(3));
    QCOMPARE(text->attribute->fc, QStringLiteral("DC"));
}

void tst_ComparedModel::anotherOrderOfMembersIsMarked()
{
    const char *first =
        "<FCDA ldInst=\"A\" lnClass=\"GGIO\" lnInst=\"1\" doName=\"Ind1\" fc=\"ST\"/>";
    const char *second =
        "<FCDA ldInst=\"A\" lnClass=\"GGIO\" lnInst=\"1\" doName=\"Ind2\" fc=\"ST\"/>";
    const QByteArray file = changed(comparedIed, (QByteArray(first) + second).constData(),
                                    (QByteArray(second) + first).constData());
    const Comparison compared(comparedIed, file);
    QCOMPARE(memberStates(compared.zero()->dataSet("Both")), QVector<int>({3, 3}));
    QCOMPARE(memberStates(compared.zero()->dataSet("Other")), QVector<int>({1}));
}

void tst_ComparedModel::otherSettingsOfABlockAreMarked_data()
{
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<QByteArray>("instead");
    QTest::newRow("report id") << QByteArray("rptID=\"first\"") << QByteArray("rptID=\"else\"");
    QTest::newRow("revision") << QByteArray("confRev=\"7\" buffered")
                              << QByteArray("confRev=\"8\" buffered");
    QTest::newRow("data set") << QByteArray("\"first\" datSet=\"Both\"")
                              << QByteArray("\"first\" datSet=\"Other\"");
    QTest::newRow("integrity") << QByteArray("intgPd=\"5000\"") << QByteArray("intgPd=\"6000\"");
    QTest::newRow("buffer time") << QByteArray("bufTime=\"100\"") << QByteArray("bufTime=\"0\"");
    QTest::newRow("triggers") << QByteArray("qchg=\"true\" gi=\"true\"")
                              << QByteArray("gi=\"true\"");
    QTest::newRow("fields") << QByteArray("entryID=\"true\"") << QByteArray("reasonCode=\"true\"");
}

void tst_ComparedModel::otherSettingsOfABlockAreMarked()
{
    QFETCH(QByteArray, part);
    QFETCH(QByteArray, instead);
    const Comparison compared(comparedIed, changed(comparedIed, part, instead));
    QCOMPARE(blockOf(compared.zero(), "brcb")->state, quint8(3));
    QCOMPARE(blockOf(compared.zero(), "urcb")->state, quint8(1));
    // What is shown is what the device has.
    QCOMPARE(blockOf(compared.zero(), "brcb")->rptId, QStringLiteral("first"));
    QCOMPARE(blockOf(compared.zero(), "brcb")->confRev, 7);
    QCOMPARE(blockOf(compared.zero(), "brcb")->integrityPeriod, 5000);
}

void tst_ComparedModel::anotherConfigurationRevisionIsMarked()
{
    const Comparison compared(comparedIed,
                              changed(comparedIed, "<Val>2026-1</Val>", "<Val>2026-2</Val>"));
    const DAO *revision = objectOf(compared.zero(), "NamPlt")->getDAOByName("configRev");
    QCOMPARE(revision->state, quint32(3));
    QCOMPARE(revision->attribute->value.toString(), QStringLiteral("2026-1"));
    QCOMPARE(objectOf(compared.zero(), "NamPlt")->getDAOByName("vendor")->state, quint32(1));
}

void tst_ComparedModel::anotherNumberOfSettingGroupsIsMarked()
{
    const Comparison compared(comparedIed,
                              changed(comparedIed, "numOfSGs=\"2\"", "numOfSGs=\"4\""));
    QCOMPARE(compared.zero()->settingGroup->state, 3);
    QCOMPARE(compared.zero()->settingGroup->numOfSG, 2);
}

void tst_ComparedModel::dataSetsOfTheAssociationHaveAStateOfTheirOwn()
{
    Comparison compared(comparedIed, comparedIed);
    QVERIFY(compared.device().dataSets.isEmpty());
    QString error;
    QCOMPARE(compared.driver().createDataSet(1, {}, "mine", "IEDA/GGIO1$ST$Ind1", 1, error),
             OperationSucceeded);
    compared.load();
    QCOMPARE(compared.device().dataSets.size(), 1);
    QVERIFY(compared.device().dataSets.first()->state != 0);
    QVERIFY(compared.device().dataSets.first()->deletable);
    QCOMPARE(compared.zero()->dataSet("Both")->state, quint8(0));
}

void tst_ComparedModel::enumerationsComeFromTheFile()
{
    const Comparison compared(comparedIed, comparedIed);
    const DataAttribute *mode = compared.device().findTag("IEDA/LLN0$ST$Mod$stVal");
    QCOMPARE(mode->basicType, QStringLiteral("Enum"));
    QCOMPARE(mode->enumTypeId, QStringLiteral("Mod_1"));
    QCOMPARE(compared.device().getEnumType("Mod_1").values.value(5), QStringLiteral("off"));
}

void tst_ComparedModel::aFileThatCannotBeUsedIsToldAndDoneWithout()
{
    Comparison compared(comparedIed, "this is no SCL");
    QVERIFY(compared.driver().status(1).reason.startsWith("The SCL file is not used: "));
    QCOMPARE(compared.device().logicalDevices.size(), 2);
    QCOMPARE(compared.device().name, QStringLiteral("IED1"));
    QCOMPARE(compared.first()->getDAOByName("stVal")->state, quint32(1));
}

void tst_ComparedModel::descriptionsSurviveTheCache()
{
    acsi::ServerDescription description;
    description.identity.vendor = "Maker";
    description.devices.resize(1);
    description.devices[0].name = "LD";
    description.devices[0].journals = {"LLN0$EventLog"};
    description.devices[0].nodes.resize(1);
    description.devices[0].nodes[0].name = "LLN0";
    description.devices[0].nodes[0].type = mms::TypeDescription::boolean();
    description.devices[0].dataSets.resize(1);
    description.devices[0].dataSets[0].name = mms::ObjectName::inDomain("LD", "LLN0$set");
    description.devices[0].dataSets[0].members = {
        acsi::accessOf(*acsi::parseReference("LD/MHAI1$MX$HA$har(3)$mag"))};
    const auto read = DescriptionCache::fromBytes(DescriptionCache::toBytes(description));
    QVERIFY(read);
    QCOMPARE(QString::fromStdString(read->identity.vendor), QStringLiteral("Maker"));
    QCOMPARE(read->devices.size(), std::size_t(1));
    QVERIFY(read->devices[0].journals == description.devices[0].journals);
    QVERIFY(read->devices[0].nodes[0].type == description.devices[0].nodes[0].type);
    QVERIFY(read->devices[0].dataSets[0].name == description.devices[0].dataSets[0].name);
    QVERIFY(read->devices[0].dataSets[0].members == description.devices[0].dataSets[0].members);
}

void tst_ComparedModel::damagedDescriptionsAreAsIfTheyWereNotThere()
{
    const QTemporaryDir folder;
    const DescriptionCache cache(folder.filePath("cache"));
    acsi::ServerDescription description;
    description.identity.model = "Relay";
    QVERIFY(!cache.load("print"));
    cache.save("print", description);
    QVERIFY(cache.load("print"));
    const QFileInfoList files = QDir(folder.filePath("cache")).entryInfoList(QDir::Files);
    QCOMPARE(files.size(), 1);
    QFile file(files.first().filePath());
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QByteArray bytes = file.readAll();
    for (int length = 0; length < bytes.size(); ++length) {
        QVERIFY(file.resize(length));
        QVERIFY(!cache.load("print"));
        QVERIFY(file.seek(0));
        file.write(bytes);
        file.flush();
    }
    QVERIFY(cache.load("print"));
    QVERIFY(!DescriptionCache::fromBytes("no description"));
    // Without a folder nothing is kept and nothing fails.
    DescriptionCache(QString()).save("print", description);
    QVERIFY(!DescriptionCache(QString()).load("print"));
}

void tst_ComparedModel::theOldestDescriptionsGiveWay()
{
    const QTemporaryDir folder;
    const DescriptionCache cache(folder.path());
    const QDateTime longAgo = QDateTime::currentDateTime().addDays(-10);
    for (int i = 0; i <= DescriptionCache::mostFiles; ++i) {
        cache.save("print" + QByteArray::number(i), {});
        for (const QFileInfo &each : QDir(folder.path()).entryInfoList(QDir::Files)) {
            QFile file(each.filePath());
            if (i == 0 && file.open(QIODevice::ReadWrite))
                file.setFileTime(longAgo, QFileDevice::FileModificationTime);
        }
    }
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), int(DescriptionCache::mostFiles));
    QVERIFY(!cache.load("print0"));
    QVERIFY(cache.load("print1"));
}

void tst_ComparedModel::aDeviceOfAnotherRevisionIsReadAnew()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("device.icd");
    const auto write = [&path](const QByteArray &text) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    };
    // A data object more under another revision: whoever took the former description would lack it.
    const QByteArray more =
        changed(changed(comparedIed, "<DO name=\"AnIn1\" type=\"MV_1\"/>",
                        "<DO name=\"AnIn1\" type=\"MV_1\"/><DO name=\"AnIn2\" type=\"MV_1\"/>"),
                "<Val>2026-1</Val>", "<Val>2026-2</Val>");
    QVector<bool> wasAsked;
    for (const QByteArray &text : {comparedIed, more, comparedIed}) {
        QVERIFY(write(text));
        SimulatedIed ied(path);
        Listener listener;
        IedDriverOptions options = listener.options();
        options.cacheFolder = folder.filePath("cache");
        IedDriver driver(options);
        driver.setDevice(configurationFor(ied));
        driver.connectDevice(1);
        QVERIFY(listener.waitForState(1, DeviceState::Online));
        QByteArray bytes;
        QString error;
        QCOMPARE(driver.getIEDModel(1, bytes, error), OperationSucceeded);
        const auto device = deviceFrom(bytes);
        QCOMPARE(device->findTag("IEDA/GGIO1$MX$AnIn2$mag$f") != nullptr, text == more);
        const QVector<PduCapture::Line> lines = driver.trace(1, 100000);
        wasAsked << std::any_of(lines.begin(), lines.end(), [](const PduCapture::Line &line) {
            return line.sent && line.text.contains("getVariableAccessAttributes");
        });
    }
    // The third time the first description was still there.
    QCOMPARE(wasAsked, QVector<bool>({true, true, false}));
}

QTEST_GUILESS_MAIN(tst_ComparedModel)
#include "tst_comparedmodel.moc"
