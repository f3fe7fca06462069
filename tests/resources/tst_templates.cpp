// SPDX-License-Identifier: Apache-2.0
#include <QtTest>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>

namespace {

using Enumeration = QMap<int, QString>;
using Enumerations = QMap<QString, Enumeration>;

const QString edition1File = QStringLiteral(":/850Ext/model/61850Details Edition 1.xml");
const QString edition2File = QStringLiteral(":/850Ext/model/61850Details EDITION 2.xml");

QDomElement documentElement(const QString &path, QDomDocument &document)
{
    QFile file(path);
    QString error;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file, true, &error))
        return {};
    return document.documentElement();
}

Enumerations readTemplate(const QString &path)
{
    QDomDocument document;
    Enumerations result;
    const QDomElement root = documentElement(path, document);
    for (QDomElement type = root.firstChildElement(QStringLiteral("EnumType")); !type.isNull();
         type = type.nextSiblingElement(QStringLiteral("EnumType"))) {
        Enumeration &enumeration = result[type.attribute(QStringLiteral("id"))];
        for (QDomElement value = type.firstChildElement(); !value.isNull();
             value = value.nextSiblingElement())
            enumeration.insert(value.attribute(QStringLiteral("ord")).toInt(), value.text());
    }
    return result;
}

QJsonObject readFacts(const char *name)
{
    QFile file(QDir(QStringLiteral(FACTS_FOLDER)).filePath(QLatin1String(name)));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

Enumerations enumerationsOf(const QJsonObject &facts)
{
    Enumerations result;
    const QJsonObject all = facts.value(QLatin1String("enumerations")).toObject();
    for (auto it = all.begin(); it != all.end(); ++it) {
        for (const QJsonValue row : it.value().toArray()) {
            const QJsonArray cells = row.toArray();
            result[it.key()].insert(cells.at(0).toInt(), cells.at(1).toString());
        }
    }
    return result;
}

QStringList missing(const Enumeration &wanted, const Enumeration &found, const QString &id)
{
    QStringList result;
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        if (!found.contains(it.key()) || found.value(it.key()) != it.value())
            result << QStringLiteral("%1: %2 = \"%3\"").arg(id).arg(it.key()).arg(it.value());
    }
    return result;
}

using Attributes = QMap<QString, QString>;
using Members = QMap<QString, Attributes>;
using Types = QMap<QString, Members>;

Attributes attributesOf(const QDomElement &element)
{
    Attributes result;
    const QDomNamedNodeMap all = element.attributes();
    for (int i = 0; i < all.count(); ++i)
        result.insert(all.item(i).nodeName(), all.item(i).nodeValue());
    return result;
}

/// The elements of a tag by id, with what they contain by name.
Types readTypes(const QString &path, const char *tag)
{
    QDomDocument document;
    Types result;
    const QDomElement root = documentElement(path, document);
    for (QDomElement type = root.firstChildElement(QLatin1String(tag)); !type.isNull();
         type = type.nextSiblingElement(QLatin1String(tag))) {
        Members &members = result[type.attribute(QStringLiteral("id"))];
        for (QDomElement member = type.firstChildElement(); !member.isNull();
             member = member.nextSiblingElement())
            members.insert(member.attribute(QStringLiteral("name")), attributesOf(member));
    }
    return result;
}

QString presenceOf(const QJsonValue &value)
{
    return value.toString().remove(QLatin1Char(' '));
}

void compare(QStringList &problems, const QString &where, const QString &what, const QString &found,
             const QString &wanted)
{
    if (found != wanted)
        problems << QStringLiteral("%1: %2 is \"%3\", not \"%4\"").arg(where, what, found, wanted);
}

/// The type that the attribute's element names, by the words of the tables.
QString typeIn(const Attributes &attributes)
{
    const QString type = attributes.value(QStringLiteral("type"));
    return type.isEmpty() ? attributes.value(QStringLiteral("bType")) : type;
}

