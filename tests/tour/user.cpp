#include "tests/tour/user.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabBar>
#include <QTabWidget>
#include <QThread>

#include "state/text.h"
#include "tests/tour/in_tool.h"
#include "tests/tour/screen.h"
#include "tests/tour/spoken_names.h"
#include "ui/grid_table.h"
#include "ui/qt_form_host.h"

namespace tr7::tour {
namespace {

constexpr int kLookAgainMs = 20;

MsgId CaptionOf(MsgAnswer answer) {
  switch (answer) {
    case MsgAnswer::Yes:
      return 5150;
    case MsgAnswer::No:
      return 5151;
    case MsgAnswer::Ok:
      return 5152;
    case MsgAnswer::Cancel:
      break;
  }
  return 5153;
}

}  // namespace

User::User(QtFormHost& forms, QString folder, QString session, int first_picture)
    : forms_(forms),
      folder_(std::move(folder)),
      session_(std::move(session)),
      next_picture_(first_picture) {}

QWidget* User::WidgetOf(const Control& control) const { return forms_.WidgetOf(control); }

// Acts.

/// Clicks as soon as the place exists and can be reached.
void User::ClickPlace(const std::string& what, const Place& place, Press press) {
  doing_ = "click " + what;
  QString obstacle;
  for (int waited = 0; waited < kSoonMs; waited += kLookAgainMs) {
    obstacle = InTool([&] {
      const auto [widget, at] = place();
      return widget ? WhyNotReachable(*widget, at) : QString("it is not on the screen");
    });
    if (obstacle.isEmpty()) {
      Act([place, press] {
        const auto [widget, at] = place();
        if (widget) (press ? press : ClickAt)(*widget, at);
      });
      return;
    }
    QThread::msleep(kLookAgainMs);
  }
  throw TourFailure("cannot click " + what + ": " + obstacle.toStdString());
}

void User::Click(Control& control) {
  ClickPlace(NameOf(control), [this, &control]() -> std::pair<QWidget*, QPoint> {
    QWidget* widget = WidgetOf(control);
    if (!widget) return {};
    // A check box or option may be wider than what it answers to.
    const int x = dynamic_cast<CommandButton*>(&control) ? widget->width() / 2 : 8;
    return {widget, QPoint(x, widget->height() / 2)};
  });
}

void User::ClickTab(TabStrip& strip, int index) {
  ClickPlace(NameOf(strip), [this, &strip, index]() -> std::pair<QWidget*, QPoint> {
    auto* bar = qobject_cast<QTabBar*>(WidgetOf(strip));
    if (!bar || !bar->isTabEnabled(index)) return {};
    return {bar, bar->tabRect(index).center()};
  });
}

void User::OpenMenu(Menu& menu) {
  ClickPlace(NameOf(menu), [&menu]() -> std::pair<QWidget*, QPoint> {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* popup = window->findChild<QMenu*>(QString::fromStdString(menu.Name));
      auto* bar = popup ? qobject_cast<QMenuBar*>(popup->parentWidget()) : nullptr;
      if (!bar || !popup->menuAction()->isEnabled()) continue;
      return {bar, bar->actionGeometry(popup->menuAction()).center()};
    }
    return {};
  });
}

void User::Choose(Menu& menu, Menu& command) {
  OpenMenu(menu);
  ClickPlace(NameOf(command), [&command]() -> std::pair<QWidget*, QPoint> {
    auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!popup) return {};
    for (QAction* action : popup->actions()) {
      const bool it = action->objectName() == QString::fromStdString(command.Name);
      if (it && action->isEnabled()) return {popup, popup->actionGeometry(action).center()};
    }
    return {};
  });
}

void User::Pick(ComboBox& list, int index) {
  Click(list);
  See("the open list of " + NameOf(list),
      [] { return QApplication::activePopupWidget() != nullptr; });
  // As a user does: looks where the mark stands, and goes on from there.
  const auto marked = [this, &list] {
    const auto* combo = qobject_cast<QComboBox*>(WidgetOf(list));
    return combo ? combo->view()->currentIndex().row() : -1;
  };
  constexpr int kMostKeys = 100;
  for (int keys = 0; keys < kMostKeys; ++keys) {
    const int row = InTool(marked);
    if (row == index) break;
    Key(row < index ? Qt::Key_Down : Qt::Key_Up);
  }
  Key(Qt::Key_Return);
  See(NameOf(list) + " at entry " + std::to_string(index), [this, &list, index] {
    const auto* combo = qobject_cast<QComboBox*>(WidgetOf(list));
    return combo && !QApplication::activePopupWidget() && combo->currentIndex() == index;
  });
}

