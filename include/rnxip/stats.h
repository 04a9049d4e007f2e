/* Sums, means and norms.
   Written by tools/apigen.py from the table of exports in api/: change it there. */
#ifndef RNXIP_STATS_H
#define RNXIP_STATS_H

#include "rnxip/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Sums, means and norms
   =====================

   Results are doubles: one for C1, arrays of 3 and 4 for C3 and C4, one per channel. Integer images are summed exactly
   and rounded once, to the double. The caller's floating-point control state has no influence and is the same after the
   call.

   The 32f forms of Sum, Mean, L1 and L2 take a hint. Accurate: each row is summed in double precision, even and odd pixels
   of each channel apart, the two are added at the end of the row and the rows one after the other. Fast: within 1e-6 of
   the exact sum of absolute values, for images of any size. An element that is not a number makes the result of its
   channel one, of every kind. */

/* rnxiSum: Sum of the elements of each channel.

       sum = src(0, 0) + src(1, 0) + ...

   The step is not checked: with 0 the first row counts as often as the ROI has rows.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     roiSize: size of the region of interest in pixels
     pSum: receives the sum of each channel
     hint: 2 rnxAlgHintAccurate: the accurate path; every other value: the fast one

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1

   Example
       Rnx64f sum;
       RnxStatus status = rnxiSum_8u_C1R(src, srcStep, roi, &sum); */

RnxStatus rnxiSum_8u_C1R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pSum);
RnxStatus rnxiSum_8u_C3R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pSum[3]);
RnxStatus rnxiSum_8u_C4R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pSum[4]);
RnxStatus rnxiSum_16u_C1R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pSum);
RnxStatus rnxiSum_16u_C3R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pSum[3]);
RnxStatus rnxiSum_16u_C4R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pSum[4]);
RnxStatus rnxiSum_16s_C1R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pSum);
RnxStatus rnxiSum_16s_C3R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pSum[3]);
RnxStatus rnxiSum_16s_C4R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pSum[4]);
RnxStatus rnxiSum_32f_C1R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pSum, int hint);
RnxStatus rnxiSum_32f_C3R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pSum[3], int hint);
RnxStatus rnxiSum_32f_C4R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pSum[4], int hint);

/* rnxiMean: Mean of the elements of each channel.

       mean = sum / (width * height)

   As rnxiSum, divided by the number of pixels, which is a 32-bit product: for ROIs of more than 2^31 - 1 pixels it wraps.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     roiSize: size of the region of interest in pixels
     pMean: receives the mean of each channel
     hint: 2 rnxAlgHintAccurate: the accurate path; every other value: the fast one

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1

   Example
       Rnx64f mean[3];
       RnxStatus status = rnxiMean_32f_C3R(src, srcStep, roi, mean, rnxAlgHintFast); */

RnxStatus rnxiMean_8u_C1R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pMean);
RnxStatus rnxiMean_8u_C3R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pMean[3]);
RnxStatus rnxiMean_8u_C4R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pMean[4]);
RnxStatus rnxiMean_16u_C1R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pMean);
RnxStatus rnxiMean_16u_C3R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pMean[3]);
RnxStatus rnxiMean_16u_C4R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pMean[4]);
RnxStatus rnxiMean_16s_C1R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pMean);
RnxStatus rnxiMean_16s_C3R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pMean[3]);
RnxStatus rnxiMean_16s_C4R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pMean[4]);
RnxStatus rnxiMean_32f_C1R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pMean, int hint);
RnxStatus rnxiMean_32f_C3R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pMean[3], int hint);
RnxStatus rnxiMean_32f_C4R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pMean[4], int hint);

/* rnxiNorm_Inf: Infinity norm of an image.

       norm = max |src|

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     roiSize: size of the region of interest in pixels
     pValue: receives the norm of each channel

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       Rnx64f norm;
       RnxStatus status = rnxiNorm_Inf_16s_C1R(src, srcStep, roi, &norm); */

RnxStatus rnxiNorm_Inf_8u_C1R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNorm_Inf_8u_C3R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNorm_Inf_8u_C4R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNorm_Inf_16u_C1R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNorm_Inf_16u_C3R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNorm_Inf_16u_C4R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNorm_Inf_16s_C1R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNorm_Inf_16s_C3R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNorm_Inf_16s_C4R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNorm_Inf_32f_C1R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNorm_Inf_32f_C3R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNorm_Inf_32f_C4R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[4]);

/* rnxiNorm_L1: L1 norm of an image.

       norm = sum of |src|

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     roiSize: size of the region of interest in pixels
     pValue: receives the norm of each channel
     hint: 2 rnxAlgHintAccurate: the accurate path; every other value: the fast one

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       Rnx64f norm;
       RnxStatus status = rnxiNorm_L1_16s_C1R(src, srcStep, roi, &norm); */

