#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "platform/printer.h"
#include "report/sheet.h"

namespace tr7 {

struct TableColumn {
  std::string Group;  ///< above the columns of one group, which stay together; empty: none
  std::string Head;
  bool Right = true;  ///< as numbers stand
  std::vector<std::string> Cells = {};
};

/// Columns of equal length. The key begins every line.
struct TableData {
  TableColumn Key;
  std::vector<TableColumn> Columns;
  double Gap = 2;        ///< between columns, mm
  bool OneLine = false;  ///< smaller letters rather than a further block
};

/// A table as it comes out on pages of some width. Columns that one line has no room for stand in a
/// further block, with the key. Where a column alone is wider than the page, its letters are
/// smaller. The data outlives it.
class Table {
 public:
  Table(PrintPage& page, const TableData& data);

  std::size_t Blocks() const { return blocks_.size(); }
  /// All rows, on as many pages as it takes; each has all blocks of its rows.
  [[nodiscard]] bool Draw(Sheet& sheet) const;

  // The same by hand, for a table whose rows other things stand between.
  void DrawHead(Sheet& sheet, std::size_t block) const;
  void DrawRow(Sheet& sheet, std::size_t block, std::size_t row) const;
  void SetLetters(Sheet& sheet) const { sheet.SetLetters(points_); }
  int HeadLines() const { return has_groups_ ? 2 : 1; }

 private:
  struct Place {
    std::size_t column;
    double left, width;
  };
  using Block = std::vector<Place>;

  bool ColumnsFit(double right) const;
  void Measure(PrintPage& page);
  void ShareOut(double right);
  std::size_t GroupEnd(std::size_t column) const;
  double GroupWidth(std::size_t first, std::size_t last) const;
  int RowsThatFit(int lines) const;
  void DrawBlock(Sheet& sheet, std::size_t block, std::size_t first, std::size_t last) const;
  static void DrawCell(Sheet& sheet, const TableColumn& column, const Place& place,
                       const std::string& text);

  const TableData& data_;
  bool has_groups_ = false;
  double points_ = kBodyPoints;
  double key_width_ = 0;
  std::vector<double> widths_;
  std::vector<Block> blocks_;
};

/// A report that is one table, and its title.
PrintJob TableJob(const std::string& title, const SheetHead& head, TableData data);

}  // namespace tr7
