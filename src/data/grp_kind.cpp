#include "data/grp_kind.h"

#include <string>

#include "data/grp_commands.h"
#include "data/grp_file.h"
#include "data/grp_show.h"
#include "data/grp_table.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

bool AllAreGood() {
  StoreShownGroups();
  GrpFlags.GrpCheckFirst = 1;
  GrpFlags.GrpCheckLast = kGroups;
  return GrpData_Check() == 0;
}

bool MayBeCompared() {
  if (AllAreGood()) return true;
  MsgBox(TwoLines(820, 821));
  return false;
}

bool MayBeSent() {
  if (AllAreGood()) return true;
  MsgBox(TwoLines(820, 836) + "\n" + TwoLines(837, 838));
  return false;
}

void TakeStage() {
  GrpStageCommit();
  GrpShow();
}

std::string Differing() {
  GrpStageCompare();
  return GrpFlags.GrpSyogoList;
}

}  // namespace

const DataKind& GrpKind() {
  static const DataKind kind{.StoreShown = StoreShownGroups,
                             .MayBeCompared = MayBeCompared,
                             .MayBeSent = MayBeSent,
                             .StageFromTable = GrpStageFromTable,
                             .TakeStage = TakeStage,
                             .Differing = Differing,
                             .ReadFromCt = ReadGrpFromCt,
                             .WriteToCt = WriteGrpToCt,
                             .ReadFile = GrpFileRead,
                             .SaveFile = GrpFileSave,
                             .FileFault = &GrpFlags.GrpFileFaultText,
                             .FailureEndsSession = true,
                             .AskRead = 835,
                             .AskWrite = 839,
                             .FileToOpen = {828, "grp", 833},
                             .File = {831, "grp", 833},
                             .OpenTitle = 827,
                             .SaveTitle = 832,
                             .VerifyTitle = 834,
                             .FileNotRead = 484,
                             .FileNotSaved = 18,
                             .Equal = 826,
                             .DifferHead = 823,
                             .DifferList = 824,
                             .DifferName = 825};
  return kind;
}

}  // namespace tr7