RnxStatus rnxiNorm_L1_8u_C1R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNorm_L1_8u_C3R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNorm_L1_8u_C4R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNorm_L1_16u_C1R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNorm_L1_16u_C3R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNorm_L1_16u_C4R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNorm_L1_16s_C1R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNorm_L1_16s_C3R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNorm_L1_16s_C4R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNorm_L1_32f_C1R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pValue, int hint);
RnxStatus rnxiNorm_L1_32f_C3R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[3], int hint);
RnxStatus rnxiNorm_L1_32f_C4R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[4], int hint);

/* rnxiNorm_L2: L2 norm of an image.

       norm = square root of the sum of src^2

   8u in one channel, wider than 32768 pixels: the norms of strips of 32768 columns are squared and summed in double
   precision.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     roiSize: size of the region of interest in pixels
     pValue: receives the norm of each channel
     hint: 2 rnxAlgHintAccurate: the accurate path; every other value: the fast one

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       Rnx64f norm;
       RnxStatus status = rnxiNorm_L2_16s_C1R(src, srcStep, roi, &norm); */

RnxStatus rnxiNorm_L2_8u_C1R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNorm_L2_8u_C3R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNorm_L2_8u_C4R(const Rnx8u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNorm_L2_16u_C1R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNorm_L2_16u_C3R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNorm_L2_16u_C4R(const Rnx16u* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNorm_L2_16s_C1R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNorm_L2_16s_C3R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNorm_L2_16s_C4R(const Rnx16s* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNorm_L2_32f_C1R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f* pValue, int hint);
RnxStatus rnxiNorm_L2_32f_C3R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[3], int hint);
RnxStatus rnxiNorm_L2_32f_C4R(const Rnx32f* pSrc, int srcStep, RnxiSize roiSize, Rnx64f pValue[4], int hint);

/* rnxiNormDiff_Inf: Infinity norm of the difference of two images.

       norm = max |src1 - src2|

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     roiSize: size of the region of interest in pixels
     pValue: receives the norm of each channel

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       Rnx64f norm[3];
       RnxStatus status = rnxiNormDiff_Inf_8u_C3R(a, aStep, b, bStep, roi, norm); */

RnxStatus rnxiNormDiff_Inf_8u_C1R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f* pValue);
RnxStatus rnxiNormDiff_Inf_8u_C3R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[3]);
RnxStatus rnxiNormDiff_Inf_8u_C4R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[4]);
RnxStatus rnxiNormDiff_Inf_16u_C1R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNormDiff_Inf_16u_C3R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNormDiff_Inf_16u_C4R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNormDiff_Inf_16s_C1R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNormDiff_Inf_16s_C3R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNormDiff_Inf_16s_C4R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNormDiff_Inf_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNormDiff_Inf_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNormDiff_Inf_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[4]);

/* rnxiNormDiff_L1: L1 norm of the difference of two images.

       norm = sum of |src1 - src2|

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     roiSize: size of the region of interest in pixels
     pValue: receives the norm of each channel
     hint: 2 rnxAlgHintAccurate: the accurate path; every other value: the fast one

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       Rnx64f norm[3];
       RnxStatus status = rnxiNormDiff_L1_8u_C3R(a, aStep, b, bStep, roi, norm); */

RnxStatus rnxiNormDiff_L1_8u_C1R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f* pValue);
RnxStatus rnxiNormDiff_L1_8u_C3R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[3]);
RnxStatus rnxiNormDiff_L1_8u_C4R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[4]);
RnxStatus rnxiNormDiff_L1_16u_C1R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNormDiff_L1_16u_C3R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNormDiff_L1_16u_C4R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNormDiff_L1_16s_C1R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNormDiff_L1_16s_C3R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNormDiff_L1_16s_C4R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNormDiff_L1_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f* pValue, int hint);
RnxStatus rnxiNormDiff_L1_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[3], int hint);
RnxStatus rnxiNormDiff_L1_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[4], int hint);

/* rnxiNormDiff_L2: L2 norm of the difference of two images.

       norm = square root of the sum of (src1 - src2)^2

   8u in one channel, wider than 32768 pixels: the norms of strips of 32768 columns are squared and summed in double
   precision.

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     roiSize: size of the region of interest in pixels
     pValue: receives the norm of each channel
     hint: 2 rnxAlgHintAccurate: the accurate path; every other value: the fast one

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       Rnx64f norm[3];
       RnxStatus status = rnxiNormDiff_L2_8u_C3R(a, aStep, b, bStep, roi, norm); */

RnxStatus rnxiNormDiff_L2_8u_C1R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f* pValue);
RnxStatus rnxiNormDiff_L2_8u_C3R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[3]);
RnxStatus rnxiNormDiff_L2_8u_C4R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[4]);
RnxStatus rnxiNormDiff_L2_16u_C1R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNormDiff_L2_16u_C3R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNormDiff_L2_16u_C4R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNormDiff_L2_16s_C1R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNormDiff_L2_16s_C3R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNormDiff_L2_16s_C4R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNormDiff_L2_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f* pValue, int hint);
RnxStatus rnxiNormDiff_L2_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[3], int hint);
RnxStatus rnxiNormDiff_L2_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[4], int hint);

