// All conversions against the model; exhaustively for sources of 8 and 16 bits; on and beside every tie for floats.
#include <climits>

#include "kernel/values_support.h"
#include "ref/convert_model.h"

namespace rnx::test {
namespace {

const std::vector<int> kScales = [] {
  std::vector<int> scales = {INT_MIN, INT_MIN + 1, -1000, -150, -129, -128, -127, -64, -33,  -32,
                             -31,     31,          32,    33,   64,   126,  127,  128, 1000, INT_MAX};
  for (int n = -20; n <= 20; ++n) scales.push_back(n);
  return scales;
}();

class Convert : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& signature = *GetParam();
  ValuesDriver driver{signature};
  const bool isScaled = signature.form.find("Sfs") != std::string_view::npos, isRounded = signature.has("anyround");

  // The value of an element, for the call as it is from now on.
  auto setModel(int roundMode, int scale) {
    if (isRounded) driver.call.set("roundMode", roundMode);
    if (isScaled) driver.call.set("scaleFactor", scale);
    const Element from = signature.source(), to = signature.destination();
    return [=, this](int, long double v) {
      if (ref::isFloat(to)) return v;
      if (isScaled) return ref::scaled(v, from, to, roundMode, scale);
      return ref::toInteger(v, to, roundMode);
    };
  }
  bool checkWith(int roundMode, int scale) { return driver.check(byElement(signature, setModel(roundMode, scale))); }
  int anyMode() { return driver.random.pick(std::vector{0, 1, 2, 7, -1}); }

  // Lays `all` out in whole pixels.
  template <class S>
  void placeValues(const std::vector<S>& all) {
    const s64 rows = signature.channels() == 3 ? 4 : 3, perRow = static_cast<s64>(all.size()) / rows;
    driver.place(perRow / signature.channels(), rows, Data::kBits);
    for (s64 y = 0; y < rows; ++y) {
      std::memcpy(driver.sourceRow(y), all.data() + y * perRow, static_cast<size_t>(perRow) * sizeof(S));
    }
  }

  // The values of interest of S, as one image.
  template <class S>
  std::vector<S> values() {
    std::vector<S> all;
    using Limits = std::numeric_limits<S>;
    if constexpr (std::is_floating_point_v<S>) {
      for (S tie = -400; tie <= 400; tie += S(0.5)) all.push_back(tie);
      for (int n = 6; n <= 33; ++n) {
        for (S d : {S(-1), S(-0.5), S(0), S(0.5), S(1)}) all.push_back(std::ldexp(S(1), n) + d);
      }
      for (S v : {Limits::infinity(), Limits::max(), Limits::min(), Limits::denorm_min(), S(3e9), S(1e20)})
        all.push_back(v);
      const size_t n = all.size();
      for (size_t i = 0; i < n; ++i) {
        for (S v : {std::nextafter(all[i], -Limits::infinity()), std::nextafter(all[i], Limits::infinity()), -all[i]}) {
          all.push_back(v);
        }
      }
      all.push_back(Limits::quiet_NaN());
      all.push_back(-Limits::quiet_NaN());
    } else if constexpr (sizeof(S) <= 2) {
      for (s64 v = Limits::min(); v <= Limits::max(); ++v) all.push_back(static_cast<S>(v));
    } else {
      for (int n = 0; n < 32; ++n) {
        for (s64 d = -3; d <= 3; ++d) {
          all.push_back(static_cast<S>((s64{1} << n) + d));
          all.push_back(static_cast<S>(-(s64{1} << n) + d));
          all.push_back(static_cast<S>((s64{3} << n) / 2 + d));
        }
      }
      for (int i = 0; i < 2000; ++i) all.push_back(static_cast<S>(driver.random.next()));
    }
    while (all.size() % 48 != 0) all.push_back(all[all.size() / 2]);
    return all;
  }
};

TEST_P(Convert, SizesAndData) {
  for (Data data : {Data::kModerate, Data::kExtreme, Data::kTies}) {
    driver.sizes([&](s64 w, s64 h) {
      driver.place(w, h, data);
      return checkWith(anyMode(), driver.random.pick(kScales));
    });
  }
}

TEST_P(Convert, AllValues) {
  withType(signature.source(), [&](auto zero) {
    using S = decltype(zero);
    if constexpr (std::is_arithmetic_v<S>) {
      const std::vector<S> all = values<S>();  // a multiple of 48: rows of whole pixels
      for (int mode : {0, 1, 2}) {
        if (!isRounded && mode > 0) break;
        for (int scale : isScaled ? kScales : std::vector<int>{0}) {
          placeValues(all);
          if (!checkWith(mode, scale)) {
            ADD_FAILURE() << "mode " << mode << " scale " << scale;
            return;
          }
        }
      }
    }
  });
}

// The caller's control state is of no influence, and stays: every direction, with and without flushed denormals, and
// with exceptions that would trap.
TEST_P(Convert, UnderEveryControlState) {
  if (!ref::isFloat(signature.source()) && !ref::isFloat(signature.destination())) return;
  withType(signature.source(), [&](auto zero) {
    using S = decltype(zero);
    if constexpr (std::is_arithmetic_v<S>) {
      const std::vector<S> all = values<S>();
      for (unsigned direction = 0; direction < 4; ++direction) {
        for (unsigned others : {0x1f80u, 0x9fc0u, 0x0000u}) {
          driver.controlState = direction << 13 | others;
          for (int mode : {0, 1, 2}) {
            if (!isRounded && mode > 0) break;
            for (int scale : isScaled ? std::vector{0, 3, -5, 126, -127} : std::vector{0}) {
              placeValues(all);
              ASSERT_TRUE(checkWith(mode, scale))
                  << "mode " << mode << " scale " << scale << " direction " << direction;
            }
          }
        }
      }
    }
  });
}

TEST_P(Convert, Overlaps) {
  if (driver.inPlace) return;
  driver.overlaps([&](s64 w, s64 h) {
    return driver.checkOverlap(w, h, Data::kModerate,
                               setModel(anyMode(), static_cast<int>(driver.random.between(-3, 5))));
  });
}

TEST_P(Convert, LargerThanTheCaches) {
  driver.large([&](s64 w, s64 h) {
    driver.place(w, h, Data::kModerate);
    EXPECT_TRUE(checkWith(anyMode(), 2));
  });
}

INSTANTIATE_TEST_SUITE_P(Table, Convert, testing::ValuesIn(select({.family = "Convert"})), byName);

TEST(ConvertTable, HasAllExports) { EXPECT_EQ(select({.family = "Convert"}).size(), 105u); }

TEST(ConvertStatus, Steps) {
  u16 s[4] = {3, 5, 0, 0};
  s16 d[4];
  u8 b[4];
  EXPECT_EQ(rnxiConvert_16u8u_C1R(s, 0, b, 4, {4, 1}), rnxStatusBadStep);
  EXPECT_EQ(rnxiConvert_16u16s_C1RSfs(s, 0, d, -8, {4, 1}, 1, 1), rnxStatusNoError);
  EXPECT_EQ(d[0], 2);
  EXPECT_EQ(d[1], 2);
}

}  // namespace
}  // namespace rnx::test