QString typeWanted(const QString &type)
{
    if (type == QLatin1String("@enum"))
        return QStringLiteral("Enum");
    return type == QLatin1String("@type") ? QStringLiteral("Any") : type;
}

const char *factsOf(const QString &path)
{
    return path == edition1File ? "facts-ed1-2003.json" : "facts-ed2.1-2007B5.json";
}

} // namespace

class tst_Templates : public QObject
{
    Q_OBJECT

private slots:
    void everyElementCarriesOneAttribute_data();
    void everyElementCarriesOneAttribute();
    void noIdAndNoOrdinalOccursTwice_data();
    void noIdAndNoOrdinalOccursTwice();
    void customaryIdsAreThere_data();
    void customaryIdsAreThere();
    void codedEnumerationsHaveTheirOrdinals();
    void namesOfOneKindShareTheirValues();
    void editionsDifferWhereTheStandardDoes();
    void edition2HoldsEveryPublishedEnumeration_data();
    void edition2HoldsEveryPublishedEnumeration();
    void edition2NamesEveryUseOfAnEnumeration_data();
    void edition2NamesEveryUseOfAnEnumeration();
    void edition1HoldsEveryPublishedEnumeration();
    void everyClassIsThere_data();
    void everyClassIsThere();
    void classesHoldThePublishedDataObjects_data();
    void classesHoldThePublishedDataObjects();
    void dataObjectsOfEdition2StayAfterItsAmendment();
    void commonDataClassesHoldThePublishedAttributes_data();
    void commonDataClassesHoldThePublishedAttributes();
    void attributeTypesHoldThePublishedAttributes_data();
    void attributeTypesHoldThePublishedAttributes();
    void controlClassesCarryTheirServiceStructures();
    void everyReferenceFindsItsType_data();
    void everyReferenceFindsItsType();
    void everythingIsExplainedInASentence_data();
    void everythingIsExplainedInASentence();
    void theGeneratorRefusesAFaultyTable_data();
    void theGeneratorRefusesAFaultyTable();
};

void tst_Templates::everyElementCarriesOneAttribute_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("edition 1") << edition1File;
    QTest::newRow("edition 2") << edition2File;
}

void tst_Templates::everyElementCarriesOneAttribute()
{
    QFETCH(QString, path);
    QDomDocument document;
    const QDomElement root = documentElement(path, document);
    QCOMPARE(root.nodeName(), QStringLiteral("DataTypeTemplate"));
    QVERIFY(root.childNodes().size() > 20);
    for (QDomNode child = root.firstChild(); !child.isNull(); child = child.nextSibling()) {
        QVERIFY2(child.isElement(), "only elements stand in the document element");
        if (child.nodeName() != QLatin1String("EnumType"))
            continue;
        QCOMPARE(child.attributes().size(), 1);
        QVERIFY(!child.toElement().attribute(QStringLiteral("id")).isEmpty());
        QVERIFY(child.hasChildNodes());
        for (QDomNode value = child.firstChild(); !value.isNull(); value = value.nextSibling()) {
            QCOMPARE(value.nodeName(), QStringLiteral("EnumVal"));
            QCOMPARE(value.attributes().size(), 1);
            bool isNumber = false;
            value.toElement().attribute(QStringLiteral("ord")).toInt(&isNumber);
            QVERIFY(isNumber);
        }
    }
}

void tst_Templates::noIdAndNoOrdinalOccursTwice_data()
{
    everyElementCarriesOneAttribute_data();
}

void tst_Templates::noIdAndNoOrdinalOccursTwice()
{
    QFETCH(QString, path);
    QDomDocument document;
    const QDomElement root = documentElement(path, document);
    QSet<QString> ids;
    for (QDomElement type = root.firstChildElement(QStringLiteral("EnumType")); !type.isNull();
         type = type.nextSiblingElement(QStringLiteral("EnumType"))) {
        const QString id = type.attribute(QStringLiteral("id"));
        QVERIFY2(!ids.contains(id), qPrintable(id));
        ids.insert(id);
        QSet<QString> ordinals;
        for (QDomElement value = type.firstChildElement(); !value.isNull();
             value = value.nextSiblingElement()) {
            const QString ordinal = value.attribute(QStringLiteral("ord"));
            QVERIFY2(!ordinals.contains(ordinal), qPrintable(id + QLatin1Char(' ') + ordinal));
            ordinals.insert(ordinal);
        }
    }
    QVERIFY(!ids.isEmpty());
}

