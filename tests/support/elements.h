// Element types at run time.
#pragma once

#include <cstring>
#include <string_view>

#include "core/types.h"

namespace rnx::test {

enum class Element { k8u, k8s, k16u, k16s, k32u, k32s, k32f, k64f, k32sc, k32fc };

struct ElementName {
  std::string_view tag;
  Element element;
};
inline constexpr ElementName kElementNames[] = {
    {"8u", Element::k8u},     {"8s", Element::k8s},     {"16u", Element::k16u}, {"16s", Element::k16s},
    {"32u", Element::k32u},   {"32s", Element::k32s},   {"32f", Element::k32f}, {"64f", Element::k64f},
    {"1u", Element::k8u},  // one-bit images are addressed by the byte
    {"32sc", Element::k32sc}, {"32fc", Element::k32fc},
};

// Calls f with a value of the element's type: withType(e, [&](auto zero) { using T = decltype(zero); ... }).
template <class F>
decltype(auto) withType(Element element, F f) {
  switch (element) {
    case Element::k8u:
      return f(u8{});
    case Element::k8s:
      return f(s8{});
    case Element::k16u:
      return f(u16{});
    case Element::k16s:
      return f(s16{});
    case Element::k32u:
      return f(u32{});
    case Element::k32s:
      return f(s32{});
    case Element::k32f:
      return f(f32{});
    case Element::k64f:
      return f(f64{});
    case Element::k32sc:
      return f(sc32{});
    case Element::k32fc:
      return f(fc32{});
  }
  __builtin_unreachable();
}

inline int bytesOf(Element element) {
  return withType(element, [](auto zero) { return static_cast<int>(sizeof(zero)); });
}

// Elements at any address.
template <class T>
T get(const void* p, s64 index = 0) {
  T value;
  std::memcpy(&value, static_cast<const u8*>(p) + index * s64{sizeof(T)}, sizeof(T));
  return value;
}
template <class T>
void put(void* p, s64 index, T value) {
  std::memcpy(static_cast<u8*>(p) + index * s64{sizeof(T)}, &value, sizeof(T));
}

}  // namespace rnx::test
