// SPDX-License-Identifier: Apache-2.0
#include "testtemplates.h"

#include <QtTest/QtTest>

namespace {

QByteArray document(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<DataTypeTemplate>" + content +
           "</DataTypeTemplate>\n";
}

const QByteArray switching = "<EnumType id=\"Switching\">\n"
                             "  <EnumVal ord=\"2\">closed</EnumVal>\n"
                             "  <EnumVal ord=\"-1\">unknown</EnumVal>\n"
                             "  <EnumVal ord=\"1\">open</EnumVal>\n"
                             "</EnumType>";

QStringList described(const QList<SclTemplateStore::Entry> &entries)
{
    QStringList texts;
    for (const SclTemplateStore::Entry &entry : entries)
        texts << QStringLiteral("%1=%2").arg(QString::number(entry.ordinal), entry.text);
    return texts;
}

} // namespace

class tst_SclTemplateStore : public QObject
{
    Q_OBJECT

private slots:
    void theCompiledInEnumerationsAreKnownAfterConstruction_data();
    void theCompiledInEnumerationsAreKnownAfterConstruction();
    void entriesKeepTheOrderOfTheFile();
    void anUnknownIdHasNoEntries();
    void aListedOrdinalIsShownByTextAndNumber();
    void anUnlistedOrdinalIsNotRepresented();
    void anUnknownIdIsNotRepresented();
    void theFirstEntryOfAnOrdinalIsShown();
    void aPlaceholderInATextSurvives();
    void aLaterEnumerationOfTheSameIdReplacesTheEarlier();
    void anEnumerationWithoutAnIdIsPassedOver();
    void theIdDirIsLikeAnyOther();
    void otherElementsAndCommentsAreNotKept();
    void anOrdinalThatIsNoNumberCountsAsZero();
    void anEnumerationWithoutEntriesExists();
    void anotherDocumentElementLeavesAnEmptyStore();
    void aMissingFileLeavesAnEmptyStore();
    void aMalformedFileLeavesAnEmptyStore_data();
    void aMalformedFileLeavesAnEmptyStore();
};

void tst_SclTemplateStore::theCompiledInEnumerationsAreKnownAfterConstruction_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("ordinal");
    QTest::addColumn<QString>("text");
    QTest::newRow("behaviour") << "Beh" << 5 << "off (5)";
    QTest::newRow("health") << "Health" << 1 << "Ok (1)";
    QTest::newRow("double point") << "Dbpos" << 2 << "on (2)";
    QTest::newRow("step command") << "Tcmd" << 0 << "stop (0)";
    QTest::newRow("control model") << "ctlModel" << 0 << "status-only (0)";
    QTest::newRow("originator") << "orCat" << 3 << "remote-control (3)";
    QTest::newRow("nothing of that ordinal") << "Dbpos" << 4 << "Not Represented";
}

void tst_SclTemplateStore::theCompiledInEnumerationsAreKnownAfterConstruction()
{
    QFETCH(QString, id);
    QFETCH(int, ordinal);
    const SclTemplateStore store;
    QVERIFY(store.hasEnumeration(id));
    QVERIFY(!store.entries(id).isEmpty());
    QTEST(store.displayText(id, ordinal), "text");
}

void tst_SclTemplateStore::entriesKeepTheOrderOfTheFile()
{
    const TestTemplates store(document(switching));
    QVERIFY(store.hasEnumeration(QStringLiteral("Switching")));
    QCOMPARE(described(store.entries(QStringLiteral("Switching"))),
             QStringList({QStringLiteral("2=closed"), QStringLiteral("-1=unknown"),
                          QStringLiteral("1=open")}));
}

void tst_SclTemplateStore::anUnknownIdHasNoEntries()
{
    const TestTemplates store(document(switching));
    QVERIFY(!store.hasEnumeration(QStringLiteral("switching")));
    QVERIFY(!store.hasEnumeration(QString()));
    QVERIFY(store.entries(QStringLiteral("switching")).isEmpty());
}

void tst_SclTemplateStore::aListedOrdinalIsShownByTextAndNumber()
{
    const TestTemplates store(document(switching));
    QCOMPARE(store.displayText(QStringLiteral("Switching"), 1), QStringLiteral("open (1)"));
    QCOMPARE(store.displayText(QStringLiteral("Switching"), -1), QStringLiteral("unknown (-1)"));
}

void tst_SclTemplateStore::anUnlistedOrdinalIsNotRepresented()
{
    const TestTemplates store(document(switching));
    QCOMPARE(store.displayText(QStringLiteral("Switching"), 0), QStringLiteral("Not Represented"));
}

void tst_SclTemplateStore::anUnknownIdIsNotRepresented()
{
    const TestTemplates store(document(switching));
    QCOMPARE(store.displayText(QStringLiteral("Beh"), 1), QStringLiteral("Not Represented"));
}

void tst_SclTemplateStore::theFirstEntryOfAnOrdinalIsShown()
{
    const TestTemplates store(document("<EnumType id=\"Twice\"><EnumVal ord=\"1\">first</EnumVal>"
                                       "<EnumVal ord=\"1\">second</EnumVal></EnumType>"));
    QCOMPARE(store.displayText(QStringLiteral("Twice"), 1), QStringLiteral("first (1)"));
    QCOMPARE(store.entries(QStringLiteral("Twice")).size(), 2);
}

