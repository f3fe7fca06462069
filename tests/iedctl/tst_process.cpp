// SPDX-License-Identifier: Apache-2.0
#include "driver/simulatedstation.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QTcpServer>
#include <QtTest/QtTest>

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
    void aStoppedWatchEndsOrderly();
    void aBatchRunsWithinOneAssociation();
    void nothingIsChangedReadOnly();
    void aDeviceThatIsNotThereEndsWithThree();
    void aSilentDeviceEndsInTime();
    void thePageAndTheHelpNeedNoDevice();

private:
    Ended run(const QStringList &arguments, const QByteArray &input = {}) const;
    QStringList connected(const QStringList &command) const;

    std::unique_ptr<SimulatedIed> m_bay;
};

void tst_IedctlProcess::initTestCase()
{
    m_bay = std::make_unique<SimulatedIed>(QStringLiteral(STATION_FILE));
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
    const Ended ended = run(
        connected({QStringLiteral("write"),
                   QStringLiteral("BAY1E1MEAS/MMXU1.A.phsA.units.multiplier"), QStringLiteral("3")}));
    QCOMPARE(ended.complaint, QString());
    QCOMPARE(ended.status, 0);
    QVERIFY2(ended.output.trimmed().endsWith(QLatin1Char('3')), qPrintable(ended.output));
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
    const Ended ended =
        run(connected({QStringLiteral("write"),
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

void tst_IedctlProcess::aStoppedWatchEndsOrderly()
{
    QProcess process;
    process.start(QStringLiteral(IEDCTL), connected({QStringLiteral("watch"), phaseA}));
    QVERIFY(process.waitForStarted());
    while (!process.canReadLine())
        QVERIFY(process.waitForReadyRead(10000));
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

void tst_IedctlProcess::nothingIsChangedReadOnly()
{
    const Ended ended =
        run(connected({QStringLiteral("--read-only"), QStringLiteral("write"),
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
    const Ended ended = run({QStringLiteral("--connect"),
                             QStringLiteral("127.0.0.1:%1").arg(silent.serverPort()),
                             QStringLiteral("--timeout"), QStringLiteral("0.3"),
                             QStringLiteral("model")});
    QCOMPARE(ended.status, 3);
    QCOMPARE(ended.complaint.count(QLatin1Char('\n')), 1);
}

void tst_IedctlProcess::thePageAndTheHelpNeedNoDevice()
{
    QCOMPARE(run({QStringLiteral("--help")}).status, 0);
    QVERIFY(run({QStringLiteral("--manual-page")}).output.startsWith(QLatin1String(".TH IEDCTL")));
    const Ended nothing = run({});
    QCOMPARE(nothing.status, 2);
    QVERIFY2(nothing.complaint.startsWith(QLatin1String("iedctl: ")), qPrintable(nothing.complaint));
}

QTEST_GUILESS_MAIN(tst_IedctlProcess)
#include "tst_process.moc"
