#include "fft/lengths.h"

#include <iterator>

namespace rnx::fft {
namespace {

struct Radix {
  s32 points;
  f32 cost;  // of one pass, per element; measured
};

constexpr Radix kRadices[] = {{61, 9.5f}, {59, 9.2f}, {53, 8.2f}, {47, 7.3f}, {43, 6.7f}, {41, 6.4f}, {37, 5.8f},
                              {31, 4.9f}, {29, 4.6f}, {23, 3.9f}, {19, 3.6f}, {17, 3.5f}, {13, 2.9f}, {11, 2.6f},
                              {8, 1.25f}, {7, 1.9f},  {6, 1.38f}, {5, 1.3f},  {4, 0.84f}, {3, 0.87f}, {2, 0.57f}};

// The cheapest sequence of non-increasing radices; an infinite cost where a prime factor is not among them.
void findFactors(s64 rest, size_t first, f32 cost, Factors& path, Factors& best) {
  if (rest == 1) {
    if (cost < best.cost) {
      best = path;
      best.cost = cost;
    }
    return;
  }
  for (size_t i = first; i < std::size(kRadices); ++i) {
    const Radix r = kRadices[i];
    if (rest % r.points != 0 || cost + r.cost >= best.cost) continue;
    path.radix[path.count++] = r.points;
    findFactors(rest / r.points, i, cost + r.cost, path, best);
    --path.count;
  }
}

// The size of a convolution of at least `least` points that costs least, among 2^k times a few odd numbers.
s64 convolutionSize(s64 least) {
  s64 bestSize = 0;
  f64 bestCost = INFINITY;
  for (const s64 odd : {1, 3, 5, 9, 15, 25, 27, 45, 75, 81, 125}) {
    s64 size = odd;
    while (size < least) size *= 2;
    const f64 cost = static_cast<f64>(size) * static_cast<f64>(factorsOf(size).cost + 1);
    if (cost < bestCost) {
      bestCost = cost;
      bestSize = size;
    }
  }
  return bestSize;
}

s64 smallestFactor(s64 n) {
  for (s64 d = 2; d * d <= n; ++d) {
    if (n % d == 0) return d;
  }
  return n;
}

constexpr s64 kScarceParts = 8;

}  // namespace

Factors factorsOf(s64 n) {
  Factors path, best;
  findFactors(n, 0, 0, path, best);
  return best;
}

Choice choose(const Spec& spec, s64 length) {
  const Factors own = factorsOf(length);
  const bool isScarce = spec.isScarce != 0;
  if (own.cost < INFINITY) {
    const s64 parts = isScarce && spec.isLone() ? smallestFactor(length) : 1;
    return {Method::kPasses, length / parts, parts == 1 ? own : factorsOf(length / parts), parts};
  }
  const s64 parts = isScarce ? kScarceParts : 1;
  if (!isScarce && smallestFactor(length) == length) {
    const Factors rotation = factorsOf(length - 1);
    if (rotation.cost < INFINITY) return {Method::kRotation, length - 1, rotation};
  }
  const s64 size = convolutionSize((2 * length - 1 + parts - 1) / parts);
  return {Method::kChirp, size, factorsOf(size), parts};
}

}  // namespace rnx::fft
