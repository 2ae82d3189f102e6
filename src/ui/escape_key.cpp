#include "ui/escape_key.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "forms/frm_main.h"

namespace tr7 {

EscapeKey::EscapeKey() { QCoreApplication::instance()->installEventFilter(this); }

/// A shortcut's claim comes ahead of the key itself.
bool EscapeKey::eventFilter(QObject* watched, QEvent* event) {
  const bool claim = event->type() == QEvent::ShortcutOverride;
  if (!claim && event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.key() != Qt::Key_Escape || !watched->isWidgetType()) return false;
  const bool swallowed = !claim && taken_;
  taken_ = false;
  if (swallowed) return true;
  if (key.isAutoRepeat() || !frmMain.Escape || !frmMain.Escape()) return false;
  taken_ = claim;
  event->accept();
  return true;
}

}  // namespace tr7
