// SPDX-License-Identifier: Apache-2.0
#include "iedctl/commandline.h"

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryFile>
#include <QtTest/QtTest>

#include <unistd.h>

namespace {

Invocation accepted(const QStringList &arguments)
{
    const auto parsed = parseCommandLine(arguments);
    if (const auto *answer = std::get_if<Answer>(&parsed))
        qFatal("%s", qPrintable(answer->text));
    return std::get<Invocation>(parsed);
}

Answer refused(const QStringList &arguments)
{
    const auto parsed = parseCommandLine(arguments);
    return std::holds_alternative<Answer>(parsed) ? std::get<Answer>(parsed) : Answer();
}

} // namespace

class tst_IedctlCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void theAddressIsTakenApart_data();
    void theAddressIsTakenApart();
    void aWrongPortIsRefused_data();
    void aWrongPortIsRefused();
    void withoutADeviceNothingRuns();
    void anUnknownCommandIsNamed();
    void aMissingArgumentIsNamed();
    void helpListsEveryCommand();
    void theHelpOfAllHasThePartsOfEachFamily();
    void everyCommandExplainsWhatItTakes_data();
    void everyCommandExplainsWhatItTakes();
    void optionsReachTheDevice();
    void optionsOfTlsReachTheDevice();
    void otherNamesAreAcceptedOnlyOnRequest();
    void theAccessPointReachesTheDevice();
    void passwordsComeFromAFileOrADescriptor();
    void batchReadsStandardInputUnlessAFileIsGiven();
    void aBatchLineKnowsNoOptionsOfTheProgram();
    void everyCommandIsUnderstood_data();
    void everyCommandIsUnderstood();
    void theManualPageNamesEveryCommandAndOption();
};

void tst_IedctlCommandLine::theAddressIsTakenApart_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");
    QTest::newRow("host") << "bay1"
                          << "bay1" << 102;
    QTest::newRow("host and port") << "192.0.2.7:10102"
                                   << "192.0.2.7" << 10102;
    QTest::newRow("IPv6") << "2001:db8::7"
                          << "2001:db8::7" << 102;
    QTest::newRow("IPv6 and port") << "[2001:db8::7]:10102"
                                   << "2001:db8::7" << 10102;
}

void tst_IedctlCommandLine::theAddressIsTakenApart()
{
    QFETCH(QString, address);
    const Invocation invocation = accepted({"--connect", address, "model"});
    QTEST(invocation.device.host, "host");
    QTEST(invocation.device.port, "port");
}

void tst_IedctlCommandLine::aWrongPortIsRefused_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("text") << "bay1:mms";
    QTest::newRow("zero") << "bay1:0";
    QTest::newRow("too large") << "bay1:65536";
    QTest::newRow("no host") << ":102";
}

void tst_IedctlCommandLine::aWrongPortIsRefused()
{
    QFETCH(QString, address);
    const Answer answer = refused({"--connect", address, "model"});
    QVERIFY(answer.isError);
    QCOMPARE(answer.status, ExitStatus::Usage);
}

void tst_IedctlCommandLine::withoutADeviceNothingRuns()
{
    const Answer answer = refused({"model"});
    QVERIFY(answer.isError);
    QVERIFY2(answer.text.contains("--connect"), qPrintable(answer.text));
}

void tst_IedctlCommandLine::anUnknownCommandIsNamed()
{
    QCOMPARE(refused({"--connect", "bay1", "mdoel"}).text, "There is no command \"mdoel\".");
    QCOMPARE(refused({"--connect", "bay1", "report", "lsit"}).text,
             "There is no command \"lsit\".");
    const auto inBatch = parseBatchLine("fiel list");
    QCOMPARE(std::get<Answer>(inBatch).text, "There is no command \"fiel\".");
}

void tst_IedctlCommandLine::aMissingArgumentIsNamed()
{
    const Answer answer = refused({"--connect", "bay1", "write", "LD0/LLN0.Mod.stVal"});
    QVERIFY(answer.isError);
    QVERIFY2(answer.text.contains("value"), qPrintable(answer.text));
}

void tst_IedctlCommandLine::helpListsEveryCommand()
{
    const Answer answer = refused({"--help"});
    QVERIFY(!answer.isError);
    QCOMPARE(answer.status, ExitStatus::Done);
    for (const char *command : {"model", "read", "write", "watch", "directory", "dataset", "report",
                                "select", "operate", "cancel", "group", "file", "batch"})
        QVERIFY2(answer.text.contains(command), command);
}

void tst_IedctlCommandLine::theHelpOfAllHasThePartsOfEachFamily()
{
    const Answer answer = refused({"--help-all"});
    QVERIFY(!answer.isError);
    for (const char *part :
         {"Usage: iedctl report enable", "--optflds", "Usage: iedctl group write", "--overwrite",
          "Usage: iedctl operate", "--interlock", "Usage: iedctl batch", "--connect"})
        QVERIFY2(answer.text.contains(part), part);
}

