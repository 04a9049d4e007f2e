// The image allocators and the version record.
#include <climits>

#include "support/call.h"
#include "support/companion_double.h"

namespace rnx::test {
namespace {

constexpr s64 kUnset = -77;

struct Allocation {
  void* memory;
  s64 step;
  int requests;  // of the companion library
  s64 length;
  bool wasLong;
};

class Allocator : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& signature = *GetParam();
  const s64 pixelBytes = s64{signature.channels()} * bytesOf(signature.source());

  // The image is given back at once; a caller that only looks at sizes can make the companion refuse.
  Allocation allocate(s64 width, s64 height) {
    const int before = companion().allocations;
    Allocation a{};
    if (signature.isLong) {
      Rnx64s step = kUnset;
      a.memory = Call(signature).with(width, height, &step).result<void*>();
      a.step = step;
    } else {
      int step = kUnset;
      a.memory = Call(signature).with(width, height, &step).result<void*>();
      a.step = step;
    }
    rnxiFree(a.memory);
    a.requests = companion().allocations - before;
    a.length = companion().lastLength;
    a.wasLong = companion().lastWasLong;
    return a;
  }
  void expectRefused(s64 width, s64 height, s64 step) {
    const Allocation a = allocate(width, height);
    EXPECT_EQ(a.memory, nullptr) << width << " x " << height;
    EXPECT_EQ(a.step, step) << width << " x " << height;
    EXPECT_EQ(a.requests, 0) << width << " x " << height;
  }
  // What is asked of the companion, whether it can be had or not.
  void expectRequest(s64 width, s64 height, s64 step) {
    const ScopedAllocationFailure scope;
    const Allocation a = allocate(width, height);
    EXPECT_EQ(a.memory, nullptr);
    EXPECT_EQ(a.step, step) << width << " x " << height;
    EXPECT_EQ(a.requests, 1) << width << " x " << height;
    EXPECT_EQ(a.length, step * height) << width << " x " << height;
    EXPECT_EQ(a.wasLong, signature.isLong);
  }
};

TEST_P(Allocator, RowsAreWholeMultiplesOf64AndUsable) {
  for (s64 width = 1; width <= 70; ++width) {
    const s64 step = (width * pixelBytes + 63) / 64 * 64;
    expectRequest(width, 3, step);
    const Allocation a = allocate(width, 3);
    EXPECT_NE(a.memory, nullptr);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(a.memory) % 64, 0u);
    EXPECT_EQ(a.step, step);
  }
  Rnx64s step = 0;
  void* memory = Call(signature).with(7, 2, &step).result<void*>();
  std::memset(memory, 1, static_cast<size_t>(step) * 2);
  rnxiFree(memory);
  EXPECT_EQ(companion().lastFreed, memory);
}

TEST_P(Allocator, NullStepPointerAsksForNothing) {
  const int before = companion().allocations;
  EXPECT_EQ(Call(signature).with(5, 5, nullptr).result<void*>(), nullptr);
  EXPECT_EQ(companion().allocations, before);
}

TEST_P(Allocator, EmptySizesClearTheStep) {
  for (s64 bad : {s64{0}, s64{-1}, s64{INT_MIN}}) {
    expectRefused(bad, 5, 0);
    expectRefused(5, bad, 0);
  }
  if (signature.isLong) expectRefused(INT64_MIN, 1, 0);
}

TEST_P(Allocator, RowsBeyondTheLimitClearTheStep) {
  const s64 limit = signature.isLong ? INT64_MAX : INT_MAX;
  const s64 widest = limit / pixelBytes;
  if (pixelBytes > 1) {
    expectRefused(widest + 1, 1, 0);
    expectRefused(limit, 1, 0);
  }
  if (signature.isLong) {
    // Rounding up to 64 would pass the limit as well.
    expectRefused(widest, 1, 0);
  } else if (widest * pixelBytes > 0x7fffffc0) {
    // The row rounds up to 0x80000000 bytes, which reads as a negative step and is left standing.
    expectRefused(widest, 1, INT_MIN);
    expectRefused(widest, 2, INT_MIN);
  }
}

TEST_P(Allocator, ImagesBeyondTheLimitKeepTheStep) {
  const s64 step = s64{1} << 16, width = step / pixelBytes;
  if (step % pixelBytes != 0) return;
  if (signature.isLong) {
    expectRefused(width, INT64_MAX / step + 1, step);
    expectRequest(width, s64{1} << 40, step);
  } else {
    expectRefused(width, 32768, step);  // one byte too many
    expectRequest(width, 32767, step);
  }
}

INSTANTIATE_TEST_SUITE_P(Table, Allocator, testing::ValuesIn(select({.family = "Malloc"})), byName);

TEST(Allocation, HasAllExports) { EXPECT_EQ(select({.family = "Malloc"}).size(), 70u); }

TEST(Allocation, StepsByHand) {
  int step = 0;
  const auto stepOf = [&step](void* memory) {
    rnxiFree(memory);
    return step;
  };
  EXPECT_EQ(stepOf(rnxiMalloc_8u_C1(1, 1, &step)), 64);
  EXPECT_EQ(stepOf(rnxiMalloc_32fc_C4(2, 1, &step)), 64);
  EXPECT_EQ(stepOf(rnxiMalloc_8u_C3(22, 1, &step)), 128);
  EXPECT_EQ(rnxiMalloc_8u_C1(65536, 65536, &step), nullptr);
  EXPECT_EQ(step, 65536);
  EXPECT_EQ(rnxiMalloc_8u_C1(0x7fffffff, 2, &step), nullptr);
  EXPECT_EQ(step, INT_MIN);
  EXPECT_EQ(rnxiMalloc_16u_C1(0x7fffffff, 1, &step), nullptr);
  EXPECT_EQ(step, 0);
}

TEST(Allocation, FreePassesNullOn) {
  const int before = companion().frees;
  rnxiFree(nullptr);
  EXPECT_EQ(companion().frees, before + 1);
  EXPECT_EQ(companion().lastFreed, nullptr);
}

TEST(Version, Record) {
  const RnxLibraryVersion* v = rnxiGetLibVersion();
  ASSERT_NE(v, nullptr);
  EXPECT_EQ(v, rnxiGetLibVersion());
  EXPECT_EQ(v->major, 2021);
  EXPECT_EQ(v->minor, 11);
  EXPECT_EQ(v->majorBuild, 0);
  EXPECT_EQ(static_cast<u32>(v->build), 0xcd107b02u);
  EXPECT_EQ(std::memcmp(v->targetCpu, "t2\0", 4), 0);
  EXPECT_STREQ(v->Name, "rnxIP Tova (t2)");
  EXPECT_STREQ(v->Version, "2021.11.0 (r0xcd107b02)");
  EXPECT_STREQ(v->BuildDate, "Jan 30 2024");
}

}  // namespace
}  // namespace rnx::test
