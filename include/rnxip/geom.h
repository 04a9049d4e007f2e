/* Resize.
   Written by tools/apigen.py from the table of exports in api/: change it there. */
#ifndef RNXIP_GEOM_H
#define RNXIP_GEOM_H

#include "rnxip/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Resize
   ======

   A resize maps a whole source image onto a whole destination image of another size. What does not depend on the pixels
   is computed once, into a spec; then the destination is made in tiles, one after the other or by several threads:

       rnxiResizeGetSize         sizes of the spec and of the init buffer
       rnxiResize...Init         fills the spec for one kind of interpolation and one pair of image sizes
       rnxiResizeGetBufferSize   size of the work buffer for the largest tile; each thread needs one of its own
       rnxiResizeGetSrcOffset    for each tile: where its source begins
       rnxiResizeNearest/Linear  for each tile: the work

   Of a tile at dstOffset in the whole destination, pDst is the first pixel and pSrc the source pixel that
   rnxiResizeGetSrcOffset names for the same offset. Positions outside the whole source are resolved by the border type;
   positions outside the tile's part of the source are read from memory, where the neighbouring pixels lie. One tile that is
   the whole destination has offset (0, 0) and the whole images. A tile is cut to the destination: silently where offset and
   size together run past the edge, with +48 rnxStatusWarningSizeTruncated where the size alone exceeds the destination.

   With S and D the source and destination length of a direction, position i of the destination lies at

       nearest   index = trunc((i + 0.5) * S / D - 1e-10)
       linear    x = (i + 0.5) * S / D - 0.5;  index = floor(x), fraction = x - index

   in double precision, and S / D rounded once. A spec and a buffer may have any address; a spec is read only after Init and
   may serve any number of threads. Source, destination, spec and buffer may not overlap. Nothing is allocated.

   The functions that end in _L take sizes and offsets of 64 bits, up to 33554431, and specs of their own. Sizes of 0 are
   answered by +1 rnxStatusWarningNoOperation, and nothing is written. */

/* rnxiResizeGetSize: Sizes of the spec and of the init buffer of a resize.

       with A(n) = n rounded up to a multiple of 32, for destination width W and height H:
       nearest                  4 * (A(W) + A(H)) + 400
       linear                   8 * (A(W) + A(H)) + 400
       linear 64f              12 * (A(W) + A(H)) + 384
       any other kind           (4 + 4 * tx) * A(W) + (4 + 4 * ty) * A(H) + 400
       init buffer              64; any other kind: 8 * A(max(tx, ty)) + 64

   tx and ty are the source pixels that a destination pixel may need in a direction with source length S and destination
   length D: for cubic 4, for Lanczos 6 (three lobes), with antialiasing and S > D ceil(t * S / D), where t is 2 for linear,
   4 for cubic and 6 for Lanczos, and for super-sampling ceil(S / D) + 1. Nearest and super-sampling have no antialiasing:
   the sizes are those without it and the status is +46 rnxStatusWarningNoAntialiasing.

   The _L function makes its tests in the order null, zero, negative, interpolation, type, 64f with antialiasing, large,
   then interpolation 0 and the source size.

   Arguments
     srcSize: size of the whole source image
     dstSize: size of the whole destination image
     interpolation: rnxNearest 1, rnxLinear 2, rnxCubic 6, rnxSuper 8 or rnxLanczos 16
     antialiasing: not 0: with antialiasing
     pSpecSize, pInitBufSize: receive the sizes of spec and init buffer in bytes
     dataType: rnx8u 1, rnx16u 5, rnx16s 7, rnx32f 13 or rnx64f 19

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (all are tested together)
     rnxStatusWarningNoOperation: a width or height is 0; nothing is written
     rnxStatusBadSize: a width or height is negative
     rnxStatusBadInterpolation: interpolation not 0, 1, 2, 6, 8 or 16
     rnxStatusUnsupportedMode: interpolation 0; for 64f also every kind other than linear, and antialiasing
     rnxStatusBadSize: source too small: below 2 x 2 for linear, below 4 x 4 for cubic and Lanczos, smaller than
         the destination in a direction for super-sampling
     rnxStatusSizeOverflow: the spec would have 0x7fffffff bytes or more; _L: a width or height above 33554431 (the
         size queries then write 0)
     rnxStatusBadDataType: _L: dataType not 1, 5, 7 or 13, nor 19 with linear interpolation

   Example: that of rnxiResizeLinearInit, rnxiResizeNearest */

