// Runs functions with one source and one destination, or in place, against a model of one row.
#pragma once

#include <xmmintrin.h>

#include <algorithm>

#include "support/call.h"
#include "support/companion_double.h"

namespace rnx::test {

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

class ValuesDriver {
public:
  explicit ValuesDriver(const Signature& s) : signature(s), inPlace(!s.has("dst")), random(s.name), call(s) {}

  const Signature& signature;
  const bool inPlace;
  Random random;
  Call call;                             // with the parameters that are not images
  unsigned controlState = _mm_getcsr();  // of floating point, during calls
  bool bitByBit = false;                 // one NaN is not as good as another

  // Images of these sizes, any step and place; source values by `data`.
  void place(s64 width, s64 height, Data data) {
    placeOne(inPlace ? dst_ : src_, width, height, signature.source());
    (inPlace ? dst_ : src_).fillRows(random, data, signature.source());
    if (!inPlace) placeOne(dst_, width, height, signature.destination());
    width_ = width, height_ = height;
  }
  u8* sourceRow(s64 y) { return (inPlace ? dst_ : src_).row(y); }

  // Source and destination in one piece of memory, a few elements or rows apart. The result is that of a loop over the
  // elements, whose values are f(channel, value); alpha of AC4 stays.
  template <class F>
  bool checkOverlap(s64 width, s64 height, Data data, F f) {
    const Element from = signature.source(), to = signature.destination();
    const int channels = signature.channels(), used = signature.hasAlpha() ? 3 : channels;
    const s64 grain = std::max(bytesOf(from), bytesOf(to)),
              pitch = width * channels * grain + grain * random.between(0, 5);
    const s64 step = random.oneIn(3) ? width * channels * bytesOf(to) : pitch;
    const s64 near = grain * random.between(-9, 9), rows = pitch * random.between(-1, 1);
    dst_.place({pitch * (height + 4) + 400, 1, 0}, Placement::kInside, random, static_cast<int>(random.between(0, 63)));
    u8 *src = dst_.data() + 200 + 2 * pitch, *dst = src + (random.oneIn(5) ? 0 : near) + (random.oneIn(2) ? 0 : rows);
    const s64 srcStep = random.oneIn(4) ? pitch : step;
    for (s64 y = 0; y < height; ++y) fill(random, data, from, src + y * srcStep, width * channels);
    dst_.expectNow();
    u8 *shadowSrc = dst_.shadow(src), *shadowDst = dst_.shadow(dst);
    for (s64 y = 0; y < height; ++y) {
      for (s64 i = 0; i < width * channels; ++i) {
        const int c = static_cast<int>(i % channels);
        if (c < used) putAny(to, shadowDst + y * step, i, f(c, getAny(from, shadowSrc + y * srcStep, i)));
      }
    }
    for (int vectorBytes : vectorWidths()) {
      const ScopedWidth scope(vectorBytes);
      EXPECT_EQ(call.image("src", src, srcStep).image("dst", dst, step).roi(width, height)(), rnxStatusNoError);
      const auto matches = dst_.matches();
      EXPECT_TRUE(matches) << signature.name << " " << width << " x " << height << ", destination " << dst - src
                           << " bytes behind the source, steps " << srcStep << " and " << step;
      if (!matches) return false;
      dst_.rewind();
    }
    return true;
  }
  template <class F>
  void overlaps(F check) {
    for (int i = 0; i < 60; ++i) {
      if (!check(random.between(1, 100), random.between(1, 4))) return;
      if (!check(random.between(40, 100), 2048 / (40 * signature.channels()) + 1)) return;
    }
  }

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
      const auto dstMatches = dst_.matches(bitByBit ? Element::k8u : signature.destination()),
                 srcMatches = src_.matches();
      EXPECT_EQ(status, expected);
      EXPECT_TRUE(dstMatches) << signature.name << " " << width_ << " x " << height_ << ", " << vectorBytes << " bytes";
      EXPECT_TRUE(srcMatches);
      if (status != expected || !dstMatches || !srcMatches) return false;
      dst_.rewind();
    }
    return true;
  }

  // More than the caches hold, for stores around them.
  template <class Check>
  void large(Check check) {
    const ScopedCache cache(kTinyCache);
    const s64 width = random.between(300, 500), bytes = bytesOf(signature.source()) + bytesOf(signature.destination());
    check(width, 0x80000 / (width * signature.channels() * bytes) + 2);
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
    const s64 sign = !signature.checksFor("step") && random.oneIn(3) ? -1 : 1;
    const s64 step = sign * (random.oneIn(2) ? rowBytes : rowBytes + random.between(1, 70));
    const Placement placements[] = {Placement::kFlushEnd, Placement::kFlushStart, Placement::kInside};
    image.place({rowBytes, height, step}, random.pick(placements), random, static_cast<int>(random.between(0, 63)));
  }

  Image src_, dst_;
  s64 width_ = 0, height_ = 0;
};

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
