// Row kernels of the linear resize of integers. A source row is resampled horizontally into a row of the work buffer,
// in the image's own type, and stays there while the next result rows use it; two such rows are then mixed.
//
// With neighbours p0, p1 and weight w (16384 = 1) both passes compute
//
//   v = p0 * (16384 - w) + p1 * w,   R(v) = (v + ((v >> 14) & 1) + 8192) >> 14
#include "geom/resize_halve.h"
#include "geom/resize_rows.h"
#include "simd/convert.h"

namespace rnx::geom {
namespace {

using namespace simd;

constexpr int kOne = 16384, kShift = 14;
// Elements of a strip: its tables take some 40 KiB of the stack. Long rows are kinder to the memory than short tables
// to the first cache.
template <class T>
constexpr s64 kStripElements = 6144 / sizeof(T);

// ---- 8u: 16-bit lanes ----
//
// v = p0 * 16384 + w * d with d = p1 - p0, so that v rounded without the odd-bit term is p0 + ((w * d + 8192) >> 14),
// which is one rounding multiplication of w and 2 d. The odd bit of p0 + (w * d >> 14) matters for a remainder of 8191
// only: of all |d| < 256 that is one value at most, for few of the odd weights and none of the even ones. Call it the
// tie.

// An odd value is no 2 d.
constexpr s16 kNoTie = 1;

// Twice the d whose product with w leaves 8191 modulo 16384.
RNX_INLINE s16 fixedTie(u32 w) {
  if (w % 2 == 0) return kNoTie;
  u32 inverse = w;  // right to 3 bits; each step doubles them
  for (int bits = 3; bits < kShift; bits *= 2) inverse *= 2 - w * inverse;
  const s32 d = static_cast<s32>((8191 * inverse) << (32 - kShift)) >> (32 - kShift);
  return d > -256 && d < 256 ? static_cast<s16>(2 * d) : kNoTie;
}

template <bool Ties>
RNX_INLINE Vec<s16> mix(Vec<s16> p0, Vec<s16> twiceD, Vec<s16> w, Vec<s16> tie) {
  const Vec<s16> result = p0 + multiplyRounded(twiceD, w);
  if (!Ties) return result;
  return result + (equal(twiceD, tie) & result & Vec<s16>::splat(1));
}

// From interleaved neighbours p0 p1 p0 p1 ...
template <bool Ties>
RNX_INLINE Vec<s16> mixPairs(Vec<u8> pairs, Vec<s16> w, Vec<s16> tie) {
  const Vec<s8> twice = Vec<s16>::splat(static_cast<s16>(2 * 256 + 0xFE)).as<s8>();  // -2, 2
  const Vec<s16> p0 = pairs.as<s16>() & Vec<s16>::splat(0xFF);
  return mix<Ties>(p0, multiplyPairs(pairs, twice), w, tie);
}

struct Of8u {
  using Element = u8;
  using Weight = FixedPair;
  using Lane = s16;  // of a pair's result
  struct Tables {
    s16 weights[kStripElements<u8> + 2 * Vec<u8>::kLanes];
    s16 ties[kStripElements<u8> + 2 * Vec<u8>::kLanes];
  };

  static RNX_INLINE u32 weightOf(Weight pair) { return pair >> 16; }
  static RNX_INLINE s16 tieOf(u32 w) { return fixedTie(w); }
  static RNX_INLINE void setWeight(Tables& t, s64 slot, u32 w, s16 tie) {
    t.weights[slot] = static_cast<s16>(w);
    t.ties[slot] = tie;
  }

  template <bool Ties>
  static RNX_INLINE Vec<s16> mixGathered(Vec<u8> pairs, const Tables& t, s64 i) {
    return mixPairs<Ties>(pairs, Vec<s16>::load(t.weights + i), Vec<s16>::load(t.ties + i));
  }

  // Mixes two rows of the buffer.
  template <bool Ties>
  struct Rows {
    Vec<s16> w, tie;

    RNX_INLINE Vec<u8> operator()(Vec<u8> a, Vec<u8> b) const {
      const Pair<u8> pairs = interleave(a, b);
      return narrow<u8>(Pair<s16>{mixPairs<Ties>(pairs.lo, w, tie), mixPairs<Ties>(pairs.hi, w, tie)});
    }
  };
  template <bool Ties>
  static RNX_INLINE Rows<Ties> rows(u32 w) {
    return {Vec<s16>::splat(static_cast<s16>(w)), Vec<s16>::splat(tieOf(w))};
  }

