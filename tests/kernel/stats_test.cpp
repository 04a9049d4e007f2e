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
    // The exact sum is rounded to the double, whose root or quotient is rounded again.
    const auto sum = static_cast<f64>(total);
    return is("L2") ? std::sqrt(sum) : is("Mean") ? sum / static_cast<f64>(width * height) : total;
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
          want = static_cast<f64>(want) / static_cast<f64>(reference);
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
        const long double allowed = isFloat ? magnitude * (hint == 2 ? 1e-13L : 1e-6L) * (relative ? 3 : 1) : 0;
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
      // Of signed values the smallest is the largest magnitude, and the one whose squares just fit.
      const bool signedNorm = !two && std::is_signed_v<T> && !is("Sum") && !is("Mean");
      const T top = signedNorm ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
      std::vector<T> low(static_cast<size_t>(kWidth * n), std::numeric_limits<T>::min()),
          high(static_cast<size_t>(kWidth * n), top);
      // Steps of 0 where they are accepted make many rows of one.
      const s64 rows = signature.checksFor("step") ? 1 : 3;
      for (int vectorBytes : vectorWidths()) {
        const ScopedWidth scope(vectorBytes);
        f64 result[4];
        Call call(signature);
        const long double most = signedNorm ? -static_cast<long double>(top) : top,
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
        const bool strips = is("L2") && signature.source() == Element::k8u && n == 1;  // which round more often
        for (int c = 0; c < n; ++c) {
          ASSERT_NEAR(result[c], static_cast<f64>(want), strips ? static_cast<f64>(want) * 4e-16 : 0);
        }
      }
    }
  });
}

// More than 2^32 squares of 65535 pass 64 bits: rows that begin one pixel apart make them out of one.
TEST_P(Stats, SquaresPass64Bits) {
  if (!is("L2") || relative || signature.layout != "C1" || signature.source() == Element::k8u || isFloat) return;
  constexpr s64 kWidth = 1 << 17, kHeight = (1 << 15) + 2;
  const bool isSigned = signature.source() == Element::k16s;
  if (isSigned && !two) return;  // 2^30 is the largest square
  std::vector<u16> high(kWidth + kHeight, isSigned ? 0x7fff : 0xffff), low(high.size(), isSigned ? 0x8000 : 0);
  f64 result = 0;
  Call call(signature);
  two ? call.image("src1", high.data(), 2).image("src2", low.data(), 2) : call.image("src", high.data(), 2);
  call.roi(kWidth, kHeight).setAt(signature.parameters().size() - 1, &result);
  ASSERT_EQ(call(), rnxStatusNoError);
  EXPECT_EQ(result, std::sqrt(65535.0 * 65535 * (kWidth * kHeight)));  // 47 significant bits
}

// The accurate sums of floats bit by bit: rows in double precision, even and odd pixels apart, the rows one after the
// other. The largest image, of rows one pixel apart, counts as too large for the caches.
TEST_P(Stats, AccurateSumsAreInOrder) {
  if (!isFloat || relative || is("Inf")) return;
  const int n = signature.channels();
  constexpr s64 kFar = 41;
  for (s64 i = 1; i <= kFar; ++i) {
    const s64 width = i == kFar ? 1 << 17 : i, height = i == kFar ? 34 : random.between(1, 11);
    const s64 step = i == kFar ? 4 : width * n * 4 + 4 * random.between(0, 3);
    for (Image* image : {&first, &second}) {
      image->place({width * n * 4, height, step}, Placement::kFlushEnd, random);
      image->fillRows(random, Data::kModerate, Element::k32f);
    }
    f64 want[4] = {};
    for (int c = 0; c < n; ++c) {
      for (s64 y = 0; y < height; ++y) {
        f64 apart[2] = {};
        for (s64 x = 0; x < width; ++x) {
          f64 v = static_cast<f64>(get<f32>(first.row(y), x * n + c));
          if (two) v -= static_cast<f64>(get<f32>(second.row(y), x * n + c));
          apart[x % 2] += is("L1") ? std::fabs(v) : is("L2") ? v * v : v;
        }
        want[c] += apart[0] + apart[1];
      }
      if (is("L2")) want[c] = std::sqrt(want[c]);
      if (is("Mean")) want[c] /= static_cast<f64>(width * height);
    }
    for (int vectorBytes : vectorWidths()) {
      const ScopedWidth scope(vectorBytes);
      f64 result[4];
      Call call(signature);
      two ? call.image("src1", first).image("src2", second) : call.image("src", first);
      call.roi(width, height).setAt(signature.parameters().size() - 2, &result[0]).set("hint", rnxAlgHintAccurate);
      ASSERT_EQ(call(), rnxStatusNoError);
      for (int c = 0; c < n; ++c) {
        ASSERT_EQ(std::bit_cast<u64>(result[c]), std::bit_cast<u64>(want[c])) << width << " x " << height;
      }
    }
  }
}

