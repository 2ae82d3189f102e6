#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tr7 {

/// Cells of a clipboard text, row by row; rows may differ in length.
using ClipMatrix = std::vector<std::vector<std::string>>;

/// Takes a text apart: tabs between cells; CR, LF or CR LF behind rows, where the last row may do
/// without. A spreadsheet puts a cell that holds one of these, or a quote, between quotes; a quote
/// that no other closes before a tab or a row's end is a plain character. Surplus empty rows at
/// the end of a text of several columns are dropped. Parsing stops behind `max_rows` rows and
/// within a row of `max_cols` cells, so any text ends in bounded time and memory.
ClipMatrix ParseClipText(std::string_view text, std::size_t max_rows, std::size_t max_cols);

/// The number of columns where all rows have the same; 0 where they differ or there are none.
std::size_t ClipWidth(const ClipMatrix& matrix);

}  // namespace tr7
