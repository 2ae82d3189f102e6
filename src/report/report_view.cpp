#include "report/report_view.h"

#include "forms/frm_grp.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_posi.h"
#include "forms/frm_sq_mcr.h"
#include "prog/prog_view.h"
#include "report/data_print.h"
#include "report/para_print.h"
#include "report/posi_print.h"
#include "report/prog_print.h"

namespace tr7 {

void InstallReports() {
  frmPosi.cmdPosiPrint.Click = frmPosi.Commands.Print = PrintPositions;
  frmParameta2.cmdParaPrint.Click = PrintParaOnScreen;
  frmParameta2.cmdParaFilePrint.Click = PrintParaOfFile;
  frmGrp.cmdGrpDataPrint.Click = PrintShownGroups;
  frmGrp.cmdGrpFilePrint.Click = PrintGroupFile;
  frmSqMcr.cmdSMDispPrint.Click = PrintShownMacros;
  frmSqMcr.cmdSMFilePrint.Click = PrintMacroFile;
  PrintProgram = PrintProgListing;
}

}  // namespace tr7
