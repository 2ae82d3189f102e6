#include "sim/text.h"

#include <algorithm>

namespace qvr7sim {

namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

}  // namespace

std::string Hex(unsigned value, int width) {
  std::string text(static_cast<std::size_t>(width), '0');
  for (auto at = text.rbegin(); at != text.rend(); ++at, value >>= 4) *at = kDigits[value & 0xF];
  return text;
}

int HexValue(std::string_view digits) {
  if (digits.empty() || digits.size() > 7 || !AllHex(digits)) return -1;
  int value = 0;
  for (char digit : digits) value = value * 16 + static_cast<int>(kDigits.find(digit));
  return value;
}

bool AllHex(std::string_view text) {
  return text.find_first_not_of(kDigits) == std::string_view::npos;
}

bool AllPrintable(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

}  // namespace qvr7sim
