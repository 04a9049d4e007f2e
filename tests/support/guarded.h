// Images between pages that cannot be touched, with a second copy in which a model writes what it expects.
//
// An image is placed (where, with which rows), filled, and expectNow() copies all of it, the random bytes around and
// between the rows included. The model then works on the copy (shadow()), the library on the image (data()), and
// matches() compares every byte: what neither of them should have written included.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "support/random.h"

namespace rnx::test {

// Rows of an image, in bytes. The step may be anything: 0, negative, odd, shorter than a row.
struct Shape {
  s64 rowBytes, height, step;
};

enum class Placement {
  kFlushEnd,    // the last byte of the last row in memory is the last one that can be touched
  kFlushStart,  // the first byte of the first row in memory is the first one that can be touched
  kInside       // margins on both sides; the lowest row starts `misalignment` bytes behind a multiple of 64
};

class Image {
public:
  Image() = default;
  Image(const Shape& shape, Placement placement, Random& random, int misalignment = 0) {
    place(shape, placement, random, misalignment);
  }
  Image(const Image&) = delete;
  Image& operator=(const Image&) = delete;
  ~Image();

  // Lays the image out anew, in the memory at hand where that is large enough; every byte becomes random.
  void place(const Shape& shape, Placement placement, Random& random, int misalignment = 0);
  // New random values in all rows.
  void fillRows(Random& random, Data data, Element element);

  const Shape& shape() const { return shape_; }
  s64 step() const { return shape_.step; }
  u8* data() const { return data_; }  // the first row
  u8* row(s64 y) const { return data_ + y * shape_.step; }

  // The copy: what memory is expected to hold.
  void expectNow() {
    shadow_.assign(begin_, end_);
    original_ = shadow_;
  }
  u8* shadow() { return shadow(data_); }
  u8* shadowRow(s64 y) { return shadow(row(y)); }
  u8* shadow(const void* inside) { return shadow_.data() + (static_cast<const u8*>(inside) - begin_); }
  // Puts back what was there when expectNow() was called, for the next run against the same expectation.
  void rewind() { std::copy(original_.begin(), original_.end(), begin_); }

  // Every byte is as expected. With a float element type any NaN in a row equals any other.
  testing::AssertionResult matches(Element element = Element::k8u);

private:
  template <class T>
  void forgiveNaN();

  Shape shape_{};
  u8* map_ = nullptr;  // a page that cannot be touched, the memory, another such page
  size_t mapBytes_ = 0;
  u8 *begin_ = nullptr, *end_ = nullptr;  // the part in use: rows and margins
  u8* data_ = nullptr;
  std::vector<u8> shadow_, original_;
};

// Address space of any size of which only the parts that are opened can be touched: for rows gigabytes apart.
class Reservation {
public:
  explicit Reservation(size_t bytes);
  Reservation(const Reservation&) = delete;
  Reservation& operator=(const Reservation&) = delete;
  ~Reservation();

  u8* base() const { return base_; }
  // Makes the pages of [offset, offset + bytes) usable; they are zeros.
  u8* open(size_t offset, size_t bytes);

private:
  u8* base_;
  size_t bytes_;
};

}  // namespace rnx::test
