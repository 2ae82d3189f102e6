#pragma once

#include <QColor>
#include <QFocusEvent>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "forms/control.h"

namespace tr7 {

/// True when a command may run now: an edit that is open is finished first, and a refused one
/// stops the command.
using CommandGate = std::function<bool()>;

/// One control of a record tied to its widget. `Push` draws what the record holds, and costs next
/// to nothing when nothing has changed. What the user does goes into the record at once, then to
/// the record's handler; the handler may pump, and may close the view that the widget stands on.
class Binding {
 public:
  virtual ~Binding() = default;
  virtual void Push() = 0;

 protected:
  /// Remembers `value`; true when it differs from what was drawn last.
  template <typename Value>
  static bool Changed(std::optional<Value>& shown, const Value& value) {
    if (shown == value) return false;
    shown = value;
    return true;
  }
};

/// True for a focus event of this type that the user has caused inside the window: a menu, a list
/// that drops down and another window take the focus only for a while.
inline bool FocusMoves(const QEvent& event, QEvent::Type type) {
  if (event.type() != type) return false;
  const auto reason = static_cast<const QFocusEvent&>(event).reason();
  return reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason &&
         reason != Qt::MenuBarFocusReason;
}

inline QString Q(const std::string& text) { return QString::fromStdString(text); }

/// Enabled, visible and tool tip, which every widget has.
class WidgetBinding : public Binding {
 public:
  WidgetBinding(Control& control, QWidget& widget) : control_(control), widget_(widget) {}
  void Push() override;

 protected:
  void PushVisible();

  Control& control_;
  QWidget& widget_;

 private:
  void PushToolTip();

  std::optional<bool> enabled_, visible_;
  std::optional<QColor> differs_;  ///< the colour of a difference; none where there was one
  std::optional<std::string> tool_tip_;
};

}  // namespace tr7
