// SPDX-License-Identifier: Apache-2.0
#include "exampledriver.h"

#include <devicemodel/mmsvalue.h>
#include <devicemodel/physicaldevice.h>
#include <tavrix/tavrix.h>

#include <QtCore/QDataStream>

namespace {

constexpr long onlyDevice = 7;
const QString reference = QStringLiteral("BAY1LD0/GGIO1$ST$Ind1$stVal");

} // namespace

OperationResult ExampleDriver::getIEDModel(long deviceNo, QByteArray &model, QString &error)
{
    if (deviceNo != onlyDevice) {
        error = QStringLiteral("There is no device %1 on this driver.").arg(deviceNo);
        return OperationFailed;
    }
    auto *attribute = new DAO;
    attribute->attribute = new DataAttribute;
    attribute->attribute->name = QStringLiteral("stVal");
    attribute->attribute->fc = QStringLiteral("ST");
    attribute->attribute->basicType = QStringLiteral("BOOLEAN");
    attribute->attribute->reference = reference;
    auto *object = new DataObject;
    object->name = QStringLiteral("Ind1");
    object->type = QStringLiteral("SPS");
    object->attributes << attribute;
    auto *node = new LogicalNode;
    node->lnClass = QStringLiteral("GGIO");
    node->name = QStringLiteral("GGIO1");
    node->dataObjects << object;
    auto *logicalDevice = new LogicalDevice;
    logicalDevice->name = QStringLiteral("BAY1LD0");
    logicalDevice->logicalNodes << node;
    PhysicalDevice device;
    device.name = QStringLiteral("BAY1");
    device.logicalDevices << logicalDevice;

    model.clear();
    QDataStream stream(&model, QIODevice::WriteOnly);
    device.toStream(stream);
    return OperationSucceeded;
}

// Whatever was asked for, the device has one value.
OperationResult ExampleDriver::readVariable(long deviceNo, const QString &, const QStringList &,
                                            QString &)
{
    MMSValue value;
    value.deviceNo = static_cast<qint32>(deviceNo);
    value.reference = reference;
    value.value = true;
    QByteArray record;
    QDataStream stream(&record, QIODevice::WriteOnly);
    value.toStream(stream);
    Tavrix::PostEvent("MMS_DATACHANGE:", "MMS_VALUE", {record});
    return OperationSucceeded;
}

OperationResult ExampleDriver::call(const DriverCall &call)
{
    call.error() = QStringLiteral("This driver does not offer the service.");
    return OperationFailed;
}