// A NaN anywhere is the result of its channel, and of that one only.
TEST_P(Stats, NaNStaysInItsChannel) {
  if (!isFloat) return;
  const int n = signature.channels();
  constexpr s64 kWidth = 50;
  for (s64 i = 0; i < kWidth * n; ++i) {
    std::vector<f32> a(static_cast<size_t>(kWidth * n) * 4, 3), b(a.size(), 1);
    (two && i % 2 == 0 ? b : a)[static_cast<size_t>((i % 4) * kWidth * n + i)] = i % 3 == 0 ? NAN : -NAN;
    for (int hint : {0, 2}) {
      f64 result[4];
      Call call(signature);
      two ? call.image("src1", a.data(), kWidth * n * 4).image("src2", b.data(), kWidth * n * 4)
          : call.image("src", a.data(), kWidth * n * 4);
      call.roi(kWidth, 4).setAt(signature.parameters().size() - (signature.has("hint") ? 2 : 1), &result[0]);
      if (signature.has("hint")) call.set("hint", hint);
      ASSERT_EQ(call(), rnxStatusNoError);
      for (int c = 0; c < n; ++c) ASSERT_EQ(std::isnan(result[c]), c == i % n) << "element " << i << ", channel " << c;
    }
  }
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

// Rows are one where the step is their bytes, not where it is their elements; sums take any step.
TEST(StatsCases, StepsThatLookContiguous) {
  std::vector<u16> a(200);
  for (size_t i = 0; i < a.size(); ++i) a[i] = static_cast<u16>(i * i);
  const auto at = [&](s64 step, s64 x, s64 y) -> f64 {
    return get<u16>(reinterpret_cast<const u8*>(a.data() + 100) + y * step, x);
  };
  for (int step : {20, 40, 10, 7, 0, -20, -13, -40}) {
    f64 sum = 0, squares = 0, r = 0, want = 0, wantSquares = 0;
    for (s64 y = 0; y < 5; ++y) {
      for (s64 x = 0; x < 20; ++x) want += at(step, x, y), wantSquares += at(step, x, y) * at(step, x, y);
    }
    EXPECT_EQ(rnxiSum_16u_C1R(a.data() + 100, step, {20, 5}, &sum), rnxStatusNoError);
    EXPECT_EQ(sum, want) << step;
    EXPECT_EQ(rnxiMean_16u_C1R(a.data() + 100, step, {20, 5}, &r), rnxStatusNoError);
    EXPECT_EQ(r, want / 100) << step;
    const RnxStatus status = rnxiNorm_L2_16u_C1R(a.data() + 100, step, {20, 5}, &squares);
    EXPECT_EQ(status, step < 1 ? rnxStatusBadStep : rnxStatusNoError);
    EXPECT_EQ(squares, step < 1 ? 0 : std::sqrt(wantSquares)) << step;
  }
}

// A division, not a multiplication by the reciprocal: 49 * (1 / 49) is below 1.
TEST(StatsCases, MeansAreDivided) {
  for (int n = 1; n <= 200; ++n) {
    const std::vector<u8> ones(static_cast<size_t>(n), 1), three(static_cast<size_t>(3 * n), 3);
    f64 r[3];
    EXPECT_EQ(rnxiMean_8u_C1R(ones.data(), n, {n, 1}, r), rnxStatusNoError);
    EXPECT_EQ(r[0], 1) << n;
    EXPECT_EQ(rnxiMean_8u_C3R(three.data(), 3, {1, n}, r), rnxStatusNoError);
    EXPECT_EQ(r[2], 3) << n;
  }
}

// Fast sums of many equal values, whose roundings all go one way.
TEST(StatsCases, FastSumsOfLargeImages) {
  const std::vector<f32> all(2000 * 1500, 0.1f), none(all.size(), 0);
  const f64 exact = f64{0.1f} * static_cast<f64>(all.size());
  for (int vectorBytes : vectorWidths()) {
    const ScopedWidth scope(vectorBytes);
    f64 r[4];
    EXPECT_EQ(rnxiSum_32f_C1R(all.data(), 8000, {2000, 1500}, r, 0), rnxStatusNoError);
    EXPECT_NEAR(r[0] / exact, 1, 1e-6);
    EXPECT_EQ(rnxiSum_32f_C4R(all.data(), 8000, {500, 1500}, r, 1), rnxStatusNoError);
    EXPECT_NEAR(r[3] / (exact / 4), 1, 1e-6);
    EXPECT_EQ(rnxiNormDiff_L1_32f_C1R(none.data(), 8000, all.data(), 8000, {2000, 1500}, r, 0), rnxStatusNoError);
    EXPECT_NEAR(r[0] / exact, 1, 1e-6);
    EXPECT_EQ(rnxiNorm_L2_32f_C1R(all.data(), 8000, {2000, 1500}, r, 0), rnxStatusNoError);
    EXPECT_NEAR(r[0] / (f64{0.1f} * std::sqrt(static_cast<f64>(all.size()))), 1, 1e-6);
  }
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
    const std::vector<u8> zeros(ones.size());
    EXPECT_EQ(rnxiNormDiff_L2_8u_C1R(zeros.data(), width, ones.data(), width, {width, 1}, &r), rnxStatusNoError);
    EXPECT_EQ(r, std::sqrt(total)) << width;
    EXPECT_EQ(rnxiNormRel_L2_8u_C1R(zeros.data(), width, ones.data(), width, {width, 1}, &r), rnxStatusNoError);
    EXPECT_EQ(r, 1) << width;
    EXPECT_EQ(rnxiNorm_L2_16u_C1R(reinterpret_cast<const u16*>(ones.data()), 2 * 32768 + 2, {32769, 1}, &r),
              rnxStatusNoError);
    EXPECT_EQ(r, std::sqrt(257.0 * 257 * 32769));
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

// Squares of differences below the range of single precision are not lost; those of equal images are 0.
TEST(StatsCases, TinyDifferences) {
  const std::vector<f32> zeros(300), tiny(300, 1e-30f);
  std::vector<f32> one(300);
  one[150] = 1e-40f;
  f64 r[3];
  EXPECT_EQ(rnxiNormDiff_L2_32f_C1R(tiny.data(), 1200, zeros.data(), 1200, {300, 1}, r, 0), rnxStatusNoError);
  EXPECT_NEAR(r[0] / (f64{1e-30f} * std::sqrt(300.0)), 1, 1e-6);
  EXPECT_EQ(rnxiNormDiff_L2_32f_C3R(one.data(), 1200, zeros.data(), 1200, {100, 1}, r, 0), rnxStatusNoError);
  EXPECT_EQ(r[0], f64{1e-40f});
  EXPECT_EQ(r[1], 0);
  EXPECT_EQ(rnxiNormDiff_L2_32f_C1R(tiny.data(), 1200, tiny.data(), 1200, {300, 1}, r, 0), rnxStatusNoError);
  EXPECT_EQ(std::bit_cast<u64>(r[0]), 0u);
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
