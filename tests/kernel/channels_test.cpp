// Set, Copy, Dup and SwapChannels, every export against one model: a loop over pixels that takes every channel of the
// destination from a channel of the source, from the constant, or leaves it.
#include "kernel/data_support.h"

namespace rnx::test {
namespace {

constexpr int kKeep = -1, kConstant = -2;

// One side of a call: the channels of a pixel, in one image or in planes.
struct Side {
  int channels = 0;
  bool planar = false;

  int images() const { return channels == 0 ? 0 : planar ? channels : 1; }
  s64 pixelBytes(int element) const { return s64{element} * (planar ? 1 : channels); }
};

struct Form {
  int element = 0;
  Side src, dst;
  bool channelPointer = false;
  std::vector<int> from;  // per destination channel
  bool masked = false;
  bool elementwise = false;  // Copy of whole images: element after element, otherwise pixels are read, then written

  s64 rowBytes(const Side& side, s64 width) const {
    const bool one = channelPointer && side.channels > 1;
    return side.pixelBytes(element) * (width - 1) + (one ? element : side.pixelBytes(element));
  }
};

Side sideOf(std::string_view layout) { return {layout.back() - '0', layout[0] == 'P'}; }

// What the name says; the routes of SwapChannels come with the call.
Form formOf(const Signature& s) {
  Form f;
  f.element = bytesOf(s.source());
  f.masked = s.form.starts_with('M');
  const std::string_view layout = s.layout;
  const auto split = layout.find_first_of("CPA", 2);
  if (layout == "C3C" || layout == "C4C" || split == std::string_view::npos || layout == "AC4") {
    f.src = f.dst = {layout == "AC4" ? 4 : layout[1] - '0', false};
    f.channelPointer = layout.size() == 3 && layout != "AC4";
    f.elementwise = s.family.starts_with("Copy") && !f.channelPointer && !f.masked;
  } else {
    const auto at = layout.starts_with("AC") ? layout.find('C', 2) : split;
    f.src = sideOf(layout.substr(0, at));
    f.dst = sideOf(layout.substr(at));
    f.channelPointer = s.family != "Dup" && (f.src.channels == 1) != (f.dst.channels == 1);
  }
  for (int c = 0; c < f.dst.channels; ++c) {
    const bool keeps = (f.channelPointer && c > 0) || (c == 3 && (layout == "AC4" || layout == "C3AC4"));
    f.from.push_back(keeps ? kKeep : s.family == "Dup" ? 0 : s.family == "Set" ? kConstant : c);
  }
  if (s.family == "Set") f.src = {};
  return f;
}

// The images of a call: where they lie, and the memory in which the model works.
struct Place {
  std::vector<u8*> data, shadow;
  s64 step = 0;
};

u8* element(const Form& f, const Side& side, const Place& place, s64 x, s64 y, int channel) {
  u8* base = place.shadow[side.planar ? static_cast<size_t>(channel) : 0];
  return base + y * place.step + x * side.pixelBytes(f.element) + (side.planar ? 0 : channel * f.element);
}

void model(const Form& f, s64 width, s64 height, const Place& src, const Place& dst, const Place& mask,
           const u8* values) {
  for (s64 y = 0; y < height; ++y) {
    for (s64 x = 0; x < width; ++x) {
      if (f.masked && mask.shadow[0][y * mask.step + x] == 0) continue;
      u8 pixel[4][4];
      const auto read = [&](size_t c) {
        if (f.from[c] == kConstant) std::memcpy(pixel[c], values + c * 4, static_cast<size_t>(f.element));
        if (f.from[c] < 0) return;
        std::memcpy(pixel[c], element(f, f.src, src, x, y, f.from[c]), static_cast<size_t>(f.element));
      };
      for (size_t c = 0; c < f.from.size() && !f.elementwise; ++c) read(c);
      for (size_t c = 0; c < f.from.size(); ++c) {
        if (f.elementwise) read(c);
        if (f.from[c] == kKeep) continue;
        std::memcpy(element(f, f.dst, dst, x, y, static_cast<int>(c)), pixel[c], static_cast<size_t>(f.element));
      }
    }
  }
}

class Channels : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& s = *GetParam();
  Random random{s.name};
  Form form = formOf(s);
  u8 values[16] = {};                // one constant per channel, 4 bytes apart
  const u8* valuesInside = nullptr;  // where they lie in an image of the call
  int order[4] = {};
  Steps steps = s.family == "SwapChannels" ? Steps::kApart : Steps::kAny;