void tst_IedctlCommandLine::everyCommandExplainsWhatItTakes_data()
{
    QTest::addColumn<QStringList>("command");
    for (const char *command :
         {"model",          "directory",    "abort",        "read",           "write",
          "watch",          "dataset list", "dataset show", "dataset read",   "dataset create",
          "dataset delete", "report list",  "report show",  "report set",     "report enable",
          "report disable", "report gi",    "report purge", "select",         "operate",
          "cancel",         "group show",   "group read",   "group activate", "group edit",
          "group write",    "file ls",      "file get",     "file put",       "file rm",
          "batch"})
        QTest::newRow(command) << QString(command).split(' ');
}

void tst_IedctlCommandLine::everyCommandExplainsWhatItTakes()
{
    QFETCH(QStringList, command);
    const Answer answer = refused(command + QStringList("--help"));
    QVERIFY(!answer.isError);
    QVERIFY2(answer.text.contains("--connect"), "says nothing of the program's options");
    // A line with a name has a word of explanation, on it or on the next.
    const QStringList lines = answer.text.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        QVERIFY2(lines.at(i).size() <= 100, qPrintable(lines.at(i)));
        static const QRegularExpression nameAlone("^  \\S+( \\S+)*$");
        static const QRegularExpression explanation("^ {20,}\\S");
        if (!nameAlone.match(lines.at(i)).hasMatch() || lines.at(i).contains("   "))
            continue;
        QVERIFY2(i + 1 < lines.size() && explanation.match(lines.at(i + 1)).hasMatch(),
                 qPrintable(lines.at(i)));
    }
    // Types of the parser's own say nothing to an operator.
    QVERIFY2(!answer.text.contains(" INT"), qPrintable(answer.text));
}

void tst_IedctlCommandLine::optionsReachTheDevice()
{
    const Invocation invocation = accepted({"--connect", "bay1", "--timeout", "2.5", "--password",
                                            "secret", "--json", "--read-only", "model"});
    QCOMPARE(invocation.device.callTimeout, std::chrono::milliseconds(2500));
    QCOMPARE(invocation.device.password, QString("secret"));
    QVERIFY(invocation.json);
    QVERIFY(invocation.readOnly);
    QCOMPARE(invocation.device.faults(), QStringList());
    for (const char *limit : {"0.1", "600"}) {
        const Invocation extreme = accepted({"--connect", "bay1", "--timeout", limit, "model"});
        QCOMPARE(extreme.device.faults(), QStringList());
    }
}

void tst_IedctlCommandLine::optionsOfTlsReachTheDevice()
{
    const QString pin(64, QLatin1Char('a'));
    const Invocation invocation = accepted(
        {"--connect", "192.0.2.7", "--tls-ca", "a.pem", "--tls-ca", "b.pem", "--tls-pin", pin,
         "--tls-crl", "a.crl", "--tls-crl", "b.crl", "--tls-name", "bay1.example", "model"});
    const TlsConfiguration &tls = invocation.device.tls;
    QVERIFY(tls.enabled);
    QCOMPARE(tls.authorityFiles, QStringList({"a.pem", "b.pem"}));
    QCOMPARE(tls.pins, QStringList(pin));
    QCOMPARE(tls.revocationFiles, QStringList({"a.crl", "b.crl"}));
    QCOMPARE(tls.peerName, QString("bay1.example"));

    QVERIFY(accepted({"--connect", "bay1", "--tls-pin", pin, "model"}).device.tls.enabled);
    QVERIFY(!accepted({"--connect", "bay1", "model"}).device.tls.enabled);
    for (const char *option : {"--tls-name", "--tls-crl"}) {
        const Answer answer = refused({"--connect", "bay1", option, "x", "model"});
        QVERIFY2(answer.isError && answer.text.contains("--tls-ca"), qPrintable(answer.text));
    }
}

void tst_IedctlCommandLine::otherNamesAreAcceptedOnlyOnRequest()
{
    const QStringList connected{"--connect", "bay1", "--tls-ca", "a.pem"};
    QVERIFY(!accepted(connected + QStringList("model")).device.tls.acceptsOtherNames);
    const QStringList wanted = connected + QStringList({"--tls-accept-other-names", "model"});
    QVERIFY(accepted(wanted).device.tls.acceptsOtherNames);
    // Without TLS, and beside a name that is to be found, it means nothing.
    QVERIFY(refused({"--connect", "bay1", "--tls-accept-other-names", "model"}).isError);
    QVERIFY(refused(QStringList({"--tls-name", "bay2"}) + wanted).isError);
    const QString help = refused({"--help"}).text.simplified();
    QVERIFY2(help.contains("Unsafe: whoever holds the key"), qPrintable(help));
}

void tst_IedctlCommandLine::theAccessPointReachesTheDevice()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    QCOMPARE(
        accepted({"--scl", file.fileName(), "--access-point", "S2", "model"}).device.accessPoint,
        QString("S2"));
    QVERIFY(refused({"--connect", "bay1", "--access-point", "S2", "model"}).isError);
}

