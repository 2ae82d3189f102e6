#include "tests/support/virtual_printer.h"

#include <algorithm>
#include <map>
#include <utility>

namespace tr7 {
namespace {

/// Letters half as wide as high; all others are square.
class RecordedPage : public PrintOutput {
 public:
  RecordedPage(VirtualPrinter& printer, bool across, std::string name = {})
      : printer_(printer), across_(across), name_(std::move(name)) {}

  double Width() const override { return across_ ? printer_.height + 12 : printer_.width; }
  double Height() const override { return across_ ? printer_.width - 12 : printer_.height; }
  void SetFont(const PrintFont& font) override { letter_ = font.Points * 25.4 / 72; }
  double TextHeight(const std::string&) override { return letter_; }
  double TextWidth(const std::string& text) override {
    double halves = 0;
    for (const unsigned char byte : text) halves += byte < 0x80 ? 1 : byte >= 0xc0 ? 2 : 0;
    return halves * letter_ / 2;
  }
  void Begin(int) override {}
  void Text(double left, double top, const std::string& text) override {
    if (text.empty()) return;
    constexpr double kMargin = 9.99, kTouch = 0.01;
    const double right = left + TextWidth(text);
    auto& line = lines_[top];
    const bool over = std::any_of(line.begin(), line.end(), [&](const auto& other) {
      return left < other.second.first - kTouch && right > other.first + kTouch;
    });
    if (over || left < kMargin || right > Width() - kMargin || top + letter_ > Height()) {
      faults_.push_back(text);
    }
    line[left] = {right, text};
  }
  void TextRight(double right, double top, const std::string& text) override {
    Text(right - TextWidth(text), top, text);
  }
  void Line(double, double, double, double, double) override {}
  bool NewPage() override {
    PrintedPage& page = pages_.emplace_back();
    for (const auto& [top, texts] : lines_) {
      std::string& line = page.emplace_back();
      for (const auto& [left, text] : texts) line += (line.empty() ? "" : "|") + text.second;
    }
    lines_.clear();
    return static_cast<int>(pages_.size()) <= printer_.pages_of_paper;
  }
  bool Close(std::string& reason) override {
    reason = "out of paper";
    if (!NewPage()) return false;
    printer_.pages = pages_;
    printer_.faults = faults_;
    printer_.jobs.push_back(name_);
    return true;
  }

 private:
  VirtualPrinter& printer_;
  const bool across_;
  const std::string name_;
  double letter_ = 0;
  std::map<double, std::map<double, std::pair<double, std::string>>> lines_;
  std::vector<PrintedPage> pages_;
  std::vector<std::string> faults_;
};

}  // namespace

bool VirtualPrinter::Preview(const PrintJob& job) {
  RecordedPage upright(*this, false);
  across_ = !job.FitsUpright(upright);
  RecordedPage shown(*this, across_);
  static_cast<void>(job.Draw(shown));
  return wanted;
}

std::unique_ptr<PrintOutput> VirtualPrinter::Open(const PrintJob& job, std::string& reason) {
  reason = refusal;
  return refusal.empty() ? std::make_unique<RecordedPage>(*this, across_, job.Name) : nullptr;
}

}  // namespace tr7
