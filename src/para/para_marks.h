#pragma once

namespace tr7 {

/// Marks every field whose value differs from what the controller is last known to hold, in the
/// columns that are known and live.
void MarkParaFields();

/// Another controller may be at the line: what the former held counts no more, tuning values
/// included, and nothing is marked by it.
void ForgetWhatCtHeld();

/// From now on the marks follow what the user types and picks. Comes behind the fields' own
/// handlers.
void InstallParaMarks();

}  // namespace tr7