RnxStatus rnxiResizeGetSize_8u(RnxiSize srcSize, RnxiSize dstSize, int interpolation, Rnx32u antialiasing,
    int* pSpecSize, int* pInitBufSize);
RnxStatus rnxiResizeGetSize_16u(RnxiSize srcSize, RnxiSize dstSize, int interpolation, Rnx32u antialiasing,
    int* pSpecSize, int* pInitBufSize);
RnxStatus rnxiResizeGetSize_16s(RnxiSize srcSize, RnxiSize dstSize, int interpolation, Rnx32u antialiasing,
    int* pSpecSize, int* pInitBufSize);
RnxStatus rnxiResizeGetSize_32f(RnxiSize srcSize, RnxiSize dstSize, int interpolation, Rnx32u antialiasing,
    int* pSpecSize, int* pInitBufSize);
RnxStatus rnxiResizeGetSize_64f(RnxiSize srcSize, RnxiSize dstSize, int interpolation, Rnx32u antialiasing,
    int* pSpecSize, int* pInitBufSize);
RnxStatus rnxiResizeGetSize_L(const RnxiSizeL* srcSize, const RnxiSizeL* dstSize, int dataType, int interpolation,
    Rnx32u antialiasing, Rnx64s* pSpecSize, Rnx64s* pInitBufSize);

/* rnxiResizeNearestInit: Fills a spec for nearest interpolation.

   Arguments
     srcSize: size of the whole source image
     dstSize: size of the whole destination image
     pSpec: the spec to be filled: a block of at least the reported size
     dataType: rnx8u 1, rnx16u 5, rnx16s 7, rnx32f 13 or rnx64f 19

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (all are tested together)
     rnxStatusWarningNoOperation: a width or height is 0; nothing is written
     rnxStatusBadSize: a width or height is negative
     rnxStatusSizeOverflow: the spec would have 0x7fffffff bytes or more; _L: a width or height above 33554431 (the
         size queries then write 0)
     rnxStatusBadDataType: _L: dataType not 1, 5, 7 or 13, nor 19 with linear interpolation

   Example: that of rnxiResizeNearest */

RnxStatus rnxiResizeNearestInit_8u(RnxiSize srcSize, RnxiSize dstSize, RnxiResizeSpec* pSpec);
RnxStatus rnxiResizeNearestInit_16u(RnxiSize srcSize, RnxiSize dstSize, RnxiResizeSpec* pSpec);
RnxStatus rnxiResizeNearestInit_16s(RnxiSize srcSize, RnxiSize dstSize, RnxiResizeSpec* pSpec);
RnxStatus rnxiResizeNearestInit_32f(RnxiSize srcSize, RnxiSize dstSize, RnxiResizeSpec* pSpec);
RnxStatus rnxiResizeNearestInit_L(const RnxiSizeL* srcSize, const RnxiSizeL* dstSize, int dataType,
    RnxiResizeSpec* pSpec);

/* rnxiResizeLinearInit: Fills a spec for linear interpolation.

   The weights of 8u are w = trunc(fraction * 16384 + 1e-7), those of 16u, 16s and 32f the fraction in single precision,
   those of 64f in double precision: a spec serves the types of its Init function only. 16u, 16s and 32f share specs.

   Arguments
     srcSize: size of the whole source image
     dstSize: size of the whole destination image
     pSpec: the spec to be filled: a block of at least the reported size
     dataType: rnx8u 1, rnx16u 5, rnx16s 7, rnx32f 13 or rnx64f 19

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (all are tested together)
     rnxStatusWarningNoOperation: a width or height is 0; nothing is written
     rnxStatusBadSize: a width or height is negative
     rnxStatusBadSize: source width or height below 2
     rnxStatusSizeOverflow: the spec would have 0x7fffffff bytes or more; _L: a width or height above 33554431 (the
         size queries then write 0)
     rnxStatusBadDataType: _L: dataType not 1, 5, 7 or 13, nor 19 with linear interpolation

   Example
       const RnxiSize from = {640, 480}, to = {320, 240};
       int specSize, initSize;
       rnxiResizeGetSize_8u(from, to, rnxLinear, 0, &specSize, &initSize);
       RnxiResizeSpec* spec = (RnxiResizeSpec*)malloc(specSize);
       RnxStatus status = rnxiResizeLinearInit_8u(from, to, spec); */

