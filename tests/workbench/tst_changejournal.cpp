// SPDX-License-Identifier: Apache-2.0
#include "workbench/changejournal.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

#include <thread>

class tst_ChangeJournal : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aChangeIsInTheFileBeforeItIsInTheTable();
    void everyPartOfAChangeHasItsColumn();
    void valuesAreShownInWordsAndKeptRaw();
    void theFileKeepsWhatEarlierRunsWrote();
    void aRowThatWasCutOffDoesNotSwallowTheNext();
    void commasQuotesAndLineBreaksStayInTheirField();
    void aTextIsNoFormulaForASpreadsheet();
    void aChangeHasOneRowFromItsBeginningToItsEnd();
    void aChangeWhoseEndNeverComesIsInTheFile();
    void changesOfManyThreadsAreAllKept();
    void theTableKeepsTheNewestRows();
    void aFileThatCannotBeWrittenIsToldAndTheTableGoesOn();

private:
    QString path() const { return m_folder->filePath(QStringLiteral("logs/changes.csv")); }
    QList<QByteArray> lines() const;
    static DeviceChange change(const QString &newValue);
    /// As the driver does, then what it tells.
    static void enter(ChangeJournal &journal, const DeviceChange &change)
    {
        journal.write(change);
        journal.add(change);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_ChangeJournal::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QList<QByteArray> tst_ChangeJournal::lines() const
{
    QFile file(path());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QByteArray> lines = file.readAll().split('\n');
    for (QByteArray &line : lines)
        line = line.trimmed();
    lines.removeAll({});
    return lines;
}

DeviceChange tst_ChangeJournal::change(const QString &newValue)
{
    DeviceChange change;
    change.time = QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7, 89), Qt::UTC);
    change.caller = {QStringLiteral("clara"), QStringLiteral("room2"), QStringLiteral("iedctl 7")};
    change.number = 3;
    change.device = QStringLiteral("BAY1");
    change.operation = QStringLiteral("controlObject");
    change.reference = QStringLiteral("BAY1CTRL/CSWI1.Pos");
    change.oldValue = QStringLiteral("1");
    change.newValue = newValue;
    return change;
}

