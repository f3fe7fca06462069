// SPDX-License-Identifier: Apache-2.0
#include "driver/simulatedstation.h"
#include "simulator/directoryfiles.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QTcpServer>
#include <QtTest/QtTest>

#include <atomic>
#include <csignal>
#include <memory>

using drivertest::SimulatedIed;

namespace {

struct Ended
{
    int status = -1;
    QString output;
    QString complaint;

    QJsonArray rows() const { return QJsonDocument::fromJson(output.toUtf8()).array(); }
};

const QString phaseA = QStringLiteral("BAY1E1MEAS/MMXU1$MX$A$phsA$cVal$mag$f");

} // namespace

/// The program against a simulated bay on loopback.
class tst_IedctlProcess : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void theModelOfTheDeviceIsListed();
    void valuesAreReadFromTheDevice();
    void optionsMayStandBehindTheCommand();
    void aWrittenValueIsReadBack();
    void aRefusedWriteEndsWithTheReason();
    void aValueOutOfRangeIsNotSent();
    void aDataSetIsMadeReadAndDeleted();
    void watchingShowsChangesOneALine();
    void aWatchSeesChangesAndEndsOrderly();
    void aBatchRunsWithinOneAssociation();
    void anObjectIsSelectedOperatedAndSeenToMove();
    void aRefusedCommandEndsWithTheCause();
    void anEnabledReportShowsItsValues();
    void aSettingGroupIsActivatedAndRead();
    void filesTravelBothWays();
    void withoutATerminalNoFileIsReplaced();
    void settingsAreWrittenByTheNamesThatReadShows();
    void anInterruptCancelsWhatWaitsForTheDevice();
    void nothingIsChangedReadOnly();
    void aDeviceThatIsNotThereEndsWithThree();
    void aSilentDeviceEndsInTime();
    void thePageAndTheHelpNeedNoDevice();

private:
    Ended run(const QStringList &arguments, const QByteArray &input = {}) const;
    QStringList connected(const QStringList &command) const;

    QTemporaryDir m_files;
    std::unique_ptr<SimulatedIed> m_bay;
};

void tst_IedctlProcess::initTestCase()
{
    sim::FileOptions files;
    files.directory = m_files.path().toStdString();
    const auto service = sim::DirectoryFiles::create(files);
    QVERIFY(service.ok());
    sim::DeviceOptions options;
    options.files = *service;
    m_bay = std::make_unique<SimulatedIed>(QStringLiteral(STATION_FILE), QString(), std::string(),
                                           options);
}

void tst_IedctlProcess::cleanupTestCase()
{
    m_bay.reset();
}

Ended tst_IedctlProcess::run(const QStringList &arguments, const QByteArray &input) const
{
    QProcess process;
    process.start(QStringLiteral(IEDCTL), arguments);
    process.write(input);
    process.closeWriteChannel();
    Ended ended;
    if (!process.waitForFinished(30000) || process.exitStatus() != QProcess::NormalExit)
        return ended;
    ended.status = process.exitCode();
    ended.output = QString::fromUtf8(process.readAllStandardOutput());
    ended.complaint = QString::fromUtf8(process.readAllStandardError());
    return ended;
}

QStringList tst_IedctlProcess::connected(const QStringList &command) const
{
    return QStringList{QStringLiteral("--connect"),
                       QStringLiteral("127.0.0.1:%1").arg(m_bay->port())} +
           command;
}

void tst_IedctlProcess::theModelOfTheDeviceIsListed()
{
    const Ended ended = run(connected({QStringLiteral("model")}));
    QCOMPARE(ended.status, 0);
    QVERIFY(ended.output.contains(QLatin1String("BAY1E1CTRL/QA1CSWI1.Pos")));
    QVERIFY(ended.output.contains(QLatin1String("BAY1E1CTRL/LLN0$BR$brcbPositions01")));
    QCOMPARE(ended.complaint, QString());
}

