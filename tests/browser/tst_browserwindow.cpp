// SPDX-License-Identifier: Apache-2.0
#include "browserfixture.h"

#include "listener/mmslistener.h"
#include "model/iedmodel.h"
#include "model/iedmodeldelegate.h"
#include "support/generateddevice.h"
#include "support/modaldriver.h"

#include <tavrix/tavrix.h>

#include <QtCore/QDataStream>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>

class tst_BrowserWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void metaObjectListsTheSlotsInTheirOrder();
    void theWindowBearsTheNamesAndTextsThatHostsKnow();
    void treeIsSetUpForBrowsing();
    void constructionAsksTheConsoleForTheDevice();
    void initFetchesTheModelOfTheDevice();
    void initExpandsLogicalDevicesAndNodes();
    void initCreatesTheServiceActionsInOrder();
    void failedFetchIsReportedAsUnreachableWhateverTheReason_data();
    void failedFetchIsReportedAsUnreachableWhateverTheReason();
    void brokenModelBytesStillOpenAWindow();
    void closeButtonRejectsTheWindow();
    void liveValueReachesItsCell();
    void twoWindowsListenToBoxesOfTheirOwn();
    void destroyingTheWindowEndsItsListener();
    void modelThatEndsInTheMiddleIsShownAsFarAsItGoesAndTold_data();
    void modelThatEndsInTheMiddleIsShownAsFarAsItGoesAndTold();
    void offlineModelHasNoContextMenu();
    void onlineModelHasAContextMenu();
    void doubleClickOnOfflineSettingGroupShowsItsNumbers();
    void doubleClickOnOfflineReportControlShowsItsSettings();
    void doubleClickElsewhereOpensNothing();
    void expandAllOpensTheCurrentNodeAndAllBelowParentsFirst();
    void collapseAllClosesDeepestFirst();
    void locateFindsTheMembersAttribute();
    void locateOfAnUnknownMemberKeepsTheSelection();
    void slotsDoNothingWithoutACurrentNode();
    void expandingResizesTheNameColumn();
};

void tst_BrowserWindow::initTestCase()
{
    QCOMPARE(Tavrix::ConnectMid(nullptr), 0);
}

void tst_BrowserWindow::metaObjectListsTheSlotsInTheirOrder()
{
    const QMetaObject &meta = IEDModelView::staticMetaObject;
    QStringList slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        slotNames << QString::fromLatin1(meta.method(i).methodSignature());
    const QStringList expected = {
        "init()",
        "updateMMSValue(QList<MMSValue>)",
        "createTaskMenu(IEDNode*)",
        "slotContextMenu(QPoint)",
        "slotExpanded(QModelIndex)",
        "writeValue(QModelIndex,QVariant)",
        "readData()",
        "writeData()",
        "selectCo()",
        "operateCo()",
        "openReport()",
        "readSGCB()",
        "cancelCo()",
        "expandChild()",
        "openSGCB()",
        "collapseChild()",
        "locate()",
        "createDataSet()",
        "deleteDataSet()",
        "checkDoubleclick(QModelIndex)",
        "readDataSetList()",
        "readDataSetDirectory()",
        "readXRCB()",
        "readServerDirectory()",
        "readLogicalDevice()",
        "readLogicalNode()",
        "readDataDirectory()",
    };
    QCOMPARE(slotNames, expected);
}

void tst_BrowserWindow::theWindowBearsTheNamesAndTextsThatHostsKnow()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    QCOMPARE(view->objectName(), QString("IEDModelView"));
    QCOMPARE(view->windowTitle(), QString("IED Browser"));
    QCOMPARE(view->size(), QSize(785, 460));
    QVERIFY(!view->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));

    const auto *splitter = view->findChild<QSplitter *>("splitter");
    QVERIFY(splitter);
    QCOMPARE(BrowserFixture::tree(*view)->parentWidget(), splitter);

    const auto *button = view->findChild<QPushButton *>("pushButton");
    QVERIFY(button);
    QCOMPARE(button->text(), QString("Close"));
}

