// Rows of whole pixels of P bytes: copied, reversed, filled, exchanged. Where Keeps is set, pixels are four elements of
// which the fourth keeps the destination's value. For row kernels only.
#pragma once

#include "simd/rows.h"
#include "simd/shuffle.h"

namespace rnx::data {
namespace {

using namespace simd;

// Bytes of one pixel at the start of a chunk.
template <int P>
RNX_INLINE __m128i loadPixel(const u8* p) {
  u16 two = 0;
  if constexpr (P == 1) return _mm_cvtsi32_si128(*p);
  if constexpr (P == 2 || P == 3) __builtin_memcpy(&two, p, 2);
  if constexpr (P == 2) return _mm_cvtsi32_si128(two);
  if constexpr (P == 3) return _mm_cvtsi32_si128(two | p[2] << 16);
  if constexpr (P == 4) return _mm_loadu_si32(p);
  if constexpr (P == 6) {
    __builtin_memcpy(&two, p + 4, 2);
    return _mm_insert_epi16(_mm_loadu_si32(p), two, 2);
  }
  if constexpr (P == 8) return loadStart<8>(p);
  if constexpr (P == 12) return _mm_unpacklo_epi64(loadStart<8>(p), _mm_loadu_si32(p + 8));
  return loadChunk(p);
}

// A group of pixels of P bytes: as many chunks as hold whole pixels.
template <int P>
inline constexpr int kGroupChunks = P % 3 == 0 ? 3 : 1;
template <int P>
inline constexpr int kGroupPixels = kGroupChunks<P>* kChunk / P;

// The alpha bytes of a vector of pixels.
template <int P>
struct AlphaBytes {
  alignas(kBytes) s8 at[kBytes];
  constexpr AlphaBytes() : at() {
    for (int b = 0; b < kBytes; ++b) at[b] = b % P < P / 4 * 3 ? 0 : -1;
  }
};
template <int P>
constexpr AlphaBytes<P> kAlphaBytes;

// For chunk j of a reversed group, the bytes that come from chunk i: index into it, or 0x80.
template <int P>
struct ReverseIndex {
  static constexpr int kChunks = kGroupChunks<P>;
  alignas(16) u8 at[kChunks][kChunks][kChunk];
  bool used[kChunks][kChunks];
  constexpr ReverseIndex() : at(), used() {
    for (int j = 0; j < kChunks; ++j) {
      for (int b = 0; b < kChunk; ++b) {
        const int pixel = (j * kChunk + b) / P, byte = (j * kChunk + b) % P;
        const int from = (kGroupPixels<P> - 1 - pixel) * P + byte;
        for (int i = 0; i < kChunks; ++i) {
          const bool here = from / kChunk == i;
          at[j][i][b] = here ? static_cast<u8>(from % kChunk) : 0x80;
          used[j][i] = used[j][i] || here;
        }
      }
    }
  }
};
template <int P>
constexpr ReverseIndex<P> kReverseIndex;

// The chunks of a group of equal pixels.
template <int P>
struct RepeatIndex {
  alignas(16) u8 at[kGroupChunks<P>][kChunk];
  constexpr RepeatIndex() : at() {
    for (int b = 0; b < kGroupChunks<P> * kChunk; ++b) at[b / kChunk][b % kChunk] = static_cast<u8>(b % P);
  }
};
template <int P>
constexpr RepeatIndex<P> kRepeatIndex;

template <int P, bool Keeps>
class PixelRow {
public:
  static constexpr int kChunks = kGroupChunks<P>, kGroup = kGroupPixels<P>;
  static constexpr int kMoved = Keeps ? P / 4 * 3 : P;  // bytes of a pixel

  // dst[i] = src[i]. The rows are apart.
  static RNX_INLINE void copy(u8* dst, const u8* src, s64 n) {
    const s64 size = n * P;
    if (size < kBytes) {
      const int part = static_cast<int>(size);
      const Vec<u8> old = Keeps && n > 0 ? loadPart(dst, part) : Vec<u8>::zero();
      if (n > 0) storePart(dst, part, merge(loadPart(src, part), old));
      return;
    }
    s64 i = 0;
    for (; i + 4 * kBytes <= size; i += 4 * kBytes) {
      const Vec<u8> v0 = Vec<u8>::load(src + i), v1 = Vec<u8>::load(src + i + kBytes);
      const Vec<u8> v2 = Vec<u8>::load(src + i + 2 * kBytes), v3 = Vec<u8>::load(src + i + 3 * kBytes);
      storeMerged(dst + i, v0), storeMerged(dst + i + kBytes, v1);
      storeMerged(dst + i + 2 * kBytes, v2), storeMerged(dst + i + 3 * kBytes, v3);
    }
    for (; i + kBytes <= size; i += kBytes) storeMerged(dst + i, Vec<u8>::load(src + i));
    if (i < size) storeMerged(dst + size - kBytes, Vec<u8>::load(src + size - kBytes));
  }

