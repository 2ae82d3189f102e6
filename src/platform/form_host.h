#pragma once

#include <optional>
#include <string>

namespace tr7 {

struct View;
struct Control;

enum class MsgButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MsgIcon { None, Information, Question, Warning, Error };
enum class MsgAnswer { Ok, Cancel, Yes, No };

struct MessageBoxCall {
  std::string Text;
  std::string Title;
  MsgButtons Buttons = MsgButtons::Ok;
  MsgIcon Icon = MsgIcon::None;
  bool Loses = false;        ///< the first answer loses something: Enter means the last one
  std::string Details = {};  ///< a list beside the text, one thing a line, folded until asked for
  bool NoLoses = false;      ///< No loses something: nothing but its button means it
};

struct FileDialogCall {
  bool Save = false;
  std::string Title;
  std::string Filter;            ///< "words|*.ext|words|*.*"
  std::string ProposedName;      ///< save only
  std::string DefaultExtension;  ///< without a dot
  bool OverwritePrompt = false;  ///< save only
};

enum class WindowArrangement { Cascade, TileHorizontal, TileVertical };

/// The door to the screen. Views are records; the host draws what they hold and puts what the
/// user does back into them. Every call with a user behind it (`ShowModal`, `MessageBox`,
/// `FileDialog`) serves timers and events until the user has answered, so any handler may run
/// inside it.
class FormHost {
 public:
  virtual ~FormHost() = default;
  /// Puts the view on the screen and returns at once.
  virtual void Show(View& view) = 0;
  /// Puts the view on the screen before all others; returns when `view.Visible` is false.
  virtual void ShowModal(View& view) = 0;
  /// Takes the view off the screen.
  virtual void Hide(View& view) = 0;
  /// True while the screen still refers to the record: one that was hidden may not end before.
  virtual bool Holds(const View& view) = 0;
  /// Brings the open view to the front and makes it the active one.
  virtual void BringToFront(View& view) = 0;
  /// Paints now what the records hold.
  virtual void Refresh() = 0;
  virtual MsgAnswer MessageBox(const MessageBoxCall& call) = 0;
  /// The chosen path, or nothing on Cancel.
  virtual std::optional<std::string> FileDialog(const FileDialogCall& call) = 0;
  virtual void Beep() = 0;
  virtual void WaitCursor(bool on) = 0;
  virtual void SetFocus(Control& control) = 0;
  virtual void ArrangeWindows(WindowArrangement how) = 0;
  /// Ends the process once the running handlers have returned.
  virtual void EndProcess() = 0;
};

}  // namespace tr7
