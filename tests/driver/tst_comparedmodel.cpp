// SPDX-License-Identifier: Apache-2.0
#include "driver/comparedied.h"
#include "driver/model/filecomparison.h"
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
    ServedDriver &driver() { return m_driver; }
    const SimulatedIed &ied() const { return m_ied; }

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
    ServedDriver m_driver;
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
    void aDeviceThatChangedUnderItsRevisionIsReadAnew();
    void anotherOrderOfComponentsIsMarked();
    void aMissingFirstMemberMarksNoOther();
    void anEmptyDataSetIsNotShownAsTheFiles();
    void aMissingRevisionIsMarked();
    void theDataSetOfABlockIsComparedWhole();
    void dataSetsAreThoseOfTheMomentWhenABrowserOpens();
    void theAccessPointIsThatOfTheAddressOrTheSetting();
    void aTemplateIsComparedByInstances();
    void aFileOfAnotherDeviceIsToldInOneSentence();
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

void tst_ComparedModel::aDeviceThatChangedUnderItsRevisionIsReadAnew()
{
    const QTemporaryDir folder;
    const auto write = [&folder](const char *name, const QByteArray &text) {
        const QString path = folder.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write");
        return path;
    };
    // The same names in another order, of other types: names and revision alone would not tell.
    const QByteArray other = changed(
        comparedIed,
        "<DA name=\"stVal\" bType=\"BOOLEAN\" fc=\"ST\" dchg=\"true\"/><DA name=\"q\" "
        "bType=\"Quality\" fc=\"ST\" qchg=\"true\"/><DA name=\"t\" bType=\"Timestamp\" fc=\"ST\"/>"
        "<DA name=\"d\"",
        "<DA name=\"t\" bType=\"Timestamp\" fc=\"ST\"/><DA name=\"q\" bType=\"Quality\" fc=\"ST\" "
        "qchg=\"true\"/><DA name=\"stVal\" bType=\"INT32\" fc=\"ST\" dchg=\"true\"/><DA name=\"d\"");
    SimulatedIed first(write("first.icd", comparedIed));
    Listener listener;
    ServedDriver driver(listener.options());
    driver.setDevice(configurationFor(first));
    driver.connectDevice(1);
    const QString indication = QStringLiteral("IEDA/GGIO1$ST$Ind1$stVal");
    QVERIFY(listener.waitForValue(indication, QVariant(false)));
    listener.clear();
    sim::DeviceOptions options;
    options.server.port = first.port();
    first.stop();
    QVERIFY(listener.waitForState(1, DeviceState::Waiting));
    SimulatedIed second(write("second.icd", other), {}, {}, options);
    second.set("IEDA", "GGIO1$ST$Ind1$stVal", mms::Data::integer(77));
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QVERIFY(listener.waitForValue(indication, QVariant(77)));
    QByteArray bytes;
    QString error;
    QCOMPARE(driver.getIEDModel(1, bytes, error), OperationSucceeded);
    QCOMPARE(deviceFrom(bytes)->findTag(indication)->basicType, QStringLiteral("INT32"));
}

void tst_ComparedModel::anotherOrderOfComponentsIsMarked()
{
    const QByteArray device = changed(
        comparedIed,
        "<DA name=\"mag\" bType=\"Struct\" type=\"Analogue_1\" fc=\"MX\" dchg=\"true\"/><DA "
        "name=\"q\" bType=\"Quality\" fc=\"MX\" qchg=\"true\"/>",
        "<DA name=\"q\" bType=\"Quality\" fc=\"MX\" qchg=\"true\"/><DA name=\"mag\" "
        "bType=\"Struct\" type=\"Analogue_1\" fc=\"MX\" dchg=\"true\"/>");
    const Comparison compared(device, comparedIed);
    const DataObject *value = objectOf(compared.indications(), "AnIn1");
    const QVector<quint32> states = {value->getDAOByName("mag")->state,
                                     value->getDAOByName("q")->state,
                                     value->getDAOByName("t")->state};
    QCOMPARE(states, QVector<quint32>({3, 3, 1}));
    QVERIFY(!statesBelow(compared.first()->attributes).contains(3));
}

void tst_ComparedModel::aMissingFirstMemberMarksNoOther()
{
    const QByteArray device = changed(
        comparedIed,
        "<DataSet name=\"Both\"><FCDA ldInst=\"A\" lnClass=\"GGIO\" lnInst=\"1\" doName=\"Ind1\" "
        "fc=\"ST\"/>",
        "<DataSet name=\"Both\">");
    const Comparison compared(device, comparedIed);
    QCOMPARE(memberStates(compared.zero()->dataSet("Both")), QVector<int>({1, 0}));
}

void tst_ComparedModel::anEmptyDataSetIsNotShownAsTheFiles()
{
    DataSet file;
    file.members.append(new DataSetMember{1, "IEDA/GGIO1$ST$Ind1"});
    acsi::DataSetDescription device;
    device.name = mms::ObjectName::inDomain("IEDA", "LLN0$Both");
    DataSet shown;
    FileComparison::fillDataSet(shown, device, &file);
    QVERIFY(shown.members.isEmpty());
}

void tst_ComparedModel::aMissingRevisionIsMarked()
{
    const QByteArray device = changed(comparedIed, "<Val>2026-1</Val>", "<Val></Val>");
    const Comparison compared(device, comparedIed);
    QCOMPARE(objectOf(compared.zero(), "NamPlt")->getDAOByName("configRev")->state, quint32(3));
}

