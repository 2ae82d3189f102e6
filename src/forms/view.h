#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/msg_id.h"
#include "forms/field_table.h"
#include "forms/handler.h"

namespace tr7 {

struct Menu;

/// What the frame may ask of the view in front. A command that a view leaves empty is shown
/// switched off while that view is in front.
struct ViewCommands {
  Handler<void()> New, Open, Save, SaveAs, Print;
  Handler<void()> Undo, Redo, Copy, Paste, InsertLine, DeleteLine;
  Handler<void()> GoTo;  ///< asks for a line's number and goes there
};

/// Which edit commands the selection of a view allows; the frame's menus follow it.
struct EditStates {
  bool Copy = false, Paste = false, Insert = false, Delete = false;
  bool Undo = false, Redo = false;
};

/// Who asks a view to close.
enum class CloseReason { ControlMenu, Code };

/// A window as a plain record: its controls, its place and the handlers that logic sets.
/// Lengths are twips (1440 an inch; 15 a pixel at 96 dpi).
struct View {
  explicit View(std::string name, MsgId tag = {});
  virtual ~View();
  View(const View&) = delete;
  View& operator=(const View&) = delete;

  std::string Name;
  std::string Layout;              ///< the layout file that draws it; views of one kind share one
  MsgId Tag;                       ///< of the caption; none: the caption is set by logic
  std::string HelpPage = "index";  ///< the page of the manual that tells of it
  std::string Caption;
  bool Loaded = false;
  bool Visible = false;
  bool Minimised = false;
  bool Maximised = false;    ///< fills the screen; the rectangle is the one it comes back to
  bool RefuseClose = false;  ///< the window's own close button and Escape do nothing
  bool MdiChild = false;     ///< lives inside the frame
  bool StaysOpen = false;    ///< open for the whole process: the frame does not offer to close it
  double Left = 0, Top = 0, Width = 0, Height = 0;
  bool Placed = false;  ///< of a view inside the frame: the rectangle is where the user left it
  /// Pages in front of the layout's own tab widgets, by the widget's name.
  std::map<std::string, int> Pages;
  /// The frame's command that opens the view; null: it does not come back by itself at a start.
  Menu* OpenedBy = nullptr;

  std::vector<Control*> Controls;  ///< in order of construction, which is the tab order
  std::vector<FieldTable> Tables;  ///< the regular parts of the layout
  Control* FirstFocus = nullptr;   ///< of a dialogue: the focus comes here; null: the first control

  Handler<void()> Dismiss;  ///< a click or a key on a window that only waits: it is to go
  Handler<void()> Load;     ///< once, before the view is first shown
  /// Asked before the view closes; true refuses.
  Handler<bool(CloseReason)> QueryUnload;
  /// Asked before the tool ends, also of a view that is closed; true refuses.
  Handler<bool()> QueryEnd;
  /// Holds what is in no file and no controller yet; the window's title says so.
  std::function<bool()> IsChanged;
  /// The file that its data are from, where the caption does not name it; empty: none.
  std::function<std::string()> FileName;
  Handler<void()> Unload;
  Handler<void()> Activate;       ///< the view became the active one
  Handler<void()> CmdMuko;        ///< commands off while a long sequence runs
  Handler<void()> CmdYuko;        ///< commands on again
  Handler<void()> OnlineChanged;  ///< the line went online or offline
  Handler<void()> LayoutChanged;  ///< the controller's mode, axes or devices are others now

  ViewCommands Commands;
  EditStates Edit;

  /// Builds the record anew in place, as it was when the process began; empty where the view has
  /// been made at run time.
  std::function<void()> Renew;

  /// The caption, with the file's name and, while there is something to save, a star behind it.
  std::string Title() const {
    const std::string file = FileName ? FileName() : std::string();
    const std::string named = file.empty() ? Caption : Caption + "-[" + file + "]";
    return IsChanged && IsChanged() ? named + " *" : named;
  }

  Control* Find(std::string_view name) const;
};

/// Every view that exists, shown or not, in order of construction.
const std::vector<View*>& AllViews();

/// Puts every view that is there from the start back to its start values.
void RenewViews();

/// A view that there is one of, from the start of the process to its end: `inline Standing<FrmX>
/// frmX;` beside its record. Records hold pointers to their own controls, so it is renewed in
/// place, with the arguments that it was built with.
template <typename Record>
struct Standing : Record {
  template <typename... Args>
  explicit Standing(Args... args) : Record(args...) {
    this->Renew = [this, args...] {
      std::destroy_at(this);
      std::construct_at(this, args...);
    };
  }
};

}  // namespace tr7
