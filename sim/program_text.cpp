#include "sim/program_text.h"

#include <cmath>
#include <vector>

#include "sim/parse.h"
#include "sim/program_step.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr std::array<std::string_view, step_code::kCodes> kNames = {
    "NOP",   "HOME",  "MVP",   "MVA",   "MVI",   "PGR",   "PMOV",  "STOP", "VEL",  "ACC",
    "TIM",   "LB",    "JUMP",  "CALL",  "SR",    "SRET",  "WTON",  "WTOF", "ON",   "OFF",
    "IN",    "INB",   "OUT",   "OUTB",  "STPG",  "EDPG",  "PAUSE", "=",    "+",    "-",
    "*",     "/",     "%",     "==",    "!=",    ">",     ">=",    "<",    "<=",   "MVD",
    "PPUT",  "PGET",  "PTST",  "CPRD",  "ZOUT",  "REM",   "END",   "JOG+", "JOG-", "ZONE1",
    "ZONE2", "ZONE3", "ZONE4", "PUST1", "PUST2", "PUST3", "PUST4", "CLR"};
constexpr std::array<std::string_view, std::size(kReferenceBands)> kPrefixes = {
    "I", "O", "F", "f", "R", "r", "PR"};  // in the order of the bands

/// The distance of a reference's code from the start of the band.
std::optional<int> Distance(std::string_view text) {
  for (std::size_t i = 0; i < kPrefixes.size(); ++i) {
    if (!text.starts_with(kPrefixes[i])) continue;
    const ReferenceBand& band = kReferenceBands[i];
    const auto index = ParseNumber(text.substr(kPrefixes[i].size()), 1, band.count);
    if (index) return band.before_first + static_cast<int>(*index);
  }
  return std::nullopt;
}

/// An operand; `scale` is what a plain number is multiplied by.
std::optional<int> OperandCode(const std::string& text, int scale) {
  constexpr double kLargest = 2000.0;
  if (text.empty()) return 0;
  if (const auto distance = Distance(text)) return kBandStart + *distance;
  const auto number = ParseFraction(text, 0.0, kLargest);
  if (!number) return std::nullopt;
  return static_cast<int>(std::lround(*number * scale));
}

std::optional<int> SignalCode(std::string_view text) {
  const bool negated = text.starts_with('/');
  if (text.empty()) return 0;
  const auto distance = Distance(text.substr(negated ? 1 : 0));
  if (!distance) return std::nullopt;
  return *distance + (negated ? kNegatedCondition : 0);
}

/// Fields between commas and line ends, in quotes or bare.
std::vector<std::string> Fields(std::string_view text) {
  std::vector<std::string> fields;
  while (!text.empty()) {
    const bool quoted = text[0] == '"';
    if (quoted) text.remove_prefix(1);
    const std::size_t end = std::min(text.find_first_of(quoted ? "\"" : ",\r\n"), text.size());
    fields.emplace_back(text.substr(0, end));
    text.remove_prefix(end);
    if (quoted && !text.empty()) text.remove_prefix(1);
    if (!text.empty()) text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
  }
  return fields;
}

}  // namespace

std::optional<std::string> AssembleStep(const StepCells& cells) {
  constexpr int kThousandths = 1000, kHundredths = 100;
  int code = 0;
  while (code < step_code::kCodes && kNames[code] != cells[0]) ++code;
  const int scale = code == step_code::kAcc ? kHundredths : kThousandths;
  const auto op1 = OperandCode(cells[1], scale), op2 = OperandCode(cells[2], scale);
  const auto condition = SignalCode(cells[3]), result = SignalCode(cells[4]);
  if (code == step_code::kCodes || !op1 || !op2 || !condition || !result) return std::nullopt;
  const auto hex = [](int value, int width) { return Hex(static_cast<unsigned>(value), width); };
  return hex(code, 2) + hex(*op1, 6) + hex(*op2, 6) + hex(*condition, 3) + hex(*result, 2);
}

std::optional<std::string> AssembleProgramFile(std::string_view text, std::string* error) {
  constexpr std::size_t kHead = 3, kFields = 6;
  const std::vector<std::string> fields = Fields(text);
  const bool is_program = fields.size() >= kHead && (fields.size() - kHead) % kFields == 0 &&
                          fields[0] == "QV-R7" && fields[1] == "Program";
  if (!is_program) {
    *error = "no program file";
    return std::nullopt;
  }
  std::string digits;
  for (std::size_t at = kHead; at < fields.size(); at += kFields) {
    StepCells cells;
    for (std::size_t cell = 0; cell < cells.size(); ++cell) cells[cell] = fields[at + cell];
    const auto step = AssembleStep(cells);
    if (!step) {
      *error = "step " + std::to_string((at - kHead) / kFields + 1) + " is not understood";
      return std::nullopt;
    }
    digits += *step;
  }
  return digits;
}

}  // namespace qvr7sim
