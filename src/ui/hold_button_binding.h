#pragma once

#include <QPushButton>
#include <QTimer>
#include <cstdint>

#include "forms/hold_button.h"
#include "ui/binding.h"

namespace tr7 {

/// A button that is held by the mouse or by its key. It listens to the whole program, since what
/// takes the hand away need not happen to the button: the release may go elsewhere, another window
/// may come in front, the program may lose the screen.
class HoldButtonBinding : public QObject, public WidgetBinding {
 public:
  HoldButtonBinding(HoldButton& record, QPushButton& button, const CommandGate& gate);
  ~HoldButtonBinding() override;
  void Push() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum class Hand { None, Mouse, Key };
  bool IsInFront() const;
  bool MayBePressed() const;
  bool Bounces(const QEvent& event) const;
  bool IsOurKey(const QEvent& event) const;
  bool TakesHandAway(const QObject& watched, const QEvent& event) const;
  bool Press(Hand hand);
  void LetGo();
  bool KeyDown(const QEvent& event);
  void KeyUp(const QEvent& event);

  HoldButton& record_;
  QPushButton& button_;
  CommandGate gate_;
  Hand hand_ = Hand::None;
  int key_ = 0;
  std::uint32_t held_code_ = 0;  ///< of the key that holds, whatever Ctrl and Alt make of its name
  QTimer key_up_;                ///< until a release of the key is taken for one
  std::uint64_t key_up_ms_ = 0;  ///< when the key last went up, by the window system's clock
  std::optional<std::string> caption_;
};

}  // namespace tr7
