/* Gray and one-bit images; Border extension; Type conversion; Copies; Mirror and transpose; Scaling; Filling with a constant; Reordering channels.
   Written by tools/apigen.py from the table of exports in api/: change it there. */
#ifndef RNXIP_DATA_H
#define RNXIP_DATA_H

#include "rnxip/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Gray and one-bit images
   =======================

   A one-bit image is rows of packed bits, filled from the least significant bit of a byte upward. A row may start in the
   middle of a byte: with b the bit offset modulo 8, pixel x is bit (b + x) mod 8 of byte (b + x) div 8 of the row. Only
   the offset modulo 8 counts; for a larger one move the pointer.

   Images may overlap in any way; the result is that of a loop over the rows from the top and over the pixels of a row from
   the left, in which a byte of bits is read and written for every pixel. */

/* rnxiGrayToBin: Turns a gray image into a one-bit image by a threshold.

       bit = src > threshold

   A source that is not a number gives 0. Bits of the destination outside the ROI keep their values. The caller's
   floating-point control state has no influence and is the same after the call.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: one-bit destination image and its step in bytes
     dstBitOffset: the bit at which the rows of the destination start
     roiSize: size of the region of interest in pixels
     threshold: values above it give 1

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1
     rnxStatusBadSize: bit offset below 0

   Example
       RnxStatus status = rnxiGrayToBin_8u1u_C1R(gray, grayStep, bits, bitsStep, 0, roi, 127); */

RnxStatus rnxiGrayToBin_8u1u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, int dstBitOffset,
    RnxiSize roiSize, Rnx8u threshold);
RnxStatus rnxiGrayToBin_16u1u_C1R(const Rnx16u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, int dstBitOffset,
    RnxiSize roiSize, Rnx16u threshold);
RnxStatus rnxiGrayToBin_16s1u_C1R(const Rnx16s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, int dstBitOffset,
    RnxiSize roiSize, Rnx16s threshold);
RnxStatus rnxiGrayToBin_32f1u_C1R(const Rnx32f* pSrc, int srcStep, Rnx8u* pDst, int dstStep, int dstBitOffset,
    RnxiSize roiSize, Rnx32f threshold);

/* rnxiBinToGray: Turns a one-bit image into a gray image of two levels.

       dst = bit ? hiVal : loVal

   Arguments
     pSrc, srcStep: one-bit source image and its step in bytes
     srcBitOffset: the bit at which the rows of the source start
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     loVal, hiVal: the values for bits 0 and 1

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1
     rnxStatusBadSize: bit offset below 0

   Example
       RnxStatus status = rnxiBinToGray_1u8u_C1R(bits, bitsStep, 0, gray, grayStep, roi, 0, 255); */

RnxStatus rnxiBinToGray_1u8u_C1R(const Rnx8u* pSrc, int srcStep, int srcBitOffset, Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, Rnx8u loVal, Rnx8u hiVal);
RnxStatus rnxiBinToGray_1u16u_C1R(const Rnx8u* pSrc, int srcStep, int srcBitOffset, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, Rnx16u loVal, Rnx16u hiVal);
RnxStatus rnxiBinToGray_1u16s_C1R(const Rnx8u* pSrc, int srcStep, int srcBitOffset, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, Rnx16s loVal, Rnx16s hiVal);
RnxStatus rnxiBinToGray_1u32f_C1R(const Rnx8u* pSrc, int srcStep, int srcBitOffset, Rnx32f* pDst, int dstStep,
    RnxiSize roiSize, Rnx32f loVal, Rnx32f hiVal);


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


/* Type conversion
   ===============

   A value is rounded where it has to be, then saturated to the destination's type. The caller's floating-point control
   state has no influence on results and is the same after the call.

   AC4 converts three channels and never changes the destination's fourth element. Images may overlap in any way: the
   result is then that of a loop over the rows from the top and over the elements of a row from the left. */

