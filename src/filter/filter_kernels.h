// The kernels of the general linear filter, as the operation sees them: tables of functions, one table per width.
#pragma once

#include "core/spec.h"
#include "filter/border.h"
#include "filter/filter_spec.h"

namespace rnx::filter {

// The memory of one call inside the caller's work buffer. A row element takes kUnit bytes whatever the image's type is:
// a float, or the pair of two rows' pixels; 8 bytes for 64f.
struct WorkBuffer {
  const void** rows;     // the window: one address per row of the kernel, and one more
  const void** endRows;  // the window of the rows' ends
  char* constantRow;     // stands in for rows outside the image
  char* ring;            // bordered rows
  char* results;         // two rows of results that cannot be written where they belong
  s64 rowStep, bytes;
};

inline constexpr s64 kUnit = 4;
inline constexpr s64 kVectorBytes = 32;  // of the widest kernels
inline constexpr s64 kBlockVectors = 4;  // kernels work on so many vectors at a time, beyond the end of short rows

// Steps between rows are odd multiples of 64 bytes, so that rows at the same column fall into different cache sets.
inline s64 spreadStep(s64 bytes) { return core::roundUp(bytes, 64) | 64; }

// For rows of so many elements, border included. With a null block it measures; what cannot be reported comes out as
// one byte more than can.
inline WorkBuffer layOut(void* alignedBlock, s64 elements, s64 kernelHeight, s64 unit, s64 vectorBytes) {
  WorkBuffer w = {};
  const s64 count = kernelHeight + 1;
  w.rowStep = spreadStep(elements * unit + kBlockVectors * vectorBytes);
  if (w.rowStep > core::kMaxReportedSize / count) {
    w.bytes = core::kMaxReportedSize + 1;
    return w;
  }
  core::Carver carver(alignedBlock);
  w.rows = carver.take<const void*>(count);
  w.endRows = carver.take<const void*>(count);
  w.constantRow = carver.take<char>(w.rowStep);
  w.ring = carver.take<char>(count * w.rowStep);
  w.results = carver.take<char>(2 * w.rowStep);
  w.bytes = carver.used();
  return w;
}

// One call of a kernel.
template <class T>
struct FilterCall {
  const T* src;  // first pixel of the ROI
  s64 srcStep;
  T* dst;
  s64 dstStep;
  s64 width, height;  // of the ROI, in pixels
  s64 channels;
  Border border;
  const T* borderValue;
  const FilterSpec* spec;
  WorkBuffer buffer;
};

template <class T>
using FilterKernel = void (*)(const FilterCall<T>&);

// integer: sums that fit 32 bits, pixels multiplied in pairs. wideInteger: any integer kernel, in double precision,
// which holds every sum exactly. floating: in the precision of the kernel.
template <class T>
struct IntegerFilters {
  FilterKernel<T> integer, wideInteger, floating;
};

struct FilterKernels {
  FilterKernel<u8> bytesOf8u;  // sums that fit 16 bits, pixels multiplied in pairs of bytes
  IntegerFilters<u8> of8u;
  IntegerFilters<s16> of16s;
  FilterKernel<u16> of16u;
  FilterKernel<f32> of32f;
  FilterKernel<f64> of64f;
};

namespace v128 {
extern const FilterKernels filterKernels;
}
namespace v256 {
extern const FilterKernels filterKernels;
}

}  // namespace rnx::filter
