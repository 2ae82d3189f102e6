// Controls and their widgets: what the record holds is drawn, what the user does is in the record.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QToolBar>

#include "forms/frm_device.h"
#include "forms/frm_main.h"
#include "forms/frm_options2.h"
#include "forms/frm_posi.h"
#include "forms/frm_select_posi_no.h"
#include "state/views.h"
#include "tests/ui/ui_test.h"
#include "ui/lamp.h"

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
  static std::string Of(const QString& text) { return text.toStdString(); }
};

// Text boxes.

TEST_F(BindingTest, ATextBoxTakesItsCharactersAndNoMoreThanItsLength) {
  TextBox& box = frmSelectPosiNo2.txtFromNo;
  auto& edit = Draw<QLineEdit>(box);
  int changes = 0;
  box.Change = [&changes] { ++changes; };
  QTest::keyClicks(&edit, "1a2-34");
  EXPECT_EQ(box.Text, "123");
  EXPECT_EQ(Of(edit.text()), "123");
  EXPECT_EQ(changes, 3);
  edit.clear();
  QTest::keyClicks(&edit, "x");
  EXPECT_EQ(Of(edit.text()), "");
  edit.selectAll();
  edit.insert("4.5a");  // as a paste does
  EXPECT_EQ(box.Text, "45");
}

