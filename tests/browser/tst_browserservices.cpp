// SPDX-License-Identifier: Apache-2.0
#include "browserfixture.h"

#include "support/modaldriver.h"

#include <tavrix/tavrix.h>

#include <QtCore/QDataStream>
#include <QtTest/QTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeWidget>

namespace {

void press(QWidget *dialog, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(dialog->findChild<QDialogButtonBox *>("buttonBox")->button(button),
                      Qt::LeftButton);
}

ModalDriver::Step pressStep(QDialogButtonBox::StandardButton button)
{
    return [button](QWidget *dialog) { press(dialog, button); };
}

/// The fields of a control request as the driver reads them.
struct SentControl
{
    explicit SentControl(const QVariant &bytes)
    {
        QDataStream stream(bytes.toByteArray());
        stream.setVersion(QDataStream::Qt_5_12);
        stream >> reference >> value >> orCat >> check >> test >> model;
        complete = stream.status() == QDataStream::Ok && stream.atEnd();
    }

    QString reference;
    double value = -1;
    quint8 orCat = 255;
    quint8 check = 255;
    quint8 test = 255;
    quint8 model = 255;
    bool complete = false;
};

const QString ld = "BAYCTRL";

} // namespace

class tst_BrowserServices : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void menuEntryMakesItsCall_data();
    void menuEntryMakesItsCall();
    void failureOfEveryServiceIsReported_data();
    void failureOfEveryServiceIsReported();
    void readOfALogicalNodeAsksForTheConstraint();
    void readOfALogicalNodeIsGivenUpWithItsPicker();
    void readEntryIsConnectedToReadAndToTheEmptyWrite();
    void writeEntryIsConnectedToNothing();

    void editWritesTheValueAndReadsItBack();
    void failedWriteIsNotReadBack_data();
    void failedWriteIsNotReadBack();
    void failedReadBackIsReported();
    void writeToAStructuredNodeReadsAnEmptyReference();
    void writeToAnotherKindOfNodeSendsNothing();

    void controlServicesShowTheirDialogByControlModel_data();
    void controlServicesShowTheirDialogByControlModel();
    void operateSendsWhatTheOperatorChose();
    void failureOfAControlServiceIsReported_data();
    void failureOfAControlServiceIsReported();
    void cancelledControlDialogSendsNothing();
    void controlOfAnotherKindOfNodeSendsNothing();

    void createPersistentDataSet();
    void createNonPersistentDataSet();
    void cancelledPickerSendsNothing();
    void failedCreationAddsNothing_data();
    void failedCreationAddsNothing();
    void persistentCreationNeedsADataSetGroup();
    void deleteRemovesTheDataSet_data();
    void deleteRemovesTheDataSet();
    void failedDeletionKeepsTheDataSet();
    void treeKeepsItsStateOverACreation();

    void reportDialogWorksOnTheSelectedBlock();
    void reportDialogStaysClosedWhenTheBlockCannotBeRead();
    void settingGroupDialogWorksOnTheLogicalDevice();
    void settingGroupDialogStaysClosedWhenTheBlockCannotBeRead();

private:
    QModelIndex select(const QStringList &names, int column = 0)
    {
        return BrowserFixture::select(*m_view, names, column);
    }
    void trigger(const QString &text) { BrowserFixture::action(*m_view, text)->trigger(); }
    QTreeView *tree() const { return BrowserFixture::tree(*m_view); }

    /// Calls since the model was fetched.
    QList<RecordingDriverService::Call> calls() const { return m_fixture->service->calls(); }

    std::unique_ptr<BrowserFixture> m_fixture;
    std::unique_ptr<IEDModelView> m_view;
};

void tst_BrowserServices::init()
{
    m_fixture = std::make_unique<BrowserFixture>();
    m_view = m_fixture->open();
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_fixture->service->forgetCalls();
}

void tst_BrowserServices::cleanup()
{
    // An event ends the listener's wait, so that the window need not sit it out.
    Tavrix::PostEvent("MMS_DATACHANGE:", "MMS_VALUE", {});
    m_view.reset();
    m_fixture.reset();
}

