#include "report/prog_print.h"

#include "prog/command_list.h"
#include "prog/prog_check.h"
#include "prog/prog_listing.h"
#include "report/print_flow.h"
#include "report/prog_report.h"
#include "state/busy_scope.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgGood = 7618, kMsgErrors = 7619, kMsgUnchecked = 7620, kMsgStep = 7621;

std::vector<std::string> CheckLines(ProgView& view) {
  if (ReadCommandLst() != 0 || TorikomiProg2DA(view) != 0) return {Text(kMsgUnchecked)};
  ProgStore checked = view.Store;  // the pane keeps the errors that the user looks at
  checked.ProgErrList.clear();
  if (programCheckProc(checked) == 0) return {Text(kMsgGood)};
  std::vector<std::string> lines{Text(kMsgErrors, std::to_string(checked.ProgErrList.size()))};
  for (const ProgError& error : checked.ProgErrList) {
    lines.push_back(Text(kMsgStep, std::to_string(error.step), error.text));
  }
  return lines;
}

}  // namespace

void PrintProgListing(ProgView& view) {
  const CommandsOff commands_off;
  const BusyScope busy;
  ProgListing listing;
  if (view.Store.ProgCopyNo > 0) listing.Number = std::to_string(view.Store.ProgCopyNo);
  for (int step = 1; step <= ListingSteps(view.flgdProg); ++step) {
    listing.Steps.push_back(CellsOfStep(view.flgdProg, step));
  }
  listing.CheckResult = CheckLines(view);
  SheetHead head = HeadOfFile({});
  head.Detail = view.Caption;
  static_cast<void>(PrintReport(PrintProgTable(listing, head)));
}

}  // namespace tr7
