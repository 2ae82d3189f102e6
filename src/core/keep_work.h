#pragma once

#include <map>
#include <string>

namespace tr7 {

/// What this tool has kept so far of its unsaved work.
struct KeepRecord {
  std::map<std::string, std::string> kept;  ///< by file: the hash of what it holds
  bool due = false;                         ///< so long has passed since the last time
  bool told = false;                        ///< that it cannot be kept
};

extern KeepRecord KeepState;

/// Keeps what is unsaved and not kept as it is now. False: some of it could not be.
bool KeepNow();

/// The tool ends by the user's wish: what was unsaved has been asked for and is kept no longer.
void StopKeeping();

/// Wires the timers and the start of every transfer.
void InstallKeepWork();

}  // namespace tr7
