/* General linear filter.
   Written by tools/apigen.py from the table of exports in api/: change it there. */
#ifndef RNXIP_FILTER_H
#define RNXIP_FILTER_H

#include "rnxip/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* General linear filter
   =====================

   Convolves an image with a rectangular kernel of any size. Specs and work buffers belong to the caller:

       rnxiFilterBorderGetSize       how many bytes the spec and the buffer need
       rnxiFilterBorderInit_*        fills the spec from a kernel
       rnxiFilterBorderSetMode       optional: an offset that is added to every result
       rnxiFilterBorder_*            filters any number of images whose ROI is not larger than that of the size query

   Both blocks may lie at any address. A spec is only read by the filter, so threads may share one; each needs a buffer
   and a destination of its own. Source and destination may not overlap.

       kernel   images            arithmetic
       16s      8u                exact integer sum; result (int)((float)sum + offset * divisor) / divisor
       16s      16s               exact integer sum / divisor, for specs of 1 or 2 channels whose kernel has more than one
                                  row and column (one channel: more than two columns)
       16s      16s else, 16u     as a 32f kernel of (float)(coefficient * (1.0 / divisor))
       32f      8u 16u 16s 32f    single precision: the products are added row by row of the reversed kernel, each product
                                  and each sum rounded, then the offset
       64f      64f               the same in double precision

   Results for integer images are rounded by the rounding mode given to the Init function (toward zero, to nearest with
   ties to even, to nearest with ties away from zero), then saturated. Integer quotients are exact: they are rounded once.
   A negative integer sum gives 0 for 8u. Floating-point sums follow the caller's control state.

   Border types: rnxBorderRepl, rnxBorderMirror or rnxBorderConst, which say what stands in for the pixels that the kernel
   reads outside the ROI, together with any of the flags rnxBorderInMemTop, Bottom, Left and Right: pixels on a flagged
   side lie in memory around the ROI and are read as they are. Replication and reflection start from the ROI together with
   the pixels in memory. rnxBorderInMem alone reads all four sides from memory. */

/* rnxiFilterBorderGetSize: Sizes of the spec and the work buffer of a linear filter.

   A 64f kernel goes with 64f images, 16s and 32f kernels with 8u, 16u and 16s images, a 32f kernel with 32f images. The
   buffer holds the few rows that the filter works on: it grows with (ROI width + kernel width) * (kernel height + 4), not
   with the ROI's height.

   Arguments
     kernelSize: width and height of the kernel, each from 1
     dstRoiSize: size of the largest ROI that will be filtered
     dataType: element type of the images: rnx8u, rnx16u, rnx16s, rnx32f or rnx64f
     kernelType: element type of the kernel: rnx16s, rnx32f or rnx64f
     numChannels: channels of the images, 1 to 4; 1 for rnx64f
     pSpecSize: receives the bytes of a spec, 0 on any error
     pBufferSize: receives the bytes of a work buffer, 0 on any error

   Checks, in this order
     rnxStatusBadSize: kernel or ROI width or height below 1
     rnxStatusBadDataType: dataType or kernelType not supported, or not together
     rnxStatusBadChannel: numChannels below 1 or above 4; not 1 for rnx64f
     rnxStatusNullPointer: pSpecSize or pBufferSize is null
     rnxStatusSizeOverflow: a size above 0x7fffffff

   Example
       int specSize, bufferSize;
       RnxStatus status = rnxiFilterBorderGetSize(kernelSize, roi, rnx8u, rnx16s, 3, &specSize, &bufferSize); */

RnxStatus rnxiFilterBorderGetSize(RnxiSize kernelSize, RnxiSize dstRoiSize, int dataType, int kernelType,
    int numChannels, int* pSpecSize, int* pBufferSize);

