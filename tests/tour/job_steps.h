#pragma once

#include <string>

#include "tests/tour/session.h"

namespace tr7::tour {

// The steps of a position table's day. Each ends with the commands on again.

/// A cell of the table by position number and column.
struct Cell {
  int number;
  int col;
};
int RowOf(const Cell& cell);

/// Types over the cell and confirms.
void EditCell(Tour& tour, const Cell& cell, const std::string& typed);
/// The same with a text that is no value of the cell: it keeps `kept`. Takes a picture.
void BeRefused(Tour& tour, const Cell& cell, const std::string& typed, const std::string& kept);
/// Saves under a name that is asked for.
void SaveNew(Tour& tour, const QString& path, bool picture);
void SwitchToPulses(Tour& tour);
void WriteAll(Tour& tour);
void VerifyEqual(Tour& tour);
/// One cell was changed since; the result view tells both sides of it.
void VerifyDifferent(Tour& tour, const std::string& own, const std::string& other);
void VerifyFile(Tour& tour, const QString& path, const std::string& own);
/// Opens the file and drops what was changed: `cell` holds `saved` again.
void OpenAgain(Tour& tour, const QString& path, const Cell& cell, const std::string& saved);

}  // namespace tr7::tour
