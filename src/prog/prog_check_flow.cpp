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
  view.Store.ProgSyntaxNg = True;
  // What could not be judged has been told, and the pane has nothing to show.
  if (!view.Store.ProgErrList.empty()) ProgErrPaneOpen(view);
  return 1;
}

void programCheck(ProgView& view) {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (ProgDataCheckOrPane(view, false) == 0) TellDone(133);
}

}  // namespace tr7