/* rnxiFilterBorderInit: Fills the spec of a linear filter from a kernel of 16s, 32f or 64f coefficients.

   Returns the warning +52 rnxStatusWarningHintIgnored, with a valid spec, when rnxRoundHintFlag is set for a 16s kernel
   and images other than 8u and 16s of one channel.

   Arguments
     pKernel: kernelSize.width * kernelSize.height coefficients, row by row
     kernelSize: width and height of the kernel, each from 1
     divisor: every sum is divided by it; not 0, may be negative
     dataType: element type of the images: rnx8u, rnx16u, rnx16s, rnx32f or rnx64f
     numChannels: channels of the images, 1 to 4; 1 for rnx64f
     roundMode: rnxRoundZero, rnxRoundNearestEven or rnxRoundHalfAway; rnxRoundHintFlag may be OR-ed in and changes
         no result
     pSpec: the spec: a block of the reported size

   Checks, in this order
     rnxStatusNullPointer: pKernel or pSpec is null
     rnxStatusBadSize: kernel width or height below 1
     rnxStatusBadDataType: dataType or kernelType not supported, or not together
     rnxStatusBadChannel: numChannels below 1 or above 4; not 1 for rnx64f
     rnxStatusBadRoundMode: roundMode without the flag not 0, 1 or 2; for a 64f kernel not 1
     rnxStatusBadDivisor: divisor 0

   Example
       // 3x3 binomial blur
       const Rnx16s kernel[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
       RnxiSize kernelSize = {3, 3};
       RnxStatus status = rnxiFilterBorderInit_16s(kernel, kernelSize, 16, rnx8u, 3, rnxRoundNearestEven, spec); */

RnxStatus rnxiFilterBorderInit_16s(const Rnx16s* pKernel, RnxiSize kernelSize, int divisor, int dataType,
    int numChannels, int roundMode, RnxiFilterBorderSpec* pSpec);
RnxStatus rnxiFilterBorderInit_32f(const Rnx32f* pKernel, RnxiSize kernelSize, int dataType, int numChannels,
    int roundMode, RnxiFilterBorderSpec* pSpec);
RnxStatus rnxiFilterBorderInit_64f(const Rnx64f* pKernel, RnxiSize kernelSize, int dataType, int numChannels,
    int roundMode, RnxiFilterBorderSpec* pSpec);

/* rnxiFilterBorderSetMode: Sets the offset that a linear filter adds to its results.

   An Init function sets offset and hint to 0.

   Arguments
     hint: accuracy hint; changes no result
     offset: added to every result before rounding; images of 8u and 16u only
     pSpec: the spec: a block of the reported size

   Checks, in this order
     rnxStatusNullPointer: pSpec is null
     rnxStatusUnsupportedMode: an offset other than 0 for images of 16s, 32f or 64f

   Example
       // differences around mid-grey
       RnxStatus status = rnxiFilterBorderSetMode(rnxAlgHintNone, 128, spec); */

RnxStatus rnxiFilterBorderSetMode(int hint, int offset, RnxiFilterBorderSpec* pSpec);

/* rnxiFilterBorder: Linear filter of an image: convolution with the kernel of a spec.

       dst(x, y) = sum over i < kw, j < kh of K[kh-1-j][kw-1-i] * src(x - (kw-1)/2 + i, y - (kh-1)/2 + j)

   The divisions round down: an even kernel reaches one pixel further to the right and below. Channels are filtered
   independently. A spec that was made for images of another type gives undefined pixels.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     border: border type
     borderValue: one value per channel, read for rnxBorderConst only and else may be null
     pSpec: a spec that an Init function filled for this type of image
     pBuffer: work buffer of the reported size

   Checks, in this order
     rnxStatusNullPointer: pSrc, pDst, pSpec or pBuffer is null; then: borderValue is null and the border type is
         rnxBorderConst
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: srcStep below 1, or dstStep below the bytes of a row of the ROI
     rnxStatusBadBorderType: border above 255, or neither rnxBorderInMem nor of the kinds rnxBorderRepl,
         rnxBorderMirror, rnxBorderConst
     rnxStatusBadContext: pSpec was never filled by an Init function

   Example
       RnxiSize roi = {640, 480};
       RnxStatus status = rnxiFilterBorder_8u_C3R(src, srcStep, dst, dstStep, roi, rnxBorderRepl, NULL, spec, buffer); */

RnxStatus rnxiFilterBorder_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx8u borderValue[1], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFilterBorder_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx8u borderValue[3], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFilterBorder_8u_C4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx8u borderValue[4], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFilterBorder_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx16u borderValue[1], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFilterBorder_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx16u borderValue[3], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFilterBorder_16u_C4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx16u borderValue[4], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFilterBorder_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx16s borderValue[1], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFilterBorder_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx16s borderValue[3], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFilterBorder_16s_C4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx16s borderValue[4], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFilterBorder_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx32f borderValue[1], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFilterBorder_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx32f borderValue[3], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFilterBorder_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx32f borderValue[4], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFilterBorder_64f_C1R(const Rnx64f* pSrc, int srcStep, Rnx64f* pDst, int dstStep, RnxiSize roiSize,
    RnxiBorderType border, const Rnx64f borderValue[1], const RnxiFilterBorderSpec* pSpec, Rnx8u* pBuffer);

#ifdef __cplusplus
}
#endif

#endif
