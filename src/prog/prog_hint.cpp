#include "prog/prog_hint.h"

#include <array>

#include "base/text_helpers.h"
#include "prog/command_list.h"
#include "prog/prog_step.h"
#include "prog/step_encode.h"
#include "prog/vocabulary.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgFromTo = 6511;
constexpr int kMsgPosition = 7036;  ///< the other kinds of numbers follow in their order
constexpr int kMsgUnused = 7046, kMsgOrNothing = 7047, kMsgRequired = 7048;
constexpr int kMsgUnreadable = 7049, kMsgCountsForNothing = 7050, kMsgOutOfRange = 7051;
constexpr int kMsgUnscaled = 7052, kMsgIgnored = 7053, kMsgNoCommand = 7054;

constexpr unsigned kConditionKinds = kRefI | kRefO | kRefFlags;
constexpr unsigned kResultKinds = kRefO | kRefFlags;

std::string FromTo(const std::string& low, const std::string& high) {
  return Text(kMsgFromTo, low, high);
}

void Join(std::string& list, const std::string& item) {
  if (!list.empty()) list += ", ";
  list += item;
}

std::string NumberTaken(const OperandRule& rule) {
  const auto text = [](std::int32_t thousandths) { return PlainDecimal(thousandths / 1000.0); };
  std::string range = FromTo(text(rule.low), text(rule.high));
  if (rule.or_none && rule.number == NumberKind::Plain) range = "0, " + range;
  return Text(MsgId::At(kMsgPosition, static_cast<int>(rule.number) - 1), range);
}

void JoinReferences(std::string& list, unsigned kinds, const std::string& in_front = {}) {
  for (const Band& band : kBands) {
    if (!(kinds & band.kind)) continue;
    const std::string prefix(band.prefix);
    Join(list, FromTo(in_front + prefix + "1", prefix + std::to_string(band.last)));
  }
}

std::string OperandTaken(const OperandRule& rule) {
  std::string list;
  if (rule.number != NumberKind::None) list = NumberTaken(rule);
  JoinReferences(list, rule.refs);
  if (rule.or_none && rule.number != NumberKind::Plain) Join(list, Text(kMsgOrNothing));
  return list;
}

/// What a column that the command uses takes.
std::string Taken(const CommandRule& rule, int column) {
  if (column <= kProgOperand2) return OperandTaken(rule.Operand(column));
  std::string list;
  if (column == kProgCondition) {
    JoinReferences(list, kConditionKinds, "(/)");
  } else {
    JoinReferences(list, kResultKinds);
  }
  Join(list, rule.result == ResultRule::Required && column == kProgResult ? Text(kMsgRequired)
                                                                          : Text(kMsgOrNothing));
  return list;
}

enum class Verdict { Good, CountsForNothing, OutOfRange, Unscaled };

bool IsWhole(const CellParts& cell) { return cell.ten_thousandths == cell.Number() * 10'000; }

Verdict JudgeNumber(const OperandRule& rule, const CellParts& cell) {
  if (rule.number == NumberKind::None) return Verdict::CountsForNothing;
  if (cell.ten_thousandths == 0 && rule.or_none) return Verdict::Good;
  const bool counted = rule.whole || rule.number <= NumberKind::Program;
  if (cell.ten_thousandths >= rule.low * 10LL && cell.ten_thousandths <= rule.high * 10LL) {
    return counted && !IsWhole(cell) ? Verdict::OutOfRange : Verdict::Good;
  }
  if (rule.beyond == Beyond::Dropped) return Verdict::CountsForNothing;
  return rule.beyond == Beyond::Unscaled ? Verdict::Unscaled : Verdict::OutOfRange;
}

Verdict JudgeReference(const CellParts& cell, std::string_view prefix, unsigned kinds) {
  const Band* band = BandOf(prefix);
  if (!band || !(kinds & band->kind)) return Verdict::CountsForNothing;
  const bool inside = cell.Number() >= 1 && cell.Number() <= band->last && IsWhole(cell);
  return inside ? Verdict::Good : Verdict::OutOfRange;
}

Verdict Judge(const CommandRule& rule, int column, const CellParts& cell) {
  std::string_view prefix = cell.prefix;
  if (column == kProgCondition) {
    if (prefix.starts_with('/')) prefix.remove_prefix(1);
    return JudgeReference(cell, prefix, kConditionKinds);
  }
  if (column == kProgResult) {
    const Verdict verdict = JudgeReference(cell, prefix, kResultKinds);
    // A prefix that the result does not take leaves the bare number.
    const bool bare = verdict == Verdict::CountsForNothing && !prefix.empty();
    return bare ? Verdict::OutOfRange : verdict;
  }
  const OperandRule& operand = rule.Operand(column);
  return prefix.empty() ? JudgeNumber(operand, cell) : JudgeReference(cell, prefix, operand.refs);
}

std::string FaultText(Verdict verdict, const std::string& text, const CellParts& cell,
                      const std::string& taken) {
  switch (verdict) {
    case Verdict::CountsForNothing:
      return Text(kMsgCountsForNothing, text, taken);
    case Verdict::OutOfRange:
      return Text(kMsgOutOfRange, text, taken);
    case Verdict::Unscaled:
      return Text(kMsgUnscaled, text, PlainDecimal(static_cast<double>(cell.Number()) / 1000));
    default:
      return {};
  }
}

}  // namespace

std::string ProgHeading(int column) {
  constexpr std::array<MsgId, kProgColumns> kHeadings{711, 726, 727, 728, 729, 730, 731};
  return Text(kHeadings.at(static_cast<std::size_t>(column)));
}

std::string ProgHint(int code, int column) {
  const CommandRule* rule = RuleOfCode(code);
  const bool operand = column >= kProgOperand1 && column <= kProgResult;
  if (!rule || !operand) return ProgHeading(column);
  return ProgHeading(column) + ": " +
         (ColumnIsUsed(code, column) ? Taken(*rule, column) : Text(kMsgUnused));
}

std::string CommandMeaning(int code) {
  const CommandRule* rule = RuleOfCode(code);
  return rule ? Text(rule->meaning_id, CmdName(code), CmdName(code)) : std::string();
}

std::string CellFault(int code, int column, const std::string& cell_text) {
  const std::string text = Trim(cell_text);
  if (text.empty() || column == kProgComment) return {};
  if (column == kProgCommand) return SeekCmdCode(text) < 0 ? Text(kMsgNoCommand, text) : "";
  const CommandRule* rule = RuleOfCode(code);
  if (!rule) return {};
  if (!ColumnIsUsed(code, column)) return Text(kMsgIgnored, text);
  const auto cell = SplitCell(text);
  if (!cell) return Text(kMsgUnreadable, text);
  return FaultText(Judge(*rule, column, *cell), text, *cell, Taken(*rule, column));
}

}  // namespace tr7
