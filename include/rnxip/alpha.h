/* Alpha premultiplication.
   Written by tools/apigen.py from the table of exports in api/: change it there. */
#ifndef RNXIP_ALPHA_H
#define RNXIP_ALPHA_H

#include "rnxip/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Alpha premultiplication
   =======================

   Elements stand for fractions of the full range: for 8u, 255 is 1.0; for 16u, 65535 is 1.0. The product of two fractions
   is rounded to the nearest one that can be represented, exactly for every pair of values:

       8u:   (a * v + 127) / 255        16u:  (a * v + 32767) / 65535        (integer divisions; no product is a tie)

   AC4 has four channels in pixel order, AP4 four planes given as an array of four pointers and one step; the fourth is
   alpha. Any step is accepted. Images may overlap in any way: the result is then that of a loop over the rows from the
   top and over the elements of a row from the left, over whole pixels of AC4, and of AP4 one plane after the other. */

/* rnxiAlphaPremul: Multiplies the colours of each pixel by the pixel's own alpha.

       dst colour = src colour * src alpha        dst alpha = src alpha

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     pSrcDst, srcDstStep: image that is read and receives the result, and its step
     pSrc, srcStep: source planes: three colours and alpha; one step for all
     pDst, dstStep: destination planes and their step
     pSrcDst, srcDstStep: planes that are read and receive the result, and their step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null; of the AP4 forms also each of the four plane pointers
     rnxStatusBadSize: ROI width or height below 1

   Example
       RnxStatus status = rnxiAlphaPremul_8u_AC4IR(pixels, step, roi); */

RnxStatus rnxiAlphaPremul_8u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremul_8u_AC4IR(Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremul_16u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremul_16u_AC4IR(Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremul_8u_AP4R(const Rnx8u* const pSrc[4], int srcStep, Rnx8u* const pDst[4], int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAlphaPremul_8u_AP4IR(Rnx8u* const pSrcDst[4], int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremul_16u_AP4R(const Rnx16u* const pSrc[4], int srcStep, Rnx16u* const pDst[4], int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAlphaPremul_16u_AP4IR(Rnx16u* const pSrcDst[4], int srcDstStep, RnxiSize roiSize);

/* rnxiAlphaPremulC: Multiplies an image by one constant alpha.

       C1, C3, C4:  dst = src * alpha, in every channel
       AC4, AP4:    dst colour = src colour * alpha        dst alpha = alpha

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     alpha: the constant alpha
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     pSrcDst, srcDstStep: image that is read and receives the result, and its step
     pSrc, srcStep: source planes: three colours and alpha; one step for all
     pDst, dstStep: destination planes and their step
     pSrcDst, srcDstStep: planes that are read and receive the result, and their step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null; of the AP4 forms also each of the four plane pointers
     rnxStatusBadSize: ROI width or height below 1

   Example
       // at half strength
       RnxStatus status = rnxiAlphaPremulC_8u_AC4R(src, srcStep, 128, dst, dstStep, roi); */

RnxStatus rnxiAlphaPremulC_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u alpha, Rnx8u* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_8u_C1IR(Rnx8u alpha, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u alpha, Rnx8u* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_8u_C3IR(Rnx8u alpha, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_8u_C4R(const Rnx8u* pSrc, int srcStep, Rnx8u alpha, Rnx8u* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_8u_C4IR(Rnx8u alpha, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_8u_AC4R(const Rnx8u* pSrc, int srcStep, Rnx8u alpha, Rnx8u* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_8u_AC4IR(Rnx8u alpha, Rnx8u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u alpha, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_16u_C1IR(Rnx16u alpha, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u alpha, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_16u_C3IR(Rnx16u alpha, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_16u_C4R(const Rnx16u* pSrc, int srcStep, Rnx16u alpha, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_16u_C4IR(Rnx16u alpha, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_16u_AC4R(const Rnx16u* pSrc, int srcStep, Rnx16u alpha, Rnx16u* pDst, int dstStep,
    RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_16u_AC4IR(Rnx16u alpha, Rnx16u* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_8u_AP4R(const Rnx8u* const pSrc[4], int srcStep, Rnx8u alpha, Rnx8u* const pDst[4],
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_8u_AP4IR(Rnx8u alpha, Rnx8u* const pSrcDst[4], int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_16u_AP4R(const Rnx16u* const pSrc[4], int srcStep, Rnx16u alpha, Rnx16u* const pDst[4],
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiAlphaPremulC_16u_AP4IR(Rnx16u alpha, Rnx16u* const pSrcDst[4], int srcDstStep, RnxiSize roiSize);

#ifdef __cplusplus
}
#endif

#endif
