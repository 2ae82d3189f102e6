#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace qvr7sim {

/// Command (a name of our sample list), two operations, condition and result as they are typed.
using StepCells = std::array<std::string, 5>;

/// The step's 19 digits; none when a cell is not understood.
std::optional<std::string> AssembleStep(const StepCells& cells);
/// All steps of a program file; none, with what is wrong, when it is no program.
std::optional<std::string> AssembleProgramFile(std::string_view text, std::string* error);

}  // namespace qvr7sim
