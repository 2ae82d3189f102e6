#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/print_page.h"

namespace tr7 {

inline constexpr double kPrintLeft = 10;   ///< of everything that is printed, mm
inline constexpr double kBodyPoints = 11;  ///< size of the body's letters

/// What every report measures before it begins. Heights are whole millimetres.
struct PrintSetup {
  int PrintCharH = 0;                   ///< a letter
  int PrintLineH = 0;                   ///< a line with its gap
  int PrintLinesA = 0, PrintAreaA = 0;  ///< lines of letters on a page, and what they take
  int PrintLinesB = 0, PrintAreaB = 0;  ///< the same of lines with a gap
  double PrintRight = 0;
};
PrintSetup PrintPageSetup(PrintPage& page);

/// The text in lines of at most this width, broken behind blanks where there are any.
std::vector<std::string> FoldText(PrintPage& page, const std::string& text, double width);

/// What stands around the body of every page.
struct SheetHead {
  std::string Detail;      ///< whose data it is
  std::string Foot;        ///< what else tells whose it is
  std::string Printed;     ///< when
  std::string Title = {};  ///< behind the product's name, unless it begins with that
  SheetHead WithTitle(const std::string& title) const { return {Detail, Foot, Printed, title}; }
};

/// How close the lines of a body stand.
enum class Pitch { Letters, Lines };

/// The pages of a report: head and foot are drawn by the way, the body line by line.
class Sheet {
 public:
  /// `pages` stands behind each page's number; 0: not known yet.
  Sheet(PrintPage& page, const SheetHead& head, Pitch pitch, int pages);

  double Right() const { return setup_.PrintRight; }
  int LinesLeft() const;
  int PrintPageNo() const { return page_no_; }

  /// Letters of the body from here on.
  void SetLetters(double points, bool bold = false);
  double Width(const std::string& text) { return page_.TextWidth(text); }
  /// On the line that is current.
  void Write(double left, const std::string& text) { page_.Text(left, top_, text); }
  void WriteRight(double right, const std::string& text) { page_.TextRight(right, top_, text); }
  /// In the gap above that line.
  void Rule(double left, double right, double width = 0.2);
  void Feed(int lines = 1) { top_ += pitch_ * lines; }
  /// Back to a line above, for a column beside what was written.
  double Top() const { return top_; }
  void SetTop(double top) { top_ = top; }
  /// Folded to the room between the margins; takes new pages as they are needed.
  [[nodiscard]] bool WriteFolded(const std::string& text);

  /// The head of the next page is drawn. False: the report is over.
  [[nodiscard]] bool NextPage();

 private:
  void DrawHead();
  void DrawFoot();

  PrintPage& page_;
  const SheetHead& head_;
  const PrintSetup setup_;
  const int pages_;
  const double pitch_;
  const std::vector<std::string> foot_;  ///< its lines
  const double end_;                     ///< of the frame that the body stands in
  double top_ = 0;
  int page_no_ = 1;
};

/// Draws a report: its body once for the number of pages, then for good. False where the page did
/// not want all of it.
[[nodiscard]] bool DrawReport(PrintPage& page, const SheetHead& head, Pitch pitch,
                              const std::function<bool(Sheet& sheet)>& body);

}  // namespace tr7