void tst_IedctlCommandLine::passwordsComeFromAFileOrADescriptor()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("from the file\r\nnot this\n");
    file.flush();
    QCOMPARE(accepted({"--connect", "bay1", "--password-file", file.fileName(), "model"})
                 .device.password,
             QString("from the file"));
    int ends[2] = {-1, -1};
    QCOMPARE(pipe(ends), 0);
    const QByteArray sent = "from the pipe\nmodel\n";
    QCOMPARE(write(ends[1], sent.constData(), static_cast<std::size_t>(sent.size())),
             static_cast<ssize_t>(sent.size()));
    QCOMPARE(accepted({"--connect", "bay1", "--password-fd", QString::number(ends[0]), "model"})
                 .device.password,
             QString("from the pipe"));
    // What follows is left for the batch.
    char rest[16] = {};
    QCOMPARE(read(ends[0], rest, sizeof rest), static_cast<ssize_t>(6));
    close(ends[0]);
    close(ends[1]);

    Answer answer = refused({"--connect", "bay1", "--password-file", "/nowhere/at/all", "model"});
    QVERIFY2(answer.isError && answer.text.contains("/nowhere/at/all"), qPrintable(answer.text));
    QCOMPARE(answer.status, ExitStatus::Usage);
    QTemporaryFile empty;
    QVERIFY(empty.open());
    answer = refused({"--connect", "bay1", "--password-file", empty.fileName(), "model"});
    QVERIFY2(answer.text.contains("holds no password"), qPrintable(answer.text));
    answer = refused(
        {"--connect", "bay1", "--password", "a", "--password-file", file.fileName(), "model"});
    QVERIFY(answer.isError);
}

void tst_IedctlCommandLine::batchReadsStandardInputUnlessAFileIsGiven()
{
    QCOMPARE(accepted({"--connect", "bay1", "batch"}).batch, QString("-"));
    QCOMPARE(accepted({"--connect", "bay1", "batch", "night.txt"}).batch, QString("night.txt"));
}

void tst_IedctlCommandLine::aBatchLineKnowsNoOptionsOfTheProgram()
{
    QVERIFY(std::holds_alternative<Invocation>(parseBatchLine("read LD0/LLN0.Mod")));
    QVERIFY(std::get<Invocation>(parseBatchLine("write LD0/LLN0.d \"two words\"")).command);
    QVERIFY(std::get<Answer>(parseBatchLine("--connect bay1 model")).isError);
    QVERIFY(std::get<Answer>(parseBatchLine("batch")).isError);
}

void tst_IedctlCommandLine::everyCommandIsUnderstood_data()
{
    QTest::addColumn<QString>("line");
    for (const char *line : {"model -a",
                             "directory",
                             "directory LD0 --datasets",
                             "directory LD0/LLN0 --reports",
                             "directory LD0 --settings",
                             "abort",
                             "read LD0/MMXU1.A LD0/MMXU1.PhV",
                             "write LD0/LLN0.Mod.d text",
                             "watch --count 3 --seconds 4",
                             "dataset list",
                             "dataset show LD0/LLN0$Trips",
                             "dataset read LD0/LLN0$Trips",
                             "dataset create @mine LD0/MMXU1.A",
                             "dataset delete @mine",
                             "report list",
                             "report show LD0/LLN0$BR$b01",
                             "report set LD0/LLN0$BR$b01 IntgPd=1000",
                             "report enable LD0/LLN0$BR$b01 --gi --trgops dchg,gi",
                             "report disable LD0/LLN0$BR$b01",
                             "report gi LD0/LLN0$BR$b01",
                             "report purge LD0/LLN0$BR$b01",
                             "select LD0/CSWI1.Pos --value on",
                             "operate LD0/CSWI1.Pos --value on --test --interlock",
                             "operate LD0/CSWI1.Pos --selected",
                             "cancel LD0/CSWI1.Pos --synchro",
                             "group show LD0",
                             "group read LD0 --edited",
                             "group activate LD0 2",
                             "group edit LD0 2",
                             "group write LD0 --group 2 PTOC1$SE$StrVal=3",
                             "file get a.cfg b.cfg --overwrite",
                             "file ls",
                             "file ls COMTRADE",
                             "file get a.cfg b.cfg",
                             "file put a.cfg",
                             "file rm a.cfg"})
        QTest::newRow(line) << QString(line);
}

void tst_IedctlCommandLine::everyCommandIsUnderstood()
{
    QFETCH(QString, line);
    const auto parsed = parseBatchLine(line);
    if (const auto *answer = std::get_if<Answer>(&parsed))
        QFAIL(qPrintable(answer->text));
    QVERIFY(std::get<Invocation>(parsed).command);
}

void tst_IedctlCommandLine::theManualPageNamesEveryCommandAndOption()
{
    const QString page = manualPage();
    QVERIFY(page.startsWith(".TH IEDCTL 1"));
    for (const char *heading : {"\"report enable\"", "\"file put\"", "\"group write\"",
                                "\"dataset create\"", "\"operate\"", "\"batch\""})
        QVERIFY2(page.contains(QString(".SS ") + heading), heading);
    QVERIFY(page.contains("\\-\\-interlock"));
    QVERIFY(page.contains("EXIT STATUS"));
}

QTEST_APPLESS_MAIN(tst_IedctlCommandLine)
#include "tst_commandline.moc"
