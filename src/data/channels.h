// Copies between channels, pixels and planes, and reordering of channels: the routes, the checks, the choice of a
// kernel.
#pragma once

#include <algorithm>

#include "data/channel_kernels.h"

namespace rnx::data {

using KernelOf = ChannelKernel ChannelKernels::*;

// ---- The fixed routes, under the names of the layout pairs ----

inline constexpr Route kToPlanes3 = {3, false, 3, true, {0, 1, 2}};
inline constexpr Route kToPlanes4 = {4, false, 4, true, {0, 1, 2, 3}};
inline constexpr Route kFromPlanes3 = {3, true, 3, false, {0, 1, 2}};
inline constexpr Route kFromPlanes4 = {4, true, 4, false, {0, 1, 2, 3}};

struct C3P3 {
  static constexpr Route kRoute = kToPlanes3;
  static constexpr KernelOf kKernel = &ChannelKernels::split3;
};
struct C4P4 {
  static constexpr Route kRoute = kToPlanes4;
  static constexpr KernelOf kKernel = &ChannelKernels::split4;
};
struct P3C3 {
  static constexpr Route kRoute = kFromPlanes3;
  static constexpr KernelOf kKernel = &ChannelKernels::join3;
};
struct P4C4 {
  static constexpr Route kRoute = kFromPlanes4;
  static constexpr KernelOf kKernel = &ChannelKernels::join4;
};
// Channel pointers: the selected channel is channel 0.
struct C3C {
  static constexpr Route kRoute = {3, false, 3, false, {0, kKeep, kKeep}, true};
  static constexpr Route kSetRoute = {0, false, 3, false, {kValue, kKeep, kKeep}, true};
  static constexpr KernelOf kKernel = &ChannelKernels::within3Keep;
  static constexpr KernelOf kSetKernel = &ChannelKernels::value3Keep;
};
struct C4C {
  static constexpr Route kRoute = {4, false, 4, false, {0, kKeep, kKeep, kKeep}, true};
  static constexpr Route kSetRoute = {0, false, 4, false, {kValue, kKeep, kKeep, kKeep}, true};
  static constexpr KernelOf kKernel = &ChannelKernels::within4Keep;
  static constexpr KernelOf kSetKernel = &ChannelKernels::value4Keep;
};
struct C3C1 {
  static constexpr Route kRoute = {3, false, 1, false, {0}, true};
  static constexpr KernelOf kKernel = &ChannelKernels::extract3;
};
struct C4C1 {
  static constexpr Route kRoute = {4, false, 1, false, {0}, true};
  static constexpr KernelOf kKernel = &ChannelKernels::extract4;
};
struct C1C3 {
  static constexpr Route kRoute = {1, false, 3, false, {0, kKeep, kKeep}, true};
  static constexpr KernelOf kKernel = &ChannelKernels::insert3Keep;
};
struct C1C4 {
  static constexpr Route kRoute = {1, false, 4, false, {0, kKeep, kKeep, kKeep}, true};
  static constexpr KernelOf kKernel = &ChannelKernels::insert4Keep;
};
struct C3AC4 {
  static constexpr Route kRoute = {3, false, 4, false, {0, 1, 2, kKeep}};
  static constexpr KernelOf kKernel = &ChannelKernels::widenKeep;
};
struct AC4C3 {
  static constexpr Route kRoute = {4, false, 3, false, {0, 1, 2}};
  static constexpr KernelOf kKernel = &ChannelKernels::narrow;
};
struct DupC1C3 {
  static constexpr Route kRoute = {1, false, 3, false, {0, 0, 0}};
  static constexpr KernelOf kKernel = &ChannelKernels::spread3;
};
struct DupC1C4 {
  static constexpr Route kRoute = {1, false, 4, false, {0, 0, 0, 0}};
  static constexpr KernelOf kKernel = &ChannelKernels::spread4;
};

template <class T, const Route& R>
inline constexpr Positions kPositions = positions(R, sizeof(T));

// ---- A call ----

// One image or plane of a call. A channel pointer spans less than whole pixels: its last pixel is one element.
struct Side {
  int pixelBytes;
  int images;  // 1, or the number of planes
  s64 spanBytes;

