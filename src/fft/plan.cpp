// Planning of the transforms: radices, twiddle factors, chirps. The same walk measures a spec and writes it.
#include "fft/plan.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "core/spec.h"

namespace rnx::fft {
namespace {

constexpr s64 alignUp(s64 bytes) { return core::roundUp(bytes, core::kSpecAlignment); }

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

// ---- Choice of radices ----

struct Radix {
  s32 points;
  f32 cost;  // of one pass, per element; measured
};

constexpr Radix kRadices[] = {{61, 9.5f}, {59, 9.2f}, {53, 8.2f}, {47, 7.3f}, {43, 6.7f}, {41, 6.4f}, {37, 5.8f},
                              {31, 4.9f}, {29, 4.6f}, {23, 3.9f}, {19, 3.6f}, {17, 3.5f}, {13, 2.9f}, {11, 2.6f},
                              {8, 1.25f}, {7, 1.9f},  {6, 1.38f}, {5, 1.3f},  {4, 0.84f}, {3, 0.87f}, {2, 0.57f}};

struct Factors {
  f32 cost = INFINITY;
  int count = 0;
  s32 radix[kMaxPasses];
};

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

Factors factorsOf(s64 n) {
  Factors path, best;
  findFactors(n, 0, 0, path, best);
  return best;
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

// How a length is transformed: the passes, or those of the size that stands for it.
struct Choice {
  Method method;
  s64 size;
  Factors factors;
  s64 parts = 1;
};

constexpr s64 kScarceParts = 8;

s64 smallestFactor(s64 n) {
  for (s64 d = 2; d * d <= n; ++d) {
    if (n % d == 0) return d;
  }
  return n;
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
  const f64 scale = 1.0 / static_cast<f64>(whole);  // of the way back
  for (s64 part = 0; part < plan.parts; ++part) {
    for (s64 i = 0; i < size; ++i) {
      x[i] = {0, 0};
      for (s64 j = i; j < whole; j += size) {
        const s64 distance = std::min(j, whole - j);
        if (distance >= n) continue;
        const fc64 c = {chirp[distance].re, -chirp[distance].im};
        const fc64 term = part == 0 ? c : c * rootOf(part * j, whole);
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

// ---- Shapes ----

// Room for the widest vectors, whichever will run.
constexpr s64 kMostLanes = 8;
constexpr s64 kComplexBytes = sizeof(fc32);

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

// What the caller provides: nothing where the stack has room.
s64 workBytes(const Spec& spec) {
  const s64 bytes = spec.stripBytes + spec.tileBytes;
  return bytes <= kStackWork ? 0 : bytes;
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

  if (spec.isLine()) {
    shapeLine(spec);
  } else {
    shapeImage(spec);
  }
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
