// Windows: closing, dialogues and boxes under the user's keys.

#include <QApplication>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include "core/main_entry.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "forms/frm_select_posi_no.h"
#include "forms/frm_selection.h"
#include "forms/frm_splash.h"
#include "state/message_box.h"
#include "state/selection.h"
#include "state/view_instances.h"
#include "state/views.h"
#include "tests/ui/ui_test.h"
#include "ui/twips.h"

namespace tr7 {
namespace {

class WindowTest : public UiTest {
 protected:
  void StartOffline() {
    desktop.settings.Set("Settings", "Language", "2");
    user.on_modal["frmSelection"] = user.on_modal["frmSelection2"] = [](View& view) {
      auto& selection = static_cast<SelectionView&>(view);
      selection.options[selection.lblPrompt.Caption == Text(74) ? 0 : 1]->Press();
      selection.cmdOk.Press();
    };
    frmSplash.timerSplash.Interval = 10;
    Main();
    user.boxes.clear();
    Settle();
  }
  QWidget& WindowOf(Control& control) const { return *desktop.forms.WidgetOf(control)->window(); }
  QWidget& Frame() const { return WindowOf(frmMain.lblStatus); }
};

TEST(FirstStart, SpeaksTheLocalesLanguageUntilAnotherIsChosen) {
  const QTemporaryDir folder;
  const std::pair<const char*, const char*> starts[] = {
      {"ja_JP", "1"}, {"en_GB", "2"}, {"de_DE", "2"}, {"C", "2"}};
  for (const auto& [locale, language] : starts) {
    const QString file = folder.filePath(locale);
    EXPECT_EQ(Desktop({file, false, QLocale(locale)}).settings.Get("Settings", "Language", ""),
              language);
    EXPECT_EQ(Desktop({file, true, QLocale("ja_JP")}).settings.Get("Settings", "Language", ""),
              language)
        << "the stored one wins";
  }
}

// The frame.

TEST_F(WindowTest, ClosingTheWindowEndsTheTool) {
  StartOffline();
  Frame().close();
  EXPECT_TRUE(desktop.forms.Ended());
  EXPECT_TRUE(user.boxes.empty());
}

TEST_F(WindowTest, ClosingTheWindowWhileBusySaysWhyNot) {
  StartOffline();
  AppState.ComBusy = True;
  Frame().close();
  EXPECT_FALSE(desktop.forms.Ended());
  EXPECT_TRUE(user.boxes.empty());
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], Text(5941));
  EXPECT_TRUE(Frame().isVisible());
  frmMain.mnuFileExit.Press();
  EXPECT_TRUE(desktop.forms.Ended()) << "the menu's way goes on";
}

TEST_F(WindowTest, ClosingTheWindowWhileTeachingTellsWhatToDo) {
  StartOffline();
  AppState.TeachingNow = True;
  Frame().close();
  EXPECT_FALSE(desktop.forms.Ended());
  ASSERT_EQ(user.boxes.size(), 1u);
  EXPECT_EQ(user.boxes[0], Text(60) + "\n" + Text(61));
}

TEST_F(WindowTest, ClosingWithUnsavedDataAsksAndCancelKeepsEverything) {
  StartOffline();
  frmPosi.PosiChanged = True;
  const auto answer = [this](MsgAnswer which) {
    user.on_box = [which](const std::string&) { return which; };
  };
  answer(MsgAnswer::Cancel);
  Frame().close();
  EXPECT_FALSE(desktop.forms.Ended());
  ASSERT_EQ(user.boxes.size(), 1u);
  EXPECT_EQ(user.boxes[0], Text(391));
  answer(MsgAnswer::No);
  Frame().close();
  EXPECT_TRUE(desktop.forms.Ended());
}

