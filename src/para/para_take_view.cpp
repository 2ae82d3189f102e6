#include "para/para_take_view.h"

#include "para/para_check.h"
#include "para/para_filled.h"
#include "para/para_show.h"
#include "platform/doors.h"
#include "state/message_box.h"

namespace tr7 {

FilledCheck::~FilledCheck() {
  if (missing_) doors.forms->SetFocus(*missing_);
}

bool FilledCheck::Holds() {
  const MissingParaField empty = FirstMissingParaField();
  missing_ = empty.Field;
  if (missing_) MsgBox(WithReason(TwoLines(7, 8), empty.Name));
  return !missing_;
}

bool TakeParaView(MsgId wrong_id, MsgId again_id) {
  TorikomiParametaValue();
  if (ParametaValueCheck() == 0) return true;
  MsgBox(TwoLines(wrong_id, again_id));
  return false;
}

}  // namespace tr7