void tst_BrowserWindow::treeIsSetUpForBrowsing()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    const QTreeView *tree = BrowserFixture::tree(*view);
    QVERIFY(qobject_cast<IEDModel *>(tree->model()));
    QVERIFY(qobject_cast<IEDModelDelegate *>(tree->itemDelegate()));
    QCOMPARE(tree->model()->parent(), view.get());
    QCOMPARE(tree->contextMenuPolicy(), Qt::CustomContextMenu);
    QVERIFY(tree->dragEnabled());
    QVERIFY(tree->itemsExpandable());
    QVERIFY(tree->rootIsDecorated());
    QVERIFY(!tree->isSortingEnabled());
    QVERIFY(tree->alternatingRowColors());
    QCOMPARE(tree->columnWidth(1), 200);
}

void tst_BrowserWindow::constructionAsksTheConsoleForTheDevice()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    QCOMPARE(fixture.console.asked, (QList<QPair<long, long>>{{3L, 17L}}));
}

void tst_BrowserWindow::initFetchesTheModelOfTheDevice()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    QCOMPARE(fixture.service->operations(), QStringList{"getIEDModel"});
    QCOMPARE(fixture.service->calls().first().deviceNo, 17L);

    const QModelIndex root = BrowserFixture::tree(*view)->model()->index(0, 0);
    QCOMPARE(root.data().toString(), QString("BAY"));
    const QModelIndex stVal = BrowserFixture::find(*view, {"BAYCTRL", "XCBR1", "Pos", "stVal"}, 1);
    QCOMPARE(stVal.data().toString(), QString("on (2)"));
}

void tst_BrowserWindow::initExpandsLogicalDevicesAndNodes()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    const QTreeView *tree = BrowserFixture::tree(*view);
    QVERIFY(tree->isExpanded(tree->model()->index(0, 0)));
    QVERIFY(tree->isExpanded(BrowserFixture::find(*view, {"BAYCTRL"})));
    QVERIFY(!tree->isExpanded(BrowserFixture::find(*view, {"BAYCTRL", "XCBR1"})));
}

void tst_BrowserWindow::initCreatesTheServiceActionsInOrder()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    QStringList texts;
    for (const QAction *action :
         view->findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly))
        texts << action->text();
    QCOMPARE(texts, (QStringList{"Read",
                                 "Write...",
                                 "Select",
                                 "Operate",
                                 "Cancel",
                                 "Expand All",
                                 "Collapse All",
                                 "Open Report Control",
                                 "Open Setting Group Control",
                                 "Locate",
                                 "Create Persistent DataSet",
                                 "Create Non-Persistent DataSet",
                                 "Delete DataSet",
                                 "GetDataSet List",
                                 "GetDataSet Directory",
                                 "Get BRCB",
                                 "Get URCB",
                                 "Get SGCB",
                                 "GetServer Directory",
                                 "GetLogicalDevice Directory",
                                 "GetLogicalNode Directory",
                                 "GetData Directory"}));
}

void tst_BrowserWindow::failedFetchIsReportedAsUnreachableWhateverTheReason_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("driver unreachable") << int(OperationDriverUnreachable);
    QTest::newRow("another failure") << int(OperationFailed);
}

void tst_BrowserWindow::failedFetchIsReportedAsUnreachableWhateverTheReason()
{
    QFETCH(int, result);
    BrowserFixture fixture;
    fixture.service->setAnswer("getIEDModel", OperationResult(result), "The disk is full");
    IEDModelView view(3, 17, 0, &fixture.context, nullptr);

    ShownMessage message;
    ModalDriver driver({ModalDriver::pressInMessageBox(QMessageBox::Ok, &message)});
    QVERIFY(!view.init());
    QVERIFY(driver.finished());
    QCOMPARE(message.title, QString("Fail"));
    QCOMPARE(message.text, QString("Cannot connect to driver"));
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(message.parent, &view);
    QVERIFY(!view.findChild<MMSListener *>());
}

