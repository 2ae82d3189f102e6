#pragma once

#include <string>

#include "data/grp_table.h"

namespace tr7 {

/// Reads a group file into `GrpStage`; groups that it leaves out keep what the stage holds. 0; 1 on
/// a file that cannot be read or is damaged, with `GrpFileFaultText`: the stage stays whole then. A
/// file of another kind is told, sets `GrpFileRefused` and counts as read: the stage stays whole.
int GrpFileRead(const std::string& path);

/// The same of a file's text that is in memory already.
int GrpTextRead(const std::string& utf8);
/// The text of a file of all groups.
std::string GrpFileText(const GrpTableRecord& table);

/// Writes all groups of `GrpTable`. 0; 1 with `GrpFileFaultText`, and the old file is whole.
int GrpFileSave(const std::string& path);

}  // namespace tr7