  // Constants and orders of a call.
  void pickParameters() {
    fillBytes(random, values, sizeof(values));
    if (s.source() == Element::k32f) {
      for (int c = 0; c < 4; ++c)
        put<f32>(values, c, random.oneIn(2) ? -0.0f : static_cast<f32>(random.between(-9, 9)));
    }
    if (s.family != "SwapChannels") return;
    const bool constant = s.layout == "C3C4";
    for (size_t i = 0; i < form.from.size(); ++i) {
      order[i] = static_cast<int>(random.between(0, constant ? 5 : s.layout == "C4" || s.layout == "C4C3" ? 3 : 2));
      if (constant && order[i] == 5) order[i] = INT32_MAX;
      if (s.layout == "AC4" && i == 3) continue;
      form.from[i] = constant && order[i] == 3 ? kConstant : constant && order[i] > 3 ? kKeep : order[i];
    }
    for (int c = 1; c < 4; ++c) std::memcpy(values + 4 * c, values, 4);
  }

  // Arrays end at a page that cannot be touched: an entry more than there are would be read from there.
  template <class T>
  const T* atTheEnd(Image& memory, const T* values, size_t count) {
    const s64 bytes = static_cast<s64>(count * sizeof(T));
    memory.place({bytes, 1, bytes}, Placement::kFlushEnd, random);
    std::memcpy(memory.data(), values, static_cast<size_t>(bytes));
    return reinterpret_cast<const T*>(memory.data());
  }
  Image arrays[3];

  void setImage(Call& call, const Side& side, const Place& place, std::string_view pointer, std::string_view step) {
    if (side.images() == 0) return;
    if (side.planar) {
      call.set(pointer, atTheEnd(arrays[pointer == "pDst" ? 1 : 0], place.data.data(), place.data.size()));
    } else {
      call.set(pointer, place.data[0]);
    }
    call.set(step, place.step);
  }

  void run(s64 width, s64 height, const Place& src, const Place& dst, const Place& mask) {
    Call call(s);
    const bool inPlace = s.form == "IR";
    setImage(call, form.src, src, inPlace ? "pSrcDst" : "pSrc", inPlace ? "srcDstStep" : "srcStep");
    if (!inPlace) setImage(call, form.dst, dst, "pDst", "dstStep");
    call.roi(width, height);
    if (form.masked) call.set("pMask", mask.data[0]).set("maskStep", mask.step);
    if (s.family == "CopyManaged") call.set("flags", random.between(0, 7));
    const size_t used = form.from.size() - (s.layout == "AC4" ? 1 : 0);
    if (s.family == "SwapChannels") call.set("dstOrder", atTheEnd(arrays[0], order, used));
    u8 packed[16];
    for (int c = 0; c < 4; ++c)
      std::memcpy(packed + c * form.element, values + 4 * c, static_cast<size_t>(form.element));
    if (s.family == "Set" || s.layout == "C3C4") {
      const size_t index = call.indexOf(s.family == "Set" ? "value" : "val");
      if (s.parameters()[index].isPointer()) {
        const size_t bytes = used * static_cast<size_t>(form.element);
        call.setAt(index, valuesInside != nullptr ? valuesInside : atTheEnd(arrays[2], packed, bytes));
      } else {
        withType(s.source(), [&](auto zero) {
          if constexpr (sizeof(zero) <= 4) call.setAt(index, get<decltype(zero)>(values));
        });
      }
    }
    model(form, width, height, src, inPlace ? src : dst, mask, values);
    ASSERT_EQ(call(), rnxStatusNoError);
  }

