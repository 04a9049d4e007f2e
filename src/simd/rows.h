// The loop shape of element-wise kernels: every destination element depends on the source elements at its position.
//
//   row of n elements, n at least a vector:  |----|----|----|----|--  whole vectors, three at a time
//                                                          |----|     the vector that ends at the last element
//   shorter rows:  |--------|                two halves in one vector: the first 2^k elements and the last 2^k, where
//                     |--------|             2^k is the largest power of two in n
//
// The vector at the end and the halves overlap elements that are written anyway. That is right even in place, because
// they are loaded and computed before anything of the row is written. No byte outside the row is touched, and body and
// tail are the same code.
//
// Where source and destination elements differ in size a step is a block of several vectors (simd/block.h): as many
// elements as fill one vector of the smallest type. The same picture holds, counted in elements.
#pragma once

#include <bit>
#include <utility>

#include "core/image.h"
#include "simd/block.h"
#include "simd/shuffle.h"
#include "simd/vec.h"

namespace rnx::simd {
namespace {

// ---- Part of a vector: n elements, 1 <= n < lanes, as two overlapping halves of 2^k elements. The halves repeat up to
// the end of the vector, so that every lane holds an element of the row. ----

RNX_INLINE int halfOf(int bytes) { return static_cast<int>(std::bit_floor(static_cast<unsigned>(bytes))); }

template <class T>
RNX_INLINE Vec<T> loadPart(const T* p, int n) {
  const char* first = reinterpret_cast<const char*>(p);
  const int bytes = n * static_cast<int>(sizeof(T)), half = halfOf(bytes);
  const char* last = first + (bytes - half);
  const auto i128 = [](const char* a) { return reinterpret_cast<const __m128i*>(a); };
  __m128i v;
  switch (half) {
#if RNX_VECTOR_BYTES == 32
    case 16:
      return Vec<T>::of(_mm256_loadu2_m128i(i128(last), i128(first)));
#endif
    case 8:
      v = _mm_unpacklo_epi64(_mm_loadl_epi64(i128(first)), _mm_loadl_epi64(i128(last)));
      break;
    case 4:
      v = _mm_unpacklo_epi32(_mm_loadu_si32(first), _mm_loadu_si32(last));
      v = _mm_unpacklo_epi64(v, v);
      break;
    case 2:
      v = _mm_shuffle_epi32(_mm_unpacklo_epi16(_mm_loadu_si16(first), _mm_loadu_si16(last)), 0);
      break;
    default:
      v = _mm_set1_epi8(*first);  // NOLINT(clang-analyzer-core.CallAndMessage): it loses sight of buffers
      break;
  }
#if RNX_VECTOR_BYTES == 32
  return Vec<T>::of(_mm256_broadcastsi128_si256(v));
#else
  return Vec<T>::of(v);
#endif
}

template <class T>
RNX_INLINE void storePart(T* p, int n, Vec<T> value) {
  char* first = reinterpret_cast<char*>(p);
  const int bytes = n * static_cast<int>(sizeof(T)), half = halfOf(bytes);
  char* last = first + (bytes - half);
#if RNX_VECTOR_BYTES == 32
  if (half == 16) {
    _mm256_storeu2_m128i(reinterpret_cast<__m128i*>(last), reinterpret_cast<__m128i*>(first), value.bits());
    return;
  }
  const __m128i v = _mm256_castsi256_si128(value.bits());
#else
  const __m128i v = value.bits();
#endif
  switch (half) {
    case 8:
      _mm_storel_epi64(reinterpret_cast<__m128i*>(first), v);
      _mm_storel_epi64(reinterpret_cast<__m128i*>(last), _mm_unpackhi_epi64(v, v));
      break;
    case 4:
      _mm_storeu_si32(first, v);
      _mm_storeu_si32(last, _mm_srli_si128(v, 4));
      break;
    case 2:
      _mm_storeu_si16(first, v);
      _mm_storeu_si16(last, _mm_srli_si128(v, 2));
      break;
    default:
      *first = static_cast<char>(_mm_cvtsi128_si32(v));
      break;
  }
}

// The same of a block: halves of a vector or more are whole vectors, smaller ones lie in the first vector.
template <class V, class T>
RNX_INLINE V loadPartOf(const T* p, int n) {
  if constexpr (std::is_same_v<V, Vec<T>>) {
    return loadPart(p, n);
  } else if constexpr (requires { typename V::Narrow; }) {
    return V::of(loadPartOf<typename V::Narrow>(p, n));
  } else {
    V block;
    const int half = halfOf(n);
    if (V::kVectors == 1 || half < Vec<T>::kLanes) {
      const Vec<T> both = loadPart(p, n);
      for (Vec<T>& v : block.v) v = both;
    } else {
      const T* last = p + (n - half);
      const int vectors = half / Vec<T>::kLanes;
      for (int k = 0; k < V::kVectors; ++k) {
        block.v[k] = Vec<T>::load((k / vectors % 2 ? last : p) + k % vectors * Vec<T>::kLanes);
      }
    }
    return block;
  }
}

template <class T, int N>
RNX_INLINE void storePart(T* p, int n, const Block<T, N>& block) {
  constexpr int kVectors = Block<T, N>::kVectors;
  const int half = halfOf(n);
  if (kVectors == 1 || half < Vec<T>::kLanes) return storePart(p, n, block.v[0]);
  if constexpr (kVectors > 1) {
    T* last = p + (n - half);
    const int vectors = half / Vec<T>::kLanes;
    for (int k = 0; k < vectors && vectors + k < kVectors; ++k) {
      block.v[k].store(p + k * Vec<T>::kLanes);
      block.v[vectors + k].store(last + k * Vec<T>::kLanes);
    }
  }
}

// ---- Sources ----

// The rows of an image, read by vectors or by blocks.
template <class T, class V = Vec<T>>
struct ImageSource {
  const T* row;
  s64 step;

