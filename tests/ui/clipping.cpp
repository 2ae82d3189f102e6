#include "tests/ui/clipping.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>

#include "forms/control.h"
#include "ui/grid_table.h"

namespace tr7 {
namespace {

bool LabelFits(const QLabel& label) {
  if (label.text().isEmpty()) return true;
  const QMargins margins = label.contentsMargins();
  const int width = label.width() - margins.left() - margins.right();
  if (label.wordWrap()) return label.heightForWidth(label.width()) <= label.height();
  const QSize text = label.fontMetrics().size(0, label.text());
  return text.width() <= width && text.height() <= label.height();
}

bool TabsFit(const QTabBar& tabs) {
  for (int i = 0; i < tabs.count(); ++i) {
    const QRect tab = tabs.tabRect(i);
    const int text = tabs.fontMetrics().size(Qt::TextShowMnemonic, tabs.tabText(i)).width();
    if (text > tab.width() || tab.right() > tabs.width()) return false;
  }
  return true;
}

bool ComboFits(const QComboBox& combo) {
  constexpr int kArrowAndMargins = 26;
  for (int i = 0; i < combo.count(); ++i) {
    const int text = combo.fontMetrics().horizontalAdvance(combo.itemText(i));
    if (text + kArrowAndMargins > combo.width()) return false;
  }
  return true;
}

bool TitleFits(const QGroupBox& box) {
  constexpr int kMargins = 16;
  return box.fontMetrics().size(Qt::TextShowMnemonic, box.title()).width() + kMargins <=
         box.width();
}

/// The fixed rows' titles; one that stands over several columns has their widths together.
bool TitlesFit(const Grid& grid, const GridTable& table) {
  const QHeaderView& header = *table.horizontalHeader();
  constexpr int kMargins = 4;
  for (int row = 0; row < grid.FixedRows; ++row) {
    for (int col = grid.FixedCols; col < grid.Cols();) {
      const std::string& title = grid.Text(row, col);
      int width = 0;
      do {
        width += header.sectionSize(col++ - grid.FixedCols);
      } while (col < grid.Cols() && row + 1 < grid.FixedRows && grid.Text(row, col) == title);
      const int text = table.fontMetrics().horizontalAdvance(Q(title));
      if (width > 0 && text + kMargins > width) return false;
    }
  }
  return true;
}

bool Fits(const Control& control, const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return LabelFits(*label);
  if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) return TabsFit(*tabs);
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return ComboFits(*combo);
  if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) return TitleFits(*box);
  if (const auto* table = qobject_cast<const GridTable*>(&widget)) {
    return TitlesFit(static_cast<const Grid&>(control), *table);
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    return button->sizeHint().width() <= button->width() &&
           button->sizeHint().height() <= button->height();
  }
  return true;
}

/// No widget around it cuts it off; what a scroll bar brings into sight is not cut off.
bool IsInside(const QWidget& widget) {
  for (const QWidget* outer = widget.parentWidget(); outer; outer = outer->parentWidget()) {
    QRect place(widget.mapTo(outer, QPoint(0, 0)), widget.size());
    const auto* scroll = qobject_cast<const QScrollArea*>(outer->parentWidget());
    if (scroll && scroll->viewport() == outer) {
      // Sideways only where the screen is smaller than the views are made for.
      const bool wide = scroll->screen()->size().width() >= 1280;
      if (wide && (place.left() < 0 || place.right() >= outer->width())) return false;
      return IsInside(*scroll);
    }
    if (!outer->rect().contains(place)) return false;
    if (outer->isWindow()) break;
  }
  return true;
}

}  // namespace

std::vector<std::string> ClippedTexts(const BoundView& bound) {
  std::vector<std::string> clipped;
  for (const Control* control : bound.Record().Controls) {
    const QWidget* widget = bound.WidgetOf(*control);
    if (!widget || !widget->isVisible()) continue;
    const bool fits = Fits(*control, *widget);
    if (fits && IsInside(*widget)) continue;
    clipped.push_back(std::string(bound.Record().Name) + "." + control->Name + " \"" +
                      control->Caption + "\" " + std::to_string(widget->width()) + "x" +
                      std::to_string(widget->height()) + (fits ? " stands out" : ""));
  }
  return clipped;
}

}  // namespace tr7
