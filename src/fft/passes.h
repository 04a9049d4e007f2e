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

// The last pass of a convolution there, its factors, and the first one back: single butterflies both.
template <class V>
using FilterPass = void (*)(f32* tile, s64 blocks, const Factor<V>* filter);

template <class V, int R>
void filterPass(f32* tile, s64 blocks, const Factor<V>* filter) {
  for (s64 block = 0; block < blocks; ++block) {
    Points<V, R> x;
    unroll<0, R>([&](auto r) RNX_LAMBDA { x.set(r.value, loadElement<V>(tile + r.value * kElement<V>)); });
    Butterfly<R>::apply(x);
    unroll<0, R>([&](auto r) RNX_LAMBDA { x.set(r.value, x[r.value] * splatFactor<V>(filter + r.value)); });
    Butterfly<R>::apply(x);
    unroll<0, R>([&](auto r) RNX_LAMBDA { storeElement(tile + r.value * kElement<V>, x[r.value]); });
    tile += R * kElement<V>;
    filter += R;
  }
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

// Transforms begin apart from the tile; convolutions work in it and come back.
template <class V>
struct PassesOf {
  Pass<V> last, inFrequency, lastApart, inFrequencyApart;
};
template <class V>
struct PassesOf<Precise<V>> {
  Pass<Precise<V>> inFrequency, inTime;
  FilterPass<Precise<V>> filter;
};

template <class V, int R>
inline constexpr PassesOf<V> kPassesOf = {passInPlace<V, R, Twiddles::kNone>, passInPlace<V, R, Twiddles::kAfter>,
                                          passApart<V, R, Twiddles::kNone>, passApart<V, R, Twiddles::kAfter>};
template <class V, int R>
inline constexpr PassesOf<Precise<V>> kPassesOf<Precise<V>, R> = {passInPlace<Precise<V>, R, Twiddles::kAfter>,
                                                                  passInPlace<Precise<V>, R, Twiddles::kBefore>,
                                                                  filterPass<Precise<V>, R>};

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

// All passes of a plan, from natural order to that of the positions. src is the tile itself or apart from it.
template <class V>
class Passes {
public:
  Passes(const Spec& spec, const Plan& plan) : spec_(spec), plan_(plan) {}

  void run(const f32* src, f32* tile) const { run(0, src, tile, plan_.size, 1); }

private:
  static constexpr s64 kElementBytes = kElement<V> * s64{sizeof(f32)};

  // The passes from `level` for `blocks` blocks of blockSize elements.
  void run(int level, const f32* src, f32* tile, s64 blockSize, s64 blocks) const {
    for (; level < plan_.passCount; ++level) {
      const s32 radix = plan_.radix[level];
      const bool last = level + 1 == plan_.passCount;
      const Factor<V>* factors = spec_.table<Factor<V>>(plan_.twiddles[level]);
      if (radix > kLargestButterfly) {
        const auto pass = last ? primePass<V, Twiddles::kNone> : primePass<V, Twiddles::kAfter>;
        pass(src, tile, blockSize, blocks, factors, radix);
      } else {
        const PassesOf<V>& passes = kPassesByRadix<V>[radix];
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
          run(level + 1, part, part, blockSize, 1);
        }
        return;
      }
    }
  }

  const Spec& spec_;
  const Plan& plan_;
};

// The passes of a plan, the product with a filter in the order where they end, and the transposed passes in opposite
// order, which end in natural order: the transform of the product. On both ways a part that fits the first cache stays
// there.
template <class V>
class Convolution {
public:
  using P = Precise<V>;

  Convolution(const Spec& spec, const Plan& plan) : spec_(spec), plan_(plan) {}

  void run(f32* tile, const fc64* filter) const { run(0, tile, plan_.size, 1, filter, nullptr); }
  // Adds the number at `first` to each result, and to it the sum of the tile.
  void runAndAdd(f32* tile, const fc64* filter, f32* first) const { run(0, tile, plan_.size, 1, filter, first); }

private:
  static constexpr s64 kElementBytes = kElement<V> * s64{sizeof(f32)};

