// Kernels of the general linear filter: a window of bordered rows moves down the image, two result rows at a time.
#include "filter/bordered_rows.h"
#include "filter/filter_finish.h"
#include "filter/filter_kernels.h"
#include "filter/filter_sums.h"

namespace rnx::filter {
namespace {

using namespace simd;

template <class T>
BorderedImage<T> imageOf(const FilterCall<T>& call) {
  return BorderedImage<T>(call.border, call.src, call.srcStep, call.channels, call.borderValue,
                          reinterpret_cast<T*>(call.buffer.constantRow));
}

template <class T>
SumShape shapeOf(const FilterCall<T>& call) {
  return {.kernelWidth = call.spec->width,
          .kernelHeight = call.spec->height,
          .pixel = call.channels,
          .elements = call.width * call.channels};
}

// The last row of the bordered image that the kernel reaches. The window may ask for one more, for a result row that
// does not exist.
template <class T>
s64 lastRow(const FilterCall<T>& call) {
  return call.height + call.spec->height - 2;
}

template <class Unit, class T>
Unit* sumsOf(const FilterCall<T>& call, s64 row) {
  return reinterpret_cast<Unit*>(call.buffer.sums + row * call.buffer.sumStep);
}

// ---- Making rows of units ----

// Calls convert(out, i) for groups of `Group` elements that cover [0, n); the last one ends at n. A row shorter than a
// group is handed over in a copy. Whole groups are written.
template <int Group, class T, class Unit, class Convert>
RNX_INLINE void convertRow(Unit* out, const T* a, const T* b, s64 n, Convert convert) {
  if (n < Group) {
    T wholeA[Group] = {}, wholeB[Group] = {};
    std::memcpy(wholeA, a, static_cast<size_t>(n) * sizeof(T));
    std::memcpy(wholeB, b, static_cast<size_t>(n) * sizeof(T));
    convert(out, wholeA, wholeB);
    return;
  }
  for (s64 i = 0;; i += Group) {
    i = i + Group > n ? n - Group : i;
    convert(out + i, a + i, b + i);
    if (i + Group == n) return;
  }
}

// What follows a row that is shorter than a block is computed with, but not used.
template <class Unit>
RNX_INLINE void endRow(Unit* row, s64 n, s64 results) {
  constexpr s64 kBlock = kBlockVectors * kBytes / s64{sizeof(Unit)};
  if (results < kBlock) std::memset(row + n, 0, kBlock * sizeof(Unit));
}

template <class Unit, class T>
RNX_INLINE void makeRow(const BorderedImage<T>& image, s64 y, Unit* memory, const Unit* constant, s64 results) {
  const T* row = image.row(y);
  convertRow<Vec<Unit>::kLanes>(
      image.inMemory(memory), row, row, image.elements(),
      [](Unit * out, const T* in, const T*) __attribute__((always_inline)) { loadAs<Unit>(in).store(out); });
  image.produceSides(memory, constant);
  endRow(memory, image.borderedElements(), results);
}

template <class T>
RNX_INLINE void makePairs(const BorderedImage<T>& image, s64 y0, s64 y1, s32* memory, const s32* constant,
                          s64 results) {
  convertRow<kPairsAtATime<T>>(
      image.inMemory(memory), image.row(y0), image.row(y1), image.elements(),
      [](s32 * out, const T* a, const T* b) __attribute__((always_inline)) { storePairs(out, a, b); });
  image.produceSides(memory, constant);
  endRow(memory, image.borderedElements(), results);
}

template <class T>
bool hasConstant(const FilterCall<T>& call) {
  return call.border.base == rnxBorderConst;
}

// ---- Integer ----

template <class T>
void filterInteger(const FilterCall<T>& call) {
  const BorderedImage<T> image = imageOf(call);
  const SumShape shape = shapeOf(call);
  const s64 last = lastRow(call);
  s32 constant[4] = {};
  for (s64 c = 0; c < call.channels && hasConstant(call); ++c) {
    const auto value = static_cast<u16>(call.borderValue[c]);
    constant[c] = static_cast<s32>(value | u32{value} << 16);
  }
  const auto make = [&](s64 pair, s32* memory) {
    makePairs(image, std::min(2 * pair, last), std::min(2 * pair + 1, last), memory, constant, shape.elements);
    return memory;
  };

  const FinishRow<T, s32> finish = finishOfSums(*call.spec, T{});
  s32 *const sums0 = sumsOf<s32>(call, 0), *const sums1 = sumsOf<s32>(call, 1);
  RowWindow<s32> window(call.buffer.rows, call.buffer.ring, call.buffer.ringStep, rowPairs(shape.kernelHeight));
  window.fill(make);
  for (s64 y = 0;;) {
    sumPairs(window.rows(), pairsOf(call.spec), shape, sums0, sums1);
    finish(*call.spec, sums0, core::at(call.dst, y * call.dstStep), shape.elements);
    if (++y == call.height) return;
    finish(*call.spec, sums1, core::at(call.dst, y * call.dstStep), shape.elements);
    if (++y == call.height) return;
    window.moveDown(1, make);
  }
}

// ---- Floating point ----

// Result rows that take the sums as they are.
template <class T>
struct InPlace {
  const FilterCall<T>& call;
  bool direct;  // rows are long enough for the sums to be written where they belong

