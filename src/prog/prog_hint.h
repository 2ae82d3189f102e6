#pragma once

#include <string>

namespace tr7 {

// What the cells of a command take, and what it does, in the user's language. `code` is a command
// code, -1 where the command cell names none.

/// "Operation1: position 1 to 999, R1 to R100, r1 to r50"; the heading alone for the command, the
/// comment and a step without a command.
std::string ProgHint(int code, int column);

/// "VEL: sets the speed of the moves that follow"; empty without a command.
std::string CommandMeaning(int code);

/// Why a cell's text does not become what it says, empty where it does. Nothing is refused by this:
/// the cell is marked.
std::string CellFault(int code, int column, const std::string& text);

/// The heading of a listing column.
std::string ProgHeading(int column);

}  // namespace tr7