void tst_IedctlProcess::valuesAreReadFromTheDevice()
{
    m_bay->set("BAY1E1MEAS", "MMXU1$MX$A$phsA$cVal$mag$f", mms::Data::float32(417.25F));
    const Ended ended = run(connected(
        {QStringLiteral("--json"), QStringLiteral("read"), QStringLiteral("BAY1E1MEAS/MMXU1.A")}));
    QCOMPARE(ended.complaint, QString());
    QCOMPARE(ended.status, 0);
    QJsonObject found;
    for (const QJsonValue &row : ended.rows()) {
        if (row.toObject().value(QLatin1String("reference")) == phaseA)
            found = row.toObject();
    }
    QCOMPARE(found.value(QLatin1String("value")).toDouble(), 417.25);
    QCOMPARE(found.value(QLatin1String("type")).toString(), QStringLiteral("FLOAT32"));
}

void tst_IedctlProcess::optionsMayStandBehindTheCommand()
{
    const Ended ended =
        run({QStringLiteral("read"), phaseA, QStringLiteral("--json"), QStringLiteral("--connect"),
             QStringLiteral("127.0.0.1:%1").arg(m_bay->port())});
    QCOMPARE(ended.complaint, QString());
    QCOMPARE(ended.rows().size(), 1);
}

void tst_IedctlProcess::aWrittenValueIsReadBack()
{
    const Ended ended = run(connected({QStringLiteral("write"),
                                       QStringLiteral("BAY1E1MEAS/MMXU1.A.phsA.units.multiplier"),
                                       QStringLiteral("3")}));
    QCOMPARE(ended.complaint, QString());
    QCOMPARE(ended.status, 0);
    QVERIFY2(ended.output.trimmed().endsWith(QLatin1String("k (3)")), qPrintable(ended.output));
    QCOMPARE(m_bay->value("BAY1E1MEAS", "MMXU1$CF$A$phsA$units$multiplier"), mms::Data::integer(3));
}

void tst_IedctlProcess::aRefusedWriteEndsWithTheReason()
{
    const Ended ended = run(connected({QStringLiteral("write"), phaseA, QStringLiteral("1")}));
    QCOMPARE(ended.status, 1);
    QVERIFY2(ended.complaint.contains(QLatin1String("denied")), qPrintable(ended.complaint));
}

void tst_IedctlProcess::aValueOutOfRangeIsNotSent()
{
    const Ended ended = run(connected({QStringLiteral("write"),
                                       QStringLiteral("BAY1E1MEAS/MMXU1.A.phsA.units.multiplier"),
                                       QStringLiteral("300")}));
    QCOMPARE(ended.status, 1);
    QVERIFY2(ended.complaint.contains(QLatin1String("300 does not fit")),
             qPrintable(ended.complaint));
}

void tst_IedctlProcess::aDataSetIsMadeReadAndDeleted()
{
    const QString name = QStringLiteral("BAY1E1CTRL/LLN0$Evening");
    const auto dataSet = [&](const QString &action, const QStringList &rest = {}) {
        return run(connected(QStringList{QStringLiteral("dataset"), action, name} + rest));
    };
    QCOMPARE(dataSet(QStringLiteral("create"), {QStringLiteral("BAY1E1CTRL/QA1CSWI1.Pos[ST]")})
                 .complaint,
             QString());
    const Ended shown = dataSet(QStringLiteral("show"));
    QCOMPARE(shown.output.trimmed(), QStringLiteral("BAY1E1CTRL/QA1CSWI1$ST$Pos"));
    const Ended read = dataSet(QStringLiteral("read"));
    QVERIFY2(read.output.contains(QLatin1String("BAY1E1CTRL/QA1CSWI1$ST$Pos$stVal")),
             qPrintable(read.output + read.complaint));
    QCOMPARE(dataSet(QStringLiteral("delete")).status, 0);
    const Ended again = dataSet(QStringLiteral("delete"));
    QCOMPARE(again.status, 1);
    QVERIFY2(again.complaint.contains(name), qPrintable(again.complaint));
}

void tst_IedctlProcess::watchingShowsChangesOneALine()
{
    m_bay->set("BAY1E1MEAS", "MMXU1$MX$A$phsA$cVal$mag$f", mms::Data::float32(12.5F));
    const Ended ended = run(connected({QStringLiteral("watch"), QStringLiteral("--json"),
                                       QStringLiteral("--count"), QStringLiteral("1"), phaseA}));
    QCOMPARE(ended.complaint, QString());
    QCOMPARE(ended.status, 0);
    const QJsonObject line = QJsonDocument::fromJson(ended.output.toUtf8()).object();
    QCOMPARE(line.value(QLatin1String("reference")).toString(), phaseA);
    QCOMPARE(line.value(QLatin1String("value")).toDouble(), 12.5);
}

