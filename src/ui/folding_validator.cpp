#include "ui/folding_validator.h"

namespace tr7 {

QString FoldingValidator::Folded(const Grid& grid, int col, const QString& text) {
  if (!grid.FoldKey) return text;
  constexpr char16_t kAsciiEnd = 0x80;
  const bool composes = grid.InputMethodOn && grid.InputMethodOn(col);
  QString folded;
  for (const QChar typed : text) {
    if (typed.unicode() >= kAsciiEnd) {
      if (composes) folded += typed;
    } else if (const char put = grid.FoldKey(col, typed.toLatin1())) {
      folded += QLatin1Char(put);
    }
  }
  return folded;
}

QValidator::State FoldingValidator::validate(QString& text, int& cursor) const {
  const auto behind = Folded(grid_, col_, text.left(cursor)).size();
  text = Folded(grid_, col_, text);
  cursor = static_cast<int>(behind);
  return Acceptable;
}

}  // namespace tr7
