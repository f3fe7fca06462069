// SPDX-License-Identifier: Apache-2.0
#include "records.h"

#include <QtCore/QDataStream>

SGCB::~SGCB() = default;

void ControlBlock::toStream(QDataStream &stream) const
{
    const int version = stream.version();
    const QDataStream::ByteOrder byteOrder = stream.byteOrder();
    const QDataStream::FloatingPointPrecision precision = stream.floatingPointPrecision();
    stream.setVersion(QDataStream::Qt_5_12);
    stream.setByteOrder(QDataStream::BigEndian);
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    stream << objectReference << controlValue << orCat << check << test << controlModel;
    stream.setVersion(version);
    stream.setByteOrder(byteOrder);
    stream.setFloatingPointPrecision(precision);
}