void tst_Templates::customaryIdsAreThere_data()
{
    everyElementCarriesOneAttribute_data();
}

void tst_Templates::customaryIdsAreThere()
{
    QFETCH(QString, path);
    const Enumerations enumerations = readTemplate(path);
    for (const char *id : {"Beh",    "Mod",    "Health",   "ctlModel",   "orCat",      "Dbpos",
                           "Tcmd",   "Check",  "SIUnit",   "multiplier", "dir",        "dirGeneral",
                           "dirPhs", "seqT",   "sboClass", "range",      "setCharact", "hvRef",
                           "phsRef", "angRef", "sev",      "cmdQual"})
        QVERIFY2(enumerations.contains(QLatin1String(id)), id);
    if (path == edition2File) {
        for (const char *id : {"AutoRecSt", "SwTyp", "BehaviourModeKind", "DERStateKind"})
            QVERIFY2(enumerations.contains(QLatin1String(id)), id);
    }
}

void tst_Templates::codedEnumerationsHaveTheirOrdinals()
{
    const Enumerations enumerations = readTemplate(edition2File);
    const Enumeration positions = enumerations.value(QStringLiteral("Dbpos"));
    QCOMPARE(positions.size(), 4);
    QCOMPARE(positions.value(0), QStringLiteral("intermediate-state"));
    QCOMPARE(positions.value(1), QStringLiteral("off"));
    QCOMPARE(positions.value(2), QStringLiteral("on"));
    QCOMPARE(positions.value(3), QStringLiteral("bad-state"));
    const Enumeration commands = enumerations.value(QStringLiteral("Tcmd"));
    QCOMPARE(commands.size(), 4);
    QCOMPARE(commands.value(0), QStringLiteral("stop"));
    QCOMPARE(commands.value(1), QStringLiteral("lower"));
    QCOMPARE(commands.value(2), QStringLiteral("higher"));
    const Enumeration checks = enumerations.value(QStringLiteral("Check"));
    QCOMPARE(checks.size(), 4);
    QCOMPARE(checks.value(0), QStringLiteral("no-check"));
    QCOMPARE(checks.value(1), QStringLiteral("interlock-check"));
    QCOMPARE(checks.value(2), QStringLiteral("synchrocheck"));
    QCOMPARE(checks.value(3), QStringLiteral("synchrocheck and interlock-check"));
    const Enumeration originators = enumerations.value(QStringLiteral("orCat"));
    QCOMPARE(originators.size(), 9);
    QCOMPARE(originators.value(3), QStringLiteral("remote-control"));
}

void tst_Templates::namesOfOneKindShareTheirValues()
{
    const Enumerations enumerations = readTemplate(edition2File);
    QCOMPARE(enumerations.value(QStringLiteral("Mod")), enumerations.value(QStringLiteral("Beh")));
    QCOMPARE(enumerations.value(QStringLiteral("BehaviourModeKind")),
             enumerations.value(QStringLiteral("Beh")));
    QCOMPARE(enumerations.value(QStringLiteral("dir")),
             enumerations.value(QStringLiteral("dirGeneral")));
    QCOMPARE(enumerations.value(QStringLiteral("CtlModelKind")),
             enumerations.value(QStringLiteral("ctlModel")));
}

