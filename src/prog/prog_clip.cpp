#include "prog/prog_clip.h"

#include <algorithm>
#include <string>

#include "platform/doors.h"
#include "posi/clip_matrix.h"
#include "prog/command_list.h"
#include "prog/prog_hint.h"
#include "prog/prog_lines.h"
#include "prog/prog_listing.h"
#include "prog/prog_undo.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgCellsRefused = 6359, kMsgLinesBeyond = 6360, kMsgPlace = 6361;
constexpr std::size_t kCells = kProgColumns - 1;
constexpr std::size_t kMostLines = 2 * kMostProgSteps;

ClipMatrix ClipLines() {
  return ParseClipText(doors.clipboard->Text(), kMostLines + 1, kCells + 1);
}

/// A cell with a quote or a tab stands in quotes, a quote within doubled.
std::string ClipCell(const std::string& text) {
  if (text.find_first_of("\"\t") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' ? "\"\"" : std::string(1, c);
  return quoted + "\"";
}

/// Where a pasted cell was refused first, in words; empty where none was.
struct Refused {
  int count = 0;
  std::string first;
  void Add(int step, int column) {
    if (count++ == 0) first = Text(kMsgPlace, std::to_string(step), ProgHeading(column));
  }
};

/// Pastes cells from a column on; those that would stand beyond the last one are left out.
void PasteCells(ProgView& view, int step, int column, const std::vector<std::string>& cells,
                Refused& refused) {
  for (std::string text : cells) {
    if (column > kProgComment) return;
    if (!text.empty() && SetDataForFlexProg(view, step, column, text) != 0) {
      refused.Add(step, column);
    } else {
      view.flgdProg.SetText(step, column, text);
    }
    ++column;
  }
}

void CopyBlock(const Grid& listing, int first_column, int last_column) {
  const auto [first, last] = std::minmax({listing.Row, listing.RowSel});
  std::string text;
  for (int step = first; step <= last; ++step) {
    const ProgCells cells = CellsOfStep(listing, step);
    if (step > first) text += '\r';
    for (int column = first_column; column <= last_column; ++column) {
      text += (column > first_column ? "\t" : "") + ClipCell(cells[column]);
    }
  }
  doors.clipboard->SetText(text);
}

bool SelectsSteps(const Grid& listing) {
  return std::min(listing.Row, listing.RowSel) >= 1 &&
         std::max(listing.Row, listing.RowSel) < listing.Rows();
}

void TellPasted(const Refused& refused, int beyond) {
  std::string told;
  if (refused.count > 0) {
    told = Text(kMsgCellsRefused, std::to_string(refused.count), refused.first);
  }
  if (beyond > 0) told += Text(kMsgLinesBeyond, std::to_string(beyond));
  if (!told.empty()) TellInStatusPanel(told);
}

/// From a cell on, downwards; the listing grows up to its limit.
void PasteFrom(ProgView& view, int step, int column, const ClipMatrix& lines) {
  if (ReadCommandLst() != 0) return;
  RememberForUndo(view);
  Refused refused;
  int beyond = 0;
  {
    const ListingQuiet quiet(view.flgdProg);
    for (const auto& cells : lines) {
      if (step >= view.flgdProg.Rows() && !AppendProgLine(view)) {
        ++beyond;
      } else {
        PasteCells(view, step++, column, cells, refused);
      }
    }
  }
  view.Store.ProgChanged = True;
  TellPasted(refused, beyond);
}

}  // namespace

void PrgDataLineCopy(ProgView& view) {
  if (!IsWholeLine(view.flgdProg) || !SelectsSteps(view.flgdProg)) {
    MsgBox(Text(392), MsgButtons::Ok, MsgIcon::Error);
    return;
  }
  CopyBlock(view.flgdProg, kProgCommand, kProgComment);
}

bool ClipHoldsProgLines() { return ClipWidth(ClipLines()) == kCells; }

void ProgDataLinePaste(ProgView& view) {
  const Grid& listing = view.flgdProg;
  if (!SelectsSteps(listing) || listing.Col > kProgCommand) {
    MsgBox(Text(337), MsgButtons::Ok, MsgIcon::Error);
    return;
  }
  const ClipMatrix lines = ClipLines();
  if (ClipWidth(lines) != kCells) return;
  PasteFrom(view, std::min(listing.Row, listing.RowSel), kProgCommand, lines);
}

void ProgCellsCopy(ProgView& view) {
  const Grid& listing = view.flgdProg;
  const auto [first, last] = std::minmax({listing.Col, listing.ColSel});
  if (SelectsSteps(listing) && first >= kProgCommand) CopyBlock(listing, first, last);
}

void ProgCellsPaste(ProgView& view) {
  const Grid& listing = view.flgdProg;
  const int column = std::min(listing.Col, listing.ColSel);
  const ClipMatrix lines = ClipLines();
  if (!SelectsSteps(listing) || column < kProgCommand || lines.empty()) return;
  PasteFrom(view, std::min(listing.Row, listing.RowSel), column, lines);
}

}  // namespace tr7
