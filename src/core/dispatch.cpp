// The dispatch table: one slot per export, in the byte order of the names. A slot has the type of its prototype in the
// public header, so an operation of another signature does not compile. The table is constant data that the loader
// relocates; nothing runs when the library is loaded.
#include "dispatch_includes.inc"
#include "rnxip.h"

namespace rnx {

struct DispatchTable {
#include "dispatch_fields.inc"
};

}  // namespace rnx

// Named by the entry stubs, invisible outside the library.
extern "C" {
extern const rnx::DispatchTable rnxDispatchTable;
}

using namespace rnx;

constinit const DispatchTable rnxDispatchTable = {
#include "dispatch_values.inc"
};
