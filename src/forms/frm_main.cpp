#include "forms/frm_main.h"

namespace tr7 {

FrmMain::FrmMain() : View("frmMain") {
  cmdStopNow.Urgent = true;
  imgAlarm.Visible = false;
  imgComPort.Visible = false;
  imgOnline.Visible = false;
  lblSimulated.Visible = false;
  cmdComCancel.Visible = false;
  cmdComCancel.Enabled = false;
  cmdComCancel.Cancel = true;
  ProgressBar1.Visible = false;
}

}  // namespace tr7
