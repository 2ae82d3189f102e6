#include "tests/tour/user.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>
#include <QThread>

#include "forms/frm_main.h"
#include "tests/tour/in_tool.h"
#include "tests/tour/screen.h"
#include "tests/ui/box_button.h"
#include "ui/grid_table.h"
#include "ui/lamp.h"
#include "ui/qt_form_host.h"

namespace tr7::tour {
namespace {

constexpr int kLookAgainMs = 20;

std::string NameOf(const Control& control) { return control.Owner->Name + ("." + control.Name); }

std::string CellName(int row, int col) {
  return "row " + std::to_string(row) + " column " + std::to_string(col);
}

bool PopupIsUp() { return QApplication::activePopupWidget() != nullptr; }

QString NameTyped() {
  const auto* dialog = FrontDialog<QFileDialog>();
  const auto* edit = dialog ? dialog->findChild<QLineEdit*>("fileNameEdit") : nullptr;
  return edit ? edit->text() : QString();
}

bool Says(const QWidget* widget, const std::string& part) {
  return widget && widget->isVisible() && ShownText(*widget).contains(QString::fromStdString(part));
}

}  // namespace

User::User(QtFormHost& forms, SimProcess& sim, QString folder, QString session, int first_picture)
    : file(folder + "/tour-" + session + ".qvd"),
      forms_(forms),
      sim_(sim),
      folder_(std::move(folder)),
      session_(std::move(session)),
      next_picture_(first_picture) {}

// Acts.

/// Clicks as soon as the place exists and can be reached.
void User::ClickPlace(const std::string& what, const std::function<Place()>& find) {
  doing_ = "click " + what;
  QString obstacle;
  for (int waited = 0; waited < kSoonMs; waited += kLookAgainMs) {
    obstacle = InTool([&] {
      const Place place = find();
      return place.widget ? WhyNotReachable(*place.widget, place.at) : "it is not on the screen";
    });
    if (obstacle.isEmpty()) {
      return Act([find] {
        const Place place = find();
        if (place.widget) ClickAt(*place.widget, place.at);
      });
    }
    QThread::msleep(kLookAgainMs);
  }
  throw TourFailure("cannot click " + what + ": " + obstacle.toStdString());
}

void User::Click(Control& control) {
  ClickPlace(NameOf(control), [this, &control]() -> Place {
    QWidget* widget = forms_.WidgetOf(control);
    if (!widget) return {};
    // A check box or option may be wider than what it answers to.
    const int x = dynamic_cast<CommandButton*>(&control) ? widget->width() / 2 : 8;
    return {widget, QPoint(x, widget->height() / 2)};
  });
}

void User::Leave(View& view, CommandButton& close) {
  Click(close);
  SeeGone(view);
}

void User::Hold(HoldButton& button, int ms, const char* picture) {
  SeeOn(button);
  doing_ = "hold " + NameOf(button);
  const auto press = [this, &button](bool down) {
    QWidget* widget = forms_.WidgetOf(button);
    if (widget) PressAt(*widget, widget->rect().center(), down);
  };
  Act([press] { press(true); });
  QThread::msleep(static_cast<unsigned>(ms));
  if (picture) Picture(picture);
  Act([press] { press(false); });
}

void User::ClickTab(TabStrip& strip, int index) {
  ClickPlace(NameOf(strip), [this, &strip, index]() -> Place {
    auto* bar = qobject_cast<QTabBar*>(forms_.WidgetOf(strip));
    if (!bar || !bar->isTabEnabled(index)) return {};
    return {bar, bar->tabRect(index).center()};
  });
}

void User::Choose(Menu& menu, Menu& command) {
  ClickPlace(NameOf(menu), [&menu]() -> Place {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* popup = window->findChild<QMenu*>(QString::fromStdString(menu.Name));
      auto* bar = popup ? qobject_cast<QMenuBar*>(popup->parentWidget()) : nullptr;
      if (!bar || !popup->menuAction()->isEnabled()) continue;
      return {bar, bar->actionGeometry(popup->menuAction()).center()};
    }
    return {};
  });
  ClickEntry(command);
}

void User::Choose(Menu& menu, Menu& submenu, Menu& command) {
  Choose(menu, submenu);
  ClickEntry(command);
}

void User::ClickEntry(Menu& command) {
  ClickPlace(NameOf(command), [&command]() -> Place {
    auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!popup) return {};
    for (QAction* action : popup->actions()) {
      const QString& name = action->menu() ? action->menu()->objectName() : action->objectName();
      const bool it = name == QString::fromStdString(command.Name);
      if (it && action->isEnabled()) return {popup, popup->actionGeometry(action).center()};
    }
    return {};
  });
}

