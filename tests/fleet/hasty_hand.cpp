#include "forms/grid.h"
#include "tests/fleet/voyage.h"

namespace tr7 {
namespace {

constexpr int kLongestPauseUs = 700'000;
/// A flow begun inside a flow, and another inside that one: nobody's hand is quicker.
constexpr int kDeepest = 3;

using Press = std::function<void()>;

void AddTools(Toolbar& bar, std::vector<Press>& presses) {
  for (const ToolButton& button : bar.Buttons) {
    const std::string key = button.Key;
    if (!key.empty() && button.Enabled) presses.push_back([&bar, key] { bar.Press(key); });
  }
}

void AddTabs(TabStrip& strip, std::vector<Press>& presses) {
  for (std::size_t i = 0; i < strip.Tabs.size(); ++i) {
    if (!strip.Tabs[i].Enabled) continue;
    presses.push_back([&strip, i] { ClickTab(strip, static_cast<int>(i)); });
  }
}

/// What a click on this control does now; nothing where it is off or out of reach.
void AddPresses(Control& control, std::vector<Press>& presses) {
  if (!control.Enabled || !control.Visible) return;
  if (auto* button = dynamic_cast<CommandButton*>(&control)) {
    if (button->Click) presses.push_back([button] { button->Press(); });
  } else if (auto* menu = dynamic_cast<Menu*>(&control)) {
    if (menu->Click && menu->IsOn()) presses.push_back([menu] { menu->Press(); });
  } else if (auto* label = dynamic_cast<Label*>(&control)) {
    if (label->DblClick) presses.push_back(label->DblClick);
  } else if (auto* bar = dynamic_cast<Toolbar*>(&control)) {
    AddTools(*bar, presses);
  } else if (auto* strip = dynamic_cast<TabStrip*>(&control)) {
    AddTabs(*strip, presses);
  }
}

/// What starts a motion is for hands that let go of it again.
bool Moves(const Control& control) {
  const PosiMoveTest& move = frmPosi.Move;
  return &control == &move.cmdHome || &control == &move.cmdSelectMove ||
         &control == &move.cmdMove || &control == &move.cmdGrpMove ||
         &control == &frmPosi.Teach.cmdJOGST;
}

/// Everything that the views in front offer: a dialogue keeps the hand off all others.
std::vector<Press> Offered(const Voyage& voyage, bool may_exit) {
  std::vector<Press> presses;
  View* modal = voyage.virt.forms.ModalInFront();
  for (View* view : AllViews()) {
    if (!view->Visible || !view->Loaded || (modal && view != modal)) continue;
    for (Control* control : view->Controls) {
      // Leaving the tool ends the run: that comes late, if at all.
      if (Moves(*control)) continue;
      if (control != &frmMain.mnuFileExit || may_exit) AddPresses(*control, presses);
    }
  }
  return presses;
}

void PressSomething(Voyage& voyage) {
  if (voyage.virt.forms.box_stands || voyage.presses_open >= kDeepest) return;
  const std::vector<Press> presses = Offered(voyage, voyage.random.Chance(1));
  if (presses.empty()) return;
  const int which = voyage.random.Below(static_cast<int>(presses.size()));
  ++voyage.presses_open;
  presses[static_cast<std::size_t>(which)]();
  --voyage.presses_open;
}

void NextPress(Voyage& voyage) {
  voyage.virt.pump.After(voyage.random.Below(kLongestPauseUs), [&voyage] {
    if (voyage.virt.forms.ended || !voyage.hasty) return;
    NextPress(voyage);
    PressSomething(voyage);
  });
}

/// Boxes stand for a while, and what runs beneath goes on.
void LetTimePass(Voyage& voyage) {
  if (voyage.hasty && voyage.random.Chance(50)) {
    voyage.virt.pump.RunFor(voyage.random.Below(400'000));
  }
}

}  // namespace

void SeatHastyHand(Voyage& voyage) {
  voyage.hasty = true;
  voyage.virt.forms.while_box = [&voyage] { LetTimePass(voyage); };
  const auto answer = voyage.virt.forms.on_any_modal;
  voyage.virt.forms.on_any_modal = [&voyage, answer](View& view) {
    LetTimePass(voyage);
    if (view.Visible) answer(view);
  };
  NextPress(voyage);
}

void WorkHastily(Voyage& voyage) {
  constexpr std::int64_t kRoundUs = 8'000'000, kLastFlowUs = 30'000'000;
  voyage.BeginFlow("write");  // the hand may press that too
  voyage.hasty = true;
  NextPress(voyage);
  voyage.virt.pump.RunFor(kRoundUs);
  voyage.hasty = false;
  if (!voyage.virt.forms.ended) voyage.virt.pump.RunFor(kLastFlowUs);
  voyage.sent_at_refusal.reset();  // other flows went on
}

}  // namespace tr7
