#pragma once

#include "core/reset_state.h"
#include "platform/doors.h"
#include "tests/support/memory_files.h"
#include "tests/support/virtual_form_host.h"
#include "tests/support/virtual_pump.h"
#include "tests/support/virtual_settings.h"

namespace tr7 {

/// The doors of one run: no file but what it puts there, nobody who answers. Those of before come
/// back at its end.
struct FuzzDoors {
  FuzzDoors() {
    doors.files = &files;
    doors.forms = &forms;
    doors.settings = &settings;
    doors.pump = &pump;
  }
  ~FuzzDoors() { doors = before; }
  FuzzDoors(const FuzzDoors&) = delete;
  FuzzDoors& operator=(const FuzzDoors&) = delete;

  const Doors before = doors;
  MemoryFiles files;
  VirtualFormHost forms;
  VirtualSettings settings;
  VirtualPump pump;
};

}  // namespace tr7
