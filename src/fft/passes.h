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
using Pass = void (*)(const f32* src, f32* dst, s64 blockSize, s64 blocks, const Factor<V>* factors);

template <class V, int R, Twiddles kWhere>
RNX_INLINE void pass(const f32* src, f32* dst, s64 blockSize, s64 blocks, const Factor<V>* factors) {
  const s64 butterflies = blockSize / R, stride = butterflies * kElement<V>;
  for (s64 block = 0; block < blocks; ++block) {
    const Factor<V>* factor = factors;
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
void passApart(const f32* src, f32* dst, s64 blockSize, s64 blocks, const Factor<V>* factors) {
  pass<V, R, kWhere>(src, dst, blockSize, blocks, factors);
}
template <class V, int R, Twiddles kWhere>
void passInPlace(const f32*, f32* tile, s64 blockSize, s64 blocks, const Factor<V>* factors) {
  pass<V, R, kWhere>(tile, tile, blockSize, blocks, factors);
}

// Odd primes beyond the unrolled butterflies, by the same symmetric halves (see butterfly.h). The factors begin with
// the roots exp(-2 pi i k / prime).
template <class V, Twiddles kWhere>
void primePass(const f32* src, f32* dst, s64 blockSize, s64 blocks, const Factor<V>* factors, int prime) {
  const s64 butterflies = blockSize / prime, stride = butterflies * kElement<V>;
  const int half = prime / 2;
  const Factor<V>* roots = factors;
  for (s64 block = 0; block < blocks; ++block, src += blockSize * kElement<V>, dst += blockSize * kElement<V>) {
    for (s64 j = 0; j < butterflies; ++j) {
      const f32* from = src + j * kElement<V>;
      f32* to = dst + j * kElement<V>;
      const Factor<V>* twiddles = factors + prime + j * (prime - 1);
      const auto turned = [&](int k, Complex<V> x, bool here)
                              RNX_LAMBDA { return here && k > 0 ? x * splatFactor<V>(twiddles + (k - 1)) : x; };
      const auto load = [&](int k) RNX_LAMBDA {
        return turned(k, loadElement<V>(from + k * stride), kWhere == Twiddles::kBefore);
      };
      const auto store = [&](int k, Complex<V> x)
                             RNX_LAMBDA { storeElement(to + k * stride, turned(k, x, kWhere == Twiddles::kAfter)); };
      Complex<V> sum[kLargestRadix / 2 + 1], difference[kLargestRadix / 2 + 1];
      const Complex<V> first = load(0);
      Complex<V> total = first;
      for (int k = 1; k <= half; ++k) {
        const Complex<V> a = load(k), b = load(prime - k);
        sum[k] = a + b;
        difference[k] = a - b;
        total = total + sum[k];
      }
      store(0, total);
      for (int k = 1; k <= half; ++k) {
        Complex<V> r = first, i = {V::splat(0), V::splat(0)};  // i: of exp(-...), so minus the sines
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
  Pass<V> last, inFrequency, lastApart, inFrequencyApart, inTime;
};

// Transforms begin apart from the tile; convolutions work in it and come back.
template <class V, int R>
inline constexpr PassesOf<V> kPassesOf = {passInPlace<V, R, Twiddles::kNone>, passInPlace<V, R, Twiddles::kAfter>,
                                          passApart<V, R, Twiddles::kNone>, passApart<V, R, Twiddles::kAfter>, nullptr};
template <class V, int R>
inline constexpr PassesOf<Precise<V>> kPassesOf<Precise<V>, R> = {
    passInPlace<Precise<V>, R, Twiddles::kNone>, passInPlace<Precise<V>, R, Twiddles::kAfter>, nullptr, nullptr,
    passInPlace<Precise<V>, R, Twiddles::kBefore>};

// By radix.
template <class V>
inline constexpr PassesOf<V> kPassesByRadix[kLargestButterfly + 1] = {{},
                                                                      {},
                                                                      kPassesOf<V, 2>,
                                                                      kPassesOf<V, 3>,
                                                                      kPassesOf<V, 4>,
                                                                      kPassesOf<V, 5>,
                                                                      kPassesOf<V, 6>,
                                                                      kPassesOf<V, 7>,
                                                                      kPassesOf<V, 8>};

// All passes of a plan.
template <class V>
class Passes {
public:
  Passes(const Spec& spec, const Plan& plan) : spec_(spec), plan_(plan) {}

  // From natural order to that of the positions. src is the tile itself or apart from it.
  void inFrequency(const f32* src, f32* tile) const { inFrequency(0, src, tile, plan_.size, 1); }
  // The transposed passes in opposite order: from the order of the positions to the natural one.
  void inTime(f32* tile) const { inTime(0, tile, plan_.size); }

private:
  static constexpr s64 kElementBytes = kElement<V> * s64{sizeof(f32)};

  const Factor<V>* factorsOf(int level) const { return spec_.table<Factor<V>>(plan_.twiddles[level]); }

  // The passes from `level` for `blocks` blocks of blockSize elements.
  void inFrequency(int level, const f32* src, f32* tile, s64 blockSize, s64 blocks) const {
    for (; level < plan_.passCount; ++level) {
      const s32 radix = plan_.radix[level];
      const bool last = level + 1 == plan_.passCount;
      if (radix > kLargestButterfly) {
        const auto run = last ? primePass<V, Twiddles::kNone> : primePass<V, Twiddles::kAfter>;
        run(src, tile, blockSize, blocks, factorsOf(level), radix);
      } else {
        const PassesOf<V>& passes = kPassesByRadix<V>[radix];
        const Pass<V> apart = last ? passes.lastApart : passes.inFrequencyApart;
        const Pass<V> inPlace = last ? passes.last : passes.inFrequency;
        (src == tile ? inPlace : apart)(src, tile, blockSize, blocks, factorsOf(level));
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
    const bool last = level + 1 == plan_.passCount;
    const s32 radix = plan_.radix[level];
    if (radix > kLargestButterfly) {
      const auto run = last ? primePass<V, Twiddles::kNone> : primePass<V, Twiddles::kBefore>;
      return run(tile, tile, blockSize, blocks, factorsOf(level), radix);
    }
    const PassesOf<V>& passes = kPassesByRadix<V>[radix];
    (last ? passes.last : passes.inTime)(tile, tile, blockSize, blocks, factorsOf(level));
  }

  const Spec& spec_;
  const Plan& plan_;
};

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
      permute(src, tile);
      forEachPart([&](s64 part) RNX_LAMBDA { rotate(tile + part); });
    } else if (plan_.method == Method::kChirp) {
      forEachPart([&](s64 part) RNX_LAMBDA { convolve(src + part, tile + part); });
    } else if (plan_.passCount == 0) {
      storeElement(tile, loadElement<V>(src));
    } else {
      Passes<V>(spec_, plan_).inFrequency(src, tile);
    }
  }

  // What run() left in a tile. A view of its own: loops that store vectors keep it in registers.
  RNX_INLINE Outputs<V> outputs(const f32* tile, Direction direction = Direction::kForward) const {
    const bool forward = direction == Direction::kForward;
    return {tile, positions_ + (forward ? 0 : plan_.length), forward ? 1 : -1};
  }

private:
  using P = Precise<V>;

  template <class F>
  RNX_INLINE void forEachPart(F f) const {
    for (s64 part = 0; part < V::kLanes; part += P::kAtOnce) f(part);
  }

  RNX_INLINE Complex<P> factor(u32 table, s64 k) const { return splatFactor<P>(spec_.table<fc64>(table) + k); }

  // Place r + 1 of the tile receives input g^r. In place, each cycle of the permutation is followed once around.
  void permute(const f32* src, f32* tile) const {
    const s32* sources = spec_.table<s32>(plan_.powers) - 1;
    const auto move = [=](s64 to, const f32* image, s64 from) RNX_LAMBDA {
      storeElement(tile + to * kElement<V>, loadElement<V>(image + from * kElement<V>));
    };
    if (src != tile) {
      move(0, src, 0);
      for (s64 place = 1; place < plan_.length; ++place) move(place, src, sources[place]);
      return;
    }
    for (const s32* cycle = spec_.table<s32>(plan_.cycles); *cycle > 0; ++cycle) {
      const Complex<V> first = loadElement<V>(tile + *cycle * kElement<V>);
      s64 place = *cycle;
      for (; sources[place] != *cycle; place = sources[place]) move(place, tile, sources[place]);
      storeElement(tile + place * kElement<V>, first);
    }
  }

  // The inputs behind the first, in the order of the powers, become the outputs in that order.
  void rotate(f32* tile) const {
    const Passes<P> passes(spec_, plan_);
    f32* const rest = tile + kElement<V>;
    passes.inFrequency(rest, rest);
    const Complex<P> first = loadElement<P>(tile), sum = loadElement<P>(rest);
    storeElement(tile, first + sum);
    multiply(rest, 1);
    storeElement(rest, sum * factor(plan_.filter, 0) + first);  // adds the first input to each of the outputs
    passes.inTime(rest);
  }

  // The second transform is a forward one too, where the convolution wants an inverse: it turns the order round, but
  // for element 0.
  void convolve(const f32* src, f32* tile) const {
    const Passes<P> passes(spec_, plan_);
    const s64 length = plan_.length, size = plan_.size;
    for (s64 j = 0; j < length; ++j) {
      storeElement(tile + j * kElement<V>, loadElement<P>(src + j * kElement<V>) * factor(plan_.chirp, j));
    }
    for (s64 j = length; j < size; ++j) storeElement(tile + j * kElement<V>, Complex<P>{P::splat(0), P::splat(0)});
    passes.inFrequency(tile, tile);
    multiply(tile, 0);
    passes.inTime(tile);
    for (s64 k = 0; k < length; ++k) {
      f32* p = tile + positions_[k] * kElement<V>;
      storeElement(p, loadElement<P>(p) * factor(plan_.chirp, k));
    }
  }

  // A spectrum by the filter, from element `first`.
  void multiply(f32* spectrum, s64 first) const {
    for (s64 k = first; k < plan_.size; ++k) {
      f32* p = spectrum + k * kElement<V>;
      storeElement(p, loadElement<P>(p) * factor(plan_.filter, k));
    }
  }

  const Spec& spec_;
  const Plan& plan_;
  const s32* positions_;
};

}  // namespace
}  // namespace rnx::fft
