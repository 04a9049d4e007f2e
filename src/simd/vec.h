// Vec<T>: one register of elements, 16 bytes wide in the reference build and 32 in the wide one. Together with the
// other files of this folder the only home of intrinsics. Included by row kernels only, which are compiled once per
// width: everything here has internal linkage, so that the linker never mixes the two.
#pragma once

#include <immintrin.h>

#include <type_traits>

#include "core/compiler.h"
#include "core/types.h"

// Intrinsics of the two widths share their names behind the prefix.
#if RNX_VECTOR_BYTES == 32
#define RNX_MM(operation) _mm256_##operation
#define RNX_WIDTH v256
#else
#define RNX_MM(operation) _mm_##operation
#define RNX_WIDTH v128
#endif

namespace rnx::simd {
namespace {

inline constexpr int kBytes = RNX_VECTOR_BYTES;

#if RNX_VECTOR_BYTES == 32
using Int = __m256i;
using Float = __m256;
using Double = __m256d;
#else
using Int = __m128i;
using Float = __m128;
using Double = __m128d;
#endif

template <class T>
struct Vec {
  typedef T Raw __attribute__((vector_size(kBytes)));
  static constexpr int kLanes = kBytes / static_cast<int>(sizeof(T));

  Raw raw;

  static RNX_INLINE Vec of(Int r) { return {reinterpret_cast<Raw>(r)}; }
  static RNX_INLINE Vec zero() { return {Raw{}}; }
  // Not `Raw{} + v` for floats: that turns -0.0 into 0.0.
  static RNX_INLINE Vec splat(T v) {
    if constexpr (std::is_same_v<T, float>)
      return {RNX_MM(set1_ps)(v)};
    else if constexpr (std::is_same_v<T, double>)
      return {RNX_MM(set1_pd)(v)};
    else
      return {Raw{} + v};
  }
  static RNX_INLINE Vec load(const T* p) {
    return {reinterpret_cast<Raw>(RNX_MM(loadu_ps)(reinterpret_cast<const float*>(p)))};
  }
  RNX_INLINE void store(T* p) const { RNX_MM(storeu_ps)(reinterpret_cast<float*>(p), reinterpret_cast<Float>(raw)); }
  // Around the caches; the address is a multiple of the register's size. Ends with a fence, see rows.h.
  RNX_INLINE void stream(T* p) const { RNX_MM(stream_ps)(reinterpret_cast<float*>(p), reinterpret_cast<Float>(raw)); }

