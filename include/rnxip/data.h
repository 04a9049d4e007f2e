/* Border extension; Copies; Mirror and transpose; Filling with a constant; Reordering channels.
   Written by tools/apigen.py from the table of exports in api/: change it there. */
#ifndef RNXIP_DATA_H
#define RNXIP_DATA_H

#include "rnxip/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Border extension
   ================

   The source ROI of W x H pixels is placed in the destination ROI with leftBorderWidth pixels to its left and
   topBorderHeight rows above; what the destination ROI has beyond that is the right and the bottom border. Forms with IR
   work in place: the pointer points at the source ROI inside the larger image, and the interior is not moved. Positions
   below are counted from the source's origin.

   AC4 writes three channels; the destination's fourth element is never changed, in the interior and in the border.

   Images may overlap: then the interior is copied first, as rnxiCopy does it, and the border is made from what it holds.
   Steps below the bytes of a row of the destination ROI are accepted, but then rows of the result overwrite each other.

   Forms ending in _L take 64-bit sizes, steps and widths, and make the same checks in the same order; they also return
   rnxStatusNullPointer, first, for a null size. */

/* rnxiCopyConstBorder: Copies an image and surrounds it with a constant.

       border = value

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     srcRoiSize: size of the source ROI in pixels
     pDst, dstStep: destination image and its step
     dstRoiSize: size of the destination ROI, borders included
     topBorderHeight: rows above the source ROI
     leftBorderWidth: pixels to the left of the source ROI
     value: the constant: one value (C1), or an array of one value per channel (3 for C3 and AC4, 4 for C4)
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadStep: a step below 1
     rnxStatusBadSize: a size below 1, a border below 0, or source size and border together above the destination
         size
     rnxStatusNullPointer: the array of values is null (C3, C4, AC4)

   Example
       RnxiSize inner = {640, 480}, outer = {660, 500};
       const Rnx8u white[3] = {255, 255, 255};
       RnxStatus status = rnxiCopyConstBorder_8u_C3R(src, srcStep, inner, dst, dstStep, outer, 10, 10, white); */