  // At w = 4096 the result is (3 a + b + 2) >> 2: the mean, rounded up, of a and of the mean of a and b, rounded down.
  struct Quarter {
    RNX_INLINE Vec<u8> operator()(Vec<u8> a, Vec<u8> b) const {
      return average(a, average(a, b) - ((a ^ b) & Vec<u8>::splat(1)));
    }
  };

  // The buffer holds results as they are.
  static RNX_INLINE Vec<u8> finish(Vec<u8> row) { return row; }
};

// ---- 16u and 16s: 32-bit sums of signed products; 16u moves into the signed range first ----

RNX_INLINE Vec<s32> roundSum(Vec<s32> v) {
  const Vec<s32> odd = shiftRightBy<kShift>(v) & Vec<s32>::splat(1);
  return shiftRightBy<kShift>(v + odd + Vec<s32>::splat(kOne / 2));
}

template <class T>
struct Of16 {
  using Element = T;
  using Weight = f32;
  using Lane = s32;
  struct Tables {
    FixedPair weights[kStripElements<T> + 2 * Vec<T>::kLanes];
  };

  // The fraction to the nearest of 16384 steps, a tie to the even one.
  static RNX_INLINE u32 weightOf(Weight fraction) {
    const Vec<f32> steps = Vec<f32>::splat(fraction) * Vec<f32>::splat(kOne);
    const s32 w = truncateToInt(roundTo<_MM_FROUND_TO_NEAREST_INT>(steps)).raw[0];
    return static_cast<u32>(std::clamp(w, 0, kOne));
  }
  static RNX_INLINE FixedPair pairOf(u32 w) { return kOne - w + (w << 16); }
  static RNX_INLINE void setWeight(Tables& t, s64 slot, u32 w, s16) { t.weights[slot] = pairOf(w); }
  static RNX_INLINE s16 tieOf(u32) { return kNoTie; }

  static RNX_INLINE Vec<s16> bias(Vec<s16> v) { return std::is_unsigned_v<T> ? v ^ Vec<s16>::splat(INT16_MIN) : v; }

  template <bool Ties>
  static RNX_INLINE Vec<s32> mixGathered(Vec<u8> pairs, const Tables& t, s64 i) {
    return roundSum(multiplyPairs(bias(pairs.as<s16>()), Vec<u32>::load(t.weights + i).template as<s16>()));
  }

  template <bool Ties>
  struct Rows {
    Vec<s16> w;

    RNX_INLINE Vec<T> operator()(Vec<T> a, Vec<T> b) const {
      const Pair<s16> pairs = interleave(a.template as<s16>(), b.template as<s16>());
      const auto sums = Pair<s32>{roundSum(multiplyPairs(pairs.lo, w)), roundSum(multiplyPairs(pairs.hi, w))};
      return bias(narrow<s16>(sums)).template as<T>();
    }
  };
  template <bool Ties>
  static RNX_INLINE Rows<Ties> rows(u32 w) {
    return {Vec<u32>::splat(pairOf(w)).template as<s16>()};
  }

  static RNX_INLINE Vec<T> finish(Vec<T> row) { return bias(row.template as<s16>()).template as<T>(); }
};

// The results of two gathered vectors as one.
RNX_INLINE Vec<u8> narrowLanes(Vec<s16> a, Vec<s16> b) { return narrow<u8>(Pair<s16>{a, b}); }
RNX_INLINE Vec<u8> narrowLanes(Vec<s32> a, Vec<s32> b) { return narrow<s16>(Pair<s32>{a, b}).as<u8>(); }

// ---- The horizontal pass over one strip of columns ----

// A block of 16 gathered bytes holds the neighbours p0 p1 of 16 / (2 * element size) elements.
template <class Kind, int C>
class Strip {
public:
  using T = typename Kind::Element;

  Strip(const LinearCall& call, s64 first, s64 columns)
      : call_(call), index_(call.tile.columns.index + first), elements_(columns * C) {
    setWeights(static_cast<const typename Kind::Weight*>(call.columnWeights) + first, columns);
    Extent extent = {INT64_MAX, INT64_MIN};
    windows_ = windowsFor(placeBlocks(extent), extent);
    if (windows_ == 0 || windows_ > kMostTableWindows) {
      windows_ = 0;
      placePairs();
    } else {
      for (s64 q = 0; q < blocks(); ++q) bases_[q] = baseFor(bases_[q], windows_, extent);
      setPicks();
    }
  }

  s64 elements() const { return elements_; }

