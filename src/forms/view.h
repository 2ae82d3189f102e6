#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/msg_id.h"

namespace tr7 {

struct Control;

/// What the frame may ask of the view in front. A command that a view leaves empty is shown
/// switched off while that view is in front.
struct ViewCommands {
  std::function<void()> New, Open, Save, SaveAs, Print;
  std::function<void()> Copy, Paste, InsertLine, DeleteLine;
};

/// Which edit commands the selection of a view allows; the frame's menus follow it.
struct EditStates {
  bool Copy = false, Paste = false, Insert = false, Delete = false;
};

/// Who asks a view to close.
enum class CloseReason { ControlMenu, Code };

/// A window as a plain record: its controls, its place and the handlers that logic sets.
/// Lengths are twips (1440 an inch; 15 a pixel at 96 dpi).
struct View {
  explicit View(const char* name, MsgId tag = {});
  virtual ~View();
  View(const View&) = delete;
  View& operator=(const View&) = delete;

  const char* Name;
  MsgId Tag;  ///< of the caption; none: the caption is set by logic
  std::string Caption;
  bool Loaded = false;
  bool Visible = false;
  bool Minimised = false;
  bool RefuseClose = false;  ///< the window's own close button and Escape do nothing
  bool MdiChild = false;     ///< lives inside the frame
  bool StaysOpen = false;    ///< open for the whole process: the frame does not offer to close it
  double Left = 0, Top = 0, Width = 0, Height = 0;

  std::vector<Control*> Controls;  ///< in order of construction, which is the tab order

  std::function<void()> Load;  ///< once, before the view is first shown
  /// Asked before the view closes; true refuses.
  std::function<bool(CloseReason)> QueryUnload;
  std::function<void()> Unload;
  std::function<void()> Activate;       ///< the view became the active one
  std::function<void()> CmdMuko;        ///< commands off while a long sequence runs
  std::function<void()> CmdYuko;        ///< commands on again
  std::function<void()> OnlineChanged;  ///< the line went online or offline
  std::function<void()> LayoutChanged;  ///< the controller's mode, axes or devices are others now

  ViewCommands Commands;
  EditStates Edit;

  Control* Find(std::string_view name) const;
};

/// Every view that exists, shown or not, in order of construction.
const std::vector<View*>& AllViews();

}  // namespace tr7
