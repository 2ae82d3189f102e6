// Every view as its layout file draws it: what is tied, what fits, where the keys lead.

#include <QAccessible>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>
#include <map>
#include <set>

#include "forms/control.h"
#include "prog/prog_view.h"
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
    NewProgView();
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
      const auto* read =
          desktop.forms.Find(frmMain)->Window().findChild<QAction*>("mnuContPosiRead");
      EXPECT_EQ(read->text().contains("\tCtrl+R"), frmPosi.cmdPosiRead.Visible);
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

/// A screen reader has something to say for the widget: words or numbers, not a sign alone.
bool HasName(QWidget& widget) {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
  const QString name = spoken ? spoken->text(QAccessible::Name) : QString();
  return std::any_of(name.begin(), name.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

void ExpectToldAndNamed(const BoundView& bound, const Control& control, const std::string& where) {
  QWidget& window = bound.Window();
  if (const auto* menu = dynamic_cast<const Menu*>(&control)) {
    const auto* submenu = window.findChild<QMenu*>(Q(menu->Name));
    const auto* action =
        submenu ? submenu->menuAction() : window.findChild<QAction*>(Q(menu->Name));
    EXPECT_TRUE(action->toolTip().startsWith(Q(menu->Tip))) << where;
    if (menu->Owner != &frmMain) return;
    const QString holder = action->associatedObjects().value(0)->objectName();
    EXPECT_EQ(holder, menu->In ? Q(menu->In->Name) : QString("areaMenuBar")) << where;
    return;
  }
  QWidget& widget = *bound.WidgetOf(control);
  if (dynamic_cast<const Toolbar*>(&control)) {
    for (auto* button : widget.findChildren<QToolButton*>()) {
      const bool told =
          !button->defaultAction() || (!button->toolTip().isEmpty() && HasName(*button));
      EXPECT_TRUE(told) << where;
    }
    return;
  }
  EXPECT_NE(widget.toolTip(), Q(control.Caption)) << where;
  EXPECT_FALSE(widget.toolTip().isEmpty()) << where;
  EXPECT_TRUE(HasName(widget)) << where;
}

TEST_P(LayoutTest, EveryControlTellsWhatItIsForAndHasAName) {
  static const std::set<std::string> kSilent{"Label", "Frame", "ProgressBar", "StatusBar"};
  for (const BoundView* bound : DrawAll()) {
    for (const Control* control : bound->Record().Controls) {
      // That one stands for no row and is never on show.
      if (kSilent.contains(control->TypeName) || control->Name.starts_with("comboM0Disable"))
        continue;
      const std::string where = bound->Record().Name + "." + control->Name;
      EXPECT_FALSE(control->Tip.empty() && std::string(control->TypeName) != "Toolbar") << where;
      ExpectToldAndNamed(*bound, *control, where);
    }
  }
}

/// No two texts have the same letter behind their "&".
void ExpectOneLetterEach(const QStringList& texts, const std::string& where) {
  std::map<QChar, QString> taken;
  for (const QString& text : texts) {
    const auto mark = text.indexOf('&');
    if (mark < 0 || mark + 1 >= text.size() || text[mark + 1] == '&') continue;
    QString& other = taken[text[mark + 1].toUpper()];
    EXPECT_EQ(other.toStdString(), "") << where << ": " << text.toStdString();
    other = text;
  }
}

/// Texts of the actions; those of the menus below them are looked at by the way.
QStringList TextsOf(const QList<QAction*>& actions) {
  QStringList texts;
  for (const QAction* action : actions) {
    texts << action->text();
    if (!action->menu()) continue;
    ExpectOneLetterEach(TextsOf(action->menu()->actions()), action->text().toStdString());
  }
  return texts;
}

TEST_P(LayoutTest, NoTwoMnemonicsOfAViewOrMenuAreTheSame) {
  for (const BoundView* bound : DrawAll()) {
    QStringList texts;
    for (const Control* control : bound->Record().Controls) {
      if (bound->WidgetOf(*control)) texts << Q(control->Caption);
    }
    // A view inside the frame shares the Alt key with the menu bar.
    for (const QMenuBar* bar : bound->Window().window()->findChildren<QMenuBar*>()) {
      texts << TextsOf(bar->actions());
    }
    ExpectOneLetterEach(texts, bound->Record().Name);
    for (const QMenu* menu : bound->Window().findChildren<QMenu*>("mnuPopup")) {
      ExpectOneLetterEach(TextsOf(menu->actions()), "the popup");
    }
  }
}

}  // namespace
}  // namespace tr7
