// The one-dimensional transform of a tile: as many sequences side by side as V has lanes. The inverse transform is the
// forward one, read in opposite order.
//
// Decimation in frequency, in place, one radix per pass: a block of m elements becomes radix blocks of m / radix. The
// outputs end in the order of Plan::positions.
// Included by row kernels only.
#pragma once

#include "fft/butterfly.h"
#include "fft/spec.h"

namespace rnx::fft {
namespace {

// Blocks up to this size go through all remaining passes together; larger ones split first, so that what follows finds
// its data in the first cache.
inline constexpr s64 kCachedBytes = 0x6000;

enum class Twiddles {
  kNone,   // the last blocks are single butterflies
  kAfter,  // decimation in frequency
  kBefore  // the transposed pass, in time
};

template <class V>
using Pass = void (*)(const f32* src, f32* dst, s64 blockSize, s64 blocks, const fc32* factors);

template <class V, int R, Twiddles kWhere>
RNX_INLINE void pass(const f32* src, f32* dst, s64 blockSize, s64 blocks, const fc32* factors) {
  const s64 butterflies = blockSize / R, stride = butterflies * kElement<V>;
  for (s64 block = 0; block < blocks; ++block) {
    const fc32* factor = factors;
    for (s64 j = 0; j < butterflies; ++j) {
      Points<V, R> x;
      unroll<0, R>([&](auto index) RNX_LAMBDA {
        constexpr int r = decltype(index)::value;
        Complex<V> value = loadElement<V>(src + r * stride);
        if constexpr (r > 0 && kWhere == Twiddles::kBefore) value = value * splatFactor<V>(factor + (r - 1));
        x.set(r, value);
      });
      Butterfly<R>::apply(x);
      unroll<0, R>([&](auto index) RNX_LAMBDA {
        constexpr int r = decltype(index)::value;
        Complex<V> value = x[r];
        if constexpr (r > 0 && kWhere == Twiddles::kAfter) value = value * splatFactor<V>(factor + (r - 1));
        storeElement(dst + r * stride, value);
      });
      src += kElement<V>;
      dst += kElement<V>;
      factor += R - 1;
    }
    src += (R - 1) * stride;
    dst += (R - 1) * stride;
  }
}

// Most passes work in place. That they say so saves half of the pointers.
template <class V, int R, Twiddles kWhere>
void passApart(const f32* src, f32* dst, s64 blockSize, s64 blocks, const fc32* factors) {
  pass<V, R, kWhere>(src, dst, blockSize, blocks, factors);
}
template <class V, int R, Twiddles kWhere>
void passInPlace(const f32*, f32* tile, s64 blockSize, s64 blocks, const fc32* factors) {
  pass<V, R, kWhere>(tile, tile, blockSize, blocks, factors);
}

// Odd primes beyond the unrolled butterflies, by the same symmetric halves (see butterfly.h). The factors begin with
// the roots exp(-2 pi i k / prime).
template <class V>
void primePass(const f32* src, f32* dst, s64 blockSize, s64 blocks, const fc32* factors, int prime) {
  const s64 butterflies = blockSize / prime, stride = butterflies * kElement<V>;
  const int half = prime / 2;
  const fc32* roots = factors;
  for (s64 block = 0; block < blocks; ++block, src += blockSize * kElement<V>, dst += blockSize * kElement<V>) {
    for (s64 j = 0; j < butterflies; ++j) {
      const f32* from = src + j * kElement<V>;
      f32* to = dst + j * kElement<V>;
      const fc32* twiddles = factors + prime + j * (prime - 1);
      const auto store = [&](int k, Complex<V> x) RNX_LAMBDA {
        storeElement(to + k * stride, butterflies > 1 && k > 0 ? x * splatFactor<V>(twiddles + (k - 1)) : x);
      };
      Complex<V> sum[kLargestRadix / 2 + 1], difference[kLargestRadix / 2 + 1];
      const Complex<V> first = loadElement<V>(from);
      Complex<V> total = first;
      for (int k = 1; k <= half; ++k) {
        const Complex<V> a = loadElement<V>(from + k * stride), b = loadElement<V>(from + (prime - k) * stride);
        sum[k] = a + b;
        difference[k] = a - b;
        total = total + sum[k];
      }
      store(0, total);
      for (int k = 1; k <= half; ++k) {
        Complex<V> r = first, i = {V::splat(0.0f), V::splat(0.0f)};  // i: of exp(-...), so minus the sines
        for (int m = 1, turn = k; m <= half; ++m) {
          const Complex<V> w = splatFactor<V>(roots + turn);
          r = r + sum[m] * w.re;
          i = i + difference[m] * w.im;
          turn = turn + k < prime ? turn + k : turn + k - prime;
        }
        store(k, {r.re - i.im, r.im + i.re});
        store(prime - k, {r.re + i.im, r.im - i.re});
      }
    }
  }
}

template <class V>
struct PassesOf {
  Pass<V> lastApart, inFrequencyApart, last, inFrequency, inTime;
};

template <class V, int R>
inline constexpr PassesOf<V> kPassesOf = {passApart<V, R, Twiddles::kNone>, passApart<V, R, Twiddles::kAfter>,
                                          passInPlace<V, R, Twiddles::kNone>, passInPlace<V, R, Twiddles::kAfter>,
                                          passInPlace<V, R, Twiddles::kBefore>};

// By radix.
template <class V>
inline constexpr PassesOf<V> kPasses[kLargestButterfly + 1] = {{},
                                                               {},
                                                               kPassesOf<V, 2>,
                                                               kPassesOf<V, 3>,
                                                               kPassesOf<V, 4>,
                                                               kPassesOf<V, 5>,
                                                               kPassesOf<V, 6>,
                                                               kPassesOf<V, 7>,
                                                               kPassesOf<V, 8>};

enum class Direction { kForward, kInverse };

// The outputs of a transform in natural order. Output k of the inverse transform is output length - k of the forward
// one.
template <class V>
struct Outputs {
  const f32* tile;
  const s32* positions;
  s64 turn;

