// What the library says about itself.
#pragma once

#include "core/types.h"

namespace rnx::core {

inline const RnxLibraryVersion* libraryVersion() {
  static constexpr RnxLibraryVersion kVersion = {
      .major = 2021,
      .minor = 11,
      .majorBuild = 0,
      .build = static_cast<int32_t>(0xcd107b02),
      .targetCpu = {'t', '2', 0, 0},
      .Name = "rnxIP Tova (t2)",
      .Version = "2021.11.0 (r0xcd107b02)",
      .BuildDate = "Jan 30 2024",
  };
  return &kVersion;
}

}  // namespace rnx::core
