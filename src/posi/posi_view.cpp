#include "posi/posi_view.h"

#include <string_view>

#include "device/device_texts.h"
#include "device/unit_conversion.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "posi/device_change.h"
#include "posi/posi_caption.h"
#include "posi/posi_check.h"
#include "posi/posi_commands.h"
#include "posi/posi_edit.h"
#include "posi/posi_file_flows.h"
#include "posi/posi_flows.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_hint.h"
#include "posi/posi_keep.h"
#include "posi/posi_new.h"
#include "posi/posi_rebuild.h"
#include "posi/posi_table.h"
#include "posi/posi_transfer.h"
#include "posi/recalc.h"
#include "session/followers.h"
#include "state/app_state.h"
#include "state/kept_work.h"
#include "state/message_box.h"
#include "state/settings.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

void LoadPosiView() {
  LoadSettingDispMmUnit();
  frmPosi.Caption = Text(202);
  RebuildPosiView();
}

bool QueryUnloadPosiView(CloseReason) {
  if (AppState.TeachingNow) {
    MsgBox(TwoLines(60, 61));
    return true;
  }
  if (!frmPosi.PosiChanged) return false;
  const MsgAnswer answer = MsgBox(Text(391), MsgButtons::YesNoCancel, MsgIcon::Question, Text(390));
  if (answer == MsgAnswer::No) return false;
  if (answer != MsgAnswer::Yes) return true;
  PosidataSaveToFile();
  return frmPosi.PosiChanged;  // the save did not happen: nothing is thrown away
}

void ShowMotionState() {
  if (frmPosi.MotionTabs) frmPosi.MotionTabs();
}

/// Tabs 1 and 2 of the command strips: on when online, unless the controller waits for the power
/// cycle of a mode change. A teaching session keeps its tab until it is completed.
void SetOnlineTabs() {
  const bool on = !AppState.Offline && !AppState.CtModePending;
  for (TabStrip* strip : {&frmPosi.tabCmd, &frmPosi.tabCmdPrg}) {
    for (std::size_t tab : {1u, 2u}) strip->Tabs[tab].Enabled = on;
    if (!on && strip->Selected != 0 && !AppState.TeachingNow) {
      strip->Selected = 0;
      ShowPosiTab();
    }
  }
  ShowMotionState();
}

void SelectionChanged() {
  PosiHintHyoji();
  EditCommandsBySelection();
  const int axis = AxisOfColumn(frmPosi.flgdData.Col);
  if (axis >= 0) {
    PulseScaleHyojiAxis(axis);
  } else {
    PulseScaleHyoji();
  }
  ShowMotionState();
}

}  // namespace

void InstallPosiView() {
  FrmPosi& f = frmPosi;
  f.RefuseClose = f.StaysOpen = true;
  f.Load = LoadPosiView;
  f.QueryUnload = QueryUnloadPosiView;
  f.IsChanged = [] { return static_cast<bool>(frmPosi.PosiChanged); };
  f.CmdMuko = [] {
    PosCMDBTN_Muko();
    EditCMD_Muko();
    ShowMotionState();
  };
  f.CmdYuko = [] {
    PosCMDBTN_Yuko();
    ShowMotionState();
  };
  f.Activate = EditCommandsBySelection;
  f.OnlineChanged = SetOnlineTabs;
  f.LayoutChanged = RebuildPosiViewKeepingEdits;
  f.tabCmd.Click = f.tabCmdPrg.Click = ShowPosiTab;
  f.flgdData.SelChange = SelectionChanged;
  f.flgdData.WhenEmpty = 6368;
  InstallPosiEdit();
  InstallPosiFlows();
  f.mnuPopupCopy.Click = f.Commands.Copy;
  f.mnuPopupPaste.Click = f.Commands.Paste;
  f.mnuPopupInsert.Click = f.Commands.InsertLine;
  f.mnuPopupLineDelete.Click = f.Commands.DeleteLine;
  frmMain.mnuViewPosi.Click = [] {
    doors.forms->BringToFront(frmPosi);
    doors.forms->SetFocus(frmPosi.flgdData);
  };
  f.OpenedBy = &frmMain.mnuViewPosi;
  KeepKinds().push_back(KeptPositions());
  Followers.PositionsFollowDevices = [] { PositionsFollowDevices(); };
  Followers.MmFollowsPulses = MmFollowsPulses;
}

}  // namespace tr7