void tst_BrowserServices::menuEntryMakesItsCall_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QVariantList>("arguments");

    const QStringList positions = {ld, "LLN0", "DataSet", "Positions"};
    QTest::newRow("read a data object")
        << QStringList{ld, "XCBR1", "Pos"} << "Read"
        << "readVariable"
        << QVariantList{
               ld, QStringList{"XCBR1$ST$Pos", "XCBR1$CF$Pos", "XCBR1$DC$Pos", "XCBR1$CO$Pos"}};
    QTest::newRow("read an attribute")
        << QStringList{ld, "XCBR1", "Pos", "stVal"} << "Read"
        << "readVariable" << QVariantList{ld, QStringList{"XCBR1$ST$Pos$stVal"}};
    QTest::newRow("read a sub data object")
        << QStringList{ld, "MMXU1", "A", "phsA"} << "Read"
        << "readVariable" << QVariantList{ld, QStringList{"MMXU1$MX$A$phsA", "MMXU1$CF$A$phsA"}};
    QTest::newRow("read a structured attribute")
        << QStringList{ld, "MMXU1", "A", "phsA", "cVal", "mag"} << "Read"
        << "readVariable" << QVariantList{ld, QStringList{"MMXU1$MX$A$phsA$cVal$mag"}};
    QTest::newRow("read an object without any constraint")
        << QStringList{ld, "GGIO1", "Empty"} << "Read"
        << "readVariable" << QVariantList{ld, QStringList{}};
    QTest::newRow("read a data set of a logical node")
        << positions << "Read"
        << "readDataSetValue" << QVariantList{ld, "LLN0$Positions"};
    QTest::newRow("read a data set of the device")
        << QStringList{"Temporary"} << "Read"
        << "readDataSetValue" << QVariantList{"", "Temporary"};

    QTest::newRow("server directory") << QStringList{} << "GetServer Directory"
                                      << "getServerDirectory" << QVariantList{};
    QTest::newRow("logical device directory") << QStringList{ld} << "GetLogicalDevice Directory"
                                              << "getLogicalDeviceDirectory" << QVariantList{ld};
    QTest::newRow("logical node directory")
        << QStringList{ld, "XCBR1"} << "GetLogicalNode Directory"
        << "getLogicalNodeDirectory" << QVariantList{ld, "XCBR1"};
    QTest::newRow("data directory of a data object")
        << QStringList{ld, "XCBR1", "Pos"} << "GetData Directory"
        << "getDataDirectory"
        << QVariantList{ld, "XCBR1$ST$Pos;XCBR1$CF$Pos;XCBR1$DC$Pos;XCBR1$CO$Pos"};
    QTest::newRow("data directory of a sub data object")
        << QStringList{ld, "MMXU1", "A", "phsA"} << "GetData Directory"
        << "getDataDirectory" << QVariantList{ld, "MMXU1$MX$A$phsA;MMXU1$CF$A$phsA"};
    QTest::newRow("data directory of an attribute")
        << QStringList{ld, "XCBR1", "Pos", "q"} << "GetData Directory"
        << "getDataDirectory" << QVariantList{ld, "XCBR1$ST$Pos$q"};
    QTest::newRow("data set list") << QStringList{ld, "LLN0", "DataSet"} << "GetDataSet List"
                                   << "getDataSetList" << QVariantList{ld};
    QTest::newRow("data set directory of a logical node")
        << positions << "GetDataSet Directory"
        << "getDataSetDirectory" << QVariantList{ld, "LLN0$Positions"};
    QTest::newRow("data set directory of the device")
        << QStringList{"Temporary"} << "GetDataSet Directory"
        << "getDataSetDirectory" << QVariantList{"", ""};
    QTest::newRow("buffered report blocks")
        << QStringList{ld, "LLN0", "ReportControl"} << "Get BRCB"
        << "getXRCB" << QVariantList{ld, "LLN0", "BR"};
    QTest::newRow("unbuffered report blocks")
        << QStringList{ld, "LLN0", "ReportControl"} << "Get URCB"
        << "getXRCB" << QVariantList{ld, "LLN0", "RP"};
    QTest::newRow("setting group block") << QStringList{ld} << "Get SGCB"
                                         << "getSGCBBlock" << QVariantList{ld};
    QTest::newRow("delete a data set of a logical node")
        << positions << "Delete DataSet"
        << "deleteDataSet" << QVariantList{ld, "LLN0$Positions"};
    QTest::newRow("delete a data set of the device")
        << QStringList{"Temporary"} << "Delete DataSet"
        << "deleteDataSet" << QVariantList{"", "Temporary"};
}

