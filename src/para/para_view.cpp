#include "para/para_view.h"

#include "device/device_list.h"
#include "forms/frm_main.h"
#include "para/para_actuator.h"
#include "para/para_axis_show.h"
#include "para/para_columns.h"
#include "para/para_compare.h"
#include "para/para_content.h"
#include "para/para_file_flow.h"
#include "para/para_flows.h"
#include "para/para_hint.h"
#include "para/para_keep.h"
#include "para/para_marks.h"
#include "para/para_show.h"
#include "para/para_sp.h"
#include "para/para_typing.h"
#include "para/stroke_calc.h"
#include "session/followers.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/text_file.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kMsgSaveBeforeClose = 6067;

/// The lists of the axes in use, as far as they are not in memory yet. A missing file is told once.
void ReadDeviceLists() {
  for (const int axis : AxisList(LiveAxisMask())) {
    if (DeviceList[axis].RowCount > 0) continue;
    const bool is_new = CatalogueOf(axis) == DeviceListKind::New;
    if ((is_new ? ReadDeviceListNewAxis(axis) : ReadDeviceListOldAxis(axis)) != 0) return;
  }
}

void ClearFields() {
  for (int axis = 0; axis < kAxes; ++axis) ClearParaAxis(axis);
  for (const ParaTextField& field : ParaTextFields()) {
    if (!IsAxisRow(field.Row)) ParaControl(field.Place, 0).Text.clear();
  }
  for (const ParaOptionField& field : ParaOptionFields()) (frmParameta2.*field.Place).Clear();
}

/// Before any parameters are known the fields are empty, not full of zeros.
bool ParametersAreKnown() { return ParamSet != ParamSetRecord{}; }

void LoadView() {
  FrmParameta2& f = frmParameta2;
  f.CommandsAreOff = AppState.CommandsOffDepth > 0;
  f.chkTokuParaChange.Value = false;
  f.RefusalShown = false;
  f.FormerTexts.clear();
  f.FilePath.clear();
  f.LiveColumns.fill(false);
  ParaFlags.ShownAxisCount = 0;
  ReadDeviceLists();
  ClearFields();
  FillParaLists();
  if (ParametersAreKnown()) {
    ParametaHyoji();
  } else {
    SettleParaColumns();
  }
  MarkParaSaved();
  MarkParaFields();
}

void UnloadParaView() {
  ParaFlags.ShownAxisCount = 0;
  ParaFieldLeft();
}

bool QueryUnloadView(CloseReason) {
  return FlowKeepsViewsOpen() || !MayDropParaChanges(kMsgSaveBeforeClose);
}

void OpenParameters() {
  if (MayDropParaChanges(kAskSaveBeforeOpen)) OpenParaFile();
}

void CommandsGoOff() {
  frmParameta2.CommandsAreOff = true;
  EnableParaControls();
}

void CommandsComeOn() {
  frmParameta2.CommandsAreOff = false;
  SettleParaColumns();  // the flow may have brought other axes
  MarkParaFields();     // and another word from the controller
}

}  // namespace

void InstallParaView() {
  FrmParameta2& f = frmParameta2;
  f.Load = LoadView;
  f.Unload = UnloadParaView;
  f.QueryUnload = QueryUnloadView;
  f.IsChanged = ParaIsChanged;
  f.FileName = [] { return FileTitle(frmParameta2.FilePath); };
  f.CmdMuko = CommandsGoOff;
  f.CmdYuko = CommandsComeOn;
  f.cmdParaRead.Click = GetParametaValue;
  f.cmdParaWrite.Click = WriteParaFlow;
  f.cmdConpareCT.Click = VerifyParaToCt;
  f.cmdConpareFile.Click = VerifyParaToFile;
  f.cmdParaCompare.Click = CompareParameters;
  f.cmdCalculate.Click = ShowStrokeCalc;
  f.cmdReadParaFile.Click = OpenParameters;
  f.cmdSaveParaFile.Click = [] { SaveParaToFile(); };
  f.cmdClose.Click = [] { CloseView(frmParameta2, CloseReason::Code); };
  InstallParaTyping();
  InstallParaSp();
  InstallActuatorLists();
  Followers.AnotherController = ForgetWhatCtHeld;
  InstallParaMarks();  // behind what the fields do by themselves
  f.Commands.Open = OpenParameters;
  f.OpenedBy = &frmMain.mnuViewPara;
  KeepKinds().push_back(KeptParameters());
  frmMain.mnuViewPara.Click = [] { ShowOrBringToFront(frmParameta2); };
}

}  // namespace tr7
