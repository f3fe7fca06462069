// SPDX-License-Identifier: Apache-2.0
// A device that goes and comes back again and again under the open browser of an operator.
#include "driver/indicatorfile.h"
#include "driver/simulatedstation.h"
#include "interop/operatordesk.h"
#include "support/memoryuse.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace drivertest;
using std::chrono::milliseconds;

namespace {

/// Of what every round leaves behind nothing may be left.
constexpr qint64 tolerableGrowth = 6 << 20;

} // namespace

class tst_BrowserRestarts : public QObject
{
    Q_OBJECT

private slots:
    void liveValuesComeBackAfterEachRestart();
};

void tst_BrowserRestarts::liveValuesComeBackAfterEachRestart()
{
    const int rounds = qEnvironmentVariableIsSet("BROWSER_RESTARTS")
                           ? qEnvironmentVariableIntValue("BROWSER_RESTARTS")
                           : 8;
    const QTemporaryDir folder;
    const IndicatorFile file("RESTART", 2, 20);
    const QString path = folder.filePath("restart.icd");
    QVERIFY(file.write(path));
    SimulatedIed ied(path);
    DeviceConfiguration configuration = configurationFor(ied);
    configuration.pollInterval = milliseconds(100);
    OperatorDesk desk(configuration);
    QVERIFY2(desk.problem().isEmpty(), qPrintable(desk.problem()));
    QVERIFY(desk.openBrowser());
    const QStringList first = {"RESTARTLD", "GGIO1", "Ind1", "stVal"};
    const QStringList last = {"RESTARTLD", "GGIO2", "Ind20", "stVal"};
    QVERIFY(desk.has(first) && desk.has(last));
    const QPersistentModelIndex node(desk.node(first));

    qint64 atFirst = 0;
    for (int round = 0; round < rounds; ++round) {
        ied.stop();
        QVERIFY(desk.waitForState(DeviceState::Waiting));
        ied.start();
        const bool isOn = round % 2 == 0;
        for (const int index : {0, 39}) {
            ied.set(file.domain().toStdString(), file.item(index).toStdString() + "$stVal",
                    mms::Data::boolean(isOn));
        }
        QVERIFY(desk.waitForState(DeviceState::Online));
        const QString shown = isOn ? QStringLiteral("true") : QStringLiteral("false");
        QTRY_COMPARE_WITH_TIMEOUT(desk.valueOf(first).toLower(), shown, 20000);
        QTRY_COMPARE_WITH_TIMEOUT(desk.valueOf(last).toLower(), shown, 20000);
        if (round == rounds / 4)
            atFirst = testsupport::memoryInUse();
    }
    const qint64 growth = testsupport::memoryInUse() - atFirst;
    qInfo("%d restarts under an open browser, memory grew by %lld KiB", rounds, growth / 1024);
    // The same tree all the time: nothing that was expanded or selected is lost.
    QVERIFY(node.isValid());
    QCOMPARE(desk.driver().status(1).counters.connections, std::uint64_t(rounds + 1));
    QVERIFY2(growth < tolerableGrowth, qPrintable(QString::number(growth)));
}

QTEST_MAIN(tst_BrowserRestarts)
#include "tst_browserrestarts.moc"
