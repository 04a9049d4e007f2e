#include "support/random.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace rnx::test {
namespace {

u64 mix(u64& state) {
  u64 z = (state += 0x9e3779b97f4a7c15);
  z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
  z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
  return z ^ (z >> 31);
}

template <class T>
T extremeInteger(Random& r) {
  using Limits = std::numeric_limits<T>;
  constexpr T half = static_cast<T>(Limits::max() / 2);
  const T values[] = {Limits::min(),     static_cast<T>(Limits::min() + 1), 0,    1,
                      Limits::max(),     static_cast<T>(Limits::max() - 1), half, static_cast<T>(half + 1),
                      static_cast<T>(-1)};
  return r.pick(values);
}

template <class T>
T extremeFloat(Random& r) {
  using Limits = std::numeric_limits<T>;
  const T values[] = {T(0),          T(1),          Limits::infinity(), Limits::quiet_NaN(), Limits::denorm_min(),
                      Limits::min(), Limits::max(), Limits::epsilon(),  Limits::min() / 3};
  const T value = r.pick(values);
  return r.oneIn(2) ? -value : value;
}

template <class T>
T tieInteger(Random& r) {
  if (r.oneIn(2)) return static_cast<T>(r.between(std::numeric_limits<T>::min() == 0 ? 0 : -16, 16));
  const s64 power = s64{1} << r.between(0, std::numeric_limits<T>::digits);
  const s64 value = power + r.between(-1, 1);
  return static_cast<T>(r.oneIn(2) ? -value : value);
}

// Halves around the limits of the integer types, where conversions decide, and the floats next to them.
template <class T>
T tieFloat(Random& r) {
  const s64 limits[] = {0, 128, 255, 256, 32768, 65535, 65536, s64{1} << 31, s64{1} << 32};
  T value = static_cast<T>(r.pick(limits) + r.between(-3, 3)) + static_cast<T>(r.between(0, 2)) / 2;
  if (r.oneIn(4)) value = std::nextafter(value, r.oneIn(2) ? T(-1e30f) : T(1e30f));
  return r.oneIn(2) ? -value : value;
}

}  // namespace

u64 seed() {
  static const u64 kSeed = [] {
    const char* text = std::getenv("RNX_SEED");
    return text == nullptr ? u64{20211100} : std::strtoull(text, nullptr, 0);
  }();
  return kSeed;
}

Random::Random(std::string_view name) {
  u64 state = seed();
  for (char c : name) state = (state ^ static_cast<u8>(c)) * 0x100000001b3;
  for (u64& s : state_) s = mix(state);
}

// xoshiro256**
u64 Random::next() {
  u64* s = state_;
  const u64 result = std::rotl(s[1] * 5, 7) * 9, t = s[1] << 17;
  s[2] ^= s[0], s[3] ^= s[1], s[1] ^= s[2], s[0] ^= s[3];
  s[2] ^= t;
  s[3] = std::rotl(s[3], 45);
  return result;
}

template <class T>
T value(Random& r, Data data) {
  if constexpr (std::is_floating_point_v<T>) {
    using Bits = std::conditional_t<sizeof(T) == 4, u32, u64>;
    switch (data) {
      case Data::kBits:
        return std::bit_cast<T>(static_cast<Bits>(r.next()));
      case Data::kModerate:
        return static_cast<T>(static_cast<double>(r.between(-1000000000, 1000000000)) * 1e-6);
      case Data::kExtreme:
        return extremeFloat<T>(r);
      case Data::kTies:
        return tieFloat<T>(r);
    }
  } else {
    switch (data) {
      case Data::kBits:
      case Data::kModerate:
        return static_cast<T>(r.next());
      case Data::kExtreme:
        return extremeInteger<T>(r);
      case Data::kTies:
        return tieInteger<T>(r);
    }
  }
  __builtin_unreachable();
}
template u8 value<u8>(Random&, Data);
template s8 value<s8>(Random&, Data);
template u16 value<u16>(Random&, Data);
template s16 value<s16>(Random&, Data);
template u32 value<u32>(Random&, Data);
template s32 value<s32>(Random&, Data);
template f32 value<f32>(Random&, Data);
template f64 value<f64>(Random&, Data);

void fillBytes(Random& random, void* bytes, s64 count) {
  u8* p = static_cast<u8*>(bytes);
  for (; count > 0; p += 8, count -= 8) {
    const u64 word = random.next();
    std::memcpy(p, &word, count < 8 ? static_cast<size_t>(count) : 8);
  }
}

void fill(Random& random, Data data, Element element, void* elements, s64 count) {
  if (element == Element::k32sc) return fill(random, data, Element::k32s, elements, 2 * count);
  if (element == Element::k32fc) return fill(random, data, Element::k32f, elements, 2 * count);
  const bool isFloat = element == Element::k32f || element == Element::k64f;
  if (data == Data::kBits || (data == Data::kModerate && !isFloat)) {
    return fillBytes(random, elements, count * bytesOf(element));
  }
  withType(element, [&](auto zero) {
    using T = decltype(zero);
    if constexpr (std::is_arithmetic_v<T>) {
      for (s64 i = 0; i < count; ++i) put(elements, i, value<T>(random, data));
    }
  });
}

}  // namespace rnx::test
