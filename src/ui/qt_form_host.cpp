#include "ui/qt_form_host.h"

#include <QApplication>
#include <QLayout>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScreen>
#include <QVBoxLayout>
#include <string_view>

#include "forms/control.h"
#include "forms/hold_button.h"
#include "state/app_state.h"
#include "state/views.h"
#include "ui/dialog_room.h"
#include "ui/look.h"
#include "ui/twips.h"
#include "ui/window_list.h"
#include "ui/windows.h"

namespace tr7 {
namespace {

bool Is(const View& view, std::string_view name) { return name == view.Name; }

}  // namespace

QtFormHost::QtFormHost(QtPump& pump) : pump_(pump) {
  pump_.before_sleep = [this] { return PushWhenDue(); };
}

QtFormHost::~QtFormHost() {
  pump_.before_sleep = nullptr;
  while (!shown_.empty()) {
    QWidget* window = shown_.begin()->second.window;
    const bool inside = shown_.begin()->first->MdiChild && frame_;
    shown_.erase(shown_.begin());
    if (!inside && window != frame_) delete window;
  }
  delete frame_;
}

// Windows.

QWidget* QtFormHost::ParentForDialogs() const {
  QWidget* active = QApplication::activeModalWidget();
  return active ? active : frame_ && frame_->isVisible() ? frame_ : nullptr;
}

QWidget* QtFormHost::MakeWindow(View& view, const ViewForm& form, bool modal, QWidget*& inner) {
  if (form.root == FormRoot::MainWindow) {
    frame_ = new FrameWindow(view, [this] { return MayCommand(); });
    return inner = frame_;
  }
  if (view.MdiChild) {
    inner = new QWidget;
    if (modal) {
      // A view of the frame's that is asked for as a dialogue for once.
      auto* dialog = new DialogWindow(view, ParentForDialogs());
      auto* layout = new QVBoxLayout(dialog);
      layout->setContentsMargins(0, 0, 0, 0);
      layout->addWidget(inner);
      return dialog;
    }
    auto* child = new ChildWindow(view, [this] { return MayCommand(); });
    child->setWidget(InScrollArea(*inner));
    QObject::connect(inner, &QWidget::windowTitleChanged, child, &QWidget::setWindowTitle);
    return child;
  }
  if (form.root == FormRoot::Dialog) return inner = new DialogWindow(view, ParentForDialogs());
  return inner = new SplashWindow(view);
}

QtFormHost::Shown* QtFormHost::Build(View& view, bool modal) {
  auto found = shown_.find(&view);
  if (found != shown_.end() && modal && !qobject_cast<QDialog*>(found->second.window)) {
    Hide(view);
    found = shown_.end();
  }
  if (found != shown_.end()) return &found->second;
  const ViewForm* form = FindViewForm(view.Layout);
  if (!form) {
    qCritical("%s has no layout", view.Name.c_str());
    return nullptr;
  }
  look::UseLanguage(AppState.LangOffset == 0);
  QWidget* inner = nullptr;
  QWidget* window = MakeWindow(view, *form, modal, inner);
  auto bound = std::make_unique<BoundView>(view, *form, *inner, [this] { return MayCommand(); });
  for (const std::string& problem : bound->Problems()) {
    qCritical("%s.%s", view.Name.c_str(), problem.c_str());
  }
  bound->Push();
  return &shown_.emplace(&view, Shown{window, std::move(bound)}).first->second;
}

void QtFormHost::ShowFrame() {
  if (!mdi_) {
    mdi_ = frame_->findChild<QMdiArea*>();
    if (auto* windows = frame_->findChild<QMenu*>(QStringLiteral("mnuWindow"))) {
      ListWindowsIn(*windows, *mdi_, [this] { return MayCommand(); });
    }
    StepThroughWindows(*frame_, *mdi_, [this] { return MayCommand(); });
    QObject::connect(mdi_, &QMdiArea::subWindowActivated, frame_, [this](QMdiSubWindow* window) {
      for (const auto& [view, shown] : shown_) {
        if (shown.window != window) continue;
        SetActiveView(&shown.bound->Record());
        return PushOne(*shown.bound);  // what it has missed behind another one
      }
    });
    if (frame_built) frame_built(*frame_);
  }
  if (frame_->isVisible()) return;
  frame_->ShowByRecord();
}

/// Where the frame's `count`-th window opens: a little behind the one before, and whole inside.
static QPoint PlaceOfChild(const QSize& room, const QSize& size, int count) {
  constexpr int kStep = 28;
  const QSize free = (room - size).expandedTo({0, 0});
  return {kStep * count % (free.width() + 1), kStep * count % (free.height() + 1)};
}

/// The first view fills the frame where one did so last; later ones open as the one before stands.
void QtFormHost::ShowChild(View& view, ChildWindow& child) {
  if (child.mdiArea() == mdi_) {
    if (child.isMinimized()) child.showNormal();
    mdi_->setActiveSubWindow(&child);
    return;
  }
  const QMdiSubWindow* before = mdi_->activeSubWindow();
  mdi_->addSubWindow(&child);
  const QSize room = mdi_->viewport()->size();
  const int count = static_cast<int>(mdi_->subWindowList().size()) - 1;
  child.PlaceByRecord(room);
  if (!view.Placed) child.move(PlaceOfChild(room, child.size(), count));
  const bool fills = before ? before->isMaximized() : view.Maximised || !view.Placed;
  fills ? child.showMaximized() : child.show();
  // A frame that becomes active gives the focus to what had it last, and brings its view back.
  if (!frame_->isActiveWindow()) child.setFocus(Qt::OtherFocusReason);
}

/// A dialogue is as large as its layout asks for; one that may be resized has the record's size.
void QtFormHost::ShowDialog(View& view, QWidget& window, bool modal) {
  window.setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
  window.adjustSize();
  if (window.layout()->sizeConstraint() != QLayout::SetFixedSize) {
    const QSize wanted = window.sizeHint().expandedTo({Pixels(view.Width), Pixels(view.Height)});
    window.resize(wanted.boundedTo(RoomForDialog(window)));
  }
  window.show();
  // Only now have lists and fonts given it its size.
  window.layout()->activate();
  FoldDialog(window);
  PlaceDialog(window);
  window.raise();
  window.activateWindow();
}

void QtFormHost::Show(View& view) {
  if (ended_) return;
  Shown* shown = Build(view, false);
  if (!shown) return;
  if (shown->window == frame_) {
    ShowFrame();
  } else if (auto* child = qobject_cast<ChildWindow*>(shown->window); child && mdi_) {
    ShowChild(view, *child);
  } else if (Is(view, "frmSplash")) {
    shown->window->adjustSize();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    shown->window->move(screen.center() - shown->window->rect().center());
    shown->window->show();
  } else {
    ShowDialog(view, *shown->window, false);
  }
}

void QtFormHost::ShowModal(View& view) {
  LetGoOfHeldButton();
  Shown* shown = ended_ ? nullptr : Build(view, true);
  if (!shown) {
    view.Visible = false;  // a view that cannot be drawn counts as closed at once
    return;
  }
  ShowDialog(view, *shown->window, true);
  if (view.FirstFocus) SetFocus(*view.FirstFocus);
  Wait([&view] { return !view.Visible; });
}

void QtFormHost::Hide(View& view) {
  const auto found = shown_.find(&view);
  if (found == shown_.end()) return;
  QWidget* window = found->second.window;
  shown_.erase(found);
  const bool filled_frame = view.MdiChild && mdi_ && window->isMaximized();
  window->hide();
  if (filled_frame) FillFrame(*window);
  // The window may stand further up in the calls, in the click that closes it.
  leaving_.emplace(&view, window);
  window->deleteLater();
  if (window == frame_) {
    frame_ = nullptr;
    mdi_ = nullptr;
  }
}

bool QtFormHost::Holds(const View& view) {
  std::erase_if(leaving_, [](const auto& window) { return window.second.isNull(); });
  return shown_.contains(&view) || leaving_.contains(&view);
}

/// The view that comes up where `gone` was fills the frame as that did.
void QtFormHost::FillFrame(const QWidget& gone) {
  const QList<QMdiSubWindow*> windows = mdi_->subWindowList(QMdiArea::ActivationHistoryOrder);
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (*window == &gone || (*window)->isHidden()) continue;
    (*window)->showMaximized();
    mdi_->setActiveSubWindow(*window);
    return;
  }
}