  RNX_INLINE const f32* at(s64 k) const { return tile + positions[k * turn] * kElement<V>; }
  RNX_INLINE Complex<V> operator[](s64 k) const { return loadElement<V>(at(k)); }
};

template <class V>
class Transform {
public:
  Transform(const Spec& spec, const Plan& plan)
      : spec_(spec), plan_(plan), positions_(spec.table<s32>(plan.positions)) {}

  // Transforms a sequence of plan.length elements. src is the tile itself or apart from it. The tile has room for what
  // tileElements() in plan.cpp says.
  void run(const f32* src, f32* tile) const {
    if (plan_.method == Method::kRotation) {
      rotate(src, tile);
    } else if (plan_.method == Method::kChirp) {
      convolve(src, tile);
    } else if (plan_.passCount == 0) {
      storeElement(tile, loadElement<V>(src));
    } else {
      inFrequency(0, src, tile, plan_.size, 1);
    }
  }

  // What run() left in a tile. A view of its own: loops that store vectors keep it in registers.
  RNX_INLINE Outputs<V> outputs(const f32* tile, Direction direction = Direction::kForward) const {
    const bool forward = direction == Direction::kForward;
    return {tile, positions_ + (forward ? 0 : plan_.length), forward ? 1 : -1};
  }

private:
  static constexpr s64 kElementBytes = kElement<V> * s64{sizeof(f32)};

  // The passes from `level` for `blocks` blocks of blockSize elements.
  void inFrequency(int level, const f32* src, f32* tile, s64 blockSize, s64 blocks) const {
    for (; level < plan_.passCount; ++level) {
      const s32 radix = plan_.radix[level];
      const bool last = level + 1 == plan_.passCount;
      const fc32* factors = spec_.table<fc32>(plan_.twiddles[level]);
      if (radix > kLargestButterfly) {
        primePass<V>(src, tile, blockSize, blocks, factors, radix);
      } else {
        const auto& passes = kPasses<V>[radix];
        const Pass<V> apart = last ? passes.lastApart : passes.inFrequencyApart;
        const Pass<V> inPlace = last ? passes.last : passes.inFrequency;
        (src == tile ? inPlace : apart)(src, tile, blockSize, blocks, factors);
      }
      const bool splits = blockSize * kElementBytes > kCachedBytes && blocks == 1 && !last;
      blockSize /= radix;
      blocks *= radix;
      src = tile;
      if (splits) {
        for (s64 b = 0; b < blocks; ++b) {
          f32* part = tile + b * blockSize * kElement<V>;
          inFrequency(level + 1, part, part, blockSize, 1);
        }
        return;
      }
    }
  }

