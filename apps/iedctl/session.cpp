// SPDX-License-Identifier: Apache-2.0
#include "session.h"

#include "driver/administration/publishcause.h"

#include <QtCore/QDataStream>
#include <QtCore/QSet>

#include <algorithm>

namespace {

constexpr int silenceMs = 3000;

} // namespace

Session::Session(const QString &driverAddress, long deviceNo, Output &output,
                 DeviceObserver *observer)
    : m_deviceNo(deviceNo)
    , m_output(output)
    , m_observer(observer)
{
    m_controller.setLocation(driverAddress, 0);
}

PhysicalDevice *Session::model()
{
    if (m_model)
        return m_model.get();
    QByteArray bytes;
    QString error;
    const OperationResult result = m_controller.getIEDModel(m_deviceNo, bytes, error);
    if (result != OperationSucceeded) {
        failed(result, error);
        return nullptr;
    }
    auto device = std::make_unique<PhysicalDevice>();
    QDataStream stream(bytes);
    device->fromStream(stream);
    if (stream.status() != QDataStream::Ok) {
        failed(QStringLiteral("The driver answered with a model that cannot be read."));
        return nullptr;
    }
    m_model = std::move(device);
    return m_model.get();
}

ExitStatus Session::failed(OperationResult result, const QString &error)
{
    m_output.complain(result == OperationDriverUnreachable
                          ? QStringLiteral("The driver cannot be reached.")
                      : error.isEmpty() ? QStringLiteral("The device refused.")
                                        : error);
    m_lastFailure = result == OperationDriverUnreachable || result == OperationNotConnected
                        ? ExitStatus::NotConnected
                        : ExitStatus::Refused;
    return m_lastFailure;
}

ExitStatus Session::failed(const QString &sentence)
{
    return failed(OperationFailed, sentence);
}

ExitStatus Session::ended(OperationResult result, const QString &error)
{
    return result == OperationSucceeded ? ExitStatus::Done : failed(result, error);
}

void Session::listen()
{
    if (!m_receiver)
        m_receiver = std::make_unique<ValueReceiver>();
}

QList<MMSValue> Session::receive(int waitMs, Origin origin)
{
    QElapsedTimer waited;
    waited.start();
    for (;;) {
        const int left = std::max(0, waitMs - static_cast<int>(waited.elapsed()));
        QList<MMSValue> values = m_receiver->receive(m_deviceNo, left);
        if (origin == Origin::Any || values.isEmpty())
            return values;
        const auto unasked = [](const MMSValue &value) {
            return value.cause == PublishCause::Polled;
        };
        values.erase(std::remove_if(values.begin(), values.end(), unasked), values.end());
        if (!values.isEmpty())
            return values;
    }
}

std::optional<QHash<QString, MMSValue>>
Session::gather(const QStringList &references,
                const std::function<OperationResult(QString &error)> &request)
{
    listen();
    while (!receive(0, Origin::Any).isEmpty()) {
        // What came before belongs to something else.
    }
    QString error;
    const OperationResult result = request(error);
    if (result != OperationSucceeded)
        failed(result, error);
    QHash<QString, MMSValue> values;
    QSet<QString> missing(references.cbegin(), references.cend());
    // Also after a failure: what could be read of several references was published.
    while (!missing.isEmpty() && !interrupted()) {
        const QList<MMSValue> received =
            receive(result == OperationSucceeded ? silenceMs : silenceMs / 10, Origin::Wanted);
        if (received.isEmpty())
            break;
        for (const MMSValue &value : received) {
            if (missing.remove(value.reference) || values.contains(value.reference))
                values.insert(value.reference, value);
        }
    }
    if (result != OperationSucceeded && values.isEmpty())
        return {};
    return values;
}

std::atomic<bool> &Session::streaming()
{
    static std::atomic<bool> flag{false};
    return flag;
}

std::atomic<bool> &Session::interrupted()
{
    static std::atomic<bool> flag{false};
    return flag;
}
