#pragma once

#include <string>

#include "forms/control.h"
#include "forms/row_array.h"

namespace tr7 {

/// One tuning value with its number.
struct SysParaField {
  SysParaField(View& owner, std::size_t index)
      : lblSystemPara(owner, "lblSystemPara" + std::to_string(index + 1)),
        txtSystemPara(owner, "txtSystemPara" + std::to_string(index + 1)) {
    txtSystemPara.MaxLength = 5;
    txtSystemPara.AllowedChars = "0123456789";
    txtSystemPara.NamedBy = {&lblSystemPara};
  }
  Label lblSystemPara;
  TextBox txtSystemPara;
};

/// The controller's tuning values: field index 0 to 71 stands for slot 1 to 72.
struct FrmSystemPara : View {
  FrmSystemPara();
  Frame framCt{*this, "framCt", 5230};
  CommandButton cmdReadFromCt{*this, "cmdReadFromCt", 5200};
  CommandButton cmdWritetoCt{*this, "cmdWritetoCt", 5201};
  CommandButton cmdClose{*this, "cmdClose", 2202};
  Frame framSystemPara{*this, "framSystemPara", 6531};
  Frame framPush{*this, "framPush", 6532};
  Frame framCurrenDown{*this, "framCurrenDown", 6533};
  Frame framFullCurrent{*this, "framFullCurrent", 6534};
  RowArray<SysParaField, 72> Fields{*this};
};

inline Standing<FrmSystemPara> frmSystemPara;

}  // namespace tr7
