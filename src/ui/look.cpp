#include "ui/look.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QScreen>
#include <QStyleOption>
#include <QWidget>
#include <optional>

#include "ui/qt_texts.h"

namespace tr7::look {
namespace {

constexpr qreal kFontPoints = 9.5;
/// Japanese letters fill their field, and their lines are high.
constexpr qreal kJapaneseLess = 0.5;

Palette Light() {
  return {.window = {0xee, 0xf1, 0xf4},
          .base = {0xff, 0xff, 0xff},
          .alternate_base = {0xf6, 0xf8, 0xfa},
          .text = {0x1a, 0x24, 0x2e},
          .faint_text = {0x5a, 0x66, 0x72},
          .button = {0xf8, 0xf9, 0xfb},
          .selection = {0x1f, 0x6f, 0xb2},
          .selected_text = {0xff, 0xff, 0xff},
          .link = {0x1f, 0x6f, 0xb2},
          .difference = {0xb0, 0x00, 0x20},
          .header = {0xe3, 0xe9, 0xef},
          .header_selected = {0xc4, 0xd8, 0xea},
          .header_line = {0xc2, 0xcc, 0xd6},
          .grid_line = {0xd9, 0xdf, 0xe5},
          .unused_cell = {0xe9, 0xeb, 0xed},
          .at_work = {0x1b, 0x6b, 0x3a},
          .at_work_row = {0xd6, 0xf0, 0xdd},
          .marked_cell = {0xff, 0xc9, 0xc4},
          .good = {0x16, 0x74, 0x3a},
          .caution = {0xa6, 0x50, 0x00},
          .alarm = {0xc6, 0x28, 0x28},
          .tip = {0xff, 0xfb, 0xe8},
          .icon_line = {0x33, 0x47, 0x5b},
          .icon_paper = {0xff, 0xff, 0xff},
          .icon_off = {0xb0, 0xba, 0xc4}};
}

Palette Dark() {
  return {.window = {0x20, 0x26, 0x2c},
          .base = {0x17, 0x1c, 0x21},
          .alternate_base = {0x1c, 0x22, 0x28},
          .text = {0xe4, 0xe9, 0xee},
          .faint_text = {0xa5, 0xb1, 0xbc},
          .button = {0x2c, 0x34, 0x3c},
          .selection = {0x2a, 0x74, 0xb5},
          .selected_text = {0xff, 0xff, 0xff},
          .link = {0x6c, 0xb4, 0xf0},
          .difference = {0xff, 0xa2, 0x9a},
          .header = {0x2a, 0x32, 0x3a},
          .header_selected = {0x31, 0x48, 0x5e},
          .header_line = {0x46, 0x52, 0x5e},
          .grid_line = {0x34, 0x3d, 0x46},
          .unused_cell = {0x26, 0x2d, 0x34},
          .at_work = {0x3f, 0xb5, 0x70},
          .at_work_row = {0x1d, 0x3a, 0x2a},
          .marked_cell = {0x6e, 0x2b, 0x28},
          .good = {0x37, 0xc0, 0x5d},
          .caution = {0xff, 0xb8, 0x4a},
          .alarm = {0xff, 0x6b, 0x62},
          .tip = {0x39, 0x42, 0x4b},
          .icon_line = {0xc8, 0xd3, 0xde},
          .icon_paper = {0x2c, 0x34, 0x3c},
          .icon_off = {0x5a, 0x66, 0x71}};
}

Palette in_use = Light();
bool is_dark = false;
Theme asked_for = Theme::System, systems_word = Theme::System;

QPalette PaletteOf(const Palette& colours) {
  static const QPalette untouched;  // also when another one has been in use
  QPalette palette = untouched;
  palette.setColor(QPalette::Window, colours.window);
  palette.setColor(QPalette::WindowText, colours.text);
  palette.setColor(QPalette::Base, colours.base);
  palette.setColor(QPalette::AlternateBase, colours.alternate_base);
  palette.setColor(QPalette::Text, colours.text);
  palette.setColor(QPalette::Button, colours.button);
  palette.setColor(QPalette::ButtonText, colours.text);
  palette.setColor(QPalette::BrightText, Qt::white);
  palette.setColor(QPalette::Mid, colours.header_line);
  if (is_dark) palette.setColor(QPalette::Light, colours.header_line);  // lines under tabs
  palette.setColor(QPalette::Highlight, colours.selection);
  palette.setColor(QPalette::HighlightedText, colours.selected_text);
  palette.setColor(QPalette::Link, colours.link);
  palette.setColor(QPalette::ToolTipBase, colours.tip);
  palette.setColor(QPalette::ToolTipText, colours.text);
  palette.setColor(QPalette::PlaceholderText, colours.faint_text);
  for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, colours.faint_text);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, colours.header_line);
  return palette;
}

/// A field that is off looks off also while it is empty.
QPalette FieldPalette() {
  QPalette palette = PaletteOf(in_use);
  palette.setColor(QPalette::Disabled, QPalette::Base, in_use.window);
  return palette;
}