void tst_BrowserServices::menuEntryMakesItsCall()
{
    QFETCH(QStringList, names);
    QFETCH(QString, entry);
    QFETCH(QString, operation);
    QFETCH(QVariantList, arguments);
    const QModelIndex index = select(names);

    // From the node's own menu, by the keyboard: down to the entry, then Enter.
    ModalDriver driver({[&entry](QWidget *menu) {
        for (QAction *action : menu->actions()) {
            if (action->text() == entry) {
                QTest::mouseClick(menu, Qt::LeftButton, {},
                                  static_cast<QMenu *>(menu)->actionGeometry(action).center());
                return;
            }
        }
        menu->close();
    }});
    emit tree()->customContextMenuRequested(tree()->visualRect(index).center());
    QVERIFY(driver.finished());

    QCOMPARE(calls().size(), 1);
    QCOMPARE(calls().first().operation, operation);
    QCOMPARE(calls().first().deviceNo, 17L);
    QCOMPARE(calls().first().arguments, arguments);
}

void tst_BrowserServices::failureOfEveryServiceIsReported_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("shown");

    const struct
    {
        QStringList names;
        const char *entry;
        const char *operation;
    } services[] = {
        {{ld, "XCBR1", "Pos"}, "Read", "readVariable"},
        {{"Temporary"}, "Read", "readDataSetValue"},
        {{}, "GetServer Directory", "getServerDirectory"},
        {{ld}, "GetLogicalDevice Directory", "getLogicalDeviceDirectory"},
        {{ld, "XCBR1"}, "GetLogicalNode Directory", "getLogicalNodeDirectory"},
        {{ld, "XCBR1", "Pos"}, "GetData Directory", "getDataDirectory"},
        {{ld, "LLN0", "DataSet"}, "GetDataSet List", "getDataSetList"},
        {{"Temporary"}, "GetDataSet Directory", "getDataSetDirectory"},
        {{ld, "LLN0", "ReportControl"}, "Get BRCB", "getXRCB"},
        {{ld}, "Get SGCB", "getSGCBBlock"},
        {{"Temporary"}, "Delete DataSet", "deleteDataSet"},
    };
    for (const auto &service : services) {
        QTest::addRow("%s unreachable", service.operation)
            << service.names << service.entry << service.operation
            << int(OperationDriverUnreachable) << "whatever"
            << "Cannot connect to driver";
        QTest::addRow("%s refused", service.operation)
            << service.names << service.entry << service.operation << int(OperationFailed)
            << "Access denied"
            << "Access denied";
        QTest::addRow("%s failed without a text", service.operation)
            << service.names << service.entry << service.operation << 77 << ""
            << "";
    }
}

void tst_BrowserServices::failureOfEveryServiceIsReported()
{
    QFETCH(QStringList, names);
    QFETCH(QString, entry);
    QFETCH(QString, operation);
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    m_fixture->service->setAnswer(operation, OperationResult(result), error);
    const QModelIndex index = select(names);

    ShownMessage message;
    message.text = "nothing was shown";
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    trigger(entry);
    QVERIFY(driver.finished());
    QCOMPARE(message.title, QString("Fail"));
    QCOMPARE(message.text, shown);
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.parent, m_view.get());
    QCOMPARE(calls().size(), 1);
    QCOMPARE(tree()->currentIndex(), index);
}

void tst_BrowserServices::readOfALogicalNodeAsksForTheConstraint()
{
    select({ld, "MMXU1"});
    QStringList offered;
    ModalDriver driver({[&offered](QWidget *dialog) {
        QCOMPARE(dialog->objectName(), QString("SelectFCDialog"));
        auto *list = dialog->findChild<QComboBox *>("fcList");
        for (int i = 0; i < list->count(); ++i)
            offered << list->itemText(i);
        list->setCurrentText("CF");
        press(dialog, QDialogButtonBox::Ok);
    }});
    trigger("Read");
    QVERIFY(driver.finished());
    QCOMPARE(offered, (QStringList{"MX", "CF"}));
    QCOMPARE(calls().size(), 1);
    QCOMPARE(calls().first().operation, QString("readVariable"));
    QCOMPARE(calls().first().arguments, (QVariantList{ld, QStringList{"MMXU1$CF"}}));
}

