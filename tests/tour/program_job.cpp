#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "posi/posi_table.h"
#include "state/text.h"
#include "tests/tour/common_steps.h"
#include "tests/tour/job_steps.h"
#include "tests/tour/scripts.h"

namespace tr7::tour {

void ProgramModeJob(Tour& tour) {
  const Cell place{2, AxisBase(1) + kPosi};
  const QString file = tour.folder + "/tour-program.qvd";
  PassSplashUnseen(tour);
  ConnectAtStart(tour, true);
  ReadAll(tour);
  tour.user.Picture("table");
  BeRefused(tour, place, "999", "30.000");
  // A way beside the place: as much further from where the axis stands.
  EditCell(tour, place, "+12.5");
  tour.user.SeeCell(frmPosi.flgdData, RowOf(place), place.col, "+12.495");
  tour.user.Picture("edit-accepted");
  SaveNew(tour, file, false);
  WriteAll(tour);
  VerifyEqual(tour);
  EditCell(tour, place, "15");
  VerifyDifferent(tour, "15.000", "12.495");
  VerifyFile(tour, file, "15.000");
  OpenAgain(tour, file, place, "+12.495");
  LeaveByMenu(tour);
}

}  // namespace tr7::tour
