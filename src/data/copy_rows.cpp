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

template <class Channels, class T>
void copy(const CopyCall<T>& call) {
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

constinit const CopyKernels copyKernels = {.of1 = kFlatKernels<u8>, .of2 = kFlatKernels<u16>, .of4 = kFlatKernels<u32>};

}  // namespace RNX_WIDTH
}  // namespace rnx::data
