#include "tests/tour/user.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QThread>

#include "core/text.h"
#include "forms/frm_main.h"
#include "tests/tour/in_tool.h"
#include "tests/tour/screen.h"
#include "ui/grid_table.h"
#include "ui/lamp.h"
#include "ui/qt_form_host.h"

namespace tr7::tour {
namespace {

constexpr int kLookAgainMs = 20;
/// What has changed is painted by then.
constexpr int kSettleMs = 250;

int CaptionOf(MsgAnswer answer) {
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

std::string NameOf(const Control& control) { return control.Owner->Name + ("." + control.Name); }

std::string CellName(const Grid& grid, int row, int col) {
  return NameOf(grid) + " row " + std::to_string(row) + " column " + std::to_string(col);
}

bool Says(const QWidget* widget, const std::string& part) {
  return widget && widget->isVisible() && ShownText(*widget).contains(QString::fromStdString(part));
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

// Looks.

void User::See(const std::string& what, const std::function<bool()>& seen, int within_ms) {
  doing_ = "see " + what;
  for (int waited = 0; waited < within_ms; waited += kLookAgainMs) {
    if (InTool(seen)) return;
    QThread::msleep(kLookAgainMs);
  }
  throw TourFailure("the screen does not show " + what);
}

void User::SeeOn(Control& control) {
  See(NameOf(control) + " on", [this, &control] {
    const QWidget* widget = WidgetOf(control);
    return widget && widget->isVisible() && widget->isEnabled();
  });
}

void User::SeeOff(Control& control) {
  See(NameOf(control) + " off", [this, &control] {
    const QWidget* widget = WidgetOf(control);
    return widget && widget->isVisible() && !widget->isEnabled();
  });
}

void User::SeeGone(View& view) {
  See(std::string(view.Name) + " gone", [this, &view] { return forms_.Find(view) == nullptr; });
}

void User::SeeLamp(Image& lamp, bool lit) {
  See(NameOf(lamp) + (lit ? " lit" : " dark"), [this, &lamp, lit] {
    const auto* drawn = qobject_cast<const Lamp*>(WidgetOf(lamp));
    return drawn && drawn->isVisible() && drawn->IsLit() == lit;
  });
}

void User::SeeText(Control& control, const std::string& part) {
  See(NameOf(control) + " with \"" + part + "\"",
      [this, &control, part] { return Says(WidgetOf(control), part); });
}

void User::SeeCell(Grid& grid, int row, int col, const std::string& text) {
  See(CellName(grid, row, col) + " with \"" + text + "\"", [this, &grid, row, col, text] {
    const auto* table = qobject_cast<const GridTable*>(WidgetOf(grid));
    if (!table || !table->isVisible()) return false;
    const auto at = table->model()->index(row - grid.FixedRows, col - grid.FixedCols);
    return table->model()->data(at).toString() == QString::fromStdString(text);
  });
}

void User::SeeCellEditor(Grid& grid, const std::string& text) {
  See("the editor of " + NameOf(grid) + " with \"" + text + "\"", [this, &grid, text] {
    const auto* table = qobject_cast<const GridTable*>(WidgetOf(grid));
    return table && table->IsEditing() && table->Editor()->text() == QString::fromStdString(text);
  });
}

void User::SeeTitle(View& view, const std::string& title) {
  See("the title \"" + title + "\"", [this, &view, title] {
    const BoundView* bound = forms_.Find(view);
    return bound && bound->Window().windowTitle() == QString::fromStdString(title);
  });
}

void User::SeePanel(int panel, const std::string& part, int within_ms) {
  See(
      "the status bar with \"" + part + "\"",
      [this, panel, part] {
        const QWidget* bar = WidgetOf(frmMain.sbStatusBar);
        if (!bar) return false;
        const auto labels = bar->findChildren<QLabel*>(Qt::FindDirectChildrenOnly);
        return panel < labels.size() && Says(labels[panel], part);
      },
      within_ms);
}

void User::SeeBox(const std::string& part, int within_ms) {
  See(
      "a box with \"" + part + "\"", [part] { return Says(OpenBox(), part); }, within_ms);
}

void User::SeeFileDialog() {
  See("the file dialogue", [] { return OpenFileDialog() != nullptr; });
}

void User::SeeReady(int within_ms) {
  See(
      "the commands on again",
      [this] {
        const QWidget* reset = WidgetOf(frmMain.cmdReset);
        return !FrontDialog() && reset && reset->isEnabled();
      },
      within_ms);
}

void User::Picture(const std::string& name) {
  doing_ = "picture " + name;
  QThread::msleep(kSettleMs);
  const QImage picture = InTool([] { return GrabScreen(); });
  const QString file = QString("%1/%2-%3-%4.png")
                           .arg(folder_)
                           .arg(next_picture_++, 2, 10, QChar('0'))
                           .arg(QString::fromStdString(name), session_);
  if (!picture.save(file)) throw TourFailure("cannot save " + file.toStdString());
}

}  // namespace tr7::tour
