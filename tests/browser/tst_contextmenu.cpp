// SPDX-License-Identifier: Apache-2.0
#include "browserfixture.h"

#include "support/modaldriver.h"

#include <QtTest/QTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QMenu>

namespace {

const QStringList everyNode = {"Expand All", "Collapse All"};

/// Texts of the menu's entries, "|" for a separator, greyed ones in brackets.
QStringList entriesOf(const QMenu &menu)
{
    QStringList entries;
    for (const QAction *action : menu.actions()) {
        if (action->isSeparator())
            entries << "|";
        else
            entries << (action->isEnabled() ? action->text() : "(" + action->text() + ")");
    }
    return entries;
}

IEDNode *nodeOf(const QModelIndex &index)
{
    return static_cast<IEDNode *>(index.internalPointer());
}

} // namespace

class tst_ContextMenu : public QObject
{
    Q_OBJECT

private slots:
    void everyKindOfNodeOffersItsServices_data();
    void everyKindOfNodeOffersItsServices();
    void controlModelDecidesWhichControlEntriesAreEnabled_data();
    void controlModelDecidesWhichControlEntriesAreEnabled();
    void onlyControllableClassesGetControlEntries_data();
    void onlyControllableClassesGetControlEntries();
    void missingControlModelCountsAsStatusOnly();
    void controlEntriesComeFromTheCurrentNodeNotTheClickedOne();
    void clickBesideTheItemsOpensAnEmptyMenu();
    void rightClickOpensTheMenuOfTheNodeUnderIt();
};

void tst_ContextMenu::everyKindOfNodeOffersItsServices_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("device") << QStringList{}
                            << QStringList{"|", "GetServer Directory",
                                           "Create Non-Persistent DataSet"};
    QTest::newRow("logical device")
        << QStringList{"BAYCTRL"} << QStringList{"|", "GetLogicalDevice Directory", "Get SGCB"};
    QTest::newRow("logical node") << QStringList{"BAYCTRL", "XCBR1"}
                                  << QStringList{"|", "Read", "|", "GetLogicalNode Directory"};
    QTest::newRow("data object") << QStringList{"BAYCTRL", "GGIO1", "Ind1"}
                                 << QStringList{"|", "Read", "|", "GetData Directory"};
    QTest::newRow("controllable data object")
        << QStringList{"BAYCTRL", "XCBR1", "Pos"}
        << QStringList{"|", "Read",     "|",       "GetData Directory",
                       "|", "(Select)", "Operate", "(Cancel)"};
    QTest::newRow("setting group")
        << QStringList{"BAYCTRL", "LLN0", "SGCB"} << QStringList{"|", "Open Setting Group Control"};
    QTest::newRow("attribute") << QStringList{"BAYCTRL", "XCBR1", "Pos", "stVal"}
                               << QStringList{"|", "Read", "|", "GetData Directory"};
    QTest::newRow("sub data object") << QStringList{"BAYCTRL", "MMXU1", "A", "phsA"}
                                     << QStringList{"|", "Read", "|", "GetData Directory"};
    QTest::newRow("data set group")
        << QStringList{"BAYCTRL", "LLN0", "DataSet"}
        << QStringList{"|", "Create Persistent DataSet", "GetDataSet List"};
    QTest::newRow("data set") << QStringList{"BAYCTRL", "LLN0", "DataSet", "Positions"}
                              << QStringList{"|", "Read", "Delete DataSet", "GetDataSet Directory"};
    QTest::newRow("data set of the device")
        << QStringList{"Temporary"}
        << QStringList{"|", "Read", "Delete DataSet", "GetDataSet Directory"};
    QTest::newRow("member") << QStringList{"BAYCTRL", "LLN0", "DataSet", "Positions",
                                           "BAYCTRL/XCBR1$ST$Pos$stVal"}
                            << QStringList{"|", "Locate"};
    QTest::newRow("report control group") << QStringList{"BAYCTRL", "LLN0", "ReportControl"}
                                          << QStringList{"|", "Get BRCB", "Get URCB"};
    QTest::newRow("report control") << QStringList{"BAYCTRL", "LLN0", "ReportControl", "brcb01"}
                                    << QStringList{"|", "Open Report Control"};
}

void tst_ContextMenu::everyKindOfNodeOffersItsServices()
{
    QFETCH(QStringList, names);
    QFETCH(QStringList, entries);
    BrowserFixture fixture;
    const auto view = fixture.open();
    const QModelIndex index = BrowserFixture::select(*view, names);
    const std::unique_ptr<QMenu> menu(view->createTaskMenu(nodeOf(index)));
    QVERIFY(!menu->parent());
    QCOMPARE(entriesOf(*menu), everyNode + entries);
}

void tst_ContextMenu::controlModelDecidesWhichControlEntriesAreEnabled_data()
{
    QTest::addColumn<int>("ctlModel");
    QTest::addColumn<QStringList>("entries");
    const QStringList none = {"(Select)", "(Operate)", "(Cancel)"};
    const QStringList direct = {"(Select)", "Operate", "(Cancel)"};
    const QStringList all = {"Select", "Operate", "Cancel"};
    QTest::newRow("0") << 0 << none;
    QTest::newRow("1") << 1 << direct;
    QTest::newRow("2") << 2 << all;
    QTest::newRow("3") << 3 << direct;
    QTest::newRow("4") << 4 << all;
    QTest::newRow("5") << 5 << all;
    QTest::newRow("256 counts as 0") << 256 << none;
    QTest::newRow("257 counts as 1") << 257 << direct;
}

