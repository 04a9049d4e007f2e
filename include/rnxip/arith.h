/* Binary arithmetic with scale factor; Image comparison; Thresholding.
   Written by tools/apigen.py from the table of exports in api/: change it there. */
#ifndef RNXIP_ARITH_H
#define RNXIP_ARITH_H

#include "rnxip/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Binary arithmetic with scale factor
   ===================================

   Integer results are delivered as r * 2^-scaleFactor, where r is the exact result: rounded half to even, then saturated
   to the type. A factor so large that every result rounds to 0 writes zeros. The caller's floating-point control state has
   no influence on them and is the same after the call.

   32f results are those of IEEE 754 in single precision under the caller's control state, NaN and infinity included;
   nothing is scaled or saturated. Where both operands are NaN the left one comes out, made quiet: that of pSrc2, or of the
   image beside a constant.

   AC4 works on three channels and never changes the destination's fourth element. In place the image written is the
   second operand. Images may overlap in any way: the result is then that of a loop over the rows from the top and over
   the elements of a row from the left.

   Forms ending in _L take 64-bit steps and sizes. Where every step is below 0x7fffffff in magnitude and the ROI has
   fewer than 0x7fffffff bytes, they are the plain form, status included. Beyond that they treat the image as pieces of at
   most 0x1fffffff pixels of one row and return the first negative status, else that of the last piece; there a height
   below 1 gives 0. */

/* rnxiAdd: Sum of two images.

       dst = src1 + src2

   8u writes zeros for scaleFactor above 9.

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     scaleFactor: the exact result is multiplied by 2^-scaleFactor, rounded half to even and saturated; any value
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1

   Example
       RnxiSize roi = {640, 480};
       RnxStatus status = rnxiAdd_8u_C3RSfs(a, aStep, b, bStep, mean, meanStep, roi, 1); */

RnxStatus rnxiAdd_8u_C1RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAdd_8u_C1RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_8u_C1IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAdd_8u_C1IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_8u_C3RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAdd_8u_C3RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_8u_C3IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAdd_8u_C3IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_8u_C4RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAdd_8u_C4RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_8u_C4IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAdd_8u_C4IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_8u_AC4RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAdd_8u_AC4RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_8u_AC4IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAdd_8u_AC4IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16u_C1RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAdd_16u_C1RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16u_C1IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAdd_16u_C1IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16u_C3RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAdd_16u_C3RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16u_C3IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAdd_16u_C3IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16u_C4RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAdd_16u_C4RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16u_C4IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAdd_16u_C4IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16u_AC4RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAdd_16u_AC4RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step,
    Rnx16u* pDst, Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16u_AC4IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAdd_16u_AC4IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16s_C1RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAdd_16s_C1RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16s_C1IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAdd_16s_C1IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16s_C3RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAdd_16s_C3RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16s_C3IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAdd_16s_C3IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16s_C4RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAdd_16s_C4RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16s_C4IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAdd_16s_C4IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16s_AC4RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAdd_16s_AC4RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step,
    Rnx16s* pDst, Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_16s_AC4IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAdd_16s_AC4IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAdd_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiAdd_32f_C1R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiAdd_32f_C1IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAdd_32f_C1IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiAdd_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiAdd_32f_C3R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiAdd_32f_C3IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAdd_32f_C3IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiAdd_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiAdd_32f_C4R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiAdd_32f_C4IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAdd_32f_C4IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiAdd_32f_AC4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiAdd_32f_AC4R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiAdd_32f_AC4IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAdd_32f_AC4IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);

/* rnxiSub: Difference of two images: the second minus the first.

       dst = src2 - src1        (in place: srcDst = srcDst - src)

   8u writes zeros for scaleFactor above 8.

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     scaleFactor: the exact result is multiplied by 2^-scaleFactor, rounded half to even and saturated; any value
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1

   Example
       // change = now - before, negative differences become 0
       RnxStatus status = rnxiSub_8u_C1RSfs(before, step, now, step, change, step, roi, 0); */

RnxStatus rnxiSub_8u_C1RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSub_8u_C1RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_8u_C1IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSub_8u_C1IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_8u_C3RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSub_8u_C3RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_8u_C3IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSub_8u_C3IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_8u_C4RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSub_8u_C4RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_8u_C4IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSub_8u_C4IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_8u_AC4RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSub_8u_AC4RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_8u_AC4IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSub_8u_AC4IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16u_C1RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSub_16u_C1RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16u_C1IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSub_16u_C1IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16u_C3RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSub_16u_C3RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16u_C3IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSub_16u_C3IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16u_C4RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSub_16u_C4RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16u_C4IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSub_16u_C4IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16u_AC4RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSub_16u_AC4RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step,
    Rnx16u* pDst, Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16u_AC4IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSub_16u_AC4IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16s_C1RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSub_16s_C1RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16s_C1IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSub_16s_C1IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16s_C3RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSub_16s_C3RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16s_C3IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSub_16s_C3IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16s_C4RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSub_16s_C4RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16s_C4IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSub_16s_C4IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16s_AC4RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSub_16s_AC4RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step,
    Rnx16s* pDst, Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_16s_AC4IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSub_16s_AC4IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSub_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiSub_32f_C1R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiSub_32f_C1IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiSub_32f_C1IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiSub_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiSub_32f_C3R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiSub_32f_C3IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiSub_32f_C3IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiSub_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiSub_32f_C4R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiSub_32f_C4IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiSub_32f_C4IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiSub_32f_AC4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiSub_32f_AC4R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiSub_32f_AC4IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiSub_32f_AC4IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);

/* rnxiMul: Product of two images.

       dst = src1 * src2

   8u writes zeros for scaleFactor above 16.

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     scaleFactor: the exact result is multiplied by 2^-scaleFactor, rounded half to even and saturated; any value
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1

   Example
       // scaleFactor 8 keeps the product of two fractions of 256 in range
       RnxStatus status = rnxiMul_8u_C1RSfs(a, aStep, b, bStep, product, step, roi, 8); */

RnxStatus rnxiMul_8u_C1RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMul_8u_C1RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_8u_C1IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMul_8u_C1IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_8u_C3RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMul_8u_C3RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_8u_C3IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMul_8u_C3IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_8u_C4RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMul_8u_C4RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_8u_C4IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMul_8u_C4IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_8u_AC4RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMul_8u_AC4RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_8u_AC4IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMul_8u_AC4IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16u_C1RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMul_16u_C1RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16u_C1IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMul_16u_C1IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16u_C3RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMul_16u_C3RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16u_C3IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMul_16u_C3IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16u_C4RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMul_16u_C4RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16u_C4IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMul_16u_C4IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16u_AC4RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMul_16u_AC4RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step,
    Rnx16u* pDst, Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16u_AC4IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMul_16u_AC4IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16s_C1RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMul_16s_C1RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16s_C1IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMul_16s_C1IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16s_C3RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMul_16s_C3RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16s_C3IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMul_16s_C3IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16s_C4RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMul_16s_C4RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16s_C4IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMul_16s_C4IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16s_AC4RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMul_16s_AC4RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step,
    Rnx16s* pDst, Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_16s_AC4IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMul_16s_AC4IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMul_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiMul_32f_C1R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiMul_32f_C1IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMul_32f_C1IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiMul_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiMul_32f_C3R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiMul_32f_C3IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMul_32f_C3IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiMul_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiMul_32f_C4R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiMul_32f_C4IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMul_32f_C4IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiMul_32f_AC4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiMul_32f_AC4R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiMul_32f_AC4IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMul_32f_AC4IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);