void tst_ComparedModel::theDataSetOfABlockIsComparedWhole()
{
    ReportControlBlock block;
    block.reference = "LLN0$RP$urcb";
    block.type = "RP";
    block.dataSet = "Both";
    QVERIFY(FileComparison::isAsConfigured(block, "IEDA", "IEDA/LLN0$Both", block));
    QVERIFY(!FileComparison::isAsConfigured(block, "IEDA", "IEDA/GGIO1$Both", block));
    QVERIFY(!FileComparison::isAsConfigured(block, "IEDA", "IEDB/LLN0$Both", block));
    QVERIFY(!FileComparison::isAsConfigured(block, "IEDA", "@Both", block));
    QVERIFY(!FileComparison::isAsConfigured(block, "IEDA", "", block));
    block.dataSet.clear();
    QVERIFY(FileComparison::isAsConfigured(block, "IEDA", "", block));
}

void tst_ComparedModel::dataSetsAreThoseOfTheMomentWhenABrowserOpens()
{
    Comparison compared(comparedIed, comparedIed);
    QVERIFY(!compared.zero()->dataSet("Later"));
    // Another client makes one.
    Listener listener;
    ServedDriver other(listener.options());
    other.setDevice(configurationFor(compared.ied()));
    other.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QString error;
    QVERIFY2(other.createDataSet(1, "IEDA", "LLN0$Later", "IEDA/GGIO1$ST$Ind2", 0, error) ==
                 OperationSucceeded,
             qPrintable(error));
    compared.load();
    QVERIFY(compared.zero()->dataSet("Later"));
    QCOMPARE(memberStates(compared.zero()->dataSet("Later")), QVector<int>({2}));
    QCOMPARE(memberStates(compared.zero()->dataSet("Both")), QVector<int>({1, 1}));
}

void tst_ComparedModel::theAccessPointIsThatOfTheAddressOrTheSetting()
{
    // Two access points with servers of their own.
    QByteArray text = changed(
        comparedIed, "<LDevice inst=\"B\">",
        "</Server></AccessPoint><AccessPoint name=\"S2\"><Server><Authentication none=\"true\"/>"
        "<LDevice inst=\"B\">");
    text = changed(text, "<IED name",
                   "<Communication><SubNetwork name=\"N\"><ConnectedAP iedName=\"IED\" "
                   "apName=\"S1\"><Address><P type=\"IP\">10.0.0.1</P></Address></ConnectedAP>"
                   "<ConnectedAP iedName=\"IED\" apName=\"S2\"><Address><P type=\"IP\">10.0.0.2</P>"
                   "</Address></ConnectedAP></SubNetwork></Communication><IED name");
    const scl::ReadResult file =
        scl::readBytes({text.constData(), static_cast<std::size_t>(text.size())});
    QVERIFY(file.document);
    const scl::Ied &ied = file.document->ieds.front();
    const auto chosen = [&](const KnownDevice &device) {
        QString error;
        const FileChoice choice = chooseServer(*file.document, ied, device, error);
        if (!error.isEmpty())
            return QStringList(error);
        QStringList names;
        const auto made = SclImport::makeDevice(ied, choice);
        for (const LogicalDevice *each : made->logicalDevices)
            names.append(each->name);
        return names;
    };
    QCOMPARE(chosen({{}, "10.0.0.1", {"IEDA"}}), QStringList("IEDA"));
    QCOMPARE(chosen({{}, "10.0.0.2", {"IEDB"}}), QStringList("IEDB"));
    QCOMPARE(chosen({"S2", "10.0.0.1", {"IEDB"}}), QStringList("IEDB"));
    QCOMPARE(chosen({{}, "127.0.0.1", {"IEDB"}}), QStringList("IEDB"));
    QCOMPARE(chosen({{}, "127.0.0.1", {"IEDA", "IEDB"}}), QStringList({"IEDA", "IEDB"}));
    QCOMPARE(chosen({"S3", "10.0.0.1", {"IEDB"}}),
             QStringList("The IED IED of the file has no access point \"S3\" with a server."));
    // Under the name of the device's own.
    QCOMPARE(chosen({{}, "127.0.0.1", {"Q1A", "Q1B"}}), QStringList({"Q1A", "Q1B"}));
    QCOMPARE(chosen({{}, "127.0.0.1", {"Relay"}}),
             QStringList("The device has none of the logical devices that the file describes for "
                         "IED, such as IEDA."));
}

void tst_ComparedModel::aTemplateIsComparedByInstances()
{
    const QByteArray file = changed(comparedIed, "<IED name=\"IED\"", "<IED name=\"TEMPLATE\"");
    const Comparison compared(comparedIed, file);
    QCOMPARE(compared.device().logicalDevices.size(), 2);
    for (const DataObject *object : compared.indications()->dataObjects)
        QVERIFY(object->present);
    QVERIFY(!statesBelow(compared.first()->attributes).contains(2));
    QCOMPARE(memberStates(compared.zero()->dataSet("Both")), QVector<int>({1, 1}));
    QCOMPARE(blockOf(compared.zero(), "brcb")->state, quint32(1));
}

void tst_ComparedModel::aFileOfAnotherDeviceIsToldInOneSentence()
{
    QByteArray file = comparedIed;
    file.replace("inst=\"A\"", "inst=\"X\"").replace("ldInst=\"A\"", "ldInst=\"X\"");
    file.replace("inst=\"B\"", "inst=\"Y\"").replace("<IED name=\"IED\"", "<IED name=\"OTHER\"");
    Comparison compared(comparedIed, file);
    QCOMPARE(compared.driver().status(1).reason,
             QStringLiteral("The SCL file is not used: The device has none of the logical devices "
                            "that the file describes for OTHER, such as OTHERX."));
    QCOMPARE(compared.device().logicalDevices.size(), 2);
    QCOMPARE(compared.first()->getDAOByName("stVal")->state, quint32(1));
}

QTEST_GUILESS_MAIN(tst_ComparedModel)
#include "tst_comparedmodel.moc"
