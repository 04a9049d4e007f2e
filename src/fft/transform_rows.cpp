// The kernels of the two-dimensional transforms: rows, then columns (the inverse of a packed spectrum the other way
// round). Source and destination are the same image or apart: narrow images and real lines stand in the destination
// between their passes.
#include "fft/packed.h"
#include "fft/packed_line.h"
#include "fft/series.h"

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
    Series(call, call.spec->plans[0]).complexToComplex(from, to, scale);
  }
}

void complexToComplex(const TransformCall& call) {
  const Scale scale = scaleOf(call);
  if (call.spec->shape == Shape::kGrid) {
    const Grid<Vector> grid(call);
    grid.complexRows(scale.x);
    f32* const dst = call.dst;
    const s64 step = call.dstStep;
    const auto store = [=](s64 k, s64 start, Complex<Vector> x)
                           RNX_LAMBDA { storePairs(core::at(dst, k * step, 2 * start), x); };
    return grid.storeColumnsOf(scale.y, store);
  }
  if (call.spec->shape == Shape::kNarrow) return narrowComplex(call, scale.x, scale.y);
  const auto line = [&](const PlaneView& plane)
                        RNX_LAMBDA { return liesAlongRow(call) ? plane.complexRow(0) : plane.complexColumn(0); };
  complexLine(call, line(PlaneView::source(call)), line(PlaneView::destination(call)), scale.x * scale.y);
}

RealLine realLine(const TransformCall& call, const PlaneView& plane) {
  return {plane.first, liesAlongRow(call) ? plane.pixel() : plane.step};
}

void realToPack(const TransformCall& call) {
  const Scale scale = scaleOf(call);
  const Spec& spec = *call.spec;
  if (spec.shape == Shape::kGrid) {
    const PackedGrid<Vector> grid(call);
    grid.forwardRows(scale.x);
    return grid.forwardColumns(scale.y);
  }
  if (spec.shape == Shape::kNarrow) return narrowReal(call, scale.x, scale.y);
  const RealLine src = realLine(call, PlaneView::source(call)), dst = realLine(call, PlaneView::destination(call));
  const f32 both = scale.x * scale.y;
  if (!spec.isHalved()) return Series(call, spec.plans[0]).loneToPack(src, dst, both);
  complexLine(call, src.pairs(), dst.pairs(), 1.0f);
  Halves(call).unpack(dst, both);
}

void packToReal(const TransformCall& call) {
  const Scale scale = scaleOf(call);
  const Spec& spec = *call.spec;
  if (spec.shape == Shape::kGrid) {
    const PackedGrid<Vector> grid(call);
    grid.inverseColumns(scale.y);
    return grid.inverseRows(scale.x);
  }
  if (spec.shape == Shape::kNarrow) return narrowReal(call, scale.x, scale.y);
  const RealLine src = realLine(call, PlaneView::source(call)), dst = realLine(call, PlaneView::destination(call));
  const f32 both = scale.x * scale.y;
  if (!spec.isHalved()) return Series(call, spec.plans[0]).loneToReal(src, dst, both);
  Halves(call).pack(src, dst);
  complexLine(call, dst.pairs(), dst.pairs(), both);
}

}  // namespace

namespace RNX_WIDTH {

constinit const TransformKernels transformKernels = {
    .complexToComplex = complexToComplex, .realToPack = realToPack, .packToReal = packToReal};

}  // namespace RNX_WIDTH
}  // namespace rnx::fft
