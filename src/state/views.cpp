#include "state/views.h"

#include <algorithm>

#include "forms/control.h"
#include "forms/frm_main.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/tips.h"
#include "state/view_instances.h"

namespace tr7 {

void (*ViewComes)(View& view) = nullptr;
void (*ViewGoes)(View& view) = nullptr;

namespace {

std::vector<View*> open_views;
View* active_view = nullptr;
std::vector<View*> modal_views;  ///< the one in front last

void ApplyControlCaption(Control& control) {
  if (auto* tabs = dynamic_cast<TabStrip*>(&control)) {
    for (Tab& tab : tabs->Tabs) {
      if (tab.Tag) tab.Caption = Text(tab.Tag);
    }
  } else if (auto* bar = dynamic_cast<Toolbar*>(&control)) {
    for (ToolButton& button : bar->Buttons) {
      if (button.Tag) button.ToolTipText = Text(button.Tag);
    }
  } else if (control.Tag) {
    control.Caption = Text(control.Tag);
  }
}

}  // namespace

const std::vector<View*>& OpenViews() { return open_views; }
View* ActiveView() { return active_view; }
View* ModalView() { return modal_views.empty() ? nullptr : modal_views.back(); }
void SetActiveView(View* view) {
  if (active_view == view) return;
  // A hint, or what was told last, is of the view that is left.
  if (active_view && AppState.CommandsOffDepth == 0) TellInStatusPanel({});
  active_view = view;
  if (frmMain.FrontChanged) frmMain.FrontChanged();
  if (view && view->Activate) view->Activate();
}

void ApplyViewCaptions(View& view) {
  // The frame sets its own caption: it carries the version.
  if (view.Tag && &view != &frmMain) view.Caption = Text(view.Tag);
  for (Control* control : view.Controls) ApplyControlCaption(*control);
  ApplyViewTips(view);
}

namespace {

void LoadView(View& view) {
  // The view counts as open while it loads: the frame's load runs the whole start.
  if (std::find(open_views.begin(), open_views.end(), &view) == open_views.end()) {
    open_views.push_back(&view);
  }
  if (view.Loaded) return;
  view.Loaded = true;
  ApplyViewCaptions(view);
  if (ViewComes) ViewComes(view);
  if (view.Load) view.Load();
}

}  // namespace

void ShowView(View& view) {
  LoadView(view);
  view.Visible = true;
  doors.forms->Show(view);
  if (view.MdiChild) SetActiveView(&view);
}

void ShowOrBringToFront(View& view) {
  if (view.Visible) {
    doors.forms->BringToFront(view);
  } else {
    ShowView(view);
  }
}

void ShowViewModal(View& view) {
  const HandlerRuns asked;  // whoever asked looks at the record when the view has been closed
  LoadView(view);
  view.Visible = true;
  modal_views.push_back(&view);
  doors.forms->ShowModal(view);
  std::erase(modal_views, &view);
  UnloadView(view);
}

namespace {

View* NewestChild() {
  const auto found = std::find_if(open_views.rbegin(), open_views.rend(),
                                  [](const View* view) { return view->MdiChild; });
  return found == open_views.rend() ? nullptr : *found;
}

}  // namespace

void UnloadView(View& view) {
  view.Visible = false;
  std::erase(open_views, &view);
  doors.forms->Hide(view);
  if (view.Loaded) {
    view.Loaded = false;
    if (ViewGoes) ViewGoes(view);
    if (view.Unload) view.Unload();
  }
  if (active_view == &view) SetActiveView(NewestChild());
  LetViewGo(view);
}

bool CloseView(View& view, CloseReason reason) {
  if (view.QueryUnload && view.QueryUnload(reason)) return false;
  UnloadView(view);
  return true;
}

void ResetViews() {
  open_views.clear();
  modal_views.clear();
  active_view = nullptr;
  DestroyViewInstances();
}

namespace {

/// By index: a handler may open or close views.
void ForOpenViews(Handler<void()> View::*handler) {
  for (std::size_t i = 0; i < open_views.size(); ++i) {
    if (const auto& run = open_views[i]->*handler) run();
  }
}

}  // namespace

void SwitchControls(View& view, bool on) {
  for (Control* control : view.Controls) {
    if (const auto* button = dynamic_cast<CommandButton*>(control)) {
      control->Enabled = on && button->Click;
    } else if (dynamic_cast<TextBox*>(control) || dynamic_cast<ComboBox*>(control) ||
               dynamic_cast<OptionButton*>(control) || dynamic_cast<CheckBox*>(control) ||
               dynamic_cast<UpDown*>(control)) {
      control->Enabled = on;
    }
  }
}

void AllViewsCmdMuko() { ForOpenViews(&View::CmdMuko); }
void AllViewsCmdYuko() { ForOpenViews(&View::CmdYuko); }
void AllViewsOnlineChanged() { ForOpenViews(&View::OnlineChanged); }
void AllViewsLayoutChanged() { ForOpenViews(&View::LayoutChanged); }

}  // namespace tr7
