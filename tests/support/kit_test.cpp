// The kit itself: what it must notice, and that it is really between the libraries.
#include "support/call.h"
#include "support/companion_double.h"

namespace rnx::test {
namespace {

TEST(Kit, TableIsSortedAndComplete) {
  const auto all = signatures();
  ASSERT_GT(all.size(), 600u);
  for (size_t i = 1; i < all.size(); ++i) EXPECT_LT(all[i - 1].name, all[i].name);
  EXPECT_EQ(select({.family = "Add"}).size(), 64u);
  EXPECT_EQ(select({.family = "Add AddC", .types = "8u", .layout = "AC4", .form = "RSfs", .isLong = 0}).size(), 2u);
  for (const Signature& s : all) Call call(s);  // every parameter type is known
}

TEST(Kit, CallsByNameAndRole) {
  Random random("CallsByNameAndRole");
  Image a({5, 3, 7}, Placement::kFlushEnd, random), b({5, 3, 5}, Placement::kFlushStart, random),
      d({5, 3, -9}, Placement::kInside, random, 3);
  d.expectNow();
  for (int y = 0; y < 3; ++y) {
    for (int x = 0; x < 5; ++x) {
      put<u8>(d.shadowRow(y), x, static_cast<u8>(std::min(255, (a.row(y)[x] + b.row(y)[x]) * 4)));
    }
  }
  for (const char* name : {"rnxiAdd_8u_C1RSfs", "rnxiAdd_8u_C1RSfs_L"}) {
    Call call(name);
    call.image("src1", a).image("src2", b).image("dst", d).roi(5, 3).role("scale", -2);
    EXPECT_EQ(call(), rnxStatusNoError);
    EXPECT_TRUE(d.matches());
    EXPECT_EQ(call.roi(0, 3)(), rnxStatusBadSize);
  }
}

TEST(Kit, NoticesForeignBytes) {
  Random random("NoticesForeignBytes");
  for (Placement placement : {Placement::kFlushEnd, Placement::kFlushStart, Placement::kInside}) {
    Image image({10, 2, 13}, placement, random);
    image.expectNow();
    EXPECT_TRUE(image.matches());
    u8* const places[] = {image.row(0) + 9, image.row(1) - 1, image.row(0) + 10};
    for (u8* p : places) {
      *p ^= 1;
      EXPECT_FALSE(image.matches());
      *p ^= 1;
    }
  }
}

TEST(KitDeathTest, TouchingBehindAFlushImageEndsTheProgram) {
  Random random("death");
  Image end({10, 2, 13}, Placement::kFlushEnd, random), start({10, 2, 13}, Placement::kFlushStart, random);
  EXPECT_DEATH(*const_cast<volatile u8*>(end.row(1) + 10) = 0, "");
  EXPECT_DEATH(*const_cast<volatile u8*>(start.row(0) - 1) = 0, "");
}

TEST(Kit, StandsBetweenTheLibraries) {
  int step = 0;
  const int before = companion().allocations;
  void* memory = rnxiMalloc_8u_C1(10, 10, &step);
  EXPECT_EQ(companion().allocations, before + 1);
  EXPECT_EQ(companion().lastLength, 640);
  rnxiFree(memory);
  EXPECT_EQ(companion().lastFreed, memory);
  {
    ScopedAllocationFailure fail;
    EXPECT_EQ(rnxiMalloc_8u_C1(10, 10, &step), nullptr);
  }
  ScopedWidth narrow(16);
  EXPECT_EQ(ownGetFeature(rnxFeatureAvx2), 0);
  {
    ScopedCache cache(12345);
    int32_t bytes = 0;
    EXPECT_EQ(rnxGetMaxCacheSizeB(&bytes), 0);
    EXPECT_EQ(bytes, 12345);
  }
  ScopedUnknownCache unknown;
  int32_t bytes = 0;
  EXPECT_NE(rnxGetMaxCacheSizeB(&bytes), 0);
}

}  // namespace
}  // namespace rnx::test
