// Saturating sums, and the lo/hi pairs in which integers widen and narrow: the pair is in the register's own lane
// order, so only element-wise work may stand between widening and narrowing.
#pragma once

#include "simd/vec.h"

namespace rnx::simd {
namespace {

template <class T>
struct Pair {
  Vec<T> lo, hi;
};

// clang-format off
RNX_INLINE Vec<u8> addSaturated(Vec<u8> a, Vec<u8> b) { return Vec<u8>::of(RNX_MM(adds_epu8)(a.bits(), b.bits())); }
RNX_INLINE Vec<u8> subSaturated(Vec<u8> a, Vec<u8> b) { return Vec<u8>::of(RNX_MM(subs_epu8)(a.bits(), b.bits())); }
RNX_INLINE Vec<u16> addSaturated(Vec<u16> a, Vec<u16> b) { return Vec<u16>::of(RNX_MM(adds_epu16)(a.bits(), b.bits())); }
RNX_INLINE Vec<u16> subSaturated(Vec<u16> a, Vec<u16> b) { return Vec<u16>::of(RNX_MM(subs_epu16)(a.bits(), b.bits())); }
RNX_INLINE Vec<s16> addSaturated(Vec<s16> a, Vec<s16> b) { return Vec<s16>::of(RNX_MM(adds_epi16)(a.bits(), b.bits())); }
RNX_INLINE Vec<s16> subSaturated(Vec<s16> a, Vec<s16> b) { return Vec<s16>::of(RNX_MM(subs_epi16)(a.bits(), b.bits())); }
RNX_INLINE Vec<u16> multiplyHigh(Vec<u16> a, Vec<u16> b) { return Vec<u16>::of(RNX_MM(mulhi_epu16)(a.bits(), b.bits())); }
// (a + b + 1) >> 1 without overflow
RNX_INLINE Vec<u8> average(Vec<u8> a, Vec<u8> b) { return Vec<u8>::of(RNX_MM(avg_epu8)(a.bits(), b.bits())); }
RNX_INLINE Vec<u16> average(Vec<u16> a, Vec<u16> b) { return Vec<u16>::of(RNX_MM(avg_epu16)(a.bits(), b.bits())); }
RNX_INLINE Vec<s16> average(Vec<s16> a, Vec<s16> b) {  // of the values moved into the unsigned range
  const Vec<s16> bias = Vec<s16>::splat(INT16_MIN);
  return average((a ^ bias).as<u16>(), (b ^ bias).as<u16>()).as<s16>() ^ bias;
}

// |v|, of the smallest value too.
RNX_INLINE Vec<u16> magnitude(Vec<s16> v) { return Vec<u16>::of(RNX_MM(abs_epi16)(v.bits())); }
RNX_INLINE Vec<u32> magnitude(Vec<s32> v) { return Vec<u32>::of(RNX_MM(abs_epi32)(v.bits())); }
RNX_INLINE Vec<s16> withSign(Vec<u16> m, Vec<s16> of) { return Vec<s16>::of(RNX_MM(sign_epi16)(m.bits(), of.bits())); }
RNX_INLINE Vec<s32> withSign(Vec<u32> m, Vec<s32> of) { return Vec<s32>::of(RNX_MM(sign_epi32)(m.bits(), of.bits())); }

// ---- Widening to twice the size. W says whether the wide lanes are signed. ----

template <class W> RNX_INLINE Pair<W> widen(Vec<u8> v) {
  const Int z = Vec<u8>::zero().bits();
  return {Vec<W>::of(RNX_MM(unpacklo_epi8)(v.bits(), z)), Vec<W>::of(RNX_MM(unpackhi_epi8)(v.bits(), z))};
}
template <class W> RNX_INLINE Pair<W> widen(Vec<u16> v) {
  const Int z = Vec<u16>::zero().bits();
  return {Vec<W>::of(RNX_MM(unpacklo_epi16)(v.bits(), z)), Vec<W>::of(RNX_MM(unpackhi_epi16)(v.bits(), z))};
}
template <class W> RNX_INLINE Pair<W> widen(Vec<s16> v) {
  const Int sign = RNX_MM(srai_epi16)(v.bits(), 15);
  return {Vec<W>::of(RNX_MM(unpacklo_epi16)(v.bits(), sign)), Vec<W>::of(RNX_MM(unpackhi_epi16)(v.bits(), sign))};
}

// ---- Exact products in lanes of twice the size. ----

template <class W> RNX_INLINE Pair<W> multiply(Vec<u8> a, Vec<u8> b) {
  const Pair<W> x = widen<W>(a), y = widen<W>(b);
  return {x.lo * y.lo, x.hi * y.hi};
}
RNX_INLINE Pair<u32> interleaveProducts(Int low, Int high) {
  return {Vec<u32>::of(RNX_MM(unpacklo_epi16)(low, high)), Vec<u32>::of(RNX_MM(unpackhi_epi16)(low, high))};
}
template <class W> RNX_INLINE Pair<W> multiply(Vec<u16> a, Vec<u16> b) {
  const Pair<u32> p = interleaveProducts(RNX_MM(mullo_epi16)(a.bits(), b.bits()), RNX_MM(mulhi_epu16)(a.bits(), b.bits()));
  return {p.lo.template as<W>(), p.hi.template as<W>()};
}
template <class W> RNX_INLINE Pair<W> multiply(Vec<s16> a, Vec<s16> b) {
  const Pair<u32> p = interleaveProducts(RNX_MM(mullo_epi16)(a.bits(), b.bits()), RNX_MM(mulhi_epi16)(a.bits(), b.bits()));
  return {p.lo.template as<W>(), p.hi.template as<W>()};
}

// a * b + p * q, exact unless all four are -2^15.
RNX_INLINE Pair<s32> addProducts(Vec<s16> a, Vec<s16> b, Vec<s16> p, Vec<s16> q) {
  return {Vec<s32>::of(RNX_MM(madd_epi16)(RNX_MM(unpacklo_epi16)(a.bits(), p.bits()), RNX_MM(unpacklo_epi16)(b.bits(), q.bits()))),
          Vec<s32>::of(RNX_MM(madd_epi16)(RNX_MM(unpackhi_epi16)(a.bits(), p.bits()), RNX_MM(unpackhi_epi16)(b.bits(), q.bits())))};
}

// ---- Narrowing with saturation: the inverse of widen. ----

template <class T> Vec<T> narrow(Pair<s16> p) = delete;
template <class T> Vec<T> narrow(Pair<s32> p) = delete;
template <> RNX_INLINE Vec<u8> narrow(Pair<s16> p) { return Vec<u8>::of(RNX_MM(packus_epi16)(p.lo.bits(), p.hi.bits())); }
template <> RNX_INLINE Vec<u16> narrow(Pair<s32> p) { return Vec<u16>::of(RNX_MM(packus_epi32)(p.lo.bits(), p.hi.bits())); }
template <> RNX_INLINE Vec<s16> narrow(Pair<s32> p) { return Vec<s16>::of(RNX_MM(packs_epi32)(p.lo.bits(), p.hi.bits())); }
// Unsigned lanes: the caller knows that they are below the sign bit.
template <class T> RNX_INLINE Vec<T> narrow(Pair<u16> p) {
  return narrow<T>(Pair<s16>{p.lo.template as<s16>(), p.hi.template as<s16>()});
}
template <class T> RNX_INLINE Vec<T> narrow(Pair<u32> p) {
  return narrow<T>(Pair<s32>{p.lo.template as<s32>(), p.hi.template as<s32>()});
}
// clang-format on

// ---- Shifts of all lanes by a count known per call; a count of the lane's size or more is allowed. ----

using ShiftCount = __m128i;
RNX_INLINE ShiftCount shiftCount(int n) { return _mm_cvtsi32_si128(n); }

// clang-format off
RNX_INLINE Vec<s16> shiftRight(Vec<s16> v, ShiftCount n) { return Vec<s16>::of(RNX_MM(sra_epi16)(v.bits(), n)); }
RNX_INLINE Vec<u16> shiftRight(Vec<u16> v, ShiftCount n) { return Vec<u16>::of(RNX_MM(srl_epi16)(v.bits(), n)); }
RNX_INLINE Vec<s32> shiftRight(Vec<s32> v, ShiftCount n) { return Vec<s32>::of(RNX_MM(sra_epi32)(v.bits(), n)); }
RNX_INLINE Vec<u32> shiftRight(Vec<u32> v, ShiftCount n) { return Vec<u32>::of(RNX_MM(srl_epi32)(v.bits(), n)); }
template <int N> RNX_INLINE Vec<u16> shiftLeft(Vec<u16> v) { return Vec<u16>::of(RNX_MM(slli_epi16)(v.bits(), N)); }
RNX_INLINE Vec<s16> shiftLeft(Vec<s16> v, ShiftCount n) { return Vec<s16>::of(RNX_MM(sll_epi16)(v.bits(), n)); }
RNX_INLINE Vec<u16> shiftLeft(Vec<u16> v, ShiftCount n) { return Vec<u16>::of(RNX_MM(sll_epi16)(v.bits(), n)); }
RNX_INLINE Vec<s32> shiftLeft(Vec<s32> v, ShiftCount n) { return Vec<s32>::of(RNX_MM(sll_epi32)(v.bits(), n)); }
RNX_INLINE Vec<u32> shiftLeft(Vec<u32> v, ShiftCount n) { return Vec<u32>::of(RNX_MM(sll_epi32)(v.bits(), n)); }
// clang-format on

}  // namespace
}  // namespace rnx::simd
