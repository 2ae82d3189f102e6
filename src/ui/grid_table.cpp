#include "ui/grid_table.h"

#include <QAbstractButton>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "base/scope.h"
#include "state/text.h"
#include "ui/binding.h"
#include "ui/cell_bubble.h"
#include "ui/column_shares.h"
#include "ui/grid_cell_painter.h"
#include "ui/grid_header.h"
#include "ui/grid_model.h"
#include "ui/look.h"
#include "ui/twips.h"

namespace tr7 {
namespace {

constexpr int kRestOfWidth = -1;
/// Width of a digit in the font that the design's column widths were made for.
constexpr double kDesignDigit = 6.0;
constexpr double kLineInEms = 1.7;

/// What the user pulls a column to, never out of sight.
int UserTwips(int width) {
  constexpr int kNarrowest = 16;
  return qRound(Twips(std::max(width, kNarrowest)));
}

}  // namespace

GridTable::GridTable(QWidget* parent) : QTableView(parent), bubble_(new CellBubble(*this)) {
  header_ = new GridHeader(this);
  setHorizontalHeader(header_);
  setVerticalHeader(new GridRowHeader(this));
  setSelectionMode(QAbstractItemView::NoSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setContextMenuPolicy(Qt::CustomContextMenu);
  setFocusPolicy(Qt::StrongFocus);
  header_->setSectionResizeMode(QHeaderView::Interactive);
  header_->setMinimumSectionSize(1);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  setCornerButtonEnabled(false);
  corner_ = findChild<QAbstractButton*>();
  if (corner_) corner_->installEventFilter(this);
}

void GridTable::Attach(Grid& grid) {
  grid_ = &grid;
  model_ = new GridModel(grid, this);
  model_->FollowCounts();
  setModel(model_);
  setItemDelegate(new GridCellPainter(grid, *model_, this));
  header_->Attach(&grid);
  static_cast<GridRowHeader*>(verticalHeader())->Attach(&grid);
  // By the size of the letters: the line height of a Japanese font would cost every fifth line.
  verticalHeader()->setDefaultSectionSize(qRound(QFontInfo(font()).pixelSize() * kLineInEms));
  list_ = findChild<QListWidget*>();
  // A click on the list picks in place of what is typed.
  if (list_) connect(list_, &QListWidget::itemPressed, this, [this] { CloseEditor(); });
  verticalHeader()->setVisible(grid.FixedCols > 0);
  header_->setVisible(grid.FixedRows > 0);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
    if (!scrolling_) grid_->TopRow = shown_top_row_ = BodyRow(value);
    PlaceEditor();
  });
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] {
    PlaceEditor();
    // The titles over several columns move inside of what is left of them: none is just shifted.
    header_->viewport()->update();
  });
  connect(verticalHeader(), &QHeaderView::sectionPressed, this, [this](int section) {
    SelectRows(section, QGuiApplication::keyboardModifiers() & Qt::ShiftModifier);
  });
  connect(verticalHeader(), &QHeaderView::sectionEntered, this,
          [this](int section) { SelectRows(section, true); });
  connect(header_, &QHeaderView::sectionResized, this, [this](int section, int, int width) {
    const bool by_hand = !sizing_ && QGuiApplication::mouseButtons() & Qt::LeftButton;
    if (by_hand) grid_->SetUserWidth(section + grid_->FixedCols, UserTwips(width));
  });
  // Back to the column's own width.
  connect(header_, &QHeaderView::sectionHandleDoubleClicked, this, [this](int section) {
    grid_->SetUserWidth(section + grid_->FixedCols, 0);
    Push();
  });
  connect(header_, &QHeaderView::sectionPressed, this, [this](int section) {
    SelectCols(section, QGuiApplication::keyboardModifiers() & Qt::ShiftModifier);
  });
  connect(header_, &QHeaderView::sectionEntered, this,
          [this](int section) { SelectCols(section, true); });
}

QModelIndex GridTable::IndexOf(int row, int col) const {
  return model_->index(row - grid_->FixedRows, col - grid_->FixedCols);
}

bool GridTable::InBody(int row, int col) const {
  return row >= grid_->FixedRows && col >= grid_->FixedCols && row < grid_->Rows() &&
         col < grid_->Cols();
}

QRect GridTable::CellRect(int row, int col) const { return visualRect(IndexOf(row, col)); }

/// The same on the table itself, headers included.
QRect GridTable::ViewRect(std::pair<int, int> cell) const {
  return CellRect(cell.first, cell.second).translated(viewport()->pos());
}

QString GridTable::Refusal() const { return bubble_->isHidden() ? QString() : bubble_->text(); }

/// The fixed column's own title, in the line of the other columns' titles.
void GridTable::PaintCorner() {
  QPainter painter(corner_);
  painter.fillRect(corner_->rect(), look::Colours().header);
  painter.setPen(look::Colours().header_line);
  painter.drawRect(corner_->rect().adjusted(-1, -1, -1, -1));
  if (grid_->FixedCols == 0 || grid_->FixedRows == 0) return;
  const int level = grid_->FixedRows - 1;
  const QRect line(0, corner_->height() - header_->LevelHeight(level), corner_->width(),
                   header_->LevelHeight(level));
  painter.setPen(isEnabled() ? look::Colours().text : look::Colours().faint_text);
  painter.drawText(line, Qt::AlignCenter, Q(grid_->Text(level, grid_->FixedCols - 1)));
}

void GridTable::PushWidths() {
  std::vector<int> widths;
  for (int col = 0; col < grid_->Cols(); ++col) {
    widths.push_back(grid_->ColWidth(col));
    widths.push_back(grid_->UserWidth(col));
  }
  if (widths == shown_widths_) return;
  shown_widths_ = std::move(widths);
  FillWidth();
}

