#include "posi/clip_matrix.h"

#include <utility>

namespace tr7 {
namespace {

constexpr std::size_t kMostQuoted = 4096;  // bytes; no cell of any table here is longer

bool EndsCell(char c) { return c == '\t' || c == '\r' || c == '\n'; }

/// Takes a quoted cell when one begins at `at`, and moves `at` behind its closing quote.
bool TakeQuoted(std::string_view text, std::size_t& at, std::string& cell) {
  if (text[at] != '"') return false;
  text = text.substr(0, at + kMostQuoted);
  std::string content;
  std::size_t from = at + 1;
  for (;;) {
    const std::size_t quote = text.find('"', from);
    if (quote == std::string_view::npos) return false;
    content += text.substr(from, quote - from);
    from = quote + 1;
    if (from == text.size() || EndsCell(text[from])) break;  // closed
    if (text[from] != '"') return false;
    content += '"';
    ++from;
  }
  cell = std::move(content);
  at = from;
  return true;
}

std::string TakeCell(std::string_view text, std::size_t& at) {
  std::string cell;
  if (at < text.size() && TakeQuoted(text, at, cell)) return cell;
  std::size_t end = at;
  while (end < text.size() && !EndsCell(text[end])) ++end;
  cell = text.substr(at, end - at);
  at = end;
  return cell;
}

void SkipRowEnd(std::string_view text, std::size_t& at) {
  if (at >= text.size()) return;
  const bool pair = text.substr(at, 2) == "\r\n";
  at += pair ? 2 : 1;
}

/// The cells of a row, `max_cols` at most; `at` then stands behind the last one taken.
std::vector<std::string> TakeRow(std::string_view text, std::size_t& at, std::size_t max_cols) {
  std::vector<std::string> row{TakeCell(text, at)};
  while (row.size() < max_cols && at < text.size() && text[at] == '\t') {
    row.push_back(TakeCell(text, ++at));
  }
  return row;
}

bool IsEmptyRow(const std::vector<std::string>& row) { return row.size() == 1 && row[0].empty(); }

}  // namespace

ClipMatrix ParseClipText(std::string_view text, std::size_t max_rows, std::size_t max_cols) {
  ClipMatrix matrix;
  for (std::size_t at = 0; at < text.size() && matrix.size() < max_rows;) {
    matrix.push_back(TakeRow(text, at, max_cols));
    if (matrix.back().size() == max_cols) break;
    SkipRowEnd(text, at);
  }
  if (matrix.empty() || matrix[0].size() == 1) return matrix;
  while (IsEmptyRow(matrix.back())) matrix.pop_back();
  return matrix;
}

std::size_t ClipWidth(const ClipMatrix& matrix) {
  if (matrix.empty()) return 0;
  for (const auto& row : matrix) {
    if (row.size() != matrix[0].size()) return 0;
  }
  return matrix[0].size();
}

}  // namespace tr7
