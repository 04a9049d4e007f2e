#include <gtest/gtest.h>

#include <cstdio>

#include "support/random.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  std::printf("RNX_SEED=%llu\n", static_cast<unsigned long long>(rnx::test::seed()));
  return RUN_ALL_TESTS();
}
