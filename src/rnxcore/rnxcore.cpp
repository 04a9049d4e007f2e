// The companion library. It depends on libc alone and holds one word of cached state per question to the processor:
// CPUID costs microseconds under a hypervisor, the callers ask on every image.
#include "rnxcore.h"

#include <cpuid.h>
#include <stdlib.h>
#include <unistd.h>

#include <atomic>

#define RNX_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

constexpr size_t kAlignment = 64;

void* allocate(int64_t length) {
  if (length < 1) return nullptr;
  void* memory = nullptr;
  return posix_memalign(&memory, kAlignment, static_cast<size_t>(length)) == 0 ? memory : nullptr;
}

struct Cpuid {
  unsigned eax = 0, ebx = 0, ecx = 0, edx = 0;
};

// All zeros for a leaf that the processor does not have.
Cpuid cpuid(unsigned leaf, unsigned subleaf = 0) {
  Cpuid r;
  if (static_cast<unsigned>(__get_cpuid_max(leaf & 0x80000000u, nullptr)) < leaf) return r;
  __cpuid_count(leaf, subleaf, r.eax, r.ebx, r.ecx, r.edx);
  return r;
}

uint64_t enabledRegisterState() {
  unsigned low = 0, high = 0;
  __asm__("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
  return (static_cast<uint64_t>(high) << 32) | low;
}

constexpr uint64_t kKnownFeatures = 0x7ffff | rnxFeatureAvx512;
constexpr uint64_t kDetected = uint64_t{1} << 63;  // marks a cached answer, never a feature

uint64_t detectFeatures() {
  const Cpuid basic = cpuid(1);
  const Cpuid extended = cpuid(7);
  const Cpuid vendor = cpuid(0x80000001u);

  uint64_t found = 0;
  const auto add = [&found](unsigned reg, unsigned bit, uint64_t feature) {
    if ((reg >> bit & 1) != 0) found |= feature;
  };
  add(basic.edx, 23, rnxFeatureMmx);
  add(basic.edx, 25, rnxFeatureSse);
  add(basic.edx, 26, rnxFeatureSse2);
  add(basic.ecx, 0, rnxFeatureSse3);
  add(basic.ecx, 9, rnxFeatureSsse3);
  add(basic.ecx, 22, rnxFeatureMovbe);
  add(basic.ecx, 19, rnxFeatureSse41);
  add(basic.ecx, 20, rnxFeatureSse42);
  add(basic.ecx, 23, rnxFeaturePopcnt);
  add(basic.ecx, 25, rnxFeatureAes);
  add(basic.ecx, 1, rnxFeaturePclmulqdq);
  add(basic.ecx, 30, rnxFeatureRdrand);
  add(extended.ebx, 3, rnxFeatureBmi1);
  add(extended.ebx, 8, rnxFeatureBmi2);
  add(vendor.ecx, 5, rnxFeatureLzcnt);

  const bool systemSavesState = (basic.ecx >> 27 & 1) != 0;  // OSXSAVE
  const uint64_t state = systemSavesState ? enabledRegisterState() : 0;
  if ((state & 0x6) == 0x6) {  // low and high halves of the 256-bit registers
    add(basic.ecx, 28, rnxFeatureAvx);
    add(basic.ecx, 29, rnxFeatureF16c);
    add(basic.ecx, 12, rnxFeatureFma);
    add(extended.ebx, 5, rnxFeatureAvx2);
  }
  constexpr unsigned kAvx512Bits = 1u << 16 | 1u << 17 | 1u << 28 | 1u << 30 | 1u << 31;  // F DQ CD BW VL
  if ((state & 0xe6) == 0xe6 && (extended.ebx & kAvx512Bits) == kAvx512Bits) found |= rnxFeatureAvx512;
  return found;
}

// Deterministic cache parameters: leaf 4 and 0x8000001d share one format.
int64_t largestCacheOfLeaf(unsigned leaf) {
  int64_t largest = 0;
  for (unsigned index = 0; index < 16; ++index) {
    const Cpuid r = cpuid(leaf, index);
    const unsigned type = r.eax & 31;
    if (type == 0) break;
    if (type == 2) continue;  // instructions
    const int64_t ways = (r.ebx >> 22) + 1, partitions = (r.ebx >> 12 & 1023) + 1, line = (r.ebx & 4095) + 1;
    const int64_t bytes = ways * partitions * line * (int64_t{r.ecx} + 1);
    if (bytes > largest) largest = bytes;
  }
  return largest;
}

int64_t detectLargestCache() {
  int64_t largest = largestCacheOfLeaf(4);
  if (largest == 0) largest = largestCacheOfLeaf(0x8000001du);
  if (largest == 0) largest = sysconf(_SC_LEVEL3_CACHE_SIZE);
  if (largest <= 0) largest = sysconf(_SC_LEVEL2_CACHE_SIZE);
  if (largest <= 0) return -1;
  return largest > INT32_MAX ? INT32_MAX : largest;
}

std::atomic<uint64_t> cachedFeatures{0};
std::atomic<int64_t> cachedLargestCache{0};

}  // namespace

RNX_EXPORT void* rnxMalloc(int32_t length) { return allocate(length); }

RNX_EXPORT void* rnxMalloc_L(int64_t length) { return allocate(length); }

RNX_EXPORT void rnxFree(void* memory) { free(memory); }

// Two threads may detect at once: they store the same word.
RNX_EXPORT int ownGetFeature(uint64_t mask) {
  uint64_t features = cachedFeatures.load(std::memory_order_relaxed);
  if (features == 0) {
    features = detectFeatures() | kDetected;
    cachedFeatures.store(features, std::memory_order_relaxed);
  }
  return (mask & ~kKnownFeatures) == 0 && (mask & ~features) == 0;
}

RNX_EXPORT int rnxGetMaxCacheSizeB(int32_t* size) {
  if (size == nullptr) return -8;
  int64_t largest = cachedLargestCache.load(std::memory_order_relaxed);
  if (largest == 0) {
    largest = detectLargestCache();
    cachedLargestCache.store(largest, std::memory_order_relaxed);
  }
  if (largest < 0) return -9;
  *size = static_cast<int32_t>(largest);
  return 0;
}
