// Reports as recorded pages: what stands on them, in which order, and where pages end.

#include "report/data_report.h"
#include "report/para_report.h"
#include "report/posi_report.h"
#include "report/print_flow.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

int CountOf(const std::string& part, const std::string& text) {
  int count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

std::string Joined(const PrintedPage& page) {
  std::string all;
  for (const std::string& line : page) all += line + "\n";
  return all;
}

class ReportTest : public StateTest {
 protected:
  /// All pages; every text can be read.
  const std::vector<PrintedPage>& Print(const PrintJob& job) {
    EXPECT_EQ(PrintReport(job), Outcome::Done);
    EXPECT_EQ(virt.printer.faults, Texts());
    return virt.printer.pages;
  }
  /// The lines between head and foot of the one page that there is.
  std::string Body(const PrintJob& job) {
    const auto& pages = Print(job);
    EXPECT_EQ(pages.size(), 1u);
    return Joined({pages[0].begin() + 1, pages[0].end() - 2});
  }
  const SheetHead head{"File Name:a.x", "foot", "Printed: now"};
};

PosiRows RowsOf(int count, int mask, bool mm = true) {
  PosiRows rows{{}, mask, mm, [](int col, int number) {
                  if (col == kComment) return std::string(number % 7 ? "pick" : "取出し位置の確認");
                  return std::to_string(FieldOfColumn(col) == kPosi ? number * 100 : col);
                }};
  for (int n = 1; n <= count; ++n) rows.Numbers.push_back(n);
  return rows;
}

TEST_F(ReportTest, PositionsStandInTheColumnsOfTheirTable) {
  EXPECT_EQ(Body(PrintPosiTable(RowsOf(2, 1), head)),
            "AXIS1|Common\n"
            "No.|VEL|ACC|WAY|Posi1(mm)|PF|PS|ITPL|OUT|SM|COMMENT\n"
            "  1:  |1|2|3|100|5|6|25|26|27|pick\n"
            "  2:  |1|2|3|200|5|6|25|26|27|pick\n");
  EXPECT_EQ(virt.printer.pages[0].front(), "QV-TR7 Position Data|File Name:a.x|Page:1 / 1");
  EXPECT_EQ(virt.printer.pages[0].back(), "Prepared by:|Approved by:|Printed: now");
  // Four axes leave what they share to a block of its own.
  const std::string wide = Body(PrintPosiTable(RowsOf(1, 15), head));
  EXPECT_TRUE(
      wide.ends_with("\n  1:  |1|2|3|100|5|6|7|8|9|100|11|12|13|14|15|100|17|18|19|20|21|"
                     "100|23|24\nCommon\nNo.|ITPL|OUT|SM|COMMENT\n  1:  |25|26|27|pick\n"));
  EXPECT_EQ(Body(PrintPosiTablePrg(RowsOf(1, 5, false), head)),
            "AXIS1|AXIS3|Common\nNo.|Posi1(pls)|Posi3(pls)|COMMENT\n  1:  |100|100|pick\n");
}

TEST_F(ReportTest, APageEndsBehindItsLastLine) {
  constexpr int kHeadLines = 3, kFootLines = 2;
  const auto full = Print(PrintPosiTablePrg(RowsOf(kPosiMaxNo, 3), head));
  const auto rows = static_cast<int>(full[0].size()) - kHeadLines - kFootLines;
  EXPECT_EQ(static_cast<int>(full.size()), (kPosiMaxNo + rows - 1) / rows);
  const std::string count = std::to_string(full.size());
  EXPECT_TRUE(full.back()[0].ends_with("Page:" + count + " / " + count)) << full.back()[0];
  EXPECT_EQ(full.back()[2], full[0][2]);
  EXPECT_TRUE(full.back().end()[-3].starts_with("999:  "));
  EXPECT_EQ(Print(PrintPosiTablePrg(RowsOf(rows, 3), head)).size(), 1u);
  const auto over = Print(PrintPosiTablePrg(RowsOf(rows + 1, 3), head));
  ASSERT_EQ(over.size(), 2u);
  EXPECT_EQ(static_cast<int>(over[1].size()), kHeadLines + 1 + kFootLines);
}

TEST_F(ReportTest, NothingIsCutOnAnyPaper) {
  for (const auto& [width, height] : {std::pair(210, 285), {148, 198}, {105, 136}, {297, 408}}) {
    virt.printer.width = width;
    virt.printer.height = height;
    for (int mask = 1; mask <= kAllAxes; ++mask) {
      for (const auto& job : {PrintPosiTable(RowsOf(70, mask, false), head),
                              PrintPosiTablePrg(RowsOf(70, mask, false), head)}) {
        std::string all;
        for (const PrintedPage& page : Print(job)) all += Joined(page);
        EXPECT_EQ(CountOf("取出し位置の確認", all), 10) << width << " " << mask;
      }
    }
  }
}

TEST_F(ReportTest, AnAbsentAxisIsDashesInEveryRow) {
  ParaRows rows;
  rows.AxisMask = 3;
  for (int row = 1; row <= kParaRows; ++row) {
    for (int axis = 0; axis < kAxes; ++axis) rows.Texts[row][axis] = std::to_string(row);
  }
  const std::string all = Body(PrintParaTable(rows, head));
  EXPECT_EQ(virt.printer.pages[0][0], "QV-TR7 Parameters|File Name:a.x|Page:1 / 1");
  EXPECT_EQ(CountOf("|--|--\n", all), 23);  // as many as rows of axes
  EXPECT_EQ(CountOf("\n<< Controller Mode >>\n 1. POS/PRG:|33\n<< SP Parameter >>\n", all), 1);
}

TEST_F(ReportTest, GroupsAndMacrosStandInBlocks) {
  GrpTableRecord groups;
  groups.GrpEnd[2] = 15;
  groups.GrpStart[3] = 0;
  const std::string lines = Body(PrintGrpTable(groups, head));
  EXPECT_EQ(CountOf("<GRP No>  2  No.:  1  No.: 15  <End>", lines), 1);
  EXPECT_EQ(CountOf("<GRP No>  3  No.:---  No.:  1  <End>", lines), 1);

  SmTableRecord macros{};
  EXPECT_EQ(Body(PrintSmTable(macros, head)), "No macro holds data\n");
  macros[6][0] = {6, 9};
  macros[6][1] = {kSmBlank, 0};
  const std::string one = Body(PrintSmTable(macros, head));
  EXPECT_TRUE(
      one.starts_with("<SM No.7>\nSTEP  COMMAND     DATA\n  1:  6. TIMER10     9\n"
                      "  2:  0. END      \n"))
      << one;
  for (auto& macro : macros) macro[15] = {3, 4};
  int blocks = 0;
  for (const PrintedPage& page : Print(PrintSmTable(macros, head))) {
    EXPECT_EQ(CountOf("<SM No.", Joined(page)), CountOf(" 16:  3. OUT-ON", Joined(page)));
    blocks += CountOf("<SM No.", Joined(page));
  }
  EXPECT_EQ(blocks, kMacros);
}

}  // namespace
}  // namespace tr7