  // The transposed passes in opposite order: from the order of the positions to the natural one.
  void inTime(int level, f32* tile, s64 blockSize) const {
    const int last = plan_.passCount - 1;
    if (level < last && blockSize * kElementBytes > kCachedBytes) {
      const s64 part = blockSize / plan_.radix[level];
      for (s64 r = 0; r < plan_.radix[level]; ++r) inTime(level + 1, tile + r * part * kElement<V>, part);
      passInTime(level, tile, blockSize, 1);
      return;
    }
    s64 size = 1;
    for (int l = last; l >= level; --l) {
      size *= plan_.radix[l];
      passInTime(l, tile, size, blockSize / size);
    }
  }

  void passInTime(int level, f32* tile, s64 blockSize, s64 blocks) const {
    const auto& passes = kPasses<V>[plan_.radix[level]];
    const bool last = level + 1 == plan_.passCount;
    (last ? passes.last : passes.inTime)(tile, tile, blockSize, blocks, spec_.table<fc32>(plan_.twiddles[level]));
  }

  // The correlation with the rotated roots. Its input and first spectrum lie behind the tile's first plan.length
  // elements, where output 0 remains; the other outputs are those of the second transform.
  void rotate(const f32* src, f32* tile) const {
    const s64 n = plan_.size;
    f32* const apart = tile + plan_.length * kElement<V>;
    const s32* powers = spec_.table<s32>(plan_.powers);
    const s32* order = spec_.table<s32>(plan_.order);
    const Complex<V> first = loadElement<V>(src);
    for (s64 r = 0; r < n; ++r) storeElement(apart + r * kElement<V>, loadElement<V>(src + powers[r] * kElement<V>));
    inFrequency(0, apart, apart, n, 1);
    for (s64 k = 0; k < n; ++k) {
      storeElement(tile + k * kElement<V>, loadElement<V>(apart + order[k] * kElement<V>) * factor(plan_.filter, k));
    }
    storeElement(apart, loadElement<V>(apart) + first);  // the sum of all inputs
    storeElement(tile, loadElement<V>(tile) + first);    // adds the first input to each of the others
    inFrequency(0, tile, tile, n, 1);
  }

  // The convolution with the chirp. Between the two transforms real and imaginary parts change places, which turns the
  // second one into an inverse.
  void convolve(const f32* src, f32* tile) const {
    for (s64 j = 0; j < plan_.length; ++j) {
      storeElement(tile + j * kElement<V>, loadElement<V>(src + j * kElement<V>) * factor(plan_.chirp, j));
    }
    for (f32* p = tile + plan_.length * kElement<V>; p < tile + plan_.size * kElement<V>; p += V::kLanes) {
      V::splat(0.0f).store(p);
    }
    inFrequency(0, tile, tile, plan_.size, 1);
    for (s64 k = 0; k < plan_.size; ++k) {
      f32* p = tile + k * kElement<V>;
      const Complex<V> x = loadElement<V>(p) * factor(plan_.filter, k);
      storeElement(p, Complex<V>{x.im, x.re});
    }
    inTime(0, tile, plan_.size);
    for (s64 k = 0; k < plan_.length; ++k) {
      f32* p = tile + k * kElement<V>;
      const Complex<V> x = loadElement<V>(p);
      storeElement(p, Complex<V>{x.im, x.re} * factor(plan_.chirp, k));
    }
  }

  RNX_INLINE Complex<V> factor(u32 table, s64 k) const { return splatFactor<V>(spec_.table<fc32>(table) + k); }

  const Spec& spec_;
  const Plan& plan_;
  const s32* positions_;
};

}  // namespace
}  // namespace rnx::fft
