// Planning of the transforms: twiddle factors, chirps, rotations. The same walk measures a spec and writes it.
#include "fft/plan.h"

#include <algorithm>
#include <cmath>

#include "fft/lengths.h"
#include "fft/shape.h"

namespace rnx::fft {
namespace {

// ---- Roots of unity ----

// exp(-2 pi i k / n), with the angle reduced to an eighth of the circle in integers: good to the last bit or so of
// double precision, so that storing it as single rounds correctly but for rare ties.
fc64 rootOf(s64 k, s64 n) {
  k %= n;
  const s64 octant = 8 * k / n, rest = 8 * k - octant * n;
  const s64 reduced = octant % 2 == 1 ? n - rest : rest;
  const f64 angle = 0.78539816339744830962 * static_cast<f64>(reduced) / static_cast<f64>(n);
  const f64 c = std::cos(angle), s = std::sin(angle);
  const bool swapped = (octant + 1) % 4 >= 2;
  const f64 a = swapped ? s : c, b = swapped ? c : s;
  return {octant >= 2 && octant < 6 ? -a : a, octant >= 4 ? b : -b};
}

fc64 operator*(fc64 a, fc64 b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }

s64 powerModulo(s64 base, s64 exponent, s64 modulus) {
  s64 power = 1;
  for (; exponent > 0; exponent /= 2) {
    if (exponent % 2 == 1) power = power * base % modulus;
    base = base * base % modulus;
  }
  return power;
}

// The smallest number whose powers reach 1 after prime - 1 steps and not before.
s64 primitiveRoot(s64 prime) {
  for (s64 g = 2;; ++g) {
    s64 rest = prime - 1;
    bool isRoot = true;
    for (s64 q = 2; rest > 1 && isRoot; ++q) {
      if (rest % q != 0) continue;
      isRoot = powerModulo(g, (prime - 1) / q, prime) != 1;
      while (rest % q == 0) rest /= q;
    }
    if (isRoot) return g;
  }
}

// ---- The block ----

// Tables are reserved one after the other behind the record; without a base they are only counted.
class Block {
public:
  explicit Block(char* base) : base_(base), used_(alignUp(sizeof(Spec))) {}

