#include "report/data_print.h"

#include <string>

#include "data/grp_kind.h"
#include "data/sm_kind.h"
#include "report/data_report.h"
#include "report/print_flow.h"
#include "state/busy_scope.h"
#include "state/message_box.h"

namespace tr7 {
namespace {

/// Prints the kind's stage under this path; an empty one is what is shown.
using PrintStage = void (*)(const std::string& path);

void PrintGrpStage(const std::string& path) {
  static_cast<void>(PrintReport(PrintGrpTable(GrpStage, HeadOfFile(path))));
}

void PrintSmStage(const std::string& path) {
  static_cast<void>(PrintReport(PrintSmTable(SmStage, HeadOfFile(path))));
}

/// Where a question belongs to it, it comes behind the check.
void PrintShown(const DataKind& kind, PrintStage print, MsgId question) {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!kind.MayBeCompared() || (question && !AskOk(question))) return;
  kind.StageFromTable();
  print({});
}

/// A file of another kind leaves the table in the stage: it is printed as what it is.
void PrintFile(const DataKind& kind, PrintStage print) {
  const auto path = AskAndReadDataFile(kind, kind.File, kind.PrintTitle);
  if (path) print(kind.FileWasRefused() ? std::string() : *path);
}

}  // namespace

void PrintShownGroups() { PrintShown(GrpKind(), PrintGrpStage, {}); }
void PrintShownMacros() { PrintShown(SmKind(), PrintSmStage, 927); }

void PrintGroupFile() {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (GrpKind().MayBeCompared() && AskOk(829)) PrintFile(GrpKind(), PrintGrpStage);
}

void PrintMacroFile() {
  const CommandsOff commands_off;
  const BusyScope busy;
  PrintFile(SmKind(), PrintSmStage);
}

}  // namespace tr7
