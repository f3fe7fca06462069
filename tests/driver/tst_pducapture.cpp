// SPDX-License-Identifier: Apache-2.0
#include "driver/device/pducapture.h"

#include "mms/pdu.h"
#include "osi/pcapng.h"

#include <QtCore/QBuffer>
#include <QtTest/QtTest>

using namespace std::chrono_literals;

namespace {

const PduCapture::Time noon = PduCapture::Time() + 12h;

std::vector<std::uint8_t> statusRequest(std::uint32_t invokeId)
{
    return mms::encode(mms::ConfirmedRequestPdu{invokeId, mms::StatusRequest()});
}

/// A place that takes only so many bytes.
class FullDevice : public QIODevice
{
public:
    FullDevice() { open(QIODevice::WriteOnly); }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64) override
    {
        setErrorString("full");
        return -1;
    }
};

} // namespace

class tst_PduCapture : public QObject
{
    Q_OBJECT

private slots:
    void theNewestPdusAreToldAsTextOldestFirst();
    void theOldestPdusGiveWay();
    void whatIsNoPduIsShownWithItsFault();
    void aSavedCaptureHoldsEveryPdu();
    void aPlaceThatTakesNothingIsReported();
};

void tst_PduCapture::theNewestPdusAreToldAsTextOldestFirst()
{
    PduCapture capture;
    QVERIFY(capture.lastReceived() == PduCapture::Time());
    capture.add(osi::Direction::Sent, statusRequest(1), noon - 2s);
    QVERIFY(capture.lastReceived() == PduCapture::Time());
    capture.add(osi::Direction::Received, statusRequest(2), noon);
    capture.add(osi::Direction::Sent, statusRequest(3), noon + 2s);
    QCOMPARE(capture.sent(), std::uint64_t(2));
    QCOMPARE(capture.received(), std::uint64_t(1));
    QVERIFY(capture.lastReceived() == noon);

    const QVector<TraceLine> lines = capture.trace(2, 0);
    QCOMPARE(lines.size(), 2);
    QVERIFY(!lines.at(0).sent);
    QVERIFY(lines.at(0).text.contains("status"));
    QVERIFY(lines.at(0).time.secsTo(QDateTime::currentDateTime()) < 60);
    QVERIFY(lines.at(1).sent);
    QCOMPARE(lines.at(1).text,
             QString::fromStdString(mms::toText(*mms::decodePdu(statusRequest(3)))));
    QCOMPARE(capture.trace(-1, 0).size(), 0);
}

void tst_PduCapture::theOldestPdusGiveWay()
{
    PduCapture capture(10000);
    for (int i = 0; i < 100; ++i)
        capture.add(osi::Direction::Received, std::vector<std::uint8_t>(1000, 0), noon);
    QVERIFY(capture.octets() <= 10000);
    const QVector<TraceLine> kept = capture.trace(1000, 0);
    QVERIFY(!kept.isEmpty() && kept.size() <= 10);
    QCOMPARE(kept.first().number, std::uint64_t(101 - kept.size()));
    QCOMPARE(kept.last().number, std::uint64_t(100));
    capture.add(osi::Direction::Received, std::vector<std::uint8_t>(50000, 0), noon);
    QCOMPARE(capture.trace(1000, 0).size(), 1);
}

void tst_PduCapture::whatIsNoPduIsShownWithItsFault()
{
    PduCapture capture;
    const std::vector<std::uint8_t> octets = {0xFF, 0x01};
    capture.add(osi::Direction::Received, octets, noon);
    QCOMPARE(capture.trace(1, 0).first().text,
             QString::fromStdString(mms::decodePdu(octets).error().message.english()));
}

void tst_PduCapture::aSavedCaptureHoldsEveryPdu()
{
    PduCapture capture;
    capture.add(osi::Direction::Sent, statusRequest(1), noon);
    capture.add(osi::Direction::Received, statusRequest(2), noon);
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::WriteOnly));
    QVERIFY(capture.save(buffer));

    const mms::Octets header = osi::pcapng::fileHeader();
    const QByteArray start(reinterpret_cast<const char *>(header.data()),
                           static_cast<int>(header.size()));
    QVERIFY(buffer.data().startsWith(start));
    for (std::uint32_t id : {1U, 2U}) {
        const std::vector<std::uint8_t> pdu = statusRequest(id);
        const QByteArray bytes(reinterpret_cast<const char *>(pdu.data()),
                               static_cast<int>(pdu.size()));
        QCOMPARE(buffer.data().count(bytes), 1);
    }
}

void tst_PduCapture::aPlaceThatTakesNothingIsReported()
{
    PduCapture capture;
    capture.add(osi::Direction::Sent, statusRequest(1), noon);
    FullDevice device;
    QVERIFY(!capture.save(device));
    QCOMPARE(device.errorString(), QStringLiteral("full"));
}

QTEST_GUILESS_MAIN(tst_PduCapture)
#include "tst_pducapture.moc"
