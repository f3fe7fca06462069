// SPDX-License-Identifier: Apache-2.0
#include "browserfixture.h"

#include "browser/devicetree.h"
#include "model/iedmodel.h"
#include "support/generateddevice.h"

#include <tavrix/tavrix.h>

#include <QtGui/QPaintEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>

#include <functional>

namespace {

/// Counts how often the view looks for one of the rows.
class WatchedModel : public IEDModel
{
public:
    using IEDModel::IEDModel;

    QModelIndex sibling(int row, int column, const QModelIndex &index) const override
    {
        ++looks;
        return IEDModel::sibling(row, column, index);
    }

    mutable int looks = 0;
};

/// The parts of a widget that were repainted.
class Repainted : public QObject
{
public:
    explicit Repainted(QWidget *widget) { widget->installEventFilter(this); }

    QVector<QRegion> regions;

private:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            regions << static_cast<QPaintEvent *>(event)->region();
        return false;
    }
};

std::unique_ptr<PhysicalDevice> device(int leafAttributes)
{
    GeneratedDevice generated;
    generated.leafAttributes = leafAttributes;
    return generated.make();
}

} // namespace

class tst_DeviceTreeView : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void collapsingAllLaysOutOnce();
    void collapsingAllTellsEveryNodeChildrenFirst();
    void collapsingANodeOutOfSightLeavesTheOthers();
    void onlyChangesInSightAreLookedFor();
    void changesInSightAreRepaintedTogether();
    void aChangeBeforeAResetIsForgotten();
    void f2EditsTheValueOfTheRow();
    void f2OnARowWithoutAnEditableValueOpensNothing();
    void timesAreWhole();
    void aLongerTimeThatArrivesIsWhole();
    void aWidthThatTheOperatorChoseStays();
};

void tst_DeviceTreeView::cleanup()
{
    // An event ends the listeners' wait, so that the windows need not sit it out.
    Tavrix::PostEvent("MMS_DATACHANGE:", "MMS_VALUE", {});
}

void tst_DeviceTreeView::collapsingAllLaysOutOnce()
{
    BrowserFixture fixture(device(2000));
    const auto view = fixture.open();
    QTreeView *tree = BrowserFixture::tree(*view);
    tree->setCurrentIndex(tree->model()->index(0, 0));
    BrowserFixture::action(*view, "Expand All")->trigger();
    QVERIFY(tree->verticalScrollBar()->maximum() > 1500);

    // The range of the scroll bar follows each layout.
    QSignalSpy layouts(tree->verticalScrollBar(), &QScrollBar::rangeChanged);
    BrowserFixture::action(*view, "Collapse All")->trigger();
    QCOMPARE(layouts.size(), 1);
    QCOMPARE(tree->verticalScrollBar()->maximum(), 0);
    QVERIFY(!tree->isExpanded(tree->model()->index(0, 0)));
    QVERIFY(!tree->indexBelow(tree->model()->index(0, 0)).isValid());
}

void tst_DeviceTreeView::collapsingAllTellsEveryNodeChildrenFirst()
{
    BrowserFixture fixture(device(300));
    const auto view = fixture.open();
    QTreeView *tree = BrowserFixture::tree(*view);
    tree->setCurrentIndex(tree->model()->index(0, 0));
    BrowserFixture::action(*view, "Expand All")->trigger();
    QVector<QModelIndex> open;
    const std::function<void(const QModelIndex &)> collect = [&](const QModelIndex &index) {
        for (int row = 0; row < tree->model()->rowCount(index); ++row)
            collect(tree->model()->index(row, 0, index));
        if (tree->isExpanded(index))
            open << index;
    };
    collect(tree->model()->index(0, 0));
    QVERIFY(open.size() > 50);

    QVector<QModelIndex> told;
    connect(tree, &QTreeView::collapsed, this, [&](const QModelIndex &index) { told << index; });
    BrowserFixture::action(*view, "Collapse All")->trigger();
    QCOMPARE(told, open);
}

void tst_DeviceTreeView::collapsingANodeOutOfSightLeavesTheOthers()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    QTreeView *tree = BrowserFixture::tree(*view);
    const QModelIndex breaker = BrowserFixture::find(*view, {"BAYCTRL", "XCBR1"});
    const QModelIndex measurement = BrowserFixture::select(*view, {"BAYCTRL", "MMXU1"});
    tree->expand(breaker);
    BrowserFixture::action(*view, "Expand All")->trigger();
    BrowserFixture::action(*view, "Collapse All")->trigger();
    QVERIFY(tree->isExpanded(breaker));
    QVERIFY(!tree->isExpanded(measurement));
    QCOMPARE(tree->currentIndex(), measurement);
}

