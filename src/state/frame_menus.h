#pragma once

#include "base/bool16.h"
#include "forms/view.h"

namespace tr7 {

// The frame's commands, off (Muko) and on (Yuko).

void Main_CMDBTN_Muko();
void Main_CMDBTN_Yuko();
void ToolBar_Muko();
void ToolBar_Yuko();
void Menyu_Muko();
void Menyu_Yuko();
/// All three of the above.
void CTM_MukoSyori();
void CTM_YukoSyori();

/// The view that takes the frame's commands: the active one; the position view where none is.
View& FrontView();
/// The Edit menu shows what the view in front allows.
void SwitchEditCommands();
/// Another view is in front: the file and edit commands are its own.
void FollowActiveView();

/// Shows or hides and switches the commands that depend on the mode and on `Offline`.
void ChangeMenuDisp(Bool16 mode);

/// The mode label.
void DispControlerMode();

/// Commands whose subsystem this build does not hold stay off whatever else switches them on.
void SwitchOffUnbuiltCommands();

}  // namespace tr7
