// Scale and ScaleC against their formulas.
#include <array>
#include <cmath>
#include <numeric>

#include "kernel/values_support.h"
#include "ref/convert_model.h"

namespace rnx::test {
namespace {

class Scale : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& signature = *GetParam();
  ValuesDriver driver{signature};
  f32 vMin = -3.5f, vMax = 1000.25f;
  int hint = 0;

  // One value, as the header gives it.
  f64 expected(f64 x) const {
    const std::string_view t = signature.types;
    if (t == "8u16u") return x * 257;
    if (t == "8u16s") return x * 257 - 32768;
    if (t == "8u32s") return x * 16843009 - 2147483648;
    if (t == "8u32f") return f64{vMin + static_cast<f32>(x) * ((vMax - vMin) / 255.0f)};
    if (t == "32f8u") {
      const f32 k = 255.0f / (vMax - vMin), v = static_cast<f32>(x);
      const f32 clamped = std::isnan(v) || v > vMax ? vMax : v < vMin ? vMin : v;
      return std::fmin(255, std::fmax(0, std::rint(f64{clamped * k - k * vMin})));
    }
    const f64 u = t == "16u8u" ? x : t == "16s8u" ? x + 32768 : x + 2147483648;
    const f64 range = t == "32s8u" ? 4294967295.0 : 65535.0;
    if (hint != 2) return std::floor(u * 256 / (range + 1));
    return std::rint(f64{static_cast<f32>(u) * static_cast<f32>(255 / range)});
  }

  auto setModel() {
    if (signature.has("range")) driver.call.set("vMin", vMin).set("vMax", vMax);
    if (signature.has("hint")) driver.call.set("hint", hint);
    return [this](int, long double x) -> long double { return expected(static_cast<f64>(x)); };
  }
  bool check() { return driver.check(byElement(signature, setModel())); }
};

TEST_P(Scale, EqualsTheFormula) {
  for (Data data : {Data::kBits, Data::kModerate, Data::kExtreme}) {
    driver.sizes([&](s64 w, s64 h) {
      driver.place(w, h, data);
      hint = static_cast<int>(driver.random.between(0, 3));
      driver.controlState = 0x1f80 | static_cast<unsigned>(driver.random.between(0, 3)) << 13;
      return check();
    });
  }
}

TEST_P(Scale, AllValuesOf16Bits) {
  if (bytesOf(signature.source()) != 2) return;
  const int channels = signature.channels();
  for (hint = 1; hint <= 2; ++hint) {
    driver.place(1024 / channels, 80, Data::kBits);
    s64 next = 0;
    for (s64 y = 0; y < 80; ++y) {
      for (s64 i = 0; i < 1024 / channels * channels; ++i) put<u16>(driver.sourceRow(y), i, static_cast<u16>(next++));
    }
    ASSERT_TRUE(check());
  }
}

// Ranges that lose bits, that overflow, that are below the normal numbers: on the ends and beside them, and on the
// ties between the results.
TEST_P(Scale, AnyRange) {
  if (!signature.has("range")) return;
  const std::pair<f32, f32> ranges[] = {
      {0, 1},           {-1, 1},        {0, 255},         {0, 510},     {-100, 155},         {1e7f, 1e7f + 1},
      {-3e38f, 3e38f},  {0, 3e38f},     {1e-30f, 2e-30f}, {0, 1e-40f},  {-1e-40f, 1e-40f},   {-1e-40f, 0},
      {1e-40f, 2e-40f}, {-INFINITY, 0}, {0, INFINITY},    {-1e-45f, 1}, {16777216, 16777218}};
  for (const auto& [low, high] : ranges) {
    vMin = low, vMax = high;
    std::vector<f32> values = {0, -0.0f, NAN, -NAN, INFINITY, -INFINITY, 1e-45f, -1e-45f, 3.4e38f, -3.4e38f};
    for (int k = -1; k <= 511; ++k) values.push_back(low + static_cast<f32>(k) / 510 * (high - low));
    for (f32 v : {low, high}) {
      for (f32 towards : {-INFINITY, INFINITY}) values.push_back(std::nextafter(v, towards));
    }
    for (unsigned state : {0x1f80u, 0xffc0u, 0x0000u}) {
      driver.controlState = state;
      const s64 n = 144;
      driver.place(n / signature.channels() * 4, 1, Data::kBits);
      if (signature.source() == Element::k32f) {
        for (s64 i = 0; i < n / signature.channels() * signature.channels() * 4; ++i) {
          put<f32>(driver.sourceRow(0), i, values[static_cast<size_t>(i) % values.size()]);
        }
      }
      ASSERT_TRUE(check()) << low << " to " << high;
    }
  }
}

TEST_P(Scale, Overlaps) {
  driver.overlaps([&](s64 w, s64 h) {
    hint = static_cast<int>(driver.random.between(0, 3));
    return driver.checkOverlap(w, h, Data::kModerate, setModel());
  });
}

TEST_P(Scale, LargerThanTheCaches) {
  driver.large([&](s64 w, s64 h) {
    driver.place(w, h, Data::kModerate);
    EXPECT_TRUE(check());
  });
}

INSTANTIATE_TEST_SUITE_P(Table, Scale, testing::ValuesIn(select({.family = "Scale"})), byName);

class ScaleC : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& signature = *GetParam();
  ValuesDriver driver{signature};

