#include "prog/prog_clip.h"

#include <algorithm>
#include <string>

#include "base/text_helpers.h"
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

ProgLineClipRecord ProgLineClip;

namespace {

constexpr int kMsgBeyondLimit = 7128, kMsgNoProgLines = 7129;
constexpr int kMsgCellsRefused = 6359, kMsgLinesBeyond = 6360, kMsgPlace = 6361;
constexpr std::size_t kCells = kProgColumns - 1;
constexpr std::size_t kMostLines = 2 * kMostProgSteps;

ClipMatrix LinesOf(const std::string& text) {
  return ParseClipText(text, kMostLines + 1, kCells + 1);
}

bool IsProgLine(const std::vector<std::string>& cells) {
  return SeekCmdCode(Trim(cells[0])) >= 0 ||
         std::all_of(cells.begin(), cells.end(), [](const auto& cell) { return cell.empty(); });
}

bool AreProgLines(const std::string& text) {
  const ClipMatrix lines = LinesOf(text);
  if (ClipWidth(lines) != kCells) return false;
  return text == ProgLineClip.Text || std::all_of(lines.begin(), lines.end(), IsProgLine);
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
  for (const std::string& cell : cells) {
    if (column > kProgComment) return;
    std::string text = OneLine(cell);
    if (!text.empty() && SetDataForFlexProg(view, step, column, text) != 0) {
      refused.Add(step, column);
    } else {
      view.flgdProg.SetText(step, column, text);
    }
    ++column;
  }
}

std::string CopyBlock(const Grid& listing, int first_column, int last_column) {
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
  return text;
}

bool SelectsSteps(const Grid& listing) {
  return std::min(listing.Row, listing.RowSel) >= 1 &&
         std::max(listing.Row, listing.RowSel) < listing.Rows();
}

/// `left_out`: of the lines that were not pasted, in words.
void TellPasted(const Refused& refused, const std::string& left_out) {
  std::string told;
  if (refused.count > 0) {
    told = Text(kMsgCellsRefused, std::to_string(refused.count), refused.first);
  }
  told += left_out;
  if (!told.empty()) TellInStatusPanel(told);
}

/// Over the lines from `step` on, as many as there are.
void PasteOver(ProgView& view, int step, int column, const ClipMatrix& lines) {
  const int count = std::min(static_cast<int>(lines.size()), view.flgdProg.Rows() - step);
  Refused refused;
  {
    const ListingQuiet quiet(view.flgdProg);
    for (int i = 0; i < count; ++i) {
      PasteCells(view, step + i, column, lines[static_cast<std::size_t>(i)], refused);
    }
  }
  view.Store.ProgChanged = True;
  const int beyond = static_cast<int>(lines.size()) - count;
  TellPasted(refused, beyond > 0 ? Text(kMsgLinesBeyond, std::to_string(beyond)) : std::string());
}

/// Above `step`, the first ones that the program has room for.
void InsertLines(ProgView& view, int step, const ClipMatrix& lines) {
  Grid& listing = view.flgdProg;
  const bool is_new = ListingSteps(listing) == 1 && CellsOfStep(listing, 1) == ProgCells();
  const int limit = ListingLimit(view);
  const int room = std::max(limit - ListingSteps(listing) + (is_new ? 1 : 0), 0);
  const int count = std::min(static_cast<int>(lines.size()), room);
  Refused refused;
  if (count > 0) {
    RememberForUndo(view);
    const ListingQuiet quiet(listing);
    for (int i = is_new ? 1 : 0; i < count; ++i) listing.InsertRow(step);
    FGProg_ReNumber(listing);
    for (int i = 0; i < count; ++i) {
      PasteCells(view, step + i, kProgCommand, lines[static_cast<std::size_t>(i)], refused);
    }
    view.Store.ProgChanged = True;
    listing.Select(step, kProgCommand, step + count - 1, kProgComment);
  }
  const int beyond = static_cast<int>(lines.size()) - count;
  TellPasted(refused, beyond > 0
                          ? Text(kMsgBeyondLimit, std::to_string(limit), std::to_string(beyond))
                          : std::string());
}

}  // namespace

void PrgDataLineCopy(ProgView& view) {
  if (!IsWholeLine(view.flgdProg) || !SelectsSteps(view.flgdProg)) {
    MsgBox(Text(392), MsgButtons::Ok, MsgIcon::Error);
    return;
  }
  ProgLineClip.Text = CopyBlock(view.flgdProg, kProgCommand, kProgComment);
}

bool ClipHoldsProgLines() { return AreProgLines(doors.clipboard->Text()); }

void ProgDataLinePaste(ProgView& view) {
  const Grid& listing = view.flgdProg;
  if (!SelectsSteps(listing) || listing.Col > kProgCommand) {
    MsgBox(Text(337), MsgButtons::Ok, MsgIcon::Error);
    return;
  }
  if (ReadCommandLst() != 0) return;
  const std::string text = doors.clipboard->Text();
  if (!AreProgLines(text)) return TellInStatusPanel(Text(kMsgNoProgLines));
  InsertLines(view, std::min(listing.Row, listing.RowSel), LinesOf(text));
}

void ProgCellsCopy(ProgView& view) {
  const Grid& listing = view.flgdProg;
  const auto [first, last] = std::minmax({listing.Col, listing.ColSel});
  if (SelectsSteps(listing) && first >= kProgCommand) CopyBlock(listing, first, last);
}

void ProgCellsPaste(ProgView& view) {
  const Grid& listing = view.flgdProg;
  const int column = std::min(listing.Col, listing.ColSel);
  const ClipMatrix lines = LinesOf(doors.clipboard->Text());
  if (!SelectsSteps(listing) || column < kProgCommand || lines.empty()) return;
  if (ReadCommandLst() != 0) return;
  RememberForUndo(view);
  PasteOver(view, std::min(listing.Row, listing.RowSel), column, lines);
}

}  // namespace tr7