  // The same around the caches. Behind the last row belongs endStream().
  static RNX_INLINE void copyStreamed(u8* dst, const u8* src, s64 n) {
    const s64 size = n * P;
    if (Keeps || size < 4 * kBytes) return copy(dst, src, n);
    Vec<u8>::load(src).store(dst);
    s64 i = elementsToAlignment(dst);
    for (; i + 2 * kBytes <= size; i += 2 * kBytes) {
      const Vec<u8> v0 = Vec<u8>::load(src + i), v1 = Vec<u8>::load(src + i + kBytes);
      v0.stream(dst + i), v1.stream(dst + i + kBytes);
    }
    for (; i < size; i += kBytes) {
      const s64 at = std::min(i, size - kBytes);
      Vec<u8>::load(src + at).store(dst + at);
    }
  }

  // dst[i] = src[n-1-i]. The rows are apart.
  static RNX_INLINE void reverse(u8* dst, const u8* src, s64 n) {
    if (n < kGroup) {
      for (s64 i = 0; i < n; ++i) movePixel(dst + i * P, src + (n - 1 - i) * P);
    } else {
      forEachGroup(n, kGroup, Reverse(dst, src + (n - kGroup) * P));
    }
  }

  // dst[i] = pixel
  static RNX_INLINE void fill(u8* dst, const u8* pixel, s64 n) {
    if (n >= kGroup) {
      forEachGroup(n, kGroup, Fill(dst, pixel));
    } else if (Keeps) {
      for (s64 i = 0; i < n; ++i) movePixel(dst + i * P, pixel);
    } else if (P % 3 == 0) {
      if (n > 0) fillPart(dst, loadPixel<P>(pixel), static_cast<int>(n) * P);
    } else if (n > 0) {
      storePart(dst, static_cast<int>(n) * P, everyGroup(repeat(loadPixel<P>(pixel), 0)));
    }
  }

  // Exchanges a[i] with b[n-1-i], or with b[i]. The rows are apart.
  static void exchangeReversed(u8* a, u8* b, s64 n) {
    if (n < kGroup) {
      for (s64 i = 0; i < n; ++i) exchangePixels(a + i * P, b + (n - 1 - i) * P);
    } else {
      forEachGroup(n, kGroup, Exchange<true>(a, b + (n - kGroup) * P, -P));
    }
  }
  static void exchange(u8* a, u8* b, s64 n) {
    if (n < kGroup) {
      for (s64 i = 0; i < n; ++i) exchangePixels(a + i * P, b + i * P);
    } else {
      forEachGroup(n, kGroup, Exchange<false>(a, b, P));
    }
  }

  // Reverses a row in place: its halves change places, the middle pixel of an odd number stays.
  static void reverseInPlace(u8* row, s64 n) {
    const s64 half = n / 2;
    exchangeReversed(row, row + (n - half) * P, half);
  }

  static RNX_INLINE void movePixel(u8* dst, const u8* src) {
    u8 pixel[kMoved];
    __builtin_memcpy(pixel, src, kMoved);
    __builtin_memcpy(dst, pixel, kMoved);
  }
  static RNX_INLINE void exchangePixels(u8* a, u8* b) {
    u8 first[kMoved], second[kMoved];
    __builtin_memcpy(first, a, kMoved);
    __builtin_memcpy(second, b, kMoved);
    __builtin_memcpy(a, second, kMoved);
    __builtin_memcpy(b, first, kMoved);
  }

private:
  struct Group {
    Vec<u8> chunk[kChunks];
  };

  // ---- Alpha ----

  static RNX_INLINE Vec<u8> merge(Vec<u8> v, Vec<u8> old) {
    return Keeps ? select(Mask<u8>::load(kAlphaBytes<P>.at), old, v) : v;
  }
  static RNX_INLINE void storeMerged(u8* dst, Vec<u8> v) {
    merge(v, Keeps ? Vec<u8>::load(dst) : Vec<u8>::zero()).store(dst);
  }

  // ---- Groups ----

  // Adjacent groups are one stretch of memory where a group is one chunk.
  template <bool Adjacent>
  static RNX_INLINE Group load(const u8* p, s64 apart) {
    Group group;
    RNX_UNROLL
    for (int i = 0; i < kChunks; ++i) group.chunk[i] = loadChunks < Adjacent && kChunks == 1 > (p + i * kChunk, apart);
    return group;
  }
  template <bool Adjacent, bool Stream = false>
  static RNX_INLINE void store(u8* p, s64 apart, const Group& group) {
    if constexpr (Adjacent && kChunks == 3) return storeGroups<3, Stream>(p, group.chunk);
    RNX_UNROLL
    for (int i = 0; i < kChunks; ++i)
      storeChunks<Adjacent && kChunks == 1, Stream>(p + i * kChunk, apart, group.chunk[i]);
  }
  static RNX_INLINE Group merge(const Group& group, const Group& old) {
    Group merged;
    RNX_UNROLL
    for (int i = 0; i < kChunks; ++i) merged.chunk[i] = merge(group.chunk[i], old.chunk[i]);
    return merged;
  }

