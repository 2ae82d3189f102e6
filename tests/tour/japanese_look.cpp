#include "core/text.h"
#include "forms/frm_main.h"
#include "forms/frm_options2.h"
#include "tests/tour/common_steps.h"
#include "tests/tour/scripts.h"

namespace tr7::tour {

void JapaneseLook(Tour& tour) {
  User& user = tour.user;
  PassSplash(tour);
  ConnectAtStart(tour);
  StartReading(tour, 1, 40, true);
  user.SeeOn(frmMain.cmdComCancel);
  user.SeeReady();
  user.Picture("table-mm");
  user.Choose(frmMain.mnuSetting, frmMain.mnuSettingOptions);
  user.SeeOn(frmOptions2.txtPortNo);
  user.Picture("options");
  user.Click(frmOptions2.cmdCancel);
  user.SeeGone(frmOptions2);
  LeaveByMenu(tour);
}

}  // namespace tr7::tour
