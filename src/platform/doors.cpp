#include "platform/doors.h"

namespace tr7 {

Doors doors;

}  // namespace tr7
