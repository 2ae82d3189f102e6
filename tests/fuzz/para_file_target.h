#pragma once

#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>

#include "para/para_file.h"
#include "para/param_set.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/fuzz_doors.h"

namespace tr7 {

/// Values so large that their 15 digits may round to more than a number holds.
inline bool HasHugeValue(const ParamSetRecord& set) {
  for (int row = 1; row <= kParaRows; ++row) {
    for (std::size_t axis = 0; axis < kAxes; ++axis) {
      if (std::fabs(ParaValue(set, row, axis)) > 1e300) return true;
    }
  }
  return false;
}

/// Parameters that were taken from a file: saved, opened and saved again they are the same bytes.
inline void CheckParaRoundTrip(MemoryFiles& files, const std::string& path) {
  if (HasHugeValue(ParamSet)) return;
  if (WriteParaFile(path) != 0) {
    FuzzCheck(bool(ParaFlags.ParaFileWriteFailed), "a failed save is flagged");
    FuzzCheck(!ParaFlags.FileFaultText.empty(), "a refused save says why");
    return;
  }
  const auto saved = files.Content(path);
  const auto devices = ParamSet.Actuator;
  FuzzCheck(ReadParaTable(path) == 0, "a saved file is good");
  FuzzCheck(TakeParamTable() == 0, "a saved file is taken");
  FuzzCheck(ParamSet.Actuator == devices, "the devices come back");
  FuzzCheck(WriteParaFile(path) == 0 && files.Content(path) == saved, "the bytes are the same");
}

/// Any bytes as a parameter file.
inline void FuzzParaFile(std::string_view bytes) {
  FuzzDoors virt;
  const std::string path = "/x.pmt";
  virt.files.Put(path, std::string(bytes));
  const bool good = ReadParaTable(path) == 0;
  FuzzCheck(good != bool(ParaFlags.ParaFileBad), "the result agrees with the flag");
  FuzzCheck(virt.forms.boxes.size() <= (good ? 0u : 1u),
            "one box at most, and none for a good file");
  if (good) {
    FuzzCheck(ParaFlags.FileFaultText.empty(), "a good file needs no words");
    const bool taken = TakeParamTable() == 0;
    FuzzCheck(taken == (RefusedParaRow() == 0), "what is refused has a row");
    FuzzCheck(taken || ParamSet == ParamSetRecord{}, "a refused table changes nothing");
    if (taken) CheckParaRoundTrip(virt.files, path);
  }

  ParamSet = ParamSetRecord{};
  ParaTable.Clear();
  ParaFlags = ParaFlagsRecord{};
}

}  // namespace tr7
