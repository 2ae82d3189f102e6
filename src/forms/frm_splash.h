#pragma once

#include "forms/control.h"
#include "forms/timer.h"

namespace tr7 {

/// The splash: product name and version while the program starts.
struct FrmSplash : View {
  FrmSplash() : View("frmSplash") {
    RefuseClose = true;
    Width = 6300;
    Height = 3300;
  }
  Label lblProduct{*this, "lblProduct", 201};
  Label lblSubtitle{*this, "lblSubtitle", 5160};
  Label lblVersion{*this, "lblVersion"};
  Timer timerSplash{3000, false};
};

inline Standing<FrmSplash> frmSplash;

}  // namespace tr7
