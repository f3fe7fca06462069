// SPDX-License-Identifier: Apache-2.0
#include "support/generateddevice.h"

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>

#include <algorithm>
#include <cstdlib>

/// Read any bytes as a device, use what came out of it as the tools do, and check that what was
/// read whole is written back and read again as the same device.
extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size)
{
    const QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size));
    PhysicalDevice device;
    QDataStream stream(bytes);
    device.fromStream(stream);

    for (const LogicalDevice *logicalDevice : qAsConst(device.logicalDevices)) {
        for (const LogicalNode *node : qAsConst(logicalDevice->logicalNodes)) {
            node->posibleFC();
            node->dataSet(QString());
        }
    }
    for (const DataAttribute *attribute : leafAttributes(device)) {
        const DataAttribute *found = device.findTag(attribute->reference);
        if (attribute->reference.isEmpty() ? found != nullptr
                                           : !found || found->reference != attribute->reference)
            std::abort();
    }

    const bool whole = stream.status() == QDataStream::Ok;
    const QByteArray written = deviceBytes(device);
    PhysicalDevice again;
    QDataStream secondStream(written);
    again.fromStream(secondStream);
    if (secondStream.status() != QDataStream::Ok || !secondStream.atEnd() ||
        deviceBytes(again) != written)
        std::abort();
    if (whole && leafAttributes(again).size() != leafAttributes(device).size())
        std::abort();
    return 0;
}

#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
extern "C" std::size_t LLVMFuzzerMutate(quint8 *data, std::size_t size, std::size_t maxSize);

/// Starts from real devices: bytes that are none yet, and a few others, are replaced by one.
extern "C" std::size_t LLVMFuzzerCustomMutator(quint8 *data, std::size_t size, std::size_t maxSize,
                                               unsigned seed)
{
    if (size < 16 || seed % 256 == 0) {
        GeneratedDevice generated;
        generated.logicalNodes = 1 + static_cast<int>(seed % 5);
        generated.leafAttributes = static_cast<int>(seed % 40);
        generated.arrayElements = static_cast<int>(seed % 3);
        const QByteArray bytes = generated.bytes();
        size = std::min(maxSize, static_cast<std::size_t>(bytes.size()));
        std::copy_n(bytes.constData(), size, reinterpret_cast<char *>(data));
    }
    return LLVMFuzzerMutate(data, size, maxSize);
}
#endif
