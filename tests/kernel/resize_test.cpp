// Nearest and linear resize against the models: whole images, tiles, borders.
#include <thread>

#include "ref/resize.h"
#include "support/companion_double.h"
#include "support/resize_plan.h"

namespace rnx::test {
namespace {

struct Pair {
  Extent2 src, dst;
};

// Up, down, equal, halves, doubles, coprime sizes, single pixels; most with results of 2 KiB, so that the wide kernels
// run. In 3 x 2 to 47 x 98 a fraction just below 1 gives the weight 16384 in both directions.
const Pair kPairs[] = {{{2, 2}, {7, 5}},       {{3, 2}, {1, 1}},     {{2, 9}, {1, 40}},    {{19, 6}, {19, 6}},
                       {{80, 104}, {40, 52}},  {{34, 16}, {17, 8}},  {{33, 5}, {66, 40}},  {{17, 13}, {101, 29}},
                       {{101, 29}, {17, 130}}, {{64, 4}, {100, 27}}, {{97, 6}, {31, 70}},  {{300, 3}, {37, 60}},
                       {{70, 30}, {70, 30}},   {{47, 9}, {46, 50}},  {{150, 5}, {50, 50}}, {{90, 7}, {61, 41}},
                       {{3, 2}, {47, 98}}};
// Rows longer than the kernels' strips.
const Pair kWidePairs[] = {{{500, 2}, {2101, 3}}, {{4202, 4}, {2101, 2}}, {{5000, 2}, {4150, 2}}};

ref::Border borderOf(u32 border, u32 before, u32 after) {
  return {(border & 15) == rnxBorderMirror, (border & before) != 0, (border & after) != 0};
}

class Resize : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& s_ = *GetParam();
  Random random_{s_.name};
  Image src_, dst_;
  u8* origin_ = nullptr;  // of the source
  s64 pixel_ = s_.channels() * bytesOf(s_.source());

  // A source that ends at a page that cannot be touched, and with all four sides in memory one pixel beyond them.
  void prepare(const Pair& pair, u32 border) {
    const s64 around = border == rnxBorderInMem ? 1 : 0;
    const s64 srcBytes = (pair.src.width + 2 * around) * pixel_, dstBytes = pair.dst.width * pixel_;
    const Placement placement = random_.pick(std::array{Placement::kFlushEnd, Placement::kFlushStart});
    const s64 sign = random_.oneIn(2) ? 1 : -1;
    src_.place({srcBytes, pair.src.height + 2 * around, sign * (srcBytes + random_.between(0, 3))}, placement, random_);
    dst_.place({dstBytes, pair.dst.height, dstBytes + random_.between(0, 5)}, placement, random_);
    src_.fillRows(random_, random_.pick(kAllData), s_.source());
    src_.expectNow();
    dst_.expectNow();
    origin_ = src_.row(around) + around * pixel_;
    const ref::Picture from = {src_.shadow(origin_), src_.step(), pair.src.width, pair.src.height};
    const ref::Picture to = {dst_.shadow(), dst_.step(), pair.dst.width, pair.dst.height};
    withType(s_.source(), [&](auto zero) {
      using T = decltype(zero);
      if constexpr (std::is_arithmetic_v<T>) {
        if (s_.family == "ResizeNearest") return ref::nearest<T>(from, to, s_.channels());
        ref::linear<T>(from, to, s_.channels(), borderOf(border, rnxBorderInMemLeft, rnxBorderInMemRight),
                       borderOf(border, rnxBorderInMemTop, rnxBorderInMemBottom));
      }
    });
  }

  void check(ResizePlan& plan, const Pair& pair, const char* what) {
    EXPECT_TRUE(dst_.matches(s_.source())) << what << ": " << pair.src.width << " x " << pair.src.height << " to "
                                           << pair.dst.width << " x " << pair.dst.height;
    EXPECT_TRUE(src_.matches());
    EXPECT_TRUE(plan.specUnchanged());
  }

  u32 anyBorder() {
    if (s_.isLong) return random_.pick(std::array<u32, 2>{1, 240});
    return random_.pick(std::array<u32, 3>{1, 3, 240});
  }

  std::vector<s64> cuts(s64 length, s64 most) {
    std::vector<s64> result = {0, length};
    for (s64 i = 1; i < most; ++i) result.push_back(random_.between(0, length));
    std::sort(result.begin(), result.end());
    return result;
  }

  // Sides inside the destination are in memory, the others as the border type of the whole says.
  u32 tileBorder(u32 border, const Pair& pair, s64 x, s64 y, s64 endX, s64 endY) const {
    if (border == rnxBorderInMem) return border;
    return border | (x > 0 ? rnxBorderInMemLeft : 0) | (y > 0 ? rnxBorderInMemTop : 0) |
           (endX < pair.dst.width ? rnxBorderInMemRight : 0) | (endY < pair.dst.height ? rnxBorderInMemBottom : 0);
  }

