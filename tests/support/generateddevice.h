// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <devicemodel/physicaldevice.h>

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <memory>

/// A device as they come from the field, of any size: measurements, switchgear, protection settings
/// and general inputs with values, data sets, report control blocks and enumerations. The same
/// settings always give the same device.
struct GeneratedDevice
{
    int logicalDevices = 1;
    int logicalNodes = 4;     ///< of each logical device, besides its LLN0
    int leafAttributes = 100; ///< of the whole device, array elements counted one by one
    int arrayElements = 0;    ///< of each array of harmonics; 0: no arrays
    bool values = true;

    std::unique_ptr<PhysicalDevice> make() const;

    /// The device in its byte form.
    QByteArray bytes() const;
};

/// Bytes of any device.
QByteArray deviceBytes(const PhysicalDevice &device);

/// Every attribute of the device that has no further ones below it, in the device's order.
QList<DataAttribute *> leafAttributes(const PhysicalDevice &device);
