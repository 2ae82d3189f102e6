#include "prog/prog_check.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "prog/bands.h"
#include "prog/command_list.h"
#include "prog/vocabulary.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr std::size_t kRecordsShown = 10;
constexpr std::int32_t kNumbers = 64;
constexpr std::int32_t kSubroutines = 20;

/// An error: its number in the tag and its text.
struct Finding {
  int tag;
  MsgId text_id;
};
constexpr Finding kFirstIsSr{1, 3101}, kPosition{2, 3102}, kAcc{3, 3104}, kVel{4, 3103};
constexpr Finding kProgram{5, 3105}, kLabel{7, 3107}, kTimer{9, 3109}, kSubroutine{10, 3110};
constexpr Finding kValue{14, 3114}, kAxisPattern{16, 3116}, kSrMissing{20, 3120};
constexpr Finding kLabelMissing{21, 3121}, kPairing{22, 3122}, kNoResult{23, 3123};

/// A run of the check: its marks and records.
struct Run {
  ProgStore& store;
  std::array<bool, kNumbers> SrDefined{}, SrCalled{}, LbDefined{};
  std::array<int, kNumbers> SrCalledStep{};

  /// One more would not be shown: the run ends at once.
  bool IsFull() const { return store.ProgErrList.size() > kRecordsShown; }
  int Steps() const { return static_cast<int>(store.ProgDA.size()); }
  const ProgStep& Step(int number) const {
    return store.ProgDA[static_cast<std::size_t>(number) - 1];
  }
  void Add(int step, const Finding& found) {
    if (IsFull()) return;
    store.ProgErrList.push_back(
        {step, Text(found.text_id) + " [SyntaxErr No." + std::to_string(found.tag) + "]"});
  }
};

using Names = std::vector<std::string_view>;

/// One pass: the commands it looks at, and what it does at each of their steps.
struct Pass {
  Names names;
  Finding finding;
  /// Judges a step of the family by the rule of its command.
  void (*judge)(Run& run, const Pass& pass, int step, const CommandRule& rule);
  void (*walk)(Run& run, const Pass& pass) = nullptr;  ///< in place of going from step to step
};

// Operands.

bool IsReference(std::int32_t code, unsigned kinds) {
  return std::any_of(kBands.begin(), kBands.end(), [&](const Band& band) {
    // PR0 passes, although no listing shows it.
    const std::int32_t first = band.kind == kRefPR ? 0 : 1;
    return (kinds & band.kind) && code >= band.CodeOf(first) && code <= band.CodeOf(band.last);
  });
}

bool IsNumber(const OperandRule& rule, std::int32_t code) {
  if (rule.number == NumberKind::None) return false;
  const std::int32_t low = rule.checked_low < 0 ? rule.StoredLow() : rule.checked_low;
  if (rule.whole && code % 1000 != 0) return false;
  return code >= low && code <= rule.StoredHigh();
}

/// An operand that the command does not use is not looked at.
bool IsGood(const OperandRule& rule, std::int32_t code) {
  if (!rule.IsUsed() || (rule.or_none && code == 0)) return true;
  return IsNumber(rule, code) || IsReference(code, rule.refs);
}

void JudgeOperands(Run& run, const Pass& pass, int step, const CommandRule& rule) {
  const ProgStep& held = run.Step(step);
  if (IsGood(rule.operand1, held[kProgOperand1]) && IsGood(rule.operand2, held[kProgOperand2])) {
    return;
  }
  run.Add(step, pass.finding);
}

void JudgeResult(Run& run, const Pass& pass, int step, const CommandRule&) {
  if (run.Step(step)[kProgResult] == 0) run.Add(step, pass.finding);
}

// Subroutines and labels: the stored operand to the nearest whole number.

std::int32_t NumberOf(const ProgStep& step) { return (step[kProgOperand1] + 500) / 1000; }

/// A call through a variable is not followed.
bool IsPlain(const CommandRule& rule, const ProgStep& step) {
  return IsNumber(rule.operand1, step[kProgOperand1]);
}

void JudgeSr(Run& run, const Pass& pass, int step, const CommandRule&) {
  const std::int32_t code = run.Step(step)[kProgOperand1];
  const std::int32_t number = code < kBandBase ? NumberOf(run.Step(step)) : 0;
  if (number < 1 || number > kSubroutines) return run.Add(step, pass.finding);
  run.SrDefined[static_cast<std::size_t>(number)] = true;  // a second one of it is not reported
}

/// Meant so: a call counts as a definition, so that nothing called is ever missing.
void JudgeCallDefines(Run& run, const Pass& pass, int step, const CommandRule& rule) {
  const ProgStep& held = run.Step(step);
  if (!IsGood(rule.operand1, held[kProgOperand1])) return run.Add(step, pass.finding);
  if (IsPlain(rule, held)) run.SrDefined[static_cast<std::size_t>(NumberOf(held))] = true;
}

void JudgeCall(Run& run, const Pass& pass, int step, const CommandRule& rule) {
  const ProgStep& held = run.Step(step);
  if (!IsGood(rule.operand1, held[kProgOperand1])) return run.Add(step, pass.finding);
  if (!IsPlain(rule, held)) return;
  const auto number = static_cast<std::size_t>(NumberOf(held));
  if (!run.SrCalled[number]) run.SrCalledStep[number] = step;
  run.SrCalled[number] = true;
}

void WalkCalled(Run& run, const Pass& pass) {
  for (std::size_t i = 1; i <= kSubroutines; ++i) {
    if (run.SrCalled[i] && !run.SrDefined[i]) run.Add(run.SrCalledStep[i], pass.finding);
  }
}

