#pragma once

#include <string>
#include <string_view>

#include "link/error_list.h"
#include "state/app_state.h"
#include "state/text.h"
#include "state/text_file.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/fuzz_doors.h"

namespace tr7 {

/// Any bytes as the list file, and every unit and code against what was read of it.
inline void FuzzErrorList(std::string_view bytes) {
  FuzzDoors virt;
  virt.files.Put(ProgramFile(Text(120)), std::string(bytes));
  const bool good = ReadErrorList() == 0;
  FuzzCheck(good != bool(ErrorList.ErrListMissing), "the result agrees with the state");
  FuzzCheck(ErrorList.ErrListMain.size() <= kErrListPairs, "the main list keeps its bound");
  FuzzCheck(ErrorList.ErrListAxis.size() <= kErrListPairs, "the axis list keeps its bound");
  if (!good) FuzzCheck(ErrorList.ErrListMain.empty(), "a damaged file is refused whole");
  for (const char unit : {'0', '1', '4', '5'}) {
    for (char code = ' '; good && code <= '~'; ++code) {
      DecodeCtError({'0', '%', '%', unit, '0', code, '\r', '\n'});
      FuzzCheck(AppState.CtErrorNo.size() <= 1, "a code is one character");
    }
  }
  DecodeCtError(std::string(bytes.substr(0, 8)));
  FuzzCheck(virt.forms.boxes.empty() == good, "a box comes up only without a list");

  ErrorList = ErrorListRecord{};
}

}  // namespace tr7
