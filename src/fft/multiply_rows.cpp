// Products of packed spectra. In a row the complex numbers stand in pixel pairs from column 1: real parts in odd
// columns, imaginary parts in even ones. Down the outer columns they stand in the same way from row 1.
#include "core/image.h"
#include "fft/lanes.h"
#include "fft/multiply_kernels.h"

namespace rnx::fft {
namespace {

using Vector = simd::Vec<f32>;

// re = a.re b.re - a.im b.im and im = a.re b.im + a.im b.re; with the conjugate of b
// re = a.re b.re + a.im b.im and im = a.im b.re - a.re b.im.
template <bool kConjugate, class T>
RNX_INLINE T productRe(T aRe, T aIm, T bRe, T bIm) {
  return kConjugate ? aRe * bRe + aIm * bIm : aRe * bRe - aIm * bIm;
}
template <bool kConjugate, class T>
RNX_INLINE T productIm(T aRe, T aIm, T bRe, T bIm) {
  return kConjugate ? aIm * bRe - aRe * bIm : aRe * bIm + aIm * bRe;
}

// Pixels of kChannels floats, of which kUsed count.
template <bool kConjugate, int kChannels, int kUsed>
class Rows {
public:
  explicit Rows(const MultiplyCall& call) : call_(call) {
    for (int i = 0; i < kRound; ++i) {
      isReal_[i] = i / kChannels % 2 == 0 ? -1 : 0;
      isUsed_[i] = i % kChannels < kUsed ? -1 : 0;
    }
  }

  void run() const {
    const bool evenWidth = call_.width % 2 == 0;
    outerColumn(0);
    if (evenWidth && call_.width > 1) outerColumn(call_.width - 1);
    const s64 inner = (call_.width - 1) / 2 * 2 * kChannels;
    for (s64 y = 0; y < call_.height; ++y) {
      pairs(core::at(call_.left, y * call_.leftStep, kChannels), core::at(call_.right, y * call_.rightStep, kChannels),
            core::at(call_.dst, y * call_.dstStep, kChannels), inner);
    }
  }

private:
  using Lanes = Vector;
  static constexpr int L = Lanes::kLanes;
  static constexpr int kPeriod = 2 * kChannels;
  // Vectors that hold whole pairs of pixels.
  static constexpr int kVectors = kChannels == 3 ? 3 : (kPeriod + L - 1) / L;
  static constexpr int kRound = kVectors * L;

  // Every float meets its partner, the other part of the number. Loads of a round reach one pixel beyond it on both
  // sides, where the select drops what they find; they all come before its stores, so that dst may be an operand.
  void pairs(const f32* a, const f32* b, f32* dst, s64 n) const {
    s64 i = 0;
    const s64 vectorEnd = call_.inOrder ? 0 : n;
    for (; i + kRound + kChannels <= vectorEnd; i += kRound) {
      Lanes result[kVectors];
      for (int v = 0; v < kVectors; ++v) {
        const s64 at = i + v * L;
        const simd::Mask<f32> isReal = simd::Mask<f32>::load(isReal_ + v * L);
        const Lanes x = Lanes::load(a + at), y = Lanes::load(b + at);
        const Lanes xOther = select(isReal, Lanes::load(a + at + kChannels), Lanes::load(a + at - kChannels));
        const Lanes yOther = select(isReal, Lanes::load(b + at + kChannels), Lanes::load(b + at - kChannels));
        result[v] =
            select(isReal, productRe<kConjugate>(x, xOther, y, yOther), productIm<kConjugate>(xOther, x, yOther, y));
        if constexpr (kUsed < kChannels) {
          result[v] = select(simd::Mask<f32>::load(isUsed_ + v * L), result[v], Lanes::load(dst + at));
        }
      }
      for (int v = 0; v < kVectors; ++v) result[v].store(dst + i + v * L);
    }
    for (; i < n; i += kPeriod) {
      for (int c = 0; c < kUsed; ++c)
        number(a + i + c, b + i + c, dst + i + c, a + i + c + kChannels, b + i + c + kChannels,
               dst + i + c + kChannels);
    }
  }

  static void number(const f32* aRe, const f32* bRe, f32* re, const f32* aIm, const f32* bIm, f32* im) {
    const f32 ar = simd::loadOne(aRe), ai = simd::loadOne(aIm), br = simd::loadOne(bRe), bi = simd::loadOne(bIm);
    write(re, productRe<kConjugate>(ar, ai, br, bi));
    write(im, productIm<kConjugate>(ar, ai, br, bi));
  }

  // Real numbers in row 0 and, for even heights, in the last row; between them complex ones down the column.
  void outerColumn(s64 x) const {
    const auto at = [x](auto* image, s64 step, s64 row, int c) {
      return core::at(image, row * step, x * kChannels + c);
    };
    const auto a = [&](s64 row, int c) { return at(call_.left, call_.leftStep, row, c); };
    const auto b = [&](s64 row, int c) { return at(call_.right, call_.rightStep, row, c); };
    const auto d = [&](s64 row, int c) { return at(call_.dst, call_.dstStep, row, c); };
    const auto real = [&](s64 row, int c) { write(d(row, c), simd::loadOne(a(row, c)) * simd::loadOne(b(row, c))); };
    const s64 h = call_.height;
    for (int c = 0; c < kUsed; ++c) {
      real(0, c);
      for (s64 re = 1, im = 2; im < h; re += 2, im += 2) {
        number(a(re, c), b(re, c), d(re, c), a(im, c), b(im, c), d(im, c));
      }
      if (h % 2 == 0) real(h - 1, c);
    }
  }

  const MultiplyCall& call_;
  s32 isReal_[kRound], isUsed_[kRound];
};

template <bool kConjugate, int kChannels, int kUsed>
void multiply(const MultiplyCall& call) {
  Rows<kConjugate, kChannels, kUsed>(call).run();
}

template <bool kConjugate>
constexpr MultiplyForms kForms = {multiply<kConjugate, 1, 1>, multiply<kConjugate, 3, 3>, multiply<kConjugate, 4, 4>,
                                  multiply<kConjugate, 4, 3>};

}  // namespace

namespace RNX_WIDTH {

constinit const MultiplyKernels multiplyKernels = {.plain = kForms<false>, .conjugate = kForms<true>};

}  // namespace RNX_WIDTH
}  // namespace rnx::fft
