// Byte shuffles over groups of pixels.
//
// A chunk is 16 bytes; a group is one, three or four chunks that hold whole pixels. A shuffle moves bytes inside a
// chunk. The 32-byte build works on two groups at once: a register holds the same chunk of both, wherever they lie, and
// both are shuffled by the same table. So no kernel has to know how the register is divided.
#pragma once

#include <algorithm>

#include "simd/vec.h"

namespace rnx::simd {
namespace {

inline constexpr int kChunk = 16;
inline constexpr int kGroups = kBytes / kChunk;  // groups in flight

RNX_INLINE __m128i loadChunk(const u8* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
RNX_INLINE void storeChunk(u8* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }

#if RNX_VECTOR_BYTES == 32
RNX_INLINE Vec<u8> bothGroups(__m128i first, __m128i second) { return Vec<u8>::of(_mm256_set_m128i(second, first)); }
RNX_INLINE Vec<u8> everyGroup(__m128i chunk) { return Vec<u8>::of(_mm256_broadcastsi128_si256(chunk)); }
RNX_INLINE __m128i firstGroup(Vec<u8> v) { return _mm256_castsi256_si128(v.bits()); }
#else
RNX_INLINE Vec<u8> everyGroup(__m128i chunk) { return Vec<u8>::of(chunk); }
RNX_INLINE __m128i firstGroup(Vec<u8> v) { return v.bits(); }
#endif

// A chunk of the first group at p, that of the second one `apart` bytes from it.
RNX_INLINE Vec<u8> loadChunks(const u8* p, [[maybe_unused]] s64 apart) {
#if RNX_VECTOR_BYTES == 32
  return bothGroups(loadChunk(p), loadChunk(p + apart));
#else
  return everyGroup(loadChunk(p));
#endif
}
RNX_INLINE void storeChunks(u8* p, [[maybe_unused]] s64 apart, Vec<u8> v) {
  storeChunk(p, firstGroup(v));
#if RNX_VECTOR_BYTES == 32
  storeChunk(p + apart, _mm256_extracti128_si256(v.bits(), 1));
#endif
}

// The same with Adjacent: the second chunk follows the first.
template <bool Adjacent>
RNX_INLINE Vec<u8> loadChunks(const u8* p, s64 apart) {
  return Adjacent ? Vec<u8>::load(p) : loadChunks(p, apart);
}
template <bool Adjacent>
RNX_INLINE void storeChunks(u8* p, s64 apart, Vec<u8> v) {
  if constexpr (Adjacent) {
    v.store(p);
  } else {
    storeChunks(p, apart, v);
  }
}
// With Stream around the caches, to places that are multiples of what is stored in one piece.
template <bool Adjacent, bool Stream>
RNX_INLINE void storeChunks(u8* p, s64 apart, Vec<u8> v) {
  if constexpr (!Stream) {
    storeChunks<Adjacent>(p, apart, v);
  } else if constexpr (Adjacent) {
    v.stream(p);
  } else {
    _mm_stream_si128(reinterpret_cast<__m128i*>(p), firstGroup(v));
#if RNX_VECTOR_BYTES == 32
    _mm_stream_si128(reinterpret_cast<__m128i*>(p + apart), _mm256_extracti128_si256(v.bits(), 1));
#endif
  }
}
// Behind the last of them: other threads see the results from here on.
RNX_INLINE void endStream() { _mm_sfence(); }

// 4, 8 or 16 bytes at the start of the chunks.
template <int Bytes>
RNX_INLINE __m128i loadStart(const u8* p) {
  if constexpr (Bytes == 4) return _mm_loadu_si32(p);
  if constexpr (Bytes == 8) return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
  return loadChunk(p);
}
template <int Bytes>
RNX_INLINE void storeStart(u8* p, __m128i v) {
  if constexpr (Bytes == 1) *p = static_cast<u8>(_mm_cvtsi128_si32(v));
  if constexpr (Bytes == 2) _mm_storeu_si16(p, v);
  if constexpr (Bytes == 4) _mm_storeu_si32(p, v);
  if constexpr (Bytes == 8) _mm_storel_epi64(reinterpret_cast<__m128i*>(p), v);
  if constexpr (Bytes == 16) storeChunk(p, v);
}
template <int Bytes>
RNX_INLINE Vec<u8> loadStarts(const u8* p, [[maybe_unused]] s64 apart) {
#if RNX_VECTOR_BYTES == 32
  return bothGroups(loadStart<Bytes>(p), loadStart<Bytes>(p + apart));
#else
  return everyGroup(loadStart<Bytes>(p));
#endif
}

// Byte b of a chunk becomes byte index[b] of it, or 0 where the index has its top bit set.
RNX_INLINE Vec<u8> shuffle(Vec<u8> v, Vec<u8> index) {
  return Vec<u8>::of(RNX_MM(shuffle_epi8)(v.bits(), index.bits()));
}

// The fourth element of each pixel, of bytes or words, in all words of the pixel.
RNX_INLINE Vec<u16> fourthAsWords(Vec<u32> pixels) {
  const auto index = everyGroup(_mm_setr_epi8(3, -1, 3, -1, 7, -1, 7, -1, 11, -1, 11, -1, 15, -1, 15, -1));
  return shuffle(pixels.as<u8>(), index).as<u16>();
}
RNX_INLINE Vec<u16> fourthAsWords(Vec<u64> pixels) {
  const auto index = everyGroup(_mm_setr_epi8(6, 7, 6, 7, 6, 7, 6, 7, 14, 15, 14, 15, 14, 15, 14, 15));
  return shuffle(pixels.as<u8>(), index).as<u16>();
}

// Positions in a group, counted from its first chunk, as a shuffle index into chunk number `chunk`: those that lie
// elsewhere, negative ones included, give 0. Positions are at most 63.
RNX_INLINE Vec<u8> indexInto(int chunk, Vec<u8> positions) {
  const auto start = RNX_MM(set1_epi8)(static_cast<char>(chunk * kChunk));
  const auto inside = RNX_MM(subs_epi8)(positions.bits(), start);          // 0 to 15 where it lies in the chunk
  return Vec<u8>::of(RNX_MM(adds_epu8)(inside, RNX_MM(set1_epi8)(0x70)));  // above 15, or negative: top bit set
}

// Elements of Bytes bytes from the lower, or the upper, halves of the chunks, in turns.
template <int Bytes>
RNX_INLINE Vec<u8> interleaveLow(Vec<u8> a, Vec<u8> b) {
  if constexpr (Bytes == 1) return Vec<u8>::of(RNX_MM(unpacklo_epi8)(a.bits(), b.bits()));
  if constexpr (Bytes == 2) return Vec<u8>::of(RNX_MM(unpacklo_epi16)(a.bits(), b.bits()));
  if constexpr (Bytes == 4) return Vec<u8>::of(RNX_MM(unpacklo_epi32)(a.bits(), b.bits()));
  return Vec<u8>::of(RNX_MM(unpacklo_epi64)(a.bits(), b.bits()));
}
template <int Bytes>
RNX_INLINE Vec<u8> interleaveHigh(Vec<u8> a, Vec<u8> b) {
  if constexpr (Bytes == 1) return Vec<u8>::of(RNX_MM(unpackhi_epi8)(a.bits(), b.bits()));
  if constexpr (Bytes == 2) return Vec<u8>::of(RNX_MM(unpackhi_epi16)(a.bits(), b.bits()));
  if constexpr (Bytes == 4) return Vec<u8>::of(RNX_MM(unpackhi_epi32)(a.bits(), b.bits()));
  return Vec<u8>::of(RNX_MM(unpackhi_epi64)(a.bits(), b.bits()));
}

// Transposes the square of 16 / Bytes elements in as many chunks: every round doubles the runs of neighbours.
template <int Bytes>
RNX_INLINE void transposeChunks(Vec<u8>* rows) {
  constexpr int kRows = kChunk / Bytes;
  RNX_UNROLL
  for (int run = 1; run < kRows; run *= 2) {
    Vec<u8> next[kRows];
    RNX_UNROLL
    for (int i = 0; i < kRows / 2; ++i) {
      next[2 * i] = interleaveLow<Bytes>(rows[i], rows[i + kRows / 2]);
      next[2 * i + 1] = interleaveHigh<Bytes>(rows[i], rows[i + kRows / 2]);
    }
    RNX_UNROLL
    for (int i = 0; i < kRows; ++i) rows[i] = next[i];
  }
}

// The chunks from byte Count on, continued with the next ones.
template <int Count>
RNX_INLINE Vec<u8> nextBytes(Vec<u8> chunks, Vec<u8> next) {
  return Vec<u8>::of(RNX_MM(alignr_epi8)(next.bits(), chunks.bits(), Count));
}

// The first Count bytes of the chunks of a, the rest of b. Count is even.
template <int Count>
RNX_INLINE Vec<u8> firstBytes(Vec<u8> a, Vec<u8> b) {
  return Vec<u8>::of(RNX_MM(blend_epi16)(a.bits(), b.bits(), 0xff & (0xff << (Count / 2))));
}

// ---- Adjacent groups as whole registers ----
//
// Where the wide build has the chunks of one group in the first halves of its registers and those of the next one in
// the second halves, memory has them one group behind the other. These bring registers into the order of memory; in the
// narrow build, with one group, there is nothing to do.

// a for the first group, b for the last one.
RNX_INLINE Vec<u8> firstAndLast([[maybe_unused]] Vec<u8> a, Vec<u8> b) {
#if RNX_VECTOR_BYTES == 32
  return bothGroups(firstGroup(a), firstGroup(b));
#else
  return b;
#endif
}

// Register j of the three that a group has: from tables that are the same for both groups.
RNX_INLINE Vec<u8> registerOfThree(const Vec<u8>* chunks, int j) {
#if RNX_VECTOR_BYTES == 32
  return firstAndLast(chunks[2 * j % 3], chunks[(2 * j + 1) % 3]);
#else
  return chunks[j];
#endif
}
// Groups of one chunk at p that become three: for each half of register j the chunk of its group.
RNX_INLINE Vec<u8> chunkForThree(const u8* p, [[maybe_unused]] int j) {
#if RNX_VECTOR_BYTES == 32
  return j == 1 ? Vec<u8>::load(p) : everyGroup(loadChunk(p + j / 2 * kChunk));
#else
  return everyGroup(loadChunk(p));
#endif
}

// Stores the registers of adjacent groups of three or four chunks.
template <int C, bool Stream>
RNX_INLINE void storeGroups(u8* p, const Vec<u8>* chunks) {
#if RNX_VECTOR_BYTES == 32
  const Int a = chunks[0].bits(), b = chunks[1].bits(), c = chunks[2].bits(), d = chunks[C - 1].bits();
  const Int first = _mm256_permute2x128_si256(a, b, 0x20);
  const Int second = C == 3 ? _mm256_permute2x128_si256(c, a, 0x30) : _mm256_permute2x128_si256(c, d, 0x20);
  const Int third = C == 3 ? _mm256_permute2x128_si256(b, c, 0x31) : _mm256_permute2x128_si256(a, b, 0x31);
  const Vec<u8> inOrder[] = {Vec<u8>::of(first), Vec<u8>::of(second), Vec<u8>::of(third),
                             Vec<u8>::of(_mm256_permute2x128_si256(c, d, 0x31))};
#else
  const Vec<u8>* const inOrder = chunks;
#endif
  RNX_UNROLL
  for (int j = 0; j < C; ++j) storeChunks<true, Stream>(p + j * kBytes, 0, inOrder[j]);
}

// Four-byte word i of a half of v belongs to, or comes from, register i of four that follow each other in memory.
RNX_INLINE Vec<u8> wordsToMemory(Vec<u8> v) {
#if RNX_VECTOR_BYTES == 32
  return Vec<u8>::of(_mm256_permutevar8x32_epi32(v.bits(), _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7)));
#else
  return v;
#endif
}
RNX_INLINE Vec<u8> wordsFromMemory(Vec<u8> v) {
#if RNX_VECTOR_BYTES == 32
  return Vec<u8>::of(_mm256_permutevar8x32_epi32(v.bits(), _mm256_setr_epi32(0, 2, 4, 6, 1, 3, 5, 7)));
#else
  return v;
#endif
}

// The first 12 bytes of each chunk of four registers that follow each other, without the gaps between them. `turned`
// are the registers with chunk i turned by 12 i bytes.
RNX_INLINE void joinTwelves(const Vec<u8> (&turned)[4], Vec<u8>* joined) {
  joined[0] = firstBytes<12>(turned[0], turned[1]);
  joined[1] = firstBytes<8>(turned[1], turned[2]);
  joined[2] = firstBytes<4>(turned[2], turned[3]);
}
#if RNX_VECTOR_BYTES == 32
RNX_INLINE void joinTwelvesInMemory(const Vec<u8> (&v)[4], Vec<u8>* joined) {
  const auto words = [&](int i, auto... word) RNX_INLINE_LAMBDA {
    return _mm256_permutevar8x32_epi32(v[i].bits(), _mm256_setr_epi32(word...));
  };
  constexpr int kAny = 0;
  const Int a = words(0, 0, 1, 2, 4, 5, 6, kAny, kAny), b = words(1, 2, 4, 5, 6, kAny, kAny, 0, 1);
  const Int c = words(2, 5, 6, kAny, kAny, 0, 1, 2, 4), d = words(3, kAny, kAny, 0, 1, 2, 4, 5, 6);
  joined[0] = Vec<u8>::of(_mm256_blend_epi32(a, b, 0xC0));
  joined[1] = Vec<u8>::of(_mm256_blend_epi32(b, c, 0xF0));
  joined[2] = Vec<u8>::of(_mm256_blend_epi32(c, d, 0xFC));
}
#endif

// Two runs of 12 bytes one behind the other, at p, at the start of the chunks. The last ones are read from the end of
// what lies before them: with nothing behind them that may be read.
template <bool Last>
RNX_INLINE Vec<u8> loadTwelves(const u8* p) {
#if RNX_VECTOR_BYTES == 32
  const auto words = Last ? _mm256_setr_epi32(2, 3, 4, 4, 5, 6, 7, 7) : _mm256_setr_epi32(0, 1, 2, 2, 3, 4, 5, 5);
  return Vec<u8>::of(_mm256_permutevar8x32_epi32(Vec<u8>::load(Last ? p - 8 : p).bits(), words));
#else
  return Last ? Vec<u8>::of(_mm_srli_si128(loadChunk(p - 4), 4)) : everyGroup(loadChunk(p));
#endif
}

// The chunk turned to the left in memory's sense: byte b goes to byte b + Bytes, modulo a chunk.
template <int Bytes>
RNX_INLINE __m128i turnChunk(__m128i v) {
  return _mm_alignr_epi8(v, v, (kChunk - Bytes % kChunk) % kChunk);
}

// ---- Rows ----

// Walks the groups of a row of n >= group pixels; `group` is a power of two. `f.compute<adjacent>(x, apart)` reads and
// computes the group at pixel x and the one `apart` pixels further, `f.store<adjacent, stream>(x, apart, result)`
// writes them; adjacent: the second group follows the first. The groups at the end overlap ones that are written
// anyway; they are computed before anything is written, which makes that right in place too.
template <class F>
RNX_INLINE void forEachGroup(s64 n, int group, const F& f) {
  const s64 span = s64{group} * kGroups;
  const auto body = [&]() __attribute__((always_inline)) {
    s64 x = 0;
    if constexpr (F::kOneChunk) {  // little to do for one round of a loop
      for (; x + 2 * span <= n; x += 2 * span) {
        const auto first = f.template compute<true>(x, group), second = f.template compute<true>(x + span, group);
        f.template store<true, false>(x, group, first);
        f.template store<true, false>(x + span, group, second);
      }
    }
    for (; x + span <= n; x += span) {
      f.template store<true, false>(x, group, f.template compute<true>(x, group));
    }
  };
  if ((n & (span - 1)) == 0) return body();
  const s64 last = std::max<s64>(n - span, 0), apart = n - group - last;
  const auto tail = f.template compute<false>(last, apart);
  body();
  f.template store<false, false>(last, apart, tail);
}

// The same around the caches, for results apart from the sources: from pixel `head` on, which is less than a span, the
// results lie where such stores can go.
template <class F>
RNX_INLINE void forEachGroupStreamed(s64 n, int group, s64 head, const F& f) {
  const s64 span = s64{group} * kGroups, last = n - span, apart = group;
  f.template store<false, false>(0, apart, f.template compute<false>(0, apart));
  for (s64 x = head; x + span <= n; x += span) {
    f.template store<true, true>(x, group, f.template compute<true>(x, group));
  }
  f.template store<false, false>(last, apart, f.template compute<false>(last, apart));
}

// Pixels until rows of pixels of so many bytes reach a place for stores around the caches, or -1 where they never do.
inline s64 pixelsToAlignment(const u8* p, s64 pixelBytes) {
  for (s64 x = 0; x < kBytes; ++x) {
    if ((reinterpret_cast<uintptr_t>(p) + static_cast<uintptr_t>(x * pixelBytes)) % kBytes == 0) return x;
  }
  return -1;
}

template <class Byte>
bool sameAlignment(Byte* const* pointers, int n) {
  return std::all_of(pointers, pointers + n, [&](const u8* p) {
    return (reinterpret_cast<uintptr_t>(p) - reinterpret_cast<uintptr_t>(pointers[0])) % kBytes == 0;
  });
}

#if RNX_VECTOR_BYTES == 32
// Two rows of two values of 16 bytes.
RNX_INLINE void transposeSixteens(Vec<u8>& a, Vec<u8>& b) {
  const Int first = a.bits(), second = b.bits();
  a = Vec<u8>::of(_mm256_permute2x128_si256(first, second, 0x20));
  b = Vec<u8>::of(_mm256_permute2x128_si256(first, second, 0x31));
}

// Four rows of four values of 8 bytes.
RNX_INLINE void transposeEights(Vec<u8> (&v)[4]) {
  const __m256i ab[2] = {_mm256_unpacklo_epi64(v[0].bits(), v[1].bits()),
                         _mm256_unpackhi_epi64(v[0].bits(), v[1].bits())};
  const __m256i cd[2] = {_mm256_unpacklo_epi64(v[2].bits(), v[3].bits()),
                         _mm256_unpackhi_epi64(v[2].bits(), v[3].bits())};
  RNX_UNROLL
  for (int i = 0; i < 2; ++i) {
    v[i] = Vec<u8>::of(_mm256_permute2x128_si256(ab[i], cd[i], 0x20));
    v[2 + i] = Vec<u8>::of(_mm256_permute2x128_si256(ab[i], cd[i], 0x31));
  }
}
#endif

}  // namespace
}  // namespace rnx::simd