namespace {

/// A tree of some thousand rows, all expanded, without a browser around it.
struct LargeTree
{
    LargeTree()
    {
        model.setDevice(shown.get());
        tree.setUniformRowHeights(true);
        tree.setModel(&model);
        tree.resize(600, 300);
        tree.expandAll();
        tree.makeRoomForTimes(model.index(0, 0), true);
        tree.resizeColumnToContents(0);
        tree.show();
        for (DataAttribute *attribute : leafAttributes(*shown))
            leaves << model.indexOf(model.attributeIndex().value(attribute), 1);
    }
    ~LargeTree() { model.setDevice(nullptr); }

    void change(int leaf)
    {
        MMSValue value;
        value.reference = IEDModel::nodeAt(leaves.at(leaf))->dataAttribute()->reference;
        value.value = 1;
        model.updateValues({value});
    }

    const SclTemplateStore templates;
    std::unique_ptr<PhysicalDevice> shown = device(3000);
    WatchedModel model{&templates};
    DeviceTree tree;
    QVector<QModelIndex> leaves;
};

} // namespace

void tst_DeviceTreeView::onlyChangesInSightAreLookedFor()
{
    LargeTree large;
    QVERIFY(QTest::qWaitForWindowExposed(&large.tree));
    const auto looksFor = [&large](int step) {
        large.model.looks = 0;
        for (int leaf = 0; leaf < large.leaves.size(); leaf += step)
            large.change((leaf * 7) % large.leaves.size());
        const int atOnce = large.model.looks;
        QCoreApplication::sendPostedEvents();
        return qMakePair(atOnce, large.model.looks);
    };
    const auto few = looksFor(100);
    const auto many = looksFor(1);
    QCOMPARE(many.first, 0);
    QVERIFY2(many.second < few.second + 400,
             qPrintable(QStringLiteral("%1, %2").arg(few.second).arg(many.second)));
}

void tst_DeviceTreeView::changesInSightAreRepaintedTogether()
{
    LargeTree large;
    QVERIFY(QTest::qWaitForWindowExposed(&large.tree));
    large.tree.scrollTo(large.leaves.at(1500), QAbstractItemView::PositionAtTop);
    QCoreApplication::processEvents();
    const auto cellOf = [&large](int leaf) { return large.tree.visualRect(large.leaves.at(leaf)); };
    QVERIFY(large.tree.viewport()->rect().contains(cellOf(1504)));

    Repainted repainted(large.tree.viewport());
    large.change(0);
    large.change(2999);
    QCoreApplication::processEvents();
    QVERIFY(repainted.regions.isEmpty());

    large.change(1502);
    large.change(10);
    large.change(1500);
    large.change(1502);
    QTRY_VERIFY(!repainted.regions.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(repainted.regions.size(), 1);
    const QRegion &region = repainted.regions.first();
    QVERIFY(region.contains(cellOf(1500).center()));
    QVERIFY(region.contains(cellOf(1502).center()));
    QVERIFY(!region.contains(cellOf(1504).center()));
    QVERIFY(
        !region.contains(large.tree.visualRect(large.leaves.at(1500).siblingAtColumn(2)).center()));
}

void tst_DeviceTreeView::aChangeBeforeAResetIsForgotten()
{
    BrowserFixture fixture(device(300));
    const auto view = fixture.open();
    auto *model = qobject_cast<IEDModel *>(BrowserFixture::tree(*view)->model());
    view->show();
    MMSValue value;
    value.reference = leafAttributes(*fixture.device).first()->reference;
    value.value = 3;
    view->updateMMSValue({value});
    model->setDevice(nullptr);
    QCoreApplication::processEvents();
    QVERIFY(!IEDModel::nodeAt(model->index(0, 0)));
}

void tst_DeviceTreeView::f2EditsTheValueOfTheRow()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    view->show();
    QTreeView *tree = BrowserFixture::tree(*view);
    const QStringList path = {"BAYCTRL", "MMXU1", "A", "phsA", "cVal", "mag", "f"};
    for (int column : {0, 1, 2}) {
        BrowserFixture::select(*view, path, column);
        QTest::keyClick(tree, Qt::Key_F2);
        auto *line = tree->viewport()->findChild<QLineEdit *>();
        QVERIFY(line);
        QCOMPARE(tree->currentIndex(), BrowserFixture::find(*view, path, 1));
        QCOMPARE(tree->indexAt(line->geometry().center()), tree->currentIndex());
        QTest::keyClick(line, Qt::Key_Escape);
        QTRY_VERIFY(!tree->viewport()->findChild<QLineEdit *>());
    }
    QCOMPARE(fixture.service->operations(), QStringList{"getIEDModel"});
}

