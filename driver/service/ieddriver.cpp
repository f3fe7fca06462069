// SPDX-License-Identifier: Apache-2.0
#include "ieddriver.h"

#include "callerservice.h"

#include "driver/device/configurationfiles.h"
#include "driver/device/modelreading.h"
#include "driver/model/valueconversion.h"
#include "driver/text/csvfield.h"
#include "driverruntime.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QIODevice>
#include <QtCore/QTextStream>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IedDriver)
};

QString noDevice(long deviceNo)
{
    return Texts::tr("There is no device %1 on this driver.").arg(deviceNo);
}

void appendRows(QString &csv, const QList<DAO *> &nodes)
{
    for (const DAO *node : nodes) {
        const DataAttribute *attribute = node->attribute;
        if (attribute && node->children.isEmpty() && attribute->present) {
            csv += csvField(attribute->reference) + QLatin1Char(',') + attribute->fc +
                   QLatin1Char(',') + csvField(attribute->basicType) + QLatin1Char(',') +
                   csvField(ValueConversion::text(attribute->value)) + QStringLiteral("\r\n");
        }
        appendRows(csv, node->children);
    }
}

QString csvOf(const PhysicalDevice &device)
{
    QString csv = QStringLiteral("reference,functional constraint,type,value\r\n");
    for (const LogicalDevice *logicalDevice : device.logicalDevices) {
        for (const LogicalNode *node : logicalDevice->logicalNodes) {
            for (const DataObject *object : node->dataObjects)
                appendRows(csv, object->attributes);
        }
    }
    return csv;
}

} // namespace

IedDriver::IedDriver(IedDriverOptions options)
    : m_runtime(std::make_shared<DriverRuntime>(std::move(options)))
{
}

IedDriver::~IedDriver() = default;

QStringList IedDriver::faults(const DeviceConfiguration &configuration) const
{
    return configuration.faults() + ConfigurationFiles::faults(configuration);
}

QStringList IedDriver::setDevice(const DeviceConfiguration &configuration)
{
    QStringList found = faults(configuration);
    if (found.isEmpty())
        m_runtime->setDevice(configuration);
    return found;
}

void IedDriver::holdModel(long deviceNo, const QByteArray &model)
{
    m_runtime->holdModel(deviceNo, model);
}

void IedDriver::removeDevice(long deviceNo)
{
    m_runtime->removeDevice(deviceNo);
}

void IedDriver::setReadOnly(bool readOnly)
{
    m_runtime->setReadOnly(readOnly);
}

bool IedDriver::isReadOnly() const
{
    return m_runtime->isReadOnly();
}

void IedDriver::connectDevice(long deviceNo)
{
    if (const auto device = m_runtime->connection(deviceNo))
        device->connect();
}

void IedDriver::disconnectDevice(long deviceNo)
{
    if (const auto device = m_runtime->connection(deviceNo))
        device->disconnect();
}

void IedDriver::cancelReading(long deviceNo)
{
    if (const auto device = m_runtime->connection(deviceNo))
        device->cancelReading();
}

void IedDriver::cancelOperations(long deviceNo)
{
    if (const auto device = m_runtime->connection(deviceNo))
        device->cancelOperations();
}

DeviceStatus IedDriver::status(long deviceNo) const
{
    const auto device = m_runtime->connection(deviceNo);
    return device ? device->status() : DeviceStatus();
}

std::unique_ptr<DriverSubscription> IedDriver::subscribe(DriverObserver observer)
{
    return m_runtime->observers().add(std::move(observer));
}

std::unique_ptr<DriverSubscription> IedDriver::followTrace(long deviceNo, int most,
                                                           TraceObserver observer)
{
    return m_runtime->observers().addTrace(static_cast<int>(deviceNo), most, std::move(observer));
}

QString IedDriver::saveCapture(long deviceNo, QIODevice &out) const
{
    const auto device = m_runtime->connection(deviceNo);
    if (!device)
        return noDevice(deviceNo);
    if (!device->capture().save(out))
        return Texts::tr("The capture cannot be written: %1").arg(out.errorString());
    return {};
}

QString IedDriver::exportValues(long deviceNo, QIODevice &out)
{
    const auto device = m_runtime->connection(deviceNo);
    if (!device) {
        return m_runtime->offline().hasDevice(deviceNo) ? Texts::tr("Not connected to the device")
                                                        : noDevice(deviceNo);
    }
    const auto csv = std::make_shared<QString>();
    const Outcome outcome =
        device->perform(DeviceConnection::Need::Model,
                        [csv](std::shared_ptr<DeviceConnection> self) -> asio::awaitable<Outcome> {
                            *csv = csvOf(self->model()->device());
                            co_return Outcome();
                        });
    if (!outcome)
        return outcome.error;
    const QByteArray bytes = csv->toUtf8();
    if (out.write(bytes) != bytes.size())
        return Texts::tr("The values cannot be written: %1").arg(out.errorString());
    return {};
}

namespace {

/// What all names begin with; nothing when one of them ends with it.
QString commonName(const std::vector<std::string> &names)
{
    if (names.size() < 2)
        return {};
    std::string common = names.front();
    for (const std::string &name : names) {
        const auto end = std::mismatch(common.begin(), common.end(), name.begin(), name.end());
        common.erase(end.first, common.end());
    }
    const bool isWhole = std::ranges::any_of(
        names, [&common](const std::string &name) { return name.size() == common.size(); });
    QString result = isWhole ? QString() : QString::fromStdString(common);
    // "Q01LD0" and "Q01LD1" are logical devices of "Q01".
    if (result.endsWith(QLatin1String("LD")))
        result.chop(2);
    while (result.endsWith(QLatin1Char('_')))
        result.chop(1);
    return result;
}

} // namespace

DeviceTestResult IedDriver::test(const DeviceConfiguration &configuration)
{
    DeviceTestResult result;
    const QStringList found = faults(configuration);
    if (!found.isEmpty() || configuration.host.isEmpty()) {
        result.error = found.isEmpty() ? Texts::tr("The device has no address.") : found.first();
        return result;
    }
    const auto device = m_runtime->separate(configuration);
    device->connect();
    const auto answer = std::make_shared<DeviceTestResult>();
    const Outcome outcome = device->perform(
        DeviceConnection::Need::Association,
        configuration.connectTimeout + configuration.callTimeout,
        [answer](std::shared_ptr<DeviceConnection> self) -> asio::awaitable<Outcome> {
            const std::shared_ptr<acsi::Client> client = self->client();
            const auto before = self->now();
            mms::Result<std::vector<std::string>> devices =
                co_await client->nameList(mms::ObjectClass::Domain, mms::Scope::Vmd);
            if (!devices)
                co_return Outcome::failed(devices.error());
            answer->roundTrip =
                std::chrono::duration_cast<std::chrono::microseconds>(self->now() - before);
            answer->logicalDevices = static_cast<int>(devices->size());
            answer->iedName = commonName(*devices);
            // The connection asks who is there by itself.
            co_await self->modelReading().identified(client);
            const DeviceStatus who = self->status();
            answer->vendor = who.vendor;
            answer->model = who.model;
            answer->revision = who.revision;
            co_return Outcome();
        });
    device->cancelReading();
    device->disconnect();
    if (outcome)
        result = *answer;
    else
        result.error = outcome.error;
    return result;
}

std::shared_ptr<DriverService> IedDriver::serviceFor(const Caller &caller)
{
    return std::make_shared<CallerService>(m_runtime, caller);
}
