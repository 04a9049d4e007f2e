// Row kernels of the linear resize of 32f and 64f: h = (p1 - p0) * fx + p0 on two source rows, which stay in the work
// buffer while the next result rows use them, then (h1 - h0) * fy + h0.
#include "geom/resize_rows.h"

namespace rnx::geom {
namespace {

using namespace simd;

template <class T>
struct Mix {
  Vec<T> fraction;

  RNX_INLINE Vec<T> operator()(Vec<T> a, Vec<T> b) const { return (b - a) * fraction + a; }
};

// ---- The horizontal pass ----

template <class T, int C>
class Columns {
public:
  explicit Columns(const LinearCall& call)
      : index_(call.tile.columns.index),
        fractions_(static_cast<const T*>(call.columnWeights)),
        count_(call.tile.columns.count),
        origin_(call.tile.columns.origin),
        neighbours_(call.columnNeighbours) {
    // Entries ascend: inside are the columns whose neighbours are x and x + 1.
    inside_ = 0;
    while (inside_ < count_ && index_[inside_] < 0) ++inside_;
    end_ = count_;
    while (end_ > inside_ && index_[end_ - 1] >= neighbours_.last) --end_;
  }

  void resample(const T* src, T* row) const {
    src = core::at(src, 0, -origin_ * C);
    onePerOne(src, row, 0, inside_);
    const s64 done = vectors(src, row);
    onePerOne(src, row, done, count_);
  }

private:
  void onePerOne(const T* src, T* row, s64 from, s64 to) const {
    for (s64 i = from; i < to; ++i) {
      const T* p0 = src + firstNeighbour(neighbours_, index_[i]) * C;
      const T* p1 = src + secondNeighbour(neighbours_, index_[i]) * C;
      for (int c = 0; c < C; ++c) {
        const T value0 = simd::loadOne(p0 + c), value1 = simd::loadOne(p1 + c);
        row[i * C + c] = (value1 - value0) * fractions_[i] + value0;
      }
    }
  }

  // Columns inside, as far as whole vectors go. Returns the column behind them.
  s64 vectors(const T* src, T* row) const {
    s64 i = inside_;
    if constexpr (sizeof(T) == 4 && C == 1) {
      for (; i + Vec<T>::kLanes <= end_; i += Vec<T>::kLanes) {
        const Pair<f32> p = gatherNeighbours(src, index_ + i);
        Mix<f32>{Vec<f32>::load(fractions_ + i)}(p.lo, p.hi).store(row + i);
      }
    } else if constexpr (sizeof(T) == 4) {
      // Four elements: a pixel, or three channels and what lies behind them, which the next pixel overwrites. The
      // fourth element of the second neighbour must lie in the source row.
      const s64 safe = C == 4 ? end_ : std::min(lastBut(end_), count_ - 1);
      for (; i < safe; ++i) {
        const f32* p0 = src + s64{index_[i]} * C;
        mixFour(p0, p0 + C, fractions_[i], row + i * C);
      }
    }
    return i;
  }

  // Columns before `end` whose second neighbour is not the last pixel that is needed.
  s64 lastBut(s64 end) const {
    s64 i = end;
    while (i > inside_ && index_[i - 1] >= index_[end - 1]) --i;
    return i;
  }

  const s32* index_;
  const T* fractions_;
  s64 count_, origin_;
  Neighbours neighbours_;
  s64 inside_, end_;
};

// ---- Rows ----

// Half the size in both directions: all fractions are one half.
void halve(const ResizeCall& tile) {
  constexpr s64 L = Vec<f32>::kLanes;
  const s64 n = tile.columns.count;
  const Mix<f32> mean = {Vec<f32>::splat(0.5f)};
  const auto pairs = [&](const f32* p) {
    const Pair<f32> pixels = evenAndOdd(p);
    return mean(pixels.lo, pixels.hi);
  };
  for (s64 y = 0; y < tile.rows.count; ++y) {
    const f32* above = rowAt(static_cast<const f32*>(tile.src), 2 * y, tile.srcStep);
    const f32* below = core::at(above, tile.srcStep);
    f32* dst = rowAt(static_cast<f32*>(tile.dst), y, tile.dstStep);
    const auto squares = [&](s64 i) { return inMemoryOrder(mean(pairs(above + 2 * i), pairs(below + 2 * i))); };
    for (s64 i = 0; i + L <= n; i += L) squares(i).store(dst + i);
    if (n % L != 0) squares(n - L).store(dst + n - L);
  }
}

template <class T, int C>
void linear(const LinearCall& call) {
  const ResizeCall& tile = call.tile;
  if constexpr (std::is_same_v<T, f32> && C == 1) {
    if (tile.columns.halves && tile.rows.halves && tile.columns.count >= Vec<f32>::kLanes) return halve(tile);
  }
  const Columns<T, C> columns(call);
  const auto resample = [&](const T* src, T* row) { columns.resample(src, row); };
  KeptRows<T, decltype(resample)> kept(call, resample);
  for (s64 y = 0; y < tile.rows.count; ++y) {
    const s64 x = tile.rows.index[y];
    const s64 above = firstNeighbour(call.rowNeighbours, x), below = secondNeighbour(call.rowNeighbours, x);
    const T* a = kept.get(above, below);
    const T* b = kept.get(below, above);
    Mix<T> mix = {Vec<T>::splat(static_cast<const T*>(call.rowWeights)[y])};
    const core::Rows plane = {tile.columns.count * C, 1, 0, call.stream ? core::Walk::kStream : core::Walk::kVectors};
    forEachElement<AllChannels<T>>(plane, rowAt(static_cast<T*>(tile.dst), y, tile.dstStep), 0, mix,
                                   ImageSource<T>{a, 0}, ImageSource<T>{b, 0});
  }
}

template <class T>
constexpr LinearForms kForms = {linear<T, 1>, linear<T, 3>, linear<T, 4>};

}  // namespace

namespace RNX_WIDTH {

constinit const LinearFloatKernels linearFloatKernels = {kForms<f32>, kForms<f64>};

}  // namespace RNX_WIDTH
}  // namespace rnx::geom
