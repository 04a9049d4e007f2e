// The _L forms where they cannot be the plain ones: rows gigabytes apart, rows of more pixels than one piece holds.
#include <sys/mman.h>
#include <unistd.h>

#include "kernel/binary_driver.h"

namespace rnx::test {
namespace {

constexpr s64 kTooFar = 0x7fffffff;  // the first step that does not fit the plain form
constexpr s64 kPiece = 0x1fffffff;   // pixels
constexpr size_t kPage = 4096;

// ---- Rows gigabytes apart ----

// Rows of which each ends in front of a page that cannot be touched, with a copy for the model.
class FarImage {
public:
  static constexpr s64 kRows = 3;

  FarImage(s64 rowBytes, s64 step)
      : rowBytes_(rowBytes), step_(step), memory_(static_cast<size_t>(2 * (step < 0 ? -step : step)) + 8 * kPage) {
    const s64 low = step < 0 ? -2 * step : 0;
    data_ = memory_.base() + low + 4 * s64{kPage} - rowBytes;
    for (s64 y = 0; y < kRows; ++y) {
      memory_.open(static_cast<size_t>(row(y) - memory_.base()), static_cast<size_t>(rowBytes));
    }
  }
  u8* row(s64 y) const { return data_ + y * step_; }
  s64 step() const { return step_; }

  void fill(Random& random, Element element) {
    copy_.resize(static_cast<size_t>(kRows * rowBytes_));
    test::fill(random, Data::kBits, element, copy_.data(), kRows * rowBytes_ / bytesOf(element));
    rewind();
    original_ = copy_;
  }
  void rewind() {
    for (s64 y = 0; y < kRows; ++y) std::memcpy(row(y), copyRow(y), static_cast<size_t>(rowBytes_));
  }
  u8* copyRow(s64 y) { return copy_.data() + y * rowBytes_; }
  ref::Rows copy() { return {copy_.data(), rowBytes_}; }

