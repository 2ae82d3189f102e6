#include "sim/parse.h"

#include <charconv>
#include <cmath>

#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr std::int64_t kMicrosecondsPerMillisecond = 1000;
constexpr std::int64_t kLongestMs = 3'600'000;

/// Takes one setting into the fault; false when the name or the value is none.
bool TakeSetting(std::string_view name, std::string_view value, Fault* fault) {
  if (name == "prefix") {
    fault->prefix = value;
    return !value.empty();
  }
  if (name == "p") {
    const auto probability = ParseFraction(value, 0.0, 1.0);
    if (probability) fault->probability = *probability;
    return probability.has_value();
  }
  if (name == "unit" || name == "middle" || name == "code") {
    if (value.size() != 1 || !AllPrintable(value)) return false;
    (name == "unit"     ? fault->error.unit
     : name == "middle" ? fault->error.middle
                        : fault->error.code) = value[0];
    return true;
  }
  const auto number = ParseNumber(value, 0, kLongestMs);
  if (!number) return false;
  if (name == "n" && *number >= 1) {
    fault->at_request = static_cast<int>(*number);
  } else if (name == "ms") {
    fault->time_us = *number * kMicrosecondsPerMillisecond;
  } else if (name == "byte") {
    fault->at_byte = static_cast<int>(*number);
  } else {
    return false;
  }
  return true;
}

}  // namespace

std::vector<std::string> Split(std::string_view text, std::string_view separators) {
  std::vector<std::string> parts;
  std::size_t at = text.find_first_not_of(separators);
  while (at != std::string_view::npos) {
    const std::size_t end = text.find_first_of(separators, at);
    parts.emplace_back(text.substr(at, end - at));
    at = text.find_first_not_of(separators, end);
  }
  return parts;
}

std::optional<std::int64_t> ParseNumber(std::string_view text, std::int64_t low,
                                        std::int64_t high) {
  int base = 10;
  if (text.starts_with("0x")) {
    base = 16;
    text.remove_prefix(2);
  }
  std::int64_t value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, failure] = std::from_chars(text.data(), end, value, base);
  if (failure != std::errc() || stop != end || value < low || value > high) return std::nullopt;
  return value;
}

std::optional<double> ParseFraction(std::string_view text, double low, double high) {
  double value = 0.0;
  const char* end = text.data() + text.size();
  const auto [stop, failure] = std::from_chars(text.data(), end, value);
  if (failure != std::errc() || stop != end || std::isnan(value)) return std::nullopt;
  if (value < low || value > high) return std::nullopt;
  return value;
}

std::optional<Alarm> ParseAlarm(std::string_view unit, std::string_view code) {
  if (unit.size() != 1 || unit[0] < '0' || unit[0] > '4') return std::nullopt;
  if (code.size() != 1 || !AllPrintable(code)) return std::nullopt;
  return Alarm{unit[0], '0', code[0]};
}

std::optional<Fault> ParseFault(std::string_view text, std::string* error) {
  const std::vector<std::string> parts = Split(text, ", ");
  const auto kind = parts.empty() ? std::nullopt : FaultByName(parts[0]);
  if (!kind) {
    *error = "no such fault, known are: " + FaultNames();
    return std::nullopt;
  }
  Fault fault;
  fault.kind = *kind;
  bool timed = false;
  for (std::size_t i = 1; i < parts.size(); ++i) {
    const std::size_t equals = parts[i].find('=');
    const std::string_view name = std::string_view(parts[i]).substr(0, equals);
    const std::string_view value =
        equals == std::string::npos ? "" : std::string_view(parts[i]).substr(equals + 1);
    if (!TakeSetting(name, value, &fault)) {
      *error = "bad fault setting \"" + parts[i] +
               "\", known are p=0..1 n=COUNT prefix=TEXT ms=TIME byte=INDEX unit=C middle=C code=C";
      return std::nullopt;
    }
    timed = timed || name == "p" || name == "n";
  }
  if (!timed) fault.at_request = 1;
  return fault;
}

}  // namespace qvr7sim
