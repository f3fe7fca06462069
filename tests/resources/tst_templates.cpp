// SPDX-License-Identifier: Apache-2.0
#include <QtTest>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

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

QTEST_APPLESS_MAIN(tst_Templates)
#include "tst_templates.moc"
