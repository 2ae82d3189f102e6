#pragma once

#include <string>
#include <vector>

namespace tr7 {

/// The door to the folder where unsaved work outlives the tool. Every tool that runs has files of
/// its own there; the files themselves go through the door to files. Nothing here re-enters.
class WorkFolder {
 public:
  virtual ~WorkFolder() = default;
  /// The path of this tool's own file of that name; empty where the folder cannot be had. No other
  /// tool takes it for left while this one runs, however it ends.
  virtual std::string Own(const std::string& name) = 0;
  /// The paths of what tools that run no more have left. They are this tool's from now on, until
  /// it ends: another start does not see them.
  virtual std::vector<std::string> TakeLeft() = 0;
  /// The tool ends: what still lies there is free for the next start.
  virtual void Leave() = 0;
};

}  // namespace tr7
