#pragma once

#include <string>
#include <string_view>

#include "device/dev_setting.h"
#include "para/param_set.h"
#include "para/std_lists.h"
#include "para/std_table.h"
#include "state/text_file.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/fuzz_doors.h"

namespace tr7 {

/// Standard lists of one device, as short as they can be.
inline constexpr std::string_view kFuzzStd =
    "QV-R7,QV-STDPRM,1,0,\" 28L-100\",1,1,1,1,1,1,1,1,1,1,1,x";

/// Runs with these files; the first row of the first axis's list, if there is one, is chosen.
inline void RunStdLists(std::string_view std_list, std::string_view common) {
  FuzzDoors virt;
  for (const char* name : {"tr7qvstpr.lst", "tr7nqvstpr.lst"}) {
    virt.files.Put(ProgramFile(name), std::string(std_list));
  }
  virt.files.Put(ProgramFile("tr7cmstpr.lst"), std::string(common));
  const bool good = ReadStdLists() == 0;
  for (const StdList& list : StdTable) {
    FuzzCheck(list.size() <= kStdRowsMax, "the list keeps its bound");
    if (list.empty()) continue;
    for (DevSettingRecord& device : DevSettei) {
      device.Size = list[0].Model.Size;
      device.Speed = list[0].Model.Speed;
      device.Stroke = static_cast<std::int16_t>(list[0].Model.Stroke);
    }
  }
  FuzzCheck(!good || virt.forms.boxes.empty(), "a good read says nothing");
  const bool empty = StdTable[0].empty();
  const bool filled = IniParaFromStd() == 0;
  FuzzCheck(filled == (good && !empty), "good lists fill the parameters");
  FuzzCheck(good || ParamSet == ParamSetRecord{}, "damaged lists change nothing");
  if (good) FuzzCheck(ParamSet.OneAxis == 15, "the mask is that of the axes");
  FuzzCheck((IniParaFromStdForWrite() == 0) == filled, "both forms agree");
  CheckParaFromStd();

  for (StdList& list : StdTable) list.clear();
  CommonTable = CommonTableRecord{};
  ParamSet = ParamSetRecord{};
  ParaFlags = ParaFlagsRecord{};
  DevSettei.fill(DevSettingRecord{});
}

/// A good common list of zeros.
inline std::string FuzzCommon() {
  std::string file = "QV-R7,QV-CMNPRM,3";
  const struct {
    const char* tag;
    int rows;
  } sections[] = {{"PG", 2}, {"ETC", 9}, {"SPECIAL", 10}};
  for (const auto& section : sections) {
    file += std::string(",") + section.tag + "," + std::to_string(section.rows) + ",3";
    for (int i = 0; i < section.rows; ++i) file += ",0,0,0";
  }
  return file;
}

/// Any bytes as a standard list beside a good common one.
inline void FuzzStdList(std::string_view bytes) { RunStdLists(bytes, FuzzCommon()); }

/// Any bytes as the common list beside a good standard one.
inline void FuzzCommonList(std::string_view bytes) { RunStdLists(kFuzzStd, bytes); }

}  // namespace tr7
