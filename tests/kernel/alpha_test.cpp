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
