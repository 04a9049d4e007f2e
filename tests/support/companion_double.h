// The companion library under the test's control. The test program defines rnxMalloc, rnxMalloc_L, rnxFree,
// ownGetFeature and rnxGetMaxCacheSizeB itself; the dynamic linker prefers them to those of librnxcore, to which they
// pass on whatever no scope below changes. Scopes nest; the state is one per program, so they are for one thread.
#pragma once

#include <optional>
#include <vector>

#include "core/types.h"
#include "rnxcore.h"

namespace rnx::test {

struct Companion {
  u64 hiddenFeatures = 0;
  std::optional<s32> cacheBytes;  // what the cache query answers
  bool cacheUnknown = false;      // the query fails
  bool allocationsFail = false;

  // What was asked since the program's start.
  int allocations = 0, frees = 0, featureQueries = 0, cacheQueries = 0;
  s64 lastLength = 0;        // of rnxMalloc or rnxMalloc_L
  bool lastWasLong = false;  // of rnxMalloc_L
  const void* lastFreed = nullptr;
};
Companion& companion();

// Puts the whole state back at the end.
class ScopedCompanion {
public:
  ScopedCompanion() : before_(companion()) {}
  ~ScopedCompanion() {
    companion().hiddenFeatures = before_.hiddenFeatures;
    companion().cacheBytes = before_.cacheBytes;
    companion().cacheUnknown = before_.cacheUnknown;
    companion().allocationsFail = before_.allocationsFail;
  }
  ScopedCompanion(const ScopedCompanion&) = delete;
  ScopedCompanion& operator=(const ScopedCompanion&) = delete;

private:
  Companion before_;
};

// The vectors that this processor can run: {16} or {16, 32} bytes.
std::vector<int> vectorWidths();

// Only vectors of at most so many bytes.
class ScopedWidth : ScopedCompanion {
public:
  explicit ScopedWidth(int vectorBytes) {
    if (vectorBytes < 64) companion().hiddenFeatures |= rnxFeatureAvx512;
    if (vectorBytes < 32) companion().hiddenFeatures |= rnxFeatureAvx | rnxFeatureAvx2 | rnxFeatureFma;
  }
};

// The bytes that the library takes for more than its caches hold. It asks for calls that move above 512 KiB only.
class ScopedCache : ScopedCompanion {
public:
  explicit ScopedCache(s32 bytes) { companion().cacheBytes = bytes; }
};
inline constexpr s32 kTinyCache = 4096, kHugeCache = 0x7fffffff;

class ScopedUnknownCache : ScopedCompanion {
public:
  ScopedUnknownCache() { companion().cacheUnknown = true; }
};

class ScopedAllocationFailure : ScopedCompanion {
public:
  ScopedAllocationFailure() { companion().allocationsFail = true; }
};

}  // namespace rnx::test
