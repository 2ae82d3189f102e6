// Windows: closing, dialogues and boxes under the user's keys.

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include "forms/frm_grp.h"
#include "forms/frm_main.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_posi.h"
#include "forms/frm_selection.h"
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
  QWidget& WindowOf(Control& control) const { return *desktop.forms.WidgetOf(control)->window(); }
  QWidget& Frame() const { return WindowOf(frmMain.lblStatus); }
  /// Keys at the frame, once it is the window that gets them.
  void KeyInFrame(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Frame().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Frame()));
    QTest::keyClick(Frame().windowHandle(), key, modifiers);
  }
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

TEST_F(WindowTest, ClosingTheWindowEndsTheToolUnlessSomethingSpeaksAgainstIt) {
  StartOffline();
  const auto close = [this] {
    user.boxes.clear();
    Frame().close();
    return desktop.forms.Ended();
  };
  using Boxes = std::vector<std::string>;
  AppState.ComBusy = True;
  EXPECT_FALSE(close());
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], Text(5941));
  AppState.ComBusy = False;
  AppState.TeachingNow = True;
  EXPECT_FALSE(close());
  EXPECT_EQ(user.boxes, Boxes{Text(60) + "\n" + Text(61)});
  AppState.TeachingNow = False;
  frmPosi.PosiChanged = True;
  user.on_box = [](const std::string&) { return MsgAnswer::Cancel; };
  EXPECT_FALSE(close());
  EXPECT_EQ(user.boxes, Boxes{Text(391)});
  EXPECT_TRUE(Frame().isVisible() && frmPosi.PosiChanged);
  user.on_box = [](const std::string&) { return MsgAnswer::No; };
  EXPECT_TRUE(close());
}

TEST_F(WindowTest, TheToolBarOpensPositionsAndFileCloseSparesThem) {
  StartOffline();
  frmMain.mnuViewPara.Press();
  ASSERT_NE(ActiveView(), &frmPosi);
  frmMain.tbToolBar.Press("Open");
  EXPECT_EQ(ActiveView(), &frmPosi) << "whichever view was in front";
  frmMain.mnuFileClose.Click();
  EXPECT_TRUE(frmPosi.Visible);
}

TEST_F(WindowTest, TheMenusExitGoesOnWhileBusy) {
  StartOffline();
  AppState.ComBusy = True;
  frmMain.mnuFileExit.Press();
  EXPECT_TRUE(desktop.forms.Ended() && user.boxes.empty());
}

QMdiArea& AreaOf(const OneStart& start) {
  return *start.desktop.forms.WidgetOf(frmMain.lblStatus)->window()->findChild<QMdiArea*>();
}

TEST(WindowState, WindowsComeBackAsTheyWereLeftAndWhole) {
  const QTemporaryDir folder;
  const QRect place(40, 30, 500, 400);
  int width = 0;
  {
    OneStart first(folder.filePath("settings.ini"));
    first.StartOffline();
    auto& grid = static_cast<QTableView&>(*first.desktop.forms.WidgetOf(frmPosi.flgdData));
    QHeaderView& header = *grid.horizontalHeader();
    const QPoint edge(header.sectionViewportPosition(1) + header.sectionSize(1) - 1, 5);
    QTest::mousePress(header.viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(header.viewport(), edge + QPoint(33, 0));
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, edge + QPoint(33, 0));
    width = frmPosi.flgdData.UserWidth(2);
    EXPECT_GT(width, 0);
    frmMain.mnuViewGrp.Press();
    AreaOf(first).activeSubWindow()->showNormal();
    AreaOf(first).activeSubWindow()->setGeometry(place);
    frmMain.mnuViewPara.Press();
    AreaOf(first).findChild<QTabWidget*>("areaTabs")->setCurrentIndex(2);
    frmMain.mnuViewGrp.Press();
    frmMain.mnuFileExit.Press();
  }
  OneStart second(folder.filePath("settings.ini"));
  second.StartOffline();
  EXPECT_EQ(ActiveView(), &frmGrp);
  EXPECT_TRUE(frmParameta2.Visible);
  EXPECT_EQ(AreaOf(second).activeSubWindow()->geometry(), place);
  EXPECT_EQ(AreaOf(second).findChild<QTabWidget*>("areaTabs")->currentIndex(), 2);
  EXPECT_EQ(frmPosi.flgdData.UserWidth(2), width);
  frmGrp.cmdClose.Press();
  AreaOf(second).window()->resize(400, 300);
  frmMain.mnuViewGrp.Press();
  const QRect reopened = AreaOf(second).activeSubWindow()->geometry();
  EXPECT_TRUE(AreaOf(second).viewport()->rect().contains(reopened));
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

TEST_F(WindowTest, AnIdleScreenDrawsNothingAndKeepsItsTitle) {
  StartOffline();
  const QString title = Frame().windowTitle();
  EXPECT_TRUE(title.contains("QV-TR7"));
  WaitMs(300);  // the layout of what has just opened comes to rest
  const std::uint64_t sleeps = desktop.pump.sleeps;
  WaitMs(300);
  EXPECT_LE(desktop.pump.sleeps - sleeps, 8u);
  EXPECT_EQ(Frame().windowTitle(), title) << "a child that fills the frame leaves it alone";
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
  PageView::living = 3;
  bool refuse = true;
  std::vector<QPointer<QWidget>> windows;
  for (int number = 1; number <= 3; ++number) {
    PageView& page = NewView<PageView>(number);
    page.lblProduct.Caption = "page " + std::to_string(number);
    page.QueryUnload = [&refuse](CloseReason) { return refuse; };
    ShowView(page);
    Settle();
    auto* label = qobject_cast<QLabel*>(desktop.forms.WidgetOf(page.lblProduct));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text().toStdString(), page.lblProduct.Caption);
    QWidget* window = label->parentWidget();
    while (window && !qobject_cast<QMdiSubWindow*>(window)) window = window->parentWidget();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle().toStdString(), page.Caption);
    windows.emplace_back(window);
  }
  frmMain.mnuWindowTileVertical.Press();
  Settle();
  EXPECT_LT(windows[0]->geometry().right(), windows[1]->geometry().left() + 8);
  for (const auto& window : windows) window->close();
  EXPECT_EQ(PageView::living, 3) << "each refuses";
  refuse = false;
  for (const auto& window : windows) window->close();
  EXPECT_TRUE(Until(
      [&windows] { return PageView::living == 0 && windows[0].isNull() && windows[2].isNull(); }));
  EXPECT_EQ(ActiveView(), &frmPosi);
}

