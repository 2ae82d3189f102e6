#include "sim/signal_names.h"

#include "sim/parse.h"
#include "sim/program_values.h"

namespace qvr7sim {

namespace {

/// Names that are a word and a number from 1; the first input or output of the row has `before`
/// + 1.
struct Series {
  std::string_view word;
  RefKind kind;
  int count;
  int before = 0;
};
constexpr Series kCommon[] = {
    {"", RefKind::kInput, kProgramInputs},  {"IN", RefKind::kInput, kProgramInputs},
    {"I", RefKind::kInput, kProgramInputs}, {"EXP-IN", RefKind::kInput, 4, 12},
    {"OUT", RefKind::kOutput, kOutputs},    {"O", RefKind::kOutput, kOutputs},
    {"EXP-OUT", RefKind::kOutput, 4, 12},   {"F", RefKind::kFlag, 100},
    {"R", RefKind::kVariable, 100}};
constexpr Series kLocal[] = {{"f", RefKind::kLocalFlag, 50},
                             {"r", RefKind::kLocalVariable, 50},
                             {"PR", RefKind::kPositionVariable, kAxes}};

struct NamedInput {
  std::string_view name;
  int number;
};
constexpr NamedInput kNamedInputs[] = {
    {"P1", 1},    {"P2", 2},   {"P4", 3},     {"P8", 4},     {"P10", 5},       {"P20", 6},
    {"P40", 7},   {"P80", 8},  {"P100", 9},   {"P200", 10},  {"P400", 11},     {"P800", 12},
    {"STOP", 17}, {"GRP", 18}, {"STB", kStb}, {"RES", kRes}, {"PAUSE", kPause}};

template <std::size_t size>
std::optional<Operand> InSeries(const Series (&all)[size], std::string_view name) {
  for (const Series& series : all) {
    if (!name.starts_with(series.word)) continue;
    const auto number = ParseNumber(name.substr(series.word.size()), 1, series.count);
    if (number) return Operand{series.kind, series.before + static_cast<int>(*number)};
  }
  return std::nullopt;
}

}  // namespace

std::optional<Signal> ParseSignal(std::string_view name) {
  for (const NamedInput& input : kNamedInputs) {
    if (input.name == name) return Signal{{RefKind::kInput, input.number}};
  }
  const std::size_t colon = name.find(':');
  if (colon == std::string_view::npos) {
    const auto place = InSeries(kCommon, name);
    return place ? std::optional(Signal{*place}) : std::nullopt;
  }
  const auto program = ParseNumber(name.substr(0, colon), 1, kPrograms);
  const auto place = InSeries(kLocal, name.substr(colon + 1));
  if (!program || !place) return std::nullopt;
  return Signal{*place, static_cast<int>(*program)};
}

std::optional<std::int32_t> ParseSignalValue(const Signal& signal, std::string_view text) {
  if (signal.place.kind < RefKind::kVariable) {
    const bool on = text == "on" || text == "1";
    return on || text == "off" || text == "0" ? std::optional(on ? 1 : 0) : std::nullopt;
  }
  const auto value = ParseNumber(text, INT32_MIN, INT32_MAX);
  return value ? std::optional(static_cast<std::int32_t>(*value)) : std::nullopt;
}

}  // namespace qvr7sim
