#pragma once

#include <QMdiArea>
#include <QMenu>

#include "ui/binding.h"

namespace tr7 {

/// The windows of the frame, below the menu's own commands whenever it opens. A window that was
/// chosen comes to the front, while `gate` lets a command through.
void ListWindowsIn(QMenu& menu, QMdiArea& area, const CommandGate& gate);

/// Ctrl+Tab, and with Shift, go through them in the order of the menu. The area's own keys go to
/// and fro between the last two, and the focus in the view moves on with each.
void StepThroughWindows(QWidget& frame, QMdiArea& area, const CommandGate& gate);

}  // namespace tr7
