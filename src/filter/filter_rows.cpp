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
s64 elementsOf(const FilterCall<T>& call) {
  return call.width * call.channels;
}

template <class T>
SumShape shapeOf(const FilterCall<T>& call) {
  return {.kernelWidth = call.spec->width,
          .kernelHeight = call.spec->height,
          .pixel = call.channels,
          .begin = 0,
          .end = elementsOf(call),
          .shift = 0};
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

template <class Lane, class T>
RNX_INLINE void makePairs(const BorderedImage<T>& image, s64 y0, s64 y1, Lane* memory, const Lane* constant,
                          s64 results) {
  convertRow<kPairsAtATime<Lane, T>>(
      image.inMemory(memory), image.row(y0), image.row(y1), image.elements(),
      [](Lane * out, const T* a, const T* b) __attribute__((always_inline)) { storePairs(out, a, b); });
  image.produceSides(memory, constant);
  endRow(memory, image.borderedElements(), results);
}

template <class T>
bool hasConstant(const FilterCall<T>& call) {
  return call.border.kind == data::Border::kConst;
}

// Walks down the image: sum(out0, out1) makes two result rows, moveDown() goes on to the next two. Results of rows
// shorter than a block, and of the row behind the last one, are written elsewhere first.
template <int BlockElements, class T, class Sum, class MoveDown>
RNX_INLINE void walkDown(const FilterCall<T>& call, Sum sum, MoveDown moveDown) {
  const s64 elements = elementsOf(call);
  const auto target = [&](s64 y, s64 which) {
    const bool direct = y < call.height && elements >= BlockElements;
    char* scratch = call.buffer.results + which * call.buffer.rowStep;
    return direct ? core::at(call.dst, y * call.dstStep) : reinterpret_cast<T*>(scratch);
  };
  const auto deliver = [&](s64 y, const T* results) {
    T* dst = core::at(call.dst, y * call.dstStep);
    if (results != dst) std::memcpy(dst, results, static_cast<size_t>(elements) * sizeof(T));
  };
  for (s64 y = 0;; moveDown()) {
    T *const out0 = target(y, 0), *const out1 = target(y + 1, 1);
    sum(out0, out1);
    deliver(y, out0);
    if (++y == call.height) return;
    deliver(y, out1);
    if (++y == call.height) return;
  }
}

// A window of `count` rows that make(y, memory) makes; it moves down by `steps` of them.
template <int BlockElements, class Unit, class T, class Make>
RNX_INLINE void filterWholeRows(const FilterCall<T>& call, SumTwoRows<Unit, T> sum, s64 count, s64 steps, Make make) {
  const SumShape shape = shapeOf(call);
  RowWindow<Unit> window(call.buffer.rows, call.buffer.ring, call.buffer.rowStep, count);
  window.fill(make);
  walkDown<BlockElements>(
      call, [&](T* out0, T* out1) { sum(window.rows(), *call.spec, shape, out0, out1); },
      [&] { window.moveDown(steps, make); });
}

// ---- Integer ----

template <class Lane, class T>
RNX_INLINE void filterPairs(const FilterCall<T>& call, SumTwoRows<Lane, T> sum) {
  const BorderedImage<T> image = imageOf(call);
  const s64 last = lastRow(call), results = elementsOf(call);
  Lane constant[4] = {};
  for (s64 c = 0; c < call.channels && hasConstant(call); ++c) {
    constexpr int kHalf = 4 * sizeof(Lane);
    const auto value = static_cast<std::make_unsigned_t<T>>(loadOne(call.borderValue + c));
    constant[c] = static_cast<Lane>(value | u32{value} << kHalf);
  }
  filterWholeRows<SumBlock<Lane>::kElements>(call, sum, rowPairs(call.spec->height), 1, [&](s64 pair, Lane* memory) {
    const s64 y0 = std::min(2 * pair, last), y1 = std::min(2 * pair + 1, last);
    makePairs(image, y0, y1, memory, constant, results);
    return memory;
  });
}

template <class T>
void filterInteger(const FilterCall<T>& call) {
  filterPairs(call, sumsOfPairs(*call.spec, T{}));
}
void filterBytes(const FilterCall<u8>& call) { filterPairs(call, sumsOfBytePairs(*call.spec)); }

// ---- Floating point ----

// Unit: what rows are kept in. V: what sums and coefficients are.
template <class V, class Unit, class T>
RNX_INLINE void filterConverted(const FilterCall<T>& call, SumTwoRows<Unit, T> sum) {
  const BorderedImage<T> image = imageOf(call);
  const s64 last = lastRow(call), results = elementsOf(call);
  Unit constant[4] = {};
  for (s64 c = 0; c < call.channels && hasConstant(call); ++c)
    constant[c] = static_cast<Unit>(loadOne(call.borderValue + c));
  filterWholeRows<SumBlock<V>::kElements>(call, sum, call.spec->height + 1, 2, [&](s64 row, Unit* memory) {
    makeRow(image, std::min(row, last), memory, constant, results);
    return memory;
  });
}

// Rows of the image's own type are read where they lie. Results near the ends of a row, as far as a produced border
// reaches, and at least a block, are computed from copies of the ends.
template <class T>
RNX_INLINE void filterDirect(const FilterCall<T>& call, SumTwoRows<T, T> sum) {
  constexpr s64 kBlock = SumBlock<T>::kElements;
  const BorderedImage<T> image = imageOf(call);
  const s64 last = lastRow(call), count = call.spec->height + 1;
  const auto rowOf = [&](s64 y, T*) { return image.row(std::min(y, last)); };
  RowWindow<T> rows(call.buffer.rows, nullptr, 0, count);
  rows.fill(rowOf);

  SumShape head = shapeOf(call), middle = head, tail = head;
  middle.shift = -image.elementsBefore();
  const bool complete = image.complete();
  if (!complete) {
    head.end = middle.begin = std::max(kBlock, image.elementsBefore());
    tail.begin = middle.end = elementsOf(call) - std::max(kBlock, image.elementsAfter());
  }
  const s64 headElements = head.end + (call.spec->width - 1) * call.channels;
  tail.shift = headElements - tail.begin;
  const auto endsOf = [&](s64 y, T* memory) {
    image.copyHead(std::min(y, last), headElements, memory, call.borderValue);
    image.copyTail(std::min(y, last), tail.begin, memory + headElements, call.borderValue);
    return memory;
  };
  RowWindow<T> ends(call.buffer.endRows, call.buffer.ring, call.buffer.rowStep, count);
  if (!complete) ends.fill(endsOf);

  walkDown<kBlock>(
      call,
      [&](T* out0, T* out1) {
        sum(rows.rows(), *call.spec, middle, out0, out1);
        if (complete) return;
        sum(ends.rows(), *call.spec, head, out0, out1);
        sum(ends.rows(), *call.spec, tail, out0, out1);
      },
      [&] {
        rows.moveDown(2, rowOf);
        if (!complete) ends.moveDown(2, endsOf);
      });
}

// Whether there is a block between the ends of a row, and room for their copies where a whole row would stand.
template <class T>
bool canReadDirectly(const FilterCall<T>& call) {
  constexpr s64 kBlock = SumBlock<T>::kElements;
  const s64 reach = call.spec->width * call.channels;
  return elementsOf(call) >= (call.border.columns.complete() ? kBlock : 3 * (kBlock + reach));
}

template <class T>
void filterUnrounded(const FilterCall<T>& call) {
  const SumTwoRows<T, T> sum = sumRows<T, T, T, Unrounded>;
  canReadDirectly(call) ? filterDirect(call, sum) : filterConverted<T>(call, sum);
}

template <class T>
void filterRounded(const FilterCall<T>& call) {
  filterConverted<f32>(call, sumsOfFloats<T>(*call.spec));
}

template <class T>
void filterWideInteger(const FilterCall<T>& call) {
  filterConverted<f64>(call, sumsOfWideIntegers<T>(*call.spec));
}

}  // namespace

namespace RNX_WIDTH {

constinit const FilterKernels filterKernels = {
    .bytesOf8u = filterBytes,
    .of8u = {filterInteger<u8>, filterWideInteger<u8>, filterRounded<u8>},
    .of16s = {filterInteger<s16>, filterWideInteger<s16>, filterRounded<s16>},
    .of16u = filterRounded<u16>,
    .of32f = filterUnrounded<f32>,
    .of64f = filterUnrounded<f64>,
};

}  // namespace RNX_WIDTH
}  // namespace rnx::filter
