#include "ui/grid_cell_painter.h"

#include <QPainter>
#include <algorithm>

#include "ui/grid_model.h"
#include "ui/look.h"

namespace tr7 {
namespace {

QColor Mixed(const QColor& a, const QColor& b, double share_of_b) {
  const auto mix = [share_of_b](int x, int y) { return qRound(x + (y - x) * share_of_b); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

constexpr int kLampWidth = 14, kCellEnd = 4;

bool LooksLikeNumber(const QString& text) {
  if (text.startsWith(' ')) return true;  // padded to the right by logic
  bool good = false;
  text.toDouble(&good);
  return good;
}

/// Asking for a text's width takes longer than drawing it; most cells hold a few digits, of which
/// all are of one width, and a sign that is hardly wider.
bool ClearlyFits(const QString& text, const QFontMetrics& metrics, int width) {
  constexpr qsizetype kMost = 12;
  if (text.size() > kMost) return false;
  for (const QChar c : text) {
    if ((c < '0' || c > '9') && c != '.' && c != '-' && c != '+') return false;
  }
  return (static_cast<int>(text.size()) + 1) * metrics.horizontalAdvance(QChar('0')) <= width;
}

}  // namespace

bool GridCellPainter::IsSelected(int row, int col) const {
  const auto [top, bottom] = std::minmax(grid_.Row, grid_.RowSel);
  const auto [left, right] = std::minmax(grid_.Col, grid_.ColSel);
  return row >= top && row <= bottom && col >= left && col <= right;
}

bool GridCellPainter::IsMarked(int row, int col) const {
  return grid_.IsMarked && grid_.IsMarked(row, col);
}

QColor GridCellPainter::Ground(int row, int col, bool enabled) const {
  const Colour colour = grid_.ColColour(col);
  QColor ground = colour == kWindowColour ? look::Colours().base
                  : colour == kHeaderColour
                      ? look::Colours().header
                      : look::Ground(QColor::fromRgb(static_cast<QRgb>(colour)));
  if (grid_.IsUnused && grid_.IsUnused(row, col)) ground = look::Colours().unused_cell;
  if (grid_.AtWork().Is(row) && !grid_.AtWork().Differs) ground = look::Colours().at_work_row;
  if (IsMarked(row, col)) ground = look::Colours().marked_cell;
  if (!enabled) ground = Mixed(ground, look::Colours().window, 0.55);
  return ground;
}

/// The corner of a marked cell, for who does not see its colour.
void GridCellPainter::PaintMark(QPainter& painter, const QRect& cell) const {
  constexpr int kSide = 7;
  const QPoint corner = cell.topLeft();
  painter.setPen(Qt::NoPen);
  painter.setBrush(look::Colours().text);
  painter.drawPolygon(QPolygon({corner, corner + QPoint(kSide, 0), corner + QPoint(0, kSide)}));
  painter.setBrush(Qt::NoBrush);
}

/// A check sign at the end of a cell that is done.
void GridCellPainter::PaintCheck(QPainter& painter, const QRect& cell) const {
  constexpr int kInset = 15;
  const QPointF at(cell.right() - kInset, cell.center().y());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(look::Colours().at_work, 2));
  painter.drawPolyline(QPolygonF({at, at + QPointF(4, 4), at + QPointF(11, -4)}));
  painter.restore();
}

/// A lit lamp is full, a dark one a ring.
void GridCellPainter::PaintLamp(QPainter& painter, const QRect& cell, bool lit,
                                bool enabled) const {
  constexpr double kRadius = 5.5;
  const QColor on = enabled ? look::Colours().good : look::Colours().faint_text;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(lit ? on.darker(140) : look::Colours().faint_text, 1.2));
  painter.setBrush(lit ? QBrush(on) : QBrush(look::Colours().base));
  painter.drawEllipse(QPointF(cell.left() + kLampWidth / 2.0 + 2, cell.center().y() + 0.5), kRadius,
                      kRadius);
  painter.restore();
}

/// The current cell has a list.
void GridCellPainter::PaintArrow(QPainter& painter, const QRect& field) const {
  constexpr int kHalf = 4;
  painter.fillRect(field, look::Colours().header);
  const QPoint centre = field.center();
  painter.setPen(Qt::NoPen);
  painter.setBrush(look::Colours().text);
  painter.drawPolygon(QPolygon(
      {centre + QPoint(-kHalf, -2), centre + QPoint(kHalf, -2), centre + QPoint(0, kHalf - 2)}));
  painter.setBrush(Qt::NoBrush);
}

Qt::Alignment GridCellPainter::AlignmentOf(int col, const QString& text) const {
  switch (grid_.AlignOf(col)) {
    case ColAlign::Left:
      return Qt::AlignLeft;
    case ColAlign::Centre:
      return Qt::AlignHCenter;
    case ColAlign::Right:
      return Qt::AlignRight;
    case ColAlign::General:
      break;
  }
  return LooksLikeNumber(text) ? Qt::AlignRight : Qt::AlignLeft;
}

void GridCellPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  const int row = index.row() + grid_.FixedRows, col = index.column() + grid_.FixedCols;
  if (row >= grid_.Rows() || col >= grid_.Cols()) return;
  const bool enabled = option.state & QStyle::State_Enabled;
  QColor ground = Ground(row, col, enabled);
  const bool current = row == grid_.Row && col == grid_.Col;
  if (IsSelected(row, col) && enabled && !current)
    ground = Mixed(ground, look::Colours().selection, 0.35);
  painter->fillRect(option.rect, ground);
  if (IsMarked(row, col)) PaintMark(*painter, option.rect);
  if (grid_.IsDone && grid_.IsDone(row, col)) PaintCheck(*painter, option.rect);
  const QString text = model_.TextAt(index.row(), index.column());
  const CellLamp lamp = grid_.LampOf ? grid_.LampOf(row, col) : CellLamp::None;
  const bool grey = grid_.IsUnused && grid_.IsUnused(row, col);
  if (lamp != CellLamp::None)
    PaintLamp(*painter, option.rect, lamp == CellLamp::On, enabled && !grey);
  const int beside = lamp == CellLamp::None ? 3 : kLampWidth + 6;
  painter->setPen(enabled ? look::Colours().text : look::Colours().faint_text);
  // A number that loses a sign or digits at the edge reads as another one: first the margin goes,
  // then dots say that something is missing.
  QRect field = option.rect.adjusted(beside, 0, -kCellEnd, 0);
  QString shown = text.trimmed();
  const QFontMetrics metrics = painter->fontMetrics();
  if (!ClearlyFits(shown, metrics, field.width())) {
    if (metrics.horizontalAdvance(shown) > field.width()) field.setRight(option.rect.right());
    shown = metrics.elidedText(shown, Qt::ElideRight, field.width());
  }
  painter->drawText(field, Qt::AlignVCenter | AlignmentOf(col, text), shown);
  if (!current || !enabled) return;
  if (grid_.List.Box && col == grid_.List.Col) PaintArrow(*painter, ListArrowIn(option.rect));
  painter->setPen(QPen(look::Colours().selection, 2));
  painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
}

}  // namespace tr7