void tst_Templates::editionsDifferWhereTheStandardDoes()
{
    const Enumerations first = readTemplate(edition1File);
    const Enumerations second = readTemplate(edition2File);
    const QString commandQualifier = QStringLiteral("cmdQual");
    QCOMPARE(first.value(commandQualifier).size(), 2);
    QCOMPARE(second.value(commandQualifier).size(), 3);
    QVERIFY(!first.value(QStringLiteral("setCharact")).contains(0));
    QCOMPARE(second.value(QStringLiteral("setCharact")).value(0), QStringLiteral("None"));
}

void tst_Templates::edition2HoldsEveryPublishedEnumeration_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file :
         {"facts-ed2.1-2007B5.json", "facts-ed2.0-2007A3.json", "facts-7-420-2019A4.json"})
        QTest::newRow(file) << QString::fromLatin1(file);
}

void tst_Templates::edition2HoldsEveryPublishedEnumeration()
{
    QFETCH(QString, file);
    const Enumerations wanted = enumerationsOf(readFacts(file.toLatin1().constData()));
    if (wanted.isEmpty())
        QSKIP("the tables of the standard's enumerations are not beside this checkout");
    const Enumerations newest = enumerationsOf(readFacts("facts-ed2.1-2007B5.json"));
    const Enumerations found = readTemplate(edition2File);
    QStringList problems;
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        // Where two amendments word a value differently, the newer one holds.
        Enumeration values = it.value();
        const Enumeration newer = newest.value(it.key());
        for (auto value = newer.begin(); value != newer.end(); ++value) {
            if (values.contains(value.key()))
                values.insert(value.key(), value.value());
        }
        problems += missing(values, found.value(it.key()), it.key());
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_Templates::edition2NamesEveryUseOfAnEnumeration_data()
{
    edition2HoldsEveryPublishedEnumeration_data();
}

void tst_Templates::edition2NamesEveryUseOfAnEnumeration()
{
    QFETCH(QString, file);
    const QJsonObject facts = readFacts(file.toLatin1().constData());
    if (facts.isEmpty())
        QSKIP("the tables of the standard's enumerations are not beside this checkout");

    QMap<QString, QStringList> uses; // name of an attribute or data object, its enumerations
    const QJsonObject usedBy = facts.value(QLatin1String("enumerationUsedBy")).toObject();
    for (auto it = usedBy.begin(); it != usedBy.end(); ++it) {
        for (const QJsonValue use : it.value().toArray())
            uses[use.toString().section(QLatin1Char('.'), -1)] << it.key();
    }
    for (const char *section : {"ln", "lnExtensions"}) {
        const QJsonObject classes = facts.value(QLatin1String(section)).toObject();
        for (const QJsonValue rows : classes) {
            for (const QJsonValue row : rows.toArray()) {
                const QString enumeration = row.toArray().at(4).toString();
                if (!enumeration.isEmpty())
                    uses[row.toArray().at(0).toString()] << enumeration;
            }
        }
    }
    QVERIFY(uses.size() > 40);

    const Enumerations known = enumerationsOf(facts);
    const Enumerations found = readTemplate(edition2File);
    QStringList problems;
    for (auto it = uses.begin(); it != uses.end(); ++it) {
        for (const QString &kind : it.value()) {
            if (!known.contains(kind))
                continue;
            if (!found.contains(it.key()) || found.value(it.key()) != found.value(kind))
                problems << it.key() + QStringLiteral(" is not ") + kind;
        }
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_Templates::edition1HoldsEveryPublishedEnumeration()
{
    const Enumerations wanted = enumerationsOf(readFacts("facts-ed1-2003.json"));
    if (wanted.isEmpty())
        QSKIP("the tables of the standard's enumerations are not beside this checkout");
    const Enumerations found = readTemplate(edition1File);
    QStringList problems;
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        problems += missing(it.value(), found.value(it.key()), it.key());
        QString plain = it.key();
        if (plain.endsWith(QLatin1String("Enum")))
            plain.chop(4);
        problems += missing(it.value(), found.value(plain), plain);
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_Templates::everyClassIsThere_data()
{
    everyElementCarriesOneAttribute_data();
}

void tst_Templates::everyClassIsThere()
{
    QFETCH(QString, path);
    const Types classes = readTypes(path, "LNodeType");
    for (const char *name : {"LLN0", "LPHD", "XCBR", "XSWI", "CSWI", "CILO", "MMXU", "PTOC", "PDIS",
                             "PTRC", "RREC", "RDRE", "TCTR", "TVTR", "YPTR", "GGIO", "ATCC"})
        QVERIFY2(classes.contains(QLatin1String(name)), name);
    const Attributes position = classes.value(QStringLiteral("XCBR")).value(QStringLiteral("Pos"));
    QCOMPARE(position.value(QStringLiteral("type")), QStringLiteral("DPC"));
    QCOMPARE(position.value(QStringLiteral("presence")), QStringLiteral("M"));
    QCOMPARE(classes.size(), path == edition1File ? 91 : 165);
    const Types commonClasses = readTypes(path, "DOType");
    QCOMPARE(commonClasses.size(), path == edition1File ? 29 : 53);
    QVERIFY(commonClasses.contains(QStringLiteral("WYE")));
}

void tst_Templates::classesHoldThePublishedDataObjects_data()
{
    everyElementCarriesOneAttribute_data();
}

void tst_Templates::classesHoldThePublishedDataObjects()
{
    QFETCH(QString, path);
    const QJsonObject facts = readFacts(factsOf(path));
    if (facts.isEmpty())
        QSKIP("the tables of the standard's classes are not beside this checkout");
    const bool isEdition1 = path == edition1File;
    const Types found = readTypes(path, "LNodeType");
    const QJsonObject wanted = facts.value(QLatin1String("ln")).toObject();
    const QJsonObject enumerations = facts.value(QLatin1String("enumerations")).toObject();
    QCOMPARE(found.keys(), wanted.keys());
    QStringList problems;
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        Members members = found.value(it.key());
        for (const QJsonValue value : it.value().toArray()) {
            const QJsonArray row = value.toArray();
            // The curves of this voltage protection are recorded there as curves of current.
            if (isEdition1 && it.key() == QLatin1String("PTUV") &&
                row.at(4).toString() == QLatin1String("S"))
                continue;
            const QString name = row.at(0).toString();
            const QString where = it.key() + QLatin1Char('.') + name;
            const Attributes object = members.take(name);
            compare(problems, where, "type", object.value("type"), row.at(1).toString());
            compare(problems, where, "presence", object.value("presence"), presenceOf(row.at(2)));
            compare(problems, where, "transient", object.value("transient"),
                    row.at(3).toInt() ? "true" : "");
            if (!isEdition1 && enumerations.contains(row.at(4).toString()))
                compare(problems, where, "enum", object.value("enum"), row.at(4).toString());
        }
        for (auto left = members.begin(); left != members.end(); ++left) {
            const bool isExpected = isEdition1 ? it.key() == QLatin1String("PTUV")
                                               : left->contains(QStringLiteral("former"));
            if (!isExpected)
                problems << it.key() + QLatin1Char('.') + left.key() + " is not published";
        }
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_Templates::dataObjectsOfEdition2StayAfterItsAmendment()
{
    const QJsonObject before = readFacts("facts-ed2.0-2007A3.json");
    const QJsonObject after = readFacts("facts-ed2.1-2007B5.json");
    if (before.isEmpty() || after.isEmpty())
        QSKIP("the tables of the standard's classes are not beside this checkout");
    const Types found = readTypes(edition2File, "LNodeType");
    const QJsonObject classes = before.value(QLatin1String("ln")).toObject();
    const QJsonObject newer = after.value(QLatin1String("ln")).toObject();
    QStringList problems;
    int former = 0;
    for (auto it = classes.begin(); it != classes.end(); ++it) {
        QStringList kept;
        for (const QJsonValue row : newer.value(it.key()).toArray())
            kept << row.toArray().at(0).toString();
        for (const QJsonValue value : it.value().toArray()) {
            const QJsonArray row = value.toArray();
            const QString name = row.at(0).toString();
            const QString where = it.key() + QLatin1Char('.') + name;
            const Attributes object = found.value(it.key()).value(name);
            compare(problems, where, "former", object.value("former"),
                    kept.contains(name) ? "" : "true");
            if (kept.contains(name))
                continue;
            ++former;
            compare(problems, where, "type", object.value("type"), row.at(1).toString());
            compare(problems, where, "presence", object.value("presence"), presenceOf(row.at(2)));
        }
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
    QVERIFY(former > 100);
}

void tst_Templates::commonDataClassesHoldThePublishedAttributes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("file");
    QTest::newRow("edition 1") << edition1File << "facts-ed1-2003.json";
    QTest::newRow("edition 2, amended") << edition2File << "facts-ed2.1-2007B5.json";
}

void tst_Templates::commonDataClassesHoldThePublishedAttributes()
{
    QFETCH(QString, path);
    QFETCH(QString, file);
    const QJsonObject facts = readFacts(file.toLatin1().constData());
    if (facts.isEmpty())
        QSKIP("the tables of the standard's classes are not beside this checkout");
    const bool isEdition1 = path == edition1File;
    const Types found = readTypes(path, "DOType");
    const QJsonObject wanted = facts.value(QLatin1String("cdc")).toObject();
    const QMap<QString, QString> triggers = {{"d", "dchg"}, {"q", "qchg"}, {"u", "dupd"}};
    QStringList problems;
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        Members members = found.value(it.key());
        for (const QJsonValue value : it.value().toArray()) {
            const QJsonArray row = value.toArray();
            const QString name = row.at(0).toString();
            const QString where = it.key() + QLatin1Char('.') + name;
            const Attributes attribute = members.take(name);
            if (row.at(1).toString() != QLatin1String("SDO"))
                compare(problems, where, "fc", attribute.value("fc"), row.at(1).toString());
            compare(problems, where, "type", typeIn(attribute), typeWanted(row.at(2).toString()));
            compare(problems, where, "presence", attribute.value("presence"),
                    presenceOf(row.at(3)));
            for (auto trigger = triggers.begin(); trigger != triggers.end(); ++trigger)
                compare(problems, where, trigger.value(), attribute.value(trigger.value()),
                        row.at(5).toString().contains(trigger.key()) ? "true" : "");
            if (!isEdition1)
                compare(problems, where, "count", attribute.value("count"), row.at(6).toString());
        }
        for (auto left = members.begin(); left != members.end(); ++left) {
            if (!left->contains(QStringLiteral("former")) &&
                left->value(QStringLiteral("fc")) != QLatin1String("CO"))
                problems << it.key() + QLatin1Char('.') + left.key() + " is not published";
        }
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_Templates::attributeTypesHoldThePublishedAttributes_data()
{
    commonDataClassesHoldThePublishedAttributes_data();
}

void tst_Templates::attributeTypesHoldThePublishedAttributes()
{
    QFETCH(QString, path);
    QFETCH(QString, file);
    const QJsonObject facts = readFacts(file.toLatin1().constData());
    if (facts.isEmpty())
        QSKIP("the tables of the standard's types are not beside this checkout");
    const Types found = readTypes(path, "DAType");
    const QJsonObject wanted = facts.value(QLatin1String("constructed")).toObject();
    QStringList problems;
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        const QJsonArray rows = it.value().toArray();
        const Members members = found.value(it.key());
        compare(problems, it.key(), "size", QString::number(members.size()),
                QString::number(rows.size()));
        for (const QJsonValue value : rows) {
            const QJsonArray row = value.toArray();
            const QString where = it.key() + QLatin1Char('.') + row.at(0).toString();
            const Attributes attribute = members.value(row.at(0).toString());
            compare(problems, where, "type", typeIn(attribute), row.at(1).toString());
            compare(problems, where, "presence", attribute.value("presence"),
                    presenceOf(row.at(2)));
        }
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_Templates::controlClassesCarryTheirServiceStructures()
{
    const Types commonClasses = readTypes(edition2File, "DOType");
    const Types types = readTypes(edition2File, "DAType");
    const QMap<QString, QString> demanded = {
        {"SPC", "BOOLEAN"}, {"DPC", "BOOLEAN"}, {"INC", "INT32"}, {"ENC", "Enum"},
        {"BSC", "Tcmd"},    {"ISC", "INT8"},    {"BAC", "Tcmd"},  {"APC", "AnalogueValueCtl"}};
    for (auto it = demanded.begin(); it != demanded.end(); ++it) {
        const Members attributes = commonClasses.value(it.key());
        QCOMPARE(attributes.value("SBO").value("fc"), QStringLiteral("CO"));
        for (const char *service : {"SBOw", "Oper", "Cancel"}) {
            const Attributes structure = attributes.value(QLatin1String(service));
            QCOMPARE(structure.value("fc"), QStringLiteral("CO"));
            const Members members = types.value(structure.value("type"));
            QCOMPARE(typeIn(members.value("ctlVal")), it.value());
            QCOMPARE(members.contains("Check"), QLatin1String(service) != QLatin1String("Cancel"));
            for (const char *name : {"operTm", "origin", "ctlNum", "T", "Test"})
                QVERIFY2(members.contains(QLatin1String(name)), name);
        }
    }
}

void tst_Templates::everyReferenceFindsItsType_data()
{
    everyElementCarriesOneAttribute_data();
}

void tst_Templates::everyReferenceFindsItsType()
{
    QFETCH(QString, path);
    const Types commonClasses = readTypes(path, "DOType");
    const Types attributeTypes = readTypes(path, "DAType");
    const Enumerations enumerations = readTemplate(path);
    for (const Members &objects : readTypes(path, "LNodeType")) {
        for (const Attributes &object : objects) {
            QVERIFY2(commonClasses.contains(object.value("type")),
                     qPrintable(object.value("type")));
            if (object.contains("enum"))
                QVERIFY2(enumerations.contains(object.value("enum")),
                         qPrintable(object.value("enum")));
        }
    }
    for (const Types &types : {commonClasses, attributeTypes}) {
        for (const Members &attributes : types) {
            for (const Attributes &attribute : attributes) {
                const QString type = attribute.value("type");
                if (!attribute.contains("bType"))
                    QVERIFY2(commonClasses.contains(type), qPrintable(type));
                else if (attribute.value("bType") == QLatin1String("Struct"))
                    QVERIFY2(attributeTypes.contains(type), qPrintable(type));
                else if (!type.isEmpty())
                    QVERIFY2(enumerations.contains(type), qPrintable(type));
            }
        }
    }
}

void tst_Templates::everythingIsExplainedInASentence_data()
{
    everyElementCarriesOneAttribute_data();
}

void tst_Templates::everythingIsExplainedInASentence()
{
    QFETCH(QString, path);
    QDomDocument document;
    const QDomElement root = documentElement(path, document);
    QSet<QString> enumerations;
    QSet<QString> explained;
    const auto isSentence = [](const QDomElement &element) {
        const QString text = element.attribute(QStringLiteral("desc"));
        return text.size() >= 10 && text.size() <= 140 && text.endsWith(QLatin1Char('.')) &&
               text.contains(QLatin1Char(' '));
    };
    int sentences = 0;
    for (QDomElement type = root.firstChildElement(); !type.isNull();
         type = type.nextSiblingElement()) {
        if (type.tagName() == QLatin1String("EnumType")) {
            enumerations << type.attribute(QStringLiteral("id"));
            continue;
        }
        if (type.tagName() == QLatin1String("EnumDesc"))
            explained << type.attribute(QStringLiteral("id"));
        QVERIFY2(isSentence(type), qPrintable(type.attribute(QStringLiteral("id"))));
        for (QDomElement member = type.firstChildElement(); !member.isNull();
             member = member.nextSiblingElement()) {
            QVERIFY2(isSentence(member), qPrintable(member.attribute(QStringLiteral("name"))));
            ++sentences;
        }
    }
    QCOMPARE(explained, enumerations);
    QVERIFY(sentences > 1500);
}

void tst_Templates::theGeneratorRefusesAFaultyTable_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QByteArray>("complaint");
    const QByteArray sound = "enumeration Kind\n1 on\ncommon-data-class ENS\nstVal ST Enum M\n"
                             "class XTST\nMode ENS M Kind\n";
    QTest::newRow("sound") << sound << QByteArray();
    QTest::newRow("no explanation")
        << sound + "Bare ENS O\n"
        << QByteArray(":7: \"Bare\" has no sentence among the data-objects");
    QTest::newRow("unknown common data class")
        << sound + "Mode2 ABC M\n"
        << QByteArray(":7: \"ABC\" is not a common data class");
    QTest::newRow("unknown type") << sound + "attribute-type Vector\nstVal FLOAT7 M\n"
                                  << QByteArray(":8: \"FLOAT7\" is not a type");
    QTest::newRow("unknown constraint") << sound + "common-data-class SPS\nstVal XX BOOLEAN M\n"
                                        << QByteArray(":8: \"XX\" is not a functional constraint");
    QTest::newRow("unknown base") << sound + "class XTST2 extends NoLN\n"
                                  << QByteArray(":7: \"NoLN\" is not a base class");
    QTest::newRow("word without meaning") << sound + "Mode2 ENS M sometimes\n"
                                          << QByteArray(":7: \"sometimes\" has no meaning here");
    QTest::newRow("twice") << sound + "Mode ENS M\n" << QByteArray(":7: \"Mode\" occurs twice");
    QTest::newRow("class twice") << sound + "class XTST\nMode ENS M\n"
                                 << QByteArray(":7: \"XTST\" occurs twice");
    QTest::newRow("not enough words") << sound + "Mode2 ENS\n"
                                      << QByteArray(":7: the line needs 3 words");
    QTest::newRow("no ordinal") << sound + "enumeration Other\nx on\n"
                                << QByteArray(":8: \"x\" is not an ordinal");
}

void tst_Templates::theGeneratorRefusesAFaultyTable()
{
    QFETCH(QByteArray, table);
    QFETCH(QByteArray, complaint);
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const auto write = [&folder](const char *name, const QByteArray &content) {
        QFile file(folder.filePath(QLatin1String(name)));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
                   ? file.fileName()
                   : QString();
    };
    QStringList arguments = {QStringLiteral(GENERATOR), folder.filePath(QStringLiteral("out.xml")),
                             write("table.txt", table)};
    const QList<QPair<const char *, QByteArray>> explanations = {
        {"explanations-classes.txt", "XTST A test.\n"},
        {"explanations-data-objects.txt", "Mode A mode.\nMode2 Another mode.\n"},
        {"explanations-common-classes.txt", "ENS A status.\nSPS A status.\n"},
        {"explanations-attributes.txt", "stVal A value.\n"},
        {"explanations-attribute-types.txt", "Vector A vector.\n"},
        {"explanations-enumerations.txt", "Kind A kind.\n"}};
    for (const auto &file : explanations)
        arguments << write(file.first, file.second);
    QProcess generator;
    generator.start(QStringLiteral(PYTHON), arguments);
    QVERIFY(generator.waitForFinished());
    QCOMPARE(generator.exitStatus(), QProcess::NormalExit);
    const QByteArray said = generator.readAllStandardError();
    QCOMPARE(generator.exitCode(), complaint.isEmpty() ? 0 : 1);
    QVERIFY2(complaint.isEmpty() ? said.isEmpty() : said.contains("table.txt" + complaint),
             said.constData());
    QCOMPARE(QFile::exists(folder.filePath(QStringLiteral("out.xml"))), complaint.isEmpty());
}

QTEST_APPLESS_MAIN(tst_Templates)
#include "tst_templates.moc"
