// The companion library itself, not the stand-in of the other suites.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>

#include "rnxcore.h"

namespace {

TEST(Companion, MemoryIsAlignedAndUsable) {
  for (int32_t length : {1, 63, 64, 65, 4096, 100000}) {
    for (void* memory : {rnxMalloc(length), rnxMalloc_L(length)}) {
      ASSERT_NE(memory, nullptr);
      EXPECT_EQ(reinterpret_cast<uintptr_t>(memory) % 64, 0u);
      std::memset(memory, 1, static_cast<size_t>(length));
      rnxFree(memory);
    }
  }
}

TEST(Companion, LengthsThatCannotBeHadGiveNull) {
  for (int32_t length : {0, -1, INT32_MIN}) EXPECT_EQ(rnxMalloc(length), nullptr);
  for (int64_t length : {int64_t{0}, int64_t{-1}, INT64_MIN, INT64_MAX, INT64_MAX - 63}) {
    EXPECT_EQ(rnxMalloc_L(length), nullptr);
  }
  rnxFree(nullptr);
}

// The words of a line such as "flags : fpu vme ...", as the system reports them.
bool systemReports(const std::string& flag) {
  std::ifstream info("/proc/cpuinfo");
  for (std::string line; std::getline(info, line);) {
    if (line.rfind("flags", 0) != 0) continue;
    std::istringstream words(line);
    for (std::string word; words >> word;) {
      if (word == flag) return true;
    }
    return false;
  }
  return false;
}

struct Feature {
  uint64_t bit;
  const char* flag;
};
constexpr Feature kFeatures[] = {
    {rnxFeatureMmx, "mmx"},       {rnxFeatureSse, "sse"},      {rnxFeatureSse2, "sse2"},
    {rnxFeatureSse3, "pni"},      {rnxFeatureSsse3, "ssse3"},  {rnxFeatureMovbe, "movbe"},
    {rnxFeatureSse41, "sse4_1"},  {rnxFeatureSse42, "sse4_2"}, {rnxFeatureAvx, "avx"},
    {rnxFeaturePopcnt, "popcnt"}, {rnxFeatureAes, "aes"},      {rnxFeaturePclmulqdq, "pclmulqdq"},
    {rnxFeatureRdrand, "rdrand"}, {rnxFeatureF16c, "f16c"},    {rnxFeatureAvx2, "avx2"},
    {rnxFeatureFma, "fma"},       {rnxFeatureBmi1, "bmi1"},    {rnxFeatureBmi2, "bmi2"},
    {rnxFeatureLzcnt, "abm"},
};

TEST(Companion, FeaturesAreThoseOfTheProcessor) {
  for (const Feature& f : kFeatures) EXPECT_EQ(ownGetFeature(f.bit) != 0, systemReports(f.flag)) << f.flag;
  bool wide = true;
  for (const char* flag : {"avx512f", "avx512cd", "avx512bw", "avx512dq", "avx512vl"}) {
    wide = wide && systemReports(flag);
  }
  EXPECT_EQ(rnxFeatureAvx512, 0x8000000u);
  EXPECT_EQ(ownGetFeature(rnxFeatureAvx512) != 0, wide);
}

TEST(Companion, MasksNeedAllTheirFeatures) {
  EXPECT_NE(ownGetFeature(0), 0);
  EXPECT_NE(ownGetFeature(rnxFeatureSse | rnxFeatureSse2), 0);
  uint64_t known = 0;
  for (const Feature& f : kFeatures) {
    known |= f.bit;
    EXPECT_EQ(ownGetFeature(f.bit | rnxFeatureSse2) != 0, ownGetFeature(f.bit) != 0);
  }
  known |= rnxFeatureAvx512;
  for (int bit = 0; bit < 64; ++bit) {
    const uint64_t mask = uint64_t{1} << bit;
    if ((mask & known) != 0) continue;
    EXPECT_EQ(ownGetFeature(mask), 0) << bit;
    EXPECT_EQ(ownGetFeature(mask | rnxFeatureSse2), 0) << bit;
  }
}

// Largest data or unified cache in /sys, in bytes; 0 where the system does not say.
int64_t largestCacheOfSystem() {
  int64_t largest = 0;
  for (int index = 0;; ++index) {
    const std::string folder = "/sys/devices/system/cpu/cpu0/cache/index" + std::to_string(index) + "/";
    std::ifstream type(folder + "type"), size(folder + "size");
    std::string kind;
    int64_t kilobytes = 0;
    if (!(type >> kind) || !(size >> kilobytes)) return largest;
    if (kind != "Instruction") largest = std::max(largest, kilobytes * 1024);
  }
}

TEST(Companion, LargestCache) {
  EXPECT_EQ(rnxGetMaxCacheSizeB(nullptr), -8);
  int32_t bytes = -77;
  const int status = rnxGetMaxCacheSizeB(&bytes);
  if (status != 0) {
    EXPECT_EQ(bytes, -77);
    return;
  }
  EXPECT_GE(bytes, 16 * 1024);
  if (const int64_t expected = largestCacheOfSystem(); expected > 0) {
    EXPECT_EQ(bytes, std::min<int64_t>(expected, INT32_MAX));
  }
  int32_t again = 0;
  EXPECT_EQ(rnxGetMaxCacheSizeB(&again), 0);
  EXPECT_EQ(again, bytes);
}

}  // namespace