void tst_ContextMenu::controlModelDecidesWhichControlEntriesAreEnabled()
{
    QFETCH(int, ctlModel);
    QFETCH(QStringList, entries);
    BrowserFixture fixture;
    fixture.device->findTag("BAYCTRL/XCBR1$CF$Pos$ctlModel")->value = ctlModel;
    const auto view = fixture.open();
    const QModelIndex index = BrowserFixture::select(*view, {"BAYCTRL", "XCBR1", "Pos"});
    const std::unique_ptr<QMenu> menu(view->createTaskMenu(nodeOf(index)));
    QCOMPARE(entriesOf(*menu).mid(6), QStringList{"|"} + entries);
}

void tst_ContextMenu::onlyControllableClassesGetControlEntries_data()
{
    QTest::addColumn<QString>("dataClass");
    QTest::addColumn<bool>("controllable");
    for (const char *name : {"SPC", "DPC", "INC", "BSC", "ISC", "APC"})
        QTest::newRow(name) << QString(name) << true;
    for (const char *name : {"SPS", "ENC", "dpc", ""})
        QTest::newRow(*name ? name : "none") << QString(name) << false;
}

void tst_ContextMenu::onlyControllableClassesGetControlEntries()
{
    QFETCH(QString, dataClass);
    QFETCH(bool, controllable);
    BrowserFixture fixture;
    fixture.device->logicalDevices[0]->logicalNodes[1]->dataObjects[0]->type = dataClass;
    const auto view = fixture.open();
    const QModelIndex index = BrowserFixture::select(*view, {"BAYCTRL", "XCBR1", "Pos"});
    const std::unique_ptr<QMenu> menu(view->createTaskMenu(nodeOf(index)));
    QCOMPARE(entriesOf(*menu).size(), controllable ? 10 : 6);
}

void tst_ContextMenu::missingControlModelCountsAsStatusOnly()
{
    BrowserFixture fixture;
    DataObject *pos = fixture.device->logicalDevices[0]->logicalNodes[1]->dataObjects[0];
    DAO *ctlModel = pos->getDAOByName("ctlModel");
    pos->attributes.removeOne(ctlModel);
    delete ctlModel;
    const auto view = fixture.open();
    const QModelIndex index = BrowserFixture::select(*view, {"BAYCTRL", "XCBR1", "Pos"});
    const std::unique_ptr<QMenu> menu(view->createTaskMenu(nodeOf(index)));
    QCOMPARE(entriesOf(*menu).mid(6), (QStringList{"|", "(Select)", "(Operate)", "(Cancel)"}));
}

void tst_ContextMenu::controlEntriesComeFromTheCurrentNodeNotTheClickedOne()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    const QModelIndex pos = BrowserFixture::find(*view, {"BAYCTRL", "XCBR1", "Pos"});
    BrowserFixture::select(*view, {"BAYCTRL", "GGIO1", "Ind1"});
    std::unique_ptr<QMenu> menu(view->createTaskMenu(nodeOf(pos)));
    QCOMPARE(entriesOf(*menu).size(), 6);

    const QModelIndex indication = BrowserFixture::find(*view, {"BAYCTRL", "GGIO1", "Ind1"});
    BrowserFixture::select(*view, {"BAYCTRL", "XCBR1", "Pos"});
    menu.reset(view->createTaskMenu(nodeOf(indication)));
    QCOMPARE(entriesOf(*menu).size(), 10);
}

void tst_ContextMenu::clickBesideTheItemsOpensAnEmptyMenu()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    QTreeView *tree = BrowserFixture::tree(*view);
    tree->collapseAll();
    const QPoint beside(tree->viewport()->width() / 2, tree->viewport()->height() - 2);
    QVERIFY(!tree->indexAt(beside).isValid());

    ModalDriver driver({[](QWidget *popup) {
        QVERIFY(qobject_cast<QMenu *>(popup));
        QVERIFY(popup->actions().isEmpty());
        popup->close();
    }});
    view->slotContextMenu(beside);
    QVERIFY(driver.finished());
}

void tst_ContextMenu::rightClickOpensTheMenuOfTheNodeUnderIt()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    QTreeView *tree = BrowserFixture::tree(*view);
    const QModelIndex index = BrowserFixture::find(*view, {"BAYCTRL"});
    tree->scrollTo(index);

    QStringList entries;
    ModalDriver driver({[&entries](QWidget *popup) {
        auto *menu = qobject_cast<QMenu *>(popup);
        QVERIFY(menu);
        entries = entriesOf(*menu);
        QTest::keyClick(menu, Qt::Key_Escape);
    }});
    const QPoint spot = tree->visualRect(index).center();
    QTest::mouseClick(tree->viewport(), Qt::RightButton, {}, spot);
    QContextMenuEvent request(QContextMenuEvent::Mouse, spot, tree->viewport()->mapToGlobal(spot));
    QApplication::sendEvent(tree->viewport(), &request);
    QVERIFY(driver.finished());
    QCOMPARE(entries, everyNode + QStringList({"|", "GetLogicalDevice Directory", "Get SGCB"}));
    QCOMPARE(tree->currentIndex(), index);
}

QTEST_MAIN(tst_ContextMenu)
#include "tst_contextmenu.moc"
