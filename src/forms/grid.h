#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/control.h"

namespace tr7 {

/// 0xRRGGBB, or one of the two system colours below.
using Colour = std::int32_t;
inline constexpr Colour kWindowColour = -1;
inline constexpr Colour kHeaderColour = -2;

/// Least width of a column that takes the width that is left, twips.
inline constexpr int kRestWidthAtLeast = 3500;

/// Where texts stand in a column. `General`: numbers to the right, all else to the left.
enum class ColAlign { General, Left, Centre, Right };

/// What a cell's rule says of a text that an edit ends with.
struct EditVerdict {
  bool accepted = true;
  std::string reason = {};  ///< of a refusal, for the user
};

/// What a row is to the others, for a mark in the fixed column.
enum class RowMark { None, Target, Jump };

/// A signal lamp in a cell, left of its text.
enum class CellLamp { None, Off, On };

/// The row at which something is at work now; 0: none.
struct RowAtWork {
  int Row = 0;
  bool Differs = false;  ///< what is at work there is something else than what the row says
  bool Is(int row) const { return row == Row && row != 0; }
  bool operator==(const RowAtWork&) const = default;
};

/// A list of texts that pops up at the current cell of one column.
struct CellList {
  ListBox* Box = nullptr;  ///< on show while `Visible`; its `Click` picks
  int Col = 0;
  Handler<bool()> Show;  ///< false: the current cell has none
  Handler<void(const std::string& typed)> Filter;
};

/// A grid of texts with fixed header rows and columns. Rows and columns count from 0 and include
/// the fixed ones. The texts are the editing buffer: what the user types lands here.
/// `Revision` rises with every change that a drawing of the grid must show.
struct Grid : Control {
  Grid(View& owner, const std::string& name, int rows, int cols, int fixed_rows, int fixed_cols);

  int Rows() const { return rows_; }
  int Cols() const { return cols_; }
  /// Grows with empty cells or cuts.
  void SetRows(int rows);
  void SetCols(int cols);
  /// Inserts one empty row above `row`, or removes `row`; rows below move.
  void InsertRow(int row);
  void RemoveRow(int row);

  /// With `BodyText` set, a text of the body stands until the next one is asked for.
  const std::string& Text(int row, int col) const;
  void SetText(int row, int col, std::string text);

  /// Twips; 0 hides the column, -1 takes the width that is left.
  void SetColWidth(int col, int twips);
  int ColWidth(int col) const { return col_widths_[Index(col)]; }
  /// The width that the user has given a column, twips; 0: the column has its own.
  void SetUserWidth(int col, int twips);
  int UserWidth(int col) const { return user_widths_[Index(col)]; }
  void SetRowHeight(int row, int twips);
  /// Twips; 0: the platform's own height.
  int RowHeight(int row) const;
  void SetColColour(int col, Colour colour);
  Colour ColColour(int col) const { return col_colours_[Index(col)]; }
  void SetColAlign(int col, ColAlign align);
  ColAlign AlignOf(int col) const { return col_aligns_[Index(col)]; }

  void SelectCell(int row, int col);
  void Select(int row, int col, int row_end, int col_end);

  void SetAtWork(RowAtWork row);
  const RowAtWork& AtWork() const { return at_work_; }
  /// Brings the row into sight, the selection stays. What is in sight already does not move.
  void BringIntoSight(int row);
  /// The row that was to come into sight last, and how often one was; 0: none yet.
  int RowToSee() const { return row_to_see_; }
  int SightsAsked() const { return sights_asked_; }

  /// Marks the grid as changed where a change is not one of the texts above (cell marks).
  void Touch() { ++Revision; }

  int FixedRows;
  int FixedCols;
  int Row = 0, Col = 0;        ///< current cell
  int RowSel = 0, ColSel = 0;  ///< other corner of the selection
  int TopRow = 0;              ///< first body row on show
  bool Redraw = true;          ///< false: painting waits
  std::uint64_t Revision = 0;
  Colour EditColour = kWindowColour;  ///< ground of the cell that is edited
  /// Columns share the width that the view has, each at least as wide as its longest text.
  bool FitsView = false;

  MsgId WhenEmpty;  ///< what to do first, shown while there is no row
  /// For a body of many rows that are made from what is kept elsewhere: its texts are asked for as
  /// they are drawn, and the grid holds none. Set before the rows are counted.
  Handler<std::string(int row, int col)> BodyText;

  // Rules that logic sets.
  Handler<bool(int row, int col)> CanEdit;
  /// Asked when an edit ends, with the text to show in `text` where it accepts.
  Handler<EditVerdict(int row, int col, std::string& text)> AcceptEdit;
  Handler<int(int col)> MaxLength;  ///< characters; 0: no limit
  /// What an edit puts in for a typed character of ASCII; 0 drops it. Others pass where the column
  /// takes composed text.
  Handler<char(int col, char typed)> FoldKey;
  Handler<bool(int col)> InputMethodOn;      ///< true: the column takes composed text
  Handler<bool(int row, int col)> IsMarked;  ///< flagged cell, drawn apart
  Handler<bool(int row, int col)> IsDone;    ///< dealt with: bears a check sign
  Handler<bool(int row, int col)> IsUnused;  ///< what stands there counts for nothing: drawn grey
  Handler<CellLamp(int row, int col)> LampOf;
  Handler<RowMark(int row)> MarkOfRow;
  Handler<std::string(int row, int col)> CellToolTip;
  Handler<void()> SelChange;
  /// The Enter or Tab key with no edit open or after one was accepted: moves the current cell.
  Handler<void(bool backwards)> MoveOn;
  /// The Enter key, the space bar or a double click, for a grid whose cells are chosen, not edited.
  Handler<void()> Choose;
  /// A click of the left button on a cell of the body, or the space bar on the current one.
  Handler<void(int row, int col)> CellClick;
  Handler<void()> DeleteKey;  ///< in place of an edit that ends with an empty text
  Handler<bool()> DownAtEnd;  ///< the down arrow on the last row; true: it has moved the cell
  /// F12, and a double click in a cell: to the row that the current one names. True: it went.
  Handler<bool(bool by_key)> GoToTarget;
  CellList List;
  Handler<void()> Copy;   ///< Ctrl+C
  Handler<void()> Paste;  ///< Ctrl+V

  /// Edits the cell as a user does: selects it, and when it may be edited hands the text to
  /// `AcceptEdit` and keeps what that gives back. 0 accepted, 1 refused (the old text stays).
  int TypeInto(int row, int col, const std::string& typed);
  /// Its two halves, for an editor on the screen.
  bool MayEdit(int row, int col) const;
  [[nodiscard]] EditVerdict EndEdit(int row, int col, std::string typed);
  /// An edit of some grid is coming to its end: what it brings is half in the record.
  static bool AnEditEnds() { return edits_ending_ > 0; }

 private:
  std::size_t Index(int col) const { return static_cast<std::size_t>(col); }
  std::size_t CellIndex(int row, int col) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) + Index(col);
  }

  inline static int edits_ending_ = 0;

  int rows_ = 0;
  int cols_ = 0;
  std::vector<std::string> cells_;
  mutable std::string asked_;  ///< the body's text that was asked for last
  std::vector<int> col_widths_;
  std::vector<int> user_widths_;
  std::vector<Colour> col_colours_;
  std::vector<ColAlign> col_aligns_;
  std::vector<int> row_heights_;  ///< of the rows that have one
  RowAtWork at_work_;
  int row_to_see_ = 0;
  int sights_asked_ = 0;
};

}  // namespace tr7
