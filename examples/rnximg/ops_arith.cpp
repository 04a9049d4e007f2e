// Arithmetic: constants per colour, and second images.
#include <algorithm>
#include <cmath>

#include "operations.h"

namespace rnximg {
namespace {

using Colors = std::array<Rnx8u, 3>;

// ---- The functions' forms for gray, RGB, and RGB with alpha ----

struct WithConstant {
  RnxStatus (*c1)(Rnx8u, Rnx8u*, int, RnxiSize, int);
  RnxStatus (*c3)(const Rnx8u*, Rnx8u*, int, RnxiSize, int);
  RnxStatus (*ac4)(const Rnx8u*, Rnx8u*, int, RnxiSize, int);

  void operator()(const Colors& values, Image& image, int scaleFactor = 0) const {
    check(image.channels() == 1
              ? c1(values[0], image.data(), image.step(), image.size(), scaleFactor)
              : byChannels(image, c3, c3, ac4)(values.data(), image.data(), image.step(), image.size(), scaleFactor));
  }
  void operator()(Rnx8u value, Image& image) const { (*this)(Colors{value, value, value}, image); }
};

constexpr WithConstant kAddC = {rnxiAddC_8u_C1IRSfs, rnxiAddC_8u_C3IRSfs, rnxiAddC_8u_AC4IRSfs};
constexpr WithConstant kSubC = {rnxiSubC_8u_C1IRSfs, rnxiSubC_8u_C3IRSfs, rnxiSubC_8u_AC4IRSfs};
constexpr WithConstant kMulC = {rnxiMulC_8u_C1IRSfs, rnxiMulC_8u_C3IRSfs, rnxiMulC_8u_AC4IRSfs};
constexpr WithConstant kDivC = {rnxiDivC_8u_C1IRSfs, rnxiDivC_8u_C3IRSfs, rnxiDivC_8u_AC4IRSfs};

// In place: the second operand receives the result.
struct WithImage {
  using Form = RnxStatus (*)(const Rnx8u*, int, Rnx8u*, int, RnxiSize, int);
  Form c1, c3, ac4;