void tst_BrowserServices::readOfALogicalNodeIsGivenUpWithItsPicker()
{
    select({ld, "MMXU1"});
    ModalDriver driver({pressStep(QDialogButtonBox::Cancel)});
    trigger("Read");
    QVERIFY(driver.finished());
    QVERIFY(calls().isEmpty());
}

void tst_BrowserServices::readEntryIsConnectedToReadAndToTheEmptyWrite()
{
    QAction *read = BrowserFixture::action(*m_view, "Read");
    QVERIFY(QObject::disconnect(read, &QAction::triggered, m_view.get(), &IEDModelView::readData));
    QVERIFY(QObject::disconnect(read, &QAction::triggered, m_view.get(), &IEDModelView::writeData));
}

void tst_BrowserServices::writeEntryIsConnectedToNothing()
{
    QAction *write = BrowserFixture::action(*m_view, "Write...");
    select({ld, "XCBR1", "Pos", "d"}, 1);
    write->trigger();
    QVERIFY(calls().isEmpty());
    QVERIFY(!QObject::disconnect(write, &QAction::triggered, m_view.get(), nullptr));
}

void tst_BrowserServices::editWritesTheValueAndReadsItBack()
{
    const QModelIndex cell = select({ld, "XCBR1", "Pos", "d"}, 1);
    QTest::keyClick(tree(), Qt::Key_F2);
    auto *editor = tree()->viewport()->findChild<QLineEdit *>();
    QVERIFY(editor);
    QCOMPARE(editor->text(), QString());
    QTest::keyClicks(editor, "Bus coupler");
    QTest::keyClick(editor, Qt::Key_Enter);

    QTRY_COMPARE(calls().size(), 2);
    QCOMPARE(calls()[0].operation, QString("writeVariable"));
    QCOMPARE(calls()[0].deviceNo, 17L);
    QCOMPARE(calls()[0].arguments[0], QVariant(ld));
    QCOMPARE(calls()[0].arguments[1], QVariant("XCBR1$DC$Pos$d"));
    QByteArray expected;
    QDataStream stream(&expected, QIODevice::WriteOnly);
    stream << QVariant(QString("Bus coupler"));
    QCOMPARE(calls()[0].arguments[2].toByteArray(), expected);
    QCOMPARE(calls()[1].operation, QString("readVariable"));
    QCOMPARE(calls()[1].arguments, (QVariantList{ld, QStringList{"XCBR1$DC$Pos$d"}}));
    QVERIFY(cell.isValid());
}

void tst_BrowserServices::failedWriteIsNotReadBack_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("shown");
    QTest::newRow("unreachable") << int(OperationDriverUnreachable) << "Cannot connect to driver";
    QTest::newRow("refused") << int(OperationFailed) << "Value out of range";
    QTest::newRow("failed without a text") << 77 << "";
}

void tst_BrowserServices::failedWriteIsNotReadBack()
{
    QFETCH(int, result);
    QFETCH(QString, shown);
    m_fixture->service->setAnswer("writeVariable", OperationResult(result),
                                  result == OperationFailed ? shown : QString());
    const QModelIndex cell = select({ld, "XCBR1", "Pos", "ctlModel"}, 1);
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    m_view->writeValue(cell, 3);
    QVERIFY(driver.finished());
    QCOMPARE(message.text, shown);
    QCOMPARE(m_fixture->service->operations(), QStringList{"writeVariable"});
}

void tst_BrowserServices::failedReadBackIsReported()
{
    m_fixture->service->setAnswer("readVariable", OperationFailed, "Object does not exist");
    const QModelIndex cell = select({ld, "XCBR1", "Pos", "d"}, 1);
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    m_view->writeValue(cell, "x");
    QVERIFY(driver.finished());
    QCOMPARE(message.text, QString("Object does not exist"));
}

