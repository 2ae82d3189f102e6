#pragma once

#include <QPoint>
#include <functional>

#include "forms/control.h"
#include "forms/grid.h"
#include "forms/hold_button.h"
#include "platform/form_host.h"
#include "tests/ui/sim_process.h"

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
  /// Pictures go to `folder` as "NNN-name-session.png", numbered from `first_picture`.
  User(QtFormHost& forms, SimProcess& sim, QString folder, QString session, int first_picture);

  // Acts.
  void Click(Control& control);
  /// Clicks the button that closes the view.
  void Leave(View& view, CommandButton& close);
  /// Holds a button for this long, and takes a picture of it where that has a name.
  void Hold(HoldButton& button, int ms, const char* picture = nullptr);
  void ClickTab(TabStrip& strip, int index);
  void Choose(Menu& menu, Menu& command);
  void Choose(Menu& menu, Menu& submenu, Menu& command);
  void Pick(ComboBox& list, int index);
  void Pick(ComboBox& list, const std::string& entry);
  /// Turns to a page of the view's own tabs, from 0; false when there is none of that number.
  bool TurnToPage(View& view, int page);
  /// Replaces what the field holds.
  void Type(TextBox& field, const std::string& text);
  void ClickCell(Grid& grid, int row, int col);
  void Keys(const std::string& text);
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Waits for a box with this text, takes its picture where that has a name, and presses a button.
  void AnswerBox(const std::string& part, MsgAnswer answer, const char* picture = nullptr,
                 int within_ms = kSoonMs);
  /// Waits for the file dialogue, takes its picture where that has a name, types the path and
  /// confirms.
  void ChooseFile(const QString& path, const char* picture = nullptr);
  /// Clicks a widget of a dialogue that has no record, by its name.
  void ClickInDialog(const char* name);
  /// Gives the simulated controller a command.
  void TellSim(const char* command);

  // Looks.
  /// Waits until `seen`, which runs in the tool's thread, holds.
  void See(const std::string& what, const std::function<bool()>& seen, int within_ms = kSoonMs);
  void SeeOn(Control& control, bool on = true);
  void SeeGone(View& view);
  void SeeLamp(Image& lamp, bool lit);
  /// A label, button, field or list says this somewhere in its text.
  void SeeText(Control& control, const std::string& part);
  void SeeEmpty(TextBox& field);
  void SeeCell(Grid& grid, int row, int col, const std::string& text);
  /// The grid's cell editor is open and holds this.
  void SeeCellEditor(Grid& grid, const std::string& text);
  /// The list offers this entry, or does not.
  void SeeEntry(ComboBox& list, const std::string& entry, bool offered);
  /// The view's title says this somewhere.
  void SeeTitle(View& view, const std::string& part);
  /// The status bar's panel says this.
  void SeePanel(int panel, const std::string& part);
  /// The commands are on again and nothing is asked.
  void SeeReady(int within_ms = kSoonMs);

  void Picture(const std::string& name);
  /// The last thing that was tried, for the report of a failure.
  const std::string& Doing() const { return doing_; }

  static constexpr int kSoonMs = 15'000;
  /// 40 lines, on a slow machine.
  static constexpr int kTransferMs = 60'000;

  const QString file;  ///< what the session saves

 private:
  /// The same; false where it does not come.
  bool Comes(const std::function<bool()>& seen, int within_ms);
  /// Where on the screen; nowhere while there is no widget.
  struct Place {
    QWidget* widget = nullptr;
    QPoint at;
  };

  void ClickPlace(const std::string& what, const std::function<Place()>& find);
  /// Waits until the control's widget is shown and `seen` holds for it.
  template <typename Widget, typename Seen>
  void SeeWidget(const Control& control, const std::string& what, Seen seen);
  void ClickEntry(Menu& command);
  void SeeFocus();
  QTabWidget* TabsOf(View& view) const;

  QtFormHost& forms_;
  SimProcess& sim_;
  QString folder_, session_;
  int next_picture_;
  std::string doing_;
};

}  // namespace tr7::tour