/* rnxiConvert: Converts an image to another element type.

       R, Rs   dst = saturate(src)                                     integers, and everything to 32f and 64f
       R       dst = saturate(round(src))                              32f to integers
       RSfs    dst = saturate(round(src * 2^-scaleFactor))

   To 32f and 64f every value is exact, except that 32-bit integers round to the nearest float, ties to even. Rs forms
   turn negative values into 0.

   Integer sources with a scale factor give the exact scaled value, rounded once; a factor above the bits of the source
   gives 0. Of float sources the factor is a power of two in single precision: a factor above 126 multiplies by 0, one
   below -127 by infinity. 64f is multiplied and rounded in double precision.

   32f and 64f to integers: a value above the destination's range, infinity included, gives the largest value, one below
   gives the smallest. What is not a number gives the smallest value with rnxRoundZero and rnxRoundNearestEven, and the
   largest with rnxRoundHalfAway. The IRSfs form reads floats and leaves integers in their place.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     roundMode: 0 rnxRoundZero, 1 rnxRoundNearestEven, every other value as 2 rnxRoundHalfAway
     scaleFactor: the value is multiplied by 2^-scaleFactor, then rounded by roundMode and saturated; any value
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       RnxStatus status = rnxiConvert_8u32f_C3R(bytes, byteStep, floats, floatStep, roi);
       ...
       status = rnxiConvert_32f8u_C3R(floats, floatStep, bytes, byteStep, roi, rnxRoundNearestEven); */

