#pragma once

namespace tr7 {

// The view's buttons and edit commands, off (Muko) and on (Yuko).
void PosCMDBTN_Muko();
void PosCMDBTN_Yuko();
/// Edit commands of menu, popup and view off; the grid's selection brings them back.
void EditCMD_Muko();

/// Switches the edit commands by what is selected; paste also by whether something was copied.
void EditCommandsBySelection();

/// The grid rests for the length of a flow; on every way out it is on, repainted and focused.
class PosiGridOff {
 public:
  PosiGridOff();
  ~PosiGridOff();
  PosiGridOff(const PosiGridOff&) = delete;
  PosiGridOff& operator=(const PosiGridOff&) = delete;
};

}  // namespace tr7
