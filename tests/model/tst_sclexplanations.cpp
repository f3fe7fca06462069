// SPDX-License-Identifier: Apache-2.0
#include "model/sclexplanations.h"

#include <QtCore/QTemporaryFile>
#include <QtTest/QtTest>

namespace {

const QByteArray templates =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<DataTypeTemplate>"
    "<LNodeType id=\"XTST\" desc=\"A test.\">"
    "<DO name=\"Ind\" type=\"SPS\" presence=\"O\" transient=\"true\" desc=\"An indication.\"/>"
    "<DO name=\"Mode\" type=\"ENS\" presence=\"M\" enum=\"Kind\" desc=\"The mode.\"/>"
    "</LNodeType>"
    "<DOType id=\"HMV\" desc=\"Harmonics.\">"
    "<SDO name=\"har\" type=\"CMV\" count=\"maxPts\" desc=\"The harmonics.\"/></DOType>"
    "<DOType id=\"CMV\" desc=\"A vector.\">"
    "<DA name=\"cVal\" fc=\"MX\" bType=\"Struct\" type=\"Vector\" presence=\"M\" desc=\"Value.\"/>"
    "<DA name=\"range\" fc=\"MX\" bType=\"Enum\" type=\"Kind\" presence=\"O\" desc=\"Range.\"/>"
    "</DOType>"
    "<DAType id=\"Vector\" desc=\"Magnitude and angle.\">"
    "<BDA name=\"mag\" bType=\"FLOAT32\" presence=\"M\" desc=\"Magnitude.\"/></DAType>"
    "<EnumType id=\"Kind\"><EnumVal ord=\"2\">two</EnumVal><EnumVal ord=\"1\">one</EnumVal>"
    "</EnumType><EnumDesc id=\"Kind\" desc=\"Kinds.\"/></DataTypeTemplate>\n";

class TemplateFile
{
public:
    explicit TemplateFile(const QByteArray &content)
    {
        if (!m_file.open() || m_file.write(content) != content.size() || !m_file.flush())
            qFatal("The template file of the test cannot be written");
    }

    QString path() const { return m_file.fileName(); }

private:
    QTemporaryFile m_file;
};

} // namespace

class tst_SclExplanations : public QObject
{
    Q_OBJECT

private slots:
    void theCompiledInTemplatesExplainThemselves();
    void aClassAndItsDataObjectsAreExplained();
    void anInstanceNumberIsPassedOver();
    void aDataObjectOfAnotherClassHasOnlyItsText();
    void aPathLeadsThroughStructures();
    void anArrayElementIsLikeItsArray_data();
    void anArrayElementIsLikeItsArray();
    void anAttributeThatTheClassLacksHasOnlyItsText();
    void anEnumerationHasItsTextAndValues();
    void theUnknownIsNotExplained();
    void aDamagedFileExplainsNothing_data();
    void aDamagedFileExplainsNothing();
    void theFileIsReadAtTheFirstQuestionOnly();
};

void tst_SclExplanations::theCompiledInTemplatesExplainThemselves()
{
    const SclExplanations explanations;
    QVERIFY(explanations.logicalNodeClass("XCBR").contains("breaker"));
    QVERIFY(explanations.commonDataClass("DPC").contains("double-point"));
    QVERIFY(explanations.attributeType("Originator").endsWith('.'));
    QVERIFY(!explanations.enumeration("CtlModelKind").text.isEmpty());
    QCOMPARE(explanations.enumeration("ctlModel").values.size(), 5);

    const auto position = explanations.dataObject("XCBR", "Pos");
    QCOMPARE(position.type, QStringLiteral("DPC"));
    QCOMPARE(position.presence, QStringLiteral("M"));
    QVERIFY(!position.text.isEmpty());
    QCOMPARE(explanations.dataObject("GGIO", "Ind12").type, QStringLiteral("SPS"));
    QCOMPARE(explanations.dataObject("LLN0", "Beh").enumeration,
             QStringLiteral("BehaviourModeKind"));
    QCOMPARE(explanations.attribute("WYE", {"phsA", "cVal", "mag", "f"}).type,
             QStringLiteral("FLOAT32"));
    QCOMPARE(explanations.attribute("DPC", {"Oper", "origin", "orCat"}).enumeration,
             QStringLiteral("OriginatorCategoryKind"));
}

void tst_SclExplanations::aClassAndItsDataObjectsAreExplained()
{
    const TemplateFile file(templates);
    const SclExplanations explanations(file.path());
    QCOMPARE(explanations.logicalNodeClass("XTST"), QStringLiteral("A test."));
    const auto mode = explanations.dataObject("XTST", "Mode");
    QCOMPARE(mode.text, QStringLiteral("The mode."));
    QCOMPARE(mode.type, QStringLiteral("ENS"));
    QCOMPARE(mode.presence, QStringLiteral("M"));
    QCOMPARE(mode.enumeration, QStringLiteral("Kind"));
    QVERIFY(!mode.transient);
    QCOMPARE(explanations.commonDataClass("CMV"), QStringLiteral("A vector."));
    QCOMPARE(explanations.attributeType("Vector"), QStringLiteral("Magnitude and angle."));
}

void tst_SclExplanations::anInstanceNumberIsPassedOver()
{
    const TemplateFile file(templates);
    const SclExplanations explanations(file.path());
    const auto indication = explanations.dataObject("XTST", "Ind17");
    QCOMPARE(indication.text, QStringLiteral("An indication."));
    QVERIFY(indication.transient);
}