  template <int K>  // which of the three vectors of a round
  RNX_INLINE V body(s64 i) const {
    return V::load(row + i);
  }
  RNX_INLINE V at(s64 i) const { return V::load(row + i); }
  RNX_INLINE V part(s64 i, int n) const { return loadPartOf<V>(row + i, n); }
  RNX_INLINE void beginBody(s64) {}
  RNX_INLINE void nextRow() { row = core::at(row, step); }
};

// For every byte of three vectors the byte of the values it repeats, of three and of four.
template <class T>
struct PatternIndex {
  alignas(kBytes) u8 ofThree[3 * kBytes], ofFour[3 * kBytes];
  constexpr PatternIndex() : ofThree(), ofFour() {
    constexpr int kSize = sizeof(T);
    for (int b = 0; b < 3 * kBytes; ++b) {
      ofThree[b] = static_cast<u8>(b / kSize % 3 * kSize + b % kSize);
      ofFour[b] = static_cast<u8>(b / kSize % 4 * kSize + b % kSize);
    }
  }
};
template <class T>
constexpr PatternIndex<T> kPatternIndex;

// A pattern of 1, 3 or 4 values that repeats along every row. Three vectors hold whole periods of each.
template <class T>
class PatternSource {
public:
  RNX_INLINE PatternSource(const T* values, int period) : periodic_(period > 1) {
    if (!periodic_) {
      for (Vec<T>& v : body_) v = Vec<T>::splat(values[0]);
      return;
    }
    const Vec<u8> all = everyGroup(chunkOf(values, period));
    const u8* index = period == 3 ? kPatternIndex<T>.ofThree : kPatternIndex<T>.ofFour;
    for (int k = 0; k < 3; ++k) body_[k] = shuffle(all, Vec<u8>::load(index + k * kBytes)).template as<T>();
    RNX_UNROLL
    for (int k = 0; k < kVectors; ++k) body_[k % 3].store(buffer_ + k * Vec<T>::kLanes);
  }

  template <int K>
  RNX_INLINE Vec<T> body(s64) const {
    return body_[K];
  }
  RNX_INLINE Vec<T> at(s64 i) const { return periodic_ ? Vec<T>::load(buffer_ + i % kPeriod) : body_[0]; }
  RNX_INLINE Vec<T> part(s64 i, int n) const { return periodic_ ? loadPart(buffer_ + i % kPeriod, n) : body_[0]; }
  RNX_INLINE void beginBody(s64 i) {
    if (periodic_) load(static_cast<int>(i % kPeriod));
  }
  RNX_INLINE void nextRow() {}

private:
  static_assert(sizeof(T) <= 4);
  static constexpr int kPeriod = 12;  // a multiple of every period
  // whole vectors that hold a round from any phase
  static constexpr int kVectors = 3 + (kPeriod - 2 + Vec<T>::kLanes) / Vec<T>::kLanes;