RnxStatus rnxiCopyConstBorder_8u_C1R(const Rnx8u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx8u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Rnx8u value);
RnxStatus rnxiCopyConstBorder_8u_C1R_L(const Rnx8u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, Rnx8u value);
RnxStatus rnxiCopyConstBorder_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, Rnx8u value);
RnxStatus rnxiCopyConstBorder_8u_C1IR_L(Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, Rnx8u value);
RnxStatus rnxiCopyConstBorder_8u_C3R(const Rnx8u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx8u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx8u value[3]);
RnxStatus rnxiCopyConstBorder_8u_C3R_L(const Rnx8u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx8u value[3]);
RnxStatus rnxiCopyConstBorder_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx8u value[3]);
RnxStatus rnxiCopyConstBorder_8u_C3IR_L(Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx8u value[3]);
RnxStatus rnxiCopyConstBorder_8u_C4R(const Rnx8u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx8u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx8u value[4]);
RnxStatus rnxiCopyConstBorder_8u_C4R_L(const Rnx8u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx8u value[4]);
RnxStatus rnxiCopyConstBorder_8u_C4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx8u value[4]);
RnxStatus rnxiCopyConstBorder_8u_C4IR_L(Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx8u value[4]);
RnxStatus rnxiCopyConstBorder_8u_AC4R(const Rnx8u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx8u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx8u value[3]);
RnxStatus rnxiCopyConstBorder_8u_AC4R_L(const Rnx8u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx8u value[3]);
RnxStatus rnxiCopyConstBorder_8u_AC4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx8u value[3]);
RnxStatus rnxiCopyConstBorder_8u_AC4IR_L(Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx8u value[3]);
RnxStatus rnxiCopyConstBorder_16u_C1R(const Rnx16u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Rnx16u value);
RnxStatus rnxiCopyConstBorder_16u_C1R_L(const Rnx16u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, Rnx16u value);
RnxStatus rnxiCopyConstBorder_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, Rnx16u value);
RnxStatus rnxiCopyConstBorder_16u_C1IR_L(Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, Rnx16u value);
RnxStatus rnxiCopyConstBorder_16u_C3R(const Rnx16u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx16u value[3]);
RnxStatus rnxiCopyConstBorder_16u_C3R_L(const Rnx16u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx16u value[3]);
RnxStatus rnxiCopyConstBorder_16u_C3IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx16u value[3]);
RnxStatus rnxiCopyConstBorder_16u_C3IR_L(Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx16u value[3]);
RnxStatus rnxiCopyConstBorder_16u_C4R(const Rnx16u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx16u value[4]);
RnxStatus rnxiCopyConstBorder_16u_C4R_L(const Rnx16u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx16u value[4]);
RnxStatus rnxiCopyConstBorder_16u_C4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx16u value[4]);
RnxStatus rnxiCopyConstBorder_16u_C4IR_L(Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx16u value[4]);
RnxStatus rnxiCopyConstBorder_16u_AC4R(const Rnx16u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx16u value[3]);
RnxStatus rnxiCopyConstBorder_16u_AC4R_L(const Rnx16u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx16u value[3]);
RnxStatus rnxiCopyConstBorder_16u_AC4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx16u value[3]);
RnxStatus rnxiCopyConstBorder_16u_AC4IR_L(Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx16u value[3]);
RnxStatus rnxiCopyConstBorder_16s_C1R(const Rnx16s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Rnx16s value);
RnxStatus rnxiCopyConstBorder_16s_C1R_L(const Rnx16s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, Rnx16s value);
RnxStatus rnxiCopyConstBorder_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, Rnx16s value);
RnxStatus rnxiCopyConstBorder_16s_C1IR_L(Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, Rnx16s value);
RnxStatus rnxiCopyConstBorder_16s_C3R(const Rnx16s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx16s value[3]);
RnxStatus rnxiCopyConstBorder_16s_C3R_L(const Rnx16s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx16s value[3]);
RnxStatus rnxiCopyConstBorder_16s_C3IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx16s value[3]);
RnxStatus rnxiCopyConstBorder_16s_C3IR_L(Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx16s value[3]);
RnxStatus rnxiCopyConstBorder_16s_C4R(const Rnx16s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx16s value[4]);
RnxStatus rnxiCopyConstBorder_16s_C4R_L(const Rnx16s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx16s value[4]);
RnxStatus rnxiCopyConstBorder_16s_C4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx16s value[4]);
RnxStatus rnxiCopyConstBorder_16s_C4IR_L(Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx16s value[4]);
RnxStatus rnxiCopyConstBorder_16s_AC4R(const Rnx16s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx16s value[3]);
RnxStatus rnxiCopyConstBorder_16s_AC4R_L(const Rnx16s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx16s value[3]);
RnxStatus rnxiCopyConstBorder_16s_AC4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx16s value[3]);
RnxStatus rnxiCopyConstBorder_16s_AC4IR_L(Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx16s value[3]);
RnxStatus rnxiCopyConstBorder_32s_C1R(const Rnx32s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Rnx32s value);
RnxStatus rnxiCopyConstBorder_32s_C1R_L(const Rnx32s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, Rnx32s value);
RnxStatus rnxiCopyConstBorder_32s_C1IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, Rnx32s value);
RnxStatus rnxiCopyConstBorder_32s_C1IR_L(Rnx32s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, Rnx32s value);
RnxStatus rnxiCopyConstBorder_32s_C3R(const Rnx32s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx32s value[3]);
RnxStatus rnxiCopyConstBorder_32s_C3R_L(const Rnx32s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx32s value[3]);
RnxStatus rnxiCopyConstBorder_32s_C3IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx32s value[3]);
RnxStatus rnxiCopyConstBorder_32s_C3IR_L(Rnx32s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx32s value[3]);
RnxStatus rnxiCopyConstBorder_32s_C4R(const Rnx32s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx32s value[4]);
RnxStatus rnxiCopyConstBorder_32s_C4R_L(const Rnx32s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx32s value[4]);
RnxStatus rnxiCopyConstBorder_32s_C4IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx32s value[4]);
RnxStatus rnxiCopyConstBorder_32s_C4IR_L(Rnx32s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx32s value[4]);
RnxStatus rnxiCopyConstBorder_32s_AC4R(const Rnx32s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx32s value[3]);
RnxStatus rnxiCopyConstBorder_32s_AC4R_L(const Rnx32s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx32s value[3]);
RnxStatus rnxiCopyConstBorder_32s_AC4IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx32s value[3]);
RnxStatus rnxiCopyConstBorder_32s_AC4IR_L(Rnx32s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx32s value[3]);
RnxStatus rnxiCopyConstBorder_32f_C1R(const Rnx32f* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32f* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Rnx32f value);
RnxStatus rnxiCopyConstBorder_32f_C1R_L(const Rnx32f* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, Rnx32f value);
RnxStatus rnxiCopyConstBorder_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, Rnx32f value);
RnxStatus rnxiCopyConstBorder_32f_C1IR_L(Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, Rnx32f value);
RnxStatus rnxiCopyConstBorder_32f_C3R(const Rnx32f* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32f* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx32f value[3]);
RnxStatus rnxiCopyConstBorder_32f_C3R_L(const Rnx32f* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx32f value[3]);
RnxStatus rnxiCopyConstBorder_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx32f value[3]);
RnxStatus rnxiCopyConstBorder_32f_C3IR_L(Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx32f value[3]);
RnxStatus rnxiCopyConstBorder_32f_C4R(const Rnx32f* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32f* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx32f value[4]);
RnxStatus rnxiCopyConstBorder_32f_C4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx32f value[4]);
RnxStatus rnxiCopyConstBorder_32f_C4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx32f value[4]);
RnxStatus rnxiCopyConstBorder_32f_C4IR_L(Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx32f value[4]);
RnxStatus rnxiCopyConstBorder_32f_AC4R(const Rnx32f* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32f* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Rnx32f value[3]);
RnxStatus rnxiCopyConstBorder_32f_AC4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx32f value[3]);
RnxStatus rnxiCopyConstBorder_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth, const Rnx32f value[3]);
RnxStatus rnxiCopyConstBorder_32f_AC4IR_L(Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth, const Rnx32f value[3]);

