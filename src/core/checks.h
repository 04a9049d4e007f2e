// Argument checks. Operations call them in the order of their contract.
#pragma once

#include "core/types.h"

namespace rnx::core {

template <class... T>
bool anyNull(const T*... pointers) {
  return ((pointers == nullptr) || ...);
}

inline bool empty(RnxiSize size) { return size.width < 1 || size.height < 1; }

template <class... Steps>
bool anyStepBelow1(Steps... steps) {
  return ((steps < 1) || ...);
}

}  // namespace rnx::core
