// Mirror and Transpose, every export against one model: source pixel (x, y) goes where the flip says.
#include "kernel/data_support.h"

namespace rnx::test {
namespace {

struct Point {
  s64 x, y;
};

Point target(int flip, s64 x, s64 y, s64 width, s64 height) {
  switch (flip) {
    case rnxAxisHorizontal:
      return {x, height - 1 - y};
    case rnxAxisVertical:
      return {width - 1 - x, y};
    case rnxAxisBoth:
      return {width - 1 - x, height - 1 - y};
    case rnxAxisMainDiagonal:
      return {y, x};
    default:
      return {height - 1 - y, width - 1 - x};
  }
}

class Mirrors : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& s = *GetParam();
  Random random{s.name};
  const bool transposes = s.family == "Transpose", inPlace = s.form == "IR";
  const s64 pixelBytes = s64{bytesOf(s.source())} * s.channels();
  const size_t moved = static_cast<size_t>(s.hasAlpha() ? pixelBytes / 4 * 3 : pixelBytes);

  std::vector<int> flips() const {
    if (transposes) return {rnxAxisMainDiagonal};
    if (inPlace) return {0, 1, 2};
    return {0, 1, 2, 3, 4};
  }

  RnxStatus run(int flip, s64 width, s64 height, u8* src, s64 srcStep, u8* dst, s64 dstStep) {
    Call call(s);
    if (inPlace) {
      call.set("pSrcDst", src).set("srcDstStep", srcStep);
    } else {
      call.set("pSrc", src).set("srcStep", srcStep).set("pDst", dst).set("dstStep", dstStep);
    }
    if (!transposes) call.set("flip", flip);
    return call.roi(width, height)();
  }

  // A loop over the source. Upside down is a copy, element by element; the others move whole pixels.
  void model(int flip, s64 width, s64 height, const u8* src, s64 srcStep, u8* dst, s64 dstStep) {
    for (s64 y = 0; y < height; ++y) {
      for (s64 x = 0; x < width; ++x) {
        const Point to = target(flip, x, y, width, height);
        const size_t part = flip == rnxAxisHorizontal ? static_cast<size_t>(pixelBytes / s.channels()) : moved;
        for (size_t b = 0; b < moved; b += part) {
          std::memmove(dst + to.y * dstStep + to.x * pixelBytes + b, src + y * srcStep + x * pixelBytes + b, part);
        }
      }
    }
  }

  void apart(int flip, s64 width, s64 height, s64 srcStep = 0) {
    const bool diagonal = flip >= rnxAxisMainDiagonal;
    const Steps steps = transposes || !diagonal ? Steps::kAny : Steps::kApart;
    const auto step = [&](s64 rowBytes) {
      const s64 picked = pickStep(random, rowBytes, steps);
      return diagonal && !transposes ? std::max<s64>(picked, 1) : picked;
    };
    const s64 toWidth = diagonal ? height : width, toHeight = diagonal ? width : height;
    Image src, dst;
    placeRandomly(src, random, width * pixelBytes, height, srcStep != 0 ? srcStep : step(width * pixelBytes));
    placeRandomly(dst, random, toWidth * pixelBytes, toHeight, step(toWidth * pixelBytes));
    model(flip, width, height, src.shadow(), src.step(), dst.shadow(), dst.step());
    ASSERT_EQ(run(flip, width, height, src.data(), src.step(), dst.data(), dst.step()), rnxStatusNoError);
    ASSERT_TRUE(src.matches()) << width << "x" << height << " flip " << flip;
    ASSERT_TRUE(dst.matches()) << width << "x" << height << " flip " << flip << " steps " << src.step() << " "
                               << dst.step();
  }

  void within(int flip, s64 width, s64 height) {
    Image image, before;
    const s64 rowBytes = width * pixelBytes;
    const s64 step = pickStep(random, rowBytes, Steps::kApart);
    placeRandomly(image, random, rowBytes, height, step);
    const std::vector<u8> old(image.shadow() - (step < 0 ? -step * (height - 1) : 0),
                              image.shadow() + (step > 0 ? step * (height - 1) : 0) + rowBytes);
    const u8* first = old.data() + (step < 0 ? -step * (height - 1) : 0);
    model(flip, width, height, first, step, image.shadow(), step);
    ASSERT_EQ(run(flip, width, height, image.data(), step, image.data(), step), rnxStatusNoError);
    ASSERT_TRUE(image.matches()) << width << "x" << height << " flip " << flip;
  }

