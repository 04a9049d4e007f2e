// The general linear filter: reported sizes, statuses in order, and what specs take.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <iterator>

#include "core/types.h"
#include "rnxip.h"

namespace rnx::test {
namespace {

// ---- Sizes and specs ----

TEST(FilterGetSize, Reports) {
  struct {
    RnxiSize kernel;
    int dataType, kernelType, channels, specSize;
  } const cases[] = {
      {{3, 3}, rnx64f, rnx64f, 1, 128 + 191},
      {{3, 3}, rnx8u, rnx16s, 1, 64 + 191 + 960},
      {{3, 3}, rnx16s, rnx16s, 2, 64 + 191 + 960},
      {{3, 3}, rnx16s, rnx16s, 3, 64 + 191 + 960 + 192},
      {{2, 3}, rnx16s, rnx16s, 1, 64 + 191 + 512 + 128},
      {{2, 3}, rnx16s, rnx16s, 2, 64 + 191 + 512},
      {{5, 1}, rnx16s, rnx16s, 2, 64 + 191 + 512},
      {{3, 3}, rnx32f, rnx32f, 2, 64 + 191 + 960},
      {{3, 3}, rnx16u, rnx16s, 4, 64 + 191 + 960 + 192},
  };
  for (const auto& c : cases) {
    int spec = -1, buffer = -1;
    EXPECT_EQ(rnxiFilterBorderGetSize(c.kernel, {100, 50}, c.dataType, c.kernelType, c.channels, &spec, &buffer), 0);
    EXPECT_EQ(spec, c.specSize) << c.dataType << ' ' << c.kernelType << ' ' << c.channels;
    EXPECT_GT(buffer, 0);
  }
}

TEST(FilterGetSize, GrowsWithRowsNotWithTheImage) {
  int spec = 0, small = 0, large = 0;
  rnxiFilterBorderGetSize({15, 15}, {30000, 10}, rnx8u, rnx16s, 4, &spec, &small);
  EXPECT_EQ(rnxiFilterBorderGetSize({15, 15}, {30000, 30000}, rnx8u, rnx16s, 4, &spec, &large), rnxStatusNoError);
  EXPECT_EQ(small, large);
  EXPECT_LT(large, 30015 * 4 * 8 * 20);
}

TEST(FilterGetSize, RefusesAndWritesZeros) {
  struct {
    RnxiSize kernel, roi;
    int dataType, kernelType, channels;
    RnxStatus status;
  } const cases[] = {
      {{0, 3}, {9, 9}, 99, 99, 9, rnxStatusBadSize},
      {{3, 3}, {9, 0}, rnx8u, rnx16s, 1, rnxStatusBadSize},
      {{3, 3}, {9, 9}, rnx32f, rnx64f, 2, rnxStatusBadDataType},
      {{3, 3}, {9, 9}, rnx64f, rnx64f, 2, rnxStatusBadChannel},
      {{3, 3}, {9, 9}, rnx64f, rnx32f, 9, rnxStatusBadDataType},
      {{3, 3}, {9, 9}, rnx8u, rnx8u, 9, rnxStatusBadDataType},
      {{3, 3}, {9, 9}, rnx8u, rnx16s, 0, rnxStatusBadChannel},
      {{3, 3}, {9, 9}, rnx8u, rnx16s, 5, rnxStatusBadChannel},
      {{1, 1}, {INT_MAX, 1}, rnx32f, rnx32f, 4, rnxStatusSizeOverflow},
      {{INT_MAX, INT_MAX}, {INT_MAX, INT_MAX}, rnx64f, rnx64f, 1, rnxStatusSizeOverflow},
      {{1, INT_MAX}, {INT_MAX, 1}, rnx8u, rnx16s, 4, rnxStatusSizeOverflow},
      {{30000, 30000}, {1, 1}, rnx8u, rnx16s, 1, rnxStatusSizeOverflow},
  };
  for (const auto& c : cases) {
    int spec = -1, buffer = -1;
    EXPECT_EQ(rnxiFilterBorderGetSize(c.kernel, c.roi, c.dataType, c.kernelType, c.channels, &spec, &buffer), c.status);
    EXPECT_EQ(spec, 0);
    EXPECT_EQ(buffer, 0);
    const RnxStatus expected = c.status == rnxStatusSizeOverflow ? rnxStatusNullPointer : c.status;
    EXPECT_EQ(rnxiFilterBorderGetSize(c.kernel, c.roi, c.dataType, c.kernelType, c.channels, nullptr, &buffer),
              expected);
    EXPECT_EQ(rnxiFilterBorderGetSize(c.kernel, c.roi, c.dataType, c.kernelType, c.channels, &spec, nullptr), expected);
  }
}

TEST(FilterInit, ChecksInOrder) {
  alignas(64) u8 block[4096];
  auto* spec = reinterpret_cast<RnxiFilterBorderSpec*>(block);
  const s16 k16[9] = {};
  const f32 k32[9] = {};
  const f64 k64[9] = {};
  const RnxiSize size = {3, 3}, none = {3, 0};
  EXPECT_EQ(rnxiFilterBorderInit_16s(nullptr, none, 0, 0, 0, 9, spec), rnxStatusNullPointer);
  EXPECT_EQ(rnxiFilterBorderInit_16s(k16, none, 0, 0, 0, 9, spec), rnxStatusBadSize);
  EXPECT_EQ(rnxiFilterBorderInit_16s(k16, size, 0, rnx32f, 0, 9, spec), rnxStatusBadDataType);
  EXPECT_EQ(rnxiFilterBorderInit_16s(k16, size, 0, rnx8u, 5, 9, spec), rnxStatusBadChannel);
  for (const int mode : {3, 8, 19, 32, 33, -1, INT_MIN}) {
    EXPECT_EQ(rnxiFilterBorderInit_16s(k16, size, 0, rnx16u, 1, mode, spec), rnxStatusBadRoundMode);
    EXPECT_EQ(rnxiFilterBorderInit_32f(k32, size, rnx32f, 1, mode, spec), rnxStatusBadRoundMode);
  }
  EXPECT_EQ(rnxiFilterBorderInit_16s(k16, size, 0, rnx16u, 1, 17, spec), rnxStatusBadDivisor);
  EXPECT_EQ(rnxiFilterBorderInit_32f(k32, size, rnx64f, 0, 9, spec), rnxStatusBadDataType);
  EXPECT_EQ(rnxiFilterBorderInit_32f(k32, size, rnx32f, 0, 9, spec), rnxStatusBadChannel);
  EXPECT_EQ(rnxiFilterBorderInit_64f(k64, size, rnx32f, 0, 9, spec), rnxStatusBadDataType);
  EXPECT_EQ(rnxiFilterBorderInit_64f(k64, size, rnx64f, 2, 9, spec), rnxStatusBadChannel);
  EXPECT_EQ(rnxiFilterBorderInit_64f(k64, size, rnx64f, 1, 2, spec), rnxStatusBadRoundMode);
  EXPECT_EQ(rnxiFilterBorderInit_64f(k64, size, rnx64f, 1, 17, spec), rnxStatusNoError);
}

TEST(FilterInit, WarnsOfAnIgnoredHint) {
  alignas(64) u8 block[4096];
  auto* spec = reinterpret_cast<RnxiFilterBorderSpec*>(block);
  const s16 kernel[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  for (const int dataType : {rnx8u, rnx16u, rnx16s}) {
    for (int channels = 1; channels <= 4; ++channels) {
      for (const RnxiSize size : {RnxiSize{3, 3}, RnxiSize{9, 1}}) {
        const bool known = dataType == rnx8u || (dataType == rnx16s && channels == 1);
        EXPECT_EQ(rnxiFilterBorderInit_16s(kernel, size, 2, dataType, channels, 16 | 2, spec),
                  known ? rnxStatusNoError : rnxStatusWarningHintIgnored);
        EXPECT_EQ(rnxiFilterBorderInit_16s(kernel, size, 2, dataType, channels, 2, spec), rnxStatusNoError);
      }
    }
  }
}

TEST(FilterSetMode, TakesOffsetsFor8uAnd16uOnly) {
  alignas(64) u8 block[4096];
  auto* spec = reinterpret_cast<RnxiFilterBorderSpec*>(block);
  const s16 kernel[9] = {};
  const f32 floats[9] = {};
  const f64 doubles[9] = {};
  EXPECT_EQ(rnxiFilterBorderSetMode(0, 0, nullptr), rnxStatusNullPointer);
  for (const int dataType : {rnx8u, rnx16u, rnx16s, rnx32f}) {
    const RnxStatus expected = dataType == rnx8u || dataType == rnx16u ? rnxStatusNoError : rnxStatusUnsupportedMode;
    rnxiFilterBorderInit_32f(floats, {3, 3}, dataType, 1, 0, spec);
    EXPECT_EQ(rnxiFilterBorderSetMode(rnxAlgHintAccurate, 5, spec), expected);
    EXPECT_EQ(rnxiFilterBorderSetMode(rnxAlgHintAccurate, 0, spec), rnxStatusNoError);
    if (dataType == rnx32f) continue;
    rnxiFilterBorderInit_16s(kernel, {3, 3}, 1, dataType, 1, 0, spec);
    EXPECT_EQ(rnxiFilterBorderSetMode(rnxAlgHintFast, -5, spec), expected);
  }
  rnxiFilterBorderInit_64f(doubles, {3, 3}, rnx64f, 1, 1, spec);
  EXPECT_EQ(rnxiFilterBorderSetMode(2, 1, spec), rnxStatusUnsupportedMode);
  EXPECT_EQ(rnxiFilterBorderSetMode(2, 0, spec), rnxStatusNoError);
}

// ---- Apply ----

TEST(FilterBorderChecks, InOrder) {
  alignas(64) u8 block[4096], buffer[32768];
  auto* spec = reinterpret_cast<RnxiFilterBorderSpec*>(block);
  const f32 kernel[9] = {};
  ASSERT_EQ(rnxiFilterBorderInit_32f(kernel, {3, 3}, rnx8u, 3, 0, spec), rnxStatusNoError);
  u8 src[300] = {}, dst[300];
  const u8 value[3] = {};
  std::fill(std::begin(dst), std::end(dst), u8{77});
  const auto run = [&](int srcStep, int dstStep, RnxiSize roi, RnxiBorderType border, const u8* constant) {
    return rnxiFilterBorder_8u_C3R(src, srcStep, dst, dstStep, roi, border, constant, spec, buffer);
  };
  const RnxiSize roi = {10, 3}, none = {10, 0};
  EXPECT_EQ(run(0, 0, none, rnxBorderConst, nullptr), rnxStatusNullPointer);
  EXPECT_EQ(run(0, 0, none, 0x106, nullptr), rnxStatusNullPointer);
  EXPECT_EQ(run(0, 0, none, 0xf6, nullptr), rnxStatusNullPointer);
  EXPECT_EQ(run(0, 0, none, 0x1f0, value), rnxStatusBadSize);
  EXPECT_EQ(run(0, 30, roi, 0x1f0, value), rnxStatusBadStep);
  EXPECT_EQ(run(30, 29, roi, 0x1f0, value), rnxStatusBadStep);
  for (const RnxiBorderType border : {0x1f0u, 0x101u, 0u, 2u, 4u, 5u, 7u, 0xf2u, 0xe0u, 0x10u, 0xffffffffu}) {
    EXPECT_EQ(run(30, 30, roi, border, value), rnxStatusBadBorderType) << border;
  }
  EXPECT_EQ(std::count(std::begin(dst), std::end(dst), u8{77}), 300);
  EXPECT_EQ(run(1, 30, roi, rnxBorderRepl, nullptr), rnxStatusNoError);  // a short source step
  EXPECT_EQ(rnxiFilterBorder_8u_C3R(src + 100, 30, dst, 30, {1, 1}, 0xf1, nullptr, spec, buffer), rnxStatusNoError);
  EXPECT_EQ(rnxiFilterBorder_64f_C1R(reinterpret_cast<f64*>(src), 80, reinterpret_cast<f64*>(dst), 80, {10, 3},
                                     rnxBorderRepl, nullptr, spec, buffer),
            rnxStatusNoError);  // a spec of another kind: no crash
}

}  // namespace
}  // namespace rnx::test
