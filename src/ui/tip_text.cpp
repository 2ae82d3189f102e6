#include "ui/tip_text.h"

#include <QTextBoundaryFinder>

namespace tr7 {
namespace {

constexpr qsizetype kColumns = 64;

/// Columns of a text: a Japanese letter is as wide as two others.
qsizetype WidthOf(const QString& text) {
  qsizetype width = 0;
  for (const QChar c : text) width += c.unicode() >= 0x2e80 ? 2 : 1;
  return width;
}

}  // namespace

QString TipText(const std::string& text) {
  const QString whole = QString::fromStdString(text);
  if (WidthOf(whole) <= kColumns) return whole;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Line, whole);
  QString lines, line;
  qsizetype from = 0;
  for (qsizetype to = finder.toNextBoundary(); to >= 0; to = finder.toNextBoundary()) {
    const QString part = whole.mid(from, to - from);
    if (WidthOf(line + part.trimmed()) > kColumns) {
      lines += line.trimmed() + '\n';
      line.clear();
    }
    line += part;
    if (part.endsWith('\n')) {
      lines += line;
      line.clear();
    }
    from = to;
  }
  return lines + line;
}

}  // namespace tr7
