// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <malloc.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// Not every compiler that has the sanitizer has its header as well.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace testsupport {

/// Octets of this process that are in memory, without what the allocator only keeps; 0 where the
/// system does not tell. A sanitizer keeps what was freed, but knows what is in use.
inline std::int64_t memoryInUse()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return static_cast<std::int64_t>(__sanitizer_get_current_allocated_bytes());
#else
    malloc_trim(0);
    long long pages = 0;
    if (std::FILE *file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%*s %lld", &pages) != 1)
            pages = 0;
        std::fclose(file);
    }
    return pages * sysconf(_SC_PAGESIZE);
#endif
}

} // namespace testsupport