bool WantsDark() {
  // As long as the palette is still the system's, it says what the system looks like.
  constexpr int kMiddle = 128;
  static const bool palette_is_dark =
      QApplication::palette().color(QPalette::Window).lightness() < kMiddle;
  const Theme theme = asked_for == Theme::System ? systems_word : asked_for;
  return theme == Theme::Dark || (theme == Theme::System && palette_is_dark);
}

/// Every widget draws itself anew with another palette. Style sheets keep the colours of the
/// palette that they have met, unless they are set again.
void UsePalette() {
  in_use = is_dark ? Dark() : Light();
  QApplication::setPalette(PaletteOf(in_use));
  QApplication::setPalette(FieldPalette(), "QLineEdit");
  for (QWidget* widget : QApplication::allWidgets()) {
    if (!widget->styleSheet().isEmpty()) widget->setStyleSheet(widget->styleSheet());
  }
}

/// The system's size, as far as the views have room for it: with letters of `kFontPoints` they fit
/// the smallest screen. A system that has no size of its own leaves the toolkit's, which is small.
qreal PointsAfter(const QFont& systems) {
  constexpr qreal kToolkits = 9;
  constexpr qreal kSmallestWidth = 1024, kSmallestHeight = 768;
  const qreal wanted = systems.pointSizeF();
  const bool bare = systems.family() == QLatin1String("Sans Serif") && wanted == kToolkits;
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (bare || wanted <= 0 || !screen) return kFontPoints;
  const QSize room = screen->availableSize();
  const qreal scale = qMin(room.width() / kSmallestWidth, room.height() / kSmallestHeight);
  return qMin(wanted, kFontPoints * qMax(scale, 1.0));
}

/// The first of the families that is installed; they carry every sign of factory Japanese.
QString JapaneseFamily() {
  const QStringList installed = QFontDatabase::families();
  for (const char* family : {"Noto Sans CJK JP", "Yu Gothic UI", "Meiryo", "Hiragino Sans",
                             "IPAexGothic", "TakaoPGothic", "VL PGothic"}) {
    if (installed.contains(QLatin1String(family))) return QLatin1String(family);
  }
  return {};
}

/// Fusion, with room beside the captions of buttons.
class Style : public QProxyStyle {
 public:
  Style() : QProxyStyle(QStringLiteral("Fusion")) {}

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override {
    constexpr int kBeside = 12;
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_PushButton ? size.expandedTo({contents.width() + 2 * kBeside, 0}) : size;
  }

  /// In the dark the toolkit leaves an empty box or ring as dark as its ground.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool box = element == PE_IndicatorCheckBox;
    if (!is_dark || (!box && element != PE_IndicatorRadioButton)) return;
    painter->save();
    painter->setPen(in_use.faint_text);
    painter->setBrush(Qt::NoBrush);
    painter->setRenderHint(QPainter::Antialiasing, !box);
    const QRect outline = option->rect.adjusted(0, 0, -1, -1);
    box ? painter->drawRect(outline) : painter->drawEllipse(outline);
    painter->restore();
  }

  /// The wheel scrolls what the mouse is over, and never chooses anything on the way.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_ComboBox_AllowWheelScrolling || hint == SH_TabBar_AllowWheelScrolling) return 0;
    if (hint == SH_Table_GridLineColor) return static_cast<int>(in_use.grid_line.rgba());
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace

const Palette& Colours() { return in_use; }

QColor Ground(const QColor& colour) {
  if (!is_dark) return colour;
  constexpr float kShare = 0.12F;
  const auto mixed = [](float of_base, float of_colour) {
    return of_base * (1 - kShare) + of_colour * kShare;
  };
  const QColor& base = in_use.base;
  return QColor::fromRgbF(mixed(base.redF(), colour.redF()), mixed(base.greenF(), colour.greenF()),
                          mixed(base.blueF(), colour.blueF()));
}

void Apply(QApplication& application, Theme theme) {
  asked_for = theme;
  is_dark = WantsDark();
  application.setStyle(new Style);
  UsePalette();
  QCoreApplication::installTranslator(new QtTexts(&application));
  static const QFont systems = QApplication::font();
  QFont font = systems;
  font.setPointSizeF(PointsAfter(systems));
  QApplication::setFont(font);
}

void SystemSays(Theme theme) {
  systems_word = theme;
  if (WantsDark() == is_dark) return;
  is_dark = !is_dark;
  UsePalette();
}

void UseLanguage(bool japanese) {
  static const QFont plain = QApplication::font();
  static std::optional<bool> in_use;
  if (in_use == japanese) return;
  in_use = japanese;
  QFont font = plain;
  const QString family = japanese ? JapaneseFamily() : QString();
  if (!family.isEmpty()) {
    font.setFamilies({family, plain.family()});
    font.setPointSizeF(plain.pointSizeF() - kJapaneseLess);
  }
  QApplication::setFont(font);
}

}  // namespace tr7::look
