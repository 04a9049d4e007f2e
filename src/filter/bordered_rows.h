// Rows of an image together with their border, for kernels that walk down an image with a window of rows.
//
// Rows are counted from the top of the bordered image. A row that needs no pixels of its own is read where it lies:
// rows beyond the top and bottom are other rows of the image, or one row of the constant. Only the few pixels left and
// right of a row are produced, in a copy of it or of its two ends.
#pragma once

#include <algorithm>
#include <cstring>

#include "core/image.h"
#include "filter/border.h"
#include "simd/vec.h"

namespace rnx::filter {
namespace {

inline constexpr s64 kConstant = -1;

// The position in [0, size) whose pixel stands at position p, or kConstant.
RNX_INLINE s64 sourcePosition(data::Border kind, s64 p, s64 size) {
  const bool inside = p >= 0 && p < size;
  return !inside && kind == data::Border::kConst ? kConstant : data::borderSource(kind, p, size);
}

// The rows of one image.
template <class T>
class BorderedImage {
public:
  // src: first pixel of the ROI. constantRow: room for one row of pixels in memory.
  BorderedImage(const Border& border, const T* src, s64 step, s64 channels, const T* borderValue, T* constantRow)
      : border_(border),
        first_(core::at(src, -border.rows.memoryBefore * step, -border.columns.memoryBefore * channels)),
        step_(step),
        channels_(channels),
        constantRow_(constantRow) {
    if (border.kind != data::Border::kConst) return;
    const s64 n = elements();
    for (s64 c = 0; c < channels; ++c) {
      for (s64 i = c; i < n; i += channels) constantRow[i] = simd::loadOne(borderValue + c);
    }
  }

  s64 rows() const { return border_.rows.total(); }
  // Elements of a row that lie in memory, and with the border.
  s64 elements() const { return border_.columns.size * channels_; }
  s64 borderedElements() const { return border_.columns.total() * channels_; }
  // Whether rows lie in memory from end to end.
  bool complete() const { return border_.columns.complete(); }
  const T* constants() const { return constantRow_; }

  // The part of a row that lies in memory.
  const T* row(s64 y) const {
    const s64 source = sourcePosition(border_.kind, y - border_.rows.producedBefore, border_.rows.size);
    return source == kConstant ? constantRow_ : core::at(first_, source * step_);
  }

  // Elements of a bordered row that come before those in memory, and after them.
  s64 elementsBefore() const { return border_.columns.producedBefore * channels_; }
  s64 elementsAfter() const { return border_.columns.producedAfter * channels_; }
  template <class Unit>
  Unit* inMemory(Unit* row) const {
    return row + elementsBefore();
  }

  // Produces the pixels left and right of a row whose part in memory stands in its place, in any representation.
  // constant: a pixel of the constant in the same representation.
  template <class Unit>
  void produceSides(Unit* row, const Unit* constant) const {
    const Unit* pixels = inMemory(row);
    produceBefore(row, pixels, constant);
    produceAfter(row + elementsBefore() + elements(), pixels, constant);
  }
  // The first n elements of a bordered row, which reach into memory.
  void copyHead(s64 y, s64 n, T* out, const T* constant) const {
    const T* pixels = row(y);
    std::memcpy(inMemory(out), pixels, static_cast<size_t>(n - elementsBefore()) * sizeof(T));
    produceBefore(out, pixels, constant);
  }
  // Its elements from `from` on, which lies in memory.
  void copyTail(s64 y, s64 from, T* out, const T* constant) const {
    const T* pixels = row(y);
    const s64 skipped = from - elementsBefore(), n = elements() - skipped;
    std::memcpy(out, pixels + skipped, static_cast<size_t>(n) * sizeof(T));
    produceAfter(out + n, pixels, constant);
  }

private:
  // What follows the pixels of a row in memory; it begins at `out`.
  template <class Unit>
  RNX_INLINE void produceAfter(Unit* out, const Unit* pixels, const Unit* constant) const {
    const Extent& e = border_.columns;
    for (s64 x = e.size; x < e.size + e.producedAfter; ++x, out += channels_) copyPixel(out, x, pixels, constant);
  }
  template <class Unit>
  RNX_INLINE void produceBefore(Unit* out, const Unit* pixels, const Unit* constant) const {
    for (s64 x = -border_.columns.producedBefore; x < 0; ++x, out += channels_) copyPixel(out, x, pixels, constant);
  }
  template <class Unit>
  RNX_INLINE void copyPixel(Unit* out, s64 x, const Unit* pixels, const Unit* constant) const {
    const s64 source = sourcePosition(border_.kind, x, border_.columns.size);
    const Unit* from = source == kConstant ? constant : pixels + source * channels_;
    for (s64 c = 0; c < channels_; ++c) out[c] = simd::loadOne(from + c);
  }

  Border border_;
  const T* first_;  // top left pixel in memory
  s64 step_, channels_;
  T* constantRow_;
};

// A window of `count` rows that moves down. Row k of the window is at rows()[k]; rows that have to be made are kept in
// a ring of as many rows.
template <class Unit>
class RowWindow {
public:
  RowWindow(const void** rows, char* ring, s64 ringStep, s64 count)
      : rows_(reinterpret_cast<const Unit**>(rows)), ring_(ring), ringStep_(ringStep), count_(count) {}

  const Unit* const* rows() const { return rows_; }

  // make(y, memory) returns the address of row y, which it may have written to `memory`.
  template <class Make>
  RNX_INLINE void fill(Make make) {
    for (s64 k = 0; k < count_; ++k) rows_[k] = next(make);
  }
  template <class Make>
  RNX_INLINE void moveDown(s64 steps, Make make) {
    for (s64 k = 0; k + steps < count_; ++k) rows_[k] = rows_[k + steps];
    for (s64 k = count_ - steps; k < count_; ++k) rows_[k] = next(make);
  }

private:
  template <class Make>
  RNX_INLINE const Unit* next(Make make) {
    auto* memory = reinterpret_cast<Unit*>(ring_ + slot_ * ringStep_);
    slot_ = slot_ + 1 == count_ ? 0 : slot_ + 1;
    return make(y_++, memory);
  }

  const Unit** rows_;
  char* ring_;
  s64 ringStep_, count_;
  s64 slot_ = 0, y_ = 0;
};

}  // namespace
}  // namespace rnx::filter
