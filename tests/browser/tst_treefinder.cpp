// SPDX-License-Identifier: Apache-2.0
#include "browserfixture.h"

#include "browser/nodereferences.h"
#include "model/iedmodel.h"

#include <tavrix/tavrix.h>

#include <QtGui/QClipboard>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

class tst_TreeFinder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyNodeHasAReferenceForTheOperator_data();
    void everyNodeHasAReferenceForTheOperator();
    void copyTakesTheReferenceOfTheCurrentNode();
    void findOpensALineAndEscapeClosesIt();
    void typingGoesToTheFirstMatch();
    void enterGoesOnAndComesRound();
    void shiftEnterGoesBack();
    void referencesAreFoundToo();
    void dottedReferencesAreFound_data();
    void dottedReferencesAreFound();
    void theMatchesAreCounted();
    void aChangedTreeIsSearchedAnew();
    void missingTextIsSaid();
    void findingSendsNothing();
    void enterInTheTreeDoesNotCloseTheWindow();

private:
    QTreeView *tree() const { return BrowserFixture::tree(*m_view); }
    QLineEdit *line() const
    {
        for (QLineEdit *found : m_view->findChildren<QLineEdit *>()) {
            if (found->placeholderText() == "Find by name or reference")
                return found;
        }
        return nullptr;
    }
    /// Whether a label of the window shows a text.
    bool says(const QString &text) const
    {
        for (const QLabel *label : m_view->findChildren<QLabel *>()) {
            if (label->isVisible() && label->text() == text)
                return true;
        }
        return false;
    }
    QString currentName() const { return tree()->currentIndex().data().toString(); }

    std::unique_ptr<BrowserFixture> m_fixture;
    std::unique_ptr<IEDModelView> m_view;
};

void tst_TreeFinder::init()
{
    m_fixture = std::make_unique<BrowserFixture>();
    m_view = m_fixture->open();
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_fixture->service->forgetCalls();
}

void tst_TreeFinder::cleanup()
{
    // An event ends the listener's wait, so that the window need not sit it out.
    Tavrix::PostEvent("MMS_DATACHANGE:", "MMS_VALUE", {});
    m_view.reset();
    m_fixture.reset();
}

void tst_TreeFinder::everyNodeHasAReferenceForTheOperator_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("reference");
    const QString ld = "BAYCTRL";
    QTest::newRow("device") << QStringList{} << "BAY";
    QTest::newRow("logical device") << QStringList{ld} << "BAYCTRL";
    QTest::newRow("logical node") << QStringList{ld, "XCBR1"} << "BAYCTRL/XCBR1";
    QTest::newRow("data object") << QStringList{ld, "XCBR1", "Pos"} << "BAYCTRL/XCBR1.Pos";
    QTest::newRow("sub data object")
        << QStringList{ld, "MMXU1", "A", "phsA"} << "BAYCTRL/MMXU1.A.phsA";
    QTest::newRow("attribute") << QStringList{ld, "XCBR1", "Pos", "q"} << "BAYCTRL/XCBR1$ST$Pos$q";
    QTest::newRow("setting group") << QStringList{ld, "LLN0", "SGCB"} << "BAYCTRL/LLN0$SGCB";
    QTest::newRow("data set") << QStringList{ld, "LLN0", "DataSet", "Positions"}
                              << "BAYCTRL/LLN0$Positions";
    QTest::newRow("data set of the device") << QStringList{"Temporary"} << "Temporary";
    QTest::newRow("member") << QStringList{"Temporary", "BAYCTRL/GGIO1$ST$Ind1$stVal"}
                            << "BAYCTRL/GGIO1$ST$Ind1$stVal";
    QTest::newRow("report control")
        << QStringList{ld, "LLN0", "ReportControl", "urcb01"} << "BAYCTRL/LLN0$RP$urcb01";
}

void tst_TreeFinder::everyNodeHasAReferenceForTheOperator()
{
    QFETCH(QStringList, names);
    QFETCH(QString, reference);
    const QModelIndex index = BrowserFixture::find(*m_view, names);
    QCOMPARE(fullReference(static_cast<const IEDNode *>(index.internalPointer())), reference);
}

void tst_TreeFinder::copyTakesTheReferenceOfTheCurrentNode()
{
    BrowserFixture::select(*m_view, {"BAYCTRL", "XCBR1", "Pos", "q"}, 2);
    QTest::keySequence(tree(), QKeySequence::Copy);
    QCOMPARE(QApplication::clipboard()->text(), QString("BAYCTRL/XCBR1$ST$Pos$q"));
}

void tst_TreeFinder::findOpensALineAndEscapeClosesIt()
{
    QVERIFY(!line()->isVisible());
    QTest::keySequence(tree(), QKeySequence::Find);
    QVERIFY(line()->isVisible());
    QVERIFY(line()->hasFocus());
    QTest::keyClick(line(), Qt::Key_Escape);
    QVERIFY(!line()->isVisible());
    QVERIFY(tree()->hasFocus());
    QVERIFY(m_view->isVisible());
}

void tst_TreeFinder::typingGoesToTheFirstMatch()
{
    QTest::keySequence(tree(), QKeySequence::Find);
    QTest::keyClicks(line(), "ctlm");
    QCOMPARE(currentName(), QString("ctlModel"));
    QVERIFY(!tree()->visualRect(tree()->currentIndex()).isEmpty());
}

void tst_TreeFinder::enterGoesOnAndComesRound()
{
    QTest::keySequence(tree(), QKeySequence::Find);
    QTest::keyClicks(line(), "stVal");
    const QModelIndex first = tree()->currentIndex();
    QSet<QModelIndex> visited;
    do {
        visited.insert(tree()->currentIndex());
        QTest::keyClick(line(), Qt::Key_Return);
    } while (tree()->currentIndex() != first && visited.size() < 20);
    // Two attributes and the data set members that name them.
    QCOMPARE(visited.size(), 4);
    QVERIFY(m_view->isVisible());
}