void tst_SclTemplateStore::aPlaceholderInATextSurvives()
{
    const TestTemplates store(
        document("<EnumType id=\"Odd\"><EnumVal ord=\"7\">100 %2 of %1</EnumVal></EnumType>"));
    QCOMPARE(store.displayText(QStringLiteral("Odd"), 7), QStringLiteral("100 %2 of %1 (7)"));
}

void tst_SclTemplateStore::aLaterEnumerationOfTheSameIdReplacesTheEarlier()
{
    const TestTemplates store(document(
        switching + "<EnumType id=\"Switching\"><EnumVal ord=\"1\">off</EnumVal></EnumType>"));
    QCOMPARE(described(store.entries(QStringLiteral("Switching"))),
             QStringList({QStringLiteral("1=off")}));
}

void tst_SclTemplateStore::anEnumerationWithoutAnIdIsPassedOver()
{
    const TestTemplates store(
        document("<EnumType><EnumVal ord=\"1\">on</EnumVal></EnumType>"
                 "<EnumType id=\"\"><EnumVal ord=\"1\">on</EnumVal></EnumType>" +
                 switching));
    QVERIFY(!store.hasEnumeration(QString()));
    QVERIFY(store.hasEnumeration(QStringLiteral("Switching")));
}

void tst_SclTemplateStore::theIdDirIsLikeAnyOther()
{
    const TestTemplates store(
        document("<EnumType id=\"dir\"><EnumVal ord=\"1\">forward</EnumVal></EnumType>"));
    QCOMPARE(store.displayText(QStringLiteral("dir"), 1), QStringLiteral("forward (1)"));
    const SclTemplateStore compiledIn;
    QVERIFY(compiledIn.hasEnumeration(QStringLiteral("dir")));
}

void tst_SclTemplateStore::otherElementsAndCommentsAreNotKept()
{
    const TestTemplates store(document(
        "<LNodeType id=\"XCBR\"><DO name=\"Pos\"/></LNodeType><DOType id=\"DPC\"/><DAType id=\"Val\"/>"
        "<!-- note --><EnumType id=\"Kept\"><!-- note --><EnumVal ord=\"3\">three</EnumVal></EnumType>"));
    QVERIFY(!store.hasEnumeration(QStringLiteral("XCBR")));
    QVERIFY(!store.hasEnumeration(QStringLiteral("DPC")));
    QVERIFY(!store.hasEnumeration(QStringLiteral("Val")));
    QCOMPARE(described(store.entries(QStringLiteral("Kept"))),
             QStringList({QStringLiteral("3=three")}));
}

void tst_SclTemplateStore::anOrdinalThatIsNoNumberCountsAsZero()
{
    const TestTemplates store(
        document("<EnumType id=\"Damaged\"><EnumVal>none</EnumVal><EnumVal ord=\"x\">text</EnumVal>"
                 "<EnumVal ord=\"4\">four</EnumVal></EnumType>"));
    QCOMPARE(described(store.entries(QStringLiteral("Damaged"))),
             QStringList(
                 {QStringLiteral("0=none"), QStringLiteral("0=text"), QStringLiteral("4=four")}));
    QCOMPARE(store.displayText(QStringLiteral("Damaged"), 0), QStringLiteral("none (0)"));
}

void tst_SclTemplateStore::anEnumerationWithoutEntriesExists()
{
    const TestTemplates store(document("<EnumType id=\"Empty\"/>"));
    QVERIFY(store.hasEnumeration(QStringLiteral("Empty")));
    QVERIFY(store.entries(QStringLiteral("Empty")).isEmpty());
}

void tst_SclTemplateStore::anotherDocumentElementLeavesAnEmptyStore()
{
    TestTemplates store;
    store.loadXml("<DataTypeTemplates>" + switching + "</DataTypeTemplates>");
    QVERIFY(!store.hasEnumeration(QStringLiteral("Switching")));
    QVERIFY(!store.hasEnumeration(QStringLiteral("Beh")));
}

void tst_SclTemplateStore::aMissingFileLeavesAnEmptyStore()
{
    TestTemplates store;
    store.load(QStringLiteral(":/850Ext/model/absent.xml"));
    QVERIFY(!store.hasEnumeration(QStringLiteral("Beh")));
    QCOMPARE(store.displayText(QStringLiteral("Beh"), 1), QStringLiteral("Not Represented"));
    QVERIFY(store.entries(QStringLiteral("Beh")).isEmpty());
}

void tst_SclTemplateStore::aMalformedFileLeavesAnEmptyStore_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray whole = document(switching);
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no XML") << QByteArray("EnumType id=Switching");
    QTest::newRow("cut off") << whole.left(whole.size() / 2);
    QTest::newRow("unclosed element") << document(switching + "<EnumType id=\"Open\">");
    QTest::newRow("undeclared prefix") << document("<x:EnumType id=\"a\" y:z=\"b\">") + "<";
}

void tst_SclTemplateStore::aMalformedFileLeavesAnEmptyStore()
{
    QFETCH(QByteArray, content);
    TestTemplates store;
    store.loadXml(content);
    QVERIFY(!store.hasEnumeration(QStringLiteral("Switching")));
    QVERIFY(!store.hasEnumeration(QStringLiteral("Beh")));
}

QTEST_GUILESS_MAIN(tst_SclTemplateStore)
#include "tst_scltemplatestore.moc"