/// Widths follow the screen's scale and the size of the font, so that no text is cut.
void GridTable::FillWidth() {
  if (!grid_ || shown_widths_.empty()) return;
  sizing_ = true;
  const ScopeExit sized([this] { sizing_ = false; });
  if (grid_->FitsView) return ShareWidth();
  const double scale = std::max(fontMetrics().horizontalAdvance('0') / kDesignDigit, 1.0);
  const auto scaled = [scale](int twips) { return qRound(Pixels(twips) * scale); };
  int used = 0, rest_col = -1;
  for (int col = grid_->FixedCols; col < grid_->Cols(); ++col) {
    const int section = col - grid_->FixedCols, twips = grid_->ColWidth(col);
    const int by_hand = Pixels(grid_->UserWidth(col));
    header_->setSectionHidden(section, twips == 0);
    if (twips == kRestOfWidth && by_hand == 0) rest_col = section;
    if (twips == 0 || section == rest_col) continue;
    const int width = by_hand > 0 ? by_hand : std::max(scaled(twips), TitleWidth(col));
    header_->resizeSection(section, width);
    used += width;
  }
  if (grid_->FixedCols > 0) {
    const int least = fontMetrics().horizontalAdvance("9999") + 6;
    const int mark = grid_->MarkOfRow ? 2 * kRowMarkWidth : 0;
    verticalHeader()->setFixedWidth(std::max(scaled(grid_->ColWidth(0)), least) + mark);
  }
  if (rest_col >= 0) {
    header_->resizeSection(rest_col,
                           std::max(viewport()->width() - used, scaled(kRestWidthAtLeast)));
  }
}

/// Room for a title that has but one line; 0 where it may wrap.
int GridTable::TitleWidth(int col) const {
  constexpr int kBeside = 8;
  const bool wraps = header_->LevelHeight(0) >= 2 * fontMetrics().height();
  if (grid_->FixedRows != 1 || wraps) return 0;
  return fontMetrics().horizontalAdvance(Q(grid_->Text(0, col))) + kBeside;
}

int GridTable::TextWidth(int col) const {
  constexpr int kBeside = 10;
  int widest = 0;
  for (int row = 0; row < grid_->Rows(); ++row) {
    // The titles above stand over several columns.
    if (row + 1 < grid_->FixedRows) continue;
    widest = std::max(widest, fontMetrics().horizontalAdvance(Q(grid_->Text(row, col))));
  }
  return widest + kBeside;
}

void GridTable::ShareWidth() {
  std::vector<int> wanted, least;
  for (int col = 0; col < grid_->Cols(); ++col) {
    wanted.push_back(grid_->ColWidth(col));
    least.push_back(TextWidth(col));
  }
  const int field =
      viewport()->width() + (verticalHeader()->isVisible() ? verticalHeader()->width() : 0);
  const std::vector<int> shares = ColumnShares(field, wanted, least);
  const auto width_of = [&](int col) {
    const int by_hand = grid_->UserWidth(col);
    return by_hand > 0 ? Pixels(by_hand) : shares[static_cast<std::size_t>(col)];
  };
  if (grid_->FixedCols > 0 && width_of(0) > 0) verticalHeader()->setFixedWidth(width_of(0));
  for (int col = grid_->FixedCols; col < grid_->Cols(); ++col) {
    header_->setSectionHidden(col - grid_->FixedCols, grid_->ColWidth(col) == 0);
    if (grid_->ColWidth(col) > 0) header_->resizeSection(col - grid_->FixedCols, width_of(col));
  }
}

void GridTable::PushScroll() {
  if (grid_->TopRow == shown_top_row_) return;
  shown_top_row_ = grid_->TopRow;
  scrolling_ = true;
  verticalScrollBar()->setValue(std::max(grid_->TopRow - grid_->FixedRows, 0));
  scrolling_ = false;
}

void GridTable::PushSight() {
  if (grid_->SightsAsked() == shown_sights_) return;
  shown_sights_ = grid_->SightsAsked();
  const int row = grid_->RowToSee();
  if (InBody(row, grid_->FixedCols)) {
    scrollTo(model_->index(row - grid_->FixedRows, std::max(header_->logicalIndexAt(0), 0)));
  }
}

void GridTable::Push() {
  if (!grid_ || !grid_->Redraw) return;
  if (editor_ && (!grid_->Enabled || edit_row_ >= grid_->Rows())) CloseEditor();
  PushRefusal();
  PlaceList();  // what it offers has been drawn before
  if (shown_revision_ == grid_->Revision) return PushScroll();
  shown_revision_ = grid_->Revision;
  if (model_->FollowCounts()) shown_widths_.clear();
  PushWidths();
  PushScroll();
  const std::pair current{grid_->Row, grid_->Col};
  if (shown_current_ != current) {
    shown_current_ = current;
    CloseList();
    ShowCurrent();
  }
  PushSight();
  PlaceEditor();
  viewport()->update();
  header_->viewport()->update();
  if (corner_) corner_->update();
  verticalHeader()->viewport()->update();
}

void GridTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  FillWidth();
  PlaceEditor();
}

void GridTable::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (!grid_->WhenEmpty || grid_->Rows() > grid_->FixedRows) return;
  constexpr int kBeside = 24;
  QPainter painter(viewport());
  painter.setPen(look::Colours().faint_text);
  painter.drawText(viewport()->rect().adjusted(kBeside, kBeside, -kBeside, -kBeside),
                   Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, Q(Text(grid_->WhenEmpty)));
}

void GridTable::updateGeometries() {
  QTableView::updateGeometries();
  PlaceEditor();
}

}  // namespace tr7
