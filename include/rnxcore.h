/* rnxcore: aligned memory, processor features and cache size for the rnxIP library and its callers. C11 and C++. */
#ifndef RNXCORE_H
#define RNXCORE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Memory of `length` bytes, aligned to 64 bytes and not initialised; null when length is below 1 or cannot be had.
   Memory of either function is given back with rnxFree. */
void* rnxMalloc(int32_t length);
void* rnxMalloc_L(int64_t length);

/* Gives memory back; null is harmless. */
void rnxFree(void* memory);

/* Processor features. A feature is reported only when the operating system saves the registers it needs. */
#define rnxFeatureMmx UINT64_C(0x1)
#define rnxFeatureSse UINT64_C(0x2)
#define rnxFeatureSse2 UINT64_C(0x4)
#define rnxFeatureSse3 UINT64_C(0x8)
#define rnxFeatureSsse3 UINT64_C(0x10)
#define rnxFeatureMovbe UINT64_C(0x20)
#define rnxFeatureSse41 UINT64_C(0x40)
#define rnxFeatureSse42 UINT64_C(0x80)
#define rnxFeatureAvx UINT64_C(0x100)
#define rnxFeaturePopcnt UINT64_C(0x200)
#define rnxFeatureAes UINT64_C(0x400)
#define rnxFeaturePclmulqdq UINT64_C(0x800)
#define rnxFeatureRdrand UINT64_C(0x1000)
#define rnxFeatureF16c UINT64_C(0x2000)
#define rnxFeatureAvx2 UINT64_C(0x4000)
#define rnxFeatureFma UINT64_C(0x8000)
#define rnxFeatureBmi1 UINT64_C(0x10000)
#define rnxFeatureBmi2 UINT64_C(0x20000)
#define rnxFeatureLzcnt UINT64_C(0x40000)
#define rnxFeatureAvx512 UINT64_C(0x8000000) /* the 512-bit vector set: F, CD, BW, DQ and VL together */

/* Non-zero when the processor has every feature of the mask; a mask with a bit that has no name here gives 0,
   an empty mask gives 1. */
int ownGetFeature(uint64_t mask);

/* Stores the size in bytes of the processor's largest data or unified cache: 0 on success, -8 when the pointer is
   null. Where the size cannot be found out, a status other than 0, and nothing is stored. */
int rnxGetMaxCacheSizeB(int32_t* size);

#ifdef __cplusplus
}
#endif

#endif