  T* target(s64 y, s64 which) const {
    return direct && y < call.height ? core::at(call.dst, y * call.dstStep) : sumsOf<T>(call, which);
  }
  void finish(s64 y, const T* sums) const {
    if (direct) return;
    const auto bytes = static_cast<size_t>(call.width * call.channels) * sizeof(T);
    std::memcpy(core::at(call.dst, y * call.dstStep), sums, bytes);
  }
};

// Result rows that are made from the sums.
template <class T, class V>
struct Finished {
  const FilterCall<T>& call;
  FinishRow<T, V> finishRow;

  V* target(s64, s64 which) const { return sumsOf<V>(call, which); }
  void finish(s64 y, const V* sums) const {
    finishRow(*call.spec, sums, core::at(call.dst, y * call.dstStep), call.width * call.channels);
  }
};

// Unit: what rows are kept in. V: what sums and coefficients are.
template <class Unit, class V, class T, class Results>
RNX_INLINE void filterFloating(const FilterCall<T>& call, const Results& results) {
  const BorderedImage<T> image = imageOf(call);
  const SumShape shape = shapeOf(call);
  const s64 last = lastRow(call);
  Unit constant[4] = {};
  for (s64 c = 0; c < call.channels && hasConstant(call); ++c) constant[c] = static_cast<Unit>(call.borderValue[c]);
  const bool readInPlace = std::is_same_v<Unit, T> && image.complete() && shape.elements >= Block<V>::kElements;
  const auto make = [&](s64 row, Unit* memory) -> const Unit* {
    const s64 y = std::min(row, last);
    if constexpr (std::is_same_v<Unit, T>) {
      if (readInPlace) return image.row(y);
    }
    makeRow(image, y, memory, constant, shape.elements);
    return memory;
  };

  RowWindow<Unit> window(call.buffer.rows, call.buffer.ring, call.buffer.ringStep, shape.kernelHeight + 1);
  window.fill(make);
  for (s64 y = 0;; window.moveDown(2, make)) {
    V *const sums0 = results.target(y, 0), *const sums1 = results.target(y + 1, 1);
    sumRows(window.rows(), kernelOf<V>(call.spec), shape, sums0, sums1);
    results.finish(y, sums0);
    if (++y == call.height) return;
    results.finish(y, sums1);
    if (++y == call.height) return;
  }
}

template <class T>
void filterUnrounded(const FilterCall<T>& call) {
  const bool direct = call.width * call.channels >= Block<T>::kElements;
  filterFloating<T, T>(call, InPlace<T>{call, direct});
}

template <class T>
void filterRounded(const FilterCall<T>& call) {
  filterFloating<f32, f32>(call, Finished<T, f32>{call, finishOfFloats<T>(*call.spec)});
}

template <class T>
void filterWideInteger(const FilterCall<T>& call) {
  filterFloating<f32, f64>(call, Finished<T, f64>{call, finishOfWideSums<T>(*call.spec)});
}

}  // namespace

namespace RNX_WIDTH {

constinit const FilterKernels filterKernels = {
    .of8u = {filterInteger<u8>, filterWideInteger<u8>, filterRounded<u8>},
    .of16s = {filterInteger<s16>, filterWideInteger<s16>, filterRounded<s16>},
    .of16u = filterRounded<u16>,
    .of32f = filterUnrounded<f32>,
    .of64f = filterUnrounded<f64>,
};

}  // namespace RNX_WIDTH
}  // namespace rnx::filter
