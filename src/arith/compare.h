// Comparison of two images into a mask.
#pragma once

#include <utility>

#include "arith/compare_kernels.h"
#include "core/checks.h"
#include "simd/float_state.h"

namespace rnx::arith {

inline const CompareKernelsOf<u8>& kernelsOf(const CompareKernels& k, u8) { return k.of8u; }
inline const CompareKernelsOf<u16>& kernelsOf(const CompareKernels& k, u16) { return k.of16u; }
inline const CompareKernelsOf<s16>& kernelsOf(const CompareKernels& k, s16) { return k.of16s; }
inline const CompareKernelsOf<f32>& kernelsOf(const CompareKernels& k, f32) { return k.of32f; }

template <class T>
const Relations<T>& relationsOf(const CompareKernelsOf<T>& k, core::C1) {
  return k.c1;
}
template <class T>
const Relations<T>& relationsOf(const CompareKernelsOf<T>& k, core::C3) {
  return k.c3;
}
template <class T>
const Relations<T>& relationsOf(const CompareKernelsOf<T>& k, core::C4) {
  return k.c4;
}
template <class T>
const Relations<T>& relationsOf(const CompareKernelsOf<T>& k, core::AC4) {
  return k.ac4;
}

// The steps are tested before the size, and a bad selector is not an error: it leaves the destination as it is.
template <class T, class L>
RnxStatus compare(const T* src1, int src1Step, const T* src2, int src2Step, u8* dst, int dstStep, RnxiSize roi,
                  int cmpOp) {
  if (core::anyNull(src1, src2, dst)) return rnxStatusNullPointer;
  if (core::anyStepBelow1(src1Step, src2Step, dstStep)) return rnxStatusBadStep;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (cmpOp < rnxCmpLess || cmpOp > rnxCmpGreater) return rnxStatusNoError;

  CompareCall<T> call = {.rows = core::planRows(roi.width, roi.height, core::operand(dst, dstStep, roi.width),
                                                core::operand(src1, src1Step, s64{roi.width} * L::kChannels),
                                                core::operand(src2, src2Step, s64{roi.width} * L::kChannels)),
                         .left = src1,
                         .leftStep = src1Step,
                         .right = src2,
                         .rightStep = src2Step,
                         .dst = dst,
                         .dstStep = dstStep};
  if (cmpOp >= rnxCmpGreaterEq) {
    std::swap(call.left, call.right);
    std::swap(call.leftStep, call.rightStep);
  }
  const auto& table = core::wideRows(call.rows.bytesMoved) ? v256::compareKernels : v128::compareKernels;
  const Relations<T>& relations = relationsOf(kernelsOf(table, T{}), L{});
  const bool strict = cmpOp == rnxCmpLess || cmpOp == rnxCmpGreater;
  [[maybe_unused]] const simd::FloatStateFor<T> state;
  (cmpOp == rnxCmpEq ? relations.equal : strict ? relations.less : relations.lessEq)(call);
  return rnxStatusNoError;
}

}  // namespace rnx::arith
