#pragma once

#include <string>

namespace tr7 {

/// `SysParaRead` into the 72 fields.
void SysParaHyoji();

/// The fields into `SysPara`, each by its numeric value.
void TorikomiSystemParametaValue();

/// All 72 fields hold text: 0, else 1.
int SysParaFieldsFilled();

/// Puts the focus on the first field that is empty, else on the first out of its range.
void GoToRefusedSysPara();

/// Those fields, empty or else out of range, a line each: "No. 17: 256 (0 to 255)".
std::string RefusedSysPara();

/// Marks the fields that differ from what the controller last gave; none before it gave any.
void MarkSysParaFields();

}  // namespace tr7
