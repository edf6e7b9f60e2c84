#include "host/vector_registers.h"

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#endif

namespace vyn {

#if defined(__x86_64__) && defined(__GNUC__)

namespace {

__attribute__((target("avx"))) void ClearUpperHalves() { _mm256_zeroupper(); }

}  // namespace

void ClearVectorRegisters() {
  static const bool hasUpperHalves = __builtin_cpu_supports("avx");
  if (hasUpperHalves) ClearUpperHalves();
}

#else

void ClearVectorRegisters() {}

#endif

}  // namespace vyn
