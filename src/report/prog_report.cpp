#include "report/prog_report.h"

#include <memory>

#include "base/text_helpers.h"
#include "prog/prog_hint.h"
#include "report/table.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgTitle = 7616, kMsgNumber = 7617;

TableData TableOf(const std::vector<ProgCells>& steps) {
  constexpr int kNumberWidth = 3;
  constexpr double kColumnsApart = 5;
  TableData table{{"", ProgHeading(kProgNo)}, {}, kColumnsApart};
  for (std::size_t step = 1; step <= steps.size(); ++step) {
    table.Key.Cells.push_back(SpacePad(static_cast<int>(step), kNumberWidth));
  }
  for (int column = kProgCommand; column <= kProgComment; ++column) {
    TableColumn filled{"", ProgHeading(column), false};
    for (const ProgCells& cells : steps) filled.Cells.push_back(OneLine(cells[column]));
    table.Columns.push_back(std::move(filled));
  }
  return table;
}

bool Draw(Sheet& sheet, const ProgListing& listing, const Table& steps) {
  sheet.Write(kPrintLeft, Text(kMsgNumber, listing.Number.empty() ? "--" : listing.Number));
  sheet.Feed(2);
  if (!steps.Draw(sheet)) return false;
  if (sheet.LinesLeft() > 1) sheet.Feed();
  for (const std::string& line : listing.CheckResult) {
    if (!sheet.WriteFolded(line)) return false;
  }
  return true;
}

}  // namespace

PrintJob PrintProgTable(const ProgListing& listing, const SheetHead& head) {
  const auto table = std::make_shared<const TableData>(TableOf(listing.Steps));
  return {Text(kMsgTitle), [table](PrintPage& page) { return Table(page, *table).Blocks() == 1; },
          [table, listing, titled = head.WithTitle(Text(kMsgTitle))](PrintPage& page) {
            const Table steps(page, *table);
            return DrawReport(page, titled, Pitch::Lines,
                              [&](Sheet& sheet) { return Draw(sheet, listing, steps); });
          }};
}

}  // namespace tr7
