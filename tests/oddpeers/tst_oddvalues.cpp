// SPDX-License-Identifier: Apache-2.0
#include "simulatedstation.h"

#include <QtTest/QtTest>

using namespace drivertest;
using std::chrono::milliseconds;

/// Values of devices that answer late, in parts, or not at all: what the driver takes for current.
class tst_OddValues : public QObject
{
    Q_OBJECT

private slots:
    void anOutageSaysSinceWhenItLasts();
};

void tst_OddValues::anOutageSaysSinceWhenItLasts()
{
    SimulatedIed ied(QStringLiteral(STATION_FILE));
    Listener listener;
    IedDriver driver(listener.options());
    driver.setDevice(configurationFor(ied));
    driver.connectDevice(1);
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QVERIFY(!driver.status(1).lostSince.isValid());

    const QDateTime before = QDateTime::currentDateTime();
    ied.stop();
    QVERIFY(listener.waitForState(1, DeviceState::Waiting));
    const QDateTime lost = driver.status(1).lostSince;
    QVERIFY(lost >= before);
    // Each attempt begins a state of its own, but the outage is one.
    for (int attempt = 0; attempt < 2; ++attempt) {
        QVERIFY(listener.waitForState(1, DeviceState::Connecting));
        QVERIFY(listener.waitForState(1, DeviceState::Waiting));
    }
    QVERIFY(driver.status(1).since > lost);
    QCOMPARE(driver.status(1).lostSince, lost);

    ied.start();
    QVERIFY(listener.waitForState(1, DeviceState::Online));
    QVERIFY(!driver.status(1).lostSince.isValid());
}

QTEST_GUILESS_MAIN(tst_OddValues)
#include "tst_oddvalues.moc"
