#include "base/seq_file.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "base/text_helpers.h"

namespace tr7 {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

/// A whole item as a number; unlike `Val` nothing may stand behind it.
bool ParseNumber(std::string_view item, double& value) {
  if (!item.empty() && item.front() == '+') {
    item.remove_prefix(1);
    if (!item.empty() && item.front() == '-') return false;
  }
  double parsed = 0;
  const auto result = std::from_chars(item.data(), item.data() + item.size(), parsed);
  if (result.ec != std::errc() || result.ptr != item.data() + item.size()) return false;
  if (!std::isfinite(parsed)) return false;
  value = parsed;
  return true;
}

}  // namespace

SeqReader::SeqReader(std::string utf8) : text_(std::move(utf8)) {
  if (text_.starts_with("\xEF\xBB\xBF")) at_ = 3;
  // Empty lines at the end hold no items.
  std::size_t end = text_.size();
  while (end > at_ && (IsBlank(text_[end - 1]) || IsLineEnd(text_[end - 1]))) --end;
  text_.resize(end);
}

bool SeqReader::AtEnd() const { return at_ >= text_.size() && !after_comma_; }

int SeqReader::Line() const {
  int line = 1;
  for (std::size_t i = 0; i < item_at_; ++i) {
    const bool pair = text_[i] == '\r' && i + 1 < text_.size() && text_[i + 1] == '\n';
    if (IsLineEnd(text_[i]) && !pair) ++line;
  }
  return line;
}

bool SeqReader::Next(std::string& text, bool& quoted) {
  item_at_ = at_;
  if (AtEnd()) return false;
  while (at_ < text_.size() && IsBlank(text_[at_])) ++at_;
  text.clear();
  quoted = at_ < text_.size() && text_[at_] == '"';
  if (quoted ? !TakeQuoted(text) : !TakeBare(text)) {
    at_ = text_.size();
    after_comma_ = false;
    return false;
  }
  return true;
}

bool SeqReader::TakeQuoted(std::string& text) {
  for (++at_;;) {
    const std::size_t quote = text_.find('"', at_);
    if (quote == std::string::npos) return false;
    text.append(text_, at_, quote - at_);
    at_ = quote + 1;
    if (at_ >= text_.size() || text_[at_] != '"') break;
    text += '"';
    ++at_;
  }
  while (at_ < text_.size() && IsBlank(text_[at_])) ++at_;
  return TakeSeparator();
}

bool SeqReader::TakeBare(std::string& text) {
  const std::size_t begin = at_;
  while (at_ < text_.size() && text_[at_] != ',' && !IsLineEnd(text_[at_])) ++at_;
  std::size_t end = at_;
  while (end > begin && IsBlank(text_[end - 1])) --end;
  text.assign(text_, begin, end - begin);
  return TakeSeparator();
}

bool SeqReader::TakeSeparator() {
  after_comma_ = at_ < text_.size() && text_[at_] == ',';
  if (at_ >= text_.size()) return true;
  if (!after_comma_ && !IsLineEnd(text_[at_])) return false;
  at_ += text_.compare(at_, 2, "\r\n") == 0 ? 2 : 1;
  return true;
}

bool SeqReader::ReadText(std::string& text) {
  bool quoted = false;
  std::string item;
  if (!Next(item, quoted)) return false;
  text = std::move(item);
  return true;
}

bool SeqReader::ReadNumber(double& value) {
  std::string item;
  if (!ReadText(item)) return false;
  item = Trim(item);
  if (item.empty()) {
    value = 0;
    return true;
  }
  return ParseNumber(item, value);
}

bool SeqReader::ReadItem(Variant& item) {
  std::string text;
  bool quoted = false;
  if (!Next(text, quoted)) return false;
  double value = 0;
  if (!quoted && ParseNumber(text, value)) {
    item = value;
  } else {
    item = Variant(text);
  }
  return true;
}

bool SeqReader::ReadInteger(int low, int high, int& value) {
  double number = 0;
  if (!ReadNumber(number)) return false;
  if (!(number >= low && number <= high) || number != std::trunc(number)) return false;
  value = static_cast<int>(number);
  return true;
}

bool SeqReader::ReadInt16(std::int16_t& value) {
  using Limits = std::numeric_limits<std::int16_t>;
  int read = 0;
  if (!ReadInteger(Limits::min(), Limits::max(), read)) return false;
  value = static_cast<std::int16_t>(read);
  return true;
}

void SeqWriter::Separate() {
  if (line_begun_) out_ += ',';
  line_begun_ = true;
}

void SeqWriter::Text(std::string_view text) {
  Separate();
  out_ += '"';
  for (const char c : text) {
    if (c == '"') out_ += '"';
    out_ += c;
  }
  out_ += '"';
}

void SeqWriter::Number(double value) { Bare(PlainDecimal(value)); }

void SeqWriter::Bare(std::string_view text) {
  Separate();
  out_ += text;
}

void SeqWriter::Item(const Variant& item) {
  if (item.IsText()) {
    Text(item.Text());
  } else {
    Number(item.Number());
  }
}

void SeqWriter::EndLine() {
  out_ += "\r\n";
  line_begun_ = false;
}

}  // namespace tr7
