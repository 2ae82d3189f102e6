#pragma once

#include <string>

namespace tr7 {

struct PrintFont {
  std::string
      Name;  ///< where the machine lacks it, a fixed-width font with Japanese letters serves
  double Points = 11;
  bool Bold = false;
  bool Italic = false;
  bool operator==(const PrintFont&) const = default;
};

/// A page to draw on, then the next one. Lengths are millimetres, places count from the page's
/// upper left corner; texts are UTF-8. A page is measured before and while it is drawn on, and its
/// size stays for the whole job.
class PrintPage {
 public:
  virtual ~PrintPage() = default;
  virtual double Width() const = 0;
  virtual double Height() const = 0;

  /// Of what is measured and drawn from now on.
  virtual void SetFont(const PrintFont& font) = 0;
  virtual double TextWidth(const std::string& text) = 0;
  /// What one line of the text takes, nothing between it and the next one.
  virtual double TextHeight(const std::string& text) = 0;

  /// How many pages the job has, told once before the first is drawn on.
  virtual void Begin(int pages) = 0;
  /// The text's upper left corner; the second form takes its upper right one.
  virtual void Text(double left, double top, const std::string& text) = 0;
  virtual void TextRight(double right, double top, const std::string& text) = 0;
  virtual void Line(double x1, double y1, double x2, double y2, double width) = 0;
  /// The next page. False: no more is wanted, or none can be had; whoever draws stops at once.
  [[nodiscard]] virtual bool NewPage() = 0;
};

}  // namespace tr7
