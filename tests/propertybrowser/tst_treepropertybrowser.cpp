// SPDX-License-Identifier: Apache-2.0
#include <propertybrowser/qttreepropertybrowser.h>
#include <propertybrowser/qtvarianteditorfactory.h>
#include <propertybrowser/qtvariantproperty.h>
#include <propertybrowser/qtvariantpropertymanager.h>

#include <QtGui/QAccessible>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeWidget>

#include <memory>

namespace {

QTreeWidget *treeOf(const QtTreePropertyBrowser &browser)
{
    return browser.findChild<QTreeWidget *>(QStringLiteral("tree"));
}

bool isEditable(const QTreeWidgetItem *item)
{
    return item->flags() & Qt::ItemIsEditable;
}

} // namespace

class tst_TreePropertyBrowser : public QObject
{
    Q_OBJECT

private slots:
    void theAppearanceFollowsItsSwitches();
    void theResizeModesHaveTheUsualNumbers();
    void columnsAreAsWideAsTheirContentsWhenToldSo();
    void propertiesStandInTheOrderOfAdding();
    void addingNothingOrTwiceChangesNothing();
    void takingAPropertyOutLeavesItAlive();
    void clearingLeavesThePropertiesAlive();
    void aDeletedPropertyLeavesTheBrowser();
    void aDeletedManagerEmptiesTheBrowser();
    void aDeletedBrowserLeavesThePropertiesAlone();
    void aChangedValueIsShown();
    void aChangedNameIsShown();
    void subPropertiesStandBelowTheirGroup();
    void subPropertiesAddedAndTakenOutLaterAreFollowed();
    void aDeletedGroupTakesItsRowsAlong();
    void groupsAreMarkedWhenToldSo();
    void groupsTakeBothColumns();
    void manyPropertiesAreLaidOutOnce_data();
    void manyPropertiesAreLaidOutOnce();
    void propertiesAreReadOnlyWithoutAFactory();
    void propertiesAreReadOnlyOnceTheirFactoryIsGone();
    void aDisabledPropertyIsReadOnly();
    void everyRowIsNamedForAssistiveTechnology();
    void textOfADeviceIsNeverTakenForMarkUp();
};

void tst_TreePropertyBrowser::theAppearanceFollowsItsSwitches()
{
    QtTreePropertyBrowser browser;
    QTreeWidget *tree = treeOf(browser);
    QVERIFY(browser.isHeaderVisible());
    QVERIFY(browser.alternatingRowColors());
    QVERIFY(browser.rootIsDecorated());
    QVERIFY(!browser.propertiesWithoutValueMarked());
    QCOMPARE(tree->headerItem()->text(0), QStringLiteral("Property"));
    QCOMPARE(tree->headerItem()->text(1), QStringLiteral("Value"));

    browser.setHeaderVisible(false);
    QVERIFY(!browser.isHeaderVisible());
    QVERIFY(tree->isHeaderHidden());
    browser.setAlternatingRowColors(false);
    QVERIFY(!browser.alternatingRowColors());
    QVERIFY(!tree->alternatingRowColors());
    browser.setRootIsDecorated(false);
    QVERIFY(!browser.rootIsDecorated());
    QVERIFY(!tree->rootIsDecorated());
    browser.setPropertiesWithoutValueMarked(true);
    QVERIFY(browser.propertiesWithoutValueMarked());
}

void tst_TreePropertyBrowser::theResizeModesHaveTheUsualNumbers()
{
    QtTreePropertyBrowser browser;
    const QHeaderView *header = treeOf(browser)->header();
    QCOMPARE(browser.resizeMode(), QtTreePropertyBrowser::Stretch);
    const QList<QPair<int, QHeaderView::ResizeMode>> modes{
        {0, QHeaderView::Interactive},
        {1, QHeaderView::Stretch},
        {2, QHeaderView::Fixed},
        {3, QHeaderView::ResizeToContents},
    };
    for (const auto &mode : modes) {
        browser.setResizeMode(static_cast<QtTreePropertyBrowser::ResizeMode>(mode.first));
        QCOMPARE(int(browser.resizeMode()), mode.first);
        QCOMPARE(header->sectionResizeMode(0), mode.second);
    }
}

