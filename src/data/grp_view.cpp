#include "data/grp_view.h"

#include "data/data_keep.h"
#include "data/data_view.h"
#include "data/grp_file.h"
#include "data/grp_kind.h"
#include "data/grp_show.h"
#include "data/grp_table.h"
#include "data/kept_aside.h"
#include "forms/frm_grp.h"
#include "forms/frm_main.h"
#include "platform/doors.h"
#include "state/busy_scope.h"
#include "state/views.h"

namespace tr7 {
namespace {

KeptAside<GrpTableRecord> groups_aside;

void ShowPage(int page) {
  StoreShownGroups();
  frmGrp.ShownPage = page;
  GrpShow();
}

void LoadGroups() {
  GrpTable = GrpTableRecord{};
  GrpFlags.GrpFilePath.clear();
  frmGrp.ShownPage = 0;
  frmGrp.optGrpNo[0].Choose();
  groups_aside.Offer(frmGrp.cmdGrpRestore);
  GrpShow();
}

void ForgetGroups() { groups_aside.Keep(GrpTable, GrpTable == GrpSaved); }

void BringBack() {
  StoreShownGroups();
  groups_aside.BringBack(GrpTable, GrpSaved);
  GrpFlags.GrpFilePath.clear();  // which file they came from is not kept
  groups_aside.Offer(frmGrp.cmdGrpRestore);
  GrpShow();
}

/// Start, end, the next row's start; behind the last row the first one.
void GoOn(std::size_t row, bool from_start) {
  FrmGrp& f = frmGrp;
  TextBox& next =
      from_start ? f.Rows[row].txtGrpEndNo : f.Rows[(row + 1) % f.Rows.size()].txtGrpStartNo;
  doors.forms->SetFocus(next);
}

void InstallRow(std::size_t row) {
  GrpRow& shown = frmGrp.Rows[row];
  shown.txtGrpStartNo.LostFocus = shown.txtGrpEndNo.LostFocus = StoreShownGroups;
  shown.txtGrpStartNo.Enter = [row] { GoOn(row, true); };
  shown.txtGrpEndNo.Enter = [row] { GoOn(row, false); };
}

bool RefusesToClose(CloseReason) {
  StoreShownGroups();
  return FlowKeepsViewsOpen();
}

bool RefusesToEnd() {
  StoreShownGroups();
  return groups_aside.RefusesToEnd(frmGrp.Loaded && GrpKind().IsChanged(), frmGrp.Tag);
}

KeepKind KeptGroups() {
  return KeptTables<GrpTableRecord>({.word = "grp",
                                     .view = frmGrp,
                                     .shown_by = frmMain.mnuViewGrp,
                                     .aside = groups_aside,
                                     .held = GrpTable,
                                     .saved = GrpSaved,
                                     .path = GrpFlags.GrpFilePath,
                                     .on_screen = GroupsOnScreen,
                                     .text_of = GrpFileText,
                                     .read_to_stage = GrpTextRead,
                                     .show_stage = GrpKind().TakeStage});
}

void InstallButtons() {
  FrmGrp& f = frmGrp;
  InstallDataButtons(f, frmMain.mnuViewGrp,
                     {f.cmdReadGrp, f.cmdWriteGrp, f.cmdGrpCtVerify, f.cmdGrpFileOpen,
                      f.cmdGrpFileSave, f.cmdGrpFileVerify, f.cmdClose},
                     GrpKind());
  f.cmdGrpCompare.Click = CompareGroups;
  f.cmdGrpRestore.Click = BringBack;
}

}  // namespace

void InstallGrpView() {
  FrmGrp& f = frmGrp;
  groups_aside = {};
  f.Load = LoadGroups;
  f.QueryUnload = RefusesToClose;
  f.QueryEnd = RefusesToEnd;
  f.Unload = ForgetGroups;
  // What the groups cover may be other positions now. In program mode an open view stays: only the
  // menu goes, the data is the user's.
  f.Activate = f.LayoutChanged = StoreShownGroups;
  f.CmdMuko = [] { SwitchControls(frmGrp, false); };
  f.CmdYuko = [] {
    SwitchControls(frmGrp, true);
    StoreShownGroups();
  };
  for (std::size_t row = 0; row < f.Rows.size(); ++row) InstallRow(row);
  for (int page = 0; page < 3; ++page) f.optGrpNo[page].Click = [page] { ShowPage(page); };
  f.OpenedBy = &frmMain.mnuViewGrp;
  KeepKinds().push_back(KeptGroups());
  InstallButtons();
  SwitchControls(f, true);
}

}  // namespace tr7