TEST_F(BindingTest, ATextBoxDrawsWhatLogicSets) {
  TextBox& box = frmSelectPosiNo2.txtFromNo;
  auto& edit = Draw<QLineEdit>(box);
  int changes = 0;
  box.Change = [&changes] { ++changes; };
  box.Text = "12345";
  Settle();
  EXPECT_EQ(Of(edit.text()), "12345") << "whole, though nobody could type it";
  EXPECT_EQ(changes, 0);
  EXPECT_FALSE(edit.testAttribute(Qt::WA_InputMethodEnabled));
  box.InputMethodOff = false;
  Settle();
  EXPECT_TRUE(edit.testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(BindingTest, EnterAndTheFocusReachTheRecord) {
  TextBox& box = frmSelectPosiNo2.txtFromNo;
  auto& edit = Draw<QLineEdit>(box);
  edit.window()->activateWindow();
  std::string events;
  box.Enter = [&events] { events += "enter "; };
  box.Undo = [&events] { return events += "undo ", true; };
  box.GotFocus = [&events] { events += "got "; };
  box.LostFocus = [&events] { events += "lost "; };
  Draw<QLineEdit>(frmSelectPosiNo2.txtToNo).setFocus(Qt::TabFocusReason);
  edit.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&edit, Qt::Key_Return);
  QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(&edit, Qt::Key_Tab);
  EXPECT_EQ(events, "got enter undo lost ");
}

// Choices.

TEST_F(BindingTest, OneOptionOfAGroupIsChosen) {
  Draw<QRadioButton>(frmOptions2.optUnitMm);
  int clicks = 0;
  frmOptions2.optUnitPulse.Click = [&clicks] { ++clicks; };
  frmOptions2.optUnitMm.Choose();
  frmOptions2.optJapanese.Choose();
  auto& millimetres = Draw<QRadioButton>(frmOptions2.optUnitMm);
  auto& pulses = Draw<QRadioButton>(frmOptions2.optUnitPulse);
  EXPECT_TRUE(millimetres.isChecked());
  pulses.click();
  Settle();
  EXPECT_EQ(clicks, 1);
  EXPECT_FALSE(frmOptions2.optUnitMm.Value);
  EXPECT_TRUE(frmOptions2.optUnitPulse.Value);
  EXPECT_FALSE(millimetres.isChecked());
  EXPECT_TRUE(frmOptions2.optJapanese.Value) << "another group";
  // No choice at all is drawn as none.
  frmOptions2.optUnitPulse.Value = false;
  Settle();
  EXPECT_FALSE(millimetres.isChecked());
  EXPECT_FALSE(pulses.isChecked());
}

TEST_F(BindingTest, ACheckBoxGoesBothWays) {
  CheckBox& record = frmOptions2.chkPortOccupy;
  auto& box = Draw<QCheckBox>(record);
  int clicks = 0;
  record.Click = [&clicks] { ++clicks; };
  box.click();
  EXPECT_TRUE(record.Value);
  EXPECT_EQ(clicks, 1);
  record.Value = false;
  Settle();
  EXPECT_FALSE(box.isChecked());
  EXPECT_EQ(clicks, 1);
  record.Click = [&record] { record.Value = false; };  // logic that refuses
  box.click();
  Settle();
  EXPECT_FALSE(box.isChecked());
}

TEST_F(BindingTest, AComboBoxGoesBothWays) {
  ComboBox& record = frmOptions2.comboPortDevice;
  auto& combo = Draw<QComboBox>(record);
  int clicks = 0;
  record.Click = [&clicks] { ++clicks; };
  record.Clear();
  for (const char* entry : {"one", "two", "three"}) record.AddItem(entry, 0);
  Settle();
  EXPECT_EQ(combo.count(), 3);
  EXPECT_EQ(combo.currentIndex(), -1) << "nothing is chosen by itself";
  record.ListIndex = 1;
  Settle();
  EXPECT_EQ(Of(combo.currentText()), "two");
  EXPECT_EQ(clicks, 0);
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(record.ListIndex, 2);
  EXPECT_EQ(clicks, 1);
  record.Click = [&record] { record.ListIndex = 0; };  // logic that knows better
  QTest::keyClick(&combo, Qt::Key_Up);
  Settle();
  EXPECT_EQ(combo.currentIndex(), 0);
  // This one takes a text that is not in the list, with the cursor where it was.
  combo.lineEdit()->setCursorPosition(2);
  QTest::keyClick(&combo, Qt::Key_X);
  Settle();
  EXPECT_EQ(record.Text() + "/" + Of(combo.currentText()), "onxe/onxe");
  EXPECT_EQ(record.ListIndex, -1);
  EXPECT_EQ(combo.lineEdit()->cursorPosition(), 3);
}

TEST_F(BindingTest, TheWheelChoosesNothingAndScrollsWhatIsAround) {
  ComboBox& record = frmDevice2.comboAxisSelect;
  for (const char* entry : {"one", "two"}) record.AddItem(entry, 0);
  record.ListIndex = 0;
  auto& combo = Draw<QComboBox>(record);
  for (const bool focused : {false, true}) {
    focused ? combo.setFocus() : combo.clearFocus();
    QWheelEvent turn({5, 5}, combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&combo, &turn);
    EXPECT_EQ(record.ListIndex, 0);
    EXPECT_FALSE(turn.isAccepted());
  }
}

TEST_F(BindingTest, ATabStripGoesBothWaysAndKeepsOffTabsThatAreOff) {
  TabStrip& strip = frmPosi.tabCmd;
  Draw<QLabel>(frmMain.lblStatus);
  auto& bar = Draw<QTabBar>(strip);
  int clicks = 0;
  strip.Click = [&clicks] { ++clicks; };
  EXPECT_FALSE(bar.isTabEnabled(1));
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(1).center());
  EXPECT_EQ(strip.Selected, 0);
  strip.Tabs[1].Enabled = true;
  Settle();
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(1).center());
  EXPECT_EQ(strip.Selected, 1);
  EXPECT_EQ(clicks, 1);
  strip.Selected = 0;
  Settle();
  EXPECT_EQ(bar.currentIndex(), 0);
  EXPECT_EQ(clicks, 1);
}

// Buttons.

