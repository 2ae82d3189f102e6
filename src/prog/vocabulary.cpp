#include "prog/vocabulary.h"

#include <algorithm>
#include <array>

#include "prog/prog_step.h"

namespace tr7 {
namespace {

using enum NumberKind;

constexpr std::int32_t k1 = 1000;  // the ranges count in thousandths

constexpr OperandRule kNothing{};
// The check lets pass from 1 on, where a number never stores less than 1000.
constexpr OperandRule kPosition{.number = Position,
                                .low = 1 * k1,
                                .high = 999 * k1,
                                .refs = kRefVariables,
                                .beyond = Beyond::Dropped,
                                .checked_low = 1};
constexpr OperandRule OrNone(OperandRule rule) {
  rule.or_none = true;
  return rule;
}
/// The transfers between positions and variables are checked from the first position on.
constexpr OperandRule Strict(OperandRule rule) {
  rule.checked_low = -1;
  return rule;
}
constexpr OperandRule kAxisPattern{
    .number = Axes, .low = 1 * k1, .high = 15 * k1, .beyond = Beyond::Dropped};
constexpr OperandRule kOneAxis{
    .number = Axis, .low = 1 * k1, .high = 4 * k1, .beyond = Beyond::Dropped};
constexpr OperandRule FromOne(OperandRule rule) {
  rule.checked_low = 1;
  return rule;
}
constexpr OperandRule Numbered(NumberKind kind, int last, unsigned refs, Unknown unknown) {
  return {.number = kind, .low = 1 * k1, .high = last * k1, .refs = refs, .unknown = unknown};
}
constexpr OperandRule kSpeed{.number = Speed,
                             .low = 1 * k1,
                             .high = 400 * k1,
                             .refs = kRefVariables,
                             .beyond = Beyond::Dropped,
                             .unknown = Unknown::Bare};
// Stored in hundredths, without variables, and shown up to 2550.
constexpr OperandRule kAcc{.number = AccTime,
                           .low = 10 * k1,
                           .high = 2000 * k1,
                           .beyond = Beyond::Dropped,
                           .scale = 100,
                           .shown_low = 1000,
                           .shown_high = 255000};
constexpr OperandRule kTimer{.number = Seconds,
                             .low = 0,
                             .high = 999'999,
                             .refs = kRefVariables,
                             .beyond = Beyond::Unscaled,
                             .unknown = Unknown::Bare};
constexpr OperandRule kTimeOut{.number = Seconds, .low = 0, .high = 999'999};
constexpr OperandRule Refs(unsigned refs) { return {.refs = refs, .unknown = Unknown::Bare}; }
constexpr OperandRule Plain0To(int high, unsigned refs = kNoRef) {
  return {.number = Plain,
          .low = 0,
          .high = high * k1,
          .refs = refs,
          .unknown = refs ? Unknown::Bare : Unknown::Empty};
}
constexpr unsigned kAllVariables = kRefVariables | kRefPR;
constexpr OperandRule Value() {
  OperandRule rule = Plain0To(2000, kAllVariables);
  rule.three_decimals = true;
  return rule;
}
constexpr OperandRule kZoneKind{.number = Plain, .low = 0, .high = 2 * k1, .whole = true};
// Shown from 2 on, which is no force that the check lets pass.
constexpr OperandRule kForce{.number = Plain,
                             .low = 20 * k1,
                             .high = 70 * k1,
                             .or_none = true,
                             .shown_low = 2 * k1,
                             .shown_high = 70 * k1};
constexpr OperandRule kAnyPoint = Refs(kRefI | kRefO | kRefFlags);
constexpr OperandRule kOutPoint = Refs(kRefO | kRefFlags);
constexpr OperandRule kInPoint = Refs(kRefI | kRefFlags);
constexpr OperandRule kVariable = Refs(kRefVariables);
constexpr OperandRule kAnyVariable = Refs(kAllVariables);
constexpr OperandRule kLabel = Numbered(Label, 50, kNoRef, Unknown::Empty);
constexpr OperandRule kLabelOrVariable = Numbered(Label, 50, kRefVariables, Unknown::Empty);
constexpr OperandRule kSub = Numbered(Subroutine, 20, kNoRef, Unknown::Empty);
constexpr OperandRule kSubOrVariable = Numbered(Subroutine, 20, kRefVariables, Unknown::Empty);
constexpr OperandRule kProgram = Numbered(Program, 100, kRefVariables, Unknown::Bare);

constexpr bool kCond = true, kNoCond = false;
constexpr ResultRule kNoResult = ResultRule::None, kKept = ResultRule::Kept,
                     kRequired = ResultRule::Required;

constexpr std::array<CommandRule, kCommands> kRules{{
    {"", kNothing, kNothing, kNoCond, kNoResult, 7000},
    {"", kAxisPattern, kNothing, kCond, kKept, 7001},  // moves axes, as 5 and 39 do
    {"MVP", kPosition, OrNone(kPosition), kCond, kKept, 7002},
    {"MVA", kPosition, OrNone(kPosition), kCond, kKept, 7003},
    {"MVI", kPosition, OrNone(kPosition), kCond, kKept, 7004},
    {"", kAxisPattern, kNothing, kCond, kKept, 7001},
    {"PMOV", kPosition, kNothing, kCond, kRequired, 7005},
    {"", kNothing, kNothing, kCond, kKept, 7000},
    {"VEL", kSpeed, kNothing, kCond, kNoResult, 7006},
    {"ACC", kAcc, kNothing, kCond, kNoResult, 7007},
    {"TIM", kTimer, kNothing, kCond, kKept, 7008},
    {"LB", kLabel, kNothing, kNoCond, kNoResult, 7009},
    {"JUMP", kLabelOrVariable, kNothing, kCond, kNoResult, 7010},
    {"CALL", kSubOrVariable, kNothing, kCond, kNoResult, 7011},
    {"SR", kSub, kNothing, kNoCond, kNoResult, 7012},
    {"SRET", kNothing, kNothing, kNoCond, kNoResult, 7013},
    {"WTON", kAnyPoint, kTimeOut, kCond, kKept, 7014},
    {"WTOF", kAnyPoint, kTimeOut, kCond, kKept, 7015},
    {"ON", kOutPoint, OrNone(kOutPoint), kCond, kKept, 7016},
    {"OFF", kOutPoint, OrNone(kOutPoint), kCond, kKept, 7017},
    {"IN", kVariable, kInPoint, kCond, kNoResult, 7018},
    {"INB", kVariable, kInPoint, kCond, kNoResult, 7019},
    {"OUT", Plain0To(255, kRefVariables), kOutPoint, kCond, kNoResult, 7020},
    {"OUTB", Plain0To(99, kRefVariables), kOutPoint, kCond, kNoResult, 7021},
    {"STPG", kProgram, kNothing, kCond, kKept, 7022},
    {"EDPG", kProgram, kNothing, kCond, kKept, 7023},
    {"", kNothing, kNothing, kCond, kNoResult, 7000},
    {"=", kAnyVariable, Value(), kCond, kKept, 7024},
    {"+", kAnyVariable, Value(), kCond, kKept, 7025},
    {"-", kAnyVariable, Value(), kCond, kKept, 7025},
    {"*", kAnyVariable, Value(), kCond, kKept, 7025},
    {"/", kAnyVariable, Value(), kCond, kKept, 7025},
    {"%", kAnyVariable, Value(), kCond, kKept, 7025},
    {"==", kAnyVariable, Value(), kCond, kRequired, 7026},
    {"!=", kAnyVariable, Value(), kCond, kRequired, 7026},
    {">", kAnyVariable, Value(), kCond, kRequired, 7026},
    {">=", kAnyVariable, Value(), kCond, kRequired, 7026},
    {"<", kAnyVariable, Value(), kCond, kRequired, 7026},
    {"<=", kAnyVariable, Value(), kCond, kRequired, 7026},
    {"", kAxisPattern, kNothing, kCond, kNoResult, 7001},
    {"PPUT", FromOne(kOneAxis), Strict(kPosition), kCond, kNoResult, 7027},
    {"PGET", FromOne(kOneAxis), Strict(kPosition), kCond, kNoResult, 7028},
    {"PTST", FromOne(kAxisPattern), Strict(kPosition), kCond, kRequired, 7029},
    {"CPRD", kOneAxis, kNothing, kCond, kNoResult, 7030},
    {"ZOUT", kOneAxis, kZoneKind, kCond, kRequired, 7031},
    {"", kNothing, kNothing, kNoCond, kNoResult, 7000},
    {"", kNothing, kNothing, kNoCond, kNoResult, 7000},
    {"JOG+", FromOne(kAxisPattern), kAnyPoint, kCond, kKept, 7032},
    {"JOG-", FromOne(kAxisPattern), kAnyPoint, kCond, kKept, 7032},
    {"ZONE1", Plain0To(1000), Plain0To(1000), kCond, kNoResult, 7033},
    {"ZONE2", Plain0To(1000), Plain0To(1000), kCond, kNoResult, 7033},
    {"ZONE3", Plain0To(1000), Plain0To(1000), kCond, kNoResult, 7033},
    {"ZONE4", Plain0To(1000), Plain0To(1000), kCond, kNoResult, 7033},
    {"PUST1", kForce, Plain0To(100), kCond, kNoResult, 7034},
    {"PUST2", kForce, Plain0To(100), kCond, kNoResult, 7034},
    {"PUST3", kForce, Plain0To(100), kCond, kNoResult, 7034},
    {"PUST4", kForce, Plain0To(100), kCond, kNoResult, 7034},
    {"CLR", kAnyVariable, kAnyVariable, kCond, kKept, 7035},
}};
constexpr int kMovesAxes = 1;

}  // namespace

const OperandRule& CommandRule::Operand(int column) const {
  return column == kProgOperand1 ? operand1 : operand2;
}

const CommandRule* RuleOfCode(int code) {
  return code >= 0 && code < kCommands ? &kRules[static_cast<std::size_t>(code)] : nullptr;
}

const CommandRule& RuleOfName(std::string_view name) {
  const auto found = std::find_if(kRules.begin(), kRules.end(),
                                  [name](const auto& rule) { return rule.name == name; });
  return found == kRules.end() || name.empty() ? kRules[kMovesAxes] : *found;
}

bool ColumnIsUsed(int code, int column) {
  const CommandRule* rule = RuleOfCode(code);
  if (!rule) return false;
  if (column == kProgCondition) return rule->condition;
  if (column == kProgResult) return rule->result != ResultRule::None;
  return rule->Operand(column).IsUsed();
}

}  // namespace tr7
