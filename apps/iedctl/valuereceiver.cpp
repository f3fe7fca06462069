// SPDX-License-Identifier: Apache-2.0
#include "valuereceiver.h"

#include <tavrix/tavrix.h>

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QDataStream>

#include <atomic>

namespace {

constexpr int capacity = 4096;
constexpr int timeToLiveMs = 60000;
constexpr int eventsAtOnce = 16;

} // namespace

ValueReceiver::ValueReceiver()
{
    static std::atomic<int> number{0};
    const QByteArray box =
        "MMS_DATACHANGE:iedctl:" + QByteArray::number(QCoreApplication::applicationPid()) + ':' +
        QByteArray::number(++number);
    Tavrix::CreateEventBox(box.constData(), capacity, timeToLiveMs);
    Tavrix::SetPersistent(box.constData(), false);
    Tavrix::ConnectPortForRecv(box.constData(), m_port);
}

ValueReceiver::~ValueReceiver()
{
    Tavrix::DisconnectPort(m_port);
}

QList<MMSValue> ValueReceiver::receive(long deviceNo, int waitMs)
{
    TavrixDataList records;
    QList<MMSValue> values;
    if (Tavrix::ReceiveEventN(m_port, records, "MMS_VALUE", waitMs, eventsAtOnce) !=
        Tavrix::Success)
        return values;
    values.reserve(records.count);
    for (int i = 0; i < records.count; ++i) {
        const QByteArray bytes =
            QByteArray::fromRawData(records.array[i]->GetRawValue(), MMSValue::rawSize);
        QDataStream stream(bytes);
        MMSValue value;
        value.fromStream(stream);
        if (value.deviceNo == deviceNo && !value.reference.isEmpty())
            values.append(value);
    }
    return values;
}