void tst_DeviceTreeView::f2OnARowWithoutAnEditableValueOpensNothing()
{
    BrowserFixture fixture;
    const auto view = fixture.open();
    view->show();
    QTreeView *tree = BrowserFixture::tree(*view);
    for (const QStringList &path :
         {QStringList{"BAYCTRL", "XCBR1", "Pos", "stVal"}, QStringList{"BAYCTRL", "XCBR1"}}) {
        const QModelIndex index = BrowserFixture::select(*view, path);
        QTest::keyClick(tree, Qt::Key_F2);
        QCOMPARE(tree->currentIndex(), index);
        QVERIFY(tree->viewport()->findChildren<QWidget *>().isEmpty());
    }
    tree->setCurrentIndex({});
    QTest::keyClick(tree, Qt::Key_F2);
    QVERIFY(tree->viewport()->findChildren<QWidget *>().isEmpty());
}

namespace {

/// A time stamp of a generated device, and the names that lead to it.
QModelIndex firstTime(const IEDModelView &view)
{
    const QAbstractItemModel *model = BrowserFixture::tree(view)->model();
    const QModelIndexList found =
        model->match(model->index(0, 2), Qt::DisplayRole, QStringLiteral("Timestamp"), 1,
                     Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? QModelIndex() : found.first().siblingAtColumn(1);
}

int neededWidth(const QTreeView &tree, const QModelIndex &index)
{
    QStyleOptionViewItem option;
    option.initFrom(&tree);
    option.font = tree.font();
    option.fontMetrics = tree.fontMetrics();
    return tree.itemDelegate()->sizeHint(option, index).width();
}

MMSValue valueOf(const QModelIndex &index, const QString &text)
{
    MMSValue value;
    value.reference = IEDModel::nodeAt(index)->dataAttribute()->reference;
    value.value = text;
    return value;
}

const QString wholeTime = QStringLiteral("2026-11-22T08:44:48.888888Z");

} // namespace

void tst_DeviceTreeView::timesAreWhole()
{
    for (const bool allAtOnce : {false, true}) {
        BrowserFixture fixture(device(300));
        const auto view = fixture.open();
        QTreeView *tree = BrowserFixture::tree(*view);
        tree->setFont(QFont(tree->font().family(), tree->font().pointSize() + 4));
        QCOMPARE(tree->columnWidth(1), 200);
        const QModelIndex time = firstTime(*view);
        QVERIFY(time.isValid());
        if (allAtOnce) {
            tree->setCurrentIndex(tree->model()->index(0, 0));
            BrowserFixture::action(*view, "Expand All")->trigger();
        } else {
            tree->expand(time.parent());
        }
        view->updateMMSValue({valueOf(time, wholeTime)});
        QVERIFY(neededWidth(*tree, time) > 200);
        QVERIFY(tree->columnWidth(1) >= neededWidth(*tree, time));
    }
}

void tst_DeviceTreeView::aLongerTimeThatArrivesIsWhole()
{
    BrowserFixture fixture(device(300));
    const auto view = fixture.open();
    view->resize(1200, 700);
    view->show();
    QTreeView *tree = BrowserFixture::tree(*view);
    const QModelIndex time = firstTime(*view);
    tree->scrollTo(time);
    const int before = tree->columnWidth(1);
    view->updateMMSValue({valueOf(time, wholeTime + " ClockNotSynchronized accuracy 7")});
    QTRY_VERIFY(tree->columnWidth(1) > before);
    QVERIFY(tree->columnWidth(1) >= neededWidth(*tree, time));
}

void tst_DeviceTreeView::aWidthThatTheOperatorChoseStays()
{
    BrowserFixture fixture(device(300));
    const auto view = fixture.open();
    view->show();
    QTreeView *tree = BrowserFixture::tree(*view);
    const QModelIndex time = firstTime(*view);
    tree->scrollTo(time);
    tree->setColumnWidth(1, 60);
    tree->collapse(time.parent());
    tree->expand(time.parent());
    view->updateMMSValue({valueOf(time, wholeTime)});
    QCoreApplication::processEvents();
    QCOMPARE(tree->columnWidth(1), 60);
}

QTEST_MAIN(tst_DeviceTreeView)
#include "tst_devicetreeview.moc"