RnxStatus rnxiResizeLinearInit_8u(RnxiSize srcSize, RnxiSize dstSize, RnxiResizeSpec* pSpec);
RnxStatus rnxiResizeLinearInit_8u_L(const RnxiSizeL* srcSize, const RnxiSizeL* dstSize, RnxiResizeSpec* pSpec);
RnxStatus rnxiResizeLinearInit_16u(RnxiSize srcSize, RnxiSize dstSize, RnxiResizeSpec* pSpec);
RnxStatus rnxiResizeLinearInit_16s(RnxiSize srcSize, RnxiSize dstSize, RnxiResizeSpec* pSpec);
RnxStatus rnxiResizeLinearInit_32f(RnxiSize srcSize, RnxiSize dstSize, RnxiResizeSpec* pSpec);
RnxStatus rnxiResizeLinearInit_64f(RnxiSize srcSize, RnxiSize dstSize, RnxiResizeSpec* pSpec);
RnxStatus rnxiResizeLinearInit_L(const RnxiSizeL* srcSize, const RnxiSizeL* dstSize, int dataType,
    RnxiResizeSpec* pSpec);

/* rnxiResizeGetBufferSize: Size of the work buffer for tiles of at most the given size.

       with A(n) = n rounded up to a multiple of 32, w and h the tile cut to the destination, c channels:
       nearest          A(4 * h) + A(4 * w) + 64
       linear           A(4 * h) + A(4 * w) + 2 * A(4 * c * w) + 64
       linear 64f       A(4 * h) + A(4 * w) + 3 * A(8 * c * w) + 96

   +48 rnxStatusWarningSizeTruncated where the tile exceeds the destination; the size is that of the part inside.

   Arguments
     pSpec: a spec that Init has filled
     dstSize: size of the tile
     numChannels: 1, 3 or 4
     pBufSize: receives the size of the work buffer in bytes

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (all are tested together)
     rnxStatusBadSize: a width or height is below 1
     rnxStatusBadContext: not a spec of these functions, or one for another element type
     rnxStatusBadChannelCount: numChannels not 1, 3 or 4
     rnxStatusSizeOverflow: the buffer would have 0x7fffffff bytes or more; the size is set to 0

   Example: that of rnxiResizeNearest */

RnxStatus rnxiResizeGetBufferSize_8u(const RnxiResizeSpec* pSpec, RnxiSize dstSize, int numChannels, int* pBufSize);
RnxStatus rnxiResizeGetBufferSize_16u(const RnxiResizeSpec* pSpec, RnxiSize dstSize, int numChannels, int* pBufSize);
RnxStatus rnxiResizeGetBufferSize_16s(const RnxiResizeSpec* pSpec, RnxiSize dstSize, int numChannels, int* pBufSize);
RnxStatus rnxiResizeGetBufferSize_32f(const RnxiResizeSpec* pSpec, RnxiSize dstSize, int numChannels, int* pBufSize);
RnxStatus rnxiResizeGetBufferSize_64f(const RnxiResizeSpec* pSpec, RnxiSize dstSize, int numChannels, int* pBufSize);
RnxStatus rnxiResizeGetBufferSize_L(const RnxiResizeSpec* pSpec, const RnxiSizeL* dstSize, int numChannels,
    Rnx64s* pBufSize);

