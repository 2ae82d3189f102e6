#pragma once

#include "platform/print_page.h"

namespace tr7 {

/// Measures as another page does, and draws nothing.
class MeasuringPage : public PrintPage {
 public:
  explicit MeasuringPage(PrintPage& page) : page_(page) {}
  double Width() const override { return page_.Width(); }
  double Height() const override { return page_.Height(); }
  void SetFont(const PrintFont& font) override { page_.SetFont(font); }
  double TextWidth(const std::string& text) override { return page_.TextWidth(text); }
  double TextHeight(const std::string& text) override { return page_.TextHeight(text); }
  void Begin(int) override {}
  void Text(double, double, const std::string&) override {}
  void TextRight(double, double, const std::string&) override {}
  void Line(double, double, double, double, double) override {}
  bool NewPage() override { return true; }

 protected:
  PrintPage& page_;
};

}  // namespace tr7
