// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QList>

#include <malloc.h>
#include <unistd.h>

namespace drivertest {

/// Bytes of this process that are in memory, without what the allocator only keeps.
inline qint64 memoryInUse()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = file.readAll().split(' ');
    return fields.value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

} // namespace drivertest
