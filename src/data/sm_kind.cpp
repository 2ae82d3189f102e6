#include "data/sm_kind.h"

#include <string>

#include "data/sm_commands.h"
#include "data/sm_file.h"
#include "data/sm_show.h"
#include "data/sm_table.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

/// The check may have put steps right.
bool AreGood() {
  const int result = SmData_Check();
  SmShow();
  if (result == 0) return true;
  MsgBox(Text(921) + "\n\n" + Text(922) + "\n\n" + Text(938) + "\n\n" + SmFlags.SmBadList);
  return false;
}

void TakeStage() {
  SmStageCommit();
  SmShow();
}

std::string Differing() {
  SmStageCompare();
  return SmFlags.SmSyogoList;
}

int ReadFile(const std::string& path) {
  const WaitCursorScope wait_cursor;
  return OpenSMFile(path);
}

}  // namespace

const DataKind& SmKind() {
  static const DataKind kind{.StoreShown = [] {},  // every key goes to the table at once
                             .MayBeCompared = AreGood,
                             .MayBeSent = AreGood,
                             .StageFromTable = SmStageFromTable,
                             .TakeStage = TakeStage,
                             .Differing = Differing,
                             .ReadFromCt = ReadSmFromCt,
                             .WriteToCt = WriteSmToCt,
                             .ReadFile = ReadFile,
                             .SaveFile = SmFileSave,
                             .FileFault = &SmFlags.SmFileFaultText,
                             .FailureEndsSession = false,
                             .AskRead = 920,
                             .AskWrite = 937,
                             .FileToOpen = {930, "smd", 934},
                             .File = {930, "smd", 934},
                             .OpenTitle = 928,
                             .SaveTitle = 933,
                             .VerifyTitle = 936,
                             .FileNotRead = 931,
                             .FileNotSaved = 935,
                             .Equal = 926,
                             .DifferHead = 923,
                             .DifferList = 924,
                             .DifferName = 925};
  return kind;
}

}  // namespace tr7
