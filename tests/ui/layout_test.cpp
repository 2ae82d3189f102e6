// Every view as its layout file draws it: what is tied, what fits, where the keys lead.

#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTabWidget>
#include <algorithm>
#include <map>

#include "forms/control.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "state/views.h"
#include "tests/ui/clipping.h"
#include "tests/ui/ui_test.h"

namespace tr7 {
namespace {

std::string Joined(const std::vector<std::string>& lines) {
  std::string all;
  for (const std::string& line : lines) all += line + "\n";
  return all;
}

/// Both languages: true is Japanese.
class LayoutTest : public UiTest, public ::testing::WithParamInterface<bool> {
 protected:
  LayoutTest() {
    UseJapanese(GetParam());
    frmMain.Width = 15240;  // as at the first start
    frmMain.Height = 11000;
  }

  /// Draws every view as it is before any logic has touched it, the frame first.
  std::vector<const BoundView*> DrawAll() {
    std::vector<View*> views = AllViews();
    std::stable_partition(views.begin(), views.end(), [](View* view) { return view == &frmMain; });
    std::vector<const BoundView*> drawn;
    for (View* view : views) {
      ApplyViewCaptions(*view);
      view->Visible = true;
      desktop.forms.Show(*view);
      Settle();
      drawn.push_back(desktop.forms.Find(*view));
      EXPECT_NE(drawn.back(), nullptr) << view->Name;
    }
    return drawn;
  }
  void LookAtChoice(View& view) override {
    Settle();
    ExpectNothingCut(*desktop.forms.Find(view));
  }
  static void ExpectNothingCut(const BoundView& bound) {
    EXPECT_EQ(Joined(ClippedTexts(bound)), "");
  }
  /// The frame and the position view with all that logic has put into them, tab by tab.
  void ExpectNothingCutAfterTheStart(bool program_mode) {
    StartOffline(program_mode);
    TabStrip& strip = program_mode ? frmPosi.tabCmdPrg : frmPosi.tabCmd;
    ASSERT_TRUE(strip.Visible);
    for (int tab = 0; tab < static_cast<int>(strip.Tabs.size()); ++tab) {
      strip.Selected = tab;
      strip.Click();
      Settle();
      for (View* view : std::initializer_list<View*>{&frmMain, &frmPosi}) {
        ASSERT_NE(desktop.forms.Find(*view), nullptr);
        ExpectNothingCut(*desktop.forms.Find(*view));
      }
    }
  }
};

INSTANTIATE_TEST_SUITE_P(, LayoutTest, ::testing::Bool(), [](const auto& language) {
  return std::string(language.param ? "Japanese" : "English");
});

TEST_P(LayoutTest, EveryControlHasItsWidgetAndEveryViewFitsTheScreen) {
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  for (const BoundView* bound : DrawAll()) {
    const QSize size = bound->Window().window()->size();
    EXPECT_EQ(Joined(bound->Problems()), "") << bound->Record().Name;
    EXPECT_FALSE(bound->Record().Controls.empty());
    EXPECT_EQ(size.boundedTo(screen), size) << bound->Record().Name;
  }
}

TEST_P(LayoutTest, NoTextIsCutOnAnyPage) {
  for (const BoundView* bound : DrawAll()) {
    ExpectNothingCut(*bound);
    for (QTabWidget* tabs : bound->Window().findChildren<QTabWidget*>()) {
      for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        Settle();
        ExpectNothingCut(*bound);
      }
    }
  }
}

TEST_P(LayoutTest, NoTextIsCutInPositionMode) { ExpectNothingCutAfterTheStart(false); }

TEST_P(LayoutTest, NoTextIsCutInProgramMode) { ExpectNothingCutAfterTheStart(true); }

/// The Tab key goes through the controls in the record's order.
TEST_P(LayoutTest, TheTabKeyFollowsTheRecord) {
  for (const BoundView* bound : DrawAll()) {
    std::vector<std::string> record, chain;
    std::map<const QWidget*, std::string> names;
    for (const Control* control : bound->Record().Controls) {
      QWidget* widget = bound->WidgetOf(*control);
      if (!widget || widget->focusPolicy() == Qt::NoFocus || names.contains(widget)) continue;
      names[widget] = control->Name;
      record.push_back(control->Name);
    }
    if (record.empty()) continue;
    const QWidget* first = bound->WidgetOf(*bound->Record().Find(record.front()));
    const QWidget* widget = first;
    do {
      if (names.contains(widget)) chain.push_back(names[widget]);
      widget = widget->nextInFocusChain();
    } while (widget != first);
    EXPECT_EQ(Joined(chain), Joined(record)) << bound->Record().Name;
  }
}

/// The letters behind "&", with what they stand on.
class Mnemonics {
 public:
  void Add(const QString& text, const std::string& name) {
    const auto mark = text.indexOf('&');
    if (mark < 0 || mark + 1 >= text.size() || text[mark + 1] == '&') return;
    taken_[text[mark + 1].toUpper()] += " " + name;
  }
  std::string Clashes() const {
    std::string clashes;
    for (const auto& [letter, names] : taken_) {
      if (std::count(names.begin(), names.end(), ' ') > 1) {
        clashes += QString(letter).toStdString() + ":" + names + "\n";
      }
    }
    return clashes;
  }

 private:
  std::map<QChar, std::string> taken_;
};

void ExpectNoClashesIn(const QList<QAction*>& actions, const std::string& where) {
  Mnemonics mnemonics;
  for (const QAction* action : actions) {
    mnemonics.Add(action->text(), action->objectName().toStdString());
    if (action->menu()) {
      ExpectNoClashesIn(action->menu()->actions(), action->text().toStdString());
    }
  }
  EXPECT_EQ(mnemonics.Clashes(), "") << where;
}

TEST_P(LayoutTest, NoTwoMnemonicsOfAViewOrMenuAreTheSame) {
  for (const BoundView* bound : DrawAll()) {
    Mnemonics mnemonics;
    for (const Control* control : bound->Record().Controls) {
      const QWidget* widget = bound->WidgetOf(*control);
      if (widget) mnemonics.Add(Q(control->Caption), control->Name);
    }
    // A view inside the frame shares the Alt key with the menu bar.
    for (const QMenuBar* bar : bound->Window().window()->findChildren<QMenuBar*>()) {
      for (const QAction* menu : bar->actions()) {
        mnemonics.Add(menu->text(), menu->menu()->objectName().toStdString());
        ExpectNoClashesIn(menu->menu()->actions(), menu->text().toStdString());
      }
    }
    EXPECT_EQ(mnemonics.Clashes(), "") << bound->Record().Name;
    for (const QMenu* menu : bound->Window().findChildren<QMenu*>("mnuPopup")) {
      ExpectNoClashesIn(menu->actions(), "the popup");
    }
  }
}

}  // namespace
}  // namespace tr7
