// Every pair of 8u values; every 16-bit divisor with dividends on and beside the ties; results written out by hand.
#include <array>
#include <climits>

#include "ref/arith_model.h"
#include "support/call.h"
#include "support/companion_double.h"

namespace rnx::test {
namespace {

using ref::Arithmetic;
using ref::Op;

// ---- 8u: left values along the rows, right values down the columns ----

constexpr int kValues = 256;
using Table = std::array<std::array<u8, kValues>, kValues>;  // [right][left]

Table modelTable(Arithmetic arithmetic) {
  Table table;
  for (int right = 0; right < kValues; ++right) {
    for (int left = 0; left < kValues; ++left) {
      table[right][left] = arithmetic(static_cast<u8>(left), static_cast<u8>(right));
    }
  }
  return table;
}

struct Operands {
  Operands() {
    for (int right = 0; right < kValues; ++right) {
      for (int left = 0; left < kValues; ++left) lefts[right][left] = u8(left), rights[right][left] = u8(right);
    }
  }
  Table lefts, rights;
};
const Operands kOperands;

void expectImages(Call& call, Arithmetic arithmetic) {
  const Table expected = modelTable(arithmetic);
  call.image("src1", &kOperands.rights, kValues).image("src2", &kOperands.lefts, kValues).roi(kValues, kValues);
  call.role("scale", arithmetic.scale);
  for (int width : vectorWidths()) {
    ScopedWidth scope(width);
    Table result{};
    call.image("dst", &result, kValues);
    ASSERT_EQ(call(), arithmetic.op == Op::kDiv ? rnxStatusWarningDivByZero : rnxStatusNoError);
    ASSERT_EQ(result, expected) << call.signature().name << ", scale factor " << arithmetic.scale << ", rounding "
                                << arithmetic.roundMode << ", vectors of " << width;
  }
}

// Four rows move enough bytes for wide vectors.
void expectConstants(Call& call, Arithmetic arithmetic) {
  const Table expected = modelTable(arithmetic);
  call.image("src", &kOperands.lefts, kValues).roi(kValues, 4).role("scale", arithmetic.scale);
  for (int width : vectorWidths()) {
    ScopedWidth scope(width);
    for (int right = arithmetic.op == Op::kDiv ? 1 : 0; right < kValues; ++right) {
      std::array<std::array<u8, kValues>, 4> result{};
      call.role("value", right).image("dst", &result, kValues);
      ASSERT_EQ(call(), rnxStatusNoError);
      ASSERT_EQ(result[3], expected[right])
          << call.signature().name << ", value " << right << ", scale factor " << arithmetic.scale;
    }
  }
}

struct Family {
  Op op;
  const char *images, *constant;
};

TEST(BinaryExhaustive, AllPairsOf8u) {
  for (const Family& family : {Family{Op::kAdd, "rnxiAdd_8u_C1RSfs", "rnxiAddC_8u_C1RSfs"},
                               {Op::kSub, "rnxiSub_8u_C1RSfs", "rnxiSubC_8u_C1RSfs"},
                               {Op::kMul, "rnxiMul_8u_C1RSfs", "rnxiMulC_8u_C1RSfs"},
                               {Op::kDiv, "rnxiDiv_8u_C1RSfs", "rnxiDivC_8u_C1RSfs"}}) {
    Call images(family.images), constant(family.constant);
    for (int scale = -9; scale <= 18; ++scale) {
      expectImages(images, {family.op, false, scale});
      expectConstants(constant, {family.op, true, scale});
    }
  }
}

TEST(BinaryExhaustive, AllQuotientsOf8uInAllRoundingModes) {
  Call call("rnxiDiv_Round_8u_C1RSfs");
  for (int scale = -9; scale <= 9; ++scale) {
    for (int mode = 0; mode <= 2; ++mode) {
      call.role("round", mode);
      expectImages(call, {Op::kDiv, false, scale, mode});
    }
  }
}

// ---- 16 bits: dividends x with x / divisor * 2^-scale = k + 1/2, and the ones beside them ----

template <class T>
class Quotients {
public:
  Quotients(const char* plain, const char* rounded) : plain_(plain), rounded_(rounded) {}

