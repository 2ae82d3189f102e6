#include "posi/posi_rebuild.h"

#include "device/device_texts.h"
#include "forms/frm_posi.h"
#include "posi/posi_caption.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

constexpr int kDataTab = 0, kMoveTab = 1, kTeachingTab = 2;

TabStrip& ShownStrip() { return AppState.CtMode ? frmPosi.tabCmdPrg : frmPosi.tabCmd; }

}  // namespace

void ShowPosiTab() {
  FrmPosi& f = frmPosi;
  f.tabCmd.Visible = !AppState.CtMode;
  f.tabCmdPrg.Visible = AppState.CtMode;
  const int tab = ShownStrip().Selected;
  for (Control* control : std::initializer_list<Control*>{
           &f.framController, &f.cmdPosiRead, &f.cmdPosiWrite, &f.cmdPosiCtVerify, &f.framFile,
           &f.cmdPosiNew, &f.cmdPosiOpen, &f.cmdPosiSave, &f.cmdPosiSaveAs, &f.cmdPosiFileVerify,
           &f.cmdPosiCompare, &f.cmdPosiPrint, &f.framEdit, &f.cmdInsertLine, &f.cmdDeleteLine,
           &f.cmdPosiCopy, &f.cmdPosiPaste, &f.cmdPosiCheck}) {
    control->Visible = tab == kDataTab;
  }
  f.Readout.controls.SetVisible(tab != kDataTab);
  f.Move.controls.SetVisible(tab == kMoveTab);
  f.Teach.controls.SetVisible(tab == kTeachingTab);
  if (f.MotionTabs) f.MotionTabs();
}

void RebuildPosiView() {
  ShowPosiTab();
  if (AppState.CtMode) {
    Set_PosFormStrAtPrgMode();
    SizeInit_PosFlexGridAtPrgMode2();
  } else {
    Set_PosFormStrAtPosMode();
    SizeInit_PosFlexGridAtPosMode();
  }
  DispAxisData2();
  FG_ShowTable();
  DeviceTextHyoji();
  PulseScaleHyoji();
}

}  // namespace tr7
