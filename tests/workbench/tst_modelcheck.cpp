// SPDX-License-Identifier: Apache-2.0
#include "workbench/modelcheck.h"

#include <QtCore/QBuffer>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

namespace {

struct Report
{
    int status = -1;
    QJsonObject json;
};

Report check(const char *fixture, const QString &ied = {})
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Report report;
    report.status =
        checkModel(QStringLiteral(SCL_FIXTURES "/") + QLatin1String(fixture), ied, buffer);
    report.json = QJsonDocument::fromJson(buffer.data()).object();
    return report;
}

} // namespace

class tst_ModelCheck : public QObject
{
    Q_OBJECT

private slots:
    void aConsistentFileIsListedWithItsNumbers();
    void findingsAreListedAndErrorsSetTheStatus();
    void remarksWithoutErrorsKeepTheStatus();
    void oneIedCanBeChosen();
    void aFileThatCannotBeUsedGivesOneSentence_data();
    void aFileThatCannotBeUsedGivesOneSentence();
    void anOutputThatCannotBeWrittenIsAFailure();
};

void tst_ModelCheck::aConsistentFileIsListedWithItsNumbers()
{
    const Report report = check("device.icd");
    QCOMPARE(report.status, 0);
    QVERIFY(report.json[QLatin1String("file")].toString().endsWith(QLatin1String("device.icd")));
    QCOMPARE(report.json[QLatin1String("edition")].toString(), QStringLiteral("2.1"));
    QCOMPARE(report.json[QLatin1String("schemaVersion")].toString(), QStringLiteral("2007B4"));
    const QJsonObject expected{{QStringLiteral("name"), QStringLiteral("BAY1")},
                               {QStringLiteral("logicalDevices"), 2},
                               {QStringLiteral("logicalNodes"), 5},
                               {QStringLiteral("dataObjects"), 5},
                               {QStringLiteral("attributes"), 28},
                               {QStringLiteral("dataSets"), 1},
                               {QStringLiteral("dataSetMembers"), 4},
                               {QStringLiteral("bufferedReports"), 3},
                               {QStringLiteral("unbufferedReports"), 2}};
    QCOMPARE(report.json[QLatin1String("ieds")].toArray(), QJsonArray{expected});
    QVERIFY(report.json[QLatin1String("findings")].toArray().isEmpty());
    QVERIFY(!report.json.contains(QLatin1String("error")));
}

void tst_ModelCheck::findingsAreListedAndErrorsSetTheStatus()
{
    const Report report = check("missing-dotype.icd");
    QCOMPARE(report.status, 1);
    const QJsonArray findings = report.json[QLatin1String("findings")].toArray();
    QCOMPARE(findings.size(), 1);
    const QJsonObject finding = findings[0].toObject();
    QCOMPARE(finding[QLatin1String("severity")].toString(), QStringLiteral("error"));
    QCOMPARE(finding[QLatin1String("line")].toInt(), 23);
    QCOMPARE(finding[QLatin1String("path")].toString(),
             QStringLiteral("SCL/DataTypeTemplates/LNodeType[In]/DO[Ind1]"));
    QCOMPARE(finding[QLatin1String("text")].toString(),
             QStringLiteral("The DOType \"Gone\" does not exist."));
}

void tst_ModelCheck::remarksWithoutErrorsKeepTheStatus()
{
    const Report warned = check("class-mismatch.icd");
    QCOMPARE(warned.status, 0);
    QCOMPARE(warned.json[QLatin1String("findings")]
                 .toArray()[0]
                 .toObject()[QLatin1String("severity")]
                 .toString(),
             QStringLiteral("warning"));
    const Report informed = check("no-namespace.icd");
    QCOMPARE(informed.status, 0);
    QCOMPARE(informed.json[QLatin1String("edition")].toString(), QStringLiteral("1"));
    QCOMPARE(informed.json[QLatin1String("findings")]
                 .toArray()[0]
                 .toObject()[QLatin1String("severity")]
                 .toString(),
             QStringLiteral("info"));
}

void tst_ModelCheck::oneIedCanBeChosen()
{
    QCOMPARE(check("structure-mistakes.scd").json[QLatin1String("ieds")].toArray().size(), 2);
    const Report chosen = check("structure-mistakes.scd", QStringLiteral("A"));
    QCOMPARE(chosen.status, 1);
    QCOMPARE(chosen.json[QLatin1String("ieds")].toArray().size(), 1);
    const Report unknown = check("structure-mistakes.scd", QStringLiteral("B"));
    QCOMPARE(unknown.status, 2);
    QCOMPARE(unknown.json[QLatin1String("error")].toString(),
             QStringLiteral("There is no IED \"B\" in the file."));
}

void tst_ModelCheck::aFileThatCannotBeUsedGivesOneSentence_data()
{
    QTest::addColumn<QByteArray>("fixture");
    QTest::addColumn<QString>("part");
    QTest::newRow("not well-formed") << QByteArray("not-well-formed.icd") << "Line 6: ";
    QTest::newRow("another kind") << QByteArray("not-scl.xml") << "not an SCL file";
    QTest::newRow("entities") << QByteArray("entity.icd") << "entity";
    QTest::newRow("missing") << QByteArray("no such file.icd") << "cannot be opened";
    QTest::newRow("directory") << QByteArray(".") << "directory";
}

void tst_ModelCheck::aFileThatCannotBeUsedGivesOneSentence()
{
    QFETCH(QByteArray, fixture);
    QFETCH(QString, part);
    const Report report = check(fixture.constData());
    QCOMPARE(report.status, 2);
    QCOMPARE(report.json.keys(), (QStringList{QStringLiteral("error"), QStringLiteral("file")}));
    const QString error = report.json[QLatin1String("error")].toString();
    QVERIFY2(error.contains(part), qPrintable(error));
    QVERIFY2(error.endsWith(QLatin1Char('.')), qPrintable(error));
}

void tst_ModelCheck::anOutputThatCannotBeWrittenIsAFailure()
{
    QBuffer closed;
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QBuffer): device not open");
    QCOMPARE(checkModel(QStringLiteral(SCL_FIXTURES "/device.icd"), {}, closed), 2);
}

QTEST_GUILESS_MAIN(tst_ModelCheck)
#include "tst_modelcheck.moc"