void tst_IedctlProcess::aWatchSeesChangesAndEndsOrderly()
{
    QProcess process;
    process.start(QStringLiteral(IEDCTL), connected({QStringLiteral("watch"), phaseA}));
    QVERIFY(process.waitForStarted());
    const auto nextLine = [&process] {
        while (!process.canReadLine()) {
            if (!process.waitForReadyRead(10000))
                return QString();
        }
        return QString::fromUtf8(process.readLine());
    };
    QVERIFY(!nextLine().isEmpty());
    // No report brings it, so it is looked for.
    m_bay->set("BAY1E1MEAS", "MMXU1$MX$A$phsA$cVal$mag$f", mms::Data::float32(77.5F));
    QString line;
    do {
        line = nextLine();
        QVERIFY(!line.isEmpty());
    } while (!line.contains(QLatin1String("77.5")));
    process.terminate();
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

void tst_IedctlProcess::aBatchRunsWithinOneAssociation()
{
    // A data set of the association would be gone in a second one.
    const Ended ended = run(connected({QStringLiteral("batch")}),
                            "dataset create @brief BAY1E1CTRL/QA1CSWI1.Pos[ST]\n"
                            "dataset show @brief\n"
                            "dataset delete @brief\n");
    QCOMPARE(ended.complaint, QString());
    QCOMPARE(ended.status, 0);
    QVERIFY2(ended.output.contains(QLatin1String("BAY1E1CTRL/QA1CSWI1$ST$Pos")),
             qPrintable(ended.output));
}

void tst_IedctlProcess::anObjectIsSelectedOperatedAndSeenToMove()
{
    const auto position = [this](const char *item) { return m_bay->value("BAY1E1CTRL", item); };
    const auto breakerBefore = position("QA1XCBR1$ST$Pos$stVal");
    const auto disconnectorBefore = position("QB1XSWI1$ST$Pos$stVal");
    const Ended ended =
        run(connected({QStringLiteral("operate"), QStringLiteral("BAY1E1CTRL/QB1CSWI1.Pos"),
                       QStringLiteral("--value"), QStringLiteral("off")}));
    QCOMPARE(ended.complaint, QString());
    QCOMPARE(ended.status, 0);
    // The disconnector of the switch controller's own prefix moves, and no other switch.
    QVERIFY(position("QB1XSWI1$ST$Pos$stVal") != disconnectorBefore);
    QVERIFY(position("QA1XCBR1$ST$Pos$stVal") == breakerBefore);
}

void tst_IedctlProcess::aRefusedCommandEndsWithTheCause()
{
    const Ended ended =
        run(connected({QStringLiteral("operate"), QStringLiteral("BAY1E1CTRL/QB1CSWI1.Pos"),
                       QStringLiteral("--value"), QStringLiteral("off")}));
    QCOMPARE(ended.status, 1);
    QVERIFY2(ended.complaint.contains(QLatin1String("position has been reached")),
             qPrintable(ended.complaint));
}

void tst_IedctlProcess::anEnabledReportShowsItsValues()
{
    const QString block = QStringLiteral("BAY1E1MEAS/LLN0$RP$urcbMeasurands01");
    const Ended ended = run(connected({QStringLiteral("report"), QStringLiteral("enable"), block,
                                       QStringLiteral("--gi"), QStringLiteral("--count"),
                                       QStringLiteral("1"), QStringLiteral("--json")}));
    QCOMPARE(ended.complaint, QString());
    QCOMPARE(ended.status, 0);
    QVERIFY2(ended.output.contains(QLatin1String("BAY1E1MEAS/MMXU1$MX$")),
             qPrintable(ended.output));
    const Ended shown = run(connected({QStringLiteral("report"), QStringLiteral("show"), block}));
    QVERIFY2(shown.output.contains(QLatin1String("Measurands")), qPrintable(shown.output));
    // It was disabled at the end.
    QCOMPARE(m_bay->value("BAY1E1MEAS", "LLN0$RP$urcbMeasurands01$RptEna"),
             mms::Data::boolean(false));
}

void tst_IedctlProcess::aSettingGroupIsActivatedAndRead()
{
    const auto group = [this](const QStringList &words) {
        return run(connected(QStringList{QStringLiteral("group")} + words));
    };
    const QString device = QStringLiteral("BAY1E1PROT");
    const Ended activated = group({QStringLiteral("activate"), device, QStringLiteral("2")});
    QCOMPARE(activated.complaint, QString());
    QCOMPARE(m_bay->value(device.toStdString(), "LLN0$SP$SGCB$ActSG").toInteger(),
             std::optional<std::int64_t>(2));
    const Ended read = group({QStringLiteral("read"), device, QStringLiteral("--json")});
    QCOMPARE(read.complaint, QString());
    QVERIFY(!read.rows().isEmpty());
    const Ended none = group({QStringLiteral("activate"), device, QStringLiteral("9")});
    QCOMPARE(none.status, 1);
    QCOMPARE(none.complaint.count(QLatin1Char('\n')), 1);
}

void tst_IedctlProcess::filesTravelBothWays()
{
    const auto file = [this](const QStringList &words) {
        return run(connected(QStringList{QStringLiteral("file")} + words));
    };
    QTemporaryDir local;
    const QString sent = local.filePath(QStringLiteral("sent.txt"));
    const QString fetched = local.filePath(QStringLiteral("fetched.txt"));
    const QByteArray content(70000, 'r');
    QFile source(sent);
    QVERIFY(source.open(QIODevice::WriteOnly));
    QCOMPARE(source.write(content), qint64(content.size()));
    source.close();

    QCOMPARE(file({QStringLiteral("put"), sent, QStringLiteral("record.txt")}).complaint,
             QString());
    QVERIFY(file({QStringLiteral("ls")}).output.contains(QLatin1String("record.txt")));
    QCOMPARE(file({QStringLiteral("get"), QStringLiteral("record.txt"), fetched}).complaint,
             QString());
    QFile result(fetched);
    QVERIFY(result.open(QIODevice::ReadOnly));
    QCOMPARE(result.readAll(), content);
    QCOMPARE(file({QStringLiteral("rm"), QStringLiteral("record.txt")}).status, 0);
    QCOMPARE(file({QStringLiteral("get"), QStringLiteral("record.txt"), fetched}).status, 1);
}

void tst_IedctlProcess::withoutATerminalNoFileIsReplaced()
{
    QFile served(m_files.filePath(QStringLiteral("there.txt")));
    QVERIFY(served.open(QIODevice::WriteOnly));
    served.write("new");
    served.close();
    QTemporaryDir local;
    QFile kept(local.filePath(QStringLiteral("there.txt")));
    QVERIFY(kept.open(QIODevice::WriteOnly));
    kept.write("old");
    kept.close();
    const QStringList get = connected(
        {QStringLiteral("file"), QStringLiteral("get"), QStringLiteral("there.txt"), local.path()});
    // What stands on the standard input is no answer.
    const Ended refused = run(get, "y\n");
    QCOMPARE(refused.status, 1);
    QVERIFY2(refused.complaint.contains(QLatin1String("--overwrite")),
             qPrintable(refused.complaint));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), QByteArray("old"));
    kept.close();
    const Ended replaced = run(get + QStringList(QStringLiteral("--overwrite")));
    QCOMPARE(replaced.complaint, QString());
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), QByteArray("new"));
}

