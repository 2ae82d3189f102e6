#pragma once

#include <string>
#include <string_view>

#include "para/std_lists.h"
#include "state/text.h"
#include "tests/fuzz/fuzz_doors.h"

namespace tr7 {

/// Any bytes as the list of errors, and every unit and code against what was read of it.
inline void FuzzErrorList(std::string_view bytes) {
  FuzzDoors virt;
  virt.PutList(Text(120).c_str(), bytes);
  const bool good = ReadErrorList() == 0;
  FuzzCheck(good != bool(ErrorList.ErrListMissing), "the result agrees with the state");
  for (const auto* list : {&ErrorList.ErrListMain, &ErrorList.ErrListAxis}) {
    FuzzCheck(list->size() <= (good ? kErrListPairs : 0), "a list keeps its bound");
  }
  for (const char unit : {'0', '1', '4', '5'}) {
    for (char code = ' '; good && code <= '~'; ++code) {
      DecodeCtError({'0', '%', '%', unit, '0', code, '\r', '\n'});
      FuzzCheck(AppState.CtErrorNo.size() <= 1, "a code is one character");
    }
  }
  DecodeCtError(std::string(bytes.substr(0, 8)));
  FuzzCheck(virt.forms.boxes.empty() == good, "a box comes up only without a list");
}

/// Any bytes as both catalogues.
inline void FuzzDeviceList(std::string_view bytes) {
  FuzzDoors virt;
  for (const char* name : {"qvdevice.lst", "nqvdevice.lst"}) virt.PutList(name, bytes);
  const DeviceListRecord& list = DeviceList[0];
  std::size_t boxes = 0;
  for (const auto read : {ReadDeviceListOldAxis, ReadDeviceListNewAxis}) {
    const bool good = read(0) == 0;
    boxes += good ? 0 : 1;
    FuzzCheck(good != bool(DevListMissing[0]), "the result agrees with the state");
    FuzzCheck(list.RowCount >= 0 && list.RowCount < kDeviceSlots, "rows have slots");
    FuzzCheck(list.Sizes.size() <= (good ? kDeviceListNames : 0), "the sizes keep their bound");
    for (int i = 1; i <= list.RowCount; ++i) {
      const DeviceRecord& row = list.Rows[static_cast<std::size_t>(i)];
      const int found = list.Find(row.Size, row.Speed, row.Stroke);
      FuzzCheck(row.Lead > 0 && found > 0 && found <= i, "every device has a lead and is found");
    }
  }
  for (const std::string& rows : DeviceLookup.LeftOutTold) boxes += rows.empty() ? 0 : 1;
  FuzzCheck(virt.forms.boxes.size() == boxes, "one box a failure and a list with rows left out");
  const DeviceRecord row = list.Rows[1];
  const bool found = FindDeviceNew(row.Size, row.Speed, row.Stroke) == 0;
  FuzzCheck(found == (!DevListMissing[0] && list.RowCount > 0), "a lookup agrees with the list");
}

/// Runs with these files; the first row of the first axis's list, if there is one, is chosen.
inline void RunStdLists(std::string_view std_list, std::string_view common) {
  FuzzDoors virt;
  for (const char* name : {"tr7qvstpr.lst", "tr7nqvstpr.lst"}) virt.PutList(name, std_list);
  virt.PutList("tr7cmstpr.lst", common);
  const bool good = ReadStdLists() == 0;
  FuzzCheck(!good || virt.forms.boxes.empty(), "a good read says nothing");
  const StdList& list = StdTable[0];
  FuzzCheck(list.size() <= kStdRowsMax, "the list keeps its bound");
  for (DevSettingRecord& device : DevSettei) {
    if (list.empty()) break;
    device.Size = list[0].Model.Size;
    device.Speed = list[0].Model.Speed;
    device.Stroke = static_cast<std::int16_t>(list[0].Model.Stroke);
  }
  const bool chosen = !list.empty();
  const bool filled = IniParaFromStd() == 0;
  FuzzCheck(filled == (good && chosen), "good lists fill the parameters");
  FuzzCheck(good ? ParamSet.OneAxis == 15 : ParamSet == ParamSetRecord{}, "whole or not at all");
  FuzzCheck((IniParaFromStdForWrite() == 0) == filled, "both forms agree");
  CheckParaFromStd();
}

/// Any bytes as a standard list beside a common one of zeros.
inline void FuzzStdList(std::string_view bytes) {
  const auto rows = [](int count) {
    std::string zeros = std::to_string(count) + ",3";
    for (int i = 0; i < count; ++i) zeros += ",0,0,0";
    return zeros;
  };
  RunStdLists(bytes,
              "QV-R7,QV-CMNPRM,3,PG," + rows(2) + ",ETC," + rows(9) + ",SPECIAL," + rows(10));
}

/// Any bytes as the common list beside a standard one of one device.
inline void FuzzCommonList(std::string_view bytes) {
  RunStdLists("QV-R7,QV-STDPRM,1,0,\" 28L-100\",1,1,1,1,1,1,1,1,1,1,1,x", bytes);
}

}  // namespace tr7
