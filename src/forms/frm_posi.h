#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "base/bool16.h"
#include "forms/frm_posi_move.h"
#include "forms/frm_posi_teach.h"
#include "forms/grid.h"

namespace tr7 {

/// The position view. It stays open for the whole process.
struct FrmPosi : View {
  FrmPosi();

  // The command strip of each mode (SSTabCommand): tab 0 data, tab 1 move, tab 2 teaching. One
  // strip is on show.
  TabStrip tabCmd{*this, "tabCmd", {{5220}, {5222}, {5221}}};
  TabStrip tabCmdPrg{*this, "tabCmdPrg", {{5220}, {5222}, {5221}}};
  TabStrip& SSTabCommand() { return tabCmdPrg.Visible ? tabCmdPrg : tabCmd; }

  Frame framController{*this, "framController", 5230};
  CommandButton cmdPosiRead{*this, "cmdPosiRead", 5200};
  CommandButton cmdPosiWrite{*this, "cmdPosiWrite", 5201};
  CommandButton cmdPosiCtVerify{*this, "cmdPosiCtVerify", 5202};
  Frame framFile{*this, "framFile", 5231};
  CommandButton cmdPosiNew{*this, "cmdPosiNew", 5203};
  CommandButton cmdPosiOpen{*this, "cmdPosiOpen", 5204};
  CommandButton cmdPosiSave{*this, "cmdPosiSave", 5205};
  CommandButton cmdPosiSaveAs{*this, "cmdPosiSaveAs", 5206};
  CommandButton cmdPosiFileVerify{*this, "cmdPosiFileVerify", 5207};
  CommandButton cmdPosiCompare{*this, "cmdPosiCompare", 5320};
  CommandButton cmdPosiPrint{*this, "cmdPosiPrint", 5208};
  Frame framEdit{*this, "framEdit", 5232};
  CommandButton cmdInsertLine{*this, "cmdInsertLine", 5209};
  CommandButton cmdDeleteLine{*this, "cmdDeleteLine", 5210};
  CommandButton cmdPosiCopy{*this, "cmdPosiCopy", 5211};
  CommandButton cmdPosiPaste{*this, "cmdPosiPaste", 5212};
  CommandButton cmdPosiCheck{*this, "cmdPosiCheck", 5213};
  PosiReadout Readout{*this};
  PosiMoveTest Move{*this};
  PosiTeaching Teach{*this};

  // Popup of the grid.
  Menu mnuPopup{*this, "mnuPopup"};
  Menu mnuPopupCopy{*this, "mnuPopupCopy", 5011};
  Menu mnuPopupPaste{*this, "mnuPopupPaste", 5012};
  Menu mnuPopupInsert{*this, "mnuPopupInsert", 5013};
  Menu mnuPopupLineDelete{*this, "mnuPopupLineDelete", 5014};

  Grid flgdData{*this, "flgdData", 2, 29, 2, 1};

  // Device captions: one a axis, and the 24 rows of the side column (six an axis).
  Label lblDeviceType1{*this, "lblDeviceType1"};
  Label lblDeviceType2{*this, "lblDeviceType2"};
  Label lblDeviceType3{*this, "lblDeviceType3"};
  Label lblDeviceType4{*this, "lblDeviceType4"};
  std::array<Label*, 4> lblDeviceType{&lblDeviceType1, &lblDeviceType2, &lblDeviceType3,
                                      &lblDeviceType4};
  Label lblAge1{*this, "lblAge1"};
  Label lblAge2{*this, "lblAge2"};
  Label lblAge3{*this, "lblAge3"};
  Label lblAge4{*this, "lblAge4"};
  std::array<Label*, 4> lblAge{&lblAge1, &lblAge2, &lblAge3, &lblAge4};
  std::array<std::string, 24> DeviceRows;

  // The layout that the grid was last filled in.
  Bool16 ShownPrgMode;
  std::array<Bool16, 4> ShownMuko;
  std::array<double, 4> ShownLead{}, ShownPpr{};
  /// By body line: the position of the table that it shows or was filled from; 0: a new line.
  std::vector<std::int16_t> SourceNo;

  Bool16 PosiChanged;  ///< shown data differ from the last file or controller state
  Bool16 CopiedIsLine;
  Bool16 CopiedIsColumn;
  /// What was copied last where it holds positions, and the unit and mode that these are in; empty
  /// otherwise.
  std::string CopiedText;
  Bool16 CopiedInMm;
  Bool16 CopiedAtPrgMode;
  Bool16 ReadDone;
  Bool16 SaveCancelled;
  std::string RoundedNote;  ///< what became of the text just typed, for the next hint
  std::string OldCellText;

  /// The tab on show, the session or what runs is another: who fills the move and the teaching tab
  /// shows what holds on them.
  Handler<void()> MotionTabs;
};

inline Standing<FrmPosi> frmPosi;

}  // namespace tr7
