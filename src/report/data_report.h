#pragma once

#include "data/grp_table.h"
#include "data/sm_table.h"
#include "platform/printer.h"
#include "report/sheet.h"

namespace tr7 {

// The reports of groups and of sequence macros: many small blocks beside and below one another.

PrintJob PrintGrpTable(const GrpTableRecord& groups, const SheetHead& head);

/// Macros that do something, each as a whole.
PrintJob PrintSmTable(const SmTableRecord& macros, const SheetHead& head);

}  // namespace tr7
