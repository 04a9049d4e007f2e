// The statuses of the resize functions in their order, the sizes they report, and what specs of a hostile world do.
#include "support/companion_double.h"
#include "support/resize_plan.h"

namespace rnx::test {
namespace {

s64 align32(s64 n) { return (n + 31) / 32 * 32; }

// ---- GetSize ----

struct Sizes {
  s64 spec = -7, init = -7;
};

// In the functions of both size widths. `type` only counts in the _L function.
RnxStatus getSize(bool isLong, Extent2 src, Extent2 dst, int type, int kind, u32 antialiasing, Sizes& sizes) {
  Sizes result;
  RnxStatus status;
  if (isLong) {
    const RnxiSizeL from = src.sizeLong(), to = dst.sizeLong();
    status = rnxiResizeGetSize_L(&from, &to, type, kind, antialiasing, &result.spec, &result.init);
  } else {
    int spec = -7, init = -7;
    const auto f = type == 19 ? rnxiResizeGetSize_64f : rnxiResizeGetSize_8u;
    status = f(src.size(), dst.size(), kind, antialiasing, &spec, &init);
    result = {spec, init};
  }
  sizes = result;
  return status;
}

TEST(ResizeGetSize, ReportsTheStatedSizes) {
  Sizes sizes, plain;
  for (const bool isLong : {false, true}) {
    for (const s64 n : {1, 31, 32, 33, 4000}) {
      const Extent2 src = {9, 5}, dst = {n, 2 * n};
      const s64 entries = align32(n) + align32(2 * n);
      EXPECT_EQ(getSize(isLong, src, dst, 1, rnxNearest, 0, sizes), 0);
      EXPECT_TRUE(sizes.spec == 4 * entries + 400 && sizes.init == 64);
      EXPECT_EQ(getSize(isLong, src, dst, 1, rnxLinear, 0, sizes), 0);
      EXPECT_TRUE(sizes.spec == 8 * entries + 400 && sizes.init == 64);
      EXPECT_EQ(getSize(isLong, src, dst, 19, rnxLinear, 0, sizes), 0);
      EXPECT_TRUE(sizes.spec == 12 * entries + 384 && sizes.init == 64);
      EXPECT_EQ(getSize(isLong, src, dst, 1, rnxNearest, 0, plain), 0);
      EXPECT_EQ(getSize(isLong, src, dst, 1, rnxNearest, 1, sizes), rnxStatusWarningNoAntialiasing);
      EXPECT_TRUE(sizes.spec == plain.spec && sizes.init == plain.init);
    }
    // 100 x 40 to 10 x 8: 5 and 10 pixels at least per destination pixel
    EXPECT_EQ(getSize(isLong, {100, 40}, {10, 8}, 1, rnxSuper, 1, sizes), rnxStatusWarningNoAntialiasing);
    EXPECT_EQ(sizes.spec, 32 * (4 + 4 * 11) + 32 * (4 + 4 * 6) + 400);
    EXPECT_EQ(getSize(isLong, {100, 40}, {10, 8}, 1, rnxCubic, 0, sizes), 0);
    EXPECT_EQ(sizes.spec, 2 * 32 * (4 + 4 * 4) + 400);
    EXPECT_EQ(getSize(isLong, {100, 40}, {10, 8}, 1, rnxLanczos, 7, sizes), 0);
    EXPECT_EQ(sizes.spec, 32 * (4 + 4 * 60) + 32 * (4 + 4 * 30) + 400);
  }
}

struct SizeCase {
  Extent2 src, dst;
  int type, kind;
  u32 antialiasing;
  RnxStatus plain, inLong;
};

TEST(ResizeGetSize, RefusesInOrder) {
  constexpr int kNoMember = 1000;  // the plain functions know no such type
  constexpr s64 kLarge = 0x1FFFFFF;
  const SizeCase kCases[] = {
      {{0, -1}, {5, 5}, 1, 3, 0, 1, 1},
      {{-1, 5}, {5, 0}, 1, 3, 0, 1, 1},
      {{-1, 5}, {5, 5}, 1, 3, 0, -6, -6},
      {{1, 5}, {5, 5}, 1, 3, 0, -23, -23},
      {{1, 5}, {5, 5}, 1, 0, 0, -14, -14},
      {{1, 5}, {5, 5}, 1, 2, 0, -6, -6},
      {{4, 3}, {5, 5}, 1, 6, 0, -6, -6},
      {{3, 4}, {5, 5}, 1, 16, 1, -6, -6},
      {{9, 4}, {9, 5}, 1, 8, 1, -6, -6},
      {{9, 9}, {5, 5}, 19, 1, 0, -14, -59},
      {{1, 1}, {5, 5}, 19, 2, 1, -14, -14},
      {{1, 1}, {5, 5}, 19, 2, 0, -6, -6},
      {{1, 1}, {5, 5}, 2, 0, 0, kNoMember, -59},
      {{kLarge + 1, 1}, {5, 5}, 1, 0, 0, kNoMember, -232},
      {{kLarge + 1, 1}, {5, 5}, 2, 2, 0, kNoMember, -59},
      {{5, 5}, {kLarge, kLarge}, 1, 2, 0, 0, 0},
      {{5, 5}, {0x7fffffff, 0x7fffffff}, 1, 1, 1, -232, -232},
  };
  for (const SizeCase& c : kCases) {
    Sizes sizes;
    const auto written = [&](RnxStatus status) { return status == -232 ? 0 : -7; };
    for (const bool isLong : {false, true}) {
      const RnxStatus expected = isLong ? c.inLong : c.plain;
      if (expected == kNoMember) continue;
      EXPECT_EQ(getSize(isLong, c.src, c.dst, c.type, c.kind, c.antialiasing, sizes), expected)
          << isLong << " " << c.src.width << " " << c.kind;
      if (expected == 0) continue;
      EXPECT_TRUE(sizes.spec == written(expected) && sizes.init == written(expected));
    }
  }
  int size;
  EXPECT_EQ(rnxiResizeGetSize_16s({0, 0}, {0, 0}, 99, 0, nullptr, &size), -8);
  EXPECT_EQ(rnxiResizeGetSize_16s({0, 0}, {0, 0}, 99, 0, &size, nullptr), -8);
}

// ---- Init ----

TEST(ResizeInit, RefusesInOrder) {
  alignas(64) u8 memory[4096];
  auto* spec = reinterpret_cast<RnxiResizeSpec*>(memory);
  const RnxiSizeL none = {0, -1}, negative = {-1, 3}, thin = {1, 3}, good = {3, 3}, large = {0x2000000, 3};
  for (const auto init : {rnxiResizeNearestInit_16u, rnxiResizeLinearInit_8u, rnxiResizeLinearInit_64f}) {
    EXPECT_EQ(init({0, 0}, {0, 0}, nullptr), -8);
    EXPECT_EQ(init({-1, 3}, {0, 3}, spec), 1);
    EXPECT_EQ(init({-1, 3}, {3, 3}, spec), -6);
    EXPECT_EQ(init({1, 1}, {3, 3}, spec), init == rnxiResizeNearestInit_16u ? 0 : -6);
    EXPECT_EQ(init({2, 2}, {0x7fffffff, 3}, spec), -232);
  }
  for (const auto init : {rnxiResizeNearestInit_L, rnxiResizeLinearInit_L}) {
    const bool isLinear = init == rnxiResizeLinearInit_L;
    EXPECT_EQ(init(&none, &none, 1, nullptr), -8);
    EXPECT_EQ(init(nullptr, &none, 1, spec), -8);
    EXPECT_EQ(init(&negative, &none, 1, spec), 1);
    EXPECT_EQ(init(&negative, &good, 2, spec), -6);
    EXPECT_EQ(init(&thin, &good, 2, spec), isLinear ? -6 : -59);
    EXPECT_EQ(init(&good, &large, 2, spec), -59);
    EXPECT_EQ(init(&good, &large, 19, spec), isLinear ? -232 : -59);
    EXPECT_EQ(init(&good, &large, 13, spec), -232);
    EXPECT_EQ(init(&good, &good, 13, spec), 0);
  }
}

// ---- Helpers ----

class ResizeHelpers : public testing::Test {
protected:
  Random random_{"helpers"};
  const Signature& linear_ = signature("rnxiResizeLinear_8u_C3R");
  ResizePlan up_{linear_, {6, 4}, {12, 10}, random_};
};

TEST_F(ResizeHelpers, ReportBuffers) {
  int bytes = -7;
  const s64 expected = align32(4 * 10) + align32(4 * 12) + 2 * align32(4 * 3 * 12) + 64;
  EXPECT_EQ(up_.bufferBytes({12, 10}), expected);
  EXPECT_EQ(rnxiResizeGetBufferSize_8u(up_.spec(), {13, 10}, 3, &bytes), 48);
  EXPECT_EQ(bytes, expected);
  ResizePlan wide(signature("rnxiResizeLinear_64f_C1R"), {6, 4}, {12, 10}, random_);
  EXPECT_EQ(wide.bufferBytes({5, 7}), align32(28) + align32(20) + 3 * align32(40) + 96);
  ResizePlan nearest(signature("rnxiResizeNearest_8u_C4R_L"), {6, 4}, {12, 10}, random_);
  EXPECT_EQ(nearest.bufferBytes({5, 7}), align32(28) + align32(20) + 64);
  bytes = -7;
  EXPECT_EQ(rnxiResizeGetBufferSize_8u(nullptr, {0, 0}, 3, &bytes), -8);
  EXPECT_EQ(rnxiResizeGetBufferSize_8u(up_.spec(), {0, 0}, 3, nullptr), -8);
  EXPECT_EQ(rnxiResizeGetBufferSize_8u(nearest.spec(), {0, 3}, 3, &bytes), -6);
  EXPECT_EQ(rnxiResizeGetBufferSize_8u(nearest.spec(), {3, 3}, 2, &bytes), -13);
  EXPECT_EQ(rnxiResizeGetBufferSize_64f(up_.spec(), {3, 3}, 3, &bytes), -13);
  EXPECT_EQ(rnxiResizeGetBufferSize_8u(up_.spec(), {3, 3}, 2, &bytes), -53);
  EXPECT_EQ(bytes, -7);
}

TEST_F(ResizeHelpers, DescribeTiles) {
  RnxiBorderSize border = {9, 9, 9, 9};
  EXPECT_EQ(rnxiResizeGetBorderSize_16s(up_.spec(), &border), 0);
  EXPECT_TRUE(border.borderTop == 1 && border.borderBottom == 1 && border.borderLeft == 1 && border.borderRight == 1);
  RnxiPoint offset = {};
  EXPECT_EQ(rnxiResizeGetSrcOffset_32f(up_.spec(), {7, 9}, &offset), 0);
  EXPECT_TRUE(offset.x == 3 && offset.y == 3);
  EXPECT_EQ(rnxiResizeGetSrcOffset_32f(up_.spec(), {-3, INT32_MIN}, &offset), 0);
  EXPECT_TRUE(offset.x == -2 && offset.y == -858993460);
  // Columns 2 to 7 of 12 are 0.75 to 3.25 of 6; rows 5 to 9 reach the edge.
  RnxiRect rect = {};
  EXPECT_EQ(rnxiResizeGetSrcRoi_8u(up_.spec(), {2, 5, 6, 5}, &rect), 0);
  EXPECT_TRUE(rect.x == 1 && rect.y == 2 && rect.width == 3 && rect.height == 2);
  EXPECT_EQ(rnxiResizeGetSrcRoi_8u(up_.spec(), {2, 5, INT32_MAX, 1}, &rect), 48);
  EXPECT_TRUE(rect.x == 1 && rect.y == 2 && rect.width == 5 && rect.height == 0);
  EXPECT_EQ(rnxiResizeGetSrcRoi_8u(up_.spec(), {2, 10, 3, 1}, &rect), -11);
  EXPECT_EQ(rnxiResizeGetSrcRoi_8u(up_.spec(), {2, 1, 3, 0}, &rect), -6);
  EXPECT_EQ(rnxiResizeGetSrcRoi_L(up_.spec(), {2, 1, 3, 1}, &rect), -13);
  EXPECT_EQ(rnxiResizeGetSrcRoi_8u(up_.spec(), {2, 1, 3, 0}, nullptr), -8);
}

// ---- Tiles ----

class ResizeTile : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& s_ = *GetParam();
  Random random_{s_.name};
  bool linear_ = s_.family == "ResizeLinear";
  ResizePlan plan_{s_, {8, 6}, {10, 9}, random_};
  std::vector<u8> src_ = std::vector<u8>(8 * 8 * 32), dst_ = std::vector<u8>(10 * 9 * 32);