  Side(int channels, bool planar, bool channelPointer, int elementBytes, s64 width)
      : pixelBytes(elementBytes * (planar ? 1 : channels)),
        images(channels == 0 ? 0
               : planar      ? channels
                             : 1),
        spanBytes(pixelBytes * (width - 1) + (channelPointer ? elementBytes : pixelBytes)) {}
};

// Merges contiguous rows, and finds out whether the images overlap: the sources with the results, or the results with
// each other. Inlined, for callers know the numbers of channels.
RNX_INLINE void planMove(const Route& route, ChannelCall& call) {
  call.route = &route;
  const Side src(route.srcChannels, route.srcPlanar, route.channelPointer, call.elementBytes, call.width);
  const Side dst(route.dstChannels, route.dstPlanar, route.channelPointer, call.elementBytes, call.width);
  const auto image = [](const u8* p, s64 step, s64 span) {
    return core::Operand{reinterpret_cast<uintptr_t>(p), step, span};
  };
  bool mergeable = call.dstStep == call.width * dst.pixelBytes;
  mergeable = mergeable && (src.images == 0 || call.srcStep == call.width * src.pixelBytes);
  call.walk = core::Walk::kVectors;
  bool apart = true;
  const auto meet = [&](const core::Operand& one, const core::Operand& other) {
    const core::Relation relation = core::relate(one, other, call.height);
    apart = apart && relation == core::Relation::kApart;
    if (relation == core::Relation::kOverlap) call.walk = core::Walk::kInOrder;
    mergeable = mergeable && (relation == core::Relation::kApart || relation == core::Relation::kIdentical);
  };
  for (int j = 0; j < dst.images; ++j) {
    const core::Operand result = image(call.dst[j], call.dstStep, dst.spanBytes);
    for (int i = 0; i < src.images; ++i) meet(result, image(call.src[i], call.srcStep, src.spanBytes));
    for (int i = 0; i < j; ++i) meet(result, image(call.dst[i], call.dstStep, dst.spanBytes));
  }
  const s64 bytesMoved = (src.spanBytes * src.images + dst.spanBytes * dst.images) * call.height;
  if (apart && core::exceedsCaches(bytesMoved)) {
    // Pixels of which something stays are read: they come into the caches anyway.
    const bool keeps = std::find(route.from, route.from + route.dstChannels, kKeep) != route.from + route.dstChannels;
    if (!keeps) call.walk = core::Walk::kStream;
  }
  if (mergeable) {
    call.width *= call.height;
    call.height = 1;
  }
}

inline const ChannelKernels& channelKernels(const Route& route, const ChannelCall& call) {
  const s64 pixelBytes = s64{call.elementBytes} * (route.srcChannels + route.dstChannels);
  return core::wideRows(call.width * call.height * pixelBytes) ? v256::channelKernels : v128::channelKernels;
}

template <class T>
void repeatValue(T value, u8 (&all)[16]) {
  for (size_t i = 0; i < sizeof(all); i += sizeof(T)) __builtin_memcpy(all + i, &value, sizeof(T));
}

// The images of the call are set.
template <class T>
RNX_INLINE void move(ChannelCall& call, const Route& route, const Positions& positions, KernelOf kernel, int srcStep,
                     int dstStep, RnxiSize roi, T value = {}) {
  call.width = roi.width;
  call.height = roi.height;
  call.elementBytes = sizeof(T);
  call.positions = &positions;
  call.srcStep = srcStep;
  call.dstStep = dstStep;
  repeatValue(value, call.value);
  planMove(route, call);
  (channelKernels(route, call).*kernel)(call);
}

// ---- Copies ----

template <class T, class Layouts>
RnxStatus moveFixed(ChannelCall& call, int srcStep, int dstStep, RnxiSize roi) {
  if (core::empty(roi)) return rnxStatusBadSize;

  move<T>(call, Layouts::kRoute, kPositions<T, Layouts::kRoute>, Layouts::kKernel, srcStep, dstStep, roi);
  return rnxStatusNoError;
}

template <class T, class Layouts>
RnxStatus copyChannels(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;

  ChannelCall call;
  call.src[0] = bytes(src);
  call.dst[0] = bytes(dst);
  return moveFixed<T, Layouts>(call, srcStep, dstStep, roi);
}

template <class T, class Layouts>
RnxStatus copyToPlanes(const T* src, int srcStep, T* const* dst, int dstStep, RnxiSize roi) {
  constexpr int kPlanes = Layouts::kRoute.dstChannels;
  if (core::anyNull(src, dst) || std::find(dst, dst + kPlanes, nullptr) != dst + kPlanes) return rnxStatusNullPointer;

  ChannelCall call;
  call.src[0] = bytes(src);
  for (int k = 0; k < kPlanes; ++k) call.dst[k] = bytes(dst[k]);
  return moveFixed<T, Layouts>(call, srcStep, dstStep, roi);
}

template <class T, class Layouts>
RnxStatus copyFromPlanes(const T* const* src, int srcStep, T* dst, int dstStep, RnxiSize roi) {
  constexpr int kPlanes = Layouts::kRoute.srcChannels;
  if (core::anyNull(src, dst) || std::find(src, src + kPlanes, nullptr) != src + kPlanes) return rnxStatusNullPointer;

  ChannelCall call;
  for (int k = 0; k < kPlanes; ++k) call.src[k] = bytes(src[k]);
  call.dst[0] = bytes(dst);
  return moveFixed<T, Layouts>(call, srcStep, dstStep, roi);
}

template <class T, class Layouts>
RnxStatus setChannel(T value, T* dst, int dstStep, RnxiSize roi) {
  if (core::anyNull(dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  ChannelCall call;
  call.dst[0] = bytes(dst);
  move(call, Layouts::kSetRoute, kPositions<T, Layouts::kSetRoute>, Layouts::kSetKernel, 0, dstStep, roi, value);
  return rnxStatusNoError;
}

// ---- SwapChannels ----

// Compared as unsigned, so that a negative entry is out of range too.
template <int N>
RNX_INLINE bool validOrder(const int* order, unsigned limit) {
  return std::all_of(order, order + N, [limit](int entry) { return static_cast<unsigned>(entry) < limit; });
}

template <class T>
RNX_INLINE void reorder(const Route& route, KernelOf kernel, const T* src, int srcStep, T* dst, int dstStep,
                        RnxiSize roi, T value = {}) {
  Positions at;
  // With four channels on one side or both, chunks hold whole pixels and are all alike: the first one is enough.
  constexpr int kElements = 16 / sizeof(T);
  if (route.dstChannels == 4) {
    firstPositions<sizeof(T), 4, kElements / 4>(route, at);
  } else if (route.srcChannels == 4) {
    firstPositions<sizeof(T), 3, kElements / 4>(route, at);
  } else {
    firstPositions<sizeof(T), 3, kElements>(route, at);
  }
  ChannelCall call;
  call.src[0] = bytes(src);
  call.dst[0] = bytes(dst);
  move(call, route, at, kernel, srcStep, dstStep, roi, value);
}

// dst and src have as many channels. The fourth one of AC4 keeps its value.
template <class L, class T>
RNX_INLINE void reorderWithin(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, const int* order) {
  Route route = {L::kChannels, false, L::kChannels, false, {0, 0, 0, kKeep}};
  RNX_UNROLL
  for (int i = 0; i < L::kUsed; ++i) route.from[i] = static_cast<s8>(order[i]);
  constexpr auto kKernel = L::kChannels == 3    ? &ChannelKernels::within3
                           : core::kHasAlpha<L> ? &ChannelKernels::within4Keep
                                                : &ChannelKernels::within4;
  reorder(route, kKernel, src, srcStep, dst, dstStep, roi);
}

template <class T>
RnxStatus checkSwap(const T* src, int srcStep, const T* dst, int dstStep, RnxiSize roi, const int* order) {
  if (core::anyNull(src, dst, order)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (srcStep == 0 || dstStep == 0) return rnxStatusBadStep;
  return rnxStatusNoError;
}

template <class T>
RnxStatus swapThree(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, const int* order) {
  if (const RnxStatus status = checkSwap(src, srcStep, dst, dstStep, roi, order)) return status;
  if (!validOrder<3>(order, 3)) return rnxStatusBadChannelOrder;

  reorderWithin<core::C3>(src, src == dst ? dstStep : srcStep, dst, dstStep, roi, order);
  return rnxStatusNoError;
}

template <class T>
RnxStatus swapFourToThree(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, const int* order) {
  if (const RnxStatus status = checkSwap(src, srcStep, dst, dstStep, roi, order)) return status;
  if (!validOrder<3>(order, 4)) return rnxStatusBadChannelOrder;

  Route route = {4, false, 3, false, {}};
  RNX_UNROLL
  for (int i = 0; i < 3; ++i) route.from[i] = static_cast<s8>(order[i]);
  reorder(route, &ChannelKernels::narrow, src, srcStep, dst, dstStep, roi);
  return rnxStatusNoError;
}

// Entries 0 to 2 copy, 3 writes the constant, larger ones leave the element as it is.
template <class T>
RnxStatus swapThreeToFour(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, const int* order, T value) {
  if (const RnxStatus status = checkSwap(src, srcStep, dst, dstStep, roi, order)) return status;
  if (!validOrder<4>(order, 0x80000000u)) return rnxStatusBadChannelOrder;

  Route route = {3, false, 4, false, {}};
  bool keeps = false;
  RNX_UNROLL
  for (int i = 0; i < 4; ++i) {
    route.from[i] = order[i] < 3 ? static_cast<s8>(order[i]) : order[i] == 3 ? kValue : kKeep;
    keeps = keeps || order[i] > 3;
  }
  reorder(route, keeps ? &ChannelKernels::widenKeep : &ChannelKernels::widen, src, srcStep, dst, dstStep, roi, value);
  return rnxStatusNoError;
}

template <class T, class L>
RnxStatus swapFour(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, const int* order) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (srcStep == 0 || dstStep == 0) return rnxStatusBadStep;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (core::anyNull(order)) return rnxStatusNullPointer;
  if (!validOrder<L::kUsed>(order, L::kUsed)) return rnxStatusBadChannelOrder;

  reorderWithin<L>(src, srcStep, dst, dstStep, roi, order);
  return rnxStatusNoError;
}

template <class T, class L>
RnxStatus swapInPlace(T* srcDst, int step, RnxiSize roi, const int* order) {
  if (core::anyNull(srcDst)) return rnxStatusNullPointer;
  if (step == 0) return rnxStatusBadStep;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (core::anyNull(order)) return rnxStatusNullPointer;
  if (!validOrder<L::kUsed>(order, L::kUsed)) return rnxStatusBadChannelOrder;

  reorderWithin<L>(srcDst, step, srcDst, step, roi, order);
  return rnxStatusNoError;
}

}  // namespace rnx::data
