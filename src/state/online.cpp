#include "state/online.h"

#include "forms/frm_main.h"
#include "state/app_state.h"
#include "state/text.h"

namespace tr7 {

void SetOffline() {
  AppState.Offline = True;
  AppState.ProgStepsRead = False;
  frmMain.imgOnline.Visible = false;
  frmMain.lblOnline.Caption = Text(5117);
}

void SetOnline() {
  AppState.Offline = False;
  frmMain.imgOnline.Visible = true;
  frmMain.lblOnline.Caption = Text(5116);
}

void LiftOffline() {
  if (!AppState.Offline) return;
  AppState.Offline = False;
  AppState.OfflineTemporarilyLifted = True;
}

void SettleOnlineState() {
  if (!AppState.Offline && !frmMain.imgOnline.Visible) SetOffline();
  AppState.OfflineTemporarilyLifted = False;
}

}  // namespace tr7
