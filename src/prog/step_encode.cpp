#include "prog/step_encode.h"

#include <algorithm>
#include <limits>

#include "base/text_helpers.h"
#include "prog/prog_step.h"
#include "prog/vocabulary.h"

namespace tr7 {
namespace {

constexpr std::int64_t kOne = 10'000;
constexpr std::int64_t kMostParsed = 1'000'000'000'000'000;

std::int32_t Clamped(std::int64_t value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/// To the nearest, halves away from zero.
std::int64_t Divided(std::int64_t value, std::int64_t by) {
  return (value < 0 ? value - by / 2 : value + by / 2) / by;
}

std::size_t PrefixLength(std::string_view text) {
  constexpr std::string_view kPrefixes = "FfRrPIOp-";
  if (text.find("PR") != std::string_view::npos) return 2;
  if (text[0] == '/') return std::min<std::size_t>(2, text.size());
  return kPrefixes.find(text[0]) == std::string_view::npos ? 0 : 1;
}

/// A decimal number with four places, the fifth rounds; a number beyond the largest counts as that.
std::optional<std::int64_t> ParseFixed(std::string_view text) {
  const bool negative = !text.empty() && text[0] == '-';
  if (negative || (!text.empty() && text[0] == '+')) text.remove_prefix(1);
  std::int64_t value = 0;
  int decimals = -1;  // none yet
  bool any = false;
  for (const char c : text) {
    if (c == '.' && decimals < 0) {
      decimals = 0;
      continue;
    }
    if (c < '0' || c > '9') return std::nullopt;
    any = true;
    if (decimals >= 0) ++decimals;
    if (decimals == 5 && c >= '5') ++value;
    if (decimals <= 4) value = std::min(value * 10 + (c - '0'), kMostParsed);
  }
  if (!any) return std::nullopt;
  for (int places = std::max(decimals, 0); places < 4; ++places) {
    value = std::min(value * 10, kMostParsed);
  }
  return negative ? -value : value;
}

std::int32_t NumberCode(const OperandRule& rule, std::int64_t ten_thousandths) {
  const bool inside = ten_thousandths >= rule.low * 10LL && ten_thousandths <= rule.high * 10LL;
  if (!inside && rule.beyond == Beyond::Dropped) return 0;
  if (!inside && rule.beyond == Beyond::Unscaled) return Clamped(Divided(ten_thousandths, kOne));
  return Clamped(Divided(ten_thousandths, kOne / rule.scale));
}

std::int32_t OperandCode(const OperandRule& rule, const CellParts& cell) {
  if (cell.prefix.empty()) {
    return rule.number == NumberKind::None ? 0 : NumberCode(rule, cell.ten_thousandths);
  }
  // A negative number is read and taken nowhere: "-" is the prefix of no band.
  const Band* band = BandOf(cell.prefix);
  if (!band || !(rule.refs & band->kind)) return 0;
  return Clamped(kBandBase + band->offset + cell.Number());
}

}  // namespace

std::int64_t CellParts::Number() const { return Divided(ten_thousandths, kOne); }

std::optional<CellParts> SplitCell(std::string_view text) {
  if (text.empty()) return std::nullopt;
  // "PR" anywhere makes the first two characters the prefix, whatever they are.
  const bool position_variable = text.find("PR") != std::string_view::npos;
  const std::size_t length = PrefixLength(text);
  const auto number = ParseFixed(Trim(text.substr(length)));
  if (!number) return std::nullopt;
  return CellParts{position_variable ? "PR" : std::string(text.substr(0, length)), *number};
}

const Band* BandOf(std::string_view prefix) {
  const auto found = std::find_if(kBands.begin(), kBands.end(),
                                  [prefix](const Band& band) { return band.prefix == prefix; });
  return found == kBands.end() ? nullptr : &*found;
}

std::optional<std::int32_t> seekInputData(int code, int column, std::string_view text) {
  if (!ColumnIsUsed(code, column)) return 0;  // whatever it holds
  const auto cell = SplitCell(text);
  if (!cell) return std::nullopt;
  if (column == kProgCondition) return CondToCode(*cell);
  if (column == kProgResult) return ResultToCode(*cell);
  return OperandCode(RuleOfCode(code)->Operand(column), *cell);
}

std::int32_t CondToCode(const CellParts& cell) {
  std::string_view prefix = cell.prefix;
  const bool negated = prefix.starts_with('/');
  if (negated) prefix.remove_prefix(1);
  const Band* band = BandOf(prefix);
  if (!band || !(band->kind & (kRefI | kRefO | kRefFlags))) return 0;
  return Clamped((negated ? kNegated : 0) + band->offset + cell.Number());
}

std::int32_t ResultToCode(const CellParts& cell) {
  if (cell.prefix.empty()) return 0;
  const Band* band = BandOf(cell.prefix);
  const bool taken = band && (band->kind & (kRefO | kRefFlags));
  return Clamped((taken ? band->offset : 0) + cell.Number());
}

}  // namespace tr7
