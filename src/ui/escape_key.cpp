#include "ui/escape_key.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "forms/frm_main.h"
#include "ui/key_repeat.h"

namespace tr7 {

EscapeKey::EscapeKey() { QCoreApplication::instance()->installEventFilter(this); }

/// A shortcut's claim comes ahead of the key itself.
bool EscapeKey::eventFilter(QObject* watched, QEvent* event) {
  const bool claim = event->type() == QEvent::ShortcutOverride;
  const bool release = event->type() == QEvent::KeyRelease;
  if (!claim && !release && event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.key() != Qt::Key_Escape || !watched->isWidgetType()) return false;
  if (release) {
    if (!key.isAutoRepeat()) up_ms_ = key.timestamp();
    return false;
  }
  const bool swallowed = !claim && taken_;
  taken_ = false;
  if (swallowed) return true;
  const bool held = key.isAutoRepeat() || ClosesPair(key, up_ms_);
  const bool stops = !key.isAutoRepeat() && frmMain.Escape && frmMain.Escape();
  if (!stops && !held) return false;
  taken_ = claim;
  event->accept();
  return true;
}

}  // namespace tr7
