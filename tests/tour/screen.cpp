#include "tests/tour/screen.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QWindow>

namespace tr7::tour {
namespace {

QString Described(const QWidget& widget) {
  return QString("%1 \"%2\"").arg(widget.metaObject()->className(), widget.objectName());
}

}  // namespace

QString WhyNotReachable(const QWidget& widget, const QPoint& at) {
  if (!widget.isVisible()) return Described(widget) + " is not on the screen";
  if (!widget.isEnabled()) return Described(widget) + " is off";
  const QWidget* modal = QApplication::activeModalWidget();
  const bool popup = QApplication::activePopupWidget() != nullptr;
  if (modal && modal != widget.window() && !popup) return Described(*modal) + " is in front";
  const QWidget* hit = QApplication::widgetAt(widget.mapToGlobal(at));
  if (!hit) return Described(widget) + " lies outside of the screen";
  if (hit == &widget || widget.isAncestorOf(hit)) return {};
  return Described(*hit) + " covers " + Described(widget);
}

/// A click brings its window to the front; where there is no window manager, nobody else does it.
void ClickAt(QWidget& widget, const QPoint& at) {
  QWindow& window = *widget.window()->windowHandle();
  if (QGuiApplication::focusWindow() != &window) widget.window()->activateWindow();
  QTest::mouseClick(&window, Qt::LeftButton, Qt::NoModifier, widget.mapTo(widget.window(), at));
}

void PressAt(QWidget& widget, const QPoint& at, bool down) {
  QWindow& window = *widget.window()->windowHandle();
  const QPoint place = widget.mapTo(widget.window(), at);
  down ? QTest::mousePress(&window, Qt::LeftButton, Qt::NoModifier, place)
       : QTest::mouseRelease(&window, Qt::LeftButton, Qt::NoModifier, place);
}

void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  const QWidget* popup = QApplication::activePopupWidget();
  QWindow* window = popup ? popup->windowHandle() : QGuiApplication::focusWindow();
  if (window) QTest::keyClick(window, key, modifiers);
}

void TypeText(const QString& text) {
  for (const QChar letter : text) {
    QWindow* window = QGuiApplication::focusWindow();
    if (!window) return;
    const Qt::Key key =
        letter.unicode() < 0x80 ? QTest::asciiToKey(letter.toLatin1()) : Qt::Key_unknown;
    QTest::sendKeyEvent(QTest::Click, window, key, letter, Qt::NoModifier);
  }
}

QString ShownText(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) return edit->text();
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return combo->currentText();
  if (const auto* box = qobject_cast<const QMessageBox*>(&widget)) return box->text();
  return widget.windowTitle();
}

}  // namespace tr7::tour
