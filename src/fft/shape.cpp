#include "fft/shape.h"

#include <algorithm>
#include <cmath>

#include "fft/lengths.h"
#include "fft/plan.h"

namespace rnx::fft {
namespace {

// Room for the widest vectors, whichever will run.
constexpr s64 kMostLanes = 8;

// A length of one row that is worth a grid: the largest divisor up to its square root, when both are at least a vector
// long and have small prime factors only; else 1.
s64 lineRows(s64 n) {
  constexpr s64 kWorthAGrid = 1024;
  if (n < kWorthAGrid || factorsOf(n).cost == INFINITY) return 1;
  s64 divisor = static_cast<s64>(std::sqrt(static_cast<f64>(n)));
  while (n % divisor != 0) --divisor;
  return divisor >= 2 * kMostLanes ? divisor : 1;
}

// Products of two sizes pass 64 bits as bytes. They stop where no size can be reported any more.
s64 complexBytes(s64 points) { return std::min(points, s64{1} << 40) * kComplexBytes; }

s64 imageBytes(const Spec& spec) { return complexBytes(s64{spec.width} * spec.height) / (spec.isReal != 0 ? 2 : 1); }

// Whether work memory of this size is no burden: on the stack, or at most twice the image and two rows.
bool isFair(const Spec& spec, s64 bytes) {
  return bytes <= kStackWork || reported(bytes) <= 2 * imageBytes(spec) + 2 * imageBytes(spec) / spec.height;
}

// Room that a transform needs, its input and output included. In parts that is the output and one of them; the output
// of real lines of odd length is half as long.
s64 tileBytes(const Spec& spec, s64 length) {
  const Choice choice = choose(spec, length);
  if (choice.parts == 1) return complexBytes(std::max(length, choice.size));
  return complexBytes((spec.isLone() ? (length + 1) / 2 : length) + choice.size);
}

// One sequence at a time.
void shapeSeries(Spec& spec, Shape shape, s64 rowLength, s64 columnLength) {
  spec.shape = shape;
  spec.gridWidth = static_cast<s32>(rowLength);
  spec.gridHeight = static_cast<s32>(columnLength);
  spec.stripBytes = 0;
  for (const bool isScarce : {false, true}) {
    spec.isScarce = isScarce ? 1 : 0;
    spec.tileBytes = alignUp(std::max(tileBytes(spec, rowLength), tileBytes(spec, columnLength)));
    if (isFair(spec, spec.tileBytes)) return;
  }
}

void shapeLine(Spec& spec) {
  const s64 length = std::max(spec.width, spec.height), points = spec.isHalved() ? length / 2 : length;
  const s64 rows = lineRows(points);
  if (rows == 1 || spec.isLone()) return shapeSeries(spec, Shape::kShort, points, 1);
  // Columns of the grid are transformed first. They become the rows of the result.
  spec.shape = Shape::kLine;
  spec.gridWidth = static_cast<s32>(rows);
  spec.gridHeight = static_cast<s32>(points / rows);
  const s64 paddedWidth = (rows + kMostLanes - 1) / kMostLanes * kMostLanes;
  spec.stripBytes = alignUp(complexBytes(paddedWidth * spec.gridHeight));
  spec.tileBytes = alignUp(complexBytes(kMostLanes * std::max(spec.gridWidth, spec.gridHeight)));
}

// Vectors want rows and columns enough to fill them, and work memory: where that would be unfair, one row or column at
// a time is the thriftier way.
void shapeImage(Spec& spec) {
  const s64 width = spec.width, height = spec.height;
  const bool isReal = spec.isReal != 0;
  spec.shape = Shape::kGrid;
  spec.gridWidth = static_cast<s32>(isReal ? (width + 1) / 2 : width);
  spec.gridHeight = static_cast<s32>(height);
  const s64 paddedWidth = (spec.gridWidth + kMostLanes - 1) / kMostLanes * kMostLanes;
  spec.stripBytes = alignUp(complexBytes(paddedWidth * height));
  spec.tileBytes = alignUp(kMostLanes * std::max(tileBytes(spec, width), tileBytes(spec, height)));
  const s64 leastRows = isReal ? 2 * kMostLanes : kMostLanes;
  const bool fills = height >= leastRows && spec.gridWidth >= kMostLanes;
  if (!fills || !isFair(spec, spec.stripBytes + spec.tileBytes)) shapeSeries(spec, Shape::kNarrow, width, height);
}

}  // namespace

void shapeSpec(Spec& spec) {
  if (spec.isLine()) {
    shapeLine(spec);
  } else {
    shapeImage(spec);
  }
}

}  // namespace rnx::fft
