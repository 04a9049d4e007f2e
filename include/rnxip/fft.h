/* Two-dimensional Fourier transforms.
   Written by tools/apigen.py from the table of exports in api/: change it there. */
#ifndef RNXIP_FFT_H
#define RNXIP_FFT_H

#include "rnxip/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Two-dimensional Fourier transforms
   ==================================

   With W x H elements x(m, n), m along the row, the forward transform is

       F(k, l) = sum over m, n of x(m, n) * exp(-2 pi i (k m / W + l n / H))

   and the inverse has the positive exponent. The names with FFT are for sides that are powers of two, given by their
   orders (W = 2^orderX, H = 2^orderY); those with DFT take any size from 1 x 1. Every length is transformed in a time that
   grows as N log N.

   Use: ask GetSize for three sizes, provide a block for the spec and, where the sizes are not 0, one for Init and one for
   the transforms (any alignment), and let Init fill the spec. The Init block may be given back then. The spec is only read
   by the transforms, which may run at once on one spec with work buffers of their own. It holds no address: it may be
   copied to another block of the same alignment.

   A transform's error, relative to its result and in the mean square, is at most 0.5e-7 * sqrt(log2(W H)) + 1e-7; that of
   a forward and an inverse transform one after the other is no larger.

   The work buffer never takes more than two images and two rows of the kind that is transformed, alignment included, and
   nothing where 16 KB do: those come from the stack. Channels share it.

   Each axis of N elements applies a factor of its own:

       flag                       forward      inverse
       1 rnxFftDivideForward      1 / N        1
       2 rnxFftDivideInverse      1            1 / N
       4 rnxFftDivideBySqrt       1 / sqrt N   1 / sqrt N
       8 rnxFftDivideNone         1            1

   Spectra of real images are packed into as many real elements as the image has. With R(k, l) and I(k, l) the real and
   imaginary part of F(k, l):

       W even:                                                          H even, row
       R(0,0)      R(1,0)    I(1,0)    ...  I(W/2-1,0)    R(W/2,0)      0
       R(0,1)      R(1,1)    I(1,1)    ...  I(W/2-1,1)    R(W/2,1)      1
       I(0,1)      R(1,2)    I(1,2)    ...  I(W/2-1,2)    I(W/2,1)      2
       ...         ...       ...            ...           ...           ...
       I(0,H/2-1)  R(1,H-2)  I(1,H-2)  ...  I(W/2-1,H-2)  I(W/2,H/2-1)  H-2
       R(0,H/2)    R(1,H-1)  I(1,H-1)  ...  I(W/2-1,H-1)  R(W/2,H/2)    H-1

   An odd W has no last column of this kind: row r ends with I((W-1)/2, r). For an odd H the first and last column end with
   I(0,(H-1)/2) and I(W/2,(H-1)/2).

   Channels are transformed and multiplied as planes of their own. AC4 works on three and never changes the destination's
   fourth element. Source and destination may be the same image; they may not overlap in any other way. */

/* rnxiFFTGetSize_C: Sizes of the blocks that a complex power-of-two transform needs.

   Nothing is written when a pointer is null.

   Arguments
     orderX, orderY: base-2 logarithms of width and height, 0 to 28
     flag: scaling: 1, 2, 4 or 8
     hint: any value; it is kept in the spec and changes no result
     pSpecSize, pSpecBufferSize, pBufferSize: receive the bytes of the spec, of the memory for Init, and of the
         work buffer; 0 where none is needed

   Checks, in this order
     rnxStatusNullPointer: a result pointer is null; other errors set all three results to 0
     rnxStatusBadFftOrder: orderX below 0 or above 28; then the flag is tested, then orderY
     rnxStatusBadFftFlag: flag not 1, 2, 4 or 8
     rnxStatusSizeOverflow: a size passes 0x7fffffff bytes

   Example
       int specSize, initSize, workSize;
       rnxiFFTGetSize_C_32fc(9, 8, rnxFftDivideInverse, 0, &specSize, &initSize, &workSize);   // 512 x 256
       RnxiFFTSpec* spec = malloc(specSize);
       Rnx8u* init = initSize > 0 ? malloc(initSize) : NULL;
       Rnx8u* work = workSize > 0 ? malloc(workSize) : NULL;
       rnxiFFTInit_C_32fc(9, 8, rnxFftDivideInverse, 0, spec, init);
       free(init);
       rnxiFFTFwd_CToC_32fc_C1R(image, imageStep, spectrum, spectrumStep, spec, work);
       rnxiFFTInv_CToC_32fc_C1R(spectrum, spectrumStep, image, imageStep, spec, work); */

