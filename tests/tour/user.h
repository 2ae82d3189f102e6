#pragma once

#include <QPoint>
#include <QString>
#include <functional>
#include <string>
#include <utility>

#include "forms/control.h"
#include "forms/grid.h"
#include "platform/form_host.h"

class QTabWidget;
class QWidget;

namespace tr7 {
class QtFormHost;
}

namespace tr7::tour {

/// A user at the screen, as the script knows it: says what it does by the names of the controls,
/// and what it sees. Lives in the script's thread. An act waits until its target can be reached;
/// each act and each look throws a TourFailure when its time is over.
class User {
 public:
  /// Pictures go to `folder` as "NN-name-session.png", numbered from `first_picture`.
  User(QtFormHost& forms, QString folder, QString session, int first_picture);

  // Acts.
  void Click(Control& control);
  void ClickTab(TabStrip& strip, int index);
  void Choose(Menu& menu, Menu& command);
  void OpenMenu(Menu& menu);
  void Pick(ComboBox& list, int index);
  void PickText(ComboBox& list, const std::string& entry);
  /// Pages of the view's own tabs, and turning to one, from 0.
  int Pages(View& view);
  void TurnToPage(View& view, int page);
  /// Replaces what the field holds.
  void Type(TextBox& field, const std::string& text);
  void ClickCell(Grid& grid, int row, int col);
  void DoubleClickCell(Grid& grid, int row, int col);
  void Keys(const std::string& text);
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Presses that button of the box in front.
  void Answer(MsgAnswer answer);
  /// Types the path into the file dialogue in front and confirms.
  void ChooseFile(const QString& path);

  // Looks.
  /// Waits until `seen`, which runs in the tool's thread, holds.
  void See(const std::string& what, const std::function<bool()>& seen, int within_ms = kSoonMs);
  void SeeOn(Control& control);
  void SeeOff(Control& control);
  void SeeGone(View& view);
  void SeeLamp(Image& lamp, bool lit);
  /// A label, button, field or list says this somewhere in its text.
  void SeeText(Control& control, const std::string& part);
  void SeeEmpty(TextBox& field);
  void SeeCell(Grid& grid, int row, int col, const std::string& text);
  /// The grid's cell editor is open and holds this.
  void SeeCellEditor(Grid& grid, const std::string& text);
  void SeeTitle(View& view, const std::string& title);
  /// The list offers no such entry.
  void SeeLacks(ComboBox& list, const std::string& entry);
  /// The status bar's panel says this.
  void SeePanel(int panel, const std::string& part, int within_ms = kSoonMs);
  /// A box with this text is in front.
  void SeeBox(const std::string& part, int within_ms = kSoonMs);
  void SeeFileDialog();
  /// The commands are on again and nothing is asked.
  void SeeReady(int within_ms = kSoonMs);

  void Picture(const std::string& name);
  /// The last thing that was tried, for the report of a failure.
  const std::string& Doing() const { return doing_; }

  static constexpr int kSoonMs = 15'000;

 private:
  using Place = std::function<std::pair<QWidget*, QPoint>()>;
  using Press = void (*)(QWidget&, const QPoint&);

  void ClickPlace(const std::string& what, const Place& place, Press press = nullptr);
  void SeeFocus();
  /// The list's entry of that text, or -1.
  int EntryOf(ComboBox& list, const std::string& entry);
  QTabWidget* TabsOf(View& view) const;
  QWidget* WidgetOf(const Control& control) const;
  void PressCell(Grid& grid, int row, int col, Press press);

  QtFormHost& forms_;
  QString folder_, session_;
  int next_picture_;
  std::string doing_;
};

}  // namespace tr7::tour
