#include <cstddef>
#include <cstdint>

#include "tests/fuzz/posi_file_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tr7::FuzzPosiFile({reinterpret_cast<const char*>(data), size});
  return 0;
}
