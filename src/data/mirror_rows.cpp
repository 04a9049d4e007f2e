// Row kernels of Mirror about the axes.
#include "data/mirror_kernels.h"
#include "data/pixel_rows.h"

namespace rnx::data {
namespace {

template <int P, bool Keeps>
void reverseRows(const MirrorCall& call) {
  using Row = PixelRow<P, Keeps>;
  const u8* src = call.src;
  u8* dst = call.dst;
  for (s64 y = 0; y < call.height; ++y) {
    if (call.walk == core::Walk::kInOrder) {
      for (s64 x = 0; x < call.width; ++x) Row::movePixel(dst + (call.width - 1 - x) * P, src + x * P);
    } else if (src == dst) {
      Row::reverseInPlace(dst, call.width);
    } else {
      Row::reverse(dst, src, call.width);
    }
    src = core::at(src, call.srcStep);
    dst = core::at(dst, call.dstStep);
  }
}

template <int P, bool Keeps>
void reverseRowsInPlace(const MirrorInPlaceCall& call) {
  u8* row = call.image;
  for (s64 y = 0; y < call.height; ++y, row = core::at(row, call.step)) {
    PixelRow<P, Keeps>::reverseInPlace(row, call.width);
  }
}

template <int P, bool Keeps, bool Reversed>
void exchangeRows(const MirrorInPlaceCall& call) {
  using Row = PixelRow<P, Keeps>;
  const s64 n = call.width;
  u8 *a = call.image, *b = core::at(a, (call.height - 1) * call.step);
  for (s64 y = 0; y < call.height / 2; ++y) {
    if (call.inOrder) {
      for (s64 x = 0; x < n; ++x) Row::exchangePixels(a + x * P, b + (Reversed ? n - 1 - x : x) * P);
    } else if (Reversed) {
      Row::exchangeReversed(a, b, n);
    } else {
      Row::exchange(a, b, n);
    }
    a = core::at(a, call.step);
    b = core::at(b, -call.step);
  }
  if (Reversed && call.height % 2 != 0) Row::reverseInPlace(a, n);
}

template <int P, bool Keeps = false>
constexpr MirrorForms kForms = {.reverseRows = reverseRows<P, Keeps>,
                                .reverseRowsInPlace = reverseRowsInPlace<P, Keeps>,
                                .exchangeRows = exchangeRows<P, Keeps, false>,
                                .exchangeRowsReversed = exchangeRows<P, Keeps, true>};

}  // namespace

namespace RNX_WIDTH {

constinit const MirrorKernels mirrorKernels = {.of1 = kForms<1>,
                                               .of2 = kForms<2>,
                                               .of3 = kForms<3>,
                                               .of4 = kForms<4>,
                                               .of6 = kForms<6>,
                                               .of8 = kForms<8>,
                                               .of12 = kForms<12>,
                                               .of16 = kForms<16>,
                                               .colors4 = kForms<4, true>,
                                               .colors8 = kForms<8, true>,
                                               .colors16 = kForms<16, true>};

}  // namespace RNX_WIDTH
}  // namespace rnx::data
