#include "forms/frm_device.h"
#include "forms/frm_options2.h"
#include "forms/frm_select_posi_no.h"
#include "forms/frm_selection.h"
#include "forms/frm_splash.h"
#include "forms/frm_syogo_kekka.h"

namespace tr7 {

FrmSplash frmSplash;
SelectionView frmSelection{"frmSelection"};
SelectionView frmSelection2{"frmSelection2"};
FrmOptions2 frmOptions2;
FrmSyogoKekka frmSyogoKekka;
DeviceView frmDevice2{"frmDevice2", 6250, false};
DeviceView frmDevice3{"frmDevice3", 6251, true};
SelectPosiNoView frmSelectPosiNo2{"frmSelectPosiNo2", 5350};
SelectPosiNoView frmSelectPosiNo3{"frmSelectPosiNo3", 5355};
SelectPosiNoView frmSelectPosiNo4{"frmSelectPosiNo4", 5356};

}  // namespace tr7
