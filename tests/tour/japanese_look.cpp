#include "forms/frm_main.h"
#include "forms/frm_options2.h"
#include "forms/frm_posi.h"
#include "forms/frm_select_posi_no.h"
#include "state/text.h"
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
  user.Click(frmPosi.cmdPosiSaveAs);
  user.SeeOn(frmSelectPosiNo3.txtToNo);
  user.Click(frmSelectPosiNo3.cmdOk);
  user.SeeBox(Text(405));
  user.Answer(MsgAnswer::Ok);
  user.SeeFileDialog();
  user.Picture("save-dialogue");
  user.Key(Qt::Key_Escape);
  user.SeeReady();
  user.Choose(frmMain.mnuSetting, frmMain.mnuSettingOptions);
  user.SeeOn(frmOptions2.txtPortNo);
  user.Picture("options");
  user.Click(frmOptions2.cmdCancel);
  user.SeeGone(frmOptions2);
  LeaveByMenu(tour);
}

}  // namespace tr7::tour
