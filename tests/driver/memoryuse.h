// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QList>

#include <cstddef>
#include <malloc.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// Not every compiler that has the sanitizer has its header as well.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace drivertest {

/// Bytes of this process that are in memory, without what the allocator only keeps. A sanitizer
/// keeps what was freed, but knows what is in use.
inline qint64 memoryInUse()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
#else
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = file.readAll().split(' ');
    return fields.value(1).toLongLong() * sysconf(_SC_PAGESIZE);
#endif
}

} // namespace drivertest
