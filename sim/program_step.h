#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace qvr7sim {

inline constexpr std::size_t kStepDigits = 19;  ///< Of one program step on the line.

/// What an operand, a condition or a result of a step names.
enum class RefKind {
  kNumber,  ///< a plain number, or nothing where it is 0
  kInput,
  kOutput,
  kFlag,
  kLocalFlag,
  kVariable,
  kLocalVariable,
  kPositionVariable,
  kBad,  ///< a code that names nothing
};

struct Operand {
  RefKind kind = RefKind::kNumber;
  int value = 0;  ///< the number as it is stored; else an index from 1
};

/// A signal or variable, and the program whose own it is; 0 where all share it.
struct Signal {
  Operand place;
  int program = 0;
};

/// One step as a task carries it out.
struct ProgramStep {
  int code = 0;  ///< of the command
  Operand op1;
  Operand op2;
  Operand condition;  ///< the number 0: none
  bool negated = false;
  Operand result;  ///< the number 0: none

  bool HasCondition() const { return condition.kind != RefKind::kNumber; }
  bool HasResult() const { return result.kind != RefKind::kNumber; }
};

/// Commands by their code on the line. The names that the code leaves open are those of our own
/// sample list.
namespace step_code {
inline constexpr int kNop = 0, kHome = 1, kMvp = 2, kMva = 3, kMvi = 4, kPgr = 5, kPmov = 6,
                     kStop = 7, kVel = 8, kAcc = 9, kTim = 10, kLb = 11, kJump = 12, kCall = 13,
                     kSr = 14, kSret = 15, kWton = 16, kWtof = 17, kOn = 18, kOff = 19, kIn = 20,
                     kInb = 21, kOut = 22, kOutb = 23, kStpg = 24, kEdpg = 25, kPause = 26,
                     kSet = 27, kAdd = 28, kSubtract = 29, kMultiply = 30, kDivide = 31,
                     kRemainder = 32, kEqual = 33, kUnequal = 34, kAbove = 35, kNotBelow = 36,
                     kBelow = 37, kNotAbove = 38, kMvd = 39, kPput = 40, kPget = 41, kPtst = 42,
                     kCprd = 43, kZout = 44, kRem = 45, kEnd = 46, kJogPlus = 47, kJogMinus = 48,
                     kZone1 = 49, kZone4 = 52, kPust1 = 53, kPust4 = 56, kClr = 57, kCodes = 58;
}  // namespace step_code

/// References by the distance of their code from the band's start; conditions and results have the
/// same distances.
struct ReferenceBand {
  RefKind kind;
  int before_first;  ///< index n has the code `before_first` + n
  int count;
};
inline constexpr ReferenceBand kReferenceBands[] = {{RefKind::kInput, 0, 18},
                                                    {RefKind::kOutput, 20, 16},
                                                    {RefKind::kFlag, 99, 100},
                                                    {RefKind::kLocalFlag, 199, 50},
                                                    {RefKind::kVariable, 299, 100},
                                                    {RefKind::kLocalVariable, 399, 50},
                                                    {RefKind::kPositionVariable, 500, 4}};
inline constexpr int kBandStart = 0x3FF000;      ///< operand codes from here on are references
inline constexpr int kNegativeStart = 0x200000;  ///< below the band: a negative number
inline constexpr int kNegatedCondition = 1000;

/// How many there are of a kind of reference; 0 for numbers.
int CountOf(RefKind kind);
/// A step of 19 upper-case hexadecimal digits.
ProgramStep DecodeStep(std::string_view digits);
/// All steps of a program as it lies in memory.
std::vector<ProgramStep> DecodeProgram(std::string_view digits);

}  // namespace qvr7sim
