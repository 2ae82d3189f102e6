#include "report/data_report.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "base/text_helpers.h"
#include "posi/posi_table.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgMacros = 33, kMsgGroups = 34, kMsgNoneHolds = 6502;
constexpr double kColumnsApart = 10;

/// Lines that stay together.
using TextBlock = std::vector<std::string>;

double WidthOf(Sheet& sheet, const std::vector<TextBlock>& blocks) {
  double width = 0;
  for (const TextBlock& block : blocks) {
    for (const std::string& line : block) width = std::max(width, sheet.Width(line));
  }
  return width;
}

/// A block's first line is its heading.
void DrawBlock(Sheet& sheet, double left, const TextBlock& block) {
  const bool has_heading = block.size() > 1;
  for (std::size_t i = 0; i < block.size(); ++i) {
    sheet.SetLetters(kBodyPoints, has_heading && i == 0);
    sheet.Write(left, block[i]);
    sheet.Feed();
  }
}

/// How many blocks stand beside one another, and where.
struct Columns {
  std::size_t count;
  double step;
  double Left(std::size_t column) const { return kPrintLeft + static_cast<double>(column) * step; }
};

/// As many as there is room for, over the whole width.
Columns ColumnsOf(Sheet& sheet, const std::vector<TextBlock>& blocks) {
  const double room = sheet.Right() - kPrintLeft + kColumnsApart;
  const double fit = std::max(std::floor(room / (WidthOf(sheet, blocks) + kColumnsApart)), 1.0);
  return {static_cast<std::size_t>(fit), room / fit};
}

/// Single lines: down a column, then down the next one.
bool DrawLines(Sheet& sheet, const std::vector<TextBlock>& lines) {
  const Columns columns = ColumnsOf(sheet, lines);
  for (std::size_t next = 0; next < lines.size();) {
    if (next > 0 && !sheet.NextPage()) return false;
    const std::size_t left_over = lines.size() - next;
    const std::size_t rows = std::min(static_cast<std::size_t>(std::max(sheet.LinesLeft(), 1)),
                                      (left_over + columns.count - 1) / columns.count);
    const double top = sheet.Top();
    for (std::size_t column = 0; column < columns.count; ++column) {
      sheet.SetTop(top);
      for (std::size_t row = 0; row < rows && next < lines.size(); ++row, ++next) {
        DrawBlock(sheet, columns.Left(column), lines[next]);
      }
    }
  }
  return true;
}

/// Blocks beside one another, then the next ones below. A page ends before a block that does not
/// fit.
bool DrawBlocks(Sheet& sheet, const std::vector<TextBlock>& blocks) {
  constexpr int kLinesApart = 2;
  const Columns columns = ColumnsOf(sheet, blocks);
  for (std::size_t next = 0; next < blocks.size();) {
    const auto lines = static_cast<int>(blocks[next].size());
    if (next > 0 && sheet.LinesLeft() < lines && !sheet.NextPage()) return false;
    const double top = sheet.Top();
    for (std::size_t column = 0; column < columns.count && next < blocks.size(); ++column, ++next) {
      sheet.SetTop(top);
      DrawBlock(sheet, columns.Left(column), blocks[next]);
    }
    sheet.Feed(kLinesApart);
  }
  return true;
}

std::string PlaceText(int number) {
  constexpr int kWidth = 3;
  const bool empty = number < 1 || number > kPosiMaxNo;
  return "No.:" + (empty ? "---" : SpacePad(number, kWidth));
}

std::string StepText(const SmStep& step) {
  const int code = step.Command == kSmBlank ? kSmEnd : step.Command;
  const bool known = code >= 0 && code < static_cast<int>(kSmCommands.size());
  return known ? kSmCommands[static_cast<std::size_t>(code)] : std::to_string(code);
}

TextBlock BlockOf(const SmTableRecord::value_type& macro, int number) {
  constexpr std::size_t kCommandWidth = 12;
  constexpr int kValueWidth = 4;
  TextBlock block{"<SM No." + std::to_string(number) + ">", "STEP  COMMAND     DATA"};
  int at = 0;
  for (const SmStep& step : macro) {
    std::string command = StepText(step);
    command.resize(std::max(command.size(), kCommandWidth), ' ');
    const bool has_value = SmHighestValue(step.Command) > 0;
    block.push_back(SpacePad(++at, 3) + ":  " + command +
                    (has_value ? SpacePad(step.Value, kValueWidth) : ""));
  }
  return block;
}

PrintJob BlocksJob(MsgId title, Pitch pitch, const SheetHead& head, std::vector<TextBlock> blocks,
                   bool (*draw)(Sheet& sheet, const std::vector<TextBlock>& blocks)) {
  return {Text(title), [](PrintPage&) { return true; },
          [pitch, titled = head.WithTitle(Text(title)), draw,
           blocks = std::move(blocks)](PrintPage& page) {
            return DrawReport(page, titled, pitch,
                              [&](Sheet& sheet) { return draw(sheet, blocks); });
          }};
}

}  // namespace

PrintJob PrintGrpTable(const GrpTableRecord& groups, const SheetHead& head) {
  std::vector<TextBlock> lines;
  for (int n = 1; n <= kGroups; ++n) {
    lines.push_back({"<GRP No>" + SpacePad(n, 3) + "  " + PlaceText(groups.GrpStart[n]) + "  " +
                     PlaceText(groups.GrpEnd[n]) + "  <End>"});
  }
  return BlocksJob(kMsgGroups, Pitch::Lines, head, std::move(lines), DrawLines);
}

PrintJob PrintSmTable(const SmTableRecord& macros, const SheetHead& head) {
  std::vector<TextBlock> blocks;
  for (int n = 1; n <= kMacros; ++n) {
    const auto& macro = macros[static_cast<std::size_t>(n) - 1];
    if (MacroHoldsData(macro)) blocks.push_back(BlockOf(macro, n));
  }
  if (blocks.empty()) blocks.push_back({Text(kMsgNoneHolds)});
  return BlocksJob(kMsgMacros, Pitch::Letters, head, std::move(blocks), DrawBlocks);
}

}  // namespace tr7
