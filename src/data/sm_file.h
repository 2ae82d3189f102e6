#pragma once

#include <string>

namespace tr7 {

/// Reads a macro file into `SmStage`; macros that it leaves out keep what the stage holds. 0; 1 on
/// a file that cannot be read, is damaged or of another kind, with `SmFileFaultText`: the stage
/// stays whole then.
int OpenSMFile(const std::string& path);

/// Writes all macros of `SmTable`. 0; 1 with `SmFileFaultText`, and the old file is whole.
int SmFileSave(const std::string& path);

}  // namespace tr7
