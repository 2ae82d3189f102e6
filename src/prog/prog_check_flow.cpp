#include "prog/prog_check_flow.h"

#include "prog/command_list.h"
#include "prog/prog_check.h"
#include "prog/prog_err_pane.h"
#include "prog/prog_lines.h"
#include "prog/prog_listing.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {

int PrepareProg(ProgView& view) {
  if (ReadCommandLst() != 0 || Check_flgdProgLineNo(view) != 0) return 1;
  if (Check_NullLineAndDelete(view) != 0) return 1;
  return TorikomiProg2DA(view);
}

int ProgDataCheck(ProgView& view, bool SilentTail) {
  FGProg_InitPos(view.flgdProg);
  view.Store.ProgErrList.clear();
  ProgErrClear(view.flgdPrgErr);  // an open pane shows the errors of this check alone
  if (PrepareProg(view) != 0) return 1;
  if (programCheckProc(view.Store) == 0) return 0;
  ProgErrShow(view);
  MsgBox(SilentTail ? Text(134) : TwoLines(134, 135));
  FGProg_InitPos(view.flgdProg);
  return 1;
}

int ProgDataCheckOrPane(ProgView& view, bool SilentTail) {
  if (ProgDataCheck(view, SilentTail) == 0) return 0;
  // A listing without a step has nothing that could be mended. Any other leaves the mark and the
  // pane, whose button clears it, also where a step could not be judged.
  if (ListingSteps(view.flgdProg) == 0) return 1;
  view.Store.ProgSyntaxNg = True;
  ProgErrPaneOpen(view);
  return 1;
}

void programCheck(ProgView& view) {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (ProgDataCheckOrPane(view, false) != 0) return;
  // By this command alone. Meant so: the check within a save takes no mark back, and the save asks
  // about errors also where they have been mended since.
  view.Store.ProgSyntaxNg = False;
  TellDone(133);
}

}  // namespace tr7
