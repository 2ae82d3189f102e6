#include "ui/column_captions.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <algorithm>

#include "ui/grid_table.h"

namespace tr7 {
namespace {

constexpr int kGap = 10, kAbove = 2;

}  // namespace

void ColumnCaptions::Follow(GridTable& table) {
  table_ = &table;
  for (QLabel* label : findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
    const int first = label->property("firstColumn").toInt();
    if (groups_.empty() || groups_.back().first != first) {
      auto* labels = new QWidget(this);
      auto* row = new QHBoxLayout(labels);
      row->setContentsMargins(0, 0, 0, 0);
      row->setSpacing(kGap / 2);
      labels->installEventFilter(this);
      groups_.push_back({first, label->property("lastColumn").toInt(), labels});
    }
    groups_.back().labels->layout()->addWidget(label);
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

/// Where the group stands by its columns, not left of `from`.
void ColumnCaptions::PlaceByColumns(Group& group, int from) const {
  const QHeaderView& header = *table_->horizontalHeader();
  const int origin =
      header.viewport()->mapTo(window(), QPoint()).x() - mapTo(window(), QPoint()).x();
  int left = 0, right = 0;
  for (int section = group.first; section <= group.last && section < header.count(); ++section) {
    if (header.isSectionHidden(section)) continue;
    if (right == 0) left = origin + header.sectionViewportPosition(section);
    right = origin + header.sectionViewportPosition(section) + header.sectionSize(section);
  }
  group.left = std::max(left, from);
  const bool whole = left >= origin || group.left + group.labels->sizeHint().width() <= right;
  group.shown = whole && right > origin && left < width();
}

void ColumnCaptions::Place() {
  if (!table_) return;
  int from = kGap;
  for (Group& group : groups_) {
    PlaceByColumns(group, from);
    if (group.shown) from = group.left + group.labels->sizeHint().width() + kGap;
  }
  // From the right: what stands out moves in, as far as the one before it leaves room.
  int to = width() - kGap;
  for (auto group = groups_.rbegin(); group != groups_.rend(); ++group) {
    const QSize size = group->labels->sizeHint();
    group->left = std::min(group->left, to - size.width());
    if (group->left < kGap) group->shown = false;
    group->labels->setVisible(group->shown);
    if (!group->shown) continue;
    group->labels->setGeometry(group->left, kAbove, size.width(), size.height());
    to = group->left - kGap;
  }
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