  void resample(const T* src, T* row) {
    const u8* bytes = reinterpret_cast<const u8*>(src);
    switch (windows_) {
      case 1:
        return ties_ ? resampleRow<1, true>(bytes, row) : resampleRow<1, false>(bytes, row);
      case 2:
        return ties_ ? resampleRow<2, true>(bytes, row) : resampleRow<2, false>(bytes, row);
      default:
        collectPairs(src);
        return ties_ ? resampleRow<0, true>(picks_, row) : resampleRow<0, false>(picks_, row);
    }
  }

private:
  static constexpr int kMostTableWindows = 2;
  static constexpr int kPairBytes = 2 * static_cast<int>(sizeof(T));
  static constexpr s64 kPixelBytes = s64{C} * s64{sizeof(T)};
  static constexpr int kBlockElements = kBlockBytes / kPairBytes;
  static constexpr int kVectorElements = Vec<T>::kLanes;  // of a narrowed vector: two gathered ones

  s64 vectors() const { return (elements_ + kVectorElements - 1) / kVectorElements; }
  s64 blocks() const { return vectors() * 2 * kBlocksPerVector; }
  s64 first(s64 column) const {
    return firstNeighbour(call_.columnNeighbours, index_[column]) - call_.tile.columns.origin;
  }
  s64 second(s64 column) const {
    return secondNeighbour(call_.columnNeighbours, index_[column]) - call_.tile.columns.origin;
  }

  static s64 slotOf(s64 element) {
    return slotForNarrowing(element / kBlockElements) * kBlockElements + element % kBlockElements;
  }

  void setWeights(const typename Kind::Weight* weights, s64 columns) {
    ties_ = false;
    s64 element = 0;
    for (s64 column = 0; column < columns; ++column) {
      const u32 w = Kind::weightOf(weights[column]);
      const s16 tie = Kind::tieOf(w);
      ties_ = ties_ || tie != kNoTie;
      for (int c = 0; c < C; ++c) Kind::setWeight(tables_, slotOf(element++), w, tie);
    }
    while (element < vectors() * kVectorElements) Kind::setWeight(tables_, slotOf(element++), 0, kNoTie);
  }

  // Calls f(element, offset of its first neighbour, of its second) up to the end of the last vector; behind the last
  // element that one repeats.
  template <class F>
  RNX_INLINE void forEachPair(F f) const {
    constexpr s64 kBytesOf = sizeof(T);
    s64 element = 0, a = 0, b = 0;
    for (s64 column = 0; column < elements_ / C; ++column) {
      a = first(column) * C * kBytesOf;
      b = second(column) * C * kBytesOf;
      for (int c = 0; c < C; ++c) f(element++, a + c * kBytesOf, b + c * kBytesOf);
    }
    while (element < vectors() * kVectorElements) f(element++, a + (C - 1) * kBytesOf, b + (C - 1) * kBytesOf);
  }

  // Sets the bases to the first byte of each block. Returns the longest way from first to last, and the extent of all.
  s64 placeBlocks(Extent& extent) {
    s64 span = 0, low = INT64_MAX, end = INT64_MIN;
    forEachPair([&](s64 element, s64 a, s64 b) {
      low = std::min(low, std::min(a, b));
      end = std::max(end, std::max(a, b) + s64{sizeof(T)});
      if (element % kBlockElements != kBlockElements - 1) return;
      bases_[slotForNarrowing(element / kBlockElements)] = low;
      span = std::max(span, end - low);
      extent = {std::min(extent.low, low), std::max(extent.end, end)};
      low = INT64_MAX, end = INT64_MIN;
    });
    return span;
  }

  void setPicks() {
    const s64 bias = windows_ == 1 ? kStoredBias<1> : kStoredBias<2>;
    forEachPair([&](s64 element, s64 a, s64 b) {
      const s64 slot = slotOf(element), base = bases_[slot / kBlockElements] - bias;
      u8* picks = picks_ + slot * kPairBytes;
      for (int byte = 0; byte < static_cast<int>(sizeof(T)); ++byte) {
        picks[byte] = static_cast<u8>(a - base + byte);
        picks[byte + static_cast<int>(sizeof(T))] = static_cast<u8>(b - base + byte);
      }
    });
  }

  // Without windows the pairs are collected one by one, in the place of the picks, and the blocks lie in order.
  void placePairs() {
    for (s64 q = 0; q < blocks(); ++q) bases_[slotForNarrowing(q)] = q * kBlockBytes;
  }

  void collectPairs(const T* src) {
    u8* pair = picks_;
    const auto append = [&](const void* element) {  // wherever it lies
      __builtin_memcpy(pair, element, sizeof(T));
      pair += sizeof(T);
    };
    const auto* bytes = reinterpret_cast<const u8*>(src);
    for (s64 column = 0; column < elements_ / C; ++column) {
      const u8* p0 = bytes + first(column) * kPixelBytes;
      const u8* p1 = bytes + second(column) * kPixelBytes;
      for (s64 c = 0; c < kPixelBytes; c += s64{sizeof(T)}) append(p0 + c), append(p1 + c);
    }
    const u8* end = picks_ + vectors() * kVectorElements * kPairBytes;
    __builtin_memset(pair, 0, static_cast<size_t>(end - pair));
  }

