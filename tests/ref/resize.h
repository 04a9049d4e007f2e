// Models of the nearest and the linear resize, pixel by pixel in the coordinates of the whole images.
#pragma once

#include <cmath>
#include <type_traits>

#include "support/elements.h"

namespace rnx::ref {

using test::get;
using test::put;

inline s64 nearestIndex(s64 i, s64 source, s64 destination) {
  const f64 scale = static_cast<f64>(source) / static_cast<f64>(destination);
  return static_cast<s64>((static_cast<f64>(i) + 0.5) * scale - 1e-10);
}

// Where a destination position lies: the pixels on both sides and how far it is from the first.
struct Coordinate {
  s64 first, second;
  f64 fraction;
};

struct Border {
  bool mirror, beforeInMemory, afterInMemory;
};

inline Coordinate linearCoordinate(s64 i, s64 source, s64 destination, Border border) {
  const f64 x = (static_cast<f64>(i) + 0.5) * (static_cast<f64>(source) / static_cast<f64>(destination)) - 0.5;
  const s64 floor = static_cast<s64>(std::floor(x));
  Coordinate c = {floor, floor + 1, x - static_cast<f64>(floor)};
  if (c.first == -1 && !border.beforeInMemory) c.first = border.mirror ? 1 : 0;
  if (c.second == source && !border.afterInMemory) c.second = border.mirror ? source - 2 : source - 1;
  return c;
}

inline s64 roundWeighted(s64 v) { return (v + ((v >> 14) & 1) + 8192) >> 14; }

template <class T>
T mix(T a, T b, f64 fraction) {
  if constexpr (std::is_floating_point_v<T>) {
    return (b - a) * static_cast<T>(fraction) + a;
  } else {
    const f64 steps = sizeof(T) == 1 ? std::trunc(fraction * 16384 + 1e-7)
                                     : std::nearbyint(static_cast<f64>(static_cast<f32>(fraction)) * 16384);
    const s64 w = static_cast<s64>(steps), bias = std::is_same_v<T, u16> ? 32768 : 0;
    return static_cast<T>(roundWeighted((a - bias) * (16384 - w) + (b - bias) * w) + bias);
  }
}

struct Picture {
  u8* pixels;
  s64 step;
  s64 width, height;
};

template <class T>
void nearest(const Picture& src, const Picture& dst, int channels) {
  for (s64 y = 0; y < dst.height; ++y) {
    for (s64 x = 0; x < dst.width; ++x) {
      const u8* from = src.pixels + nearestIndex(y, src.height, dst.height) * src.step;
      const s64 column = nearestIndex(x, src.width, dst.width);
      for (int c = 0; c < channels; ++c) {
        put(dst.pixels + y * dst.step, x * channels + c, get<T>(from, column * channels + c));
      }
    }
  }
}

template <class T>
void linear(const Picture& src, const Picture& dst, int channels, Border columns, Border rows) {
  for (s64 y = 0; y < dst.height; ++y) {
    const Coordinate v = linearCoordinate(y, src.height, dst.height, rows);
    for (s64 x = 0; x < dst.width; ++x) {
      const Coordinate h = linearCoordinate(x, src.width, dst.width, columns);
      for (int c = 0; c < channels; ++c) {
        const auto pixel = [&](s64 row, s64 column) {
          return get<T>(src.pixels + row * src.step, column * channels + c);
        };
        const T above = mix(pixel(v.first, h.first), pixel(v.first, h.second), h.fraction);
        const T below = mix(pixel(v.second, h.first), pixel(v.second, h.second), h.fraction);
        put(dst.pixels + y * dst.step, x * channels + c, mix(above, below, v.fraction));
      }
    }
  }
}

}  // namespace rnx::ref