/* rnxiNormRel_Inf: Infinity norm of the difference of two images, relative to that of the second.

       norm = NormDiff_Inf(src1, src2) / Norm_Inf(src2)

   Where the norm of the second image is 0 the result is infinity, or, with a difference of norm 0, the quiet NaN with its
   sign bit set; the call then returns +2 rnxStatusWarningDivByZero, and the other channels have their quotients.

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     roiSize: size of the region of interest in pixels
     pValue: receives the norm of each channel

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       Rnx64f error;
       RnxStatus status = rnxiNormRel_Inf_8u_C1R(decoded, step, original, step, roi, &error); */

RnxStatus rnxiNormRel_Inf_8u_C1R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f* pValue);
RnxStatus rnxiNormRel_Inf_8u_C3R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[3]);
RnxStatus rnxiNormRel_Inf_8u_C4R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[4]);
RnxStatus rnxiNormRel_Inf_16u_C1R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNormRel_Inf_16u_C3R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNormRel_Inf_16u_C4R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNormRel_Inf_16s_C1R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNormRel_Inf_16s_C3R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNormRel_Inf_16s_C4R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[4]);
RnxStatus rnxiNormRel_Inf_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f* pValue);
RnxStatus rnxiNormRel_Inf_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[3]);
RnxStatus rnxiNormRel_Inf_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step,
    RnxiSize roiSize, Rnx64f pValue[4]);

/* rnxiNormRel_L1: L1 norm of the difference of two images, relative to that of the second.

       norm = NormDiff_L1(src1, src2) / Norm_L1(src2)

   Where the norm of the second image is 0 the result is infinity, or, with a difference of norm 0, the quiet NaN with its
   sign bit set; the call then returns +2 rnxStatusWarningDivByZero, and the other channels have their quotients.

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     roiSize: size of the region of interest in pixels
     pValue: receives the norm of each channel
     hint: 2 rnxAlgHintAccurate: the accurate path; every other value: the fast one

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       Rnx64f error;
       RnxStatus status = rnxiNormRel_L1_8u_C1R(decoded, step, original, step, roi, &error); */

RnxStatus rnxiNormRel_L1_8u_C1R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f* pValue);
RnxStatus rnxiNormRel_L1_8u_C3R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[3]);
RnxStatus rnxiNormRel_L1_8u_C4R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[4]);
RnxStatus rnxiNormRel_L1_16u_C1R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f* pValue);
RnxStatus rnxiNormRel_L1_16u_C3R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[3]);
RnxStatus rnxiNormRel_L1_16u_C4R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[4]);
RnxStatus rnxiNormRel_L1_16s_C1R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f* pValue);
RnxStatus rnxiNormRel_L1_16s_C3R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[3]);
RnxStatus rnxiNormRel_L1_16s_C4R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[4]);
RnxStatus rnxiNormRel_L1_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f* pValue, int hint);
RnxStatus rnxiNormRel_L1_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[3], int hint);
RnxStatus rnxiNormRel_L1_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[4], int hint);

/* rnxiNormRel_L2: L2 norm of the difference of two images, relative to that of the second.

       norm = NormDiff_L2(src1, src2) / Norm_L2(src2)

   Where the norm of the second image is 0 the result is infinity, or, with a difference of norm 0, the quiet NaN with its
   sign bit set; the call then returns +2 rnxStatusWarningDivByZero, and the other channels have their quotients.

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     roiSize: size of the region of interest in pixels
     pValue: receives the norm of each channel
     hint: 2 rnxAlgHintAccurate: the accurate path; every other value: the fast one

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadSize: ROI width or height below 1
     rnxStatusBadStep: a step below 1

   Example
       Rnx64f error;
       RnxStatus status = rnxiNormRel_L2_8u_C1R(decoded, step, original, step, roi, &error); */

RnxStatus rnxiNormRel_L2_8u_C1R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f* pValue);
RnxStatus rnxiNormRel_L2_8u_C3R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[3]);
RnxStatus rnxiNormRel_L2_8u_C4R(const Rnx8u* pSrc1, int src1Step, const Rnx8u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[4]);
RnxStatus rnxiNormRel_L2_16u_C1R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f* pValue);
RnxStatus rnxiNormRel_L2_16u_C3R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[3]);
RnxStatus rnxiNormRel_L2_16u_C4R(const Rnx16u* pSrc1, int src1Step, const Rnx16u* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[4]);
RnxStatus rnxiNormRel_L2_16s_C1R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f* pValue);
RnxStatus rnxiNormRel_L2_16s_C3R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[3]);
RnxStatus rnxiNormRel_L2_16s_C4R(const Rnx16s* pSrc1, int src1Step, const Rnx16s* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[4]);
RnxStatus rnxiNormRel_L2_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f* pValue, int hint);
RnxStatus rnxiNormRel_L2_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[3], int hint);
RnxStatus rnxiNormRel_L2_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, RnxiSize roiSize,
    Rnx64f pValue[4], int hint);

#ifdef __cplusplus
}
#endif

#endif
