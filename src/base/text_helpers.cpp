#include "base/text_helpers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <system_error>

namespace tr7 {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

/// A value as decimal digits: 0.d1d2d3... times ten to the power of `point`.
struct Decimal {
  bool negative = false;
  std::string digits;  ///< without zeros at the end; empty for 0
  int point = 0;
};

/// The value to 15 significant digits, which is what a double holds for certain: the noise of
/// binary arithmetic behind them never shows and never tips a tie. Not finite counts as 0.
Decimal ToDecimal(double value) {
  Decimal decimal;
  if (!std::isfinite(value) || value == 0) return decimal;
  std::array<char, 40> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                 std::chars_format::scientific, 14)
                       .ptr;
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t e = text.find('e');
  int exponent = 0;
  const std::size_t sign = text[e + 1] == '+' ? 1 : 0;
  std::from_chars(text.data() + e + 1 + sign, text.data() + text.size(), exponent);
  for (const char c : text.substr(0, e)) {
    if (c != '.') decimal.digits += c;
  }
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
  decimal.negative = value < 0;
  decimal.point = exponent + 1;
  return decimal;
}

/// Cuts to `decimals` behind the point, halves away from zero.
void RoundDecimal(Decimal& decimal, int decimals) {
  const int keep = decimal.point + decimals;
  if (keep >= static_cast<int>(decimal.digits.size())) return;
  if (keep < 0) {
    decimal = Decimal{};
    return;
  }
  const bool up = decimal.digits[keep] >= '5';
  decimal.digits.resize(static_cast<std::size_t>(keep));
  if (up) {
    while (!decimal.digits.empty() && decimal.digits.back() == '9') decimal.digits.pop_back();
    if (decimal.digits.empty()) {
      decimal.digits = "1";
      ++decimal.point;
    } else {
      ++decimal.digits.back();
    }
  }
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
  if (decimal.digits.empty()) decimal = Decimal{};
}

/// At least one digit in front of the point and at least `min_decimals` behind it.
std::string Spelled(const Decimal& decimal, int min_decimals) {
  std::string text = decimal.negative ? "-" : "";
  const int count = static_cast<int>(decimal.digits.size());
  const auto digit = [&](int i) { return i >= 0 && i < count ? decimal.digits[i] : '0'; };
  if (decimal.point <= 0) text += '0';
  for (int i = 0; i < decimal.point; ++i) text += digit(i);
  const int decimals = std::max(min_decimals, count - decimal.point);
  if (decimals > 0) text += '.';
  for (int i = 0; i < decimals; ++i) text += digit(decimal.point + i);
  return text;
}

std::string Padded(std::string digits, int width, char fill) {
  const auto full = static_cast<std::size_t>(std::max(width, 0));
  if (digits.size() > full) return "X";
  digits.insert(0, full - digits.size(), fill);
  return digits;
}

/// A whole number of a few digits, as most texts of a table are.
bool IsShortWhole(std::string_view text) {
  constexpr std::size_t kMostDigits = 9;
  return !text.empty() && text.size() <= kMostDigits && std::ranges::all_of(text, IsDigit);
}

}  // namespace

double Val(std::string_view text) {
  if (IsShortWhole(text)) {
    int whole = 0;
    for (const char c : text) whole = whole * 10 + (c - '0');
    return whole;
  }
  std::string number;
  bool point = false;
  for (const char c : text) {
    if (IsBlank(c)) continue;
    if ((c == '+' || c == '-') && number.empty()) {
      number += c;
    } else if (c == '.' && !point) {
      point = true;
      number += c;
    } else if (IsDigit(c)) {
      number += c;
    } else {
      break;
    }
  }
  const char* begin = number.data();
  const char* end = begin + number.size();
  if (begin != end && *begin == '+') ++begin;
  double value = 0;
  const auto result = std::from_chars(begin, end, value, std::chars_format::fixed);
  if (result.ec == std::errc::result_out_of_range) {
    // Too small to hold is 0; too large is the largest, which fails every range check.
    if (number.find_first_of("123456789") > number.find('.')) return 0;
    value = std::numeric_limits<double>::max();
    return number[0] == '-' ? -value : value;
  }
  return result.ec == std::errc() ? value : 0;
}

std::string Str(double value) {
  const std::string text = PlainDecimal(value);
  return text[0] == '-' ? text : " " + text;
}

std::string PlainDecimal(double value) {
  constexpr double kMostWhole = 1e15;
  // Most fields of a table are whole numbers: a save spells tens of thousands of them.
  if (std::fabs(value) < kMostWhole && value == std::trunc(value)) {
    return std::to_string(static_cast<std::int64_t>(value));
  }
  return Spelled(ToDecimal(value), 0);
}

std::string FormatMm(double value) {
  Decimal decimal = ToDecimal(value);
  RoundDecimal(decimal, 3);
  return Spelled(decimal, 3);
}

double RoundToOneDecimal(double value) {
  Decimal decimal = ToDecimal(value);
  RoundDecimal(decimal, 1);
  return Val(Spelled(decimal, 0));
}

std::string Trim(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return std::string(text);
}

std::string HexPad(std::int64_t value, int width) {
  if (value < 0) return "X";
  std::array<char, 20> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, 16).ptr;
  std::string digits(buffer.data(), end);
  for (char& c : digits) {
    if (c >= 'a') c = static_cast<char>(c - 'a' + 'A');
  }
  return Padded(std::move(digits), width, '0');
}

std::string DecPad(std::int64_t value, int width) {
  return value < 0 ? "X" : Padded(std::to_string(value), width, '0');
}

std::string SpacePad(std::int64_t value, int width) {
  return Padded(std::to_string(value), width, ' ');
}

std::string RightAlignText(std::string_view text, int width) {
  const int count = CharCount(text);
  if (count > width) return "-1";
  return std::string(static_cast<std::size_t>(width - count), ' ') + std::string(text);
}

std::int64_t HexValue(std::string_view field) {
  const auto is_hex = [](char c) {
    return IsDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
  };
  for (const char c : field) {
    if (!is_hex(c)) return -1;
  }
  std::int64_t value = -1;
  const auto result = std::from_chars(field.data(), field.data() + field.size(), value, 16);
  return result.ec == std::errc() ? value : -1;
}

int CharCount(std::string_view utf8) {
  int count = 0;
  for (const char c : utf8) count += IsContinuation(c) ? 0 : 1;
  return count;
}

std::string OneLine(std::string_view utf8) {
  std::string line(utf8);
  for (char& c : line) {
    if ((c >= 0 && c < ' ') || c == '\x7f') c = ' ';
  }
  return line;
}

std::string LeftChars(std::string_view utf8, int count) {
  std::size_t end = 0;
  for (int taken = 0; end < utf8.size(); ++end) {
    if (!IsContinuation(utf8[end]) && ++taken > count) break;
  }
  return std::string(utf8.substr(0, end));
}

std::string MidChars(std::string_view utf8, int first, int count) {
  return LeftChars(utf8.substr(LeftChars(utf8, first - 1).size()), count);
}

}  // namespace tr7