void tst_BrowserServices::writeToAStructuredNodeReadsAnEmptyReference()
{
    m_view->writeValue(select({ld, "MMXU1", "A", "phsA"}, 1), 1);
    QCOMPARE(calls().size(), 1);
    QCOMPARE(calls()[0].operation, QString("readVariable"));
    QCOMPARE(calls()[0].arguments, (QVariantList{ld, QStringList{""}}));
}

void tst_BrowserServices::writeToAnotherKindOfNodeSendsNothing()
{
    for (const QStringList &names : {QStringList{},
                                     {ld},
                                     {ld, "XCBR1"},
                                     {ld, "XCBR1", "Pos"},
                                     {ld, "LLN0", "SGCB"},
                                     {ld, "LLN0", "ReportControl", "brcb01"},
                                     {"Temporary"}})
        m_view->writeValue(select(names, 1), 1);
    QVERIFY(calls().isEmpty());
}

void tst_BrowserServices::controlServicesShowTheirDialogByControlModel_data()
{
    QTest::addColumn<QString>("service");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("ctlModel");
    QTest::addColumn<bool>("dialog");
    for (int model : {0, 1, 2, 3, 4, 5, 257}) {
        const int low = model & 0xFF;
        QTest::addRow("select, model %d", model) << "Select"
                                                 << "selectObject" << model << (low == 4);
        QTest::addRow("operate, model %d", model)
            << "Operate"
            << "controlObject" << model << (low >= 1 && low <= 3);
        QTest::addRow("cancel, model %d", model) << "Cancel"
                                                 << "cancelObject" << model << (low == 2);
    }
}

void tst_BrowserServices::controlServicesShowTheirDialogByControlModel()
{
    QFETCH(QString, service);
    QFETCH(QString, operation);
    QFETCH(int, ctlModel);
    QFETCH(bool, dialog);
    m_view.reset();
    m_fixture->device->findTag("BAYCTRL/XCBR1$CF$Pos$ctlModel")->value = ctlModel;
    m_view = m_fixture->open();
    m_fixture->service->forgetCalls();
    select({ld, "XCBR1", "Pos"});

    bool checkEnabled = false;
    std::vector<ModalDriver::Step> steps;
    if (dialog) {
        steps.emplace_back([&checkEnabled](QWidget *window) {
            QCOMPARE(window->objectName(), QString("ControlCo"));
            checkEnabled = window->findChild<QComboBox *>("check")->isEnabled();
            press(window, QDialogButtonBox::Ok);
        });
    }
    ModalDriver driver(steps);
    // A greyed entry cannot be chosen, but the slot stays reachable.
    QAction *action = BrowserFixture::action(*m_view, service);
    action->setEnabled(true);
    action->trigger();
    QVERIFY(driver.finished());
    if (dialog)
        QCOMPARE(checkEnabled, service != "Cancel");

    QCOMPARE(calls().size(), 1);
    QCOMPARE(calls()[0].operation, operation);
    QCOMPARE(calls()[0].arguments[0], QVariant(ld));
    QCOMPARE(calls()[0].arguments[1], QVariant("XCBR1$CO$Pos"));
    const SentControl sent(calls()[0].arguments[2]);
    QVERIFY(sent.complete);
    QCOMPARE(sent.reference, QString("XCBR1$CO$Pos"));
    QCOMPARE(int(sent.model), ctlModel & 0xFF);
    QCOMPARE(sent.value, 0.0);
    QCOMPARE(int(sent.orCat), dialog ? 3 : 0);
}

void tst_BrowserServices::operateSendsWhatTheOperatorChose()
{
    select({ld, "XCBR1", "Pos"});
    ModalDriver driver({[](QWidget *dialog) {
        auto choose = [dialog](const char *list, int entry) {
            dialog->findChild<QComboBox *>(list)->setCurrentIndex(entry);
        };
        choose("ctrValue", 1);
        choose("test", 1);
        choose("category", 2);
        choose("check", 3);
        press(dialog, QDialogButtonBox::Ok);
    }});
    m_view->operateCo();
    QVERIFY(driver.finished());
    const SentControl sent(calls().first().arguments[2]);
    QCOMPARE(sent.value, 1.0);
    QCOMPARE(int(sent.test), 1);
    QCOMPARE(int(sent.orCat), 2);
    QCOMPARE(int(sent.check), 3);
    QCOMPARE(int(sent.model), 1);
}

