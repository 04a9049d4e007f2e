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
RNX_INLINE Vec<Unit> loadUnit(const T* in) {
  if constexpr (std::is_same_v<Unit, T>) {
    return Vec<Unit>::load(in);
  } else {
    return loadAsFloat(in);
  }
}

template <class Unit, class T>
RNX_INLINE void makeRow(const BorderedImage<T>& image, s64 y, Unit* memory, const Unit* constant, s64 results) {
  const T* row = image.row(y);
  convertRow<Vec<Unit>::kLanes>(
      image.inMemory(memory), row, row, image.elements(),
      [](Unit * out, const T* in, const T*) __attribute__((always_inline)) { loadUnit<Unit>(in).store(out); });
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
  return call.border.kind == data::Border::kConst;
}

// Walks down the image: `sum` makes two result rows from a window of `count` rows, which then moves down by `steps`.
// Results of rows shorter than a block, and of the row behind the last one, are written elsewhere first.
template <int BlockElements, class Unit, class T, class Make>
RNX_INLINE void walkDown(const FilterCall<T>& call, SumTwoRows<Unit, T> sum, s64 count, s64 steps, Make make) {
  const SumShape shape = shapeOf(call);
  const auto target = [&](s64 y, s64 which) {
    const bool direct = y < call.height && shape.elements >= BlockElements;
    char* scratch = call.buffer.results + which * call.buffer.rowStep;
    return direct ? core::at(call.dst, y * call.dstStep) : reinterpret_cast<T*>(scratch);
  };
  const auto deliver = [&](s64 y, const T* results) {
    T* dst = core::at(call.dst, y * call.dstStep);
    if (results != dst) std::memcpy(dst, results, static_cast<size_t>(shape.elements) * sizeof(T));
  };

  RowWindow<Unit> window(call.buffer.rows, call.buffer.ring, call.buffer.rowStep, count);
  window.fill(make);
  for (s64 y = 0;; window.moveDown(steps, make)) {
    T *const out0 = target(y, 0), *const out1 = target(y + 1, 1);
    sum(window.rows(), *call.spec, shape, out0, out1);
    deliver(y, out0);
    if (++y == call.height) return;
    deliver(y, out1);
    if (++y == call.height) return;
  }
}

// ---- Integer ----

template <class T>
void filterInteger(const FilterCall<T>& call) {
  const BorderedImage<T> image = imageOf(call);
  const s64 last = lastRow(call), results = call.width * call.channels;
  s32 constant[4] = {};
  for (s64 c = 0; c < call.channels && hasConstant(call); ++c) {
    const auto value = static_cast<u16>(call.borderValue[c]);
    constant[c] = static_cast<s32>(value | u32{value} << 16);
  }
  walkDown<SumBlock<s32>::kElements>(call, sumsOfPairs(*call.spec, T{}), rowPairs(call.spec->height), 1,
                                     [&](s64 pair, s32* memory) {
                                       const s64 y0 = std::min(2 * pair, last), y1 = std::min(2 * pair + 1, last);
                                       makePairs(image, y0, y1, memory, constant, results);
                                       return memory;
                                     });
}

// ---- Floating point ----

// Unit: what rows are kept in. V: what sums and coefficients are.
template <class V, class Unit, class T>
RNX_INLINE void filterFloating(const FilterCall<T>& call, SumTwoRows<Unit, T> sum) {
  const BorderedImage<T> image = imageOf(call);
  const s64 last = lastRow(call), results = call.width * call.channels;
  Unit constant[4] = {};
  for (s64 c = 0; c < call.channels && hasConstant(call); ++c) constant[c] = static_cast<Unit>(call.borderValue[c]);
  const bool readInPlace = image.complete() && results >= SumBlock<V>::kElements;
  walkDown<SumBlock<V>::kElements>(call, sum, call.spec->height + 1, 2, [&](s64 row, Unit* memory) -> const Unit* {
    const s64 y = std::min(row, last);
    if constexpr (std::is_same_v<Unit, T>) {
      if (readInPlace) return image.row(y);
    }
    makeRow(image, y, memory, constant, results);
    return memory;
  });
}

template <class T>
void filterUnrounded(const FilterCall<T>& call) {
  filterFloating<T, T>(call, sumRows<T, T, T, Unrounded>);
}

template <class T>
void filterRounded(const FilterCall<T>& call) {
  filterFloating<f32, f32>(call, sumsOfFloats<T>(*call.spec));
}

template <class T>
void filterWideInteger(const FilterCall<T>& call) {
  filterFloating<f64, f32>(call, sumsOfWideIntegers<T>(*call.spec));
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
