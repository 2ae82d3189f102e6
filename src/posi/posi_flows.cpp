#include "posi/posi_flows.h"

#include "core/hooks.h"
#include "forms/frm_posi.h"
#include "posi/posi_file_flows.h"
#include "posi/posi_open.h"
#include "posi/posi_transfer.h"
#include "posi/posi_verify.h"

namespace tr7 {

void InstallPosiFlows() {
  FrmPosi& f = frmPosi;
  f.cmdPosiOpen.Click = Hooks.PosidataFileOpen = PosidataFileOpen;
  f.cmdPosiSave.Click = Hooks.PosidataSaveToFile = PosidataSaveToFile;
  f.cmdPosiSaveAs.Click = Hooks.PosiDataSaveAs = PosiDataSaveAs;
  f.cmdPosiWrite.Click = Hooks.PosidataLoadtoCt = PosidataLoadtoCt;
  f.cmdPosiCtVerify.Click = Hooks.PosiDataCtShogo = PosiDataCtShogo;
  f.cmdPosiFileVerify.Click = Hooks.PosiDataFileShogo2 = PosiDataFileShogo2;
}

}  // namespace tr7
