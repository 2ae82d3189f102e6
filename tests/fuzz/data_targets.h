#pragma once

#include <string>
#include <string_view>

#include "forms/frm_posi.h"
#include "para/para_file.h"
#include "posi/posi_file.h"
#include "posi/posi_range.h"
#include "posi/posi_table.h"
#include "tests/fuzz/fuzz_doors.h"

namespace tr7 {

/// Any bytes as a parameter file.
inline void FuzzParaFile(std::string_view bytes) {
  FuzzDoors virt;
  const std::string path = "/x.pmt";
  virt.files.Put(path, std::string(bytes));
  const bool good = ReadParaTable(path) == 0;
  FuzzCheck(good != bool(ParaFlags.ParaFileBad), "the result agrees with the flag");
  FuzzCheck(virt.forms.boxes.size() <= (good ? 0u : 1u), "one box at most, none for a good file");
  FuzzCheck(!good || ParaFlags.FileFaultText.empty(), "a good file needs no words");
  const bool taken = good && TakeParamTable() == 0;
  FuzzCheck(!good || taken == (RefusedParaRow() == 0), "what is refused has a row");
  FuzzCheck(taken || ParamSet == ParamSetRecord{}, "a refused table changes nothing");
  const auto devices = ParamSet.Actuator;
  const auto save = [&] { return WriteParaFile(path); };
  const auto read = [&] {
    FuzzCheck(ReadParaTable(path) == 0 && TakeParamTable() == 0, "a saved file is taken");
    return ParamSet.Actuator == devices ? 0 : 1;
  };
  if (taken) CheckRoundTrip(virt.files, path, save, read);
}

/// What a reader has left behind, whatever it was given. True: a file was read.
inline bool CheckPosiRead(int result, const PosiFileTrouble& trouble, std::size_t boxes) {
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

/// What was read, as a table.
inline void CheckPosiRoundTrip(const MemoryFiles& files) {
  constexpr int kFewLines = 16;
  const PosiRange range{AppState.FileFirstNo, AppState.FileLastNo};
  if (range.IsEmpty() || range.Count() > kFewLines) return;
  SetLoadedPosiRange(range);
  SetOperationRange(range);
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    frmPosi.lblDeviceType[axis]->Caption = FileDevice[axis];
  }
  PosiStageCommit();
  const std::string path = "/again.qvd";
  PosiFileTrouble trouble;
  const auto save = [&] { return SaveFileAs2(path, trouble); };
  const auto read = [&] {
    const bool good = ReadPosiFile(path, trouble) == 0 && !AppState.PosiFileNotOurs;
    PosiStageCommit();
    return good && range == PosiRange{AppState.FileFirstNo, AppState.FileLastNo} ? 0 : 1;
  };
  CheckRoundTrip(files, path, save, read);
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
}

}  // namespace tr7
