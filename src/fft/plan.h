// Planning: sizes and contents of transform specs.
#pragma once

#include "core/spec.h"
#include "fft/spec.h"

namespace rnx::fft {

struct Request {
  s32 tag;
  bool isReal;
  RnxiSize size;
  s32 orderX, orderY;
  s32 flag, hint;
};

struct Sizes {
  s64 spec, init, work;  // bytes without the alignment
};

// A size as reported: with room for alignment.
inline s64 reported(s64 bytes) {
  return bytes == 0 ? 0 : core::roundUp(bytes, core::kSpecAlignment) + core::kSpecAlignment;
}

// The sizes of a spec for a request whose arguments are valid. Does not depend on the vector width.
Sizes measureSpec(const Request& request);

// Fills the record and its tables at `spec`. `init` holds Sizes::init bytes. Both addresses are multiples of 64.
void writeSpec(const Request& request, char* spec, void* init);

}  // namespace rnx::fft
