#include "ui/grid_header.h"

#include <QPainter>
#include <algorithm>

#include "ui/binding.h"
#include "ui/look.h"
#include "ui/twips.h"

namespace tr7 {

int GridHeader::LevelHeight(int level) const {
  const int least = fontMetrics().height() + 6;
  return grid_ ? std::max(Pixels(grid_->RowHeight(level)), least) : least;
}

QSize GridHeader::sizeHint() const {
  int height = 0;
  for (int level = 0; grid_ && level < grid_->FixedRows; ++level) height += LevelHeight(level);
  return {QHeaderView::sizeHint().width(), std::max(height, 1)};
}

QString GridHeader::TitleAt(int level, int section) const {
  const int col = section + grid_->FixedCols;
  return level < grid_->Rows() && col < grid_->Cols() ? Q(grid_->Text(level, col)) : QString();
}

QRect GridHeader::GroupRect(const QRect& section_rect, int level, int section) const {
  const QString title = TitleAt(level, section);
  int first = section, last = section;
  while (first > 0 && TitleAt(level, first - 1) == title) --first;
  while (last + 1 < count() && TitleAt(level, last + 1) == title) ++last;
  int left = section_rect.left(), right = section_rect.right();
  for (int i = first; i <= last; ++i) {
    if (isSectionHidden(i)) continue;
    left = std::min(left, sectionViewportPosition(i));
    right = std::max(right, sectionViewportPosition(i) + sectionSize(i) - 1);
  }
  // The title stays in sight while any of its columns is.
  left = std::max(left, 0);
  right = std::min(right, viewport()->width() - 1);
  return {left, section_rect.top(), right - left + 1, LevelHeight(level)};
}

void GridHeader::PaintTitle(QPainter& painter, const QRect& rect, const QString& title,
                            bool upper) const {
  painter.setPen(isEnabled() ? look::Colours().text : look::Colours().faint_text);
  QFont font = painter.font();
  font.setBold(upper);
  painter.setFont(font);
  const QRect field = rect.adjusted(1, 0, -1, 0);
  if (upper) {
    painter.drawText(field, Qt::AlignCenter,
                     QFontMetrics(font).elidedText(title, Qt::ElideRight, field.width()));
  } else {
    painter.drawText(field, Qt::AlignCenter | Qt::TextWrapAnywhere, title);
  }
  font.setBold(false);
  painter.setFont(font);
}

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
  if (!grid_ || !rect.isValid()) return;
  painter->save();
  painter->setClipRect(rect);
  painter->fillRect(rect, look::Colours().header);
  int top = rect.top();
  for (int level = 0; level < grid_->FixedRows; ++level) {
    const bool upper = level + 1 < grid_->FixedRows;
    QRect field = upper ? GroupRect(rect.translated(0, top - rect.top()), level, section)
                        : QRect(rect.left(), top, rect.width(), rect.bottom() - top + 1);
    field.moveTop(top);
    PaintTitle(*painter, field, TitleAt(level, section), upper);
    painter->setPen(look::Colours().header_line);
    painter->drawLine(rect.left(), field.bottom(), rect.right(), field.bottom());
    const bool ends =
        !upper || TitleAt(level, section) != TitleAt(level, section + 1) || section + 1 >= count();
    if (ends) painter->drawLine(rect.right(), field.top(), rect.right(), field.bottom());
    top += field.height();
  }
  painter->restore();
}

/// A place that can be gone to is a disc, and a step that goes there an arrow.
void GridRowHeader::PaintMark(QPainter& painter, const QRect& rect, RowMark mark) const {
  constexpr double kHalf = 3.5;
  if (mark == RowMark::None) return;
  const QPointF at(rect.left() + kRowMarkWidth / 2.0 + 1, rect.center().y() + 0.5);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(isEnabled() ? look::Colours().link : look::Colours().faint_text);
  if (mark == RowMark::Target) {
    painter.drawEllipse(at, kHalf, kHalf);
  } else {
    painter.drawPolygon(QPolygonF(
        {at + QPointF(-kHalf, -kHalf), at + QPointF(kHalf, 0), at + QPointF(-kHalf, kHalf)}));
  }
  painter.restore();
}

/// The row at work: its number white on dark between two arrow heads. Where it differs from what
/// the row says, dark on light in a broken frame.
void GridRowHeader::PaintAtWork(QPainter& painter, const QRect& rect, const QString& number,
                                bool differs) const {
  constexpr double kHalf = 4;
  const QRect field = rect.adjusted(1, 1, -2, -2);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(field, differs ? look::Colours().header : look::Colours().at_work);
  const QColor ink = differs ? look::Colours().at_work : look::Colours().base;
  if (differs) {
    painter.setPen(QPen(ink, 2, Qt::DashLine));
    painter.drawRect(field);
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  for (int i = 0; i < 2; ++i) {
    const QPointF at(rect.left() + 3 + kHalf + i * (kHalf + 1), rect.center().y() + 0.5);
    painter.drawPolygon(QPolygonF(
        {at + QPointF(-kHalf, -kHalf), at + QPointF(kHalf, 0), at + QPointF(-kHalf, kHalf)}));
  }
  QFont bold = painter.font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(ink);
  painter.drawText(rect, Qt::AlignCenter, number);
  painter.restore();
}

void GridRowHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
  if (!grid_ || !rect.isValid() || grid_->FixedCols == 0) return;
  const int row = section + grid_->FixedRows;
  if (row >= grid_->Rows()) return;
  const auto [top, bottom] = std::minmax(grid_->Row, grid_->RowSel);
  const bool selected = row >= top && row <= bottom && isEnabled();
  painter->fillRect(rect, selected ? look::Colours().header_selected : look::Colours().header);
  painter->setPen(look::Colours().header_line);
  painter->drawLine(rect.bottomLeft(), rect.bottomRight());
  painter->drawLine(rect.topRight(), rect.bottomRight());
  const QString number = Q(grid_->Text(row, grid_->FixedCols - 1));
  if (grid_->AtWork().Is(row)) {
    return PaintAtWork(*painter, rect, number, grid_->AtWork().Differs);
  }
  if (grid_->MarkOfRow) PaintMark(*painter, rect, grid_->MarkOfRow(row));
  painter->setPen(isEnabled() ? look::Colours().text : look::Colours().faint_text);
  painter->drawText(rect, Qt::AlignCenter, number);
}

}  // namespace tr7