TEST_F(BindingTest, AButtonThatIsOffOrHiddenIsNotPressed) {
  CommandButton& record = frmMain.cmdReset;
  auto& button = Draw<QPushButton>(record);
  int clicks = 0;
  record.Click = [&clicks] { ++clicks; };
  button.click();
  EXPECT_EQ(clicks, 1);
  record.Enabled = false;
  Settle();
  button.click();
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  record.Visible = false;
  Settle();
  EXPECT_FALSE(button.isVisible());
}

TEST_F(BindingTest, TheToolBarsButtonsGoByTheirKeys) {
  auto& bar = Draw<QToolBar>(frmMain.tbToolBar);
  const QList<QAction*> actions = bar.actions();
  ASSERT_EQ(actions.size(), static_cast<qsizetype>(frmMain.tbToolBar.Buttons.size()));
  std::string pressed;
  frmMain.tbToolBar.ButtonClick = [&pressed](const std::string& key) { pressed += key + " "; };
  frmMain.tbToolBar.At(7).Enabled = false;
  Settle();
  for (QAction* action : actions) action->trigger();
  EXPECT_EQ(pressed, "New Open Save Print Copy Paste PrgEdit PrgExe ");
  for (const QAction* action : actions) {
    if (action->isSeparator()) continue;
    EXPECT_FALSE(action->icon().isNull());
    EXPECT_FALSE(action->toolTip().isEmpty());
  }
}

// The status area.

TEST_F(BindingTest, TheProgressBarShowsHowFarItIs) {
  ProgressBar& record = frmMain.ProgressBar1;
  record.Visible = true;
  auto& bar = Draw<QProgressBar>(record);
  record.Max = 999;
  record.Value = 500;
  Settle();
  EXPECT_TRUE(bar.isVisible());
  EXPECT_EQ(bar.maximum(), 999);
  EXPECT_EQ(bar.value(), 500);
  record.Max = 4;
  record.Value = 4;
  Settle();
  EXPECT_EQ(bar.value(), 4);
  record.Visible = false;
  Settle();
  EXPECT_FALSE(bar.isVisible());
}

TEST_F(BindingTest, TheStatusBarsPanelsShowTheirTexts) {
  auto& bar = Draw<QStatusBar>(frmMain.sbStatusBar);
  const QList<QLabel*> panels = bar.findChildren<QLabel*>();
  ASSERT_EQ(panels.size(), 4);
  frmMain.sbStatusBar.Panels[kPanelError] = std::string(400, 'W');
  frmMain.sbStatusBar.Panels[kPanelInfo] = "999";
  Settle();
  EXPECT_EQ(panels[0]->toolTip(), panels[0]->text()) << "a long text is there in whole";
  EXPECT_LE(bar.window()->width(), 1280) << "and does not widen the frame";
  EXPECT_TRUE(panels[3]->isVisible());
  EXPECT_EQ(Of(panels[3]->text()), "999");
  EXPECT_FALSE(panels[1]->isVisible()) << "an empty panel takes no room";
}

TEST_F(BindingTest, TextsAreTextsWhateverTheyLookLike) {
  auto& label = Draw<QLabel>(frmMain.lblStatus);
  frmMain.lblStatus.Caption = "<b>1</b> & <i>2</i>";
  Settle();
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  EXPECT_EQ(Of(label.text()), "<b>1</b> & <i>2</i>");
}

TEST_F(BindingTest, ALampLightsAndIsNeverGone) {
  auto& lamp = Draw<Lamp>(frmMain.imgComPort);
  EXPECT_FALSE(lamp.IsLit());
  EXPECT_TRUE(lamp.isVisible());
  frmMain.imgComPort.Visible = true;
  Settle();
  EXPECT_TRUE(lamp.IsLit());
}

TEST_F(BindingTest, ADoubleClickOnTheModeReachesIt) {
  auto& label = Draw<QLabel>(frmMain.lblCtMode);
  int clicks = 0;
  frmMain.lblCtMode.DblClick = [&clicks] { ++clicks; };
  QTest::mouseDClick(&label, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace tr7
