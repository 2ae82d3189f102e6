#include <cstddef>
#include <cstdint>

#include "tests/fuzz/device_list_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tr7::FuzzDeviceList({reinterpret_cast<const char*>(data), size});
  return 0;
}
