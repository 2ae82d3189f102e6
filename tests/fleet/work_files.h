#pragma once

#include "tests/fleet/voyage.h"

namespace tr7 {

/// Position files of earlier days, made for whatever machines there were: of either mode, with
/// devices that the catalogue knows, or does not.
void PutWorkFiles(Voyage& voyage);

}  // namespace tr7
