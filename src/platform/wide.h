// SPDX-License-Identifier: MIT
#pragma once

/// Stands before a function whose loops compilers vectorise: it is made twice, and where the processor has
/// wide registers the program takes the one that uses them. Both give the same.
#if defined(__x86_64__) && defined(__linux__) && defined(__GNUC__) && !defined(__clang__) &&                 \
    !defined(__SANITIZE_ADDRESS__) // which cannot have a function chosen before it has started itself
#define TWK_WIDE __attribute__((target_clones("avx2", "default")))
#else
#define TWK_WIDE
#endif
