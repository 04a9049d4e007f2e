/* Version record and image allocation.
   Written by tools/apigen.py from the table of exports in api/: change it there. */
#ifndef RNXIP_CORE_H
#define RNXIP_CORE_H

#include "rnxip/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Version record and image allocation
   =================================== */

/* rnxiGetLibVersion: What this library is: a constant record that must not be freed.

   Cannot fail.

   Example
       printf("%s %s\n", rnxiGetLibVersion()->Name, rnxiGetLibVersion()->Version); */

const RnxLibraryVersion* rnxiGetLibVersion(void);

/* rnxiMalloc: An image of uninitialised memory whose rows all start on a 64-byte boundary, or null.

   The step is width * pixel bytes rounded up to a multiple of 64; give the memory back with rnxiFree. AC4 images have
   the full four channels.

       step pointer null                                  null, nothing is written
       width or height below 1                            null, step 0
       row bytes above 0x7fffffff (_L: 64-bit overflow)   null, step 0
       step * height above 0x7fffffff (_L: overflow)      null, the step stays written
       no memory                                          null, the step stays written

   In the plain forms a row of more than 0x7fffffc0 bytes rounds up to a step of 0x80000000, which reads as a negative
   int; such an image is refused by the size test, and the step stays written.

   Arguments
     width: pixels per row
     height: rows
     pStepBytes: receives the step in bytes

   Example
       int step;
       Rnx8u* image = rnxiMalloc_8u_C3(640, 480, &step);
       ...
       rnxiFree(image); */

Rnx8u* rnxiMalloc_8u_C1(int width, int height, int* pStepBytes);
Rnx8u* rnxiMalloc_8u_C1_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx8u* rnxiMalloc_8u_C2(int width, int height, int* pStepBytes);
Rnx8u* rnxiMalloc_8u_C2_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx8u* rnxiMalloc_8u_C3(int width, int height, int* pStepBytes);
Rnx8u* rnxiMalloc_8u_C3_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx8u* rnxiMalloc_8u_C4(int width, int height, int* pStepBytes);
Rnx8u* rnxiMalloc_8u_C4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx8u* rnxiMalloc_8u_AC4(int width, int height, int* pStepBytes);
Rnx8u* rnxiMalloc_8u_AC4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx16u* rnxiMalloc_16u_C1(int width, int height, int* pStepBytes);
Rnx16u* rnxiMalloc_16u_C1_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx16u* rnxiMalloc_16u_C2(int width, int height, int* pStepBytes);
Rnx16u* rnxiMalloc_16u_C2_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx16u* rnxiMalloc_16u_C3(int width, int height, int* pStepBytes);
Rnx16u* rnxiMalloc_16u_C3_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx16u* rnxiMalloc_16u_C4(int width, int height, int* pStepBytes);
Rnx16u* rnxiMalloc_16u_C4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx16u* rnxiMalloc_16u_AC4(int width, int height, int* pStepBytes);
Rnx16u* rnxiMalloc_16u_AC4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx16s* rnxiMalloc_16s_C1(int width, int height, int* pStepBytes);
Rnx16s* rnxiMalloc_16s_C1_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx16s* rnxiMalloc_16s_C2(int width, int height, int* pStepBytes);
Rnx16s* rnxiMalloc_16s_C2_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx16s* rnxiMalloc_16s_C3(int width, int height, int* pStepBytes);
Rnx16s* rnxiMalloc_16s_C3_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx16s* rnxiMalloc_16s_C4(int width, int height, int* pStepBytes);
Rnx16s* rnxiMalloc_16s_C4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx16s* rnxiMalloc_16s_AC4(int width, int height, int* pStepBytes);
Rnx16s* rnxiMalloc_16s_AC4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32s* rnxiMalloc_32s_C1(int width, int height, int* pStepBytes);
Rnx32s* rnxiMalloc_32s_C1_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32s* rnxiMalloc_32s_C2(int width, int height, int* pStepBytes);
Rnx32s* rnxiMalloc_32s_C2_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32s* rnxiMalloc_32s_C3(int width, int height, int* pStepBytes);
Rnx32s* rnxiMalloc_32s_C3_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32s* rnxiMalloc_32s_C4(int width, int height, int* pStepBytes);
Rnx32s* rnxiMalloc_32s_C4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32s* rnxiMalloc_32s_AC4(int width, int height, int* pStepBytes);
Rnx32s* rnxiMalloc_32s_AC4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32f* rnxiMalloc_32f_C1(int width, int height, int* pStepBytes);
Rnx32f* rnxiMalloc_32f_C1_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32f* rnxiMalloc_32f_C2(int width, int height, int* pStepBytes);
Rnx32f* rnxiMalloc_32f_C2_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32f* rnxiMalloc_32f_C3(int width, int height, int* pStepBytes);
Rnx32f* rnxiMalloc_32f_C3_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32f* rnxiMalloc_32f_C4(int width, int height, int* pStepBytes);
Rnx32f* rnxiMalloc_32f_C4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32f* rnxiMalloc_32f_AC4(int width, int height, int* pStepBytes);
Rnx32f* rnxiMalloc_32f_AC4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32sc* rnxiMalloc_32sc_C1(int width, int height, int* pStepBytes);
Rnx32sc* rnxiMalloc_32sc_C1_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32sc* rnxiMalloc_32sc_C2(int width, int height, int* pStepBytes);
Rnx32sc* rnxiMalloc_32sc_C2_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32sc* rnxiMalloc_32sc_C3(int width, int height, int* pStepBytes);
Rnx32sc* rnxiMalloc_32sc_C3_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32sc* rnxiMalloc_32sc_C4(int width, int height, int* pStepBytes);
Rnx32sc* rnxiMalloc_32sc_C4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32sc* rnxiMalloc_32sc_AC4(int width, int height, int* pStepBytes);
Rnx32sc* rnxiMalloc_32sc_AC4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32fc* rnxiMalloc_32fc_C1(int width, int height, int* pStepBytes);
Rnx32fc* rnxiMalloc_32fc_C1_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32fc* rnxiMalloc_32fc_C2(int width, int height, int* pStepBytes);
Rnx32fc* rnxiMalloc_32fc_C2_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32fc* rnxiMalloc_32fc_C3(int width, int height, int* pStepBytes);
Rnx32fc* rnxiMalloc_32fc_C3_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32fc* rnxiMalloc_32fc_C4(int width, int height, int* pStepBytes);
Rnx32fc* rnxiMalloc_32fc_C4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);
Rnx32fc* rnxiMalloc_32fc_AC4(int width, int height, int* pStepBytes);
Rnx32fc* rnxiMalloc_32fc_AC4_L(Rnx64s width, Rnx64s height, Rnx64s* pStepBytes);

/* rnxiFree: Gives image memory back; null is harmless.

   Arguments
     ptr: memory from one of the allocators, or null

   Example: that of rnxiMalloc */

void rnxiFree(void* ptr);

#ifdef __cplusplus
}
#endif

#endif