int User::EntryOf(ComboBox& list, const std::string& entry) {
  return InTool([this, &list, entry] {
    forms_.Push();  // what was chosen just now may have changed the list
    const auto* combo = qobject_cast<QComboBox*>(WidgetOf(list));
    return combo ? combo->findText(QString::fromStdString(entry)) : -1;
  });
}

void User::PickText(ComboBox& list, const std::string& entry) {
  See(NameOf(list) + " with the entry \"" + entry + "\"", [this, &list, entry] {
    const auto* combo = qobject_cast<QComboBox*>(WidgetOf(list));
    return combo && combo->findText(QString::fromStdString(entry)) >= 0;
  });
  Pick(list, EntryOf(list, entry));
  SeeText(list, entry);
}

QTabWidget* User::TabsOf(View& view) const {
  const BoundView* bound = forms_.Find(view);
  return bound ? bound->Window().findChild<QTabWidget*>() : nullptr;
}

int User::Pages(View& view) {
  return InTool([this, &view] {
    const QTabWidget* tabs = TabsOf(view);
    return tabs ? tabs->count() : 0;
  });
}

void User::TurnToPage(View& view, int page) {
  ClickPlace("page " + std::to_string(page), [this, &view, page]() -> std::pair<QWidget*, QPoint> {
    const QTabWidget* tabs = TabsOf(view);
    if (!tabs) return {};
    return {tabs->tabBar(), tabs->tabBar()->tabRect(page).center()};
  });
  See("page " + std::to_string(page), [this, &view, page] {
    const QTabWidget* tabs = TabsOf(view);
    return tabs && tabs->currentIndex() == page;
  });
}

void User::Type(TextBox& field, const std::string& text) {
  Click(field);
  Key(Qt::Key_A, Qt::ControlModifier);
  Keys(text);
}

void User::PressCell(Grid& grid, int row, int col, Press press) {
  ClickPlace(
      CellName(grid, row, col),
      [this, &grid, row, col]() -> std::pair<QWidget*, QPoint> {
        auto* table = qobject_cast<GridTable*>(WidgetOf(grid));
        if (!table) return {};
        return {table->viewport(), table->CellRect(row, col).center()};
      },
      press);
}

void User::ClickCell(Grid& grid, int row, int col) { PressCell(grid, row, col, ClickAt); }

void User::DoubleClickCell(Grid& grid, int row, int col) {
  PressCell(grid, row, col, DoubleClickAt);
}

/// Keys go to the window that has the focus, or to a popup.
void User::SeeFocus() {
  See("the focus", [] {
    return QGuiApplication::focusWindow() != nullptr ||
           QApplication::activePopupWidget() != nullptr;
  });
}

void User::Keys(const std::string& text) {
  SeeFocus();
  Act([typed = QString::fromStdString(text)] { TypeText(typed); });
}

void User::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  SeeFocus();
  Act([key, modifiers] { PressKey(key, modifiers); });
}

void User::Answer(MsgAnswer answer) {
  ClickPlace("the box's button", [answer]() -> std::pair<QWidget*, QPoint> {
    const QString caption = QString::fromStdString(Text(CaptionOf(answer)));
    const QMessageBox* box = OpenBox();
    if (!box) return {};
    for (QAbstractButton* button : box->buttons()) {
      if (button->text() == caption) return {button, button->rect().center()};
    }
    return {};
  });
}

void User::ChooseFile(const QString& path) {
  SeeFileDialog();
  ClickPlace("the file's name", []() -> std::pair<QWidget*, QPoint> {
    const QFileDialog* dialog = OpenFileDialog();
    auto* name = dialog ? dialog->findChild<QLineEdit*>("fileNameEdit") : nullptr;
    if (!name) return {};
    return {name, name->rect().center()};
  });
  Key(Qt::Key_A, Qt::ControlModifier);
  Keys(path.toStdString());
  // The list of names that fit what was typed goes first.
  if (InTool([] { return QApplication::activePopupWidget() != nullptr; })) Key(Qt::Key_Escape);
  Key(Qt::Key_Return);
  See("the file dialogue's end", [] { return OpenFileDialog() == nullptr; });
}

}  // namespace tr7::tour
