#include "motion/group_range.h"

#include <string>

#include "data/grp_table.h"
#include "forms/frm_posi.h"
#include "state/app_state.h"
#include "state/text.h"

namespace tr7 {

GroupNumbers GroupRange() {
  const int group = frmPosi.Move.sldrGrpNo.Value;
  return {GrpTable.GrpStart[group], GrpTable.GrpEnd[group]};
}

void ShowGroupRange() {
  constexpr int kMsgNotInTable = 5291, kRangeWords = 5292;
  PosiMoveTest& f = frmPosi.Move;
  const GroupNumbers range = GroupRange();
  const std::string number = std::to_string(f.sldrGrpNo.Value);
  f.lblGrpNo.Caption = number;
  f.lblGrpRange.Caption =
      Text(kRangeWords, std::to_string(range.first), std::to_string(range.last));
  const bool held = AppState.PosiFirstNo > 0 && range.first >= AppState.PosiFirstNo &&
                    range.last <= AppState.PosiLastNo;
  if (!held) f.lblGrpRange.Caption += "\n" + Text(kMsgNotInTable, number);
}

}  // namespace tr7
