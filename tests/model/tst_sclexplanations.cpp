// SPDX-License-Identifier: Apache-2.0
#include "model/sclexplanations.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
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

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(content) != content.size()) {
        qFatal("A file of the test cannot be written");
    }
}

int run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(program, arguments);
    return process.waitForFinished() ? process.exitCode() : -1;
}

/// A folder with the template file of the test and a catalogue of another language, made from
/// tables as the build makes them.
class TranslatedTemplates
{
public:
    TranslatedTemplates()
    {
        writeFile(path(), templates);
        const QList<QPair<const char *, QPair<QByteArray, QByteArray>>> tables = {
            {"classes", {"XTST A test.\n", "XTST Ein Test.\n"}},
            {"data-objects",
             {"Ind An indication.\nMode The mode.\n",
              "Ind Eine Meldung.\nMode Die Betriebsart.\n"}},
            {"common-classes", {"CMV A vector.\nHMV Harmonics.\n", "CMV Ein Zeiger.\n"}},
            {"attributes",
             {"cVal Value.\nmag Magnitude.\n", "cVal Wert.\nmag Betrag & \xc2\xbb|Z|\xc2\xab.\n"}},
            {"attribute-types", {"Vector Magnitude and angle.\n", "Vector Betrag und Winkel.\n"}},
            {"enumerations", {"Kind Kinds.\n", "Kind Arten.\n"}}};
        QStringList arguments = {"-B", GENERATOR, file("de.ts"), file("de")};
        for (const auto &table : tables) {
            const QString name = QStringLiteral("explanations-%1.txt").arg(table.first);
            writeFile(file(name), table.second.first);
            writeFile(file("de/" + name), table.second.second);
            arguments << file(name);
        }
        if (run(PYTHON, arguments) != 0 ||
            run(LRELEASE, {"-silent", file("de.ts"), "-qm", file("explanations_de.qm")}) != 0) {
            qFatal("The catalogue of the test cannot be made");
        }
    }

    QString path() const { return file("templates.xml"); }

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
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
    void sentencesComeInTheLanguageThatWasSet();
    void aSentenceThatTheLanguageLacksStaysEnglish();
    void aLanguageWithoutACatalogueStaysEnglish_data();
    void aLanguageWithoutACatalogueStaysEnglish();
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

void tst_SclExplanations::sentencesComeInTheLanguageThatWasSet()
{
    const TranslatedTemplates files;
    SclExplanations explanations(files.path());
    QCOMPARE(explanations.logicalNodeClass("XTST"), QStringLiteral("A test."));
    explanations.setLanguage(QStringLiteral("de_DE"));
    QCOMPARE(explanations.logicalNodeClass("XTST"), QStringLiteral("Ein Test."));
    QCOMPARE(explanations.commonDataClass("CMV"), QStringLiteral("Ein Zeiger."));
    QCOMPARE(explanations.attributeType("Vector"), QStringLiteral("Betrag und Winkel."));
    QCOMPARE(explanations.enumeration("Kind").text, QStringLiteral("Arten."));
    QCOMPARE(explanations.enumeration("Kind").values.size(), 2);
    QCOMPARE(explanations.dataObject("XTST", "Ind4").text, QStringLiteral("Eine Meldung."));
    QCOMPARE(explanations.dataObject("VENDOR", "Mode").text, QStringLiteral("Die Betriebsart."));
    QCOMPARE(explanations.attribute("CMV", {"cVal"}).text, QStringLiteral("Wert."));
    QCOMPARE(explanations.attribute("QQQ", {"mag"}).text, QString::fromUtf8("Betrag & »|Z|«."));
    explanations.setLanguage({});
    QCOMPARE(explanations.logicalNodeClass("XTST"), QStringLiteral("A test."));
}

void tst_SclExplanations::aSentenceThatTheLanguageLacksStaysEnglish()
{
    const TranslatedTemplates files;
    SclExplanations explanations(files.path());
    explanations.setLanguage(QStringLiteral("de_DE"));
    QCOMPARE(explanations.commonDataClass("HMV"), QStringLiteral("Harmonics."));
    QCOMPARE(explanations.attribute("CMV", {"range"}).text, QStringLiteral("Range."));
    QVERIFY(explanations.logicalNodeClass("QQQQ").isEmpty());
}

void tst_SclExplanations::aLanguageWithoutACatalogueStaysEnglish_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("none") << QString();
    QTest::newRow("C") << QStringLiteral("C");
    QTest::newRow("another language") << QStringLiteral("fr_FR");
    QTest::newRow("a language that begins alike") << QStringLiteral("deu");
}

void tst_SclExplanations::aLanguageWithoutACatalogueStaysEnglish()
{
    QFETCH(QString, language);
    const TranslatedTemplates files;
    SclExplanations explanations(files.path());
    explanations.setLanguage(language);
    QCOMPARE(explanations.logicalNodeClass("XTST"), QStringLiteral("A test."));
    SclExplanations compiledIn;
    compiledIn.setLanguage(language == "fr_FR" ? QStringLiteral("nl_NL") : language);
    QVERIFY(compiledIn.logicalNodeClass("XCBR").contains("breaker"));
}

QTEST_GUILESS_MAIN(tst_SclExplanations)
#include "tst_sclexplanations.moc"
