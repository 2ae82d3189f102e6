#include "report/sheet.h"

#include <algorithm>
#include <cmath>

#include "base/text_helpers.h"
#include "report/measuring_page.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgProduct = 201, kMsgFont = 24, kMsgPage = 7612;
constexpr int kMsgPrepared = 7614, kMsgApproved = 7615;
constexpr double kTitlePoints = 14, kTitleH = 6;
constexpr double kLineGap = 1;
constexpr double kDetailLeft = 70;
constexpr double kApart = 4;  ///< between texts on one line of the head
constexpr double kUnderRule = 2;
constexpr int kLinesUnderFoot = 2;
constexpr double kSignRoom = 24;  ///< for a name or a seal
constexpr double kFrameRule = 0.4;

PrintFont FontOf(double points, bool bold, bool italic) {
  return {Text(kMsgFont), points, bold, italic};
}

std::string TitleOf(const SheetHead& head) {
  const std::string product = Text(kMsgProduct);
  return head.Title.starts_with(product) ? head.Title : product + " " + head.Title;
}

}  // namespace

PrintSetup PrintPageSetup(PrintPage& page) {
  page.SetFont(FontOf(kBodyPoints, false, false));
  PrintSetup setup;
  setup.PrintCharH = static_cast<int>(std::ceil(page.TextHeight("A")));
  setup.PrintLineH = setup.PrintCharH + static_cast<int>(kLineGap);
  setup.PrintLinesA = static_cast<int>(page.Height()) / setup.PrintCharH;
  setup.PrintLinesB = static_cast<int>(page.Height()) / setup.PrintLineH;
  setup.PrintAreaA = setup.PrintLinesA * setup.PrintCharH;
  setup.PrintAreaB = setup.PrintLinesB * setup.PrintLineH;
  setup.PrintRight = page.Width() - kPrintLeft;
  return setup;
}

std::vector<std::string> FoldText(PrintPage& page, const std::string& text, double width) {
  std::vector<std::string> lines;
  std::string rest = text;
  while (page.TextWidth(rest) > width) {
    int count = CharCount(rest) - 1;
    while (count > 1 && page.TextWidth(LeftChars(rest, count)) > width) --count;
    if (count < 1) break;
    std::string line = LeftChars(rest, count);
    const std::size_t blank = line.find_last_of(' ');
    if (blank != std::string::npos && blank > 0) line.resize(blank + 1);
    rest.erase(0, line.size());
    lines.push_back(std::move(line));
  }
  lines.push_back(std::move(rest));
  return lines;
}

Sheet::Sheet(PrintPage& page, const SheetHead& head, Pitch pitch, int pages)
    : page_(page),
      head_(head),
      setup_(PrintPageSetup(page)),
      pages_(pages),
      pitch_(pitch == Pitch::Letters ? setup_.PrintCharH : setup_.PrintLineH),
      foot_(FoldText(page, head.Foot, Right() - kPrintLeft)),
      end_((pitch == Pitch::Letters ? setup_.PrintAreaA : setup_.PrintAreaB) -
           (static_cast<int>(foot_.size()) + kLinesUnderFoot) * setup_.PrintLineH) {
  page_.Begin(pages);
  DrawHead();
}

int Sheet::LinesLeft() const {
  constexpr double kNothing = 1e-6;  // what sums of lines are short of a whole number
  return std::max(static_cast<int>((end_ - top_ + kNothing) / pitch_), 0);
}

void Sheet::SetLetters(double points, bool bold) { page_.SetFont(FontOf(points, bold, false)); }

void Sheet::Rule(double left, double right, double width) {
  const double between = top_ - kLineGap / 2;
  page_.Line(left, between, right, between, width);
}

bool Sheet::WriteFolded(const std::string& text) {
  for (const std::string& line : FoldText(page_, text, Right() - kPrintLeft)) {
    if (LinesLeft() < 1 && !NextPage()) return false;
    Write(kPrintLeft, line);
    Feed();
  }
  return true;
}

bool Sheet::NextPage() {
  if (!page_.NewPage()) return false;
  ++page_no_;
  DrawHead();
  return true;
}

void Sheet::DrawHead() {
  const double top = setup_.PrintCharH;
  page_.SetFont(FontOf(kTitlePoints, true, true));
  const std::string title = TitleOf(head_);
  page_.Text(kPrintLeft, top, title);
  const double title_end = kPrintLeft + page_.TextWidth(title) + kApart;

  page_.SetFont(FontOf(kBodyPoints, true, true));
  const std::string of_pages = pages_ > 0 ? " / " + std::to_string(pages_) : std::string();
  const std::string number = Text(kMsgPage) + std::to_string(page_no_) + of_pages;
  page_.TextRight(setup_.PrintRight, top, number);
  const double number_start = setup_.PrintRight - page_.TextWidth(number) - kApart;

  // What the first line has no room for stands below it.
  const double left = std::max(kDetailLeft, title_end);
  top_ = top + kTitleH + kLineGap;
  if (left + page_.TextWidth(head_.Detail) <= number_start) {
    page_.Text(left, top, head_.Detail);
  } else {
    for (const std::string& line : FoldText(page_, head_.Detail, Right() - kPrintLeft)) {
      page_.Text(kPrintLeft, top_, line);
      top_ += setup_.PrintLineH;
    }
  }
  Rule(kPrintLeft, Right(), kFrameRule);
  DrawFoot();
  top_ += kUnderRule;
  SetLetters(kBodyPoints);
}

/// Lines to sign on stand where there is room beside the date.
void Sheet::DrawFoot() {
  page_.Line(kPrintLeft, end_, Right(), end_, kFrameRule);
  SetLetters(kBodyPoints);
  double top = end_ + 1;
  for (const std::string& line : foot_) {
    page_.Text(kPrintLeft, top, line);
    top += setup_.PrintLineH;
  }
  ++top;
  page_.TextRight(Right(), top, head_.Printed);
  const double room_end = Right() - page_.TextWidth(head_.Printed) - kApart;
  double left = kPrintLeft;
  for (const MsgId who : {MsgId(kMsgPrepared), MsgId(kMsgApproved)}) {
    const double line_left = left + page_.TextWidth(Text(who)), line_right = line_left + kSignRoom;
    if (line_right > room_end) break;
    page_.Text(left, top, Text(who));
    const double under = top + setup_.PrintCharH;
    page_.Line(line_left, under, line_right, under, 0.2);
    left = line_right + kApart;
  }
}

bool DrawReport(PrintPage& page, const SheetHead& head, Pitch pitch,
                const std::function<bool(Sheet& sheet)>& body) {
  MeasuringPage measuring(page);
  Sheet counted(measuring, head, pitch, 0);
  if (!body(counted)) return false;
  Sheet sheet(page, head, pitch, counted.PrintPageNo());
  return body(sheet);
}

}  // namespace tr7
