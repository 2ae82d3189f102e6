// One program for every target: TR7_FUZZ_TARGET names the one to run.

#include <cstdint>

#include "core/reset_state.h"
#include "tests/fuzz/targets.h"

namespace {

void (*run)(std::string_view) = nullptr;

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  const char* name = std::getenv("TR7_FUZZ_TARGET");
  for (const tr7::FuzzTarget& target : tr7::kFuzzTargets) {
    if (name && target.name == name) run = target.run;
  }
  if (!run) {
    std::fprintf(stderr, "TR7_FUZZ_TARGET names no target\n");
    std::exit(2);
  }
  tr7::ResetState();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  run({reinterpret_cast<const char*>(data), size});
  return 0;
}