void User::Pick(ComboBox& list, int index) {
  Click(list);
  See("the open list of " + NameOf(list), PopupIsUp);
  // As a user does: looks where the mark stands, and goes on from there.
  const auto marked = [this, &list] {
    const auto* combo = qobject_cast<QComboBox*>(forms_.WidgetOf(list));
    return combo ? combo->view()->currentIndex().row() : -1;
  };
  constexpr int kMostKeys = 100;
  for (int keys = 0, row; keys < kMostKeys && (row = InTool(marked)) != index; ++keys) {
    Key(row < index ? Qt::Key_Down : Qt::Key_Up);
  }
  Key(Qt::Key_Return);
  SeeWidget<QComboBox>(list, "at entry " + std::to_string(index), [index](const QComboBox& combo) {
    return !PopupIsUp() && combo.currentIndex() == index;
  });
}

void User::Pick(ComboBox& list, const std::string& entry) {
  SeeEntry(list, entry, true);
  Pick(list, InTool([this, &list, entry] {
         forms_.Push();  // what was chosen just now may have changed the list
         const auto* combo = qobject_cast<QComboBox*>(forms_.WidgetOf(list));
         return combo ? combo->findText(QString::fromStdString(entry)) : -1;
       }));
  SeeText(list, entry);
}

QTabWidget* User::TabsOf(View& view) const {
  const BoundView* bound = forms_.Find(view);
  return bound ? bound->Window().findChild<QTabWidget*>() : nullptr;
}

bool User::TurnToPage(View& view, int page) {
  if (InTool([&] { return !TabsOf(view) || TabsOf(view)->count() <= page; })) return false;
  const std::string name = "page " + std::to_string(page);
  ClickPlace(name, [this, &view, page]() -> Place {
    const QTabWidget* tabs = TabsOf(view);
    if (!tabs) return {};
    return {tabs->tabBar(), tabs->tabBar()->tabRect(page).center()};
  });
  See(name, [this, &view, page] { return TabsOf(view) && TabsOf(view)->currentIndex() == page; });
  return true;
}

void User::Type(TextBox& field, const std::string& text) {
  Click(field);
  Key(Qt::Key_A, Qt::ControlModifier);
  Keys(text);
}

void User::ClickCell(Grid& grid, int row, int col) {
  ClickPlace(CellName(row, col), [this, &grid, row, col]() -> Place {
    auto* table = qobject_cast<GridTable*>(forms_.WidgetOf(grid));
    if (!table) return {};
    return {table->viewport(), table->CellRect(row, col).center()};
  });
}

/// Keys go to the window that has the focus, or to a popup.
void User::SeeFocus() {
  See("the focus", [] { return QGuiApplication::focusWindow() || PopupIsUp(); });
}

void User::Keys(const std::string& text) {
  SeeFocus();
  Act([typed = QString::fromStdString(text)] { TypeText(typed); });
}

void User::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  SeeFocus();
  Act([key, modifiers] { PressKey(key, modifiers); });
}

void User::AnswerBox(const std::string& part, MsgAnswer answer, const char* picture,
                     int within_ms) {
  const auto seen = [part] { return Says(FrontDialog<QMessageBox>(), part); };
  See("a box with \"" + part + "\"", seen, within_ms);
  if (picture) Picture(picture);
  ClickPlace("the box's button", [answer]() -> Place {
    const auto* box = FrontDialog<QMessageBox>();
    QAbstractButton* button = box ? ButtonOf(*box, answer) : nullptr;
    if (!button) return {};
    return {button, button->rect().center()};
  });
}

void User::ChooseFile(const QString& path, const char* picture) {
  See("the file dialogue", [] { return FrontDialog<QFileDialog>() != nullptr; });
  if (picture) Picture(picture);
  // A list of fitting names that comes up between two keys may take one: who sees that types anew.
  const auto typed = [path] { return NameTyped() == path; };
  constexpr int kMostTries = 4, kTypedMs = 1000;
  for (int tries = 0; tries < kMostTries; ++tries) {
    ClickInDialog("fileNameEdit");
    Key(Qt::Key_A, Qt::ControlModifier);
    Keys(path.toStdString());
    // The list of names that fit what was typed goes first.
    if (InTool(PopupIsUp)) Key(Qt::Key_Escape);
    if (Comes(typed, kTypedMs)) break;
  }
  See("the file's name as it was typed", typed);
  Key(Qt::Key_Return);
  See("the file dialogue's end", [] { return !FrontDialog<QFileDialog>(); });
}

void User::ClickInDialog(const char* name) {
  ClickPlace(name, [name]() -> Place {
    const auto* dialog = FrontDialog<QDialog>();
    auto* widget = dialog ? dialog->findChild<QWidget*>(name) : nullptr;
    if (!widget) return {};
    return {widget, widget->rect().center()};
  });
}