  template <class T>
  bool matches() {
    for (s64 y = 0; y < kRows; ++y) {
      for (s64 x = 0; x < rowBytes_ / s64{sizeof(T)}; ++x) {
        const T actual = get<T>(row(y), x), expected = get<T>(copyRow(y), x);
        const bool bothNaN = actual != actual && expected != expected;
        if (!bothNaN && std::memcmp(&actual, &expected, sizeof(T)) != 0) return false;
      }
    }
    return true;
  }

private:
  s64 rowBytes_, step_;
  Reservation memory_;
  u8* data_;
  std::vector<u8> copy_, original_;
};

class BinaryLong : public testing::TestWithParam<const Signature*> {};

TEST_P(BinaryLong, RowsGigabytesApart) {
  const Signature& s = *GetParam();
  Random random(s.name);
  BinaryDriver driver(s);
  // Multiples of a page keep every row in front of a closed one.
  const s64 steps[] = {0x80000000, 0x100000000, 0x80000000 + 7 * s64{kPage}};
  const auto step = [&] { return (driver.checksSteps || random.oneIn(2) ? 1 : -1) * random.pick(steps); };
  const s64 width = random.between(1, 90), rowBytes = width * driver.pixelBytes;
  FarImage left(rowBytes, step()), right(rowBytes, step()), dst(rowBytes, step());
  for (FarImage* image : {&left, &right, &dst}) image->fill(random, s.source());

  Image& values = driver.values(random, Data::kModerate);
  values.expectNow();
  Call call(s);
  call.image(driver.inPlace ? "srcdst" : "dst", dst.row(0), dst.step()).roi(width, FarImage::kRows);
  if (!driver.withConstant) call.image(driver.inPlace ? "src" : "src1", right.row(0), right.step());
  if (!driver.inPlace) call.image(driver.withConstant ? "src" : "src2", left.row(0), left.step());

  withType(s.source(), [&](auto zero) {
    using T = decltype(zero);
    if constexpr (std::is_same_v<T, u8> || std::is_same_v<T, u16> || std::is_same_v<T, s16> || std::is_same_v<T, f32>) {
      if (driver.withConstant) {
        if (s.layout == "C1") {
          call.role("value", get<T>(values.data()));
        } else {
          call.role("value", values.data());
        }
      }
      ref::Rows b = right.copy();
      if (driver.withConstant) b = {values.shadow(), 0, true};
      ref::apply<T>({driver.op, driver.withConstant}, s, driver.inPlace ? dst.copy() : left.copy(), b, dst.copy(),
                    width, FarImage::kRows);
      const RnxStatus status = call();
      EXPECT_TRUE(status == rnxStatusNoError || (status == rnxStatusWarningDivByZero && driver.op == ref::Op::kDiv));
      EXPECT_TRUE(dst.matches<T>());
      EXPECT_TRUE(left.matches<T>() && right.matches<T>());
    }
  });
}

// The split path has no checks of its own: height 0 is no piece at all, everything else is for the first piece to say.
TEST_P(BinaryLong, ChecksOfTheSplitPath) {
  const Signature& s = *GetParam();
  Random random(s.name);
  BinaryDriver driver(s);
  Image image({64, 1, 64}, Placement::kFlushEnd, random);
  image.expectNow();
  Call call(s);
  for (const char* role : {"src", "src1", "src2", "dst", "srcdst"}) {
    if (s.has(role)) call.image(role, image);
  }
  Image& values = driver.values(random, Data::kModerate);
  if (s.has("value") && s.layout == "C1") call.role("value", 3);
  if (s.has("value") && s.layout != "C1") call.role("value", values.data());

  std::vector<std::string_view> steps;
  for (const Parameter& p : s.parameters()) {
    if (p.isStep()) steps.push_back(p.name);
  }
  for (const auto& step : steps) {
    for (s64 sign : {1, -1}) {
      if (sign < 0 && driver.checksSteps) continue;
      call.set(step, sign * (kTooFar - 1));
      EXPECT_EQ(call.roi(1, 0)(), rnxStatusBadSize) << step;
      call.set(step, sign * kTooFar);
      EXPECT_EQ(call.roi(1, 0)(), rnxStatusNoError) << step;
      EXPECT_EQ(call.roi(1, -5)(), rnxStatusNoError) << step;
      EXPECT_EQ(call.roi(0, 1)(), rnxStatusBadSize) << step;
    }
    call.set(step, 64);
  }
  if (driver.checksSteps) {
    for (const auto& step : steps) {
      for (s64 bad : {s64{0}, s64{-64}, -kTooFar, s64{-1} << 32, s64{-1} << 63}) {
        call.set(step, bad);
        EXPECT_EQ(call.roi(1, 1)(), rnxStatusBadStep) << step << " " << bad;
      }
      call.set(step, 64);
    }
  }
  // Too many bytes for the plain form, and a pointer that the first piece refuses.
  call.setAt(call.indexOfRole(driver.inPlace ? "srcdst" : "dst"), nullptr);
  EXPECT_EQ(call.roi(kTooFar, 2)(), rnxStatusNullPointer);
  EXPECT_EQ(call.roi(s64{1} << 40, s64{1} << 40)(), rnxStatusNullPointer);
  EXPECT_EQ(call.roi(-(s64{1} << 40), 2)(), rnxStatusNullPointer);
  call.setAt(call.indexOf("roiSize"), nullptr);
  EXPECT_EQ(call(), rnxStatusNullPointer);
  EXPECT_TRUE(image.matches());
}

INSTANTIATE_TEST_SUITE_P(Table, BinaryLong, testing::ValuesIn(select({.family = kBinaryFamilies, .isLong = 1})),
                         byName);

TEST(BinaryLong, LastPieceDecidesTheStatus) {
  Random random("LastPiece");
  FarImage divisor(8, kTooFar + 1), dividend(8, kTooFar + 1), dst(8, kTooFar + 1);
  for (s64 zeroRow = 0; zeroRow < FarImage::kRows; ++zeroRow) {
    for (s64 y = 0; y < FarImage::kRows; ++y) std::memset(divisor.row(y), y == zeroRow ? 0 : 1, 8);
    const RnxiSizeL roi = {8, FarImage::kRows};
    EXPECT_EQ(rnxiDiv_8u_C1RSfs_L(divisor.row(0), divisor.step(), dividend.row(0), dividend.step(), dst.row(0),
                                  dst.step(), &roi, 0),
              zeroRow == FarImage::kRows - 1 ? rnxStatusWarningDivByZero : rnxStatusNoError);
  }
}

// ---- Rows of more than one piece ----

// A row of half a billion pixels in 2 MiB: the same pages over and over, apart from those at the start, where two
// pieces meet, and at the end, which are its own. A closed page follows the end.
class LongRow {
public:
  LongRow(s64 pixels, int pixelBytes)
      : bytes_(static_cast<size_t>(pixels * pixelBytes)),
        memory_(bytes_ + kRepeated + 2 * kPage),
        seam_(kPiece * pixelBytes) {
    const size_t whole = (bytes_ + kPage - 1) / kPage * kPage;
    const int file = memfd_create("row", 0);
    if (file < 0 || ftruncate(file, kRepeated) != 0) ADD_FAILURE() << "no shared memory";
    for (size_t at = 0; at < whole; at += kRepeated) {
      mmap(memory_.base() + at, std::min(kRepeated, whole - at), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file,
           0);
    }
    close(file);
    start_ = memory_.base() + (whole - bytes_);
    mapOwn(start_, 2);
    mapOwn(start_ + seam_ - kPage, 3);
    mapOwn(start_ + bytes_ - kPage, 1);
  }
  u8* data() const { return start_; }
  u8* seam() const { return start_ + seam_; }
  u8* end() const { return start_ + bytes_; }

private:
  static void mapOwn(u8* first, size_t pages) {
    const uintptr_t page = reinterpret_cast<uintptr_t>(first) / kPage * kPage;
    mmap(reinterpret_cast<void*>(page), pages * kPage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED,
         -1, 0);
  }

  static constexpr size_t kRepeated = size_t{1} << 21;

  size_t bytes_;
  Reservation memory_;
  s64 seam_;
  u8* start_;
};

TEST(BinaryLong, PiecesOfARow) {
  constexpr s64 kPixels = kPiece + 2000;
  const Signature& s = signature("rnxiAddC_8u_C3RSfs_L");
  Random random(s.name);
  LongRow src(kPixels, 3), dst(kPixels, 3);
  const u8 values[] = {1, 20, 200};
  const auto fillSpan = [&](u8* p, s64 n) { fillBytes(random, p, n); };
  fillSpan(src.data(), 4000);
  fillSpan(src.seam() - 2000, 4000);
  fillSpan(src.end() - 3000, 3000);

  const RnxiSizeL roi = {kPixels, 1};
  ASSERT_EQ(rnxiAddC_8u_C3RSfs_L(src.data(), kTooFar, values, dst.data(), kTooFar, &roi, 0), rnxStatusNoError);
  const auto expectSpan = [&](s64 from, s64 n) {
    for (s64 i = from; i < from + n; ++i) {
      ASSERT_EQ(dst.data()[i], std::min(255, src.data()[i] + values[i % 3])) << "element " << i;
    }
  };
  expectSpan(0, 4000);
  expectSpan(3 * kPiece - 2000, 4000);
  expectSpan(3 * kPixels - 3000, 3000);
}

}  // namespace
}  // namespace rnx::test
