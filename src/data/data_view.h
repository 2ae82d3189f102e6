#pragma once

#include "data/data_flows.h"
#include "forms/control.h"

namespace tr7 {

/// The buttons that the views of groups and of macros have in common.
struct DataButtons {
  CommandButton &Read, &Write, &VerifyCt, &Open, &Save, &VerifyFile, &Close;
};

/// Wires them, the view's open command, its menu, and what its title says of the data.
void InstallDataButtons(View& view, Menu& menu, const DataButtons& buttons, const DataKind& kind);

}  // namespace tr7