  bool writes() const { return base_ != nullptr; }
  s64 used() const { return used_; }
  u32 reserve(s64 bytes) {
    const s64 offset = used_;
    used_ += alignUp(bytes);
    return static_cast<u32>(offset);
  }
  template <class T>
  T* table(u32 offset) const {
    return reinterpret_cast<T*>(base_ + offset);
  }

private:
  char* base_;
  s64 used_;
};

void store(fc32* p, fc64 r) { *p = {static_cast<f32>(r.re), static_cast<f32>(r.im)}; }
void store(fc64* p, fc64 r) { *p = r; }

template <class Factor>
void writeTwiddles(const Plan& plan, Block& block) {
  s64 blockSize = plan.size;
  for (int pass = 0; pass < plan.passCount; ++pass) {
    const s64 radix = plan.radix[pass], butterflies = blockSize / radix;
    Factor* out = block.table<Factor>(plan.twiddles[pass]);
    if (radix > kLargestButterfly) {
      for (s64 k = 0; k < radix; ++k) store(out++, rootOf(k, radix));
    }
    if (butterflies > 1) {
      for (s64 j = 0; j < butterflies; ++j) {
        for (s64 q = 1; q < radix; ++q) store(out++, rootOf(j * q, blockSize));
      }
    }
    blockSize = butterflies;
  }
}

// Output k of a block of m stands in part k mod radix, at the place of output k / radix of that part.
s64 positionOf(const Plan& plan, s64 k) {
  s64 position = 0, part = plan.size;
  for (int pass = 0; pass < plan.passCount; ++pass) {
    part /= plan.radix[pass];
    position += k % plan.radix[pass] * part;
    k /= plan.radix[pass];
  }
  return position;
}

// The passes of the plan, in double precision and by the definition; roots[k] = exp(-2 pi i k / size).
void transformExactly(const Plan& plan, const fc64* roots, fc64* x) {
  s64 blockSize = plan.size;
  for (int pass = 0; pass < plan.passCount; ++pass) {
    const s64 radix = plan.radix[pass], part = blockSize / radix, turns = plan.size / blockSize;
    for (s64 i = 0; i < plan.size; ++i) {
      if (i % blockSize >= part) continue;  // i is the first point of a butterfly
      fc64 in[kLargestRadix];
      for (s64 r = 0; r < radix; ++r) in[r] = x[i + r * part];
      for (s64 q = 0; q < radix; ++q) {
        fc64 sum = {0, 0};
        for (s64 r = 0; r < radix; ++r) {
          const fc64 term = in[r] * roots[r * q % radix * (plan.size / radix)];
          sum = {sum.re + term.re, sum.im + term.im};
        }
        x[i + q * part] = sum * roots[i % blockSize * q * turns];
      }
    }
    blockSize = part;
  }
}

void writeChirp(const Plan& plan, Block& block, void* init) {
  const s64 n = plan.length, size = plan.size, whole = size * plan.parts;
  fc64* chirp = block.table<fc64>(plan.chirp);
  s32* positions = block.table<s32>(plan.positions);
  for (s64 j = 0; j < n; ++j) {
    chirp[j] = rootOf(j * j % (2 * n), 2 * n);
    if (plan.parts == 1) positions[j] = static_cast<s32>(j == 0 ? 0 : size - j);
  }
  fc64* x = static_cast<fc64*>(init);
  fc64* roots = x + size;
  for (s64 k = 0; k < size; ++k) roots[k] = rootOf(k, size);
  const fc64* turns = block.table<fc64>(plan.turns);
  const f64 scale = 1.0 / static_cast<f64>(whole);  // of the way back
  for (s64 part = 0; part < plan.parts; ++part) {
    for (s64 i = 0; i < size; ++i) {
      x[i] = {0, 0};
      for (s64 j = i; j < whole; j += size) {
        const s64 distance = std::min(j, whole - j);
        if (distance >= n) continue;
        const fc64 c = {chirp[distance].re, -chirp[distance].im};
        const fc64 term = part == 0 ? c : c * turns[part * j % whole];
        x[i] = {x[i].re + term.re, x[i].im + term.im};
      }
    }
    transformExactly(plan, roots, x);
    fc64* filter = block.table<fc64>(plan.filter) + part * size;
    for (s64 k = 0; k < size; ++k) filter[k] = {x[k].re * scale, x[k].im * scale};
  }
}

// One place of each cycle of more than one, then 0: place r + 1 receives element powers[r]. What was visited is marked
// by a negative sign.
void writeCycles(s32* powers, s64 size, s32* cycles) {
  for (s64 first = 1; first <= size; ++first) {
    const s32 source = powers[first - 1];
    if (source > 0 && source != first) *cycles++ = static_cast<s32>(first);
    for (s64 place = first; powers[place - 1] > 0;) {
      const s32 next = powers[place - 1];
      powers[place - 1] = -next;
      place = next;
    }
  }
  *cycles = 0;
  for (s64 r = 0; r < size; ++r) powers[r] = -powers[r];
}

// y_m = w^(g^m), transformed, read backwards and divided by the size: the transform of x, times this and transformed
// once more, is the correlation (see spec.h).
void writeRotation(const Plan& plan, Block& block, void* init) {
  const s64 prime = plan.length, size = plan.size, g = primitiveRoot(prime);
  fc64* y = static_cast<fc64*>(init);
  fc64* roots = y + size;
  s32* powers = block.table<s32>(plan.powers);
  s32* positions = block.table<s32>(plan.positions);
  positions[0] = 0;
  for (s64 m = 0, power = 1; m < size; ++m, power = power * g % prime) {
    powers[m] = static_cast<s32>(power);
    positions[power] = static_cast<s32>(1 + m);
    y[m] = rootOf(power, prime);
    roots[m] = rootOf(m, size);
  }
  writeCycles(powers, size, block.table<s32>(plan.cycles));
  transformExactly(plan, roots, y);
  fc64* filter = block.table<fc64>(plan.filter);
  const f64 scale = 1.0 / static_cast<f64>(size);
  for (s64 k = 0; k < size; ++k) {
    const fc64 backwards = y[positionOf(plan, (size - k) % size)];
    filter[positionOf(plan, k)] = {backwards.re * scale, backwards.im * scale};
  }
}

s64 initBytes(const Plan& plan) { return plan.method == Method::kPasses ? 0 : 2 * s64{sizeof(fc64)} * plan.size; }

void writePlan(const Plan& plan, Block& block, void* init) {
  const bool inParts = plan.parts > 1;
  s32* positions = block.table<s32>(plan.positions);
  if (inParts) {
    const s64 whole = s64{plan.size} * plan.parts;
    for (s64 k = 0; k < whole; ++k) block.table<fc64>(plan.turns)[k] = rootOf(k, whole);
    for (s64 k = 0; k < plan.length; ++k) positions[k] = static_cast<s32>(k);
  }
  if (plan.method == Method::kPasses) {
    writeTwiddles<fc32>(plan, block);
    s32* order = inParts ? block.table<s32>(plan.order) : positions;
    for (s64 k = 0; k < plan.size; ++k) order[k] = static_cast<s32>(positionOf(plan, k));
  } else {
    writeTwiddles<fc64>(plan, block);
    (plan.method == Method::kRotation ? writeRotation : writeChirp)(plan, block, init);
  }
  positions[plan.length] = positions[0];
}

Plan makePlan(const Spec& spec, s64 length, Block& block, void* init) {
  const Choice choice = choose(spec, length);
  Plan plan = {};
  plan.length = static_cast<s32>(length);
  plan.method = choice.method;
  plan.size = static_cast<s32>(choice.size);
  plan.parts = static_cast<s32>(choice.parts);
  plan.passCount = choice.factors.count;
  const s64 factorBytes = choice.method == Method::kPasses ? sizeof(fc32) : sizeof(fc64);
  s64 blockSize = choice.size;
  for (int pass = 0; pass < choice.factors.count; ++pass) {
    const s64 radix = choice.factors.radix[pass];
    plan.radix[pass] = choice.factors.radix[pass];
    blockSize /= radix;
    const s64 roots = radix > kLargestButterfly ? radix : 0;
    plan.twiddles[pass] = block.reserve((roots + (blockSize > 1 ? blockSize * (radix - 1) : 0)) * factorBytes);
  }
  plan.positions = block.reserve((length + 1) * s64{sizeof(s32)});
  if (plan.method != Method::kPasses) plan.filter = block.reserve(choice.size * choice.parts * factorBytes);
  if (plan.method == Method::kChirp) plan.chirp = block.reserve(length * factorBytes);
  if (choice.parts > 1) {
    plan.turns = block.reserve(choice.size * choice.parts * s64{sizeof(fc64)});
    if (choice.method == Method::kPasses) plan.order = block.reserve(choice.size * s64{sizeof(s32)});
  }
  if (plan.method == Method::kRotation) {
    plan.powers = block.reserve(choice.size * s64{sizeof(s32)});
    plan.cycles = block.reserve((choice.size / 2 + 1) * s64{sizeof(s32)});
  }
  if (block.writes()) writePlan(plan, block, init);
  return plan;
}

// ---- Scaling ----

enum Flag { kDivideForward = 1, kDivideInverse = 2, kDivideBySqrt = 4, kDivideNone = 8 };

f32 scaleOf(s32 flag, s32 dividing, s32 n) {
  if (flag == kDivideBySqrt) return static_cast<f32>(1.0 / std::sqrt(static_cast<f64>(n)));
  return flag == dividing ? 1.0f / static_cast<f32>(n) : 1.0f;
}

// ---- The whole spec ----

void writeLineTwiddles(const Spec& spec, Block& block) {
  const s64 length = s64{spec.gridWidth} * spec.gridHeight;
  fc32* out = block.table<fc32>(spec.lineTwiddles);
  for (s64 k = 0; k < spec.gridWidth; ++k) {
    for (s64 n = 0; n < spec.gridHeight; ++n) store(out++, rootOf(k * n, length));
  }
}

s64 fill(const Request& request, Spec& spec, Block& block, void* init) {
  const auto [width, height] = request.size;
  spec = {};
  spec.tag = request.tag;
  spec.orderX = request.orderX;
  spec.orderY = request.orderY;
  spec.hint = request.hint;
  spec.width = width;
  spec.height = height;
  spec.isReal = request.isReal ? 1 : 0;
  spec.forwardX = scaleOf(request.flag, kDivideForward, width);
  spec.forwardY = scaleOf(request.flag, kDivideForward, height);
  spec.inverseX = scaleOf(request.flag, kDivideInverse, width);
  spec.inverseY = scaleOf(request.flag, kDivideInverse, height);

  shapeSpec(spec);
  spec.workSize = static_cast<s32>(std::min<s64>(workBytes(spec), INT32_MAX));

  const s32 rowLength = spec.isLine() ? spec.gridWidth : width, columnLength = spec.gridHeight;
  spec.plans[0] = makePlan(spec, rowLength, block, init);
  s64 initSize = initBytes(spec.plans[0]);
  if (columnLength != rowLength) {
    spec.columnPlan = 1;
    spec.plans[1] = makePlan(spec, columnLength, block, init);
    initSize = std::max(initSize, initBytes(spec.plans[1]));
  }
  if (spec.shape == Shape::kLine) {
    spec.lineTwiddles = block.reserve(s64{spec.gridWidth} * spec.gridHeight * kComplexBytes);
    if (block.writes()) writeLineTwiddles(spec, block);
  }
  if (spec.isHalved()) {
    const s64 length = std::max(width, height), count = length / 4 + 1;
    spec.halfTwiddles = block.reserve(count * kComplexBytes);
    fc32* out = block.writes() ? block.table<fc32>(spec.halfTwiddles) : nullptr;
    for (s64 k = 0; out != nullptr && k < count; ++k) store(out + k, rootOf(k, length));
  }
  return initSize;
}

}  // namespace

Sizes measureSpec(const Request& request) {
  Block block(nullptr);
  Spec spec;
  const s64 init = fill(request, spec, block, nullptr);
  return {block.used(), init, workBytes(spec)};
}

void writeSpec(const Request& request, char* memory, void* init) {
  Block block(memory);
  fill(request, *reinterpret_cast<Spec*>(memory), block, init);
}

}  // namespace rnx::fft