TEST_F(WindowTest, KeysPressTheirButtons) {
  StartOffline();
  int cancels = 0, news = 0;
  frmMain.cmdComCancel.Click = [&cancels] { ++cancels; };
  frmPosi.cmdPosiNew.Click = [&news] { ++news; };
  for (const bool shown : {false, true}) {
    frmMain.cmdComCancel.Visible = frmMain.cmdComCancel.Enabled = shown;
    Settle();
    KeyInFrame(Qt::Key_Escape);
    EXPECT_EQ(Until([&cancels] { return cancels > 0; }, shown ? 1000 : 50), shown);
  }
  KeyInFrame(Qt::Key_N, Qt::AltModifier);
  Until([&news] { return news > 0; }, 1000);  // the button goes down and up first
  EXPECT_EQ(news, 1) << frmPosi.cmdPosiNew.Caption;
}

// Dialogues.

TEST_F(WindowTest, KeysAnswerADialogueAndOneWithoutCancelStays) {
  const struct {
    Qt::Key key;
    bool may_cancel;
    Selection choice;
  } rows[] = {{Qt::Key_Escape, true, Selection::Cancelled},
              {Qt::Key_Return, true, Selection::First},
              {Qt::Key_Escape, false, Selection::Second}};
  for (const auto& row : rows) {
    user.on_modal["frmSelection"] = [&row, this](View& view) {
      auto& selection = static_cast<SelectionView&>(view);
      QWidget& window = WindowOf(selection.cmdOk);
      QTest::keyClick(&window, row.key);
      if (row.may_cancel) return;
      window.close();
      EXPECT_TRUE(view.Visible);
      selection.optChoice2.Press();
      selection.cmdOk.Press();
    };
    const SelectionCall call{.Title = "title",
                             .Prompt = "prompt",
                             .Choices = {"one", "two"},
                             .MayCancel = row.may_cancel};
    EXPECT_EQ(SelectionDialog(call), row.choice);
  }
}

// Boxes.

TEST_F(WindowTest, ABoxGivesBackItsButtonAndEscapeIsItsCancelAndNothingElse) {
  const struct {
    MsgButtons buttons;
    std::vector<MsgAnswer> answers;
    MsgAnswer escaped;
  } kinds[] = {
      {MsgButtons::Ok, {MsgAnswer::Ok}, MsgAnswer::Ok},
      {MsgButtons::OkCancel, {MsgAnswer::Ok, MsgAnswer::Cancel}, MsgAnswer::Cancel},
      // Escape is no answer to it: the button pressed next is.
      {MsgButtons::YesNo, {MsgAnswer::Yes, MsgAnswer::No}, MsgAnswer::Yes},
      {MsgButtons::YesNoCancel,
       {MsgAnswer::Yes, MsgAnswer::No, MsgAnswer::Cancel},
       MsgAnswer::Cancel},
  };
  for (const auto& [buttons, answers, escaped] : kinds) {
    for (const MsgAnswer expected : answers) {
      user.on_box = [expected](const std::string&) { return expected; };
      EXPECT_EQ(MsgBox("question", buttons, MsgIcon::Question), expected);
    }
    user.on_box = [](const std::string&) {
      QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
      return MsgAnswer::Yes;
    };
    EXPECT_EQ(MsgBox("question", buttons, MsgIcon::Question), escaped);
  }
}

}  // namespace
}  // namespace tr7
