#include "support/guarded.h"

#include <sys/mman.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace rnx::test {
namespace {

constexpr s64 kPage = 4096;
constexpr s64 kMargin = 160;  // more than two of the widest vectors

s64 roundToPages(s64 bytes) { return (bytes + kPage - 1) / kPage * kPage; }

void* map(size_t bytes, int protection) {
  void* p = mmap(nullptr, bytes, protection, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (p == MAP_FAILED) std::perror("mmap"), abort();
  return p;
}

}  // namespace

Image::~Image() {
  if (map_ != nullptr) munmap(map_, mapBytes_);
}

void Image::place(const Shape& shape, Placement placement, Random& random, int misalignment) {
  shape_ = shape;
  // Bytes from the first row to the lowest and to the end of the highest.
  const s64 lastRow = (shape.height - 1) * shape.step;
  const s64 low = std::min<s64>(0, lastRow), high = std::max<s64>(0, lastRow) + shape.rowBytes;

  const s64 needed = 2 * kPage + roundToPages(high - low + 2 * kMargin + 64);
  if (static_cast<s64>(mapBytes_) < needed) {
    if (map_ != nullptr) munmap(map_, mapBytes_);
    mapBytes_ = static_cast<size_t>(needed);
    map_ = static_cast<u8*>(map(mapBytes_, PROT_NONE));
    if (mprotect(map_ + kPage, mapBytes_ - 2 * kPage, PROT_READ | PROT_WRITE) != 0) std::perror("mprotect"), abort();
  }
  u8* const first = map_ + kPage;
  u8* const last = map_ + mapBytes_ - kPage;
  u8* lowest = first;
  if (placement == Placement::kFlushEnd) lowest = last - (high - low);
  if (placement == Placement::kInside) lowest = first + (kMargin + 63) / 64 * 64 + misalignment % 64;
  data_ = lowest - low;
  begin_ = std::max(first, lowest - kMargin);
  end_ = std::min(last, lowest + (high - low) + kMargin);
  fillBytes(random, begin_, end_ - begin_);
}

void Image::fillRows(Random& random, Data data, Element element) {
  for (s64 y = 0; y < shape_.height; ++y) fill(random, data, element, row(y), shape_.rowBytes / bytesOf(element));
}

template <class T>
void Image::forgiveNaN() {
  for (s64 y = 0; y < shape_.height; ++y) {
    for (s64 x = 0; x < shape_.rowBytes / s64{sizeof(T)}; ++x) {
      const T actual = get<T>(row(y), x);
      if (std::isnan(actual) && std::isnan(get<T>(shadowRow(y), x))) put(shadowRow(y), x, actual);
    }
  }
}

testing::AssertionResult Image::matches(Element element) {
  const auto equal = [this] { return std::equal(begin_, end_, shadow_.begin()); };
  if (equal()) return testing::AssertionSuccess();
  if (element == Element::k32f || element == Element::k32fc) forgiveNaN<f32>();
  if (element == Element::k64f) forgiveNaN<f64>();
  const auto difference = std::mismatch(begin_, end_, shadow_.begin()).first;
  if (difference == end_) return testing::AssertionSuccess();

  auto failure = testing::AssertionFailure();
  const int bytes = bytesOf(element);
  for (s64 y = 0; y < shape_.height; ++y) {
    const s64 x = difference - row(y);
    if (x < 0 || x >= shape_.rowBytes) continue;
    failure << "row " << y << ", element " << x / bytes << " (of " << shape_.rowBytes / bytes << "): ";
    withType(element, [&](auto zero) {
      using T = decltype(zero);
      if constexpr (std::is_arithmetic_v<T>) {
        failure << +get<T>(row(y), x / bytes) << " instead of " << +get<T>(shadowRow(y), x / bytes);
      } else {
        failure << "not as expected";
      }
    });
    return failure;
  }
  return failure << "a byte outside all rows was written, " << difference - data_
                 << " bytes from the first row's start";
}

Reservation::Reservation(size_t bytes) : base_(static_cast<u8*>(map(bytes, PROT_NONE))), bytes_(bytes) {}

Reservation::~Reservation() { munmap(base_, bytes_); }

u8* Reservation::open(size_t offset, size_t bytes) {
  const size_t start = offset / kPage * kPage;
  if (mprotect(base_ + start, offset + bytes - start, PROT_READ | PROT_WRITE) != 0) std::perror("mprotect"), abort();
  return base_ + offset;
}

}  // namespace rnx::test
