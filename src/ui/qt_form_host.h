#pragma once

#include <QPointer>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/form_host.h"
#include "ui/bound_view.h"
#include "ui/message_dialog.h"
#include "ui/qt_pump.h"

class QMainWindow;
class QMdiArea;
class QMdiSubWindow;

namespace tr7 {

class ChildWindow;
class FrameWindow;

/// The screen on Qt. A window lives while its view is shown; before the event loop sleeps, every
/// record that is on the screen is compared with what was drawn last.
class QtFormHost : public FormHost {
 public:
  explicit QtFormHost(QtPump& pump);
  ~QtFormHost() override;

  void Show(View& view) override;
  void ShowModal(View& view) override;
  void Hide(View& view) override;
  bool Holds(const View& view) override;
  void BringToFront(View& view) override;
  void Refresh() override;
  MsgAnswer MessageBox(const MessageBoxCall& call) override;
  std::optional<std::string> FileDialog(const FileDialogCall& call) override;
  void Beep() override;
  void WaitCursor(bool on) override;
  void SetFocus(Control& control) override;
  void ArrangeWindows(WindowArrangement how) override;
  void EndProcess() override;

  /// A dialogue of the desktop's own: `show` is given the window that it stands over and what to
  /// wait with until it has been answered. Not called once the process is to end.
  void Ask(const std::function<void(QWidget* parent, const WaitFor& wait)>& show);

  /// Called once the frame has been built, before it is first shown.
  std::function<void(QMainWindow& frame)> frame_built;

  /// True once the process is to end: nothing more is shown and nobody is asked.
  bool Ended() const { return ended_; }
  /// The tied view on the screen, or null.
  BoundView* Find(const View& view) const;
  QWidget* WidgetOf(const Control& control) const;
  /// Draws what the records hold, now.
  void Push();
  /// Finishes an open edit before a command runs; false where the edit is refused, which is shown.
  bool MayCommand();
  /// An edit is open in some grid.
  bool EditIsOpen() const;

 private:
  struct Shown {
    QWidget* window;  ///< what closes, moves and is deleted; owns the bound widget
    std::unique_ptr<BoundView> bound;
  };

  Shown* Build(View& view, bool modal);
  QWidget* MakeWindow(View& view, const ViewForm& form, bool modal, QWidget*& inner);
  QWidget* ParentForDialogs() const;
  void ShowFrame();
  void ShowChild(View& view, ChildWindow& child);
  void FillFrame(const QWidget& gone);
  void ShowDialog(View& view, QWidget& window, bool modal);
  bool IsCovered(const QWidget& window) const;
  void PushViews(bool covered_ones_too);
  void PushOne(BoundView& bound);
  std::optional<std::int64_t> PushWhenDue();
  bool MayGiveFocus() const;
  void GiveFocus();
  void PaintNow();
  void Wait(const std::function<bool()>& answered);

  QtPump& pump_;
  std::map<const View*, Shown> shown_;
  /// Windows that are hidden and not deleted yet.
  std::multimap<const View*, QPointer<QWidget>> leaving_;
  FrameWindow* frame_ = nullptr;
  QMdiArea* mdi_ = nullptr;
  QPointer<QWidget> wants_focus_;
  std::int64_t last_push_us_ = 0, last_full_push_us_ = 0;
  bool pushing_ = false;
  int wait_cursors_ = 0;
  bool ended_ = false;
};

}  // namespace tr7
