#pragma once

#include <string_view>

#include "tests/fuzz/code_page_target.h"
#include "tests/fuzz/device_list_target.h"
#include "tests/fuzz/error_list_target.h"
#include "tests/fuzz/para_file_target.h"
#include "tests/fuzz/posi_file_target.h"
#include "tests/fuzz/seq_file_target.h"
#include "tests/fuzz/std_lists_target.h"
#include "tests/fuzz/wire_target.h"

namespace tr7 {

/// A reader that takes any bytes, and the folder of its corpus.
struct FuzzTarget {
  std::string_view name;
  void (*run)(std::string_view bytes);
};

inline constexpr FuzzTarget kFuzzTargets[] = {
    {"code_page", FuzzCodePage},   {"common_list", FuzzCommonList}, {"device_list", FuzzDeviceList},
    {"error_list", FuzzErrorList}, {"para_file", FuzzParaFile},     {"posi_file", FuzzPosiFile},
    {"seq_file", FuzzSeqFile},     {"std_list", FuzzStdList},       {"wire", FuzzWire}};

}  // namespace tr7
