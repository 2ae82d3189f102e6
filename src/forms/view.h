#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tr7 {

struct Control;

/// Who asks a view to close.
enum class CloseReason { ControlMenu, Code };

/// A window as a plain record: its controls, its place and the handlers that logic sets.
/// Lengths are twips (1440 an inch; 15 a pixel at 96 dpi).
struct View {
  explicit View(const char* name, int tag = 0);
  virtual ~View();
  View(const View&) = delete;
  View& operator=(const View&) = delete;

  const char* Name;
  int Tag;  ///< message id of the caption; 0: the caption is set by logic
  std::string Caption;
  bool Loaded = false;
  bool Visible = false;
  bool Minimised = false;
  bool Maximised = false;    ///< fills the screen; the rectangle is the one it comes back to
  bool RefuseClose = false;  ///< the window's own close button and Escape do nothing
  bool MdiChild = false;     ///< lives inside the frame
  double Left = 0, Top = 0, Width = 0, Height = 0;

  std::vector<Control*> Controls;  ///< in order of construction, which is the tab order

  std::function<void()> Load;  ///< once, before the view is first shown
  /// Asked before the view closes; true refuses.
  std::function<bool(CloseReason)> QueryUnload;
  std::function<void()> Unload;
  std::function<void()> Activate;  ///< the view became the active one
  std::function<void()> CmdMuko;   ///< commands off while a long sequence runs
  std::function<void()> CmdYuko;   ///< commands on again

  Control* Find(std::string_view name) const;
};

/// Every view that exists, shown or not, in order of construction.
const std::vector<View*>& AllViews();

}  // namespace tr7
