// Controls and their widgets: what the record holds is drawn, what the user does is in the record.

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolBar>

#include "forms/frm_device.h"
#include "forms/frm_options2.h"
#include "forms/frm_select_posi_no.h"
#include "forms/frm_sq_mcr.h"
#include "tests/ui/ui_test.h"
#include "ui/hold_button_binding.h"
#include "ui/lamp.h"
#include "ui/message_dialog.h"

namespace tr7 {
namespace {

class BindingTest : public UiTest {
 protected:
  template <typename Widget>
  Widget& Draw(Control& control) {
    View& view = *control.Owner;
    if (!view.Visible) {
      ApplyViewCaptions(view);
      view.Visible = true;
      desktop.forms.Show(view);
    }
    Settle();
    auto* widget = qobject_cast<Widget*>(desktop.forms.WidgetOf(control));
    if (!widget) throw std::runtime_error(control.Name + " has no widget of that kind");
    return *widget;
  }
  std::function<void()> Note(const std::string& event) {
    return [this, event] { events += event + " "; };
  }
  /// What has come since the last call.
  std::string Events() { return std::exchange(events, ""); }
  static std::string Of(const QString& text) { return text.toStdString(); }

  std::string events;
};

TEST_F(BindingTest, ATextBoxTakesItsCharactersAndNoMoreThanItsLength) {
  TextBox& box = frmSelectPosiNo2.txtFromNo;
  auto& edit = Draw<QLineEdit>(box);
  box.Change = Note("change");
  QTest::keyClicks(&edit, "1a2-34");
  EXPECT_EQ(box.Text + Of(edit.text()), "123123");
  EXPECT_EQ(Events(), "change change change ");
  edit.selectAll();
  edit.insert("4.5a");  // as a paste does
  EXPECT_EQ(box.Text, "45");
  Events();
  box.Text = "12345";
  Settle();
  EXPECT_EQ(Of(edit.text()), "12345") << "whole, though nobody could type it";
  EXPECT_EQ(Events(), "");
}

TEST_F(BindingTest, EnterAndTheFocusReachTheRecord) {
  TextBox& box = frmSelectPosiNo2.txtFromNo;
  auto& edit = Draw<QLineEdit>(box);
  // Until then a window system may still hand the window's focus about.
  edit.window()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(edit.window()));
  Draw<QLineEdit>(frmSelectPosiNo2.txtToNo).setFocus(Qt::TabFocusReason);
  box.Enter = Note("enter");
  box.Undo = [this] { return events += "undo ", true; };
  box.GotFocus = Note("got");
  box.LostFocus = Note("lost");
  edit.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&edit, Qt::Key_Return);
  QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(&edit, Qt::Key_Tab);
  EXPECT_EQ(Events(), "got enter undo lost ");
}

TEST_F(BindingTest, ChecksAndOptionsGoBothWaysAndOneOfAGroupIsChosen) {
  FrmOptions2& view = frmOptions2;
  view.optUnitPulse.Click = Note("pulse");
  view.optUnitMm.Choose();
  view.optJapanese.Choose();
  auto& millimetres = Draw<QRadioButton>(view.optUnitMm);
  auto& pulses = Draw<QRadioButton>(view.optUnitPulse);
  auto& occupy = Draw<QCheckBox>(view.chkPortOccupy);
  EXPECT_TRUE(millimetres.isChecked());
  pulses.click();
  occupy.click();
  Settle();
  EXPECT_EQ(Events(), "pulse ");
  EXPECT_TRUE(view.optUnitPulse.Value && !view.optUnitMm.Value && view.chkPortOccupy.Value);
  EXPECT_FALSE(millimetres.isChecked());
  EXPECT_TRUE(view.optJapanese.Value) << "another group";
  view.optUnitPulse.Value = view.chkPortOccupy.Value = false;
  Settle();
  EXPECT_FALSE(millimetres.isChecked() || pulses.isChecked()) << "no choice at all";
  EXPECT_FALSE(occupy.isChecked());
}

