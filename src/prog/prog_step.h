#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tr7 {

/// Columns of the listing. Those from the command to the result are the fields of a numeric step.
enum ProgColumn : int {
  kProgNo,
  kProgCommand,
  kProgOperand1,
  kProgOperand2,
  kProgCondition,
  kProgResult,
  kProgComment,
};
inline constexpr int kProgColumns = 7;
inline constexpr int kProgFields = 5;

/// A step in its numeric form, as the controller holds it: command code, operand codes, condition
/// code and result code, by their columns. An unused step of the controller is all zeros.
struct ProgStep {
  std::array<std::int32_t, kProgFields> Fields{};
  std::int32_t& operator[](int column) { return Fields.at(static_cast<std::size_t>(column) - 1); }
  std::int32_t operator[](int column) const {
    return Fields.at(static_cast<std::size_t>(column) - 1);
  }
  bool operator==(const ProgStep&) const = default;
};

/// A step in its text form: the six cells from the command to the comment, by their columns.
struct ProgCells {
  std::array<std::string, kProgColumns - 1> Texts;
  std::string& operator[](int column) { return Texts.at(static_cast<std::size_t>(column) - 1); }
  const std::string& operator[](int column) const {
    return Texts.at(static_cast<std::size_t>(column) - 1);
  }
  bool operator==(const ProgCells&) const = default;
};

inline constexpr int kPrograms = 100;       ///< program numbers run from 1
inline constexpr int kMostProgSteps = 100;  ///< of any program

/// The steps that a program of this number may hold; 0 for what is no program number.
constexpr int GetProgStepMax(int program) {
  if (program < 1 || program > kPrograms) return 0;
  return program <= 7 ? kMostProgSteps : program <= 20 ? 50 : 20;
}

}  // namespace tr7