  void overlapping(int flip, s64 width, s64 height) {
    const bool diagonal = flip >= rnxAxisMainDiagonal;
    if (diagonal && !transposes) return;
    const s64 toWidth = diagonal ? height : width, toHeight = diagonal ? width : height;
    Arena arena(random, 120000);
    const s64 common = random.oneIn(2) ? 0 : std::max(width, toWidth) * pixelBytes + random.between(0, 40);
    const s64 srcStep = common != 0 ? common : pickStep(random, width * pixelBytes, Steps::kAny);
    const s64 dstStep = common != 0 ? common : pickStep(random, toWidth * pixelBytes, Steps::kAny);
    u8* src = arena.place(width * pixelBytes, height, srcStep);
    u8* dst = arena.place(toWidth * pixelBytes, toHeight, dstStep, src);
    if (src == dst) return;  // in place, or nearly so
    Image& memory = arena.memory();
    model(flip, width, height, memory.shadow(src), srcStep, memory.shadow(dst), dstStep);
    ASSERT_EQ(run(flip, width, height, src, srcStep, dst, dstStep), rnxStatusNoError);
    ASSERT_TRUE(memory.matches()) << width << "x" << height << " flip " << flip << " " << dst - src << " " << srcStep;
  }
};

TEST_P(Mirrors, MatchTheModel) {
  for (const int vector : vectorWidths()) {
    const ScopedWidth bytes(vector);
    for (const int flip : flips()) {
      for (const s64 w : hardWidths()) {
        const bool diagonal = flip >= rnxAxisMainDiagonal;
        const s64 h = diagonal ? random.between(1, random.oneIn(3) ? 140 : 40) : random.between(1, 5);
        if (!inPlace) {
          ASSERT_NO_FATAL_FAILURE(apart(flip, w, h));
        }
        if (!diagonal) {
          ASSERT_NO_FATAL_FAILURE(within(flip, w, h));
        }
        if (transposes && !s.types.starts_with("32fc")) {
          ASSERT_NO_FATAL_FAILURE(within(flip, w, w));
        }
      }
    }
  }
}

// Blocks of a transposition depend on how many of the source's rows share a place in the first cache.
TEST_P(Mirrors, TransposeWhateverTheStep) {
  if (inPlace) return;
  for (const int flip : flips()) {
    if (flip < rnxAxisMainDiagonal) continue;
    for (const s64 step : {s64{512}, s64{1024}, s64{2048}, s64{4096}, s64{3 * 4096}}) {
      for (const int vector : vectorWidths()) {
        const ScopedWidth bytes(vector);
        const s64 most = std::min<s64>(step / pixelBytes, 150);
        ASSERT_NO_FATAL_FAILURE(apart(flip, random.between(most / 4, most), random.between(60, 270), step));
      }
    }
  }
}

TEST_P(Mirrors, MayOverlap) {
  if (inPlace) return;
  for (const int vector : vectorWidths()) {
    const ScopedWidth bytes(vector);
    for (const int flip : flips()) {
      for (int i = 0; i < 30; ++i) {
        ASSERT_NO_FATAL_FAILURE(overlapping(flip, random.between(1, 60), random.between(1, i % 2 == 0 ? 4 : 40)));
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Data, Mirrors, testing::ValuesIn(select({.subsystem = "data", .family = "Mirror Transpose"})),
                         byName);

TEST(Mirror, UpsideDownIsTheSameAroundTheCaches) {
  const ScopedCache tiny(kTinyCache);
  Random random("Mirror");
  for (const int vector : vectorWidths()) {
    const ScopedWidth bytes(vector);
    Image src, dst;
    placeRandomly(src, random, 3 * 700, 1000, 2103);
    placeRandomly(dst, random, 3 * 700, 1000, 2120);
    for (s64 y = 0; y < 1000; ++y) std::memcpy(dst.shadowRow(999 - y), src.row(y), 2100);
    ASSERT_EQ(rnxiMirror_8u_C3R(src.data(), 2103, dst.data(), 2120, {700, 1000}, 0), rnxStatusNoError);
    ASSERT_TRUE(dst.matches());
  }
}

// Rows of images beyond the caches are fetched ahead of their use.
TEST(Transpose, LargeImages) {
  Random random("Transpose");
  constexpr s64 kSize = 1410;
  const auto check = [&]<class T>(s64 pixel, RnxStatus (*transpose)(const T*, int, T*, int, RnxiSize),
                                  RnxStatus (*inPlace)(T*, int, RnxiSize)) {
    const auto data = [](Image& image) { return reinterpret_cast<T*>(image.data()); };
    const s64 step = kSize * pixel + 16;
    Image src, dst;
    placeRandomly(src, random, kSize * pixel, kSize, step);
    placeRandomly(dst, random, kSize * pixel, kSize, step);
    for (s64 y = 0; y < kSize; ++y) {
      for (s64 x = 0; x < kSize; ++x) std::memcpy(dst.shadowRow(x) + y * pixel, src.row(y) + x * pixel, pixel);
    }
    constexpr RnxiSize kRoi = {kSize, kSize};
    ASSERT_EQ(transpose(data(src), static_cast<int>(step), data(dst), static_cast<int>(step), kRoi), rnxStatusNoError);
    ASSERT_TRUE(dst.matches()) << pixel;
    for (s64 y = 0; y < kSize; ++y) std::memcpy(src.shadowRow(y), dst.row(y), static_cast<size_t>(kSize * pixel));
    ASSERT_EQ(inPlace(data(src), static_cast<int>(step), kRoi), rnxStatusNoError);
    ASSERT_TRUE(src.matches()) << pixel;
  };
  for (const int vector : vectorWidths()) {
    const ScopedWidth bytes(vector);
    check(3, rnxiTranspose_8u_C3R, rnxiTranspose_8u_C3IR);
    check(8, rnxiTranspose_16u_C4R, rnxiTranspose_16u_C4IR);
    check(12, rnxiTranspose_32f_C3R, rnxiTranspose_32f_C3IR);
  }
}

// ---- Answers that depend on the flip ----

TEST(Mirror, RefusesInTheOrderOfTheFlip) {
  u8 image[64] = {};
  u8* const p = image;
  const RnxiSize roi = {3, 2}, none = {0, 2};
  EXPECT_EQ(rnxiMirror_8u_C1R(p, 8, p + 32, 8, roi, 5), rnxStatusBadMirrorAxis);
  EXPECT_EQ(rnxiMirror_8u_C1R(p, 8, p + 32, 8, roi, -1), rnxStatusBadMirrorAxis);
  EXPECT_EQ(rnxiMirror_8u_C1R(p, 8, p, 8, roi, 5), rnxStatusBadMirrorAxis);
  EXPECT_EQ(rnxiMirror_8u_C1R(p, 8, p + 32, 8, none, 5), rnxStatusBadSize);
  for (const int flip : {3, 4}) {
    EXPECT_EQ(rnxiMirror_8u_C1R(p, 0, nullptr, 8, none, flip), rnxStatusNullPointer);
    EXPECT_EQ(rnxiMirror_8u_C1R(p, 0, p + 32, 8, none, flip), rnxStatusBadStep);
    EXPECT_EQ(rnxiMirror_8u_C1R(p, 8, p, 8, none, flip), rnxStatusBadSize);
    EXPECT_EQ(rnxiMirror_8u_C1R(p, 8, p, 8, roi, flip), rnxStatusUnsupportedMode);
    EXPECT_EQ(rnxiMirror_8u_C1R(p, 8, p + 10, 8, roi, flip), rnxStatusUnsupportedMode);
    EXPECT_EQ(rnxiMirror_8u_C1R(p, 8, p + 3, 8, roi, flip), rnxStatusNoError);  // side by side
    EXPECT_EQ(rnxiMirror_8u_C1IR(p, 0, none, flip), rnxStatusBadStep);
    EXPECT_EQ(rnxiMirror_8u_C1IR(p, 8, none, flip), rnxStatusBadSize);
    EXPECT_EQ(rnxiMirror_8u_C1IR(p, 8, roi, flip), rnxStatusUnsupportedMode);
  }
  EXPECT_EQ(rnxiTranspose_8u_C1IR(p, 8, {3, 4}), rnxStatusBadSize);
  EXPECT_EQ(rnxiTranspose_8u_C1R(p, 8, p, 8, {3, 4}), rnxStatusBadSize);
}

}  // namespace
}  // namespace rnx::test
