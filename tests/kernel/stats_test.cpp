// Sums, means and norms: integers exactly, floats within what is promised, at both widths with the same bits.
#include <bit>
#include <cmath>

#include "kernel/values_support.h"

namespace rnx::test {
namespace {

constexpr const char* kFamilies =
    "Sum Mean Norm_Inf Norm_L1 Norm_L2 NormDiff_Inf NormDiff_L1 NormDiff_L2 NormRel_Inf NormRel_L1 NormRel_L2";

class Stats : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& signature = *GetParam();
  Random random{signature.name};
  Image first, second;
  const bool two = signature.has("src2"), relative = signature.family.starts_with("NormRel");
  const bool isFloat = signature.source() == Element::k32f;
  bool is(std::string_view ending) const { return signature.family.ends_with(ending); }

  // One reduction of one channel in extended precision; `subtract` takes the second image away.
  template <class T>
  long double reduced(int channel, s64 width, s64 height, bool subtract, bool ofSecond) {
    long double total = 0;
    for (s64 y = 0; y < height; ++y) {
      for (s64 x = 0; x < width; ++x) {
        const s64 i = x * signature.channels() + channel;
        const auto v = [&](Image& image) { return static_cast<long double>(get<T>(image.row(y), i)); };
        const long double d = ofSecond ? v(second) : subtract ? v(first) - v(second) : v(first);
        if (is("Inf")) {
          if (std::isnan(d) || fabsl(d) > total) total = fabsl(d);
          if (std::isnan(d)) return d;
        } else {
          total += is("L1") ? fabsl(d) : is("L2") ? d * d : d;
        }
      }
    }
    return is("L2") ? sqrtl(total) : is("Mean") ? total / (width * height) : total;
  }

