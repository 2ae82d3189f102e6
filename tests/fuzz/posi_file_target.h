#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/bool16.h"
#include "device/dev_setting.h"
#include "forms/frm_posi.h"
#include "posi/posi_file.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/fuzz_doors.h"

namespace tr7 {

/// What a reader has left behind, whatever it was given. True: a file was read.
inline bool CheckPosiRead(int result, const PosiFileTrouble& trouble, std::size_t boxes) {
  for (std::size_t col = 1; col < kPosiColumns; ++col) {
    FuzzCheck(PosiTable.PosiStage[col][0] == Variant(), "no number is 0");
  }
  if (result != 0) {
    FuzzCheck(bool(AppState.PosiFileNotOurs), "a failure is flagged");
    FuzzCheck(boxes == 0 && !trouble.words.empty(), "a failure is the caller's to tell");
    FuzzCheck(!trouble.may_pass, "a damaged file stays damaged");
    return false;
  }
  FuzzCheck(boxes == (AppState.PosiFileNotOurs ? 1u : 0u), "another kind of file is told");
  if (AppState.PosiFileNotOurs) return false;
  for (const int number : {int{AppState.FileFirstNo}, int{AppState.FileLastNo}}) {
    FuzzCheck(number >= 1 && number <= kPosiMaxNo, "numbers are those of the table");
    const Variant& comment = PosiTable.PosiStage[kComment][static_cast<std::size_t>(number)];
    for (const char c : TextOf(comment)) FuzzCheck(c < 0 || c >= ' ', "a comment is one line");
  }
  return true;
}

/// "PF" of the first axis is written as it is held: one so large that its 15 digits may round to
/// more than a number holds does not come back as a number.
inline bool HoldsHugePf(int first, int last) {
  for (int n = first; n <= last; ++n) {
    const Variant& pf = PosiTable.PosiRec[kPf][static_cast<std::size_t>(n)];
    if (std::fabs(ValueOf(pf)) > 1e300) return true;
  }
  return false;
}

/// What was read, as a table: saved, read and saved again it is the same bytes.
inline void CheckPosiRoundTrip(MemoryFiles& files) {
  constexpr int kFewLines = 16;
  const int first = AppState.FileFirstNo, last = AppState.FileLastNo;
  if (last < first || last - first >= kFewLines) return;
  AppState.PosiFirstNo = AppState.PosiFromNo = static_cast<std::int16_t>(first);
  AppState.PosiLastNo = AppState.PosiToNo = static_cast<std::int16_t>(last);
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    frmPosi.lblDeviceType[axis]->Caption = FileDevice[axis];
  }
  PosiStageCommit();
  if (HoldsHugePf(first, last)) return;
  const std::string path = "/again.qvd";
  PosiFileTrouble trouble;
  if (SaveFileAs2(path, trouble) != 0) {
    FuzzCheck(!trouble.words.empty(), "a refused save says why");
    return;
  }
  const auto saved = files.Content(path);
  FuzzCheck(ReadPosiFile(path, trouble) == 0 && !AppState.PosiFileNotOurs, "a saved file is good");
  FuzzCheck(AppState.FileFirstNo == first && AppState.FileLastNo == last, "so are its numbers");
  PosiStageCommit();
  FuzzCheck(SaveFileAs2(path, trouble) == 0 && files.Content(path) == saved, "the bytes are equal");
}

/// Any bytes as a position file, in the present layouts and in the oldest.
inline void FuzzPosiFile(std::string_view bytes) {
  FuzzDoors virt;
  const std::string path = "/x.qvd";
  virt.files.Put(path, std::string(bytes));
  for (const bool oldest : {true, false}) {
    AppState.PosiFileNotOurs = False;
    virt.forms.boxes.clear();
    PosiFileTrouble trouble;
    const int result = oldest ? ReadOldPosiFile(path, trouble) : ReadPosiFile(path, trouble);
    if (CheckPosiRead(result, trouble, virt.forms.boxes.size())) CheckPosiRoundTrip(virt.files);
  }

  AppState = AppStateRecord{};
  DevSettei.fill(DevSettingRecord{});
  FileDevice.fill({});
}

}  // namespace tr7
