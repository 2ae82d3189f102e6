#include "para/para_show.h"

#include "para/para_axis_show.h"
#include "para/para_columns.h"

namespace tr7 {

void ParametaHyoji() {
  frmParameta2.FormerTexts.clear();  // of other parameters
  SettleParaColumns();
  for (const int axis : AxisList(LiveAxisMask())) ShowParaAxis(axis);
  for (const ParaTextField& field : ParaTextFields()) {
    if (!IsAxisRow(field.Row)) ShowParaText(field, 0);
  }
  for (const ParaListField& field : ParaListFields()) {
    if (!IsAxisRow(field.Row)) ShowParaList(field, 0);
  }
  for (const ParaOptionField& field : ParaOptionFields()) ShowParaOption(field);
  ShowParaAxisMask();
}

}  // namespace tr7
