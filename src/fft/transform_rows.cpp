// The kernels of the two-dimensional transforms: rows, then columns (the inverse of a packed spectrum the other way
// round). Nothing of the destination is written before the whole source is read.
#include "fft/packed.h"
#include "fft/packed_line.h"

namespace rnx::fft {
namespace {

using Vector = Vec<f32>;

struct Scale {
  f32 x, y;
};

Scale scaleOf(const TransformCall& call) {
  const Spec& s = *call.spec;
  return call.inverse ? Scale{s.inverseX, s.inverseY} : Scale{s.forwardX, s.forwardY};
}

// A line lies along a row or down a column.
bool liesAlongRow(const TransformCall& call) { return call.spec->height == 1; }

void complexLine(const TransformCall& call, const Line& from, const Line& to, f32 scale) {
  if (call.spec->shape == Shape::kLine) {
    Grid<Vector>(call).splitLine(from, to, scale);
  } else {
    Grid<Single>(call).shortLine(from, to, scale);
  }
}

template <class V>
void complexGrid(const TransformCall& call) {
  const Grid<V> grid(call);
  const Scale scale = scaleOf(call);
  grid.complexRows(scale.x);
  f32* const dst = call.dst;
  const s64 step = call.dstStep;
  const auto store = [=](s64 k, s64 start, Complex<V> x)
                         RNX_LAMBDA { storePairs(core::at(dst, k * step, 2 * start), x); };
  grid.storeColumnsOf(scale.y, store);
}

void complexToComplex(const TransformCall& call) {
  const Shape shape = call.spec->shape;
  if (shape == Shape::kGrid) return complexGrid<Vector>(call);
  if (shape == Shape::kNarrow) return complexGrid<Single>(call);
  const auto line = [&](const f32* image, s64 step) RNX_LAMBDA {
    return Line{const_cast<f32*>(image), liesAlongRow(call) ? s64{sizeof(fc32)} : step, sizeof(f32)};
  };
  const Scale scale = scaleOf(call);
  complexLine(call, line(call.src, call.srcStep), line(call.dst, call.dstStep), scale.x * scale.y);
}

RealLine realLine(const TransformCall& call, const f32* image, s64 step) {
  const s64 pixel = call.channels * s64{sizeof(f32)}, length = std::max(call.spec->width, call.spec->height);
  return {const_cast<f32*>(image), liesAlongRow(call) ? pixel : step, length};
}

template <class V>
void forwardGrid(const TransformCall& call) {
  const PackedGrid<V> grid(call);
  const Scale scale = scaleOf(call);
  grid.forwardRows(scale.x);
  grid.forwardColumns(scale.y);
}

void realToPack(const TransformCall& call) {
  const Shape shape = call.spec->shape;
  if (shape == Shape::kGrid) return forwardGrid<Vector>(call);
  if (shape == Shape::kNarrow) return forwardGrid<Single>(call);
  const RealLine src = realLine(call, call.src, call.srcStep), dst = realLine(call, call.dst, call.dstStep);
  const Scale scale = scaleOf(call);
  const Grid<Single> grid(call);
  if (src.length % 2 != 0) return oddForward(grid, src, dst, scale.x * scale.y);
  complexLine(call, src.pairs(), Line{grid.line, sizeof(fc32), sizeof(f32)}, 1.0f);
  unpackHalves(call, grid.line, dst, scale.x * scale.y);
}

template <class V>
void inverseGrid(const TransformCall& call) {
  const PackedGrid<V> grid(call);
  const Scale scale = scaleOf(call);
  grid.inverseColumns(scale.y);
  grid.inverseRows(scale.x);
}

void packToReal(const TransformCall& call) {
  const Shape shape = call.spec->shape;
  if (shape == Shape::kGrid) return inverseGrid<Vector>(call);
  if (shape == Shape::kNarrow) return inverseGrid<Single>(call);
  const RealLine src = realLine(call, call.src, call.srcStep), dst = realLine(call, call.dst, call.dstStep);
  const Scale scale = scaleOf(call);
  const Grid<Single> grid(call);
  if (src.length % 2 != 0) return oddInverse(grid, src, dst, scale.x * scale.y);
  packHalves(call, src, grid.line);
  complexLine(call, Line{grid.line, sizeof(fc32), sizeof(f32)}, dst.pairs(), scale.x * scale.y);
}

}  // namespace

namespace RNX_WIDTH {

constinit const TransformKernels transformKernels = {
    .complexToComplex = complexToComplex, .realToPack = realToPack, .packToReal = packToReal};

}  // namespace RNX_WIDTH
}  // namespace rnx::fft
