// A spec for one pair of image sizes and work buffers, each in memory of exactly the reported size: flush against a
// page that cannot be touched, or at any address between margins that must stay as they are.
#pragma once

#include <memory>

#include "support/call.h"

namespace rnx::test {

struct Extent2 {
  s64 width, height;
  RnxiSize size() const { return {static_cast<int>(width), static_cast<int>(height)}; }
  RnxiSizeL sizeLong() const { return {width, height}; }
};

class ResizePlan {
public:
  // For the apply function s.
  ResizePlan(const Signature& s, Extent2 src, Extent2 dst, Random& random, Placement placement = Placement::kFlushEnd,
             int misalignment = 0)
      : s_(s),
        src_(src),
        dst_(dst),
        srcLong_(src.sizeLong()),
        dstLong_(dst.sizeLong()),
        random_(random),
        placement_(placement),
        misalignment_(misalignment) {
    kind_ = s.family == "ResizeNearest" ? rnxNearest : rnxLinear;
    type_ = s.types == "8u" ? 1 : s.types == "16u" ? 5 : s.types == "16s" ? 7 : s.types == "32f" ? 13 : 19;
    s64 bytes = 0, initBytes = 0;
    int bytes32 = 0, initBytes32 = 0;
    Call size("rnxiResizeGetSize_" + suffix());
    setSizes(size).set("interpolation", kind_).set("antialiasing", 0);
    if (s.isLong) {
      size.set("dataType", type_).set("pSpecSize", &bytes).set("pInitBufSize", &initBytes);
    } else {
      size.set("pSpecSize", &bytes32).set("pInitBufSize", &initBytes32);
    }
    EXPECT_EQ(size(), rnxStatusNoError);
    memory_.place({s.isLong ? bytes : bytes32, 1, 0}, placement, random, misalignment);
    memory_.expectNow();
    EXPECT_EQ(init(), rnxStatusNoError);
    EXPECT_TRUE(onlyInside(memory_));
    memory_.expectNow();
  }

  RnxStatus init() {
    const std::string family = kind_ == rnxNearest ? "rnxiResizeNearestInit_" : "rnxiResizeLinearInit_";
    const bool own8u = s_.isLong && kind_ == rnxLinear && type_ == 1;
    Call call(family + (own8u ? "8u_L" : suffix()));
    setSizes(call).set("pSpec", spec());
    if (s_.isLong && !own8u) call.set("dataType", type_);
    return call();
  }

  RnxiResizeSpec* spec() const { return reinterpret_cast<RnxiResizeSpec*>(memory_.data()); }
  testing::AssertionResult specUnchanged() { return memory_.matches(); }
  std::string suffix() const { return s_.isLong ? "L" : std::string(s_.types); }

  // The tile at (x, y) of the given size. Returns the status of the apply function.
  RnxStatus run(const u8* src, s64 srcStep, u8* dst, s64 dstStep, s64 x, s64 y, Extent2 tile, u32 border) {
    const s64 pixel = s_.channels() * bytesOf(s_.source());
    const RnxiPointL from = sourceOffset(x, y);
    Image buffer({bufferBytes(tile), 1, 0}, placement_, random_, misalignment_);
    buffer.expectNow();
    const RnxiSizeL sizeLong = tile.sizeLong();
    Call call(s_);
    call.set("pSrc", src + from.y * srcStep + from.x * pixel).set("srcStep", srcStep);
    call.set("pDst", dst + y * dstStep + x * pixel).set("dstStep", dstStep);
    call.set("pSpec", spec()).set("pBuffer", buffer.data());
    if (s_.isLong) {
      call.set("dstOffset", RnxiPointL{x, y}).set("dstSize", &sizeLong);
    } else {
      call.set("dstOffset", RnxiPoint{static_cast<int>(x), static_cast<int>(y)}).set("dstSize", tile.size());
    }
    if (kind_ == rnxLinear) call.set("border", border);
    const RnxStatus status = call();
    EXPECT_TRUE(onlyInside(buffer));
    return status;
  }

  s64 bufferBytes(Extent2 tile) const {
    const RnxiSizeL sizeLong = tile.sizeLong();
    Call call("rnxiResizeGetBufferSize_" + suffix());
    s64 bytes = 0;
    int bytes32 = 0;
    call.set("pSpec", spec()).set("numChannels", s_.channels());
    if (s_.isLong) {
      call.set("dstSize", &sizeLong).set("pBufSize", &bytes);
    } else {
      call.set("dstSize", tile.size()).set("pBufSize", &bytes32);
    }
    EXPECT_GE(call(), rnxStatusNoError);
    return s_.isLong ? bytes : bytes32;
  }

  RnxiPointL sourceOffset(s64 x, s64 y) const {
    Call call("rnxiResizeGetSrcOffset_" + suffix());
    RnxiPointL offset = {};
    RnxiPoint offset32 = {};
    call.set("pSpec", spec());
    if (s_.isLong) {
      call.set("dstOffset", RnxiPointL{x, y}).set("pSrcOffset", &offset);
    } else {
      call.set("dstOffset", RnxiPoint{static_cast<int>(x), static_cast<int>(y)}).set("pSrcOffset", &offset32);
    }
    EXPECT_EQ(call(), rnxStatusNoError);
    return s_.isLong ? offset : RnxiPointL{offset32.x, offset32.y};
  }

private:
  // Nothing beside the block was written.
  static testing::AssertionResult onlyInside(Image& block) {
    std::memcpy(block.shadow(), block.data(), static_cast<size_t>(block.shape().rowBytes));
    return block.matches();
  }

  Call& setSizes(Call& call) const {
    if (s_.isLong) return call.set("srcSize", &srcLong_).set("dstSize", &dstLong_);
    return call.set("srcSize", src_.size()).set("dstSize", dst_.size());
  }

  const Signature& s_;
  Extent2 src_, dst_;
  RnxiSizeL srcLong_, dstLong_;
  Random& random_;
  Placement placement_;
  int misalignment_;
  int kind_, type_;
  Image memory_;
};

}  // namespace rnx::test
