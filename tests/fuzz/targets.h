#pragma once

#include "tests/fuzz/file_targets.h"
#include "tests/fuzz/program_targets.h"
#include "tests/fuzz/wire_target.h"
#include "tests/fuzz/wire_words_target.h"

namespace tr7 {

/// A reader that takes any bytes, and the folder of its corpus.
struct FuzzTarget {
  std::string_view name;
  void (*run)(std::string_view bytes);
};

inline constexpr FuzzTarget kFuzzTargets[] = {
    {"code_page", FuzzCodePage},     {"common_list", FuzzCommonList}, {"data_files", FuzzDataFiles},
    {"device_list", FuzzDeviceList}, {"error_list", FuzzErrorList},   {"para_file", FuzzParaFile},
    {"posi_file", FuzzPosiFile},     {"prog_file", FuzzProgFile},     {"prog_steps", FuzzSteps},
    {"seq_file", FuzzSeqFile},       {"std_list", FuzzStdList},       {"wire", FuzzWire},
    {"wire_words", FuzzWireWords},   {"settings", FuzzSettings}};

}  // namespace tr7