RnxStatus rnxiFFTGetSize_C_32fc(int orderX, int orderY, int flag, int hint, int* pSpecSize, int* pSpecBufferSize,
    int* pBufferSize);

/* rnxiFFTGetSize_R: Sizes of the blocks that a real power-of-two transform needs.

   Nothing is written when a pointer is null.

   Arguments
     orderX, orderY: base-2 logarithms of width and height, 0 to 28
     flag: scaling: 1, 2, 4 or 8
     hint: any value; it is kept in the spec and changes no result
     pSpecSize, pSpecBufferSize, pBufferSize: receive the bytes of the spec, of the memory for Init, and of the
         work buffer; 0 where none is needed

   Checks, in this order
     rnxStatusNullPointer: a result pointer is null; other errors set all three results to 0
     rnxStatusBadFftOrder: orderX below 0 or above 28; then the flag is tested, then orderY
     rnxStatusBadFftFlag: flag not 1, 2, 4 or 8
     rnxStatusSizeOverflow: a size passes 0x7fffffff bytes

   Example
       int specSize, initSize, workSize;
       const int orderX = 9, orderY = 8;   // 512 x 256
       rnxiFFTGetSize_R_32f(orderX, orderY, rnxFftDivideInverse, 0, &specSize, &initSize, &workSize);
       RnxiFFTSpec* spec = malloc(specSize);
       Rnx8u* init = initSize > 0 ? malloc(initSize) : NULL;
       Rnx8u* work = workSize > 0 ? malloc(workSize) : NULL;
       rnxiFFTInit_R_32f(orderX, orderY, rnxFftDivideInverse, 0, spec, init);
       free(init);
       rnxiFFTFwd_RToPack_32f_C1R(image, imageStep, spectrum, spectrumStep, spec, work);
       rnxiFFTInv_PackToR_32f_C1R(spectrum, spectrumStep, image, imageStep, spec, work); */

RnxStatus rnxiFFTGetSize_R_32f(int orderX, int orderY, int flag, int hint, int* pSpecSize, int* pSpecBufferSize,
    int* pBufferSize);

/* rnxiFFTInit_C: Plans complex power-of-two transforms.

   Arguments
     orderX, orderY: base-2 logarithms of width and height, 0 to 28
     flag: scaling: 1, 2, 4 or 8
     hint: any value; it is kept in the spec and changes no result
     pSpec: block of the size that GetSize reports, to be filled
     pMemInit: memory of the size that GetSize reports; may be null where that is 0

   Checks, in this order
     rnxStatusBadFftOrder: an order of 31 or more
     rnxStatusNullPointer: pSpec is null
     rnxStatusBadFftOrder: orderX below 0 or above 28; then the flag is tested, then orderY
     rnxStatusBadFftFlag: flag not 1, 2, 4 or 8
     rnxStatusSizeOverflow: a size passes 0x7fffffff bytes
     rnxStatusNullPointer: pMemInit is null and its size is not 0

   Example: that of rnxiFFTGetSize_C */

RnxStatus rnxiFFTInit_C_32fc(int orderX, int orderY, int flag, int hint, RnxiFFTSpec* pSpec, Rnx8u* pMemInit);

