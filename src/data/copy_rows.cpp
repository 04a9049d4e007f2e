// Row kernels of Copy and Set: element-wise loops that compute nothing.
#include "data/copy_kernels.h"
#include "simd/rows.h"

namespace rnx::data {
namespace {

using namespace simd;

struct Same {
  template <class T>
  RNX_INLINE Vec<T> operator()(Vec<T> v) const {
    return v;
  }
};

// Rows of one vector to two, or of two to four: half of the vectors from either end, which may overlap. Such rows are
// too short for the loop of forEachElement.
template <int Half, class T>
void copyShortRows(const CopyCall<T>& call) {
  constexpr s64 L = Vec<T>::kLanes;
  const T* src = call.src;
  T* dst = call.dst;
  const s64 end = call.rows.width - Half * L;
  for (s64 y = 0; y < call.rows.height; ++y) {
    Vec<T> v[2 * Half];
    RNX_UNROLL
    for (int k = 0; k < Half; ++k) v[k] = Vec<T>::load(src + k * L), v[Half + k] = Vec<T>::load(src + end + k * L);
    RNX_UNROLL
    for (int k = 0; k < Half; ++k) v[k].store(dst + k * L), v[Half + k].store(dst + end + k * L);
    src = core::at(src, call.srcStep);
    dst = core::at(dst, call.dstStep);
  }
}

template <class Channels, class T>
void copy(const CopyCall<T>& call) {
  constexpr s64 L = Vec<T>::kLanes;
  const s64 n = call.rows.width;
  if (!Channels::kKeepsAlpha && call.rows.walk == core::Walk::kVectors && n >= L && n <= 4 * L) {
    return n <= 2 * L ? copyShortRows<1>(call) : copyShortRows<2>(call);
  }
  Same same;
  forEachElement<Channels>(call.rows, call.dst, call.dstStep, same, ImageSource<T>{call.src, call.srcStep});
}

template <class Channels, class T>
void fill(const FillCall<T>& call) {
  Same same;
  forEachElement<Channels>(call.rows, call.dst, call.dstStep, same, PatternSource<T>(call.values, call.period));
}

template <class T>
constexpr FlatKernels<T> kFlatKernels = {.copy = copy<AllChannels<T>>,
                                         .copyColors = copy<ColorChannels<T>>,
                                         .fill = fill<AllChannels<T>>,
                                         .fillColors = fill<ColorChannels<T>>};

}  // namespace

namespace RNX_WIDTH {

constinit const CopyKernels copyKernels = {
    .of1 = kFlatKernels<u8>,
    .of2 = kFlatKernels<u16>,
    .of4 = kFlatKernels<u32>,
    .of8 = {.copy = copy<AllChannels<u64>, u64>, .copyColors = nullptr, .fill = nullptr, .fillColors = nullptr}};

}  // namespace RNX_WIDTH
}  // namespace rnx::data
