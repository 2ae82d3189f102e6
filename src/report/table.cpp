#include "report/table.h"

#include <algorithm>
#include <memory>

#include "state/text.h"

namespace tr7 {
namespace {

constexpr double kLeastPoints = 5;
constexpr double kGroupsApart = 2;  ///< beside the gap between columns
constexpr int kRowsUnderRule = 5;   ///< a thin rule for the eye behind each so many
constexpr double kThin = 0.08;

double Widest(PrintPage& page, const TableColumn& column) {
  double width = page.TextWidth(column.Head);
  for (const std::string& cell : column.Cells) width = std::max(width, page.TextWidth(cell));
  return width;
}

}  // namespace

Table::Table(PrintPage& page, const TableData& data) : data_(data) {
  for (const TableColumn& column : data.Columns) has_groups_ |= !column.Group.empty();
  const double right = PrintPageSetup(page).PrintRight;
  for (Measure(page); !ColumnsFit(right) && points_ > kLeastPoints; Measure(page)) --points_;
  ShareOut(right);
}

bool Table::ColumnsFit(double right) const {
  const double room = right - kPrintLeft - key_width_ - data_.Gap;
  if (data_.OneLine) return GroupWidth(0, widths_.size()) - data_.Gap <= room;
  return std::all_of(widths_.begin(), widths_.end(), [room](double w) { return w <= room; });
}

void Table::Measure(PrintPage& page) {
  page.SetFont({Text(24), points_});
  key_width_ = Widest(page, data_.Key);
  widths_.clear();
  for (const TableColumn& column : data_.Columns) widths_.push_back(Widest(page, column));
}

/// Behind the last column of the group that begins here.
std::size_t Table::GroupEnd(std::size_t column) const {
  const std::string& group = data_.Columns[column].Group;
  std::size_t end = column + 1;
  while (!group.empty() && end < data_.Columns.size() && data_.Columns[end].Group == group) ++end;
  return end;
}

double Table::GroupWidth(std::size_t first, std::size_t end) const {
  double width = 0;
  for (std::size_t i = first; i < end; ++i) width += data_.Gap + widths_[i];
  return width;
}

/// A group goes to the block before as a whole, or begins a new one; one that is wider than a line
/// is parted between its columns.
void Table::ShareOut(double right) {
  const double start = kPrintLeft + key_width_;
  double left = start;
  blocks_.emplace_back();
  for (std::size_t first = 0; first < data_.Columns.size();) {
    const std::size_t end = GroupEnd(first);
    const bool begun = !blocks_.back().empty();
    const double apart = begun && has_groups_ ? kGroupsApart : 0;
    if (begun && left + apart + GroupWidth(first, end) > right) {
      blocks_.emplace_back();
      left = start;
    } else {
      left += apart;
    }
    for (; first < end; ++first) {
      if (!blocks_.back().empty() && left + data_.Gap + widths_[first] > right) {
        blocks_.emplace_back();
        left = start;
      }
      blocks_.back().push_back({first, left + data_.Gap, widths_[first]});
      left += data_.Gap + widths_[first];
    }
  }
}

void Table::DrawCell(Sheet& sheet, const TableColumn& column, const Place& place,
                     const std::string& text) {
  if (column.Right) {
    sheet.WriteRight(place.left + place.width, text);
  } else {
    sheet.Write(place.left, text);
  }
}

void Table::DrawHead(Sheet& sheet, std::size_t block) const {
  sheet.SetLetters(points_, true);
  if (has_groups_) {
    const std::string* before = nullptr;
    for (const Place& place : blocks_[block]) {
      const std::string& group = data_.Columns[place.column].Group;
      if (!before || group != *before) sheet.Write(place.left, group);
      before = &group;
    }
    sheet.Feed();
  }
  sheet.Write(kPrintLeft, data_.Key.Head);
  for (const Place& place : blocks_[block]) {
    const TableColumn& column = data_.Columns[place.column];
    DrawCell(sheet, column, place, column.Head);
  }
  sheet.Feed();
  sheet.Rule(kPrintLeft, sheet.Right());
  sheet.SetLetters(points_);
}

void Table::DrawRow(Sheet& sheet, std::size_t block, std::size_t row) const {
  sheet.Write(kPrintLeft, data_.Key.Cells[row]);
  for (const Place& place : blocks_[block]) {
    const TableColumn& column = data_.Columns[place.column];
    DrawCell(sheet, column, place, column.Cells[row]);
  }
  sheet.Feed();
}

void Table::DrawBlock(Sheet& sheet, std::size_t block, std::size_t first, std::size_t last) const {
  DrawHead(sheet, block);
  for (std::size_t row = first; row < last; ++row) {
    const std::size_t above = row - first;
    if (above > 0 && above % kRowsUnderRule == 0) sheet.Rule(kPrintLeft, sheet.Right(), kThin);
    DrawRow(sheet, block, row);
  }
  sheet.Rule(kPrintLeft, sheet.Right());
}

int Table::RowsThatFit(int lines) const {
  const int blocks = static_cast<int>(blocks_.size());
  return (lines - blocks * HeadLines() - (blocks - 1)) / blocks;
}

bool Table::Draw(Sheet& sheet) const {
  const std::size_t rows = data_.Key.Cells.size();
  for (std::size_t row = 0; row < rows;) {
    if (RowsThatFit(sheet.LinesLeft()) < 1 && !sheet.NextPage()) return false;
    const auto fit = static_cast<std::size_t>(std::max(RowsThatFit(sheet.LinesLeft()), 1));
    const std::size_t last = std::min(rows, row + fit);
    for (std::size_t block = 0; block < blocks_.size(); ++block) {
      if (block > 0) sheet.Feed();
      DrawBlock(sheet, block, row, last);
    }
    row = last;
  }
  sheet.SetLetters(kBodyPoints);
  return true;
}

PrintJob TableJob(const std::string& title, const SheetHead& head, TableData data) {
  const auto table = std::make_shared<const TableData>(std::move(data));
  return {title, [table](PrintPage& page) { return Table(page, *table).Blocks() == 1; },
          [table, titled = head.WithTitle(title)](PrintPage& page) {
            const Table placed(page, *table);
            return DrawReport(page, titled, Pitch::Lines,
                              [&placed](Sheet& sheet) { return placed.Draw(sheet); });
          }};
}

}  // namespace tr7
