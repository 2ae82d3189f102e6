#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tr7 {

/// The leading decimal number of a text, blanks ignored wherever they stand; 0 when there is none.
/// Exponents are not read. A number beyond a double gives the largest one, so that range checks
/// refuse it.
double Val(std::string_view text);

/// Number to text with a blank in front of a value that is not negative: 30 gives " 30".
std::string Str(double value);

/// Plain decimal form: no exponent, no blank, no surplus digits; at most 15 significant digits.
/// Here and below a value that is not finite counts as 0.
std::string PlainDecimal(double value);

/// "#0.000": at least one digit, exactly three decimals, halves away from zero.
std::string FormatMm(double value);

/// "#.#" read back: one decimal, halves away from zero.
double RoundToOneDecimal(double value);

/// Without blanks at both ends.
std::string Trim(std::string_view text);

// Fixed-width fields of the wire, of files and of the grid. One family: HexPad is also known as
// HexPadText and HexPadZero, DecPad as DecPadZero and NumPadZero, SpacePad as DecPadBlank and
// NumPadBlank, RightAlignText as StrPadLeft. A number too wide for its field gives "X", which goes
// out as it stands: the caller has checked the range.

/// Upper-case hexadecimal, zeros in front; a negative value is too wide.
std::string HexPad(std::int64_t value, int width);
/// Decimal, zeros in front; a negative value is too wide.
std::string DecPad(std::int64_t value, int width);
/// Decimal, blanks in front.
std::string SpacePad(std::int64_t value, int width);
/// Blanks in front up to the width (characters); "-1" when the text is longer.
std::string RightAlignText(std::string_view text, int width);

/// Value of an upper- or lower-case hexadecimal field; -1 when a character is no digit, the field
/// is empty or the value is beyond 63 bits.
std::int64_t HexValue(std::string_view field);

/// Number of characters of a UTF-8 text, and its first `count` characters.
int CharCount(std::string_view utf8);
std::string LeftChars(std::string_view utf8, int count);
/// Control characters, line ends among them, become blanks.
std::string OneLine(std::string_view utf8);
/// At most `count` characters from the `first`-th on (from 1); what is not there is left out.
std::string MidChars(std::string_view utf8, int first, int count);

}  // namespace tr7
