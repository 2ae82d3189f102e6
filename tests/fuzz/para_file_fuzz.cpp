#include <cstddef>
#include <cstdint>

#include "tests/fuzz/para_file_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tr7::FuzzParaFile({reinterpret_cast<const char*>(data), size});
  return 0;
}
