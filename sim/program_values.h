#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <vector>

#include "sim/program_step.h"
#include "sim/setup.h"

namespace qvr7sim {

inline constexpr int kProgramInputs = 18;  ///< Inputs that programs know, from 1.
/// Inputs behind them, for the controller itself.
inline constexpr int kStb = 19, kRes = 20, kPause = 21;
inline constexpr int kInputs = 21;
inline constexpr int kOutputs = 16;  ///< Outputs of programs, from 1.

/// What a program has for itself, index from 1. It begins with zeros at every start, and stays to
/// be read when the program has ended.
struct LocalValues {
  std::bitset<51> flags;
  std::array<std::int32_t, 51> variables{};
  std::array<std::int32_t, kAxes + 1> positions{};  ///< thousandths, of a mm where they are places
};

/// Inputs, outputs, flags and variables. Variables hold whole numbers, position variables
/// thousandths.
class ProgramValues {
 public:
  /// Inputs, outputs and flags: whether it is on. Others: false.
  bool IsOn(const Operand& signal, int program) const;
  /// Nothing for what is no output or flag.
  void Switch(const Operand& signal, int program, bool on);
  /// Input 1 to 21.
  void SetInput(int number, bool on) { inputs_[number] = on; }

  /// A number or the content of a variable, in thousandths; 0 for others.
  std::int64_t Thousandths(const Operand& operand, int program) const;
  /// Decimals that the variable does not hold are cut off. False where it is no variable or the
  /// value does not fit; it then keeps what it has.
  bool Store(const Operand& variable, int program, std::int64_t thousandths);

  LocalValues& Local(int program) { return locals_[program]; }
  const LocalValues& Local(int program) const { return locals_[program]; }
  /// What is lost without power: all but the inputs.
  void Clear();

 private:
  std::bitset<kInputs + 1> inputs_;
  std::bitset<kOutputs + 1> outputs_;
  std::bitset<101> flags_;
  std::array<std::int32_t, 101> variables_{};
  std::vector<LocalValues> locals_ = std::vector<LocalValues>(kPrograms + 1);
};

}  // namespace qvr7sim