void tst_BrowserWindow::brokenModelBytesStillOpenAWindow()
{
    BrowserFixture fixture;
    fixture.service->model = QByteArray("no device at all");
    IEDModelView view(3, 17, 0, &fixture.context, nullptr);
    QVERIFY(view.init());
    QCOMPARE(BrowserFixture::tree(view)->model()->rowCount(), 1);
}

void tst_BrowserWindow::closeButtonRejectsTheWindow()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    const QSignalSpy rejected(view.get(), &QDialog::rejected);
    QTest::mouseClick(view->findChild<QPushButton *>("pushButton"), Qt::LeftButton);
    QCOMPARE(rejected.count(), 1);
    QVERIFY(!view->isVisible());
}

namespace {

QByteArray record(const QString &reference, const QVariant &value)
{
    MMSValue mmsValue;
    mmsValue.reference = reference;
    mmsValue.value = value;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    mmsValue.toStream(stream);
    return bytes;
}

} // namespace

void tst_BrowserWindow::liveValueReachesItsCell()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    const QModelIndex cell = BrowserFixture::find(*view, {"BAYCTRL", "XCBR1", "Pos", "stVal"}, 1);
    QSignalSpy changed(BrowserFixture::tree(*view)->model(), &QAbstractItemModel::dataChanged);
    // The listener makes its box in its own time; until then there is nobody to post to.
    QTRY_VERIFY(Tavrix::PostEvent("MMS_DATACHANGE:", "MMS_VALUE",
                                  {record("BAYCTRL/XCBR1$ST$Pos$stVal", 1)}) == 0 &&
                !changed.isEmpty());
    QCOMPARE(cell.data().toString(), QString("off (1)"));
    QCOMPARE(changed.last().at(0).toModelIndex(), cell);
}

void tst_BrowserWindow::twoWindowsListenToBoxesOfTheirOwn()
{
    BrowserFixture fixture;
    const auto first = fixture.open();
    const auto second = fixture.open();
    const auto *one = first->findChild<MMSListener *>();
    const auto *other = second->findChild<MMSListener *>();
    QVERIFY(one);
    QVERIFY(other);
    QVERIFY(one->eventBoxName().startsWith("MMS_DATACHANGE:"));
    QVERIFY(one->eventBoxName() != other->eventBoxName());
}

void tst_BrowserWindow::destroyingTheWindowEndsItsListener()
{
    BrowserFixture fixture;
    auto view = fixture.open();
    QPointer<MMSListener> listener = view->findChild<MMSListener *>();
    QVERIFY(listener->isRunning());
    QSignalSpy finished(listener, &QThread::finished);
    view.reset();
    QVERIFY(listener.isNull());
    QCOMPARE(finished.count(), 1);
}

void tst_BrowserWindow::modelThatEndsInTheMiddleIsShownAsFarAsItGoesAndTold_data()
{
    QTest::addColumn<double>("share");
    QTest::newRow("whole") << 1.0;
    QTest::newRow("all but the end") << 0.99;
    QTest::newRow("half") << 0.5;
    QTest::newRow("nothing") << 0.0;
}

void tst_BrowserWindow::modelThatEndsInTheMiddleIsShownAsFarAsItGoesAndTold()
{
    QFETCH(double, share);
    BrowserFixture fixture;
    const QByteArray bytes = deviceBytes(*fixture.device);
    fixture.service->model = bytes.left(int(bytes.size() * share));
    IEDModelView view(1, 2, 0, &fixture.context, nullptr);
    QVERIFY(view.init());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const auto *sentence = view.findChild<QLabel *>("modelNotWhole");
    QCOMPARE(sentence != nullptr, share < 1.0);
    if (sentence) {
        QVERIFY(sentence->isVisible());
        QCOMPARE(sentence->text(), QString("The description of this device is not whole: the tree "
                                           "shows what could be read of it."));
    }
    const QAbstractItemModel *model = BrowserFixture::tree(view)->model();
    QCOMPARE(model->rowCount(), 1);
    const bool hasSome = share >= 0.5;
    QCOMPARE(model->rowCount(model->index(0, 0)) > 0, hasSome);
}