/* rnxiResizeGetBorderSize: How many pixels beyond the source the interpolation reads where they lie in memory: nearest 0, linear 1 on each side.

   Arguments
     pSpec: a spec that Init has filled
     pBorderSize: receives the number of pixels that are read beyond each side of the source

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (all are tested together)
     rnxStatusBadContext: not a spec of these functions, or one for another element type

   Example
       RnxiBorderSize border;
       RnxStatus status = rnxiResizeGetBorderSize_8u(spec, &border); */

RnxStatus rnxiResizeGetBorderSize_8u(const RnxiResizeSpec* pSpec, RnxiBorderSize* pBorderSize);
RnxStatus rnxiResizeGetBorderSize_16u(const RnxiResizeSpec* pSpec, RnxiBorderSize* pBorderSize);
RnxStatus rnxiResizeGetBorderSize_16s(const RnxiResizeSpec* pSpec, RnxiBorderSize* pBorderSize);
RnxStatus rnxiResizeGetBorderSize_32f(const RnxiResizeSpec* pSpec, RnxiBorderSize* pBorderSize);
RnxStatus rnxiResizeGetBorderSize_64f(const RnxiResizeSpec* pSpec, RnxiBorderSize* pBorderSize);
RnxStatus rnxiResizeGetBorderSize_L(const RnxiResizeSpec* pSpec, RnxiBorderSize* pBorderSize);

/* rnxiResizeGetSrcOffset: Where the source of a tile begins.

       srcOffset = floor(dstOffset * S / D) in each direction, in double precision and S / D rounded once

   Any offset has an answer, in the type's range.

   Arguments
     pSpec: a spec that Init has filled
     dstOffset: place of the tile's first pixel in the whole destination
     pSrcOffset: receives the place of the tile's pSrc in the whole source

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (all are tested together)
     rnxStatusBadContext: not a spec of these functions, or one for another element type

   Example: that of rnxiResizeLinear */

RnxStatus rnxiResizeGetSrcOffset_8u(const RnxiResizeSpec* pSpec, RnxiPoint dstOffset, RnxiPoint* pSrcOffset);
RnxStatus rnxiResizeGetSrcOffset_16u(const RnxiResizeSpec* pSpec, RnxiPoint dstOffset, RnxiPoint* pSrcOffset);
RnxStatus rnxiResizeGetSrcOffset_16s(const RnxiResizeSpec* pSpec, RnxiPoint dstOffset, RnxiPoint* pSrcOffset);
RnxStatus rnxiResizeGetSrcOffset_32f(const RnxiResizeSpec* pSpec, RnxiPoint dstOffset, RnxiPoint* pSrcOffset);
RnxStatus rnxiResizeGetSrcOffset_64f(const RnxiResizeSpec* pSpec, RnxiPoint dstOffset, RnxiPoint* pSrcOffset);
RnxStatus rnxiResizeGetSrcOffset_L(const RnxiResizeSpec* pSpec, RnxiPointL dstOffset, RnxiPointL* pSrcOffset);

/* rnxiResizeGetSrcRoi: The part of the source that belongs to a tile, without the border pixels.

       x = floor(dstRoi.x * S / D);  width = index(last column of the tile) - x + 1, but S - x for a tile at the right edge;
       y and height likewise

   +48 rnxStatusWarningSizeTruncated where the tile is wider or higher than the destination.

   Arguments
     pSpec: a spec that Init has filled
     dstRoi: a tile of the whole destination
     pSrcRoi: receives the part of the whole source that belongs to the tile

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (all are tested together)
     rnxStatusBadSize: a width or height is below 1
     rnxStatusBadContext: not a spec of these functions, or one for another element type
     rnxStatusOutOfRange: offset negative, or not below the size of the whole destination

   Example
       // what of the source the lower right quarter of the destination needs
       RnxiRect tile = {dstSize.width / 2, dstSize.height / 2, dstSize.width / 2, dstSize.height / 2}, part;
       RnxStatus status = rnxiResizeGetSrcRoi_8u(spec, tile, &part); */

