// SPDX-License-Identifier: Apache-2.0
#include "workbench/commandline.h"

#include <QtTest/QtTest>

namespace {

CommandLine parsed(const QStringList &options)
{
    return parseCommandLine(QStringList{QStringLiteral("workbench")} + options);
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class tst_CommandLine : public QObject
{
    Q_OBJECT

private slots:
    void filesAndOptionsAreUnderstood();
    void helpAndVersionAreAnswered();
    void theSentenceNamesTheOptionThatIsWrong();
    void contradictionsAreRefused_data();
    void contradictionsAreRefused();
    void onlyWhatNeedsNoDisplayRunsWithoutOne_data();
    void onlyWhatNeedsNoDisplayRunsWithoutOne();
};

void tst_CommandLine::filesAndOptionsAreUnderstood()
{
    const CommandLine window = parsed(words("--ied BAY1 --demo --plugin-dir p a.scd b.icd"));
    QCOMPARE(window.problem, QString());
    QCOMPARE(window.files, words("a.scd b.icd"));
    QCOMPARE(window.ied, QStringLiteral("BAY1"));
    QCOMPARE(window.pluginFolder, QStringLiteral("p"));
    QVERIFY(window.demonstration);
    const CommandLine check = parsed(words("--check a.scd --ied BAY1"));
    QCOMPARE(check.problem, QString());
    QCOMPARE(check.check, QStringLiteral("a.scd"));
    QCOMPARE(check.ied, QStringLiteral("BAY1"));
    QCOMPARE(parsed(words("--tour=out")).tour, QStringLiteral("out"));
}

void tst_CommandLine::helpAndVersionAreAnswered()
{
    QCoreApplication::setApplicationName(QStringLiteral("workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.3"));
    QCOMPARE(parsed(words("-v")).answer, QStringLiteral("workbench 1.2.3\n"));
    const QString help = parsed(words("a.scd --help --chekc")).answer;
    QVERIFY2(help.startsWith(QLatin1String("Usage: workbench [options] [FILE...]\n")),
             qPrintable(help));
    for (const char *option : {"-h, --help", "-v, --version", "--check <FILE>", "--ied <NAME>",
                               "--tour <DIR>", "--plugin-dir <DIR>", "--demo", "FILE"})
        QVERIFY2(help.contains(QStringLiteral("\n  %1  ").arg(QLatin1String(option))),
                 qPrintable(help));
    for (const QString &line : help.split(QLatin1Char('\n')))
        QVERIFY2(line.size() <= 79, qPrintable(line));
}

void tst_CommandLine::theSentenceNamesTheOptionThatIsWrong()
{
    QVERIFY(parsed(words("--chekc a.scd")).problem.contains(QLatin1String("--chekc")));
    QVERIFY(parsed(words("a.scd --check")).problem.contains(QLatin1String("'--check'")));
    QVERIFY(parsed(words("--demo=soon")).problem.contains(QLatin1String("soon")));
}

void tst_CommandLine::contradictionsAreRefused_data()
{
    QTest::addColumn<QString>("options");
    QTest::newRow("unknown") << QStringLiteral("--chekc a.scd");
    QTest::newRow("no value") << QStringLiteral("--check");
    QTest::newRow("empty check") << QStringLiteral("--check=");
    QTest::newRow("empty tour") << QStringLiteral("--tour=");
    QTest::newRow("check and tour") << QStringLiteral("--check a.scd --tour out");
    QTest::newRow("check and files") << QStringLiteral("--check a.scd b.scd");
    QTest::newRow("tour and files") << QStringLiteral("--tour out b.scd");
}

void tst_CommandLine::contradictionsAreRefused()
{
    QFETCH(const QString, options);
    QVERIFY(!parsed(options.split(QLatin1Char(' '))).problem.isEmpty());
}

void tst_CommandLine::onlyWhatNeedsNoDisplayRunsWithoutOne_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<bool>("expected");
    QTest::newRow("check") << QStringLiteral("--check a.scd") << true;
    QTest::newRow("check=") << QStringLiteral("--check=a.scd") << true;
    QTest::newRow("help") << QStringLiteral("--help") << true;
    QTest::newRow("version") << QStringLiteral("-v") << true;
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("file") << QStringLiteral("check.scd") << false;
    QTest::newRow("tour") << QStringLiteral("--tour out") << false;
}

void tst_CommandLine::onlyWhatNeedsNoDisplayRunsWithoutOne()
{
    QFETCH(const QString, options);
    QFETCH(const bool, expected);
    QCOMPARE(runsWithoutDisplay(options.split(QLatin1Char(' '))), expected);
}

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_commandline.moc"
