#include <cstddef>
#include <cstdint>

#include "tests/fuzz/seq_file_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tr7::FuzzSeqFile({reinterpret_cast<const char*>(data), size});
  return 0;
}
