#pragma once

/// Before a function: on x86-64 the compiler also makes a version for wide vectors, and the program selects one when it
/// starts. Both give the same results. Elsewhere there is one version, and also under the sanitizers, which start too
/// late for that selection.
#if defined(__x86_64__) && defined(__ELF__) && defined(__GNUC__) && !defined(__clang__)                                \
    && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define VENTARO_VECTOR_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define VENTARO_VECTOR_CLONES
#endif