  // Images of their own, all as far behind a multiple of 64 where that is given.
  void apart(s64 width, s64 height, int misalignment = -1) {
    pickParameters();
    Image images[9];
    size_t used = 0;
    const auto lay = [&](const Side& side, Place& place) {
      const s64 rowBytes = form.rowBytes(side, width);
      place.step = pickStep(random, rowBytes, steps);
      for (int i = 0; i < side.images(); ++i, ++used) {
        if (misalignment < 0) {
          placeRandomly(images[used], random, rowBytes, height, place.step);
        } else {
          images[used].place({rowBytes, height, place.step}, Placement::kInside, random, misalignment);
          images[used].expectNow();
        }
        place.data.push_back(images[used].data());
        place.shadow.push_back(images[used].shadow());
      }
    };
    Place src, dst, mask;
    lay(form.src, src);
    lay(form.dst, dst);
    if (form.masked) {
      lay({1, true}, mask);
      sparse(images[used - 1], width, height);
    }
    ASSERT_NO_FATAL_FAILURE(run(width, height, src, dst, mask));
    for (size_t i = 0; i < used; ++i) ASSERT_TRUE(images[i].matches()) << width << "x" << height << ", image " << i;
  }

  // Half of the mask bytes 0, the others anything.
  void sparse(Image& mask, s64 width, s64 height) {
    for (s64 y = 0; y < height; ++y) {
      for (s64 x = 0; x < width; ++x) {
        if (random.oneIn(2)) mask.row(y)[x] = 0;
      }
    }
    mask.expectNow();
  }

