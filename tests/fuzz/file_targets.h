// Readers of texts, of the lists that the program brings along and of the user's files.

#pragma once

#include "base/code_page.h"
#include "base/seq_file.h"
#include "data/grp_file.h"
#include "data/sm_file.h"
#include "forms/frm_posi.h"
#include "para/para_file.h"
#include "para/std_lists.h"
#include "posi/posi_file.h"
#include "posi/posi_range.h"
#include "posi/posi_table.h"
#include "state/settings_text.h"
#include "state/text.h"
#include "tests/fuzz/fuzz_doors.h"

namespace tr7 {

/// Any bytes: reading gives well-formed text, and undamaged text survives a save.
inline void FuzzCodePage(std::string_view bytes) {
  for (const int page : {kCodePageShiftJis, kCodePageUtf8}) {
    const DecodedText read = DecodeCodePage(page, bytes);
    const std::string& text = read.utf8;
    FuzzCheck(EncodeCodePage(kCodePageUtf8, text).ok, "read text is UTF-8");
    if (page == kCodePageUtf8) FuzzCheck(read.ok() == (text == bytes), "good bytes stay");
    const bool sayable = EncodeCodePage(page, text).ok;
    if (page == kCodePageShiftJis) FuzzCheck(sayable == read.ok(), "what was read can be saved");
    for (const std::string_view saved : {std::string_view(text), bytes}) {
      const EncodedText back = EncodeCodePage(page, saved);
      FuzzCheck(back.ok || back.bad_at < saved.size(), "the bad character is in the text");
      if (back.ok) FuzzCheck(DecodeCodePage(page, back.bytes).utf8 == saved, "it comes back");
    }
  }
}

/// Any bytes: reading ends, and what was read comes back from what the writer makes of it.
inline void FuzzSeqFile(std::string_view bytes) {
  SeqReader reader{std::string(bytes)};
  SeqWriter writer;
  std::size_t count = 0;
  std::string all, back;
  for (std::string item; reader.ReadText(item);) {
    all += item + "|";
    writer.Text(item);
    if (++count % 3 == 0) writer.EndLine();
    FuzzCheck(count <= bytes.size() + 1, "no more items than bytes");
  }
  FuzzCheck(reader.AtEnd(), "the reader ends at the end");
  SeqReader again(writer.Result());
  for (std::string item; again.ReadText(item);) back += item + "|";
  FuzzCheck(back == all && again.AtEnd(), "what is written comes back");

  SeqReader kinds{std::string(bytes)};
  count = 0;
  double number = 0;
  int whole = 0;
  for (Variant item; !kinds.AtEnd(); ++count) {
    const bool read = count % 3 == 0   ? kinds.ReadItem(item)
                      : count % 3 == 1 ? kinds.ReadNumber(number)
                                       : kinds.ReadInteger(-5, 40, whole);
    FuzzCheck(!read || (whole >= -5 && whole <= 40), "a whole number keeps its range");
    FuzzCheck(count <= bytes.size(), "every read moves on");
  }
}

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

/// Any bytes as a group file and as a macro file: what is no such file leaves the stage whole, and
/// what is one comes back from what the writer makes of it.
inline void FuzzDataFiles(std::string_view bytes) {
  FuzzDoors virt;
  const std::string path = "/x";
  virt.files.Put(path, std::string(bytes));
  const bool grp = GrpFileRead(path) == 0 && !GrpFlags.GrpFileRefused;
  const bool sm = OpenSMFile(path) == 0;
  FuzzCheck(grp || GrpStage == GrpTableRecord{}, "a bad file brings no groups");
  FuzzCheck(sm || SmStage == SmTableRecord{}, "a bad file brings no macros");
  FuzzCheck(!(grp && sm), "no file is both");
  GrpStageCommit();
  SmStageCommit();
  if (grp)
    CheckRoundTrip(
        virt.files, path, [&] { return GrpFileSave(path); },
        [&] { return GrpFileRead(path) + (GrpStage == GrpTable ? 0 : 1); });
  if (sm)
    CheckRoundTrip(
        virt.files, path, [&] { return SmFileSave(path); },
        [&] { return OpenSMFile(path) + (SmStage == SmTable ? 0 : 1); });
}

/// Any bytes as settings: what was read comes back from what is written of it.
inline void FuzzSettings(std::string_view bytes) {
  const SettingsRead read = ReadSettingsText(bytes);
  FuzzCheck(read.bad_line == 0 || read.keys.empty(), "damage gives nothing");
  FuzzCheck(ReadSettingsText(SettingsAsText(read.keys)).keys == read.keys, "they come back");
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
  for (int axis = 0; axis < kAxes; ++axis) {
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
