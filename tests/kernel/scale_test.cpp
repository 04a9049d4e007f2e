// Scale and ScaleC against their formulas.
#include <cmath>

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

  bool check() {
    if (signature.has("range")) driver.call.set("vMin", vMin).set("vMax", vMax);
    if (signature.has("hint")) driver.call.set("hint", hint);
    return driver.check(
        byElement(signature, [this](int, long double x) -> long double { return expected(static_cast<f64>(x)); }));
  }
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

INSTANTIATE_TEST_SUITE_P(Table, Scale, testing::ValuesIn(select({.family = "Scale"})), byName);

class ScaleC : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& signature = *GetParam();
  ValuesDriver driver{signature};
};

bool fitsSingle(Element e) { return bytesOf(e) <= 2 || e == Element::k32f; }

TEST_P(ScaleC, EqualsTheFormula) {
  struct Case {
    f64 m, a;
  };
  const Case cases[] = {{1.5, -3},   {-0.37, 100.25}, {1, 0.5}, {257, -32768},
                        {1e9, 1e10}, {0, -1e300},     {NAN, 0}, {1 + 0x1p-52, 0}};
  const Element from = signature.source(), to = signature.destination();
  for (Data data : {Data::kModerate, Data::kExtreme, Data::kTies}) {
    driver.sizes([&](s64 w, s64 h) {
      driver.place(w, h, data);
      const Case c = driver.random.pick(cases);
      const int hint = static_cast<int>(driver.random.between(0, 3));
      const bool single = hint != 2 && fitsSingle(from) && fitsSingle(to);
      driver.controlState =
          0x1f80 | static_cast<unsigned>(driver.random.between(0, 3)) << 13 | (driver.random.oneIn(2) ? 0x8040u : 0u);
      driver.call.set("mVal", c.m).set("aVal", c.a).set("hint", hint);
      return driver.check(byElement(signature, [=](int, long double x) -> long double {
        const f64 v = single ? static_cast<f32>(x) * static_cast<f32>(c.m) + static_cast<f32>(c.a)
                             : static_cast<f64>(x) * c.m + c.a;
        return ref::isFloat(to) ? v : ref::toInteger(v, to, 1);
      }));
    });
  }
}

// Bits are copied, and nothing but what a copy checks is checked.
TEST_P(ScaleC, IdentityCopiesBits) {
  if (signature.source() != signature.destination()) return;
  for (const auto& [m, a] : {std::pair{1.0, 0.0}, {1 - 0x1p-53, -0x1p-53}, {1.0, 5e-324}}) {
    driver.place(37, 3, Data::kExtreme);
    driver.call.set("mVal", m).set("aVal", a);
    const auto bytes = static_cast<size_t>(37 * bytesOf(signature.source()));
    ASSERT_TRUE(driver.check([=](const u8* from, u8* to, s64) { std::memcpy(to, from, bytes); }));
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
}

}  // namespace
}  // namespace rnx::test