void tst_BrowserWindow::offlineModelHasNoContextMenu()
{
    BrowserFixture fixture;
    fixture.device->offline = true;
    const auto view = fixture.open();
    QTreeView *tree = BrowserFixture::tree(*view);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    emit tree->customContextMenuRequested(QPoint(5, 5));
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_BrowserWindow::onlineModelHasAContextMenu()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    QTreeView *tree = BrowserFixture::tree(*view);
    const QModelIndex root = tree->model()->index(0, 0);

    QStringList entries;
    ModalDriver driver({[&entries](QWidget *popup) {
        const auto *menu = qobject_cast<QMenu *>(popup);
        QVERIFY(menu);
        for (const QAction *action : menu->actions())
            entries << action->text();
        popup->close();
    }});
    emit tree->customContextMenuRequested(tree->visualRect(root).center());
    QVERIFY(driver.finished());
    QCOMPARE(entries, (QStringList{"Expand All", "Collapse All", "", "GetServer Directory",
                                   "Create Non-Persistent DataSet"}));
}

void tst_BrowserWindow::doubleClickOnOfflineSettingGroupShowsItsNumbers()
{
    BrowserFixture fixture;
    fixture.device->offline = true;
    const auto view = fixture.open();
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    const QModelIndex index = BrowserFixture::select(*view, {"BAYCTRL", "LLN0", "SGCB"});

    QString number, active;
    ModalDriver driver({[&](QWidget *dialog) {
        QCOMPARE(dialog->objectName(), QString("OfflineSGCB"));
        QVERIFY(!dialog->parentWidget());
        number = dialog->findChild<QLabel *>("numOfSetting")->text();
        active = dialog->findChild<QLabel *>("active")->text();
        QTest::mouseClick(dialog->findChild<QPushButton *>("pushButton"), Qt::LeftButton);
    }});
    const QPoint spot = BrowserFixture::tree(*view)->visualRect(index).center();
    QWidget *viewport = BrowserFixture::tree(*view)->viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, {}, spot);
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, spot);
    QVERIFY(driver.finished());
    QCOMPARE(number, QString("4"));
    QCOMPARE(active, QString("2"));
    QCOMPARE(fixture.service->operations(), QStringList{"getIEDModel"});
}

void tst_BrowserWindow::doubleClickOnOfflineReportControlShowsItsSettings()
{
    BrowserFixture fixture;
    fixture.device->offline = true;
    const auto view = fixture.open();
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    BrowserFixture::select(*view, {"BAYCTRL", "LLN0", "ReportControl", "brcb01"});

    QString shownName;
    ModalDriver driver({[&](QWidget *dialog) {
        QCOMPARE(dialog->objectName(), QString("ReportControl"));
        shownName = dialog->findChild<QLabel *>("control")->text();
        QVERIFY(!dialog->findChild<QPushButton *>("enableReport")->isEnabled());
        QTest::mouseClick(dialog->findChild<QPushButton *>("close"), Qt::LeftButton);
    }});
    view->checkDoubleclick({});
    QVERIFY(driver.finished());
    QCOMPARE(shownName, QString("brcb01"));
    QCOMPARE(fixture.service->operations(), QStringList{"getIEDModel"});
}

void tst_BrowserWindow::doubleClickElsewhereOpensNothing()
{
    BrowserFixture fixture;
    fixture.device->offline = true;
    const auto view = fixture.open();
    const QList<QStringList> elsewhere = {
        {},
        {"BAYCTRL"},
        {"BAYCTRL", "LLN0"},
        {"BAYCTRL", "LLN0", "DataSet"},
        {"BAYCTRL", "LLN0", "DataSet", "Positions"},
        {"BAYCTRL", "LLN0", "DataSet", "Positions", "BAYCTRL/XCBR1$ST$Pos$stVal"},
        {"BAYCTRL", "LLN0", "ReportControl"},
        {"BAYCTRL", "XCBR1", "Pos"},
        {"BAYCTRL", "XCBR1", "Pos", "stVal"},
    };
    for (const QStringList &names : elsewhere) {
        BrowserFixture::select(*view, names);
        // A dialog would block here.
        view->checkDoubleclick({});
    }
    QCOMPARE(fixture.service->operations(), QStringList{"getIEDModel"});
}

