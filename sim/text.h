#pragma once

#include <string>
#include <string_view>

namespace qvr7sim {

/// Upper-case hexadecimal, zeros in front; the lowest digits when the value is too wide.
std::string Hex(unsigned value, int width);
/// Value of upper-case hexadecimal digits (at most 7), -1 when a character is none or there is
/// none.
int HexValue(std::string_view digits);
/// Every character is "0" to "9" or "A" to "F".
bool AllHex(std::string_view text);
/// Every character is printable ASCII.
bool AllPrintable(std::string_view text);

}  // namespace qvr7sim