void tst_TreePropertyBrowser::columnsAreAsWideAsTheirContentsWhenToldSo()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    browser.setResizeMode(QtTreePropertyBrowser::ResizeToContents);
    const QString name = QStringLiteral("PTOC1$SG$StrVal$setMag$f of the second stage");
    browser.addProperty(manager.addProperty(QMetaType::Int, name));
    browser.resize(600, 200);
    browser.show();
    QVERIFY(QTest::qWaitForWindowExposed(&browser));
    const QTreeWidget *tree = treeOf(browser);
    QVERIFY(tree->columnWidth(0) >= tree->fontMetrics().horizontalAdvance(name));
}

void tst_TreePropertyBrowser::propertiesStandInTheOrderOfAdding()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    QList<QtProperty *> added;
    for (const char *name : {"zeta", "alpha", "mid"}) {
        added << manager.addProperty(QMetaType::Int, QLatin1String(name));
        browser.addProperty(added.last());
    }
    QCOMPARE(browser.properties(), added);
    QCOMPARE(treeOf(browser)->topLevelItem(0)->text(0), QStringLiteral("zeta"));
    QCOMPARE(treeOf(browser)->topLevelItem(0)->text(1), QStringLiteral("0"));
    QCOMPARE(treeOf(browser)->topLevelItem(2)->text(0), QStringLiteral("mid"));
}

void tst_TreePropertyBrowser::addingNothingOrTwiceChangesNothing()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    QtProperty *property = manager.addProperty(QMetaType::Int);
    browser.addProperty(property);
    browser.addProperty(property);
    browser.addProperty(nullptr);
    QCOMPARE(browser.properties(), QList<QtProperty *>{property});
}

void tst_TreePropertyBrowser::takingAPropertyOutLeavesItAlive()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    QtProperty *first = manager.addProperty(QMetaType::Int);
    QtProperty *second = manager.addProperty(QMetaType::Int);
    browser.addProperty(first);
    browser.addProperty(second);

    browser.removeProperty(first);
    QCOMPARE(browser.properties(), QList<QtProperty *>{second});
    QCOMPARE(manager.properties().size(), 2);
    browser.removeProperty(first);
    browser.addProperty(first);
    QCOMPARE(browser.properties(), (QList<QtProperty *>{second, first}));
}

void tst_TreePropertyBrowser::clearingLeavesThePropertiesAlive()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    QtVariantProperty *property = manager.addProperty(QMetaType::Int);
    browser.addProperty(property);
    browser.clear();
    QVERIFY(browser.properties().isEmpty());
    property->setValue(3);
    QCOMPARE(manager.value(property), QVariant(3));
    browser.addProperty(property);
    QCOMPARE(treeOf(browser)->topLevelItem(0)->text(1), QStringLiteral("3"));
}

void tst_TreePropertyBrowser::aDeletedPropertyLeavesTheBrowser()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    QtProperty *first = manager.addProperty(QMetaType::Int);
    QtProperty *second = manager.addProperty(QMetaType::Int);
    browser.addProperty(first);
    browser.addProperty(second);
    delete first;
    QCOMPARE(browser.properties(), QList<QtProperty *>{second});
}

void tst_TreePropertyBrowser::aDeletedManagerEmptiesTheBrowser()
{
    QtTreePropertyBrowser browser;
    QtVariantEditorFactory factory;
    auto manager = std::make_unique<QtVariantPropertyManager>();
    browser.setFactoryForManager(manager.get(), &factory);
    browser.addProperty(manager->addProperty(QMetaType::Int));
    manager.reset();
    QVERIFY(browser.properties().isEmpty());
    QCOMPARE(treeOf(browser)->topLevelItemCount(), 0);
}

void tst_TreePropertyBrowser::aDeletedBrowserLeavesThePropertiesAlone()
{
    QtVariantPropertyManager manager;
    QtVariantEditorFactory factory;
    auto browser = std::make_unique<QtTreePropertyBrowser>();
    browser->setFactoryForManager(&manager, &factory);
    QtVariantProperty *property = manager.addProperty(QMetaType::Int);
    browser->addProperty(property);
    browser.reset();
    property->setValue(4);
    QCOMPARE(property->value(), QVariant(4));
}

void tst_TreePropertyBrowser::aChangedValueIsShown()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    QtVariantProperty *property = manager.addProperty(QMetaType::Double);
    browser.addProperty(property);
    property->setValue(0.30000000000000004);
    QCOMPARE(treeOf(browser)->topLevelItem(0)->text(1), QStringLiteral("0.30000000000000004"));
    QCOMPARE(treeOf(browser)->topLevelItem(0)->toolTip(1), QStringLiteral("0.30000000000000004"));
}