void tst_TreeFinder::shiftEnterGoesBack()
{
    QTest::keySequence(tree(), QKeySequence::Find);
    QTest::keyClicks(line(), "urcb");
    const QModelIndex first = tree()->currentIndex();
    QTest::keyClicks(line(), "01");
    QTest::keyClick(line(), Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(tree()->currentIndex(), first);
    line()->clear();
    QTest::keyClicks(line(), "01");
    QTest::keyClick(line(), Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(currentName(), QString("brcb01"));
}

void tst_TreeFinder::referencesAreFoundToo()
{
    QTest::keySequence(tree(), QKeySequence::Find);
    QTest::keyClicks(line(), "mmxu1$mx$a$phsa$cval$mag$f");
    QCOMPARE(currentName(), QString("BAYCTRL/MMXU1$MX$A$phsA$cVal$mag$f"));
    QTest::keyClick(line(), Qt::Key_Return);
    QCOMPARE(currentName(), QString("f"));
}

void tst_TreeFinder::dottedReferencesAreFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");
    const QString ld = "BAYCTRL";
    QTest::newRow("attribute") << "XCBR1.Pos.stVal" << QStringList{ld, "XCBR1", "Pos", "stVal"};
    QTest::newRow("whole") << "BAYCTRL/XCBR1.Pos.stVal" << QStringList{ld, "XCBR1", "Pos", "stVal"};
    QTest::newRow("structure") << "mmxu1.a.phsa.cval.mag.f"
                               << QStringList{ld, "MMXU1", "A", "phsA", "cVal", "mag", "f"};
    QTest::newRow("data object") << "BAYCTRL/XCBR1.Pos" << QStringList{ld, "XCBR1", "Pos"};
    QTest::newRow("logical node") << "BAYCTRL/MMXU1" << QStringList{ld, "MMXU1"};
}

void tst_TreeFinder::dottedReferencesAreFound()
{
    QFETCH(QString, text);
    QFETCH(QStringList, names);
    BrowserFixture::select(*m_view, {});
    QTest::keySequence(tree(), QKeySequence::Find);
    line()->setText(text);
    QTest::keyClick(line(), Qt::Key_Return);
    const QModelIndex found = BrowserFixture::find(*m_view, names);
    for (int tries = 0; tree()->currentIndex() != found && tries < 5; ++tries)
        QTest::keyClick(line(), Qt::Key_Return);
    QCOMPARE(tree()->currentIndex(), found);
}

void tst_TreeFinder::theMatchesAreCounted()
{
    QTest::keySequence(tree(), QKeySequence::Find);
    QTest::keyClicks(line(), "XCBR1.Pos.stVal");
    QVERIFY(says("1 of 1"));
    QTest::keyClick(line(), Qt::Key_Return);
    QVERIFY(says("1 of 1"));
    line()->clear();
    QTest::keyClicks(line(), "stVal");
    QVERIFY(says("4 of 4") || says("1 of 4") || says("2 of 4") || says("3 of 4"));
    BrowserFixture::select(*m_view, {});
    QTest::keyClick(line(), Qt::Key_Return);
    for (const char *said : {"1 of 4", "2 of 4", "3 of 4", "4 of 4"}) {
        QVERIFY2(says(said), said);
        QTest::keyClick(line(), Qt::Key_Return);
    }
    QVERIFY(says("1 of 4"));
    QTest::keyClick(line(), Qt::Key_Return, Qt::ShiftModifier);
    QVERIFY(says("4 of 4"));
}

void tst_TreeFinder::aChangedTreeIsSearchedAnew()
{
    QTest::keySequence(tree(), QKeySequence::Find);
    QTest::keyClicks(line(), "Positions");
    QVERIFY(says("1 of 1"));
    auto *model = qobject_cast<IEDModel *>(tree()->model());
    QVERIFY(model->removeDataSet(IEDModel::nodeAt(
        BrowserFixture::find(*m_view, {"BAYCTRL", "LLN0", "DataSet", "Positions"}))));
    QVERIFY(!says("1 of 1"));
    QTest::keyClick(line(), Qt::Key_Return);
    QVERIFY(says("Not found"));
}

void tst_TreeFinder::missingTextIsSaid()
{
    const QModelIndex before = BrowserFixture::select(*m_view, {"BAYCTRL", "GGIO1"});
    QTest::keySequence(tree(), QKeySequence::Find);
    const auto isSaid = [this] { return says("Not found"); };
    QTest::keyClicks(line(), "zz");
    QVERIFY(isSaid());
    QCOMPARE(tree()->currentIndex(), before);
    QTest::keyClick(line(), Qt::Key_Backspace);
    QTest::keyClick(line(), Qt::Key_Backspace);
    QVERIFY(!isSaid());
}

void tst_TreeFinder::findingSendsNothing()
{
    QTest::keySequence(tree(), QKeySequence::Find);
    QTest::keyClicks(line(), "Pos");
    QTest::keyClick(line(), Qt::Key_Return);
    QTest::keySequence(tree(), QKeySequence::Copy);
    QVERIFY(m_fixture->service->calls().isEmpty());
}

void tst_TreeFinder::enterInTheTreeDoesNotCloseTheWindow()
{
    BrowserFixture::select(*m_view, {"BAYCTRL"});
    QTest::keyClick(tree(), Qt::Key_Return);
    QVERIFY(m_view->isVisible());
}

QTEST_MAIN(tst_TreeFinder)
#include "tst_treefinder.moc"
