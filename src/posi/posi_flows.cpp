#include "posi/posi_flows.h"

#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "posi/posi_compare.h"
#include "posi/posi_file_flows.h"
#include "posi/posi_new.h"
#include "posi/posi_open.h"
#include "posi/posi_transfer.h"
#include "posi/posi_verify.h"

namespace tr7 {

void InstallPosiFlows() {
  FrmPosi& f = frmPosi;
  f.cmdPosiNew.Click = f.Commands.New = SinkiSakusei;
  f.cmdPosiOpen.Click = f.Commands.Open = PosidataFileOpen;
  f.cmdPosiSave.Click = f.Commands.Save = PosidataSaveToFile;
  f.cmdPosiSaveAs.Click = f.Commands.SaveAs = PosiDataSaveAs;
  f.cmdPosiFileVerify.Click = PosiDataFileShogo2;
  f.cmdPosiCompare.Click = ComparePositions;
  f.cmdPosiRead.Click = frmMain.mnuContPosiRead.Click = PosidataGetfromCt;
  f.cmdPosiWrite.Click = frmMain.mnuContPosiWrite.Click = PosidataLoadtoCt;
  f.cmdPosiCtVerify.Click = frmMain.mnuContPosiVerify.Click = PosiDataCtShogo;
  frmMain.mnuContPosiRead.Button = &f.cmdPosiRead;
  frmMain.mnuContPosiWrite.Button = &f.cmdPosiWrite;
  frmMain.mnuContPosiVerify.Button = &f.cmdPosiCtVerify;
}

}  // namespace tr7