  // By way of registers: a load of what was stored by elements would wait.
  static RNX_INLINE __m128i chunkOf(const T* values, int period) {
    using Bits = std::make_unsigned_t<typename MaskOf<sizeof(T)>::Type>;
    u64 words[2] = {};
    RNX_UNROLL
    for (int i = 0; i < 4; ++i) {
      const int at = i * 8 * static_cast<int>(sizeof(T));
      if (i < 3 || period == 4) words[at / 64] |= u64{std::bit_cast<Bits>(values[i])} << at % 64;
    }
    return _mm_set_epi64x(static_cast<s64>(words[1]), static_cast<s64>(words[0]));
  }
  void load(int phase) {
    for (int k = 0; k < 3; ++k) body_[k] = Vec<T>::load(buffer_ + phase + k * Vec<T>::kLanes);
  }

  bool periodic_;
  Vec<T> body_[3];
  T buffer_[kVectors * Vec<T>::kLanes];
};

// ---- Destinations ----

template <class T>
struct AllChannels {
  static constexpr bool kKeepsAlpha = false;
  template <class V>
  static RNX_INLINE V merge(V result, V) {
    return result;
  }
};

// Four channels of which the fourth keeps what the destination holds.
template <class T>
struct ColorChannels {
  static constexpr bool kKeepsAlpha = true;
  static RNX_INLINE Mask<T> colors() {
    Mask<T> mask;
    for (int i = 0; i < Mask<T>::kLanes; ++i) mask.raw[i] = i % 4 == 3 ? 0 : -1;
    return mask;
  }
  static RNX_INLINE Vec<T> merge(Vec<T> result, Vec<T> old) { return select(colors(), result, old); }
  template <int N>
  static RNX_INLINE Block<T, N> merge(Block<T, N> result, Block<T, N> old) {
    RNX_UNROLL
    for (int k = 0; k < result.kVectors; ++k) result.v[k] = merge(result.v[k], old.v[k]);
    return result;
  }
};

// ---- Rows ----

// Sources and functor are passed and kept by value, and nothing may take their address: the compiler would reload them
// after every store. The functor is part of the code once per place that calls it, so there are few.

// What the functor returns, a vector or a block of the destination's elements, and whether everything is one vector.
template <class F, class... Sources>
using ResultOf = decltype(std::declval<F&>()(std::declval<const Sources&>().at(0)...));
template <class F, class... Sources>
inline constexpr bool kOneVector = sizeof(ResultOf<F, Sources...>) == kBytes &&
                                   ((sizeof(std::declval<const Sources&>().at(0)) == kBytes) && ...);

// Elements [i, i + n) of a row, with n below a vector.
template <class Channels, class T, class F, class... Sources>
RNX_INLINE void partOfRow(T* dst, s64 i, int n, F& f, const Sources&... sources) {
  using V = ResultOf<F, Sources...>;
  const V old = Channels::kKeepsAlpha ? loadPartOf<V>(dst + i, n) : V::zero();
  storePart(dst + i, n, Channels::merge(f(sources.part(i, n)...), old));
}

template <class Channels, class V, class T>
RNX_INLINE V oldVector(const T* p) {
  return Channels::kKeepsAlpha ? V::load(p) : V::zero();
}

// Elements up to the first address that a store around the caches can take.
template <class T>
RNX_INLINE s64 elementsToAlignment(const T* p) {
  const auto misplaced = reinterpret_cast<uintptr_t>(p) % kBytes;
  return misplaced == 0 ? 0 : static_cast<s64>((kBytes - misplaced) / sizeof(T));
}

// Rows of at least a vector.
template <class Channels, class T, class F, class... Sources>
RNX_INLINE void longRows(const core::Rows& rows, T* dst, s64 dstStep, F& functor, Sources... sources) {
  using V = ResultOf<F, Sources...>;
  constexpr int L = V::kLanes;
  const auto placement = reinterpret_cast<uintptr_t>(dst) | static_cast<uintptr_t>(dstStep);
  const s64 n = rows.width, last = n - L;
  const bool stream =
      rows.walk == core::Walk::kStream && !Channels::kKeepsAlpha && placement % sizeof(T) == 0 && n >= 4 * L;
  const bool ragged = n % L != 0 || stream;
  F f = functor;
  for (s64 y = 0; y < rows.height; ++y) {
    // The vector at the end is computed before anything is written, for its sources may be the row itself.
    V tail = V::zero();
    if (ragged) tail = Channels::merge(f(sources.at(last)...), oldVector<Channels, V>(dst + last));
    s64 i = 0;
    if (stream) {  // a first vector reaches past the boundary where the body begins; the sources are apart from the row
      f(sources.at(0)...).store(dst);
      i = elementsToAlignment(dst);
    }
    (sources.beginBody(i), ...);
    for (; i + 3 * L <= n; i += 3 * L) {
      T* d = dst + i;
      const V v0 = Channels::merge(f(sources.template body<0>(i)...), oldVector<Channels, V>(d));
      const V v1 = Channels::merge(f(sources.template body<1>(i + L)...), oldVector<Channels, V>(d + L));
      const V v2 = Channels::merge(f(sources.template body<2>(i + 2 * L)...), oldVector<Channels, V>(d + 2 * L));
      if (stream) {
        v0.stream(d), v1.stream(d + L), v2.stream(d + 2 * L);
      } else {
        v0.store(d), v1.store(d + L), v2.store(d + 2 * L);
      }
    }
    for (; i + L <= n; i += L) Channels::merge(f(sources.at(i)...), oldVector<Channels, V>(dst + i)).store(dst + i);
    if (ragged) tail.store(dst + last);
    dst = core::at(dst, dstStep);
    (sources.nextRow(), ...);
  }
  if (stream) _mm_sfence();
  functor = f;
}

// The same with the functor in the code once: for blocks, for functors that say that they are long (kLong), and for
// layouts with alpha, which would double all code. The loop runs for the vector at the end, which waits in `tail` until
// the row is written, for the one in front of the body where stores go around the caches, and for the body.
template <class Channels, class T, class F, class... Sources>
RNX_INLINE void longRowsInOneLoop(const core::Rows& rows, T* dst, s64 dstStep, F& functor, Sources... sources) {
  using V = ResultOf<F, Sources...>;
  constexpr int L = V::kLanes;
  enum class Part { kTail, kHead, kBody };
  alignas(kBytes) T tail[L];
  const auto placement = reinterpret_cast<uintptr_t>(dst) | static_cast<uintptr_t>(dstStep);
  const s64 n = rows.width, last = n - L;
  const bool stream =
      rows.walk == core::Walk::kStream && !Channels::kKeepsAlpha && placement % sizeof(T) == 0 && n >= 4 * L;
  const bool ragged = n % L != 0 || stream;
  F f = functor;
  for (s64 y = 0; y < rows.height; ++y) {
    Part part = ragged ? Part::kTail : Part::kBody;
    s64 i = ragged ? last : 0, end = last;
    T* to = ragged ? core::at(tail, 0, -last) : dst;
    bool around = false;
    while (true) {
      do {
        const V v = Channels::merge(f(sources.at(i)...), oldVector<Channels, V>(dst + i));
        if (around) {
          v.stream(to + i);
        } else {
          v.store(to + i);
        }
        i += L;
      } while (i <= end);
      if (part == Part::kBody) break;
      to = dst;
      around = part == Part::kHead;
      i = around ? elementsToAlignment(dst) : 0;
      part = stream && !around ? Part::kHead : Part::kBody;
      end = part == Part::kHead ? 0 : last;
    }
    if (ragged) V::load(tail).store(dst + last);
    dst = core::at(dst, dstStep);
    (sources.nextRow(), ...);
  }
  if (stream) _mm_sfence();
  functor = f;
}

// Rows of less than a vector, or rows in order: by parts of n elements.
template <class Channels, class T, class F, class... Sources>
RNX_INLINE void rowsByParts(const core::Rows& rows, int n, T* dst, s64 dstStep, F& f, Sources... sources) {
  for (s64 y = 0; y < rows.height; ++y) {
    for (s64 i = 0; i < rows.width; i += n) {
      if (!Channels::kKeepsAlpha || n > 1 || i % 4 != 3) partOfRow<Channels>(dst, i, n, f, sources...);
    }
    dst = core::at(dst, dstStep);
    (sources.nextRow(), ...);
  }
}

// Calls f with one vector of each source and stores what it returns, over all rows.
template <class Channels, class T, class F, class... Sources>
RNX_INLINE void forEachElement(const core::Rows& rows, T* dst, s64 dstStep, F& f, const Sources&... sources) {
  const bool inOrder = rows.walk == core::Walk::kInOrder;
  if (inOrder || rows.width < ResultOf<F, Sources...>::kLanes) {
    rowsByParts<Channels>(rows, inOrder ? 1 : static_cast<int>(rows.width), dst, dstStep, f, sources...);
  } else if constexpr (kOneVector<F, Sources...> && !Channels::kKeepsAlpha && !requires { F::kLong; }) {
    longRows<Channels>(rows, dst, dstStep, f, sources...);
  } else {
    longRowsInOneLoop<Channels>(rows, dst, dstStep, f, sources...);
  }
}

}  // namespace
}  // namespace rnx::simd