TEST_F(WindowTest, TheFrameOpensWhereItStoodAndNeverOutsideTheScreen) {
  StartOffline();
  Frame().setGeometry(100, 80, 900, 600);
  Settle();
  EXPECT_EQ(frmMain.Left, Twips(100));
  EXPECT_EQ(frmMain.Width, Twips(900));
  Frame().showMaximized();
  Settle();
  EXPECT_EQ(frmMain.Width, Twips(900)) << "a full screen is not a place";
  desktop.forms.Hide(frmMain);
  desktop.forms.Show(frmMain);
  Settle();
  EXPECT_TRUE(Frame().isMaximized());
  EXPECT_EQ(frmMain.Width, Twips(900));
  Frame().showNormal();
  Settle();
  EXPECT_FALSE(frmMain.Maximised);
  desktop.forms.Hide(frmMain);
  Settle();
  frmMain.Left = Twips(-9000);
  frmMain.Top = Twips(9000);
  frmMain.Width = Twips(5000);
  desktop.forms.Show(frmMain);
  Settle();
  const QRect place = Frame().geometry();
  constexpr int kBorders = 8;  // the window system's own
  const QRect screen = Frame().screen()->availableGeometry();
  EXPECT_TRUE(screen.adjusted(-kBorders, 0, kBorders, kBorders).contains(place))
      << place.x() << "," << place.y() << " " << place.width() << "x" << place.height();
}

TEST_F(WindowTest, AChildThatFillsTheFrameLeavesTheTitleAlone) {
  StartOffline();
  const QString title = Frame().windowTitle();
  EXPECT_TRUE(title.contains("QV-TR7"));
  WaitMs(300);  // the layout of what has just opened comes to rest
  const std::uint64_t sleeps = desktop.pump.sleeps;
  WaitMs(300);
  EXPECT_LE(desktop.pump.sleeps - sleeps, 8u) << "an idle screen draws nothing";
  EXPECT_EQ(Frame().windowTitle(), title);
}

/// A kind of view that there may be many of, drawn by a layout that stands for its own.
struct PageView : View {
  explicit PageView(int number) : View("frmPage" + std::to_string(number)) {
    Layout = "frmSplash";
    MdiChild = true;
    Caption = Name;
  }
  ~PageView() override { --living; }
  Label lblProduct{*this, "lblProduct"};
  Label lblSubtitle{*this, "lblSubtitle"};
  Label lblVersion{*this, "lblVersion"};
  inline static int living = 0;
};

TEST_F(WindowTest, ViewsInNumbersShareALayoutAndGoWhenTheyAreClosed) {
  StartOffline();
  std::vector<PageView*> pages;
  PageView::living = 3;
  bool refuse = true;
  for (int number = 1; number <= 3; ++number) {
    PageView& page = *pages.emplace_back(&NewView<PageView>(number));
    page.lblProduct.Caption = "page " + std::to_string(number);
    page.QueryUnload = [&refuse](CloseReason) { return refuse; };
    ShowView(page);
  }
  frmMain.mnuWindowTileVertical.Press();
  Settle();
  std::vector<QPointer<QWidget>> windows;
  for (const PageView* page : pages) {
    auto* label = qobject_cast<QLabel*>(desktop.forms.WidgetOf(page->lblProduct));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text().toStdString(), page->lblProduct.Caption);
    QWidget* window = label->parentWidget();
    while (window && !qobject_cast<QMdiSubWindow*>(window)) window = window->parentWidget();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle().toStdString(), page->Caption);
    windows.emplace_back(window);
  }
  EXPECT_LT(windows[0]->geometry().right(), windows[1]->geometry().left() + 8);
  for (const auto& window : windows) window->close();
  EXPECT_EQ(PageView::living, 3) << "each refuses";
  refuse = false;
  for (const auto& window : windows) window->close();
  EXPECT_TRUE(Until(
      [&windows] { return PageView::living == 0 && windows[0].isNull() && windows[2].isNull(); }));
  EXPECT_EQ(ActiveView(), &frmPosi);
}