void QtFormHost::BringToFront(View& view) {
  const auto found = shown_.find(&view);
  if (found == shown_.end()) return;
  QWidget* window = found->second.window;
  if (view.MdiChild && mdi_) {
    if (window->isMinimized()) window->showNormal();
    mdi_->setActiveSubWindow(static_cast<QMdiSubWindow*>(window));
    SetActiveView(&view);
    return;
  }
  window->raise();
  window->activateWindow();
}

void QtFormHost::SetFocus(Control& control) {
  QWidget* widget = WidgetOf(control);
  if (!widget) return;
  Push();  // the record may just have switched the control on
  Find(*control.Owner)->Reveal(*widget);
  wants_focus_ = widget;
  GiveFocus();
}

bool QtFormHost::MayGiveFocus() const {
  return wants_focus_ && wants_focus_->isEnabled() && wants_focus_->isVisible();
}

/// A control that a flow still holds off gets the focus when it comes on.
void QtFormHost::GiveFocus() {
  if (!MayGiveFocus()) return;
  QWidget* widget = wants_focus_;
  wants_focus_ = nullptr;
  widget->setFocus(Qt::OtherFocusReason);
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) edit->selectAll();
}

void QtFormHost::ArrangeWindows(WindowArrangement how) {
  if (!mdi_) return;
  const QList<QMdiSubWindow*> windows = mdi_->subWindowList(QMdiArea::CreationOrder);
  if (windows.isEmpty()) return;
  if (how == WindowArrangement::Cascade) return mdi_->cascadeSubWindows();
  // Horizontally: one above the other, each over the full width.
  const bool rows = how == WindowArrangement::TileHorizontal;
  const QSize field = mdi_->viewport()->size();
  const int count = static_cast<int>(windows.size());
  for (int i = 0; i < count; ++i) {
    const int extent = rows ? field.height() : field.width();
    const int from = extent * i / count, to = extent * (i + 1) / count;
    windows[i]->showNormal();
    windows[i]->setGeometry(rows ? QRect(0, from, field.width(), to - from)
                                 : QRect(from, 0, to - from, field.height()));
  }
}