void tst_BrowserWindow::expandAllOpensTheCurrentNodeAndAllBelowParentsFirst()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    const QTreeView *tree = BrowserFixture::tree(*view);
    BrowserFixture::select(*view, {"BAYCTRL", "MMXU1"});
    BrowserFixture::action(*view, "Expand All")->trigger();
    for (const QStringList &names : {QStringList{"BAYCTRL", "MMXU1"},
                                     {"BAYCTRL", "MMXU1", "A"},
                                     {"BAYCTRL", "MMXU1", "A", "phsA"},
                                     {"BAYCTRL", "MMXU1", "A", "phsA", "cVal"},
                                     {"BAYCTRL", "MMXU1", "A", "phsA", "cVal", "mag"}})
        QVERIFY2(tree->isExpanded(BrowserFixture::find(*view, names)), qPrintable(names.last()));
    QVERIFY(!tree->isExpanded(BrowserFixture::find(*view, {"BAYCTRL", "XCBR1"})));
}

void tst_BrowserWindow::collapseAllClosesDeepestFirst()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    QTreeView *tree = BrowserFixture::tree(*view);
    BrowserFixture::select(*view, {"BAYCTRL", "MMXU1"});
    BrowserFixture::action(*view, "Expand All")->trigger();

    QStringList closed;
    connect(tree, &QTreeView::collapsed, this, [&](const QModelIndex &index) {
        if (tree->model()->hasChildren(index))
            closed << index.data().toString();
    });
    BrowserFixture::action(*view, "Collapse All")->trigger();
    QCOMPARE(closed, (QStringList{"mag", "cVal", "phsA", "A", "MMXU1"}));
}

void tst_BrowserWindow::locateFindsTheMembersAttribute()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    QTreeView *tree = BrowserFixture::tree(*view);
    BrowserFixture::select(
        *view, {"BAYCTRL", "LLN0", "DataSet", "Positions", "BAYCTRL/XCBR1$ST$Pos$stVal"});
    BrowserFixture::action(*view, "Locate")->trigger();
    const QModelIndex found = BrowserFixture::find(*view, {"BAYCTRL", "XCBR1", "Pos", "stVal"});
    QCOMPARE(tree->currentIndex(), found);
    QCOMPARE(tree->selectionModel()->selectedRows(), QModelIndexList{found});
    QVERIFY(tree->isExpanded(found.parent()));
}

void tst_BrowserWindow::locateOfAnUnknownMemberKeepsTheSelection()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    const QModelIndex member = BrowserFixture::select(
        *view, {"BAYCTRL", "LLN0", "DataSet", "Positions", "BAYCTRL/NOWHERE$ST$Pos"});
    view->locate();
    QCOMPARE(BrowserFixture::tree(*view)->currentIndex(), member);
}

void tst_BrowserWindow::slotsDoNothingWithoutACurrentNode()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    QTreeView *tree = BrowserFixture::tree(*view);
    tree->setCurrentIndex({});
    const QMetaObject &meta = IEDModelView::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.parameterCount() == 0 && method.name() != "init")
            QVERIFY(method.invoke(view.get()));
    }
    view->checkDoubleclick({});
    view->writeValue({}, 1);
    QCOMPARE(fixture.service->operations(), QStringList{"getIEDModel"});
}

void tst_BrowserWindow::expandingResizesTheNameColumn()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    QTreeView *tree = BrowserFixture::tree(*view);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    tree->setColumnWidth(0, 20);
    tree->expand(BrowserFixture::find(*view, {"BAYCTRL", "XCBR1"}));
    QVERIFY(tree->columnWidth(0) > 60);
}

QTEST_MAIN(tst_BrowserWindow)
#include "tst_browserwindow.moc"
