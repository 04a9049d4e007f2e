// All exports of the thresholding against the rule.
#include <cmath>

#include "kernel/values_support.h"

namespace rnx::test {
namespace {

constexpr const char* kFamilies =
    "Threshold Threshold_LT Threshold_GT Threshold_Val Threshold_LTVal Threshold_GTVal Threshold_LTValGTVal";

class Threshold : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& signature = *GetParam();
  ValuesDriver driver{signature};
  bool has(const char* word) const { return signature.family.find(word) != std::string_view::npos; }

  template <class T>
  void setValues(const char* parameter, const T* values) {
    if (signature.layout == "C1") {
      driver.call.set(parameter, values[0]);
    } else {
      driver.call.set(parameter, values);
    }
  }

  // One threshold and value per channel, or two.
  template <class T>
  struct Values {
    T low[4], lowValue[4], high[4], highValue[4];
  };
  alignas(16) u8 values[sizeof(Values<f64>)];  // of the call

  // Sets thresholds and values; what an element of a channel becomes by them.
  template <class T>
  auto setModel(Data data, T occurring) {
    Values<T> v;
    const bool both = has("LTValGTVal"), replaces = has("Val");
    for (int c = 0; c < 4; ++c) {
      v.low[c] = value<T>(driver.random, data), v.high[c] = value<T>(driver.random, data);
      if (both && v.high[c] < v.low[c]) std::swap(v.low[c], v.high[c]);
      v.lowValue[c] = value<T>(driver.random, data), v.highValue[c] = value<T>(driver.random, data);
    }
    if (!both) v.low[0] = occurring;
    const auto& kept = *new (values) Values<T>(v);
    bool below = has("LT"), above = has("GT");
    if (both) {
      setValues("thresholdLT", kept.low), setValues("valueLT", kept.lowValue);
      setValues("thresholdGT", kept.high), setValues("valueGT", kept.highValue);
    } else {
      setValues("threshold", kept.low);
      if (replaces) setValues("value", kept.lowValue);
      if (!below && !above) {
        below = driver.random.oneIn(2), above = !below;
        driver.call.set("cmpOp", below ? 0 : 4);
      }
    }
    return [=](int c, long double element) -> long double {
      const T s = static_cast<T>(element);
      if (both) return s < v.low[c] ? v.lowValue[c] : s > v.high[c] ? v.highValue[c] : s;
      return (below ? s < v.low[c] : s > v.low[c]) ? (replaces ? v.lowValue[c] : v.low[c]) : s;
    };
  }

