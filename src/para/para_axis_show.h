#pragma once

#include <cstddef>

#include "para/para_fields.h"

namespace tr7 {

// Single controls of the parameter view from `ParamSet`.

/// Shows the row in its field: a whole number without decimals.
void ShowParaText(const ParaTextField& field, int axis);
/// Chooses the entry of the row's value. A value without one gets an entry of its own, when
/// `TorikomiParametaValue` would take that back; else nothing is chosen.
void ShowParaList(const ParaListField& field, int axis);
/// Chooses the option that stands for the row's value.
void ShowParaOption(const ParaOptionField& field);
/// AXIS, as a list entry and as a number.
void ShowParaAxisMask();

/// All controls of one axis, and the same emptied.
void ShowParaAxis(int axis);
void ClearParaAxis(int axis);

/// Fills the lists whose entries do not depend on the device, nothing chosen.
void FillParaLists();

}  // namespace tr7
