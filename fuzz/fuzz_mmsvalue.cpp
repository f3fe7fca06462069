// SPDX-License-Identifier: Apache-2.0
#include <devicemodel/mmsvalue.h>

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>

#include <algorithm>
#include <cstdlib>

namespace {

QByteArray bytesOf(const MMSValue &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    value.toStream(stream);
    return bytes;
}

} // namespace

/// Read any bytes as one record; whatever was read fits a record again and comes back the same.
extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size)
{
    MMSValue value;
    QDataStream stream(
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    value.fromStream(stream);

    const QByteArray written = bytesOf(value);
    if (written.size() > MMSValue::rawSize)
        std::abort();
    MMSValue again;
    QDataStream secondStream(written);
    again.fromStream(secondStream);
    if (secondStream.status() != QDataStream::Ok || !secondStream.atEnd() ||
        bytesOf(again) != written)
        std::abort();
    return 0;
}

#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
extern "C" std::size_t LLVMFuzzerMutate(quint8 *data, std::size_t size, std::size_t maxSize);

/// Starts from real values: bytes that are none yet are replaced by one.
extern "C" std::size_t LLVMFuzzerCustomMutator(quint8 *data, std::size_t size, std::size_t maxSize,
                                               unsigned seed)
{
    if (size < 16) {
        const QVariant values[] = {true, 1.5F, 0.1, QByteArray("ab"), QStringLiteral("text"), -1};
        MMSValue value;
        value.value = values[seed % std::size(values)];
        value.reference = QStringLiteral("IED1LD0/XCBR1$ST$Pos$stVal");
        value.quality = QStringLiteral("0000000000000");
        value.timeStamp = QStringLiteral("2021-03-04T05:06:07.123Z");
        const QByteArray bytes = bytesOf(value);
        size = std::min(maxSize, static_cast<std::size_t>(bytes.size()));
        std::copy_n(bytes.constData(), size, reinterpret_cast<char *>(data));
    }
    return LLVMFuzzerMutate(data, size, maxSize);
}
#endif
