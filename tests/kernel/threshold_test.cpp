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

  template <class T>
  bool checkOnce(s64 width, s64 height, Data data) {
    T low[4], lowValue[4], high[4], highValue[4];
    for (int c = 0; c < 4; ++c) {
      low[c] = value<T>(driver.random, data), high[c] = value<T>(driver.random, data);
      if (has("LTValGTVal") && high[c] < low[c]) std::swap(low[c], high[c]);
      lowValue[c] = value<T>(driver.random, data), highValue[c] = value<T>(driver.random, data);
    }
    driver.place(width, height, data);
    // Thresholds that occur.
    if (!has("LTValGTVal")) low[0] = get<T>(driver.sourceRow(0));
    bool below = has("LT"), above = has("GT");
    const bool both = has("LTValGTVal");
    if (both) {
      setValues("thresholdLT", low), setValues("valueLT", lowValue);
      setValues("thresholdGT", high), setValues("valueGT", highValue);
    } else {
      setValues("threshold", low);
      if (has("Val")) setValues("value", lowValue);
      if (!below && !above) {
        below = driver.random.oneIn(2), above = !below;
        driver.call.set("cmpOp", below ? 0 : 4);
      }
    }
    return driver.check(byElement(signature, [=, this](int c, long double element) -> long double {
      const T s = static_cast<T>(element);
      if (both) return s < low[c] ? lowValue[c] : s > high[c] ? highValue[c] : s;
      const T replacement = has("Val") ? lowValue[c] : low[c];
      return (below ? s < low[c] : s > low[c]) ? replacement : s;
    }));
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
