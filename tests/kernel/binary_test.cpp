// All exports of the binary arithmetic against the model: sizes, steps, alignments, scale factors, overlaps, streaming.
#include <climits>

#include "kernel/binary_driver.h"

namespace rnx::test {
namespace {

const std::vector<int> kScales = [] {
  std::vector<int> scales = {INT_MIN, INT_MIN + 1, -1000, -65, -64, -63, -40,  -33,         -32,
                             -31,     63,          64,    65,  255, 256, 1000, INT_MAX - 1, INT_MAX};
  for (int n = -20; n <= 40; ++n) scales.push_back(n);
  return scales;
}();

class Binary : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& signature = *GetParam();
  Random random{signature.name};
  BinaryDriver driver{signature};

  // Which NaN comes out of two is left open, so NaNs may not be read across elements where rows of floats overlap.
  s64 wholeFloats(s64 bytes) const { return driver.isFloat ? bytes / 4 * 4 : bytes; }
  // A step of any kind for rows of so many bytes.
  s64 anyStep(s64 rowBytes) {
    const s64 padded = rowBytes + random.between(1, 70);
    const s64 steps[] = {rowBytes, rowBytes, padded, (rowBytes + 63) / 64 * 64,
                         random.between(std::min<s64>(4, rowBytes), rowBytes)};
    s64 step = wholeFloats(random.pick(steps));
    if (!driver.checksSteps && random.oneIn(4)) step = -step;
    if (!driver.checksSteps && random.oneIn(12)) step = 0;
    return step;
  }
  Placement anyPlacement() {
    return random.pick(std::to_array({Placement::kFlushEnd, Placement::kFlushStart, Placement::kInside}));
  }
  void placeAnyhow(Image& image, s64 width, s64 height, Data data) {
    const s64 rowBytes = width * driver.pixelBytes;
    image.place({rowBytes, height, anyStep(rowBytes)}, anyPlacement(), random, static_cast<int>(random.between(0, 63)));
    image.fillRows(random, data, signature.source());
  }
  int anyScale() { return random.oneIn(3) ? random.pick(kScales) : static_cast<int>(random.between(-4, 12)); }

  // Images of their own for all operands.
  bool checkApart(s64 width, s64 height, Data data, int scale) {
    if (!driver.inPlace) placeAnyhow(left, width, height, data);
    if (!driver.withConstant) placeAnyhow(right, width, height, data);
    placeAnyhow(dst, width, height, data);
    Image& second = driver.withConstant ? driver.values(random, data) : right;
    return driver.check({.left = driver.inPlace ? dst : left,
                         .right = second,
                         .dst = dst,
                         .width = width,
                         .height = height,
                         .scale = scale,
                         .roundMode = static_cast<int>(random.between(0, 2))});
  }

