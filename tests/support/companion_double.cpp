#include "support/companion_double.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

namespace rnx::test {
namespace {

template <class F>
F* real(const char* name) {
  void* address = dlsym(RTLD_NEXT, name);
  if (address == nullptr) std::fprintf(stderr, "librnxcore has no %s\n", name), abort();
  return reinterpret_cast<F*>(address);
}

void* allocate(s64 length, void* (*plain)(int32_t), void* (*large)(int64_t)) {
  Companion& c = companion();
  ++c.allocations;
  c.lastLength = length;
  c.lastWasLong = large != nullptr;
  if (c.allocationsFail) return nullptr;
  return large != nullptr ? large(length) : plain(static_cast<int32_t>(length));
}

}  // namespace

Companion& companion() {
  static Companion state;
  return state;
}

std::vector<int> vectorWidths() {
  static const bool wide = real<int(uint64_t)>("ownGetFeature")(rnxFeatureAvx2) != 0;
  return wide ? std::vector{16, 32} : std::vector{16};
}

}  // namespace rnx::test

using namespace rnx::test;

#define RNX_INTERPOSED extern "C" __attribute__((visibility("default")))

RNX_INTERPOSED void* rnxMalloc(int32_t length) {
  static auto* const next = real<void*(int32_t)>("rnxMalloc");
  return allocate(length, next, nullptr);
}

RNX_INTERPOSED void* rnxMalloc_L(int64_t length) {
  static auto* const next = real<void*(int64_t)>("rnxMalloc_L");
  return allocate(length, nullptr, next);
}

RNX_INTERPOSED void rnxFree(void* memory) {
  static auto* const next = real<void(void*)>("rnxFree");
  ++companion().frees;
  companion().lastFreed = memory;
  next(memory);
}

RNX_INTERPOSED int ownGetFeature(uint64_t mask) {
  static auto* const next = real<int(uint64_t)>("ownGetFeature");
  ++companion().featureQueries;
  return (mask & companion().hiddenFeatures) != 0 ? 0 : next(mask);
}

RNX_INTERPOSED int rnxGetMaxCacheSizeB(int32_t* size) {
  static auto* const next = real<int(int32_t*)>("rnxGetMaxCacheSizeB");
  ++companion().cacheQueries;
  if (companion().cacheUnknown) return -9;
  if (size == nullptr || !companion().cacheBytes) return next(size);
  *size = *companion().cacheBytes;
  return 0;
}
