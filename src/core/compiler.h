// What the two compilers are told beyond the language.
#pragma once

#define RNX_INLINE inline __attribute__((always_inline))
#define RNX_INLINE_LAMBDA __attribute__((always_inline))

// In front of a loop over the registers of an array: only an unrolled one keeps them in registers.
#ifdef __clang__
#define RNX_UNROLL _Pragma("unroll")
#else
#define RNX_UNROLL _Pragma("GCC unroll 16")
#endif
