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

#include <algorithm>
#include <bit>
#include <utility>

#include "core/image.h"
#include "simd/block.h"
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
      v = _mm_set1_epi8(*first);
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
  } else {
    V block;
    const int half = halfOf(n);
    const T* last = p + (n - half);
    if (half < Vec<T>::kLanes) {
      const Vec<T> both = loadPart(p, n);
      for (Vec<T>& v : block.v) v = both;
    } else {
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
  const int half = halfOf(n);
  if (half < Vec<T>::kLanes) return storePart(p, n, block.v[0]);
  T* last = p + (n - half);
  const int vectors = half / Vec<T>::kLanes;
  for (int k = 0; k < vectors; ++k) {
    block.v[k].store(p + k * Vec<T>::kLanes);
    block.v[vectors + k].store(last + k * Vec<T>::kLanes);
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

// A pattern of 1, 3 or 4 values that repeats along every row. Three vectors hold whole periods of each.
template <class T>
class PatternSource {
public:
  PatternSource(const T* values, int period) : periodic_(period > 1) {
    if (!periodic_) {
      for (Vec<T>& v : body_) v = Vec<T>::splat(values[0]);
      return;
    }
    for (int i = 0; i < kPeriod; ++i) buffer_[i] = values[i % period];
    for (int filled = kPeriod; filled < kLength; filled += filled) {
      __builtin_memcpy(buffer_ + filled, buffer_, sizeof(T) * static_cast<size_t>(filled));
    }
    load(0);
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
  static constexpr int kPeriod = 12;                 // a multiple of every period
  static constexpr int kRound = 3 * Vec<T>::kLanes;  // elements that three vectors hold
  // kPeriod times a power of two that reaches a whole round from any phase
  static constexpr int kLength =
      kPeriod * static_cast<int>(std::bit_ceil(unsigned(kRound + kPeriod - 1 + kPeriod - 1) / kPeriod));

  void load(int phase) {
    for (int k = 0; k < 3; ++k) body_[k] = Vec<T>::load(buffer_ + phase + k * Vec<T>::kLanes);
  }

  bool periodic_;
  Vec<T> body_[3];
  T buffer_[kLength];
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
  static RNX_INLINE Block<T, N> merge(Block<T, N> result, const Block<T, N>& old) {
    for (int k = 0; k < result.kVectors; ++k) result.v[k] = merge(result.v[k], old.v[k]);
    return result;
  }
};

// ---- Rows ----

// The functor is part of the code once per place that calls it, so there are few: a round of three vectors, one vector,
// the vector at the end, and a part of a vector. Blocks are long enough to need no rounds.
template <class T, class Channels, class F, class... Sources>
struct ElementWise {
  using V = decltype(std::declval<F&>()(std::declval<const Sources&>().at(0)...));  // a vector or a block of T
  static constexpr int L = V::kLanes;
  static constexpr bool kRounds =
      sizeof(V) == kBytes && ((sizeof(std::declval<const Sources&>().at(0)) == kBytes) && ...);

  T* dst;
  F& f;

  template <int K>
  RNX_INLINE V bodyVector(s64 i, const Sources&... sources) {
    return Channels::merge(f(sources.template body<K>(i)...), old(i));
  }
  RNX_INLINE V vectorAt(s64 i, const Sources&... sources) { return Channels::merge(f(sources.at(i)...), old(i)); }
  RNX_INLINE V old(s64 i) const { return Channels::kKeepsAlpha ? V::load(dst + i) : V::zero(); }

  // Elements [i, i + n) with n below a vector.
  __attribute__((noinline)) void part(s64 i, int n, const Sources&... sources) {
    const V before = Channels::kKeepsAlpha ? loadPartOf<V>(dst + i, n) : V::zero();
    storePart(dst + i, n, Channels::merge(f(sources.part(i, n)...), before));
  }

  RNX_INLINE s64 rounds(s64 i, s64 n, bool stream, Sources&... sources) {
    (sources.beginBody(i), ...);
    for (; i + 3 * L <= n; i += 3 * L) {
      const V v0 = bodyVector<0>(i, sources...);
      const V v1 = bodyVector<1>(i + L, sources...);
      const V v2 = bodyVector<2>(i + 2 * L, sources...);
      if (stream) {
        v0.stream(dst + i), v1.stream(dst + i + L), v2.stream(dst + i + 2 * L);
      } else {
        v0.store(dst + i), v1.store(dst + i + L), v2.store(dst + i + 2 * L);
      }
    }
    return i;
  }

  // From element i to behind the last whole vector.
  RNX_INLINE void body(s64 i, s64 n, bool stream, Sources&... sources) {
    if constexpr (kRounds) {
      i = rounds(i, n, stream, sources...);
      stream = false;  // what is left is little
    }
    for (; i + L <= n; i += L) {
      const V v = vectorAt(i, sources...);
      if (stream) {
        v.stream(dst + i);
      } else {
        v.store(dst + i);
      }
    }
  }

  // Stores around the caches are aligned: elements up to the first boundary go one by one.
  s64 headOfStream(s64 n, const Sources&... sources) {
    const auto misplaced = reinterpret_cast<uintptr_t>(dst) % kBytes;
    const s64 head = misplaced == 0 ? 0 : static_cast<s64>((kBytes - misplaced) / sizeof(T));
    inOrder(std::min(head, n), sources...);
    return head;
  }

  bool canStream(s64 n) const {
    return !Channels::kKeepsAlpha && reinterpret_cast<uintptr_t>(dst) % sizeof(T) == 0 && n >= 4 * L;
  }

  // The vector at the end is computed before anything is written, for its sources may be the row itself.
  RNX_INLINE void row(s64 n, bool stream, Sources&... sources) {
    if (n < L) return part(0, static_cast<int>(n), sources...);
    const s64 last = n - L;
    const bool ragged = n % L != 0 || stream;
    const V tail = ragged ? vectorAt(last, sources...) : V::zero();
    body(stream ? headOfStream(n, sources...) : 0, n, stream, sources...);
    if (ragged) tail.store(dst + last);
  }

  void inOrder(s64 n, const Sources&... sources) {
    for (s64 i = 0; i < n; ++i) {
      if (!Channels::kKeepsAlpha || i % 4 != 3) part(i, 1, sources...);
    }
  }
};

// Calls f with one vector of each source and stores what it returns, over all rows.
template <class Channels, class T, class F, class... Sources>
RNX_INLINE void forEachElement(const core::Rows& rows, T* dst, s64 dstStep, F& f, Sources... sources) {
  ElementWise<T, Channels, F, Sources...> loop{dst, f};
  const bool stream = rows.walk == core::Walk::kStream;
  for (s64 y = 0; y < rows.height; ++y) {
    if (rows.walk == core::Walk::kInOrder) {
      loop.inOrder(rows.width, sources...);
    } else {
      loop.row(rows.width, stream && loop.canStream(rows.width), sources...);
    }
    loop.dst = core::at(loop.dst, dstStep);
    (sources.nextRow(), ...);
  }
  if (stream) _mm_sfence();
}

}  // namespace
}  // namespace rnx::simd
