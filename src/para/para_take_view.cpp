#include "para/para_take_view.h"

#include <vector>

#include "para/para_check.h"
#include "para/para_filled.h"
#include "para/para_show.h"
#include "para/para_value_text.h"
#include "para/param_set.h"
#include "platform/doors.h"
#include "state/message_box.h"

namespace tr7 {
namespace {

std::string LinesOf(const std::vector<ParaCell>& cells) {
  std::string lines;
  for (const ParaCell& cell : cells) {
    lines += ParaCellName(cell) + ": " + ParaValueText(ParamSet, cell.Row, cell.Axis) + "\n";
  }
  return lines;
}

}  // namespace

FilledCheck::~FilledCheck() {
  if (missing_) doors.forms->SetFocus(*missing_);
}

bool FilledCheck::Holds() { return Holds(TwoLines(7, 8)); }

bool FilledCheck::Holds(const std::string& words) {
  const MissingParaField empty = FirstMissingParaField();
  missing_ = empty.Field;
  if (missing_) MsgBoxWithDetails(WithReason(words, empty.Name), empty.All);
  return !missing_;
}

bool TakeParaView(const std::string& words) {
  TorikomiParametaValue();
  const std::vector<ParaCell> wrong = ParaCellsOutOfRange();
  if (!wrong.empty()) MsgBoxWithDetails(words, LinesOf(wrong));
  return wrong.empty();
}

bool TakeParaView(MsgId wrong_id, MsgId again_id) {
  return TakeParaView(TwoLines(wrong_id, again_id));
}

}  // namespace tr7