/* rnxiFFTInit_R: Plans real power-of-two transforms.

   Arguments
     orderX, orderY: base-2 logarithms of width and height, 0 to 28
     flag: scaling: 1, 2, 4 or 8
     hint: any value; it is kept in the spec and changes no result
     pSpec: block of the size that GetSize reports, to be filled
     pMemInit: memory of the size that GetSize reports; may be null where that is 0

   Checks, in this order
     rnxStatusBadFftOrder: an order of 31 or more
     rnxStatusNullPointer: pSpec is null
     rnxStatusBadFftOrder: orderX below 0 or above 28; then the flag is tested, then orderY
     rnxStatusBadFftFlag: flag not 1, 2, 4 or 8
     rnxStatusSizeOverflow: a size passes 0x7fffffff bytes
     rnxStatusNullPointer: pMemInit is null and its size is not 0

   Example: that of rnxiFFTGetSize_R */

RnxStatus rnxiFFTInit_R_32f(int orderX, int orderY, int flag, int hint, RnxiFFTSpec* pSpec, Rnx8u* pMemInit);

/* rnxiDFTGetSize_C: Sizes of the blocks that a complex transform of any size needs.

   Nothing is written when a pointer is null.

   Arguments
     roiSize: width and height of the images to transform
     flag: scaling: 1, 2, 4 or 8
     hint: any value; it is kept in the spec and changes no result
     pSpecSize, pSpecBufferSize, pBufferSize: receive the bytes of the spec, of the memory for Init, and of the
         work buffer; 0 where none is needed

   Checks, in this order
     rnxStatusNullPointer: a result pointer is null; other errors set all three results to 0
     rnxStatusBadSize: width or height below 1
     rnxStatusBadFftFlag: flag not 1, 2, 4 or 8
     rnxStatusSizeOverflow: a size passes 0x7fffffff bytes

   Example
       int specSize, initSize, workSize;
       RnxiSize size = {640, 480};
       rnxiDFTGetSize_C_32fc(size, rnxFftDivideInverse, 0, &specSize, &initSize, &workSize);
       RnxiDFTSpec* spec = malloc(specSize);
       Rnx8u* init = initSize > 0 ? malloc(initSize) : NULL;
       Rnx8u* work = workSize > 0 ? malloc(workSize) : NULL;
       rnxiDFTInit_C_32fc(size, rnxFftDivideInverse, 0, spec, init);
       free(init);
       rnxiDFTFwd_CToC_32fc_C1R(image, imageStep, spectrum, spectrumStep, spec, work);
       rnxiDFTInv_CToC_32fc_C1R(spectrum, spectrumStep, image, imageStep, spec, work); */

RnxStatus rnxiDFTGetSize_C_32fc(RnxiSize roiSize, int flag, int hint, int* pSpecSize, int* pSpecBufferSize,
    int* pBufferSize);

/* rnxiDFTGetSize_R: Sizes of the blocks that a real transform of any size needs.

   Nothing is written when a pointer is null.

   Arguments
     roiSize: width and height of the images to transform
     flag: scaling: 1, 2, 4 or 8
     hint: any value; it is kept in the spec and changes no result
     pSpecSize, pSpecBufferSize, pBufferSize: receive the bytes of the spec, of the memory for Init, and of the
         work buffer; 0 where none is needed

   Checks, in this order
     rnxStatusNullPointer: a result pointer is null; other errors set all three results to 0
     rnxStatusBadSize: width or height below 1
     rnxStatusBadFftFlag: flag not 1, 2, 4 or 8
     rnxStatusSizeOverflow: a size passes 0x7fffffff bytes

   Example
       int specSize, initSize, workSize;
       RnxiSize size = {640, 480};
       rnxiDFTGetSize_R_32f(size, rnxFftDivideInverse, 0, &specSize, &initSize, &workSize);
       RnxiDFTSpec* spec = malloc(specSize);
       Rnx8u* init = initSize > 0 ? malloc(initSize) : NULL;
       Rnx8u* work = workSize > 0 ? malloc(workSize) : NULL;
       rnxiDFTInit_R_32f(size, rnxFftDivideInverse, 0, spec, init);
       free(init);
       rnxiDFTFwd_RToPack_32f_C1R(image, imageStep, spectrum, spectrumStep, spec, work);
       rnxiDFTInv_PackToR_32f_C1R(spectrum, spectrumStep, image, imageStep, spec, work); */

