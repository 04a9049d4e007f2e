/* tiles: resizes an image in tiles and compares with the resize in one call. Every tile could have a thread of its own:
   they share the spec, which is only read, and each needs a work buffer. */
#include <rnxip.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const RnxiSize kSrc = {320, 200}, kDst = {500, 333}, kTile = {128, 100};

/* The tile of the destination at `offset`. Its source begins where the library says; the sides inside the image need no
   in-memory flags, for the pixels beyond them are simply there. */
static RnxStatus resizeTile(const RnxiResizeSpec* spec, const Rnx8u* src, int srcStep, Rnx8u* dst, int dstStep,
                            RnxiPoint offset, RnxiSize size, Rnx8u* buffer) {
  RnxiPoint from;
  RnxStatus status = rnxiResizeGetSrcOffset_8u(spec, offset, &from);
  if (status != rnxStatusNoError) return status;
  return rnxiResizeLinear_8u_C1R(src + from.y * srcStep + from.x, srcStep, dst + offset.y * dstStep + offset.x, dstStep,
                                 offset, size, rnxBorderRepl, NULL, spec, buffer);
}

int main(void) {
  int srcStep, dstStep, specSize, initSize, bufferSize;
  RnxiPoint origin = {0, 0};
  Rnx8u* src = rnxiMalloc_8u_C1(kSrc.width, kSrc.height, &srcStep);
  Rnx8u* whole = rnxiMalloc_8u_C1(kDst.width, kDst.height, &dstStep);
  Rnx8u* tiled = rnxiMalloc_8u_C1(kDst.width, kDst.height, &dstStep);
  if (!src || !whole || !tiled) return 1;
  for (int y = 0; y < kSrc.height; ++y)
    for (int x = 0; x < kSrc.width; ++x) src[y * srcStep + x] = (Rnx8u)(x * y / 50 + 3 * x);

  /* One spec for the two images, one buffer that is large enough for either use. */
  rnxiResizeGetSize_8u(kSrc, kDst, rnxLinear, 0, &specSize, &initSize);
  RnxiResizeSpec* spec = (RnxiResizeSpec*)malloc((size_t)specSize);
  if (!spec || rnxiResizeLinearInit_8u(kSrc, kDst, spec) != rnxStatusNoError) return 1;
  rnxiResizeGetBufferSize_8u(spec, kDst, 1, &bufferSize);
  Rnx8u* buffer = (Rnx8u*)malloc((size_t)bufferSize);
  if (!buffer) return 1;

  RnxStatus status = resizeTile(spec, src, srcStep, whole, dstStep, origin, kDst, buffer);
  int tiles = 0, different = 0;
  for (int y = 0; y < kDst.height; y += kTile.height) {
    for (int x = 0; x < kDst.width; x += kTile.width) {
      RnxiPoint offset = {x, y}; /* a tile that runs past the edge is cut there */
      RnxStatus tileStatus = resizeTile(spec, src, srcStep, tiled, dstStep, offset, kTile, buffer);
      if (tileStatus < 0) status = tileStatus;
      ++tiles;
    }
  }
  for (int y = 0; y < kDst.height; ++y) {
    if (memcmp(whole + y * dstStep, tiled + y * dstStep, (size_t)kDst.width) != 0) ++different;
  }
  printf("%d tiles, %d rows differ, status %d\n", tiles, different, (int)status);

  free(buffer);
  free(spec);
  rnxiFree(tiled);
  rnxiFree(whole);
  rnxiFree(src);
  return status == rnxStatusNoError && different == 0 ? 0 : 1;
}