void tst_ChangeJournal::aChangeIsInTheFileBeforeItIsInTheTable()
{
    ChangeJournal journal(path());
    const QAbstractItemModelTester tester(&journal,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    enter(journal, change(QStringLiteral("2")));
    QCOMPARE(lines().size(), 2);
    QCOMPARE(journal.rowCount(), 0);
    QTRY_COMPARE(journal.rowCount(), 1);
    QVERIFY(journal.problem().isEmpty());
}

void tst_ChangeJournal::everyPartOfAChangeHasItsColumn()
{
    ChangeJournal journal(path());
    DeviceChange refused = change(QStringLiteral("2"));
    refused.error = QStringLiteral("The device refused the command.");
    refused.additionalCause = QStringLiteral("blocked by interlocking");
    enter(journal, refused);
    QCOMPARE(lines().first(), QByteArray("time,device number,device,operation,reference,old value,"
                                         "new value,result,additional cause,caller"));
    QByteArray row = lines().last();
    const int comma = row.indexOf(',');
    const QDateTime time =
        QDateTime::fromString(QString::fromLatin1(row.left(comma)), Qt::ISODateWithMs);
    QCOMPARE(time, refused.time);
    QCOMPARE(row.mid(comma), QByteArray(",3,BAY1,controlObject,BAY1CTRL/CSWI1.Pos,1,2,The device "
                                        "refused the command.,blocked by interlocking,"
                                        "clara@room2 (iedctl 7)"));
    QTRY_COMPARE(journal.rowCount(), 1);
    QStringList cells;
    for (int column = ChangeJournal::DeviceColumn; column < ChangeJournal::ColumnCount; ++column)
        cells << journal.index(0, column).data().toString();
    QCOMPARE(cells, (QStringList{QStringLiteral("BAY1 (3)"), refused.operation, refused.reference,
                                 refused.oldValue, refused.newValue, refused.error,
                                 refused.additionalCause}));
}

void tst_ChangeJournal::valuesAreShownInWordsAndKeptRaw()
{
    ChangeJournal journal(path());
    DeviceChange switched = change(QStringLiteral("2"));
    switched.oldWords = QStringLiteral("off (1)");
    switched.newWords = QStringLiteral("on (2)");
    enter(journal, switched);
    QTRY_COMPARE(journal.rowCount(), 1);
    QCOMPARE(journal.index(0, ChangeJournal::OldValueColumn).data().toString(),
             QStringLiteral("off (1)"));
    QCOMPARE(journal.index(0, ChangeJournal::NewValueColumn).data().toString(),
             QStringLiteral("on (2)"));
    QVERIFY2(lines().last().contains(",1,2,"), lines().last().constData());
}

void tst_ChangeJournal::theFileKeepsWhatEarlierRunsWrote()
{
    {
        ChangeJournal journal(path());
        enter(journal, change(QStringLiteral("first")));
    }
    ChangeJournal journal(path());
    enter(journal, change(QStringLiteral("second")));
    QCOMPARE(lines().size(), 3);
    QVERIFY(lines()[1].contains(",first,"));
    QVERIFY(lines()[2].contains(",second,"));
}

void tst_ChangeJournal::aRowThatWasCutOffDoesNotSwallowTheNext()
{
    {
        ChangeJournal journal(path());
        enter(journal, change(QStringLiteral("first")));
    }
    QFile file(path());
    QVERIFY(file.resize(file.size() - 6));
    ChangeJournal journal(path());
    enter(journal, change(QStringLiteral("second")));
    QCOMPARE(lines().size(), 3);
    QVERIFY(lines()[2].contains(",second,"));
}

void tst_ChangeJournal::commasQuotesAndLineBreaksStayInTheirField()
{
    ChangeJournal journal(path());
    enter(journal, change(QStringLiteral("a \"b\", c\nd")));
    QFile file(path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains(",\"a \"\"b\"\", c\nd\","));
}

void tst_ChangeJournal::aTextIsNoFormulaForASpreadsheet()
{
    ChangeJournal journal(path());
    enter(journal, change(QStringLiteral("=1+1")));
    enter(journal, change(QStringLiteral("-5.5")));
    QVERIFY(lines()[1].contains(",'=1+1,"));
    QVERIFY(lines()[2].contains(",-5.5,"));
}

void tst_ChangeJournal::aChangeHasOneRowFromItsBeginningToItsEnd()
{
    ChangeJournal journal(path());
    DeviceChange first = change(QStringLiteral("first"));
    first.id = 1;
    first.state = DeviceChange::State::Begun;
    enter(journal, first);
    DeviceChange second = change(QStringLiteral("second"));
    second.id = 2;
    enter(journal, second);
    first.state = DeviceChange::State::Failed;
    first.error = QStringLiteral("The device refused the command.");
    enter(journal, first);
    QTRY_COMPARE(journal.rowCount(), 2);
    QCOMPARE(lines().size(), 3);
    QVERIFY2(lines()[1].contains(",second,OK,"), lines()[1].constData());
    QVERIFY2(lines()[2].contains(",first,The device refused"), lines()[2].constData());
}

void tst_ChangeJournal::aChangeWhoseEndNeverComesIsInTheFile()
{
    {
        ChangeJournal journal(path());
        DeviceChange begun = change(QStringLiteral("2"));
        begun.id = 1;
        begun.state = DeviceChange::State::Begun;
        enter(journal, begun);
        QCOMPARE(lines().size(), 0);
    }
    QCOMPARE(lines().size(), 2);
    QVERIFY2(lines().last().contains(",2,The driver has not waited"), lines().last().constData());
}

void tst_ChangeJournal::changesOfManyThreadsAreAllKept()
{
    constexpr int threads = 4;
    constexpr int each = 250;
    ChangeJournal journal(path());
    std::vector<std::thread> writers;
    for (int i = 0; i < threads; ++i) {
        writers.emplace_back([&journal] {
            for (int n = 0; n < each; ++n)
                enter(journal, change(QString::number(n)));
        });
    }
    for (std::thread &writer : writers)
        writer.join();
    QTRY_COMPARE(journal.rowCount(), threads * each);
    QCOMPARE(lines().size(), threads * each + 1);
}

void tst_ChangeJournal::theTableKeepsTheNewestRows()
{
    ChangeJournal journal(path(), 3);
    for (int i = 0; i < 5; ++i)
        enter(journal, change(QString::number(i)));
    QTRY_COMPARE(journal.rowCount(), 3);
    QCOMPARE(journal.index(0, ChangeJournal::NewValueColumn).data().toString(),
             QStringLiteral("2"));
    QCOMPARE(lines().size(), 6);
}

void tst_ChangeJournal::aFileThatCannotBeWrittenIsToldAndTheTableGoesOn()
{
    // A folder in the place of the file cannot be written, not even by the superuser.
    QVERIFY(QDir().mkpath(path()));
    ChangeJournal journal(path());
    QSignalSpy problem(&journal, &ChangeJournal::problemChanged);
    enter(journal, change(QStringLiteral("2")));
    enter(journal, change(QStringLiteral("3")));
    QTRY_COMPARE(journal.rowCount(), 2);
    QCOMPARE(problem.size(), 1);
    QVERIFY2(journal.problem().contains(path()), qPrintable(journal.problem()));
}

QTEST_GUILESS_MAIN(tst_ChangeJournal)
#include "tst_changejournal.moc"
