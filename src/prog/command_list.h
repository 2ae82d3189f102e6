#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tr7 {

/// The names of `Command.lst`, by command code.
struct CommandListRecord {
  std::vector<std::string> CmdList;
  int CmdCount = 0;
  bool LengthTold = false;  ///< the user knows that the list has not the vocabulary's length
};

extern CommandListRecord CommandList;

/// Reads `Command.lst` anew. 0; 1 when it is missing or damaged, which the user has been told: the
/// list is empty then. A list of another length than the vocabulary's is told once and serves.
int ReadCommandLst();

/// The code of a command by its exact name, the first of that name; -1 when there is none.
int SeekCmdCode(std::string_view name);

/// The name of a command code; empty above the list.
std::string CmdName(int code);

}  // namespace tr7