  // All images in one piece of memory, overlapping in any way.
  void overlapping(s64 width, s64 height) {
    pickParameters();
    Arena arena(random, 40000);
    const u8* other = nullptr;
    const s64 commonStep = random.between(0, 1) == 0 ? 0 : form.rowBytes(form.dst, width) + random.between(0, 40);
    const auto lay = [&](const Side& side, s64 rowBytes, Place& place) {
      place.step = commonStep != 0 ? commonStep : pickStep(random, rowBytes, steps);
      for (int i = 0; i < side.images(); ++i) {
        u8* at = arena.place(rowBytes, height, place.step, other);
        if (other == nullptr || random.oneIn(3)) other = at;
        place.data.push_back(at);
        place.shadow.push_back(arena.memory().shadow(at));
      }
    };
    Place src, dst, mask;
    lay(form.src, form.rowBytes(form.src, width), src);
    lay(form.dst, form.rowBytes(form.dst, width), dst);
    if (form.masked) lay({1, true}, width, mask);
    valuesInside = s.family == "Set" && random.oneIn(2) ? arena.place(4 * form.element, 1, 0, other) : nullptr;
    for (int c = 0; c < 4 && valuesInside != nullptr && s.layout != "C1"; ++c) {
      std::memcpy(values + 4 * c, valuesInside + c * form.element, static_cast<size_t>(form.element));
    }
    // SwapChannels C3R in place has one step.
    if (s.family == "SwapChannels" && s.layout == "C3" && src.data[0] == dst.data[0]) src.step = dst.step;
    ASSERT_NO_FATAL_FAILURE(run(width, height, src, dst, mask));
    ASSERT_TRUE(arena.memory().matches()) << width << "x" << height;
  }
};

TEST_P(Channels, MatchTheModel) {
  for (const int vector : vectorWidths()) {
    const ScopedWidth width(vector);
    for (const s64 w : hardWidths()) ASSERT_NO_FATAL_FAILURE(apart(w, random.between(1, 4)));
    ASSERT_NO_FATAL_FAILURE(apart(random.between(1000, 1100), 5));
  }
}

TEST_P(Channels, MayOverlap) {
  for (const int vector : vectorWidths()) {
    const ScopedWidth width(vector);
    for (int i = 0; i < 100; ++i) ASSERT_NO_FATAL_FAILURE(overlapping(random.between(1, 150), random.between(1, 4)));
  }
}

TEST_P(Channels, AreTheSameAroundTheCaches) {
  const ScopedCache tiny(kTinyCache);
  for (const int vector : vectorWidths()) {
    const ScopedWidth width(vector);
    const s64 bytes = random.between(9000, 10000) * 64;
    // Planes can be written around the caches where they are all as far from a place for that.
    for (const int misalignment : {-1, 0, 4, 37}) {
      ASSERT_NO_FATAL_FAILURE(apart(bytes / 64 / form.rowBytes(form.dst, 1), 64, misalignment));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Data, Channels, testing::ValuesIn(select({.subsystem = "data", .family = "Set Copy CopyManaged Dup SwapChannels"})),
    byName);

// ---- The large _L copies, and the answers that no table of checks holds ----

TEST(CopyLong, TakesStepsAndRowsBeyond32Bits) {
  constexpr s64 kStep = 5'000'000'000;
  Reservation memory(static_cast<size_t>(3 * kStep));
  u8* src = memory.open(0, 4096);
  u8* second = memory.open(static_cast<size_t>(kStep), 4096);
  Random random("CopyLong");
  fillBytes(random, src, 300);
  fillBytes(random, second, 300);
  u8 dst[2][300];
  const RnxiSizeL roi = {100, 2};
  ASSERT_EQ(rnxiCopy_8u_C3R_L(src, kStep, dst[0], 300, &roi), rnxStatusNoError);
  EXPECT_EQ(std::memcmp(dst[0], src, 300), 0);
  EXPECT_EQ(std::memcmp(dst[1], second, 300), 0);

  const RnxiSizeL none = {100, 0};
  EXPECT_EQ(rnxiCopy_8u_C3R_L(src, kStep, dst[0], 300, &none), rnxStatusNoError);
  EXPECT_EQ(rnxiCopy_8u_C3R_L(src, 300, dst[0], 300, &none), rnxStatusBadSize);
  const RnxiSizeL empty = {0, 1};
  EXPECT_EQ(rnxiCopy_8u_C3R_L(src, kStep, dst[0], 300, &empty), rnxStatusBadSize);
}

struct SwapCase {
  const char* name;
  int order[4];
  RnxStatus status;
};

TEST(SwapChannels, RefusesEntriesByForm) {
  constexpr SwapCase kCases[] = {
      {"rnxiSwapChannels_8u_C3R", {0, 1, 2}, 0},         {"rnxiSwapChannels_8u_C3R", {0, 1, 3}, -60},
      {"rnxiSwapChannels_8u_AC4R", {0, 1, 3}, -60},      {"rnxiSwapChannels_8u_C3IR", {3, 1, 2}, -60},
      {"rnxiSwapChannels_8u_C4R", {0, 1, 2, 4}, -60},    {"rnxiSwapChannels_8u_C4IR", {0, -1, 2, 3}, -60},
      {"rnxiSwapChannels_8u_C4C3R", {0, 3, 3, 77}, 0},   {"rnxiSwapChannels_8u_C4C3R", {0, 3, 4}, -60},
      {"rnxiSwapChannels_8u_C3C4R", {0, 1, 2, -1}, -60}, {"rnxiSwapChannels_8u_C3C4R", {9, 3, 4, 0x7fffffff}, 0},
      {"rnxiSwapChannels_8u_C3R", {0, 1, 2, -1}, 0},     {"rnxiSwapChannels_8u_AC4R", {0, 1, 2, -1}, 0},
  };
  for (const SwapCase& c : kCases) {
    u8 a[16] = {}, b[16] = {};
    Call call(c.name);
    const bool inPlace = call.signature().form == "IR";
    call.set(inPlace ? "pSrcDst" : "pSrc", a).set(inPlace ? "srcDstStep" : "srcStep", 16);
    if (!inPlace) call.set("pDst", b).set("dstStep", 16);
    EXPECT_EQ(call.roi(1, 1).set("dstOrder", c.order)(), c.status) << c.name;
  }
}

}  // namespace
}  // namespace rnx::test