  void operator()(const Image& first, Image& second, int scaleFactor = 0) const {
    check(byChannels(second, c1, c3, ac4)(first.data(), first.step(), second.data(), second.step(), second.size(),
                                          scaleFactor));
  }
};

constexpr WithImage kAdd = {rnxiAdd_8u_C1IRSfs, rnxiAdd_8u_C3IRSfs, rnxiAdd_8u_AC4IRSfs};
constexpr WithImage kSub = {rnxiSub_8u_C1IRSfs, rnxiSub_8u_C3IRSfs, rnxiSub_8u_AC4IRSfs};
constexpr WithImage kMul = {rnxiMul_8u_C1IRSfs, rnxiMul_8u_C3IRSfs, rnxiMul_8u_AC4IRSfs};
constexpr WithImage kDiv = {rnxiDiv_8u_C1IRSfs, rnxiDiv_8u_C3IRSfs, rnxiDiv_8u_AC4IRSfs};

// ---- Gains: MulC by 8-bit constants with the scale factor that leaves them the most bits ----

constexpr double kMaxGain = 255;

void multiplyBy(const std::array<double, 3>& gains, Image& image) {
  const double largest = *std::max_element(gains.begin(), gains.end());
  int scaleFactor = 16;
  while (scaleFactor > 0 && std::lround(std::ldexp(largest, scaleFactor)) > 255) --scaleFactor;
  Colors values = {};
  std::transform(gains.begin(), gains.end(), values.begin(),
                 [&](double gain) { return static_cast<Rnx8u>(std::lround(std::ldexp(gain, scaleFactor))); });
  kMulC(values, image, scaleFactor);
}

// ---- Operations ----

template <const WithConstant& Function>
void byLevels(Image& image, Arguments& arguments) {
  Function(arguments.levels("LEVEL", image), image);
}

void divc(Image& image, Arguments& arguments) {
  const Colors divisors = arguments.levels("DIVISOR", image);
  if (std::find(divisors.begin(), divisors.end(), 0) != divisors.end()) failUsage("DIVISOR must not be 0");
  kDivC(divisors, image);
}

void mulc(Image& image, Arguments& arguments) { multiplyBy(arguments.perColor("GAIN", 0, kMaxGain, image), image); }

void brightness(Image& image, Arguments& arguments) {
  const int change = arguments.integer("CHANGE", -255, 255);
  (change < 0 ? kSubC : kAddC)(static_cast<Rnx8u>(std::abs(change)), image);
}

// 128 + gain * (v - 128). The parts above and below 128 are formed apart, for 8 bits hold no negative values; one of
// them is 0 at every pixel.
void contrast(Image& image, Arguments& arguments) {
  const double gain = arguments.number("GAIN", 0, kMaxGain);
  constexpr Rnx8u kMiddle = 128;
  Image below(image.size(), image.channels());
  kMulC(Rnx8u{0}, below);
  kAddC(kMiddle, below);
  kSub(image, below);
  kSubC(kMiddle, image);
  multiplyBy({gain, gain, gain}, below);
  multiplyBy({gain, gain, gain}, image);
  kAddC(kMiddle, image);
  kSub(below, image);
}

void blend(Image& image, Arguments& arguments) {
  Image other = arguments.sameSizeImage("FILE", image);
  const double weight = arguments.more() ? arguments.number("WEIGHT", 0, 1) : 0.5;
  constexpr int kWeightBits = 7;
  constexpr int kWhole = 1 << kWeightBits;
  const auto share = static_cast<Rnx8u>(std::lround(weight * kWhole));
  const auto rest = static_cast<Rnx8u>(kWhole - share);
  if (share == rest) {
    kAdd(other, image, 1);  // rounds once
  } else {
    kMulC({share, share, share}, other, kWeightBits);
    kMulC({rest, rest, rest}, image, kWeightBits);
    kAdd(other, image);
  }
}

// |image - other|: each difference saturates at 0 where the other one does not.
void difference(Image& image, Arguments& arguments) {
  const Image other = arguments.sameSizeImage("FILE", image);
  Image reverse(image.size(), image.channels());
  check(byChannels(image, rnxiSub_8u_C1RSfs, rnxiSub_8u_C3RSfs, rnxiSub_8u_AC4RSfs)(
      image.data(), image.step(), other.data(), other.step(), reverse.data(), reverse.step(), image.size(), 0));
  kSub(other, image);
  kAdd(reverse, image);
}

template <const WithImage& Function, int ScaleFactor>
void withFile(Image& image, Arguments& arguments) {
  Function(arguments.sameSizeImage("FILE", image), image, ScaleFactor);
}

const Family kFamily(
    "Arithmetic",
    {
        {"brightness", "CHANGE", "adds CHANGE (-255 to 255) to every colour", brightness},
        {"contrast", "GAIN", "stretches around the middle: 128 + GAIN * (v - 128)", contrast,
         "GAIN is kept to 8 significant bits."},
        {"addc", "LEVEL | R G B", "adds a level (0 to 255) for all colours, or one for each", byLevels<kAddC>},
        {"subc", "LEVEL | R G B", "subtracts a level (0 to 255) for all colours, or one for each", byLevels<kSubC>},
        {"mulc", "GAIN | R G B", "multiplies by a gain (0 to 255, e.g. 1.2) for all colours, or one for each", mulc,
         "Gains are kept as 8-bit multiples of one power of two, which the largest gain decides."},
        {"divc", "DIVISOR | R G B", "divides by an integer (1 to 255) for all colours, or one for each", divc},
        {"blend", "FILE [WEIGHT]", "mixes in a second image: (1 - WEIGHT) * image + WEIGHT * FILE; WEIGHT 0.5", blend,
         "WEIGHT is from 0 to 1 and kept in steps of 1/128."},
        {"difference", "FILE", "absolute difference to a second image", difference},
        {"multiply", "FILE", "product with a second image, divided by 256", withFile<kMul, 8>},
        {"divide", "FILE", "128 * image / FILE: 128 where both are equal", withFile<kDiv, -7>,
         "Evens out uneven light, given a picture of the light alone. A zero in FILE gives 255, or 0 for 0 / 0."},
    });

}  // namespace
}  // namespace rnximg
