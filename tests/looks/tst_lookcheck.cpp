// SPDX-License-Identifier: Apache-2.0
#include "lookcheck.h"

#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTreeWidget>

namespace {

const QString longText = QStringLiteral("Konfigurationsrevision des Meldungssteuerblocks");

/// A window in a layout, without a flaw.
class SampleWindow : public QWidget
{
public:
    SampleWindow()
    {
        auto *layout = new QFormLayout(this);
        layout->addRow(longText, edit = new QLineEdit(longText));
        layout->addRow(button = new QPushButton(longText));
        layout->addRow(box = new QCheckBox(longText));
        layout->addRow(label = new QLabel(longText));
        layout->addRow(list = new QComboBox);
        layout->addRow(spin = new QSpinBox);
        layout->addRow(group = new QGroupBox(longText));
        layout->addRow(tree = new QTreeWidget);
        list->addItem(longText);
        spin->setMaximum(1'000'000'000);
        spin->setValue(1'000'000'000);
        group->setMinimumHeight(60);
        tree->setHeaderLabels({longText, longText});
        tree->header()->setStretchLastSection(false);
        tree->header()->resizeSections(QHeaderView::ResizeToContents);
        show();
        adjustSize();
        QCoreApplication::processEvents();
    }

    QLineEdit *edit;
    QPushButton *button;
    QCheckBox *box;
    QLabel *label;
    QComboBox *list;
    QSpinBox *spin;
    QGroupBox *group;
    QTreeWidget *tree;
};

} // namespace

class tst_LookCheck : public QObject
{
    Q_OBJECT

private slots:
    void aWindowLaidOutToItsTextsHasNoFlaw();
    void aTextThatDoesNotFitIsFound_data();
    void aTextThatDoesNotFitIsFound();
    void anEditorTooLowForItsFontIsFound();
    void aHeaderSectionTooNarrowIsFound();
    void aLabelMayCutWhatItsToolTipShowsWhole();
    void aWidgetBeyondItsParentIsFound();
    void widgetsThatCoverOneAnotherAreFound();
    void aDockBehindATabIsNotLookedAt();
    void whatIsHiddenIsNotLookedAt();
};

void tst_LookCheck::aWindowLaidOutToItsTextsHasNoFlaw()
{
    const SampleWindow window;
    const QStringList flaws = flawsOf(window);
    QVERIFY2(flaws.isEmpty(), qPrintable(flaws.join(QLatin1Char('\n'))));
}

void tst_LookCheck::aTextThatDoesNotFitIsFound_data()
{
    QTest::addColumn<QString>("type");
    for (const char *type :
         {"QPushButton", "QCheckBox", "QLabel", "QComboBox", "QSpinBox", "QGroupBox"})
        QTest::newRow(type) << QString(type);
}

void tst_LookCheck::aTextThatDoesNotFitIsFound()
{
    QFETCH(QString, type);
    const SampleWindow window;
    for (QWidget *widget : std::initializer_list<QWidget *>{
             window.button, window.box, window.label, window.list, window.spin, window.group}) {
        if (QString(widget->metaObject()->className()) != type)
            continue;
        widget->resize(60, widget->height());
        const QStringList flaws = flawsOf(window);
        QCOMPARE(flaws.size(), 1);
        QVERIFY2(flaws.first().startsWith(type + " \"\" has room for "), qPrintable(flaws.first()));
        return;
    }
    QFAIL("no such widget");
}

void tst_LookCheck::anEditorTooLowForItsFontIsFound()
{
    const SampleWindow window;
    window.edit->resize(window.edit->width(), 8);
    QCOMPARE(flawsOf(window).size(), 1);
    QVERIFY(flawsOf(window).first().startsWith("QLineEdit \"\" has room for "));
}

void tst_LookCheck::aHeaderSectionTooNarrowIsFound()
{
    const SampleWindow window;
    window.tree->header()->resizeSection(1, 40);
    QCOMPARE(flawsOf(window).size(), 1);
    QVERIFY(flawsOf(window).first().startsWith("QHeaderView \"\" has room for "));
}

void tst_LookCheck::aLabelMayCutWhatItsToolTipShowsWhole()
{
    const SampleWindow window;
    window.label->resize(40, window.label->height());
    QCOMPARE(flawsOf(window).size(), 1);
    window.label->setToolTip(longText);
    QCOMPARE(flawsOf(window), QStringList());
}

void tst_LookCheck::aWidgetBeyondItsParentIsFound()
{
    const SampleWindow window;
    window.tree->move(window.width() - 20, window.tree->y());
    QCOMPARE(flawsOf(window), QStringList({"QTreeWidget \"\" reaches beyond QWidget \"\"."}));
}

void tst_LookCheck::widgetsThatCoverOneAnotherAreFound()
{
    const SampleWindow window;
    window.button->move(window.box->pos());
    QCOMPARE(flawsOf(window), QStringList({"QPushButton \"\" covers QCheckBox \"\"."}));
}

void tst_LookCheck::aDockBehindATabIsNotLookedAt()
{
    QMainWindow window;
    window.setCentralWidget(new QLabel(QStringLiteral("centre")));
    QList<QDockWidget *> docks;
    for (const char *name : {"front", "behind"}) {
        auto *dock = new QDockWidget(QString::fromLatin1(name), &window);
        dock->setObjectName(QString::fromLatin1(name));
        auto *button = new QPushButton(longText);
        button->setFixedWidth(10);
        dock->setWidget(button);
        window.addDockWidget(Qt::BottomDockWidgetArea, dock);
        docks << dock;
    }
    window.tabifyDockWidget(docks[0], docks[1]);
    docks[0]->raise();
    window.resize(600, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(docks[1]->visibleRegion().isEmpty());
    const QStringList flaws = flawsOf(window);
    QCOMPARE(flaws.size(), 1);
    QVERIFY2(flaws[0].startsWith(QStringLiteral("QPushButton")), qPrintable(flaws[0]));
}

void tst_LookCheck::whatIsHiddenIsNotLookedAt()
{
    const SampleWindow window;
    window.button->resize(10, 10);
    window.button->hide();
    QCOMPARE(flawsOf(window), QStringList());
}

QTEST_MAIN(tst_LookCheck)
#include "tst_lookcheck.moc"