void tst_SclExplanations::aDataObjectOfAnotherClassHasOnlyItsText()
{
    const TemplateFile file(templates);
    const SclExplanations explanations(file.path());
    for (const QString &name : {QStringLiteral("Mode"), QStringLiteral("Mode2")}) {
        const auto mode = explanations.dataObject("VENDOR", name);
        QCOMPARE(mode.text, QStringLiteral("The mode."));
        QVERIFY(mode.type.isEmpty());
        QVERIFY(mode.presence.isEmpty());
        QVERIFY(mode.enumeration.isEmpty());
    }
}

void tst_SclExplanations::aPathLeadsThroughStructures()
{
    const TemplateFile file(templates);
    const SclExplanations explanations(file.path());
    const auto value = explanations.attribute("CMV", {"cVal"});
    QCOMPARE(value.text, QStringLiteral("Value."));
    QCOMPARE(value.type, QStringLiteral("Vector"));
    const auto magnitude = explanations.attribute("CMV", {"cVal", "mag"});
    QCOMPARE(magnitude.text, QStringLiteral("Magnitude."));
    QCOMPARE(magnitude.type, QStringLiteral("FLOAT32"));
    QCOMPARE(magnitude.presence, QStringLiteral("M"));
    const auto range = explanations.attribute("CMV", {"range"});
    QCOMPARE(range.type, QStringLiteral("Enum"));
    QCOMPARE(range.enumeration, QStringLiteral("Kind"));
}

void tst_SclExplanations::anArrayElementIsLikeItsArray_data()
{
    QTest::addColumn<QStringList>("path");
    QTest::newRow("below the array") << QStringList{"har", "har(3)", "cVal", "mag"};
    QTest::newRow("by itself") << QStringList{"har(3)", "cVal", "mag"};
    QTest::newRow("array only") << QStringList{"har", "cVal", "mag"};
}

void tst_SclExplanations::anArrayElementIsLikeItsArray()
{
    QFETCH(QStringList, path);
    const TemplateFile file(templates);
    const SclExplanations explanations(file.path());
    QCOMPARE(explanations.attribute("HMV", path).text, QStringLiteral("Magnitude."));
    QCOMPARE(explanations.attribute("HMV", path.mid(0, path.size() - 2)).type,
             QStringLiteral("CMV"));
}

void tst_SclExplanations::anAttributeThatTheClassLacksHasOnlyItsText()
{
    const TemplateFile file(templates);
    const SclExplanations explanations(file.path());
    for (const QStringList &path : {QStringList{"mag"}, QStringList{"own", "mag"}}) {
        const auto magnitude = explanations.attribute("CMV", path);
        QCOMPARE(magnitude.text, QStringLiteral("Magnitude."));
        QVERIFY(magnitude.type.isEmpty());
        QVERIFY(magnitude.presence.isEmpty());
    }
}

void tst_SclExplanations::anEnumerationHasItsTextAndValues()
{
    const TemplateFile file(templates);
    const SclExplanations explanations(file.path());
    const auto kind = explanations.enumeration("Kind");
    QCOMPARE(kind.text, QStringLiteral("Kinds."));
    QCOMPARE(kind.values.size(), 2);
    QCOMPARE(kind.values.at(0), qMakePair(2, QStringLiteral("two")));
    QCOMPARE(kind.values.at(1), qMakePair(1, QStringLiteral("one")));
}

void tst_SclExplanations::theUnknownIsNotExplained()
{
    const SclExplanations explanations;
    QVERIFY(explanations.logicalNodeClass("QQQQ").isEmpty());
    QVERIFY(explanations.logicalNodeClass({}).isEmpty());
    QVERIFY(explanations.commonDataClass("QQQ").isEmpty());
    QVERIFY(explanations.attributeType({}).isEmpty());
    QVERIFY(explanations.enumeration("QQQ").values.isEmpty());
    QVERIFY(explanations.dataObject("XCBR", "Qqqq").text.isEmpty());
    QVERIFY(explanations.dataObject("XCBR", "12").text.isEmpty());
    QVERIFY(explanations.attribute("DPC", {"qqqq"}).text.isEmpty());
    QVERIFY(explanations.attribute("QQQ", {"(3)"}).text.isEmpty());
}

void tst_SclExplanations::aDamagedFileExplainsNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off") << templates.left(templates.size() - 30);
    QTest::newRow("no XML") << QByteArray("LNodeType id=XTST");
    QTest::newRow("another document element")
        << QByteArray(templates).replace("DataTypeTemplate", "DataTypeTemplates");
}

void tst_SclExplanations::aDamagedFileExplainsNothing()
{
    QFETCH(QByteArray, content);
    const TemplateFile file(content);
    const SclExplanations explanations(file.path());
    QVERIFY(explanations.logicalNodeClass("XTST").isEmpty());
    QVERIFY(explanations.dataObject("XTST", "Mode").text.isEmpty());
    QVERIFY(explanations.enumeration("Kind").values.isEmpty());
    const SclExplanations missing(QStringLiteral(":/850Ext/model/absent.xml"));
    QVERIFY(missing.logicalNodeClass("XCBR").isEmpty());
}

void tst_SclExplanations::theFileIsReadAtTheFirstQuestionOnly()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    const SclExplanations explanations(file.fileName());
    QCOMPARE(file.write(templates), qint64(templates.size()));
    QVERIFY(file.flush());
    QCOMPARE(explanations.logicalNodeClass("XTST"), QStringLiteral("A test."));
    QVERIFY(file.resize(0));
    QCOMPARE(explanations.logicalNodeClass("XTST"), QStringLiteral("A test."));
}

QTEST_GUILESS_MAIN(tst_SclExplanations)
#include "tst_sclexplanations.moc"