void tst_IedctlProcess::settingsAreWrittenByTheNamesThatReadShows()
{
    const QString device = QStringLiteral("BAY1E1PROT");
    const Ended read = run(connected({QStringLiteral("group"), QStringLiteral("read"), device}));
    QCOMPARE(read.complaint, QString());
    QString name;
    const QStringList lines = read.output.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.contains(QLatin1String("PDIS1$SG$PoRch$")))
            name = line.section(QLatin1Char(' '), 0, 0);
    }
    QVERIFY2(!name.isEmpty(), qPrintable(read.output));
    const Ended written =
        run(connected({QStringLiteral("group"), QStringLiteral("write"), device,
                       QStringLiteral("--group"), QStringLiteral("3"), name + "=12.4"}));
    QCOMPARE(written.complaint, QString());
    QCOMPARE(written.status, 0);
    const Ended edited = run(
        connected({QStringLiteral("group"), QStringLiteral("edit"), device, QStringLiteral("3")}));
    QCOMPARE(edited.complaint, QString());
    const QStringList words = edited.output.simplified().split(QLatin1Char(' '));
    const int place =
        words.indexOf(QString(name).replace(QLatin1String("$SG$"), QLatin1String("$SE$")));
    QVERIFY2(place >= 0, qPrintable(edited.output));
    QCOMPARE(words.at(place + 1), QStringLiteral("12.4"));
}

