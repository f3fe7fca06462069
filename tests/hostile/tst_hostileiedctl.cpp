// SPDX-License-Identifier: Apache-2.0
// Servers that misbehave at each step of a conversation with iedctl, the program itself.
#include "hostile/hostilestation.h"

#include <QtCore/QProcess>
#include <QtTest/QtTest>

using namespace hostile;

Q_DECLARE_METATYPE(hostile::Conduct)

namespace {

/// Longer than any command may take with the time-outs below, on a busy machine.
constexpr int patience = 60000;

QStringList commandFor(const HostileDevice &device, Step step, const QString &folder)
{
    switch (step) {
    case Step::Write:
        return {"write", device.domain() + "/LLN0.NamPlt.configRev", "2"};
    case Step::FileList:
        return {"file", "ls"};
    case Step::FileOpen:
    case Step::FileRead:
        return {"file", "get", "record.dat", folder + "/got-" + device.domain()};
    default:
        return {"read", device.domain() + "/GGIO1$ST$Ind1"};
    }
}

} // namespace

class tst_HostileIedctl : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void everyCommandEndsWithAStatusAndASentence_data();
    void everyCommandEndsWithAStatusAndASentence();
    void forgedNamesReachNoTerminal();

private:
    QTemporaryDir m_folder;
    std::vector<std::unique_ptr<HostileDevice>> m_devices; ///< in the order of the steps
};

void tst_HostileIedctl::initTestCase()
{
    for (std::size_t i = 0; i < stepCases.size(); ++i) {
        m_devices.push_back(
            std::make_unique<HostileDevice>(m_folder.path(), "H" + QByteArray::number(int(i + 1))));
    }
}

void tst_HostileIedctl::cleanup()
{
    for (const auto &device : m_devices)
        device->line().behave();
}

void tst_HostileIedctl::everyCommandEndsWithAStatusAndASentence_data()
{
    QTest::addColumn<hostile::Conduct>("conduct");
    QTest::addColumn<bool>("isBearable");
    for (const ConductCase &each : conductCases())
        QTest::newRow(each.name.data()) << each.conduct << each.isBearable;
}

void tst_HostileIedctl::everyCommandEndsWithAStatusAndASentence()
{
    QFETCH(hostile::Conduct, conduct);
    QFETCH(bool, isBearable);
    std::vector<std::unique_ptr<QProcess>> programs;
    for (std::size_t i = 0; i < stepCases.size(); ++i) {
        HostileDevice &device = *m_devices[i];
        device.line().misbehave(stepCases[i].step, conduct);
        programs.push_back(std::make_unique<QProcess>());
        programs.back()->start(QStringLiteral(IEDCTL),
                               QStringList{"--connect",
                                           QStringLiteral("127.0.0.1:%1").arg(device.line().port()),
                                           "--timeout", "0.4"} +
                                   commandFor(device, stepCases[i].step, m_folder.path()));
        programs.back()->closeWriteChannel();
    }
    for (std::size_t i = 0; i < stepCases.size(); ++i) {
        QProcess &program = *programs[i];
        const QByteArray name(stepCases[i].name);
        QVERIFY2(program.waitForFinished(patience), name.constData());
        QVERIFY2(program.exitStatus() == QProcess::NormalExit, name.constData());
        const QByteArray complaint = program.readAllStandardError();
        const QByteArray told =
            name + ": " + QByteArray::number(program.exitCode()) + " " + complaint;
        // Conclude comes when the work is done: nothing that happens then changes what it came to.
        const bool isOver = stepCases[i].step == Step::Conclude;
        // A device need not tell who it is, and what data sets it has.
        const bool mayDoWithout = stepCases[i].step == Step::Identify;
        if (isOver)
            QVERIFY2(program.exitCode() == 0, told.constData());
        else
            QVERIFY2(isBearable || mayDoWithout || program.exitCode() != 0, told.constData());
        QVERIFY2(program.exitCode() != 2, told.constData());
        QVERIFY2((program.exitCode() == 0) == complaint.isEmpty(), told.constData());
        const QList<QByteArray> lines = complaint.split('\n');
        for (const QByteArray &line : lines) {
            QString sentence = QString::fromUtf8(line);
            sentence.remove(QRegularExpression(QStringLiteral("^iedctl: ")));
            QVERIFY2(line.isEmpty() || isSentence(sentence), told.constData());
        }
        QVERIFY2(m_devices[i]->line().reached() > 0, told.constData());
        if (program.exitCode() != 0) {
            // Half a file never has the name of the whole.
            QVERIFY(!QFile::exists(m_folder.path() + "/got-" + m_devices[i]->domain()));
        }
        QFile::remove(m_folder.path() + "/got-" + m_devices[i]->domain());
    }
}

void tst_HostileIedctl::forgedNamesReachNoTerminal()
{
    HostileDevice &device = *m_devices[0];
    device.ied().stop();
    device.ied().setRequestFilter([](const std::shared_ptr<mms::Association> &association,
                                     std::uint32_t invokeId, mms::RequestService &request) {
        const auto *list = std::get_if<mms::GetNameListRequest>(&request);
        if (!list)
            return false;
        const std::string forged = "\x1b]0;owned\x07\x1b[2JLLN0\r\n\x9b"
                                   "31m../../x";
        association->respond(invokeId, mms::GetNameListResponse{{forged, forged + "$ST"}, false});
        return true;
    });
    device.ied().start();
    device.line().exchange(device.ied().port());
    for (const QStringList &command :
         {QStringList{"model"}, QStringList{"directory"}, QStringList{"--json", "directory"},
          QStringList{"read", "a/b"}}) {
        QProcess program;
        program.start(
            QStringLiteral(IEDCTL),
            QStringList{"--connect", QStringLiteral("127.0.0.1:%1").arg(device.line().port())} +
                command);
        program.closeWriteChannel();
        QVERIFY(program.waitForFinished(patience));
        QVERIFY(program.exitStatus() == QProcess::NormalExit);
        const QByteArray output = program.readAllStandardOutput() + program.readAllStandardError();
        for (const char control : {'\x1b', '\x07', '\r'})
            QVERIFY2(!output.contains(control), output.toPercentEncoding().constData());
        QVERIFY2(!QString::fromUtf8(output).contains(QChar(0x9b)),
                 output.toPercentEncoding().constData());
    }
}

QTEST_GUILESS_MAIN(tst_HostileIedctl)
#include "tst_hostileiedctl.moc"
