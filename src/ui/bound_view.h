#pragma once

#include <QPointer>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/view.h"
#include "ui/bindings.h"
#include "ui/spoken_names.h"
#include "ui/view_forms.h"

class QStackedWidget;
class QTabWidget;

namespace tr7 {

class GridTable;

/// A view's record tied to the widgets of its layout by name and type. Widgets whose names begin
/// with "area" are the layout's own: they hold no control, and show while anything on them does.
class BoundView {
 public:
  /// Sets the layout up inside `window` and ties every control.
  BoundView(View& view, const ViewForm& form, QWidget& window, const CommandGate& gate);

  /// Draws what the record holds.
  void Push();

  View& Record() const { return view_; }
  QWidget& Window() const { return window_; }
  /// The widget of a control, or null.
  QWidget* WidgetOf(const Control& control) const;
  /// Turns to the page that the widget stands on.
  void Reveal(QWidget& widget);
  const std::vector<GridTable*>& Grids() const { return grids_; }
  /// What does not match: controls without widget, widgets without control, types that differ.
  const std::vector<std::string>& Problems() const { return problems_; }

 private:
  struct Area {
    QWidget* widget;
    std::vector<const Control*> controls;  ///< those that stand on it
    QStackedWidget* stack;                 ///< when the area is a page of one
  };

  /// A page of a tab widget of the layout's own; its title is what the frames on it are called.
  struct TabPage {
    QTabWidget* tabs;
    int index;
    std::vector<const Control*> frames;
    std::vector<std::string> shown;  ///< their captions, as the tab has them
  };

  void Tie(Control& control, const CommandGate& gate);
  void FindAreas();
  void FindStrangers();
  void FindTabs();
  void FollowPage(QTabWidget& tabs);
  void TiePopup();
  void SetTabOrder();
  void PushAreas();
  void PushTabTitles();

  View& view_;
  QWidget& window_;
  OptionGroups groups_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  std::vector<std::pair<const Control*, QPointer<QWidget>>> widgets_;
  std::vector<GridTable*> grids_;
  std::vector<Area> areas_;
  std::vector<TabPage> tab_pages_;
  std::vector<bool> shown_visibility_;
  std::optional<SpokenNames> names_;
  std::optional<std::string> shown_title_;
  std::vector<std::string> problems_;
};

}  // namespace tr7
