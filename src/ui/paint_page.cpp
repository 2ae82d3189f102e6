#include "ui/paint_page.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRegularExpression>
#include <map>

#include "ui/binding.h"

namespace tr7 {
namespace {

constexpr double kMmPerInch = 25.4, kPointsPerInch = 72;
/// Of the sheet, above and below the page: printers leave some of it blank.
constexpr double kEdgeMm = 6;
/// Where letters of a Japanese font stand in their field.
constexpr double kAboveBaseLine = 0.88;

/// A font of this name, or the first of those with Japanese letters of one width, or any with
/// Japanese letters at all.
QString FindFamily(const QString& name) {
  const QStringList installed = QFontDatabase::families();
  for (const QString& family :
       {name, QStringLiteral("MS Gothic"), QStringLiteral("Noto Sans Mono CJK JP"),
        QStringLiteral("BIZ UDGothic"), QStringLiteral("IPAGothic"), QStringLiteral("IPAexGothic"),
        QStringLiteral("TakaoGothic"), QStringLiteral("VL Gothic"), QStringLiteral("Osaka-Mono")}) {
    const auto at = installed.indexOf(
        QRegularExpression(QRegularExpression::anchoredPattern(QRegularExpression::escape(family)),
                           QRegularExpression::CaseInsensitiveOption));
    if (at >= 0) return installed[at];
  }
  const QStringList japanese = QFontDatabase::families(QFontDatabase::Japanese);
  for (const QString& family : japanese) {
    if (QFontDatabase::isFixedPitch(family)) return family;
  }
  return japanese.isEmpty() ? QFontDatabase::systemFont(QFontDatabase::FixedFont).family()
                            : japanese.constFirst();
}

const QString& FamilyFor(const std::string& name) {
  static std::map<std::string, QString> found;
  const auto [at, is_new] = found.try_emplace(name);
  if (is_new) at->second = FindFamily(Q(name));
  return at->second;
}

}  // namespace

PaintPage::PaintPage(QPagedPaintDevice& device)
    : device_(device), painter_(&device), dots_per_mm_(device.logicalDpiX() / kMmPerInch) {}

double PaintPage::Width() const {
  return device_.pageLayout().fullRect(QPageLayout::Millimeter).width();
}

double PaintPage::Height() const {
  return device_.pageLayout().fullRect(QPageLayout::Millimeter).height() - 2 * kEdgeMm;
}

void PaintPage::SetFont(const PrintFont& font) {
  QFont wanted(FamilyFor(font.Name));
  wanted.setPointSizeF(font.Points);
  wanted.setBold(font.Bold);
  wanted.setItalic(font.Italic);
  wanted.setHintingPreference(QFont::PreferNoHinting);
  points_ = font.Points;
  painter_.setFont(wanted);
}

double PaintPage::TextWidth(const std::string& text) {
  return QFontMetricsF(painter_.font(), &device_).horizontalAdvance(Q(text)) / dots_per_mm_;
}

/// The field of a letter. What a font adds above and below it differs from font to font.
double PaintPage::TextHeight(const std::string&) { return points_ * kMmPerInch / kPointsPerInch; }

QPointF PaintPage::Place(double x, double y) const {
  return {x * dots_per_mm_, (y + kEdgeMm) * dots_per_mm_};
}

void PaintPage::Text(double left, double top, const std::string& text) {
  painter_.drawText(Place(left, top + kAboveBaseLine * TextHeight(text)), Q(text));
}

void PaintPage::TextRight(double right, double top, const std::string& text) {
  Text(right - TextWidth(text), top, text);
}

void PaintPage::Line(double x1, double y1, double x2, double y2, double width) {
  painter_.setPen(QPen(Qt::black, width * dots_per_mm_, Qt::SolidLine, Qt::FlatCap));
  painter_.drawLine(Place(x1, y1), Place(x2, y2));
}

QPageLayout SheetLayout(const QPageSize& size, QPageLayout::Orientation orientation) {
  QPageLayout layout(size, orientation, QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
}

}  // namespace tr7