void tst_TreePropertyBrowser::aChangedNameIsShown()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    QtProperty *property = manager.addProperty(QMetaType::Int, QStringLiteral("before"));
    browser.addProperty(property);
    property->setPropertyName(QStringLiteral("after"));
    QCOMPARE(treeOf(browser)->topLevelItem(0)->text(0), QStringLiteral("after"));
}

void tst_TreePropertyBrowser::subPropertiesStandBelowTheirGroup()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    QtProperty *group = manager.addProperty(QtVariantPropertyManager::groupTypeId());
    QtProperty *value = manager.addProperty(QMetaType::Int, QStringLiteral("inner"));
    group->addSubProperty(value);
    browser.addProperty(group);

    QCOMPARE(browser.properties(), QList<QtProperty *>{group});
    const QTreeWidgetItem *item = treeOf(browser)->topLevelItem(0);
    QCOMPARE(item->childCount(), 1);
    QCOMPARE(item->child(0)->text(0), QStringLiteral("inner"));
    QVERIFY(item->isExpanded());
    browser.removeProperty(value);
    QCOMPARE(item->childCount(), 1);
}

void tst_TreePropertyBrowser::subPropertiesAddedAndTakenOutLaterAreFollowed()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    QtProperty *group = manager.addProperty(QtVariantPropertyManager::groupTypeId());
    QtVariantProperty *value = manager.addProperty(QMetaType::Int);
    browser.addProperty(group);
    const QTreeWidgetItem *item = treeOf(browser)->topLevelItem(0);

    group->addSubProperty(value);
    QCOMPARE(item->childCount(), 1);
    value->setValue(8);
    QCOMPARE(item->child(0)->text(1), QStringLiteral("8"));
    group->removeSubProperty(value);
    QCOMPARE(item->childCount(), 0);
    browser.addProperty(value);
    QCOMPARE(browser.properties(), (QList<QtProperty *>{group, value}));
}

void tst_TreePropertyBrowser::aDeletedGroupTakesItsRowsAlong()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    QtProperty *group = manager.addProperty(QtVariantPropertyManager::groupTypeId());
    QtVariantProperty *value = manager.addProperty(QMetaType::Int);
    group->addSubProperty(value);
    browser.addProperty(group);
    delete group;
    QVERIFY(browser.properties().isEmpty());
    value->setValue(1);
    browser.addProperty(value);
    QCOMPARE(browser.properties(), QList<QtProperty *>{value});
}

void tst_TreePropertyBrowser::groupsAreMarkedWhenToldSo()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    browser.addProperty(manager.addProperty(QtVariantPropertyManager::groupTypeId()));
    browser.addProperty(manager.addProperty(QMetaType::Int));
    const QTreeWidgetItem *group = treeOf(browser)->topLevelItem(0);
    const QTreeWidgetItem *value = treeOf(browser)->topLevelItem(1);
    QVERIFY(!group->font(0).bold());

    browser.setPropertiesWithoutValueMarked(true);
    QVERIFY(group->font(0).bold());
    QVERIFY(group->background(0).style() != Qt::NoBrush);
    QVERIFY(!value->font(0).bold());
    QCOMPARE(value->background(0).style(), Qt::NoBrush);

    browser.setPropertiesWithoutValueMarked(false);
    QVERIFY(!group->font(0).bold());
}

void tst_TreePropertyBrowser::groupsTakeBothColumns()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    browser.addProperty(manager.addProperty(QMetaType::Int, "plain"));
    QtProperty *group = manager.addProperty(QtVariantPropertyManager::groupTypeId(), "group");
    browser.addProperty(group);
    QtProperty *deleted = manager.addProperty(QtVariantPropertyManager::groupTypeId(), "deleted");
    browser.addProperty(deleted);
    delete deleted;
    QTRY_VERIFY(treeOf(browser)->topLevelItem(1)->isFirstColumnSpanned());
    QVERIFY(!treeOf(browser)->topLevelItem(0)->isFirstColumnSpanned());
    browser.removeProperty(group);
    browser.addProperty(group);
    QTRY_VERIFY(treeOf(browser)->topLevelItem(1)->isFirstColumnSpanned());
}

