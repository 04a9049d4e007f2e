// Alpha premultiplication against the exact quotient, over all pairs of values.
#include <numeric>

#include "kernel/values_support.h"

namespace rnx::test {
namespace {

// a * v / max, to nearest; max is odd, so there are no ties.
template <class T>
T product(u64 a, u64 v) {
  constexpr u64 kMax = static_cast<T>(~T(0));
  return static_cast<T>((2 * a * v + kMax) / (2 * kMax));
}

class Alpha : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& signature = *GetParam();
  ValuesDriver driver{signature};
  const bool constant = signature.family == "AlphaPremulC";

  template <class T>
  bool checkOnce(s64 width, s64 height) {
    const auto alpha = static_cast<T>(driver.random.next());
    if (constant) driver.call.set("alpha", alpha);
    driver.place(width, height, Data::kBits);
    return driver.check([=, this](const u8* from, u8* to, s64 pixels) {
      const int n = signature.channels();
      for (s64 i = 0; i < pixels * n; ++i) {
        const T v = get<T>(from, i), own = get<T>(from, i / n * n + n - 1);
        const bool isAlpha = signature.hasAlpha() && i % 4 == 3;
        put<T>(to, i, isAlpha ? (constant ? alpha : own) : product<T>(constant ? alpha : own, v));
      }
    });
  }
};

TEST_P(Alpha, EqualsTheRule) {
  driver.sizes(
      [&](s64 w, s64 h) { return signature.source() == Element::k8u ? checkOnce<u8>(w, h) : checkOnce<u16>(w, h); });
}

INSTANTIATE_TEST_SUITE_P(Table, Alpha,
                         testing::ValuesIn(select({.family = "AlphaPremul AlphaPremulC", .layout = "C1 C3 C4 AC4"})),
                         byName);

TEST(AlphaTable, HasAllExports) { EXPECT_EQ(select({.subsystem = "alpha"}).size(), 28u); }

// Pixels that overlap in part: as a loop over the pixels.
TEST_P(Alpha, Overlaps) {
  if (driver.inPlace) return;
  const auto run = [&](auto zero) {
    using T = decltype(zero);
    Random& random = driver.random;
    const int n = signature.hasAlpha() ? 4 : 1;  // what is computed together
    Image memory;
    for (int round = 0; round < 120; ++round) {
      const s64 roiWidth = random.between(1, 80), width = roiWidth * signature.channels() / n;
      const s64 height = round % 3 == 0 ? 1024 / width + 1 : random.between(1, 3);
      const s64 pitch = (width * n + random.between(0, 3)) * s64{sizeof(T)};
      memory.place({pitch * (height + 4) + 200, 1, 0}, Placement::kInside, random);
      u8* src = memory.data() + 100 + 2 * pitch;
      u8* dst = src + random.between(-12, 12) * s64{sizeof(T)} + pitch * random.between(-1, 1);
      const auto alpha = static_cast<T>(random.next());
      memory.expectNow();
      for (s64 y = 0; y < height; ++y) {
        for (s64 x = 0; x < width; ++x) {
          T pixel[4];
          std::memcpy(pixel, memory.shadow(src) + y * pitch + x * n * s64{sizeof(T)},
                      sizeof(T) * static_cast<size_t>(n));
          for (int c = 0; c < n; ++c) {
            const bool isAlpha = signature.hasAlpha() && c == 3;
            const T factor = constant ? alpha : pixel[3];
            put<T>(memory.shadow(dst) + y * pitch, x * n + c, isAlpha ? factor : product<T>(factor, pixel[c]));
          }
        }
      }
      for (int vectorBytes : vectorWidths()) {
        const ScopedWidth scope(vectorBytes);
        if (constant) driver.call.set("alpha", alpha);
        driver.call.image("src", src, pitch).image("dst", dst, pitch).roi(roiWidth, height);
        ASSERT_EQ(driver.call(), rnxStatusNoError);
        ASSERT_TRUE(memory.matches()) << width << " x " << height << ", " << dst - src << ", pitch " << pitch;
        memory.rewind();
      }
    }
  };
  signature.source() == Element::k8u ? run(u8{}) : run(u16{});
}

template <class T, class Planes>
void checkPlanes(Planes planes, RnxStatus (*constant)(const T* const*, int, T, T* const*, int, RnxiSize)) {
  Random random("planes");
  constexpr int kWidth = 67, kHeight = 40, kStep = kWidth * static_cast<int>(sizeof(T));
  std::vector<T> src[4], dst[4];
  for (auto& plane : src) {
    plane.resize(kWidth * kHeight);
    fillBytes(random, plane.data(), kStep * kHeight);
  }
  for (auto& plane : dst) plane.resize(kWidth * kHeight);
  const T* from[4] = {src[0].data(), src[1].data(), src[2].data(), src[3].data()};
  T* to[4] = {dst[0].data(), dst[1].data(), dst[2].data(), dst[3].data()};
  ASSERT_EQ(planes(from, kStep, to, kStep, RnxiSize{kWidth, kHeight}), rnxStatusNoError);
  for (size_t i = 0; i < kWidth * kHeight; ++i) {
    for (int c = 0; c < 3; ++c) ASSERT_EQ(dst[c][i], product<T>(src[c][i], src[3][i]));
    ASSERT_EQ(dst[3][i], src[3][i]);
  }
  ASSERT_EQ(constant(from, kStep, 100, to, kStep, RnxiSize{kWidth, kHeight}), rnxStatusNoError);
  for (size_t i = 0; i < kWidth * kHeight; ++i) {
    for (int c = 0; c < 3; ++c) ASSERT_EQ(dst[c][i], product<T>(src[c][i], 100));
    ASSERT_EQ(dst[3][i], 100);
  }
  to[2] = nullptr;
  EXPECT_EQ(planes(from, kStep, to, kStep, RnxiSize{0, 0}), rnxStatusNullPointer);
}

// In place, and with planes that are one another's: one plane after the other.
template <class T>
void checkPlanesInPlace(RnxStatus (*own)(T* const*, int, RnxiSize),
                        RnxStatus (*byConstant)(T, T* const*, int, RnxiSize),
                        RnxStatus (*apart)(const T* const*, int, T* const*, int, RnxiSize)) {
  constexpr int kWidth = 91, kHeight = 30, kStep = (kWidth + 2) * static_cast<int>(sizeof(T));
  constexpr RnxiSize kRoi = {kWidth, kHeight};
  for (int which = 0; which < 3; ++which) {
    Random random("planes in place");
    std::vector<T> planes[4], expected[4];
    T* at[4];
    for (size_t p = 0; p < 4; ++p) {
      planes[p].resize((kWidth + 2) * kHeight);
      fillBytes(random, planes[p].data(), kStep * kHeight);
      expected[p] = planes[p];
      at[p] = planes[p].data();
    }
    const T* sources[4] = {at[3], at[0], at[1], at[2]};  // the first result overwrites the second source
    size_t source[4] = {0, 1, 2, 3};
    if (which == 2) std::rotate(source, source + 3, source + 4);
    for (size_t p = 0; p < 4; ++p) {
      for (size_t y = 0; y < kHeight; ++y) {
        for (size_t x = 0; x < kWidth; ++x) {
          const size_t i = y * (kWidth + 2) + x;
          const T alpha = which == 1 ? T(200) : expected[source[3]][i];
          expected[p][i] = p == 3 ? alpha : product<T>(alpha, expected[source[p]][i]);
        }
      }
    }
    const RnxStatus status = which == 0   ? own(at, kStep, kRoi)
                             : which == 1 ? byConstant(T(200), at, kStep, kRoi)
                                          : apart(sources, kStep, at, kStep, kRoi);
    ASSERT_EQ(status, rnxStatusNoError);
    for (size_t p = 0; p < 4; ++p) ASSERT_EQ(planes[p], expected[p]) << "plane " << p << ", " << which;
  }
}

TEST(AlphaPlanes, InPlace) {
  checkPlanesInPlace<u8>(rnxiAlphaPremul_8u_AP4IR, rnxiAlphaPremulC_8u_AP4IR, rnxiAlphaPremul_8u_AP4R);
  checkPlanesInPlace<u16>(rnxiAlphaPremul_16u_AP4IR, rnxiAlphaPremulC_16u_AP4IR, rnxiAlphaPremul_16u_AP4R);
}

TEST(AlphaPlanes, EqualTheRule) {
  checkPlanes<u8>(rnxiAlphaPremul_8u_AP4R, rnxiAlphaPremulC_8u_AP4R);
  checkPlanes<u16>(rnxiAlphaPremul_16u_AP4R, rnxiAlphaPremulC_16u_AP4R);
}

// Each alpha with all values, with both widths.
template <class T>
void checkAllPairs(RnxStatus (*premul)(const T*, int, T, T*, int, RnxiSize), u32 alphaStep) {
  constexpr u32 kValues = 1u << (8 * sizeof(T));
  std::vector<T> all(kValues), result(kValues);
  std::iota(all.begin(), all.end(), T(0));
  for (int vectorBytes : vectorWidths()) {
    const ScopedWidth scope(vectorBytes);
    for (u32 a = 0; a < kValues; a += alphaStep) {
      // Rows of half the values, so that bytes too are enough for the wide kernels: each row four times.
      std::fill(result.begin(), result.end(), T(1));
      for (u32 first = 0; first < kValues; first += 128) {
        premul(all.data() + first, 0, static_cast<T>(a), result.data() + first, 0, {128, 16});
      }
      for (u32 v = 0; v < kValues; ++v) {
        if (result[v] != product<T>(a, v)) FAIL() << a << " * " << v << ": " << result[v];
      }
    }
  }
}

TEST(AlphaPairs, All8u) { checkAllPairs<u8>(rnxiAlphaPremulC_8u_C1R, 1); }
TEST(AlphaPairs, All16u) {
  std::vector<u16> all(65536), result(65536);
  std::iota(all.begin(), all.end(), u16(0));
#ifdef RNXIP_SANITIZED
  constexpr u32 kStep = 257;
#else
  constexpr u32 kStep = 1;
#endif
  for (u32 a = 0; a < 65536; a += kStep) {
    const ScopedWidth scope(a % 64 == 0 ? 16 : 32);
    rnxiAlphaPremulC_16u_C1R(all.data(), 131072, static_cast<u16>(a), result.data(), 131072, {65536, 1});
    u32 wrong = 0;
    for (u32 v = 0; v < 65536; ++v) {  // 2 * a * v fits 64 bits; division by a constant
      wrong |= static_cast<u32>(result[v] ^ product<u16>(a, v));
    }
    ASSERT_EQ(wrong, 0u) << a;
  }
}

}  // namespace
}  // namespace rnx::test
