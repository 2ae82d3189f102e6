#include "prog/step_decode.h"

#include "base/text_helpers.h"
#include "prog/bands.h"
#include "prog/step_encode.h"
#include "prog/vocabulary.h"

namespace tr7 {
namespace {

constexpr std::int32_t kNegativeFrom = 2097152;  // 200000 in hexadecimal

/// The reference of these kinds that a number is, after the band's base; empty where it is none.
StepCell Reference(std::int32_t number, unsigned kinds) {
  for (const Band& band : kBands) {
    const std::int32_t n = number - band.offset;
    if ((kinds & band.kind) && n >= 1 && n <= band.last) {
      return {std::string(band.prefix), std::to_string(n)};
    }
  }
  return {};
}

StepCell Bare(std::int32_t code) { return {"", std::to_string(code), true}; }

std::string NumberText(const OperandRule& rule, std::int32_t code) {
  const double value = static_cast<double>(code) / rule.scale;
  return rule.three_decimals ? FormatMm(value) : PlainDecimal(value);
}

bool IsShownNumber(const OperandRule& rule, std::int32_t code) {
  if (rule.number == NumberKind::None) return false;
  // Where 0 stands for an empty cell it shows as one.
  if (code == 0 && rule.or_none) return rule.number == NumberKind::Plain;
  const std::int32_t low = rule.shown_low < 0 ? rule.StoredLow() : rule.shown_low;
  const std::int32_t high = rule.shown_high < 0 ? rule.StoredHigh() : rule.shown_high;
  return code >= low && code <= high;
}

StepCell OperandText(const OperandRule& rule, std::int32_t code) {
  if (!rule.IsUsed() || (code == 0 && rule.or_none && rule.number == NumberKind::None)) return {};
  if (IsShownNumber(rule, code)) return {"", NumberText(rule, code)};
  if (rule.three_decimals && code >= kNegativeFrom && code < kBandBase) {
    return {"", NumberText(rule, kNegativeFrom - code), true};  // no text is stored as such a code
  }
  if (StepCell cell = Reference(code - kBandBase, rule.refs); !cell.value.empty()) return cell;
  return rule.unknown == Unknown::Empty ? StepCell() : Bare(code);
}

}  // namespace

StepCell StepCellToText(const ProgStep& step, int column) {
  const int code = step[kProgCommand];
  if (!ColumnIsUsed(code, column)) return {};
  if (column == kProgCondition) return CondToText(step[column]);
  if (column == kProgResult) return ResultToText(step[column]);
  return OperandText(RuleOfCode(code)->Operand(column), step[column]);
}

StepCell CondToText(std::int32_t code) {
  constexpr unsigned kKinds = kRefI | kRefO | kRefFlags;
  StepCell cell = Reference(code > kNegated ? code - kNegated : code, kKinds);
  if (cell.value.empty()) return code == 0 ? StepCell() : Bare(code);
  if (code > kNegated) cell.prefix.insert(0, "/");
  return cell;
}

StepCell ResultToText(std::int32_t code) {
  StepCell cell = Reference(code, kRefO | kRefFlags);
  return cell.value.empty() && code != 0 ? Bare(code) : cell;
}

}  // namespace tr7