  void add(s64 dividend, s64 divisor) {
    dividends_[count_] = static_cast<T>(std::clamp<s64>(dividend, Limits::min(), Limits::max()));
    divisors_[count_] = static_cast<T>(divisor);
    if (++count_ == kBatch) flush();
  }
  // Three ties of this divisor, the largest among them.
  void addTies(Random& random, s64 divisor, int scale) {
    const auto tie = [&](s64 k) {
      const s64 twice = (2 * k + 1) * divisor;
      return scale > 0 ? twice * (s64{1} << (scale - 1)) : ref::floorDivide(twice, s64{1} << (1 - scale));
    };
    const s64 magnitude = divisor < 0 ? -divisor : divisor, range = Limits::max();
    const s64 quotients = scale > 0 ? (range / magnitude) >> scale : (range << -scale) / magnitude;
    for (const s64 k : {s64{0}, random.between(0, quotients), quotients}) {
      const s64 sign = std::is_signed_v<T> && random.oneIn(2) ? -1 : 1;
      for (int beside = -1; beside <= 1; ++beside) add(sign * tie(std::min<s64>(k, Limits::max())) + beside, divisor);
    }
  }
  void useScale(int scale) {
    flush();
    scale_ = scale;
  }
  void flush() {
    for (int mode = 0; mode <= 2; ++mode) {
      Arithmetic model = {Op::kDiv, false, scale_, mode};
      for (int i = 0; i < count_; ++i) expected_[i] = model(dividends_[i], divisors_[i]);
      for (int width : vectorWidths()) {
        ScopedWidth scope(width);
        run(rounded_.role("round", mode));
        if (mode == rnxRoundNearestEven) run(plain_);
      }
    }
    count_ = 0;
  }

private:
  using Limits = std::numeric_limits<T>;
  static constexpr int kBatch = 4096;

  void run(Call& call) {
    call.image("src1", &divisors_, sizeof divisors_).image("src2", &dividends_, sizeof dividends_);
    call.image("dst", &results_, sizeof results_).role("scale", scale_).roi(std::max(count_, 1), 1);
    call();
    for (int i = 0; i < count_; ++i) {
      ASSERT_EQ(results_[i], expected_[i])
          << call.signature().name << ": " << dividends_[i] << " / " << divisors_[i] << ", scale factor " << scale_;
    }
  }