void tst_BrowserServices::failureOfAControlServiceIsReported_data()
{
    QTest::addColumn<QString>("service");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("ctlModel");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("shown");
    const struct
    {
        const char *service;
        const char *operation;
        int ctlModel;
    } services[] = {{"Select", "selectObject", 4},
                    {"Operate", "controlObject", 1},
                    {"Cancel", "cancelObject", 2}};
    for (const auto &service : services) {
        QTest::addRow("%s unreachable", service.operation)
            << service.service << service.operation << service.ctlModel
            << int(OperationDriverUnreachable) << "whatever"
            << "Cannot connect to driver";
        QTest::addRow("%s refused", service.operation)
            << service.service << service.operation << service.ctlModel << int(OperationFailed)
            << "Blocked by interlocking"
            << "Blocked by interlocking";
        QTest::addRow("%s failed without a text", service.operation)
            << service.service << service.operation << service.ctlModel << 77 << ""
            << "";
    }
}

void tst_BrowserServices::failureOfAControlServiceIsReported()
{
    QFETCH(QString, service);
    QFETCH(QString, operation);
    QFETCH(int, ctlModel);
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    m_view.reset();
    m_fixture->device->findTag("BAYCTRL/XCBR1$CF$Pos$ctlModel")->value = ctlModel;
    m_view = m_fixture->open();
    m_fixture->service->forgetCalls();
    m_fixture->service->setAnswer(operation, OperationResult(result), error);
    select({ld, "XCBR1", "Pos"});

    ShownMessage message;
    message.text = "nothing was shown";
    ModalDriver driver({pressStep(QDialogButtonBox::Ok),
                        ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    trigger(service);
    QVERIFY(driver.finished());
    QCOMPARE(message.title, QString("Fail"));
    QCOMPARE(message.text, shown);
    QCOMPARE(message.parent, m_view.get());
    QCOMPARE(m_fixture->service->operations(), QStringList{operation});
}

void tst_BrowserServices::cancelledControlDialogSendsNothing()
{
    select({ld, "XCBR1", "Pos"});
    ModalDriver driver({pressStep(QDialogButtonBox::Cancel)});
    m_view->operateCo();
    QVERIFY(driver.finished());
    QVERIFY(calls().isEmpty());
}

void tst_BrowserServices::controlOfAnotherKindOfNodeSendsNothing()
{
    for (const QStringList &names : {QStringList{},
                                     {ld},
                                     {ld, "XCBR1"},
                                     {ld, "XCBR1", "Pos", "stVal"},
                                     {ld, "LLN0", "SGCB"}}) {
        select(names);
        m_view->selectCo();
        m_view->operateCo();
        m_view->cancelCo();
    }
    QVERIFY(calls().isEmpty());
}

namespace {

/// Name the data set and tick the first data object below that logical node.
ModalDriver::Step pickDataSet(const QString &name, const QString &logicalNode)
{
    return [name, logicalNode](QWidget *dialog) {
        QCOMPARE(dialog->objectName(), QString("DatasetSelectWidget"));
        QTest::keyClicks(dialog->findChild<QLineEdit *>("lineEdit"), name);
        auto *picker = dialog->findChild<QTreeWidget *>("treeWidget");
        const QList<QTreeWidgetItem *> found =
            picker->findItems(logicalNode, Qt::MatchExactly | Qt::MatchRecursive);
        QCOMPARE(found.size(), 1);
        found.first()->child(0)->child(0)->setCheckState(0, Qt::Checked);
        press(dialog, QDialogButtonBox::Ok);
    };
}

} // namespace

void tst_BrowserServices::createPersistentDataSet()
{
    select({ld, "LLN0", "DataSet"});
    ModalDriver driver({pickDataSet("Fresh", "XCBR1")});
    trigger("Create Persistent DataSet");
    QVERIFY(driver.finished());
    QCOMPARE(calls().size(), 1);
    QCOMPARE(calls()[0].operation, QString("createDataSet"));
    QCOMPARE(calls()[0].arguments, (QVariantList{ld, "LLN0$Fresh", "BAYCTRL/XCBR1$ST$Pos", 0}));

    const QModelIndex added =
        BrowserFixture::find(*m_view, {ld, "LLN0", "DataSet", "Fresh(Deletable)"});
    QCOMPARE(added.model()->rowCount(added), 1);
    QCOMPARE(added.model()->index(0, 0, added).data().toString(), QString("BAYCTRL/XCBR1$ST$Pos"));

    // It is held by the logical node, so it is deleted by that name.
    m_fixture->service->forgetCalls();
    tree()->setCurrentIndex(added);
    trigger("Delete DataSet");
    QCOMPARE(calls()[0].arguments, (QVariantList{ld, "LLN0$Fresh"}));
}

void tst_BrowserServices::createNonPersistentDataSet()
{
    select({});
    ModalDriver driver({pickDataSet("Fresh", "GGIO1")});
    trigger("Create Non-Persistent DataSet");
    QVERIFY(driver.finished());
    QCOMPARE(calls()[0].operation, QString("createDataSet"));
    QCOMPARE(calls()[0].arguments, (QVariantList{"", "Fresh", "BAYCTRL/GGIO1$ST$Ind1", 1}));
    BrowserFixture::find(*m_view, {"Fresh(Deletable)", "BAYCTRL/GGIO1$ST$Ind1"});
}

void tst_BrowserServices::cancelledPickerSendsNothing()
{
    select({ld, "LLN0", "DataSet"});
    ModalDriver driver({pressStep(QDialogButtonBox::Cancel)});
    trigger("Create Persistent DataSet");
    QVERIFY(driver.finished());
    QVERIFY(calls().isEmpty());
}

void tst_BrowserServices::failedCreationAddsNothing_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("shown");
    QTest::newRow("unreachable") << int(OperationDriverUnreachable) << "whatever"
                                 << "Cannot connect to driver";
    QTest::newRow("refused") << int(OperationFailed) << "Too many data sets"
                             << "Too many data sets";
    QTest::newRow("failed without a text") << 77 << ""
                                           << "";
}

void tst_BrowserServices::failedCreationAddsNothing()
{
    QFETCH(int, result);
    QFETCH(QString, error);
    QFETCH(QString, shown);
    m_fixture->service->setAnswer("createDataSet", OperationResult(result), error);
    const QModelIndex group = select({ld, "LLN0", "DataSet"});
    ShownMessage message;
    ModalDriver driver(
        {pickDataSet("Fresh", "XCBR1"), ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    trigger("Create Persistent DataSet");
    QVERIFY(driver.finished());
    QCOMPARE(message.text, shown);
    QCOMPARE(tree()->model()->rowCount(group), 2);
}

void tst_BrowserServices::persistentCreationNeedsADataSetGroup()
{
    for (const QStringList &names : {QStringList{}, {ld}, {ld, "LLN0"}, {"Temporary"}}) {
        select(names);
        // The picker would block here.
        trigger("Create Persistent DataSet");
    }
    QVERIFY(calls().isEmpty());
}

void tst_BrowserServices::deleteRemovesTheDataSet_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::newRow("of a logical node") << QStringList{ld, "LLN0", "DataSet", "Positions"};
    QTest::newRow("of the device") << QStringList{"Temporary"};
}

void tst_BrowserServices::deleteRemovesTheDataSet()
{
    QFETCH(QStringList, names);
    const QModelIndex index = select(names);
    const int before = tree()->model()->rowCount(index.parent());
    trigger("Delete DataSet");
    const QModelIndex parent = BrowserFixture::find(*m_view, names.mid(0, names.size() - 1));
    QCOMPARE(tree()->model()->rowCount(parent), before - 1);
}

void tst_BrowserServices::failedDeletionKeepsTheDataSet()
{
    m_fixture->service->setAnswer("deleteDataSet", OperationFailed, "In use");
    select({"Temporary"});
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok)});
    trigger("Delete DataSet");
    QVERIFY(driver.finished());
    BrowserFixture::find(*m_view, {"Temporary"});
}

