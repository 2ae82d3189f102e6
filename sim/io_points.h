#pragma once

#include <cstdint>
#include <string>

namespace qvr7sim {

struct Plant;

// The terminals as "0RI" and "0RO" tell them: bit b of digit d is the bit 4 * d + b of a word.

inline constexpr int kInputDigits = 7;
inline constexpr int kOutputDigits = 5;

constexpr unsigned PointBit(int digit, int bit) { return 1U << (4 * digit + bit); }

/// The inputs as a hand, a script or the machine set them.
unsigned InputWord(const Plant& plant, std::int64_t now_us);
/// The outputs. One that the PC has forced stays so until the controller itself switches it.
unsigned OutputWord(Plant& plant, std::int64_t now_us);
/// The PC sets all outputs: those that programs and positions switch take it as they do from
/// those, the controller's own are forced.
void ForceOutputs(Plant& plant, unsigned word, std::int64_t now_us);

/// The word's digits on the line, digit 0 first, and back.
std::string PointDigits(unsigned word, int digits);
unsigned PointWord(const std::string& digits);

}  // namespace qvr7sim
