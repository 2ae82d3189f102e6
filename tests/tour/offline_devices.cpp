#include "forms/frm_device.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "forms/frm_selection.h"
#include "state/app_state.h"
#include "state/text.h"
#include "tests/tour/common_steps.h"
#include "tests/tour/scripts.h"

namespace tr7::tour {
namespace {

void ChooseOfflineAndMode(User& user) {
  user.SeeText(frmSelection.lblPrompt, Text(71));
  user.Click(frmSelection.optChoice2);
  user.Click(frmSelection.cmdOk);
  user.SeeText(frmSelection.lblPrompt, Text(74));
  user.Picture("offline-mode");
  user.Click(frmSelection.cmdOk);
}

/// The lists follow the size, and the option the device.
void ChooseDevices(User& user) {
  user.SeeOn(frmDevice3.comboDeviceSize[0]);
  user.Picture("offline-devices");
  user.PickText(frmDevice3.comboDeviceSize[0], " 42");
  user.PickText(frmDevice3.comboDeviceSpeed[0], "H");
  user.PickText(frmDevice3.comboDeviceStroke[0], "300");
  user.PickText(frmDevice3.comboDeviceSize[1], "E35");
  user.Click(frmDevice3.chkNewOrOld[2]);
  user.SeeText(frmDevice3.comboDeviceSize[2], "28");
  user.Click(frmDevice3.chkAxisEnable[3]);
  user.SeeOff(frmDevice3.comboDeviceSize[3]);
  user.Picture("offline-devices-chosen");
  user.Click(frmDevice3.cmdDeviceSet);
  user.SeeReady();
  user.SeeText(*frmPosi.lblDeviceType[0], "QV- 42H-300");
  user.Picture("offline");
}

void ChangeDevice(User& user) {
  user.Choose(frmMain.mnuSetting, frmMain.mnuSettingDevice);
  user.SeeText(frmSelection.lblPrompt, Text(41));
  user.Picture("device-source");
  user.Click(frmSelection.cmdOk);
  user.SeeOn(frmDevice2.comboAxisSelect);
  user.Picture("device-dialogue");
  user.Pick(frmDevice2.comboAxisSelect, 1);
  user.Click(frmDevice2.cmdDeviceSet);
  user.SeeBox(Text(1151));
  user.Picture("device-axes-changed");
  user.Answer(MsgAnswer::Yes);
  user.SeeReady();
  user.See("two axes left", [] { return bool(AppState.AxisMuko[2]); });
}

}  // namespace

void OfflineDevices(Tour& tour) {
  ChooseOfflineAndMode(tour.user);
  ChooseDevices(tour.user);
  ChangeDevice(tour.user);
  LeaveByMenu(tour);
}

}  // namespace tr7::tour
