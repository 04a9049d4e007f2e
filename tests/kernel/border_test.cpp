// The border extension, every export against one model: where a pixel of the frame comes from, position by position.
#include "kernel/data_support.h"

namespace rnx::test {
namespace {

// The source position of p, by walking: one step outside is one step back for mirror, a jump for wrap.
s64 sourceOf(std::string_view family, s64 p, s64 n) {
  if (family == "CopyReplicateBorder") return p < 0 ? 0 : p >= n ? n - 1 : p;
  if (family == "CopyWrapBorder") {
    while (p < 0) p += n;
    while (p >= n) p -= n;
    return p;
  }
  if (n == 1) return 0;
  while (p < 0 || p >= n) p = p < 0 ? -p : 2 * (n - 1) - p;
  return p;
}

struct Frame {
  s64 width, height, top, bottom, left, right;
};

class Borders : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& s = *GetParam();
  Random random{s.name};
  const bool inPlace = s.form == "IR", constant = s.family == "CopyConstBorder";
  const s64 pixelBytes = s64{bytesOf(s.source())} * s.channels();
  const s64 moved = s.hasAlpha() ? pixelBytes / 4 * 3 : pixelBytes;
  u8 values[16] = {};

  // The interior is in its place in `inside`.
  void model(const Frame& f, u8* inside, s64 step) {
    for (s64 y = -f.top; y < f.height + f.bottom; ++y) {
      for (s64 x = -f.left; x < f.width + f.right; ++x) {
        if (x >= 0 && x < f.width && y >= 0 && y < f.height) continue;
        const u8* from =
            constant ? values
                     : inside + sourceOf(s.family, y, f.height) * step + sourceOf(s.family, x, f.width) * pixelBytes;
        std::memcpy(inside + y * step + x * pixelBytes, from, static_cast<size_t>(moved));
      }
    }
  }

  RnxStatus run(const Frame& f, const u8* src, s64 srcStep, u8* dst, s64 dstStep) {
    Call call(s);
    const RnxiSizeL inner = {f.width, f.height};
    const RnxiSizeL outer = {f.left + f.width + f.right, f.top + f.height + f.bottom};
    const auto size = [&](std::string_view name, const RnxiSizeL& value) {
      if (s.isLong) {
        call.set(name, &value);
      } else {
        call.set(name, RnxiSize{static_cast<int>(value.width), static_cast<int>(value.height)});
      }
    };
    if (inPlace) {
      call.set("pSrcDst", src).set("srcDstStep", dstStep);
    } else {
      call.set("pSrc", src).set("srcStep", srcStep).set("pDst", dst).set("dstStep", dstStep);
    }
    size("srcRoiSize", inner), size("dstRoiSize", outer);
    call.set("topBorderHeight", f.top).set("leftBorderWidth", f.left);
    if (constant && s.layout == "C1") {
      withType(s.source(), [&](auto zero) {
        if constexpr (sizeof(zero) <= 4) call.set("value", get<decltype(zero)>(values));
      });
    } else if (constant) {
      call.set("value", values);
    }
    return call();
  }

  void pickValues() {
    fillBytes(random, values, sizeof(values));
    if (s.source() != Element::k32f) return;
    for (int c = 0; c < 4; ++c) put<f32>(values, c, random.oneIn(2) ? -0.0f : static_cast<f32>(random.between(-9, 9)));
  }

  // samePointer: not in place by name, but by passing one pointer twice.
  void apart(const Frame& f, bool samePointer) {
    pickValues();
    const s64 rowBytes = (f.left + f.width + f.right) * pixelBytes, inner = f.width * pixelBytes;
    Image src, dst;
    placeRandomly(src, random, inner, f.height, std::max<s64>(1, pickStep(random, inner, Steps::kAny)));
    placeRandomly(dst, random, rowBytes, f.top + f.height + f.bottom, pickStep(random, rowBytes, Steps::kApart));
    u8* inside = dst.data() + f.top * dst.step() + f.left * pixelBytes;
    const bool within = inPlace || samePointer;
    if (!within) {
      for (s64 i = 0; i < f.width * f.height; ++i) {
        const s64 x = i % f.width * pixelBytes, y = i / f.width;
        std::memcpy(dst.shadow(inside) + y * dst.step() + x, src.shadowRow(y) + x, static_cast<size_t>(moved));
      }
    }
    model(f, dst.shadow(inside), dst.step());
    const RnxStatus status =
        run(f, within ? inside : src.data(), src.step(), samePointer ? inside : dst.data(), dst.step());
    ASSERT_EQ(status, rnxStatusNoError);
    ASSERT_TRUE(src.matches());
    ASSERT_TRUE(dst.matches()) << f.width << "x" << f.height << " top " << f.top << " bottom " << f.bottom << " left "
                               << f.left << " right " << f.right << " step " << dst.step();
  }

