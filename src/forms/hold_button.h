#pragma once

#include <string>

#include "forms/control.h"

namespace tr7 {

/// A button that acts for as long as it is held, by the left mouse button or by its key. After
/// every press exactly one release arrives, whatever takes the hand away: the hand itself, the
/// button or its view switched off or hidden, another window or a box in front, the view's end.
/// One button is held at a time; a press while another one is held is none.
struct HoldButton : Control {
  HoldButton(View& owner, const std::string& name, MsgId tag = {}, std::string key = {})
      : Control(owner, "HoldButton", name, tag), Key(std::move(key)) {}
  ~HoldButton() override;

  std::string Key;  ///< as the toolkit spells it, "F5"; empty: none
  Handler<void()> MouseDown;
  Handler<void()> MouseUp;

  /// Presses as a user does. False where there is nothing to press: it is off, hidden, or a button
  /// is held already; its release then is none either.
  bool Hold();
  /// The hand is gone. Nothing where the button is not held.
  void LetGo();

  bool IsHeld() const { return held_ == this; }
  /// The button that is held, or null.
  static HoldButton* Held() { return held_; }

 private:
  inline static HoldButton* held_ = nullptr;
};

/// Lets go of whatever is held: something comes in front of it.
void LetGoOfHeldButton();
/// The same where the button can be held no longer: it or its view is off or out of sight. The host
/// calls it whenever handlers may have changed that.
void LetGoOfLostButton();

}  // namespace tr7