  Call plain_, rounded_;
  int scale_ = 0, count_ = 0;
  std::array<T, kBatch> dividends_{}, divisors_{}, results_{}, expected_{};
};

template <class T>
void checkAllDivisors(const char* plain, const char* rounded) {
  Random random(plain);
  Quotients<T> quotients(plain, rounded);
  for (int scale : {-17, -16, -15, -9, -8, -7, -6, -5, -4, -3, -2, -1, 0, 1, 2, 3, 4, 8, 9, 14, 15, 16}) {
    quotients.useScale(scale);
    for (s64 d = std::numeric_limits<T>::min(); d <= std::numeric_limits<T>::max(); ++d) {
      if (d != 0) quotients.addTies(random, d, scale);
    }
    if (testing::Test::HasFatalFailure()) return;
  }
  quotients.flush();
}

TEST(BinaryExhaustive, TiesOfAllDivisorsOf16u) {
  checkAllDivisors<u16>("rnxiDiv_16u_C1RSfs", "rnxiDiv_Round_16u_C1RSfs");
}
TEST(BinaryExhaustive, TiesOfAllDivisorsOf16s) {
  checkAllDivisors<s16>("rnxiDiv_16s_C1RSfs", "rnxiDiv_Round_16s_C1RSfs");
}

// ---- By hand: first operand (or the constant), second operand (or the source), result ----

struct Literal {
  const char* name;
  s64 first, second;
  int scale;
  s64 result;
  RnxStatus status = rnxStatusNoError;
};

const Literal kLiterals[] = {
    {"rnxiAdd_8u_C1RSfs", 1, 2, 1, 2},
    {"rnxiAdd_8u_C1RSfs", 2, 3, 1, 2},
    {"rnxiAdd_8u_C1RSfs", 3, 4, 1, 4},
    {"rnxiAdd_8u_C1RSfs", 255, 255, 9, 1},
    {"rnxiAdd_8u_C1RSfs", 255, 255, 10, 0},
    {"rnxiAdd_8u_C1RSfs", 1, 0, -8, 255},
    {"rnxiAdd_8u_C1RSfs", 0, 0, INT_MIN, 0},
    {"rnxiAdd_8u_C1RSfs", 255, 255, INT_MAX, 0},
    {"rnxiSub_8u_C1RSfs", 10, 3, 0, 0},
    {"rnxiSub_8u_C1RSfs", 3, 10, 0, 7},
    {"rnxiSub_8u_C1IRSfs", 3, 10, 0, 7},
    {"rnxiSubC_8u_C1RSfs", 3, 10, 0, 7},
    {"rnxiSub_8u_C1RSfs", 0, 255, 8, 1},
    {"rnxiSub_8u_C1RSfs", 0, 255, 9, 0},
    {"rnxiMul_8u_C1RSfs", 255, 255, 16, 1},
    {"rnxiMul_8u_C1RSfs", 255, 255, 17, 0},
    {"rnxiMul_16u_C1RSfs", 65535, 65535, 16, 65534},
    {"rnxiMul_16u_C1RSfs", 65535, 65535, 17, 32767},
    {"rnxiMul_16u_C1RSfs", 65535, 65535, 32, 1},
    {"rnxiMul_16s_C1RSfs", -32768, -32768, 31, 0},  // a tie
    {"rnxiMulC_16s_C1RSfs", -32768, -32768, 30, 1},
    {"rnxiAdd_16u_C1RSfs", 65535, 65535, 17, 1},
    {"rnxiAddC_16u_C1RSfs", 65535, 65535, 16, 2},
    {"rnxiAddC_16u_C1RSfs", 65535, 65535, 17, 0},  // 131070 / 2^17 would round to 1
    {"rnxiDiv_8u_C1RSfs", 0, 7, 0, 255, rnxStatusWarningDivByZero},
    {"rnxiDiv_8u_C1RSfs", 0, 0, 0, 0, rnxStatusWarningDivByZero},
    {"rnxiDiv_8u_C1RSfs", 0, 7, INT_MAX, 255, rnxStatusWarningDivByZero},
    {"rnxiDiv_8u_C1RSfs", 2, 5, 0, 2},
    {"rnxiDiv_8u_C1IRSfs", 2, 7, 0, 4},
    {"rnxiDiv_8u_C1RSfs", 7, 1, -8, 37},
    {"rnxiDiv_16u_C1RSfs", 0, 1, 3, 65535, rnxStatusWarningDivByZero},
    {"rnxiDiv_16s_C1RSfs", 0, -1, 3, -32768, rnxStatusWarningDivByZero},
    {"rnxiDiv_16s_C1RSfs", 0, 1, 3, 32767, rnxStatusWarningDivByZero},
    {"rnxiDiv_16s_C1RSfs", -1, -32768, 0, 32767},
    {"rnxiDiv_16s_C1RSfs", 2, -5, 0, -2},
    {"rnxiDivC_16s_C1RSfs", 0, 5, 0, 77, rnxStatusDivByZero},
};

TEST(BinaryLiteral, ResultsByHand) {
  for (const Literal& literal : kLiterals) {
    Call call(literal.name);
    withType(call.signature().source(), [&](auto zero) {
      using T = decltype(zero);
      if constexpr (std::is_integral_v<T>) {
        const bool inPlace = call.signature().has("srcdst");
        T first = T(literal.first), second = T(literal.second), result = inPlace ? second : T(77);
        T* written = &result;
        if (call.signature().has("value")) {
          call.role("value", first).image("src", &second, 4);
        } else {
          call.image(inPlace ? "src" : "src1", &first, 4);
          if (!inPlace) call.image("src2", &second, 4);
        }
        call.image(inPlace ? "srcdst" : "dst", written, 4).roi(1, 1).role("scale", literal.scale);
        EXPECT_EQ(call(), literal.status) << literal.name;
        EXPECT_EQ(result, T(literal.result)) << literal.name << " " << literal.first << " " << literal.second;
      }
    });
  }
}

// A zero among the divisor's alphas is no division by zero, one constant of three is.
TEST(BinaryLiteral, AlphaIsNobodysDivisor) {
  for (const Signature* s : select({.family = "Div", .layout = "AC4"})) {
    withType(s->source(), [&](auto zero) {
      using T = decltype(zero);
      if constexpr (std::is_arithmetic_v<T>) {
        constexpr int kElements = 4 * 101;
        std::vector<T> divisor(kElements, T(2)), dividend(kElements, T(6)), result(kElements, T(9));
        for (int i = 3; i < kElements; i += 4) divisor[i] = 0;
        Call call(*s);
        const bool inPlace = s->has("srcdst");
        call.image(inPlace ? "src" : "src1", divisor.data(), 9999).roi(101, 1);
        if (!inPlace) call.image("src2", dividend.data(), 9999);
        T* out = inPlace ? dividend.data() : result.data();
        call.image(inPlace ? "srcdst" : "dst", out, 9999);
        EXPECT_EQ(call(), rnxStatusNoError) << s->name;
        for (int i = 0; i < kElements; ++i) ASSERT_EQ(out[i], T(i % 4 != 3 ? 3 : inPlace ? 6 : 9)) << s->name;
        divisor[kElements - 2] = 0;
        EXPECT_EQ(call(), rnxStatusWarningDivByZero) << s->name;
      }
    });
  }
}

}  // namespace
}  // namespace rnx::test
