// Calls of any export with arguments by name or role: the whole surface without a line per function.
//
//   Call call(signature("rnxiAdd_8u_C1RSfs"));
//   call.image("src1", a).image("src2", b).image("dst", d).roi(width, height).set("scaleFactor", 1);
//   EXPECT_EQ(call(), rnxStatusNoError);
//
// Arguments that were not set are zeros and null pointers. What the calling convention leaves undefined (the upper
// halves of registers that hold an int or a float) holds junk.
#pragma once

#include <array>
#include <memory>
#include <type_traits>

#include "support/guarded.h"
#include "support/signatures.h"

namespace rnx::test {

class Call {
public:
  explicit Call(const Signature& signature);
  explicit Call(std::string_view name) : Call(rnx::test::signature(name)) {}
  Call(const Call& other);
  Call& operator=(const Call&) = delete;
  ~Call();

  const Signature& signature() const { return signature_; }

  // Numbers become the parameter's own type; structures must have its size.
  template <class T>
  Call& set(std::string_view parameter, const T& value) {
    return setAt(indexOf(parameter), value);
  }
  template <class T>
  Call& setAt(size_t index, const T& value);
  // All arguments, in the prototype's order.
  template <class... T>
  Call& with(const T&... values) {
    size_t i = 0;
    (setAt(i++, values), ...);
    return *this;
  }

  // The pointer and, where the role has one, the step of an image.
  Call& image(std::string_view role, const void* data, s64 step);
  Call& image(std::string_view role, const Image& image) { return this->image(role, image.data(), image.step()); }
  // The first parameter of a role that is not an image: role("scale", 3).
  template <class T>
  Call& role(std::string_view role, const T& value) {
    return setAt(indexOfRole(role), value);
  }
  // The ROI by value or, in _L functions, by address.
  Call& roi(s64 width, s64 height);
  RnxiSizeL currentRoi() const { return roi_; }

  // The value as an integer: of an int, a step, a pointer.
  s64 integerAt(size_t index) const;

  RnxStatus operator()() const { return result<RnxStatus>(); }
  template <class R>
  R result() const {
    union {
      u64 words[2];
      R value;
    } r = {{0, 0}};
    invoke(r.words);
    return r.value;
  }
  void callVoid() const {
    u64 words[2];
    invoke(words);
  }

  size_t indexOf(std::string_view parameter) const;
  size_t indexOfRole(std::string_view role) const;

private:
  struct Interface;
  struct Slot {
    u64 words[2];
  };

  void setPointer(size_t index, const void* value);
  void setInteger(size_t index, s64 value);
  void setFloat(size_t index, f64 value);
  void setStruct(size_t index, const void* value, size_t bytes);
  void invoke(u64* result) const;
  [[noreturn]] void fail(std::string_view what, std::string_view parameter) const;

  const Signature& signature_;
  std::unique_ptr<Interface> interface_;
  std::array<Slot, kMaxParameters> slots_{};
  RnxiSizeL roi_{};
  bool roiByAddress_ = false;
};

template <class T>
Call& Call::setAt(size_t index, const T& value) {
  if constexpr (std::is_pointer_v<T> || std::is_null_pointer_v<T>) {
    setPointer(index, value);
  } else if constexpr (std::is_array_v<T>) {
    setPointer(index, &value[0]);
  } else if constexpr (std::is_floating_point_v<T>) {
    setFloat(index, value);
  } else if constexpr (std::is_enum_v<T> || std::is_integral_v<T>) {
    setInteger(index, static_cast<s64>(value));
  } else {
    setStruct(index, &value, sizeof(T));
  }
  return *this;
}

}  // namespace rnx::test
