// SPDX-License-Identifier: MIT
#include "platform/memory.h"

#include <cstdlib> // tells of the C library

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace twk {

void keep_freed_memory() {
#if defined(__GLIBC__)
    constexpr int megabyte = 1 << 20;
    mallopt(M_MMAP_THRESHOLD, 16 * megabyte);
    mallopt(M_TRIM_THRESHOLD, 64 * megabyte);
#endif
}

} // namespace twk
