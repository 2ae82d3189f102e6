#include "ui/cell_bubble.h"

#include <algorithm>

namespace tr7 {
namespace {

constexpr int kWidest = 360, kGap = 3;

}  // namespace

CellBubble::CellBubble(QWidget& grid) : QLabel(&grid) {
  setObjectName(QStringLiteral("areaCellBubble"));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setStyleSheet(
      QStringLiteral("QLabel { background: #fffbe8; color: #1d2733; border: 2px solid #b3751a; "
                     "padding: 3px 6px; }"));
  hide();
}

void CellBubble::PlaceAt(const QRect& cell) {
  const QRect field = parentWidget()->rect();
  // A label that wraps is as narrow as it likes: one that has room stands on one line.
  setWordWrap(false);
  const bool wraps = sizeHint().width() > std::min(kWidest, field.width());
  setWordWrap(wraps);
  const int width = wraps ? std::min(kWidest, field.width()) : sizeHint().width();
  const int height = wraps ? heightForWidth(width) : sizeHint().height();
  const int below = cell.bottom() + kGap, above = cell.top() - kGap - height;
  const bool fits = below + height <= field.bottom() || above < field.top();
  const int left = std::max(std::min(cell.left(), field.right() - width), field.left());
  setGeometry(left, fits ? below : above, width, height);
  raise();
}

}  // namespace tr7
