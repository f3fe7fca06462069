// SPDX-License-Identifier: Apache-2.0
#include "browserfixture.h"

#include "browser/nodeservices.h"
#include "model/iednode.h"

#include <QtCore/QDataStream>
#include <QtTest/QTest>

namespace {

using Service = OperationResult (NodeServices::*)(const IEDNode *node, QString &error);

const QString ld = QStringLiteral("BAYCTRL");

} // namespace

Q_DECLARE_METATYPE(Service)

/// Runs without a GUI application, in which no widget can be made.
class tst_NodeServices : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyServiceMakesItsOneCall_data();
    void everyServiceMakesItsOneCall();
    void aNodeOfAnotherKindAsksNothing_data();
    void aNodeOfAnotherKindAsksNothing();
    void theAnswerOfTheDriverIsHandedOn();
    void aVariableIsWrittenAndReadByItsOwnReference();
    void aNodeWithoutAttributeHasAnEmptyReference();
    void theControlModelDecidesWhetherTheOperatorIsAsked_data();
    void theControlModelDecidesWhetherTheOperatorIsAsked();
    void aControlCarriesItsReference_data();
    void aControlCarriesItsReference();
    void aDataSetIsCreatedByItsReference_data();
    void aDataSetIsCreatedByItsReference();

private:
    /// The node of a name such as "XCBR1": made by init().
    const IEDNode *node(const QString &name) const { return m_nodes.value(name); }

    std::unique_ptr<PhysicalDevice> m_device;
    std::unique_ptr<IEDNode> m_root;
    QHash<QString, const IEDNode *> m_nodes;
    std::shared_ptr<RecordingDriverService> m_service;
    std::unique_ptr<DriverServiceRegistration> m_registration;
    std::unique_ptr<IEC61850ControllerInterface> m_controller;
    std::unique_ptr<NodeServices> m_services;
};

void tst_NodeServices::init()
{
    m_device = makeBay();
    LogicalDevice *logicalDevice = m_device->logicalDevices[0];
    LogicalNode *lln0 = logicalDevice->logicalNodes[0];
    LogicalNode *xcbr = logicalDevice->logicalNodes[1];
    m_root = std::make_unique<IEDNode>(m_device.get());
    auto *ldNode = new IEDNode(logicalDevice, m_root.get());
    auto *lln0Node = new IEDNode(lln0, ldNode);
    auto *groupNode = new IEDNode(lln0->dataSetGroup, lln0Node);
    auto *dataSetNode = new IEDNode(lln0->dataSetGroup->dataSets[0], groupNode);
    auto *reportsNode = new IEDNode(lln0->reportControls, lln0Node);
    auto *xcbrNode = new IEDNode(xcbr, ldNode);
    auto *posNode = new IEDNode(xcbr->dataObjects[0], xcbrNode);
    auto *stValNode = new IEDNode(xcbr->dataObjects[0]->attributes[0], posNode);
    auto *temporaryNode = new IEDNode(m_device->dataSets[0], m_root.get());
    m_nodes = {{"BAY", m_root.get()},      {"BAYCTRL", ldNode},
               {"LLN0", lln0Node},         {"DataSet", groupNode},
               {"Positions", dataSetNode}, {"ReportControl", reportsNode},
               {"XCBR1", xcbrNode},        {"Pos", posNode},
               {"stVal", stValNode},       {"Temporary", temporaryNode}};

    const QString address = QStringLiteral("services-test");
    m_service = std::make_shared<RecordingDriverService>();
    m_registration = std::make_unique<DriverServiceRegistration>(address, m_service);
    m_controller = std::make_unique<IEC61850ControllerInterface>();
    m_controller->setLocation(address, 3);
    m_services = std::make_unique<NodeServices>(*m_controller, 17);
}

void tst_NodeServices::cleanup()
{
    m_registration.reset();
    m_nodes.clear();
    m_root.reset();
}

