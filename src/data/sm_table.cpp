#include "data/sm_table.h"

namespace tr7 {

SmTableRecord SmTable;
SmTableRecord SmStage;

}  // namespace tr7
