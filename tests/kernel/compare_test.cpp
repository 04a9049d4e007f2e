// All exports of the comparison against the rule.
#include "kernel/values_support.h"

namespace rnx::test {
namespace {

template <class T>
bool holds(T a, T b, int cmpOp) {
  return cmpOp == 0 ? a < b : cmpOp == 1 ? a <= b : cmpOp == 2 ? a == b : cmpOp == 3 ? a >= b : a > b;
}

class Compare : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& signature = *GetParam();
  Random random{signature.name};
  Image left, right, dst;

  template <class T>
  bool check(s64 width, s64 height, Data data, int cmpOp) {
    const int channels = signature.channels(), used = signature.hasAlpha() ? 3 : channels;
    const s64 rowBytes = width * channels * s64{sizeof(T)}, pad = random.oneIn(2) ? 0 : random.between(1, 40);
    const Placement where = random.oneIn(2) ? Placement::kFlushEnd : Placement::kFlushStart;
    left.place({rowBytes, height, rowBytes + pad}, where, random);
    right.place({rowBytes, height, rowBytes + pad}, where, random);
    dst.place({width, height, width + pad}, where, random);
    left.fillRows(random, data, signature.source());
    right.fillRows(random, data, signature.source());
    for (s64 y = 0; y < height; ++y) {  // most channels alike, so that one of them decides
      for (s64 i = 0; i < width * channels; ++i) {
        if (!random.oneIn(5)) put<T>(right.row(y), i, get<T>(left.row(y), i));
      }
    }
    dst.expectNow();
    for (s64 y = 0; y < height; ++y) {
      for (s64 x = 0; x < width; ++x) {
        bool all = true;
        for (int c = 0; c < used; ++c) {
          all = all && holds(get<T>(left.row(y), x * channels + c), get<T>(right.row(y), x * channels + c), cmpOp);
        }
        dst.shadowRow(y)[x] = all ? 255 : 0;
      }
    }
    for (int vectorBytes : vectorWidths()) {
      const ScopedWidth scope(vectorBytes);
      Call call(signature);
      call.image("src1", left).image("src2", right).image("maskdst", dst).roi(width, height).set("cmpOp", cmpOp);
      const RnxStatus status = call();
      const auto matches = dst.matches();
      EXPECT_EQ(status, rnxStatusNoError);
      EXPECT_TRUE(matches) << width << " x " << height << " op " << cmpOp << ", " << vectorBytes << " bytes";
      if (status != rnxStatusNoError || !matches) return false;
      dst.rewind();
    }
    return true;
  }
};

TEST_P(Compare, EqualsTheRule) {
  withType(signature.source(), [&](auto zero) {
    using T = decltype(zero);
    if constexpr (requires { zero < zero; }) {
      for (s64 w = 1; w <= 70; ++w) {
        for (Data data : {Data::kBits, Data::kExtreme}) {
          const int cmpOp = static_cast<int>(random.between(0, 4));
          if (!check<T>(w, random.between(1, 3), data, cmpOp)) return;
          if (!check<T>(w, 2048 / w + 2, data, cmpOp)) return;
        }
      }
    }
  });
}

// All three images in one piece of memory: the result is that of a loop over the pixels.
TEST_P(Compare, Overlaps) {
  withType(signature.source(), [&](auto zero) {
    using T = decltype(zero);
    if constexpr (requires { zero < zero; }) {
      const s64 pixel = signature.channels() * s64{sizeof(T)}, used = signature.hasAlpha() ? 3 : signature.channels();
      for (int round = 0; round < 120; ++round) {
        const s64 width = random.between(1, 90), height = round % 3 == 0 ? 2048 / width + 1 : random.between(1, 3);
        const s64 pitch = width * pixel + random.between(0, 5);
        dst.place({pitch * (height + 4) + 400, 1, 0}, Placement::kInside, random,
                  static_cast<int>(random.between(0, 63)));
        fill(random, Data::kExtreme, signature.source(), dst.data(), dst.shape().rowBytes / s64{sizeof(T)});
        u8* const middle = dst.data() + 200 + 2 * pitch;
        const auto somewhere = [&] { return middle + random.between(-40, 40) + pitch * random.between(-1, 1); };
        u8 *first = somewhere(), *second = somewhere(), *to = random.oneIn(4) ? first : somewhere();
        const s64 toStep = random.oneIn(2) ? pitch : width;
        const int cmpOp = static_cast<int>(random.between(0, 4));
        dst.expectNow();
        for (s64 y = 0; y < height; ++y) {
          for (s64 x = 0; x < width; ++x) {
            bool all = true;
            for (s64 c = 0; c < used; ++c) {
              const auto at = [&](u8* image) { return get<T>(dst.shadow(image) + y * pitch + x * pixel, c); };
              all = all && holds(at(first), at(second), cmpOp);
            }
            dst.shadow(to)[y * toStep + x] = all ? 255 : 0;
          }
        }
        for (int vectorBytes : vectorWidths()) {
          const ScopedWidth scope(vectorBytes);
          Call call(signature);
          call.image("src1", first, pitch).image("src2", second, pitch).image("maskdst", to, toStep);
          ASSERT_EQ(call.roi(width, height).set("cmpOp", cmpOp)(), rnxStatusNoError);
          ASSERT_TRUE(dst.matches()) << width << " x " << height << " op " << cmpOp << ", sources at " << first - to
                                     << " and " << second - to << ", steps " << pitch << " and " << toStep;
          dst.rewind();
        }
      }
    }
  });
}

TEST_P(Compare, LargerThanTheCaches) {
  const ScopedCache cache(kTinyCache);
  withType(signature.source(), [&](auto zero) {
    using T = decltype(zero);
    if constexpr (requires { zero < zero; }) {
      const s64 width = random.between(300, 500), bytes = 2 * signature.channels() * s64{sizeof(T)} + 1;
      check<T>(width, 0x80000 / (width * bytes) + 2, Data::kBits, static_cast<int>(random.between(0, 4)));
    }
  });
}

INSTANTIATE_TEST_SUITE_P(Table, Compare, testing::ValuesIn(select({.family = "Compare"})), byName);

TEST(CompareStatus, Order) {
  u8 a[4] = {200, 100, 3, 4}, d[4] = {7, 7, 7, 7};
  EXPECT_EQ(rnxiCompare_8u_C1R(a, 0, a, 4, d, 4, {0, 1}, 0), rnxStatusBadStep);
  EXPECT_EQ(rnxiCompare_8u_C1R(a, 4, a, 4, d, 4, {0, 1}, 9), rnxStatusBadSize);
  for (int bad : {5, -1, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(rnxiCompare_8u_C1R(a, 4, a, 4, d, 4, {4, 1}, bad), rnxStatusNoError);
    EXPECT_EQ(d[0], 7);
  }
  EXPECT_EQ(rnxiCompare_8u_C1R(a, 4, a + 1, 4, d, 4, {1, 1}, 4), rnxStatusNoError);
  EXPECT_EQ(d[0], 255);
}

}  // namespace
}  // namespace rnx::test
