// Windows: closing, dialogues and boxes under the user's keys.

#include <QClipboard>
#include <QHeaderView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>
#include <set>

#include "forms/frm_grp.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_selection.h"
#include "forms/frm_wire.h"
#include "state/message_box.h"
#include "state/selection.h"
#include "state/view_instances.h"
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
    frmMain.mnuViewWire.Press();
    frmMain.mnuViewGrp.Press();
    frmMain.mnuFileExit.Press();
  }
  OneStart second(folder.filePath("settings.ini"));
  second.StartOffline();
  EXPECT_EQ(ActiveView(), &frmGrp);
  EXPECT_TRUE(frmParameta2.Visible && frmWire.Visible);
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
  EXPECT_TRUE(frmMain.Maximised);
  EXPECT_EQ(frmMain.Width, Twips(900)) << "a full screen is not a place";
  Frame().showNormal();
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

TEST_F(WindowTest, ACoveredViewIsDrawnTooThoughMoreSeldom) {
  StartOffline();
  frmMain.mnuViewWire.Press();
  Settle();
  const auto& button = static_cast<QPushButton&>(*desktop.forms.WidgetOf(frmPosi.cmdPosiNew));
  frmPosi.cmdPosiNew.Caption = "covered";
  EXPECT_TRUE(Until([&] { return button.text() == "covered"; }, 1000));
  frmPosi.cmdPosiNew.Caption = "in front";
  desktop.forms.BringToFront(frmPosi);
  EXPECT_EQ(button.text(), "in front");
}

TEST_F(WindowTest, CtrlTabGoesThroughAllOpenViews) {
  StartOffline();
  frmMain.mnuViewWire.Press();
  frmMain.mnuHelpMotionLog.Press();
  Settle();
  const auto& area = *Frame().findChild<QMdiArea*>();
  std::set<const QMdiSubWindow*> seen;
  for (int times = 0; times < 3; ++times) {
    KeyInFrame(Qt::Key_Tab, Qt::ControlModifier);
    Settle();
    seen.insert(area.activeSubWindow());
  }
  EXPECT_EQ(seen.size(), 3u);
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
  const std::tuple<MsgButtons, std::vector<MsgAnswer>, MsgAnswer> kinds[] = {
      {MsgButtons::Ok, {MsgAnswer::Ok}, MsgAnswer::Ok},
      {MsgButtons::OkCancel, {MsgAnswer::Ok, MsgAnswer::Cancel}, MsgAnswer::Cancel},
      {MsgButtons::YesNo, {MsgAnswer::Yes, MsgAnswer::No}, MsgAnswer::No},
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
    EXPECT_TRUE(AskNoToLose("question")) << "Escape is no answer to it: the next button is";
    user.on_box = [](const std::string&) {
      QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
      QKeyEvent up(QEvent::KeyRelease, Qt::Key_Escape, Qt::NoModifier);
      QKeyEvent down(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
      up.setTimestamp(1'000);
      down.setTimestamp(1'005);
      for (QKeyEvent* event : {&held, &up, &down}) {
        QApplication::sendEvent(QApplication::activeModalWidget(), event);
      }
      return MsgAnswer::No;
    };
    if (buttons == MsgButtons::YesNoCancel) {
      EXPECT_EQ(MsgBox("question", buttons, MsgIcon::Question), MsgAnswer::No)
          << "the key was down before the box was there";
    }
  }
}

TEST_F(WindowTest, ABoxUnfoldsItsDetailsAndCopiesThem) {
  user.on_box = [](const std::string&) {
    const QWidget& box = *QApplication::activeModalWidget();
    const auto* list = box.findChild<QPlainTextEdit*>();
    EXPECT_FALSE(list->isVisible());
    box.findChild<QToolButton*>()->click();
    EXPECT_TRUE(list->isVisible() && list->toPlainText() == "one\ntwo");
    for (auto* button : box.findChildren<QPushButton*>()) {
      if (button->text().toStdString() == Text(5211)) button->click();
    }
    return MsgAnswer::Ok;
  };
  EXPECT_EQ(MsgBoxWithDetails("text", "one\ntwo\n"), MsgAnswer::Ok);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "one\r\ntwo");
}

}  // namespace
}  // namespace tr7