void tst_IedctlProcess::anInterruptCancelsWhatWaitsForTheDevice()
{
    QFile served(m_files.filePath(QStringLiteral("slow.txt")));
    QVERIFY(served.open(QIODevice::WriteOnly));
    served.write("content");
    served.close();
    sim::FileOptions files;
    files.directory = m_files.path().toStdString();
    const auto service = sim::DirectoryFiles::create(files);
    QVERIFY(service.ok());
    sim::DeviceOptions options;
    options.files = *service;
    std::atomic<bool> asked{false};
    // It never answers a file read.
    SimulatedIed slow(QStringLiteral(STATION_FILE), QString(), std::string(), options,
                      [&asked](const std::shared_ptr<mms::Association> &, std::uint32_t,
                               mms::RequestService &request) {
                          const bool isRead = std::holds_alternative<mms::FileReadRequest>(request);
                          asked = asked || isRead;
                          return isRead;
                      });
    QTemporaryDir local;
    QProcess process;
    process.start(QStringLiteral(IEDCTL),
                  {QStringLiteral("--connect"), QStringLiteral("127.0.0.1:%1").arg(slow.port()),
                   QStringLiteral("--timeout"), QStringLiteral("300"), QStringLiteral("file"),
                   QStringLiteral("get"), QStringLiteral("slow.txt"),
                   local.filePath(QStringLiteral("slow.txt"))});
    QVERIFY(process.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(asked, 20000);
    QCOMPARE(kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
             QStringLiteral("iedctl: The operation was cancelled.\n"));
    QVERIFY(QDir(local.path()).isEmpty());
}

void tst_IedctlProcess::nothingIsChangedReadOnly()
{
    const Ended ended = run(connected({QStringLiteral("--read-only"), QStringLiteral("write"),
                                       QStringLiteral("BAY1E1MEAS/MMXU1.A.phsB.units.multiplier"),
                                       QStringLiteral("6")}));
    QCOMPARE(ended.status, 1);
    QVERIFY2(ended.complaint.contains(QLatin1String("read-only")), qPrintable(ended.complaint));
    QVERIFY(m_bay->value("BAY1E1MEAS", "MMXU1$CF$A$phsB$units$multiplier") !=
            mms::Data::integer(6));
}

void tst_IedctlProcess::aDeviceThatIsNotThereEndsWithThree()
{
    QTcpServer closed;
    QVERIFY(closed.listen(QHostAddress::LocalHost));
    const QString address = QStringLiteral("127.0.0.1:%1").arg(closed.serverPort());
    closed.close();
    const Ended ended = run({QStringLiteral("--connect"), address, QStringLiteral("model")});
    QCOMPARE(ended.status, 3);
    QVERIFY2(ended.complaint.contains(QLatin1String("refused")), qPrintable(ended.complaint));
    QCOMPARE(ended.complaint.count(QLatin1Char('\n')), 1);
}

void tst_IedctlProcess::aSilentDeviceEndsInTime()
{
    QTcpServer silent;
    QVERIFY(silent.listen(QHostAddress::LocalHost));
    const Ended ended =
        run({QStringLiteral("--connect"), QStringLiteral("127.0.0.1:%1").arg(silent.serverPort()),
             QStringLiteral("--timeout"), QStringLiteral("0.3"), QStringLiteral("model")});
    QCOMPARE(ended.status, 3);
    QCOMPARE(ended.complaint.count(QLatin1Char('\n')), 1);
}

void tst_IedctlProcess::thePageAndTheHelpNeedNoDevice()
{
    QCOMPARE(run({QStringLiteral("--help")}).status, 0);
    QVERIFY(run({QStringLiteral("--manual-page")}).output.startsWith(QLatin1String(".TH IEDCTL")));
    const Ended nothing = run({});
    QCOMPARE(nothing.status, 2);
    QVERIFY2(nothing.complaint.startsWith(QLatin1String("iedctl: ")),
             qPrintable(nothing.complaint));
}

QTEST_GUILESS_MAIN(tst_IedctlProcess)
#include "tst_process.moc"