/// Meant so: a second label of a number is told as one that is not defined.
void JudgeLabel(Run& run, const Pass& pass, int step, const CommandRule& rule) {
  const ProgStep& held = run.Step(step);
  if (!IsPlain(rule, held)) return run.Add(step, kLabel);
  bool& defined = run.LbDefined[static_cast<std::size_t>(NumberOf(held))];
  if (defined) return run.Add(step, pass.finding);
  defined = true;
}

void JudgeJump(Run& run, const Pass& pass, int step, const CommandRule& rule) {
  const ProgStep& held = run.Step(step);
  if (IsReference(held[kProgOperand1], kRefVariables)) return;
  if (!IsPlain(rule, held)) return run.Add(step, kLabel);
  if (!run.LbDefined[static_cast<std::size_t>(NumberOf(held))]) run.Add(step, pass.finding);
}

void WalkFirstStep(Run& run, const Pass& pass) {
  if (run.Steps() > 0 && run.Step(1)[kProgCommand] == SeekCmdCode("SR")) run.Add(1, pass.finding);
}

/// Every SR has its SRET before the next one. A walk that ends early leaves a second record at the
/// same step.
void WalkPairs(Run& run, const Pass& pass) {
  const int sr = SeekCmdCode("SR"), sret = SeekCmdCode("SRET");
  int SrCount = 0, SretCount = 0, step = 1;
  for (; step <= run.Steps(); ++step) {
    const std::int32_t code = run.Step(step)[kProgCommand];
    SrCount += code == sr;
    SretCount += code == sret;
    const bool wrong = code == sr ? SrCount != SretCount + 1 : code == sret && SrCount != SretCount;
    if (!wrong) continue;
    run.Add(step, pass.finding);
    break;
  }
  if (SrCount != SretCount) run.Add(std::min(step, run.Steps()), pass.finding);
}

/// The passes in their order. What is wrong in several of them shows in each: a bad CALL and a bad
/// JUMP twice, a bad LB three times.
std::span<const Pass> Passes() {
  static const std::vector<Pass> passes{
      {{}, kFirstIsSr, nullptr, WalkFirstStep},
      {{"MVP", "MVA", "MVI", "PMOV"}, kPosition, JudgeOperands},
      {{"ACC"}, kAcc, JudgeOperands},  // takes no variable, whereas VEL does
      {{"VEL"}, kVel, JudgeOperands},
      {{"STPG", "EDPG"}, kProgram, JudgeOperands},
      {{"LB"}, kLabel, JudgeOperands},
      {{"JUMP"}, kLabel, JudgeOperands},
      {{"SR"}, kSubroutine, JudgeSr},
      {{"CALL"}, kSubroutine, JudgeCallDefines},
      {{"CALL"}, kSubroutine, JudgeCall},
      {{}, kSrMissing, nullptr, WalkCalled},
      {{"LB"}, kLabelMissing, JudgeLabel},
      {{"LB", "JUMP"}, kLabelMissing, JudgeJump},
      {{"TIM"}, kTimer, JudgeOperands},
      {{"WTON", "WTOF"}, kValue, JudgeOperands},
      {{"ON", "OFF"}, kValue, JudgeOperands},
      {{"IN", "INB"}, kValue, JudgeOperands},
      {{"OUT", "OUTB"}, kValue, JudgeOperands},
      {{"=", "+", "-", "*", "/"}, kValue, JudgeOperands},
      {{"%", "==", "!=", ">", ">="}, kValue, JudgeOperands},
      {{"<", "<="}, kValue, JudgeOperands},
      {{"PPUT", "PGET", "PTST"}, kValue, JudgeOperands},
      {{"CPRD", "ZOUT"}, kValue, JudgeOperands},
      {{"JOG+", "JOG-"}, kValue, JudgeOperands},
      {{"ZONE1", "ZONE2", "ZONE3", "ZONE4"}, kValue, JudgeOperands},
      {{"PUST1", "PUST2", "PUST3", "PUST4"}, kValue, JudgeOperands},
      {{"CLR"}, kValue, JudgeOperands},
      {{"HOME", "PGR", "MVD"}, kAxisPattern, JudgeOperands},
      {{}, kPairing, nullptr, WalkPairs},
      {{"PMOV", "==", "!="}, kNoResult, JudgeResult},
      {{">", ">=", "<"}, kNoResult, JudgeResult},
      {{"<=", "PTST", "ZOUT"}, kNoResult, JudgeResult}};
  return passes;
}

/// From the first step to the last: a step of the family is judged.
void WalkSteps(Run& run, const Pass& pass) {
  struct Member {
    int code;
    const CommandRule* rule;
  };
  std::vector<Member> family;
  for (const std::string_view name : pass.names) {
    if (const int code = SeekCmdCode(name); code >= 0) family.push_back({code, &RuleOfName(name)});
  }
  for (int step = 1; step <= run.Steps() && !run.IsFull(); ++step) {
    for (const Member& member : family) {
      if (run.Step(step)[kProgCommand] != member.code) continue;
      pass.judge(run, pass, step, *member.rule);
      break;
    }
  }
}

}  // namespace

int programCheckProc(ProgStore& store) {
  store.ProgErrList.clear();
  Run run{store};
  for (const Pass& pass : Passes()) {
    (pass.walk ? pass.walk : WalkSteps)(run, pass);
    if (run.IsFull()) break;
  }
  return store.ProgErrList.empty() ? 0 : 1;
}

int Check_ProgramStepSu(const ProgStore& store, int program) {
  const int most = GetProgStepMax(program);
  if (most == 0) return -1;
  return static_cast<int>(store.ProgDA.size()) <= most ? 0 : 1;
}

}  // namespace tr7