/* rnxiCopyReplicateBorder: Copies an image and repeats its edge pixels around it.

       border(x, y) = src(clamp(x, 0, W-1), clamp(y, 0, H-1))        a a a|a b c|c c c

   One pointer for source and destination means in place with the destination's step; this is looked at before the checks.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     srcRoiSize: size of the source ROI in pixels
     pDst, dstStep: destination image and its step
     dstRoiSize: size of the destination ROI, borders included
     topBorderHeight: rows above the source ROI
     leftBorderWidth: pixels to the left of the source ROI
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadStep: a step below 1
     rnxStatusBadSize: a size below 1, a border below 0, or source size and border together above the destination
         size

   Example
       RnxiSize inner = {640, 480}, outer = {660, 500};
       RnxStatus status = rnxiCopyReplicateBorder_8u_C1R(src, srcStep, inner, dst, dstStep, outer, 10, 10); */

RnxStatus rnxiCopyReplicateBorder_8u_C1R(const Rnx8u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx8u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_C1R_L(const Rnx8u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_C1IR_L(Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_C3R(const Rnx8u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx8u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_C3R_L(const Rnx8u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_C3IR_L(Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_C4R(const Rnx8u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx8u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_C4R_L(const Rnx8u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_C4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_C4IR_L(Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_AC4R(const Rnx8u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx8u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_AC4R_L(const Rnx8u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_AC4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_8u_AC4IR_L(Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_C1R(const Rnx16u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16u* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_C1R_L(const Rnx16u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx16u* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_C1IR_L(Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_C3R(const Rnx16u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16u* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_C3R_L(const Rnx16u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx16u* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_C3IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_C3IR_L(Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_C4R(const Rnx16u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16u* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_C4R_L(const Rnx16u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx16u* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_C4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_C4IR_L(Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_AC4R(const Rnx16u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16u* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_AC4R_L(const Rnx16u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx16u* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_AC4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16u_AC4IR_L(Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_C1R(const Rnx16s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16s* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_C1R_L(const Rnx16s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx16s* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_C1IR_L(Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_C3R(const Rnx16s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16s* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_C3R_L(const Rnx16s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx16s* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_C3IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_C3IR_L(Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_C4R(const Rnx16s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16s* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_C4R_L(const Rnx16s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx16s* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_C4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_C4IR_L(Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_AC4R(const Rnx16s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16s* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_AC4R_L(const Rnx16s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx16s* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_AC4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_16s_AC4IR_L(Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_C1R(const Rnx32s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32s* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_C1R_L(const Rnx32s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx32s* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_C1IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_C1IR_L(Rnx32s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_C3R(const Rnx32s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32s* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_C3R_L(const Rnx32s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx32s* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_C3IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_C3IR_L(Rnx32s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_C4R(const Rnx32s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32s* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_C4R_L(const Rnx32s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx32s* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_C4IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_C4IR_L(Rnx32s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_AC4R(const Rnx32s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32s* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_AC4R_L(const Rnx32s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx32s* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_AC4IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32s_AC4IR_L(Rnx32s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_C1R(const Rnx32f* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32f* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_C1R_L(const Rnx32f* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx32f* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_C1IR_L(Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_C3R(const Rnx32f* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32f* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_C3R_L(const Rnx32f* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx32f* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_C3IR_L(Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_C4R(const Rnx32f* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32f* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_C4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx32f* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_C4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_C4IR_L(Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_AC4R(const Rnx32f* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32f* pDst,
    int dstStep, RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_AC4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize,
    Rnx32f* pDst, Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyReplicateBorder_32f_AC4IR_L(Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);

/* rnxiCopyMirrorBorder: Copies an image and reflects it about its edge pixels, which are not repeated.

       border(x, y) = src(m(x, W), m(y, H))        c b|a b c|b a
       
       m(p, n) = p mod (2n - 2), and 2n - 2 minus that where it is n or more; m(p, 1) = 0

   One pointer for source and destination means in place with the destination's step; this is looked at before the checks.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     srcRoiSize: size of the source ROI in pixels
     pDst, dstStep: destination image and its step
     dstRoiSize: size of the destination ROI, borders included
     topBorderHeight: rows above the source ROI
     leftBorderWidth: pixels to the left of the source ROI
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadStep: a step below 1
     rnxStatusBadSize: a size below 1, a border below 0, or source size and border together above the destination
         size

   Example
       // in place: the image lies 10 pixels inside a larger one
       RnxStatus status = rnxiCopyMirrorBorder_8u_C1IR(image + 10 * step + 10, step, inner, outer, 10, 10); */

RnxStatus rnxiCopyMirrorBorder_8u_C1R(const Rnx8u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx8u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_8u_C1R_L(const Rnx8u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_8u_C1IR_L(Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_8u_C3R(const Rnx8u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx8u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_8u_C3R_L(const Rnx8u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_8u_C3IR_L(Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_8u_C4R(const Rnx8u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx8u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_8u_C4R_L(const Rnx8u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx8u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_8u_C4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_8u_C4IR_L(Rnx8u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16u_C1R(const Rnx16u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16u_C1R_L(const Rnx16u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16u_C1IR_L(Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16u_C3R(const Rnx16u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16u_C3R_L(const Rnx16u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16u_C3IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16u_C3IR_L(Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16u_C4R(const Rnx16u* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16u* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16u_C4R_L(const Rnx16u* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16u* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16u_C4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16u_C4IR_L(Rnx16u* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16s_C1R(const Rnx16s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16s_C1R_L(const Rnx16s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16s_C1IR_L(Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16s_C3R(const Rnx16s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16s_C3R_L(const Rnx16s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16s_C3IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16s_C3IR_L(Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16s_C4R(const Rnx16s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx16s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16s_C4R_L(const Rnx16s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx16s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16s_C4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_16s_C4IR_L(Rnx16s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32s_C1R(const Rnx32s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32s_C1R_L(const Rnx32s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32s_C1IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32s_C1IR_L(Rnx32s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32s_C3R(const Rnx32s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32s_C3R_L(const Rnx32s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32s_C3IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32s_C3IR_L(Rnx32s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32s_C4R(const Rnx32s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32s_C4R_L(const Rnx32s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32s_C4IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32s_C4IR_L(Rnx32s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32f_C1R(const Rnx32f* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32f* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32f_C1R_L(const Rnx32f* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32f_C1IR_L(Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32f_C3R(const Rnx32f* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32f* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32f_C3R_L(const Rnx32f* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32f_C3IR_L(Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32f_C4R(const Rnx32f* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32f* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32f_C4R_L(const Rnx32f* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32f_C4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyMirrorBorder_32f_C4IR_L(Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);

/* rnxiCopyWrapBorder: Copies an image and repeats it periodically.

       border(x, y) = src(x mod W, y mod H)        a b c|a b c|a b c

   One pointer for source and destination means in place with the destination's step; this is looked at after the checks.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     srcRoiSize: size of the source ROI in pixels
     pDst, dstStep: destination image and its step
     dstRoiSize: size of the destination ROI, borders included
     topBorderHeight: rows above the source ROI
     leftBorderWidth: pixels to the left of the source ROI
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadStep: a step below 1
     rnxStatusBadSize: a size below 1, a border below 0, or source size and border together above the destination
         size

   Example
       RnxStatus status = rnxiCopyWrapBorder_32f_C1R(src, srcStep, inner, dst, dstStep, outer, 10, 10); */

RnxStatus rnxiCopyWrapBorder_32s_C1R(const Rnx32s* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32s* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyWrapBorder_32s_C1R_L(const Rnx32s* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32s* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyWrapBorder_32s_C1IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyWrapBorder_32s_C1IR_L(Rnx32s* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyWrapBorder_32f_C1R(const Rnx32f* pSrc, int srcStep, RnxiSize srcRoiSize, Rnx32f* pDst, int dstStep,
    RnxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyWrapBorder_32f_C1R_L(const Rnx32f* pSrc, Rnx64s srcStep, const RnxiSizeL* srcRoiSize, Rnx32f* pDst,
    Rnx64s dstStep, const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);
RnxStatus rnxiCopyWrapBorder_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize srcRoiSize, RnxiSize dstRoiSize,
    int topBorderHeight, int leftBorderWidth);
RnxStatus rnxiCopyWrapBorder_32f_C1IR_L(Rnx32f* pSrcDst, Rnx64s srcDstStep, const RnxiSizeL* srcRoiSize,
    const RnxiSizeL* dstRoiSize, Rnx64s topBorderHeight, Rnx64s leftBorderWidth);


/* Copies
   ======

   Steps may have any value; a step of 0 reads or writes the same row again. Values are copied bit by bit.

   Images may overlap. The result is then that of a loop over the rows from the top and over the pixels of a row from the
   left, where a pixel is read before it is written (a form that leaves out channels: the channels that it moves). So one
   image may be moved up or to the left inside another by a plain copy, but not down or to the right.

   Forms that leave elements of the destination as they are may rewrite them with their own value: two threads may not
   work on different channels of the same rows at once. */

/* rnxiCopy: Copies an image, or some of its channels or pixels.

       C1R, C3R, C4R         all channels
       AC4R                  channels 0 to 2; the destination's fourth element is unchanged
       forms with M          the pixels whose mask byte is not 0 (AC4: their channels 0 to 2)
       C3CR, C4CR            one channel into one channel
       C3C1R, C4C1R          one channel into a one-channel image
       C1C3R, C1C4R          a one-channel image into one channel; the other channels are unchanged
       C3AC4R                three channels into the first three of four; the fourth is unchanged
       AC4C3R                the first three channels of four
       C3P3R, C4P4R          pixel order to planes: channel k to plane k
       P3C3R, P4C4R          planes to pixel order

   With a channel pointer nothing before the first and behind the last element of the channel is touched.

   A copy whose images are larger together than 524288 bytes and not smaller than the largest cache is written around the
   caches (C1R, C3R, C4R).

   Forms ending in _L take 64-bit steps and sizes. An image that fits the plain form (every step below 0x7fffffff in
   magnitude, fewer than 0x7fffffff bytes) is checked by it; for a larger one a height below 1 gives 0.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     pMask, maskStep: one-channel 8u image of the ROI's size: pixels whose mask byte is not 0 are processed, the
         others keep their value
     pSrc, srcStep: source image; forms that read one channel of several: pointer to that channel (not to the
         pixel)
     pDst, dstStep: destination image; forms that write one channel of several: pointer to that channel (not to the
         pixel)
     pDst, dstStep: the destination planes, and the step of all of them
     pSrc, srcStep: the source planes, and the step of all of them

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1

   Example
       // crop: 200x100 pixels from column 40, row 30
       RnxiSize roi = {200, 100};
       RnxStatus status = rnxiCopy_8u_C3R(src + 30 * srcStep + 40 * 3, srcStep, dst, dstStep, roi);
       
       // the green channel of an RGB image
       status = rnxiCopy_8u_C3C1R(src + 1, srcStep, gray, grayStep, roi);
       
       Rnx8u* planes[3] = {red, green, blue};
       status = rnxiCopy_8u_C3P3R(src, srcStep, planes, planeStep, roi); */

RnxStatus rnxiCopy_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_C1R_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pDst, Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_8u_C1MR(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_C3R_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pDst, Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_8u_C3MR(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_8u_C4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_C4R_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pDst, Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_8u_C4MR(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_8u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_AC4R_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pDst, Rnx64s dstStep, const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_8u_AC4MR(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_C1R_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_16u_C1MR(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_C3R_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_16u_C3MR(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_16u_C4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_C4R_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_16u_C4MR(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_16u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_AC4R_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_16u_AC4MR(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_C1R_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_16s_C1MR(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_C3R_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_16s_C3MR(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_16s_C4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_C4R_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_16s_C4MR(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_16s_AC4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_AC4R_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_16s_AC4MR(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_32s_C1R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_C1R_L(const Rnx32s* pSrc, Rnx64s srcStep, Rnx32s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_32s_C1MR(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_32s_C3R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_C3R_L(const Rnx32s* pSrc, Rnx64s srcStep, Rnx32s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_32s_C3MR(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_32s_C4R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_C4R_L(const Rnx32s* pSrc, Rnx64s srcStep, Rnx32s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_32s_C4MR(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_32s_AC4R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_AC4R_L(const Rnx32s* pSrc, Rnx64s srcStep, Rnx32s* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_32s_AC4MR(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_C1R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_32f_C1MR(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_C3R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_32f_C3MR(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_C4R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_32f_C4MR(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_AC4R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pDst, Rnx64s dstStep,
    const RnxiSizeL* roiSize);
RnxStatus rnxiCopy_32f_AC4MR(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const Rnx8u* pMask, int maskStep);
RnxStatus rnxiCopy_8u_C3CR(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_C4CR(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_C3C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_C4C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_C1C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_C1C4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_C3AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_AC4C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_C3CR(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_C4CR(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_C3C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_C4C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_C1C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_C1C4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_C3AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_AC4C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_C3CR(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_C4CR(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_C3C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_C4C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_C1C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_C1C4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_C3AC4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_AC4C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_C3CR(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_C4CR(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_C3C1R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_C4C1R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_C1C3R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_C1C4R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_C3AC4R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_AC4C3R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_C3CR(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_C4CR(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_C3C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_C4C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_C1C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_C1C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_C3AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_AC4C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_C3P3R(const Rnx8u* pSrc, int srcStep, Rnx8u* const pDst[3], int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_C4P4R(const Rnx8u* pSrc, int srcStep, Rnx8u* const pDst[4], int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_C3P3R(const Rnx16u* pSrc, int srcStep, Rnx16u* const pDst[3], int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_C4P4R(const Rnx16u* pSrc, int srcStep, Rnx16u* const pDst[4], int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_C3P3R(const Rnx16s* pSrc, int srcStep, Rnx16s* const pDst[3], int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_C4P4R(const Rnx16s* pSrc, int srcStep, Rnx16s* const pDst[4], int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_C3P3R(const Rnx32s* pSrc, int srcStep, Rnx32s* const pDst[3], int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_C4P4R(const Rnx32s* pSrc, int srcStep, Rnx32s* const pDst[4], int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_C3P3R(const Rnx32f* pSrc, int srcStep, Rnx32f* const pDst[3], int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_C4P4R(const Rnx32f* pSrc, int srcStep, Rnx32f* const pDst[4], int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_P3C3R(const Rnx8u* const pSrc[3], int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_8u_P4C4R(const Rnx8u* const pSrc[4], int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_P3C3R(const Rnx16u* const pSrc[3], int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16u_P4C4R(const Rnx16u* const pSrc[4], int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_P3C3R(const Rnx16s* const pSrc[3], int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_16s_P4C4R(const Rnx16s* const pSrc[4], int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_P3C3R(const Rnx32s* const pSrc[3], int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32s_P4C4R(const Rnx32s* const pSrc[4], int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_P3C3R(const Rnx32f* const pSrc[3], int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiCopy_32f_P4C4R(const Rnx32f* const pSrc[4], int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);

/* rnxiCopyManaged: Copies an image, around the caches if asked to.

       dst = src

   With bit 0 of flags set the result is visible to other threads when the function returns.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     flags: bit 0: write around the caches; other bits have no meaning

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1

   Example
       RnxStatus status = rnxiCopyManaged_8u_C1R(src, srcStep, dst, dstStep, roi, 1); */

RnxStatus rnxiCopyManaged_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int flags);

/* rnxiDup: Writes a one-channel image into every channel.

       dst[c] = src for every channel c, the fourth included

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1

   Example
       RnxStatus status = rnxiDup_8u_C1C3R(gray, grayStep, rgb, rgbStep, roi); */

RnxStatus rnxiDup_8u_C1C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiDup_8u_C1C4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);


/* Mirror and transpose
   ====================

   Pixels move whole: the channels of a pixel keep their order. Values are copied bit by bit. */

/* rnxiMirror: Flips an image of W x H pixels about an axis or a diagonal.

       0 rnxAxisHorizontal           dst(x, H-1-y) = src(x, y)
       1 rnxAxisVertical             dst(W-1-x, y) = src(x, y)
       2 rnxAxisBoth                 dst(W-1-x, H-1-y) = src(x, y)
       3 rnxAxisMainDiagonal         dst(y, x) = src(x, y)
       4 rnxAxisSecondaryDiagonal    dst(H-1-y, W-1-x) = src(x, y)

   roiSize is the size of the source; the diagonals make an image of H x W. AC4 moves three channels and leaves the fourth
   element of the destination as it is, in place too.

   With flip 3 and 4 a step below 1 gives rnxStatusBadStep, before the size, and images that have a byte in common give
   rnxStatusUnsupportedMode, last; so does the in-place form. The other axes check no step: one pointer and one step for
   source and destination mean in place, otherwise overlapping images give the result of a loop over the source's rows
   from the top and over the pixels of a row from the left.

   Upside down, an image of 2097153 bytes or more is written around the caches where it does not fit them.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     flip: rnxAxisHorizontal 0, rnxAxisVertical 1, rnxAxisBoth 2, rnxAxisMainDiagonal 3 or rnxAxisSecondaryDiagonal
         4
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadMirrorAxis: flip outside 0 to 4

   Example
       RnxStatus status = rnxiMirror_8u_C3IR(image, step, roi, rnxAxisVertical); */

RnxStatus rnxiMirror_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_8u_C4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_8u_C4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_8u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_8u_AC4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16u_C3IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16u_C4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16u_C4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16u_AC4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16s_C3IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16s_C4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16s_C4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16s_AC4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_16s_AC4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32s_C1R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32s_C1IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32s_C3R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32s_C3IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32s_C4R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32s_C4IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32s_AC4R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32s_AC4IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32f_C4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize, int flip);
RnxStatus rnxiMirror_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize, int flip);

/* rnxiTranspose: Exchanges rows and columns.

       dst(y, x) = src(x, y)

   roiSize is the size of the source; the destination is roiSize.height pixels wide and roiSize.width high. One pointer and
   one step for source and destination mean in place, where the ROI must be square. Otherwise images may overlap: the
   result is that of a loop over the source's rows from the top and over the pixels of a row from the left.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1, or in place: not equal

   Example
       RnxiSize roi = {640, 480};
       RnxStatus status = rnxiTranspose_8u_C3R(src, srcStep, dst, dstStep, roi);    // dst: 480x640 */

RnxStatus rnxiTranspose_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_8u_C4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_8u_C4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_16u_C3IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_16u_C4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_16u_C4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_16s_C3IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_16s_C4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_16s_C4IR(Rnx16s* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32s_C1R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32s_C1IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32s_C3R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32s_C3IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32s_C4R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32s_C4IR(Rnx32s* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32f_C4IR(Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiTranspose_32fc_C1R(const Rnx32fc* pSrc, int srcStep, Rnx32fc* pDst, int dstStep, RnxiSize roiSize);


/* Filling with a constant
   ======================= */

/* rnxiSet: Fills an image with a constant.

       dst = value                                      C1R, C3R, C4R, AC4R; C3CR, C4CR in one channel
       dst = value where mask != 0, else unchanged      forms with M

   AC4 fills three channels and leaves the fourth as it is. C3CR and C4CR fill one channel of a three- or four-channel
   image: nothing before the first and behind the last element of that channel is touched. Steps may have any value; a
   step of 0 fills the same row again. Values are copied bit by bit.

   A fill that is larger than 524288 bytes and not smaller than the largest cache is written around the caches.

   Arguments
     value: the constant: one value (C1), or an array of one value per channel (3 for C3 and AC4, 4 for C4)
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     pMask, maskStep: one-channel 8u image of the ROI's size: pixels whose mask byte is not 0 are processed, the
         others keep their value
     value: the value for the selected channel
     pDst, dstStep: pointer to the selected channel (not to the pixel), and the step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1

   Example
       const Rnx8u gray[3] = {128, 128, 128};
       RnxStatus status = rnxiSet_8u_C3R(gray, image, step, roi);
       status = rnxiSet_8u_C3CR(255, image + 1, step, roi);    // the second channel
       status = rnxiSet_8u_C3MR(gray, image, step, roi, mask, maskStep); */

RnxStatus rnxiSet_8u_C1R(Rnx8u value, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_8u_C1MR(Rnx8u value, Rnx8u* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask, int maskStep);
RnxStatus rnxiSet_8u_C3R(const Rnx8u value[3], Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_8u_C3MR(const Rnx8u value[3], Rnx8u* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_8u_C4R(const Rnx8u value[4], Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_8u_C4MR(const Rnx8u value[4], Rnx8u* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_8u_AC4R(const Rnx8u value[3], Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_8u_AC4MR(const Rnx8u value[3], Rnx8u* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_16u_C1R(Rnx16u value, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_16u_C1MR(Rnx16u value, Rnx16u* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask, int maskStep);
RnxStatus rnxiSet_16u_C3R(const Rnx16u value[3], Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_16u_C3MR(const Rnx16u value[3], Rnx16u* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_16u_C4R(const Rnx16u value[4], Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_16u_C4MR(const Rnx16u value[4], Rnx16u* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_16u_AC4R(const Rnx16u value[3], Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_16u_AC4MR(const Rnx16u value[3], Rnx16u* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_16s_C1R(Rnx16s value, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_16s_C1MR(Rnx16s value, Rnx16s* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask, int maskStep);
RnxStatus rnxiSet_16s_C3R(const Rnx16s value[3], Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_16s_C3MR(const Rnx16s value[3], Rnx16s* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_16s_C4R(const Rnx16s value[4], Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_16s_C4MR(const Rnx16s value[4], Rnx16s* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_16s_AC4R(const Rnx16s value[3], Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_16s_AC4MR(const Rnx16s value[3], Rnx16s* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_32s_C1R(Rnx32s value, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_32s_C1MR(Rnx32s value, Rnx32s* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask, int maskStep);
RnxStatus rnxiSet_32s_C3R(const Rnx32s value[3], Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_32s_C3MR(const Rnx32s value[3], Rnx32s* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_32s_C4R(const Rnx32s value[4], Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_32s_C4MR(const Rnx32s value[4], Rnx32s* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_32s_AC4R(const Rnx32s value[3], Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_32s_AC4MR(const Rnx32s value[3], Rnx32s* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_32f_C1R(Rnx32f value, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_32f_C1MR(Rnx32f value, Rnx32f* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask, int maskStep);
RnxStatus rnxiSet_32f_C3R(const Rnx32f value[3], Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_32f_C3MR(const Rnx32f value[3], Rnx32f* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_32f_C4R(const Rnx32f value[4], Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_32f_C4MR(const Rnx32f value[4], Rnx32f* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_32f_AC4R(const Rnx32f value[3], Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_32f_AC4MR(const Rnx32f value[3], Rnx32f* pDst, int dstStep, RnxiSize roiSize, const Rnx8u* pMask,
    int maskStep);
RnxStatus rnxiSet_8u_C3CR(Rnx8u value, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_8u_C4CR(Rnx8u value, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_16u_C3CR(Rnx16u value, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_16u_C4CR(Rnx16u value, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_16s_C3CR(Rnx16s value, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_16s_C4CR(Rnx16s value, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_32s_C3CR(Rnx32s value, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_32s_C4CR(Rnx32s value, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_32f_C3CR(Rnx32f value, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiSet_32f_C4CR(Rnx32f value, Rnx32f* pDst, int dstStep, RnxiSize roiSize);


/* Reordering channels
   =================== */

/* rnxiSwapChannels: Reorders, drops, repeats or adds channels.

       dst[i] = src[dstOrder[i]]

   AC4R leaves the fourth element of the destination as it is. C4C3R picks any three of the four channels. In C3C4R the
   entries have three meanings: 0 to 2 copy that source channel, 3 writes val, 4 and more leave the destination's channel
   as it is.

   C3R, C4C3R and C3C4R check pointers (dstOrder included), size, steps, entries; C4R and AC4R image pointers, steps,
   size, dstOrder, entries; C3IR and C4IR the same.

   C3R with one pointer for source and destination is C3IR with the destination's step. Otherwise images may overlap in
   any way; the result is that of a loop over the rows from the top and over the pixels of a row from the left.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     dstOrder: entry i is the source channel that goes into destination channel i
     val: C3C4R: the constant for destination channels whose entry is 3
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step is 0
     rnxStatusBadChannelOrder: an entry of dstOrder outside 0 to 2 (C3R, C3IR, AC4R) or 0 to 3 (C4R, C4IR, C4C3R),
         or negative (C3C4R)
     rnxStatusNullPointer: an image pointer is null
     rnxStatusNullPointer: dstOrder is null (C3R, C4C3R, C3C4R: tested with the images, before the size)

   Example
       // BGR to opaque RGBA
       const int order[4] = {2, 1, 0, 3};
       RnxStatus status = rnxiSwapChannels_8u_C3C4R(bgr, bgrStep, rgba, rgbaStep, roi, order, 255); */

RnxStatus rnxiSwapChannels_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_32s_C3R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_8u_C4C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_16u_C4C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_16s_C4C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_32s_C4C3R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_32f_C4C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_8u_C3C4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[4], Rnx8u val);
RnxStatus rnxiSwapChannels_16u_C3C4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[4], Rnx16u val);
RnxStatus rnxiSwapChannels_16s_C3C4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[4], Rnx16s val);
RnxStatus rnxiSwapChannels_32s_C3C4R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[4], Rnx32s val);
RnxStatus rnxiSwapChannels_32f_C3C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[4], Rnx32f val);
RnxStatus rnxiSwapChannels_8u_C4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[4]);
RnxStatus rnxiSwapChannels_8u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_16u_C4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[4]);
RnxStatus rnxiSwapChannels_16u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_16s_C4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[4]);
RnxStatus rnxiSwapChannels_16s_AC4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_32s_C4R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[4]);
RnxStatus rnxiSwapChannels_32s_AC4R(const Rnx32s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[4]);
RnxStatus rnxiSwapChannels_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    const int dstOrder[3]);
RnxStatus rnxiSwapChannels_8u_C3IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const int dstOrder[3]);
RnxStatus rnxiSwapChannels_8u_C4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize, const int dstOrder[4]);

#ifdef __cplusplus
}
#endif

#endif
