// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QByteArray>

class AttributeIndex;
class PhysicalDevice;
class QDataStream;

/// The byte form of a device.
namespace DeviceStream {

/// Fill the empty `device` and note its attributes in `index`. The stream ends up behind the bytes
/// that were used, with its status set where they were malformed.
void read(QDataStream &stream, PhysicalDevice &device, AttributeIndex &index);

/// Write the device. Data nested deeper than read() accepts is left out, and the stream's status
/// says so.
void write(QDataStream &stream, const PhysicalDevice &device);

/// What write() writes.
QByteArray bytes(const PhysicalDevice &device);

} // namespace DeviceStream
