#pragma once

namespace tr7 {

// Whether the fields of the parameter view hold more than a file or the controller does.

/// What the fields hold now is saved: it agrees with a file or with the controller.
void MarkParaSaved();
/// True when the fields have been changed since.
bool ParaIsChanged();
/// They agree with neither of the two, whatever they hold.
void MarkParaUnsaved();

}  // namespace tr7
