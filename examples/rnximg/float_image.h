// Images of 32f and their way from and to bytes.
#pragma once

#include "image.h"

namespace rnximg {

using FloatImage = BasicImage<Rnx32f>;

// The alpha of an image that has one is not converted.
inline FloatImage toFloat(const Image& image) {
  FloatImage result(image.size(), image.channels());
  check(byChannels(image, rnxiConvert_8u32f_C1R, rnxiConvert_8u32f_C3R, rnxiConvert_8u32f_AC4R)(
      image.data(), image.step(), result.data(), result.step(), image.size()));
  return result;
}

inline void toBytes(const FloatImage& from, Image& image, int roundMode = rnxRoundNearestEven) {
  check(byChannels(image, rnxiConvert_32f8u_C1R, rnxiConvert_32f8u_C3R, rnxiConvert_32f8u_AC4R)(
      from.data(), from.step(), image.data(), image.step(), image.size(), roundMode));
}

}  // namespace rnximg