  template <class T>
  bool checkOnce(s64 width, s64 height, Data data) {
    driver.place(width, height, data);
    driver.controlState =
        0x1f80 | static_cast<unsigned>(driver.random.between(0, 3)) << 13 | (driver.random.oneIn(2) ? 0x8040u : 0u);
    return driver.check(byElement(signature, setModel<T>(data, get<T>(driver.sourceRow(0)))));
  }
};

TEST_P(Threshold, EqualsTheRule) {
  withType(signature.source(), [&](auto zero) {
    using T = decltype(zero);
    if constexpr (requires { zero < zero; }) {
      for (Data data : {Data::kBits, Data::kExtreme, Data::kTies}) {
        driver.sizes([&](s64 w, s64 h) { return checkOnce<T>(w, h, data); });
      }
    }
  });
}

TEST_P(Threshold, Overlaps) {
  if (driver.inPlace) return;
  withType(signature.source(), [&](auto zero) {
    using T = decltype(zero);
    if constexpr (requires { zero < zero; }) {
      driver.overlaps(
          [&](s64 w, s64 h) { return driver.checkOverlap(w, h, Data::kTies, setModel<T>(Data::kTies, T(16))); });
    }
  });
}

// The bits of what is kept: NaNs of every kind, and zeros of the sign that the threshold does not have.
TEST(ThresholdFloats, KeepTheirBits) {
  const u32 kept[] = {0x7fc00000, 0xffc12345, 0x7f800001, 0xff923456, 0x80000000, 0x00000000};
  std::vector<f32> src(960), dst(960);  // enough for the wide kernels
  for (size_t i = 0; i < src.size(); ++i) std::memcpy(&src[i], &kept[i % 6], 4);
  for (int vectorBytes : vectorWidths()) {
    const ScopedWidth scope(vectorBytes);
    for (f32 zero : {0.0f, -0.0f, std::nanf("")}) {
      for (int form = 0; form < 6; ++form) {
        const f32* s = src.data();
        f32* d = dst.data();
        std::fill(dst.begin(), dst.end(), 5.0f);
        const RnxStatus status = form == 0   ? rnxiThreshold_LT_32f_C1R(s, 3840, d, 3840, {960, 1}, zero)
                                 : form == 1 ? rnxiThreshold_GT_32f_C1R(s, 3840, d, 3840, {960, 1}, zero)
                                 : form == 2 ? rnxiThreshold_LTVal_32f_C1R(s, 3840, d, 3840, {960, 1}, zero, 7)
                                 : form == 3 ? rnxiThreshold_GTVal_32f_C1R(s, 3840, d, 3840, {960, 1}, zero, 7)
                                 : form == 4
                                     ? rnxiThreshold_LTValGTVal_32f_C1R(s, 3840, d, 3840, {960, 1}, zero, 7, zero, 8)
                                     : rnxiThreshold_32f_C1R(s, 3840, d, 3840, {960, 1}, zero, 4);
        EXPECT_EQ(status, rnxStatusNoError);
        EXPECT_EQ(std::memcmp(s, d, 3840), 0) << "form " << form << ", threshold " << zero;
      }
    }
  }
}

// An element that was replaced is not compared again, and every channel has its own pair.
TEST(ThresholdOutside, ReplacesOnce) {
  const u8 src[9] = {10, 10, 10, 60, 60, 60, 200, 200, 200}, low[3] = {50, 5, 60}, high[3] = {100, 60, 60};
  const u8 lowValue[3] = {250, 251, 252}, highValue[3] = {1, 2, 3};
  const u8 expected[9] = {250, 10, 252, 60, 60, 60, 1, 2, 3};
  u8 dst[9] = {};
  EXPECT_EQ(rnxiThreshold_LTValGTVal_8u_C3R(src, 9, dst, 9, {3, 1}, low, lowValue, high, highValue), rnxStatusNoError);
  EXPECT_EQ(std::memcmp(dst, expected, 9), 0);
}

INSTANTIATE_TEST_SUITE_P(Table, Threshold, testing::ValuesIn(select({.family = kFamilies})), byName);

TEST(ThresholdTable, HasAllExports) { EXPECT_EQ(select({.family = kFamilies}).size(), 184u); }

TEST(ThresholdStatus, Order) {
  u8 a[4] = {1, 2, 3, 4};
  const RnxiSize roi = {4, 1}, none = {0, 1};
  EXPECT_EQ(rnxiThreshold_Val_8u_C1R(nullptr, 4, a, 4, roi, 1, 1, 2), rnxStatusUnsupportedMode);
  EXPECT_EQ(rnxiThreshold_8u_C1R(nullptr, 4, a, 4, roi, 1, 2), rnxStatusNullPointer);
  EXPECT_EQ(rnxiThreshold_8u_C1R(a, 4, a, 0, roi, 1, 2), rnxStatusBadStep);
  EXPECT_EQ(rnxiThreshold_8u_C1IR(a, 4, roi, 1, 1), rnxStatusUnsupportedMode);
  EXPECT_EQ(rnxiThreshold_LT_8u_C3R(a, 4, a, 4, none, nullptr), rnxStatusNullPointer);
  EXPECT_EQ(rnxiThreshold_LT_8u_C1IR(a, 0, none, 1), rnxStatusBadSize);
  EXPECT_EQ(rnxiThreshold_LTValGTVal_8u_C1IR(a, 4, roi, 51, 0, 50, 0), rnxStatusBadThreshold);
  const f32 low[3] = {0, 0, 1}, high[3] = {0, -0.0f, -1}, nan[3] = {0, 0, NAN};
  f32 pixels[4] = {};
  EXPECT_EQ(rnxiThreshold_LTValGTVal_32f_AC4IR(pixels, 16, {1, 1}, low, low, high, low), rnxStatusBadThreshold);
  EXPECT_EQ(rnxiThreshold_LTValGTVal_32f_AC4IR(pixels, 16, {1, 1}, low, low, nan, low), rnxStatusNoError);
  EXPECT_EQ(a[0], 1);
}

}  // namespace
}  // namespace rnx::test
