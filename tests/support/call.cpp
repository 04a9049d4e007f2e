#include "support/call.h"

#include <ffi.h>

#include <cstdio>
#include <cstdlib>

namespace rnx::test {
namespace {

enum class Kind { kPointer, kInteger, kFloat, kDouble, kWords };

struct TypeInfo {
  std::string_view name;
  Kind kind;
  int bytes;
  bool isSigned;
  ffi_type* type;
};

// Structures of two eightbytes go to two registers or, together, to the stack.
ffi_type* pairElements[] = {&ffi_type_uint64, &ffi_type_uint64, nullptr};
ffi_type pairType = {0, 0, FFI_TYPE_STRUCT, pairElements};

// Everything below 8 bytes travels as a whole eightbyte, so that the unused part can hold junk.
const TypeInfo kTypes[] = {
    {"int", Kind::kInteger, 4, true, &ffi_type_uint64},
    {"Rnx64s", Kind::kInteger, 8, true, &ffi_type_uint64},
    {"Rnx32s", Kind::kInteger, 4, true, &ffi_type_uint64},
    {"Rnx32u", Kind::kInteger, 4, false, &ffi_type_uint64},
    {"Rnx16s", Kind::kInteger, 2, true, &ffi_type_uint64},
    {"Rnx16u", Kind::kInteger, 2, false, &ffi_type_uint64},
    {"Rnx8s", Kind::kInteger, 1, true, &ffi_type_uint64},
    {"Rnx8u", Kind::kInteger, 1, false, &ffi_type_uint64},
    {"RnxiBorderType", Kind::kInteger, 4, false, &ffi_type_uint64},
    {"RnxiInterpolationType", Kind::kInteger, 4, false, &ffi_type_uint64},
    {"RnxDataType", Kind::kInteger, 4, false, &ffi_type_uint64},
    {"Rnx32f", Kind::kFloat, 4, true, &ffi_type_double},
    {"Rnx64f", Kind::kDouble, 8, true, &ffi_type_double},
    {"RnxiSize", Kind::kWords, 8, false, &ffi_type_uint64},
    {"RnxiPoint", Kind::kWords, 8, false, &ffi_type_uint64},
    {"Rnx32sc", Kind::kWords, 8, false, &ffi_type_uint64},
    {"Rnx32fc", Kind::kWords, 8, false, &ffi_type_double},
    {"RnxiRect", Kind::kWords, 16, false, &pairType},
    {"RnxiPointL", Kind::kWords, 16, false, &pairType},
    {"RnxiBorderSize", Kind::kWords, 16, false, &pairType},
};
const TypeInfo kPointerType = {"pointer", Kind::kPointer, 8, false, &ffi_type_pointer};

const TypeInfo* typeOf(const Parameter& p) {
  if (p.isPointer()) return &kPointerType;
  for (const TypeInfo& t : kTypes) {
    if (t.name == p.type) return &t;
  }
  return nullptr;
}

// Callers extend the small integers to 32 bits, which compilers rely on; the upper half is anybody's.
constexpr u64 kJunk = 0x5aa5'c33c'0000'0000;
u64 asWord(const TypeInfo& t, s64 value) {
  if (t.bytes == 8) return static_cast<u64>(value);
  if (t.bytes == 4) return kJunk | static_cast<u32>(value);
  if (t.bytes == 2) {
    return kJunk | (t.isSigned ? static_cast<u32>(static_cast<s16>(value)) : static_cast<u16>(value));
  }
  return kJunk | (t.isSigned ? static_cast<u32>(static_cast<s8>(value)) : static_cast<u8>(value));
}

u64 floatWord(f32 value) {
  u32 bits;
  std::memcpy(&bits, &value, 4);
  return kJunk | bits;
}

}  // namespace

struct Call::Interface {
  ffi_cif cif;
  std::array<ffi_type*, kMaxParameters> types;
  std::array<const TypeInfo*, kMaxParameters> infos;
};

Call::Call(const Signature& signature) : signature_(signature), interface_(std::make_unique<Interface>()) {
  const auto parameters = signature.parameters();
  for (size_t i = 0; i < parameters.size(); ++i) {
    const TypeInfo* info = typeOf(parameters[i]);
    if (info == nullptr) fail("tests/support/call.cpp does not know the type of", parameters[i].name);
    interface_->infos[i] = info;
    interface_->types[i] = info->type;
  }
  const bool isStatus = signature.returns == "RnxStatus";
  ffi_type* returns = signature.returns == "void" ? &ffi_type_void : isStatus ? &ffi_type_sint32 : &ffi_type_pointer;
  if (!isStatus && returns == &ffi_type_pointer && !signature.returns.ends_with('*')) {
    fail("tests/support/call.cpp does not know the result type of", signature.name);
  }
  if (ffi_prep_cif(&interface_->cif, FFI_DEFAULT_ABI, static_cast<unsigned>(parameters.size()), returns,
                   interface_->types.data()) != FFI_OK) {
    fail("libffi refuses", signature.name);
  }
}

Call::Call(const Call& other) : Call(other.signature_) {
  slots_ = other.slots_;
  roi_ = other.roi_;
  roiByAddress_ = other.roiByAddress_;
}

Call::~Call() = default;

void Call::fail(std::string_view what, std::string_view parameter) const {
  std::fprintf(stderr, "%.*s: %.*s %.*s\n", static_cast<int>(signature_.name.size()), signature_.name.data(),
               static_cast<int>(what.size()), what.data(), static_cast<int>(parameter.size()), parameter.data());
  abort();
}

size_t Call::indexOf(std::string_view parameter) const {
  const auto parameters = signature_.parameters();
  for (size_t i = 0; i < parameters.size(); ++i) {
    if (parameters[i].name == parameter) return i;
  }
  fail("has no parameter", parameter);
}

size_t Call::indexOfRole(std::string_view role) const {
  const auto parameters = signature_.parameters();
  for (size_t i = 0; i < parameters.size(); ++i) {
    if (parameters[i].role == role) return i;
  }
  fail("has no role", role);
}

Call& Call::image(std::string_view role, const void* data, s64 step) {
  setPointer(indexOfRole(role), data);
  const auto parameters = signature_.parameters();
  for (size_t i = 0; i < parameters.size(); ++i) {
    if (parameters[i].role == role && parameters[i].isStep()) setInteger(i, step);
  }
  return *this;
}

Call& Call::roi(s64 width, s64 height) {
  roi_ = {width, height};
  const size_t index = indexOfRole("roi");
  if (signature_.parameters()[index].isPointer()) {
    roiByAddress_ = true;
    slots_[index].words[0] = 0;
    return *this;
  }
  const RnxiSize size = {static_cast<int>(width), static_cast<int>(height)};
  setStruct(index, &size, sizeof size);
  return *this;
}

void Call::setPointer(size_t index, const void* value) {
  if (interface_->infos[index]->kind != Kind::kPointer) fail("not a pointer:", signature_.parameters()[index].name);
  slots_[index].words[0] = reinterpret_cast<uintptr_t>(value);
  if (signature_.parameters()[index].role == "roi") roiByAddress_ = false;
}

void Call::setInteger(size_t index, s64 value) {
  const TypeInfo& info = *interface_->infos[index];
  if (info.kind == Kind::kFloat || info.kind == Kind::kDouble) return setFloat(index, static_cast<f64>(value));
  if (info.kind != Kind::kInteger) fail("not a number:", signature_.parameters()[index].name);
  slots_[index].words[0] = asWord(info, value);
}

void Call::setFloat(size_t index, f64 value) {
  const TypeInfo& info = *interface_->infos[index];
  if (info.kind == Kind::kFloat) {
    slots_[index].words[0] = floatWord(static_cast<f32>(value));
  } else if (info.kind == Kind::kDouble) {
    std::memcpy(slots_[index].words, &value, 8);
  } else {
    fail("not a floating-point number:", signature_.parameters()[index].name);
  }
}

void Call::setStruct(size_t index, const void* value, size_t bytes) {
  const TypeInfo& info = *interface_->infos[index];
  if (info.kind != Kind::kWords || static_cast<size_t>(info.bytes) != bytes) {
    fail("not a structure of this size:", signature_.parameters()[index].name);
  }
  std::memcpy(slots_[index].words, value, bytes);
}

s64 Call::integerAt(size_t index) const {
  const TypeInfo& info = *interface_->infos[index];
  const u64 word = slots_[index].words[0];
  if (info.bytes == 8) return static_cast<s64>(word);
  return info.isSigned ? s64{static_cast<s32>(word)} : s64{static_cast<u32>(word)};
}

void Call::invoke(u64* result) const {
  auto slots = slots_;
  std::array<void*, kMaxParameters> values;
  const auto parameters = signature_.parameters();
  for (size_t i = 0; i < parameters.size(); ++i) {
    if (roiByAddress_ && parameters[i].role == "roi") slots[i].words[0] = reinterpret_cast<uintptr_t>(&roi_);
    values[i] = slots[i].words;
  }
  ffi_call(&interface_->cif, signature_.address, result, values.data());
}

}  // namespace rnx::test
