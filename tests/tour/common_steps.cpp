#include "tests/tour/common_steps.h"

#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "forms/frm_select_posi_no.h"
#include "forms/frm_selection.h"
#include "forms/frm_splash.h"
#include "posi/posi_grid_layout.h"
#include "state/text.h"

namespace tr7::tour {
namespace {

/// 40 lines, on a slow machine.
constexpr int kTransferMs = 60'000;

}  // namespace

void PassSplash(Tour& tour) {
  tour.user.SeeText(frmSplash.lblProduct, "QV-TR7");
  tour.user.Picture("splash");
  PassSplashUnseen(tour);
  tour.user.Picture("choice");
}

void PassSplashUnseen(Tour& tour) {
  // Texts are asked for when the tool knows its language.
  tour.user.SeeOn(frmSelection.cmdOk);
  tour.user.SeeText(frmSelection.lblPrompt, Text(71));
  tour.user.SeeGone(frmSplash);
}

void ConnectAtStart(Tour& tour, bool program_mode) {
  tour.user.Click(frmSelection.cmdOk);
  tour.user.SeePanel(kPanelError, Text(416));
  tour.user.SeeText(frmMain.lblOnline, Text(5116));
  tour.user.SeeText(frmMain.lblCtMode, Text(program_mode ? MsgId(129) : MsgId(128)));
  tour.user.SeeReady();
}

void StartReading(Tour& tour, int from, int to, bool picture_of_range) {
  tour.user.Click(frmPosi.cmdPosiRead);
  tour.user.SeeOn(frmSelectPosiNo2.txtFromNo);
  tour.user.Type(frmSelectPosiNo2.txtFromNo, std::to_string(from));
  tour.user.Type(frmSelectPosiNo2.txtToNo, std::to_string(to));
  tour.user.SeeText(frmSelectPosiNo2.txtToNo, std::to_string(to));
  if (picture_of_range) tour.user.Picture("range");
  tour.user.Click(frmSelectPosiNo2.cmdOk);
  tour.user.SeeBox(Text(370));
  if (picture_of_range) tour.user.Picture("confirm-read");
  tour.user.Answer(MsgAnswer::Ok);
}

void ReadAll(Tour& tour) {
  StartReading(tour, 1, 40, false);
  tour.user.SeeOn(frmMain.cmdComCancel);
  tour.user.SeeReady(kTransferMs);
  tour.user.See("40 lines", [] { return frmPosi.flgdData.Rows() == kPosiHeaderRows + 40; });
}

void LeaveByMenu(Tour& tour) {
  tour.user.SeeReady();
  tour.user.Choose(frmMain.mnuFile, frmMain.mnuFileExit);
}

}  // namespace tr7::tour