void tst_NodeServices::everyServiceMakesItsOneCall_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Service>("service");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QVariantList>("arguments");

    const auto row = [](const char *name, Service service, const char *operation,
                        const QVariantList &arguments) {
        QTest::addRow("%s of %s", operation, name)
            << QString(name) << service << QString(operation) << arguments;
    };
    const Service read = &NodeServices::read;
    row("Pos", read, "readVariable",
        {ld, QStringList{"XCBR1$ST$Pos", "XCBR1$CF$Pos", "XCBR1$DC$Pos", "XCBR1$CO$Pos"}});
    row("stVal", read, "readVariable", {ld, QStringList{"XCBR1$ST$Pos$stVal"}});
    row("Positions", read, "readDataSetValue", {ld, "LLN0$Positions"});
    row("Temporary", read, "readDataSetValue", {"", "Temporary"});
    row("BAY", &NodeServices::serverDirectory, "getServerDirectory", {});
    row("BAYCTRL", &NodeServices::logicalDeviceDirectory, "getLogicalDeviceDirectory", {ld});
    row("XCBR1", &NodeServices::logicalNodeDirectory, "getLogicalNodeDirectory", {ld, "XCBR1"});
    row("Pos", &NodeServices::dataDirectory, "getDataDirectory",
        {ld, "XCBR1$ST$Pos;XCBR1$CF$Pos;XCBR1$DC$Pos;XCBR1$CO$Pos"});
    row("stVal", &NodeServices::dataDirectory, "getDataDirectory", {ld, "XCBR1$ST$Pos$stVal"});
    row("DataSet", &NodeServices::dataSetList, "getDataSetList", {ld});
    row("Positions", &NodeServices::dataSetDirectory, "getDataSetDirectory",
        {ld, "LLN0$Positions"});
    row("Temporary", &NodeServices::dataSetDirectory, "getDataSetDirectory", {"", ""});
    row("ReportControl", &NodeServices::bufferedReports, "getXRCB", {ld, "LLN0", "BR"});
    row("ReportControl", &NodeServices::unbufferedReports, "getXRCB", {ld, "LLN0", "RP"});
    row("BAYCTRL", &NodeServices::settingGroupBlock, "getSGCBBlock", {ld});
    row("Positions", &NodeServices::deleteDataSet, "deleteDataSet", {ld, "LLN0$Positions"});
    row("Temporary", &NodeServices::deleteDataSet, "deleteDataSet", {"", "Temporary"});
}

void tst_NodeServices::everyServiceMakesItsOneCall()
{
    QFETCH(QString, name);
    QFETCH(Service, service);
    QFETCH(QString, operation);
    QFETCH(QVariantList, arguments);
    QString error;
    QCOMPARE((m_services.get()->*service)(node(name), error), OperationSucceeded);
    QCOMPARE(m_service->calls().size(), 1);
    QCOMPARE(m_service->calls().first().operation, operation);
    QCOMPARE(m_service->calls().first().deviceNo, 17L);
    QCOMPARE(m_service->calls().first().arguments, arguments);
}

void tst_NodeServices::aNodeOfAnotherKindAsksNothing_data()
{
    QTest::addColumn<Service>("service");
    QTest::addColumn<QString>("name");
    const Service read = &NodeServices::read;
    QTest::newRow("read") << read << "BAYCTRL";
    QTest::newRow("logical device") << Service(&NodeServices::logicalDeviceDirectory) << "XCBR1";
    QTest::newRow("logical node") << Service(&NodeServices::logicalNodeDirectory) << "Pos";
    QTest::newRow("reports") << Service(&NodeServices::bufferedReports) << "BAYCTRL";
    QTest::newRow("reports of the root") << Service(&NodeServices::unbufferedReports) << "BAY";
    QTest::newRow("deletion") << Service(&NodeServices::deleteDataSet) << "DataSet";
}

void tst_NodeServices::aNodeOfAnotherKindAsksNothing()
{
    QFETCH(Service, service);
    QFETCH(QString, name);
    QString error;
    QCOMPARE((m_services.get()->*service)(node(name), error), OperationSucceeded);
    QVERIFY(m_service->calls().isEmpty());
}

void tst_NodeServices::theAnswerOfTheDriverIsHandedOn()
{
    m_service->setAnswer("getSGCBBlock", OperationFailed, "Access denied");
    QString error;
    QCOMPARE(m_services->settingGroupBlock(node(ld), error), OperationFailed);
    QCOMPARE(error, QString("Access denied"));
}

