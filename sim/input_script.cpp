#include "sim/input_script.h"

#include <algorithm>

#include "sim/parse.h"
#include "sim/signal_names.h"

namespace qvr7sim {

std::optional<std::vector<TimedInput>> ParseInputScript(std::string_view text, std::string* error) {
  constexpr std::int64_t kLongestMs = 1'000'000'000, kUsPerMs = 1000;
  std::vector<TimedInput> inputs;
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, std::min(end, text.find('#')));
    const std::vector<std::string> words = Split(line, " \t\r");
    text.remove_prefix(std::min(end + 1, text.size()));
    if (words.empty()) continue;
    const bool three = words.size() == 3;
    const auto ms = three ? ParseNumber(words[0], 0, kLongestMs) : std::nullopt;
    const auto signal = three ? ParseSignal(words[1]) : std::nullopt;
    const auto value = signal ? ParseSignalValue(*signal, words[2]) : std::nullopt;
    if (!ms || !value) {
      *error = "line " + std::to_string(number) + " is not \"ms input value\"";
      return std::nullopt;
    }
    inputs.push_back({*ms * kUsPerMs, *signal, *value});
  }
  return inputs;
}

}  // namespace qvr7sim
