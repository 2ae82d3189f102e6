#pragma once

#include <string>
#include <vector>

#include "platform/printer.h"
#include "prog/prog_step.h"
#include "report/sheet.h"

namespace tr7 {

/// A program to print.
struct ProgListing {
  std::string Number;  ///< empty: it has none yet
  std::vector<ProgCells> Steps;
  std::vector<std::string> CheckResult;  ///< a line each
};

PrintJob PrintProgTable(const ProgListing& listing, const SheetHead& head);

}  // namespace tr7
