#pragma once

#include <QAbstractButton>
#include <QMessageBox>

#include "platform/form_host.h"
#include "state/text.h"

namespace tr7 {

/// The box's button for this answer, or null.
inline QAbstractButton* ButtonOf(const QMessageBox& box, MsgAnswer answer) {
  const bool yes_or_no = answer == MsgAnswer::Yes || answer == MsgAnswer::No;
  const MsgId ok_or_cancel = answer == MsgAnswer::Ok ? MsgId(5152) : MsgId(5153);
  const MsgId caption =
      yes_or_no ? (answer == MsgAnswer::Yes ? MsgId(5150) : MsgId(5151)) : ok_or_cancel;
  for (QAbstractButton* button : box.buttons()) {
    if (button->text().toStdString() == Text(caption)) return button;
  }
  return nullptr;
}

}  // namespace tr7
