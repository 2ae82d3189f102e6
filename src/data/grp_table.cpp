#include "data/grp_table.h"

namespace tr7 {

GrpTableRecord GrpTable;
GrpTableRecord GrpStage;

}  // namespace tr7