  RnxStatus run(s64 x, s64 y, Extent2 size, u32 border, const void* spec, bool null = false) {
    std::vector<u8> buffer(20000);
    const RnxiSizeL sizeLong = size.sizeLong();
    Call call(s_);
    call.set("pSrc", null ? nullptr : src_.data()).set("srcStep", 8 * 32);
    call.set("pDst", dst_.data()).set("dstStep", 10 * 32).set("pSpec", spec).set("pBuffer", buffer.data());
    if (s_.isLong) {
      call.set("dstOffset", RnxiPointL{x, y}).set("dstSize", &sizeLong);
    } else {
      call.set("dstOffset", RnxiPoint{static_cast<int>(x), static_cast<int>(y)}).set("dstSize", size.size());
    }
    if (linear_) call.set("border", border);
    return call();
  }
};

TEST_P(ResizeTile, RefusesInOrder) {
  const std::vector<u8> before = dst_;
  std::vector<u8> other(4096 + 64);
  auto* otherSpec = reinterpret_cast<RnxiResizeSpec*>(other.data());
  if (linear_) {
    for (const u32 border : {0u, 2u, 5u, 6u, 256u, 257u, 16u, 224u}) {
      EXPECT_EQ(run(0, 0, {0, -1}, border, nullptr, true), -225) << border;
    }
    for (const u32 border : {3u, 4u, 244u}) {
      EXPECT_EQ(run(0, 0, {0, -1}, border, nullptr), s_.isLong ? -225 : -8) << border;
    }
  }
  EXPECT_EQ(run(0, 0, {0, -1}, 1, plan_.spec(), true), -8);
  EXPECT_EQ(run(0, 0, {0, -1}, 240, nullptr), -8);
  EXPECT_EQ(run(-1, 0, {-1, 0}, 1, otherSpec), 1);
  EXPECT_EQ(run(-1, 0, {-1, 1}, 1, otherSpec), -13);
  EXPECT_EQ(run(-1, 0, {-1, 1}, 1, plan_.spec()), -6);
  EXPECT_EQ(run(-1, 0, {1, 1}, 1, plan_.spec()), -11);
  EXPECT_EQ(run(10, 0, {1, 1}, 1, plan_.spec()), -11);
  EXPECT_EQ(run(0, 9, {1, 1}, 1, plan_.spec()), -11);
  // A spec of the other kind, and one of the other group.
  for (const Signature* foreign : {&signature(s_.isLong ? "rnxiResizeLinear_8u_C1R" : "rnxiResizeLinear_8u_C1R_L"),
                                   &signature(linear_ ? "rnxiResizeNearest_8u_C1R" : "rnxiResizeLinear_8u_C1R")}) {
    ResizePlan plan(*foreign, {8, 6}, {10, 9}, random_);
    EXPECT_EQ(run(0, 0, {1, 1}, 1, plan.spec()), -13);
  }
  EXPECT_EQ(dst_, before);
  EXPECT_EQ(run(9, 8, {5, 5}, 1, plan_.spec()), 0);
  EXPECT_EQ(run(9, 8, {INT32_MAX, 1}, 1, plan_.spec()), 48);
  EXPECT_EQ(run(0, 0, {10, 10}, 1, plan_.spec()), 48);
}

// A spec whose words behind the tag are overwritten one by one never leads out of the images.
TEST_P(ResizeTile, SurvivesDamagedTables) {
  const s64 pixel = s_.channels() * bytesOf(s_.source());
  Image src({8 * pixel, 6, 8 * pixel}, Placement::kFlushEnd, random_), dst;
  dst.place({10 * pixel, 9, 10 * pixel}, Placement::kFlushEnd, random_);
  const auto address = reinterpret_cast<uintptr_t>(plan_.spec());
  u8* aligned = reinterpret_cast<u8*>((address + 63) / 64 * 64);
  constexpr s64 kTables = 192;  // the header itself says where they are
  for (s64 at = kTables; at < kTables + 2 * 4 * 32; at += 4) {
    for (const s32 value : {-2, -1, 0, 3, 7, 8, INT32_MAX, INT32_MIN}) {
      const s32 saved = get<s32>(aligned + at);
      put(aligned + at, 0, value);
      plan_.run(src.data(), src.step(), dst.data(), dst.step(), 0, 0, {10, 9}, rnxBorderRepl);
      put(aligned + at, 0, saved);
    }
  }
  // The number of taps sizes the buffer: another one than that of the kernels is refused.
  constexpr s64 kTaps = 12;
  for (const s32 taps : {0, 2, 3, 4, -1}) {
    const s32 saved = get<s32>(aligned + kTaps);
    put(aligned + kTaps, 0, taps);
    EXPECT_EQ(run(0, 0, {10, 9}, 1, plan_.spec()), linear_ || taps < 0 || taps > 3 ? -13 : 0) << taps;
    put(aligned + kTaps, 0, saved);
  }
  EXPECT_TRUE(plan_.specUnchanged());
}

INSTANTIATE_TEST_SUITE_P(Table, ResizeTile, testing::ValuesIn(select({.family = "ResizeNearest ResizeLinear"})),
                         byName);

}  // namespace
}  // namespace rnx::test