  auto setModel(f64 m, f64 a, int hint);
};

bool fitsSingle(Element e) { return bytesOf(e) <= 2 || e == Element::k32f; }

auto ScaleC::setModel(f64 m, f64 a, int hint) {
  const Element from = signature.source(), to = signature.destination();
  const bool single = hint != 2 && fitsSingle(from) && fitsSingle(to);
  driver.call.set("mVal", m).set("aVal", a).set("hint", hint);
  return [=](int, long double x) -> long double {
    const f64 v =
        single ? static_cast<f32>(x) * static_cast<f32>(m) + static_cast<f32>(a) : static_cast<f64>(x) * m + a;
    return ref::isFloat(to) ? v : ref::toInteger(v, to, 1);
  };
}

struct Constants {
  f64 m, a;
};
// The last ones are beside the largest int, for sources of 8 and of 16 bits: 255 * 8421504 = 2^31 - 128.
constexpr Constants kConstants[] = {{1.5, -3},
                                    {-0.37, 100.25},
                                    {1, 0.5},
                                    {257, -32768},
                                    {1e9, 1e10},
                                    {0, -1e300},
                                    {NAN, 0},
                                    {1 + 0x1p-52, 0},
                                    {0, INFINITY},
                                    {8421504, 0},
                                    {-8421504, -8421504},
                                    {8421505, 300},
                                    {32768, 0},
                                    {-32768, 0},
                                    {32768.5, 0},
                                    {65536, 1},
                                    {0, 2147483647.0},
                                    {1, -2147483648.0},
                                    {1e-3, 2147483520.0},
                                    {1, 2147482700.0}};

TEST_P(ScaleC, EqualsTheFormula) {
  for (Data data : {Data::kModerate, Data::kExtreme, Data::kTies}) {
    driver.sizes([&](s64 w, s64 h) {
      driver.place(w, h, data);
      const Constants c = driver.random.pick(kConstants);
      driver.controlState =
          0x1f80 | static_cast<unsigned>(driver.random.between(0, 3)) << 13 | (driver.random.oneIn(2) ? 0x8040u : 0u);
      return driver.check(byElement(signature, setModel(c.m, c.a, static_cast<int>(driver.random.between(0, 3)))));
    });
  }
}

// Every value of a byte, and 16-bit ones from end to end, with all constants.
TEST_P(ScaleC, AllConstants) {
  const int bytes = bytesOf(signature.source());
  if (bytes > 2) return;
  for (const Constants& c : kConstants) {
    for (int hint : {1, 2}) {
      driver.place(1024, 3, Data::kBits);
      for (s64 y = 0; y < 3; ++y) {
        for (s64 i = 0; i < 1024; ++i) {
          const s64 v = y < 2 ? 32768 * y + i - 512 : 64 * i;
          bytes == 1 ? put<u8>(driver.sourceRow(y), i, static_cast<u8>(v))
                     : put<u16>(driver.sourceRow(y), i, static_cast<u16>(v));
        }
      }
      ASSERT_TRUE(driver.check(byElement(signature, setModel(c.m, c.a, hint))))
          << c.m << " " << c.a << " hint " << hint;
    }
  }
}

TEST_P(ScaleC, Overlaps) {
  // Parts of floats read as floats may be anything, a NaN of which only the model would make another one too.
  if (driver.inPlace || ref::isFloat(signature.source())) return;
  driver.overlaps([&](s64 w, s64 h) {
    return driver.checkOverlap(w, h, Data::kModerate, setModel(1.5, -3, driver.random.pick(std::vector{1, 2})));
  });
}

