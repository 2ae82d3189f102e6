#include "data/sm_kind.h"

#include <array>
#include <limits>
#include <string>

#include "data/data_compare.h"
#include "data/sm_commands.h"
#include "data/sm_file.h"
#include "data/sm_show.h"
#include "data/sm_table.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgTitle = 6504, kMsgStep = 5339, kMsgNone = 5335, kMsgBlank = 5340;
constexpr int kMsgStepOfMacro = 7826;
/// Command of a step that a file leaves out.
constexpr std::int16_t kLeftOut = std::numeric_limits<std::int16_t>::min();

/// "1. IN-ON 3"; an end has no value.
std::string StepText(const SmStep& step) {
  if (step.Command == kLeftOut) return Text(kMsgNone);
  if (step.Command == kSmBlank) return Text(kMsgBlank);
  const bool known = step.Command >= 0 && step.Command < static_cast<int>(kSmCommands.size());
  const std::string command = known ? kSmCommands[step.Command] : std::to_string(step.Command);
  return step.Command == kSmEnd ? command : command + " " + std::to_string(step.Value);
}

std::string NameOf(int at) {
  return Text(kMsgStepOfMacro, std::to_string(at / kMacroSteps + 1),
              std::to_string(at % kMacroSteps + 1));
}

std::string BadSteps() {
  std::string lines;
  for (int at = 0; at < kMacros * kMacroSteps; ++at) {
    const SmStep& step = SmTable[at / kMacroSteps][at % kMacroSteps];
    if (!SmStepIsGood(step)) lines += NameOf(at) + ": " + StepText(step) + "\n";
  }
  return lines;
}

/// The check may have put steps right, which does not count as a change by the user.
bool AreGood() {
  const bool saved = SmTable == SmSaved;
  const int result = SmData_Check();
  if (saved) SmSaved = SmTable;
  SmShow();
  if (result == 0) return true;
  MsgBoxWithDetails(
      Text(921) + "\n\n" + Text(922) + "\n\n" + Text(938) + "\n\n" + SmFlags.SmBadList, BadSteps());
  return false;
}

void TakeStage() {
  SmStageCommit();
  SmShow();
}

bool IsChanged() { return SmTable != SmTableRecord{} && SmTable != SmSaved; }

std::string Differing() {
  SmStageCompare();
  return SmFlags.SmSyogoList;
}

int ReadFile(const std::string& path) {
  const WaitCursorScope wait_cursor;
  return OpenSMFile(path);
}

void Rows(const std::array<SmTableRecord, 2>& sides, CompareList& list) {
  for (int at = 0; at < kMacros * kMacroSteps; ++at) {
    const int n = at / kMacroSteps, s = at % kMacroSteps;
    const SmStep &here = sides[kHere][n][s], &there = sides[kThere][n][s];
    const bool differs = SmStepDiffers(here, there);
    if (!list.Counts(differs)) continue;
    list.Add({at, Text(kMsgStep, std::to_string(s + 1)), std::to_string(n + 1), StepText(here),
              StepText(there), differs});
  }
}

std::string Details() { return LinesOfDifferences(SmTable, SmStage, Rows, NameOf); }

bool Take(const SmTableRecord& there, int at) {
  const SmStep& step = there[at / kMacroSteps][at % kMacroSteps];
  if (step.Command == kLeftOut) return false;
  SmTable[at / kMacroSteps][at % kMacroSteps] = step;
  return true;
}

}  // namespace

const DataKind& SmKind() {
  static const DataKind kind{.StoreShown = [] {},  // done when the commands go off
                             .MayBeCompared = AreGood,
                             .MayBeSent = AreGood,
                             .StageFromTable = SmStageFromTable,
                             .TakeStage = TakeStage,
                             .IsChanged = IsChanged,
                             .MarkSaved = [] { SmSaved = SmTable; },
                             .Differing = Differing,
                             .Details = Details,
                             .ReadFromCt = ReadSmFromCt,
                             .WriteToCt = WriteSmToCt,
                             .ReadFile = ReadFile,
                             .FileWasRefused = [] { return false; },  // counts as a failed read
                             .SaveFile = SmFileSave,
                             .FileFault = &SmFlags.SmFileFaultText,
                             .Path = &SmFlags.SmFilePath,
                             .FailureEndsSession = false,
                             .AskRead = 920,
                             .AskWrite = 937,
                             .FileToOpen = {FileKind::Macro, 930, "smd", 934},
                             .File = {FileKind::Macro, 930, "smd", 934},
                             .OpenTitle = 928,
                             .SaveTitle = 933,
                             .VerifyTitle = 936,
                             .PrintTitle = 932,
                             .FileNotRead = 931,
                             .FileNotSaved = 935,
                             .Equal = 926,
                             .DifferHead = 923,
                             .DifferList = 924,
                             .DifferName = 925};
  return kind;
}

void CompareMacros() {
  SmTableRecord left_out{};
  for (auto& macro : left_out) macro.fill({kLeftOut, 0});
  CompareData<SmTableRecord>({SmKind(), kMsgTitle, SmTable, SmStage, left_out, Rows, Take, SmShow});
}

}  // namespace tr7
