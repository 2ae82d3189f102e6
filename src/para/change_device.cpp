#include "para/change_device.h"

#include "base/scope.h"
#include "device/limits.h"
#include "forms/frm_main.h"
#include "forms/frm_parameta2.h"
#include "link/port.h"
#include "para/device_dialog.h"
#include "para/device_take.h"
#include "para/para_columns.h"
#include "para/para_file_flow.h"
#include "para/para_show.h"
#include "para/std_lists.h"
#include "session/reconcile.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/selection.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kMsgNotSelected = 4;
constexpr int kMsgSelectAgain = 5;

enum class Source { Choice, ParaFile };

/// False: the user leaves.
bool AskSource(Source& source) {
  const Selection choice = SelectionDialog({.Title = Text(471),
                                            .What = 7191,
                                            .Prompt = Text(41),
                                            .Choices = {Text(42), Text(43)},
                                            .OkIsNext = true});
  source = choice == Selection::First ? Source::Choice : Source::ParaFile;
  return choice != Selection::Cancelled;
}

/// Asks until parameters stand; false when the user leaves. Back, a failure and a file dialogue
/// that was cancelled lead to the question again.
bool ParametersStand() {
  Source source;
  while (AskSource(source)) {
    const int result = source == Source::Choice ? SelectDeviceForPara() : OpenParaForDevice();
    if (result == 0) return true;
    if (source == Source::Choice && result == -1) return false;
  }
  return false;
}

void OfferEverything() {
  DeviceDialog.ShowDevOptions = DeviceDialog.ShowDevCancel = DeviceDialog.ShowDevBack = True;
}

}  // namespace

int Change_Device() {
  const CommandsOff commands_off;
  const BusyScope busy;
  const bool was_offline = AppState.Offline;
  const ScopeExit offline_again([was_offline] {
    if (was_offline) SetOffline();
  });
  if (!WarnOfDeviceChange(true)) return 1;
  ChoiceOnTrial choice;
  OfferEverything();
  if (!ParametersStand()) return 1;
  if (!TakeDevicesOfParam()) {
    MsgBox(TwoLines(kMsgNotSelected, kMsgSelectAgain));
    return 1;
  }
  choice.Keep();
  return 0;
}

void IniPrm() {
  const CommandsOff commands_off;
  const BusyScope busy;
  OfferEverything();
  ChoiceOnTrial choice;
  if (AskDevices(frmDevice2) != DeviceAnswer::Taken) return;
  // The position table may follow later on: the user may rather not.
  if (!WarnOfDeviceChange(true)) return;
  if (IniParaFromStd() != 0) return;
  choice.Keep();
  if (choice.AxesChanged()) {
    RecalcLimits();
    AllViewsLayoutChanged();
  }
  YukoJikuHyojiSettei();  // the dialogue's axes, whatever the view has been set to
  ParametaHyoji();
}

void InstallChangeDevice() {
  frmMain.mnuSettingDevice.Click = [] { Change_Device(); };
  frmParameta2.cmdIniPrm.Click = IniPrm;
}

}  // namespace tr7
