#include "report/para_report.h"

#include <algorithm>
#include <memory>

namespace tr7 {
namespace {

constexpr const char* kTitle = "QV-TR7 Parameters";
constexpr const char* kAbsent = "--";
constexpr double kColumnsApart = 8;

struct Section {
  const char* heading;
  struct Row {
    int row;
    const char* label;
  };
  std::vector<Row> rows;
};

const std::vector<Section>& Sections() {
  static const std::vector<Section> sections{
      {"<< HOMING PARAMETER >>",
       {{1, " 1.OFFSET:"},
        {2, " 2.PUSH:"},
        {3, " 3.VEL:"},
        {4, " 4.OFSVEL:"},
        {5, " 5.PUSHVEL:"},
        {6, " 6.SEQ:"}}},
      {"<< AXIS PARAMETER >>",
       {{7, " 1.STROKE:"},
        {8, " 2.LEAD:"},
        {9, " 3.PULSE:"},
        {10, " 4.JOG VEL:"},
        {11, " 5.Auto Drive:"},
        {12, " 6.TYPE:"},
        {13, " 7.Actuator:"}}},
      {"<< PG PARAMETER >>", {{14, " 1.FUNCTION:"}, {15, " 2.ALM:"}}},
      {"<< Etc PARAMETER >>",
       {{16, " 1. HOME OUT:"},
        {17, " 2. GRP ENABLE:"},
        {18, " 3. SM TIMEOUT:"},
        {19, " 4. SM TIMER:"},
        {20, " 5. ZONE ENABLE:"},
        {21, " 6. ZONE1:"},
        {22, " 7. ZONE2:"},
        {23, " 8. IN-P WID:"},
        {24, " 9. HOLD TIME:"}}},
      {"<< Controller Mode >>", {{33, " 1. POS/PRG:"}}},
      {"<< SP Parameter >>",
       {{25, " 1. AutoPrg No.:"},
        {26, " 2. AXIS:"},
        {27, " 3. AUTO HOME:"},
        {28, " 4. PG TIMER:"},
        {29, " 5. LS TIMER:"},
        {30, " 6. SOFT LIMIT:"},
        {31, " 7. EMG LOGIC:"},
        {32, " 8. ALM1 CLEAR:"},
        {34, " 9. PPUT Write:"}}}};
  return sections;
}

std::string CellOf(const ParaRows& rows, int row, int axis) {
  if (!IsAxisRow(row)) return axis == 0 ? rows.Texts[row][0] : std::string();
  return InMask(rows.AxisMask, axis) ? rows.Texts[row][axis] : kAbsent;
}

/// The labels and values of all sections, one below the other.
TableData TableOf(const ParaRows& rows) {
  TableData table{{}, {}, kColumnsApart, true};
  for (int axis = 0; axis < kAxes; ++axis) {
    table.Columns.push_back({"", "< AXIS " + std::to_string(axis + 1) + " >"});
  }
  for (const Section& section : Sections()) {
    for (const auto& [row, label] : section.rows) {
      table.Key.Cells.emplace_back(label);
      for (int axis = 0; axis < kAxes; ++axis) {
        table.Columns[static_cast<std::size_t>(axis)].Cells.push_back(CellOf(rows, row, axis));
      }
    }
  }
  return table;
}

/// A section stays whole.
bool Draw(Sheet& sheet, const Table& table) {
  std::size_t next = 0;
  table.DrawHead(sheet, 0);
  for (const Section& section : Sections()) {
    const std::size_t end = next + section.rows.size();
    if (sheet.LinesLeft() < static_cast<int>(section.rows.size()) + 1) {
      if (!sheet.NextPage()) return false;
      table.DrawHead(sheet, 0);
    } else if (next > 0 && sheet.LinesLeft() > static_cast<int>(section.rows.size()) + 1) {
      sheet.Feed();
    }
    sheet.SetLetters(kBodyPoints, true);
    sheet.Write(kPrintLeft, section.heading);
    sheet.Feed();
    table.SetLetters(sheet);
    for (; next < end; ++next) table.DrawRow(sheet, 0, next);
  }
  return true;
}

}  // namespace

PrintJob PrintParaTable(const ParaRows& rows, const SheetHead& head) {
  const auto data = std::make_shared<const TableData>(TableOf(rows));
  return {kTitle, [](PrintPage&) { return true; },
          [data, titled = head.WithTitle(kTitle)](PrintPage& page) {
            const Table table(page, *data);
            return DrawReport(page, titled, Pitch::Lines,
                              [&table](Sheet& sheet) { return Draw(sheet, table); });
          }};
}

}  // namespace tr7
