#pragma once

#include <string>
#include <string_view>

#include "para/para_file.h"
#include "para/param_set.h"
#include "platform/doors.h"
#include "platform/virtual/memory_files.h"
#include "platform/virtual/virtual_form_host.h"
#include "platform/virtual/virtual_settings.h"
#include "tests/fuzz/check.h"

namespace tr7 {

/// Parameters that were taken from a file: saved and read again they are the same.
inline void CheckParaRoundTrip(const std::string& path) {
  const ParamSetRecord set = ParamSet;
  if (WriteParaFile(path) != 0) {
    FuzzCheck(bool(ParaFlags.ParaFileWriteFailed), "a failed save is flagged");
    FuzzCheck(!ParaFlags.FileFaultText.empty(), "a refused save says why");
    return;
  }
  FuzzCheck(ReadParaTable(path) == 0, "a saved file is good");
  FuzzCheck(TakeParamTable() == 0 && ParamSet == set, "a saved file comes back");
}

/// Any bytes as a parameter file.
inline void FuzzParaFile(std::string_view bytes) {
  MemoryFiles files;
  VirtualFormHost forms;
  VirtualSettings settings;
  const Doors before = doors;
  doors.files = &files;
  doors.forms = &forms;
  doors.settings = &settings;

  const std::string path = "/x.pmt";
  files.Put(path, std::string(bytes));
  const bool good = ReadParaTable(path) == 0;
  FuzzCheck(good != bool(ParaFlags.ParaFileBad), "the result agrees with the flag");
  FuzzCheck(forms.boxes.size() <= (good ? 0u : 1u), "one box at most, and none for a good file");
  if (good) {
    FuzzCheck(ParaFlags.FileFaultText.empty(), "a good file needs no words");
    const bool taken = TakeParamTable() == 0;
    FuzzCheck(taken == (RefusedParaRow() == 0), "what is refused has a row");
    FuzzCheck(taken || ParamSet == ParamSetRecord{}, "a refused table changes nothing");
    if (taken) CheckParaRoundTrip(path);
  }

  ParamSet = ParamSetRecord{};
  ParaTable.Clear();
  ParaFlags = ParaFlagsRecord{};
  doors = before;
}

}  // namespace tr7
