// Row kernels of the border extension. A row gets its left and right parts from its own pixels; the rows above and
// below are copies of finished rows.
#include "data/border_kernels.h"
#include "data/pixel_rows.h"

namespace rnx::data {
namespace {

template <int P, bool Keeps>
struct Frame {
  using Row = PixelRow<P, Keeps>;

  // The row is known from pixel q on, and so is its period: the r pixels before q are copies from whole periods
  // further right, in blocks that double.
  static void growLeft(u8* row, s64 q, s64 known, s64 r, s64 period) {
    while (r > 0) {
      const s64 block = std::min(r, known / period * period);
      const s64 distance = (block + period - 1) / period * period;
      Row::copy(row + (q - block) * P, row + (q - block + distance) * P, block);
      q -= block, known += block, r -= block;
    }
  }
  // The same to the right: the row is known up to pixel e.
  static void growRight(u8* row, s64 e, s64 known, s64 r, s64 period) {
    while (r > 0) {
      const s64 block = std::min(r, known / period * period);
      const s64 distance = (block + period - 1) / period * period;
      Row::copy(row + e * P, row + (e - distance) * P, block);
      e += block, known += block, r -= block;
    }
  }

  // Both parts beside pixels [left, left + n).
  static RNX_INLINE void extend(Border border, const u8* value, u8* row, s64 left, s64 n, s64 right) {
    const s64 end = left + n;
    u8 *first = row + left * P, *behind = row + end * P;
    if (border == Border::kConst) {
      Row::fill(row, value, left);
      Row::fill(behind, value, right);
    } else if (border == Border::kReplicate || n == 1) {
      Row::fill(row, first, left);
      Row::fill(behind, behind - P, right);
    } else if (border == Border::kMirror) {
      const s64 l = std::min(left, n - 1), r = std::min(right, n - 1);
      Row::reverse(first - l * P, first + P, l);
      Row::reverse(behind, behind - (r + 1) * P, r);
      if (l < left) growLeft(row, left - l, n + l, left - l, 2 * n - 2);
      if (r < right) growRight(row, end + r, n + r, right - r, 2 * n - 2);
    } else {
      growLeft(row, left, n, left, n);
      growRight(row, end, n, right, n);
    }
  }
};

template <int P, bool Keeps>
void extend(const BorderCall& call) {
  using Row = PixelRow<P, Keeps>;
  const s64 width = call.left + call.width + call.right;
  u8* const inside = core::at(call.dst, call.top * call.dstStep);

  const u8* src = call.src;
  u8* row = inside;
  for (s64 y = 0; y < call.height; ++y, row = core::at(row, call.dstStep)) {
    if (call.src != nullptr) {
      if (call.stream) {
        Row::copyStreamed(row + call.left * P, src, call.width);
      } else {
        Row::copy(row + call.left * P, src, call.width);
      }
      src = core::at(src, call.srcStep);
    }
    Frame<P, Keeps>::extend(call.border, call.value, row, call.left, call.width, call.right);
  }

  if (call.stream) endStream();

  const auto outside = [&](s64 y) {
    u8* dst = core::at(inside, y * call.dstStep);
    if (call.border == Border::kConst) {
      Row::fill(dst, call.value, width);
    } else {
      Row::copy(dst, core::at(inside, borderSource(call.border, y, call.height) * call.dstStep), width);
    }
  };
  for (s64 y = -call.top; y < 0; ++y) outside(y);
  for (s64 y = call.height; y < call.height + call.bottom; ++y) outside(y);
}

}  // namespace

namespace RNX_WIDTH {

constinit const BorderKernels borderKernels = {.of1 = extend<1, false>,
                                               .of2 = extend<2, false>,
                                               .of3 = extend<3, false>,
                                               .of4 = extend<4, false>,
                                               .of6 = extend<6, false>,
                                               .of8 = extend<8, false>,
                                               .of12 = extend<12, false>,
                                               .of16 = extend<16, false>,
                                               .colors4 = extend<4, true>,
                                               .colors8 = extend<8, true>,
                                               .colors16 = extend<16, true>};

}  // namespace RNX_WIDTH
}  // namespace rnx::data
