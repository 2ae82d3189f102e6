#include "platform/doors.h"

namespace tr7 {

Doors doors;

void Pump() { doors.pump->Run(); }

}  // namespace tr7
