// Rows of the benchmark. A row is one piece of work at one image size, done by several contestants in one run: ours in
// both vector widths, other libraries, and the floor, which is a plain copy of as many bytes as the work moves.
//
//   void addRows() {
//     for (Size size : kSizes) {
//       addRow("Add 8u C1", size, floorOf(3 * size.pixels()), ours([=] { ... return [=] { rnxiAdd...; }; }),
//              opencv([=] { ... return [=] { cv::add(...); }; }));
//     }
//   }
//   const Registration kRows(addRows);
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "rnxip.h"

#if RNX_BENCH_OPENCV
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#define RNX_OPENCV(...) __VA_ARGS__
#else
// Without the peer its expressions vanish and its contestants are empty.
namespace cv {
struct Mat {};
}  // namespace cv
#define RNX_OPENCV(...) \
  {}
#endif

namespace bench {

struct Size {
  int width, height;
  int64_t pixels() const { return int64_t{width} * height; }
  RnxiSize roi() const { return {width, height}; }
};

inline const std::vector<Size> kSizes = {{64, 64}, {640, 480}, {1920, 1080}, {3840, 2160}};

// Makes the operands, which is not measured, and returns the work, which is.
using Work = std::function<void()>;
using Maker = std::function<Work()>;

struct Contestant {
  std::string name;
  Maker make;
  bool narrow = false;  // hide the wide vectors from the library
};
using Contestants = std::vector<Contestant>;

Contestants ours(Maker make);                           // "rnx256" and "rnx128"
Contestants peer(const std::string& name, Maker make);  // any other library
Contestants floorOf(int64_t bytesMoved);                // "floor": memcpy of half as many bytes, read and written

#if RNX_BENCH_OPENCV
inline Contestants opencv(Maker make) { return peer("opencv", std::move(make)); }
#else
inline Contestants opencv(const Maker&) { return {}; }
#endif

// "floor" of what only reads: a search through so many bytes for one that is not there.
Contestants readFloorOf(int64_t bytesRead);

void addRow(const std::string& name, Size size, const std::vector<Contestants>& contestants);

// Runs a function at start-up, to add rows.
struct Registration {
  explicit Registration(void (*add)()) { add(); }
};

// Memory of an image: rows tight, start aligned to 64 bytes, filled with random bytes (of floats in 1 .. 2).
template <class T>
class Image {
public:
  Image(Size size, int channels) : Image(int64_t{size.width} * channels, size.height) {}
  Image(int64_t elementsPerRow, int64_t rows);

  T* data() const { return data_; }
  int step() const { return static_cast<int>(perRow_ * static_cast<int64_t>(sizeof(T))); }
  int64_t elements() const { return perRow_ * rows_; }

private:
  int64_t perRow_, rows_;
  T* data_;
};

void fillRandom(void* memory, int64_t bytes);
void fillRandom(float* values, int64_t count);
void fillRandom(double* values, int64_t count);
void* allocate(int64_t bytes);  // until freeAll, which the next contestant calls
void freeAll();

template <class T>
Image<T>::Image(int64_t elementsPerRow, int64_t rows) : perRow_(elementsPerRow), rows_(rows) {
  data_ = static_cast<T*>(allocate(elements() * static_cast<int64_t>(sizeof(T))));
  if constexpr (std::is_floating_point_v<T>) {
    fillRandom(data_, elements());
  } else {
    fillRandom(static_cast<void*>(data_), elements() * static_cast<int64_t>(sizeof(T)));
  }
}

// The same memory as a matrix.
template <class T>
cv::Mat mat([[maybe_unused]] const Image<T>& image, [[maybe_unused]] Size size, [[maybe_unused]] int channels) {
  return RNX_OPENCV(cv::Mat(size.height, size.width, CV_MAKETYPE(cv::DataType<T>::depth, channels), image.data(),
                            static_cast<size_t>(image.step())));
}

}  // namespace bench
