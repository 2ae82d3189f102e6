#pragma once

#include <string>

#include "forms/control.h"

namespace tr7 {

// What the status bar tells about the field of the parameter view that is typed into.

/// "Input range: 1 to 255".
std::string ParaRangeText(const std::string& low, const std::string& high);

/// A field got the focus: its hint, or nothing for an empty one. The refusal of the field before
/// stays readable.
void ParaFieldEntered(const std::string& hint);
/// A field lost the focus with a good value.
void ParaFieldLeft();
/// Empties the field, beeps and tells which field was refused and what it takes.
void RefuseParaField(TextBox& box, const std::string& name, const std::string& range);

}  // namespace tr7
