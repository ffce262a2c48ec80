#pragma once

/// Before a function: on x86-64 the compiler also makes a version for wide vectors and the program picks the fitting
/// one when it starts. Both calculate the same. Elsewhere, and under the sanitizers, whose start-up comes too late for
/// the picking, there is one version.
#if defined(__x86_64__) && defined(__ELF__) && defined(__GNUC__) && !defined(__clang__)                                \
    && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define VENTARO_VECTOR_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define VENTARO_VECTOR_CLONES
#endif
