#include "ui/help_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QVariant>
#include <QWidget>

#include "forms/frm_main.h"

namespace tr7 {

HelpKey::HelpKey() { QCoreApplication::instance()->installEventFilter(this); }

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier) return false;
  if (key.isAutoRepeat()) return true;
  const QWidget* modal = QApplication::activeModalWidget();
  const std::string page = modal ? modal->property(kHelpPageProperty).toString().toStdString() : "";
  // Not in here: where there is no manual, a box says so and waits.
  QTimer::singleShot(0, this, [page] {
    if (frmMain.Help) frmMain.Help(page);
  });
  return true;
}

}  // namespace tr7
