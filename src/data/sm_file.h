#pragma once

#include <string>

#include "data/sm_table.h"

namespace tr7 {

/// Reads a macro file into `SmStage`; macros that it leaves out keep what the stage holds. 0; 1 on
/// a file that cannot be read, is damaged or of another kind, with `SmFileFaultText`: the stage
/// stays whole then.
int OpenSMFile(const std::string& path);

/// The same of a file's text that is in memory already.
int SmTextRead(const std::string& utf8);
/// The text of a file of all macros.
std::string SmFileText(const SmTableRecord& table);

/// Writes all macros of `SmTable`. 0; 1 with `SmFileFaultText`, and the old file is whole.
int SmFileSave(const std::string& path);

}  // namespace tr7
