// SPDX-License-Identifier: Apache-2.0
#include "mmslistener.h"

#include <tavrix/tavrix.h>

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtCore/QUuid>

#include <climits>

namespace {

constexpr char eventBoxNamePrefix[] = "MMS_DATACHANGE:";
constexpr char eventDataKey[] = "MMS_VALUE";
constexpr int receiveWaitMs = 500;
constexpr int eventsPerReceive = 1;
constexpr int boxCapacity = 20005;
constexpr int boxTimeToLiveMs = 30000;
constexpr bool boxPersistence = false;
constexpr int rawRecordSize = 512;
constexpr int boxMissing = 2001;
constexpr int nothingReceived = 2000;
constexpr unsigned long pauseAfterBatchMs = 50;
constexpr unsigned long pauseBetweenConnectsMs = 5;

static_assert(rawRecordSize == Tavrix::rawValueSize && rawRecordSize == MMSValue::rawSize);
static_assert(boxMissing == Tavrix::NoSuchEventBox);
static_assert(nothingReceived == Tavrix::NothingReceived);

QList<MMSValue> valuesOf(const TavrixDataList &records)
{
    QList<MMSValue> values;
    for (int i = 0; i < records.count; ++i) {
        const QByteArray raw(records.array[i]->GetRawValue(), rawRecordSize);
        QDataStream stream(raw);
        MMSValue value;
        value.fromStream(stream);
        values.append(value);
    }
    return values;
}

} // namespace

MMSListener::MMSListener(QObject *parent)
    : QThread(parent)
    , m_eventBoxName(QLatin1String(eventBoxNamePrefix) + QUuid::createUuid().toString())
{
}

MMSListener::~MMSListener()
{
    MMSListener::stop();
}

void MMSListener::run()
{
    m_stopRequest = 0;
    unsigned int port = 0;
    const QByteArray boxName = m_eventBoxName.toLatin1();
    for (;;) {
        const int result = Tavrix::ConnectPortForRecv(boxName.constData(), port);
        if (result == boxMissing) {
            Tavrix::CreateEventBox(boxName.constData(), boxCapacity, boxTimeToLiveMs);
            Tavrix::SetPersistent(boxName.constData(), boxPersistence);
        } else if (result == Tavrix::Success && !stopRequested()) {
            receiveFrom(port);
        }
        msleep(pauseBetweenConnectsMs);
        if (stopRequested()) {
            m_stopRequest = 0;
            return;
        }
    }
}

void MMSListener::stop()
{
    m_stopRequest = 1;
    // run() clears the stop request when it begins; only this one reaches a thread that has been
    // started and has not begun.
    requestInterruption();
    wait(ULONG_MAX);
}

void MMSListener::receiveFrom(unsigned int port)
{
    do {
        TavrixDataList records;
        const int result =
            Tavrix::ReceiveEventN(port, records, eventDataKey, receiveWaitMs, eventsPerReceive);
        if (result == Tavrix::Success) {
            emit processMMSMessage(valuesOf(records));
            msleep(pauseAfterBatchMs);
        }
        Tavrix::DestoryTavrixDataList(&records);
        if (result != Tavrix::Success && result != nothingReceived) {
            return;
        }
    } while (!stopRequested());
}

bool MMSListener::stopRequested() const
{
    return m_stopRequest != 0 || isInterruptionRequested();
}