void User::TellSim(const char* command) {
  // The program belongs to the tool's thread.
  const std::string answer = InTool([this, command] { return sim_.Tell(command); });
  if (!answer.starts_with("ok")) throw TourFailure(command + (" gives \"" + answer + "\""));
}

// Looks.

void User::See(const std::string& what, const std::function<bool()>& seen, int within_ms) {
  doing_ = "see " + what;
  if (!Comes(seen, within_ms)) throw TourFailure("the screen does not show " + what);
}

bool User::Comes(const std::function<bool()>& seen, int within_ms) {
  for (int waited = 0; waited < within_ms; waited += kLookAgainMs) {
    if (InTool(seen)) return true;
    QThread::msleep(kLookAgainMs);
  }
  return false;
}

template <typename Widget, typename Seen>
void User::SeeWidget(const Control& control, const std::string& what, Seen seen) {
  See(NameOf(control) + " " + what, [this, &control, seen] {
    const auto* widget = qobject_cast<const Widget*>(forms_.WidgetOf(control));
    return widget && widget->isVisible() && seen(*widget);
  });
}

void User::SeeOn(Control& control, bool on) {
  SeeWidget<QWidget>(control, on ? "on" : "off",
                     [on](const QWidget& widget) { return widget.isEnabled() == on; });
}

void User::SeeGone(View& view) {
  See(std::string(view.Name) + " gone", [this, &view] { return !forms_.Find(view); });
}

void User::SeeLamp(Image& lamp, bool lit) {
  SeeWidget<Lamp>(lamp, lit ? "lit" : "dark",
                  [lit](const Lamp& drawn) { return drawn.IsLit() == lit; });
}

void User::SeeText(Control& control, const std::string& part) {
  SeeWidget<QWidget>(control, "with \"" + part + "\"",
                     [part](const QWidget& widget) { return Says(&widget, part); });
}

void User::SeeEmpty(TextBox& field) {
  SeeWidget<QLineEdit>(field, "empty", [](const QLineEdit& edit) { return edit.text().isEmpty(); });
}

void User::SeeCell(Grid& grid, int row, int col, const std::string& text) {
  SeeWidget<GridTable>(grid, CellName(row, col) + " with \"" + text + "\"",
                       [&grid, row, col, text](const GridTable& table) {
                         const auto at =
                             table.model()->index(row - grid.FixedRows, col - grid.FixedCols);
                         return table.model()->data(at).toString() == QString::fromStdString(text);
                       });
}

void User::SeeCellEditor(Grid& grid, const std::string& text) {
  SeeWidget<GridTable>(grid, "editing \"" + text + "\"", [text](const GridTable& table) {
    return table.IsEditing() && table.Editor()->text() == QString::fromStdString(text);
  });
}

void User::SeeEntry(ComboBox& list, const std::string& entry, bool offered) {
  SeeWidget<QComboBox>(list, (offered ? "with \"" : "without \"") + entry + "\"",
                       [entry, offered](const QComboBox& combo) {
                         return (combo.findText(QString::fromStdString(entry)) >= 0) == offered;
                       });
}

void User::SeeTitle(View& view, const std::string& part) {
  See("the title \"" + part + "\"", [this, &view, part] {
    const BoundView* bound = forms_.Find(view);
    return bound && bound->Window().windowTitle().contains(QString::fromStdString(part));
  });
}

void User::SeePanel(int panel, const std::string& part) {
  SeeWidget<QWidget>(frmMain.sbStatusBar, "with \"" + part + "\"", [panel, part](const auto& bar) {
    const auto labels = bar.template findChildren<QLabel*>(Qt::FindDirectChildrenOnly);
    return panel < labels.size() && Says(labels[panel], part);
  });
}

void User::SeeReady(int within_ms) {
  const auto seen = [this] {
    const QWidget* reset = forms_.WidgetOf(frmMain.cmdReset);
    return !FrontDialog() && reset && reset->isEnabled();
  };
  See("the commands on again", seen, within_ms);
}

void User::Picture(const std::string& name) {
  doing_ = "picture " + name;
  constexpr int kSettleMs = 250;  // what has changed is painted by then
  QThread::msleep(kSettleMs);
  const QImage picture = InTool([] { return GrabScreen(); });
  const QString file = QString("%1/%2-%3-%4.png")
                           .arg(folder_)
                           .arg(next_picture_++, 3, 10, QChar('0'))
                           .arg(QString::fromStdString(name), session_);
  if (!picture.save(file)) throw TourFailure("cannot save " + file.toStdString());
}

}  // namespace tr7::tour