void tst_TreePropertyBrowser::manyPropertiesAreLaidOutOnce_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("values") << int(QMetaType::Int);
    QTest::newRow("groups") << QtVariantPropertyManager::groupTypeId();
}

void tst_TreePropertyBrowser::manyPropertiesAreLaidOutOnce()
{
    QFETCH(int, type);
    QtVariantPropertyManager manager;
    QtVariantEditorFactory factory;
    QtTreePropertyBrowser browser;
    browser.setFactoryForManager(&manager, &factory);
    browser.resize(300, 200);
    browser.show();
    QVERIFY(QTest::qWaitForWindowExposed(&browser));

    // The range of the scroll bar follows each layout.
    QSignalSpy layouts(treeOf(browser)->verticalScrollBar(), &QScrollBar::rangeChanged);
    for (int row = 0; row < 200; ++row)
        browser.addProperty(manager.addProperty(type, QString::number(row)));
    QTRY_VERIFY(treeOf(browser)->verticalScrollBar()->maximum() > 150);
    QCoreApplication::processEvents();
    QVERIFY2(layouts.size() <= 2, qPrintable(QString::number(layouts.size())));
}

void tst_TreePropertyBrowser::propertiesAreReadOnlyWithoutAFactory()
{
    QtVariantPropertyManager manager;
    QtVariantEditorFactory factory;
    QtTreePropertyBrowser browser;
    browser.addProperty(manager.addProperty(QMetaType::Int));
    const QTreeWidgetItem *item = treeOf(browser)->topLevelItem(0);
    QVERIFY(!isEditable(item));
    browser.setFactoryForManager(&manager, &factory);
    QVERIFY(isEditable(item));
    browser.unsetFactoryForManager(&manager);
    QVERIFY(!isEditable(item));
}

void tst_TreePropertyBrowser::propertiesAreReadOnlyOnceTheirFactoryIsGone()
{
    QtVariantPropertyManager manager;
    auto factory = std::make_unique<QtVariantEditorFactory>();
    QtTreePropertyBrowser browser;
    browser.setFactoryForManager(&manager, factory.get());
    browser.addProperty(manager.addProperty(QMetaType::Int));
    QVERIFY(isEditable(treeOf(browser)->topLevelItem(0)));
    factory.reset();
    QVERIFY(!isEditable(treeOf(browser)->topLevelItem(0)));
}

void tst_TreePropertyBrowser::aDisabledPropertyIsReadOnly()
{
    QtVariantPropertyManager manager;
    QtVariantEditorFactory factory;
    QtTreePropertyBrowser browser;
    browser.setFactoryForManager(&manager, &factory);
    QtProperty *property = manager.addProperty(QMetaType::Int);
    browser.addProperty(property);
    property->setEnabled(false);
    QCOMPARE(treeOf(browser)->topLevelItem(0)->flags(), Qt::ItemFlags(Qt::ItemIsSelectable));
    property->setEnabled(true);
    QVERIFY(isEditable(treeOf(browser)->topLevelItem(0)));
}

void tst_TreePropertyBrowser::everyRowIsNamedForAssistiveTechnology()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    browser.addProperty(manager.addProperty(QMetaType::Int, QStringLiteral("StrVal")));
    QTreeWidget *tree = treeOf(browser);
    QVERIFY(!tree->accessibleName().isEmpty());
    const QModelIndex value = tree->model()->index(0, 1);
    QCOMPARE(value.data(Qt::AccessibleTextRole).toString(), QStringLiteral("StrVal: 0"));
}

void tst_TreePropertyBrowser::textOfADeviceIsNeverTakenForMarkUp()
{
    QtVariantPropertyManager manager;
    QtTreePropertyBrowser browser;
    QtVariantProperty *property =
        manager.addProperty(QMetaType::QString, QStringLiteral("<b>name</b>"));
    property->setValue(QStringLiteral("<img src='x'>"));
    browser.addProperty(property);
    const QTreeWidgetItem *item = treeOf(browser)->topLevelItem(0);
    QCOMPARE(item->text(0), QStringLiteral("<b>name</b>"));
    QCOMPARE(item->toolTip(0), QStringLiteral("<qt>&lt;b&gt;name&lt;/b&gt;"));
    QVERIFY(!item->toolTip(1).contains(QLatin1String("<img")));
}

QTEST_MAIN(tst_TreePropertyBrowser)
#include "tst_treepropertybrowser.moc"