RnxStatus rnxiDFTGetSize_R_32f(RnxiSize roiSize, int flag, int hint, int* pSpecSize, int* pSpecBufferSize,
    int* pBufferSize);

/* rnxiDFTInit_C: Plans complex transforms of any size.

   Arguments
     roiSize: width and height of the images to transform
     flag: scaling: 1, 2, 4 or 8
     hint: any value; it is kept in the spec and changes no result
     pSpec: block of the size that GetSize reports, to be filled
     pMemInit: memory of the size that GetSize reports; may be null where that is 0

   Checks, in this order
     rnxStatusNullPointer: pSpec is null
     rnxStatusBadSize: width or height below 1
     rnxStatusBadFftFlag: flag not 1, 2, 4 or 8
     rnxStatusSizeOverflow: a size passes 0x7fffffff bytes
     rnxStatusNullPointer: pMemInit is null and its size is not 0

   Example: that of rnxiDFTGetSize_C */

RnxStatus rnxiDFTInit_C_32fc(RnxiSize roiSize, int flag, int hint, RnxiDFTSpec* pSpec, Rnx8u* pMemInit);

/* rnxiDFTInit_R: Plans real transforms of any size.

   Arguments
     roiSize: width and height of the images to transform
     flag: scaling: 1, 2, 4 or 8
     hint: any value; it is kept in the spec and changes no result
     pSpec: block of the size that GetSize reports, to be filled
     pMemInit: memory of the size that GetSize reports; may be null where that is 0

   Checks, in this order
     rnxStatusNullPointer: pSpec is null
     rnxStatusBadSize: width or height below 1
     rnxStatusBadFftFlag: flag not 1, 2, 4 or 8
     rnxStatusSizeOverflow: a size passes 0x7fffffff bytes
     rnxStatusNullPointer: pMemInit is null and its size is not 0

   Example: that of rnxiDFTGetSize_R */

RnxStatus rnxiDFTInit_R_32f(RnxiSize roiSize, int flag, int hint, RnxiDFTSpec* pSpec, Rnx8u* pMemInit);

/* rnxiFFTFwd_CToC: Forward transform of a complex image of power-of-two sides.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     pSpec: filled by the Init function of the same kind, complex or real
     pBuffer: work memory of the size that GetSize reports; may be null where that is 0
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: pSpec is null
     rnxStatusBadContext: pSpec is not a spec of this kind
     rnxStatusNullPointer: an image pointer is null
     rnxStatusBadStep: a step below 1
     rnxStatusNullPointer: pBuffer is null and its size is not 0

   Example: that of rnxiFFTGetSize_C */

