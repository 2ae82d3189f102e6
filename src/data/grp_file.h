#pragma once

#include <string>

namespace tr7 {

/// Reads a group file into `GrpStage`; groups that it leaves out keep what the stage holds. 0; 1 on
/// a file that cannot be read or is damaged, with `GrpFileFaultText`: the stage stays whole then. A
/// file of another kind is told, sets `GrpFileRefused` and counts as read: the stage stays whole.
int GrpFileRead(const std::string& path);

/// Writes all groups of `GrpTable`. 0; 1 with `GrpFileFaultText`, and the old file is whole.
int GrpFileSave(const std::string& path);

}  // namespace tr7
