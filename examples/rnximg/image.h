// Images in memory of the library's allocators, and the check of the library's statuses.
#pragma once

#include <rnxip.h>

#include <string>
#include <utility>

#include "failure.h"

namespace rnximg {

// The allocators of an element type for 1, 3 and 4 channels.
template <class T>
struct Allocators {
  T* (*c1)(int, int, int*);
  T* (*c3)(int, int, int*);
  T* (*ac4)(int, int, int*);
};
template <class T>
inline constexpr Allocators<T> kAllocators = {};
template <>
inline constexpr Allocators<Rnx8u> kAllocators<Rnx8u> = {rnxiMalloc_8u_C1, rnxiMalloc_8u_C3, rnxiMalloc_8u_AC4};
template <>
inline constexpr Allocators<Rnx16u> kAllocators<Rnx16u> = {rnxiMalloc_16u_C1, rnxiMalloc_16u_C3, rnxiMalloc_16u_AC4};
template <>
inline constexpr Allocators<Rnx16s> kAllocators<Rnx16s> = {rnxiMalloc_16s_C1, rnxiMalloc_16s_C3, rnxiMalloc_16s_AC4};
template <>
inline constexpr Allocators<Rnx32s> kAllocators<Rnx32s> = {rnxiMalloc_32s_C1, rnxiMalloc_32s_C3, rnxiMalloc_32s_AC4};
template <>
inline constexpr Allocators<Rnx32f> kAllocators<Rnx32f> = {rnxiMalloc_32f_C1, rnxiMalloc_32f_C3, rnxiMalloc_32f_AC4};

inline std::string toText(RnxiSize size) { return std::to_string(size.width) + " x " + std::to_string(size.height); }

// An image of 1 (gray), 3 (RGB) or 4 channels (RGB and alpha). Its pixels are uninitialised at first.
template <class T>
class BasicImage {
public:
  BasicImage() = default;
  BasicImage(RnxiSize size, int channels) : size_(size), channels_(channels) {
    const Allocators<T>& a = kAllocators<T>;
    data_ = (channels == 1 ? a.c1 : channels == 3 ? a.c3 : a.ac4)(size.width, size.height, &step_);
    if (data_ == nullptr) failFile("no memory for an image of " + toText(size) + " pixels");
  }
  BasicImage(BasicImage&& other) noexcept { swap(other); }
  BasicImage& operator=(BasicImage&& other) noexcept {
    swap(other);
    return *this;
  }
  ~BasicImage() { rnxiFree(data_); }

  T* data() { return data_; }
  const T* data() const { return data_; }
  int step() const { return step_; }
  RnxiSize size() const { return size_; }
  int channels() const { return channels_; }

private:
  void swap(BasicImage& other) noexcept {
    std::swap(data_, other.data_);
    std::swap(step_, other.step_);
    std::swap(size_, other.size_);
    std::swap(channels_, other.channels_);
  }

  T* data_ = nullptr;
  int step_ = 0;  // bytes
  RnxiSize size_ = {0, 0};
  int channels_ = 0;
};

// What files hold and operations pass on.
using Image = BasicImage<Rnx8u>;

// Picks the form of a function for the channels of an image: C1, C3, or AC4, which leaves alpha alone.
template <class F>
F byChannels(const Image& image, F c1, F c3, F ac4) {
  return image.channels() == 1 ? c1 : image.channels() == 3 ? c3 : ac4;
}

// Every call of the library goes through here: an error ends the program, a warning is reported.
void check(RnxStatus status);

}  // namespace rnximg
