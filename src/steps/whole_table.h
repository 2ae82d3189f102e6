#pragma once

#include "link/port.h"
#include "steps/outcome.h"

namespace tr7 {

/// Reads by `read` into a table of its own, which `into` becomes when all of it is there: what
/// travels record by record comes in whole or not at all. The line is shut afterwards.
template <typename Table>
Outcome ReadWholeTable(Table& into, Outcome (*read)(Table& incoming)) {
  Table incoming{};
  const Outcome outcome = read(incoming);
  TusinPortClose();
  if (outcome == Outcome::Done) into = incoming;
  return outcome;
}

}  // namespace tr7
