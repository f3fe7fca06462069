// SPDX-License-Identifier: Apache-2.0
#include "records.h"

#include <QtCore/QDataStream>

SGCB::~SGCB() = default;

void ControlBlock::toStream(QDataStream &stream) const
{
    const int version = stream.version();
    stream.setVersion(QDataStream::Qt_5_12);
    stream << objectReference << controlValue << orCat << check << test << controlModel;
    stream.setVersion(version);
}