RnxStatus rnxiResizeGetSrcRoi_8u(const RnxiResizeSpec* pSpec, RnxiRect dstRoi, RnxiRect* pSrcRoi);
RnxStatus rnxiResizeGetSrcRoi_16u(const RnxiResizeSpec* pSpec, RnxiRect dstRoi, RnxiRect* pSrcRoi);
RnxStatus rnxiResizeGetSrcRoi_16s(const RnxiResizeSpec* pSpec, RnxiRect dstRoi, RnxiRect* pSrcRoi);
RnxStatus rnxiResizeGetSrcRoi_32f(const RnxiResizeSpec* pSpec, RnxiRect dstRoi, RnxiRect* pSrcRoi);
RnxStatus rnxiResizeGetSrcRoi_64f(const RnxiResizeSpec* pSpec, RnxiRect dstRoi, RnxiRect* pSrcRoi);
RnxStatus rnxiResizeGetSrcRoi_L(const RnxiResizeSpec* pSpec, RnxiRect dstRoi, RnxiRect* pSrcRoi);

/* rnxiResizeNearest: A tile of the destination by nearest interpolation.

       dst(x, y) = src(index(x), index(y))

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     dstOffset: place of the tile's first pixel in the whole destination
     dstSize: size of the tile
     pSpec: a spec that Init has filled
     pBuffer: work buffer of the size that rnxiResizeGetBufferSize reports for the tile

   Checks, in this order
     rnxStatusNullPointer: a pointer is null (all are tested together)
     rnxStatusWarningNoOperation: a width or height is 0; nothing is written
     rnxStatusBadContext: not a spec of these functions, or one for another element type
     rnxStatusBadSize: a width or height is negative
     rnxStatusOutOfRange: offset negative, or not below the size of the whole destination
     rnxStatusUnsupportedMode: the spec is for antialiasing
     rnxStatusBadContext: the spec is for another kind of interpolation or another element type, or its tables are
         damaged

   Example
       const RnxiSize from = {640, 480}, to = {1280, 720};
       const RnxiPoint origin = {0, 0};
       int specSize, initSize, bufferSize;
       rnxiResizeGetSize_8u(from, to, rnxNearest, 0, &specSize, &initSize);
       RnxiResizeSpec* spec = (RnxiResizeSpec*)malloc(specSize);
       rnxiResizeNearestInit_8u(from, to, spec);
       rnxiResizeGetBufferSize_8u(spec, to, 3, &bufferSize);
       Rnx8u* buffer = (Rnx8u*)malloc(bufferSize);
       RnxStatus status = rnxiResizeNearest_8u_C3R(src, srcStep, dst, dstStep, origin, to, spec, buffer); */

RnxStatus rnxiResizeNearest_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_8u_C1R_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_8u_C3R_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_8u_C4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_8u_C4R_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_16u_C1R_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_16u_C3R_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_16u_C4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_16u_C4R_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_16s_C1R_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_16s_C3R_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_16s_C4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_16s_C4R_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_32f_C1R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_32f_C3R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeNearest_32f_C4R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);