void tst_NodeServices::aVariableIsWrittenAndReadByItsOwnReference()
{
    const NodeServices::Variable variable = NodeServices::variableOf(node("stVal"));
    QString error;
    QCOMPARE(m_services->write(variable, 2, error), OperationSucceeded);
    QCOMPARE(m_services->read(variable, error), OperationSucceeded);
    QCOMPARE(m_service->operations(), (QStringList{"writeVariable", "readVariable"}));

    const QVariantList written = m_service->calls().first().arguments;
    QCOMPARE(written.mid(0, 2), (QVariantList{ld, "XCBR1$ST$Pos$stVal"}));
    QDataStream stream(written.at(2).toByteArray());
    QVariant value;
    stream >> value;
    QVERIFY(stream.atEnd());
    QCOMPARE(value, QVariant(2));
    QCOMPARE(m_service->calls().last().arguments,
             (QVariantList{ld, QStringList{"XCBR1$ST$Pos$stVal"}}));
}

void tst_NodeServices::aNodeWithoutAttributeHasAnEmptyReference()
{
    const NodeServices::Variable variable = NodeServices::variableOf(node("Pos"));
    QCOMPARE(variable.ldName, ld);
    QCOMPARE(variable.reference, QString());
}

void tst_NodeServices::theControlModelDecidesWhetherTheOperatorIsAsked_data()
{
    QTest::addColumn<int>("controlModel");
    QTest::addColumn<bool>("select");
    QTest::addColumn<bool>("operate");
    QTest::addColumn<bool>("cancel");
    QTest::newRow("status only") << 0 << false << false << false;
    QTest::newRow("direct") << 1 << false << true << false;
    QTest::newRow("select before operate") << 2 << false << true << true;
    QTest::newRow("direct, enhanced") << 3 << false << true << false;
    QTest::newRow("select with value") << 4 << true << false << false;
    QTest::newRow("unknown") << 5 << false << false << false;
}

void tst_NodeServices::theControlModelDecidesWhetherTheOperatorIsAsked()
{
    QFETCH(int, controlModel);
    const auto asks = [controlModel](ControlService service) {
        return asksForRequest(service, quint8(controlModel));
    };
    QTEST(asks(ControlService::Select), "select");
    QTEST(asks(ControlService::Operate), "operate");
    QTEST(asks(ControlService::Cancel), "cancel");
}

void tst_NodeServices::aControlCarriesItsReference_data()
{
    QTest::addColumn<int>("service");
    QTest::addColumn<QString>("operation");
    QTest::newRow("select") << int(ControlService::Select) << "selectObject";
    QTest::newRow("operate") << int(ControlService::Operate) << "controlObject";
    QTest::newRow("cancel") << int(ControlService::Cancel) << "cancelObject";
}

void tst_NodeServices::aControlCarriesItsReference()
{
    QFETCH(int, service);
    QFETCH(QString, operation);
    ControlBlock request;
    request.controlValue = 2;
    request.orCat = 3;
    request.controlModel = 4;
    QString error;
    QCOMPARE(m_services->control(ControlService(service), node("Pos"), request, error),
             OperationSucceeded);

    request.objectReference = "XCBR1$CO$Pos";
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    request.toStream(stream);
    QCOMPARE(m_service->operations(), QStringList{operation});
    QCOMPARE(m_service->calls().first().arguments, (QVariantList{ld, "XCBR1$CO$Pos", bytes}));

    m_service->forgetCalls();
    QCOMPARE(m_services->control(ControlService(service), node("stVal"), request, error),
             OperationSucceeded);
    QVERIFY(m_service->calls().isEmpty());
}

void tst_NodeServices::aDataSetIsCreatedByItsReference_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("nonPersistent");
    QTest::addColumn<QVariantList>("arguments");
    const QString members = "a;b";
    QTest::newRow("persistent") << "DataSet" << false << QVariantList{ld, "LLN0$Mine", members, 0};
    QTest::newRow("non-persistent") << "BAY" << true << QVariantList{"", "Mine", members, 1};
    QTest::newRow("persistent needs a group") << "LLN0" << false << QVariantList{};
}

void tst_NodeServices::aDataSetIsCreatedByItsReference()
{
    QFETCH(QString, name);
    QFETCH(bool, nonPersistent);
    QFETCH(QVariantList, arguments);
    QString error;
    QCOMPARE(m_services->createDataSet(node(name), "Mine", {"a", "b"}, nonPersistent, error),
             OperationSucceeded);
    QCOMPARE(m_service->calls().size(), arguments.isEmpty() ? 0 : 1);
    if (!arguments.isEmpty())
        QCOMPARE(m_service->calls().first().arguments, arguments);
}

QTEST_GUILESS_MAIN(tst_NodeServices)
#include "tst_nodeservices.moc"
