// Runs functions with one source and one destination, or in place, against a model of one row.
#pragma once

#include <xmmintrin.h>

#include "support/call.h"
#include "support/companion_double.h"

namespace rnx::test {

class ValuesDriver {
public:
  explicit ValuesDriver(const Signature& s) : signature(s), inPlace(!s.has("dst")), random(s.name), call(s) {}

  const Signature& signature;
  const bool inPlace;
  Random random;
  Call call;                             // with the parameters that are not images
  unsigned controlState = _mm_getcsr();  // of floating point, during calls

  // Images of these sizes, any step and place; source values by `data`.
  void place(s64 width, s64 height, Data data) {
    placeOne(inPlace ? dst_ : src_, width, height, signature.source());
    (inPlace ? dst_ : src_).fillRows(random, data, signature.source());
    if (!inPlace) placeOne(dst_, width, height, signature.destination());
    width_ = width, height_ = height;
  }
  u8* sourceRow(s64 y) { return (inPlace ? dst_ : src_).row(y); }

  // `model` makes the destination row of a source row (which it may be): model(const u8* from, u8* to, pixels).
  template <class Model>
  bool check(Model model, RnxStatus expected = rnxStatusNoError) {
    src_.expectNow();
    dst_.expectNow();
    std::vector<u8> copy(static_cast<size_t>(width_ * signature.channels() * 8));
    for (s64 y = 0; y < height_; ++y) {
      const u8* from = sourceRow(y);
      if (inPlace) from = dst_.shadowRow(y);
      std::memcpy(copy.data(), from, static_cast<size_t>(width_ * signature.channels() * bytesOf(signature.source())));
      if (expected == rnxStatusNoError) model(copy.data(), dst_.shadowRow(y), width_);
    }
    for (int vectorBytes : vectorWidths()) {
      const ScopedWidth scope(vectorBytes);
      if (inPlace) {
        call.image("srcdst", dst_);
      } else {
        call.image("src", src_).image("dst", dst_);
      }
      call.roi(width_, height_);
      const unsigned before = _mm_getcsr();
      _mm_setcsr(controlState);
      const RnxStatus status = call();
      const unsigned after = _mm_getcsr();
      _mm_setcsr(before);
      EXPECT_EQ(after, controlState);
      const auto dstMatches = dst_.matches(signature.destination()), srcMatches = src_.matches();
      EXPECT_EQ(status, expected);
      EXPECT_TRUE(dstMatches) << signature.name << " " << width_ << " x " << height_ << ", " << vectorBytes << " bytes";
      EXPECT_TRUE(srcMatches);
      if (status != expected || !dstMatches || !srcMatches) return false;
      dst_.rewind();
    }
    return true;
  }

  // Widths around the vectors, few rows and enough for the wide kernels.
  template <class Check>
  void sizes(Check check) {
    std::vector<s64> widths = {95, 96, 97, 127, 128, 129, 200};
    for (s64 w = 1; w <= 66; ++w) widths.push_back(w);
    for (s64 w : widths) {
      if (!check(w, random.between(1, 3))) return;
      if (!check(w, 2048 / (w * signature.channels()) + 2)) return;
    }
  }

  Image& dst() { return dst_; }
  Image& src() { return src_; }

private:
  void placeOne(Image& image, s64 width, s64 height, Element element) {
    const s64 rowBytes = width * signature.channels() * bytesOf(element);
    const s64 step = random.oneIn(2) ? rowBytes : rowBytes + random.between(1, 70);
    const Placement placements[] = {Placement::kFlushEnd, Placement::kFlushStart, Placement::kInside};
    image.place({rowBytes, height, step}, random.pick(placements), random, static_cast<int>(random.between(0, 63)));
  }

  Image src_, dst_;
  s64 width_ = 0, height_ = 0;
};

// Elements as extended precision, which holds every value of every type.
inline long double getAny(Element element, const void* p, s64 i) {
  return withType(element, [&](auto zero) -> long double {
    using T = decltype(zero);
    if constexpr (std::is_arithmetic_v<T>) return static_cast<long double>(get<T>(p, i));
    return 0;
  });
}
inline void putAny(Element element, void* p, s64 i, long double v) {
  withType(element, [&](auto zero) {
    using T = decltype(zero);
    if constexpr (std::is_arithmetic_v<T>) put<T>(p, i, static_cast<T>(v));
  });
}

// A model of one row from a function of one element: f(channel, value) -> value. Alpha of AC4 stays.
template <class F>
auto byElement(const Signature& s, F f) {
  return [&s, f](const u8* from, u8* to, s64 pixels) {
    const Element source = s.source(), destination = s.destination();
    const int channels = s.channels(), used = s.hasAlpha() ? 3 : channels;
    for (s64 i = 0; i < pixels * channels; ++i) {
      const int c = static_cast<int>(i % channels);
      if (c < used) putAny(destination, to, i, f(c, getAny(source, from, i)));
    }
  };
}

}  // namespace rnx::test
