#pragma once

#include <array>

#include "forms/frm_io_check_fg.h"
#include "link/monitor_commands.h"

namespace tr7 {

/// A row of the tables: what either mode calls the terminal, and its place in the reply.
struct IoPointRow {
  const char* position_name;
  const char* program_name;
  int digit;
  int bit;

  int Point() const { return IoPoint(digit, bit); }
};

const std::array<IoPointRow, kInputRows>& InputPoints();
const std::array<IoPointRow, kOutputRows>& OutputPoints();

/// As the controller's mode calls it.
const char* PointName(const IoPointRow& point);

}  // namespace tr7