TEST_P(ScaleC, LargerThanTheCaches) {
  driver.large([&](s64 w, s64 h) {
    driver.place(w, h, Data::kModerate);
    EXPECT_TRUE(driver.check(byElement(signature, setModel(1.5, -3, 1))));
  });
}

// Bits are copied, and nothing but what a copy checks is checked.
TEST_P(ScaleC, IdentityCopiesBits) {
  if (signature.source() != signature.destination()) return;
  for (const auto& [m, a] : {std::pair{1.0, 0.0}, {1 - 0x1p-53, -0x1p-53}, {1.0, 5e-324}}) {
    driver.place(37, 3, Data::kExtreme);
    driver.call.set("mVal", m).set("aVal", a);
    const auto bytes = static_cast<size_t>(37 * bytesOf(signature.source()));
    driver.bitByBit = true;
    ASSERT_TRUE(driver.check([=](const u8* from, u8* to, s64) { std::memcpy(to, from, bytes); }));
  }
}

// Whole elements one after the other, however few bytes the images are apart.
TEST(ScaleCIdentity, CopiesDoublesInOrder) {
  for (const int vectorBytes : vectorWidths()) {
    const ScopedWidth scope(vectorBytes);
    for (s64 distance = -20; distance <= 20; ++distance) {
      std::array<u8, 400> actual, expected;
      std::iota(actual.begin(), actual.end(), u8{0});
      expected = actual;
      for (s64 i = 100; i < 300; i += 8) std::memmove(expected.data() + i + distance, expected.data() + i, 8);
      const auto* src = reinterpret_cast<const f64*>(actual.data() + 100);
      auto* dst = reinterpret_cast<f64*>(actual.data() + 100 + distance);
      ASSERT_EQ(rnxiScaleC_64f_C1R(src, 200, 1.0, 0.0, dst, 200, {25, 1}, rnxAlgHintNone), rnxStatusNoError);
      ASSERT_EQ(actual, expected) << distance << " bytes apart";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Table, ScaleC, testing::ValuesIn(select({.family = "ScaleC"})), byName);

TEST(ScaleTable, HasAllExports) { EXPECT_EQ(select({.family = "Scale ScaleC"}).size(), 88u); }

TEST(ScaleStatus, Order) {
  u8 a[4] = {};
  f32 f[4] = {};
  for (const auto& [low, high] : {std::pair{1.0f, 1.0f}, {2.0f, 1.0f}, {NAN, 1.0f}, {0.0f, NAN}, {0.0f, -0.0f}}) {
    EXPECT_EQ(rnxiScale_8u32f_C1R(nullptr, 0, nullptr, 0, {0, 0}, low, high), rnxStatusBadScaleRange);
    EXPECT_EQ(rnxiScale_32f8u_C1R(nullptr, 0, nullptr, 0, {0, 0}, low, high), rnxStatusBadScaleRange);
  }
  EXPECT_EQ(rnxiScale_8u32f_C1R(nullptr, 0, f, 16, {4, 1}, 0.0f, 0x1p-149f), rnxStatusNullPointer);
  EXPECT_EQ(rnxiScale_16u8u_C1R(nullptr, 0, a, 4, {0, 1}, 0), rnxStatusNullPointer);
  EXPECT_EQ(rnxiScaleC_8u_C1IR(a, 0, 1.0, 0.0, {4, 1}, 0), rnxStatusNoError);
  EXPECT_EQ(rnxiScaleC_8u_C1IR(a, 0, 2.0, 0.0, {4, 1}, 0), rnxStatusBadStep);
  EXPECT_EQ(rnxiScaleC_8u_C1IR(nullptr, 0, 1.0, 0.0, {4, 1}, 0), rnxStatusNullPointer);
  EXPECT_EQ(rnxiScaleC_8u_C1IR(a, 0, 1.0, 0.0, {4, 0}, 0), rnxStatusBadSize);
  // Only what is nearer than 2^-52 to 1 and to 0 is the identity.
  for (const auto& [m, s] : {std::pair{1 + 0x1p-52, 0.0}, {1 - 0x1p-52, 0.0}, {1.0, 0x1p-52}, {1.0, -0x1p-52}}) {
    EXPECT_EQ(rnxiScaleC_8u_C1IR(a, 0, m, s, {4, 1}, 0), rnxStatusBadStep) << m << " " << s;
  }
}

}  // namespace
}  // namespace rnx::test
