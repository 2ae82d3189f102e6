#include "prog/prog_lines.h"

#include <algorithm>

#include "base/text_helpers.h"
#include "platform/doors.h"
#include "prog/command_list.h"
#include "prog/prog_listing.h"
#include "prog/prog_undo.h"
#include "state/message_box.h"

namespace tr7 {
namespace {

bool IsStep(const Grid& listing, int row) { return row >= 1 && row < listing.Rows(); }

void SelectLine(Grid& listing, int row) { listing.Select(row, kProgCommand, row, kProgComment); }

bool IsEmptyStep(const Grid& listing, int step) {
  return CellsOfStep(listing, step) == ProgCells();
}

/// Adds an empty step at the end; false where the program's limit is reached.
bool AppendByKey(ProgView& view) {
  Grid& listing = view.flgdProg;
  if (ListingSteps(listing) >= ListingLimit(view)) return false;
  RememberForUndo(view);
  listing.SetRows(listing.Rows() + 1);
  FGProg_ReNumber(listing);
  view.Store.ProgChanged = True;
  return true;
}

}  // namespace

bool IsWholeLine(const Grid& listing) {
  const auto [first, last] = std::minmax({listing.Col, listing.ColSel});
  return listing.Col == kProgNo || (first <= kProgCommand && last == kProgComment);
}

int SetDataForFlexProg(ProgView& view, int, int col, std::string& text) {
  text = Trim(text);
  if (col != kProgCommand || SeekCmdCode(text) >= 0) return 0;
  view.Store.ProgCmdBad = True;
  doors.forms->Beep();
  return 1;
}

char ProgKey(int col, char typed) {
  constexpr std::string_view kKeys[] = {"",
                                        "1234!%*+-/<=>",
                                        "0123456789FIOPRfr.",
                                        "0123456789FIOPRfr.-",
                                        "0123456789FIOPRfr/-",
                                        "0123456789FIOPRfr"};
  if (col == kProgComment) return typed;
  if (col < kProgCommand || col > kProgResult) return 0;
  const bool letter = (typed >= 'a' && typed <= 'z') || (typed >= 'A' && typed <= 'Z');
  const char upper = typed >= 'a' && typed <= 'z' ? static_cast<char>(typed - 'a' + 'A') : typed;
  if (col == kProgCommand && letter) return upper;
  // F and f, R and r differ; i, o and p have no meaning of their own.
  const char folded = typed == 'i' || typed == 'o' || typed == 'p' ? upper : typed;
  return kKeys[col].find(folded) == std::string_view::npos ? '\0' : folded;
}

int Check_flgdProgLineNo(const ProgView& view) {
  if (ListingSteps(view.flgdProg) > 0) return 0;
  MsgBox(TwoLines(433, 434));
  return 1;
}

int Check_NullLineAndDelete(ProgView& view) {
  Grid& listing = view.flgdProg;
  const ListingQuiet quiet(listing);
  bool remembered = false;
  for (int row = 2; row < listing.Rows();) {
    if (!IsEmptyStep(listing, row)) {
      ++row;
      continue;
    }
    if (!remembered) RememberForUndo(view);
    remembered = true;
    if (listing.Row > row) listing.Row = listing.RowSel = listing.Row - 1;
    listing.RemoveRow(row);
  }
  FGProg_ReNumber(listing);
  return 0;
}

void ProgEnterKey(ProgView& view) {
  Grid& listing = view.flgdProg;
  if (!IsStep(listing, listing.Row)) return;
  if (listing.Col < kProgComment) return listing.SelectCell(listing.Row, listing.Col + 1);
  if (listing.Row == ListingSteps(listing) && !AppendByKey(view)) return;
  listing.SelectCell(listing.Row + 1, kProgCommand);
}

void ProgDeleteKey(ProgView& view) {
  Grid& listing = view.flgdProg;
  if (listing.Col < kProgCommand || !listing.MayEdit(listing.Row, listing.Col)) return;
  if (listing.Text(listing.Row, listing.Col).empty()) return;
  RememberForUndo(view);
  listing.SetText(listing.Row, listing.Col, "");
  view.Store.ProgChanged = True;
}

bool ProgDownKey(ProgView& view) {
  Grid& listing = view.flgdProg;
  if (listing.Row != ListingSteps(listing) || !AppendByKey(view)) return false;
  listing.SelectCell(listing.Row + 1, listing.Col);
  return true;
}

void cmdInsLineProg_Click(ProgView& view) {
  Grid& listing = view.flgdProg;
  // Meant so: a full program loses its last step to the new one.
  const int most = ListingLimit(view);
  const int row = std::min(listing.Row, listing.RowSel);
  if (!IsWholeLine(listing) || !IsStep(listing, row)) {
    MsgBox(TwoLines(388, 389));
    return;
  }
  RememberForUndo(view);
  {
    const ListingQuiet quiet(listing);
    while (ListingSteps(listing) >= most && listing.Rows() > 1) {
      listing.RemoveRow(listing.Rows() - 1);
    }
    listing.InsertRow(std::min(row, listing.Rows()));
    FGProg_ReNumber(listing);
  }
  view.Store.ProgChanged = True;
  SelectLine(listing, std::min(row, ListingSteps(listing)));
}

void cmdDelLineProg_Click(ProgView& view) {
  Grid& listing = view.flgdProg;
  const auto [first, last] = std::minmax({listing.Row, listing.RowSel});
  // Meant so: what a file brings beyond the longest program is no line to delete.
  if (!IsStep(listing, first) || !IsStep(listing, last) || last > kMostProgSteps) {
    MsgBox(TwoLines(386, 387));
    return;
  }
  RememberForUndo(view);
  {
    const ListingQuiet quiet(listing);
    const bool all = last - first + 1 == ListingSteps(listing);
    for (int count = last - first + (all ? 0 : 1); count > 0; --count) {
      listing.RemoveRow(all ? 2 : first);
    }
    if (all) PutCells(listing, 1, {});  // the listing never loses its last line
    FGProg_ReNumber(listing);
  }
  view.Store.ProgChanged = True;
  SelectLine(listing, std::min(first, ListingSteps(listing)));
  // An Enter that was meant for something else deletes nothing more.
  doors.forms->SetFocus(listing);
}

}  // namespace tr7