  RNX_INLINE Int bits() const { return reinterpret_cast<Int>(raw); }
  template <class U>
  RNX_INLINE Vec<U> as() const {
    return {reinterpret_cast<typename Vec<U>::Raw>(raw)};
  }
};

// The language leaves overflow of signed lanes undefined; here every integer lane wraps: sums are formed of unsigned
// ones.
template <class T>
struct Unsigned : std::make_unsigned<T> {};
template <>
struct Unsigned<f32> {
  using type = f32;
};
template <>
struct Unsigned<f64> {
  using type = f64;
};
template <class T>
using Wrapping = Vec<typename Unsigned<T>::type>;
template <class T>
RNX_INLINE auto wrapping(Vec<T> v) {
  return v.template as<typename Unsigned<T>::type>().raw;
}

// clang-format off
template <class T> RNX_INLINE Vec<T> operator+(Vec<T> a, Vec<T> b) { return Wrapping<T>{wrapping(a) + wrapping(b)}.template as<T>(); }
template <class T> RNX_INLINE Vec<T> operator-(Vec<T> a, Vec<T> b) { return Wrapping<T>{wrapping(a) - wrapping(b)}.template as<T>(); }
template <class T> RNX_INLINE Vec<T> operator*(Vec<T> a, Vec<T> b) { return Wrapping<T>{wrapping(a) * wrapping(b)}.template as<T>(); }
template <class T> RNX_INLINE Vec<T> operator/(Vec<T> a, Vec<T> b) { return {a.raw / b.raw}; }
template <class T> RNX_INLINE Vec<T> operator&(Vec<T> a, Vec<T> b) { return {a.raw & b.raw}; }
template <class T> RNX_INLINE Vec<T> operator|(Vec<T> a, Vec<T> b) { return {a.raw | b.raw}; }
template <class T> RNX_INLINE Vec<T> operator^(Vec<T> a, Vec<T> b) { return {a.raw ^ b.raw}; }
template <class T> RNX_INLINE Vec<T> operator~(Vec<T> a) { return {~a.raw}; }
// clang-format on

// One element. Images of callers need not be aligned to their elements.
template <class T>
RNX_INLINE T loadOne(const T* p) {
  T value;
  __builtin_memcpy(&value, p, sizeof(T));
  return value;
}

// The same vector, in a register from here on. Compilers load a vector again for each of its uses, which is dear where
// loads are what limits a loop.
template <class T>
RNX_INLINE Vec<T> inRegister(Vec<T> v) {
  __asm__("" : "+x"(v.raw));
  return v;
}

// Sum and product of which the compiler may not exchange the operands: where neither is a number the result is the
// first one, at every width and in every part of a row.
#if RNX_VECTOR_BYTES == 32
#define RNX_IN_ORDER(operation, a, b) __asm__("v" operation " %2, %1, %0" : "=x"(result.raw) : "x"(a.raw), "x"(b.raw))
#else
#define RNX_IN_ORDER(operation, a, b) __asm__(operation " %2, %0" : "=x"(result.raw) : "0"(a.raw), "x"(b.raw))
#endif
RNX_INLINE Vec<f32> addInOrder(Vec<f32> a, Vec<f32> b) {
  Vec<f32> result;
  RNX_IN_ORDER("addps", a, b);
  return result;
}
RNX_INLINE Vec<f32> multiplyInOrder(Vec<f32> a, Vec<f32> b) {
  Vec<f32> result;
  RNX_IN_ORDER("mulps", a, b);
  return result;
}

// The integer type as wide as T: comparisons give all ones or zeros of it.
template <int Size>
struct MaskOf;
template <>
struct MaskOf<1> {
  using Type = s8;
};
template <>
struct MaskOf<2> {
  using Type = s16;
};
template <>
struct MaskOf<4> {
  using Type = s32;
};
template <>
struct MaskOf<8> {
  using Type = s64;
};
template <class T>
using Mask = Vec<typename MaskOf<sizeof(T)>::Type>;

template <class T>
RNX_INLINE Mask<T> equal(Vec<T> a, Vec<T> b) {
  return {reinterpret_cast<typename Mask<T>::Raw>(a.raw == b.raw)};
}
template <class T>
RNX_INLINE Mask<T> greater(Vec<T> a, Vec<T> b) {
  return {reinterpret_cast<typename Mask<T>::Raw>(a.raw > b.raw)};
}

// Lane by lane: a where the mask is set, else b.
template <class T>
RNX_INLINE Vec<T> select(Mask<T> mask, Vec<T> a, Vec<T> b) {
  return Vec<u8>::of(RNX_MM(blendv_epi8)(b.bits(), a.bits(), mask.bits())).template as<T>();
}

template <class T>
RNX_INLINE bool anySet(Vec<T> mask) {
  return RNX_MM(movemask_epi8)(mask.bits()) != 0;
}

// Minimum and maximum of integers.
// clang-format off
RNX_INLINE Vec<u8> min(Vec<u8> a, Vec<u8> b) { return Vec<u8>::of(RNX_MM(min_epu8)(a.bits(), b.bits())); }
RNX_INLINE Vec<u8> max(Vec<u8> a, Vec<u8> b) { return Vec<u8>::of(RNX_MM(max_epu8)(a.bits(), b.bits())); }
RNX_INLINE Vec<s8> min(Vec<s8> a, Vec<s8> b) { return Vec<s8>::of(RNX_MM(min_epi8)(a.bits(), b.bits())); }
RNX_INLINE Vec<s8> max(Vec<s8> a, Vec<s8> b) { return Vec<s8>::of(RNX_MM(max_epi8)(a.bits(), b.bits())); }
RNX_INLINE Vec<u16> min(Vec<u16> a, Vec<u16> b) { return Vec<u16>::of(RNX_MM(min_epu16)(a.bits(), b.bits())); }
RNX_INLINE Vec<u16> max(Vec<u16> a, Vec<u16> b) { return Vec<u16>::of(RNX_MM(max_epu16)(a.bits(), b.bits())); }
RNX_INLINE Vec<s16> min(Vec<s16> a, Vec<s16> b) { return Vec<s16>::of(RNX_MM(min_epi16)(a.bits(), b.bits())); }
RNX_INLINE Vec<s16> max(Vec<s16> a, Vec<s16> b) { return Vec<s16>::of(RNX_MM(max_epi16)(a.bits(), b.bits())); }
RNX_INLINE Vec<u32> min(Vec<u32> a, Vec<u32> b) { return Vec<u32>::of(RNX_MM(min_epu32)(a.bits(), b.bits())); }
RNX_INLINE Vec<u32> max(Vec<u32> a, Vec<u32> b) { return Vec<u32>::of(RNX_MM(max_epu32)(a.bits(), b.bits())); }
RNX_INLINE Vec<s32> min(Vec<s32> a, Vec<s32> b) { return Vec<s32>::of(RNX_MM(min_epi32)(a.bits(), b.bits())); }
RNX_INLINE Vec<s32> max(Vec<s32> a, Vec<s32> b) { return Vec<s32>::of(RNX_MM(max_epi32)(a.bits(), b.bits())); }
// clang-format on

template <class T>
RNX_INLINE Vec<T> clamp(Vec<T> v, Vec<T> low, Vec<T> high) {
  return min(max(v, low), high);
}

}  // namespace
}  // namespace rnx::simd
