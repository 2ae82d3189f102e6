#include "report/posi_report.h"

#include "base/axes.h"
#include "base/text_helpers.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgTitle = 202, kMsgAxis1 = 220;
constexpr int kNumberWidth = 3;

TableColumn ColumnOf(const PosiRows& rows, int col) {
  const int axis = AxisOfColumn(col);
  TableColumn column{axis >= 0 ? Text(MsgId::At(kMsgAxis1, axis)) : "Common",
                     PosiColumnTitle(col, rows.Mm), col != kComment};
  for (const int number : rows.Numbers) column.Cells.push_back(Trim(rows.Cell(col, number)));
  return column;
}

/// In both layouts the columns of the axes stand together, and behind them what they share.
PrintJob Print(const PosiRows& rows, const SheetHead& head, const std::vector<int>& fields,
               const std::vector<int>& common) {
  TableData table{{"", "No."}, {}};
  for (const int number : rows.Numbers) {
    table.Key.Cells.push_back(SpacePad(number, kNumberWidth) + ":  ");
  }
  for (const int axis : AxisList(rows.AxisMask)) {
    for (const int field : fields) table.Columns.push_back(ColumnOf(rows, AxisBase(axis) + field));
  }
  for (const int col : common) table.Columns.push_back(ColumnOf(rows, col));
  return TableJob(Text(kMsgTitle), head, std::move(table));
}

}  // namespace

PrintJob PrintPosiTable(const PosiRows& rows, const SheetHead& head) {
  return Print(rows, head, {kVel, kAcc, kWay, kPosi, kPf, kPs}, {kItpl, kOut, kSm, kComment});
}

PrintJob PrintPosiTablePrg(const PosiRows& rows, const SheetHead& head) {
  return Print(rows, head, {kPosi}, {kComment});
}

}  // namespace tr7