TEST_F(BindingTest, AComboBoxGoesBothWays) {
  ComboBox& record = frmOptions2.comboPortDevice;
  auto& combo = Draw<QComboBox>(record);
  record.Click = Note("click");
  record.Clear();
  for (const char* entry : {"one", "two", "three"}) record.AddItem(entry, 0);
  Settle();
  EXPECT_EQ(combo.currentIndex(), -1) << "nothing is chosen by itself";
  record.ListIndex = 1;
  Settle();
  EXPECT_EQ(Of(combo.currentText()) + Events(), "two");
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(record.ListIndex, 2);
  EXPECT_EQ(Events(), "click ");
  // This one takes a text that is not in the list, with the cursor where it was.
  combo.lineEdit()->setCursorPosition(2);
  QTest::keyClick(&combo, Qt::Key_X);
  Settle();
  EXPECT_EQ(record.Text() + "/" + Of(combo.currentText()), "thxree/thxree");
  EXPECT_EQ(record.ListIndex, -1);
  EXPECT_EQ(combo.lineEdit()->cursorPosition(), 3);
}

TEST_F(BindingTest, TheWheelChoosesNothingAndScrollsWhatIsAround) {
  ComboBox& record = frmDevice2.comboAxisSelect;
  for (const char* entry : {"one", "two"}) record.AddItem(entry, 0);
  record.ListIndex = 0;
  frmSqMcr.UpDownSmNo.Set(2);
  for (QWidget* widget : {static_cast<QWidget*>(&Draw<QComboBox>(record)),
                          static_cast<QWidget*>(&Draw<QSpinBox>(frmSqMcr.UpDownSmNo))}) {
    for (const bool focused : {false, true}) {
      focused ? widget->setFocus() : widget->clearFocus();
      QWheelEvent turn({5, 5}, widget->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
      QCoreApplication::sendEvent(widget, &turn);
      EXPECT_FALSE(turn.isAccepted());
    }
  }
  EXPECT_EQ(record.ListIndex, 0);
  EXPECT_EQ(frmSqMcr.UpDownSmNo.Value, 2);
}

TEST_F(BindingTest, ACommandThatGoesOnlineSaysSoWhileOffline) {
  const auto& button = Draw<QPushButton>(frmMain.cmdReset);
  for (const bool offline : {true, false}) {
    AppState.Offline = offline;
    Settle();
    EXPECT_EQ(button.toolTip().contains(Q(Text(7831))), offline);
    const auto* sign = button.findChild<QWidget*>();
    EXPECT_EQ(sign && sign->isVisible(), offline);
  }
}

/// As some window systems tell it: a pair of a release and a press of one moment, and not as
/// repeat.
TEST_F(BindingTest, AHeldKeyHoldsOverTheRepeatsOfItsKeyAndEndsWithItsRelease) {
  View view("frmHeld");
  view.Visible = true;
  HoldButton record(view, "cmdHeld", {}, "F6");
  record.MouseDown = Note("down");
  record.MouseUp = Note("up");
  QPushButton button;
  HoldButtonBinding binding(record, button, [] { return true; });
  button.show();
  button.activateWindow();
  ASSERT_TRUE(Until([&button] { return button.isActiveWindow(); }));
  const auto key = [&button](QEvent::Type type, int ms, Qt::Key name = Qt::Key_F6) {
    QKeyEvent event(type, name, Qt::NoModifier, 72, 0, 0);
    event.setTimestamp(static_cast<std::uint64_t>(ms));
    QApplication::sendEvent(&button, &event);
  };
  key(QEvent::KeyPress, 1'000);
  for (int ms = 1'500; ms < 1'600; ms += 30) {
    key(QEvent::KeyRelease, ms);
    key(QEvent::KeyPress, ms);
    WaitMs(5);
  }
  EXPECT_EQ(Events(), "down ");
  key(QEvent::KeyRelease, 1'700);
  key(QEvent::KeyPress, 1'730);
  EXPECT_TRUE(Until([this] { return events == "up "; }, 20)) << "late and in one go: not again";
  key(QEvent::KeyPress, 2'000);
  key(QEvent::KeyRelease, 2'100, Qt::Key_Execute);
  EXPECT_TRUE(Until([this] { return events == "up down up "; }, 20)) << "of whatever name";
}

TEST_F(BindingTest, WhatIsOffIsNotPressed) {
  auto& button = Draw<QPushButton>(frmMain.cmdReset);
  frmMain.cmdReset.Click = Note("reset");
  button.click();
  frmMain.cmdReset.Enabled = false;
  frmMain.tbToolBar.At(7).Enabled = false;
  frmMain.tbToolBar.ButtonClick = [this](const std::string& key) { Note(key)(); };
  Settle();
  button.click();
  QTest::mouseClick(&button, Qt::LeftButton);
  for (QAction* action : Draw<QToolBar>(frmMain.tbToolBar).actions()) action->trigger();
  EXPECT_EQ(Events(), "reset New Open Save Print Copy Paste PrgEdit PrgExe ");
}

}  // namespace
}  // namespace tr7
