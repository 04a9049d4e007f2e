// Gray and one-bit images, every export at every bit offset against a loop over bits.
#include <xmmintrin.h>

#include <cmath>

#include "kernel/data_support.h"

namespace rnx::test {
namespace {

bool getBit(const u8* row, s64 i) { return (row[i / 8] >> (i % 8) & 1) != 0; }

void putBit(u8* row, s64 i, bool bit) {
  row[i / 8] = static_cast<u8>((row[i / 8] & ~(1 << i % 8)) | (bit ? 1 << i % 8 : 0));
}

// Of floating point, the caller's own: as usual, denormals flushed, exceptions that would trap.
constexpr unsigned kControlStates[] = {0x1f80, 0x9fc0, 0x0000};

class OneBit : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& s = *GetParam();
  Random random{s.name};
  const bool toBits = s.family == "GrayToBin";
  const Element gray = toBits ? s.source() : s.destination();

  template <class T>
  void check(s64 width, s64 height, int offset) {
    const s64 bitBytes = (offset % 8 + width + 7) / 8, grayBytes = width * s64{sizeof(T)};
    const auto step = [&](s64 bytes) { return bytes + (random.oneIn(2) ? 0 : random.between(0, 40)); };
    Image bits, pixels;
    placeRandomly(bits, random, bitBytes, height, step(bitBytes));
    placeRandomly(pixels, random, grayBytes, height, step(grayBytes));
    pixels.fillRows(random, random.pick(kAllData), gray);
    const T threshold = random.oneIn(2) ? get<T>(pixels.data()) : value<T>(random, Data::kTies);
    const T low = value<T>(random, Data::kModerate), high = value<T>(random, Data::kModerate);
    if (toBits) {
      for (s64 x = 0; x < width; ++x) {
        if (random.oneIn(4)) put(pixels.data(), x, threshold);
      }
    }
    pixels.expectNow();
    for (s64 y = 0; y < height; ++y) {
      for (s64 x = 0; x < width; ++x) {
        if (toBits) {
          putBit(bits.shadowRow(y), offset % 8 + x, get<T>(pixels.row(y), x) > threshold);
        } else {
          put(pixels.shadowRow(y), x, getBit(bits.row(y), offset % 8 + x) ? high : low);
        }
      }
    }
    Call call(s);
    call.image(toBits ? "src" : "dst", pixels).image(toBits ? "bits_dst" : "bits_src", bits).roi(width, height);
    call.set(toBits ? "dstBitOffset" : "srcBitOffset", offset);
    if (toBits) {
      call.set("threshold", threshold);
    } else {
      call.set("loVal", low).set("hiVal", high);
    }
    const unsigned before = _mm_getcsr(), own = random.pick(kControlStates);
    _mm_setcsr(own);
    const RnxStatus status = call();
    const unsigned after = _mm_getcsr();
    _mm_setcsr(before);
    ASSERT_EQ(status, rnxStatusNoError);
    ASSERT_EQ(after, own);
    ASSERT_TRUE(bits.matches()) << width << "x" << height << " offset " << offset;
    ASSERT_TRUE(pixels.matches()) << width << "x" << height << " offset " << offset;
  }

  template <class T>
  void overlapping(s64 width, s64 height) {
    const int offset = static_cast<int>(random.between(0, 9));
    const s64 bitBytes = (offset % 8 + width + 7) / 8, grayBytes = width * s64{sizeof(T)};
    Arena arena(random, 6000);
    Image& memory = arena.memory();
    const s64 grayStep = grayBytes + random.between(0, 9), bitStep = bitBytes + random.between(0, 9);
    u8* pixels = arena.place(grayBytes, height, grayStep);
    u8* bits = arena.place(bitBytes, height, bitStep, pixels);
    const T threshold = value<T>(random, Data::kModerate), low = value<T>(random, Data::kModerate);
    const T high = value<T>(random, Data::kModerate);
    for (s64 y = 0; y < height; ++y) {
      u8 *grayRow = memory.shadow(pixels) + y * grayStep, *bitRow = memory.shadow(bits) + y * bitStep;
      for (s64 x = 0; x < width; ++x) {
        if (toBits) {
          putBit(bitRow, offset % 8 + x, get<T>(grayRow, x) > threshold);
        } else {
          put(grayRow, x, getBit(bitRow, offset % 8 + x) ? high : low);
        }
      }
    }
    Call call(s);
    call.set(toBits ? "pSrc" : "pDst", pixels).set(toBits ? "srcStep" : "dstStep", grayStep);
    call.set(toBits ? "pDst" : "pSrc", bits).set(toBits ? "dstStep" : "srcStep", bitStep).roi(width, height);
    call.set(toBits ? "dstBitOffset" : "srcBitOffset", offset);
    if (toBits) {
      call.set("threshold", threshold);
    } else {
      call.set("loVal", low).set("hiVal", high);
    }
    ASSERT_EQ(call(), rnxStatusNoError);
    ASSERT_TRUE(memory.matches()) << width << "x" << height << " offset " << offset << " apart " << bits - pixels;
  }
};

TEST_P(OneBit, MatchesTheModel) {
  for (const int vector : vectorWidths()) {
    const ScopedWidth bytes(vector);
    for (int offset = 0; offset <= 9; ++offset) {
      for (const s64 w : hardWidths()) {
        withType(gray, [&](auto zero) {
          if constexpr (sizeof(zero) <= 4) check<decltype(zero)>(w, random.between(1, 3), offset);
        });
        if (HasFatalFailure()) return;
      }
    }
  }
}

// Pixel by pixel where the images overlap: a bit that is written is there for the pixels that follow.
TEST_P(OneBit, MayOverlap) {
  for (const int vector : vectorWidths()) {
    const ScopedWidth bytes(vector);
    for (int i = 0; i < 200; ++i) {
      withType(gray, [&](auto zero) {
        if constexpr (sizeof(zero) <= 4) overlapping<decltype(zero)>(random.between(1, 150), random.between(1, 3));
      });
      if (HasFatalFailure()) return;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Data, OneBit,
                         testing::ValuesIn(select({.subsystem = "data", .family = "GrayToBin BinToGray"})), byName);

TEST(GrayToBin, TakesWhatIsNotANumberForNotAbove) {
  const f32 src[3] = {NAN, 1.0f, -NAN};
  u8 bits = 0xff;
  EXPECT_EQ(rnxiGrayToBin_32f1u_C1R(src, 12, &bits, 1, 1, {3, 1}, 0.0f), rnxStatusNoError);
  EXPECT_EQ(bits, 0xf5);
  EXPECT_EQ(rnxiGrayToBin_32f1u_C1R(src, 12, &bits, 1, 1, {3, 1}, NAN), rnxStatusNoError);
  EXPECT_EQ(bits, 0xf1);
}

TEST(GrayToBin, RefusesANegativeOffsetLast) {
  u8 src[4] = {}, bits = 0;
  EXPECT_EQ(rnxiGrayToBin_8u1u_C1R(src, 4, &bits, 1, -1, {4, 1}, 0), rnxStatusBadSize);
  EXPECT_EQ(rnxiGrayToBin_8u1u_C1R(src, 0, &bits, 1, -1, {4, 1}, 0), rnxStatusBadStep);
}

}  // namespace
}  // namespace rnx::test