  static RNX_INLINE Group reversed(const Group& group) {
    if constexpr (P == 16) return group;
    Group result;
    RNX_UNROLL
    for (int j = 0; j < kChunks; ++j) {
      bool first = true;
      RNX_UNROLL
      for (int i = 0; i < kChunks; ++i) {
        if (!kReverseIndex<P>.used[j][i]) continue;
        const Vec<u8> part = shuffle(group.chunk[i], everyGroup(loadChunk(kReverseIndex<P>.at[j][i])));
        result.chunk[j] = first ? part : result.chunk[j] | part;
        first = false;
      }
    }
    return result;
  }

  static RNX_INLINE __m128i repeat(__m128i pixel, int k) {
    return _mm_shuffle_epi8(pixel, loadChunk(kRepeatIndex<P>.at[k]));
  }

  // Less than a group of equal pixels: parts from the start and one that ends with the last byte.
  static RNX_INLINE void fillPart(u8* dst, __m128i pixel, int size) {
    const auto parts = [&](auto bytes) RNX_INLINE_LAMBDA {
      constexpr int kPart = decltype(bytes)::value;
      storeStart<kPart>(dst, repeat(pixel, 0));
      if (kPart == kChunk && size > 2 * kChunk) storeStart<kPart>(dst + kChunk, repeat(pixel, 1));
      const int last = size - kPart;
      storeStart<kPart>(dst + last, _mm_shuffle_epi8(pixel, loadChunk(kRepeatIndex<P>.at[0] + last % P)));
    };
    if (size >= 16) return parts(std::integral_constant<int, 16>());
    if (size >= 8) return parts(std::integral_constant<int, 8>());
    if (size >= 4) return parts(std::integral_constant<int, 4>());
    parts(std::integral_constant<int, 2>());
  }

  struct Reverse {
    static constexpr bool kOneChunk = kChunks == 1;
    u8* dst;
    const u8* src;  // the last group

    Reverse(u8* d, const u8* s) : dst(d), src(s) {}
    template <bool Adjacent>
    RNX_INLINE Group compute(s64 x, s64 apart) const {
      const Group group = reversed(load<false>(src - x * P, -apart * P));
      return Keeps ? merge(group, load<Adjacent>(dst + x * P, apart * P)) : group;
    }
    template <bool Adjacent, bool Stream>
    RNX_INLINE void store(s64 x, s64 apart, const Group& group) const {
      PixelRow::store<Adjacent, Stream>(dst + x * P, apart * P, group);
    }
  };

  struct Fill {
    static constexpr bool kOneChunk = kChunks == 1;
    u8* dst;
    Group pattern;

    Fill(u8* d, const u8* pixel) : dst(d) {
      const __m128i p = loadPixel<P>(pixel);
      RNX_UNROLL
      for (int i = 0; i < kChunks; ++i) pattern.chunk[i] = everyGroup(repeat(p, i));
    }
    template <bool Adjacent>
    RNX_INLINE Group compute(s64 x, s64 apart) const {
      return Keeps ? merge(pattern, load<Adjacent>(dst + x * P, apart * P)) : pattern;
    }
    template <bool Adjacent, bool Stream>
    RNX_INLINE void store(s64 x, s64 apart, const Group& group) const {
      PixelRow::store<Adjacent, Stream>(dst + x * P, apart * P, group);
    }
  };

  template <bool Reversed>
  struct Exchange {
    static constexpr bool kOneChunk = false;
    u8 *a, *b;    // of b: the group that goes to the first of a
    s64 advance;  // bytes per pixel in b

    struct Two {
      Group toA, toB;
    };
    Exchange(u8* first, u8* second, s64 bytes) : a(first), b(second), advance(bytes) {}
    template <bool Adjacent>
    RNX_INLINE Two compute(s64 x, s64 apart) const {
      const Group fromA = load<Adjacent>(a + x * P, apart * P),
                  fromB = load < Adjacent && !Reversed > (b + x * advance, apart * advance);
      return {merge(Reversed ? reversed(fromB) : fromB, fromA), merge(Reversed ? reversed(fromA) : fromA, fromB)};
    }
    template <bool Adjacent, bool Stream>
    RNX_INLINE void store(s64 x, s64 apart, const Two& two) const {
      PixelRow::store<Adjacent>(a + x * P, apart * P, two.toA);
      PixelRow::store<Adjacent && !Reversed>(b + x * advance, apart * advance, two.toB);
    }
  };
};

}  // namespace
}  // namespace rnx::data