/* rnxiDiv: Quotient of two images: the second divided by the first.

       dst = src2 / src1        (in place: srcDst = srcDst / src)

   The integer quotient is the exact rational one, scaled, rounded once and saturated. A zero divisor gives the largest
   value of the type for a positive dividend, the smallest for a negative one and 0 for 0, whatever the scale factor; the
   other elements are computed as usual and the call returns +2 rnxStatusWarningDivByZero. 32f gives what IEEE 754 says
   and the same warning; -0.0 is a zero. The fourth element of an AC4 divisor is not looked at.

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     scaleFactor: the exact result is multiplied by 2^-scaleFactor, rounded half to even and saturated; any value
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       // 16 fractional steps per unit
       RnxStatus status = rnxiDiv_16u_C1RSfs(divisor, step, dividend, step, ratio, step, roi, -4); */

RnxStatus rnxiDiv_8u_C1RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDiv_8u_C1RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_8u_C1IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDiv_8u_C1IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_8u_C3RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDiv_8u_C3RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_8u_C3IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDiv_8u_C3IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_8u_C4RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDiv_8u_C4RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_8u_C4IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDiv_8u_C4IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_8u_AC4RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDiv_8u_AC4RSfs_L(const Rnx8u* pSrc1, Rnx64s src1Step, const Rnx8u* pSrc2, Rnx64s src2Step, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_8u_AC4IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDiv_8u_AC4IRSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16u_C1RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDiv_16u_C1RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16u_C1IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDiv_16u_C1IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16u_C3RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDiv_16u_C3RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16u_C3IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDiv_16u_C3IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16u_C4RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDiv_16u_C4RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16u_C4IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDiv_16u_C4IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16u_AC4RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDiv_16u_AC4RSfs_L(const Rnx16u* pSrc1, Rnx64s src1Step, const Rnx16u* pSrc2, Rnx64s src2Step,
    Rnx16u* pDst, Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16u_AC4IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDiv_16u_AC4IRSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16s_C1RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDiv_16s_C1RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16s_C1IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDiv_16s_C1IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16s_C3RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDiv_16s_C3RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16s_C3IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDiv_16s_C3IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16s_C4RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDiv_16s_C4RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16s_C4IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDiv_16s_C4IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16s_AC4RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDiv_16s_AC4RSfs_L(const Rnx16s* pSrc1, Rnx64s src1Step, const Rnx16s* pSrc2, Rnx64s src2Step,
    Rnx16s* pDst, Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_16s_AC4IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDiv_16s_AC4IRSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDiv_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiDiv_32f_C1R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiDiv_32f_C1IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiDiv_32f_C1IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiDiv_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiDiv_32f_C3R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiDiv_32f_C3IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiDiv_32f_C3IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiDiv_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiDiv_32f_C4R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiDiv_32f_C4IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiDiv_32f_C4IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiDiv_32f_AC4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiDiv_32f_AC4R_L(const Rnx32f* pSrc1, Rnx64s src1Step, const Rnx32f* pSrc2, Rnx64s src2Step, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiDiv_32f_AC4IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiDiv_32f_AC4IR_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pSrcDst, Rnx64s srcDstStep,
    const RnxiSizeL* roiSize);

/* rnxiDiv_Round: Quotient of two images with a rounding mode: the second divided by the first.

       dst = src2 / src1        (in place: srcDst = srcDst / src)

   As rnxiDiv, but the scaled quotient is rounded by roundMode.

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     roundMode: 0 rnxRoundZero, 1 rnxRoundNearestEven, 2 rnxRoundHalfAway
     scaleFactor: the exact result is multiplied by 2^-scaleFactor, rounded half to even and saturated; any value
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1
     rnxStatusBadRoundMode: roundMode not 0, 1 or 2

   Example
       RnxStatus status = rnxiDiv_Round_8u_C1RSfs(divisor, step, dividend, step, ratio, step, roi, rnxRoundZero, 0); */

RnxStatus rnxiDiv_Round_8u_C1RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_8u_C1IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_8u_C3RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_8u_C3IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_8u_C4RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_8u_C4IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_8u_AC4RSfs(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_8u_AC4IRSfs(const Rnx8u* pSrc, int srcStep, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16u_C1RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16u_C1IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16u_C3RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16u_C3IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16u_C4RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16u_C4IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16u_AC4RSfs(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx16u* pDst,
    int dstStep, RnxiSize roiSize, int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16u_AC4IRSfs(const Rnx16u* pSrc, int srcStep, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16s_C1RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16s_C1IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16s_C3RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16s_C3IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16s_C4RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16s_C4IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16s_AC4RSfs(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx16s* pDst,
    int dstStep, RnxiSize roiSize, int roundMode, int scaleFactor);
RnxStatus rnxiDiv_Round_16s_AC4IRSfs(const Rnx16s* pSrc, int srcStep, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);

/* rnxiAddC: Sum of an image and a constant per channel.

       dst = src + value

   8u writes zeros for scaleFactor above 9, 16u and 16s above 16.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     value: the constant: one value (C1), or an array of one value per channel (3 for C3 and AC4, 4 for C4)
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     scaleFactor: the exact result is multiplied by 2^-scaleFactor, rounded half to even and saturated; any value
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1

   Example
       const Rnx8u warm[3] = {20, 8, 0};
       RnxStatus status = rnxiAddC_8u_C3IRSfs(warm, image, step, roi, 0); */

RnxStatus rnxiAddC_8u_C1RSfs(const Rnx8u* pSrc, int srcStep, Rnx8u value, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_8u_C1RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u value, Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAddC_8u_C1IRSfs(Rnx8u value, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_8u_C1IRSfs_L(Rnx8u value, Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_8u_C3RSfs(const Rnx8u* pSrc, int srcStep, const Rnx8u value[3], Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_8u_C3RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, const Rnx8u value[3], Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAddC_8u_C3IRSfs(const Rnx8u value[3], Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_8u_C3IRSfs_L(const Rnx8u value[3], Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_8u_C4RSfs(const Rnx8u* pSrc, int srcStep, const Rnx8u value[4], Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_8u_C4RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, const Rnx8u value[4], Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAddC_8u_C4IRSfs(const Rnx8u value[4], Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_8u_C4IRSfs_L(const Rnx8u value[4], Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_8u_AC4RSfs(const Rnx8u* pSrc, int srcStep, const Rnx8u value[3], Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_8u_AC4RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, const Rnx8u value[3], Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAddC_8u_AC4IRSfs(const Rnx8u value[3], Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_8u_AC4IRSfs_L(const Rnx8u value[3], Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16u_C1RSfs(const Rnx16u* pSrc, int srcStep, Rnx16u value, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_16u_C1RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u value, Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAddC_16u_C1IRSfs(Rnx16u value, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_16u_C1IRSfs_L(Rnx16u value, Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16u_C3RSfs(const Rnx16u* pSrc, int srcStep, const Rnx16u value[3], Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_16u_C3RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, const Rnx16u value[3], Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAddC_16u_C3IRSfs(const Rnx16u value[3], Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16u_C3IRSfs_L(const Rnx16u value[3], Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16u_C4RSfs(const Rnx16u* pSrc, int srcStep, const Rnx16u value[4], Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_16u_C4RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, const Rnx16u value[4], Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAddC_16u_C4IRSfs(const Rnx16u value[4], Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16u_C4IRSfs_L(const Rnx16u value[4], Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16u_AC4RSfs(const Rnx16u* pSrc, int srcStep, const Rnx16u value[3], Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_16u_AC4RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, const Rnx16u value[3], Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAddC_16u_AC4IRSfs(const Rnx16u value[3], Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16u_AC4IRSfs_L(const Rnx16u value[3], Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16s_C1RSfs(const Rnx16s* pSrc, int srcStep, Rnx16s value, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_16s_C1RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s value, Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAddC_16s_C1IRSfs(Rnx16s value, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_16s_C1IRSfs_L(Rnx16s value, Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16s_C3RSfs(const Rnx16s* pSrc, int srcStep, const Rnx16s value[3], Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_16s_C3RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, const Rnx16s value[3], Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAddC_16s_C3IRSfs(const Rnx16s value[3], Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16s_C3IRSfs_L(const Rnx16s value[3], Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16s_C4RSfs(const Rnx16s* pSrc, int srcStep, const Rnx16s value[4], Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_16s_C4RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, const Rnx16s value[4], Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAddC_16s_C4IRSfs(const Rnx16s value[4], Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16s_C4IRSfs_L(const Rnx16s value[4], Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16s_AC4RSfs(const Rnx16s* pSrc, int srcStep, const Rnx16s value[3], Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiAddC_16s_AC4RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, const Rnx16s value[3], Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiAddC_16s_AC4IRSfs(const Rnx16s value[3], Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_16s_AC4IRSfs_L(const Rnx16s value[3], Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiAddC_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f value, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiAddC_32f_C1R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f value, Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiAddC_32f_C1IR(Rnx32f value, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAddC_32f_C1IR_L(Rnx32f value, Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiAddC_32f_C3R(const Rnx32f* pSrc, int srcStep, const Rnx32f value[3], Rnx32f* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAddC_32f_C3R_L(const Rnx32f* pSrc, Rnx64s srcStep, const Rnx32f value[3], Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiAddC_32f_C3IR(const Rnx32f value[3], Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAddC_32f_C3IR_L(const Rnx32f value[3], Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiAddC_32f_C4R(const Rnx32f* pSrc, int srcStep, const Rnx32f value[4], Rnx32f* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAddC_32f_C4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const Rnx32f value[4], Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiAddC_32f_C4IR(const Rnx32f value[4], Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAddC_32f_C4IR_L(const Rnx32f value[4], Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiAddC_32f_AC4R(const Rnx32f* pSrc, int srcStep, const Rnx32f value[3], Rnx32f* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAddC_32f_AC4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const Rnx32f value[3], Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiAddC_32f_AC4IR(const Rnx32f value[3], Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAddC_32f_AC4IR_L(const Rnx32f value[3], Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);

/* rnxiSubC: Difference of an image and a constant per channel.

       dst = src - value

   8u writes zeros for scaleFactor above 8, 16u and 16s above 16.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     value: the constant: one value (C1), or an array of one value per channel (3 for C3 and AC4, 4 for C4)
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     scaleFactor: the exact result is multiplied by 2^-scaleFactor, rounded half to even and saturated; any value
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1

   Example
       RnxStatus status = rnxiSubC_16s_C1RSfs(src, srcStep, 100, dst, dstStep, roi, 0); */

RnxStatus rnxiSubC_8u_C1RSfs(const Rnx8u* pSrc, int srcStep, Rnx8u value, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_8u_C1RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u value, Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSubC_8u_C1IRSfs(Rnx8u value, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_8u_C1IRSfs_L(Rnx8u value, Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_8u_C3RSfs(const Rnx8u* pSrc, int srcStep, const Rnx8u value[3], Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_8u_C3RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, const Rnx8u value[3], Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSubC_8u_C3IRSfs(const Rnx8u value[3], Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_8u_C3IRSfs_L(const Rnx8u value[3], Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_8u_C4RSfs(const Rnx8u* pSrc, int srcStep, const Rnx8u value[4], Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_8u_C4RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, const Rnx8u value[4], Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSubC_8u_C4IRSfs(const Rnx8u value[4], Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_8u_C4IRSfs_L(const Rnx8u value[4], Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_8u_AC4RSfs(const Rnx8u* pSrc, int srcStep, const Rnx8u value[3], Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_8u_AC4RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, const Rnx8u value[3], Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSubC_8u_AC4IRSfs(const Rnx8u value[3], Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_8u_AC4IRSfs_L(const Rnx8u value[3], Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16u_C1RSfs(const Rnx16u* pSrc, int srcStep, Rnx16u value, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_16u_C1RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u value, Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSubC_16u_C1IRSfs(Rnx16u value, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_16u_C1IRSfs_L(Rnx16u value, Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16u_C3RSfs(const Rnx16u* pSrc, int srcStep, const Rnx16u value[3], Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_16u_C3RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, const Rnx16u value[3], Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSubC_16u_C3IRSfs(const Rnx16u value[3], Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16u_C3IRSfs_L(const Rnx16u value[3], Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16u_C4RSfs(const Rnx16u* pSrc, int srcStep, const Rnx16u value[4], Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_16u_C4RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, const Rnx16u value[4], Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSubC_16u_C4IRSfs(const Rnx16u value[4], Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16u_C4IRSfs_L(const Rnx16u value[4], Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16u_AC4RSfs(const Rnx16u* pSrc, int srcStep, const Rnx16u value[3], Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_16u_AC4RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, const Rnx16u value[3], Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSubC_16u_AC4IRSfs(const Rnx16u value[3], Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16u_AC4IRSfs_L(const Rnx16u value[3], Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16s_C1RSfs(const Rnx16s* pSrc, int srcStep, Rnx16s value, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_16s_C1RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s value, Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSubC_16s_C1IRSfs(Rnx16s value, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_16s_C1IRSfs_L(Rnx16s value, Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16s_C3RSfs(const Rnx16s* pSrc, int srcStep, const Rnx16s value[3], Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_16s_C3RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, const Rnx16s value[3], Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSubC_16s_C3IRSfs(const Rnx16s value[3], Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16s_C3IRSfs_L(const Rnx16s value[3], Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16s_C4RSfs(const Rnx16s* pSrc, int srcStep, const Rnx16s value[4], Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_16s_C4RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, const Rnx16s value[4], Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSubC_16s_C4IRSfs(const Rnx16s value[4], Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16s_C4IRSfs_L(const Rnx16s value[4], Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16s_AC4RSfs(const Rnx16s* pSrc, int srcStep, const Rnx16s value[3], Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiSubC_16s_AC4RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, const Rnx16s value[3], Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiSubC_16s_AC4IRSfs(const Rnx16s value[3], Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_16s_AC4IRSfs_L(const Rnx16s value[3], Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiSubC_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f value, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSubC_32f_C1R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f value, Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiSubC_32f_C1IR(Rnx32f value, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiSubC_32f_C1IR_L(Rnx32f value, Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiSubC_32f_C3R(const Rnx32f* pSrc, int srcStep, const Rnx32f value[3], Rnx32f* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiSubC_32f_C3R_L(const Rnx32f* pSrc, Rnx64s srcStep, const Rnx32f value[3], Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiSubC_32f_C3IR(const Rnx32f value[3], Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiSubC_32f_C3IR_L(const Rnx32f value[3], Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiSubC_32f_C4R(const Rnx32f* pSrc, int srcStep, const Rnx32f value[4], Rnx32f* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiSubC_32f_C4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const Rnx32f value[4], Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiSubC_32f_C4IR(const Rnx32f value[4], Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiSubC_32f_C4IR_L(const Rnx32f value[4], Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiSubC_32f_AC4R(const Rnx32f* pSrc, int srcStep, const Rnx32f value[3], Rnx32f* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiSubC_32f_AC4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const Rnx32f value[3], Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiSubC_32f_AC4IR(const Rnx32f value[3], Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiSubC_32f_AC4IR_L(const Rnx32f value[3], Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);

/* rnxiMulC: Product of an image and a constant per channel.

       dst = src * value

   8u writes zeros for scaleFactor above 16.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     value: the constant: one value (C1), or an array of one value per channel (3 for C3 and AC4, 4 for C4)
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     scaleFactor: the exact result is multiplied by 2^-scaleFactor, rounded half to even and saturated; any value
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1

   Example
       // times 1.25 = 160 / 2^7
       RnxStatus status = rnxiMulC_8u_C1RSfs(src, srcStep, 160, dst, dstStep, roi, 7); */

RnxStatus rnxiMulC_8u_C1RSfs(const Rnx8u* pSrc, int srcStep, Rnx8u value, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_8u_C1RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u value, Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMulC_8u_C1IRSfs(Rnx8u value, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_8u_C1IRSfs_L(Rnx8u value, Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_8u_C3RSfs(const Rnx8u* pSrc, int srcStep, const Rnx8u value[3], Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_8u_C3RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, const Rnx8u value[3], Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMulC_8u_C3IRSfs(const Rnx8u value[3], Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_8u_C3IRSfs_L(const Rnx8u value[3], Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_8u_C4RSfs(const Rnx8u* pSrc, int srcStep, const Rnx8u value[4], Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_8u_C4RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, const Rnx8u value[4], Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMulC_8u_C4IRSfs(const Rnx8u value[4], Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_8u_C4IRSfs_L(const Rnx8u value[4], Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_8u_AC4RSfs(const Rnx8u* pSrc, int srcStep, const Rnx8u value[3], Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_8u_AC4RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, const Rnx8u value[3], Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMulC_8u_AC4IRSfs(const Rnx8u value[3], Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_8u_AC4IRSfs_L(const Rnx8u value[3], Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16u_C1RSfs(const Rnx16u* pSrc, int srcStep, Rnx16u value, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_16u_C1RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u value, Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMulC_16u_C1IRSfs(Rnx16u value, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_16u_C1IRSfs_L(Rnx16u value, Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16u_C3RSfs(const Rnx16u* pSrc, int srcStep, const Rnx16u value[3], Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_16u_C3RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, const Rnx16u value[3], Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMulC_16u_C3IRSfs(const Rnx16u value[3], Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16u_C3IRSfs_L(const Rnx16u value[3], Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16u_C4RSfs(const Rnx16u* pSrc, int srcStep, const Rnx16u value[4], Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_16u_C4RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, const Rnx16u value[4], Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMulC_16u_C4IRSfs(const Rnx16u value[4], Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16u_C4IRSfs_L(const Rnx16u value[4], Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16u_AC4RSfs(const Rnx16u* pSrc, int srcStep, const Rnx16u value[3], Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_16u_AC4RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, const Rnx16u value[3], Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMulC_16u_AC4IRSfs(const Rnx16u value[3], Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16u_AC4IRSfs_L(const Rnx16u value[3], Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16s_C1RSfs(const Rnx16s* pSrc, int srcStep, Rnx16s value, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_16s_C1RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s value, Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMulC_16s_C1IRSfs(Rnx16s value, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_16s_C1IRSfs_L(Rnx16s value, Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16s_C3RSfs(const Rnx16s* pSrc, int srcStep, const Rnx16s value[3], Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_16s_C3RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, const Rnx16s value[3], Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMulC_16s_C3IRSfs(const Rnx16s value[3], Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16s_C3IRSfs_L(const Rnx16s value[3], Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16s_C4RSfs(const Rnx16s* pSrc, int srcStep, const Rnx16s value[4], Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_16s_C4RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, const Rnx16s value[4], Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMulC_16s_C4IRSfs(const Rnx16s value[4], Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16s_C4IRSfs_L(const Rnx16s value[4], Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16s_AC4RSfs(const Rnx16s* pSrc, int srcStep, const Rnx16s value[3], Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiMulC_16s_AC4RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, const Rnx16s value[3], Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiMulC_16s_AC4IRSfs(const Rnx16s value[3], Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_16s_AC4IRSfs_L(const Rnx16s value[3], Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiMulC_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f value, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiMulC_32f_C1R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f value, Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiMulC_32f_C1IR(Rnx32f value, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMulC_32f_C1IR_L(Rnx32f value, Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiMulC_32f_C3R(const Rnx32f* pSrc, int srcStep, const Rnx32f value[3], Rnx32f* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiMulC_32f_C3R_L(const Rnx32f* pSrc, Rnx64s srcStep, const Rnx32f value[3], Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiMulC_32f_C3IR(const Rnx32f value[3], Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMulC_32f_C3IR_L(const Rnx32f value[3], Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiMulC_32f_C4R(const Rnx32f* pSrc, int srcStep, const Rnx32f value[4], Rnx32f* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiMulC_32f_C4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const Rnx32f value[4], Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiMulC_32f_C4IR(const Rnx32f value[4], Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMulC_32f_C4IR_L(const Rnx32f value[4], Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiMulC_32f_AC4R(const Rnx32f* pSrc, int srcStep, const Rnx32f value[3], Rnx32f* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiMulC_32f_AC4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const Rnx32f value[3], Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiMulC_32f_AC4IR(const Rnx32f value[3], Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMulC_32f_AC4IR_L(const Rnx32f value[3], Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);

/* rnxiDivC: Quotient of an image and a constant per channel.

       dst = src / value

   The integer quotient is the exact rational one, scaled, rounded once and saturated.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     value: the constant: one value (C1), or an array of one value per channel (3 for C3 and AC4, 4 for C4)
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     scaleFactor: the exact result is multiplied by 2^-scaleFactor, rounded half to even and saturated; any value
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusDivByZero: the divisor of a channel that is used is 0 (three channels for AC4)

   Example
       const Rnx32f whitePoint[3] = {0.95f, 1.0f, 1.09f};
       RnxStatus status = rnxiDivC_32f_C3IR(whitePoint, image, step, roi); */

RnxStatus rnxiDivC_8u_C1RSfs(const Rnx8u* pSrc, int srcStep, Rnx8u value, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_8u_C1RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u value, Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDivC_8u_C1IRSfs(Rnx8u value, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_8u_C1IRSfs_L(Rnx8u value, Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_8u_C3RSfs(const Rnx8u* pSrc, int srcStep, const Rnx8u value[3], Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_8u_C3RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, const Rnx8u value[3], Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDivC_8u_C3IRSfs(const Rnx8u value[3], Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_8u_C3IRSfs_L(const Rnx8u value[3], Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_8u_C4RSfs(const Rnx8u* pSrc, int srcStep, const Rnx8u value[4], Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_8u_C4RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, const Rnx8u value[4], Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDivC_8u_C4IRSfs(const Rnx8u value[4], Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_8u_C4IRSfs_L(const Rnx8u value[4], Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_8u_AC4RSfs(const Rnx8u* pSrc, int srcStep, const Rnx8u value[3], Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_8u_AC4RSfs_L(const Rnx8u* pSrc, Rnx64s srcStep, const Rnx8u value[3], Rnx8u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDivC_8u_AC4IRSfs(const Rnx8u value[3], Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_8u_AC4IRSfs_L(const Rnx8u value[3], Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16u_C1RSfs(const Rnx16u* pSrc, int srcStep, Rnx16u value, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_16u_C1RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u value, Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDivC_16u_C1IRSfs(Rnx16u value, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_16u_C1IRSfs_L(Rnx16u value, Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16u_C3RSfs(const Rnx16u* pSrc, int srcStep, const Rnx16u value[3], Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_16u_C3RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, const Rnx16u value[3], Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDivC_16u_C3IRSfs(const Rnx16u value[3], Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16u_C3IRSfs_L(const Rnx16u value[3], Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16u_C4RSfs(const Rnx16u* pSrc, int srcStep, const Rnx16u value[4], Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_16u_C4RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, const Rnx16u value[4], Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDivC_16u_C4IRSfs(const Rnx16u value[4], Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16u_C4IRSfs_L(const Rnx16u value[4], Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16u_AC4RSfs(const Rnx16u* pSrc, int srcStep, const Rnx16u value[3], Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_16u_AC4RSfs_L(const Rnx16u* pSrc, Rnx64s srcStep, const Rnx16u value[3], Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDivC_16u_AC4IRSfs(const Rnx16u value[3], Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16u_AC4IRSfs_L(const Rnx16u value[3], Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16s_C1RSfs(const Rnx16s* pSrc, int srcStep, Rnx16s value, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_16s_C1RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s value, Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDivC_16s_C1IRSfs(Rnx16s value, Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_16s_C1IRSfs_L(Rnx16s value, Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16s_C3RSfs(const Rnx16s* pSrc, int srcStep, const Rnx16s value[3], Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_16s_C3RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, const Rnx16s value[3], Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDivC_16s_C3IRSfs(const Rnx16s value[3], Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16s_C3IRSfs_L(const Rnx16s value[3], Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16s_C4RSfs(const Rnx16s* pSrc, int srcStep, const Rnx16s value[4], Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_16s_C4RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, const Rnx16s value[4], Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDivC_16s_C4IRSfs(const Rnx16s value[4], Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16s_C4IRSfs_L(const Rnx16s value[4], Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16s_AC4RSfs(const Rnx16s* pSrc, int srcStep, const Rnx16s value[3], Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int scaleFactor);
RnxStatus rnxiDivC_16s_AC4RSfs_L(const Rnx16s* pSrc, Rnx64s srcStep, const Rnx16s value[3], Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* roiSize, int scaleFactor);
RnxStatus rnxiDivC_16s_AC4IRSfs(const Rnx16s value[3], Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_16s_AC4IRSfs_L(const Rnx16s value[3], Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize,
    int scaleFactor);
RnxStatus rnxiDivC_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f value, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiDivC_32f_C1R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f value, Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiDivC_32f_C1IR(Rnx32f value, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiDivC_32f_C1IR_L(Rnx32f value, Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiDivC_32f_C3R(const Rnx32f* pSrc, int srcStep, const Rnx32f value[3], Rnx32f* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiDivC_32f_C3R_L(const Rnx32f* pSrc, Rnx64s srcStep, const Rnx32f value[3], Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiDivC_32f_C3IR(const Rnx32f value[3], Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiDivC_32f_C3IR_L(const Rnx32f value[3], Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiDivC_32f_C4R(const Rnx32f* pSrc, int srcStep, const Rnx32f value[4], Rnx32f* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiDivC_32f_C4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const Rnx32f value[4], Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiDivC_32f_C4IR(const Rnx32f value[4], Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiDivC_32f_C4IR_L(const Rnx32f value[4], Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiDivC_32f_AC4R(const Rnx32f* pSrc, int srcStep, const Rnx32f value[3], Rnx32f* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiDivC_32f_AC4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const Rnx32f value[3], Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiDivC_32f_AC4IR(const Rnx32f value[3], Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiDivC_32f_AC4IR_L(const Rnx32f value[3], Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* roiSize);


/* Image comparison
   ================ */

/* rnxiCompare: Compares two images and writes a mask: 255 where the relation holds, else 0.

       dst = (src1 cmpOp src2 in every channel) ? 255 : 0

   C3 and C4 compare three and four channels, AC4 the first three. A 32f element that is not a number makes every relation
   false, rnxCmpEq too; zeros of either sign are equal.

   The steps are tested before the size. With any other cmpOp the call returns 0 and leaves the destination as it is.
   The destination may overlap the sources: the result is then that of a loop over the rows from the top and over the
   pixels of a row from the left.

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     pDst, dstStep: destination: an image of one byte per pixel, and its step
     roiSize: size of the region of interest in pixels
     cmpOp: 0 rnxCmpLess, 1 rnxCmpLessEq, 2 rnxCmpEq, 3 rnxCmpGreaterEq, 4 rnxCmpGreater: what the first image is
         to the second

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadStep: a step below 1
     rnxStatusBadSize: ROI width or height below 1

   Example
       // where has the picture become brighter?
       RnxStatus status = rnxiCompare_8u_C1R(now, nowStep, before, beforeStep, mask, maskStep, roi, rnxCmpGreater); */

RnxStatus rnxiCompare_8u_C1R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_8u_C3R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_8u_C4R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_8u_AC4R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_16u_C1R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_16u_C3R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_16u_C4R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_16u_AC4R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_16s_C1R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_16s_C3R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_16s_C4R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_16s_AC4R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);
RnxStatus rnxiCompare_32f_AC4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx8u* pDst,
    int dstStep, RnxiSize roiSize, int cmpOp);


/* Thresholding
   ============

   Every comparison is strict: an element equal to a threshold is kept, a zero of the other sign included. A 32f element
   that is not a number satisfies no comparison and is kept; so is every element where the threshold is not a number.

   C3, C4 and AC4 take arrays with a threshold (and a value) per channel. AC4 works on three channels and never changes
   the destination's fourth element. Images may overlap in any way: the result is then that of a loop over the rows from
   the top and over the elements of a row from the left. */

/* rnxiThreshold: Clamps the elements on one side of a level to the level.

       cmpOp 0:  dst = max(src, threshold)
       cmpOp 4:  dst = min(src, threshold)

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     threshold: the level: one (C1), or an array of one per channel (3 for C3 and AC4, 4 for C4)
     cmpOp: 0 rnxCmpLess or 4 rnxCmpGreater: which elements are changed
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1
     rnxStatusUnsupportedMode: cmpOp neither 0 rnxCmpLess nor 4 rnxCmpGreater

   Example
       // nothing darker than 16
       RnxStatus status = rnxiThreshold_8u_C1IR(image, step, roi, 16, rnxCmpLess); */

RnxStatus rnxiThreshold_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    Rnx8u threshold, int cmpOp);
RnxStatus rnxiThreshold_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx8u threshold, int cmpOp);
RnxStatus rnxiThreshold_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[3], int cmpOp);
RnxStatus rnxiThreshold_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[3], int cmpOp);
RnxStatus rnxiThreshold_8u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[3], int cmpOp);
RnxStatus rnxiThreshold_8u_AC4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[3], int cmpOp);
RnxStatus rnxiThreshold_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    Rnx16u threshold, int cmpOp);
RnxStatus rnxiThreshold_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16u threshold, int cmpOp);
RnxStatus rnxiThreshold_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[3], int cmpOp);
RnxStatus rnxiThreshold_16u_C3IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[3],
    int cmpOp);
RnxStatus rnxiThreshold_16u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[3], int cmpOp);
RnxStatus rnxiThreshold_16u_AC4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[3],
    int cmpOp);
RnxStatus rnxiThreshold_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    Rnx16s threshold, int cmpOp);
RnxStatus rnxiThreshold_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16s threshold, int cmpOp);
RnxStatus rnxiThreshold_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[3], int cmpOp);
RnxStatus rnxiThreshold_16s_C3IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[3],
    int cmpOp);
RnxStatus rnxiThreshold_16s_AC4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[3], int cmpOp);
RnxStatus rnxiThreshold_16s_AC4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[3],
    int cmpOp);
RnxStatus rnxiThreshold_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    Rnx32f threshold, int cmpOp);
RnxStatus rnxiThreshold_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx32f threshold, int cmpOp);
RnxStatus rnxiThreshold_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[3], int cmpOp);
RnxStatus rnxiThreshold_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[3],
    int cmpOp);
RnxStatus rnxiThreshold_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[3], int cmpOp);
RnxStatus rnxiThreshold_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[3],
    int cmpOp);

/* rnxiThreshold_LT: Raises the elements below a level to the level.

       dst = max(src, threshold)

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     threshold: the level: one (C1), or an array of one per channel (3 for C3 and AC4, 4 for C4)
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       RnxStatus status = rnxiThreshold_LT_32f_C1R(src, srcStep, dst, dstStep, roi, 0.0f); */

RnxStatus rnxiThreshold_LT_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    Rnx8u threshold);
RnxStatus rnxiThreshold_LT_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx8u threshold);
RnxStatus rnxiThreshold_LT_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[3]);
RnxStatus rnxiThreshold_LT_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[3]);
RnxStatus rnxiThreshold_LT_8u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[3]);
RnxStatus rnxiThreshold_LT_8u_AC4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[3]);
RnxStatus rnxiThreshold_LT_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    Rnx16u threshold);
RnxStatus rnxiThreshold_LT_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16u threshold);
RnxStatus rnxiThreshold_LT_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[3]);
RnxStatus rnxiThreshold_LT_16u_C3IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[3]);
RnxStatus rnxiThreshold_LT_16u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[3]);
RnxStatus rnxiThreshold_LT_16u_AC4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[3]);
RnxStatus rnxiThreshold_LT_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    Rnx16s threshold);
RnxStatus rnxiThreshold_LT_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16s threshold);
RnxStatus rnxiThreshold_LT_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[3]);
RnxStatus rnxiThreshold_LT_16s_C3IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[3]);
RnxStatus rnxiThreshold_LT_16s_AC4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[3]);
RnxStatus rnxiThreshold_LT_16s_AC4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[3]);
RnxStatus rnxiThreshold_LT_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    Rnx32f threshold);
RnxStatus rnxiThreshold_LT_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx32f threshold);
RnxStatus rnxiThreshold_LT_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[3]);
RnxStatus rnxiThreshold_LT_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[3]);
RnxStatus rnxiThreshold_LT_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[3]);
RnxStatus rnxiThreshold_LT_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[3]);

/* rnxiThreshold_GT: Lowers the elements above a level to the level.

       dst = min(src, threshold)

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     threshold: the level: one (C1), or an array of one per channel (3 for C3 and AC4, 4 for C4)
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       const Rnx8u legal[3] = {235, 240, 240};
       RnxStatus status = rnxiThreshold_GT_8u_C3IR(image, step, roi, legal); */

RnxStatus rnxiThreshold_GT_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    Rnx8u threshold);
RnxStatus rnxiThreshold_GT_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx8u threshold);
RnxStatus rnxiThreshold_GT_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[3]);
RnxStatus rnxiThreshold_GT_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[3]);
RnxStatus rnxiThreshold_GT_8u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[3]);
RnxStatus rnxiThreshold_GT_8u_AC4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[3]);
RnxStatus rnxiThreshold_GT_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    Rnx16u threshold);
RnxStatus rnxiThreshold_GT_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16u threshold);
RnxStatus rnxiThreshold_GT_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[3]);
RnxStatus rnxiThreshold_GT_16u_C3IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[3]);
RnxStatus rnxiThreshold_GT_16u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[3]);
RnxStatus rnxiThreshold_GT_16u_AC4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[3]);
RnxStatus rnxiThreshold_GT_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    Rnx16s threshold);
RnxStatus rnxiThreshold_GT_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16s threshold);
RnxStatus rnxiThreshold_GT_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[3]);
RnxStatus rnxiThreshold_GT_16s_C3IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[3]);
RnxStatus rnxiThreshold_GT_16s_AC4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[3]);
RnxStatus rnxiThreshold_GT_16s_AC4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[3]);
RnxStatus rnxiThreshold_GT_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    Rnx32f threshold);
RnxStatus rnxiThreshold_GT_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx32f threshold);
RnxStatus rnxiThreshold_GT_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[3]);
RnxStatus rnxiThreshold_GT_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[3]);
RnxStatus rnxiThreshold_GT_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[3]);
RnxStatus rnxiThreshold_GT_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[3]);

/* rnxiThreshold_Val: Replaces the elements on one side of a level by a value.

       cmpOp 0:  dst = src < threshold ? value : src
       cmpOp 4:  dst = src > threshold ? value : src

   Unlike rnxiThreshold, this tests the selector before everything else.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     threshold: the level: one (C1), or an array of one per channel (3 for C3 and AC4, 4 for C4)
     value: the constant: one value (C1), or an array of one value per channel (3 for C3 and AC4, 4 for C4)
     cmpOp: 0 rnxCmpLess or 4 rnxCmpGreater: which elements are changed
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusUnsupportedMode: cmpOp neither 0 rnxCmpLess nor 4 rnxCmpGreater
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       // black where it is darker than 100
       RnxStatus status = rnxiThreshold_Val_8u_C1R(src, srcStep, dst, dstStep, roi, 100, 0, rnxCmpLess); */

RnxStatus rnxiThreshold_Val_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    Rnx8u threshold, Rnx8u value, int cmpOp);
RnxStatus rnxiThreshold_Val_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx8u threshold, Rnx8u value,
    int cmpOp);
RnxStatus rnxiThreshold_Val_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[3], const Rnx8u value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[3],
    const Rnx8u value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_8u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[3], const Rnx8u value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_8u_AC4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[3],
    const Rnx8u value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    Rnx16u threshold, Rnx16u value, int cmpOp);
RnxStatus rnxiThreshold_Val_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16u threshold, Rnx16u value,
    int cmpOp);
RnxStatus rnxiThreshold_Val_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[3], const Rnx16u value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_16u_C3IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[3],
    const Rnx16u value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_16u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[3], const Rnx16u value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_16u_AC4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[3],
    const Rnx16u value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    Rnx16s threshold, Rnx16s value, int cmpOp);
RnxStatus rnxiThreshold_Val_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16s threshold, Rnx16s value,
    int cmpOp);
RnxStatus rnxiThreshold_Val_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[3], const Rnx16s value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_16s_C3IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[3],
    const Rnx16s value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_16s_AC4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[3], const Rnx16s value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_16s_AC4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[3],
    const Rnx16s value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    Rnx32f threshold, Rnx32f value, int cmpOp);
RnxStatus rnxiThreshold_Val_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx32f threshold, Rnx32f value,
    int cmpOp);
RnxStatus rnxiThreshold_Val_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[3], const Rnx32f value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[3],
    const Rnx32f value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[3], const Rnx32f value[3], int cmpOp);
RnxStatus rnxiThreshold_Val_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[3],
    const Rnx32f value[3], int cmpOp);

/* rnxiThreshold_LTVal: Replaces the elements below a level by a value.

       dst = src < threshold ? value : src

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     threshold: the level: one (C1), or an array of one per channel (3 for C3 and AC4, 4 for C4)
     value: the constant: one value (C1), or an array of one value per channel (3 for C3 and AC4, 4 for C4)
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       RnxStatus status = rnxiThreshold_LTVal_8u_C1R(src, srcStep, dst, dstStep, roi, 100, 0); */

RnxStatus rnxiThreshold_LTVal_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    Rnx8u threshold, Rnx8u value);
RnxStatus rnxiThreshold_LTVal_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx8u threshold, Rnx8u value);
RnxStatus rnxiThreshold_LTVal_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[3], const Rnx8u value[3]);
RnxStatus rnxiThreshold_LTVal_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[3],
    const Rnx8u value[3]);
RnxStatus rnxiThreshold_LTVal_8u_C4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[4], const Rnx8u value[4]);
RnxStatus rnxiThreshold_LTVal_8u_C4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[4],
    const Rnx8u value[4]);
RnxStatus rnxiThreshold_LTVal_8u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[3], const Rnx8u value[3]);
RnxStatus rnxiThreshold_LTVal_8u_AC4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[3],
    const Rnx8u value[3]);
RnxStatus rnxiThreshold_LTVal_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    Rnx16u threshold, Rnx16u value);
RnxStatus rnxiThreshold_LTVal_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16u threshold,
    Rnx16u value);
RnxStatus rnxiThreshold_LTVal_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[3], const Rnx16u value[3]);
RnxStatus rnxiThreshold_LTVal_16u_C3IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[3],
    const Rnx16u value[3]);
RnxStatus rnxiThreshold_LTVal_16u_C4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[4], const Rnx16u value[4]);
RnxStatus rnxiThreshold_LTVal_16u_C4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[4],
    const Rnx16u value[4]);
RnxStatus rnxiThreshold_LTVal_16u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[3], const Rnx16u value[3]);
RnxStatus rnxiThreshold_LTVal_16u_AC4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[3],
    const Rnx16u value[3]);
RnxStatus rnxiThreshold_LTVal_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    Rnx16s threshold, Rnx16s value);
RnxStatus rnxiThreshold_LTVal_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16s threshold,
    Rnx16s value);
RnxStatus rnxiThreshold_LTVal_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[3], const Rnx16s value[3]);
RnxStatus rnxiThreshold_LTVal_16s_C3IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[3],
    const Rnx16s value[3]);
RnxStatus rnxiThreshold_LTVal_16s_C4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[4], const Rnx16s value[4]);
RnxStatus rnxiThreshold_LTVal_16s_C4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[4],
    const Rnx16s value[4]);
RnxStatus rnxiThreshold_LTVal_16s_AC4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[3], const Rnx16s value[3]);
RnxStatus rnxiThreshold_LTVal_16s_AC4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[3],
    const Rnx16s value[3]);
RnxStatus rnxiThreshold_LTVal_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    Rnx32f threshold, Rnx32f value);
RnxStatus rnxiThreshold_LTVal_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx32f threshold,
    Rnx32f value);
RnxStatus rnxiThreshold_LTVal_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[3], const Rnx32f value[3]);
RnxStatus rnxiThreshold_LTVal_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[3],
    const Rnx32f value[3]);
RnxStatus rnxiThreshold_LTVal_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[4], const Rnx32f value[4]);
RnxStatus rnxiThreshold_LTVal_32f_C4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[4],
    const Rnx32f value[4]);
RnxStatus rnxiThreshold_LTVal_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[3], const Rnx32f value[3]);
RnxStatus rnxiThreshold_LTVal_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[3],
    const Rnx32f value[3]);

/* rnxiThreshold_GTVal: Replaces the elements above a level by a value.

       dst = src > threshold ? value : src

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     threshold: the level: one (C1), or an array of one per channel (3 for C3 and AC4, 4 for C4)
     value: the constant: one value (C1), or an array of one value per channel (3 for C3 and AC4, 4 for C4)
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       RnxStatus status = rnxiThreshold_GTVal_16u_C1IR(image, step, roi, 4000, 65535); */

RnxStatus rnxiThreshold_GTVal_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    Rnx8u threshold, Rnx8u value);
RnxStatus rnxiThreshold_GTVal_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx8u threshold, Rnx8u value);
RnxStatus rnxiThreshold_GTVal_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[3], const Rnx8u value[3]);
RnxStatus rnxiThreshold_GTVal_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[3],
    const Rnx8u value[3]);
RnxStatus rnxiThreshold_GTVal_8u_C4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[4], const Rnx8u value[4]);
RnxStatus rnxiThreshold_GTVal_8u_C4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[4],
    const Rnx8u value[4]);
RnxStatus rnxiThreshold_GTVal_8u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u threshold[3], const Rnx8u value[3]);
RnxStatus rnxiThreshold_GTVal_8u_AC4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u threshold[3],
    const Rnx8u value[3]);
RnxStatus rnxiThreshold_GTVal_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    Rnx16u threshold, Rnx16u value);
RnxStatus rnxiThreshold_GTVal_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16u threshold,
    Rnx16u value);
RnxStatus rnxiThreshold_GTVal_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[3], const Rnx16u value[3]);
RnxStatus rnxiThreshold_GTVal_16u_C3IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[3],
    const Rnx16u value[3]);
RnxStatus rnxiThreshold_GTVal_16u_C4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[4], const Rnx16u value[4]);
RnxStatus rnxiThreshold_GTVal_16u_C4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[4],
    const Rnx16u value[4]);
RnxStatus rnxiThreshold_GTVal_16u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u threshold[3], const Rnx16u value[3]);
RnxStatus rnxiThreshold_GTVal_16u_AC4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16u threshold[3],
    const Rnx16u value[3]);
RnxStatus rnxiThreshold_GTVal_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    Rnx16s threshold, Rnx16s value);
RnxStatus rnxiThreshold_GTVal_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16s threshold,
    Rnx16s value);
RnxStatus rnxiThreshold_GTVal_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[3], const Rnx16s value[3]);
RnxStatus rnxiThreshold_GTVal_16s_C3IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[3],
    const Rnx16s value[3]);
RnxStatus rnxiThreshold_GTVal_16s_C4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[4], const Rnx16s value[4]);
RnxStatus rnxiThreshold_GTVal_16s_C4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[4],
    const Rnx16s value[4]);
RnxStatus rnxiThreshold_GTVal_16s_AC4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s threshold[3], const Rnx16s value[3]);
RnxStatus rnxiThreshold_GTVal_16s_AC4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx16s threshold[3],
    const Rnx16s value[3]);
RnxStatus rnxiThreshold_GTVal_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    Rnx32f threshold, Rnx32f value);
RnxStatus rnxiThreshold_GTVal_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx32f threshold,
    Rnx32f value);
RnxStatus rnxiThreshold_GTVal_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[3], const Rnx32f value[3]);
RnxStatus rnxiThreshold_GTVal_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[3],
    const Rnx32f value[3]);
RnxStatus rnxiThreshold_GTVal_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[4], const Rnx32f value[4]);
RnxStatus rnxiThreshold_GTVal_32f_C4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[4],
    const Rnx32f value[4]);
RnxStatus rnxiThreshold_GTVal_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f threshold[3], const Rnx32f value[3]);
RnxStatus rnxiThreshold_GTVal_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx32f threshold[3],
    const Rnx32f value[3]);

/* rnxiThreshold_LTValGTVal: Replaces the elements below one level and those above another, each by its own value.

       dst = src < thresholdLT ? valueLT : src > thresholdGT ? valueGT : src

   The levels may be equal. They are compared with the image's elements, never with a value put in.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     thresholdLT, valueLT, thresholdGT, valueGT: lower level and its value, upper level and its value: one each
         (C1), or arrays of one per channel
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1
     rnxStatusBadThreshold: thresholdGT below thresholdLT in a channel that is used (three channels for AC4)

   Example
       // black below 64, white above 192, the rest as it is
       RnxStatus status = rnxiThreshold_LTValGTVal_8u_C1R(src, srcStep, dst, dstStep, roi, 64, 0, 192, 255); */

RnxStatus rnxiThreshold_LTValGTVal_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    Rnx8u thresholdLT, Rnx8u valueLT, Rnx8u thresholdGT, Rnx8u valueGT);
RnxStatus rnxiThreshold_LTValGTVal_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx8u thresholdLT,
    Rnx8u valueLT, Rnx8u thresholdGT, Rnx8u valueGT);
RnxStatus rnxiThreshold_LTValGTVal_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u thresholdLT[3], const Rnx8u valueLT[3], const Rnx8u thresholdGT[3], const Rnx8u valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const Rnx8u thresholdLT[3],
    const Rnx8u valueLT[3], const Rnx8u thresholdGT[3], const Rnx8u valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_8u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u thresholdLT[3], const Rnx8u valueLT[3], const Rnx8u thresholdGT[3], const Rnx8u valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_8u_AC4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    const Rnx8u thresholdLT[3], const Rnx8u valueLT[3], const Rnx8u thresholdGT[3], const Rnx8u valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    Rnx16u thresholdLT, Rnx16u valueLT, Rnx16u thresholdGT, Rnx16u valueGT);
RnxStatus rnxiThreshold_LTValGTVal_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16u thresholdLT,
    Rnx16u valueLT, Rnx16u thresholdGT, Rnx16u valueGT);
RnxStatus rnxiThreshold_LTValGTVal_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16u thresholdLT[3], const Rnx16u valueLT[3], const Rnx16u thresholdGT[3], const Rnx16u valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_16u_C3IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    const Rnx16u thresholdLT[3], const Rnx16u valueLT[3], const Rnx16u thresholdGT[3], const Rnx16u valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_16u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, const Rnx16u thresholdLT[3], const Rnx16u valueLT[3], const Rnx16u thresholdGT[3],
    const Rnx16u valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_16u_AC4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize,
    const Rnx16u thresholdLT[3], const Rnx16u valueLT[3], const Rnx16u thresholdGT[3], const Rnx16u valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    Rnx16s thresholdLT, Rnx16s valueLT, Rnx16s thresholdGT, Rnx16s valueGT);
RnxStatus rnxiThreshold_LTValGTVal_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx16s thresholdLT,
    Rnx16s valueLT, Rnx16s thresholdGT, Rnx16s valueGT);
RnxStatus rnxiThreshold_LTValGTVal_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx16s thresholdLT[3], const Rnx16s valueLT[3], const Rnx16s thresholdGT[3], const Rnx16s valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_16s_C3IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    const Rnx16s thresholdLT[3], const Rnx16s valueLT[3], const Rnx16s thresholdGT[3], const Rnx16s valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_16s_AC4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, const Rnx16s thresholdLT[3], const Rnx16s valueLT[3], const Rnx16s thresholdGT[3],
    const Rnx16s valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_16s_AC4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize,
    const Rnx16s thresholdLT[3], const Rnx16s valueLT[3], const Rnx16s thresholdGT[3], const Rnx16s valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    Rnx32f thresholdLT, Rnx32f valueLT, Rnx32f thresholdGT, Rnx32f valueGT);
RnxStatus rnxiThreshold_LTValGTVal_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, Rnx32f thresholdLT,
    Rnx32f valueLT, Rnx32f thresholdGT, Rnx32f valueGT);
RnxStatus rnxiThreshold_LTValGTVal_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx32f thresholdLT[3], const Rnx32f valueLT[3], const Rnx32f thresholdGT[3], const Rnx32f valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize,
    const Rnx32f thresholdLT[3], const Rnx32f valueLT[3], const Rnx32f thresholdGT[3], const Rnx32f valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    RnxiSize roiSize, const Rnx32f thresholdLT[3], const Rnx32f valueLT[3], const Rnx32f thresholdGT[3],
    const Rnx32f valueGT[3]);
RnxStatus rnxiThreshold_LTValGTVal_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize,
    const Rnx32f thresholdLT[3], const Rnx32f valueLT[3], const Rnx32f thresholdGT[3], const Rnx32f valueGT[3]);

#ifdef __cplusplus
}
#endif

#endif
