#pragma once

#include <QValidator>

#include "forms/grid.h"

namespace tr7 {

/// Folds and drops what is put into a cell's editor, typed or pasted, as the grid's `FoldKey` says.
class FoldingValidator : public QValidator {
 public:
  FoldingValidator(const Grid& grid, int col, QObject* parent)
      : QValidator(parent), grid_(grid), col_(col) {}
  State validate(QString& text, int& cursor) const override;
  /// What is left of a text.
  static QString Folded(const Grid& grid, int col, const QString& text);

 private:
  const Grid& grid_;
  int col_;
};

}  // namespace tr7
