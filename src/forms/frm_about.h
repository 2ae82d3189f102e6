#pragma once

#include "forms/control.h"

namespace tr7 {

/// What the tool is: version, build, system, licences.
struct FrmAbout : View {
  FrmAbout() : View("frmAbout", 7900) {
    Width = 10200;
    Height = 7200;
    cmdClose.Default = cmdClose.Cancel = true;
  }

  Label lblProduct{*this, "lblProduct"};  ///< name and version
  Label lblSubtitle{*this, "lblSubtitle", 5160};
  ListBox lstAbout{*this, "lstAbout"};
  CommandButton cmdCopy{*this, "cmdCopy", 5405};
  CommandButton cmdClose{*this, "cmdClose", 5404};
};

inline Standing<FrmAbout> frmAbout;

}  // namespace tr7
