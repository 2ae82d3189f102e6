#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "forms/frm_syogo_kekka.h"
#include "posi/posi_table.h"
#include "state/text.h"
#include "tests/tour/common_steps.h"
#include "tests/tour/job_steps.h"
#include "tests/tour/scripts.h"

namespace tr7::tour {
namespace {

constexpr int kCheckTitle = 2302, kAllGoodText = 6358;

const Cell kSpeed{3, AxisBase(0) + kVel};
const Cell kPlace{3, AxisBase(0) + kPosi};
const Cell kPush{4, AxisBase(0) + kPf};

/// A cell that is left empty passes the edit and is found by the check.
void CheckTable(Tour& tour) {
  User& user = tour.user;
  user.ClickCell(frmPosi.flgdData, RowOf(kPush), kPush.col);
  user.Key(Qt::Key_Backspace);
  user.Key(Qt::Key_Return);
  user.SeeCell(frmPosi.flgdData, RowOf(kPush), kPush.col, "");
  user.Click(frmPosi.cmdPosiCheck);
  user.SeeOn(frmSyogoKekka.cmdClose);
  user.SeeTitle(frmSyogoKekka, Text(kCheckTitle));
  user.SeeText(frmSyogoKekka.lblLine, "No. 4");
  user.Picture("check-result");
  user.Click(frmSyogoKekka.cmdClose);
  user.SeeGone(frmSyogoKekka);
  EditCell(tour, kPush, "0");
  user.Click(frmPosi.cmdPosiCheck);
  user.SeeBox(Text(kAllGoodText));
  user.Picture("check-good");
  user.Answer(MsgAnswer::Ok);
  user.SeeReady();
}

}  // namespace

void MainJob(Tour& tour) {
  User& user = tour.user;
  const QString file = tour.folder + "/tour.qvd";
  PassSplashUnseen(tour);
  ConnectAtStart(tour);
  ReadAll(tour);
  BeRefused(tour, kSpeed, "500", "30");
  EditCell(tour, kSpeed, "45");
  EditCell(tour, kPlace, "33.333");
  // The motor's next pulse.
  user.SeeCell(frmPosi.flgdData, RowOf(kPlace), kPlace.col, "33.335");
  user.SeeCell(frmPosi.flgdData, RowOf(kSpeed), kSpeed.col, "45");
  user.Picture("edit-accepted");
  CheckTable(tour);
  SaveNew(tour, file, true);
  user.Picture("saved");
  SwitchToPulses(tour);
  user.SeeCell(frmPosi.flgdData, RowOf(kPlace), kPlace.col, "6667");
  user.Picture("in-pulses");
  WriteAll(tour);
  VerifyEqual(tour);
  EditCell(tour, kPlace, "7000");
  VerifyDifferent(tour, "7000", "6667");
  VerifyFile(tour, file, "7000");
  OpenAgain(tour, file, kPlace, "6667");
  LeaveByMenu(tour);
}

}  // namespace tr7::tour