  Image left, right, dst, arena;
};

// Calls that move less than 2 KiB run narrow kernels, so every width comes with few and with many rows.
TEST_P(Binary, SizesStepsAndAlignments) {
  std::vector<s64> widths = {127, 128, 129, 191, 192, 193, 255, 256, 257, 300};
  for (s64 w = 1; w <= 70; ++w) widths.push_back(w);
  for (Data data : kAllData) {
    if (signature.isLong && data != Data::kExtreme) continue;  // they delegate here
    for (s64 width : widths) {
      const s64 manyRows = 2048 / (2 * width * driver.pixelBytes) + 1;
      ASSERT_TRUE(checkApart(width, random.between(1, 4), data, anyScale()));
      ASSERT_TRUE(checkApart(width, manyRows + random.between(0, 3), data, anyScale()));
    }
  }
}

TEST_P(Binary, ScaleFactors) {
  if (driver.isFloat) return;
  for (int scale : kScales) {
    for (Data data : {Data::kBits, Data::kExtreme, Data::kTies}) {
      if (signature.isLong && data != Data::kTies) continue;
      ASSERT_TRUE(checkApart(random.between(350, 400) / signature.channels(), 3, data, scale));
    }
  }
}

// The caller's control state is of no influence where results are integers, and stays, flags included: every rounding
// direction, with and without flushed denormals, and with exceptions that would trap.
TEST_P(Binary, UnderEveryControlState) {
  if (driver.isFloat) return;
  for (unsigned direction = 0; direction < 4; ++direction) {
    for (unsigned others : {0x9fc0u, 0x0000u}) {
      driver.controlState = direction << 13 | others;
      ASSERT_TRUE(checkApart(333, 3, Data::kBits, static_cast<int>(random.between(-4, 4))));
    }
  }
}

// All operands in one buffer: the same rows, rows shifted by a few bytes, by whole rows, side by side, and anyhow.
TEST_P(Binary, Overlaps) {
  constexpr s64 kArena = 32768;
  for (int round = signature.isLong ? 130 : 0; round < 160; ++round) {
    const s64 width = random.oneIn(2) ? random.between(1, 20) : random.between(20, 70);
    const s64 rowBytes = width * driver.pixelBytes;
    const bool manyRows = random.oneIn(2);
    const s64 pitch = random.oneIn(3) ? rowBytes : 2 * rowBytes + random.between(0, 40);
    const s64 height = std::min(manyRows ? 4096 / rowBytes + 1 : random.between(1, 4), 4000 / pitch + 1);
    arena.place({kArena, 1, 0}, Placement::kInside, random, static_cast<int>(random.between(0, 63)));
    fill(random, Data::kBits, signature.source(), arena.data(), kArena / bytesOf(signature.source()));

    const bool sameSteps = !random.oneIn(4), downward = !driver.checksSteps && random.oneIn(4);
    const auto step = [&] { return wholeFloats(sameSteps ? pitch : random.between(std::min<s64>(4, pitch), pitch)); };
    const s64 middle = kArena / 2;
    const auto offset = [&]() -> s64 {
      switch (random.between(0, 5)) {
        case 0:
          return middle;
        case 1:
          return middle + random.between(-3, 3) * pitch;
        case 2:
          return middle + rowBytes;  // beside it, where the pitch leaves room
        case 3:
          return middle + random.between(-8, 8) * bytesOf(signature.source());
        case 4:
          return middle + random.between(-70, 70);
        default:
          return middle + random.between(-1, 1) * pitch + random.between(-rowBytes, rowBytes);
      }
    };
    const auto place = [&] { return Place(arena, wholeFloats(offset()), downward ? -step() : step()); };
    const Place target = place();
    ASSERT_TRUE(driver.check({.left = driver.inPlace ? target : place(),
                              .right = driver.withConstant ? Place(driver.values(random, Data::kBits)) : place(),
                              .dst = target,
                              .width = width,
                              .height = height,
                              .scale = static_cast<int>(random.between(-2, 3)),
                              .roundMode = static_cast<int>(random.between(0, 2))}));
  }
}

TEST_P(Binary, LargerThanTheCache) {
  const ScopedCache cache(kTinyCache);
  const s64 elements = 0x80000 / (driver.withConstant || driver.inPlace ? 2 : 3) / bytesOf(signature.source()) + 1000;
  const s64 width = random.between(200, 500);
  const int queries = companion().cacheQueries;
  ASSERT_TRUE(checkApart(width, elements / (width * signature.channels()) + 1, Data::kBits,
                         static_cast<int>(random.between(0, 2))));
  EXPECT_EQ(companion().cacheQueries > queries, !driver.inPlace);
}

INSTANTIATE_TEST_SUITE_P(Table, Binary, testing::ValuesIn(select({.family = kBinaryFamilies})), byName);

TEST(BinaryTable, HasAllExports) { EXPECT_EQ(select({.family = kBinaryFamilies}).size(), 536u); }

}  // namespace
}  // namespace rnx::test
