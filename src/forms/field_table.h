#pragma once

#include <string>
#include <vector>

namespace tr7 {

struct Control;

/// A row of a field table: its name, then its fields. Where `InOnePlace`, they share one column.
struct FieldRow {
  Control* Name;
  std::vector<Control*> Fields;
  bool InOnePlace = false;
};

/// A regular layout as data: rows of fields in columns, under heads where it has any. The desktop
/// builds it on the widget of the layout that is named `Place`.
struct FieldTable {
  std::string Place;
  std::vector<Control*> Heads;  ///< one a column of fields
  std::vector<FieldRow> Rows;
  /// Twips: of the names, then of each column of fields; empty: the usual ones.
  std::vector<double> Widths = {};
  bool LabelsAtFields = false;  ///< each label stands close to the field behind it
};

}  // namespace tr7