void tst_BrowserServices::treeKeepsItsStateOverACreation()
{
    tree()->collapse(BrowserFixture::find(*m_view, {ld, "XCBR1"}));
    tree()->expand(BrowserFixture::find(*m_view, {ld, "MMXU1"}));
    tree()->expand(BrowserFixture::find(*m_view, {ld, "MMXU1", "A"}));
    tree()->expand(BrowserFixture::find(*m_view, {ld, "LLN0"}));
    m_view->resize(785, 200);
    const QModelIndex group = select({ld, "LLN0", "DataSet"});
    tree()->scrollTo(group, QAbstractItemView::PositionAtTop);
    const int scrolled = tree()->verticalScrollBar()->value();
    QVERIFY(scrolled > 0);

    ModalDriver driver({pickDataSet("Fresh", "XCBR1")});
    trigger("Create Persistent DataSet");
    QVERIFY(driver.finished());

    QCOMPARE(tree()->currentIndex(), BrowserFixture::find(*m_view, {ld, "LLN0", "DataSet"}));
    QVERIFY(tree()->isExpanded(BrowserFixture::find(*m_view, {ld, "MMXU1", "A"})));
    QVERIFY(!tree()->isExpanded(BrowserFixture::find(*m_view, {ld, "XCBR1"})));
    QCOMPARE(tree()->verticalScrollBar()->value(), scrolled);
}