  template <class T>
  bool check(s64 width, s64 height, Data data, s64 pad) {
    const s64 rowBytes = width * signature.channels() * s64{sizeof(T)};
    for (Image* image : {&first, &second}) {
      image->place({rowBytes, height, rowBytes + pad}, random.oneIn(2) ? Placement::kFlushEnd : Placement::kFlushStart,
                   random);
      image->fillRows(random, data, signature.source());
    }
    const int hint = static_cast<int>(random.between(0, 3));
    f64 previous[4] = {};
    for (int vectorBytes : vectorWidths()) {
      const ScopedWidth scope(vectorBytes);
      f64 result[5] = {-7, -7, -7, -7, -7};
      Call call(signature);
      if (two) {
        call.image("src1", first).image("src2", second);
      } else {
        call.image("src", first);
      }
      call.roi(width, height).setAt(signature.parameters().size() - (signature.has("hint") ? 2 : 1), &result[0]);
      if (signature.has("hint")) call.set("hint", hint);
      const RnxStatus status = call();
      if (status < 0) return ADD_FAILURE() << status, false;
      for (int c = 0; c < 5; ++c) {
        if (c >= signature.channels()) {
          if (result[c] != -7) return ADD_FAILURE() << "wrote result " << c, false;
          continue;
        }
        long double want = reduced<T>(c, width, height, two, false), magnitude = fabsl(want);
        if (relative) {
          const long double reference = reduced<T>(c, width, height, false, true);
          if (reference == 0 && status != rnxStatusWarningDivByZero) return ADD_FAILURE() << "no warning", false;
          if (reference == 0) continue;
          want /= reference;
        }
        // Sums of floats are near in relation to the sum of magnitudes.
        if (isFloat && !relative && (is("Sum") || is("Mean"))) {
          magnitude = 0;
          for (s64 y = 0; y < height; ++y) {
            for (s64 x = 0; x < width; ++x) magnitude += std::fabs(get<T>(first.row(y), x * signature.channels() + c));
          }
          if (is("Mean")) magnitude /= width * height;
        } else {
          magnitude = fabsl(want);
        }
        const long double allowed = magnitude * (isFloat ? (hint == 2 ? 1e-13L : 1e-6L) * (relative ? 3 : 1)
                                                 : relative || is("L2") || is("Mean") ? 4e-16L
                                                                                      : 0);
        const bool bothNaN = std::isnan(want) && std::isnan(result[c]);
        const bool same = static_cast<long double>(result[c]) == want || static_cast<f64>(want) == result[c];
        const bool looseInf = isFloat && is("Inf") && two && fabsl(result[c] - want) <= magnitude * 1e-6L;
        if (!bothNaN && !same && !looseInf && !(fabsl(result[c] - want) <= allowed)) {
          ADD_FAILURE() << width << " x " << height << " channel " << c << ": " << result[c] << ", not "
                        << static_cast<f64>(want) << ", hint " << hint << ", " << vectorBytes << " bytes";
          return false;
        }
        if (vectorBytes == 16) previous[c] = result[c];
        if (std::bit_cast<u64>(previous[c]) != std::bit_cast<u64>(result[c]) && !std::isnan(previous[c])) {
          return ADD_FAILURE() << "widths differ", false;
        }
      }
    }
    return true;
  }
};

TEST_P(Stats, EqualTheDefinition) {
  withType(signature.source(), [&](auto zero) {
    using T = decltype(zero);
    if constexpr (std::is_arithmetic_v<T>) {
      for (Data data : {Data::kBits, Data::kModerate, Data::kExtreme}) {
        if (isFloat && relative && data != Data::kModerate) continue;
        for (s64 w = 1; w <= 70; ++w) {
          const s64 pad = random.oneIn(2) ? 0 : random.between(1, 9) * s64{sizeof(T)};
          if (!check<T>(w, random.between(1, 3), data, pad)) return;
          if (!check<T>(w, 2048 / w + 2, data, pad)) return;
        }
      }
    }
  });
}

// Accumulators of few bits must be emptied in time: the largest values, in long rows and in many.
TEST_P(Stats, NothingOverflows) {
  if (isFloat || relative) return;
  withType(signature.source(), [&](auto zero) {
    using T = decltype(zero);
    if constexpr (std::is_integral_v<T>) {
      const int n = signature.channels();
      constexpr s64 kWidth = 300000;
      std::vector<T> low(static_cast<size_t>(kWidth * n), std::numeric_limits<T>::min()),
          high(static_cast<size_t>(kWidth * n), std::numeric_limits<T>::max());
      // Steps of 0 where they are accepted make many rows of one.
      const s64 rows = signature.checksFor("step") ? 1 : 3;
      for (int vectorBytes : vectorWidths()) {
        const ScopedWidth scope(vectorBytes);
        f64 result[4];
        Call call(signature);
        const long double most = std::numeric_limits<T>::max(),
                          span = two ? most - std::numeric_limits<T>::min() : most;
        if (two) {
          call.image("src1", high.data(), INT32_MAX).image("src2", low.data(), INT32_MAX);
        } else {
          call.image("src", high.data(), rows == 1 ? INT32_MAX : 0);
        }
        call.roi(kWidth, rows).setAt(signature.parameters().size() - 1, &result[0]);
        ASSERT_EQ(call(), rnxStatusNoError);
        const long double count = kWidth * rows;
        const long double want = is("Inf") || is("Mean") ? span : is("L2") ? sqrtl(span * span * count) : span * count;
        for (int c = 0; c < n; ++c) ASSERT_NEAR(result[c], static_cast<f64>(want), static_cast<f64>(want) * 4e-16);
      }
    }
  });
}

INSTANTIATE_TEST_SUITE_P(Table, Stats, testing::ValuesIn(select({.family = kFamilies})), byName);

TEST(StatsTable, HasAllExports) { EXPECT_EQ(select({.subsystem = "stats"}).size(), 132u); }

TEST(StatsCases, Steps) {
  const u8 a[3] = {1, 2, 3};
  f64 r = 0;
  EXPECT_EQ(rnxiSum_8u_C1R(a, 0, {3, 3}, &r), rnxStatusNoError);
  EXPECT_EQ(r, 18);
  EXPECT_EQ(rnxiNorm_L1_8u_C1R(a, 0, {3, 1}, &r), rnxStatusBadStep);
  EXPECT_EQ(rnxiMean_8u_C1R(nullptr, 3, {0, 1}, nullptr), rnxStatusNullPointer);
  EXPECT_EQ(rnxiMean_8u_C1R(a, 3, {0, 1}, &r), rnxStatusBadSize);
}

TEST(StatsCases, StripsOfL2) {
  const std::vector<u8> ones(3 * 32768 + 5, 1);
  for (int width : {32767, 32768, 32769, 40000, 65536, 98304, 98309}) {
    f64 total = 0, r = 0;
    for (int left = width; left > 0; left -= 32768) {
      const f64 strip = std::sqrt(std::min(left, 32768));
      total = width <= 32768 ? left : total + strip * strip;
    }
    EXPECT_EQ(rnxiNorm_L2_8u_C1R(ones.data(), width, {width, 1}, &r), rnxStatusNoError);
    EXPECT_EQ(r, std::sqrt(total)) << width;
  }
}

TEST(StatsCases, RelativeNormsOfNothing) {
  const f32 zero[6] = {}, some[6] = {0, 4, 2, 0, 0, 0}, by[6] = {0, 2, 0, 0, 0, 0};
  f64 r[3];
  EXPECT_EQ(rnxiNormRel_L1_32f_C3R(some, 12, by, 12, {1, 1}, r, 0), rnxStatusWarningDivByZero);
  EXPECT_EQ(std::bit_cast<u64>(r[0]), 0xfff8000000000000u);
  EXPECT_EQ(r[1], 1);
  EXPECT_EQ(std::bit_cast<u64>(r[2]), 0x7ff0000000000000u);
  EXPECT_EQ(rnxiNormRel_L2_32f_C1R(zero, 24, zero, 24, {6, 1}, r, 0), rnxStatusWarningDivByZero);
  EXPECT_EQ(std::bit_cast<u64>(r[0]), 0xfff8000000000000u);
}

TEST(StatsCases, FloatsBeyondSinglePrecision) {
  f64 r = 0;
  for (f32 v : {3e38f, 1e-30f, 1e-45f}) {
    const std::vector<f32> all(1000, v);
    EXPECT_EQ(rnxiNorm_L2_32f_C1R(all.data(), 4000, {1000, 1}, &r, 0), rnxStatusNoError);
    EXPECT_NEAR(r / (f64{v} * std::sqrt(1000.0)), 1, 1e-6);
    EXPECT_EQ(rnxiSum_32f_C1R(all.data(), 4000, {1000, 1}, &r, 0), rnxStatusNoError);
    EXPECT_NEAR(r / (f64{v} * 1000), 1, 1e-6);
  }
}

}  // namespace
}  // namespace rnx::test