/* rnxiResizeLinear: A tile of the destination by linear interpolation.

       8u, 16u, 16s:  h = R(p0 * (16384 - wx) + p1 * wx) on both source rows,  dst = R(h0 * (16384 - wy) + h1 * wy),
                      R(v) = (v + ((v >> 14) & 1) + 8192) >> 14
       32f, 64f:      h = (p1 - p0) * fx + p0 on both source rows,  dst = (h1 - h0) * fy + h0

   p0 and p1 are the source pixels at index and index + 1. 16u and 16s round the fraction to the nearest multiple of
   1 / 16384; 16u is computed as 16s, 32768 lower.

   Outside the source the border type decides: replication takes the edge pixel; mirroring takes the pair (1, 0) for
   (-1, 0) and (last, last - 1) for (last, last + 1), with the same weights; on a side whose in-memory flag is set the pixel
   beyond the source is read. Beside a flag the kind still decides at the edges of the whole source that the tile's side does
   not touch in the destination; rnxBorderInMem alone reads there too. Tiles need no flags for the sides inside.

   Arguments
     pSrc, srcStep: source image: first pixel of the ROI and step in bytes
     pDst, dstStep: destination image and its step
     dstOffset: place of the tile's first pixel in the whole destination
     dstSize: size of the tile
     border, pBorderValue: what stands for pixels outside the whole source: rnxBorderRepl 1, rnxBorderMirror 3 or
         rnxBorderMirrorR 4, which is taken as rnxBorderRepl, each with any of the in-memory flags, or
         rnxBorderInMem 240 alone; the _L functions take 1 with flags or 240; the value is not looked at and may be
         null
     pSpec: a spec that Init has filled
     pBuffer: work buffer of the size that rnxiResizeGetBufferSize reports for the tile

   Checks, in this order
     rnxStatusBadBorderType: border type above 255 or not accepted
     rnxStatusNullPointer: a pointer is null (all are tested together)
     rnxStatusWarningNoOperation: a width or height is 0; nothing is written
     rnxStatusBadContext: not a spec of these functions, or one for another element type
     rnxStatusBadSize: a width or height is negative
     rnxStatusOutOfRange: offset negative, or not below the size of the whole destination
     rnxStatusUnsupportedMode: the spec is for antialiasing
     rnxStatusBadContext: the spec is for another kind of interpolation or another element type, or its tables are
         damaged

   Example
       // the right half of the destination, by a thread with a buffer of its own
       RnxiPoint to = {dstSize.width / 2, 0}, from;
       RnxiSize half = {dstSize.width - to.x, dstSize.height};
       rnxiResizeGetSrcOffset_8u(spec, to, &from);
       RnxStatus status = rnxiResizeLinear_8u_C1R(src + from.y * srcStep + from.x, srcStep, dst + to.x, dstStep,
                                                  to, half, rnxBorderRepl, NULL, spec, buffer); */

RnxStatus rnxiResizeLinear_8u_C1R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx8u* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_8u_C1R_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx8u* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_8u_C3R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx8u* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_8u_C3R_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx8u* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_8u_C4R(const Rnx8u* pSrc, int srcStep, Rnx8u* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx8u* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_8u_C4R_L(const Rnx8u* pSrc, Rnx64s srcStep, Rnx8u* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx8u* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_16u_C1R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx16u* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_16u_C1R_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx16u* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_16u_C3R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx16u* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_16u_C3R_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx16u* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_16u_C4R(const Rnx16u* pSrc, int srcStep, Rnx16u* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx16u* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_16u_C4R_L(const Rnx16u* pSrc, Rnx64s srcStep, Rnx16u* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx16u* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_16s_C1R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx16s* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_16s_C1R_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx16s* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_16s_C3R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx16s* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_16s_C3R_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx16s* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_16s_C4R(const Rnx16s* pSrc, int srcStep, Rnx16s* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx16s* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_16s_C4R_L(const Rnx16s* pSrc, Rnx64s srcStep, Rnx16s* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx16s* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_32f_C1R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx32f* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_32f_C1R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx32f* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_32f_C3R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx32f* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_32f_C3R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx32f* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_32f_C4R(const Rnx32f* pSrc, int srcStep, Rnx32f* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx32f* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_32f_C4R_L(const Rnx32f* pSrc, Rnx64s srcStep, Rnx32f* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx32f* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_64f_C1R(const Rnx64f* pSrc, int srcStep, Rnx64f* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx64f* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_64f_C1R_L(const Rnx64f* pSrc, Rnx64s srcStep, Rnx64f* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx64f* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_64f_C3R(const Rnx64f* pSrc, int srcStep, Rnx64f* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx64f* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_64f_C3R_L(const Rnx64f* pSrc, Rnx64s srcStep, Rnx64f* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx64f* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_64f_C4R(const Rnx64f* pSrc, int srcStep, Rnx64f* pDst, int dstStep, RnxiPoint dstOffset,
    RnxiSize dstSize, RnxiBorderType border, const Rnx64f* pBorderValue, const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);
RnxStatus rnxiResizeLinear_64f_C4R_L(const Rnx64f* pSrc, Rnx64s srcStep, Rnx64f* pDst, Rnx64s dstStep,
    RnxiPointL dstOffset, const RnxiSizeL* dstSize, RnxiBorderType border, const Rnx64f* pBorderValue,
    const RnxiResizeSpec* pSpec, Rnx8u* pBuffer);

#ifdef __cplusplus
}
#endif

#endif