// Asking.

void QtFormHost::Wait(const std::function<bool()>& answered) {
  while (!answered() && !ended_) pump_.Run();
}

void QtFormHost::Ask(const std::function<void(QWidget* parent, const WaitFor& wait)>& show) {
  LetGoOfHeldButton();
  if (ended_) return;
  Push();
  const int cursors = wait_cursors_;
  for (int i = 0; i < cursors; ++i) QApplication::restoreOverrideCursor();
  show(ParentForDialogs(), [this](const auto& answered) { Wait(answered); });
  for (int i = 0; i < cursors; ++i) QApplication::setOverrideCursor(Qt::WaitCursor);
}

MsgAnswer QtFormHost::MessageBox(const MessageBoxCall& call) {
  MsgAnswer answer = call.Buttons == MsgButtons::Ok ? MsgAnswer::Ok : MsgAnswer::Cancel;
  Ask([&](QWidget* parent, const WaitFor& wait) { answer = AskMessage(call, parent, wait); });
  return answer;
}

std::optional<std::string> QtFormHost::FileDialog(const FileDialogCall& call) {
  std::optional<std::string> path;
  Ask([&](QWidget* parent, const WaitFor& wait) { path = AskFile(call, parent, wait); });
  return path;
}

void QtFormHost::Beep() { QApplication::beep(); }

void QtFormHost::WaitCursor(bool on) {
  wait_cursors_ += on ? 1 : -1;
  if (on) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void QtFormHost::EndProcess() {
  ended_ = true;
  for (const auto& [view, shown] : shown_) shown.window->hide();
  QCoreApplication::exit(0);
}

}  // namespace tr7