RnxStatus rnxiFFTFwd_CToC_32fc_C1R(const Rnx32fc* pSrc, int srcStep, Rnx32fc* pDst, int dstStep,
    const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTFwd_CToC_32fc_C1IR(Rnx32fc* pSrcDst, int srcDstStep, const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);

/* rnxiFFTInv_CToC: Inverse transform of a complex image of power-of-two sides.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     pSpec: filled by the Init function of the same kind, complex or real
     pBuffer: work memory of the size that GetSize reports; may be null where that is 0
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: pSpec is null
     rnxStatusBadContext: pSpec is not a spec of this kind
     rnxStatusNullPointer: an image pointer is null
     rnxStatusBadStep: a step below 1
     rnxStatusNullPointer: pBuffer is null and its size is not 0

   Example: that of rnxiFFTGetSize_C */

RnxStatus rnxiFFTInv_CToC_32fc_C1R(const Rnx32fc* pSrc, int srcStep, Rnx32fc* pDst, int dstStep,
    const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTInv_CToC_32fc_C1IR(Rnx32fc* pSrcDst, int srcDstStep, const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);

/* rnxiFFTFwd_RToPack: Forward transform of a real image to a packed spectrum, of power-of-two sides.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     pSpec: filled by the Init function of the same kind, complex or real
     pBuffer: work memory of the size that GetSize reports; may be null where that is 0
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: pSpec is null
     rnxStatusBadContext: pSpec is not a spec of this kind
     rnxStatusNullPointer: an image pointer is null
     rnxStatusBadStep: a step below 1
     rnxStatusNullPointer: pBuffer is null and its size is not 0

   Example: that of rnxiFFTGetSize_R */

RnxStatus rnxiFFTFwd_RToPack_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTFwd_RToPack_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTFwd_RToPack_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTFwd_RToPack_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTFwd_RToPack_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTFwd_RToPack_32f_C4IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTFwd_RToPack_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTFwd_RToPack_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);

/* rnxiFFTInv_PackToR: Inverse transform of a packed spectrum to a real image, of power-of-two sides.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     pSpec: filled by the Init function of the same kind, complex or real
     pBuffer: work memory of the size that GetSize reports; may be null where that is 0
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: pSpec is null
     rnxStatusBadContext: pSpec is not a spec of this kind
     rnxStatusNullPointer: an image pointer is null
     rnxStatusBadStep: a step below 1
     rnxStatusNullPointer: pBuffer is null and its size is not 0

   Example: that of rnxiFFTGetSize_R */

RnxStatus rnxiFFTInv_PackToR_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTInv_PackToR_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTInv_PackToR_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTInv_PackToR_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTInv_PackToR_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTInv_PackToR_32f_C4IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTInv_PackToR_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiFFTInv_PackToR_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiFFTSpec* pSpec, Rnx8u* pBuffer);

/* rnxiDFTFwd_CToC: Forward transform of a complex image of any size.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     pSpec: filled by the Init function of the same kind, complex or real
     pBuffer: work memory of the size that GetSize reports; may be null where that is 0
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: pSpec is null
     rnxStatusBadContext: pSpec is not a spec of this kind
     rnxStatusNullPointer: an image pointer is null
     rnxStatusBadStep: a step below 1
     rnxStatusNullPointer: pBuffer is null and its size is not 0

   Example: that of rnxiDFTGetSize_C */

RnxStatus rnxiDFTFwd_CToC_32fc_C1R(const Rnx32fc* pSrc, int srcStep, Rnx32fc* pDst, int dstStep,
    const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTFwd_CToC_32fc_C1IR(Rnx32fc* pSrcDst, int srcDstStep, const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);

/* rnxiDFTInv_CToC: Inverse transform of a complex image of any size.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     pSpec: filled by the Init function of the same kind, complex or real
     pBuffer: work memory of the size that GetSize reports; may be null where that is 0
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: pSpec is null
     rnxStatusBadContext: pSpec is not a spec of this kind
     rnxStatusNullPointer: an image pointer is null
     rnxStatusBadStep: a step below 1
     rnxStatusNullPointer: pBuffer is null and its size is not 0

   Example: that of rnxiDFTGetSize_C */

RnxStatus rnxiDFTInv_CToC_32fc_C1R(const Rnx32fc* pSrc, int srcStep, Rnx32fc* pDst, int dstStep,
    const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTInv_CToC_32fc_C1IR(Rnx32fc* pSrcDst, int srcDstStep, const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);

/* rnxiDFTFwd_RToPack: Forward transform of a real image to a packed spectrum, of any size.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     pSpec: filled by the Init function of the same kind, complex or real
     pBuffer: work memory of the size that GetSize reports; may be null where that is 0
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: pSpec is null
     rnxStatusBadContext: pSpec is not a spec of this kind
     rnxStatusNullPointer: an image pointer is null
     rnxStatusBadStep: a step below 1
     rnxStatusNullPointer: pBuffer is null and its size is not 0

   Example: that of rnxiDFTGetSize_R, rnxiMulPack */

RnxStatus rnxiDFTFwd_RToPack_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTFwd_RToPack_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTFwd_RToPack_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTFwd_RToPack_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTFwd_RToPack_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTFwd_RToPack_32f_C4IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTFwd_RToPack_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTFwd_RToPack_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);

/* rnxiDFTInv_PackToR: Inverse transform of a packed spectrum to a real image, of any size.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     pSpec: filled by the Init function of the same kind, complex or real
     pBuffer: work memory of the size that GetSize reports; may be null where that is 0
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: pSpec is null
     rnxStatusBadContext: pSpec is not a spec of this kind
     rnxStatusNullPointer: an image pointer is null
     rnxStatusBadStep: a step below 1
     rnxStatusNullPointer: pBuffer is null and its size is not 0

   Example: that of rnxiDFTGetSize_R, rnxiMulPack, rnxiMulPackConj */

RnxStatus rnxiDFTInv_PackToR_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTInv_PackToR_32f_C1IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTInv_PackToR_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTInv_PackToR_32f_C3IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTInv_PackToR_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTInv_PackToR_32f_C4IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTInv_PackToR_32f_AC4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep,
    const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiDFTInv_PackToR_32f_AC4IR(Rnx32f* pSrcDst, int srcDstStep, const RnxiDFTSpec* pSpec, Rnx8u* pBuffer);

/* rnxiMulPack: Product of two packed spectra, number by number.

       dst = src1 * src2        (in place: srcDst = src * srcDst)
       re = re1 * re2 - im1 * im2,   im = re1 * im2 + im1 * re2;   real elements: the product

   Multiplying spectra is circular convolution of the images. Any size is accepted. The destination may be one of the
   sources; images may not overlap in any other way.

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadStep: a step below 1
     rnxStatusBadSize: ROI width or height below 1

   Example
       // convolve the image with the kernel image, both W x H
       rnxiDFTFwd_RToPack_32f_C1R(image, step, spectrum, step, spec, work);
       rnxiDFTFwd_RToPack_32f_C1IR(kernel, step, spec, work);
       rnxiMulPack_32f_C1IR(kernel, step, spectrum, step, roi);
       rnxiDFTInv_PackToR_32f_C1R(spectrum, step, image, step, spec, work); */

RnxStatus rnxiMulPack_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiMulPack_32f_C1IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMulPack_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiMulPack_32f_C3IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMulPack_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiMulPack_32f_C4IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMulPack_32f_AC4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiMulPack_32f_AC4IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);

