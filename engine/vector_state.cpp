#include "engine/vector_state.h"

#if defined(__x86_64__) && defined(__GNUC__)

#include <immintrin.h>

namespace {

__attribute__((target("avx"))) void zeroUpperHalves() {
    _mm256_zeroupper();
}

} // namespace

void ClearUpperVectorState() {
    if (__builtin_cpu_supports("avx")) {
        zeroUpperHalves();
    }
}

#else

void ClearUpperVectorState() {}

#endif