  void runTiles(ResizePlan& plan, const Pair& pair, u32 border, s64 columns, s64 rows) {
    const auto xs = cuts(pair.dst.width, columns), ys = cuts(pair.dst.height, rows);
    for (size_t j = 0; j + 1 < ys.size(); ++j) {
      for (size_t i = 0; i + 1 < xs.size(); ++i) {
        const Extent2 size = {xs[i + 1] - xs[i], ys[j + 1] - ys[j]};
        if (size.width == 0 || size.height == 0) continue;
        EXPECT_EQ(plan.run(origin_, src_.step(), dst_.data(), dst_.step(), xs[i], ys[j], size,
                           tileBorder(border, pair, xs[i], ys[j], xs[i + 1], ys[j + 1])),
                  rnxStatusNoError);
      }
    }
  }
};

TEST_P(Resize, EqualsTheModelWholeAndInTiles) {
  const auto both = [&](const Pair& pair) {
    const u32 border = anyBorder();
    prepare(pair, border);
    ResizePlan plan(s_, pair.src, pair.dst, random_);
    EXPECT_EQ(plan.run(origin_, src_.step(), dst_.data(), dst_.step(), 0, 0, pair.dst, border), rnxStatusNoError);
    check(plan, pair, "whole");
    fillBytes(random_, dst_.data(), pair.dst.width * pixel_);
    runTiles(plan, pair, border, random_.oneIn(2) ? 2 : 7, random_.oneIn(2) ? 1 : 5);
    check(plan, pair, "tiles");
  };
  for (int width : vectorWidths()) {
    ScopedWidth scope(width);
    for (const Pair& pair : kPairs) {
      for (int i = 0; i < 3; ++i) both(pair);
    }
    for (const Pair& pair : kWidePairs) both(pair);
  }
}

// At odd addresses the parts of spec and buffer lie differently in their slack.
TEST_P(Resize, StaysInsideSpecAndBuffer) {
  for (int width : vectorWidths()) {
    ScopedWidth scope(width);
    for (const int misalignment : {1, 7, 31, 33, 63}) {
      const Pair pair = random_.pick(kPairs);
      const u32 border = anyBorder();
      prepare(pair, border);
      ResizePlan plan(s_, pair.src, pair.dst, random_, Placement::kInside, misalignment);
      runTiles(plan, pair, border, 3, 3);
      check(plan, pair, "at an odd address");
    }
  }
}

TEST_P(Resize, ServesEightThreadsWithOneSpec) {
  constexpr s64 kTile = 20;
  const Pair pair = {{100, 90}, {60, 8 * kTile}};
  const u32 border = anyBorder();
  prepare(pair, border);
  ResizePlan plan(s_, pair.src, pair.dst, random_);
  struct Task {
    RnxiPointL from;
    std::vector<u8> buffer;
    u32 border;
  };
  std::vector<Task> tasks;
  for (s64 y = 0; y < pair.dst.height; y += kTile) {
    tasks.push_back({plan.sourceOffset(0, y), std::vector<u8>(static_cast<size_t>(plan.bufferBytes({60, kTile}))),
                     tileBorder(border, pair, 0, y, pair.dst.width, y + kTile)});
  }
  std::vector<std::thread> threads;
  for (size_t i = 0; i < tasks.size(); ++i) {
    threads.emplace_back([&, i] {
      const s64 y = static_cast<s64>(i) * kTile;
      const RnxiSizeL size = {pair.dst.width, kTile};
      Call call(s_);
      call.set("pSrc", origin_ + tasks[i].from.y * src_.step()).set("srcStep", src_.step());
      call.set("pDst", dst_.row(y)).set("dstStep", dst_.step());
      call.set("pSpec", plan.spec()).set("pBuffer", tasks[i].buffer.data());
      if (s_.isLong) {
        call.set("dstOffset", RnxiPointL{0, y}).set("dstSize", &size);
      } else {
        call.set("dstOffset", RnxiPoint{0, static_cast<int>(y)}).set("dstSize", Extent2{60, kTile}.size());
      }
      if (s_.family == "ResizeLinear") call.set("border", tasks[i].border);
      for (int round = 0; round < 20; ++round) call();
    });
  }
  for (std::thread& thread : threads) thread.join();
  check(plan, pair, "eight threads");
}

INSTANTIATE_TEST_SUITE_P(Table, Resize, testing::ValuesIn(select({.family = "ResizeNearest ResizeLinear"})), byName);

// Every difference of two neighbours with 2000 weights, horizontally and vertically: a remainder of 8191 beside an odd
// integer part occurs for few of them only.
TEST(ResizeLinear8u, RoundsEveryDifferenceAsStated) {
  constexpr s64 kDifferences = 1024, kWeights = 4099;
  const Signature& s = signature("rnxiResizeLinear_8u_C1R");
  Random random(s.name);
  for (const bool horizontal : {true, false}) {
    const Extent2 from = horizontal ? Extent2{2, kDifferences} : Extent2{kDifferences, 2};
    const Extent2 to = horizontal ? Extent2{kWeights, kDifferences} : Extent2{kDifferences, kWeights};
    std::vector<u8> src(2 * kDifferences), dst(kWeights * kDifferences), expected(dst.size());
    for (s64 i = 0; i < kDifferences; ++i) {
      const s64 d = i / 2 - 256, low = std::min<s64>(i % 2, 255 - std::abs(d) < 0 ? 0 : 255 - std::abs(d));
      const s64 a = d < 0 ? -d + low : low;
      src[static_cast<size_t>(horizontal ? 2 * i : i)] = static_cast<u8>(std::clamp<s64>(a, 0, 255));
      src[static_cast<size_t>(horizontal ? 2 * i + 1 : kDifferences + i)] =
          static_cast<u8>(std::clamp<s64>(a + d, 0, 255));
    }
    ref::linear<u8>({src.data(), from.width, from.width, from.height}, {expected.data(), to.width, to.width, to.height},
                    1, {}, {});
    for (int width : vectorWidths()) {
      ScopedWidth scope(width);
      ResizePlan plan(s, from, to, random);
      EXPECT_EQ(plan.run(src.data(), from.width, dst.data(), to.width, 0, 0, to, rnxBorderRepl), rnxStatusNoError);
      EXPECT_TRUE(dst == expected) << width << (horizontal ? " horizontal" : " vertical");
    }
  }
}

// A constant image stays constant, and equal sizes reproduce the image.
TEST(ResizeLinear, KeepsConstantsAndEqualSizes) {
  for (const char* name : {"rnxiResizeLinear_16u_C3R", "rnxiResizeLinear_16s_C3R"}) {
    const Signature& s = signature(name);
    Random random(name);
    std::vector<s16> src(3 * 30 * 20), dst(3 * 70 * 50);
    const auto bytes = [](std::vector<s16>& v) { return reinterpret_cast<u8*>(v.data()); };
    for (const s16 value : std::initializer_list<s16>{INT16_MIN, -1, 0, 7, INT16_MAX}) {
      std::fill(src.begin(), src.end(), static_cast<s16>(value));
      ResizePlan plan(s, {30, 20}, {70, 50}, random);
      EXPECT_EQ(plan.run(bytes(src), 180, bytes(dst), 420, 0, 0, {70, 50}, rnxBorderRepl), rnxStatusNoError);
      EXPECT_EQ(std::count(dst.begin(), dst.end(), value), 3 * 70 * 50);
    }
    fill(random, Data::kBits, Element::k16s, src.data(), static_cast<s64>(src.size()));
    ResizePlan plan(s, {30, 20}, {30, 20}, random);
    EXPECT_EQ(plan.run(bytes(src), 180, bytes(dst), 180, 0, 0, {30, 20}, rnxBorderRepl), rnxStatusNoError);
    EXPECT_TRUE(std::equal(src.begin(), src.end(), dst.begin()));
  }
}

// Kind 4 is replication; flags of single sides.
TEST(ResizeLinear, TakesEachSideFromItsFlag) {
  Random random("flags");
  const Signature& s = signature("rnxiResizeLinear_32f_C1R");
  constexpr s64 kW = 5, kH = 4, kStep = (kW + 2) * 4;
  std::vector<f32> memory((kW + 2) * (kH + 2)), dst(11 * 9), expected(dst.size());
  fill(random, Data::kModerate, Element::k32f, memory.data(), static_cast<s64>(memory.size()));
  u8* origin = reinterpret_cast<u8*>(memory.data() + kW + 3);
  ResizePlan plan(s, {kW, kH}, {11, 9}, random);
  for (const u32 kind : {1u, 3u, 4u}) {
    for (u32 flags = 0; flags < 256; flags += 16) {
      ref::linear<f32>({origin, kStep, kW, kH}, {reinterpret_cast<u8*>(expected.data()), 44, 11, 9}, 1,
                       borderOf(kind | flags, rnxBorderInMemLeft, rnxBorderInMemRight),
                       borderOf(kind | flags, rnxBorderInMemTop, rnxBorderInMemBottom));
      EXPECT_EQ(plan.run(origin, kStep, reinterpret_cast<u8*>(dst.data()), 44, 0, 0, {11, 9}, kind | flags),
                rnxStatusNoError);
      EXPECT_TRUE(dst == expected) << (kind | flags);
    }
  }
}

}  // namespace
}  // namespace rnx::test