  s64 side(s64 n) {
    return random.oneIn(4) ? 0 : random.oneIn(3) ? random.between(0, 3 * n + 70) : random.between(0, 9);
  }
};

TEST_P(Borders, MatchTheModel) {
  for (const int vector : vectorWidths()) {
    const ScopedWidth bytes(vector);
    for (const s64 w : hardWidths()) {
      const s64 h = random.between(1, 5);
      const Frame frame = {w, h, side(h) / 4, side(h) / 4, side(w), side(w)};
      ASSERT_NO_FATAL_FAILURE(apart(frame, false));
      if (!inPlace && !constant) {
        ASSERT_NO_FATAL_FAILURE(apart(frame, true));
      }
    }
  }
}

TEST_P(Borders, AreTheSameAroundTheCaches) {
  if (inPlace) return;
  const ScopedCache tiny(kTinyCache);
  for (const int vector : vectorWidths()) {
    const ScopedWidth bytes(vector);
    ASSERT_NO_FATAL_FAILURE(apart({random.between(9000, 10000) / pixelBytes, 64, 2, 1, 5, 3}, false));
  }
}

TEST_P(Borders, CopyTheInteriorFirstWhereImagesOverlap) {
  if (inPlace) return;
  for (int i = 0; i < 60; ++i) {
    pickValues();
    const Frame f = {random.between(1, 40), random.between(1, 6), side(2), side(2), side(2), side(2)};
    const s64 rowBytes = (f.left + f.width + f.right) * pixelBytes;
    const s64 step = rowBytes + random.between(0, 9);
    Arena arena(random, 9000 + 320 * step);
    u8* dst = arena.place(rowBytes, f.top + f.height + f.bottom, step);
    u8* inside = dst + f.top * step + f.left * pixelBytes;
    u8* src = arena.place(f.width * pixelBytes, f.height, step, random.oneIn(3) ? dst : inside);
    if (src == dst && !constant) continue;
    Image& memory = arena.memory();
    const s64 element = bytesOf(s.source());
    for (s64 y = 0; y < f.height; ++y) {
      for (s64 e = 0; e < f.width * s.channels(); ++e) {
        if (s.hasAlpha() && e % 4 == 3) continue;
        std::memmove(memory.shadow(inside) + y * step + e * element, memory.shadow(src) + y * step + e * element,
                     static_cast<size_t>(element));
      }
    }
    model(f, memory.shadow(inside), step);
    ASSERT_EQ(run(f, src, step, dst, step), rnxStatusNoError);
    ASSERT_TRUE(memory.matches()) << src - inside << " step " << step;
  }
}

// What comes out where a row overlaps the next ones is not promised, but it is one thing.
TEST_P(Borders, AreTheSameInBothWidthsWhereRowsOverlap) {
  pickValues();
  for (const s64 step : {1, 3, 100}) {
    for (int rows = 0; rows < 4; ++rows) {  // above and below
      const Frame f = {random.between(2100, 2300) / pixelBytes, random.between(2, 60), rows % 2, rows / 2, 13, 5};
      const s64 rowBytes = (f.left + f.width + f.right) * pixelBytes;
      const s64 bytes = (f.top + f.height + f.bottom) * step + rowBytes, start = f.top * step + f.left * pixelBytes;
      std::vector<u8> before(static_cast<size_t>(bytes)), src(before.size());
      fillBytes(random, before.data(), bytes);
      fillBytes(random, src.data(), bytes);
      std::vector<std::vector<u8>> results;
      for (const int vector : vectorWidths()) {
        const ScopedWidth width(vector);
        std::vector<u8>& result = results.emplace_back(before);
        ASSERT_EQ(run(f, inPlace ? result.data() + start : src.data(), step, result.data(), step), rnxStatusNoError);
      }
      EXPECT_EQ(results.front(), results.back()) << "step " << step << " top " << f.top << " bottom " << f.bottom;
    }
  }
}

TEST_P(Borders, RefuseWhatDoesNotFit) {
  const auto status = [&](const Frame& f) {
    u8 image[64 * 16] = {}, other[64 * 16] = {};
    return run(f, image + 512, 64, other, 64);
  };
  constexpr s64 kLargest = INT32_MAX;
  EXPECT_EQ(status({2, 2, 0, 0, 0, 0}), rnxStatusNoError);
  EXPECT_EQ(status({0, 2, 1, 1, 1, 1}), rnxStatusBadSize);
  EXPECT_EQ(status({2, 0, 1, 1, 1, 1}), rnxStatusBadSize);
  EXPECT_EQ(status({2, 2, -1, 2, 1, 1}), rnxStatusBadSize);
  EXPECT_EQ(status({2, 2, 1, 1, -1, 2}), rnxStatusBadSize);
  EXPECT_EQ(status({2, 2, 1, -1, 1, 1}), rnxStatusBadSize);  // too high by one
  EXPECT_EQ(status({2, 2, 1, 1, 1, -1}), rnxStatusBadSize);
  EXPECT_EQ(status({2, 2, kLargest, 2 - kLargest, 1, 1}), rnxStatusBadSize);
  EXPECT_EQ(status({2, 2, 1, 1, kLargest, 2 - kLargest}), rnxStatusBadSize);
}

INSTANTIATE_TEST_SUITE_P(Data, Borders,
                         testing::ValuesIn(select({.subsystem = "data",
                                                   .family = "CopyConstBorder CopyReplicateBorder CopyMirrorBorder "
                                                             "CopyWrapBorder"})),
                         byName);

}  // namespace
}  // namespace rnx::test
