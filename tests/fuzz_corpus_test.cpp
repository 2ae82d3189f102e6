#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/fuzz/targets.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class FuzzCorpus : public StateTest {};

TEST_F(FuzzCorpus, EveryFileRuns) {
  for (const FuzzTarget& target : kFuzzTargets) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(
             TR7_SOURCE_DIR "/tests/fuzz/corpus/" + std::string(target.name))) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string bytes{std::istreambuf_iterator<char>(file), {}};
      SCOPED_TRACE(entry.path().string());
      target.run(bytes);
      ++files;
    }
    EXPECT_GT(files, 0) << target.name;
  }
}

}  // namespace
}  // namespace tr7
