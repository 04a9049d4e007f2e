// How the data movement sees images: by the size of their elements. Values are moved as bits, so that 16u and 16s, and
// 32s and 32f, share their kernels, and no value (-0.0, NaN) is ever interpreted.
#pragma once

#include <type_traits>

#include "core/checks.h"
#include "core/image.h"

namespace rnx::data {

template <int Size>
struct BitsOf;
template <>
struct BitsOf<1> {
  using Type = u8;
};
template <>
struct BitsOf<2> {
  using Type = u16;
};
template <>
struct BitsOf<4> {
  using Type = u32;
};
template <>
struct BitsOf<8> {
  using Type = u64;
};
template <class T>
using Bits = typename BitsOf<sizeof(T)>::Type;

template <class T>
const Bits<T>* bits(const T* p) {
  return reinterpret_cast<const Bits<T>*>(p);
}
template <class T>
Bits<T>* bits(T* p) {
  return reinterpret_cast<Bits<T>*>(p);
}

template <class T>
const u8* bytes(const T* p) {
  return reinterpret_cast<const u8*>(p);
}
template <class T>
u8* bytes(T* p) {
  return reinterpret_cast<u8*>(p);
}

// One kernel per element size.
template <class Kernel>
struct BySize {
  Kernel of1, of2, of4;

  constexpr Kernel operator[](int elementBytes) const {
    return elementBytes == 1 ? of1 : elementBytes == 2 ? of2 : of4;
  }
};

// One kernel per pixel size; those of 4, 8 and 16 bytes also for pixels of four elements whose fourth keeps its value.
template <class Kernel>
struct ByPixel {
  Kernel of1, of2, of3, of4, of6, of8, of12, of16;
  Kernel colors4, colors8, colors16;

  constexpr Kernel get(int pixelBytes, bool keepsAlpha) const {
    switch (pixelBytes) {
      case 1:
        return of1;
      case 2:
        return of2;
      case 3:
        return of3;
      case 4:
        return keepsAlpha ? colors4 : of4;
      case 6:
        return of6;
      case 8:
        return keepsAlpha ? colors8 : of8;
      case 12:
        return of12;
      default:
        return keepsAlpha ? colors16 : of16;
    }
  }
};

}  // namespace rnx::data
