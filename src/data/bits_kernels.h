// The row kernels of the conversions between gray and one-bit images, as the operations see them.
#pragma once

#include "core/image.h"

namespace rnx::data {

template <class T>
struct ToBitsCall {
  s64 width, height;
  bool inOrder;  // the images overlap: pixel by pixel
  const T* src;
  s64 srcStep;
  u8* dst;
  s64 dstStep;
  int offset;  // of the first bit in its byte, 0 to 7
  T threshold;
};

template <class T>
struct FromBitsCall {
  s64 width, height;
  bool inOrder;
  const u8* src;
  s64 srcStep;
  int offset;
  T* dst;
  s64 dstStep;
  T low, high;
};

template <class T>
struct BitsForms {
  void (*toBits)(const ToBitsCall<T>&);
  void (*fromBits)(const FromBitsCall<T>&);
};

struct BitsKernels {
  BitsForms<u8> of8u;
  BitsForms<u16> of16u;
  BitsForms<s16> of16s;
  BitsForms<f32> of32f;
};

namespace v128 {
extern const BitsKernels bitsKernels;
}
namespace v256 {
extern const BitsKernels bitsKernels;
}

inline const BitsForms<u8>& bitsForms(const BitsKernels& k, u8) { return k.of8u; }
inline const BitsForms<u16>& bitsForms(const BitsKernels& k, u16) { return k.of16u; }
inline const BitsForms<s16>& bitsForms(const BitsKernels& k, s16) { return k.of16s; }
inline const BitsForms<f32>& bitsForms(const BitsKernels& k, f32) { return k.of32f; }

}  // namespace rnx::data
