#include "ui/help_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QVariant>
#include <QWidget>

#include "forms/frm_main.h"

namespace tr7 {

namespace {

/// Empty: that of the view in front.
QString PageInFront() {
  if (const QWidget* modal = QApplication::activeModalWidget()) {
    return modal->property(kHelpPageProperty).toString();
  }
  const QWidget* at = QApplication::focusWidget();
  if (!at) at = QApplication::activeWindow();
  for (; at; at = at->parentWidget()) {
    const QString page = at->property(kHelpPageProperty).toString();
    if (!page.isEmpty()) return page;
  }
  return {};
}

}  // namespace

HelpKey::HelpKey() { QCoreApplication::instance()->installEventFilter(this); }

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  const bool claim = event->type() == QEvent::ShortcutOverride;
  if ((!claim && event->type() != QEvent::KeyPress) || !watched->isWidgetType()) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier) return false;
  const std::string page = PageInFront().toStdString();
  if (claim) {
    // The menu's shortcut comes ahead of the key, and knows the views alone.
    if (!page.empty()) event->accept();
    return !page.empty();
  }
  if (key.isAutoRepeat()) return true;
  // Not in here: where there is no manual, a box says so and waits.
  QTimer::singleShot(0, this, [page] {
    if (frmMain.Help) frmMain.Help(page);
  });
  return true;
}

}  // namespace tr7
