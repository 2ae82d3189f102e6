#pragma once

#include "core/bool16.h"

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

/// Another view is the active one: the file commands follow it, and the Edit commands rest until
/// the view switches its own on.
void FollowActiveView();

/// Shows or hides and switches the commands that depend on the mode and on `Offline`.
void ChangeMenuDisp(Bool16 mode);

/// The mode label.
void DispControlerMode();

/// Commands whose subsystem this build does not hold stay off whatever else switches them on.
void SwitchOffUnbuiltCommands();

}  // namespace tr7
