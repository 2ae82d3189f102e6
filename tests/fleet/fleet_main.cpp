#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "tests/fleet/ship.h"

namespace {

int Usage() {
  std::fprintf(stderr, "usage: tr7_fleet [--seeds N] [--from S]\n");
  return 2;
}

}  // namespace

/// Runs N seeds from S on; each failing one prints its seed, which replays it.
int main(int argc, char** argv) {
  std::uint64_t seeds = 2000, from = 1;
  for (int i = 1; i < argc; ++i) {
    const std::string option = argv[i];
    if (i + 1 >= argc || (option != "--seeds" && option != "--from")) return Usage();
    char* end = nullptr;
    const std::uint64_t value = std::strtoull(argv[++i], &end, 10);
    if (*end != '\0') return Usage();
    (option == "--seeds" ? seeds : from) = value;
  }
  std::uint64_t failed = 0;
  for (std::uint64_t seed = from; seed < from + seeds; ++seed) {
    const auto failures = std::make_unique<tr7::Ship>(seed)->Sail();
    for (const std::string& failure : failures) std::printf("%s\n", failure.c_str());
    if (!failures.empty()) ++failed;
  }
  std::printf("fleet: %llu seeds from %llu, %llu failed\n", static_cast<unsigned long long>(seeds),
              static_cast<unsigned long long>(from), static_cast<unsigned long long>(failed));
  return failed == 0 ? 0 : 1;
}
