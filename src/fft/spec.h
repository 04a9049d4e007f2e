// What a transform spec holds. A spec is one block of the caller's memory: this record, then the tables of its plans at
// offsets from the record.
#pragma once

#include "core/types.h"

namespace rnx::fft {

inline constexpr int kMaxPasses = 30;  // radix 2 alone reaches 2^28

inline constexpr int kLargestButterfly = 8;  // radices up to here are unrolled
inline constexpr int kLargestRadix = 61;     // larger primes have methods of their own

struct fc64 {
  f64 re, im;
};

// How a length is transformed.
enum class Method : s32 {
  kPasses,    // its prime factors are all small
  kRotation,  // a larger prime p, where those of p - 1 are small
  kChirp      // any other
};

// The plan of one-dimensional transforms of one length.
//
// Rotation: g^0, g^1 ... g^(p-2) modulo p, for a primitive root g, are all numbers from 1 to p - 1. In this order the
// transform is a circular correlation of p - 1 points, done by transforms of that size:
//   X_(g^m) = x_0 + sum over r of x_(g^r) w^(g^(r+m)),   w = exp(-2 pi i / p)
// Chirp: a circular convolution whose size is chosen freely:
//   X_k = c_k * sum over j of (x_j c_j) * conj(c_(k-j)),   c_j = exp(-pi i j^2 / length)
// Both go there and back through the passes, where ordinary lengths go once. They compute in double precision, with
// factors in double precision, and round what they leave in the tile: so their errors stay below those of the others.
// Where work memory is scarce, the chirp's convolution is done in parts, one after the other, and so is the transform
// of a real line of odd length (parts.h).
struct Plan {
  s32 length;
  Method method;
  s32 size;  // of the passes, times parts: length; length - 1; at least 2 length - 1
  s32 parts;
  s32 passCount;
  s32 radix[kMaxPasses];
  u32 twiddles[kMaxPasses];  // offset per pass: factors of outputs 1 ... radix - 1, for each butterfly of a block;
                             // before them, for radices that are not unrolled, the roots of unity
  u32 positions;             // s32 for outputs 0 ... length, where the passes leave them; the last is the first again
  u32 filter;          // what spectra are multiplied by, size numbers in the order of the passes; one for each part
  u32 powers, cycles;  // kRotation: s32 g^r modulo p; one place of each cycle of that permutation, then 0
  u32 chirp;           // kChirp: c_j
  u32 turns;           // in parts: exp(-2 pi i k / (size parts))
  u32 order;           // kPasses in parts: s32 as positions, of a part; there the positions are in natural order
};

// How the image is walked.
enum class Shape : s32 {
  kGrid,    // rows, then columns, as many at a time as a vector has lanes
  kNarrow,  // the same, one at a time and in the destination: an image of few rows or columns
  kLine,    // one row or column of composite length, as the columns and rows of a grid
  kShort    // one row or column at a time
};

struct Spec {
  s32 tag;
  s32 orderX, orderY;  // of power-of-two transforms
  s32 hint;
  s32 workSize;  // bytes of work memory, 0 when the stack serves
  s32 width, height;
  s32 isReal;
  Shape shape;
  // The grid of complex numbers that is transformed: the image, or for real images columns 0 ... (width - 1) / 2.
  s32 gridWidth, gridHeight;
  f32 forwardX, forwardY, inverseX, inverseY;  // factors of scaling
  s32 columnPlan;                              // 0 when the row plan serves both axes, else 1
  Plan plans[2];
  u32 lineTwiddles;  // kLine: exp(-2 pi i k n / length) in row k and column n of the grid
  u32 halfTwiddles;  // real lines of even length: exp(-2 pi i k / length) for k up to a quarter
  // Work memory: the grid between the axes, in strips; one tile.
  s64 stripBytes, tileBytes;
  s32 isScarce;  // work memory: transforms go in parts where they can

  bool isLine() const { return width == 1 || height == 1; }
  // Real lines of even length are transformed as half as many complex numbers.
  bool isHalved() const { return isReal != 0 && isLine() && width * s64{height} % 2 == 0; }
  // Those of odd length have no partner.
  bool isLone() const { return isReal != 0 && isLine() && !isHalved(); }

  template <class T>
  const T* table(u32 offset) const {
    return reinterpret_cast<const T*>(reinterpret_cast<const char*>(this) + offset);
  }
};

enum Tag : s32 { kTagFftComplex = 27, kTagFftReal = 28, kTagDftComplex = 38, kTagDftReal = 39 };

inline constexpr s64 kStackWork = 16384;  // transforms that need no more take it from the stack

}  // namespace rnx::fft
