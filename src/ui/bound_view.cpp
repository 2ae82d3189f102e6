#include "ui/bound_view.h"

#include <QAction>
#include <QLayout>
#include <QMenu>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

#include "forms/control.h"
#include "ui/column_captions.h"
#include "ui/field_table.h"
#include "ui/grid_table.h"

namespace tr7 {
namespace {

constexpr const char* kPopupMenu = "mnuPopup";

bool IsOurs(const QString& name) {
  // Qt's own helpers inside of widgets, layouts, and the layout file's areas.
  return !name.isEmpty() && !name.startsWith("qt_") && !name.startsWith("area") &&
         !name.startsWith("_q_");
}

/// Widgets on `area` keep their places while they are hidden.
void KeepPlaces(const QWidget& area) {
  for (QWidget* widget : area.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
  }
}

/// The stack is as high as the page on show; the others take no room.
void ShowPage(QStackedWidget& stack, QWidget& page) {
  for (int i = 0; i < stack.count(); ++i) {
    QWidget& other = *stack.widget(i);
    QSizePolicy policy = other.sizePolicy();
    policy.setVerticalPolicy(&other == &page ? QSizePolicy::Preferred : QSizePolicy::Ignored);
    other.setSizePolicy(policy);
  }
  stack.setCurrentWidget(&page);
  // What has come on inside of boxes counts for the page's height at once.
  for (const QWidget* box : page.findChildren<QWidget*>()) {
    if (box->layout()) box->layout()->activate();
  }
  page.layout()->activate();
  stack.updateGeometry();
}

}  // namespace

BoundView::BoundView(View& view, const ViewForm& form, QWidget& window, const CommandGate& gate)
    : view_(view), window_(window) {
  form.set_up(window);
  BuildFieldTables(view, window);
  FindStrangers();
  for (Control* control : view.Controls) Tie(*control, gate);
  FindAreas();
  FindTabs();
  for (auto* captions : window.findChildren<ColumnCaptions*>()) {
    captions->Follow(*window.findChild<GridTable*>(captions->property("follows").toString()));
  }
  TiePopup();
  SetTabOrder();
  names_.emplace(view, widgets_);
}

void BoundView::Tie(Control& control, const CommandGate& gate) {
  const QString name = Q(control.Name);
  QObject* target = window_.findChild<QObject*>(name);
  if (!target) {
    problems_.push_back(control.Name + ": no widget");
    return;
  }
  auto binding = MakeBinding(control, *target, groups_, gate);
  if (!binding) {
    problems_.push_back(control.Name + ": a " + control.TypeName + " on a " +
                        target->metaObject()->className());
    return;
  }
  bindings_.push_back(std::move(binding));
  auto* widget = qobject_cast<QWidget*>(target);
  if (!widget || qobject_cast<QMenu*>(target)) return;
  widgets_.emplace_back(&control, widget);
  if (auto* grid = qobject_cast<GridTable*>(widget)) grids_.push_back(grid);
}

/// Ahead of the bindings, which add widgets of their own.
void BoundView::FindStrangers() {
  for (const QObject* object : window_.findChildren<QObject*>()) {
    const bool named = object->isWidgetType() || qobject_cast<const QAction*>(object);
    if (!named || !IsOurs(object->objectName())) continue;
    if (qobject_cast<const QTabBar*>(object->parent())) continue;  // its own scroll buttons
    const std::string name = object->objectName().toStdString();
    if (!view_.Find(name)) problems_.push_back(name + ": no control");
  }
}

void BoundView::FindAreas() {
  for (QWidget* area : window_.findChildren<QWidget*>()) {
    if (!area->objectName().startsWith("area")) continue;
    Area entry{area, {}, nullptr};
    for (const auto& [control, widget] : widgets_) {
      // A lamp's `Visible` lights it: it says nothing of the area.
      const bool lamp = dynamic_cast<const Image*>(control) != nullptr;
      if (!lamp && area->isAncestorOf(widget)) entry.controls.push_back(control);
    }
    // A page's parent is the stack itself.
    auto* stack = qobject_cast<QStackedWidget*>(area->parentWidget());
    if (stack && qobject_cast<QTabWidget*>(stack->parentWidget())) continue;
    entry.stack = stack;
    if (stack) KeepPlaces(*area);
    if (!entry.controls.empty()) areas_.push_back(std::move(entry));
  }
}

void BoundView::FindTabs() {
  for (QTabWidget* tabs : window_.findChildren<QTabWidget*>()) {
    FollowPage(*tabs);
    for (int index = 0; index < tabs->count(); ++index) {
      TabPage page{tabs, index, {}, {}};
      for (const auto& [control, widget] : widgets_) {
        const bool frame = dynamic_cast<const Frame*>(control) != nullptr;
        if (frame && tabs->widget(index)->isAncestorOf(widget)) page.frames.push_back(control);
      }
      tab_pages_.push_back(std::move(page));
    }
  }
}

/// The page in front is the one that the record has, and stays so.
void BoundView::FollowPage(QTabWidget& tabs) {
  int& page = view_.Pages[tabs.objectName().toStdString()];
  if (page < tabs.count()) tabs.setCurrentIndex(page);
  page = tabs.currentIndex();
  QObject::connect(&tabs, &QTabWidget::currentChanged, &tabs, [&page](int now) { page = now; });
}

void BoundView::PushTabTitles() {
  const auto stands = [](const Control* frame, const std::string& shown) {
    return frame->Caption == shown;
  };
  for (TabPage& page : tab_pages_) {
    if (std::equal(page.frames.begin(), page.frames.end(), page.shown.begin(), page.shown.end(),
                   stands)) {
      continue;
    }
    page.shown.clear();
    QStringList names;
    for (const Control* frame : page.frames) {
      page.shown.push_back(frame->Caption);
      names << Q(frame->Caption);
    }
    page.tabs->setTabText(page.index, names.join(" / "));
  }
}

void BoundView::Reveal(QWidget& widget) {
  for (const TabPage& page : tab_pages_) {
    if (page.tabs->widget(page.index)->isAncestorOf(&widget))
      page.tabs->setCurrentIndex(page.index);
  }
  for (QWidget* outer = widget.parentWidget(); outer; outer = outer->parentWidget()) {
    if (auto* scroll = qobject_cast<QScrollArea*>(outer)) scroll->ensureWidgetVisible(&widget);
  }
}

void BoundView::TiePopup() {
  auto* popup = window_.findChild<QMenu*>(kPopupMenu);
  if (!popup) return;
  for (GridTable* grid : grids_) {
    QObject::connect(grid, &QWidget::customContextMenuRequested, popup,
                     [popup, grid](const QPoint& at) {
                       if (grid->FinishEdit()) popup->popup(grid->viewport()->mapToGlobal(at));
                     });
  }
}

/// The record's order of controls is the order of the Tab key.
void BoundView::SetTabOrder() {
  QWidget* before = nullptr;
  for (const auto& [control, widget] : widgets_) {
    if (widget->focusPolicy() == Qt::NoFocus) continue;
    if (before) QWidget::setTabOrder(before, widget);
    before = widget;
  }
}

void BoundView::PushAreas() {
  const auto stands = [](const auto& tied, bool shown) { return tied.first->Visible == shown; };
  if (std::equal(widgets_.begin(), widgets_.end(), shown_visibility_.begin(),
                 shown_visibility_.end(), stands)) {
    return;
  }
  shown_visibility_.clear();
  for (const auto& [control, widget] : widgets_) shown_visibility_.push_back(control->Visible);
  for (const Area& area : areas_) {
    const bool any = std::any_of(area.controls.begin(), area.controls.end(),
                                 [](const Control* control) { return control->Visible; });
    if (!area.stack) {
      area.widget->setVisible(any);
    } else if (any) {
      ShowPage(*area.stack, *area.widget);
    }
  }
}

void BoundView::Push() {
  // Not against the window's own title: a child that fills the frame adds its name to that one.
  if (const std::string title = view_.Title(); shown_title_ != title) {
    shown_title_ = title;
    window_.setWindowTitle(Q(title));
  }
  for (const auto& binding : bindings_) binding->Push();
  PushAreas();
  PushTabTitles();
  names_->Push();
}

QWidget* BoundView::WidgetOf(const Control& control) const {
  for (const auto& [tied, widget] : widgets_) {
    if (tied == &control) return widget;
  }
  return nullptr;
}

}  // namespace tr7
