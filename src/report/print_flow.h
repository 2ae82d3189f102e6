#pragma once

#include <string>

#include "base/axes.h"
#include "platform/printer.h"
#include "report/sheet.h"
#include "steps/outcome.h"

namespace tr7 {

/// What prints every report: shows it, then prints it with progress and cancel button. The user has
/// been told how it ended.
Outcome PrintReport(const PrintJob& job);

/// The machine in a line, by its devices' names: "AXIS1:QV- 28L-100  /  AXIS2:--"; an empty name is
/// an axis that there is not.
std::string MachineLine(const AxisArray<std::string>& devices);
/// The names of those in use.
AxisArray<std::string> DevicesInUse();

/// The head of a report on this file, or on what is shown (an empty path), as of now.
SheetHead HeadOfFile(const std::string& path);
/// The same where the machine stands at the top and the file at the foot.
SheetHead HeadOfMachine(const AxisArray<std::string>& devices, const std::string& file);

}  // namespace tr7