  // From `level` on. `first`: of the first of all blocks only.
  void run(int level, f32* tile, s64 blockSize, s64 blocks, const fc64* filter, f32* first) const {
    const s32 radix = plan_.radix[level];
    if (level + 1 == plan_.passCount) {
      if (first != nullptr) {
        runFirst(radix, tile, filter, first);
        tile += radix * kElement<V>;
        filter += radix;
        --blocks;
      }
      return filterBlocks(radix, tile, blocks, filter);
    }
    const fc64* factors = spec_.table<fc64>(plan_.twiddles[level]);
    const bool isPrime = radix > kLargestButterfly;
    if (isPrime) {
      primePass<P, Twiddles::kAfter>(tile, tile, blockSize, blocks, factors, radix);
    } else {
      kPassesByRadix<P>[radix].inFrequency(tile, tile, blockSize, blocks, factors);
    }
    const s64 part = blockSize / radix, parts = blocks * radix;
    if (blockSize * kElementBytes > kCachedBytes) {
      for (s64 i = 0; i < parts; ++i) {
        run(level + 1, tile + i * part * kElement<V>, part, 1, filter + i * part, i == 0 ? first : nullptr);
      }
    } else {
      run(level + 1, tile, part, parts, filter, first);
    }
    if (isPrime) {
      primePass<P, Twiddles::kBefore>(tile, tile, blockSize, blocks, factors, radix);
    } else {
      kPassesByRadix<P>[radix].inTime(tile, tile, blockSize, blocks, factors);
    }
  }

  void filterBlocks(s32 radix, f32* tile, s64 blocks, const fc64* filter) const {
    if (radix <= kLargestButterfly) return kPassesByRadix<P>[radix].filter(tile, blocks, filter);
    const fc64* roots = spec_.table<fc64>(plan_.twiddles[plan_.passCount - 1]);
    const s64 size = blocks * radix;
    primePass<P, Twiddles::kNone>(tile, tile, radix, blocks, roots, radix);
    for (s64 k = 0; k < size; ++k) {
      f32* p = tile + k * kElement<V>;
      storeElement(p, loadElement<P>(p) * splatFactor<P>(filter + k));
    }
    primePass<P, Twiddles::kNone>(tile, tile, radix, blocks, roots, radix);
  }

  // The first block of the last pass: its elements add up to the sum of the tile. What is added to each of its results
  // reaches, by the passes back, each result of all.
  void runFirst(s32 radix, f32* tile, const fc64* filter, f32* first) const {
    Complex<P> sum = loadElement<P>(tile);
    for (s32 r = 1; r < radix; ++r) sum = sum + loadElement<P>(tile + r * kElement<V>);
    const Complex<P> x = loadElement<P>(first);
    filterBlocks(radix, tile, 1, filter);
    for (s32 r = 0; r < radix; ++r) {
      storeElement(tile + r * kElement<V>, loadElement<P>(tile + r * kElement<V>) + x);
    }
    storeElement(first, x + sum);
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
  // tileBytes() in shape.cpp says.
  void run(const f32* src, f32* tile) const {
    if (plan_.method == Method::kRotation) {
      permute(src, tile);
      forEachPart([&](s64 part) RNX_LAMBDA { rotate(tile + part); });
    } else if (plan_.method == Method::kChirp) {
      forEachPart([&](s64 part) RNX_LAMBDA { convolve(src + part, tile + part); });
    } else if (plan_.passCount == 0) {
      storeElement(tile, loadElement<V>(src));
    } else {
      Passes<V>(spec_, plan_).run(src, tile);
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
    Convolution<V>(spec_, plan_).runAndAdd(tile + kElement<V>, spec_.table<fc64>(plan_.filter), tile);
  }

  // The second transform is a forward one too, where the convolution wants an inverse: it turns the order round, but
  // for element 0.
  void convolve(const f32* src, f32* tile) const {
    const s64 length = plan_.length, size = plan_.size;
    const fc64* chirp = spec_.table<fc64>(plan_.chirp);
    for (s64 j = 0; j < length; ++j) {
      storeElement(tile + j * kElement<V>, loadElement<P>(src + j * kElement<V>) * splatFactor<P>(chirp + j));
    }
    for (s64 j = length; j < size; ++j) storeElement(tile + j * kElement<V>, Complex<P>{P::splat(0), P::splat(0)});
    Convolution<V>(spec_, plan_).run(tile, spec_.table<fc64>(plan_.filter));
    for (s64 k = 0; k < length; ++k) {
      f32* p = tile + positions_[k] * kElement<V>;
      storeElement(p, loadElement<P>(p) * splatFactor<P>(chirp + k));
    }
  }

  const Spec& spec_;
  const Plan& plan_;
  const s32* positions_;
};

}  // namespace
}  // namespace rnx::fft
