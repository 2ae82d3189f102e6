#pragma once

#include "sim/setup.h"
#include "tests/fleet/random.h"
#include "tests/fleet/voyage.h"

namespace tr7 {

/// A controller as it may stand at any machine: boards, axes in use, mode, devices.
qvr7sim::Setup AnyController(Random& random);

/// Plans what the line does wrong in this run; a run in four stays undisturbed.
void PlanFaults(Voyage& voyage);

/// Something happens between two flows: to the port, the controller or the disk; or all is well
/// again.
void ChangeWeather(Voyage& voyage);

/// One of the next calls of the file door fails.
void SpoilFiles(Voyage& voyage);

}  // namespace tr7