RnxStatus rnxiConvert_8u16u_C1R(const Rnx8u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u16u_C3R(const Rnx8u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u16u_C4R(const Rnx8u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u16u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u16s_C1R(const Rnx8u* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u16s_C3R(const Rnx8u* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u16s_C4R(const Rnx8u* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u16s_AC4R(const Rnx8u* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u32s_C1R(const Rnx8u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u32s_C3R(const Rnx8u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u32s_C4R(const Rnx8u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u32s_AC4R(const Rnx8u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u32f_C1R(const Rnx8u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u32f_C3R(const Rnx8u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u32f_C4R(const Rnx8u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8u32f_AC4R(const Rnx8u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s32s_C1R(const Rnx8s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s32s_C3R(const Rnx8s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s32s_C4R(const Rnx8s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s32s_AC4R(const Rnx8s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s32f_C1R(const Rnx8s* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s32f_C3R(const Rnx8s* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s32f_C4R(const Rnx8s* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s32f_AC4R(const Rnx8s* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u8u_C1R(const Rnx16u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u8u_C3R(const Rnx16u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u8u_C4R(const Rnx16u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u8u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u32s_C1R(const Rnx16u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u32s_C3R(const Rnx16u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u32s_C4R(const Rnx16u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u32s_AC4R(const Rnx16u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u32f_C1R(const Rnx16u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u32f_C3R(const Rnx16u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u32f_C4R(const Rnx16u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u32f_AC4R(const Rnx16u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s8u_C1R(const Rnx16s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s8u_C3R(const Rnx16s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s8u_C4R(const Rnx16s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s8u_AC4R(const Rnx16s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s32s_C1R(const Rnx16s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s32s_C3R(const Rnx16s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s32s_C4R(const Rnx16s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s32s_AC4R(const Rnx16s* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s32f_C1R(const Rnx16s* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s32f_C3R(const Rnx16s* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s32f_C4R(const Rnx16s* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s32f_AC4R(const Rnx16s* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_32s8u_C1R(const Rnx32s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_32s8u_C3R(const Rnx32s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_32s8u_C4R(const Rnx32s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_32s8u_AC4R(const Rnx32s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_32s8s_C1R(const Rnx32s* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_32s8s_C3R(const Rnx32s* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_32s8s_C4R(const Rnx32s* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_32s8s_AC4R(const Rnx32s* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s16s_C1R(const Rnx8s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s64f_C1R(const Rnx8s* pSrc, int srcStep, Rnx64f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16u32u_C1R(const Rnx16u* pSrc, int srcStep, Rnx32u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_32s32f_C1R(const Rnx32s* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_32u32f_C1R(const Rnx32u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s8u_C1Rs(const Rnx8s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s16u_C1Rs(const Rnx8s* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_8s32u_C1Rs(const Rnx8s* pSrc, int srcStep, Rnx32u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s16u_C1Rs(const Rnx16s* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_16s32u_C1Rs(const Rnx16s* pSrc, int srcStep, Rnx32u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_32s32u_C1Rs(const Rnx32s* pSrc, int srcStep, Rnx32u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiConvert_32f8u_C1R(const Rnx32f* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f8u_C3R(const Rnx32f* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f8u_C4R(const Rnx32f* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f8u_AC4R(const Rnx32f* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f8s_C1R(const Rnx32f* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f8s_C3R(const Rnx32f* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f8s_C4R(const Rnx32f* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f8s_AC4R(const Rnx32f* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f16u_C1R(const Rnx32f* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f16u_C3R(const Rnx32f* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f16u_C4R(const Rnx32f* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f16u_AC4R(const Rnx32f* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f16s_C1R(const Rnx32f* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f16s_C3R(const Rnx32f* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f16s_C4R(const Rnx32f* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_32f16s_AC4R(const Rnx32f* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode);
RnxStatus rnxiConvert_8u8s_C1RSfs(const Rnx8u* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_16u8s_C1RSfs(const Rnx16u* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_16u16s_C1RSfs(const Rnx16u* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_16s8s_C1RSfs(const Rnx16s* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32s16u_C1RSfs(const Rnx32s* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32s16s_C1RSfs(const Rnx32s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32u8u_C1RSfs(const Rnx32u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32u8s_C1RSfs(const Rnx32u* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32u16u_C1RSfs(const Rnx32u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32u16s_C1RSfs(const Rnx32u* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32u32s_C1RSfs(const Rnx32u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32f8u_C1RSfs(const Rnx32f* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32f8s_C1RSfs(const Rnx32f* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32f16u_C1RSfs(const Rnx32f* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32f16s_C1RSfs(const Rnx32f* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32f32u_C1RSfs(const Rnx32f* pSrc, int srcStep, Rnx32u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32f32s_C1RSfs(const Rnx32f* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_64f8u_C1RSfs(const Rnx64f* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_64f8s_C1RSfs(const Rnx64f* pSrc, int srcStep, Rnx8s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_64f16u_C1RSfs(const Rnx64f* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_64f16s_C1RSfs(const Rnx64f* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    int roundMode, int scaleFactor);
RnxStatus rnxiConvert_32f32u_C1IRSfs(Rnx32u* pSrcDst, int srcDstStep, RnxiSize roiSize, int roundMode, int scaleFactor);


/* Copies
   ======

   Steps may have any value; a step of 0 reads or writes the same row again. Values are copied bit by bit.

   Images may overlap. The result is then that of a loop over the rows from the top and over a row from the left: over its
   elements in C1R, C3R, C4R and AC4R, over its pixels in the other forms, which read a pixel before they write it. So one
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
   caches, but for forms that leave something of the destination as it is.

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

   With flip 3 and 4 a step below 1 gives rnxStatusBadStep, before the size, and images that overlap in memory give
   rnxStatusUnsupportedMode, last; so does the in-place form. Images side by side, with one step, do not overlap; images
   with different steps do when the bytes from the first to the last one of each meet.

   The other axes check no step: one pointer and one step for source and destination mean in place, and rows that are to be
   reversed onto themselves are reversed in place. Otherwise overlapping images give the result of a loop over the source's
   rows from the top and over a row from the left: over its elements with flip 0, over its pixels with flip 1 and 2.

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


/* Scaling
   =======

   The whole range of one type is mapped onto the whole range of another, or an image is multiplied and added to. The
   caller's floating-point control state has no influence on results and is the same after the call.

   AC4 works on three channels and never changes the destination's fourth element. Images may overlap in any way: the
   result is then that of a loop over the rows from the top and over the elements of a row from the left. */

/* rnxiScale: Maps the whole value range of one type onto that of another.

       8u16u   dst = src * 257
       8u16s   dst = src * 257 - 32768
       8u32s   dst = src * 16843009 - 2147483648
       8u32f   dst = vMin + src * ((vMax - vMin) / 255)
       32f8u   dst = round(k * clamp(src, vMin, vMax) - k * vMin), k = 255 / (vMax - vMin)
       16u8u   dst = round(src * (255 / 65535))                        fast: src >> 8
       16s8u   dst = round((src + 32768) * (255 / 65535))              fast: (src + 32768) >> 8
       32s8u   dst = round((src + 2147483648) * (255 / 4294967295))    fast: (src + 2147483648) >> 24

   round() is half to even; the formulas with 32f, and that of 32s8u, are in single precision, operation by operation. A
   32f element that is not a number becomes vMax and gives 255.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     vMin, vMax: the range of the 32f image that corresponds to 0 ... 255
     hint: 2 rnxAlgHintAccurate: the accurate path; every other value: the fast one

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1
     rnxStatusBadScaleRange: vMax not above vMin, or one of them not a number; tested before everything else

   Example
       RnxStatus status = rnxiScale_16u8u_C1R(raw, rawStep, view, viewStep, roi, rnxAlgHintAccurate); */

RnxStatus rnxiScale_8u16u_C1R(const Rnx8u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiScale_8u16u_C3R(const Rnx8u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiScale_8u16u_C4R(const Rnx8u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiScale_8u16u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiScale_8u16s_C1R(const Rnx8u* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiScale_8u16s_C3R(const Rnx8u* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiScale_8u16s_C4R(const Rnx8u* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiScale_8u16s_AC4R(const Rnx8u* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiScale_8u32s_C1R(const Rnx8u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiScale_8u32s_C3R(const Rnx8u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiScale_8u32s_C4R(const Rnx8u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiScale_8u32s_AC4R(const Rnx8u* pSrc, int srcStep, Rnx32s* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiScale_8u32f_C1R(const Rnx8u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize, Rnx32f vMin,
    Rnx32f vMax);
RnxStatus rnxiScale_8u32f_C3R(const Rnx8u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize, Rnx32f vMin,
    Rnx32f vMax);
RnxStatus rnxiScale_8u32f_C4R(const Rnx8u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize, Rnx32f vMin,
    Rnx32f vMax);
RnxStatus rnxiScale_8u32f_AC4R(const Rnx8u* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize, Rnx32f vMin,
    Rnx32f vMax);
RnxStatus rnxiScale_32f8u_C1R(const Rnx32f* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, Rnx32f vMin,
    Rnx32f vMax);
RnxStatus rnxiScale_32f8u_C3R(const Rnx32f* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, Rnx32f vMin,
    Rnx32f vMax);
RnxStatus rnxiScale_32f8u_C4R(const Rnx32f* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, Rnx32f vMin,
    Rnx32f vMax);
RnxStatus rnxiScale_32f8u_AC4R(const Rnx32f* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, Rnx32f vMin,
    Rnx32f vMax);
RnxStatus rnxiScale_16u8u_C1R(const Rnx16u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int hint);
RnxStatus rnxiScale_16u8u_C3R(const Rnx16u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int hint);
RnxStatus rnxiScale_16u8u_C4R(const Rnx16u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int hint);
RnxStatus rnxiScale_16u8u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int hint);
RnxStatus rnxiScale_16s8u_C1R(const Rnx16s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int hint);
RnxStatus rnxiScale_16s8u_C3R(const Rnx16s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int hint);
RnxStatus rnxiScale_16s8u_C4R(const Rnx16s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int hint);
RnxStatus rnxiScale_16s8u_AC4R(const Rnx16s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int hint);
RnxStatus rnxiScale_32s8u_C1R(const Rnx32s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int hint);
RnxStatus rnxiScale_32s8u_C3R(const Rnx32s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int hint);
RnxStatus rnxiScale_32s8u_C4R(const Rnx32s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int hint);
RnxStatus rnxiScale_32s8u_AC4R(const Rnx32s* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize, int hint);

/* rnxiScaleC: Multiplies an image by a constant, adds another and converts.

       dst = src * mVal + aVal

   Accurate: in double precision, clamped to the destination's range and rounded half to even. Fast: the same in single
   precision where source and destination have 8 or 16 bits or are 32f, otherwise in double. To an integer, what is not a
   number gives the smallest value of the type; 32f and 64f results are those of IEEE 754, infinity included.

   Where source and destination have one type, |mVal - 1| and |aVal| below 2^-52 make the call a copy of bits with the
   checks of rnxiCopy: a pointer null, a size below 1.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     mVal, aVal: factor and addend
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     hint: 2 rnxAlgHintAccurate: the accurate path; every other value: the fast one
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       // Celsius to Fahrenheit
       RnxStatus status = rnxiScaleC_16s32f_C1R(src, srcStep, 1.8, 32.0, dst, dstStep, roi, rnxAlgHintFast); */

RnxStatus rnxiScaleC_8u8s_C1R(const Rnx8u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8u16u_C1R(const Rnx8u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8u16s_C1R(const Rnx8u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8u32s_C1R(const Rnx8u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8u32f_C1R(const Rnx8u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8u64f_C1R(const Rnx8u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx64f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8s8u_C1R(const Rnx8s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8s16u_C1R(const Rnx8s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8s16s_C1R(const Rnx8s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8s32s_C1R(const Rnx8s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8s32f_C1R(const Rnx8s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8s64f_C1R(const Rnx8s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx64f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16u8u_C1R(const Rnx16u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16u8s_C1R(const Rnx16u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16u16s_C1R(const Rnx16u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16u32s_C1R(const Rnx16u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16u32f_C1R(const Rnx16u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16u64f_C1R(const Rnx16u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx64f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16s8u_C1R(const Rnx16s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16s8s_C1R(const Rnx16s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16s16u_C1R(const Rnx16s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16s32s_C1R(const Rnx16s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16s32f_C1R(const Rnx16s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16s64f_C1R(const Rnx16s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx64f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32s8u_C1R(const Rnx32s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32s8s_C1R(const Rnx32s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32s16u_C1R(const Rnx32s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32s16s_C1R(const Rnx32s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32s32f_C1R(const Rnx32s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32s64f_C1R(const Rnx32s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx64f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32f8u_C1R(const Rnx32f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32f8s_C1R(const Rnx32f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32f16u_C1R(const Rnx32f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32f16s_C1R(const Rnx32f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32f32s_C1R(const Rnx32f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32f64f_C1R(const Rnx32f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx64f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_64f8u_C1R(const Rnx64f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_64f8s_C1R(const Rnx64f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_64f16u_C1R(const Rnx64f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_64f16s_C1R(const Rnx64f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_64f32s_C1R(const Rnx64f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_64f32f_C1R(const Rnx64f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8u_C1IR(Rnx8u* pSrcDst, int srcDstStep, Rnx64f mVal, Rnx64f aVal, RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8s_C1R(const Rnx8s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx8s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_8s_C1IR(Rnx8s* pSrcDst, int srcDstStep, Rnx64f mVal, Rnx64f aVal, RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16u_C1IR(Rnx16u* pSrcDst, int srcDstStep, Rnx64f mVal, Rnx64f aVal, RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx16s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_16s_C1IR(Rnx16s* pSrcDst, int srcDstStep, Rnx64f mVal, Rnx64f aVal, RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32s_C1R(const Rnx32s* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32s* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32s_C1IR(Rnx32s* pSrcDst, int srcDstStep, Rnx64f mVal, Rnx64f aVal, RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx32f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, Rnx64f mVal, Rnx64f aVal, RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_64f_C1R(const Rnx64f* pSrc, int srcStep, Rnx64f mVal, Rnx64f aVal, Rnx64f* pDst, int dstStep,
    RnxiSize roiSize, int hint);
RnxStatus rnxiScaleC_64f_C1IR(Rnx64f* pSrcDst, int srcDstStep, Rnx64f mVal, Rnx64f aVal, RnxiSize roiSize, int hint);


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