TEST_F(WindowTest, EscapeIsCancelWhileThatIsShown) {
  StartOffline();
  int cancels = 0;
  frmMain.cmdComCancel.Click = [&cancels] { ++cancels; };
  Frame().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Frame()));
  for (const bool shown : {false, true}) {
    frmMain.cmdComCancel.Visible = frmMain.cmdComCancel.Enabled = shown;
    Settle();
    QTest::keyClick(Frame().windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(Until([&cancels] { return cancels > 0; }, shown ? 1000 : 50), shown);
  }
}

// Dialogues.

TEST_F(WindowTest, EscapeCancelsADialogueAndEnterIsItsDefault) {
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    user.on_modal["frmSelection"] = [key, this](View& view) {
      QWidget& window = WindowOf(static_cast<SelectionView&>(view).cmdOk);
      QTest::keyClick(&window, key);
    };
    const Selection choice = SelectionDialog({"title", "prompt", {"one", "two"}});
    EXPECT_EQ(choice, key == Qt::Key_Escape ? Selection::Cancelled : Selection::First);
  }
}

TEST_F(WindowTest, ADialogueWithoutCancelStaysUntilItIsAnswered) {
  user.on_modal["frmSelection"] = [this](View& view) {
    auto& selection = static_cast<SelectionView&>(view);
    QWidget& window = WindowOf(selection.cmdOk);
    QTest::keyClick(&window, Qt::Key_Escape);
    window.close();
    EXPECT_TRUE(view.Visible);
    selection.optChoice2.Press();
    selection.cmdOk.Press();
  };
  const SelectionCall call{
      .Title = "title", .Prompt = "prompt", .Choices = {"one", "two"}, .MayCancel = false};
  EXPECT_EQ(SelectionDialog(call), Selection::Second);
  EXPECT_EQ(user.modals.size(), 1u);
}

TEST_F(WindowTest, AMnemonicPressesItsButton) {
  StartOffline();
  int clicks = 0;
  frmPosi.cmdPosiNew.Click = [&clicks] { ++clicks; };
  Frame().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Frame()));
  QTest::keyClick(Frame().windowHandle(), Qt::Key_N, Qt::AltModifier);
  Until([&clicks] { return clicks > 0; }, 1000);  // the button goes down and up first
  EXPECT_EQ(clicks, 1) << frmPosi.cmdPosiNew.Caption;
}

// Boxes.

TEST_F(WindowTest, ABoxGivesBackTheButtonThatWasPressed) {
  const std::pair<MsgButtons, std::vector<MsgAnswer>> kinds[] = {
      {MsgButtons::Ok, {MsgAnswer::Ok}},
      {MsgButtons::OkCancel, {MsgAnswer::Ok, MsgAnswer::Cancel}},
      {MsgButtons::YesNo, {MsgAnswer::Yes, MsgAnswer::No}},
      {MsgButtons::YesNoCancel, {MsgAnswer::Yes, MsgAnswer::No, MsgAnswer::Cancel}},
  };
  for (const auto& [buttons, answers] : kinds) {
    for (const MsgAnswer expected : answers) {
      user.on_box = [expected = expected](const std::string&) { return expected; };
      EXPECT_EQ(MsgBox("question", buttons, MsgIcon::Question), expected);
    }
  }
}

TEST_F(WindowTest, EscapeIsABoxesCancelAndNothingElse) {
  int escapes = 0;
  user.on_box = [&escapes](const std::string&) -> std::optional<MsgAnswer> {
    QWidget* box = QApplication::activeModalWidget();
    QTest::keyClick(box, Qt::Key_Escape);
    ++escapes;
    return MsgAnswer::Yes;  // to one that is still there
  };
  EXPECT_EQ(MsgBox("?", MsgButtons::OkCancel), MsgAnswer::Cancel);
  EXPECT_EQ(MsgBox("?", MsgButtons::YesNoCancel), MsgAnswer::Cancel);
  EXPECT_EQ(MsgBox("!", MsgButtons::Ok), MsgAnswer::Ok);
  EXPECT_EQ(MsgBox("?", MsgButtons::YesNo), MsgAnswer::Yes) << "Escape is no answer to it";
  EXPECT_EQ(escapes, 4);
}

}  // namespace
}  // namespace tr7
