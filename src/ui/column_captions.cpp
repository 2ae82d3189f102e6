#include "ui/column_captions.h"

#include <QBoxLayout>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QStringList>
#include <algorithm>

#include "ui/grid_table.h"

namespace tr7 {
namespace {

constexpr int kGap = 10, kAbove = 2, kBeside = 2;

}  // namespace

ColumnCaptions::Group& ColumnCaptions::GroupOf(const QLabel& label) {
  const int first = label.property("firstColumn").toInt();
  if (!groups_.empty() && groups_.back().first == first) return groups_.back();
  auto* labels = new QWidget(this);
  auto* row = new QBoxLayout(QBoxLayout::LeftToRight, labels);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap / 2);
  labels->installEventFilter(this);
  groups_.push_back({first, label.property("lastColumn").toInt(), labels, row, {}});
  return groups_.back();
}

void ColumnCaptions::Follow(GridTable& table) {
  table_ = &table;
  for (QLabel* label : findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
    Group& group = GroupOf(*label);
    group.row->addWidget(label);
    group.captions.push_back({label, {}, {}});
  }
  const auto place = [this] { Place(); };
  connect(table.horizontalScrollBar(), &QScrollBar::valueChanged, this, place);
  connect(table.horizontalHeader(), &QHeaderView::sectionResized, this, place);
  connect(table.horizontalHeader(), &QHeaderView::geometriesChanged, this, place);
}

QSize ColumnCaptions::sizeHint() const {
  int height = fontMetrics().height();
  for (const Group& group : groups_) height = std::max(height, group.labels->sizeHint().height());
  return {0, height + 2 * kAbove};
}

/// Where the grid's columns begin.
int ColumnCaptions::Origin() const {
  const QWidget* columns = table_->horizontalHeader()->viewport();
  return columns->mapTo(window(), QPoint()).x() - mapTo(window(), QPoint()).x();
}

ColumnCaptions::Field ColumnCaptions::FieldOf(const Group& group) const {
  const QHeaderView& header = *table_->horizontalHeader();
  Field field;
  for (int section = group.first; section <= group.last && section < header.count(); ++section) {
    if (header.isSectionHidden(section)) continue;
    if (field.width == 0) field.left = Origin() + header.sectionViewportPosition(section);
    field.width += header.sectionSize(section);
  }
  return field;
}

/// With all texts whole and side by side.
int ColumnCaptions::WidthOf(const Group& group) {
  int width = 0;
  for (const Caption& caption : group.captions) {
    if (caption.label->isHidden() || caption.full.isEmpty()) continue;
    caption.label->ensurePolished();
    width += (width == 0 ? 0 : kGap / 2) + kBeside +
             caption.label->fontMetrics().horizontalAdvance(caption.full);
  }
  return width;
}

void ColumnCaptions::FitTexts(Group& group, int width) {
  QStringList whole;
  bool cut = false;
  for (Caption& caption : group.captions) {
    const QString text = caption.label->fontMetrics().elidedText(caption.full, Qt::ElideRight,
                                                                 std::max(width - kBeside, 0));
    cut = cut || text != caption.full;
    whole << caption.full;
    if (text == caption.shown) continue;
    caption.shown = text;
    caption.label->setText(text);
    caption.label->setAccessibleName(caption.full);
  }
  group.labels->setToolTip(cut ? whole.join(' ') : QString());
}

/// A group whose columns go out of sight on the left stays over what is left of them as long as
/// that has room for it.
void ColumnCaptions::PlaceGroup(Group& group) {
  const Field field = FieldOf(group);
  if (field.width > 0) FitTexts(group, field.width);
  const QSize size = group.labels->sizeHint();
  const int left = std::max(field.left, kGap), right = field.left + field.width;
  const bool has_room = left == field.left || left + size.width() <= right;
  const bool in_sight = field.width > 0 && right > Origin() && left + size.width() <= width();
  group.labels->setVisible(has_room && in_sight);
  group.labels->setGeometry(left, kAbove, size.width(), size.height());
}

/// Whether some columns have no room for all of their texts side by side.
bool ColumnCaptions::MustStack() {
  bool must = false;
  for (Group& group : groups_) {
    for (Caption& caption : group.captions) {
      // The view has given the label another text.
      if (caption.label->text() != caption.shown) {
        caption.full = caption.shown = caption.label->text();
      }
    }
    const int width = FieldOf(group).width;
    must = must || (width > 0 && WidthOf(group) > width);
  }
  return must;
}

void ColumnCaptions::Place() {
  if (!table_) return;
  const bool stacked = MustStack();
  if (stacked != stacked_) {
    stacked_ = stacked;
    for (Group& group : groups_) {
      group.row->setDirection(stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
      group.row->setSpacing(stacked ? 0 : kGap / 2);
    }
    updateGeometry();
  }
  for (Group& group : groups_) PlaceGroup(group);
}

bool ColumnCaptions::eventFilter(QObject* watched, QEvent* event) {
  // A label has another text.
  if (event->type() == QEvent::LayoutRequest) {
    updateGeometry();
    Place();
  }
  return QWidget::eventFilter(watched, event);
}

void ColumnCaptions::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Place();
}

}  // namespace tr7