  template <int Windows, bool Ties>
  RNX_INLINE Vec<typename Kind::Lane> lanes(const u8* src, s64 half) const {
    const Vec<u8> pairs = gatherBytes<Windows>(src, bases_ + half * kBlocksPerVector, picks_ + half * kBytes);
    return Kind::template mixGathered<Ties>(pairs, tables_, half * (kVectorElements / 2));
  }

  template <int Windows, bool Ties>
  void resampleRow(const u8* src, T* row) const {
    for (s64 v = 0; v < vectors(); ++v) {
      narrowLanes(lanes<Windows, Ties>(src, 2 * v), lanes<Windows, Ties>(src, 2 * v + 1))
          .store(reinterpret_cast<u8*>(row + v * kVectorElements));
    }
  }

  const LinearCall& call_;
  const s32* index_;
  s64 elements_;
  int windows_;
  bool ties_;
  typename Kind::Tables tables_;
  static constexpr s64 kMostBlocks = kStripElements<T> / kBlockElements + 2 * kBlocksPerVector;
  s64 bases_[kMostBlocks];
  alignas(kBytes) u8 picks_[kMostBlocks * kBlockBytes];
};

// ---- The vertical pass ----

template <class T, class F, class... Sources>
RNX_INLINE void elementWise(T* dst, s64 n, bool stream, F f, Sources... sources) {
  const core::Rows rows = {n, 1, 0, stream ? core::Walk::kStream : core::Walk::kVectors};
  forEachElement<AllChannels<T>>(rows, dst, 0, f, sources...);
}

template <class Kind>
void mixRows(typename Kind::Element* dst, s64 n, bool stream, const typename Kind::Element* a,
             const typename Kind::Element* b, u32 w) {
  using T = typename Kind::Element;
  const ImageSource<T> first = {a, 0}, second = {b, 0};
  if (w == 0 || w == kOne) {
    elementWise(
        dst, n, stream, [](Vec<T> v) { return Kind::finish(v); }, w == 0 ? first : second);
  } else if (Kind::tieOf(w) != kNoTie) {
    elementWise(dst, n, stream, Kind::template rows<true>(w), first, second);
  } else {
    elementWise(dst, n, stream, Kind::template rows<false>(w), first, second);
  }
}

template <class Kind, int C>
void linearStrip(const LinearCall& call, s64 first, s64 columns) {
  using T = typename Kind::Element;
  Strip<Kind, C> strip(call, first, columns);
  const auto resample = [&](const T* src, T* row) { strip.resample(src, row); };
  KeptRows<T, decltype(resample)> kept(call, resample);
  const auto* weights = static_cast<const typename Kind::Weight*>(call.rowWeights);
  T* dst = static_cast<T*>(call.tile.dst) + first * C;
  for (s64 y = 0; y < call.tile.rows.count; ++y) {
    const s64 x = call.tile.rows.index[y];
    const s64 above = firstNeighbour(call.rowNeighbours, x), below = secondNeighbour(call.rowNeighbours, x);
    const u32 w = Kind::weightOf(weights[y]);
    const T* a = w == kOne ? nullptr : kept.get(above, below);
    const T* b = w == 0 ? nullptr : kept.get(below, above);
    mixRows<Kind>(dst, strip.elements(), call.stream, a, b, w);
    dst = core::at(dst, call.tile.dstStep);
  }
}

// ---- Choice ----

template <class Kind, int C>
void linear(const LinearCall& call) {
  using T = typename Kind::Element;
  const s64 columns = call.tile.columns.count;
  if constexpr (kCanHalve<T, C>) {
    const bool halves = call.tile.columns.halves && call.tile.rows.halves;
    if (halves && columns >= kLeastHalved<T, C>) return halve<T, C>(call.tile);
  }
  forEachStrip(columns, kStripElements<T> / C, [&](s64 first, s64 count) { linearStrip<Kind, C>(call, first, count); });
}

template <class Kind>
constexpr LinearForms kForms = {linear<Kind, 1>, linear<Kind, 3>, linear<Kind, 4>};

}  // namespace

namespace RNX_WIDTH {

constinit const LinearKernels linearKernels = {kForms<Of8u>, kForms<Of16<u16>>, kForms<Of16<s16>>};

}  // namespace RNX_WIDTH
}  // namespace rnx::geom
