// Planning: sizes and contents of transform specs.
#pragma once

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

// The sizes of a spec for a request whose arguments are valid. Does not depend on the vector width.
Sizes measureSpec(const Request& request);

// Fills the record and its tables at `spec`. `init` holds Sizes::init bytes. Both addresses are multiples of 64.
void writeSpec(const Request& request, char* spec, void* init);

}  // namespace rnx::fft