/* rnxiMulPackConj: Product of a packed spectrum and the conjugate of another, number by number.

       dst = src1 * conj(src2)        (in place: srcDst = src * conj(srcDst))
       re = re1 * re2 + im1 * im2,   im = im1 * re2 - re1 * im2;   real elements: the product

   Multiplying by a conjugate is circular correlation of the images. Any size is accepted. Where the first source is the
   destination (same pointer and step) the call is the in-place form with the second source as pSrc: the result is then
   src2 * conj(src1), the conjugate of what a destination of its own would receive. Images may not overlap in any other
   way.

   Arguments
     pSrc1, src1Step: first source image and its step
     pSrc2, src2Step: second source image and its step
     pDst, dstStep: destination image and its step
     roiSize: size of the region of interest in pixels
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pSrcDst, srcDstStep: image that is read and receives the result, and its step

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (images and constant arrays are tested together)
     rnxStatusBadStep: a step below 1
     rnxStatusBadSize: ROI width or height below 1

   Example
       // surface of the correlation of a scene with a patch; the peak is the patch's position
       rnxiMulPackConj_32f_C1R(scene, step, patch, step, surface, step, roi);
       rnxiDFTInv_PackToR_32f_C1IR(surface, step, spec, work); */

RnxStatus rnxiMulPackConj_32f_C1R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiMulPackConj_32f_C1IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMulPackConj_32f_C3R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiMulPackConj_32f_C3IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMulPackConj_32f_C4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiMulPackConj_32f_C4IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);
RnxStatus rnxiMulPackConj_32f_AC4R(const Rnx32f* pSrc1, int src1Step, const Rnx32f* pSrc2, int src2Step, Rnx32f* pDst,
    int dstStep, RnxiSize roiSize);
RnxStatus rnxiMulPackConj_32f_AC4IR(const Rnx32f* pSrc, int srcStep, Rnx32f* pSrcDst, int srcDstStep, RnxiSize roiSize);

#ifdef __cplusplus
}
#endif

#endif