void tst_BrowserServices::reportDialogWorksOnTheSelectedBlock()
{
    m_fixture->service->reportBlock.reference = "LLN0$BR$brcb01";
    m_fixture->service->reportBlock.rptEna = true;
    m_fixture->service->reportBlock.datSet = "Measurements";
    select({ld, "LLN0", "ReportControl", "brcb01"});
    QStringList dataSets;
    QString current;
    ModalDriver driver({[&](QWidget *dialog) {
        QCOMPARE(dialog->objectName(), QString("ReportControl"));
        auto *list = dialog->findChild<QComboBox *>("dataSet");
        for (int i = 0; i < list->count(); ++i)
            dataSets << list->itemText(i);
        current = list->currentText();
        QTest::mouseClick(dialog->findChild<QPushButton *>("close"), Qt::LeftButton);
    }});
    trigger("Open Report Control");
    QVERIFY(driver.finished());
    QCOMPARE(calls()[0].operation, QString("getBRCBValues"));
    QCOMPARE(calls()[0].arguments, (QVariantList{ld, "LLN0$BR$brcb01"}));
    QCOMPARE(dataSets, (QStringList{"Positions", "Measurements"}));
    QCOMPARE(current, QString("Measurements"));

    // The block is known to be enabled now, and its icon says so.
    const QModelIndex index =
        BrowserFixture::find(*m_view, {ld, "LLN0", "ReportControl", "brcb01"});
    const QImage shown = index.data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
    QCOMPARE(shown, QIcon(":/850Ext/image/BR.png").pixmap(16).toImage());
}

void tst_BrowserServices::reportDialogStaysClosedWhenTheBlockCannotBeRead()
{
    m_fixture->service->setAnswer("getBRCBValues", OperationFailed, "Held by another client");
    select({ld, "LLN0", "ReportControl", "urcb01"});
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    trigger("Open Report Control");
    QVERIFY(driver.finished());
    QCOMPARE(message.text, QString("Held by another client"));
}

void tst_BrowserServices::settingGroupDialogWorksOnTheLogicalDevice()
{
    m_fixture->service->settingGroupBlock.numOfSG = 4;
    select({ld, "LLN0", "SGCB"});
    ModalDriver driver({[](QWidget *dialog) {
        QCOMPARE(dialog->objectName(), QString("SGCBDialog"));
        QTest::mouseClick(dialog->findChild<QPushButton *>("close"), Qt::LeftButton);
    }});
    trigger("Open Setting Group Control");
    QVERIFY(driver.finished());
    QCOMPARE(calls()[0].operation, QString("getSGCB"));
    QCOMPARE(calls()[0].deviceNo, 17L);
    QCOMPARE(calls()[0].arguments, QVariantList{ld});
}

void tst_BrowserServices::settingGroupDialogStaysClosedWhenTheBlockCannotBeRead()
{
    m_fixture->service->setAnswer("getSGCB", OperationDriverUnreachable, "");
    select({ld, "LLN0", "SGCB"});
    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    m_view->checkDoubleclick({});
    QVERIFY(driver.finished());
    QCOMPARE(message.text, QString("Cannot connect to driver"));
}

QTEST_MAIN(tst_BrowserServices)
#include "tst_browserservices.moc"
