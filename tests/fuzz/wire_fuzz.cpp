#include <cstddef>
#include <cstdint>

#include "core/reset_state.h"
#include "tests/fuzz/wire_target.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  tr7::ResetState();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tr7::FuzzWire({reinterpret_cast<const char*>(data), size});
  return 0;
}
