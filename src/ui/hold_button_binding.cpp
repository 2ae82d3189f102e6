#include "ui/hold_button_binding.h"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMouseEvent>

#include "ui/key_repeat.h"

namespace tr7 {

HoldButtonBinding::HoldButtonBinding(HoldButton& record, QPushButton& button,
                                     const CommandGate& gate)
    : WidgetBinding(record, button), record_(record), button_(button), gate_(gate) {
  const QKeySequence key(Q(record.Key));
  if (!key.isEmpty()) key_ = key[0].key();
  button.setAutoDefault(false);
  key_up_.setSingleShot(true);
  key_up_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&key_up_, &QTimer::timeout, this, [this] { LetGo(); });
  qApp->installEventFilter(this);
  QObject::connect(qApp, &QGuiApplication::applicationStateChanged, this,
                   [this](Qt::ApplicationState state) {
                     if (state != Qt::ApplicationActive) LetGo();
                   });
}

HoldButtonBinding::~HoldButtonBinding() { record_.LetGo(); }

void HoldButtonBinding::Push() {
  WidgetBinding::Push();
  if (Changed(caption_, record_.Caption)) button_.setText(Q(record_.Caption));
  // A release that came from elsewhere: the picture follows.
  if (hand_ != Hand::None && !record_.IsHeld()) LetGo();
}

/// Not in a view that stands behind another one of the frame.
bool HoldButtonBinding::IsInFront() const {
  for (QWidget* above = button_.parentWidget(); above; above = above->parentWidget()) {
    const auto* child = qobject_cast<QMdiSubWindow*>(above);
    if (child) return child->mdiArea()->activeSubWindow() == child;
  }
  return true;
}

/// Where a user could reach it: the record's own state counts once it has been drawn.
bool HoldButtonBinding::MayBePressed() const {
  const QWidget* modal = QApplication::activeModalWidget();
  return button_.isEnabled() && button_.isVisible() && button_.window()->isActiveWindow() &&
         IsInFront() && (!modal || modal == button_.window()) && !QApplication::activePopupWidget();
}

bool HoldButtonBinding::Press(Hand hand) {
  if (hand_ != Hand::None || !MayBePressed() || !gate_()) return false;
  hand_ = hand;
  button_.setDown(true);
  // The handler waits for the controller: the hand may be gone when it returns, and the button too.
  record_.Hold();
  return true;
}

void HoldButtonBinding::LetGo() {
  key_up_.stop();
  if (hand_ == Hand::None) return;
  hand_ = Hand::None;
  button_.setDown(false);
  record_.LetGo();
}

bool HoldButtonBinding::IsOurKey(const QEvent& event) const {
  const auto& key = static_cast<const QKeyEvent&>(event);
  const bool held = hand_ == Hand::Key && held_code_ != 0;
  if (held && key.nativeScanCode() == held_code_) return true;
  if (key.key() == key_ && key_ != 0) return true;
  return key.key() == Qt::Key_Space && button_.hasFocus();
}

/// Where the window system does not say that a key repeats, the press right behind a release takes
/// the hold up that has not ended yet, and begins none where it has.
bool HoldButtonBinding::Bounces(const QEvent& event) const {
  return ClosesPair(static_cast<const QKeyEvent&>(event), key_up_ms_);
}

/// True: a hold has begun, and may be over by now.
bool HoldButtonBinding::KeyDown(const QEvent& event) {
  const auto& key = static_cast<const QKeyEvent&>(event);
  if (key.isAutoRepeat()) return false;
  if (Bounces(event)) {
    key_up_.stop();
    return false;
  }
  // With them it is another key, one that goes through windows perhaps.
  if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  if (hand_ == Hand::None) held_code_ = key.nativeScanCode();
  // Behind a release that still waits it begins nothing: what that ends waits for the controller,
  // and meanwhile the hand may have gone again.
  return Press(Hand::Key);
}

/// The press of a pair is there as soon as its release, or the least bit behind it. Who waits for
/// it loses a millisecond at the end of a jog; who does not ends one under the user's finger.
void HoldButtonBinding::KeyUp(const QEvent& event) {
  constexpr int kPressBehindMs = 1;
  const auto& key = static_cast<const QKeyEvent&>(event);
  if (key.isAutoRepeat()) return;
  key_up_ms_ = key.timestamp();
  if (hand_ == Hand::Key) key_up_.start(kPressBehindMs);
}

/// What ends a hold though no button and no key goes up.
bool HoldButtonBinding::TakesHandAway(const QObject& watched, const QEvent& event) const {
  switch (event.type()) {
    case QEvent::Hide:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
    case QEvent::WindowStateChange:
    case QEvent::Close:
      return watched.isWidgetType() &&
             (&watched == &button_ || static_cast<const QWidget&>(watched).isAncestorOf(&button_));
    case QEvent::EnabledChange:
      return &watched == &button_ && !button_.isEnabled();
    case QEvent::UngrabMouse:
      return &watched == &button_ && hand_ == Hand::Mouse;
    case QEvent::FocusOut:
      return &watched == &button_ && hand_ == Hand::Key;
    default:
      return false;
  }
}

bool HoldButtonBinding::eventFilter(QObject* watched, QEvent* event) {
  const auto is_left = [event] {
    return static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton;
  };
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (watched != &button_ || !is_left()) return false;
      Press(Hand::Mouse);
      return true;
    case QEvent::MouseButtonRelease:
      if (hand_ == Hand::Mouse && is_left()) LetGo();
      return watched == &button_;
    case QEvent::MouseMove:
      // The release went to something else: the button is up though nobody has told.
      if (hand_ == Hand::Mouse && watched->isWidgetType() &&
          !(static_cast<const QMouseEvent*>(event)->buttons() & Qt::LeftButton)) {
        LetGo();
      }
      return watched == &button_;
    case QEvent::KeyPress:
      if (!watched->isWidgetType() || !IsOurKey(*event)) return false;
      if (KeyDown(*event)) return true;
      return hand_ == Hand::Key || watched == &button_;
    case QEvent::KeyRelease:
      if (!watched->isWidgetType() || !IsOurKey(*event)) return false;
      KeyUp(*event);
      return watched == &button_;
    default:
      if (hand_ != Hand::None && TakesHandAway(*watched, *event)) LetGo();
      return false;
  }
}

}  // namespace tr7
