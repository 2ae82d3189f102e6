#pragma once

#include <cstddef>
#include <string>

#include "forms/control.h"

namespace tr7 {

// What the status bar tells about the field of the parameter view that is typed into.

/// "Input range: 1 to 255".
std::string ParaRangeText(const std::string& low, const std::string& high);

/// "AXIS2 PUSH  Home push", or the row's name alone where the controller has one field (`per_axis`
/// false). The row's name is the label in front of the controls.
std::string ParaFieldName(const Control& control, bool per_axis, int axis);

/// A field got the focus: its hint, or nothing for an empty one. The refusal of the field before
/// stays readable.
void ParaFieldEntered(const TextBox& box, const std::string& hint);
/// A field lost the focus with a good value.
void ParaFieldLeft();
/// Empties the field. The Undo key brings back what it held when the focus came to it.
void EmptyParaField(TextBox& box);
/// The same, with a beep and words: which field was refused, what it takes and what it held.
void RefuseParaField(TextBox& box, const std::string& name, const std::string& range);
/// The Undo key in a field that was emptied. False: there is nothing to bring back.
bool RestoreParaField(TextBox& box);

}  // namespace tr7
