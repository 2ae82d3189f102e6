#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/fuzz/code_page_target.h"
#include "tests/fuzz/device_list_target.h"
#include "tests/fuzz/error_list_target.h"
#include "tests/fuzz/para_file_target.h"
#include "tests/fuzz/posi_file_target.h"
#include "tests/fuzz/seq_file_target.h"
#include "tests/fuzz/std_lists_target.h"
#include "tests/fuzz/wire_target.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class FuzzCorpus : public StateTest {};

TEST_F(FuzzCorpus, EveryFileRuns) {
  const struct {
    const char* folder;
    void (*run)(std::string_view);
  } targets[] = {{"code_page", FuzzCodePage},
                 {"common_list", FuzzCommonList},
                 {"device_list", FuzzDeviceList},
                 {"error_list", FuzzErrorList},
                 {"para_file", FuzzParaFile},
                 {"posi_file", FuzzPosiFile},
                 {"seq_file", FuzzSeqFile},
                 {"std_list", FuzzStdList},
                 {"wire", FuzzWire}};
  for (const auto& target : targets) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(
             std::string(TR7_SOURCE_DIR "/tests/fuzz/corpus/") + target.folder)) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string bytes{std::istreambuf_iterator<char>(file), {}};
      SCOPED_TRACE(entry.path().string());
      target.run(bytes);
      ++files;
    }
    EXPECT_GT(files, 0) << target.folder;
  }
}

}  // namespace
}  // namespace tr7
